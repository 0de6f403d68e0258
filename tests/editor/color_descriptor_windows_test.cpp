#include "editor/color_descriptor_windows.h"

#include <gtest/gtest.h>

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

class ColorPointForm : public TFormTest<EdidColorPointDescriptorWindow> {
protected:
    TextBox& Box(std::wstring_view label, int point = 1) {
        return driver.Find<TextBox>({point == 1 ? L"White point #1" : L"White point #2", label});
    }
    TextBox& Raw(std::wstring_view label, int point = 1) {
        return driver.Find<TextBox>({point == 1 ? L"White point #1" : L"White point #2", label, L"Raw:"});
    }
};

TEST_F(ColorPointForm, EmptyPointsAreFine) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Color Point");
                  EXPECT_EQ(Box(L"White x:", 2).GetText(), L"");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FB 00 00 00 00 00 00 00 00 00 00 00 0A 20 20");
}

TEST_F(ColorPointForm, APointNeedsAllButItsGamma) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"Index #:"), L"1");
                  EXPECT_FALSE(Box(L"White x:").HasValidStyle());
                  EXPECT_FALSE(Raw(L"White y:").HasValidStyle());
                  EXPECT_TRUE(Box(L"Gamma:").HasValidStyle());
                  EXPECT_TRUE(Box(L"Index #:", 2).HasValidStyle());
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"White x:"), L"0.313");
                  EXPECT_EQ(Raw(L"White x:").GetText(), L"321");
                  driver.Enter(Box(L"White y:"), L"0.329");
                  EXPECT_EQ(Raw(L"White y:").GetText(), L"337");
                  EXPECT_TRUE(CanConfirm());
                  driver.Enter(Box(L"Gamma:"), L"2.2");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FB 00 01 05 50 54 78 00 00 00 00 00 0A 20 20");
}

TEST_F(ColorPointForm, TheRawNumberLeadsWhereItIsTyped) {
    item = ReadAs<EdidColorPointDescriptor>(FromHex("00 00 00 FB 00 01 05 50 54 78 02 03 00 FF FF 0A 20 20"));
    Run([&] {
        EXPECT_EQ(Raw(L"White y:", 2).GetText(), L"1023");
        EXPECT_EQ(Box(L"White y:", 2).GetText(), L"0.9990");
        driver.Enter(Raw(L"White y:", 2), L"512");
        EXPECT_EQ(Box(L"White y:", 2).GetText(), L"0.5000");
        driver.Enter(Raw(L"White y:", 2), L"1024");
        EXPECT_EQ(Box(L"White y:", 2).GetText(), L"");
        EXPECT_FALSE(Raw(L"White y:", 2).HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

TEST_F(ColorPointForm, ACoordinateOfOneHasNoRawNumberAndMakesNoEmptyPoint) {
    Run([&] {
        for (const wchar_t* text : {L"1.0000", L"x"}) {
            driver.Enter(Box(L"White x:"), text);
            EXPECT_EQ(Raw(L"White x:").GetText(), L"");
            EXPECT_FALSE(Box(L"White x:").HasValidStyle());
            EXPECT_FALSE(CanConfirm());
        }
        driver.Enter(Box(L"White x:"), L"");
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(ColorPointForm, TheSecondPointsIndexStartsAt2) {
    item = ReadAs<EdidColorPointDescriptor>(FromHex("00 00 00 FB 00 01 05 50 54 78 02 03 00 FF FF 0A 20 20"));
    Run([&] {
        driver.Enter(Box(L"Index #:", 2), L"1");
        EXPECT_FALSE(Box(L"Index #:", 2).HasValidStyle());
        driver.Enter(Box(L"Index #:", 1), L"0");
        EXPECT_FALSE(Box(L"Index #:", 1).HasValidStyle());
        Leave();
    });
}

using ColorManagementForm = TFormTest<EdidColorManagementDescriptorWindow>;

TEST_F(ColorManagementForm, TakesSignedHundredths) {
    const auto coefficient = [&](const wchar_t* color, const wchar_t* label) -> TextBox& {
        return driver.Find<TextBox>({color, label});
    };
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Color Management");
                  EXPECT_EQ(Box(L"Version").GetText(), L"3");
                  EXPECT_EQ(coefficient(L"Blue", L"a\u2082:").GetText(), L"0.00");
                  driver.Enter(coefficient(L"Red", L"a\u2083:"), L"1");
                  driver.Enter(coefficient(L"Red", L"a\u2082:"), L"-1");
                  driver.Enter(coefficient(L"Green", L"a\u2083:"), L"327.67");
                  driver.Enter(coefficient(L"Green", L"a\u2082:"), L"-327.69");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(coefficient(L"Green", L"a\u2082:"), L"-327.68");
                  driver.Enter(coefficient(L"Blue", L"a\u2082:"), L".01");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 F9 00 03 64 00 9C FF FF 7F 00 80 00 00 01 00");
}

}  // namespace
