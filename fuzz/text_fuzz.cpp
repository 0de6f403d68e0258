// The text engine: it ends and stays small for any template and table, and where its guards have nothing to do it gives
// what the plain engine gives.

#include <algorithm>
#include <string>

#include "fuzz/fuzz.h"
#include "model/core/text.h"

namespace {

using namespace VNT;

constexpr std::u32string_view Keys[] = {U"{a}", U"{ab}", U"{b}", U"{c}", U"{count}", U"{d}", U"{e}", U"{text}"};
constexpr std::u32string_view Pieces[] = {U"{", U"}", U"a", U"b", U"c", U"d", U"e", U"text"};

// A run of keys and of what keys are made of, so that texts form keys where they meet; up to `most` pieces.
std::u32string TextFrom(ByteRange& input, int most) {
    std::u32string text;
    for (int i = 0; i < most && input.RemainingBits() > 0; ++i) {
        const bool isKey = input.ReadLsb(1) != 0;
        const std::uint32_t row = input.ReadLsb(3);
        text += isKey ? Keys[row] : Pieces[row];
    }
    return text;
}

// The engine without a guard, as long as it takes few steps; false beyond that.
bool ReplacePlainly(std::u32string& text, const TextTable& table) {
    constexpr int steps = 900;
    constexpr std::size_t length = 1000;
    int step = 0;
    bool changed = true;
    for (int pass = 0; pass < 10 && changed; ++pass) {
        changed = false;
        for (const auto& [key, value] : table.Rows()) {
            for (auto at = text.find(key); at != std::u32string::npos; at = text.find(key)) {
                text.replace(at, key.size(), value.View());
                if (++step > steps || text.size() > length) return false;
                changed = true;
            }
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    ByteRange input = bytes;

    TextTable table;
    for (std::uint32_t rows = input.ReadLsb(4); rows > 0; --rows) {
        const std::u32string_view key = Keys[input.ReadLsb(3)];
        const int most = static_cast<int>(input.ReadLsb(4));
        const bool isLong = input.ReadLsb(5) == 31;
        table.Set(key, isLong ? String(std::u32string(5000, U'x')) : String(TextFrom(input, most)));
    }
    const std::u32string source = TextFrom(input, MaxTextLength);

    const String result = Replace(source, table);
    Require(result.Length() <= std::max(MaxTextLength, static_cast<int>(source.size())), "the text stays small");
    Require(result == Replace(source, table), "the same twice");
    std::u32string plain = source;
    if (ReplacePlainly(plain, table)) Require(result.View() == plain, "guards change no text that ends by itself");
    return 0;
}
