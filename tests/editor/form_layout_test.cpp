// Where a form's controls stand.
#include <gtest/gtest.h>

#include "editor/range_limits_windows.h"
#include "tests/editor/sample_form.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

class FormLayout : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        driver.GetSystem().Dpi = GetParam();
        driver.GetSystem().WorkArea = {0, 0, 3840, 2160};
    }
    // Opens the form, does the steps, and cancels it.
    template <class Form, class Item>
    void Open(Item item, const std::function<void()>& steps) {
        Form form(nullptr);
        metrics = &form.GetStyle().Metrics;
        driver.Then([&] {
            steps();
            driver.Press(Key::Escape);
        });
        form.Run(item);
    }
    Button& Get(const wchar_t* text) { return driver.Find<Button>(text); }

    Driver driver;
    const LayoutMetrics* metrics = nullptr;
};

TEST_P(FormLayout, ANarrowFormIsAsWideAsItsTwoButtons) {
    Open<Sample::EntryWindow>(Sample::Entry(), [&] {
        const auto& group = driver.Find<GroupBox>(L"Number");
        EXPECT_EQ(group.GetX(), metrics->WindowPadding.Left);
        EXPECT_EQ(group.GetWidth(), metrics->FormWidth);
        EXPECT_EQ(metrics->FormWidth, 2 * metrics->OkButtonWidth + metrics->Spacing);
    });
}

TEST_P(FormLayout, AFormWithAListIsThreeTimesAsWide) {
    Open<Sample::ItemForm>(Sample::Item(), [&] {
        EXPECT_EQ(driver.Find<GroupBox>(L"Numbers").GetWidth(), 3 * metrics->FormWidth + 2 * metrics->Spacing);
    });
}

TEST_P(FormLayout, OkAndCancelStandBelowTheLastGroupAtItsRightEdge) {
    Open<Sample::EntryWindow>(Sample::Entry(), [&] {
        const auto& group = driver.Find<GroupBox>(L"Number");
        const Button& ok = Get(L"OK");
        const Button& cancel = Get(L"Cancel");
        EXPECT_EQ(cancel.GetRight(), group.GetRight());
        EXPECT_EQ(ok.GetX(), group.GetRight() - 2 * metrics->OkButtonWidth - metrics->Spacing);
        for (const Button* button : {&ok, &cancel}) {
            EXPECT_EQ(button->GetY(), group.GetBottom() + metrics->Spacing);
            EXPECT_EQ(button->GetWidth(), metrics->OkButtonWidth);
            EXPECT_EQ(button->GetHeight(), metrics->OkButtonHeight);
        }
        EXPECT_EQ(driver.GetWindow().GetClientWidth(), cancel.GetRight() + metrics->WindowPadding.Right);
        EXPECT_EQ(driver.GetWindow().GetClientHeight(), cancel.GetBottom() + metrics->WindowPadding.Bottom);
    });
}

TEST_P(FormLayout, AListStandsAboveItsButtons) {
    Open<Sample::ItemForm>(Sample::Item(), [&] {
        const auto& list = driver.Find<ListBox>(L"Entries (3 slots left)");
        const int top = list.GetBottom() + metrics->Spacing;
        int left = list.GetX();
        for (const wchar_t* text : {L"Add...", L"Edit...", L"Delete", L"Delete all"}) {
            const Button& button = Get(text);
            EXPECT_EQ(button.GetX(), left);
            EXPECT_EQ(button.GetY(), top);
            EXPECT_EQ(button.GetWidth(), button.Measure(text).Width);
            EXPECT_EQ(button.GetHeight(), metrics->ControlHeight);
            left = button.GetRight() + button.GetStyle().Gap;
        }
        const Button& up = Get(L"\u25B2");
        const Button& down = Get(L"\u25BC");
        EXPECT_EQ(down.GetRight(), list.GetRight());
        EXPECT_EQ(up.GetRight(), down.GetX() - up.GetStyle().Gap);
        for (const Button* button : {&up, &down}) {
            EXPECT_EQ(button->GetY(), top);
            EXPECT_EQ(button->GetWidth(), metrics->ControlHeight);
            EXPECT_EQ(button->GetHeight(), metrics->ControlHeight);
        }
    });
}

TEST_P(FormLayout, ABoxForALongTextTakesTheWidthOfItsGroup) {
    Open<Sample::ItemForm>(Sample::Item(), [&] {
        const auto& group = driver.Find<GroupBox>(L"Name (2 bytes left)");
        const auto& box = driver.Find<TextBox>(L"Name (2 bytes left)");
        const int inset = box.GetX() - group.GetX();
        EXPECT_GT(inset, 0);
        EXPECT_EQ(group.GetRight() - box.GetRight(), inset);
        EXPECT_GT(box.GetWidth(), 2 * driver.Find<TextBox>(L"Count:").GetWidth());
    });
}

TEST_P(FormLayout, GroupsStandOneBelowTheOther) {
    Open<EdidRangeLimitsSecondaryGtfTimingWindow>(EdidRangeLimitsSecondaryGtfTiming(), [&] {
        int bottom = 0;
        for (const wchar_t* caption : {L"Start frequency", L"C", L"M", L"K", L"J"}) {
            const auto& group = driver.Find<GroupBox>(caption);
            EXPECT_EQ(group.GetX(), metrics->WindowPadding.Left);
            EXPECT_GT(group.GetY(), bottom);
            bottom = group.GetBottom();
        }
    });
}

TEST_P(FormLayout, GroupsThatAScreenCantShowGoOnInAColumnBesideThem) {
    Open<Sample::ItemForm>(Sample::Item(), [&] {
        int columns = 1;
        const GroupBox* last = &driver.Find<GroupBox>(L"Numbers");
        const int top = last->GetY();
        for (const wchar_t* caption : {L"Rates", L"Name (2 bytes left)", L"Hex data (2 bytes left)", L"Kind", L"Radio",
                                       L"Flags", L"Bits", L"Entries (3 slots left)"}) {
            const auto& group = driver.Find<GroupBox>(caption);
            if (group.GetX() == last->GetX()) {
                EXPECT_GT(group.GetY(), last->GetBottom());
            } else {
                ++columns;
                EXPECT_EQ(group.GetX(), last->GetRight() + metrics->Spacing);
                EXPECT_EQ(group.GetY(), top);
            }
            EXPECT_GT(Get(L"OK").GetY(), group.GetBottom());
            last = &group;
        }
        EXPECT_EQ(columns, 2);
        EXPECT_EQ(Get(L"Cancel").GetRight(), last->GetRight());
        EXPECT_LE(driver.GetWindow().GetClientHeight(), 640 * GetParam() / 96);
    });
}

TEST_P(FormLayout, AFormStandsInTheMiddleOfItsParentAndWithinTheScreen) {
    Window parent(nullptr, L"ParentWindow", L"Parent");
    parent.SetClientSize(900, 900);
    for (const int y : {100, -2000}) {
        parent.SetPosition(-300, y);
        Sample::EntryWindow form(&parent);
        driver.Then([&] {
            EXPECT_EQ(form.GetX(), std::max(0, -300 + (parent.GetWidth() - form.GetWidth()) / 2));
            EXPECT_EQ(form.GetY(), std::max(0, y + (parent.GetHeight() - form.GetHeight()) / 2));
            driver.Press(Key::Escape);
        });
        Sample::Entry entry;
        form.Run(entry);
    }
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, FormLayout, testing::Values(96, 120, 144, 192));

}  // namespace
