#include "model/core/characters.h"

namespace VNT {

Bytes BytesOfCharacters(const String& text, int count) {
    Bytes bytes(count, 0);
    for (int i = 0; i < std::min(count, text.Length()); ++i) bytes.At(i) = static_cast<std::uint8_t>(text[i]);
    return bytes;
}

String CharactersOfBytes(ByteRange range) {
    String text;
    for (int i = 0; i < range.Size(); ++i) text.Append(range.ByteAt(i));
    return text;
}

}  // namespace VNT
