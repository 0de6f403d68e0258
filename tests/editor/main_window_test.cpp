#include "editor/main_window.h"

#include <gtest/gtest.h>

#include "model/edid/text_descriptor.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

Bytes MakeEdid(const char* vendor, const char* name) {
    EdidFields fields;
    fields.properties.vendorId = vendor;
    EdidTextDescriptorFields text;
    text.text = name;
    if (!text.text.IsEmpty()) fields.descriptors.Add(EdidDescriptor(EdidNameDescriptor(text).Clone()));
    return Edid(fields).GetBytes();
}

Display MakeDisplay(const wchar_t* id, const Bytes& bytes) {
    Display display;
    display.InstanceId = id;
    display.DeviceDescription = L"Generic";
    display.CurrentData = display.EdidData = bytes;
    display.Active = true;
    return display;
}

class MainWindowForm : public testing::Test {
protected:
    // Runs the window on the displays with these steps; its result.
    int Run(const std::function<void()>& steps) {
        MainWindow window(displays);
        driver.Then(steps);
        const int result = window.Run();
        after = window.GetDisplays();
        return result;
    }
    ListBox& List(const std::wstring& caption) { return driver.Find<ListBox>(caption); }
    // Of the descriptors' list, with so many slots used.
    static std::wstring Descriptors(int used) {
        const int left = 4 - used;
        const std::wstring text = left == 0   ? L"no space left"
                                  : left == 1 ? L"1 slot left"
                                              : std::to_wstring(left) + L" slots left";
        return L"Detailed resolutions and descriptors (" + text + L")";
    }
    std::wstring Rows(ListBox& list) {
        std::wstring all;
        for (int i = 0; i < list.GetCount(); ++i) all += list.GetItemText(i) + L"|";
        return all;
    }
    ComboBox& Choice() { return driver.Find<ComboBox>(L"Display:"); }

    Driver driver;
    DisplayList displays{MakeDisplay(L"DISPLAY\\A\\1", MakeEdid("AAA", "FIRST")),
                         MakeDisplay(L"DISPLAY\\B\\2", MakeEdid("BBB", ""))};
    DisplayList after;
};

TEST_F(MainWindowForm, ShowsTheDisplaysAndTheFirstOnesLists) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Vantelle (VNT) Test 2026-01");
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - FIRST (active)");
        EXPECT_EQ(Choice().GetItemText(1), L"BBB09FF - Generic (active)");
        EXPECT_EQ(Rows(List(L"Detailed resolutions and descriptors (3 slots left)")), L"Name: FIRST|");
        EXPECT_EQ(Rows(List(L"Standard resolutions (8 slots left)")), L"No standard resolutions|");
        EXPECT_EQ(Rows(List(L"Extension blocks (255 slots left)")), L"No extension blocks|");
        driver.Press(Key::Escape);
    });
}

TEST_F(MainWindowForm, TogglingAnEstablishedResolutionAndOkStoresTheBytes) {
    EXPECT_EQ(Run([&] {
                  driver.Click(driver.Find<CheckBox>(L"640x480 @ 60 Hz"));
                  driver.Click(driver.Find<Button>(L"OK"));
              }),
              IdOk);
    EXPECT_FALSE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData.At(35), 0x20);
    EXPECT_EQ(after[0].CurrentData.Size(), 128);
    EXPECT_TRUE(after[1].Saved);
}

TEST_F(MainWindowForm, OkWithoutAnEditLeavesEveryByte) {
    displays[0].CurrentData.At(127) = 0x77;  // a wrong checksum
    const Bytes before = displays[0].CurrentData;
    Run([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData, before);
}

TEST_F(MainWindowForm, ChangesSurviveGoingToAnotherDisplayAndBack) {
    Run([&] {
        driver.Click(driver.Find<CheckBox>(L"720x400 @ 70 Hz"));
        driver.Choose(Choice(), 1);
        EXPECT_FALSE(driver.Find<CheckBox>(L"720x400 @ 70 Hz").IsChecked());
        driver.Choose(Choice(), 0);
        EXPECT_TRUE(driver.Find<CheckBox>(L"720x400 @ 70 Hz").IsChecked());
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_FALSE(after[0].Saved);
    EXPECT_TRUE(after[1].Saved);
}

TEST_F(MainWindowForm, AnotherDisplayClearsTheSelection) {
    Run([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Choose(Choice(), 1);
        driver.Choose(Choice(), 0);
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), ListBox::NoSelection);
        driver.Press(Key::Escape);
    });
}

TEST_F(MainWindowForm, AnEmptyNameFallsBackToTheStoresName) {
    Run([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(driver.Find<Button>({Descriptors(1), L"Delete"}));
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - Generic (active)");
        EXPECT_EQ(Choice().GetSelection(), 0);
        driver.Press(Key::Escape);
    });
}

TEST_F(MainWindowForm, AnAddedDetailedResolutionGoesInFrontOfTheDescriptors) {
    driver.Then([&] { driver.Click(driver.Find<Button>({Descriptors(1), L"Add..."})); });
    driver.Then([&] { driver.Click(driver.Find<Button>(L"OK")); });  // the chooser: detailed resolution
    driver.Then([&] { driver.Click(driver.Find<Button>(L"OK")); });
    driver.Then([&] {
        EXPECT_EQ(Rows(List(Descriptors(2))), L"640x480 @ 60.000 Hz (25.20 MHz) [-/-]|Name: FIRST|");
        EXPECT_EQ(List(Descriptors(2)).GetSelection(), 0);
        driver.Click(driver.Find<Button>(L"OK"));
    });
    MainWindow window(displays);
    EXPECT_EQ(window.Run(), IdOk);
}

TEST_F(MainWindowForm, FourSlotsLeaveNoSpace) {
    EdidFields fields;
    for (int i = 0; i < 4; ++i) fields.descriptors.Add(EdidDescriptor(EdidTextDescriptor().Clone()));
    displays[0].CurrentData = Edid(fields).GetBytes();
    Run([&] {
        List(L"Detailed resolutions and descriptors (no space left)");
        EXPECT_FALSE(driver.Find<Button>({Descriptors(4), L"Add..."}).IsEnabled());
        driver.Press(Key::Escape);
    });
}

TEST_F(MainWindowForm, PropertiesComeBackIntoTheRow) {
    driver.Then([&] { driver.Click(driver.Find<Button>(L"Edit...")); });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Vendor ID:"), L"XYZ");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        EXPECT_EQ(Choice().GetItemText(0), L"XYZ09FF - FIRST (active)");
        driver.Press(Key::Escape);
    });
    MainWindow window(displays);
    EXPECT_EQ(window.Run(), IdCancel);
}

}  // namespace
