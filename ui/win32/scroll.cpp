// What shows of a window whose controls need more than the screen has.
#include <algorithm>

#include "ui/win32/platform.h"

namespace UI::Native {

using namespace Win32;

namespace {

// The bar is the window's only child of the system's class for such.
HWND FindBar(const Window& window) {
    return FindWindowExW(ToWindow(window.GetHandle()), nullptr, L"SCROLLBAR", nullptr);
}

int GetTracked(HWND bar) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(bar, SB_CTL, &info);
    return info.nTrackPos;
}

void Follow(Window& window, WORD how, const ScrollRange& range) {
    switch (how) {
        case SB_LINEUP:
            return window.ScrollTo(range.Position - range.Step);
        case SB_LINEDOWN:
            return window.ScrollTo(range.Position + range.Step);
        case SB_PAGEUP:
            return window.ScrollTo(range.Position - range.Page);
        case SB_PAGEDOWN:
            return window.ScrollTo(range.Position + range.Page);
        case SB_TOP:
            return window.ScrollTo(0);
        case SB_BOTTOM:
            return window.ScrollTo(range.GetLast());
        case SB_THUMBTRACK:
            return window.ScrollTo(GetTracked(FindBar(window)));
        default:
            return;
    }
}

int TurnWheel(Window& window, WPARAM wParam, const ScrollRange& range) {
    window.ScrollTo(range.Position - GET_WHEEL_DELTA_WPARAM(wParam) * range.Step / WHEEL_DELTA);
    return 0;
}

}  // namespace

void Clip(Handle handle, const std::optional<Rect>& view) {
    HWND window = ToWindow(handle);
    RECT place{};
    if (!GetWindowRect(window, &place)) return;
    if (!view) {
        SetWindowRgn(window, nullptr, TRUE);
        return;
    }
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    const RECT whole = ToRect(*view);
    RECT shown{};
    IntersectRect(&shown, &place, &whole);
    const bool isWhole = EqualRect(&shown, &place) != 0;
    RECT before{};
    if (isWhole && GetWindowRgnBox(window, &before) == ERROR) return;
    OffsetRect(&shown, -place.left, -place.top);
    // An empty region is none where the system keeps it as a list of rectangles.
    if (IsRectEmpty(&shown)) shown = {-1, -1, 0, 0};
    SetWindowRgn(window, isWhole ? nullptr : CreateRectRgnIndirect(&shown), TRUE);
}

void SetScrollBar(Window& window, const std::optional<Rect>& place, const ScrollRange& range) {
    HWND bar = FindBar(window);
    if (!place) {
        if (bar) DestroyWindow(bar);
        return;
    }
    if (!bar) {
        bar = CreateWindowExW(0, L"SCROLLBAR", nullptr, WS_CHILD | WS_VISIBLE | SBS_VERT, 0, 0, 0, 0,
                              ToWindow(window.GetHandle()), nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    if (!bar) return;
    SetDarkParts(ToHandle(bar), IsDarkMode(window.GetStyle()));
    SetWindowPos(bar, nullptr, place->Left, place->Top, place->Right - place->Left, place->Bottom - place->Top,
                 SWP_NOACTIVATE | SWP_NOZORDER);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max(0, range.Height - 1);
    info.nPage = static_cast<UINT>(range.Page);
    info.nPos = range.Position;
    SetScrollInfo(bar, SB_CTL, &info, TRUE);
    window.AddResultHandler(WM_VSCROLL, [&window, range](WPARAM wParam, LPARAM) -> MessageResult {
        Follow(window, LOWORD(wParam), range);
        return 0;
    });
    window.AddResultHandler(WM_MOUSEWHEEL, [&window, range](WPARAM wParam, LPARAM) -> MessageResult {
        return TurnWheel(window, wParam, range);
    });
}

bool IsPointerDown() { return GetKeyState(VK_LBUTTON) < 0; }

}  // namespace UI::Native
