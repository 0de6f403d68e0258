// Keys, clicks, and what they notify.
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/ui/conformance/adapter.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

// A window whose OK is bound as the forms bind it, with a log of what happened.
struct Form : TestWindow {
    Form() : All(*this) {
        AddCommandHandler(IdOk, [this] { Log += "ok "; });
        AddCommandHandler(IdCancel, [this] { Log += "cancel "; });
        All.Ok.AddNotificationHandler(Button::Clicked, [this] { Log += "button "; });
        All.Check.AddNotificationHandler(CheckBox::Clicked, [this] { Log += "check "; });
        All.Radio.AddNotificationHandler(RadioButton::Clicked, [this] { Log += "radio "; });
        All.Radio.SetTabStop(true);
        All.List.AddNotificationHandler(ListBox::SelectionChanged, [this] { Log += "list "; });
        All.List.AddNotificationHandler(ListBox::DoubleClicked, [this] { Log += "double "; });
        All.Combo.AddNotificationHandler(ComboBox::SelectionChanged, [this] { Log += "combo "; });
        All.Box.AddNotificationHandler(TextBox::FocusLost, [this] { Log += "left "; });
    }

    // Does the steps with the form open and the focus on none of its controls, and answers with what happened
    // meanwhile.
    std::string Do(const std::function<void()>& actions) {
        RunWith(*this, {[&] {
            SetFocus();
            Log.clear();
            actions();
            EndRun(IdOk);
        }});
        return Log;
    }

    AllControls All;
    std::string Log;
};

}  // namespace

TEST(Keyboard, TabGoesThroughTheControlsInTheOrderOfTheirMaking) {
    Form form;
    AllControls& all = form.All;
    form.Do([&] {
        for (Control* expected : std::vector<Control*>{&all.Box, &all.Lines, &all.Check, &all.Radio, &all.Combo,
                                                       &all.List, &all.Ok, &all.Box}) {
            Press(Key::Tab);
            EXPECT_TRUE(expected->HasFocus());
        }
        for (Control* expected : std::vector<Control*>{&all.Ok, &all.List, &all.Combo}) {
            PressShiftTab();
            EXPECT_TRUE(expected->HasFocus());
        }
    });
}

TEST(Keyboard, TabSelectsTheTextItComesTo) {
    Form form;
    AllControls& all = form.All;
    all.Box.SetText(L"2560");
    form.Do([&] {
        all.Ok.SetFocus();
        Press(Key::Tab);
        ASSERT_TRUE(all.Box.HasFocus());
        Type(L"7");
        EXPECT_EQ(all.Box.GetText(), L"7");
    });
}

TEST(Keyboard, TabFollowsAChangedOrder) {
    Form form;
    AllControls& all = form.All;
    EXPECT_TRUE(all.Ok.PlaceAfter(all.Box));
    form.Do([&] {
        for (Control* expected : std::vector<Control*>{&all.Box, &all.Ok, &all.Lines}) {
            Press(Key::Tab);
            EXPECT_TRUE(expected->HasFocus());
        }
    });
    const auto& order = form.GetControls();
    EXPECT_EQ(std::find(order.begin(), order.end(), &all.Box) + 1, std::find(order.begin(), order.end(), &all.Ok));
}

TEST(Keyboard, TabPassesOverWhatIsHiddenDisabledOrNoStop) {
    Form form;
    AllControls& all = form.All;
    all.Box.SetEnabled(false);
    all.Lines.SetVisible(false);
    all.Radio.SetTabStop(false);
    EXPECT_FALSE(all.Radio.IsTabStop());
    EXPECT_TRUE(all.Check.IsTabStop());
    form.Do([&] {
        for (Control* expected : std::vector<Control*>{&all.Check, &all.Combo}) {
            Press(Key::Tab);
            EXPECT_TRUE(expected->HasFocus());
        }
    });
}

TEST(Keyboard, TabLeavesABoxOfSeveralLines) {
    Form form;
    form.All.Lines.SetText(L"00");
    form.Do([&] {
        form.All.Lines.SetFocus();
        Press(Key::Tab);
        EXPECT_TRUE(form.All.Check.HasFocus());
    });
    EXPECT_EQ(form.All.Lines.GetText(), L"00");
}

TEST(Keyboard, EnterBreaksTheLineInABoxOfSeveral) {
    Form form;
    const std::string log = form.Do([&] {
        form.All.Lines.SetFocus();
        Type(L"a");
        Press(Key::Return);
        Type(L"b");
    });
    EXPECT_EQ(form.All.Lines.GetText(), L"a\nb");
    EXPECT_EQ(log, "");
}

TEST(Keyboard, EnterGivesTheWindowTheOkCommand) {
    Form form;
    AllControls& all = form.All;
    for (Control* control : std::vector<Control*>{&all.Box, &all.Check, &all.Radio, &all.Combo, &all.List}) {
        const std::string log = form.Do([&] {
            control->SetFocus();
            Press(Key::Return);
        });
        EXPECT_EQ(log.substr(0, 3), "ok ");
    }
    EXPECT_EQ(form.Do([] { Press(Key::Return); }), "ok ");
}

TEST(Keyboard, EnterOnAFocusedButtonClicksIt) {
    Form form;
    EXPECT_EQ(form.Do([&] {
        form.All.Ok.SetFocus();
        Press(Key::Return);
    }),
              "button ");
}

TEST(Keyboard, EscGivesTheWindowTheCancelCommandFromEveryControl) {
    Form form;
    for (Control* control : form.All.All()) {
        if (control == &form.All.Group || control == &form.All.Label) continue;
        const std::string log = form.Do([&] {
            control->SetFocus();
            Press(Key::Escape);
        });
        EXPECT_EQ(log.substr(0, 7), "cancel ");
    }
    EXPECT_EQ(form.Do([] { Press(Key::Escape); }), "cancel ");
}

TEST(Keyboard, ControlASelectsTheWholeTextAndTypesNothing) {
    Form form;
    for (TextBox* box : {&form.All.Box, &form.All.Lines}) {
        form.Do([&] {
            box->SetText(L"abc");
            box->SetFocus();
            box->Select(1, 1);
            PressControlA();
            int begin = -1;
            int end = -1;
            box->GetSelection(begin, end);
            EXPECT_EQ(begin, 0);
            EXPECT_EQ(end, 3);
            EXPECT_EQ(box->GetText(), L"abc");
            Type(L"x");
        });
        EXPECT_EQ(box->GetText(), L"x");
    }
}

TEST(Keyboard, SpaceClicksButtonsAndCheckBoxes) {
    Form form;
    AllControls& all = form.All;
    EXPECT_EQ(form.Do([&] {
        for (Control* control : std::vector<Control*>{&all.Ok, &all.Check, &all.Radio}) {
            control->SetFocus();
            Press(Key::Space);
        }
    }),
              "button check radio ");
    EXPECT_FALSE(all.Check.IsChecked()) << "the check state is the form's";
}

TEST(Keyboard, AHeldKeyGivesOneCommand) {
    Form form;
    AllControls& all = form.All;
    EXPECT_EQ(form.Do([&] {
        all.Box.SetFocus();
        for (const Key key : {Key::Return, Key::Escape}) {
            Press(key);
            Repeat(key);
            Repeat(key);
        }
        all.Check.SetFocus();
        Repeat(Key::Return);
        Repeat(Key::Escape);
    }),
              "ok cancel left ");
    EXPECT_EQ(form.Do([&] {
        all.Ok.SetFocus();
        Press(Key::Return);
        Repeat(Key::Return);
    }),
              "button ");
}

TEST(Keyboard, AHeldKeyGoesOnWhereItIsNoCommand) {
    Form form;
    AllControls& all = form.All;
    all.List.SetSelection(0);
    form.Do([&] {
        all.List.SetFocus();
        Press(Key::Down);
        Repeat(Key::Down);
        EXPECT_EQ(all.List.GetSelection(), 2);
        Press(Key::Tab);
        EXPECT_TRUE(all.Ok.HasFocus());
        Repeat(Key::Tab);
        EXPECT_TRUE(all.Box.HasFocus());
    });
}

TEST(Keyboard, FocusMarksComeWithTab) {
    Form form;
    form.Do([&] {
        Press(Key::Tab);
        EXPECT_TRUE(form.All.Box.ShowsFocus());
        EXPECT_TRUE(form.All.Ok.ShowsFocus());
    });
}

TEST(Keyboard, ArrowsGoRoundInARadioGroupAndClick) {
    TestWindow window;
    std::array<std::unique_ptr<RadioButton>, 5> buttons;
    std::string log;
    for (int i = 0; i < 5; ++i) {
        // The fourth is of another group.
        auto& button = buttons[static_cast<std::size_t>(i)];
        button = std::make_unique<RadioButton>(window, L"Radio", i == 3 ? 2 : 1);
        button->SetRect(10, 10 + 20 * i, 100, 20);
        button->AddNotificationHandler(RadioButton::Clicked, [&log, i] { log += std::to_string(i); });
    }
    buttons[1]->SetEnabled(false);
    RunWith(window, {[&] {
                buttons[0]->SetFocus();
                Press(Key::Down);
                EXPECT_TRUE(buttons[2]->HasFocus());
                Press(Key::Right);
                EXPECT_TRUE(buttons[4]->HasFocus());
                Press(Key::Down);
                EXPECT_TRUE(buttons[0]->HasFocus());
                Press(Key::Up);
                EXPECT_TRUE(buttons[4]->HasFocus());
                Press(Key::Left);
                EXPECT_TRUE(buttons[2]->HasFocus());
                buttons[3]->SetFocus();
                Press(Key::Down);
                EXPECT_TRUE(buttons[3]->HasFocus());
                EndRun(IdOk);
            }});
    EXPECT_EQ(log, "24042");
}

TEST(Mouse, AClickFocusesAndClicks) {
    Form form;
    AllControls& all = form.All;
    EXPECT_EQ(form.Do([&] {
        Click(all.Ok);
        EXPECT_TRUE(all.Ok.HasFocus());
        Click(all.Check);
        EXPECT_TRUE(all.Check.HasFocus());
        Click(all.Radio);
    }),
              "button check radio ");
}

TEST(Mouse, ADoubleClickCountsAsTwoPresses) {
    Form form;
    AllControls& all = form.All;
    EXPECT_EQ(form.Do([&] {
        DoubleClick(all.Ok);
        DoubleClick(all.Check);
        DoubleClick(all.Radio);
    }),
              "button button check check radio radio ");
}

TEST(Mouse, WhatIsDisabledTakesNoClick) {
    Form form;
    AllControls& all = form.All;
    all.Ok.SetEnabled(false);
    EXPECT_EQ(form.Do([&] { Click(all.Ok); }), "");
    EXPECT_FALSE(all.Ok.HasFocus());
}

TEST(Focus, LostByABoxNotifies) {
    Form form;
    EXPECT_EQ(form.Do([&] {
        form.All.Box.SetFocus();
        form.All.Ok.SetFocus();
    }),
              "left ");
}

TEST(Focus, OfAControlThatIsHiddenGoesToTheWindow) {
    Form form;
    form.Do([&] {
        form.All.Ok.SetFocus();
        form.All.Ok.SetVisible(false);
        EXPECT_FALSE(form.All.Ok.HasFocus());
        EXPECT_TRUE(form.HasFocus());
    });
}

TEST(Lists, TellWhatTheUserSelectsAndNotWhatTheProgramDoes) {
    Form form;
    AllControls& all = form.All;
    EXPECT_EQ(form.Do([&] {
        all.List.SetSelection(1);
        all.Combo.SetSelection(1);
    }),
              "");
    EXPECT_EQ(all.List.GetSelection(), 1);
    EXPECT_EQ(all.Combo.GetSelection(), 1);
    EXPECT_EQ(form.Do([&] {
        Click(all.List, 2);
        EXPECT_EQ(all.List.GetSelection(), 2);
        Choose(all.Combo, 0);
        EXPECT_EQ(all.Combo.GetSelection(), 0);
        EXPECT_FALSE(all.Combo.IsDroppedDown());
    }),
              "list combo ");
}

TEST(Lists, GoToWhatIsTyped) {
    TestWindow window;
    ListBox list(window);
    ComboBox combo(window);
    for (AnyItemList* each : {static_cast<AnyItemList*>(&list), static_cast<AnyItemList*>(&combo)}) {
        each->SetRect(0, 0, 100, 100);
        for (const wchar_t* text : {L"Manual", L"1024x768", L"1280x720", L"1280x1024", L"1920x1080", L"Native"})
            each->AddItem(text);
        int changes = 0;
        each->AddNotificationHandler(AnyItemList::SelectionChanged, [&] { ++changes; });
        RunWith(window, {[&] {
                    each->SetFocus();
                    Type(L"n");
                    EXPECT_EQ(each->GetSelection(), 5) << "capitals or not";
                    Type(L"1");
                    EXPECT_EQ(each->GetSelection(), 1);
                    Type(L"28");
                    EXPECT_EQ(each->GetSelection(), 2) << "what was typed goes on";
                    Type(L"0x10");
                    EXPECT_EQ(each->GetSelection(), 3);
                    Press(Key::Down);
                    Type(L"1");
                    EXPECT_EQ(each->GetSelection(), 1) << "from the next one on, and around";
                    Type(L"?");
                    EXPECT_EQ(each->GetSelection(), 1);
                    EXPECT_EQ(changes, 6);
                    EndRun(IdOk);
                }});
    }
}

TEST(Lists, GoByTheArrowKeys) {
    Form form;
    AllControls& all = form.All;
    all.List.SetSelection(0);
    all.Combo.SetSelection(2);
    EXPECT_EQ(form.Do([&] {
        all.List.SetFocus();
        Press(Key::Down);
        EXPECT_EQ(all.List.GetSelection(), 1);
        Press(Key::End);
        EXPECT_EQ(all.List.GetSelection(), 2);
        Press(Key::Home);
        EXPECT_EQ(all.List.GetSelection(), 0);
        all.Combo.SetFocus();
        Press(Key::Up);
        EXPECT_EQ(all.Combo.GetSelection(), 1);
    }),
              "list list list combo ");
}

TEST(Lists, TellOfADoubleClick) {
    Form form;
    EXPECT_EQ(form.Do([&] { DoubleClick(form.All.List, 1); }), "list double ");
    EXPECT_EQ(form.All.List.GetSelection(), 1);
}

TEST(Lists, KeepNothingSelectedAfterADoubleClickOnEmptySpace) {
    Form form;
    form.All.List.Clear();
    form.All.List.AddItem(L"only");
    form.Do([&] { DoubleClick(form.All.List, 2); });
    EXPECT_EQ(form.All.List.GetSelection(), ListBox::NoSelection);
}

TEST(Lists, DropDownAndCloseByKey) {
    Form form;
    ComboBox& combo = form.All.Combo;
    EXPECT_EQ(form.Do([&] {
        combo.SetFocus();
        Press(Key::F4);
        EXPECT_TRUE(combo.IsDroppedDown());
        EXPECT_EQ(combo.GetState(), ControlState::Pressed);
        Press(Key::Escape);
        EXPECT_FALSE(combo.IsDroppedDown());
    }),
              "");
}

}  // namespace Conformance
