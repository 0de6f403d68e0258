// The main window: displays, check boxes, lists and what they make of the bytes.
#include "editor/main_window.h"

#include "model/edid/color_point_descriptor.h"
#include "model/timing/edid_detailed_resolution.h"
#include "tests/editor/main_window_form.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using Testing::MainWindowForm;
using Testing::MakeDisplay;
using Testing::MakeEdid;
using Testing::MakeExtendedEdid;
using Testing::MakeName;

constexpr const wchar_t* Vga = L"640x480 @ 60.000 Hz (25.20 MHz) [-/-]|";

Bytes MakeNamedEdid(std::initializer_list<const char*> names) {
    EdidFields fields;
    for (const char* name : names) fields.descriptors.Add(MakeName(name));
    return Edid(fields).GetBytes();
}

EdidStandardResolution MakeStandard(int index) {
    EdidStandardResolutionFields resolution;
    resolution.fieldsPresent = EdidStandardResolutionFieldsPresentEnum::WidthAndAspectRatio;
    resolution.width = 800 + 8 * index;
    resolution.refreshRate = 60 + index;
    return EdidStandardResolution(resolution);
}

Bytes MakeStandardEdid(int count) {
    EdidFields fields;
    for (int i = 0; i < count; ++i) fields.standardResolutions.Add(MakeStandard(i));
    return Edid(fields).GetBytes();
}

// Two names, and an unused slot between them.
EdidFields MakeFieldsWithAGap() {
    EdidFields fields;
    fields.descriptors.Add(MakeName("A"));
    fields.descriptors.Add(EdidDescriptor(EdidEmptyDescriptor().Clone()));
    fields.descriptors.Add(MakeName("B"));
    return fields;
}

TEST_F(MainWindowForm, ShowsTheDisplaysAndTheFirstOnesLists) {
    Look([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Vantelle (VNT) Test 2026-01");
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - FIRST (active)");
        EXPECT_EQ(Choice().GetItemText(1), L"BBB09FF - Generic (active)");
        EXPECT_EQ(Choice().GetSelection(), 0);
        for (const auto& [caption, rows] :
             {std::pair{Descriptors(1), L"Name: FIRST|"}, std::pair{Standards(0), L"No standard resolutions|"},
              std::pair{Extensions(0), L"No extension blocks|"}}) {
            EXPECT_EQ(Rows(List(caption)), rows);
            EXPECT_EQ(List(caption).GetSelection(), ListBox::NoSelection);
        }
    });
}

TEST_F(MainWindowForm, StandsInTheMiddleOfTheWorkAreaAndNeverAboveIt) {
    driver.GetSystem().WorkArea = Rect{100, 0, 2100, 1400};
    Look([&] {
        const Window& window = driver.GetWindow();
        EXPECT_EQ(window.GetX(), 100 + (2000 - window.GetWidth()) / 2);
        EXPECT_EQ(window.GetY(), (1400 - window.GetHeight()) / 2);
    });
    driver.GetSystem().WorkArea = Rect{0, 0, 800, 300};
    Look([&] { EXPECT_EQ(driver.GetWindow().GetY(), 0); });
}

TEST_F(MainWindowForm, ARowTellsWhetherTheDisplayIsActiveAndOverridden) {
    displays[0].Active = false;
    displays[1].OverrideData = displays[1].CurrentData;
    Look([&] {
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - FIRST");
        EXPECT_EQ(Choice().GetItemText(1), L"BBB09FF - Generic (active)*");
    });
}

TEST_F(MainWindowForm, ADisplayWithoutAnEdidShowsANewOneAndKeepsItsBytes) {
    displays[0].CurrentData = Bytes(128, 0x55);
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Rows(List(Descriptors(0))), L"No detailed resolutions or descriptors|");
                  driver.Click(Button(L"OK"));
              }),
              IdOk);
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData, Bytes(128, 0x55));
}

TEST_F(MainWindowForm, EachEstablishedResolutionHasItsBit) {
    int bit = 0;
    for (const char* text : EdidEstablishedResolutionFlagEnum::Texts) {
        Run([&] {
            auto& box = Check(String(text).ToWide().c_str());
            EXPECT_FALSE(box.IsChecked());
            driver.Click(box);
            EXPECT_TRUE(box.IsChecked());
            driver.Click(Button(L"OK"));
        });
        Bytes expected = displays[0].CurrentData;
        constexpr std::uint8_t masks[] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01};
        expected.At(35 + bit / 8) = masks[bit % 8];
        expected.At(127) = static_cast<std::uint8_t>(ComputeChecksum(expected));
        EXPECT_EQ(after[0].CurrentData, expected) << text;
        ++bit;
    }
    EXPECT_EQ(bit, 17);
}

TEST_F(MainWindowForm, TogglingAnEstablishedResolutionAndOkStoresTheBytes) {
    EXPECT_EQ(Run([&] {
                  driver.Click(Check(L"640x480 @ 60 Hz"));
                  driver.Click(Button(L"OK"));
              }),
              IdOk);
    EXPECT_FALSE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData.At(35), 0x20);
    EXPECT_EQ(after[0].CurrentData.Size(), 128);
    EXPECT_TRUE(after[1].Saved);
}

TEST_F(MainWindowForm, TogglingAnEstablishedResolutionKeepsTheSelection) {
    Look([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(Check(L"640x480 @ 60 Hz"));
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), 0);
    });
}

TEST_F(MainWindowForm, OkWithoutAnEditLeavesEveryByte) {
    displays[0].CurrentData.At(127) = 0x77;  // a wrong checksum
    const Bytes before = displays[0].CurrentData;
    Run([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData, before);
}

TEST_F(MainWindowForm, AnEditMendsAWrongChecksum) {
    const std::uint8_t right = displays[0].CurrentData.At(127);
    displays[0].CurrentData.At(127) = 0x77;
    Run([&] {
        driver.Click(Check(L"640x480 @ 60 Hz"));
        driver.Click(Button(L"OK"));
    });
    EXPECT_FALSE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData.At(127), right - 0x20);
}

TEST_F(MainWindowForm, AnEditThatIsTakenBackChangesNoByte) {
    displays[0].CurrentData.At(127) = 0x77;
    Run([&] {
        driver.Click(Check(L"640x480 @ 60 Hz"));
        driver.Choose(Choice(), 1);
        driver.Choose(Choice(), 0);
        driver.Click(Check(L"640x480 @ 60 Hz"));
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData, displays[0].CurrentData);
}

TEST_F(MainWindowForm, OkCanAlwaysBeUsed) {
    displays[0].CurrentData.At(127) = 0x77;
    displays[0].CurrentData.At(20) = 0xFF;  // a reserved interface
    Look([&] {
        EXPECT_TRUE(Button(L"OK").IsEnabled());
        driver.Choose(Choice(), 1);
        EXPECT_TRUE(Button(L"OK").IsEnabled());
    });
}

TEST_F(MainWindowForm, ChangesSurviveGoingToAnotherDisplayAndBack) {
    Run([&] {
        driver.Click(Check(L"720x400 @ 70 Hz"));
        driver.Choose(Choice(), 1);
        EXPECT_FALSE(Check(L"720x400 @ 70 Hz").IsChecked());
        driver.Choose(Choice(), 0);
        EXPECT_TRUE(Check(L"720x400 @ 70 Hz").IsChecked());
        driver.Click(Button(L"OK"));
    });
    EXPECT_FALSE(after[0].Saved);
    EXPECT_TRUE(after[1].Saved);
}

TEST_F(MainWindowForm, ChangesToSeveralDisplaysAreAllKept) {
    Run([&] {
        driver.Click(Check(L"720x400 @ 70 Hz"));
        driver.Choose(Choice(), 1);
        driver.Click(Check(L"720x400 @ 88 Hz"));
        driver.Choose(Choice(), 0);
        driver.Click(Button(L"OK"));
    });
    EXPECT_EQ(after[0].CurrentData.At(35), 0x80);
    EXPECT_EQ(after[1].CurrentData.At(35), 0x40);
    EXPECT_FALSE(after[0].Saved || after[1].Saved);
}

TEST_F(MainWindowForm, AnotherDisplayClearsTheSelectionOfAllLists) {
    displays[0].CurrentData = MakeStandardEdid(1);
    displays[1].CurrentData = MakeExtendedEdid(1);
    Look([&] {
        driver.Click(List(Standards(1)), 0);
        driver.Choose(Choice(), 1);
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(List(Extensions(1)), 0);
        EXPECT_TRUE(ButtonOf(Extensions(1), L"Delete").IsEnabled());
        driver.Choose(Choice(), 0);
        EXPECT_EQ(List(Standards(1)).GetSelection(), ListBox::NoSelection);
        driver.Choose(Choice(), 1);
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), ListBox::NoSelection);
        EXPECT_EQ(List(Extensions(1)).GetSelection(), ListBox::NoSelection);
        EXPECT_FALSE(ButtonOf(Extensions(1), L"Delete").IsEnabled());
    });
}

TEST_F(MainWindowForm, TheArrowKeysChangeTheDisplayToo) {
    Look([&] {
        Choice().SetFocus();
        driver.Press(Key::Down);
        EXPECT_EQ(Choice().GetSelection(), 1);
        EXPECT_EQ(Rows(List(Descriptors(0))), L"No detailed resolutions or descriptors|");
        driver.Press(Key::Up);
        EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: FIRST|");
    });
}

TEST_F(MainWindowForm, AnEmptyNameFallsBackToTheStoresName) {
    Look([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(ButtonOf(Descriptors(1), L"Delete"));
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - Generic (active)");
        EXPECT_EQ(Choice().GetSelection(), 0);
        EXPECT_EQ(Choice().GetCount(), 2);
    });
}

TEST_F(MainWindowForm, ANameDescriptorWithoutANameFallsBackToTheStoresName) {
    Bytes bytes = displays[0].CurrentData;
    constexpr int name = 59;
    for (int i = 0; i < 13; ++i) bytes.At(name + i) = i == 0 ? 0x0A : 0x20;
    bytes.At(127) = static_cast<std::uint8_t>(ComputeChecksum(bytes.Slice(0, 128)));
    displays[0].CurrentData = bytes;
    Look([&] {
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - Generic (active)");
        EXPECT_EQ(List(Descriptors(1)).GetCount(), 1);
    });
}

TEST_F(MainWindowForm, DeletingTheLastItemLeavesNothingSelected) {
    displays[0].CurrentData = MakeNamedEdid({"A", "B"});
    Look([&] {
        driver.Click(List(Descriptors(2)), 1);
        driver.Click(ButtonOf(Descriptors(2), L"Delete"));
        EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: A|");
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), ListBox::NoSelection);
        EXPECT_FALSE(ButtonOf(Descriptors(1), L"Edit...").IsEnabled());
        EXPECT_FALSE(ButtonOf(Descriptors(1), L"Delete").IsEnabled());
    });
}

TEST_F(MainWindowForm, AnUnusedSlotThatIsMovedToTheEndStaysAndComesBack) {
    EdidFields fields = MakeFieldsWithAGap();
    fields.standardResolutions.Add(MakeStandard(0));
    fields.standardResolutions.Add(EdidStandardResolution());
    fields.standardResolutions.Add(MakeStandard(1));
    const Bytes bytes = Edid(fields).GetBytes();
    displays[0].CurrentData = bytes;
    Run([&] {
        for (const std::wstring& caption : {Descriptors(3), Standards(3)}) {
            const std::wstring before = Rows(List(caption));
            driver.Click(List(caption), 1);
            driver.Click(ButtonOf(caption, L"\u25BC"));
            // It is listed still, and selected.
            EXPECT_EQ(List(caption).GetCount(), 3);
            EXPECT_EQ(List(caption).GetSelection(), 2);
            EXPECT_NE(Rows(List(caption)), before);
            driver.Click(ButtonOf(caption, L"\u25B2"));
            EXPECT_EQ(Rows(List(caption)), before);
        }
        driver.Click(Button(L"OK"));
    });
    EXPECT_EQ(after[0].CurrentData, bytes);
    EXPECT_TRUE(after[0].Saved);
}

TEST_F(MainWindowForm, UnusedSlotsAtTheEndAreNoneOfTheRowsOfADisplayThatIsChosen) {
    displays[0].CurrentData = Edid(MakeFieldsWithAGap()).GetBytes();
    Look([&] {
        driver.Click(List(Descriptors(3)), 1);
        driver.Click(ButtonOf(Descriptors(3), L"\u25BC"));
        driver.Choose(Choice(), 1);
        driver.Choose(Choice(), 0);
        EXPECT_EQ(Rows(List(Descriptors(2))), L"Name: A|Name: B|");
    });
}

TEST_F(MainWindowForm, DeleteAllAsksNothing) {
    displays[0].CurrentData = MakeNamedEdid({"A", "B", "C"});
    Run([&] {
        driver.Click(ButtonOf(Descriptors(3), L"Delete all"));
        EXPECT_EQ(Rows(List(Descriptors(0))), L"No detailed resolutions or descriptors|");
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(driver.GetMessages().empty());
    EXPECT_EQ(after[0].CurrentData, Edid(EdidFields()).GetBytes());
}

TEST_F(MainWindowForm, ReorderedDescriptorsAreStoredInTheirNewOrder) {
    displays[0].CurrentData = MakeNamedEdid({"A", "B", "C"});
    Run([&] {
        driver.Click(List(Descriptors(3)), 2);
        driver.Click(ButtonOf(Descriptors(3), L"\u25B2"));
        EXPECT_EQ(Rows(List(Descriptors(3))), L"Name: A|Name: C|Name: B|");
        EXPECT_EQ(List(Descriptors(3)).GetSelection(), 1);
        driver.Click(ButtonOf(Descriptors(3), L"\u25B2"));
        EXPECT_FALSE(ButtonOf(Descriptors(3), L"\u25B2").IsEnabled());
        EXPECT_EQ(Choice().GetItemText(0), L"PNP09FF - C (active)") << "the first name is the display's";
        driver.Click(Button(L"OK"));
    });
    EXPECT_EQ(after[0].CurrentData, MakeNamedEdid({"C", "A", "B"}));
}

TEST_F(MainWindowForm, AnAddedDetailedResolutionGoesInFrontOfTheDescriptors) {
    driver.Then([&] { driver.Click(ButtonOf(Descriptors(1), L"Add...")); });
    driver.Then([&] { driver.Click(Button(L"OK")); });  // the chooser: detailed resolution
    driver.Then([&] { driver.Click(Button(L"OK")); });
    driver.Then([&] {
        EXPECT_EQ(Rows(List(Descriptors(2))), std::wstring(Vga) + L"Name: FIRST|");
        EXPECT_EQ(List(Descriptors(2)).GetSelection(), 0);
        driver.Click(Button(L"OK"));
    });
    MainWindow window(displays);
    EXPECT_EQ(window.Run(), IdOk);
}

TEST_F(MainWindowForm, AnAddedDetailedResolutionGoesBehindTheLastOfItsKind) {
    EdidFields fields;
    EdidDetailedResolution first;
    first.hactive = 800;
    fields.descriptors.Add(EdidDescriptor(EdidDetailedResolution(first).Clone()));
    fields.descriptors.Add(MakeName("N"));
    displays[0].CurrentData = Edid(fields).GetBytes();
    driver.Then([&] { driver.Click(ButtonOf(Descriptors(2), L"Add...")); });
    driver.Then([&] { driver.Press(Key::Return); });
    driver.Then([&] { driver.Press(Key::Return); });
    Look([&] {
        const std::wstring rows = Rows(List(Descriptors(3)));
        EXPECT_TRUE(rows.starts_with(L"800x480")) << String(rows).ToUtf8();
        EXPECT_NE(rows.find(std::wstring(L"|") + Vga + L"Name: N|"), std::wstring::npos) << String(rows).ToUtf8();
        EXPECT_EQ(List(Descriptors(3)).GetSelection(), 1);
    });
}

TEST_F(MainWindowForm, AnAddedDescriptorGoesToTheEnd) {
    driver.Then([&] { driver.Click(ButtonOf(Descriptors(1), L"Add...")); });
    driver.Then([&] {
        driver.Click(driver.Find<RadioButton>(L"Text"));
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Text (13 bytes left)"), L"hello");
        driver.Press(Key::Return);
    });
    Look([&] {
        EXPECT_EQ(Rows(List(Descriptors(2))), L"Name: FIRST|Text: hello|");
        EXPECT_EQ(List(Descriptors(2)).GetSelection(), 1);
    });
}

TEST_F(MainWindowForm, ACancelledFormLeavesTheListAndItsSelection) {
    driver.Then([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(ButtonOf(Descriptors(1), L"Add..."));
    });
    driver.Then([&] { driver.Press(Key::Escape); });
    driver.Then([&] { driver.DoubleClick(List(Descriptors(1)), 0); });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Name (8 bytes left)"), L"OTHER");
        driver.ClickCloseBox();
    });
    driver.Then([&] {
        EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: FIRST|");
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), 0);
        driver.Click(Button(L"OK"));
    });
    MainWindow window(displays);
    EXPECT_EQ(window.Run(), IdOk);
    EXPECT_TRUE(window.GetDisplays()[0].Saved);
}

TEST_F(MainWindowForm, AnEditedRowStaysSelectedAndRenamesTheDisplay) {
    driver.Then([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(ButtonOf(Descriptors(1), L"Edit..."));
    });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Name (8 bytes left)"), L"OTHER");
        driver.Press(Key::Return);
    });
    Look([&] {
        EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: OTHER|");
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), 0);
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - OTHER (active)");
    });
}

TEST_F(MainWindowForm, ADoubleClickOnNothingOpensNothing) {
    Look([&] {
        for (const std::wstring& caption : {Descriptors(1), Standards(0), Extensions(0)}) {
            driver.DoubleClick(List(caption), 4);
            EXPECT_EQ(List(caption).GetSelection(), ListBox::NoSelection);
        }
        driver.DoubleClick(List(Standards(0)), 0);
        EXPECT_EQ(driver.GetWindow().GetName(), L"MainWindow") << "the row that says that there is none";
    });
}

TEST_F(MainWindowForm, FourSlotsLeaveNoSpace) {
    displays[0].CurrentData = MakeNamedEdid({"A", "B", "C", "D"});
    Look([&] {
        EXPECT_EQ(Descriptors(4), L"Detailed resolutions and descriptors (no space left)");
        driver.Click(List(Descriptors(4)), 0);
        EXPECT_FALSE(ButtonOf(Descriptors(4), L"Add...").IsEnabled());
        EXPECT_TRUE(ButtonOf(Descriptors(4), L"Edit...").IsEnabled());
        driver.Click(ButtonOf(Descriptors(4), L"Delete"));
        EXPECT_TRUE(ButtonOf(Descriptors(3), L"Add...").IsEnabled());
    });
}

TEST_F(MainWindowForm, AnAddedStandardResolutionIsTheLastUntilEightLeaveNoSpace) {
    displays[0].CurrentData = MakeStandardEdid(7);
    driver.Then([&] { driver.Click(ButtonOf(Standards(7), L"Add...")); });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Standard Resolution");
        driver.Enter(driver.Find<TextBox>(L"Width:"), L"1920");
        driver.Enter(driver.Find<TextBox>(L"Refresh rate"), L"75");
        driver.Press(Key::Return);
    });
    Look([&] {
        EXPECT_EQ(Standards(8), L"Standard resolutions (no space left)");
        const ListBox& list = List(Standards(8));
        EXPECT_EQ(list.GetCount(), 8);
        EXPECT_EQ(list.GetSelection(), 7);
        EXPECT_TRUE(list.GetItemText(7).starts_with(L"1920x")) << String(list.GetItemText(7)).ToUtf8();
        EXPECT_FALSE(ButtonOf(Standards(8), L"Add...").IsEnabled());
    });
}

TEST_F(MainWindowForm, ABlockWithoutAFormStaysAsItIs) {
    displays[0].CurrentData = MakeExtendedEdid(2);
    Run([&] {
        driver.Click(List(Extensions(2)), 1);
        driver.Click(ButtonOf(Extensions(2), L"Edit..."));
        driver.DoubleClick(List(Extensions(2)), 0);
        EXPECT_EQ(driver.GetWindow().GetName(), L"MainWindow");
        EXPECT_EQ(List(Extensions(2)).GetSelection(), 0);
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData, displays[0].CurrentData);
}

TEST_F(MainWindowForm, AnAddedExtensionBlockIsTheLastAndAnEditedOneStaysSelected) {
    displays[0].CurrentData = MakeExtendedEdid(1);
    driver.Then([&] { driver.Click(ButtonOf(Extensions(1), L"Add...")); });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Extension Block");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"CTA-861 Extension Block");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        const ListBox& list = List(Extensions(2));
        EXPECT_EQ(list.GetCount(), 2);
        EXPECT_EQ(list.GetSelection(), 1);
        driver.Click(ButtonOf(Extensions(2), L"\u25B2"));
        driver.Click(ButtonOf(Extensions(2), L"Edit..."));
    });
    driver.Then([&] {
        driver.Click(driver.Find<CheckBox>(L"Supports basic audio"));
        driver.Press(Key::Return);
    });
    Run([&] {
        EXPECT_EQ(List(Extensions(2)).GetSelection(), 0);
        driver.Click(Button(L"OK"));
    });
    const Bytes& bytes = after[0].CurrentData;
    EXPECT_EQ(bytes.Size(), 3 * 128);
    EXPECT_EQ(bytes.At(126), 2);
    EXPECT_EQ(bytes.At(128), 0x02) << "a CTA-861 block";
    EXPECT_EQ(bytes.At(128 + 3) & 0x40, 0x40) << "that supports basic audio";
    EXPECT_EQ(bytes.At(256 + 1), 1) << "and the one that was there";
}

TEST_F(MainWindowForm, TheCountOfBlocksFollowsTheirList) {
    displays[0].CurrentData = MakeExtendedEdid(3);
    Run([&] {
        driver.Click(List(Extensions(3)), 0);
        driver.Click(ButtonOf(Extensions(3), L"Delete"));
        driver.Click(ButtonOf(Extensions(2), L"\u25BC"));
        driver.Click(Button(L"OK"));
    });
    const Bytes& bytes = after[0].CurrentData;
    EXPECT_EQ(bytes.Size(), 3 * 128);
    EXPECT_EQ(bytes.At(126), 2);
    EXPECT_EQ(bytes.At(127), ComputeChecksum(bytes));
    EXPECT_EQ(bytes.At(128 + 1), 3);
    EXPECT_EQ(bytes.At(256 + 1), 2);
}

TEST_F(MainWindowForm, TwoHundredFiftyFiveBlocksLeaveNoSlot) {
    displays[0].CurrentData = MakeExtendedEdid(255);
    Look([&] {
        EXPECT_FALSE(ButtonOf(Extensions(255), L"Add...").IsEnabled());
        driver.Click(ButtonOf(Extensions(255), L"Delete all"));
        EXPECT_TRUE(ButtonOf(Extensions(0), L"Add...").IsEnabled());
    });
}

TEST_F(MainWindowForm, PropertiesComeBackIntoTheRow) {
    driver.Then([&] { driver.Click(Button(L"Edit...")); });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Vendor ID:"), L"XYZ");
        driver.Press(Key::Return);
    });
    Look([&] { EXPECT_EQ(Choice().GetItemText(0), L"XYZ09FF - FIRST (active)"); });
}

TEST_F(MainWindowForm, CancelledPropertiesStayAsTheyWere) {
    driver.Then([&] { driver.Click(Button(L"Edit...")); });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"Vendor ID:"), L"XYZ");
        driver.Press(Key::Escape);
    });
    driver.Then([&] {
        EXPECT_EQ(Choice().GetItemText(0), L"AAA09FF - FIRST (active)");
        driver.Click(Button(L"OK"));
    });
    MainWindow window(displays);
    EXPECT_EQ(window.Run(), IdOk);
    EXPECT_TRUE(window.GetDisplays()[0].Saved);
}

// The working copy as no form leaves it.
class OpenMainWindow : public MainWindow {
public:
    using MainWindow::MainWindow;
    EdidFields& GetFields() { return fields; }
};

TEST_F(MainWindowForm, OkStoresWhatNoUpdateHasStored) {
    OpenMainWindow window(displays);
    driver.Then([&] {
        window.GetFields().properties.vendorId = U"NEW";
        driver.Press(Key::Return);
    });
    EXPECT_EQ(window.Run(), IdOk);
    EXPECT_EQ(window.GetDisplays()[0].CurrentData, MakeEdid("NEW", "FIRST"));
    EXPECT_FALSE(window.GetDisplays()[0].Saved);
    EXPECT_TRUE(window.GetDisplays()[1].Saved);
}

TEST_F(MainWindowForm, AWorkingCopyThatCantBeWrittenIsUndone) {
    OpenMainWindow window(displays);
    driver.Then([&] {
        window.GetFields().properties.vendorId = U"too long";
        driver.Click(Check(L"640x480 @ 60 Hz"));
        EXPECT_FALSE(Check(L"640x480 @ 60 Hz").IsChecked()) << "the edit went with it";
        EXPECT_EQ(window.GetFields().properties.vendorId, U"AAA");
        window.GetFields().properties.vendorId = U"too long";
        driver.Press(Key::Return);
    });
    EXPECT_EQ(window.Run(), IdOk);
    EXPECT_EQ(window.GetDisplays()[0].CurrentData, displays[0].CurrentData);
    EXPECT_TRUE(window.GetDisplays()[0].Saved);
    EXPECT_TRUE(driver.GetMessages().empty());
}

TEST_F(MainWindowForm, AColorPointDescriptorTurnsIntoAnOtherOneAtOnce) {
    OpenMainWindow window(displays);
    driver.Then([&] {
        window.GetFields().descriptors.Add(EdidDescriptor(EdidColorPointDescriptor().Clone()));
        window.Update();
        EXPECT_EQ(window.GetFields().descriptors.At(1).GetType(), EdidDescriptorTypeId::Other);
        EXPECT_EQ(List(Descriptors(2)).GetCount(), 2);
        driver.Press(Key::Escape);
    });
    EXPECT_EQ(window.Run(), IdCancel);
}

}  // namespace
