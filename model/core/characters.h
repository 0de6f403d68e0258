#pragma once

#include <algorithm>

#include "model/core/bytes.h"
#include "model/core/text_string.h"

namespace VNT {

// Text whose bytes are its characters' codes, 0 to 255, all of them kept.
inline bool AreBytes(const String& text) {
    const std::u32string_view characters = text.View();
    return std::all_of(characters.begin(), characters.end(), [](char32_t c) { return c <= 0xFF; });
}
Bytes BytesOfCharacters(const String& text, int count);  // zeros behind the text, up to `count` bytes
String CharactersOfBytes(ByteRange range);

namespace Detail {
inline void SetCharacters(String& text, ByteRange read) { text = CharactersOfBytes(read); }
}  // namespace Detail

// `count` bytes that hold just as many characters.
template <class IO>
void MapCharacters(IO& io, const char* name, int count, auto& text) {
    io.ThroughData(
        count, [&] { return BytesOfCharacters(text, count); }, [&](auto read) { Detail::SetCharacters(text, read); });
    const bool fits = AreBytes(text);
    io.Value(name, text, fits && text.Length() == count, fits && text.Length() <= count);
}

}  // namespace VNT
