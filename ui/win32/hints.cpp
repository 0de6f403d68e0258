// Hints: one tooltip of the system for each window, which follows the control under the pointer. A disabled control
// gets no messages of the mouse, its window does.
#include <windows.h>

#include <commctrl.h>
#include <unordered_map>

#include "ui/win32/platform.h"

namespace UI {

namespace Win32 {

namespace {

struct Tip {
    HWND Window = nullptr;  // the tooltip, which the system destroys with its owner
    HWND Shown = nullptr;   // the control that it is about
};

// By the windows that own them.
std::unordered_map<HWND, Tip> tips;

TOOLINFOW GetTool(HWND owner) {
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = owner;
    tool.uId = 1;
    return tool;
}

HWND MakeTip(HWND owner) {
    static const bool isReady = [] {
        const INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_BAR_CLASSES};
        return InitCommonControlsEx(&classes) != 0;
    }();
    if (!isReady) return nullptr;
    HWND tip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                               0, 0, owner, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!tip) return nullptr;
    TOOLINFOW tool = GetTool(owner);
    wchar_t none[] = L"";
    tool.lpszText = none;
    SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    return tip;
}

// Has the tip of `owner` stand for the control, in whose place it shows.
void PointTo(HWND owner, Tip& tip, HWND control, const std::wstring& hint) {
    tip.Shown = control;
    TOOLINFOW tool = GetTool(owner);
    if (!hint.empty()) {
        GetWindowRect(control, &tool.rect);
        MapWindowPoints(nullptr, owner, reinterpret_cast<POINT*>(&tool.rect), 2);
    }
    SendMessageW(tip.Window, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
    tool.lpszText = const_cast<wchar_t*>(hint.c_str());
    SendMessageW(tip.Window, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

void FollowPointer(HWND window, const MSG& message) {
    if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) return;
    POINT at = message.pt;
    ScreenToClient(window, &at);
    HWND child = ChildWindowFromPointEx(window, at, CWP_SKIPINVISIBLE);
    const Control* control = Native::FindControl(ToHandle(child));
    const std::wstring hint = control ? control->GetHint() : std::wstring();
    Tip& tip = tips[window];
    if (!IsWindow(tip.Window)) tip = {};
    if (hint.empty() && !tip.Window) return;
    if (!tip.Window) tip.Window = MakeTip(window);
    if (!tip.Window) return;
    if (tip.Shown != child) PointTo(window, tip, child, hint);
    MSG relayed = message;
    relayed.hwnd = window;
    relayed.lParam = MAKELPARAM(at.x, at.y);
    SendMessageW(tip.Window, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ShowNewHint(const Control& control) {
    HWND window = ToWindow(control.GetHandle());
    HWND owner = GetParent(window);
    const auto found = tips.find(owner);
    if (found != tips.end() && found->second.Shown == window && IsWindow(found->second.Window))
        PointTo(owner, found->second, window, control.GetHint());
}

}  // namespace Win32

}  // namespace UI
