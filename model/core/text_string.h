#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace VNT {

// The text of the model: one character per code point. Narrow text is UTF-8, wide text UTF-16 or UTF-32 by the size of
// wchar_t; what is malformed there becomes U+FFFD. Comparison is exact, by code point. What copies and destroys it is
// compiled once.
class String {
public:
    String();
    String(const String& other);
    String(String&& other) noexcept;
    String& operator=(const String& other);
    String& operator=(String&& other) noexcept;
    ~String();
    String(const char* utf8) : String(std::string_view(utf8)) {}
    String(std::string_view utf8);
    String(const wchar_t* wide) : String(std::wstring_view(wide)) {}
    String(std::wstring_view wide);
    String(const char32_t* text);
    String(std::u32string_view text);
    explicit String(std::u32string text) : text_(std::move(text)) {}

    int Length() const { return static_cast<int>(text_.size()); }
    bool IsEmpty() const { return text_.empty(); }
    char32_t operator[](int index) const { return text_[static_cast<std::size_t>(index)]; }
    void Append(char32_t character) { text_.push_back(character); }
    void Append(std::u32string_view text) { text_.append(text); }
    String operator+(const String& other) const;
    String& operator+=(const String& other);
    bool Contains(std::u32string_view part) const { return text_.find(part) != std::u32string::npos; }

    std::u32string_view View() const { return text_; }
    operator std::u32string_view() const { return text_; }
    std::u32string& Characters() { return text_; }
    std::string ToUtf8() const;
    std::wstring ToWide() const;

    auto operator<=>(const String& other) const { return text_ <=> other.text_; }
    bool operator==(const String& other) const { return text_ == other.text_; }

private:
    std::u32string text_;
};

}  // namespace VNT
