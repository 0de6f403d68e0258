#pragma once

#include <algorithm>

#include "model/timing/detailed_resolution_item.h"

namespace VNT {

struct DisplayIdDetailedResolutionAspectRatioEnum {
    enum Enum : int {
        Ratio1x1,
        Ratio5x4,
        Ratio4x3,
        Ratio15x9,
        Ratio16x9,
        Ratio16x10,
        Ratio64x27,
        Ratio256x135,
        Automatic,
    };
    static constexpr int Carried = 16;  // the values of the four bits
    static constexpr ValueText<Enum> Texts[] = {
        {Ratio1x1, "1:1"},     {Ratio5x4, "5:4"},         {Ratio4x3, "4:3"},
        {Ratio15x9, "15:9"},   {Ratio16x9, "16:9"},       {Ratio16x10, "16:10"},
        {Ratio64x27, "64:27"}, {Ratio256x135, "256:135"}, {Automatic, "Automatic"},
    };
    // What a description shows: nothing of "Automatic" and the reserved values.
    static String Describe(Enum value);
};

struct DisplayIdDetailedResolutionStereoEnum {
    enum Enum : int { Mono, Stereo, MonoOrStereo };
    static constexpr int Carried = 4;
    static constexpr ValueText<Enum> Texts[] = {{Mono, "Mono"}, {Stereo, "Stereo"}, {MonoOrStereo, "Mono or stereo"}};
};

struct DisplayId1DetailedResolutionFields : DetailedResolutionFields {
    DisplayIdDetailedResolutionAspectRatioEnum::Enum aspectRatio =
        DisplayIdDetailedResolutionAspectRatioEnum::Automatic;
    DisplayIdDetailedResolutionStereoEnum::Enum stereo = DisplayIdDetailedResolutionStereoEnum::Mono;
    bool preferred = false;  // in the second revision of DisplayID v2: YCbCr 4:2:0
    bool operator==(const DisplayId1DetailedResolutionFields&) const = default;
};

struct DisplayId2DetailedResolutionFields : DisplayId1DetailedResolutionFields {
    Bytes extraBytes;  // behind byte 19
    bool operator==(const DisplayId2DetailedResolutionFields&) const = default;
};

// What the detailed timings of DisplayID have in common: 20 bytes, and in v2 up to 7 more. Lines stand in the bytes as
// in the record, whatever the scan.
template <class X, ResolutionTypeEnum::Enum type, class Fields, int maxSize, int clockDecimals>
class TDisplayIdDetailedResolution
    : public TDetailedResolution<X, Fields, maxSize,
                                 TCommonType<X, ResolutionTypeEnum::Enum, type, AnyResolution, AnyDetailedResolution>> {
    using Base =
        TDetailedResolution<X, Fields, maxSize,
                            TCommonType<X, ResolutionTypeEnum::Enum, type, AnyResolution, AnyDetailedResolution>>;

public:
    static constexpr int MinSize = 20;
    static constexpr int MaxSize = maxSize;

    using Base::Base;

    DetailedResolutionLimits GetLimits() const {
        constexpr ValueLimits count{1, MaxTimingCount, 0, 0, {}};
        constexpr ValueLimits front{1, MaxFrontPorch, 0, 0, {}};
        constexpr ValueLimits blank{0, MaxTimingCount, 0, 0, {}};
        const Decimal clockUnit(1, clockDecimals);
        return {LimitsOfAxis({count, front, count, blank}, this->hactive, this->hfront, this->hsync),
                LimitsOfAxis({count, front, count, blank}, this->vactive, this->vfront, this->vsync),
                DecimalLimits{clockUnit, Decimal(MostClocks, clockDecimals), clockUnit, Decimal(), {}}, clockDecimals};
    }
    DetailedResolutionLimits GetAllLimits() const { return GetLimits(); }

    void FillTexts(TextTable& table) const {
        Base::FillTexts(table);
        FillAspectRatioTexts(table, DisplayIdDetailedResolutionAspectRatioEnum::Describe(this->aspectRatio), X::Format);
        const String mark = this->preferred ? U"*" : U"";
        table.Set(U"{preferredtext}", mark);
        table.Set(U"{ycc420text}", mark);
    }

    template <class IO>
    static void Map(IO& io, auto& item) {
        constexpr ValueCoding lessOne{1, 1, {}};
        const DecimalCoding clocks{Decimal(1, clockDecimals), Decimal(1, clockDecimals), {}};
        const DetailedResolutionLimits limits = io.Tested([&item] { return item.GetLimits(); });
        const TimingAxisLimits &h = limits.horizontal, &v = limits.vertical;
        io.Number("pixelclock", 24, item.actualpixelclock, clocks, TLimitPair(limits.pixelclock));
        io.Number(
            "aspectRatio", 4, item.aspectRatio,
            OneOf<DisplayIdDetailedResolutionAspectRatioEnum>(DisplayIdDetailedResolutionAspectRatioEnum::Carried));
        io.Kept("interlaced", 1, item.interlaced);
        io.Number("stereo", 2, item.stereo,
                  OneOf<DisplayIdDetailedResolutionStereoEnum>(DisplayIdDetailedResolutionStereoEnum::Carried));
        io.Kept("preferred", 1, item.preferred);
        io.Number("hactive", 16, item.hactive, lessOne, TLimitPair(h.active));
        io.Number("hblank", 16, item.hblank, lessOne, TLimitPair(h.blank));
        io.Number("hfront", 15, item.hfront, lessOne, TLimitPair(h.front));
        io.Kept("hpolarity", 1, item.hpolarity);
        io.Number("hsync", 16, item.hsync, lessOne, TLimitPair(h.sync));
        io.Number("vactive", 16, item.vactive, lessOne, TLimitPair(v.active));
        io.Number("vblank", 16, item.vblank, lessOne, TLimitPair(v.blank));
        io.Number("vfront", 15, item.vfront, lessOne, TLimitPair(v.front));
        io.Kept("vpolarity", 1, item.vpolarity);
        io.Number("vsync", 16, item.vsync, lessOne, TLimitPair(v.sync));
        if constexpr (maxSize > MinSize) io.Rest("extraBytes", item.extraBytes, X::ExtraLimits(io.Available()));
        Base::MapBeyondBytes(io, item, limits, limits);
    }

protected:
    bool ReadFrame(ByteRange range) {
        static_cast<Fields&>(*this) = Fields();
        TLayout<X>::Read(this->Self(), range);
        InitFromEncoded(*this);
        return true;
    }
    // What the item leaves of the range is filled with zeros.
    bool WriteFrame(ByteRange range) const {
        range.Fill(0);
        TLayout<X>::Write(this->Self(), range);
        return true;
    }

private:
    static constexpr std::int64_t MostClocks = 16777216;  // 24 bits, stored less one
};

class DisplayId1DetailedResolution
    : public TDisplayIdDetailedResolution<DisplayId1DetailedResolution, ResolutionTypeEnum::DisplayId1Detailed,
                                          DisplayId1DetailedResolutionFields, 20, 2> {
public:
    static constexpr DetailedResolutionTextFormat Format{U"{description}{preferredtext}", U"DisplayID v1 detailed", 2};

    DisplayId1DetailedResolution() = default;
    explicit DisplayId1DetailedResolution(const FieldsType& fields) : TDisplayIdDetailedResolution(fields) { Settle(); }

    bool Read(ByteRange range) { return range.Limit(MaxSize) && ReadFrame(range); }
    bool Write(ByteRange range) const { return range.Limit(MaxSize) && IsValidAll() && WriteFrame(range); }
    ItemStatus GetAvailable() const;
};

// The two forms of DisplayID v2. What they may take is what their block gives each of its descriptors; where that is
// not known it is 27 bytes, the most that a block can.
template <class X, ResolutionTypeEnum::Enum type>
class TDisplayId2DetailedResolution
    : public TDisplayIdDetailedResolution<X, type, DisplayId2DetailedResolutionFields, 27, 3> {
    using Base = TDisplayIdDetailedResolution<X, type, DisplayId2DetailedResolutionFields, 27, 3>;

public:
    using Base::Base;
    using Base::GetStatus;
    using Base::IsValid;
    using Base::IsValidAll;

    static TLimitPair<CountLimits> ExtraLimits(int available) {
        return CountLimits{0, std::clamp(available, 0, Base::MaxSize) - Base::MinSize};
    }

    int GetSize() const { return Base::MinSize + this->extraBytes.Size(); }
    // A descriptor of `size` bytes; zeros at its end are no extra bytes.
    bool Read(ByteRange range, int size) {
        if (size < Base::MinSize || size > Base::MaxSize || !range.Limit(size) || !this->ReadFrame(range)) return false;
        this->extraBytes.TrimTrailing(0);
        return true;
    }
    bool Write(ByteRange range) const {
        return range.Size() >= GetSize() && this->IsValidAll() && this->WriteFrame(range);
    }
    bool IsValid(int available) const { return ValidityOf(this->Self(), available).proper; }
    bool IsValidAll(int available) const { return ValidityOf(this->Self(), available).all; }
    ItemStatus GetStatus(int available) const { return StatusOf(this->Self(), available); }
    ItemStatus GetAvailable(int available = Base::MaxSize) const;
};

class DisplayId2DetailedResolution
    : public TDisplayId2DetailedResolution<DisplayId2DetailedResolution, ResolutionTypeEnum::DisplayId2Detailed> {
public:
    static constexpr DetailedResolutionTextFormat Format{U"{description}{preferredtext}", U"DisplayID v2 detailed", 3};

    DisplayId2DetailedResolution() = default;
    explicit DisplayId2DetailedResolution(const FieldsType& fields) : TDisplayId2DetailedResolution(fields) {
        Settle();
    }
};

// From the second revision of the block on, the top bit of byte 3 tells YCbCr 4:2:0.
class DisplayId2DetailedResolutionR2
    : public TDisplayId2DetailedResolution<DisplayId2DetailedResolutionR2, ResolutionTypeEnum::DisplayId2DetailedR2> {
public:
    static constexpr DetailedResolutionTextFormat Format{U"{description}{ycc420text}", U"DisplayID v2 detailed r2", 3};

    DisplayId2DetailedResolutionR2() = default;
    explicit DisplayId2DetailedResolutionR2(const FieldsType& fields) : TDisplayId2DetailedResolution(fields) {
        Settle();
    }
};

}  // namespace VNT
