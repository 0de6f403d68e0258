#include "model/core/decimal.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace VNT {

namespace {

constexpr auto Most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());

// A number as magnitude and sign, so that every operation truncates towards zero and none overflows on the way.
struct Signed {
    std::uint64_t magnitude;
    bool negative;
};

Signed Split(std::int64_t value) {
    return {value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value), value < 0};
}

Decimal Join(std::uint64_t magnitude, bool negative) {
    const auto held = static_cast<std::int64_t>(std::min(magnitude, Most));
    return Decimal::FromMillionths(negative ? -held : held);
}

std::uint64_t SaturatedAdd(std::uint64_t a, std::uint64_t b) { return a > UINT64_MAX - b ? UINT64_MAX : a + b; }

std::uint64_t SaturatedMultiply(std::uint64_t a, std::uint64_t b) {
    if (std::bit_width(a) + std::bit_width(b) <= 64) return a * b;
    return a != 0 && b > UINT64_MAX / a ? UINT64_MAX : a * b;
}

// a x 1000000 / b: a short division where the product fits; else digit by digit (binary), doubling quotient and
// remainder for each bit of the factor and adding a/b where the bit is set. b is at most 2^63, so that no doubled
// remainder overflows.
std::uint64_t ScaledDivide(std::uint64_t a, std::uint64_t b) {
    constexpr auto scale = static_cast<std::uint64_t>(Decimal::Scale);
    if (a <= UINT64_MAX / scale) return a * scale / b;
    const std::uint64_t quotientStep = a / b;
    const std::uint64_t remainderStep = a % b;
    std::uint64_t quotient = 0;
    std::uint64_t remainder = 0;
    const auto carry = [&] {
        if (remainder >= b) {
            remainder -= b;
            quotient = SaturatedAdd(quotient, 1);
        }
    };
    for (std::uint64_t bit = 1u << 19; bit != 0; bit /= 2) {
        quotient = SaturatedMultiply(quotient, 2);
        remainder *= 2;
        carry();
        if ((scale & bit) == 0) continue;
        quotient = SaturatedAdd(quotient, quotientStep);
        remainder += remainderStep;
        carry();
    }
    return quotient;
}

Decimal RoundTo(Decimal value, int places, bool up) {
    if (value.IsUndefined() || places >= 6) return value;
    const std::int64_t unit = PowerOfTen(6 - std::max(places, -12));
    const std::int64_t rest = value.Millionths() % unit;
    const Decimal truncated = Decimal::FromMillionths(value.Millionths() - rest);
    const bool away = up ? rest > 0 : std::abs(rest) >= unit - std::abs(rest);
    return away ? truncated + Decimal::FromMillionths(rest < 0 ? -unit : unit) : truncated;
}

}  // namespace

Decimal Decimal::FromDouble(double value) {
    constexpr double limit = 9223372036854775808.0;  // 2^63
    const double count = std::round(value * static_cast<double>(Scale));
    if (!(std::abs(count) < limit)) return Undefined();
    return FromMillionths(static_cast<std::int64_t>(count));
}

double Decimal::ToDouble() const { return static_cast<double>(millionths_) / static_cast<double>(Scale); }

Decimal Decimal::operator+(Decimal other) const {
    if (IsUndefined() || other.IsUndefined()) return Undefined();
    const Signed a = Split(millionths_);
    const Signed b = Split(other.millionths_);
    if (a.negative == b.negative) return Join(SaturatedAdd(a.magnitude, b.magnitude), a.negative);
    return a.magnitude >= b.magnitude ? Join(a.magnitude - b.magnitude, a.negative)
                                      : Join(b.magnitude - a.magnitude, b.negative);
}

Decimal Decimal::operator-(Decimal other) const {
    if (IsUndefined() || other.IsUndefined()) return Undefined();
    return *this + FromMillionths(-other.millionths_);
}

Decimal Decimal::operator*(Decimal other) const {
    if (IsUndefined() || other.IsUndefined()) return Undefined();
    constexpr auto scale = static_cast<std::uint64_t>(Scale);
    const Signed a = Split(millionths_);
    const Signed b = Split(other.millionths_);
    const std::uint64_t aWhole = a.magnitude / scale;
    const std::uint64_t aPart = a.magnitude % scale;
    const std::uint64_t bWhole = b.magnitude / scale;
    const std::uint64_t bPart = b.magnitude % scale;
    std::uint64_t product = SaturatedMultiply(SaturatedMultiply(aWhole, bWhole), scale);
    product = SaturatedAdd(product, SaturatedMultiply(aWhole, bPart));
    product = SaturatedAdd(product, SaturatedMultiply(aPart, bWhole));
    product = SaturatedAdd(product, aPart * bPart / scale);
    return Join(product, a.negative != b.negative);
}

Decimal Decimal::operator/(Decimal other) const {
    if (IsUndefined() || other.IsUndefined() || other.millionths_ == 0) return Undefined();
    const Signed a = Split(millionths_);
    const Signed b = Split(other.millionths_);
    return Join(ScaledDivide(a.magnitude, b.magnitude), a.negative != b.negative);
}

Decimal Decimal::operator*(std::int64_t factor) const {
    if (IsUndefined() || factor == VNT::Undefined) return Undefined();
    const Signed a = Split(millionths_);
    const Signed b = Split(factor);
    return Join(SaturatedMultiply(a.magnitude, b.magnitude), a.negative != b.negative);
}

Decimal Decimal::operator/(std::int64_t divisor) const {
    if (IsUndefined() || divisor == VNT::Undefined || divisor == 0) return Undefined();
    return FromMillionths(millionths_ / divisor);
}

Decimal Decimal::RoundNearest(int places) const { return RoundTo(*this, places, false); }

Decimal Decimal::RoundUp(int places) const { return RoundTo(*this, places, true); }

int Decimal::ToInt(int places) const {
    if (IsUndefined()) return VNT::Undefined;
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    const std::int64_t count = places >= 6 ? (*this * PowerOfTen(std::min(places - 6, 12))).millionths_
                                           : millionths_ / PowerOfTen(6 - std::max(places, -12));
    return static_cast<int>(std::clamp(count, -most, most));
}

}  // namespace VNT
