#pragma once

#include <compare>
#include <cstdint>

namespace VNT {

// A product of two 64-bit numbers, whole: the slow reference against which Decimal is held.
struct Wide {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    auto operator<=>(const Wide&) const = default;
};

// Long multiplication in base 2^32.
inline Wide Product(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t base = 1ull << 32;
    const std::uint64_t low = (a % base) * (b % base);
    const std::uint64_t first = (a / base) * (b % base) + low / base;
    const std::uint64_t second = (a % base) * (b / base) + first % base;
    return {(a / base) * (b / base) + first / base + second / base, second % base * base + low % base};
}

inline std::uint64_t Magnitude(std::int64_t value) {
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

// True if `quotient` is `dividend` / `divisor` truncated, held at the greatest 64-bit number; all without sign.
inline bool IsQuotient(std::uint64_t quotient, Wide dividend, std::uint64_t divisor) {
    constexpr auto most = static_cast<std::uint64_t>(INT64_MAX);
    if (Product(quotient, divisor) > dividend) return false;
    return quotient == most || Product(quotient + 1, divisor) > dividend;
}

}  // namespace VNT
