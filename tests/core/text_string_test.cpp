#include "model/core/text_string.h"

#include <gtest/gtest.h>

#include "tests/print.h"

namespace VNT {

namespace {

// Whether wide characters are UTF-16, as on Windows, or whole code points.
constexpr bool WideIsUtf16 = sizeof(wchar_t) == 2;

String FromUtf8(std::string_view utf8) { return String(utf8); }

std::wstring WideUnits(std::initializer_list<unsigned> units) {
    std::wstring text;
    for (const unsigned unit : units) text.push_back(static_cast<wchar_t>(unit));
    return text;
}

}  // namespace

TEST(String, HoldsOneCharacterPerCodePoint) {
    const String text("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    ASSERT_EQ(text.Length(), 4);
    EXPECT_EQ(text[0], U'a');
    EXPECT_EQ(text[1], 0xE9u);
    EXPECT_EQ(text[2], 0x20ACu);
    EXPECT_EQ(text[3], 0x1F600u);
}

TEST(String, IsTheSameFromNarrowWideAndWholeLiterals) {
    EXPECT_EQ(String("caf\xC3\xA9 \xF0\x9F\x98\x80"), String(U"caf\u00E9 \U0001F600"));
    EXPECT_EQ(String(L"caf\u00E9 \U0001F600"), String(U"caf\u00E9 \U0001F600"));
}

TEST(String, GoesToUtf8AndBackAtTheEndsOfEveryLength) {
    for (const char32_t point : {0x0u, 0x7Fu, 0x80u, 0x7FFu, 0x800u, 0xD7FFu, 0xE000u, 0xFFFFu, 0x10000u, 0x10FFFFu}) {
        String text;
        text.Append(static_cast<char32_t>(point));
        EXPECT_EQ(FromUtf8(text.ToUtf8()), text);
        EXPECT_EQ(String(std::wstring_view(text.ToWide())), text);
    }
}

TEST(String, EveryMalformedUtf8ByteIsAReplacementCharacter) {
    EXPECT_EQ(FromUtf8("\x80"), U"\uFFFD");  // a trailing byte alone
    EXPECT_EQ(FromUtf8("\xFF"
                       "a"),
              U"\uFFFDa");                   // no byte of UTF-8
    EXPECT_EQ(FromUtf8("\xC3"), U"\uFFFD");  // cut after the lead byte
    EXPECT_EQ(FromUtf8("\xC3"
                       "a"),
              U"\uFFFDa");                             // the next character is kept
    EXPECT_EQ(FromUtf8("\xE2\x82"), U"\uFFFD\uFFFD");  // cut before the last byte
    EXPECT_EQ(FromUtf8("\xC0\x80"), U"\uFFFD\uFFFD");  // two bytes where one would do
    EXPECT_EQ(FromUtf8("\xE0\x9F\xBF"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(FromUtf8("\xF0\x8F\xBF\xBF").Length(), 4);
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");  // a surrogate
    EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80").Length(), 4);         // beyond the last code point
    EXPECT_EQ(FromUtf8("\xF5\x80\x80\x80").Length(), 4);
}

TEST(String, AnyBytesAsUtf8GiveNoMoreCharactersThanBytes) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char bytes[] = {static_cast<char>(first), static_cast<char>(second), 'x'};
            const String text(std::string_view(bytes, 3));
            ASSERT_LE(text.Length(), 3);
            ASSERT_EQ(text[text.Length() - 1], U'x');
            ASSERT_EQ(FromUtf8(text.ToUtf8()), text);
        }
    }
}

TEST(String, SurrogatesAreTheCodePointsFromD800ToDFFF) {
    for (const char32_t c : {0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000}) {
        const bool isSurrogate = c > 0xD7FF && c < 0xE000;
        const String text(std::u32string(1, c));
        EXPECT_EQ(text.ToUtf8() == "\xEF\xBF\xBD", isSurrogate) << std::hex << static_cast<int>(c);
    }
    EXPECT_EQ(FromUtf8("\xED\x9F\xBF"), String(std::u32string(1, 0xD7FF)));
    EXPECT_EQ(FromUtf8("\xED\xBF\xBF"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(FromUtf8("\xEE\x80\x80"), U"\uE000");
}

TEST(String, SurrogatesAloneAreReplacementCharacters) {
    EXPECT_EQ(String(std::wstring_view(WideUnits({0xD800}))), U"\uFFFD");
    EXPECT_EQ(String(std::wstring_view(WideUnits({0xDC00, 'a'}))), U"\uFFFDa");
    EXPECT_EQ(String(std::wstring_view(WideUnits({0xD83D, 'a'}))), U"\uFFFDa");
    EXPECT_EQ(String(std::wstring_view(WideUnits({0xDE00, 0xD83D}))), U"\uFFFD\uFFFD");
}

TEST(String, APairOfSurrogatesIsOneCharacterInUtf16) {
    const String text(std::wstring_view(WideUnits({0xD83D, 0xDE00, 'a'})));
    EXPECT_EQ(text, WideIsUtf16 ? String(U"\U0001F600a") : String(U"\uFFFD\uFFFDa"));
}

TEST(String, WhatIsNoCodePointGoesOutAsAReplacementCharacter) {
    String text;
    text.Append(static_cast<char32_t>(0xD800));
    text.Append(static_cast<char32_t>(0x110000));
    EXPECT_EQ(text.ToUtf8(), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(text.ToWide(), L"\uFFFD\uFFFD");
}

TEST(String, KeepsZeroCharacters) {
    const String text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.Length(), 3);
    EXPECT_EQ(text.ToUtf8(), std::string("a\0b", 3));
    EXPECT_EQ(text.ToWide(), std::wstring(L"a\0b", 3));
}

TEST(String, ComparesByCodePoint) {
    EXPECT_TRUE(String("Z") < String("a"));
    EXPECT_TRUE(String(U"\uFFFF") < String(U"\U00010000"));  // UTF-16 units would sort the other way
    EXPECT_FALSE(String(U"\u00E9") == String(U"e\u0301"));
    EXPECT_TRUE(String() < String("a"));
}

TEST(String, JoinsAndSearches) {
    String text("ab");
    text += String("c");
    text.Append(U"de");
    text.Append(U'f');
    EXPECT_EQ(text + String("g"), U"abcdefg");
    EXPECT_TRUE(text.Contains(U"cd"));
    EXPECT_FALSE(text.Contains(U"dc"));
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_TRUE(String().IsEmpty());
}

}  // namespace VNT
