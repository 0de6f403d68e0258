#pragma once

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
inline constexpr NumberType NumberTypeOf{FormOf<T>(), &GetNumber<T>, &PutNumber<T>};

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

template <class Part>
constexpr PartType MakePartType() {
    PartType type{nullptr, &AddNoRows};
    if constexpr (requires(const Part& part) { part.GetSize(); }) type.getSize = &GetPartSize<Part>;
    if constexpr (requires(const Part& part) { part.begin(); }) type.addRows = &AddPartRows<Part>;
    return type;
}
template <class Part>
inline constexpr PartType PartTypeOf = MakePartType<Part>();

template <class Item>
inline constexpr PartType OptionalTypeOf{&GetPartSize<Item>, &AddItemRows<Item>};

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

private:
    FieldSink& sink_;
};

}  // namespace VNT
