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

// Lists the items of the lists among an item's parts.
class PartLister : public TLayoutObserver<PartLister> {
public:
    using TLayoutObserver::TLayoutObserver;

    template <class T>
    void Kept(const char*, const BitPlace&, const T&) {}
    template <class T, class L>
    void Number(const char*, const BitPlace&, const T&, const TLimitPair<L>&) {}
    template <class T, class Coding, class L>
    void Number(const char*, const BitPlace&, const T&, const Coding&, const TLimitPair<L>&) {}
    void Data(const char*, int, const Bytes&, const TLimitPair<CountLimits>&) {}
    template <class T>
    void Rest(const char*, const T&, const TLimitPair<CountLimits>&) {}
    void Check(const char*, bool, bool) {}
    template <class Item>
    void Part(const char* name, int, const Item& part, bool, bool) {
        if constexpr (requires { part.begin(); }) Add(name, part);
    }
    template <class Items, class L>
    void List(const char* name, const Items& list, const TLimitPair<L>&) {
        Add(name, list);
    }
    // An item that is there lists its own.
    template <class Item>
    bool Optional(const char*, const Item& item, bool isThere, int) {
        if (!isThere) return false;
        for (ItemPart& part : item.GetParts()) parts.push_back(std::move(part));
        return true;
    }

    std::vector<ItemPart> parts;

private:
    template <class Items>
    void Add(const char* name, const Items& list) {
        int index = 0;
        for (const auto& item : list) {
            ItemPart row{name, index++, {}, item.IsValid(), {}};
            item.GetText(row.text);
            if constexpr (requires { item.GetParts(); }) row.parts = item.GetParts();
            parts.push_back(std::move(row));
        }
    }
};

// A concrete item of a framed family with all operations made from its layout. X gives
//
//     template <class IO> static void Map(IO& io, auto& item);  // the bytes, see layout.h
//     static constexpr TextFormat Format{...};
//
// and where it is particular: `Accepts(type)` (which peeked types are its own), `Normalize()` (what the bytes can't
// carry goes after a read or a construction from fields), `FillTexts(table)` (its placeholders), `HasContent()`.
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields = Fields>
class TFramedItem : public TCommonType<X, TypeEnum, value, AnyX, AnyX>, public AllFields {
public:
    using FieldsType = Fields;

    // An edited item: bytes that no form shows take their defaults. X's constructor from its fields calls this.
    void SetFields(const Fields& fields) {
        static_cast<AllFields&>(*this) = AllFields();
        static_cast<Fields&>(*this) = fields;
        Self().Normalize();
    }

    bool Read(ByteRange range) override {
        if (!X::Accepts(AnyX::PeekType(range)) || !range.Limit(AnyX::FrameSize)) return false;
        static_cast<AllFields&>(*this) = AllFields();
        LayoutReader io(range);
        X::Map(io, Self());
        Self().NormalizeRead();
        return true;
    }
    bool Write(ByteRange range) const override {
        if (!range.Limit(AnyX::FrameSize) || !this->IsValidAll()) return false;
        WriteLayout(range);
        return true;
    }
    void GetText(String& out, const String& format) const override {
        DescribeItem(Self(), Self().GetFormat(), format, out);
    }
    void GetText(String& out) const override { DescribeItem(Self(), Self().GetFormat(), out); }
    bool IsValid() const override { return ValidityOf(Self(), AnyX::FrameSize).proper; }
    bool IsValidAll() const override { return ValidityOf(Self(), AnyX::FrameSize).all; }
    std::vector<ItemPart> GetParts() const override {
        PartLister io(AnyX::FrameSize);
        X::Map(io, Self());
        return std::move(io.parts);
    }

    ItemStatus GetStatus() const { return StatusOf(Self(), AnyX::FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(Self(), AnyX::FrameSize); }
    bool EqualFields(const X& other) const {
        return static_cast<const AllFields&>(*this) == static_cast<const AllFields&>(other);
    }

    // Defaults of what a kind may replace.
    static bool Accepts(int peekedType) { return peekedType == static_cast<int>(value); }
    void Normalize() {}
    void NormalizeRead() { Self().Normalize(); }
    void FillTexts(TextTable&) const {}
    bool HasContent() const { return true; }
    TextFormat GetFormat() const { return X::Format; }

protected:
    void WriteLayout(ByteRange range) const {
        LayoutWriter io(range);
        X::Map(io, Self());
    }

private:
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }
};

}  // namespace VNT
