// A list with its buttons, in the sample's form.
#include "editor/list_controls.h"

#include <gtest/gtest.h>

#include "tests/editor/sample_form.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

struct ListTest : testing::Test {
    void Fill(std::initializer_list<int> numbers) {
        for (const int number : numbers) {
            Sample::Entry entry;
            entry.number = number;
            ASSERT_TRUE(item.entries.Add(entry));
        }
    }
    int Run(const std::function<void()>& steps) {
        Sample::ItemForm form;
        driver.Then([&] {
            list = &driver.Find<ListBox>(L"Map");
            steps();
            if (!isEnding) driver.Press(Key::Escape);
        });
        return form.Run(item);
    }
    void TearDown() override { EXPECT_EQ(driver.CountStepsLeft(), 0u); }
    void Confirm() {
        isEnding = true;
        driver.Click(driver.Find<Button>(L"OK"));
    }
    // What the list box shows.
    std::vector<std::wstring> GetRows() const {
        std::vector<std::wstring> rows;
        for (int i = 0; i < list->GetCount(); ++i) rows.push_back(list->GetItemText(i));
        return rows;
    }
    Button& Get(const wchar_t* caption) { return driver.Find<Button>({L"Map", caption}); }
    std::wstring GetUsable() {
        std::wstring usable;
        for (const wchar_t* caption : {L"Add...", L"Edit...", L"Delete", L"Delete all", L"\u25B2", L"\u25BC"})
            usable += Get(caption).IsEnabled() ? L'1' : L'0';
        return usable;
    }

    Driver driver;
    Sample::Item item;
    ListBox* list = nullptr;
    bool isEnding = false;
};

TEST_F(ListTest, ShowsItsItemsAndCaption) {
    Fill({4, 5});
    Run([&] {
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"4", L"5"}));
        driver.Find<GroupBox>(L"Entries (1 slot left)");
        EXPECT_EQ(list->GetSelection(), -1);
        EXPECT_EQ(GetUsable(), L"100100");
    });
}

TEST_F(ListTest, AnEmptyListHasARowThatSaysSoAndIsNoItem) {
    Run([&] {
        EXPECT_EQ(GetRows(), std::vector<std::wstring>{L"No entries"});
        EXPECT_EQ(GetUsable(), L"100000");
        driver.Click(*list, 0);
        EXPECT_EQ(GetUsable(), L"100000");
        driver.DoubleClick(*list, 0);
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Item") << "nothing opens";
    });
}

TEST_F(ListTest, EnterOnAButtonThatClosesConfirmsNothing) {
    Fill({1, 2, 3});
    for (const wchar_t* caption : {L"\u25B2", L"\u25BC", L"Delete"}) {
        const Driver fresh;
        const int result = Run([&] {
            driver.Click(*list, 1);
            Get(caption).SetFocus();
            for (int i = 0; i < 5; ++i) driver.Press(Key::Return);
            EXPECT_FALSE(Get(caption).IsEnabled());
            EXPECT_TRUE(list->HasFocus());
        });
        EXPECT_EQ(result, IdCancel) << "the form was left by Esc";
    }
}

TEST_F(ListTest, TheButtonsFollowTheSelection) {
    Fill({1, 2, 3});
    Run([&] {
        const std::wstring usable[] = {L"011101", L"011111", L"011110"};
        for (int row = 0; row < 3; ++row) {
            driver.Click(*list, row);
            EXPECT_EQ(GetUsable(), usable[row]) << row;
        }
    });
}

TEST_F(ListTest, AFullListTakesNoMoreButCanBeEdited) {
    Fill({1, 2});
    Run([&] {
        driver.Then([&] {
            driver.Enter(driver.Find<TextBox>(L"Number"), L"9");
            driver.Press(Key::Return);
        });
        driver.Click(Get(L"Add..."));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"1", L"2", L"9"}));
        EXPECT_EQ(list->GetSelection(), 2);
        driver.Find<GroupBox>(L"Entries (no space left)");
        EXPECT_EQ(GetUsable(), L"011110");
    });
}

TEST_F(ListTest, AddOpensTheFormOfANewItemAndCancelLeavesTheList) {
    Fill({7});
    Run([&] {
        driver.Click(*list, 0);
        driver.Then([&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"Entry");
            EXPECT_EQ(driver.Find<TextBox>(L"Number").GetText(), L"1");
            driver.Press(Key::Escape);
        });
        driver.Click(Get(L"Add..."));
        EXPECT_EQ(GetRows(), std::vector<std::wstring>{L"7"});
        EXPECT_EQ(list->GetSelection(), 0) << "the selection stays";
    });
}

TEST_F(ListTest, EditReplacesTheItem) {
    Fill({7, 8});
    const auto enterNine = [&] {
        EXPECT_EQ(driver.Find<TextBox>(L"Number").GetText(), L"8");
        driver.Enter(driver.Find<TextBox>(L"Number"), L"9");
        driver.Press(Key::Return);
    };
    Run([&] {
        driver.Then(enterNine);
        driver.Click(*list, 1);
        driver.Click(Get(L"Edit..."));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"7", L"9"}));
        EXPECT_EQ(list->GetSelection(), 1);
        Confirm();
    });
    EXPECT_EQ(item.entries.At(1).number, 9);
}

TEST_F(ListTest, ADoubleClickEditsTheItem) {
    Fill({7, 8});
    Run([&] {
        driver.Then([&] {
            EXPECT_EQ(driver.Find<TextBox>(L"Number").GetText(), L"7");
            driver.Press(Key::Escape);
        });
        driver.DoubleClick(*list, 0);
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"7", L"8"}));
        EXPECT_EQ(list->GetSelection(), 0);
    });
}

TEST_F(ListTest, ADoubleClickOnEmptySpaceOpensNothing) {
    Fill({7});
    Run([&] {
        driver.DoubleClick(*list, 3);
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Item");
    });
}

TEST_F(ListTest, DeletingTheLastItemLeavesNothingSelected) {
    Fill({1, 2});
    Run([&] {
        driver.Click(*list, 1);
        driver.Click(Get(L"Delete"));
        EXPECT_EQ(GetRows(), std::vector<std::wstring>{L"1"});
        EXPECT_EQ(list->GetSelection(), -1);
        EXPECT_EQ(GetUsable(), L"100100");
        driver.Click(*list, 0);
        driver.Click(Get(L"Delete"));
        EXPECT_EQ(GetRows(), std::vector<std::wstring>{L"No entries"});
        EXPECT_EQ(list->GetSelection(), -1);
        EXPECT_EQ(GetUsable(), L"100000");
    });
}

TEST_F(ListTest, DeletingAnotherItemSelectsTheNext) {
    Fill({1, 2, 3});
    Run([&] {
        driver.Click(*list, 1);
        driver.Click(Get(L"Delete"));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"1", L"3"}));
        EXPECT_EQ(list->GetSelection(), 1);
    });
}

TEST_F(ListTest, DeleteAllClearsTheList) {
    Fill({1, 2, 3});
    Run([&] {
        driver.Click(*list, 1);
        driver.Click(Get(L"Delete all"));
        EXPECT_EQ(GetRows(), std::vector<std::wstring>{L"No entries"});
        EXPECT_EQ(list->GetSelection(), -1);
        Confirm();
    });
    EXPECT_TRUE(item.entries.IsEmpty());
}

TEST_F(ListTest, UpAndDownMoveTheItemAndItsSelection) {
    Fill({1, 2, 3});
    Run([&] {
        driver.Click(*list, 0);
        driver.Click(Get(L"\u25BC"));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"2", L"1", L"3"}));
        EXPECT_EQ(list->GetSelection(), 1);
        driver.Click(Get(L"\u25BC"));
        driver.Click(Get(L"\u25BC"));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"2", L"3", L"1"}));
        EXPECT_EQ(list->GetSelection(), 2);
        EXPECT_EQ(GetUsable(), L"011110");
        driver.Click(Get(L"\u25B2"));
        EXPECT_EQ(GetRows(), (std::vector<std::wstring>{L"2", L"1", L"3"}));
        Confirm();
    });
    EXPECT_EQ(item.entries.At(1).number, 1);
}

TEST_F(ListTest, ARefreshKeepsTheScrollPosition) {
    Fill({1, 2, 3});
    Run([&] {
        driver.Click(*list, 1);
        list->SetSize(100, 2 * list->GetStyle().ItemHeight);
        list->SetTopIndex(1);
        driver.Click(Get(L"\u25BC"));
        EXPECT_EQ(list->GetTopIndex(), 1);
    });
}

TEST_F(ListTest, AListThatCantBeUsedDisablesAllItsControls) {
    UI::Window window(nullptr, L"ListWindow", L"");
    ListControls controls(window);
    controls.Fill = [&](int index) {
        if (index < 2) controls.ListBox.AddItem(L"item");
        return index < 2;
    };
    RefreshList(controls, 1);
    UpdateListControls(controls, 2, true, true);
    EXPECT_TRUE(controls.ListBox.IsEnabled() && controls.DeleteButton.IsEnabled() && controls.AddButton.IsEnabled());
    UpdateListControls(controls, 2, true, false);
    for (const Control* control : window.GetControls()) EXPECT_FALSE(control->IsEnabled());
}

TEST_F(ListTest, ALongerListThanItsRoomTurnsItsGroupRed) {
    Fill({1, 2, 3, 4});
    Run([&] {
        EXPECT_FALSE(driver.Find<GroupBox>(L"Entries (no space left)").HasValidStyle());
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Click(*list, 0);
        driver.Click(Get(L"Delete"));
        EXPECT_TRUE(driver.Find<GroupBox>(L"Entries (no space left)").HasValidStyle());
        EXPECT_TRUE(driver.Find<Button>(L"OK").IsEnabled());
    });
}

struct SizedList {
    int GetCount() const { return 2; }
    int GetSize() const { return 10; }
    struct Sized {
        int GetSize() const { return 4; }
    };
    Sized At(int) const { return {}; }
};

TEST(ListBudget, IsWhatTheOtherItemsLeave) {
    const TSizeListLimits<SizedList> bytes{15};
    EXPECT_EQ(Forms::GetBudget(SizedList(), bytes, 2), 5);
    EXPECT_EQ(Forms::GetBudget(SizedList(), bytes, 0), 9);
    const TFixedSizeListLimits<SizedList> fixed{12, 4};
    EXPECT_EQ(Forms::GetBudget(SizedList(), fixed, 2), 4);
    EXPECT_TRUE(Forms::HasRoom(SizedList(), fixed));
    EXPECT_FALSE(Forms::HasRoom(SizedList(), TFixedSizeListLimits<SizedList>{11, 4}));
    EXPECT_EQ(Forms::GetBudget(SizedList(), SlotListLimits{4, 18}, 1), 18);
}

}  // namespace
