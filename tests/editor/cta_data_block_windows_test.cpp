#include "editor/cta_data_block_windows.h"

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

using ProductForm = TFormTest<CtaProductInfoDataBlockWindow>;

std::wstring CaptionOf(UI::Headless::Driver& driver) {
    for (UI::Control* control : driver.GetWindow().GetControls()) {
        if (dynamic_cast<UI::Controls::GroupBox*>(control) && control->GetText().starts_with(L"Name"))
            return control->GetText();
    }
    return {};
}

TEST_F(ProductForm, CountsTheBytesThatTheNameMayTake) {
    bytes = 10;
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Product Information");
        EXPECT_EQ(CaptionOf(driver), L"Name (4 bytes left)");
        driver.Enter(Box(L"Name (4 bytes left)"), L"abcd");
        EXPECT_EQ(CaptionOf(driver), L"Name (0 bytes left)");
        EXPECT_TRUE(CanConfirm());
        driver.Enter(Box(L"Name (0 bytes left)"), L"abcde");
        EXPECT_EQ(CaptionOf(driver), L"Name (no space left)");
        EXPECT_TRUE(Box(L"Name (no space left)").IsEnabled());
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Name (no space left)"), L"abc");
        driver.Enter(Box(L"Vendor ID"), L"123456");
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 9), FromHex("E8 21 56 34 12 00 61 62 63"));
}

TEST_F(ProductForm, AnEditKeepsTheByteThatHasNoBox) {
    item = ReadAs<CtaProductInfoDataBlock>(FromHex("E6 21 56 34 12 AB 41"));
    Run([&] {
        driver.Enter(Box(L"Name (25 bytes left)"), L"");
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 6), FromHex("E5 21 56 34 12 AB"));
}

TEST_F(ProductForm, ANameOfOtherThanBytesIsRed) {
    Run([&] {
        driver.Enter(Box(L"Name (26 bytes left)"), L"\u0142");
        EXPECT_FALSE(Box(L"Name (25 bytes left)").HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

}  // namespace
}  // namespace VNT::Testing
