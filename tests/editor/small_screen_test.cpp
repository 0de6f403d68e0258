// Every form on small screens: what stands where, and what can be reached.
#include <gtest/gtest.h>

#include "tests/editor/form_tour.h"
#include "tests/editor/main_window_form.h"
#include "tests/editor/sample_form.h"
#include "tests/editor/small_screens.h"
#include "tests/support/window_layout.h"

namespace {

using namespace Testing;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

bool IsWithin(const Rect& inner, const Rect& outer) {
    return inner.Left >= outer.Left && inner.Top >= outer.Top && inner.Right <= outer.Right &&
           inner.Bottom <= outer.Bottom;
}

// What the user can't come to by scrolling or by Tab.
std::wstring FindOutOfReach(Window& form) {
    if (!form.IsScrolling()) return {};
    const Rect view = *form.GetView();
    for (Control* control : form.GetControls()) {
        if (!control->IsVisible() || !control->GetView()) continue;
        form.Reveal(*control);
        const bool isHigher = control->GetHeight() > view.Bottom - view.Top;
        if (control->GetY() < view.Top || (control->GetBottom() > view.Bottom && !isHigher))
            return VNT::Testing::Named(*control);
    }
    form.ScrollTo(0);
    return {};
}

class SmallScreen : public testing::TestWithParam<SmallScreenCase> {
protected:
    // The main window of two displays, on the screen.
    void Run(const std::function<void(Window& window)>& steps) {
        const auto& [dpi, area, characterWidth] = GetParam();
        driver.GetSystem().CharacterWidth = characterWidth;
        if (area.Left == 0 && area.Top == 0) {
            driver.GetSystem().Dpi = dpi;
            driver.GetSystem().WorkArea = area;
        } else {
            driver.GetSystem().OtherMonitors = {{area, area, dpi}};
        }
        MainWindow window({MakeDisplay(L"DISPLAY\\A\\1", MakeEdid("AAA", "FIRST")),
                           MakeDisplay(L"DISPLAY\\B\\2", MakeEdid("BBB", ""))});
        window.SetPosition(area.Left, area.Top);
        driver.Then([&] {
            steps(window);
            EndRun(IdCancel);
        });
        window.Run();
    }
    void Expect(Window& form, const std::string& name) {
        SCOPED_TRACE(name);
        const Rect place{form.GetX(), form.GetY(), form.GetX() + form.GetWidth(), form.GetY() + form.GetHeight()};
        EXPECT_TRUE(IsWithin(place, GetParam().WorkArea))
            << place.Left << ", " << place.Top << " to " << place.Right << ", " << place.Bottom;
        EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"");
        EXPECT_EQ(FindOutOfReach(form), L"");
        for (const Control* control : form.GetControls()) {
            const auto* list = dynamic_cast<const ListBox*>(control);
            if (!list || !list->IsVisible()) continue;
            constexpr int least = 3;
            EXPECT_GE(list->GetHeight(), least * list->GetStyle().ItemHeight);
        }
        for (const wchar_t* text : {L"OK", L"Cancel"}) {
            const Button& button = driver.Find<Button>(text);
            EXPECT_FALSE(button.GetView());
        }
    }

    Driver driver;
};

TEST_P(SmallScreen, HoldsTheMainWindowAndEveryFormWithAllButtons) {
    auto& script = UI::Headless::GetDesktop().Script;
    FormTour tour([&script](auto step) { script.push_front(std::move(step)); },
                  [this](Window& form, const std::string& name) { Expect(form, name); });
    Run([&](Window& window) {
        tour.Begin(window, "one");
        driver.Choose(driver.Find<ComboBox>(L"Display:"), 1);
        tour.Begin(window, "two");
    });
    EXPECT_GT(tour.GetSeen().size(), 50u);
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, SmallScreen, testing::ValuesIn(SmallScreens));

// How a form with two lists of three and six rows stands on a screen of that height.
struct Stand {
    int Columns = 0;
    int Rows = 0;  // of the longest list
    bool Scrolls = false;
    int Height = 0;
};

class ShrinkingScreen : public testing::Test {
protected:
    Stand Look(Rect area) {
        driver.GetSystem().WorkArea = area;
        Stand stand;
        Sample::ItemForm form;
        driver.Then([&] {
            std::set<int> lefts;
            for (const Control* control : form.GetControls()) {
                const auto* box = dynamic_cast<const GroupBox*>(control);
                if (box && box->IsVisible()) lefts.insert(box->GetX());
                const auto* list = dynamic_cast<const ListBox*>(control);
                if (list) stand.Rows = std::max(stand.Rows, list->GetHeight() / list->GetStyle().ItemHeight);
            }
            stand.Columns = static_cast<int>(lefts.size());
            stand.Scrolls = form.IsScrolling();
            stand.Height = form.GetHeight();
            EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"");
            driver.Press(Key::Escape);
        });
        Sample::Item item;
        form.Run(item);
        return stand;
    }

    Driver driver;
};

TEST_F(ShrinkingScreen, TakesRowsFromListsThenPutsGroupsSideBySideThenScrolls) {
    constexpr int least = 3;
    constexpr int wide = 4000;
    Stand last = Look({0, 0, wide, 3000});
    EXPECT_FALSE(last.Scrolls);
    int scrolled = 0;
    bool hasFewer = false;
    for (int height = 800; height >= 240; height -= 10) {
        SCOPED_TRACE(height);
        const Stand now = Look({0, 0, wide, height});
        EXPECT_LE(now.Height, height);
        EXPECT_GE(now.Rows, least);
        EXPECT_GE(now.Columns, last.Columns);
        // Another column only where the lists had nothing left to give.
        EXPECT_TRUE(now.Rows <= last.Rows || now.Columns > last.Columns);
        hasFewer = hasFewer || now.Rows < last.Rows;
        EXPECT_TRUE(now.Rows == least || !now.Scrolls);
        EXPECT_TRUE(now.Scrolls || !last.Scrolls);
        scrolled += now.Scrolls ? 1 : 0;
        last = now;
    }
    EXPECT_TRUE(hasFewer);
    EXPECT_GT(scrolled, 0);
}

TEST_F(ShrinkingScreen, ScrollsInOneColumnWhereNoOtherFits) {
    Stand last;
    for (int width = 700; last.Columns != 1; width -= 20) {
        ASSERT_GT(width, 200);
        last = Look({0, 0, width, 500});
        EXPECT_TRUE(last.Scrolls);
        EXPECT_LE(last.Columns, 2);
    }
}

class ScrollingForm : public ShrinkingScreen {
protected:
    // The sample form on a screen that shows part of it.
    void Open(const std::function<void(Sample::ItemForm&)>& steps) {
        driver.GetSystem().WorkArea = {0, 0, 700, 500};
        Sample::ItemForm form;
        driver.Then([&] {
            ASSERT_TRUE(form.IsScrolling());
            steps(form);
            driver.Press(Key::Escape);
        });
        Sample::Item item;
        form.Run(item);
    }
};

TEST_F(ScrollingForm, FollowsTheFocusThroughAllStops) {
    Open([&](Sample::ItemForm& form) {
        const Control* first = driver.GetFocused();
        std::set<int> positions;
        int stops = 0;
        do {
            const Control* focused = driver.GetFocused();
            ASSERT_NE(focused, nullptr);
            EXPECT_TRUE(Driver::IsInView(*focused));
            if (focused->GetView()) {
                EXPECT_GE(focused->GetY(), form.GetView()->Top);
                EXPECT_LE(focused->GetBottom(), form.GetView()->Bottom);
            }
            positions.insert(form.GetScrollPosition());
            driver.Press(Key::Tab);
            ++stops;
        } while (driver.GetFocused() != first && stops < 200);
        EXPECT_LT(stops, 200);
        EXPECT_GT(positions.size(), 2u);
        // And back, from the top to the bottom at once.
        driver.Press(Key::Tab, Headless::Modifier::Shift);
        EXPECT_EQ(driver.GetFocused()->GetText(), L"Cancel");
        driver.Press(Key::Tab, Headless::Modifier::Shift);
        EXPECT_EQ(driver.GetFocused()->GetText(), L"OK");
        driver.Press(Key::Tab, Headless::Modifier::Shift);
        EXPECT_TRUE(Driver::IsInView(*driver.GetFocused()));
        EXPECT_EQ(form.GetScrollPosition(), form.GetScrollHeight() - form.GetView()->Bottom);
    });
}

TEST_F(ScrollingForm, TurnsWithTheWheelAndKeepsOkAndCancelWhereTheyAre) {
    Open([&](Sample::ItemForm& form) {
        auto& box = driver.Find<TextBox>(L"Count:");
        const auto& ok = driver.Find<Button>(L"OK");
        const int top = ok.GetY();
        const int before = box.GetY();
        EXPECT_TRUE(Driver::IsInView(box));
        driver.TurnWheel(2);
        EXPECT_EQ(box.GetY(), before - form.GetScrollPosition());
        EXPECT_EQ(form.GetScrollPosition(), 4 * form.GetStyle().Metrics.ControlHeight);
        EXPECT_FALSE(Driver::IsInView(box));
        EXPECT_EQ(ok.GetY(), top);
        EXPECT_TRUE(Driver::IsInView(ok));
        driver.TurnWheel(1000);
        EXPECT_EQ(form.GetScrollPosition(), form.GetScrollHeight() - form.GetView()->Bottom);
        EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"");
        driver.TurnWheel(-1000);
        EXPECT_EQ(box.GetY(), before);
    });
}

TEST_F(ScrollingForm, StaysWhereItIsWhileItsValuesChange) {
    Open([&](Sample::ItemForm& form) {
        driver.TurnWheel(3);
        const int position = form.GetScrollPosition();
        form.Update();
        EXPECT_EQ(form.GetScrollPosition(), position);
        // What is typed is seen.
        driver.Find<TextBox>(L"Count:").SetFocus();
        driver.TurnWheel(1000);
        driver.Press(Key::Back);
        EXPECT_TRUE(Driver::IsInView(driver.Find<TextBox>(L"Count:")));
    });
}

TEST_F(ScrollingForm, ShowsAllAgainOnALargerScreen) {
    Open([&](Sample::ItemForm& form) {
        driver.TurnWheel(1000);
        driver.GetSystem().OtherMonitors = {{{2000, 0, 6000, 2000}, {2000, 0, 6000, 2000}, 120}};
        form.SetPosition(3000, 100);
        EXPECT_FALSE(form.IsScrolling());
        EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"");
        for (const Control* control : form.GetControls()) EXPECT_FALSE(control->GetView());
    });
}

}  // namespace
