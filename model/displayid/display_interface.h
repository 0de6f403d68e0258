#pragma once

#include <algorithm>

#include "model/core/flags.h"
#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayId2DisplayInterfaceColorSpaceEnum {
    enum Enum : int { None, Srgb, Bt601, Bt709, OpRgb, DciP3, Bt2020, Custom };
    static constexpr int Carried = 16;  // the values of the four bits
    static constexpr ValueText<Enum> Texts[] = {{None, "Undefined"}, {Srgb, "sRGB"},    {Bt601, "BT.601"},
                                                {Bt709, "BT.709"},   {OpRgb, "opRGB"},  {DciP3, "DCI-P3"},
                                                {Bt2020, "BT.2020"}, {Custom, "Custom"}};
};

struct DisplayId2DisplayInterfaceEotfEnum {
    enum Enum : int { None, Srgb, Bt601, Bt1886, OpRgb, DciP3, Bt2020, Native, St2084, HybridLog, Custom };
    static constexpr int Carried = 16;
    static constexpr ValueText<Enum> Texts[] = {{None, "Undefined"},       {Srgb, "sRGB"},     {Bt601, "BT.601"},
                                                {Bt1886, "BT.1886"},       {OpRgb, "opRGB"},   {DciP3, "DCI-P3"},
                                                {Bt2020, "BT.2020"},       {Native, "Native"}, {St2084, "ST 2084"},
                                                {HybridLog, "Hybrid Log"}, {Custom, "Custom"}};
};

struct DisplayId2DisplayInterfaceColorimetryFields {
    DisplayId2DisplayInterfaceColorSpaceEnum::Enum colorSpace = DisplayId2DisplayInterfaceColorSpaceEnum::None;
    DisplayId2DisplayInterfaceEotfEnum::Enum eotf = DisplayId2DisplayInterfaceEotfEnum::None;
    bool operator==(const DisplayId2DisplayInterfaceColorimetryFields&) const = default;
};

// A combination of color space and transfer function that the display takes, in one byte.
class DisplayId2DisplayInterfaceColorimetry : public DisplayId2DisplayInterfaceColorimetryFields {
public:
    using FieldsType = DisplayId2DisplayInterfaceColorimetryFields;
    static constexpr int FrameSize = 1;
    static constexpr TextFormat Format{U"{description}", U"{description}", U"{colorspacetext} + {eotftext} EOTF", U""};

    DisplayId2DisplayInterfaceColorimetry() = default;
    explicit DisplayId2DisplayInterfaceColorimetry(const FieldsType& fields)
        : DisplayId2DisplayInterfaceColorimetryFields(fields) {}

    bool Read(ByteRange range);         // false without a byte
    bool Write(ByteRange range) const;  // false without a byte, or if not IsValidAll
    void GetText(String& out) const { DescribeItem(*this, Format, out); }
    void FillTexts(TextTable& table) const;
    bool HasContent() const { return true; }
    bool IsValid() const { return ValidityOf(*this, FrameSize).proper; }
    bool IsValidAll() const { return ValidityOf(*this, FrameSize).all; }
    ItemStatus GetStatus() const { return StatusOf(*this, FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(*this, FrameSize); }
    bool operator==(const DisplayId2DisplayInterfaceColorimetry&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("eotf", 4, item.eotf,
                  OneOf<DisplayId2DisplayInterfaceEotfEnum>(DisplayId2DisplayInterfaceEotfEnum::Carried));
        io.Number("colorSpace", 4, item.colorSpace,
                  OneOf<DisplayId2DisplayInterfaceColorSpaceEnum>(DisplayId2DisplayInterfaceColorSpaceEnum::Carried));
    }
};

using DisplayId2DisplayInterfaceColorimetryList =
    TSlotList<DisplayId2DisplayInterfaceColorimetry, DisplayId2DisplayInterfaceColorimetry::FrameSize>;

struct DisplayId2DisplayInterfaceDataBlockColorDepthFlagEnum {
    enum Enum : int { Bits18, Bits24, Bits30, Bits36, Bits42, Bits48 };
    static constexpr ValueText<Enum> Texts[] = {{Bits18, "18-bit (6 bpc)"},  {Bits24, "24-bit (8 bpc)"},
                                                {Bits30, "30-bit (10 bpc)"}, {Bits36, "36-bit (12 bpc)"},
                                                {Bits42, "42-bit (14 bpc)"}, {Bits48, "48-bit (16 bpc)"}};
};

struct DisplayId2DisplayInterfaceDataBlockAudioFlagEnum {
    enum Enum : int { Rate48 = 5, Rate44, Rate32 };
    static constexpr ValueText<Enum> Texts[] = {{Rate32, "32 kHz"}, {Rate44, "44.1 kHz"}, {Rate48, "48 kHz"}};
};

struct DisplayId2DisplayInterfaceDataBlockColorimetryFlagEnum {
    enum Enum : int { Srgb, Bt601, Bt709, OpRgb, DciP3, Bt2020, Bt2020St2084 };
    static constexpr ValueText<Enum> Texts[] = {
        {Srgb, "sRGB"},    {Bt601, "BT.601"},   {Bt709, "BT.709 + BT.1886 EOTF"},        {OpRgb, "opRGB"},
        {DciP3, "DCI-P3"}, {Bt2020, "BT.2020"}, {Bt2020St2084, "BT.2020 + ST 2084 EOTF"}};
};

struct DisplayId2DisplayInterfaceDataBlockFields : DisplayIdDataBlockFields {
    using ColorDepths = TFlagsLsb<DisplayId2DisplayInterfaceDataBlockColorDepthFlagEnum, 8>;

    ColorDepths rgbColorDepth;
    ColorDepths ycc444ColorDepth;
    ColorDepths ycc422ColorDepth;
    ColorDepths ycc420ColorDepth;
    Decimal ycc420MinPixelRate;  // MHz
    TFlagsLsb<DisplayId2DisplayInterfaceDataBlockAudioFlagEnum, 8> audioSampleRates;
    TFlagsLsb<DisplayId2DisplayInterfaceDataBlockColorimetryFlagEnum, 16> colorimetryFlags;
    int colorimetryCount = 0;  // what the bytes say, which may be more than there are
    int reservedBits = 0;
    DisplayId2DisplayInterfaceColorimetryList colorimetry;
    bool operator==(const DisplayId2DisplayInterfaceDataBlockFields&) const = default;
};

// What the display's interface carries (DisplayID 2.1, 4.5).
class DisplayId2DisplayInterfaceDataBlock
    : public TDisplayIdDataBlock<DisplayId2DisplayInterfaceDataBlock, DisplayIdDataBlockTypeId::DisplayInterface2,
                                 DisplayId2DisplayInterfaceDataBlockFields> {
public:
    static constexpr SizedShape Shape{9};
    static constexpr int MostColorimetry = 7;
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Display interface"};

    DisplayId2DisplayInterfaceDataBlock() = default;
    explicit DisplayId2DisplayInterfaceDataBlock(const DisplayId2DisplayInterfaceDataBlockFields& fields) {
        SetFields(fields);
    }

    void Normalize() { colorimetryCount = colorimetry.GetCount(); }
    bool HasRest() const { return !colorimetry.IsEmpty() || !Extra.IsEmpty(); }
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return CountLimits{0, std::max(0, room - colorimetry.GetSize())};
    }
    // The room of the list in a block of `size` bytes.
    SlotListLimits GetListLimits(int size) const {
        return SlotListLimits::FromBytes(std::min(GetExtraRoom(size) - Extra.Size(), MostColorimetry), 1);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        constexpr Decimal rate(7425, 2);
        constexpr DecimalCoding rates{Decimal(), rate, {}};
        constexpr DecimalLimits rateLimits{Decimal(), Decimal(1893375, 2), rate, Decimal(), {}};
        io.Kept("rgbColorDepth", 8, block.rgbColorDepth);
        io.Kept("ycc444ColorDepth", 8, block.ycc444ColorDepth);
        io.Kept("ycc422ColorDepth", 8, block.ycc422ColorDepth);
        io.Kept("ycc420ColorDepth", 8, block.ycc420ColorDepth);
        io.Number("ycc420MinPixelRate", 8, block.ycc420MinPixelRate, rates, Within(rateLimits));
        io.Kept("audioSampleRates", 8, block.audioSampleRates);
        io.Kept("colorimetryFlags", 16, block.colorimetryFlags);
        const auto counts = block.GetCountLimits();
        io.Number("colorimetryCount", 3, block.colorimetryCount, counts);
        io.Kept("reservedBits", 5, block.reservedBits);
        io.Area(block.colorimetryCount, [&block](auto& area) {
            area.List("colorimetry", block.colorimetry, TLimitPair(block.GetListLimits(area.Available())));
        });
    }

private:
    // More than there are is kept where the block ends before them.
    TLimitPair<ValueLimits> GetCountLimits() const {
        const int count = colorimetry.GetCount();
        return {ValueLimits{count, count}, ValueLimits{count, Extra.IsEmpty() ? MostColorimetry : count}};
    }
};

}  // namespace VNT
