// Windows on several monitors: where they open, how large they may be, and the scale that they take.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/native.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

class SeveralMonitors : public testing::Test {
protected:
    void SetUp() override { ASSERT_GE(monitors.size(), 2u); }

    // Runs the window with `look` on each monitor in turn, once the window stands there: at its lower right corner.
    void Visit(Window& window, const std::function<void(const Monitor&)>& look) {
        Steps steps;
        for (const Monitor& monitor : monitors) {
            steps.push_back([&window, &monitor] {
                const Rect& area = monitor.WorkArea;
                window.SetPosition((area.Left + area.Right) / 2, (area.Top + area.Bottom) / 2);
            });
            // Of the size that the window has there.
            steps.push_back([&window, &monitor] {
                const Rect& area = monitor.WorkArea;
                window.SetPosition(area.Right - window.GetWidth(), area.Bottom - window.GetHeight());
            });
            steps.push_back([&look, &monitor] { look(monitor); });
        }
        steps.push_back([] { EndRun(IdOk); });
        RunWith(window, steps);
    }

    std::vector<Monitor> monitors = GetMonitors();
};

Size GetRoom(const Window& window, const Monitor& monitor) {
    const auto frame = Native::GetFrameSize({}, window.GetStyleFlags(), window.GetExtendedStyle(), monitor.Dpi);
    return {monitor.WorkArea.Right - monitor.WorkArea.Left - frame->Width,
            monitor.WorkArea.Bottom - monitor.WorkArea.Top - frame->Height};
}

}  // namespace

TEST_F(SeveralMonitors, TellTheirWorkAreaAndScaleToTheWindowThatStandsOnThem) {
    TestWindow window;
    Button button(window, L"OK");
    window.SetClientSize(200, 100);
    Visit(window, [&](const Monitor& monitor) {
        EXPECT_EQ(Native::GetWorkArea(window.GetHandle()), monitor.WorkArea);
        EXPECT_EQ(window.GetRoom(), GetRoom(window, monitor));
        EXPECT_EQ(window.GetDpi(), monitor.Dpi);
        EXPECT_EQ(window.GetStyle().Metrics.Spacing, 8 * monitor.Dpi / 96);
        EXPECT_EQ(button.GetFont().GetSpec().Height, 16 * monitor.Dpi / 96);
    });
}

TEST_F(SeveralMonitors, HoldAFormThatOpensWithinTheWorkAreaOfItsParents) {
    TestWindow window;
    window.SetClientSize(200, 100);
    Visit(window, [&](const Monitor& monitor) {
        const Size room = GetRoom(window, monitor);
        // More than its parent has, whose corner it would go beyond, and all that there is.
        for (const Size& size : {Size{500, 300}, room}) {
            TestWindow form(&window, L"ConformanceChild");
            EXPECT_EQ(form.GetDpi(), monitor.Dpi);
            EXPECT_EQ(form.GetRoom(), room);
            form.SetClientSize(size.Width, size.Height);
            form.Center();
            EXPECT_EQ(form.GetX() + form.GetWidth(), monitor.WorkArea.Right);
            EXPECT_EQ(form.GetY() + form.GetHeight(), monitor.WorkArea.Bottom);
            EXPECT_EQ(form.GetClientWidth(), size.Width);
            EXPECT_EQ(form.GetClientHeight(), size.Height);
            EXPECT_EQ(form.GetDpi(), monitor.Dpi);
        }
    });
}

TEST_F(SeveralMonitors, HoldAWindowThatGrowsWithinTheirWorkArea) {
    TestWindow window;
    window.SetClientSize(200, 100);
    Visit(window, [&](const Monitor& monitor) {
        const Size before{window.GetClientWidth(), window.GetClientHeight()};
        window.SetClientSize(before.Width + 60, before.Height + 40);
        window.StayInWorkArea();
        EXPECT_EQ(window.GetX() + window.GetWidth(), monitor.WorkArea.Right);
        EXPECT_EQ(window.GetY() + window.GetHeight(), monitor.WorkArea.Bottom);
        window.SetClientSize(before.Width, before.Height);
    });
}

}  // namespace Conformance
