#include "editor/field_text.h"

#include <algorithm>
#include <limits>

namespace Forms {

using namespace VNT;

namespace {

constexpr int NibbleRadix = 16;
constexpr int NibbleCount = 4;

std::u32string_view Trim(std::u32string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

int DigitOf(char32_t c) {
    if (c >= U'0' && c <= U'9') return static_cast<int>(c - U'0');
    if (c >= U'A' && c <= U'F') return static_cast<int>(c - U'A') + 10;
    if (c >= U'a' && c <= U'f') return static_cast<int>(c - U'a') + 10;
    return NibbleRadix;
}

// Digits alone, one at least; held far below what overflows.
std::int64_t ParseDigits(std::u32string_view text, int radix) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max() / 64;
    if (text.empty()) return BadNumber;
    std::int64_t number = 0;
    for (const char32_t c : text) {
        const int digit = DigitOf(c);
        if (digit >= radix || number > most) return BadNumber;
        number = number * radix + digit;
    }
    return number;
}

String PrintNumber(std::int64_t value, DecimalDigits) { return NumberText(value, 10, 0, false); }
String PrintNumber(std::int64_t value, HexDigits format) { return NumberText(value, NibbleRadix, format.least, true); }
String PrintNumber(std::int64_t value, DottedNibbles) {
    String text;
    for (std::int64_t unit = 0x1000; unit > 0; unit /= NibbleRadix) {
        text += NumberText(value / unit % NibbleRadix, 10, 0, false);
        if (unit > 1) text.Append(U'.');
    }
    return text;
}

// A text box ends at a null character, and takes no other control character: it shows their pictures.
constexpr char32_t Pictures = U'\u2400';
constexpr char32_t ControlCount = 0x20;

String Move(const String& text, char32_t from, char32_t to) {
    std::u32string moved(text.View());
    for (char32_t& c : moved) {
        if (c >= from && c < from + ControlCount) c = c - from + to;
    }
    return String(moved);
}

template <class Format>
concept IsOfNumber = requires(const Format& format) {
    ParseNumber(String(), format);
};

}  // namespace

String PrintField(const AnyField& field, const FieldFormat& format) {
    switch (field.GetKind()) {
        case FieldKind::Decimal:
            return DecimalToText(field.GetDecimal(), std::get<DecimalFormat>(format));
        case FieldKind::Text:
            return Move(field.GetText(), U'\0', Pictures);
        case FieldKind::Data:
            return HexText(field.GetData());
        default:
            break;
    }
    const std::int64_t number = field.GetNumber();
    if (number == Undefined) return {};
    return std::visit(
        [number](const auto& of) -> String {
            if constexpr (IsOfNumber<std::decay_t<decltype(of)>>) return PrintNumber(number, of);
            return {};
        },
        format);
}

std::int64_t ParseNumber(const String& text, DecimalDigits) {
    std::u32string_view digits = Trim(text);
    if (digits.empty()) return Undefined;
    const bool negative = digits.front() == U'-';
    if (negative || digits.front() == U'+') digits.remove_prefix(1);
    const std::int64_t number = ParseDigits(digits, 10);
    if (!negative || number == BadNumber) return number;
    return -number == Undefined ? BadNumber : -number;
}

std::int64_t ParseNumber(const String& text, HexDigits format) {
    const std::u32string_view digits = Trim(text);
    if (digits.empty()) return Undefined;
    return static_cast<int>(digits.size()) < format.least ? BadNumber : ParseDigits(digits, NibbleRadix);
}

std::int64_t ParseNumber(const String& text, DottedNibbles) {
    std::u32string_view rest = Trim(text);
    if (rest.empty()) return Undefined;
    std::int64_t packed = 0;
    for (int i = 0; i < NibbleCount; ++i) {
        const std::size_t point = i < NibbleCount - 1 ? rest.find(U'.') : rest.size();
        if (point == std::u32string_view::npos) return BadNumber;
        const std::int64_t number = ParseDigits(rest.substr(0, point), 10);
        if (number < 0 || number >= NibbleRadix) return BadNumber;
        packed = packed * NibbleRadix + number;
        rest.remove_prefix(std::min(point + 1, rest.size()));
    }
    return packed;
}

bool ParseField(const String& text, const AnyField& field, const FieldFormat& format) {
    switch (field.GetKind()) {
        case FieldKind::Decimal:
            if (TextToDecimal(text, field.GetDecimal())) return true;
            field.GetDecimal() = BadDecimal;
            return false;
        case FieldKind::Text:
            field.GetText() = Move(text, Pictures, U'\0');
            return true;
        case FieldKind::Data:
            return HexFromText(text, field.GetData());
        default:
            break;
    }
    const std::int64_t number = std::visit(
        [&text](const auto& of) -> std::int64_t {
            if constexpr (IsOfNumber<std::decay_t<decltype(of)>>) return ParseNumber(text, of);
            return BadNumber;
        },
        format);
    if (number != BadNumber && field.SetNumber(number)) return true;
    // What the field can't hold is as bad as what is no number.
    field.SetNumber(BadNumber);
    return false;
}

bool IsBad(const AnyField& field) {
    if (field.GetKind() == FieldKind::Decimal) return field.GetDecimal() == BadDecimal;
    return field.GetKind() == FieldKind::Number && field.GetNumber() == BadNumber;
}

}  // namespace Forms
