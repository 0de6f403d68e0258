#include "model/edid/file_formats.h"

#include <algorithm>
#include <limits>

#include "model/core/text.h"

namespace VNT {

namespace {

constexpr int BytesPerRow = 16;
constexpr int MaxSkippedCharacters = 80;  // a longer line counts as several
constexpr int DatHeadingLines = 3;
constexpr int TxtAttempts = 4;
constexpr int WideOffsetsFrom = 256;  // an EDID above this size has offsets of four digits

bool IsBlankByte(int c) { return c >= 0 && IsBlank(static_cast<char32_t>(c)); }

int HexDigit(int c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// The characters of a text file from the left. A read that finds nothing of its kind fails and stays where it is.
class TextFile {
public:
    explicit TextFile(const Bytes& file) : file_(file) {}

    bool SkipLine() {
        if (at_ >= file_.Size()) return false;
        for (int i = 0; i < MaxSkippedCharacters && at_ < file_.Size(); ++i) {
            if (file_.At(at_++) == '\n') break;
        }
        return true;
    }
    // A hexadecimal number of at most `digits` digits, blanks before it skipped. What no offset can be is held.
    bool ReadHex(int digits, int& number) {
        SkipBlanks();
        int count = 0;
        for (number = 0; count < digits && HexDigit(Peek()) >= 0; ++count)
            number = std::min(number * 16 + HexDigit(file_.At(at_++)), MaxBinaryFileBytes);
        return count > 0;
    }
    // The next character that is no blank; -1 at the end.
    int ReadCharacter() {
        SkipBlanks();
        return at_ < file_.Size() ? file_.At(at_++) : -1;
    }
    Bytes Rest(int most) const { return file_.Slice(at_, most); }
    int CountBehind(int most) const { return std::max(0, file_.Size() - at_ - most); }
    // Characters that are left, without the blanks before them.
    int CountLeft() {
        SkipBlanks();
        return file_.Size() - at_;
    }

private:
    int Peek() const { return at_ < file_.Size() ? file_.At(at_) : -1; }
    void SkipBlanks() {
        while (IsBlankByte(Peek())) ++at_;
    }
    const Bytes& file_;
    int at_ = 0;
};

Bytes FromText(const String& text) {
    const std::string utf8 = text.ToUtf8();
    return Bytes(std::vector<std::uint8_t>(utf8.begin(), utf8.end()));
}

// The characters of a text: without the mark of UTF-8, its lines ending in "\n" alone.
Bytes GetText(const Bytes& file) {
    std::vector<std::uint8_t> text;
    for (int i = file.Slice(0, 3) == Bytes{0xEF, 0xBB, 0xBF} ? 3 : 0; i < file.Size(); ++i) {
        const bool isLineEnd = file.At(i) == '\r' && i + 1 < file.Size() && file.At(i + 1) == '\n';
        if (!isLineEnd) text.push_back(file.At(i));
    }
    return Bytes(text);
}

bool ParseDat(const Bytes& file, FileContent& content) {
    constexpr int anyDigits = std::numeric_limits<int>::max();
    const Bytes plain = GetText(file);
    TextFile text(plain);
    for (int line = 0; line < DatHeadingLines; ++line) {
        if (!text.SkipLine()) return false;
    }
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < MaxBinaryFileBytes; ++i) {
        if (i % BytesPerRow == 0) {
            int offset = 0;
            if (!text.ReadHex(anyDigits, offset)) break;
            if (offset != i) return false;
            const int bar = text.ReadCharacter();
            if (bar < 0) break;
            if (bar != '|') return false;
        }
        int byte = 0;
        if (!text.ReadHex(2, byte)) break;
        bytes.push_back(static_cast<std::uint8_t>(byte));
    }
    content = {Bytes(bytes), true, text.CountLeft()};
    return true;
}

// Bytes without the header of an EDID are no content: a heading may happen to be hex.
bool ParseTxt(const Bytes& file, FileContent& content, Edid& edid) {
    const Bytes plain = GetText(file);
    TextFile text(plain);
    // A heading makes the hex fail to parse: each further attempt drops one more line.
    for (int attempt = 0; attempt < TxtAttempts; ++attempt) {
        const Bytes rest = text.Rest(MaxTextFileCharacters);
        if (rest.IsEmpty()) return false;
        const auto& bytes = rest.View();
        Bytes parsed;
        if (HexFromText(String(std::u32string(bytes.begin(), bytes.end())), parsed) && edid.Read(parsed)) {
            content = {std::move(parsed), true, text.CountBehind(MaxTextFileCharacters)};
            return true;
        }
        text.SkipLine();
    }
    return false;
}

}  // namespace

bool ReadBin(const Bytes& file, Edid& edid) { return edid.Read(file.Slice(0, MaxBinaryFileBytes)); }

bool ReadDat(const Bytes& file, Edid& edid) {
    FileContent content;
    return ParseDat(file, content) && edid.Read(content.bytes);
}

bool ReadTxt(const Bytes& file, Edid& edid) {
    FileContent content;
    return ParseTxt(file, content, edid);
}

bool GetContent(const Bytes& file, FileContent& content) {
    Edid edid;
    FileContent found;
    if (ReadBin(file, edid)) {
        content = {file, false, 0};
        return true;
    }
    const bool isDat = ParseDat(file, found) && edid.Read(found.bytes);
    if (!isDat && !ParseTxt(file, found, edid)) return false;
    content = std::move(found);
    return true;
}

bool ReadAnyFormat(const Bytes& file, Edid& edid) {
    return ReadBin(file, edid) || ReadDat(file, edid) || ReadTxt(file, edid);
}

Bytes WriteBin(const Edid& edid) { return edid.GetBytes(); }

Bytes WriteDat(const Edid& edid) { return WriteDat(edid.GetBytes()); }
Bytes WriteTxt(const Edid& edid) { return WriteTxt(edid.GetBytes()); }

Bytes WriteDat(const Bytes& bytes) {
    if (bytes.IsEmpty()) return {};
    const int width = bytes.Size() > WideOffsetsFrom ? 4 : 2;
    const String blanks(std::u32string(static_cast<std::size_t>(width), U' '));
    String text = U"EDID BYTES:\n";
    text += String(U"0x") + blanks + U" 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F\n";
    text += String(U"  ") + blanks + U"------------------------------------------------\n";
    for (int offset = 0; offset < bytes.Size(); offset += BytesPerRow) {
        text += NumberText(offset, 16, width, true) + U" | " + HexText(bytes.Slice(offset, BytesPerRow)) + U"\n";
    }
    return FromText(text);
}

Bytes WriteTxt(const Bytes& bytes) {
    HexFormat format;
    format.bytesPerLine = BytesPerRow;
    return bytes.IsEmpty() ? Bytes() : FromText(HexText(bytes, format) + U"\n");
}

}  // namespace VNT
