// The hex parser and the hex text: whatever is read comes back the same from its own text, in any format.

#include "fuzz/fuzz.h"
#include "model/core/text.h"

namespace {

using namespace VNT;

// What a format may put around bytes without hiding them from the parser.
HexFormat FormatFrom(ByteRange& input) {
    constexpr std::u32string_view prefixes[] = {U"", U"0x", U"0X"};
    constexpr std::u32string_view separators[] = {U"", U",", U";", U"-"};
    constexpr std::u32string_view spaces[] = {U" ", U"\t", U"\r\n"};
    HexFormat format;
    format.bytesPerLine = static_cast<int>(input.ReadLsb(4));
    format.linesPerGroup = static_cast<int>(input.ReadLsb(4));
    format.uppercase = input.ReadLsb(1) != 0;
    format.prefix = prefixes[input.ReadLsb(8) % std::size(prefixes)];
    format.between = separators[input.ReadLsb(8) % std::size(separators)];
    format.space = spaces[input.ReadLsb(8) % std::size(spaces)];
    return format;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));

    ByteRange input = bytes;
    const HexFormat format = FormatFrom(input);
    const Bytes shown(input.TakeRest());
    Bytes back;
    Require(HexFromText(HexText(shown, format), back) && back == shown, "bytes come back from their text");

    const Bytes untouched{0x5A};
    Bytes read = untouched;
    const String text(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!HexFromText(text, read)) {
        Require(read == untouched, "a text that is no hex leaves the bytes alone");
        return 0;
    }
    Require(static_cast<std::size_t>(read.Size()) <= size, "each byte takes a character at least");
    Require(HexFromText(HexText(read), back) && back == read, "what is read comes back from its text");
    return 0;
}
