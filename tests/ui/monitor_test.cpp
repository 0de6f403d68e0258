// Monitors of different scale: where windows open, and what happens to one that moves.
#include <gtest/gtest.h>

#include "ui/headless/driver.h"
#include "ui/native.h"

namespace UI {

namespace {

class Monitors : public testing::Test {
protected:
    Headless::Driver driver;

    Monitors() {
        driver.GetSystem().OtherMonitors = {{{1920, 0, 5760, 2160}, {1920, 0, 5760, 2080}, 192},
                                            {{-1366, -768, 0, 0}, {-1366, -768, 0, -40}, 120}};
    }
};

TEST_F(Monitors, GiveANewWindowTheScaleOfTheOneThatItsParentStandsOn) {
    Window parent(nullptr, L"MonitorParent", L"Parent");
    parent.SetClientSize(400, 300);
    EXPECT_EQ(parent.GetDpi(), 96);
    parent.SetPosition(3000, 500);
    EXPECT_EQ(parent.GetDpi(), 192);
    Window form(&parent, L"MonitorForm", L"Form");
    EXPECT_EQ(form.GetDpi(), 192);
    EXPECT_EQ(form.GetStyle().Metrics.Spacing, 16);
    Window primary(nullptr, L"MonitorOther", L"Other");
    EXPECT_EQ(primary.GetDpi(), 96);
}

TEST_F(Monitors, RestyleAWindowThatComesToThem) {
    Window window(nullptr, L"MonitorWindow", L"Window");
    Controls::Button button(window, L"OK");
    window.SetClientSize(400, 300);
    window.SetPosition(100, 100);
    const int width = window.GetWidth();
    window.SetPosition(2500, 100);
    EXPECT_EQ(window.GetStyle().Metrics.ControlHeight, 47);
    EXPECT_EQ(button.GetFont().GetSpec().Height, 32);
    EXPECT_EQ(window.GetWidth(), 2 * width);
    window.SetPosition(-1000, -600);
    EXPECT_EQ(button.GetFont().GetSpec().Height, 20);
    EXPECT_EQ(window.GetDpi(), 120);
}

TEST_F(Monitors, HoldAFormWithinTheWorkAreaOfTheirOwn) {
    Window parent(nullptr, L"MonitorParent", L"Parent");
    parent.SetClientSize(300, 200);
    parent.SetPosition(-1360, -760);
    Window form(&parent, L"MonitorForm", L"Form");
    form.SetClientSize(800, 400);
    form.Center();
    EXPECT_EQ(form.GetX(), -1366);
    EXPECT_EQ(form.GetY(), -768);
    parent.SetPosition(-320, -230);
    form.Center();
    EXPECT_EQ(form.GetX() + form.GetWidth(), 0);
    EXPECT_EQ(form.GetY() + form.GetHeight(), -40);
}

}  // namespace

}  // namespace UI
