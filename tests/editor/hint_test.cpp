// What a form says of a red box, of an OK that is closed, and to a screen reader.
#include "editor/cta_sync_windows.h"
#include "editor/field_hint.h"
#include "editor/resolution_windows.h"
#include "tests/editor/one_form.h"

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

}  // namespace
