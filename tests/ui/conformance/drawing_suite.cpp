// What the controls look like in each state, on a screen or in the record of what was drawn.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

// A table with colours of its own for each state of each control, so that none can be taken for another's.
class Patchwork {
public:
    explicit Patchwork(int dpi) : Table(BuildStyleTable(dpi, Theme::Light)) {
        for (StateStyles* states :
             {&Table.Button.States, &Table.UncheckedBox.Box, &Table.UncheckedRadio.Box, &Table.ComboBox.States,
              &Table.ListBox.States, &Table.TextBox.States, &Table.MonospaceTextBox.States}) {
            for (StateStyle& style : states->Styles) {
                style = {Next(), Next(), Next(), 2, style.CornerRadius};
            }
        }
    }

    StyleTable Table;

private:
    Color Next() { return last += 0x010203; }

    Color last = 0x100000;
};

class Drawing : public testing::Test {
protected:
    Drawing() { ApplyTheme(window, Patchwork(window.GetDpi()).Table); }

    // Brings the control into each state as a user does.
    void ExpectEachState(AnyHotControl& control, const StateStyles& states, bool hasPressedLook) {
        MovePointerAway();
        window.SetFocus();
        ExpectStyle(control, states, ControlState::Normal);
        control.SetFocus();
        ExpectStyle(control, states, ControlState::Focused);
        Hover(control);
        ExpectStyle(control, states, ControlState::HotFocused);
        window.SetFocus();
        ExpectStyle(control, states, ControlState::Hot);
        if (hasPressedLook) {
            Hold(control);
            ExpectStyle(control, states, ControlState::Pressed);
            Release(control);
            Press(Key::Escape);
            ExpectStyle(control, states, ControlState::HotFocused);
        }
        MovePointerAway();
        ExpectStyle(control, states, hasPressedLook ? ControlState::Focused : ControlState::Normal);
        control.SetEnabled(false);
        ExpectStyle(control, states, ControlState::Disabled);
        control.SetEnabled(true);
        ExpectStyle(control, states, ControlState::Normal);
    }

    void ExpectStyle(const Control& control, const StateStyles& states, ControlState state) {
        EXPECT_TRUE(Shows(control, states[state].Background)) << static_cast<int>(state);
        for (int i = 0; i < ControlStateCount; ++i) {
            const auto other = static_cast<ControlState>(i);
            EXPECT_EQ(Shows(control, states[other].Border), other == state)
                << "kind " << static_cast<int>(control.GetKind()) << " in state " << static_cast<int>(state)
                << " with the border of " << i;
        }
    }

    void Do(const std::function<void()>& action) {
        RunWith(window, {[&] {
                    action();
                    EndRun(IdOk);
                }});
    }

    TestWindow window;
    AllControls all{window};
    const StyleTable& table = window.GetStyle();
};

}  // namespace

TEST_F(Drawing, OfAButtonFollowsItsStateInItsTextToo) {
    Do([&] {
        ExpectEachState(all.Ok, table.Button.States, true);
        EXPECT_TRUE(Shows(all.Ok, table.Button.States[ControlState::Normal].Text));
        all.Ok.SetEnabled(false);
        EXPECT_TRUE(Shows(all.Ok, table.Button.States[ControlState::Disabled].Text));
    });
}

TEST_F(Drawing, OfChecksAndComboBoxesFollowsTheirState) {
    Do([&] {
        ExpectEachState(all.Check, table.UncheckedBox.Box, true);
        ExpectEachState(all.Radio, table.UncheckedRadio.Box, true);
        ExpectEachState(all.Combo, table.ComboBox.States, true);
    });
}

TEST_F(Drawing, OfListsAndTextBoxesFollowsTheirStateWithoutAPressedOne) {
    Do([&] {
        ExpectEachState(all.List, table.ListBox.States, false);
        ExpectEachState(all.Box, table.TextBox.States, false);
        ExpectEachState(all.Lines, table.MonospaceTextBox.States, false);
    });
}

TEST_F(Drawing, OfACheckedBoxHasTheMarkAndTheStylesOfCheckedOnes) {
    StyleTable checked = table;
    checked.CheckedBox.Box = table.Button.States;
    checked.CheckedRadio.Box = table.ComboBox.States;
    ApplyTheme(window, checked);
    Do([&] {
        const Color mark = checked.CheckedBox.Box[ControlState::Normal].Text;
        EXPECT_FALSE(Shows(all.Check, mark));
        all.Check.SetChecked(true);
        all.Radio.SetChecked(true);
        EXPECT_TRUE(Shows(all.Check, mark));
        EXPECT_TRUE(Shows(all.Radio, checked.CheckedRadio.Box[ControlState::Normal].Text));
        window.SetFocus();
        ExpectStyle(all.Check, checked.CheckedBox.Box, ControlState::Normal);
        ExpectStyle(all.Radio, checked.CheckedRadio.Box, ControlState::Normal);
    });
}

TEST_F(Drawing, OfALabelAndAGroupBoxFollowsWhetherTheyAreEnabled) {
    StyleTable plain = table;
    plain.Label.Text = 0x104050;
    plain.Label.DisabledText = 0x504010;
    plain.GroupBox.Border = 0x203040;
    plain.GroupBox.DisabledBorder = 0x403020;
    ApplyTheme(window, plain);
    Do([&] {
        for (bool enabled : {true, false}) {
            all.Label.SetEnabled(enabled);
            all.Group.SetEnabled(enabled);
            EXPECT_EQ(Shows(all.Label, plain.Label.Text), enabled);
            EXPECT_EQ(Shows(all.Label, plain.Label.DisabledText), !enabled);
            for (Control* part : std::vector<Control*>{&all.Group, &all.Group.GetLeftEdge(), &all.Group.GetRightEdge(),
                                                       &all.Group.GetBottomEdge()}) {
                EXPECT_EQ(Shows(*part, plain.GroupBox.Border), enabled);
                EXPECT_EQ(Shows(*part, plain.GroupBox.DisabledBorder), !enabled);
            }
        }
    });
}

}  // namespace Conformance
