// Windows that show part of their controls.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/native.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

// Buttons of a column, of which five show, above one that stays.
class ScrolledWindow : public TestWindow {
public:
    static constexpr int Count = 20;
    static constexpr int Step = 40;
    static constexpr Rect View{0, 0, 400, 5 * Step};

    ScrolledWindow() : group(*this, L"Group") {
        group.SetRect(10, 10, 300, Count * Step);
        for (int i = 0; i < Count; ++i) {
            buttons.push_back(std::make_unique<Button>(*this, L"Button " + std::to_wstring(i)));
            buttons.back()->SetRect(20, i * Step, 100, Step - 10);
        }
        stays = std::make_unique<Button>(*this, L"Stays");
        stays->SetRect(20, View.Bottom + 10, 100, Step - 10);
        BeginScrolling(View, Count * Step);
        group.SetView(View);
        for (const auto& button : buttons) button->SetView(View);
    }

    void Scrolled(int by) override {
        ++moves;
        group.SetPosition(group.GetX(), group.GetY() + by);
        for (const auto& button : buttons) button->SetPosition(button->GetX(), button->GetY() + by);
    }
    Button& At(int index) { return *buttons[static_cast<std::size_t>(index)]; }

    GroupBox group;
    std::vector<std::unique_ptr<Button>> buttons;
    std::unique_ptr<Button> stays;
    int moves = 0;
};

bool IsShown(const Window& window, const Control& control) {
    return control.GetY() >= window.GetView()->Top && control.GetBottom() <= window.GetView()->Bottom;
}

}  // namespace

TEST(Scrolling, EndsWhereThereIsNothingMoreToShow) {
    ScrolledWindow window;
    const int last = ScrolledWindow::Count * ScrolledWindow::Step - ScrolledWindow::View.Bottom;
    RunWith(window, {[&] {
                window.ScrollTo(-10);
                EXPECT_EQ(window.GetScrollPosition(), 0);
                EXPECT_EQ(window.moves, 0);
                window.ScrollTo(100);
                EXPECT_EQ(window.GetScrollPosition(), 100);
                EXPECT_EQ(window.At(0).GetY(), -100);
                EXPECT_EQ(window.group.GetY(), -90);
                EXPECT_EQ(window.group.GetLeftEdge().GetY(), -90 + window.group.GetStyle().Thickness.Top);
                window.ScrollTo(100000);
                EXPECT_EQ(window.GetScrollPosition(), last);
                EXPECT_EQ(window.moves, 2);
                EndRun(IdOk);
            }});
}

TEST(Scrolling, GoesWithTheFocusOfTheKeyboard) {
    ScrolledWindow window;
    RunWith(window, {[&] {
                for (int i = 0; i < ScrolledWindow::Count; ++i) {
                    EXPECT_TRUE(window.At(i).HasFocus()) << i;
                    EXPECT_TRUE(IsShown(window, window.At(i))) << i;
                    Press(Key::Tab);
                }
                const int last = window.GetScrollPosition();
                EXPECT_TRUE(window.stays->HasFocus());
                Press(Key::Tab);
                EXPECT_TRUE(window.At(0).HasFocus());
                EXPECT_TRUE(IsShown(window, window.At(0)));
                PressShiftTab();
                PressShiftTab();
                EXPECT_TRUE(IsShown(window, window.At(ScrolledWindow::Count - 1)));
                EXPECT_EQ(window.GetScrollPosition(), last);
                EndRun(IdOk);
            }});
}

TEST(Scrolling, ShowsAllAgainWhenItEnds) {
    ScrolledWindow window;
    RunWith(window, {[&] {
                window.ScrollTo(100);
                window.EndScrolling();
                EXPECT_FALSE(window.IsScrolling());
                EXPECT_EQ(window.GetScrollPosition(), 0);
                const int moves = window.moves;
                window.ScrollTo(50);
                EXPECT_EQ(window.moves, moves);
                for (const auto& button : window.buttons) button->SetView(std::nullopt);
                window.At(19).SetRect(20, 20, 100, 30);
                Click(window.At(19));
                EXPECT_TRUE(window.At(19).HasFocus());
                EndRun(IdOk);
            }});
}

TEST(Scrolling, LeavesRoomForTheFrameOfAWindowInTheWorkArea) {
    TestWindow window;
    const auto room = window.GetRoom();
    ASSERT_TRUE(room);
    window.SetClientSize(room->Width, room->Height);
    const auto area = Native::GetWorkArea(window.GetHandle());
    EXPECT_EQ(window.GetWidth(), area->Right - area->Left);
    EXPECT_EQ(window.GetHeight(), area->Bottom - area->Top);
}

TEST(Scrolling, TakesNothingAwayFromUnderThePointer) {
    EXPECT_FALSE(Native::IsPointerDown());
    ScrolledWindow window;
    RunWith(window, {[&] {
                // Its lower half is out of view.
                window.ScrollTo(20);
                Button& button = window.At(5);
                const int top = button.GetY();
                Hold(button);
                EXPECT_EQ(button.GetY(), top);
                Release(button);
                EXPECT_EQ(button.GetY(), top);
                EndRun(IdOk);
            }});
}

}  // namespace Conformance
