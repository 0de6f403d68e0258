// Hints on real windows, what lists tell others of their rows, and held keys.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/win32/platform.h"

namespace Conformance {

using namespace UI;
using namespace UI::Win32;

namespace {

std::wstring GetShownHint(const Window& window) {
    HWND owner = ToWindow(window.GetHandle());
    HWND tip = FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr);
    while (tip && GetWindow(tip, GW_OWNER) != owner) tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr);
    if (!tip) return L"no tooltip";
    wchar_t text[256] = {};
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = owner;
    tool.uId = 1;
    tool.lpszText = text;
    SendMessageW(tip, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    return text;
}

// The pointer comes to a control that takes no messages: its window hears of it.
void HoverDisabled(UI::Control& control) {
    RECT place{};
    GetWindowRect(ToWindow(control.GetHandle()), &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    PostMessageW(ToWindow(control.GetWindow().GetHandle()), WM_MOUSEMOVE, 0, 0);
}

}  // namespace

TEST(Hints, ShowOfTheControlUnderThePointerEnabledOrNot) {
    TestWindow window;
    AllControls all(window);
    all.Box.SetHint(L"1 to 4095 pixels");
    all.Ok.SetHint(L"Width: 1 to 4095 pixels");
    all.Ok.SetEnabled(false);
    RunWith(window, {[&] { Hover(all.Box); },
                     [&] {
                         EXPECT_EQ(GetShownHint(window), L"1 to 4095 pixels");
                         all.Box.SetHint(L"Not a number");
                         EXPECT_EQ(GetShownHint(window), L"Not a number");
                         HoverDisabled(all.Ok);
                     },
                     [&] {
                         EXPECT_EQ(GetShownHint(window), L"Width: 1 to 4095 pixels");
                         Hover(all.Check);
                     },
                     [&] {
                         EXPECT_EQ(GetShownHint(window), L"");
                         EndRun(IdOk);
                     }});
}

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
    EXPECT_EQ(Tell(check.GetHandle(), BM_GETCHECK), BST_UNCHECKED);
    check.SetChecked(true);
    EXPECT_EQ(Tell(check.GetHandle(), BM_GETCHECK), BST_CHECKED);
}

TEST(Keys, ThatAreHeldGiveOneCommand) {
    TestWindow window;
    AllControls all(window);
    int commands = 0;
    window.AddCommandHandler(IdOk, [&] { ++commands; });
    RunWith(window, {[&] {
                         all.Check.SetFocus();
                         PostMessageW(ToWindow(all.Check.GetHandle()), WM_KEYDOWN, VK_RETURN, 0x40000001);
                     },
                     [&] {
                         EXPECT_EQ(commands, 0);
                         PostMessageW(ToWindow(all.Check.GetHandle()), WM_KEYDOWN, VK_RETURN, 1);
                     },
                     [&] {
                         EXPECT_EQ(commands, 1);
                         EndRun(IdOk);
                     }});
}

}  // namespace Conformance
