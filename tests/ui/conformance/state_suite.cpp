// What the controls keep, and the state they look like.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

// Does something to an open window with all controls.
void WithOpenWindow(const std::function<void(TestWindow&, AllControls&)>& action) {
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                action(window, all);
                EndRun(IdOk);
            }});
}

}  // namespace

TEST(State, DisablingTheFocusedControlMovesTheFocusToTheWindow) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        for (Control* control : std::vector<Control*>{&all.Box, &all.Lines, &all.Check, &all.Combo, &all.List}) {
            control->SetFocus();
            ASSERT_TRUE(control->HasFocus());
            control->SetEnabled(false);
            EXPECT_FALSE(control->IsEnabled());
            EXPECT_FALSE(control->HasFocus());
            EXPECT_TRUE(window.HasFocus());
        }
        Press(Key::Tab);
        EXPECT_TRUE(all.Ok.HasFocus()) << "the keyboard is not lost";
    });
}

TEST(State, DisablingAnotherControlLeavesTheFocus) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        all.Box.SetFocus();
        all.Ok.SetEnabled(false);
        EXPECT_TRUE(all.Box.HasFocus());
    });
}

TEST(State, DisablingTheFocusedDefaultButtonClearsTheFlagToo) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        all.Ok.SetDefault(true);
        all.Ok.SetFocus();
        all.Ok.SetEnabled(false);
        EXPECT_TRUE(window.HasFocus());
        EXPECT_FALSE(all.Ok.IsDefault());
        EXPECT_EQ(all.Ok.GetState(), ControlState::Disabled);
        all.Ok.SetEnabled(true);
        EXPECT_EQ(all.Ok.GetState(), ControlState::Normal);
    });
}

TEST(State, EnablingAButtonLeavesItsDefaultFlag) {
    TestWindow window;
    Button button(window, L"Button");
    button.SetDefault(true);
    button.SetEnabled(true);
    EXPECT_TRUE(button.IsDefault());
}

TEST(State, ADefaultButtonLooksFocusedWithoutTheFocus) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        EXPECT_EQ(all.Ok.GetState(), ControlState::Normal);
        all.Ok.SetDefault(true);
        EXPECT_FALSE(all.Ok.HasFocus());
        EXPECT_EQ(all.Ok.GetState(), ControlState::Focused);
        EXPECT_EQ(all.Ok.GetStyle().States[all.Ok.GetState()].Border,
                  window.GetStyle().Button.States[ControlState::Focused].Border);
        Hover(all.Ok);
        EXPECT_EQ(all.Ok.GetState(), ControlState::HotFocused);
        MovePointerAway();
        all.Ok.SetDefault(false);
        EXPECT_EQ(all.Ok.GetState(), ControlState::Normal);
    });
}

TEST(State, TheFirstThatAppliesWins) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        for (AnyHotControl* control : std::vector<AnyHotControl*>{&all.Ok, &all.Check, &all.Radio, &all.Combo,
                                                                  &all.List, &all.Box, &all.Lines}) {
            EXPECT_EQ(control->GetState(), ControlState::Normal);
            control->SetFocus();
            EXPECT_EQ(control->GetState(), ControlState::Focused);
            Hover(*control);
            EXPECT_TRUE(control->IsHot());
            EXPECT_EQ(control->GetState(), ControlState::HotFocused);
            EXPECT_EQ(control->GetState(true), ControlState::Pressed);
            window.SetFocus();
            EXPECT_EQ(control->GetState(), ControlState::Hot);
            EXPECT_EQ(control->GetState(true), ControlState::Pressed);
            MovePointerAway();
            EXPECT_FALSE(control->IsHot());
            EXPECT_EQ(control->GetState(), ControlState::Normal);
            control->SetEnabled(false);
            EXPECT_EQ(control->GetState(true), ControlState::Disabled);
        }
    });
}

TEST(State, AControlStaysHotUntilThePointerMoves) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        Hover(all.Check);
        all.Check.SetVisible(false);
        EXPECT_TRUE(all.Check.IsHot());
        Hover(all.Ok);
        EXPECT_FALSE(all.Check.IsHot());
        EXPECT_TRUE(all.Ok.IsHot());
    });
}

TEST(State, ADisabledTextBoxHasTheDisabledColours) {
    TestWindow window;
    TextBox box(window);
    const StateStyles& states = window.GetStyle().TextBox.States;
    EXPECT_EQ(box.GetStyle().States[box.GetState()], states[ControlState::Normal]);
    box.SetEnabled(false);
    const StateStyle& style = box.GetStyle().States[box.GetState()];
    EXPECT_EQ(style, states[ControlState::Disabled]);
    EXPECT_NE(style.Text, states[ControlState::Normal].Text);
}

TEST(State, AnInvalidTextBoxIsRedAndKeepsItsTextAndFocus) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        for (TextBox* box : {&all.Box, &all.Lines}) {
            box->SetFocus();
            Type(L"xy");
            box->SetValidStyle(false);
            EXPECT_FALSE(box->HasValidStyle());
            EXPECT_EQ(box->GetStyle().States[box->GetState()].Text, 0x0000FFu);
            EXPECT_EQ(box->GetStyle().States[box->GetState()].Border, 0x0000FFu);
            EXPECT_TRUE(box->HasFocus());
            EXPECT_EQ(box->GetText(), L"xy");
            box->SetValidStyle(true);
            EXPECT_EQ(box->GetStyle(),
                      box == &all.Box ? window.GetStyle().TextBox : window.GetStyle().MonospaceTextBox);
        }
    });
}

TEST(State, HasANameOfTheControlsOwnOrFromWhatItStandsBehind) {
    TestWindow window;
    AllControls all(window);
    EXPECT_EQ(all.Ok.GetName(), L"OK");
    EXPECT_EQ(all.Check.GetName(), L"Check");
    EXPECT_EQ(all.Box.GetName(), L"Label:");
    all.Box.SetText(L"typed");
    EXPECT_EQ(all.Box.GetName(), L"Label:") << "what stands in it is its value";
    all.Box.SetName(L"Width");
    EXPECT_EQ(all.Box.GetName(), L"Width");
    all.Box.SetName(L"");
    EXPECT_EQ(all.Box.GetName(), L"Label:");
    EXPECT_TRUE(all.Label.PlaceAfter(all.Box));
    EXPECT_EQ(all.Box.GetName(), L"Group");
    EXPECT_EQ(all.Lines.GetName(), L"Label:");
}

TEST(State, ABoxThatTurnsRedKeepsAllButItsLooks) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        for (TextBox* box : {&all.Box, &all.Lines}) {
            int others = 0;
            for (const int message : {Message::ThemeChanged, Message::SetText})
                box->AddMessageHandler(message, [&](WParam, LParam) { ++others; });
            box->SetText(L"abcdef");
            box->SetFocus();
            box->Select(2, 4);
            others = 0;
            const Rect place = Native::GetWindowPlace(box->GetHandle());
            const std::wstring name = box->GetName();
            for (const bool valid : {false, true}) {
                box->SetValidStyle(valid);
                int begin = -1;
                int end = -1;
                box->GetSelection(begin, end);
                EXPECT_EQ(begin, 2);
                EXPECT_EQ(end, 4);
                EXPECT_EQ(Native::GetWindowPlace(box->GetHandle()), place);
                EXPECT_EQ(box->GetName(), name);
                EXPECT_TRUE(box->HasFocus());
            }
            EXPECT_EQ(others, 0);
        }
    });
}

TEST(State, OfACheckIsWhatTheProgramSets) {
    TestWindow window;
    CheckBox check(window, L"Check");
    RadioButton radio(window, L"Radio");
    for (AnyCheckControl* control : std::vector<AnyCheckControl*>{&check, &radio}) {
        EXPECT_FALSE(control->IsChecked());
        control->SetChecked(true);
        EXPECT_TRUE(control->IsChecked());
        control->SetChecked(false);
        EXPECT_FALSE(control->IsChecked());
    }
    EXPECT_TRUE(check.IsTabStop());
    EXPECT_FALSE(radio.IsTabStop());
}

TEST(State, OfAGroupBoxIsThatOfItsFourEdges) {
    TestWindow window;
    GroupBox box(window, L"Group");
    box.SetEnabled(false);
    EXPECT_FALSE(box.GetBottomEdge().IsEnabled());
    EXPECT_EQ(box.GetBorderColor(), window.GetStyle().GroupBox.DisabledBorder);
    EXPECT_EQ(box.GetTextColor(), window.GetStyle().Label.DisabledText);
    box.SetEnabled(true);
    RunWith(window, {[&] {
                EXPECT_TRUE(box.GetLeftEdge().IsVisible());
                box.SetVisible(false);
                for (Control* part :
                     {static_cast<Control*>(&box), &box.GetLeftEdge(), &box.GetRightEdge(), &box.GetBottomEdge()}) {
                    EXPECT_FALSE(part->IsVisible());
                }
                EndRun(IdOk);
            }});
}

TEST(State, NothingIsDrawnBetweenBeginAndEndOfAnUpdate) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        int drawn = 0;
        all.Ok.AddMessageHandler(Message::DrawItem, [&](WParam, LParam) { ++drawn; });
        all.Ok.BeginUpdate();
        all.Ok.Redraw();
        all.Ok.SetText(L"changed");
        EXPECT_EQ(drawn, 0);
        all.Ok.EndUpdate();
        EXPECT_GT(drawn, 0);
    });
}

TEST(State, NothingIsDrawnWhenNothingChanges) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        int drawn = 0;
        for (Control* control : all.All()) {
            for (int message : {Message::DrawItem, Message::Paint}) {
                control->AddMessageHandler(message, [&](WParam, LParam) { ++drawn; });
            }
        }
        all.Ok.SetText(L"OK");
        all.Ok.SetDefault(false);
        all.Ok.SetEnabled(true);
        all.Label.SetText(L"Label:");
        all.Check.SetChecked(false);
        all.Box.SetText(L"");
        all.Box.SetValidStyle(true);
        all.Group.SetValidStyle(true);
        EXPECT_EQ(drawn, 0);
        all.Label.SetText(L"Other:");
        EXPECT_GT(drawn, 0);
    });
}

TEST(Items, AreInsertedRemovedAndCleared) {
    TestWindow window;
    ListBox list(window);
    ComboBox combo(window);
    for (AnyItemList* items : std::vector<AnyItemList*>{&list, &combo}) {
        EXPECT_EQ(items->GetCount(), 0);
        EXPECT_EQ(items->GetSelection(), AnyItemList::NoSelection);
        items->AddItem(L"b");
        EXPECT_TRUE(items->InsertItem(0, L"a"));
        EXPECT_TRUE(items->InsertItem(2, L"c"));
        EXPECT_FALSE(items->InsertItem(4, L"beyond"));
        EXPECT_FALSE(items->InsertItem(-1, L"before"));
        EXPECT_EQ(items->GetCount(), 3);
        EXPECT_EQ(items->GetItemText(0), L"a");
        EXPECT_EQ(items->GetItemText(2), L"c");
        EXPECT_EQ(items->GetItemText(3), L"");
        EXPECT_TRUE(items->RemoveItem(1));
        EXPECT_FALSE(items->RemoveItem(2));
        EXPECT_EQ(items->GetItemText(1), L"c");
        items->SetSelection(1);
        items->Clear();
        EXPECT_EQ(items->GetCount(), 0);
        EXPECT_EQ(items->GetSelection(), AnyItemList::NoSelection);
    }
}

TEST(Items, PastTheEndLeaveNothingSelected) {
    TestWindow window;
    ListBox list(window);
    ComboBox combo(window);
    for (AnyItemList* items : std::vector<AnyItemList*>{&list, &combo}) {
        items->AddItem(L"a");
        items->AddItem(L"b");
        items->SetSelection(1);
        EXPECT_EQ(items->GetSelection(), 1);
        items->SetSelection(2);
        EXPECT_EQ(items->GetSelection(), AnyItemList::NoSelection);
        items->SetSelection(0);
        items->SetSelection(AnyItemList::NoSelection);
        EXPECT_EQ(items->GetSelection(), AnyItemList::NoSelection);
    }
}

TEST(Items, OfAComboBoxAreReplacedAndReselectedInPlace) {
    TestWindow window;
    ComboBox combo(window);
    for (const wchar_t* text : {L"a", L"b", L"c"}) combo.AddItem(text);
    combo.SetSelection(1);
    combo.RemoveItem(1);
    EXPECT_EQ(combo.GetSelection(), ComboBox::NoSelection);
    combo.InsertItem(1, L"B");
    combo.SetSelection(1);
    EXPECT_EQ(combo.GetItemText(1), L"B");
    EXPECT_EQ(combo.GetItemText(2), L"c");
    EXPECT_EQ(combo.GetSelection(), 1);
}

TEST(Items, HaveTheFontTheyWereGivenOrTheStyles) {
    TestWindow window;
    ListBox list(window);
    list.AddItem(L"plain");
    list.AddItem(L"mono", window.GetStyle().MonospaceFont);
    EXPECT_EQ(list.GetItemFont(0), window.GetStyle().NormalFont);
    EXPECT_EQ(list.GetItemFont(1), window.GetStyle().MonospaceFont);
    EXPECT_EQ(list.GetItemFont(2), window.GetStyle().NormalFont);
    list.RemoveItem(0);
    EXPECT_EQ(list.GetItemFont(0), window.GetStyle().MonospaceFont);
}

TEST(Items, KeepTheirScrollPositionThroughARefill) {
    TestWindow window;
    ListBox list(window);
    list.SetRect(10, 10, 100, 70);
    const auto fill = [&list] {
        for (int i = 0; i < 50; ++i) list.AddItem(std::to_wstring(i));
    };
    fill();
    list.SetTopIndex(20);
    EXPECT_EQ(list.GetTopIndex(), 20);
    const int top = list.GetTopIndex();
    list.BeginUpdate();
    list.Clear();
    fill();
    list.SetTopIndex(top);
    list.SetSelection(21);
    list.EndUpdate();
    EXPECT_EQ(list.GetTopIndex(), 20);
    EXPECT_EQ(list.GetSelection(), 21);
}

TEST(Items, AreColouredBySelectionAndState) {
    TestWindow window;
    ListBox list(window);
    const StyleTable& table = window.GetStyle();
    EXPECT_EQ(list.GetItemStyle(false).Text, table.ListBox.States[ControlState::Normal].Text);
    EXPECT_EQ(list.GetItemStyle(true).Text, table.ListBox.SelectedText);
    EXPECT_EQ(list.GetItemStyle(true).Background, table.ListBox.SelectedBackground);
    list.SetEnabled(false);
    EXPECT_EQ(list.GetItemStyle(true).Background, table.ListBox.States[ControlState::Disabled].Background);
    EXPECT_EQ(list.GetItemStyle(false).Text, table.ListBox.States[ControlState::Disabled].Text);
}

}  // namespace Conformance
