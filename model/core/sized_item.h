#pragma once

#include <algorithm>

#include "model/core/item.h"
#include "model/core/list.h"

namespace VNT {

// What is fixed in the length of a kind whose items have a size of their own: how many bytes its fields take behind the
// prefix of the frame, and the lengths that an edit may leave of them, ascending. An item from elsewhere may have any.
struct SizedShape {
    int fixed = 0;
    TFew<int, 12> steps{};

    constexpr int Least() const { return steps.begin() == steps.end() ? fixed : *steps.begin(); }
    // The `PresentLength` of an item with bytes behind all of its fields.
    constexpr int Longer() const { return fixed + 1; }
    // The shortest of the lengths that holds `bytes`.
    constexpr int Holding(int bytes) const {
        for (const int step : steps) {
            if (step >= bytes) return step;
        }
        return fixed;
    }
    constexpr bool Allows(int presentLength) const {
        return steps.Contains(presentLength) || presentLength == fixed || presentLength == Longer();
    }
};

// What a family's `Peek` finds in the bytes.
struct SizedPeek {
    int type;
    int plainType;  // the same without the vendor's number
    int size = 0;   // bytes, prefix included
};

// An item that knows its size, and no more.
template <class X, class TypeEnum, TypeEnum value, class AnyX, class AnyY>
class TCommonTypeSize : public TCommonType<X, TypeEnum, value, AnyX, AnyY> {
public:
    int Size = 0;  // bytes that the item takes, prefix included
    int GetSize() const override { return Size; }
};

// A concrete item of such a family with all operations made from its layout (layout_made.h). X gives
//
//     static constexpr SizedShape Shape{2};                           // the bytes of its fields, and their steps
//     template <class IO> static void MapFields(IO& io, auto& item);  // these bytes and lists, see layout.h
//     static constexpr TextFormat Format{...};
//
// The family puts its prefix in front (`AnyX::MapPrefix<type>`). `Fields` has the member `Bytes Extra`: what stands
// behind the fields, kept. A read and a write never change an item's length, whatever that is: what lies beyond a short
// item's end reads as zero bits and isn't written. An edited item takes the length that its fields need.
//
// Particular: `Accepts(peek)`, `Normalize()`, `FillTexts(table)`, `HasContent()`, `GetExtraLimits(room)`; `KeepsExtra`,
// `HasRest()`; of a kind whose bytes tell its length in a way of their own `GetPresentLength()`,
// `AllowsLength(presentLength)` and `GetNeeded(bytes)`.
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
class TSizedItem : public TCommonTypeSize<X, TypeEnum, value, AnyX, AnyX>, public Fields {
public:
    using Sized = TSizedItem;
    using FieldsType = Fields;
    using AnyX::IsValid;
    using AnyX::IsValidAll;
    static constexpr int PrefixSize = AnyX::GetPrefixSize(value);

    int PresentLength = X::Shape.Least();  // bytes that the fields have behind the prefix, or Shape.Longer()

    TSizedItem() { this->Size = PrefixSize + X::Shape.Least(); }
    // An edited item. X's constructor from its fields calls this.
    void SetFields(const Fields& fields);

    bool Read(ByteRange range) override;
    bool Write(ByteRange range) const override;
    void GetText(String& out, const String& format) const override;
    void GetText(String& out) const override;
    bool IsAvailable(int size) const override { return Clamp(size) >= this->Size; }
    bool IsValid(int size) const override;
    bool IsValidAll(int size) const override;
    std::vector<ItemPart> GetParts() const override;
    void TellFields(int available, FieldSink& sink) override;
    void Renew() override;

    ItemStatus GetStatus(int size = AnyX::MaxSize) const { return StatusOf(Self(), Clamp(size)); }
    std::vector<FieldLimits> GetFieldLimits(int size = AnyX::MaxSize) const { return LimitsOf(Self(), Clamp(size)); }
    ItemStatus GetAvailable(int size = AnyX::MaxSize) const override { return GetReach(size); }
    ItemStatus GetReach(int size) const;  // what it is where a kind has nothing of its own to say
    bool EqualFields(const X& other) const;

    // The bytes of the item in `size` bytes of room that none of its fields take.
    static int GetExtraRoom(int size) { return std::max(0, size - PrefixSize - X::Shape.fixed); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        X::template MapPrefix<IO>(io, item);
        io.Value("Size", item.Size, item.Size >= PrefixSize + X::Shape.Least() && item.Size <= io.Available(),
                 item.Size <= io.Available());
        io.Value("PresentLength", item.PresentLength, X::AllowsLength(item.PresentLength), true);
        X::MapFields(io, item);
        io.Rest("Extra", item.Extra, item.GetExtraLimits(GetExtraRoom(io.Available())));
    }
    template <class IO>
    static void MapPrefix(IO& io, auto& item) {
        AnyX::template MapPrefix<static_cast<int>(value)>(io, item);
    }

    // Defaults of what a kind may replace.
    static bool Accepts(const SizedPeek& peek) { return peek.type == static_cast<int>(value); }
    void Normalize() {}
    void NormalizeRead() {}
    void FillTexts(TextTable&) const {}
    bool HasContent() const { return true; }
    TextFormat GetFormat() const { return X::Format; }
    TLimitPair<CountLimits> GetExtraLimits(int room) const { return CountLimits{0, room}; }
    // Whether an edit keeps the bytes behind the fields.
    static constexpr bool KeepsExtra = true;
    // Whether there are bytes behind the fixed ones.
    bool HasRest() const { return !this->Extra.IsEmpty(); }
    int GetPresentLength() const {
        return Self().HasRest() ? X::Shape.Longer() : std::clamp(this->Size - PrefixSize, 0, X::Shape.fixed);
    }
    static bool AllowsLength(int presentLength) { return X::Shape.Allows(presentLength); }
    // The bytes behind the prefix that say something, of which the last that is not 0 is at `bytes`.
    int GetNeeded(int bytes) const { return bytes; }

    // The length that an edited item takes: the shortest that holds every byte that says something.
    void UpdateSize();

private:
    static int Clamp(int size) { return std::clamp(size, 0, AnyX::MaxSize); }

    void TrimToStep();
    X& Self() { return static_cast<X&>(*this); }
    const X& Self() const { return static_cast<const X&>(*this); }
};

// A list of holders of such a family; its size is the sum of theirs.
template <class Item>
class TSizedList : public TList<Item> {
    static constexpr std::size_t UsualCount = 8;

public:
    // Reads item after item until one doesn't read. Always true.
    bool Read(ByteRange range) {
        this->Clear();
        if (range.Size() > 0) this->items_.reserve(UsualCount);
        for (Item item; item.Read(range); item = Item()) {
            range.Drop(item.GetSize());
            this->items_.push_back(std::move(item));  // ReadSizedKind gives none that couldn't be written
        }
        return true;
    }
    // False if the range is too short for all items. What stays behind the last one is left as it is.
    bool Write(ByteRange range) const {
        if (range.Size() < GetSize()) return false;
        for (const Item& item : *this) {
            item.Write(range.Peek(item.GetSize()));
            range.Drop(item.GetSize());
        }
        return true;
    }
    int GetSize() const {
        int size = 0;
        for (const Item& item : *this) size += item.GetSize();
        return size;
    }
};

}  // namespace VNT
