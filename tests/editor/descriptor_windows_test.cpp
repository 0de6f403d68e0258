#include "editor/descriptor_windows.h"

#include <gtest/gtest.h>

#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

TEST(TextDescriptorForm, ShowsWhatIsLeft) {
    Driver driver;
    EdidNameDescriptor item;
    item.text = U"ABC";
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Name");
        auto& box = driver.Find<TextBox>(L"Name (10 bytes left)");
        EXPECT_EQ(box.GetText(), L"ABC");
        driver.Enter(box, L"ABCDEFGHIJKLMN");
        driver.Find<GroupBox>(L"Name (no space left)");
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Enter(box, L"XYZ");
        driver.Press(Key::Return);
    });
    EdidNameDescriptorWindow window(nullptr);
    EXPECT_EQ(window.Run(item), 1);
    EXPECT_EQ(item.text, U"XYZ");
}

}  // namespace
