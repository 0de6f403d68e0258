// Hints on real windows.
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

}  // namespace Conformance
