// List boxes and combo boxes.
#include <array>

#include "ui/closed_box.h"
#include "ui/message.h"
#include "ui/win32/paint.h"

namespace UI::Native {

using namespace Win32;

namespace {

// One row of a list, in `area` of the picture.
template <class List>
void DrawRow(const List& list, const Padding& padding, Canvas& canvas, RECT area, int row, bool selected) {
    const StateStyle style = list.GetItemStyle(selected);
    canvas.FillRectangle(area, style.Background);
    area.left += padding.Left;
    area.right -= padding.Right;
    canvas.DrawString(list.GetItemText(row), area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS,
                      list.GetItemFont(row), style.Text, style.Background);
}

// What the system asks to have drawn of one row.
template <class List>
void ShowRow(const List& list, const Padding& padding, const DRAWITEMSTRUCT& item) {
    const auto row = static_cast<int>(item.itemID);
    if (row < 0 || row >= list.GetCount()) return;
    const RECT area = MakeArea(Win32::GetWidth(item.rcItem), Win32::GetHeight(item.rcItem));
    Canvas canvas(item.hDC, item.rcItem, list.GetItemStyle(false).Background);
    DrawRow(list, padding, canvas, area, row, HasFlag(item.itemState, ODS_SELECTED));
    canvas.Show();
}

void PaintList(const Controls::ListBox& box) {
    HWND window = ToWindow(box.GetHandle());
    const PaintDC dc(window);
    const RECT area = GetClientArea(window);
    Canvas canvas(dc, area, box.GetItemStyle(false).Background);
    const int selected = box.GetSelection();
    for (int row = box.GetTopIndex(); row < box.GetCount(); ++row) {
        RECT place{};
        Tell(box.GetHandle(), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        if (place.top >= area.bottom) break;
        DrawRow(box, box.GetStyle().TextPadding, canvas, place, row, row == selected);
    }
    canvas.Show();
}

// A line that goes down to the middle of `area` and up again.
void DrawArrow(Canvas& canvas, const RECT& area, Color color) {
    const float unit = static_cast<float>(GetHeight(area) + 1) / 24;
    const float x = static_cast<float>(area.left + area.right) / 2;
    const float y = static_cast<float>(area.top + area.bottom) / 2 + 2 * unit;
    const float span = 4 * unit;
    const float d = 0.75F * unit;
    const std::array<Canvas::Spot, 6> corners{{{x - span, y - span - d},
                                               {x, y - 2 * d},
                                               {x + span, y - span - d},
                                               {x + span + d, y - span},
                                               {x, y + d},
                                               {x - span - d, y - span}}};
    canvas.FillPolygon(corners, color);
}

void DrawClosed(const Controls::ComboBox& box, HDC dc) {
    const ComboBoxStyle& style = box.GetStyle();
    const StateStyle state = GetClosedStyle(style, box.GetState());
    const RECT area = GetClientArea(ToWindow(box.GetHandle()));
    Canvas canvas(dc, area, style.WindowBackground);
    canvas.DrawRounded(area, state);

    RECT arrow = area;
    arrow.left = area.right - style.ArrowWidth;
    DrawArrow(canvas, arrow, box.GetArrowColor());

    RECT inside = area;
    InflateRect(&inside, -2 * state.BorderWidth, -2 * state.BorderWidth);
    inside.right = arrow.left;
    RECT text = inside;
    text.left = style.TextPadding.Left;
    const int selected = box.GetSelection();
    canvas.DrawString(box.GetItemText(selected), text, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS,
                      box.GetItemFont(selected), state.Text, state.Background);
    if (box.HasFocus() && box.ShowsFocus()) canvas.DrawFocusMark(inside);
    canvas.Show();
}

}  // namespace

void Attach(Controls::ListBox& box) {
    SkipErasing(box);
    AttachFrame(box, {[&box] { return box.GetStyle().States[box.GetState()]; },
                      [&box] { return box.GetStyle().WindowBackground; },
                      [&box](int) { return box.GetStyle().BorderPadding; }});
    box.AddResultHandler(Message::ColorListBox, [&box](WParam wParam, LParam) {
        const StateStyle style = box.GetItemStyle(false);
        return SetColors(wParam, style.Text, style.Background);
    });
    box.AddResultHandler(Message::Paint, [&box](WParam, LParam) {
        PaintList(box);
        return MessageResult{0};
    });
    box.AddResultHandler(Message::DrawItem, [&box](WParam, LParam lParam) {
        ShowRow(box, box.GetStyle().TextPadding, GetItem(lParam));
        return MessageResult{1};
    });
}

void Attach(Controls::ComboBox& box) {
    SkipErasing(box);
    box.AddResultHandler(Message::ColorListBox, [&box](WParam wParam, LParam) {
        const StateStyle style = box.GetItemStyle(false);
        return SetColors(wParam, style.Text, style.Background);
    });
    box.AddResultHandler(Message::Paint, [&box](WParam, LParam) {
        DrawClosed(box, PaintDC(ToWindow(box.GetHandle())));
        return MessageResult{0};
    });
    box.AddResultHandler(Message::DrawItem, [&box](WParam, LParam lParam) {
        const DRAWITEMSTRUCT& item = GetItem(lParam);
        if (HasFlag(item.itemState, ODS_COMBOBOXEDIT)) {
            DrawClosed(box, ClientDC(ToWindow(box.GetHandle())));
        } else {
            ShowRow(box, box.GetStyle().List.TextPadding, item);
        }
        return MessageResult{1};
    });
}

}  // namespace UI::Native
