#pragma once

#include <cstdint>

#include "model/core/bytes.h"
#include "model/core/text_string.h"

namespace VNT {

// Code page 437, the character set of EDID texts. Bytes 1 to 31 and 127 are its graphics; byte 0 is U+0000, so that
// every byte has a character of its own and the table inverts.
String TextFromCodePage437(ByteRange bytes);
// The byte of a character, or -1 if the code page has none.
int CodePage437Byte(char32_t character);
// The bytes of a text; a character that the code page lacks becomes "?".
Bytes CodePage437FromText(const String& text);

}  // namespace VNT
