#pragma once

#include <algorithm>

#include "model/timing/video_code.h"

namespace VNT {

// The bits behind the resolution identification code in a video format descriptor (CTA-861-I, 7.5.15). A rate that is a
// multiple of 25 or 30 Hz is there if both its base and its factor are.
struct CtaVideoFormatResolutionFlagEnum {
    enum Enum : int {
        Rate24,
        Base50,
        Factor1,
        Factor2,
        Factor4,
        Factor8,
        Factor12,
        Factor16,
        Rate144,
        Base60,
        Rate48,
    };
    static constexpr ValueText<Enum> RateTexts[] = {
        {Rate24, "24 Hz"},
        {Rate48, "48 Hz"},
        {Rate144, "144 Hz"},
    };
    static constexpr ValueText<Enum> BaseTexts[] = {{Base50, "25 Hz"}, {Base60, "30 Hz"}};
    static constexpr ValueText<Enum> FactorTexts[] = {
        {Factor1, "x 1"}, {Factor2, "x 2"}, {Factor4, "x 4"}, {Factor8, "x 8"}, {Factor12, "x 12"}, {Factor16, "x 16"},
    };
};
using CtaVideoFormatResolutionFlags = TFlagsLsb<CtaVideoFormatResolutionFlagEnum, 26>;

struct CtaVideoFormatResolutionFields {
    // What a descriptor means that has no byte for it.
    static constexpr CtaVideoFormatResolutionFlags DefaultFlags{CtaVideoFormatResolutionFlagEnum::Factor1,
                                                                CtaVideoFormatResolutionFlagEnum::Factor2,
                                                                CtaVideoFormatResolutionFlagEnum::Base60};
    int size = 1;  // bytes written
    int rid = 1;
    CtaVideoFormatResolutionFlags flags = DefaultFlags;
    bool operator==(const CtaVideoFormatResolutionFields&) const = default;
};

// A resolution with the rates that it is shown at, in one to four bytes.
class CtaVideoFormatResolution
    : public TVideoCodeResolution<CtaVideoFormatResolution, ResolutionTypeEnum::CtaVideoFormat,
                                  CtaVideoFormatResolutionFields> {
public:
    static constexpr int FrameSize = 4;  // at most
    static constexpr VideoFormatTextFormat Format{
        U"{description}", U"{resolutiontext}{aspectratiotext}{refreshratetext}", U"CTA video format"};
    static constexpr const VideoFormatTable& Formats = VideoFormatTable::CtaFormatIds;

    CtaVideoFormatResolution() = default;
    explicit CtaVideoFormatResolution(const CtaVideoFormatResolutionFields& fields);

    // Takes all of the range; false, with nothing changed, unless that is one to four bytes.
    bool Read(ByteRange range);
    bool Write(ByteRange range) const;
    // The fewest bytes that say the same.
    int GetSize() const;
    int GetCode() const { return rid; }
    std::vector<Decimal> GetRates() const;
    TextFormat GetFormat() const;

    using TVideoCode::IsValid;
    using TVideoCode::IsValidAll;
    bool IsValid(int available) const { return ValidityOf(*this, ClampSize(available)).proper; }
    bool IsValidAll(int available) const { return ValidityOf(*this, ClampSize(available)).all; }
    ItemStatus GetStatus(int available = FrameSize) const { return StatusOf(*this, ClampSize(available)); }
    // All fields can be edited whatever the room: what they need is tested as a whole.
    ItemStatus GetAvailable(int available = FrameSize) const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("rid", 6, item.rid, Within({1, 63}, {0, 63}));
        io.Kept("flags", CtaVideoFormatResolutionFlags::BitCount, item.flags);
        io.Value("size", item.size, item.GetSize() <= io.Available(), item.size >= 1 && item.size <= FrameSize);
    }

private:
    static int ClampSize(int size) { return std::clamp(size, 0, FrameSize); }
};

// Resolutions that all take as many bytes.
class CtaVideoFormatResolutionList : public TList<CtaVideoFormatResolution> {
public:
    int DescriptorLength = 1;

    // Reads as many as there are whole. Always true.
    bool Read(ByteRange range);
    bool Write(ByteRange range) const;
    int GetSize() const { return GetCount() * DescriptorLength; }
    // Gives all the length that the longest of them needs.
    void Normalize();
    bool operator==(const CtaVideoFormatResolutionList&) const = default;
};

struct CtaVideoFormatResolutionListLimits {
    int bytes = 0;
    bool Contains(const CtaVideoFormatResolutionList& list) const { return list.GetSize() <= bytes; }
    bool HasRoom(const CtaVideoFormatResolutionList& list) const {
        return bytes - list.GetSize() >= list.DescriptorLength;
    }
    // What an item may take: the others will be as long.
    int GetBudget(const CtaVideoFormatResolutionList& list, int index) const;
    ListMeasure Measure(const CtaVideoFormatResolutionList& list) const {
        return {list.GetCount(), bytes / list.DescriptorLength, list.GetSize(), bytes};
    }
};

}  // namespace VNT
