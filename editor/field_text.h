// How the value of a field stands in a text box, and how what was typed becomes a value again.
#pragma once

#include <cstdint>
#include <type_traits>

#include "model/core/bytes.h"
#include "model/core/text.h"

namespace Forms {

// What a number field holds while the text of its box is no number; an empty box is `VNT::Undefined`. No limit of any
// item has it, so that the box is red and the form can't be confirmed.
inline constexpr int BadNumber = VNT::Undefined + 1;
inline constexpr VNT::Decimal BadDecimal = VNT::Decimal::FromMillionths(VNT::Decimal::Undefined().Millionths() + 1);

template <class T>
inline constexpr bool IsNumber = std::is_integral_v<T> || std::is_enum_v<T>;

template <class T>
constexpr bool IsBad(const T& value) {
    if constexpr (std::is_same_v<T, VNT::Decimal>) {
        return value == BadDecimal;
    } else if constexpr (IsNumber<T>) {
        return value == static_cast<T>(BadNumber);
    } else {
        return false;
    }
}

// The ways to write a field. A hexadecimal number is written, and has to be typed, with at least so many digits.
struct DecimalDigits {};
struct HexDigits {
    int least = 1;
};
struct DottedNibbles {};  // four numbers below 16, the first in the highest of 16 bits
struct PlainText {};
struct HexDump {};

VNT::String PrintField(std::int64_t value, DecimalDigits);
VNT::String PrintField(std::int64_t value, HexDigits format);
VNT::String PrintField(std::int64_t value, DottedNibbles);
VNT::String PrintField(VNT::Decimal value, const VNT::DecimalFormat& format);
VNT::String PrintField(const VNT::String& value, PlainText);
VNT::String PrintField(const VNT::Bytes& value, HexDump);

template <class T, class Format>
requires IsNumber<T> VNT::String PrintField(T value, const Format& format) {
    const bool isBlank = value == static_cast<T>(VNT::Undefined);
    return PrintField(isBlank ? std::int64_t{VNT::Undefined} : static_cast<std::int64_t>(value), format);
}

// The value of a text: `Undefined` for one that is empty but for white space, `BadNumber` for one that is no number.
std::int64_t ParseNumber(const VNT::String& text, DecimalDigits);
std::int64_t ParseNumber(const VNT::String& text, HexDigits format);
std::int64_t ParseNumber(const VNT::String& text, DottedNibbles);

// Puts what was typed into the field. False, with a sentinel in the field where it has one, if the text is none of its
// kind.
template <class T, class Format>
requires IsNumber<T>
bool ParseField(const VNT::String& text, T& field, const Format& format) {
    std::int64_t number = ParseNumber(text, format);
    // What the field can't hold is as bad as what is no number.
    if (number != VNT::Undefined && static_cast<std::int64_t>(static_cast<T>(number)) != number) number = BadNumber;
    field = static_cast<T>(number);
    return number != BadNumber;
}
bool ParseField(const VNT::String& text, VNT::Decimal& field, const VNT::DecimalFormat& format);
bool ParseField(const VNT::String& text, VNT::String& field, const PlainText& format);
bool ParseField(const VNT::String& text, VNT::Bytes& field, const HexDump& format);

}  // namespace Forms
