#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "model/core/bytes.h"
#include "model/core/decimal.h"
#include "model/core/text_string.h"

namespace VNT {

// Templates with placeholders in braces, filled from a table. No text is put together by hand anywhere else.

// Text of a Decimal: digits below `decimals` are dropped, at most `maxLength` characters are kept (a "." that then
// stands last goes), and with `trimZeros` zeros behind the point go. Undefined gives the empty text.
struct DecimalFormat {
    int decimals = 0;
    int maxLength = 21;
    bool trimZeros = false;
};

// A placeholder, braces included ("{type}"), as a table looks it up. What there is to find out about a literal is found
// out when it is compiled.
class TextKey {
public:
    template <std::size_t n>
    consteval TextKey(const char32_t (&literal)[n]) : TextKey(std::u32string_view(literal, n - 1), Unknown()) {}
    TextKey(std::u32string_view key) : TextKey(key, Unknown()) {}

    // One that is known to be plain, whose mark has been made on the way.
    TextKey(std::u32string_view key, std::uint32_t made) : text(key), mark(made), isPlain(true) {}

    static constexpr std::uint32_t NextMark(std::uint32_t mark, char32_t character) { return mark * 31 + character; }

    std::u32string_view text;
    std::uint32_t mark;  // differs for most keys
    bool isPlain;        // a pair of braces with none between them

private:
    struct Unknown {};
    constexpr TextKey(std::u32string_view key, Unknown) : text(key), mark(MarkOf(key)), isPlain(IsPlain(key)) {}
    static constexpr std::uint32_t MarkOf(std::u32string_view key) {
        std::uint32_t mark = 0;
        for (const char32_t character : key) mark = NextMark(mark, character);
        return mark;
    }
    static constexpr bool IsPlain(std::u32string_view key) {
        return key.size() > 1 && key[0] == U'{' && key.back() == U'}' && key.find_first_of(U"{}", 1) == key.size() - 1;
    }
};

// A map from placeholder to text, number or decimal. Most of what an item tells is asked for by no template, so that a
// number becomes text only where one does.
class TextTable {
public:
    TextTable();
    TextTable(const TextTable& other);
    TextTable& operator=(const TextTable& other);
    ~TextTable();
    // A literal, or a text that outlives the table.
    void Set(const TextKey& key, std::u32string_view text);
    void Set(const TextKey& key, const char32_t* text) { Set(key, std::u32string_view(text)); }
    void Set(const TextKey& key, String value);
    void Set(const TextKey& key, std::int64_t number);
    void Set(const TextKey& key, Decimal number, const DecimalFormat& format);

    // All of them, sorted by code point: the order in which `Replace` takes them.
    std::vector<std::pair<std::u32string_view, String>> Rows() const;

private:
    friend class TextExpansion;
    enum class Form : std::uint8_t { View, Owned, Number, Decimal };
    struct Row {
        std::u32string_view key;
        std::u32string_view view;
        std::int64_t number;  // or which of `owned_`
        DecimalFormat format;
        std::uint32_t mark;
        int earlier;  // the row before it in the chain of its mark
        Form form;
    };
    static constexpr std::size_t Chains = 61;

    Row& Add(const TextKey& key, Form form);
    const Row* Find(const TextKey& key) const;  // the last that was set
    void Append(std::u32string& out, const Row& row) const;

    std::vector<Row> rows_;
    std::array<int, Chains> latest_;  // the last row of each chain
    std::vector<String> owned_;
    bool isPlain_ = true;  // all keys are
};

// At most ten passes over the keys in order, as long as a pass changes something; each key is replaced until it occurs
// no more, from the start of the text each time. Values may hold placeholders of their own. It ends and stays small
// whatever they hold: its own key is plain text in a value, and what grows beyond `MaxTextLength` is cut there.
inline constexpr int MaxTextLength = 4096;
String Replace(std::u32string_view source, const TextTable& table);

// The format of an item's one line of text.
struct TextFormat {
    std::u32string_view format = U"{type}: {description}";
    std::u32string_view emptyFormat = U"{type} is empty";
    std::u32string_view description = U"";
    std::u32string_view type = U"";
};

// Fills "{type}" and "{description}" and gives the main template, or the empty one.
String FormatText(const TextFormat& format, bool hasContent, TextTable& table);

// What a list holds and may hold.
struct ListMeasure {
    int count = 0;
    int maxCount = 0;
    int size = 0;  // bytes
    int maxSize = 0;
};

// The rows behind counts and sizes. The three formats of lists differ in `main` alone.
struct SizeTextFormat {
    std::u32string_view main = U"{sizetext}";
    std::u32string_view zeroCount = U"0 slots", oneCount = U"1 slot", manyCount = U"{count} slots";
    std::u32string_view zeroLeft = U"0 slots left", oneLeft = U"1 slot left", manyLeft = U"{countleft} slots left";
    std::u32string_view oneOver = U"1 slot over", manyOver = U"{countover} slots over";
    std::u32string_view zeroMax = U"0 slots max", oneMax = U"1 slot max", manyMax = U"{maxcount} slots max";
    std::u32string_view zeroSize = U"0 bytes", oneSize = U"1 byte", manySize = U"{size} bytes";
    std::u32string_view zeroSizeLeft = U"0 bytes left", oneSizeLeft = U"1 byte left",
                        manySizeLeft = U"{sizeleft} bytes left";
    std::u32string_view oneSizeOver = U"1 byte over", manySizeOver = U"{sizeover} bytes over";
    std::u32string_view zeroMaxSize = U"0 bytes max", oneMaxSize = U"1 byte max", manyMaxSize = U"{maxsize} bytes max";
};
struct CountTextFormat : SizeTextFormat {
    constexpr CountTextFormat() { main = U"{counttext}"; }
};
// For the size of a text or hex field: only the keys of sizes are filled.
struct SizeOnlyTextFormat : SizeTextFormat {};

void FillCountTexts(TextTable& table, const ListMeasure& measure, const SizeTextFormat& format);
void FillSizeTexts(TextTable& table, const ListMeasure& measure, const SizeTextFormat& format);

// "0 resolutions", "1 resolution", "{count} resolutions": the row for a count.
std::u32string_view ChooseByCount(int count, std::u32string_view zero, std::u32string_view one,
                                  std::u32string_view many);

// The caption of a list: `limits.Measure(list)` against `caption`.
template <class Limits, class List>
String GetListText(const Limits& limits, const List& list, const SizeTextFormat& format, std::u32string_view caption) {
    TextTable table;
    const ListMeasure measure = limits.Measure(list);
    FillCountTexts(table, measure, format);
    FillSizeTexts(table, measure, format);
    return Replace(caption, table);
}

// The caption of a text or hex field that holds `size` of `maxSize` bytes.
String GetSizeText(int size, int maxSize, std::u32string_view caption, const SizeTextFormat& format = {});

// Digits of `value` in `radix` (2 to 36), padded with "0" to at least `width` digits, "-" in front of a negative
// number; Undefined gives the empty text.
String NumberText(std::int64_t value, int radix, int width, bool uppercase);

String DecimalToText(Decimal value, const DecimalFormat& format);
// The number with exactly `decimals` digits behind the point.
String DecimalToText(Decimal value, int decimals);
// White space around the number is passed over; digits beyond the sixth decimal are dropped. The empty text gives
// Undefined and true; anything that is no number gives false and leaves `out` alone.
bool TextToDecimal(const String& text, Decimal& out);

struct HexFormat {
    int bytesPerLine = 0;   // 0: no line breaks
    int linesPerGroup = 0;  // 0: no groups
    bool uppercase = true;
    std::u32string_view prefix = U"";   // before each byte
    std::u32string_view suffix = U"";   // after each byte
    std::u32string_view between = U"";  // after every byte but the last
    std::u32string_view space = U" ";
    std::u32string_view newline = U"\n";
};
String HexText(ByteRange range, const HexFormat& format = {});
// Reads hex generously ("00 FF", "00,FF", "0x00, 0xFF", "00FF", "0 FF"). False, with `bytes` unchanged, where it is
// none.
bool HexFromText(const String& text, Bytes& bytes);

// White space of number and hex texts: blank, tab, carriage return, line feed.
bool IsBlank(char32_t character);

}  // namespace VNT
