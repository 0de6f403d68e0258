#include "model/core/text_string.h"

namespace VNT {

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr char32_t LastCodePoint = 0x10FFFF;

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

// The point itself where it is one that text in another form can carry.
char32_t Transferable(char32_t point) { return point > LastCodePoint || IsSurrogate(point) ? Replacement : point; }

struct Lead {
    int length;      // bytes of the sequence; 0: no lead byte
    char32_t bits;   // payload of the lead byte
    char32_t least;  // the first code point that needs this length
};

Lead ReadLead(unsigned char byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0) return {2, byte - 0xC0u, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return {3, byte - 0xE0u, 0x800};
    if (byte >= 0xF0 && byte < 0xF5) return {4, byte - 0xF0u, 0x10000};
    return {0, 0, 0};
}

// The code point at `at`, which moves behind it; a malformed sequence costs one byte.
char32_t NextUtf8(std::string_view utf8, std::size_t& at) {
    const Lead lead = ReadLead(static_cast<unsigned char>(utf8[at]));
    char32_t point = lead.bits;
    bool good = lead.length > 0 && at + static_cast<std::size_t>(lead.length) <= utf8.size();
    for (int i = 1; good && i < lead.length; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[at + static_cast<std::size_t>(i)]);
        good = byte >= 0x80 && byte < 0xC0;
        point = point * 64 + (byte - 0x80u);
    }
    good = good && point >= lead.least && Transferable(point) == point;
    at += good ? static_cast<std::size_t>(lead.length) : 1;
    return good ? point : Replacement;
}

void AppendUtf8(std::string& out, char32_t point) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 + point / 64);
        put(0x80 + point % 64);
    } else if (point < 0x10000) {
        put(0xE0 + point / 4096);
        put(0x80 + point / 64 % 64);
        put(0x80 + point % 64);
    } else {
        put(0xF0 + point / 262144);
        put(0x80 + point / 4096 % 64);
        put(0x80 + point / 64 % 64);
        put(0x80 + point % 64);
    }
}

}  // namespace

String::String(std::string_view utf8) {
    text_.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) text_.push_back(NextUtf8(utf8, at));
}

String::String(std::wstring_view wide) {
    text_.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        auto unit = static_cast<char32_t>(wide[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            const char32_t next = i + 1 < wide.size() ? static_cast<char32_t>(wide[i + 1]) : 0;
            if (unit >= 0xD800 && unit < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
                unit = 0x10000 + (unit - 0xD800) * 1024 + (next - 0xDC00);
                ++i;
            }
        }
        text_.push_back(Transferable(unit));
    }
}

std::string String::ToUtf8() const {
    std::string out;
    out.reserve(text_.size());
    for (const char32_t point : text_) AppendUtf8(out, Transferable(point));
    return out;
}

std::wstring String::ToWide() const {
    std::wstring out;
    out.reserve(text_.size());
    for (const char32_t held : text_) {
        const char32_t point = Transferable(held);
        if (sizeof(wchar_t) == 2 && point >= 0x10000) {
            out.push_back(static_cast<wchar_t>(0xD800 + (point - 0x10000) / 1024));
            out.push_back(static_cast<wchar_t>(0xDC00 + (point - 0x10000) % 1024));
        } else {
            out.push_back(static_cast<wchar_t>(point));
        }
    }
    return out;
}

String::String() = default;
String::String(const String& other) = default;
String::String(String&& other) noexcept = default;
String& String::operator=(const String& other) = default;
String& String::operator=(String&& other) noexcept = default;
String::~String() = default;
String::String(const char32_t* text) : text_(text) {}
String::String(std::u32string_view text) : text_(text) {}

String String::operator+(const String& other) const { return String(text_ + other.text_); }
String& String::operator+=(const String& other) {
    text_ += other.text_;
    return *this;
}

}  // namespace VNT
