#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "model/core/layout.h"

// Visitors that look at and change the fields of any item by their names, without knowing its class.
namespace VNT::Testing {

// A field's value as a number: millionths of a Decimal, the bits of flags, the length of bytes or a text.
template <class T>
std::int64_t NumberOf(const T& value) {
    if constexpr (std::is_same_v<T, Decimal>) {
        return value.Millionths();
    } else if constexpr (std::is_same_v<T, Bytes>) {
        return value.Size();
    } else if constexpr (std::is_same_v<T, String>) {
        return value.Length();
    } else if constexpr (Detail::FlagHolder<T>) {
        return value.GetBits();
    } else {
        return static_cast<std::int64_t>(value);
    }
}

template <class T>
T ValueOf(std::int64_t number) {
    if constexpr (std::is_same_v<T, Decimal>) {
        return Decimal::FromMillionths(number);
    } else if constexpr (std::is_same_v<T, Bytes>) {
        return Bytes(static_cast<int>(number), 0x5A);
    } else if constexpr (std::is_same_v<T, String>) {
        return String(std::u32string(static_cast<std::size_t>(number), U'Z'));
    } else if constexpr (Detail::FlagHolder<T>) {
        return T(static_cast<std::uint32_t>(number));
    } else {
        return static_cast<T>(number);
    }
}

// A value to try on a field, and what the field's limits say of it.
struct FieldProbe {
    std::string name;
    std::int64_t number;
    bool proper;
    bool all;
    bool isRest = false;  // of what is left of the bytes
};

// For each field: the least and greatest value of both limits, what is one beyond, what they list beside their range.
class ProbeLister : public TLayoutObserver<ProbeLister> {
public:
    using TLayoutObserver::TLayoutObserver;

    template <class T>
    void Kept(const char* name, const BitPlace& place, const T&) {
        const std::int64_t most = place.Most();
        Add(name, 0, true, true);
        Add(name, HeldBy<T>(most), true, true);
        if constexpr (std::is_same_v<T, int>) {
            Add(name, -1, false, false);
            Add(name, most + 1, false, false);
        }
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace&, const T&, const TLimitPair<L>& limits) {
        for (const L& set : {limits.proper, limits.all}) {
            for (const std::int64_t number : Extremes(set))
                Add(name, HeldBy<T>(number), Contains<T>(limits.proper, number), Contains<T>(limits.all, number));
        }
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const Coding&, const TLimitPair<L>& limits) {
        Number(name, place, value, limits);
    }
    void Data(const char* name, int, const Bytes&, const TLimitPair<CountLimits>& limits) {
        AddSizes(name, limits, false);
    }
    template <class T>
    void Rest(const char* name, const T&, const TLimitPair<CountLimits>& limits) {
        AddSizes(name, limits, true);
    }
    template <class Item>
    void Part(const char*, int, const Item&, bool, bool) {}
    template <class Items, class L>
    void List(const char*, const Items&, const TLimitPair<L>&) {}
    template <class Item>
    bool Optional(const char*, const Item&, bool isThere, int) {
        return isThere;
    }
    void Check(const char*, bool, bool) {}

    std::vector<FieldProbe> probes;

private:
    void Add(const char* name, std::int64_t number, bool proper, bool all, bool isRest = false) {
        probes.push_back({name, number, proper, all, isRest});
    }
    void AddSizes(const char* name, const TLimitPair<CountLimits>& limits, bool isRest) {
        for (const CountLimits& set : {limits.proper, limits.all}) {
            for (const int size : {set.min - 1, set.min, set.max, set.max + 1}) {
                if (size >= 0) Add(name, size, limits.proper.Contains(size), limits.all.Contains(size), isRest);
            }
        }
    }
    // What is left of a number in the field.
    template <class T>
    static std::int64_t HeldBy(std::int64_t number) {
        return NumberOf(ValueOf<T>(number));
    }
    template <class T, class L>
    static bool Contains(const L& limits, std::int64_t number) {
        return Detail::Passes(ValueOf<T>(number), limits);
    }
    template <class V>
    static std::vector<std::int64_t> Extremes(const TValueLimits<V>& limits) {
        const std::int64_t step = std::max<std::int64_t>(1, Detail::Raw(limits.step));
        const std::int64_t min = Detail::Raw(limits.min), max = Detail::Raw(limits.max);
        std::vector<std::int64_t> numbers{min - step, min, max, max + step};
        if (step > 1) numbers.push_back(min + 1);
        for (const V& value : limits.extra) numbers.push_back(Detail::Raw(value));
        return numbers;
    }
    static std::vector<std::int64_t> Extremes(const EnumLimits& limits) {
        std::vector<std::int64_t> numbers{-1, 0, limits.count - 1, limits.count};
        numbers.insert(numbers.end(), limits.extra.begin(), limits.extra.end());
        return numbers;
    }
};

// Changes or looks at one field.
class FieldHand : public TLayoutObserver<FieldHand> {
public:
    FieldHand(int available, std::string_view name, std::optional<std::int64_t> put = {})
        : TLayoutObserver(available), name_(name), put_(put) {}

    template <class T>
    void Kept(const char* name, const BitPlace&, T& value) {
        Touch(name, value);
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace&, T& value, const TLimitPair<L>&) {
        Touch(name, value);
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace&, T& value, const Coding&, const TLimitPair<L>&) {
        Touch(name, value);
    }
    void Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>&) { Touch(name, value); }
    template <class T>
    void Rest(const char* name, T& value, const TLimitPair<CountLimits>&) {
        Touch(name, value);
    }
    template <class Item>
    void Part(const char*, int, Item&, bool, bool) {}
    template <class Items, class L>
    void List(const char*, const Items&, const TLimitPair<L>&) {}
    template <class Item>
    bool Optional(const char*, const Item&, bool isThere, int) {
        return isThere;
    }
    void Check(const char*, bool, bool) {}

    std::optional<std::int64_t> number;  // what the field held

private:
    template <class T>
    void Touch(const char* name, T& value) {
        if (name != name_) return;
        number = NumberOf(value);
        if (put_) value = ValueOf<T>(*put_);
    }
    std::string_view name_;
    std::optional<std::int64_t> put_;
};

template <class X>
std::vector<FieldProbe> ProbesOf(const X& item, int size) {
    ProbeLister io(size);
    X::Map(io, item);
    return std::move(io.probes);
}

template <class X>
void PutField(X& item, int size, const std::string& name, std::int64_t number) {
    FieldHand io(size, name, number);
    X::Map(io, item);
}

// Empty where the field doesn't apply.
template <class X>
std::optional<std::int64_t> GetField(X item, int size, const std::string& name) {
    FieldHand io(size, name);
    X::Map(io, item);
    return io.number;
}

}  // namespace VNT::Testing
