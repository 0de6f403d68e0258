// Every test of this program looks at each state that its user comes to: where OK is closed, something visible says
// why.
#include "tests/support/closed_ok.h"

#include <functional>
#include <gtest/gtest.h>
#include <utility>

#include "model/core/text_string.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

void LookAt(const Window& window) {
    if (IsClosedForNoReason(window))
        ADD_FAILURE() << VNT::String(window.GetName()).ToUtf8() << ": OK is closed, and nothing that is seen says why";
}

class WatchedForms : public testing::Environment {
    void SetUp() override { Headless::GetDesktop().Watcher = LookAt; }
    void TearDown() override { Headless::GetDesktop().Watcher = nullptr; }
};

const auto* const watched = testing::AddGlobalTestEnvironment(new WatchedForms);

class ClosedOk : public testing::Test {
protected:
    explicit ClosedOk(const wchar_t* form = L"SampleWindow") : window(nullptr, form, L"Sample") {
        ok.SetEnabled(false);
    }

    // While the window is seen.
    void Do(const std::function<void()>& steps) {
        driver.Then([&] {
            steps();
            EndRun(IdCancel);
        });
        window.Run();
    }

    Headless::Driver driver;
    Window window;
    GroupBox group{window, L"Group"};
    TextBox box{window};
    Button ok{window, L"OK"};
};

TEST_F(ClosedOk, HasNoReasonWhereNothingIsRed) {
    Do([&] {
        EXPECT_TRUE(IsClosedForNoReason(window));
        ok.SetEnabled(true);
        EXPECT_FALSE(IsClosedForNoReason(window));
    });
}

TEST_F(ClosedOk, HasOneInARedBoxThatIsSeen) {
    Do([&] {
        box.SetValidStyle(false);
        EXPECT_FALSE(IsClosedForNoReason(window));
        box.SetVisible(false);
        EXPECT_TRUE(IsClosedForNoReason(window));
    });
}

TEST_F(ClosedOk, HasOneInARedGroup) {
    Do([&] {
        group.SetValidStyle(false);
        EXPECT_FALSE(IsClosedForNoReason(window));
    });
}

TEST_F(ClosedOk, HasOneInACaptionThatTellsOfNoRoom) {
    Do([&] {
        group.SetText(L"Group (no space left)");
        EXPECT_FALSE(IsClosedForNoReason(window));
    });
}

TEST_F(ClosedOk, IsLookedForBeforeEachInput) {
    int seen = 0;
    const auto watcher = std::exchange(Headless::GetDesktop().Watcher,
                                       [&seen](const Window& front) { seen += IsClosedForNoReason(front) ? 1 : 0; });
    Do([&] {
        driver.Press(Key::Tab);
        box.SetValidStyle(false);
        driver.Press(Key::Tab);
    });
    Headless::GetDesktop().Watcher = watcher;
    EXPECT_EQ(seen, 1);
}

class ClosedOkOfANewResolution : public ClosedOk {
protected:
    ClosedOkOfANewResolution() : ClosedOk(L"EdidCvtResolutionWindow") {}
};

TEST_F(ClosedOkOfANewResolution, HasOneInABoxThatIsToBeFilled) {
    Do([&] {
        EXPECT_FALSE(IsClosedForNoReason(window));
        box.SetText(L" ");
        EXPECT_FALSE(IsClosedForNoReason(window));
        box.SetText(L"1");
        EXPECT_TRUE(IsClosedForNoReason(window));
    });
}

}  // namespace
