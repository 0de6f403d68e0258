// Whether what is written can be read: in the light and the dark theme, and in the contrast themes of Windows.
#include "tests/support/contrast.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

#include "ui/closed_box.h"
#include "ui/controls.h"
#include "ui/headless/driver.h"
#include "ui/window.h"

namespace {

using namespace UI;
using enum SystemColor;
using Testing::GetContrast;

// As it is written in style sheets.
constexpr Color Web(Color rgb) { return rgb / 0x10000 + rgb / 0x100 % 0x100 * 0x100 + rgb % 0x100 * 0x10000; }

struct Scheme {
    const char* Name;
    UI::Theme Theme;
    Color Background, Text, Link, Disabled, SelectedText, Selected, ButtonText, ButtonFace;
};

class Contrast : public testing::TestWithParam<Scheme> {
protected:
    Contrast() {
        const Scheme& scheme = GetParam();
        driver.GetSystem().SetTheme(scheme.Theme);
        driver.GetSystem().Colors = {{SystemColor::Window, Web(scheme.Background)},
                                     {WindowText, Web(scheme.Text)},
                                     {HotLight, Web(scheme.Link)},
                                     {GrayText, Web(scheme.Disabled)},
                                     {HighlightText, Web(scheme.SelectedText)},
                                     {Highlight, Web(scheme.Selected)},
                                     {ButtonText, Web(scheme.ButtonText)},
                                     {ButtonFace, Web(scheme.ButtonFace)}};
        table = BuildStyleTable(96);
    }

    // Who cannot tell what is closed from what is open does not turn contrast themes on.
    double GetLeast(bool enabled) const {
        constexpr double text = 4.49;  // the system's own blue of what is selected, under white
        constexpr double dimmed = 2.3;
        return enabled || GetParam().Theme == Theme::HighContrast ? text : dimmed;
    }

    void ExpectReadable(const StateStyle& style, bool enabled, const std::string& what) const {
        EXPECT_GE(GetContrast(style.Text, style.Background), GetLeast(enabled)) << what;
    }

    void ExpectReadable(const StateStyles& states, const std::string& what) const {
        for (int i = 0; i < ControlStateCount; ++i) {
            const auto state = static_cast<ControlState>(i);
            ExpectReadable(states[state], state != ControlState::Disabled, what + ", state " + std::to_string(i));
        }
    }

    Headless::Driver driver;
    StyleTable table;
};

TEST_P(Contrast, OfButtonsTextsAndListsIsEnoughInEachState) {
    ExpectReadable(table.Button.States, "button");
    ExpectReadable(table.DefaultButton.States, "default button");
    ExpectReadable(table.TextBox.States, "text box");
    ExpectReadable(table.MonospaceTextBox.States, "text of several lines");
    for (const ListBoxStyle* list : {&table.ListBox, &table.ComboBox.List}) {
        ExpectReadable(list->States, "list");
        ExpectReadable(list->GetItem(true, true), true, "selected row");
        ExpectReadable(list->GetItem(false, true), false, "selected row of a closed list");
    }
}

TEST_P(Contrast, OfAComboBoxIsEnoughInEachState) {
    for (int i = 0; i < ControlStateCount; ++i) {
        const auto state = static_cast<ControlState>(i);
        const StateStyle closed = GetClosedStyle(table.ComboBox, state);
        const bool enabled = state != ControlState::Disabled;
        ExpectReadable(closed, enabled, "state " + std::to_string(i));
        const Color arrow = enabled ? table.ComboBox.Arrow : table.ComboBox.DisabledArrow;
        if (state == ControlState::Focused) continue;
        EXPECT_GE(GetContrast(arrow, closed.Background), std::min(3.0, GetLeast(enabled))) << i;
    }
}

TEST_P(Contrast, OfAHotComboBoxThatIsDrawnIsEnough) {
    UI::Window window(nullptr, L"ContrastWindow", L"Contrast");
    Controls::ComboBox box(window);
    box.AddItem(L"first");
    box.SetSelection(0);
    box.SetRect(10, 10, 100, 23);
    driver.Then([&] {
        driver.Hover(box);
        ASSERT_EQ(box.GetState(), ControlState::HotFocused);
        const Headless::Look& look = driver.GetLook(box);
        EXPECT_GE(GetContrast(look.Text, look.Background), GetLeast(true));
        window.SetFocus();
        driver.Hover(box);
        ASSERT_EQ(box.GetState(), ControlState::Hot);
        EXPECT_GE(GetContrast(look.Text, look.Background), GetLeast(true));
        EndRun(IdOk);
    });
    window.Run();
}

TEST_P(Contrast, OfLabelsChecksAndCaptionsIsEnough) {
    for (const bool enabled : {true, false}) {
        const auto expect = [&](Color text, Color disabled, Color background, const char* what) {
            EXPECT_GE(GetContrast(enabled ? text : disabled, background), GetLeast(enabled)) << what << enabled;
        };
        const LabelStyle& label = table.Label;
        const LabelStyle& caption = table.GroupBox.Caption;
        const CheckStyle& check = table.UncheckedBox;
        expect(label.Text, label.DisabledText, label.Background, "label");
        expect(caption.Text, caption.DisabledText, caption.Background, "caption");
        expect(check.Text, check.DisabledText, check.Background, "text beside a box");
    }
    for (const ControlState state : {ControlState::Normal, ControlState::Focused, ControlState::Hot,
                                     ControlState::HotFocused, ControlState::Pressed}) {
        // In the second contrast theme what is selected is white on a deep blue, which the mark takes on black.
        const StateStyle& box = table.CheckedBox.Box[state];
        EXPECT_GE(GetContrast(box.Text, box.Background), 2.4) << "the mark in state " << static_cast<int>(state);
    }
}

TEST_P(Contrast, OfWhatIsRedIsEnoughToSeeIt) {
    for (const StateStyles* states : {&table.InvalidTextBox.States, &table.InvalidMonospaceTextBox.States}) {
        const StateStyle& style = (*states)[ControlState::Normal];
        EXPECT_GE(GetContrast(style.Text, style.Background), 3);
        EXPECT_GE(GetContrast(style.Border, style.Background), 3);
    }
}

const Scheme Schemes[] = {
    {"Light", Theme::Light, 0, 0, 0, 0, 0, 0, 0, 0},
    {"Dark", Theme::Dark, 0, 0, 0, 0, 0, 0, 0, 0},
    {"Black", Theme::HighContrast, 0x000000, 0xFFFFFF, 0xFFFF00, 0x3FF23F, 0x000000, 0x1AEBFF, 0xFFFFFF, 0x000000},
    {"White", Theme::HighContrast, 0xFFFFFF, 0x000000, 0x00009F, 0x600000, 0xFFFFFF, 0x37006E, 0x000000, 0xFFFFFF},
    {"First", Theme::HighContrast, 0x000000, 0xFFFF00, 0x0000FF, 0x00FF00, 0xFFFFFF, 0x008000, 0xFFFFFF, 0x000000},
    {"Second", Theme::HighContrast, 0x000000, 0x00FF00, 0x8080FF, 0xC0C0C0, 0xFFFFFF, 0x0000FF, 0x00FF00, 0x000000},
    {"Aquatic", Theme::HighContrast, 0x202020, 0xFFFFFF, 0x75E9FC, 0xA6A6A6, 0x263B50, 0x8EE3F0, 0xFFFFFF, 0x202020},
    {"Desert", Theme::HighContrast, 0xFFFAEF, 0x3D3D3D, 0x1C5E75, 0x676767, 0xFFF5E3, 0x903909, 0x202020, 0xFFFAEF},
};

INSTANTIATE_TEST_SUITE_P(Schemes, Contrast, testing::ValuesIn(Schemes),
                         [](const auto& info) { return std::string(info.param.Name); });

}  // namespace
