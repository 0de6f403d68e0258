// The resolutions that are a code of a video format.
#pragma once

#include "model/core/flags.h"
#include "model/core/item.h"
#include "model/core/list.h"
#include "model/timing/video_format.h"

namespace VNT {

// A code with all operations of a resolution. `Base` is that of its family, or of none. X gives
//
//     template <class IO> static void Map(IO& io, auto& item);
//     static constexpr VideoFormatTextFormat Format{...};
//     static constexpr const VideoFormatTable& Formats;
//     int GetCode() const;
//
// and where it is particular `GetRates()`, `GetFormat()`, `FillTexts(table)`.
template <class X, class Base, class Fields>
class TVideoCode : public Base, public Fields {
public:
    using FieldsType = Fields;
    static constexpr int FrameSize = 1;

    // False below the frame's size, with nothing changed.
    bool Read(ByteRange range) {
        if (!range.Limit(FrameSize)) return false;
        static_cast<Fields&>(*this) = Fields();
        TLayout<X>::Read(Self(), range);
        return true;
    }
    // False, with nothing written, below the frame's size or if not IsValidAll.
    bool Write(ByteRange range) const {
        if (!range.Limit(FrameSize) || !IsValidAll()) return false;
        TLayout<X>::Write(Self(), range);
        return true;
    }
    void GetText(String& out, const String& format) const { DescribeItem(Self(), Self().GetFormat(), format, out); }
    void GetText(String& out) const { DescribeItem(Self(), Self().GetFormat(), out); }
    void GetSummary(ResolutionSummary& out) const {
        out = IsValidAll() ? X::Formats.Summarize(Self().GetCode(), Self().GetRates()) : ResolutionSummary();
    }
    bool IsValid() const { return ValidityOf(Self(), X::FrameSize).proper; }
    bool IsValidAll() const { return ValidityOf(Self(), X::FrameSize).all; }
    ItemStatus GetStatus() const { return StatusOf(Self(), X::FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(Self(), X::FrameSize); }
    bool EqualFields(const X& other) const {
        return static_cast<const Fields&>(*this) == static_cast<const Fields&>(other);
    }

    const VideoFormat& GetVideoFormat() const { return X::Formats.At(Self().GetCode()); }

    // Defaults of what a kind may replace.
    std::vector<Decimal> GetRates() const {
        const auto& rates = GetVideoFormat().rates;
        return {rates.begin(), rates.end()};
    }
    // A code that names no format says itself in place of the description, or of all where there is none.
    TextFormat GetFormat() const {
        TextFormat format = X::Format;
        if (GetVideoFormat().present) return format;
        if (format.description.empty()) {
            format.format = format.emptyFormat = X::Format.other;
        } else {
            format.description = X::Format.other;
        }
        return format;
    }
    void FillTexts(TextTable& table) const {
        FillVideoFormatTexts(table, Self().GetCode(), X::Formats, Self().GetRates(), X::Format);
    }
    bool HasContent() const { return true; }

private:
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }
};

template <class X, ResolutionTypeEnum::Enum id, class Fields>
using TVideoCodeResolution =
    TVideoCode<X, TCommonType<X, ResolutionTypeEnum::Enum, id, AnyResolution, AnyResolution>, Fields>;

struct CtaVideoReferenceFields {
    int Id = 1;
    bool operator==(const CtaVideoReferenceFields&) const = default;
};

// What a reference that names no video format stands for: the ranges of the byte (CTA-861-I, short video references).
struct CtaVideoReferenceKindEnum {
    enum Enum : int { Format, DetailedTiming, Type7Timing, FormatDescriptor, Type8Timing, Other };
};

struct CtaVideoReferenceRange {
    CtaVideoReferenceKindEnum::Enum kind;
    int first;
    int count;
    const char* name;
    std::u32string_view text;
};

// A part of other items, and a resolution of no family: nothing can be mistaken for it.
struct NoResolutionFamily {
    int GetType() const { return ResolutionTypeEnum::CtaVideo; }
};

// A byte that says which of a display's video formats is meant.
class CtaVideoReference : public TVideoCode<CtaVideoReference, NoResolutionFamily, CtaVideoReferenceFields> {
public:
    static constexpr VideoFormatTextFormat Format{U"{resolutiontext}{aspectratiotext}{refreshratetext}{vtotaltext}",
                                                  U"", U"CTA video reference"};
    static constexpr const VideoFormatTable& Formats = VideoFormatTable::CtaCodes;
    static constexpr CtaVideoReferenceRange Ranges[] = {
        {CtaVideoReferenceKindEnum::DetailedTiming, 129, 16, "DTD", U"DTD #{number}"},
        {CtaVideoReferenceKindEnum::Type7Timing, 145, 16, "T7/T10VTDB", U"T7/T10VTDB #{number}"},
        {CtaVideoReferenceKindEnum::FormatDescriptor, 161, 15, "VFD #1", U"VFD #1{refreshratetext}"},
        {CtaVideoReferenceKindEnum::Type8Timing, 254, 1, "T8VTDB", U"T8VTDB #1"},
    };
    static constexpr int DescriptorRates[] = {24, 25, 30, 48, 50, 60, 100, 120, 144, 200, 240, 300, 360, 400, 480};

    CtaVideoReference() = default;
    explicit CtaVideoReference(const CtaVideoReferenceFields& fields) : CtaVideoReference(fields.Id) {}
    explicit CtaVideoReference(int id) { Id = id; }

    int GetCode() const { return Id; }
    CtaVideoReferenceKindEnum::Enum GetKind() const;
    // The range that the byte lies in; null for a format and for what means nothing.
    const CtaVideoReferenceRange* GetRange() const;
    std::vector<Decimal> GetRates() const;
    TextFormat GetFormat() const;
    void FillTexts(TextTable& table) const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("Id", 8, item.Id, Within(0, 255));
    }
};

struct CtaVideoResolutionFields {
    CtaVideoReference code;
    bool native = false;
    bool operator==(const CtaVideoResolutionFields&) const = default;
};

// A short video descriptor: a video identification code, the lowest of which may be marked as native
// (CTA-861-I, 7.5.1).
template <class X, ResolutionTypeEnum::Enum id>
class TCtaVideoResolution : public TVideoCodeResolution<X, id, CtaVideoResolutionFields> {
public:
    static constexpr const VideoFormatTable& Formats = VideoFormatTable::CtaCodes;

    int GetCode() const { return this->code.Id; }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Through(
            8, [&item] { return item.code.Id + (item.native ? NativeMark : 0); },
            [&](auto raw) {
                if constexpr (!std::is_const_v<std::remove_reference_t<decltype(item)>>) {
                    const int byte = static_cast<int>(raw);
                    item.native = byte > NativeMark && CanBeNative(byte - NativeMark);
                    item.code.Id = item.native ? byte - NativeMark : byte;
                }
            });
        // The codes whose byte would be that of a native one have none.
        const int code = item.code.Id;
        const bool isCode = code >= 0 && code <= 255 && !CanBeNative(code - NativeMark);
        io.Value("code", item.code.Id, isCode, isCode);
        const bool isMarkable = !item.native || CanBeNative(code);
        io.Value("native", item.native, isMarkable, isMarkable);
    }

protected:
    static constexpr VideoFormatTextFormat GetFormatOf(std::u32string_view type) {
        return {CtaVideoReference::Format.format, U"", type};
    }

private:
    static constexpr int NativeMark = 128;
    static constexpr bool CanBeNative(int code) { return code >= 1 && code <= 64; }
};

class CtaVideoResolution : public TCtaVideoResolution<CtaVideoResolution, ResolutionTypeEnum::CtaVideo> {
public:
    static constexpr VideoFormatTextFormat Format = GetFormatOf(U"CTA video");
    CtaVideoResolution() = default;
    explicit CtaVideoResolution(const CtaVideoResolutionFields& fields) {
        static_cast<CtaVideoResolutionFields&>(*this) = fields;
    }
};

class CtaYcc420VideoResolution
    : public TCtaVideoResolution<CtaYcc420VideoResolution, ResolutionTypeEnum::CtaYcc420Video> {
public:
    static constexpr VideoFormatTextFormat Format = GetFormatOf(U"CTA video (4:2:0)");
    CtaYcc420VideoResolution() = default;
    explicit CtaYcc420VideoResolution(const CtaVideoResolutionFields& fields) {
        static_cast<CtaVideoResolutionFields&>(*this) = fields;
    }
};

struct HdmiResolutionFields {
    int id = 1;
    bool operator==(const HdmiResolutionFields&) const = default;
};

// A format of HDMI's own (HDMI 1.4b, 8.3.2).
class HdmiResolution : public TVideoCodeResolution<HdmiResolution, ResolutionTypeEnum::Hdmi, HdmiResolutionFields> {
public:
    static constexpr VideoFormatTextFormat Format{U"{description}",
                                                  U"{resolutiontext}{aspectratiotext}{refreshratetext}", U"HDMI"};
    static constexpr const VideoFormatTable& Formats = VideoFormatTable::HdmiCodes;

    HdmiResolution() = default;
    explicit HdmiResolution(const HdmiResolutionFields& fields) { static_cast<HdmiResolutionFields&>(*this) = fields; }

    int GetCode() const { return id; }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("id", 8, item.id, Within({1, 4}, {0, 255}));
    }
};

template <class Item>
using TVideoCodeList = TSlotList<Item, Item::FrameSize>;

}  // namespace VNT
