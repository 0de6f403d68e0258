// What a screen reader hears of the controls.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;
using Native::Change;

namespace {

using Action = std::function<void()>;

// The same once more is no change.
void ExpectHeardOnce(const char* what, const Control& control, Change change, const Action& action) {
    EXPECT_TRUE(Hears(control, change, action)) << what;
    EXPECT_FALSE(Hears(control, change, action)) << what << ", once more";
}

}  // namespace

TEST(Readers, HearOfWhatTheProgramChanges) {
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                ExpectHeardOnce("a check", all.Check, Change::State, [&] { all.Check.SetChecked(true); });
                ExpectHeardOnce("none", all.Check, Change::State, [&] { all.Check.SetChecked(false); });
                ExpectHeardOnce("a radio button", all.Radio, Change::State, [&] { all.Radio.SetChecked(true); });
                ExpectHeardOnce("a row", all.List, Change::Selection, [&] { all.List.SetSelection(1); });
                ExpectHeardOnce("a choice", all.Combo, Change::Value, [&] { all.Combo.SetSelection(1); });
                ExpectHeardOnce("a text", all.Box, Change::Value, [&] { all.Box.SetText(L"1920"); });
                ExpectHeardOnce("lines", all.Lines, Change::Value, [&] { all.Lines.SetText(L"00\nFF"); });
                ExpectHeardOnce("a label", all.Label, Change::Name, [&] { all.Label.SetText(L"Width:"); });
                ExpectHeardOnce("a caption", all.Group, Change::Name, [&] { all.Group.SetText(L"Size"); });
                ExpectHeardOnce("a button", all.Ok, Change::Name, [&] { all.Ok.SetText(L"Close"); });
                ExpectHeardOnce("a name", all.Box, Change::Name, [&] { all.Box.SetName(L"Width"); });
                ExpectHeardOnce("a hint", all.Box, Change::Hint, [&] { all.Box.SetHint(L"1 to 4095"); });
                ExpectHeardOnce("closed", all.Ok, Change::State, [&] { all.Ok.SetEnabled(false); });
                EXPECT_FALSE(Hears(all.Ok, Change::State, [&] { all.Check.SetChecked(true); })) << "another's";
                EndRun(IdOk);
            }});
}

TEST(Readers, HearOfWhatTheUserDoes) {
    TestWindow window;
    AllControls all(window);
    all.Check.AddNotificationHandler(CheckBox::Clicked, [&] { all.Check.SetChecked(!all.Check.IsChecked()); });
    RunWith(window, {[&] {
                EXPECT_TRUE(Hears(all.Check, Change::State, [&] { Click(all.Check); }));
                EXPECT_TRUE(Hears(all.Check, Change::State, [&] { Press(Key::Space); }));
                EXPECT_TRUE(Hears(all.List, Change::Selection, [&] { Click(all.List, 1); }));
                EXPECT_TRUE(Hears(all.List, Change::Selection, [&] { Press(Key::Down); }));
                EXPECT_TRUE(Hears(all.List, Change::Selection, [&] { Type(L"one"); }));
                EXPECT_EQ(all.List.GetSelection(), 0);
                EXPECT_TRUE(Hears(all.Combo, Change::Value, [&] { Choose(all.Combo, 2); }));
                EXPECT_TRUE(Hears(all.Combo, Change::Value, [&] { Press(Key::Up); }));
                EXPECT_TRUE(Hears(all.Combo, Change::Value, [&] { Type(L"one"); }));
                EXPECT_TRUE(Hears(all.Combo, Change::State, [&] { Press(Key::F4); })) << "it drops down";
                EXPECT_TRUE(Hears(all.Combo, Change::State, [&] { Press(Key::Escape); })) << "it closes";
                all.Box.SetFocus();
                EXPECT_TRUE(Hears(all.Box, Change::Value, [&] { Type(L"7"); }));
                EXPECT_TRUE(Hears(all.Box, Change::Value, [&] { Press(Key::Back); }));
                EndRun(IdOk);
            }});
}

}  // namespace Conformance
