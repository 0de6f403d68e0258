// Choosers, and the tables of forms behind them.
#include "editor/add_window.h"

#include <gtest/gtest.h>

#include "editor/cta_data_block_windows.h"
#include "editor/descriptor_windows.h"
#include "editor/displayid_data_block_windows.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

std::vector<AddRow> MakeRows(const std::vector<std::string>& names) {
    std::vector<AddRow> rows;
    for (const std::string& name : names) rows.push_back({static_cast<int>(rows.size()) + 100, name.c_str()});
    return rows;
}

struct ChooserTest : testing::Test {
    int Run(std::vector<AddRow> rows, const std::function<void(Window&)>& steps) {
        AddWindow chooser(nullptr, L"AddSampleWindow", L"Add Sample", std::move(rows));
        driver.Then([&] { steps(chooser); });
        return chooser.Run(type);
    }
    Driver driver;
    int type = -1;
};

TEST_F(ChooserTest, TheFirstRowIsSelectedAndOkGivesTheSelectedOne) {
    const std::vector<std::string> names{"One", "Two", "Three"};
    EXPECT_EQ(Run(MakeRows(names),
                  [&](Window& window) {
                      EXPECT_EQ(window.GetTitle(), L"Add Sample");
                      driver.Find<GroupBox>(L"Type");
                      EXPECT_TRUE(driver.Find<RadioButton>(L"One").IsChecked());
                      driver.Click(driver.Find<RadioButton>(L"Three"));
                      EXPECT_FALSE(driver.Find<RadioButton>(L"One").IsChecked());
                      driver.Press(Key::Return);
                  }),
              1);
    EXPECT_EQ(type, 102);
}

TEST_F(ChooserTest, CancelGivesNoType) {
    const std::vector<std::string> names{"One", "Two"};
    EXPECT_EQ(Run(MakeRows(names), [&](Window&) { driver.Press(Key::Escape); }), 2);
    EXPECT_EQ(type, -1);
}

TEST_F(ChooserTest, ARowThatCantBeChosenDisablesOkWhileItIsSelected) {
    Run({{1, "One", false}, {2, "Two", true}}, [&](Window&) {
        EXPECT_FALSE(driver.Find<RadioButton>(L"One").IsEnabled());
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        EXPECT_EQ(driver.Find<Button>(L"OK").GetHint(), L"No space left");
        EXPECT_FALSE(driver.Find<GroupBox>(L"Type").HasValidStyle());
        driver.Click(driver.Find<RadioButton>(L"Two"));
        EXPECT_TRUE(driver.Find<Button>(L"OK").IsEnabled());
        EXPECT_TRUE(driver.Find<GroupBox>(L"Type").HasValidStyle());
        driver.Press(Key::Return);
    });
    EXPECT_EQ(type, 2);
}

TEST_F(ChooserTest, TabAndTheArrowKeysReachTheRowsBehindOneThatCantBeChosen) {
    Run({{1, "One", false}, {2, "Two", true}, {3, "Three", true}}, [&](Window&) {
        EXPECT_TRUE(driver.Find<RadioButton>(L"One").IsChecked());
        EXPECT_TRUE(driver.Find<RadioButton>(L"Two").HasFocus()) << "the first that can be used";
        driver.Press(Key::Down);
        EXPECT_TRUE(driver.Find<RadioButton>(L"Three").IsChecked());
        driver.Press(Key::Up);
        EXPECT_TRUE(driver.Find<RadioButton>(L"Two").IsChecked());
        driver.Press(Key::Return);
    });
    EXPECT_EQ(type, 2);
}

TEST_F(ChooserTest, MoreThan24RowsStandInTwoColumns) {
    std::vector<std::string> names;
    for (int i = 0; i < 26; ++i) names.push_back("Row " + std::to_string(i));
    Run(MakeRows(names), [&](Window&) {
        const auto& first = driver.Find<RadioButton>(L"Row 0");
        const auto& second = driver.Find<RadioButton>(L"Row 1");
        const auto& last = driver.Find<RadioButton>(L"Row 23");
        const auto& next = driver.Find<RadioButton>(L"Row 24");
        EXPECT_EQ(second.GetX(), first.GetX());
        EXPECT_GT(second.GetY(), first.GetBottom());
        EXPECT_EQ(last.GetX(), first.GetX());
        EXPECT_EQ(next.GetX(), last.GetRight());
        EXPECT_EQ(next.GetY(), first.GetY());
        EXPECT_EQ(driver.Find<RadioButton>(L"Row 25").GetY(), second.GetY());
        driver.Press(Key::Escape);
    });
}

TEST_F(ChooserTest, TwentyFourRowsStandInOne) {
    std::vector<std::string> names;
    for (int i = 0; i < 24; ++i) names.push_back("R" + std::to_string(i));
    Run(MakeRows(names), [&](Window&) {
        EXPECT_EQ(driver.Find<RadioButton>(L"R23").GetX(), driver.Find<RadioButton>(L"R0").GetX());
        driver.Press(Key::Escape);
    });
}

struct DispatcherTest : testing::Test {
    void TearDown() override { EXPECT_EQ(driver.CountStepsLeft(), 0u); }
    int Edit() { return EditEdidDescriptor(nullptr, holder, 18); }
    Driver driver;
    EdidDescriptor holder;
};

TEST_F(DispatcherTest, AnEmptyHolderGoesThroughTheChooser) {
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Descriptor");
        driver.Click(driver.Find<RadioButton>(L"Serial number"));
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Serial Number");
        driver.Enter(driver.Find<TextBox>(L"Serial number (13 bytes left)"), L"12345");
        driver.Press(Key::Return);
    });
    EXPECT_EQ(Edit(), 1);
    EdidSerialNumberDescriptor item;
    ASSERT_TRUE(item.Assign(holder));
    EXPECT_EQ(item.text, U"12345");
}

TEST_F(DispatcherTest, AFilledHolderGoesToItsForm) {
    EdidTextDescriptor item;
    item.text = U"hello";
    holder.Assign(item);
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Text");
        EXPECT_EQ(driver.Find<TextBox>(L"Text (8 bytes left)").GetText(), L"hello");
        driver.Press(Key::Escape);
    });
    EXPECT_EQ(Edit(), 2);
    EXPECT_EQ(holder, EdidDescriptor(item.Clone()));
}

TEST_F(DispatcherTest, ACancelledChooserOpensNoForm) {
    driver.Then([&] { driver.Press(Key::Escape); });
    EXPECT_EQ(Edit(), 2);
    EXPECT_TRUE(holder.IsEmpty());
}

TEST_F(DispatcherTest, ACancelledFormLeavesTheHolderEmpty) {
    driver.Then([&] { driver.Press(Key::Return); });
    driver.Then([&] { driver.Press(Key::Escape); });
    EXPECT_EQ(Edit(), 2);
    EXPECT_TRUE(holder.IsEmpty());
}

TEST_F(DispatcherTest, TheChoosersOfDataBlocksLookAtTheRoom) {
    const auto expectRow = [&](const wchar_t* row, bool isEnabled) {
        driver.Then([this, row, isEnabled] {
            EXPECT_EQ(driver.Find<RadioButton>(row).IsEnabled(), isEnabled);
            driver.Press(Key::Escape);
        });
    };
    CtaDataBlock block;
    expectRow(L"Colorimetry", false);
    EditCtaDataBlock(nullptr, block, 3);
    expectRow(L"Colorimetry", true);
    EditCtaDataBlock(nullptr, block, 4);
    DisplayIdDataBlock displayId;
    for (const int version : {1, 2}) {
        expectRow(L"Vendor-specific", false);
        EditDisplayIdDataBlock(nullptr, displayId, 5, version);
        expectRow(L"Vendor-specific", true);
        EditDisplayIdDataBlock(nullptr, displayId, 6, version);
        expectRow(L"Detailed resolutions", true);
        EditDisplayIdDataBlock(nullptr, displayId, 3, version);
    }
}

TEST_F(DispatcherTest, EmptyAndOtherDescriptorsHaveNoForm) {
    holder.Assign(EdidEmptyDescriptor());
    EXPECT_EQ(Edit(), 2);
    holder.Assign(EdidOtherDescriptor());
    EXPECT_EQ(Edit(), 2);
}

}  // namespace
