#include "editor/descriptor_windows.h"

#include <gtest/gtest.h>

#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

template <class Form>
void ExpectTextForm(const wchar_t* title, const std::wstring& caption) {
    Driver driver;
    typename Form::Item item;
    item.text = U"ABC";
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), title);
        auto& box = driver.Find<TextBox>(caption + L" (10 bytes left)");
        EXPECT_EQ(box.GetText(), L"ABC");
        driver.Enter(box, L"1234567890123");
        driver.Find<GroupBox>(caption + L" (0 bytes left)");
        EXPECT_TRUE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Type(L"4");
        driver.Find<GroupBox>(caption + L" (no space left)");
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Enter(box, L"");
        EXPECT_FALSE(box.HasValidStyle());
        driver.Enter(box, L"XYZ");
        driver.Press(Key::Return);
    });
    Form window(nullptr);
    EXPECT_EQ(window.Run(item), 1);
    EXPECT_EQ(item.text, U"XYZ");
    EXPECT_TRUE(item.IsValid());
}

TEST(TextDescriptorForm, OfAName) { ExpectTextForm<EdidNameDescriptorWindow>(L"Name", L"Name"); }
TEST(TextDescriptorForm, OfASerialNumber) {
    ExpectTextForm<EdidSerialNumberDescriptorWindow>(L"Serial Number", L"Serial number");
}
TEST(TextDescriptorForm, OfAText) { ExpectTextForm<EdidTextDescriptorWindow>(L"Text", L"Text"); }

TEST(TextDescriptorForm, ACharacterThatNoSoundNameHasIsRed) {
    Driver driver;
    EdidNameDescriptor item;
    item.text = U"\u00E9";
    driver.Then([&] {
        auto& box = driver.Find<TextBox>(L"Name (12 bytes left)");
        EXPECT_EQ(box.GetText(), L"\u00E9");
        EXPECT_FALSE(box.HasValidStyle());
        driver.Press(Key::Return);
        driver.Press(Key::Escape);
    });
    EdidNameDescriptorWindow window(nullptr);
    EXPECT_EQ(window.Run(item), 2);
}

std::vector<std::wstring> GetOffered() {
    Driver driver;
    std::vector<std::wstring> rows;
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Descriptor");
        for (const Control* control : driver.GetWindow().GetControls()) {
            if (!dynamic_cast<const RadioButton*>(control)) continue;
            EXPECT_TRUE(control->IsEnabled());
            rows.push_back(control->GetText());
        }
        EXPECT_TRUE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Press(Key::Escape);
    });
    EdidDescriptor holder;
    EXPECT_EQ(EditEdidDescriptor(nullptr, holder, AnyEdidDescriptor::FrameSize), IdCancel);
    return rows;
}

TEST(AddDescriptorForm, OffersTheTenKindsInTheirOrder) {
    EXPECT_EQ(GetOffered(),
              (std::vector<std::wstring>{L"Detailed resolution", L"Standard resolutions", L"CVT resolutions",
                                         L"Established III resolutions", L"Range limits", L"Name", L"Serial number",
                                         L"Text", L"Color point", L"Color management"}));
}

}  // namespace
