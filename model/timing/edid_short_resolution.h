#pragma once

#include <vector>

#include "model/core/item.h"
#include "model/timing/resolution.h"

namespace VNT {

// Which two of width, height and aspect ratio are given; the third follows from them.
struct EdidShortResolutionFieldsPresentEnum {
    enum Enum : int { WidthAndHeight, WidthAndAspectRatio, HeightAndAspectRatio };
};
using EdidStandardResolutionFieldsPresentEnum = EdidShortResolutionFieldsPresentEnum;
using EdidCvtResolutionFieldsPresentEnum = EdidShortResolutionFieldsPresentEnum;

struct AspectRatio {
    int width;
    int height;
};

struct EdidShortResolutionTextFormat : ResolutionTextFormat {
    std::u32string_view invalid = U"Invalid{aspectratiotext}{refreshratetext}";  // where the height can't be told
    std::u32string_view empty = U"Empty";
    std::u32string_view rateSeparator;

    constexpr EdidShortResolutionTextFormat(std::u32string_view kind, std::u32string_view separator)
        : rateSeparator(separator) {
        format = emptyFormat = U"{description}";
        description = U"{resolutiontext}{aspectratiotext}{refreshratetext}";
        type = kind;
    }
};

// A resolution of two or three bytes that state a size by one side and the aspect ratio. Any bytes are one, and go back
// as they were read. AllFields has `fieldsPresent`, `width`, `height`, `aspectRatio` and initialisers that are the
// empty record, which is what unused slots read as. X gives
//
//     template <class IO> static void Map(IO& io, auto& item);  // the bytes of one that is not empty
//     static constexpr EdidShortResolutionTextFormat Format{...};
//     static constexpr std::uint8_t UnusedByte;                 // each byte of an unused slot
//     static constexpr EdidShortResolutionFieldsPresentEnum::Enum FieldsInBytes;
//     static constexpr int MaxWidth, MaxHeight;                 // what the rules below are made for
//     static constexpr AspectRatio Ratios[4];
//     static std::int64_t WidthOf(std::int64_t height, AspectRatio), HeightOf(std::int64_t width, AspectRatio);
//     static bool Fits(int width, int height, AspectRatio);
//     std::vector<Decimal> GetRates() const;                    // Hz
//
// and `IsNoResolution()` where more than the empty record is none.
template <class X, ResolutionTypeEnum::Enum id, class Fields, class AllFields, int frameSize>
class TEdidShortResolution : public TCommonType<X, ResolutionTypeEnum::Enum, id, AnyResolution, AnyResolution>,
                             public AllFields {
public:
    using FieldsType = Fields;
    static constexpr int FrameSize = frameSize;

    // X's constructor from its fields calls this.
    void SetFields(const Fields& fields) {
        static_cast<AllFields&>(*this) = AllFields();
        static_cast<Fields&>(*this) = fields;
        UpdateDerived();
    }

    // False below the frame's size, with nothing changed.
    bool Read(ByteRange range) {
        if (!range.Limit(FrameSize)) return false;
        static_cast<AllFields&>(*this) = AllFields();
        if (range.IsAll(X::UnusedByte)) return true;
        TLayout<X>::Read(Self(), range);
        this->fieldsPresent = X::FieldsInBytes;
        UpdateDerived();
        return true;
    }
    // False, with nothing written, below the frame's size or if not IsValidAll.
    bool Write(ByteRange range) const {
        if (!range.Limit(FrameSize) || !IsValidAll()) return false;
        if (IsEmpty()) {
            range.Fill(X::UnusedByte);
            return true;
        }
        TLayout<X>::Write(Self(), range);
        return true;
    }

    void GetText(String& out, const String& shape) const override {
        TextFormat format = GetFormat();
        format.format = format.emptyFormat = shape.View();
        Describe(format, out);
    }
    void GetText(String& out) const override { Describe(GetFormat(), out); }
    void GetSummary(ResolutionSummary& out) const override {
        out = ResolutionSummary();
        if (IsValidAll() && !IsEmpty()) out = {this->width, this->height, false, Self().GetRates()};
    }
    bool IsValid() const override { return ValidityOf(Self(), FrameSize).proper; }
    bool IsValidAll() const override { return ValidityOf(Self(), FrameSize).all; }
    static constexpr bool IsValidAllAsRead() { return true; }  // any bytes are one
    ItemStatus GetStatus() const { return StatusOf(Self(), FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(Self(), FrameSize); }
    bool EqualFields(const X& other) const {
        return static_cast<const AllFields&>(*this) == static_cast<const AllFields&>(other);
    }

    // The record of an unused slot, whichever fields were given for it.
    bool IsEmpty() const {
        AllFields fields = *this;
        fields.fieldsPresent = AllFields().fieldsPresent;
        return fields == AllFields();
    }
    // True for what reads back as an unused slot: valid in no sound list, yet no field of it is to blame.
    bool IsNoResolution() const { return IsEmpty(); }

    // The one of width, height and aspect ratio that was not given, from the two that were.
    void UpdateDerived() {
        if (IsEmpty()) return;
        switch (this->fieldsPresent) {
            case EdidShortResolutionFieldsPresentEnum::WidthAndHeight:
                this->aspectRatio = static_cast<decltype(this->aspectRatio)>(FindAspect());
                break;
            case EdidShortResolutionFieldsPresentEnum::WidthAndAspectRatio:
                this->height = HeightFromWidth();
                break;
            case EdidShortResolutionFieldsPresentEnum::HeightAndAspectRatio:
                this->width = WidthFromHeight();
                break;
        }
    }

protected:
    static constexpr int RatioCount = 4;

    // The values beside its range that a field of the empty record may hold.
    TFew<int> BlankValues() const { return IsEmpty() ? TFew<int>{Undefined} : TFew<int>{}; }
    bool HasRatio() const { return this->aspectRatio >= 0 && this->aspectRatio < RatioCount; }

private:
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }

    int WidthFromHeight() const {
        if (this->height < 0 || this->height > X::MaxHeight || !HasRatio()) return Undefined;
        return static_cast<int>(X::WidthOf(this->height, X::Ratios[this->aspectRatio]));
    }
    int HeightFromWidth() const {
        if (this->width < 0 || this->width > X::MaxWidth || !HasRatio()) return Undefined;
        return static_cast<int>(X::HeightOf(this->width, X::Ratios[this->aspectRatio]));
    }
    // The first ratio that the size has, RatioCount if none.
    int FindAspect() const {
        if (this->width == Undefined || this->height == Undefined) return RatioCount;
        int index = 0;
        while (index < RatioCount && !X::Fits(this->width, this->height, X::Ratios[index])) ++index;
        return index;
    }

    TextFormat GetFormat() const {
        TextFormat format = X::Format;
        if (IsEmpty()) {
            format.description = X::Format.empty;
        } else if (this->height == Undefined) {
            format.description = X::Format.invalid;
        }
        return format;
    }
    void Describe(const TextFormat& format, String& out) const {
        out = String();
        if (this->height != Undefined && !IsValidAll()) return;
        TextTable table;
        FillResolutionTexts(table, this->width, this->height, false, X::Format);
        FillAspectRatioTexts(table, HasRatio() ? String(X::RatioTexts[this->aspectRatio].text) : String(), X::Format);
        FillRefreshRateTexts(table, GetRatesText(), X::Format);
        out = FormatText(format, true, table);
    }
    String GetRatesText() const {
        String text;
        for (const Decimal rate : Self().GetRates()) {
            if (!text.IsEmpty()) text.Append(X::Format.rateSeparator);
            text += NumberText(rate.ToInt(), 10, 0, false);
        }
        return text;
    }
};

}  // namespace VNT
