// The 3D formats in HDMI's data block (HDMI 1.4b, 8.3.2).
#pragma once

#include "model/core/flags.h"
#include "model/core/item.h"
#include "model/core/sized_item.h"

namespace VNT {

// A part of an item with a size of its own and no family. X gives `Map`, `MaxSize` and `GetSize()`.
template <class X, class Fields>
class TSizedPart : public Fields {
public:
    using FieldsType = Fields;

    bool IsValid(int size) const { return ValidityOf(Self(), size).proper; }
    bool IsValidAll(int size) const { return ValidityOf(Self(), size).all; }
    bool IsValid() const { return IsValid(X::MaxSize); }
    bool IsValidAll() const { return IsValidAll(X::MaxSize); }
    ItemStatus GetStatus(int size = X::MaxSize) const { return StatusOf(Self(), size); }
    std::vector<FieldLimits> GetFieldLimits(int size = X::MaxSize) const { return LimitsOf(Self(), size); }
    // Of each field, whether `size` reaches its last byte.
    ItemStatus GetAvailable(int size = X::MaxSize) const { return ReachOf({Self(), size}); }

protected:
    int Measure() const { return MeasureLayout({Self(), X::MaxSize}); }

private:
    const X& Self() const { return static_cast<const X&>(*this); }
};

// The structures that a format and the flags for all formats have alike, by their number.
inline constexpr const char* HdmiStereoTexts[] = {
    "Frame packing",       "Field alternative", "Line alternative",
    "Side-by-side (full)", "L + depth",         "L + depth + graphics + graphics-depth",
    "Top-and-bottom",
};

struct HdmiStereoFormatStructureEnum {
    enum Enum : int {
        FramePacking,
        FieldAlternative,
        LineAlternative,
        SideBySideFull,
        LDepth,
        LDepthGraphics,
        TopAndBottom,
        SideBySideHalf = 8,  // this and what is above has a detail
    };
    static constexpr ValueText<Enum> Texts[] = {
        {FramePacking, HdmiStereoTexts[FramePacking]},
        {FieldAlternative, HdmiStereoTexts[FieldAlternative]},
        {LineAlternative, HdmiStereoTexts[LineAlternative]},
        {SideBySideFull, HdmiStereoTexts[SideBySideFull]},
        {LDepth, HdmiStereoTexts[LDepth]},
        {LDepthGraphics, HdmiStereoTexts[LDepthGraphics]},
        {TopAndBottom, HdmiStereoTexts[TopAndBottom]},
        {SideBySideHalf, "Side-by-side (half)"},
    };
};

struct HdmiStereoFormatDetailEnum {
    enum Enum : int {
        All,
        AllHorizontal,
        HorizontalOddOdd,
        HorizontalOddEven,
        HorizontalEvenOdd,
        HorizontalEvenEven,
        AllQuincunx,
        QuincunxOddOdd,
        QuincunxOddEven,
        QuincunxEvenOdd,
        QuincunxEvenEven,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {All, "All horizontal and quincunx"},
        {AllHorizontal, "All horizontal"},
        {HorizontalOddOdd, "Horizontal odd/odd"},
        {HorizontalOddEven, "Horizontal odd/even"},
        {HorizontalEvenOdd, "Horizontal even/odd"},
        {HorizontalEvenEven, "Horizontal even/even"},
        {AllQuincunx, "All quincunx"},
        {QuincunxOddOdd, "Quincunx odd/odd"},
        {QuincunxOddEven, "Quincunx odd/even"},
        {QuincunxEvenOdd, "Quincunx even/odd"},
        {QuincunxEvenEven, "Quincunx even/even"},
    };
};

struct HdmiStereoFormatFields {
    int Order = 0;  // of the video resolution, from 0
    HdmiStereoFormatStructureEnum::Enum Structure = HdmiStereoFormatStructureEnum::FramePacking;
    HdmiStereoFormatDetailEnum::Enum Detail = HdmiStereoFormatDetailEnum::All;
    int Reserved = 0;
    bool operator==(const HdmiStereoFormatFields&) const = default;
};

// A structure that one video resolution can have, in one or two bytes.
class HdmiStereoFormat : public TSizedPart<HdmiStereoFormat, HdmiStereoFormatFields> {
public:
    static constexpr int MaxSize = 2;
    static constexpr TextFormat Format{U"{order}: {structuretext}{detailtext}", U"{order}: {structuretext}{detailtext}",
                                       U"", U"3D format"};

    HdmiStereoFormat() = default;
    explicit HdmiStereoFormat(const HdmiStereoFormatFields& fields);

    // False, with nothing changed, if the range ends inside of it.
    bool Read(ByteRange range);
    bool Write(ByteRange range) const;
    int GetSize() const { return HasDetail() ? 2 : 1; }
    bool HasDetail() const { return Structure >= HdmiStereoFormatStructureEnum::SideBySideHalf; }
    void GetText(String& out) const { DescribeItem(*this, Format, out); }
    void FillTexts(TextTable& table) const;
    bool HasContent() const { return true; }
    bool operator==(const HdmiStereoFormat&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item) {
        constexpr auto nibble = Within(0, 15);
        io.Number("Structure", 4, item.Structure, nibble);
        io.Number("Order", 4, item.Order, nibble);
        if (item.HasDetail()) {
            io.Number("Reserved", 4, item.Reserved, nibble);
            io.Number("Detail", 4, item.Detail, nibble);
        }
        io.Check("Size", item.GetSize() <= io.Available(), true);
    }
};

using HdmiStereoFormatList = TSizedList<HdmiStereoFormat>;

struct HdmiStereoFormatsFieldsPresentEnum {
    enum Enum : int { None, Structures, StructuresAndMask };
    static constexpr ValueText<Enum> Texts[] = {
        {None, "None"}, {Structures, "Structures"}, {StructuresAndMask, "Structures and mask"}};
};

// As the structures of a single format, but that half side-by-side comes in two ways.
struct HdmiStereoFormatsStructureFlagEnum {
    enum Enum : int {
        FramePacking,
        FieldAlternative,
        LineAlternative,
        SideBySideFull,
        LDepth,
        LDepthGraphics,
        TopAndBottom,
        SideBySideHorizontal = 8,
        SideBySideQuincunx = 15,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {FramePacking, HdmiStereoTexts[FramePacking]},
        {FieldAlternative, HdmiStereoTexts[FieldAlternative]},
        {LineAlternative, HdmiStereoTexts[LineAlternative]},
        {SideBySideFull, HdmiStereoTexts[SideBySideFull]},
        {LDepth, HdmiStereoTexts[LDepth]},
        {LDepthGraphics, HdmiStereoTexts[LDepthGraphics]},
        {TopAndBottom, HdmiStereoTexts[TopAndBottom]},
        {SideBySideHorizontal, "Side-by-side (half) horizontal"},
        {SideBySideQuincunx, "Side-by-side (half) quincunx"},
    };
};

struct HdmiStereoFormatsFields {
    using StructureFlags = TFlagsLsb<HdmiStereoFormatsStructureFlagEnum, 16>;

    HdmiStereoFormatsFieldsPresentEnum::Enum FieldsPresent = HdmiStereoFormatsFieldsPresentEnum::None;
    StructureFlags Structures;  // of the first resolutions
    StructureFlags Mask;        // which of these
    HdmiStereoFormatList Formats;
    Bytes Extra;
    bool operator==(const HdmiStereoFormatsFields&) const = default;
};

// What a data block says of 3D behind the length that it gives for it. `FieldsPresent` stands elsewhere in the block.
class HdmiStereoFormats : public TSizedPart<HdmiStereoFormats, HdmiStereoFormatsFields> {
public:
    using ListLimits = TSizeListLimits<HdmiStereoFormatList>;
    static constexpr int MaxSize = 31;

    int Size = 0;

    HdmiStereoFormats() = default;
    explicit HdmiStereoFormats(const HdmiStereoFormatsFields& fields);

    // Takes all of the range and leaves `FieldsPresent`. Always true.
    bool Read(ByteRange range);
    bool Write(ByteRange range) const;
    int GetSize() const { return Size; }
    // 0 to 4 where it ends inside of the leading fields or with them, 5 with the list, 6 where bytes stand behind it.
    int GetPresentLength() const;
    ListLimits GetListLimits(int size) const { return {size - CountLeading() - Extra.Size()}; }
    auto begin() const { return Formats.begin(); }
    auto end() const { return Formats.end(); }
    bool operator==(const HdmiStereoFormats&) const = default;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Value("FieldsPresent", item.FieldsPresent, item.FieldsPresent >= 0 && item.FieldsPresent < 4, true);
        io.Order(BitOrder::Msb);
        if (item.HasStructures()) io.Kept("Structures", 16, item.Structures);
        if (item.HasMask()) io.Kept("Mask", 16, item.Mask);
        io.List("Formats", item.Formats, TLimitPair(item.GetListLimits(io.Available()), ListLimits{MaxSize}));
        io.Rest("Extra", item.Extra, TLimitPair<CountLimits>(CountLimits{0, MaxSize}));
        io.Value("Size", item.Size, item.Size <= io.Available(), true);
    }

private:
    bool HasMask() const { return FieldsPresent == HdmiStereoFormatsFieldsPresentEnum::StructuresAndMask; }
    bool HasStructures() const { return HasMask() || FieldsPresent == HdmiStereoFormatsFieldsPresentEnum::Structures; }
    int CountLeading() const { return HasMask() ? 4 : HasStructures() ? 2 : 0; }
};

}  // namespace VNT
