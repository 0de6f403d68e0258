// What a screen reader learns of controls that draw themselves.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "tests/ui/win32/screen_reader.h"
#include "ui/win32/platform.h"

namespace Conformance {

using namespace UI;
using namespace UI::Win32;
using Testing::Reading;
using Testing::ScreenReader;

namespace {

void WithReader(const std::function<void(const ScreenReader&, TestWindow&, AllControls&)>& action) {
    const ScreenReader reader;
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                action(reader, window, all);
                EndRun(IdOk);
            }});
}

Reading Read(const ScreenReader& reader, const Control& control) { return reader.Read(ToWindow(control.GetHandle())); }

constexpr auto Number = ScreenReader::Object::Number;

}  // namespace

TEST(Readers, AreToldTheRowsOfListsAndTheStateOfChecks) {
    TestWindow window;
    Controls::ListBox list(window);
    Controls::ComboBox combo(window);
    for (Controls::AnyItemList* each :
         {static_cast<Controls::AnyItemList*>(&list), static_cast<Controls::AnyItemList*>(&combo)}) {
        each->AddItem(L"first");
        each->AddItem(L"the second");
    }
    combo.SetSelection(1);
    wchar_t text[64] = {};
    const auto out = reinterpret_cast<LPARAM>(text);
    EXPECT_EQ(Tell(list.GetHandle(), LB_GETTEXTLEN, 1), 10);
    EXPECT_EQ(Tell(list.GetHandle(), LB_GETTEXT, 1, out), 10);
    EXPECT_STREQ(text, L"the second");
    EXPECT_EQ(Tell(combo.GetHandle(), CB_GETLBTEXTLEN, 0), 5);
    EXPECT_EQ(Tell(combo.GetHandle(), CB_GETLBTEXT, 0, out), 5);
    EXPECT_STREQ(text, L"first");
    EXPECT_EQ(Tell(combo.GetHandle(), WM_GETTEXT, std::size(text), out), 10);
    EXPECT_STREQ(text, L"the second");
    Controls::CheckBox check(window, L"Check");
    Controls::RadioButton radio(window, L"Radio");
    for (Controls::AnyCheckControl* each : std::vector<Controls::AnyCheckControl*>{&check, &radio}) {
        EXPECT_EQ(Tell(each->GetHandle(), BM_GETCHECK), BST_UNCHECKED);
        each->SetChecked(true);
        EXPECT_EQ(Tell(each->GetHandle(), BM_GETCHECK), BST_CHECKED);
    }
}

TEST(Readers, SeeEachControlAsWhatItIs) {
    WithReader([](const ScreenReader& reader, TestWindow&, AllControls& all) {
        const std::pair<Control*, long> roles[] = {
            {&all.Group, ROLE_SYSTEM_GROUPING},    {&all.Group.GetLeftEdge(), ROLE_SYSTEM_BORDER},
            {&all.Label, ROLE_SYSTEM_STATICTEXT},  {&all.Box, ROLE_SYSTEM_TEXT},
            {&all.Lines, ROLE_SYSTEM_TEXT},        {&all.Check, ROLE_SYSTEM_CHECKBUTTON},
            {&all.Radio, ROLE_SYSTEM_RADIOBUTTON}, {&all.Combo, ROLE_SYSTEM_COMBOBOX},
            {&all.List, ROLE_SYSTEM_LIST},         {&all.Ok, ROLE_SYSTEM_PUSHBUTTON}};
        for (const auto& [control, role] : roles) {
            const Reading reading = Read(reader, *control);
            EXPECT_EQ(reading.Role, role) << role;
            EXPECT_EQ(reading.Name, control->GetName()) << role;
            EXPECT_EQ(reading.Description, L"") << role;
        }
    });
}

TEST(Readers, LearnStateValueAndHint) {
    WithReader([](const ScreenReader& reader, TestWindow&, AllControls& all) {
        EXPECT_FALSE(Read(reader, all.Check).Is(STATE_SYSTEM_CHECKED));
        all.Check.SetChecked(true);
        all.Radio.SetChecked(true);
        EXPECT_TRUE(Read(reader, all.Check).Is(STATE_SYSTEM_CHECKED));
        EXPECT_TRUE(Read(reader, all.Radio).Is(STATE_SYSTEM_CHECKED));
        all.Check.SetFocus();
        EXPECT_TRUE(Read(reader, all.Check).Is(STATE_SYSTEM_FOCUSED));
        EXPECT_TRUE(Read(reader, all.Check).Is(STATE_SYSTEM_FOCUSABLE));
        EXPECT_FALSE(Read(reader, all.Label).Is(STATE_SYSTEM_FOCUSABLE));
        all.Box.SetText(L"1920");
        all.Box.SetHint(L"1 to 4095 pixels");
        EXPECT_EQ(Read(reader, all.Box).Value, L"1920");
        EXPECT_EQ(Read(reader, all.Box).Description, L"1 to 4095 pixels");
        EXPECT_EQ(Read(reader, all.Combo).Value, L"");
        all.Combo.SetSelection(1);
        EXPECT_EQ(Read(reader, all.Combo).Value, L"two");
        EXPECT_TRUE(Read(reader, all.Combo).Is(STATE_SYSTEM_COLLAPSED));
        all.Combo.SetDroppedDown(true);
        EXPECT_TRUE(Read(reader, all.Combo).Is(STATE_SYSTEM_EXPANDED));
        EXPECT_FALSE(Read(reader, all.Combo).Is(STATE_SYSTEM_COLLAPSED));
        all.Combo.SetDroppedDown(false);
        all.Ok.SetDefault(true);
        EXPECT_TRUE(Read(reader, all.Ok).Is(STATE_SYSTEM_DEFAULT));
        all.Ok.SetEnabled(false);
        EXPECT_TRUE(Read(reader, all.Ok).Is(STATE_SYSTEM_UNAVAILABLE));
        EXPECT_FALSE(Read(reader, all.Ok).Is(STATE_SYSTEM_FOCUSABLE));
        EXPECT_FALSE(Read(reader, all.Ok).Is(STATE_SYSTEM_INVISIBLE));
        all.Ok.SetVisible(false);
        EXPECT_TRUE(Read(reader, all.Ok).Is(STATE_SYSTEM_INVISIBLE));
    });
}

TEST(Readers, GoThroughTheRowsOfAList) {
    WithReader([](const ScreenReader& reader, TestWindow&, AllControls& all) {
        const auto list = reader.Open(ToWindow(all.List.GetHandle()));
        LONG count = 0;
        EXPECT_EQ(list->get_accChildCount(&count), S_OK);
        EXPECT_EQ(count, 3);
        VARIANT selected;
        EXPECT_EQ(list->get_accSelection(&selected), S_FALSE);
        all.List.SetFocus();
        all.List.SetSelection(1);
        EXPECT_EQ(list->get_accSelection(&selected), S_OK);
        EXPECT_EQ(selected.lVal, 2);
        EXPECT_EQ(list->get_accFocus(&selected), S_OK);
        EXPECT_EQ(selected.lVal, 2);
        const wchar_t* texts[] = {L"one", L"two", L"three"};
        for (long row = 1; row <= 3; ++row) {
            const Reading reading = list.Read(row);
            EXPECT_EQ(reading.Name, texts[row - 1]);
            EXPECT_EQ(reading.Role, ROLE_SYSTEM_LISTITEM);
            EXPECT_EQ(reading.Is(STATE_SYSTEM_SELECTED), row == 2);
            EXPECT_EQ(reading.Is(STATE_SYSTEM_FOCUSED), row == 2);
            LONG left = 0;
            LONG top = 0;
            LONG width = 0;
            LONG height = 0;
            EXPECT_EQ(list->accLocation(&left, &top, &width, &height, Number(row)), S_OK);
            EXPECT_EQ(height, all.List.GetStyle().ItemHeight);
            VARIANT found;
            EXPECT_EQ(list->accHitTest(left + width / 2, top + height / 2, &found), S_OK);
            EXPECT_EQ(found.lVal, row);
            VARIANT next;
            EXPECT_EQ(list->accNavigate(NAVDIR_NEXT, Number(row), &next), row < 3 ? S_OK : S_FALSE);
            EXPECT_EQ(next.vt, row < 3 ? VT_I4 : VT_EMPTY);
            EXPECT_TRUE(row == 3 || next.lVal == row + 1);
        }
        for (const long beyond : {-1L, 4L}) {
            BSTR name = nullptr;
            EXPECT_EQ(list->get_accName(Number(beyond), &name), E_INVALIDARG);
        }
    });
}

TEST(Readers, DoWhatTheUserDoes) {
    WithReader([](const ScreenReader& reader, TestWindow& window, AllControls& all) {
        std::string log;
        all.Ok.AddNotificationHandler(Controls::Button::Clicked, [&] { log += "button "; });
        all.Check.AddNotificationHandler(Controls::CheckBox::Clicked, [&] { log += "check "; });
        all.List.AddNotificationHandler(Controls::ListBox::SelectionChanged, [&] { log += "list "; });
        all.Box.AddNotificationHandler(Controls::TextBox::Changed, [&] { log += "text "; });
        const auto doAction = [&](const Control& control, long child = CHILDID_SELF) {
            const auto object = reader.Open(ToWindow(control.GetHandle()));
            EXPECT_NE(object.Ask(&IAccessible::get_accDefaultAction, child), L"");
            EXPECT_EQ(object->accDoDefaultAction(Number(child)), S_OK);
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) Process(ToWindow(window.GetHandle()), message);
        };
        doAction(all.Ok);
        doAction(all.Check);
        doAction(all.List, 3);
        EXPECT_EQ(all.List.GetSelection(), 2);
        doAction(all.Combo);
        EXPECT_TRUE(all.Combo.IsDroppedDown());
        doAction(all.Combo);
        EXPECT_FALSE(all.Combo.IsDroppedDown());
        const auto box = reader.Open(ToWindow(all.Box.GetHandle()));
        BSTR text = SysAllocString(L"1280");
        EXPECT_EQ(box->put_accValue(Number(CHILDID_SELF), text), S_OK);
        SysFreeString(text);
        EXPECT_EQ(all.Box.GetText(), L"1280");
        EXPECT_EQ(box->accSelect(SELFLAG_TAKEFOCUS, Number(CHILDID_SELF)), S_OK);
        EXPECT_TRUE(all.Box.HasFocus());
        EXPECT_EQ(log, "button check list text ");
        all.Ok.SetEnabled(false);
        const auto closed = reader.Open(ToWindow(all.Ok.GetHandle()));
        EXPECT_EQ(closed->accDoDefaultAction(Number(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
    });
}

TEST(Readers, LoseWhatIsGoneAndLeaveNothingBehind) {
    const ScreenReader reader;
    {
        TestWindow window;  // what the process makes once
        AllControls all(window);
        Read(reader, all.Ok);
    }
    const int live = CountLive();
    {
        TestWindow window;
        auto button = std::make_unique<Controls::Button>(window, L"OK");
        const auto object = reader.Open(ToWindow(button->GetHandle()));
        EXPECT_EQ(object.Ask(&IAccessible::get_accName), L"OK");
        button.reset();
        BSTR name = nullptr;
        EXPECT_EQ(object->get_accName(Number(CHILDID_SELF), &name), CO_E_OBJNOTCONNECTED);
    }
    EXPECT_EQ(CountLive(), live);
}

}  // namespace Conformance
