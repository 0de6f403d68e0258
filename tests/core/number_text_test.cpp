#include <gtest/gtest.h>
#include <random>

#include "model/core/text.h"
#include "tests/print.h"

// The texts of numbers and bytes, out and in.
namespace VNT {

namespace {

Decimal Parsed(const String& text) {
    Decimal value = Decimal::FromMillionths(12345);
    EXPECT_TRUE(TextToDecimal(text, value)) << text.ToUtf8();
    return value;
}

bool IsRefused(const String& text) {
    const Decimal before = Decimal::FromMillionths(12345);
    Decimal value = before;
    const bool taken = TextToDecimal(text, value);
    EXPECT_EQ(value, taken ? value : before);
    return !taken;
}

Bytes ParsedHex(const String& text) {
    Bytes bytes{0x5A};
    EXPECT_TRUE(HexFromText(text, bytes)) << text.ToUtf8();
    return bytes;
}

bool IsNoHex(const String& text) {
    Bytes bytes{0x5A};
    const bool taken = HexFromText(text, bytes);
    EXPECT_TRUE(taken || bytes == Bytes{0x5A}) << text.ToUtf8();
    return !taken;
}

}  // namespace

TEST(NumberText, PadsToItsWidthInItsRadix) {
    EXPECT_EQ(NumberText(255, 16, 4, true), U"00FF");
    EXPECT_EQ(NumberText(255, 16, 4, false), U"00ff");
    EXPECT_EQ(NumberText(255, 16, 0, true), U"FF");
    EXPECT_EQ(NumberText(0x12345, 16, 4, true), U"12345");
    EXPECT_EQ(NumberText(5, 2, 8, false), U"00000101");
    EXPECT_EQ(NumberText(35, 36, 0, true), U"Z");
}

TEST(NumberText, PutsTheSignInFrontOfThePadding) {
    EXPECT_EQ(NumberText(-5, 10, 0, false), U"-5");
    EXPECT_EQ(NumberText(-5, 10, 3, false), U"-005");
}

TEST(NumberText, HasADigitForZero) {
    EXPECT_EQ(NumberText(0, 10, 0, false), U"0");
    EXPECT_EQ(NumberText(0, 10, 3, false), U"000");
}

TEST(NumberText, ReachesBothEnds) {
    EXPECT_EQ(NumberText(INT64_MAX, 10, 0, false), U"9223372036854775807");
    EXPECT_EQ(NumberText(INT64_MIN, 10, 0, false), U"-9223372036854775808");
    EXPECT_EQ(NumberText(INT64_MIN, 16, 0, true), U"-8000000000000000");
}

TEST(NumberText, HoldsItsRadixWithinTwoToThirtySix) {
    EXPECT_EQ(NumberText(5, 0, 0, false), NumberText(5, 2, 0, false));
    EXPECT_EQ(NumberText(35, 99, 0, true), U"Z");
}

TEST(NumberText, UndefinedIsEmpty) { EXPECT_EQ(NumberText(Undefined, 10, 4, false), U""); }

TEST(DecimalToText, HasThatManyDigitsBehindThePoint) {
    EXPECT_EQ(DecimalToText(Decimal(14850, 2), 2), U"148.50");
    EXPECT_EQ(DecimalToText(Decimal(14850, 2), 6), U"148.500000");
    EXPECT_EQ(DecimalToText(Decimal(7), 3), U"7.000");
    EXPECT_EQ(DecimalToText(Decimal(5, 2), 2), U"0.05");
}

TEST(DecimalToText, DecimalsBeyondTheSixthAreZeros) {
    EXPECT_EQ(DecimalToText(Decimal(1, 6), 9), U"0.000001000");
    EXPECT_EQ(DecimalToText(Decimal(1, 6), 100).Length(), 102);
}

TEST(DecimalToText, HasNoPointWithoutDecimals) {
    EXPECT_EQ(DecimalToText(Decimal(1489, 1), 0), U"148");
    EXPECT_EQ(DecimalToText(Decimal(1489, 1), -1), U"148");
}

TEST(DecimalToText, DropsFurtherDigitsWithoutRounding) {
    EXPECT_EQ(DecimalToText(Decimal(599999, 4), 3), U"59.999");
    EXPECT_EQ(DecimalToText(Decimal(-599999, 4), 3), U"-59.999");
}

TEST(DecimalToText, NegativeNumbersHaveTheirSignInFront) {
    EXPECT_EQ(DecimalToText(Decimal(-5, 1), 1), U"-0.5");
    EXPECT_EQ(DecimalToText(Decimal(-5), 0), U"-5");
}

TEST(DecimalToText, UndefinedIsEmpty) {
    EXPECT_EQ(DecimalToText(Decimal::Undefined(), 3), U"");
    EXPECT_EQ(DecimalToText(Decimal::Undefined(), DecimalFormat{3, 21, true}), U"");
}

TEST(DecimalToText, ReachesBothEnds) {
    EXPECT_EQ(DecimalToText(Decimal::FromMillionths(INT64_MAX), 6), U"9223372036854.775807");
    EXPECT_EQ(DecimalToText(Decimal::FromMillionths(-INT64_MAX), 6), U"-9223372036854.775807");
}

TEST(DecimalFormat, CutsToItsMaximumLengthAndDropsAPointThatThenStandsLast) {
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, 7, false}), U"123.456");
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, 6, false}), U"123.45");
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, 4, false}), U"123");
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, 2, false}), U"12");
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, 0, false}), U"");
    EXPECT_EQ(DecimalToText(Decimal(123456, 3), DecimalFormat{3, -1, false}), U"");
}

TEST(DecimalFormat, TrimsZerosBehindThePointAndThenThePoint) {
    EXPECT_EQ(DecimalToText(Decimal(14850, 2), DecimalFormat{3, 21, true}), U"148.5");
    EXPECT_EQ(DecimalToText(Decimal(60), DecimalFormat{3, 21, true}), U"60");
    EXPECT_EQ(DecimalToText(Decimal(60), DecimalFormat{0, 21, true}), U"60");
    EXPECT_EQ(DecimalToText(Decimal(0), DecimalFormat{3, 21, true}), U"0");
}

TEST(DecimalFormat, TrimsWhatTheCutLeaves) {
    EXPECT_EQ(DecimalToText(Decimal(100004, 3), DecimalFormat{3, 6, true}), U"100");
    EXPECT_EQ(DecimalToText(Decimal(100004, 3), DecimalFormat{3, 4, true}), U"100");
    EXPECT_EQ(DecimalToText(Decimal(100004, 3), DecimalFormat{3, 2, true}), U"10");
}

TEST(TextToDecimal, ReadsWholeNumbersAndFractions) {
    EXPECT_EQ(Parsed(U"3"), Decimal(3));
    EXPECT_EQ(Parsed(U"3."), Decimal(3));
    EXPECT_EQ(Parsed(U".5"), Decimal(5, 1));
    EXPECT_EQ(Parsed(U"148.50"), Decimal(1485, 1));
    EXPECT_EQ(Parsed(U"007"), Decimal(7));
}

TEST(TextToDecimal, DropsFurtherDigitsWithoutRounding) {
    EXPECT_EQ(Parsed(U"1.1234567"), Decimal(1123456, 6));
    EXPECT_EQ(Parsed(U"1.2345678"), Decimal(1234567, 6));
    EXPECT_EQ(Parsed(U"-1.9999999999"), Decimal(-1999999, 6));
}

TEST(TextToDecimal, TakesOneSign) {
    EXPECT_EQ(Parsed(U"+2"), Decimal(2));
    EXPECT_EQ(Parsed(U"-2.5"), Decimal(-25, 1));
    EXPECT_EQ(Parsed(U"-.5"), Decimal(-5, 1));
    EXPECT_TRUE(IsRefused(U"--2"));
    EXPECT_TRUE(IsRefused(U"+-2"));
    EXPECT_TRUE(IsRefused(U"- 2"));
    EXPECT_TRUE(IsRefused(U"2-"));
}

TEST(TextToDecimal, TheEmptyTextIsUndefined) {
    EXPECT_TRUE(Parsed(U"").IsUndefined());
    EXPECT_TRUE(Parsed(U" \t\r\n").IsUndefined());
}

TEST(TextToDecimal, PassesOverWhiteSpaceAroundTheNumber) {
    EXPECT_EQ(Parsed(U" \t\r\n60 \t\r\n"), Decimal(60));
    EXPECT_TRUE(IsRefused(U"1 2"));
    EXPECT_TRUE(IsRefused(U"1 .5"));
    EXPECT_TRUE(IsRefused(U"\u00A060"));
}

TEST(TextToDecimal, RefusesWhatIsNoNumber) {
    for (const char* text : {".", "-", "+.", "abc", "1a", "1..2", "1.2.3", "1,5", "0x10", "1e3", "\xEF\xBC\x91"}) {
        EXPECT_TRUE(IsRefused(text)) << text;
    }
}

TEST(TextToDecimal, HoldsWhatIsTooLargeAtTheEnds) {
    EXPECT_EQ(Parsed(U"9223372036854.775807").Millionths(), INT64_MAX);
    EXPECT_EQ(Parsed(U"9223372036854.775808").Millionths(), INT64_MAX);
    EXPECT_EQ(Parsed(U"99999999999999999999999999.5").Millionths(), INT64_MAX);
    EXPECT_EQ(Parsed(U"-99999999999999999999999999.5").Millionths(), -INT64_MAX);
}

TEST(TextToDecimal, ReadsTheNumberOfTheIntUndefinedAsANumber) {
    EXPECT_EQ(Parsed(U"-2147483648").Millionths(), std::int64_t{-2147483648} * 1000000);
}

TEST(TextToDecimal, ReadsBackEveryText) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 2000; ++i) {
        const Decimal value = Decimal::FromMillionths(static_cast<std::int64_t>(random()) / PowerOfTen(i % 18));
        EXPECT_EQ(Parsed(DecimalToText(value, 6)), value);
        EXPECT_EQ(Parsed(DecimalToText(value, DecimalFormat{6, 21, true})), value);
    }
}

TEST(HexText, ANewFormatHasUpperCasePairsBetweenBlanks) {
    EXPECT_EQ(HexText(Bytes{0x00, 0xAB, 0xFF}), U"00 AB FF");
    EXPECT_EQ(HexText(Bytes{0x5A}), U"5A");
    EXPECT_EQ(HexText(Bytes()), U"");
}

TEST(HexText, PutsItsPartsAroundEveryByte) {
    HexFormat format;
    format.uppercase = false;
    format.prefix = U"0x";
    format.suffix = U"h";
    format.between = U",";
    EXPECT_EQ(HexText(Bytes{0x00, 0xAB}, format), U"0x00h, 0xabh");
}

TEST(HexText, BreaksLinesAndGroups) {
    HexFormat format;
    format.bytesPerLine = 2;
    format.linesPerGroup = 2;
    format.between = U",";
    EXPECT_EQ(HexText(Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9}, format), U"01, 02,\n03, 04,\n\n05, 06,\n07, 08,\n\n09");
    format.linesPerGroup = 0;
    EXPECT_EQ(HexText(Bytes{1, 2, 3, 4, 5}, format), U"01, 02,\n03, 04,\n05");
}

TEST(HexText, AGroupMayHaveOneLine) {
    HexFormat format;
    format.bytesPerLine = format.linesPerGroup = 1;
    EXPECT_EQ(HexText(Bytes{1, 2, 3}, format), U"01\n\n02\n\n03");
}

TEST(HexText, GroupsNeedLines) {
    HexFormat format;
    format.linesPerGroup = 1;
    EXPECT_EQ(HexText(Bytes{1, 2, 3}, format), U"01 02 03");
}

TEST(HexText, ShowsTheWholeRangeWhateverTheCursor) {
    ByteRange range = Bytes{1, 2};
    const Bytes bytes{1, 2};
    range = bytes;
    range.Skip(9);
    EXPECT_EQ(HexText(range), U"01 02");
}

TEST(HexFromText, ReadsManyWritings) {
    for (const char* text : {"00 FF", "00,FF", "0x00, 0xFF", "00FF", "0 FF", "00 ff", "0X00\t0Xff", "\r\n 00-FF \r\n",
                             "0x00,0xFF,", "0x00FF", "0;ff", "00:FF.",
                             "00\xE2\x80\x93"
                             "FF"}) {
        EXPECT_EQ(ParsedHex(text), (Bytes{0x00, 0xFF})) << text;
    }
}

TEST(HexFromText, PrefixedPairsNeedNoBlank) { EXPECT_EQ(ParsedHex("0x12,0x34"), (Bytes{0x12, 0x34})); }

TEST(HexFromText, ASingleDigitAloneIsAByte) {
    EXPECT_EQ(ParsedHex("A"), Bytes{0x0A});
    EXPECT_EQ(ParsedHex("0xA,b"), (Bytes{0x0A, 0x0B}));
}

TEST(HexFromText, ADigitLeftAfterAPairIsRefused) {
    EXPECT_TRUE(IsNoHex("00F"));
    EXPECT_TRUE(IsNoHex("ABC"));
    EXPECT_TRUE(IsNoHex("00 FF 123"));
}

TEST(HexFromText, NothingIsNoBytes) {
    EXPECT_EQ(ParsedHex(""), Bytes());
    EXPECT_EQ(ParsedHex(" \t\r\n"), Bytes());
}

TEST(HexFromText, RefusesWhatIsNoHex) {
    for (const char* text : {"0x", "0x,12", "G0", "12 G0", "12,,34", ",12", "12g", "0xx12", "12 0x", "\xC3\xA9"}) {
        EXPECT_TRUE(IsNoHex(text)) << text;
    }
}

TEST(HexFromText, AnyPrintableSignSeparates) {
    const auto joined = [](char32_t sign) { return String(std::u32string(U"12") + sign + U"34"); };
    const std::pair<char32_t, char32_t> signs[] = {
        {0x21, 0x2F}, {0x3A, 0x40}, {0x5B, 0x60}, {0x7B, 0x7E}, {0xA1, 0xA9},     {0xAB, 0xAC},     {0xAE, 0xB4},
        {0xB6, 0xB9}, {0xBB, 0xBF}, {0xD7, 0xD7}, {0xF7, 0xF7}, {0x2010, 0x2027}, {0x2030, 0x205E},
    };
    for (const auto& [first, last] : signs) {
        for (char32_t sign = first; sign <= last; ++sign) {
            EXPECT_EQ(ParsedHex(joined(sign)), (Bytes{0x12, 0x34})) << static_cast<int>(sign);
        }
    }
    for (const char32_t other : {0x00, 0x1F, 0x7F, 0xA0, 0xAA, 0xAD, 0xB5, 0xBA, 0xC0, 0xD6, 0xD8, 0xF6, 0xF8, 0x200F,
                                 0x2028, 0x202F, 0x205F, 0xFFFD}) {
        EXPECT_TRUE(IsNoHex(joined(other))) << static_cast<int>(other);
    }
    for (const char32_t letter : {U'G', U'Z', U'g', U'z'})
        EXPECT_TRUE(IsNoHex(joined(letter))) << static_cast<int>(letter);
}

TEST(HexFromText, LettersAndDigitsOfAnyScriptDoNotSeparate) {
    EXPECT_TRUE(IsNoHex(U"12\u00B5"));  // a letter among the signs of Latin-1
    EXPECT_TRUE(IsNoHex(U"12\u00C4"));
    EXPECT_TRUE(IsNoHex(U"12\u00AD"));  // a soft hyphen is not printed
    EXPECT_EQ(ParsedHex(U"12\u00B7"), Bytes{0x12});
}

}  // namespace VNT
