#include "ui/win32/paint.h"

#include "ui/message.h"

namespace UI::Win32 {

namespace {

// What the class paints within the frame, in the coordinates of the window: the client area, and the scroll bar.
void ExcludeInside(HDC dc, HWND window, const RECT& place) {
    RECT client = GetClientArea(window);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    SCROLLBARINFO bar{};
    bar.cbSize = sizeof(bar);
    const bool hasBar = GetScrollBarInfo(window, OBJID_VSCROLL, &bar) &&
                        !HasFlag(bar.rgstate[0], STATE_SYSTEM_INVISIBLE) && !IsRectEmpty(&bar.rcScrollBar);
    const auto exclude = [&](RECT inside) {
        OffsetRect(&inside, -place.left, -place.top);
        ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    };
    exclude(client);
    if (hasBar) exclude(bar.rcScrollBar);
}

void PaintFrame(HWND window, const StateStyle& style, Color outside) {
    RECT place{};
    GetWindowRect(window, &place);
    const RECT area = MakeArea(GetWidth(place), GetHeight(place));
    const WindowDC dc(window);
    ExcludeInside(dc, window, place);
    Canvas canvas(dc, area, outside);
    canvas.DrawRounded(area, style);
    canvas.Show();
}

}  // namespace

LRESULT SetColors(WPARAM dc, Color text, Color background) {
    HDC target = reinterpret_cast<HDC>(dc);
    SetTextColor(target, text);
    SetBkColor(target, background);
    SetDCBrushColor(target, background);
    HGDIOBJ brush = GetStockObject(DC_BRUSH);
    if (!brush) throw L"GetStockObject failed.";
    return reinterpret_cast<LRESULT>(brush);
}

void SkipErasing(Control& control) {
    control.AddResultHandler(WM_ERASEBKGND, [](WParam, LParam) { return MessageResult{1}; });
}

void AttachFrame(Control& control, const Frame& frame) {
    const auto afterClass = [&control](int message, std::function<void(MessageResult&, LParam)> then) {
        control.AddResultHandler(message, [&control, message, then](WParam wParam, LParam lParam) {
            MessageResult result = control.CallPrevious(message, wParam, lParam);
            then(result, lParam);
            return result;
        });
    };
    afterClass(WM_NCCALCSIZE, [frame](MessageResult&, LParam lParam) {
        // Both forms of the message begin with the rectangle that becomes the client area.
        RECT& client = *reinterpret_cast<RECT*>(lParam);
        const Padding padding = frame.GetPadding(GetHeight(client));
        client.left += padding.Left;
        client.top += padding.Top;
        client.right = std::max(client.left, client.right - padding.Right);
        client.bottom = std::max(client.top, client.bottom - padding.Bottom);
    });
    afterClass(WM_NCPAINT, [&control, frame](MessageResult&, LParam) {
        PaintFrame(ToWindow(control.GetHandle()), frame.GetStyle(), frame.GetOutside());
    });
    // A click between border and text is one on the text.
    afterClass(WM_NCHITTEST, [](MessageResult& result, LParam) {
        if (result == HTNOWHERE || result == HTBORDER) result = HTCLIENT;
    });
    afterClass(WM_ENABLE, [&control](MessageResult&, LParam) { control.Redraw(); });
}

}  // namespace UI::Win32
