#include "model/core/text.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "model/core/list.h"
#include "tests/print.h"

namespace VNT {

namespace {

TextTable TableOf(std::initializer_list<std::pair<std::u32string_view, String>> rows) {
    TextTable table;
    for (const auto& [key, value] : rows) table.Set(key, value);
    return table;
}

// A list of fixed slots or of sizes, as far as its limits ask.
struct Counted {
    int count = 0;
    int size = 0;
    int GetCount() const { return count; }
    int GetSize() const { return size; }
};

String SlotsText(int count, int slots, std::u32string_view caption) {
    return GetListText(SlotListLimits{slots, 2}, Counted{count}, CountTextFormat(), caption);
}

String BytesText(int size, int bytes, std::u32string_view caption) {
    return GetListText(TSizeListLimits<Counted>{bytes}, Counted{1, size}, SizeTextFormat(), caption);
}

}  // namespace

TEST(TextTable, IsSortedByCodePointWhateverTheOrderOfSetting) {
    TextTable table;
    table.Set(U"{b}", U"2");
    table.Set(U"{B}", U"1");
    table.Set(U"{a}", U"3");
    table.Set(U"{ab}", U"4");
    std::vector<std::u32string_view> keys;
    for (const auto& row : table.Rows()) keys.push_back(row.first);
    EXPECT_EQ(keys, (std::vector<std::u32string_view>{U"{B}", U"{ab}", U"{a}", U"{b}"}));
}

TEST(TextTable, SettingAKeyAgainReplacesItsValue) {
    TextTable table = TableOf({{U"{a}", U"1"}, {U"{a}", U"2"}});
    ASSERT_EQ(table.Rows().size(), 1u);
    EXPECT_EQ(table.Rows()[0].second, U"2");
    EXPECT_EQ(Replace(U"{a}{A}", table), U"2{A}");
}

TEST(TextTable, HoldsTextsNumbersAndDecimals) {
    TextTable table;
    table.Set(U"{view}", U"a");
    table.Set(U"{text}", String("b"));
    table.Set(U"{number}", 12);
    table.Set(U"{none}", Undefined);
    table.Set(U"{decimal}", Decimal(59940, 3), DecimalFormat{2, 21, true});
    table.Set(U"{number}", -3);
    EXPECT_EQ(Replace(U"{view}{text} {number} {decimal}{none}", table), U"ab -3 59.94");
    // An unpaired brace, and a key that a pair doesn't make, are looked for all over the text.
    EXPECT_EQ(Replace(U"{view}{text} {number} {decimal}{none}}", table), U"ab -3 59.94}");
    table.Set(U"{}{", U"x");
    EXPECT_EQ(Replace(U"{view} {}{}{number}", table), U"a x}-3");
}

TEST(TextTable, NumbersAreDecimal) {
    TextTable table;
    table.Set(U"{n}", -1080);
    EXPECT_EQ(Replace(U"{n}", table), U"-1080");
}

TEST(Replace, ATemplateWithoutPlaceholdersReturnsAsItIs) {
    EXPECT_EQ(Replace(U"Name (no space left)", TableOf({{U"{a}", U"1"}})), U"Name (no space left)");
    EXPECT_EQ(Replace(U"", TableOf({{U"{a}", U"1"}})), U"");
    const std::u32string longText(MaxTextLength + 100, U'x');
    EXPECT_EQ(Replace(longText, TableOf({{U"{a}", U"1"}})).Length(), MaxTextLength + 100);
}

TEST(Replace, APlaceholderWithoutAKeyStays) {
    EXPECT_EQ(Replace(U"{a} {unknown} {", TableOf({{U"{a}", U"1"}})), U"1 {unknown} {");
}

TEST(Replace, KeysAreCaseSensitive) { EXPECT_EQ(Replace(U"{A}{a}", TableOf({{U"{a}", U"1"}})), U"{A}1"); }

TEST(Replace, ReplacesEveryOccurrence) { EXPECT_EQ(Replace(U"{a}-{a}-{a}", TableOf({{U"{a}", U"1"}})), U"1-1-1"); }

TEST(Replace, ALaterKeyInAValueIsResolvedInTheSamePass) {
    EXPECT_EQ(Replace(U"{a}", TableOf({{U"{a}", U"<{b}>"}, {U"{b}", U"1"}})), U"<1>");
}

TEST(Replace, AnEarlierKeyInAValueIsResolvedInTheSecondPass) {
    EXPECT_EQ(Replace(U"{b}", TableOf({{U"{a}", U"1"}, {U"{b}", U"<{a}>"}})), U"<1>");
}

// {j} to {a}, each naming the one sorted before it: one step a pass.
TEST(Replace, TenPassesResolveTenStepsBackAndNoMore) {
    const TextTable ten = TableOf({{U"{a}", U"end"},
                                   {U"{b}", U"{a}"},
                                   {U"{c}", U"{b}"},
                                   {U"{d}", U"{c}"},
                                   {U"{e}", U"{d}"},
                                   {U"{f}", U"{e}"},
                                   {U"{g}", U"{f}"},
                                   {U"{h}", U"{g}"},
                                   {U"{i}", U"{h}"},
                                   {U"{j}", U"{i}"},
                                   {U"{k}", U"{j}"}});
    EXPECT_EQ(Replace(U"{j}", ten), U"end");
    EXPECT_EQ(Replace(U"{k}", ten), U"{a}");
    TextTable toNumber = ten;
    toNumber.Set(U"{a}", std::int64_t{7});
    EXPECT_EQ(Replace(U"{j}", toNumber), U"7");
    EXPECT_EQ(Replace(U"{k}", toNumber), U"{a}");
}

// The engine goes back to the start after each replacement, so a key that two texts form together counts.
TEST(Replace, FindsAKeyThatValuesFormTogether) {
    EXPECT_EQ(Replace(U"{{a}}", TableOf({{U"{a}", U"b"}, {U"{b}", U"1"}})), U"1");
    EXPECT_EQ(Replace(U"{<>a}", TableOf({{U"<>", U""}, {U"{a}", U"1"}})), U"1");
}

TEST(Replace, TakesKeysInTheirOrderNotThatOfTheTemplate) {
    // "{ab}" sorts before "{a}": by code point "b" comes before "}".
    EXPECT_EQ(Replace(U"{a}", TableOf({{U"{a}", U"{ab}"}, {U"{ab}", U"{a}"}})), U"{ab}");
}

TEST(Replace, AValueThatIsItsOwnKeyIsPlainText) {
    EXPECT_EQ(Replace(U"{type}: {text}", TableOf({{U"{text}", U"{text}"}, {U"{type}", U"Text"}})), U"Text: {text}");
    EXPECT_EQ(Replace(U"{text}", TableOf({{U"{text}", U"a{text}b{text}c"}})), U"a{text}b{text}c");
}

TEST(Replace, AValueThatHoldsItsOwnKeyIsPutInAtEveryOccurrence) {
    const TextTable table = TableOf({{U"{a}", U"<{a}>"}, {U"{b}", U"{a}"}});
    EXPECT_EQ(Replace(U"{a} {b} {a}", table), U"<{a}> <{a}> <{a}>");
}

TEST(Replace, ValuesThatNameEachOtherEndWithTheTenthPass) {
    const String result = Replace(U"{a}", TableOf({{U"{a}", U"{b}"}, {U"{b}", U"{a}"}}));
    EXPECT_EQ(result, U"{a}");
    const String grown = Replace(U"{a}", TableOf({{U"{a}", U"-{b}"}, {U"{b}", U"+{a}"}}));
    EXPECT_EQ(grown, U"-+-+-+-+-+-+-+-+-+-+{a}");
}

TEST(Replace, ValuesThatDoubleStaySmall) {
    const TextTable table = TableOf({{U"{a}", U"{b}{b}"}, {U"{b}", U"{a}{a}"}});
    EXPECT_LE(Replace(U"{a}", table).Length(), MaxTextLength);
    const String huge(std::u32string(100000, U'x'));
    EXPECT_EQ(Replace(U"{a}{a}", TableOf({{U"{a}", huge}})).Length(), MaxTextLength);
}

TEST(Replace, NumbersAreCutWhereTheyWouldMakeTheTextTooLong) {
    TextTable table;
    table.Set(U"{n}", std::int64_t{1234567890123456789});
    std::u32string source(4000, U'x');
    for (int i = 0; i < 20; ++i) source += U"{n}";
    EXPECT_EQ(Replace(source, table).Length(), MaxTextLength);
    EXPECT_EQ(Replace(source.substr(0, 4000 + 5 * 3), table).Length(), 4000 + 5 * 19);
}

TEST(Replace, EndsWhenValuesFormTheirKeyAnewForEver) {
    const String result = Replace(U"{a}}", TableOf({{U"{a}", U"{a"}}));
    EXPECT_EQ(result, U"{a");
    const String endless = Replace(U"{a}", TableOf({{U"{a}", U"{b}x{b}"}, {U"{b}", U"{a}"}}));
    EXPECT_LE(endless.Length(), MaxTextLength);
}

TEST(FormatText, FillsTypeAndDescriptionIntoTheMainTemplate) {
    TextTable table = TableOf({{U"{text}", U"SAMPLE"}});
    EXPECT_EQ(FormatText({.description = U"{text}", .type = U"Name"}, true, table), U"Name: SAMPLE");
}

TEST(FormatText, WithoutContentTakesTheEmptyTemplate) {
    TextTable table;
    EXPECT_EQ(FormatText({.description = U"{text}", .type = U"Name"}, false, table), U"Name is empty");
}

TEST(ListText, CountLeftHasARowForEachCase) {
    EXPECT_EQ(SlotsText(0, 8, U"{countlefttext}"), U"8 slots left");
    EXPECT_EQ(SlotsText(7, 8, U"{countlefttext}"), U"1 slot left");
    EXPECT_EQ(SlotsText(8, 8, U"{countlefttext}"), U"0 slots left");
    EXPECT_EQ(SlotsText(9, 8, U"{countlefttext}"), U"1 slot over");
    EXPECT_EQ(SlotsText(10, 8, U"{countlefttext}"), U"2 slots over");
}

TEST(ListText, CountAndMaxHaveARowForEachCase) {
    EXPECT_EQ(SlotsText(0, 0, U"{counttext}, {maxcounttext}"), U"0 slots, 0 slots max");
    EXPECT_EQ(SlotsText(1, 1, U"{counttext}, {maxcounttext}"), U"1 slot, 1 slot max");
    EXPECT_EQ(SlotsText(2, 3, U"{counttext}, {maxcounttext}"), U"2 slots, 3 slots max");
}

TEST(ListText, SizeLeftHasARowForEachCase) {
    EXPECT_EQ(BytesText(0, 98, U"{sizelefttext}"), U"98 bytes left");
    EXPECT_EQ(BytesText(97, 98, U"{sizelefttext}"), U"1 byte left");
    EXPECT_EQ(BytesText(98, 98, U"{sizelefttext}"), U"0 bytes left");
    EXPECT_EQ(BytesText(99, 98, U"{sizelefttext}"), U"1 byte over");
    EXPECT_EQ(BytesText(100, 98, U"{sizelefttext}"), U"2 bytes over");
}

TEST(ListText, SizeAndMaxHaveARowForEachCase) {
    EXPECT_EQ(BytesText(0, 0, U"{sizetext}, {maxsizetext}"), U"0 bytes, 0 bytes max");
    EXPECT_EQ(BytesText(1, 1, U"{sizetext}, {maxsizetext}"), U"1 byte, 1 byte max");
    EXPECT_EQ(BytesText(2, 3, U"{sizetext}, {maxsizetext}"), U"2 bytes, 3 bytes max");
}

TEST(ListText, NumbersAreThereAsKeysToo) {
    EXPECT_EQ(SlotsText(9, 8, U"{count} {countleft} {countover} {maxcount}"), U"9 -1 1 8");
    EXPECT_EQ(BytesText(100, 98, U"{size} {sizeleft} {sizeover} {maxsize}"), U"100 -2 2 98");
}

TEST(ListText, ASizedListCountsItsBytesAsSlots) { EXPECT_EQ(BytesText(100, 98, U"{count} of {maxcount}"), U"1 of 98"); }

TEST(ListText, FixedSlotsOfferTheSizesOfTheirItems) {
    EXPECT_EQ(SlotsText(3, 8, U"{sizetext} of {maxsizetext}"), U"6 bytes of 16 bytes max");
    EXPECT_EQ(SlotsText(8, 8, U"{sizelefttext}"), U"0 bytes left");
}

TEST(ListText, ExtensionBlocksHaveThreeOutcomesOfSizeLeft) {
    const SlotListLimits limits{255, 128};
    const auto left = [&](int count) {
        return GetListText(limits, Counted{count}, SizeTextFormat(), U"{sizelefttext}");
    };
    EXPECT_EQ(left(0), U"32640 bytes left");
    EXPECT_EQ(left(254), U"128 bytes left");
    EXPECT_EQ(left(255), U"0 bytes left");
    EXPECT_EQ(left(256), U"128 bytes over");
}

TEST(ListText, CaptionsKeepTheirOwnWords) {
    EXPECT_EQ(SlotsText(2, 4, U"Detailed resolutions and descriptors ({countlefttext})"),
              U"Detailed resolutions and descriptors (2 slots left)");
    EXPECT_EQ(BytesText(0, 98, U"Data blocks ({sizelefttext})"), U"Data blocks (98 bytes left)");
}

TEST(ListText, TheFormatsDifferInTheirMainTemplate) {
    EXPECT_EQ(CountTextFormat().main, U"{counttext}");
    EXPECT_EQ(SizeTextFormat().main, U"{sizetext}");
    EXPECT_EQ(SizeOnlyTextFormat().main, U"{sizetext}");
    EXPECT_EQ(CountTextFormat().manySizeOver, SizeTextFormat().manySizeOver);
}

TEST(ListText, WordsOfAnotherFormatTakeTheirPlace) {
    SizeTextFormat format;
    format.zeroCount = U"No resolutions";
    format.oneCount = U"1 resolution";
    format.manyCount = U"{count} resolutions";
    const auto text = [&](int count) {
        return GetListText(SlotListLimits{8, 2}, Counted{count}, format, U"{counttext}");
    };
    EXPECT_EQ(text(0), U"No resolutions");
    EXPECT_EQ(text(1), U"1 resolution");
    EXPECT_EQ(text(2), U"2 resolutions");
}

TEST(SizeText, IsTheCaptionOfATextOrHexField) {
    EXPECT_EQ(GetSizeText(6, 13, U"Name ({sizelefttext})"), U"Name (7 bytes left)");
    EXPECT_EQ(GetSizeText(14, 13, U"Hex data ({sizelefttext})"), U"Hex data (1 byte over)");
    EXPECT_EQ(GetSizeText(1, 13, U"{sizetext}"), U"1 byte");
}

TEST(SizeText, HasNoKeysOfCounts) {
    EXPECT_EQ(GetSizeText(6, 13, U"{counttext} {countlefttext}"), U"{counttext} {countlefttext}");
}

}  // namespace VNT
