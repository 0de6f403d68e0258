#pragma once

#include <ostream>

#include "model/core/bytes.h"
#include "model/core/decimal.h"
#include "model/core/text.h"
#include "model/core/text_string.h"

// How GoogleTest shows the model's values in a failure.
namespace VNT {

inline void PrintTo(const Bytes& bytes, std::ostream* out) { *out << "[" << HexText(bytes).ToUtf8() << "]"; }
inline void PrintTo(const String& text, std::ostream* out) { *out << "\"" << text.ToUtf8() << "\""; }
inline void PrintTo(const Decimal& value, std::ostream* out) {
    *out << (value.IsUndefined() ? "Undefined" : DecimalToText(value, 6).ToUtf8());
}

}  // namespace VNT
