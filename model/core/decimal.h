#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace VNT {

// The blank value of a numeric field; a 64-bit field holds the same number, a Decimal its own (below).
inline constexpr int Undefined = std::numeric_limits<int>::min();

// The number type of every field that is not an integer: a signed 64-bit count of millionths.
//
// Arithmetic is exact and truncates towards zero where a result has more than six decimals. An undefined operand (of an
// integer, the int Undefined) gives an undefined result, so does a division by zero; a result beyond 64 bits is held at
// the greatest or least number.
class Decimal {
public:
    static constexpr std::int64_t Scale = 1000000;

    constexpr Decimal() = default;
    // mantissa x 10^(-decimals), truncated to six decimals: Decimal(10, 3) is 0.01. The int Undefined gives the
    // undefined Decimal.
    constexpr explicit Decimal(std::int64_t mantissa, int decimals = 0);
    static constexpr Decimal FromMillionths(std::int64_t count) {
        Decimal result;
        result.millionths_ = count;
        return result;
    }
    static constexpr Decimal Undefined() { return FromMillionths(std::numeric_limits<std::int64_t>::min()); }
    // Rounded to the nearest millionth; what a 64-bit count cannot hold (and what is no number) is undefined.
    static Decimal FromDouble(double value);
    double ToDouble() const;

    constexpr std::int64_t Millionths() const { return millionths_; }
    constexpr bool IsUndefined() const { return millionths_ == std::numeric_limits<std::int64_t>::min(); }

    constexpr auto operator<=>(const Decimal&) const = default;  // NOLINT(modernize-use-nullptr): clang-tidy 14 errs
    Decimal operator+(Decimal other) const;
    Decimal operator-(Decimal other) const;
    Decimal operator*(Decimal other) const;
    Decimal operator/(Decimal other) const;
    Decimal operator*(std::int64_t factor) const;
    Decimal operator/(std::int64_t divisor) const;
    Decimal operator-() const { return Decimal() - *this; }

    // To a multiple of 10^(-places), half away from zero; `places` below -12 count as -12. Undefined stays, and so does
    // any value at 6 places or more.
    Decimal RoundNearest(int places) const;
    // The same, to the next multiple towards plus infinity.
    Decimal RoundUp(int places) const;
    // The count of 10^(-places) units, truncated towards zero and held within an int; VNT::Undefined if undefined.
    int ToInt(int places = 0) const;

private:
    std::int64_t millionths_ = 0;
};

// base^exponent for the few powers of ten that fit; 1 for a negative exponent.
constexpr std::int64_t PowerOfTen(int exponent) {
    std::int64_t power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

constexpr Decimal::Decimal(std::int64_t mantissa, int decimals) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    if (mantissa == VNT::Undefined) {
        *this = Undefined();
    } else if (decimals > 6) {
        millionths_ = decimals > 24 ? 0 : mantissa / PowerOfTen(decimals - 6);
    } else {
        const std::int64_t factor = decimals < -12 ? most : PowerOfTen(6 - decimals);
        millionths_ = mantissa > most / factor ? most : mantissa < -(most / factor) ? -most : mantissa * factor;
    }
}

}  // namespace VNT
