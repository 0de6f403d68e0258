#include "editor/displayid_data_block_windows.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "editor/displayid1_data_block_windows.h"
#include "editor/displayid2_data_block_windows.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;

class DisplayIdForm : public testing::Test {
protected:
    Button& Ok() { return driver.Find<Button>(L"OK"); }
    // Opens the form on the item in so many bytes, does the steps, and confirms it.
    template <class FormWindow>
    void Edit(typename FormWindow::Item& item, int bytes, const std::function<void()>& steps) {
        driver.Then([&] {
            steps();
            EXPECT_TRUE(Ok().IsEnabled());
            driver.Click(Ok().IsEnabled() ? Ok() : driver.Find<Button>(L"Cancel"));
        });
        EXPECT_EQ(FormWindow(nullptr).Run(item, bytes), IdOk);
        EXPECT_TRUE(item.IsValid(bytes));
    }

    Headless::Driver driver;
};

TEST_F(DisplayIdForm, TheChoosersOfferTheirKindsInOrder) {
    const std::vector<const wchar_t*> rows[] = {
        {L"Detailed resolutions", L"Product identification", L"Display parameters", L"Range limits", L"Serial number",
         L"Text", L"Tiled display topology", L"Vendor-specific", L"CTA-861 data blocks"},
        {L"Detailed resolutions", L"Detailed resolutions r2", L"Product identification", L"Range limits",
         L"Display interface", L"Tiled display topology", L"Container ID", L"Vendor-specific", L"CTA-861 data blocks"}};
    const std::vector<const wchar_t*> titles[] = {
        {L"Detailed Resolutions", L"Product Identification", L"Display Parameters", L"Range Limits", L"Serial Number",
         L"Text", L"Tiled Display Topology", L"Vendor-Specific", L"CTA-861 Data Blocks"},
        {L"Detailed Resolutions", L"Detailed Resolutions r2", L"Product Identification", L"Range Limits",
         L"Display Interface", L"Tiled Display Topology", L"Container ID", L"Vendor-Specific", L"CTA-861 Data Blocks"}};
    for (const int version : {1, 2}) {
        const auto& kinds = rows[version - 1];
        for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
            driver.Then([&] {
                EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Data Block");
                driver.Find<GroupBox>(L"Type");
                std::vector<std::wstring> shown;
                for (Control* control : driver.GetWindow().GetControls()) {
                    if (auto* radio = dynamic_cast<RadioButton*>(control)) shown.push_back(radio->GetText());
                }
                EXPECT_EQ(shown, std::vector<std::wstring>(kinds.begin(), kinds.end()));
                driver.Click(driver.Find<RadioButton>(kinds[kind]));
                driver.Press(Key::Return);
            });
            driver.Then([&] {
                EXPECT_EQ(driver.GetWindow().GetTitle(), titles[version - 1][kind]);
                driver.Find<TextBox>(L"Revision");
                driver.Click(Ok());
            });
            DisplayIdDataBlock block;
            EXPECT_EQ(EditDisplayIdDataBlock(nullptr, block, 121, version), IdOk);
            EXPECT_TRUE(block.IsValid(121));
        }
    }
}

TEST_F(DisplayIdForm, ABlockOfTheOtherVersionHasItsOwnForm) {
    for (const int version : {1, 2}) {
        for (const bool isOfVersion1 : {true, false}) {
            DisplayIdDataBlock block = isOfVersion1 ? DisplayIdDataBlock(DisplayId1TextDataBlock().Clone())
                                                    : DisplayIdDataBlock(DisplayId2ContainerIdDataBlock().Clone());
            driver.Then([&] {
                EXPECT_EQ(driver.GetWindow().GetTitle(), isOfVersion1 ? L"Text" : L"Container ID");
                driver.Press(Key::Escape);
            });
            EXPECT_EQ(EditDisplayIdDataBlock(nullptr, block, 121, version), IdCancel);
        }
    }
}

TEST_F(DisplayIdForm, AModelYearHasNoWeek) {
    DisplayId1ProductIdDataBlock block;
    Edit<DisplayId1ProductIdDataBlockWindow>(block, 40, [&] {
        auto& week = driver.Find<TextBox>(L"Week");
        driver.Enter(week, L"55");
        EXPECT_FALSE(week.HasValidStyle());
        driver.Enter(week, L"54");
        driver.Enter(driver.Find<TextBox>(L"Year"), L"2024");
        driver.Click(driver.Find<CheckBox>(L"Model year"));
        EXPECT_FALSE(week.IsEnabled());
        EXPECT_EQ(week.GetText(), L"");
    });
    EXPECT_TRUE(block.modelYear);
    EXPECT_EQ(block.year, 2024);
}

TEST_F(DisplayIdForm, AWeekOf255ShowsAsAModelYear) {
    DisplayId1ProductIdDataBlock block;
    block.Read(Bytes{0, 0, 12, 'A', 'B', 'C', 0, 0, 0, 0, 0, 0, 255, 24, 0});
    Edit<DisplayId1ProductIdDataBlockWindow>(block, 40,
                                             [&] { EXPECT_TRUE(driver.Find<CheckBox>(L"Model year").IsChecked()); });
}

TEST_F(DisplayIdForm, ANameTellsWhatIsLeftOfTheRoom) {
    DisplayId2ProductIdDataBlock block;
    Edit<DisplayId2ProductIdDataBlockWindow>(block, 18, [&] {
        driver.Enter(driver.Find<TextBox>(L"Vendor ID"), L"001A2B");
        auto& name = driver.Find<TextBox>(L"Name (3 bytes left)");
        driver.Enter(name, L"FOUR");
        driver.Find<GroupBox>(L"Name (no space left)");
        EXPECT_FALSE(name.HasValidStyle());
        EXPECT_TRUE(name.IsEnabled());
        EXPECT_FALSE(Ok().IsEnabled());
        driver.Enter(name, L"TWO");
        driver.Find<GroupBox>(L"Name (0 bytes left)");
    });
    EXPECT_EQ(block.name, String(U"TWO"));
    EXPECT_EQ(block.vendorId, 0x001A2B);
    EXPECT_EQ(block.GetSize(), 18);
}

TEST_F(DisplayIdForm, ATextTellsWhatIsLeftOfTheRoom) {
    DisplayId1SerialNumberDataBlock number;
    Edit<DisplayId1SerialNumberDataBlockWindow>(number, 5, [&] {
        auto& box = driver.Find<TextBox>(L"Serial number (2 bytes left)");
        driver.Enter(box, L"123");
        driver.Find<GroupBox>(L"Serial number (no space left)");
        EXPECT_FALSE(box.HasValidStyle());
        driver.Enter(box, L"1");
        driver.Find<GroupBox>(L"Serial number (1 byte left)");
    });
    EXPECT_EQ(number.GetSize(), 4);
    DisplayId1TextDataBlock text;
    Edit<DisplayId1TextDataBlockWindow>(text, 9,
                                        [&] { driver.Enter(driver.Find<TextBox>(L"Text (6 bytes left)"), L"LINE"); });
    EXPECT_EQ(text.text, String(U"LINE"));
}

TEST_F(DisplayIdForm, AnUntoldSizeIsAnEmptyBox) {
    DisplayId1DisplayParametersDataBlock block;
    Edit<DisplayId1DisplayParametersDataBlockWindow>(block, 15, [&] {
        EXPECT_EQ(driver.Find<TextBox>(L"Image size").GetText(), L"");
        driver.Enter(driver.Find<TextBox>(L"Image size"), L"597.7");
        driver.Enter(driver.Find<TextBox>(L"Gamma"), L"");
        driver.Enter(driver.Find<TextBox>(L"Aspect ratio"), L"1.78");
        driver.Click(driver.Find<CheckBox>(L"Supports ACP/ISRC"));
    });
    EXPECT_EQ(block.imageWidth, Decimal(5977, 1));
    EXPECT_TRUE(block.gamma.IsUndefined());
    EXPECT_EQ(block.featureFlags.GetBits(), 2u);
}

TEST_F(DisplayIdForm, AMaximumClockBelowTheMinimumIsRed) {
    DisplayId1RangeLimitsDataBlock block;
    Edit<DisplayId1RangeLimitsDataBlockWindow>(block, 18, [&] {
        auto& min = driver.Find<TextBox>(L"Pixel clocks");
        driver.Enter(min, L"25.18");
        EXPECT_FALSE(min.HasValidStyle());
        EXPECT_FALSE(Ok().IsEnabled());
        driver.Press(Key::Tab);
        driver.Type(L"600");
        EXPECT_TRUE(min.HasValidStyle());
        driver.Click(driver.Find<CheckBox>(L"CVT reduced"));
    });
    EXPECT_EQ(block.maxPixelClock, Decimal(600));
    EXPECT_EQ(block.limitFlags.GetBits(), 0x20u);
}

TEST_F(DisplayIdForm, ABehaviorWithoutARowShowsAsOtherAndStays) {
    DisplayId1TiledDisplayTopologyDataBlock block;
    block.singleTileBehavior = static_cast<DisplayId1TiledDisplayTopologyDataBlockSingleTileBehaviorEnum::Enum>(5);
    Edit<DisplayId1TiledDisplayTopologyDataBlockWindow>(block, 25, [&] {
        auto& single = driver.Find<ComboBox>(L"Single tile behavior");
        EXPECT_EQ(single.GetItemText(single.GetSelection()), L"Other");
        auto& multiple = driver.Find<ComboBox>(L"Multiple tile behavior");
        EXPECT_EQ(multiple.GetItemText(multiple.GetSelection()), L"Other");
        driver.Choose(multiple, L"Displayed at location");
        driver.Choose(driver.Find<ComboBox>(L"Physical display enclosures"), L"Single");
        EXPECT_EQ(driver.Find<TextBox>(L"Tile count").GetText(), L"1");
        EXPECT_EQ(driver.Find<TextBox>(L"Tile location").GetText(), L"1");
    });
    EXPECT_EQ(block.singleTileBehavior, 5);
    EXPECT_EQ(block.multipleTileBehavior, 1);
    EXPECT_EQ(block.enclosures, 1);
}

// Adds a resolution by the form of the block; `mark` is the check box that the resolution's form has.
template <class FormWindow>
void AddResolution(Headless::Driver& driver, typename FormWindow::Item& block, const wchar_t* mark) {
    driver.Then([&] { driver.Click(driver.Find<Button>({L"Detailed resolutions (2 slots left)", L"Add..."})); });
    driver.Then([&driver, mark] {
        driver.Click(driver.Find<CheckBox>(mark));
        driver.Choose(driver.Find<ComboBox>(L"Timing:"), 1);
        driver.Click(driver.Find<Button>(L"OK"));
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Detailed resolutions (1 slot left)");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_EQ(FormWindow(nullptr).Run(block, 43), IdOk);
    ASSERT_EQ(block.resolutions.GetCount(), 1);
    EXPECT_TRUE(block.resolutions.At(0).preferred);
    EXPECT_EQ(block.GetSize(), 23);
}

TEST_F(DisplayIdForm, AResolutionTakesTwentyBytesOfTheRoom) {
    DisplayId1DetailedResolutionListDataBlock first;
    AddResolution<DisplayId1DetailedResolutionListDataBlockWindow>(driver, first, L"Preferred");
    DisplayId2DetailedResolutionListDataBlock second;
    AddResolution<DisplayId2DetailedResolutionListDataBlockWindow>(driver, second, L"Preferred");
    DisplayId2DetailedResolutionListDataBlockR2 third;
    AddResolution<DisplayId2DetailedResolutionListDataBlockWindowR2>(driver, third, L"4:2:0");
    EXPECT_EQ(third.revision, 2);
}

TEST_F(DisplayIdForm, ABlockWithoutRoomTakesNoResolution) {
    DisplayId1DetailedResolutionListDataBlock block;
    Edit<DisplayId1DetailedResolutionListDataBlockWindow>(block, 22, [&] {
        EXPECT_FALSE(driver.Find<Button>({L"Detailed resolutions (no space left)", L"Add..."}).IsEnabled());
        auto& list = driver.Find<ListBox>(L"Detailed resolutions (no space left)");
        EXPECT_EQ(list.GetItemText(0), L"No detailed resolutions");
    });
}

TEST_F(DisplayIdForm, TheRevisionOfADetailedBlockStaysWithItsKind) {
    DisplayId2DetailedResolutionListDataBlock block;
    Edit<DisplayId2DetailedResolutionListDataBlockWindow>(block, 43, [&] {
        auto& revision = driver.Find<TextBox>(L"Revision");
        driver.Enter(revision, L"2");
        EXPECT_FALSE(revision.HasValidStyle());
        EXPECT_FALSE(Ok().IsEnabled());
        driver.Enter(revision, L"1");
        driver.Click(driver.Find<CheckBox>(L"DSC pass-through"));
    });
    EXPECT_EQ(block.revision, 1);
    EXPECT_EQ(block.resolutionFlags.GetBits(), 1u);
}

TEST_F(DisplayIdForm, ARateAbove255NeedsARevision) {
    DisplayId2RangeLimitsDataBlock block;
    Edit<DisplayId2RangeLimitsDataBlockWindow>(block, 12, [&] {
        driver.Press(Key::Tab);
        driver.Enter(driver.Find<TextBox>(L"Refresh rates"), L"48");
        driver.Press(Key::Tab);
        driver.Type(L"300");
        EXPECT_FALSE(Ok().IsEnabled());
        driver.Enter(driver.Find<TextBox>(L"Revision"), L"1");
        driver.Click(driver.Find<CheckBox>(L"Variable refresh rate"));
    });
    EXPECT_EQ(block.maxVRate, 300);
    EXPECT_EQ(block.rangeFlags.GetBits(), 0x20u);
}

TEST_F(DisplayIdForm, AnInterfaceListsItsColorimetry) {
    DisplayId2DisplayInterfaceDataBlock block;
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>(L"YCbCr 4:2:0 min pixel rate"), L"74.25");
        driver.Click(driver.Find<CheckBox>(L"44.1 kHz"));
        driver.Click(driver.Find<CheckBox>(L"BT.2020 + ST 2084 EOTF"));
        driver.Click(driver.Find<Button>({L"Colorimetry (2 slots left)", L"Add..."}));
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Colorimetry");
        driver.Choose(driver.Find<ComboBox>(L"Color space"), L"Other");
        driver.Enter(driver.Find<TextBox>(L"Color space"), L"16");
        EXPECT_FALSE(Ok().IsEnabled());
        driver.Enter(driver.Find<TextBox>(L"Color space"), L"9");
        driver.Choose(driver.Find<ComboBox>(L"EOTF"), L"ST 2084");
        driver.Click(Ok());
    });
    driver.Then([&] {
        EXPECT_EQ(driver.Find<ListBox>(L"Colorimetry (1 slot left)").GetItemText(0), L"Other (9) + ST 2084 EOTF");
        driver.Click(Ok());
    });
    EXPECT_EQ(DisplayId2DisplayInterfaceDataBlockWindow(nullptr).Run(block, 14), IdOk);
    Bytes bytes(13, 0);
    EXPECT_TRUE(block.Write(bytes));
    EXPECT_EQ(bytes, (Bytes{0x26, 0, 10, 0, 0, 0, 0, 1, 0x40, 0x40, 0, 1, 0x98}));
}

TEST_F(DisplayIdForm, AContainerIdTakesSixteenBytesAndNoOther) {
    DisplayId2ContainerIdDataBlock block;
    Edit<DisplayId2ContainerIdDataBlockWindow>(block, 19, [&] {
        auto& box = driver.Find<TextBox>(L"Container ID");
        for (const wchar_t* text : {L"", L"00112233", L"00112233445566778899AABBCCDDEEFF00", L"container"}) {
            driver.Enter(box, text);
            EXPECT_FALSE(box.HasValidStyle());
            EXPECT_FALSE(Ok().IsEnabled());
        }
        driver.Enter(box, L"00112233-4455-6677-8899-aabbccddeeff");
        EXPECT_TRUE(box.HasValidStyle());
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF");
    });
    EXPECT_EQ(block.containerId.At(15), 0xFF);
}

TEST_F(DisplayIdForm, BytesThatAreNoTimingOfAListAreSeenAndCanBeTakenAway) {
    DisplayId1DetailedResolutionListDataBlock block;
    block.resolutions.Add(DisplayId1DetailedResolution());
    block.Extra = Bytes{0x12, 0x34, 0x56};
    constexpr int bytes = 60;
    Edit<DisplayId1DetailedResolutionListDataBlockWindow>(block, bytes, [&] {
        driver.Click(driver.Find<Button>(L"Delete all"));
        const auto& controls = driver.GetWindow().GetControls();
        const auto isCaption = [](const Control* control) { return control->GetText().starts_with(L"Hex data ("); };
        const auto caption = std::find_if(controls.begin(), controls.end(), isCaption);
        ASSERT_NE(caption, controls.end());
        EXPECT_TRUE((*caption)->IsVisible());
        auto& box = driver.Find<TextBox>((*caption)->GetText());
        EXPECT_EQ(box.GetText(), L"12 34 56");
        driver.Enter(box, L"");
        EXPECT_TRUE((*caption)->IsVisible()) << "as long as the form is open";
    });
    EXPECT_TRUE(block.resolutions.IsEmpty());
    EXPECT_TRUE(block.Extra.IsEmpty());
    Edit<DisplayId1DetailedResolutionListDataBlockWindow>(block, bytes, [&] {
        for (const Control* control : driver.GetWindow().GetControls())
            EXPECT_FALSE(control->IsVisible() && control->GetText().starts_with(L"Hex data"));
    });
}

}  // namespace
