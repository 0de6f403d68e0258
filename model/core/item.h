#pragma once

#include <vector>

#include "model/core/any.h"
#include "model/core/layout.h"
#include "model/core/text.h"

namespace VNT {

// An item's line of text; empty for one that is not IsValidAll.
template <class X>
void DescribeItem(const X& item, const TextFormat& format, String& out) {
    out = String();
    if (!item.IsValidAll()) return;
    TextTable table;
    item.FillTexts(table);
    out = FormatText(format, item.HasContent(), table);
}
// The same in a shape that the caller gives.
template <class X>
void DescribeItem(const X& item, TextFormat format, const String& shape, String& out) {
    format.format = format.emptyFormat = shape.View();
    DescribeItem(item, format, out);
}

// A concrete item of a framed family with all operations made from its layout (layout_made.h). X gives
//
//     template <class IO> static void Map(IO& io, auto& item);  // the bytes, see layout.h
//     static constexpr TextFormat Format{...};
//
// and where it is particular: `Accepts(type)` (which peeked types are its own), `Normalize()` (what the bytes can't
// carry goes after a read or a construction from fields), `FillTexts(table)` (its placeholders), `HasContent()`.
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields = Fields>
class TFramedItem : public TCommonType<X, TypeEnum, value, AnyX, AnyX>, public AllFields {
public:
    using Framed = TFramedItem;
    using FieldsType = Fields;

    // An edited item: bytes that no form shows take their defaults. X's constructor from its fields calls this.
    void SetFields(const Fields& fields);

    bool Read(ByteRange range) override;
    bool Write(ByteRange range) const override;
    void GetText(String& out, const String& format) const override;
    void GetText(String& out) const override;
    bool IsValid() const override;
    bool IsValidAll() const override;
    std::vector<ItemPart> GetParts() const override;
    void TellFields(int available, FieldSink& sink) override;
    void Renew() override;

    ItemStatus GetStatus() const { return StatusOf(Self(), AnyX::FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(Self(), AnyX::FrameSize); }
    bool EqualFields(const X& other) const;

    // Defaults of what a kind may replace.
    static bool Accepts(int peekedType) { return peekedType == static_cast<int>(value); }
    void Normalize() {}
    void NormalizeRead() { Self().Normalize(); }
    void FillTexts(TextTable&) const {}
    bool HasContent() const { return true; }
    TextFormat GetFormat() const { return X::Format; }

private:
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }
};

}  // namespace VNT
