#pragma once

#include <array>
#include <iterator>

#include "model/core/layout_visitors.h"

// The visitor of fields, which is compiled for each class and hands on all that it meets to a sink that isn't.

namespace VNT {

namespace Detail {

template <class T>
constexpr NumberForm FormOf() {
    if constexpr (std::is_same_v<T, Decimal>) return NumberForm::Decimal;
    if constexpr (std::is_same_v<T, bool>) return NumberForm::Truth;
    if constexpr (std::is_enum_v<T>) return NumberForm::Enumeration;
    if constexpr (FlagHolder<T>) return NumberForm::Flags;
    return NumberForm::Count;
}

template <class T>
std::int64_t GetNumber(const void* value) {
    const T& number = *static_cast<const T*>(value);
    if constexpr (std::is_same_v<T, Decimal>) {
        return number.Millionths();
    } else if constexpr (FlagHolder<T>) {
        return number.GetBits();
    } else {
        return static_cast<std::int64_t>(number);
    }
}

template <class T>
void PutNumber(void* value, std::int64_t number) {
    T& target = *static_cast<T*>(value);
    if constexpr (std::is_same_v<T, Decimal>) {
        target = Decimal::FromMillionths(number);
    } else if constexpr (FlagHolder<T>) {
        target = T(static_cast<std::uint32_t>(number));
    } else {
        target = static_cast<T>(number);
    }
}

template <class T>
constexpr auto ListFlagNames() {
    std::array<NumberName, std::size(T::Vocabulary::Texts)> names{};
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = {T::Mask(T::Vocabulary::Texts[i].value), T::Vocabulary::Texts[i].text};
    return names;
}
template <class T>
inline constexpr auto FlagNamesOf = ListFlagNames<T>();

template <class T>
constexpr NumberType MakeNumberType() {
    NumberType type{FormOf<T>(), &GetNumber<T>, &PutNumber<T>, {}};
    if constexpr (requires { T::Mask(T::Vocabulary::Texts[0].value); }) type.flags = FlagNamesOf<T>;
    return type;
}
template <class T>
inline constexpr NumberType NumberTypeOf = MakeNumberType<T>();

template <class Part>
int GetPartSize(const void* part) {
    return static_cast<const Part*>(part)->GetSize();
}

template <class Part>
void AddPartRows(const void* part, const char* name, std::vector<ItemPart>& rows) {
    const Part& list = *static_cast<const Part*>(part);
    int index = 0;
    for (const auto& item : list) {
        ItemPart row{name, index++, {}, item.IsValid(), {}};
        item.GetText(row.text);
        if constexpr (requires { item.GetParts(); }) row.parts = item.GetParts();
        rows.push_back(std::move(row));
    }
}

// An item that is there lists its own.
template <class Part>
void AddItemRows(const void* part, const char*, std::vector<ItemPart>& rows) {
    if constexpr (requires(const Part& item) { item.GetParts(); }) {
        for (ItemPart& row : static_cast<const Part*>(part)->GetParts()) rows.push_back(std::move(row));
    }
}
inline void AddNoRows(const void*, const char*, std::vector<ItemPart>&) {}

// The most bytes that an item can take.
template <class X>
constexpr int MostBytesOf() {
    if constexpr (requires { X::FrameSize; }) {
        return X::FrameSize;
    } else {
        return X::MaxSize;
    }
}

template <class X>
void TellItem(void* item, FieldSink& sink) {
    X& told = *static_cast<X*>(item);
    if constexpr (requires { told.TellFields(0, sink); }) {
        told.TellFields(MostBytesOf<X>(), sink);
    } else if constexpr (requires(LayoutChecker & io) { X::Map(io, told); }) {
        TLayout<X>::Tell(told, MostBytesOf<X>(), sink);
    }
}
template <class X>
void RenewItem(void* item) {
    X& renewed = *static_cast<X*>(item);
    if constexpr (requires { renewed.Renew(); }) {
        renewed.Renew();
    } else if constexpr (requires { X(static_cast<const typename X::FieldsType&>(renewed)); }) {
        renewed = X(static_cast<const typename X::FieldsType&>(renewed));
    }
}
template <class X>
Bytes GetItemBytes(const void* item) {
    const X& written = *static_cast<const X*>(item);
    if (!written.IsValidAll()) return {};
    int size = MostBytesOf<X>();
    if constexpr (requires { written.GetSize(); }) size = written.GetSize();
    Bytes bytes(size, 0);
    return written.Write(bytes) ? bytes : Bytes();
}
template <class X>
bool ReadItem(void* item, const Bytes& bytes) {
    X& read = *static_cast<X*>(item);
    if constexpr (requires { read.Read(bytes, 0); }) {
        return read.Read(bytes, bytes.Size());
    } else {
        return read.Read(bytes);
    }
}
template <class X>
int GetItemKind(const void* holder) {
    const auto kinds = X::KindsType::All();
    const int type = static_cast<const X*>(holder)->GetType();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (kinds[i].type == type) return static_cast<int>(i);
    }
    return -1;
}
template <class X>
std::vector<const char*> GetItemKinds() {
    std::vector<const char*> titles;
    for (const auto& kind : X::KindsType::All()) titles.push_back(kind.title);
    return titles;
}
template <class X>
void MakeItemKind(void* holder, int kind) {
    *static_cast<X*>(holder) = X(X::KindsType::All()[static_cast<std::size_t>(kind)].make());
}

template <class X>
std::shared_ptr<void> MakeNewItem() {
    return std::make_shared<X>();
}

template <class X>
constexpr ItemType MakeItemType() {
    ItemType type{&TellItem<X>, &RenewItem<X>, &GetItemBytes<X>, &ReadItem<X>,
                  nullptr,      nullptr,       nullptr,          &MakeNewItem<X>};
    if constexpr (requires { typename X::KindsType; }) {
        type.getKind = &GetItemKind<X>;
        type.getKinds = &GetItemKinds<X>;
        type.makeKind = &MakeItemKind<X>;
    }
    return type;
}
template <class X>
inline constexpr ItemType ItemTypeOf = MakeItemType<X>();

template <class List>
int GetListCount(const void* list) {
    return static_cast<const List*>(list)->GetCount();
}
template <class List>
ItemRef GetListItem(const void* list, int index) {
    using Item = typename List::ItemType;
    return ItemRef(const_cast<Item*>(&static_cast<const List*>(list)->At(index)), ItemTypeOf<Item>);
}
template <class List>
bool AddListItem(void* list, const std::function<void(const ItemRef&)>& fill) {
    using Item = typename List::ItemType;
    List& target = *static_cast<List*>(list);
    Item item;
    fill(ItemRef(&item, ItemTypeOf<Item>));
    return target.Insert(target.GetCount(), item);
}
template <class List>
void ClearList(void* list) {
    static_cast<List*>(list)->Clear();
}

template <class Part>
constexpr PartType MakePartType() {
    PartType type{nullptr, &AddNoRows, nullptr, nullptr, nullptr, nullptr, nullptr};
    if constexpr (requires(const Part& part) { part.GetSize(); }) type.getSize = &GetPartSize<Part>;
    if constexpr (requires(const Part& part) { part.begin(); }) type.addRows = &AddPartRows<Part>;
    if constexpr (
        requires { typename Part::ItemType; } && requires(Part & part) { part.Clear(); }) {
        type.getCount = &GetListCount<Part>;
        type.at = &GetListItem<Part>;
        type.add = &AddListItem<Part>;
        type.clear = &ClearList<Part>;
    } else {
        type.item = &ItemTypeOf<Part>;
    }
    return type;
}
template <class Part>
inline constexpr PartType PartTypeOf = MakePartType<Part>();

template <class Item>
constexpr PartType MakeOptionalType() {
    PartType type = MakePartType<Item>();
    type.addRows = &AddItemRows<Item>;
    return type;
}
template <class Item>
inline constexpr PartType OptionalTypeOf = MakeOptionalType<Item>();

}  // namespace Detail

// Tells the fields to a sink.
class FieldTeller : public LayoutVisitor {
public:
    FieldTeller(int available, FieldSink& sink) : LayoutVisitor(available), sink_(sink) {}

    void Constant(const BitPlace& place, std::uint32_t) { sink_.Pass(place); }
    template <class Get, class Set>
    void Through(const BitPlace& place, const Get&, const Set&) {
        sink_.Pass(place);
    }
    template <class Get, class Set>
    void ThroughData(int count, const Get&, const Set&) {
        sink_.PassBytes(count);
    }
    template <class T>
    void Kept(const char* name, const BitPlace& place, T& value) {
        sink_.Kept(name, place, NumberRef(&value, Detail::NumberTypeOf<T>));
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace& place, T& value, const TLimitPair<L>& limits) {
        sink_.Number(name, place, NumberRef(&value, Detail::NumberTypeOf<T>), limits);
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace& place, T& value, const Coding&, const TLimitPair<L>& limits) {
        sink_.Number(name, place, NumberRef(&value, Detail::NumberTypeOf<T>), limits);
    }
    template <class T, class L>
    void Derived(const char* name, const BitPlace& place, T& value, const TLimitPair<L>& limits) {
        sink_.Derived(name, place, NumberRef(&value, Detail::NumberTypeOf<T>), limits);
    }
    template <class T, class Coding, class L>
    void Derived(const char* name, const BitPlace& place, T& value, const Coding&, const TLimitPair<L>& limits) {
        sink_.Derived(name, place, NumberRef(&value, Detail::NumberTypeOf<T>), limits);
    }
    void Data(const char* name, int count, Bytes& value, const TLimitPair<CountLimits>& limits) {
        sink_.Data(name, count, value, limits);
    }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) {
        sink_.Rest(name, value, limits);
    }
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) {
        sink_.Rest(name, value, limits);
    }
    template <class Item>
    void Part(const char* name, int count, Item& item, bool proper, bool all) {
        sink_.Part(name, count, PartRef(&item, Detail::PartTypeOf<Item>), proper, all);
    }
    template <class Items, class L>
    void List(const char* name, Items& list, const TLimitPair<L>& limits) {
        sink_.List(name, PartRef(&list, Detail::PartTypeOf<Items>), limits.proper.Contains(list),
                   limits.all.Contains(list));
    }
    template <class Item>
    bool Optional(const char* name, Item& item, bool isThere, int available) {
        if (isThere)
            sink_.Optional(name, PartRef(&item, Detail::OptionalTypeOf<Item>), item.IsValid(available),
                           item.IsValidAll(available));
        return isThere;
    }
    template <class Inner>
    void Area(int, const Inner& map) {
        map(*this);
    }
    void Check(const char* name, bool proper, bool all) { sink_.Check(name, proper, all); }
    template <class T>
    void Value(const char* name, T& value, bool proper, bool all, NumberNames names = {}) {
        sink_.Value(name, NumberRef(&value, Detail::NumberTypeOf<T>), names, proper, all);
    }
    void Value(const char* name, String& value, bool proper, bool all) { sink_.Value(name, value, proper, all); }
    void Value(const char* name, Bytes& value, bool proper, bool all) { sink_.Value(name, value, proper, all); }

private:
    FieldSink& sink_;
};

}  // namespace VNT
