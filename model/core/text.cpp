#include "model/core/text.h"

#include <algorithm>
#include <limits>
#include <map>

namespace VNT {

namespace {

constexpr int Passes = 10;
constexpr int MostReplacements = 1000;  // a line of text takes some tens
// What a detailed timing takes.
constexpr std::size_t UsualRows = 48;
constexpr std::size_t UsualLength = 64;
constexpr int NoRow = -1;

// Stands for the brace of a key that is plain text, until the engine is done. It is no code point.
constexpr char32_t HeldBrace = 0x110000;

// `value` with its own `key` as plain text: put in as it stands, it would be replaced for ever.
std::u32string HoldOwnKey(std::u32string_view value, std::u32string_view key) {
    std::u32string held(value);
    for (std::size_t at = held.find(key); at != std::u32string::npos; at = held.find(key, at)) held[at] = HeldBrace;
    return held;
}

std::u32string_view ChooseLeft(int left, std::u32string_view oneOver, std::u32string_view manyOver,
                               std::u32string_view zero, std::u32string_view one, std::u32string_view many) {
    if (left < 0) return left == -1 ? oneOver : manyOver;
    return ChooseByCount(left, zero, one, many);
}

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

int HexDigit(char32_t c) {
    if (IsDigit(c)) return static_cast<int>(c - U'0');
    if (c >= U'A' && c <= U'F') return static_cast<int>(c - U'A') + 10;
    if (c >= U'a' && c <= U'f') return static_cast<int>(c - U'a') + 10;
    return -1;
}

// Printable and neither letter nor digit; outside ASCII the signs of Latin-1 and the general punctuation block.
bool IsPunctuation(char32_t c) {
    if (c > 0x20 && c < 0x7F) return !IsDigit(c) && !(c >= U'A' && c <= U'Z') && !(c >= U'a' && c <= U'z');
    return (c >= 0xA1 && c <= 0xBF && c != 0xAA && c != 0xAD && c != 0xB5 && c != 0xBA) || c == 0xD7 || c == 0xF7 ||
           (c >= 0x2010 && c <= 0x2027) || (c >= 0x2030 && c <= 0x205E);
}

struct DigitForm {
    int radix = 10;
    int width = 0;
    bool uppercase = false;
};

void AppendDigits(std::u32string& out, std::uint64_t rest, const DigitForm& form) {
    const char32_t firstLetter = form.uppercase ? U'A' : U'a';
    const auto base = static_cast<std::uint64_t>(form.radix);
    const std::size_t start = out.size();
    do {
        const auto digit = static_cast<char32_t>(rest % base);
        out.push_back(digit < 10 ? U'0' + digit : firstLetter + (digit - 10));
        rest /= base;
    } while (rest != 0);
    while (static_cast<int>(out.size() - start) < form.width) out.push_back(U'0');
    std::reverse(out.begin() + static_cast<std::ptrdiff_t>(start), out.end());
}

void AppendNumber(std::u32string& out, std::int64_t value, const DigitForm& form) {
    if (value == Undefined) return;
    if (value < 0) out.push_back(U'-');
    AppendDigits(out, value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value), form);
}

void AppendDecimal(std::u32string& out, Decimal value, const DecimalFormat& format) {
    if (value.IsUndefined()) return;
    const std::size_t start = out.size();
    const std::int64_t count = value.Millionths();
    const std::uint64_t magnitude =
        count < 0 ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
    constexpr auto scale = static_cast<std::uint64_t>(Decimal::Scale);
    if (count < 0) out.push_back(U'-');
    AppendDigits(out, magnitude / scale, {});
    if (format.decimals > 0) {
        out.push_back(U'.');
        const std::size_t point = out.size();
        AppendDigits(out, magnitude % scale, {10, 6, false});
        out.resize(point + static_cast<std::size_t>(format.decimals), U'0');
    }
    const auto most = static_cast<std::size_t>(std::max(0, format.maxLength));
    if (out.size() - start > most) {
        out.resize(start + most);
        if (most > 0 && out.back() == U'.') out.pop_back();
    }
    if (format.trimZeros && out.find(U'.', start) != std::u32string::npos) {
        while (out.back() == U'0') out.pop_back();
        if (out.back() == U'.') out.pop_back();
    }
}

// A text read from the left; past its end every character is 0.
class Scanner {
public:
    explicit Scanner(std::u32string_view text) : text_(text) {}
    char32_t Peek(std::size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : 0; }
    char32_t Next() { return at_ < text_.size() ? text_[at_++] : 0; }
    bool AtEnd() const { return at_ >= text_.size(); }
    void SkipBlanks() {
        while (!AtEnd() && IsBlank(Peek())) ++at_;
    }

private:
    std::u32string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

TextTable::TextTable() {
    rows_.reserve(UsualRows);
    latest_.fill(NoRow);
}
TextTable::TextTable(const TextTable& other) = default;
TextTable& TextTable::operator=(const TextTable& other) = default;
TextTable::~TextTable() = default;

TextTable::Row& TextTable::Add(const TextKey& key, Form form) {
    int& latest = latest_[key.mark % Chains];
    Row& row = rows_.emplace_back();
    row.key = key.text;
    row.mark = key.mark;
    row.form = form;
    row.earlier = latest;
    latest = static_cast<int>(rows_.size()) - 1;
    isPlain_ = isPlain_ && key.isPlain;
    return row;
}

void TextTable::Set(const TextKey& key, std::u32string_view text) { Add(key, Form::View).view = text; }

void TextTable::Set(const TextKey& key, String value) {
    Add(key, Form::Owned).number = static_cast<std::int64_t>(owned_.size());
    owned_.push_back(std::move(value));
}

void TextTable::Set(const TextKey& key, std::int64_t number) { Add(key, Form::Number).number = number; }

void TextTable::Set(const TextKey& key, Decimal number, const DecimalFormat& format) {
    Row& row = Add(key, Form::Decimal);
    row.number = number.Millionths();
    row.format = format;
}

const TextTable::Row* TextTable::Find(const TextKey& key) const {
    for (int at = latest_[key.mark % Chains]; at != NoRow;) {
        const Row& row = rows_[static_cast<std::size_t>(at)];
        if (row.mark == key.mark && row.key == key.text) return &row;
        at = row.earlier;
    }
    return nullptr;
}

void TextTable::Append(std::u32string& out, const Row& row) const {
    switch (row.form) {
        case Form::View:
            out += row.view;
            break;
        case Form::Owned:
            out += owned_[static_cast<std::size_t>(row.number)].View();
            break;
        case Form::Number:
            AppendNumber(out, row.number, {});
            break;
        case Form::Decimal:
            AppendDecimal(out, Decimal::FromMillionths(row.number), row.format);
            break;
    }
}

std::vector<std::pair<std::u32string_view, String>> TextTable::Rows() const {
    std::map<std::u32string_view, String> sorted;
    for (const Row& row : rows_) {
        std::u32string text;
        Append(text, row);
        sorted[row.key] = String(std::move(text));
    }
    return {sorted.begin(), sorted.end()};
}

// What `Replace` gives, in one run over the source, where keys and braces of texts are such that the order of replacing
// makes no difference: nearly always.
class TextExpansion {
public:
    TextExpansion(const TextTable& table, std::u32string& out) : table_(table), out_(out) {}
    // False, with `out` half done, if it is not so.
    bool Run(std::u32string_view source) {
        room_ = MostLength(source);
        return table_.isPlain_ && Expand(source, 0);
    }
    static std::size_t MostLength(std::u32string_view source) {
        return std::max(source.size(), static_cast<std::size_t>(MaxTextLength));
    }

private:
    bool Expand(std::u32string_view text, int depth) {
        // What was cut on the way can only be told by going it.
        if (depth >= Passes || text.size() > room_) return false;
        room_ -= text.size();
        std::size_t at = 0;
        while (at < text.size()) {
            const std::size_t start = at;
            while (at < text.size() && !IsBrace(text[at])) ++at;
            out_ += text.substr(start, at - start);
            if (at == text.size()) break;
            if (text[at] != U'{') return false;
            const std::size_t open = at;
            std::uint32_t mark = TextKey::NextMark(0, text[at]);
            for (++at; at < text.size() && !IsBrace(text[at]); ++at) mark = TextKey::NextMark(mark, text[at]);
            if (at == text.size() || text[at] != U'}') return false;
            mark = TextKey::NextMark(mark, text[at++]);
            if (!Put(TextKey(text.substr(open, at - open), mark), depth)) return false;
        }
        return true;
    }
    static bool IsBrace(char32_t character) { return character == U'{' || character == U'}' || character == HeldBrace; }
    bool Put(const TextKey& key, int depth) {
        const TextTable::Row* row = table_.Find(key);
        if (row == nullptr) {
            out_ += key.text;
            return true;
        }
        if (--replacementsLeft_ < 0) return false;
        if (row->form == TextTable::Form::View) return Expand(row->view, depth + 1);
        if (row->form == TextTable::Form::Owned)
            return Expand(table_.owned_[static_cast<std::size_t>(row->number)], depth + 1);
        const std::size_t before = out_.size();
        table_.Append(out_, *row);
        const std::size_t length = out_.size() - before;
        if (length > room_) return false;
        room_ -= length;
        return true;
    }

    const TextTable& table_;
    std::u32string& out_;
    std::size_t room_ = 0;
    int replacementsLeft_ = MostReplacements;
};

namespace {

String ReplaceInPasses(std::u32string_view source, const TextTable& table) {
    const auto rows = table.Rows();
    const std::size_t mostLength = TextExpansion::MostLength(source);
    int replacementsLeft = MostReplacements;
    std::u32string text(source);
    bool changed = true;
    for (int pass = 0; pass < Passes && changed; ++pass) {
        changed = false;
        for (const auto& [key, plainValue] : rows) {
            std::size_t at = text.find(key);
            if (at == std::u32string::npos) continue;
            const std::u32string value = HoldOwnKey(plainValue.View(), key);
            for (; at != std::u32string::npos && replacementsLeft > 0; at = text.find(key)) {
                text.replace(at, key.size(), value);
                if (text.size() > mostLength) text.resize(mostLength);
                --replacementsLeft;
                changed = true;
            }
        }
    }
    std::replace(text.begin(), text.end(), HeldBrace, U'{');
    return String(std::move(text));
}

}  // namespace

String Replace(std::u32string_view source, const TextTable& table) {
    std::u32string text;
    text.reserve(UsualLength);
    if (TextExpansion(table, text).Run(source)) return String(std::move(text));
    return ReplaceInPasses(source, table);
}

String FormatText(const TextFormat& format, bool hasContent, TextTable& table) {
    table.Set(U"{type}", format.type);
    table.Set(U"{description}", format.description);
    return Replace(hasContent ? format.format : format.emptyFormat, table);
}

std::u32string_view ChooseByCount(int count, std::u32string_view zero, std::u32string_view one,
                                  std::u32string_view many) {
    return count == 0 ? zero : count == 1 ? one : many;
}

void FillCountTexts(TextTable& table, const ListMeasure& measure, const SizeTextFormat& f) {
    const int left = measure.maxCount - measure.count;
    table.Set(U"{count}", measure.count);
    table.Set(U"{countleft}", left);
    table.Set(U"{countover}", -left);
    table.Set(U"{maxcount}", measure.maxCount);
    table.Set(U"{counttext}", ChooseByCount(measure.count, f.zeroCount, f.oneCount, f.manyCount));
    table.Set(U"{countlefttext}", ChooseLeft(left, f.oneOver, f.manyOver, f.zeroLeft, f.oneLeft, f.manyLeft));
    table.Set(U"{maxcounttext}", ChooseByCount(measure.maxCount, f.zeroMax, f.oneMax, f.manyMax));
}

void FillSizeTexts(TextTable& table, const ListMeasure& measure, const SizeTextFormat& f) {
    const int left = measure.maxSize - measure.size;
    table.Set(U"{size}", measure.size);
    table.Set(U"{sizeleft}", left);
    table.Set(U"{sizeover}", -left);
    table.Set(U"{maxsize}", measure.maxSize);
    table.Set(U"{sizetext}", ChooseByCount(measure.size, f.zeroSize, f.oneSize, f.manySize));
    table.Set(U"{sizelefttext}",
              ChooseLeft(left, f.oneSizeOver, f.manySizeOver, f.zeroSizeLeft, f.oneSizeLeft, f.manySizeLeft));
    table.Set(U"{maxsizetext}", ChooseByCount(measure.maxSize, f.zeroMaxSize, f.oneMaxSize, f.manyMaxSize));
}

String GetSizeText(int size, int maxSize, std::u32string_view caption, const SizeTextFormat& format) {
    TextTable table;
    FillSizeTexts(table, {0, 0, size, maxSize}, format);
    return Replace(caption, table);
}

String NumberText(std::int64_t value, int radix, int width, bool uppercase) {
    std::u32string text;
    AppendNumber(text, value, {std::clamp(radix, 2, 36), width, uppercase});
    return String(std::move(text));
}

String DecimalToText(Decimal value, const DecimalFormat& format) {
    std::u32string text;
    AppendDecimal(text, value, format);
    return String(std::move(text));
}

String DecimalToText(Decimal value, int decimals) {
    return DecimalToText(value, DecimalFormat{decimals, std::numeric_limits<int>::max(), false});
}

bool TextToDecimal(const String& text, Decimal& out) {
    Scanner scan(text.View());
    scan.SkipBlanks();
    if (scan.AtEnd()) {
        out = Decimal::Undefined();
        return true;
    }
    const bool negative = scan.Peek() == U'-';
    if (negative || scan.Peek() == U'+') scan.Next();
    if (!IsDigit(scan.Peek()) && !(scan.Peek() == U'.' && IsDigit(scan.Peek(1)))) return false;
    Decimal value;
    while (IsDigit(scan.Peek())) value = value * 10 + Decimal(static_cast<std::int64_t>(scan.Next() - U'0'));
    if (scan.Peek() == U'.') {
        scan.Next();
        std::int64_t unit = Decimal::Scale;
        while (IsDigit(scan.Peek())) {
            unit /= 10;  // 0 from the seventh digit on
            value = value + Decimal::FromMillionths(unit * static_cast<std::int64_t>(scan.Next() - U'0'));
        }
    }
    scan.SkipBlanks();
    if (!scan.AtEnd()) return false;
    out = negative ? -value : value;
    return true;
}

String HexText(ByteRange range, const HexFormat& format) {
    std::u32string text;
    int onLine = 0;
    int lines = 0;
    for (int i = 0; i < range.Size(); ++i) {
        if (i > 0) {
            text += format.between;
            if (format.bytesPerLine > 0 && onLine == format.bytesPerLine) {
                text += format.newline;
                onLine = 0;
                if (format.linesPerGroup > 0 && ++lines == format.linesPerGroup) {
                    text += format.newline;
                    lines = 0;
                }
            } else {
                text += format.space;
            }
        }
        text += format.prefix;
        AppendDigits(text, range.ByteAt(i), {16, 2, format.uppercase});
        text += format.suffix;
        ++onLine;
    }
    return String(std::move(text));
}

bool HexFromText(const String& text, Bytes& bytes) {
    Scanner scan(text.View());
    std::vector<std::uint8_t> read;
    for (;;) {
        scan.SkipBlanks();
        if (scan.AtEnd()) break;
        if (scan.Peek() == U'0' && (scan.Peek(1) == U'x' || scan.Peek(1) == U'X')) {
            scan.Next();
            scan.Next();
        }
        if (HexDigit(scan.Peek()) < 0) return false;
        if (HexDigit(scan.Peek(1)) < 0) {
            read.push_back(static_cast<std::uint8_t>(HexDigit(scan.Next())));
        } else {
            while (HexDigit(scan.Peek()) >= 0 && HexDigit(scan.Peek(1)) >= 0) {
                const int high = HexDigit(scan.Next());
                read.push_back(static_cast<std::uint8_t>(high * 16 + HexDigit(scan.Next())));
            }
            if (HexDigit(scan.Peek()) >= 0) return false;
        }
        if (IsPunctuation(scan.Peek())) scan.Next();
    }
    bytes = Bytes(read);
    return true;
}

bool IsBlank(char32_t c) { return c == U' ' || c == U'\t' || c == U'\r' || c == U'\n'; }

}  // namespace VNT
