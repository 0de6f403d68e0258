#include "editor/field_text.h"

#include <gtest/gtest.h>

namespace {

using namespace VNT;
using namespace Forms;

template <class T, class Format>
String PrintField(T value, const Format& format) {
    return Forms::PrintField(TBoundField{value, {}}, format);
}
template <class T, class Format>
bool ParseField(const String& text, T& value, const Format& format) {
    return Forms::ParseField(text, TBoundField{value, {}}, format);
}
template <class T>
bool IsBad(T value) {
    return Forms::IsBad(TBoundField{value, {}});
}

TEST(FieldText, TheSentinelsAreNoNumbersThatCanBeTyped) {
    EXPECT_EQ(ParseNumber(U"", DecimalDigits()), Undefined);
    EXPECT_EQ(ParseNumber(U" \t\r\n", DecimalDigits()), Undefined);
    EXPECT_EQ(ParseNumber(U"-2147483648", DecimalDigits()), BadNumber);
    EXPECT_EQ(ParseNumber(U"-2147483647", DecimalDigits()), BadNumber);
    EXPECT_EQ(ParseNumber(U"-2147483646", DecimalDigits()), -2147483646);
}

TEST(FieldText, ABlankFieldIsTheEmptyText) {
    EXPECT_EQ(PrintField(Undefined, DecimalDigits()), U"");
    EXPECT_EQ(PrintField(static_cast<unsigned>(Undefined), DecimalDigits()), U"");
    EXPECT_EQ(PrintField(std::int64_t{Undefined}, DecimalDigits()), U"");
    EXPECT_EQ(PrintField(Undefined, HexDigits{4}), U"");
    EXPECT_EQ(PrintField(Undefined, DottedNibbles()), U"");
    EXPECT_EQ(PrintField(Decimal::Undefined(), DecimalFormat{2}), U"");
}

TEST(FieldText, OnlySpaceAroundDigitsAndOneSignAreTaken) {
    for (const char32_t* bad : {U"-", U"+", U"--1", U"+-1", U"1-", U"1 2", U"0x10", U"1.0", U"1,000", U"A", U"\u0661"})
        EXPECT_EQ(ParseNumber(bad, DecimalDigits()), BadNumber) << String(bad).ToUtf8();
    EXPECT_EQ(ParseNumber(U"\r\n -12\t", DecimalDigits()), -12);
    EXPECT_EQ(ParseNumber(U"-0", DecimalDigits()), 0);
}

TEST(FieldText, ANumberThatItsFieldCantHoldIsBad) {
    int number = 0;
    EXPECT_FALSE(ParseField(U"2147483648", number, DecimalDigits()));
    EXPECT_EQ(number, BadNumber);
    EXPECT_TRUE(ParseField(U"2147483647", number, DecimalDigits()));
    EXPECT_FALSE(ParseField(U"99999999999999999999999999", number, DecimalDigits()));
    std::int64_t wide = 0;
    EXPECT_FALSE(ParseField(U"99999999999999999999999999", wide, DecimalDigits()));
    EXPECT_TRUE(IsBad(wide));
    unsigned count = 0;
    EXPECT_TRUE(ParseField(U"4294967295", count, DecimalDigits()));
    EXPECT_EQ(count, 4294967295u);
    EXPECT_TRUE(ParseField(U"", count, DecimalDigits()));
    EXPECT_EQ(count, 0x80000000u);
    EXPECT_FALSE(ParseField(U"?", count, DecimalDigits()));
    EXPECT_EQ(count, 0x80000001u);
    EXPECT_TRUE(IsBad(count));
}

TEST(FieldText, ABadDecimalIsNotTheBlankOne) {
    Decimal value;
    EXPECT_FALSE(ParseField(U"1x", value, DecimalFormat{}));
    EXPECT_TRUE(IsBad(value));
    EXPECT_FALSE(value.IsUndefined());
    EXPECT_TRUE(ParseField(U" ", value, DecimalFormat{}));
    EXPECT_TRUE(value.IsUndefined());
}

TEST(FieldText, DottedNumbersArePackedFromTheFirst) {
    EXPECT_EQ(ParseNumber(U" 1.2.3.4 ", DottedNibbles()), 0x1234);
    EXPECT_EQ(PrintField(0xF00A, DottedNibbles()), U"15.0.0.10");
    EXPECT_EQ(ParseNumber(U"1.2.3.", DottedNibbles()), BadNumber);
    EXPECT_EQ(ParseNumber(U".1.2.3", DottedNibbles()), BadNumber);
    EXPECT_EQ(ParseNumber(U"1.2.3.99999999999999999999", DottedNibbles()), BadNumber);
}

TEST(FieldText, ANullCharacterIsSeenAndStays) {
    String text(std::u32string(U"A\0B", 3));
    EXPECT_EQ(PrintField(text, PlainText()), U"A\u2400B");
    EXPECT_TRUE(ParseField(U"A\u2400C", text, PlainText()));
    EXPECT_EQ(text, String(std::u32string(U"A\0C", 3)));
}

TEST(FieldText, BadHexLeavesTheBytes) {
    Bytes bytes{7};
    EXPECT_FALSE(ParseField(U"123", bytes, HexDump()));
    EXPECT_EQ(bytes, Bytes{7});
    EXPECT_TRUE(ParseField(U"", bytes, HexDump()));
    EXPECT_TRUE(bytes.IsEmpty());
}

}  // namespace
