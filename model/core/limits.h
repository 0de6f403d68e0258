#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <span>
#include <type_traits>

#include "model/core/decimal.h"

namespace VNT {

// The few values or pairs that a limit or a coding lists beside its rule, held in place: limits are computed per call.
template <class T, int Most = 4>
class TFew {
public:
    constexpr TFew() = default;
    constexpr TFew(std::initializer_list<T> values) {
        for (const T& value : values) Add(value);
    }
    constexpr void Add(const T& value) { values_.at(static_cast<std::size_t>(count_++)) = value; }
    constexpr const T* begin() const { return values_.data(); }
    constexpr const T* end() const { return values_.data() + count_; }
    constexpr bool Contains(const T& value) const {
        for (const T& v : *this) {
            if (v == value) return true;
        }
        return false;
    }

private:
    std::array<T, static_cast<std::size_t>(Most)> values_{};
    int count_ = 0;
};

namespace Detail {
// The mathematical remainder, 0 to step - 1, also for negative values.
constexpr std::int64_t Modulo(std::int64_t value, std::int64_t step) {
    const std::int64_t rest = value % step;
    return rest < 0 ? rest + step : rest;
}
constexpr std::int64_t Raw(std::int64_t value) { return value; }
constexpr std::int64_t Raw(Decimal value) { return value.Millionths(); }
}  // namespace Detail

// A value passes if it is one of `extra`, or if it lies in min to max and, with a `step`, is `stepOffset` modulo
// `step`.
template <class T>
struct TValueLimits {
    T min{};
    T max{};
    T step{};
    T stepOffset{};
    TFew<T> extra{};

    constexpr bool Contains(T value) const {
        if (extra.Contains(value)) return true;
        if (value < min || value > max) return false;
        return step == T{} || Detail::Modulo(Detail::Raw(value), Detail::Raw(step)) == Detail::Raw(stepOffset);
    }
};
using ValueLimits = TValueLimits<int>;
using LongLimits = TValueLimits<std::int64_t>;
using DecimalLimits = TValueLimits<Decimal>;

// The length of a text or byte vector.
struct CountLimits {
    int min = 0;
    int max = 0;
    constexpr bool Contains(int length) const { return length >= min && length <= max; }
};

// A value of a vocabulary and its text, whatever the enumeration.
struct NumberName {
    std::int64_t number;
    const char* text;
};
using NumberNames = std::span<const NumberName>;

namespace Detail {
template <class E>
constexpr auto ListNames() {
    std::array<NumberName, std::size(E::Texts)> names{};
    for (std::size_t i = 0; i < names.size(); ++i) names[i] = {E::Texts[i].value, E::Texts[i].text};
    return names;
}
template <class E>
inline constexpr auto NamesOf = ListNames<E>();
}  // namespace Detail

// An enumeration: the rows 0 to count - 1, and `extra`; its texts, if it is one of those that have some.
struct EnumLimits {
    int count = 0;
    TFew<int> extra{};
    NumberNames names{};
    constexpr bool Contains(int value) const { return (value >= 0 && value < count) || extra.Contains(value); }
};

// What a sound EDID holds, and what the bytes can carry.
template <class L>
struct TLimitPair {
    L proper{};
    L all{};
    constexpr TLimitPair() = default;
    constexpr TLimitPair(const L& both) : proper(both), all(both) {}
    constexpr TLimitPair(const L& sound, const L& carried) : proper(sound), all(carried) {}
};

constexpr TLimitPair<ValueLimits> Within(int min, int max) { return ValueLimits{min, max}; }
constexpr TLimitPair<ValueLimits> Within(const ValueLimits& proper, const ValueLimits& all) { return {proper, all}; }
constexpr TLimitPair<ValueLimits> WithinOrUndefined(int min, int max) {
    return ValueLimits{min, max, 0, 0, {Undefined}};
}
constexpr TLimitPair<LongLimits> Within(const LongLimits& both) { return both; }
constexpr TLimitPair<DecimalLimits> Within(const DecimalLimits& both) { return both; }
constexpr TLimitPair<EnumLimits> OneOf(int count) { return EnumLimits{count}; }
// The values of the vocabulary E, of which the bytes carry `count`.
template <class E>
constexpr TLimitPair<EnumLimits> OneOf(int count) {
    return EnumLimits{count, {}, Detail::NamesOf<E>};
}
constexpr TLimitPair<CountLimits> Exactly(int length) { return CountLimits{length, length}; }

// How a raw number of the bytes maps to a value and back. Pairs serve for special raws ("raw 0 is Undefined").
template <class T>
struct TCodingPair {
    int raw = 0;
    T value{};
    constexpr bool operator==(const TCodingPair&) const = default;
};

template <class T>
struct TValueCoding {
    T offset{};
    T step = T(1);  // greater than 0
    TFew<TCodingPair<T>> pairs{};

    constexpr T Decode(std::uint32_t raw) const {
        for (const TCodingPair<T>& pair : pairs) {
            if (static_cast<std::uint32_t>(pair.raw) == raw) return pair.value;
        }
        if constexpr (std::is_same_v<T, Decimal>) {
            return step * static_cast<std::int64_t>(raw) + offset;
        } else {
            return static_cast<T>(static_cast<std::int64_t>(raw) * step + offset);
        }
    }
    // (value - offset) / step, truncated; the caller clips it to the bits of its field.
    constexpr std::int64_t Encode(T value) const {
        for (const TCodingPair<T>& pair : pairs) {
            if (pair.value == value) return pair.raw;
        }
        if constexpr (std::is_same_v<T, Decimal>) {
            return (value - offset).Millionths() / step.Millionths();
        } else {
            // Unsigned, so that no value overflows: what it gives beyond the limits is never written.
            const auto count = static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(offset);
            return static_cast<std::int64_t>(count) / step;
        }
    }
};
using ValueCoding = TValueCoding<int>;
inline constexpr ValueCoding ZeroIsUndefined{0, 1, {{0, Undefined}}};
using LongCoding = TValueCoding<std::int64_t>;
using DecimalCoding = TValueCoding<Decimal>;

}  // namespace VNT
