// How the value of a field stands in a text box, and how what was typed becomes a value again.
#pragma once

#include <cstdint>
#include <variant>

#include "editor/field.h"
#include "model/core/text.h"

namespace Forms {

// What a number field holds while the text of its box is no number; an empty box is `VNT::Undefined`. No limit of any
// item has it, so that the box is red and the form can't be confirmed.
inline constexpr int BadNumber = VNT::Undefined + 1;
inline constexpr VNT::Decimal BadDecimal = VNT::Decimal::FromMillionths(VNT::Decimal::Undefined().Millionths() + 1);

// The ways to write a field. A hexadecimal number is written, and has to be typed, with at least so many digits.
struct DecimalDigits {};
struct HexDigits {
    int least = 1;
};
struct DottedNibbles {};  // four numbers below 16, the first in the highest of 16 bits
struct PlainText {};
struct HexDump {};

using FieldFormat = std::variant<DecimalDigits, HexDigits, DottedNibbles, VNT::DecimalFormat, PlainText, HexDump>;

// The text of a field; empty for `Undefined`.
VNT::String PrintField(const AnyField& field, const FieldFormat& format);

// The value of a text: `Undefined` for one that is empty but for white space, `BadNumber` for one that is no number.
std::int64_t ParseNumber(const VNT::String& text, DecimalDigits);
std::int64_t ParseNumber(const VNT::String& text, HexDigits format);
std::int64_t ParseNumber(const VNT::String& text, DottedNibbles);

// Puts what was typed into the field. False, with a sentinel in the field where it has one, if the text is none of its
// kind.
bool ParseField(const VNT::String& text, const AnyField& field, const FieldFormat& format);

// Whether the field holds the sentinel of a text that is none of its kind.
bool IsBad(const AnyField& field);

}  // namespace Forms
