// Place, state and focus of windows.
#include "ui/message.h"
#include "ui/win32/platform.h"
#include "ui/win32/system.h"

namespace UI::Native {

using namespace Win32;

namespace {

bool SetPlace(Handle handle, HWND after, int x, int y, Size size, UINT flags) {
    return SetWindowPos(ToWindow(handle), after, x, y, size.Width, size.Height, flags | SWP_NOACTIVATE) != 0;
}

bool HasStyle(Handle handle, unsigned flag) {
    return HasFlag(static_cast<unsigned>(GetWindowLongPtrW(ToWindow(handle), GWL_STYLE)), flag);
}

}  // namespace

bool Move(Handle handle, int x, int y) { return SetPlace(handle, nullptr, x, y, {}, SWP_NOSIZE | SWP_NOZORDER); }

bool Resize(Handle handle, int width, int height) {
    return SetPlace(handle, nullptr, 0, 0, {width, height}, SWP_NOMOVE | SWP_NOZORDER);
}

bool Place(Handle handle, const Rect& place) {
    const Size size{place.Right - place.Left, place.Bottom - place.Top};
    return SetPlace(handle, nullptr, place.Left, place.Top, size, SWP_NOZORDER);
}

bool PlaceAfter(Handle handle, Handle other) {
    return SetPlace(handle, ToWindow(other), 0, 0, {}, SWP_NOSIZE | SWP_NOMOVE);
}

Rect GetWindowPlace(Handle handle) {
    RECT place{};
    GetWindowRect(ToWindow(handle), &place);
    return FromRect(place);
}

Size GetClientSize(Handle handle) {
    const RECT area = GetClientArea(ToWindow(handle));
    return {GetWidth(area), GetHeight(area)};
}

std::optional<Size> GetFrameSize(Size client, unsigned style, unsigned extendedStyle, int dpi) {
    RECT frame{0, 0, client.Width, client.Height};
    const auto adjust = GetUser32().AdjustWindowRectExForDpi;
    const BOOL adjusted = adjust ? adjust(&frame, style, FALSE, extendedStyle, static_cast<UINT>(dpi))
                                 : AdjustWindowRectEx(&frame, style, FALSE, extendedStyle);
    if (!adjusted) return std::nullopt;
    return Size{GetWidth(frame), GetHeight(frame)};
}

std::optional<Rect> GetWorkArea(Handle handle) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (!GetMonitorInfoW(MonitorFromWindow(ToWindow(handle), MONITOR_DEFAULTTONEAREST), &monitor)) return std::nullopt;
    return FromRect(monitor.rcWork);
}

std::optional<Rect> GetProposedPlace(LParam lParam) {
    if (!lParam) return std::nullopt;
    return FromRect(*reinterpret_cast<const RECT*>(lParam));
}

void Redraw(Handle handle) {
    RedrawWindow(ToWindow(handle), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void RedrawFrame(Handle handle) {
    constexpr WPARAM wholeFrame = 1;
    Tell(handle, WM_NCPAINT, wholeFrame);
}

void SetDrawing(Handle handle, bool on) { Tell(handle, WM_SETREDRAW, on); }

bool IsEnabled(Handle handle) { return IsWindowEnabled(ToWindow(handle)) != 0; }
void SetEnabled(Handle handle, bool enabled) { EnableWindow(ToWindow(handle), enabled); }
bool IsVisible(Handle handle) { return IsWindowVisible(ToWindow(handle)) != 0; }
void SetVisible(Handle handle, bool visible) { ShowWindow(ToWindow(handle), visible ? SW_SHOW : SW_HIDE); }
Handle GetFocus() { return ToHandle(::GetFocus()); }
void SetFocus(Handle handle) { ::SetFocus(ToWindow(handle)); }

bool ShowsFocus(Handle handle) {
    return !HasFlag(static_cast<unsigned>(Tell(handle, WM_QUERYUISTATE)), UISF_HIDEFOCUS);
}

void SetTabStop(Handle handle, bool stop) {
    if (IsTabStop(handle) == stop) return;
    const LONG_PTR style = GetWindowLongPtrW(ToWindow(handle), GWL_STYLE);
    SetWindowLongPtrW(ToWindow(handle), GWL_STYLE, stop ? style + WS_TABSTOP : style - WS_TABSTOP);
}

bool IsTabStop(Handle handle) { return HasStyle(handle, WS_TABSTOP); }

void TrackMouseLeave(Handle handle) {
    TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, ToWindow(handle), 0};
    TrackMouseEvent(&track);
}

void SetChecked(Handle handle, bool checked) { Tell(handle, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED); }

}  // namespace UI::Native
