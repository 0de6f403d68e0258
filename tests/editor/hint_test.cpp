// What a form says of a red box, of an OK that is closed, and to a screen reader.
#include "editor/cta_sync_windows.h"
#include "editor/field_hint.h"
#include "editor/resolution_windows.h"
#include "tests/editor/one_form.h"
#include "tests/editor/sample_form.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace Forms;

std::wstring Describe(const AnyLimits& limits, const FieldFormat& format, const std::wstring& unit = {}) {
    return DescribeLimits(limits, format, unit);
}

TEST(Hint, SaysWhatABoxTakesInTheUnitOfItsRow) {
    EXPECT_EQ(Describe(ValueLimits{1, 4095}, DecimalDigits(), L"pixels"), L"1 to 4095 pixels");
    EXPECT_EQ(Describe(DecimalLimits{Decimal::FromMillionths(25000000), Decimal::FromMillionths(655350000)},
                       DecimalFormat{3}, L"MHz"),
              L"25.000 to 655.350 MHz");
    EXPECT_EQ(Describe(ValueLimits{7, 7}, DecimalDigits()), L"Only 7");
    EXPECT_EQ(Describe(ValueLimits{8, 64, 8}, DecimalDigits(), L"bits"), L"8 to 64 bits in steps of 8");
    EXPECT_EQ(Describe(ValueLimits{0, 65535}, HexDigits{4}), L"0000 to FFFF");
    EXPECT_EQ(Describe(ValueLimits{0, 65535}, DottedNibbles()), L"0.0.0.0 to 15.15.15.15");
    EXPECT_EQ(Describe(ValueLimits{1, 0}, DecimalDigits()), L"Nothing fits here now");
    EXPECT_EQ(Describe(CountLimits{0, 13}, PlainText()), L"Up to 13 characters");
    EXPECT_EQ(Describe(CountLimits{16, 16}, HexDump()), L"16 bytes");
}

TEST(Hint, SaysWhatIsWrongWithAText) {
    EXPECT_EQ(DescribeBadText(DecimalDigits()), L"Not a number");
    EXPECT_EQ(DescribeBadText(HexDigits{2}), L"Not a number of 2 hexadecimal digits or more");
}

class GSyncForm : public TFormTest<CtaGSyncDataBlockWindow> {};

TEST_F(GSyncForm, SaysWhyABoxIsRedAndWhyOkIsClosed) {
    Run([&] {
        UI::Controls::TextBox& rate = Box(L"Min refresh rate");
        const auto enter = [&](const wchar_t* text) {
            driver.Enter(rate, text);
            return rate.GetHint();
        };
        const std::wstring name = rate.GetName();
        EXPECT_EQ(name, L"Min refresh rate");
        EXPECT_EQ(enter(L"60"), L"");
        EXPECT_EQ(Named(L"OK").GetHint(), L"");
        EXPECT_EQ(enter(L"256"), L"1 to 255 Hz");
        EXPECT_EQ(Named(L"OK").GetHint(), name + L": 1 to 255 Hz");
        EXPECT_EQ(enter(L"x"), L"Not a number");
        EXPECT_EQ(Named(L"OK").GetHint(), name + L": Not a number");
        EXPECT_EQ(enter(L""), L"1 to 255 Hz") << "an empty box takes the same";
        EXPECT_EQ(enter(L"1"), L"");
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

class ResolutionNames : public TFormTest<EdidDetailedResolutionWindow> {};

TEST_F(ResolutionNames, ComeWithTheHeadingOfTheColumn) {
    Run([&] {
        EXPECT_EQ(Box(L"Active:").GetName(), L"Active Horizontal");
        EXPECT_EQ(Box(L"Active:", 1).GetName(), L"Active Vertical");
        EXPECT_EQ(Box(L"Refresh rate:").GetName(), L"Refresh rate");
        EXPECT_EQ(Combo(L"Timing:").GetName(), L"Timing");
        Leave();
    });
}

TEST(Hint, SaysWhichRowsCanBeChosen) {
    const std::vector<RowText> rows{{0, L"Red"}, {1, L"Green"}, {2, L"Blue"}, {3, L"Black"}, {9, L"White"}};
    EXPECT_EQ(DescribeRows(EnumLimits{1}, rows, 3), L"Only \"Red\"");
    EXPECT_EQ(DescribeRows(EnumLimits{2}, rows, 3), L"Only \"Red\" or \"Green\"");
    EXPECT_EQ(DescribeRows(EnumLimits{2, {9}}, rows, 3), L"Only \"Red\", \"Green\" or \"White\"");
    EXPECT_EQ(DescribeRows(ValueLimits{0, 3}, rows, 9), L"Not \"White\" here");
    EXPECT_EQ(DescribeRows(LongLimits{2, 2}, rows, 0), L"Only \"Blue\"");
    EXPECT_EQ(DescribeRows(ValueLimits{0, 3}, rows, 7), L"One of the rows") << "what is shown as none of them";
    EXPECT_EQ(DescribeRows(EnumLimits{}, rows, 1), L"") << "as long as no row can be chosen";
}

TEST(Hint, SaysHowMuchAListHoldsTooMuch) {
    EXPECT_EQ(DescribeList({4, 3, 4, 4}), L"1 row too many");
    EXPECT_EQ(DescribeList({5, 12, 20, 12}), L"8 bytes too many");
    EXPECT_EQ(DescribeList({3, 3, 12, 12}), L"");
}

class SampleHints : public TFormTest<Sample::ItemForm> {};

TEST_F(SampleHints, TellWhyAddIsClosed) {
    item.entries.Add(Sample::Entry());
    item.entries.Add(Sample::Entry());
    Run([&] {
        const auto& add = Named(L"Add...");
        EXPECT_TRUE(add.IsEnabled());
        EXPECT_EQ(add.GetHint(), L"");
        In(Named(L"Add..."), [&] { Confirm(); });
        EXPECT_FALSE(add.IsEnabled());
        EXPECT_EQ(add.GetHint(), L"No space left");
        driver.Click(Named(L"Delete"));
        EXPECT_TRUE(add.IsEnabled());
        EXPECT_EQ(add.GetHint(), L"");
        Leave();
    });
}

TEST_F(SampleHints, TellWhyARowAndAListAreRefused) {
    for (int i = 0; i < 4; ++i) item.entries.Add(Sample::Entry());
    Run([&] {
        auto& kind = Combo(L"Kind");
        driver.Choose(kind, L"Odd");
        EXPECT_EQ(kind.GetHint(), L"Only \"Plain\" or \"Fancy\"");
        EXPECT_EQ(Named(L"OK").GetHint(), kind.GetName() + L": " + kind.GetHint());
        driver.Choose(kind, L"Plain");
        EXPECT_EQ(kind.GetHint(), L"");
        const auto& list = driver.Find<UI::Controls::ListBox>(L"Entries (no space left)");
        EXPECT_EQ(list.GetHint(), L"1 row too many");
        EXPECT_FALSE(CanConfirm());
        EXPECT_NE(Named(L"OK").GetHint().find(L"1 row too many"), std::wstring::npos);
        Leave();
    });
}

}  // namespace
