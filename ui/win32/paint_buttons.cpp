// Buttons, check boxes and radio buttons.
#include <array>
#include <cmath>

#include "ui/message.h"
#include "ui/win32/paint.h"

namespace UI::Native {

using namespace Win32;

namespace {

void AttachColors(Control& control, std::function<StateStyle()> getColors) {
    for (int message : {Message::ColorButton, Message::ColorStatic}) {
        control.AddResultHandler(message, [getColors](WParam wParam, LParam) {
            const StateStyle colors = getColors();
            return SetColors(wParam, colors.Text, colors.Background);
        });
    }
}

bool IsPressed(LParam lParam) { return HasFlag(GetItem(lParam).itemState, ODS_SELECTED); }
bool HasFocusMark(const Control& control) { return control.HasFocus() && control.ShowsFocus(); }

// On a grid of thirteen units from the box's corner.
void DrawCheckMark(Canvas& canvas, const RECT& box, int thickness, Color color) {
    const float unit = static_cast<float>(GetWidth(box)) / 13;
    const float d = static_cast<float>(thickness) * std::sqrt(2.0F) / 2;
    std::array<Canvas::Spot, 6> corners{{{2.5F * unit, 6.5F * unit - d},
                                         {5 * unit, 9 * unit - d},
                                         {10.5F * unit, 3.5F * unit - d},
                                         {10.5F * unit + d, 3.5F * unit},
                                         {5 * unit, 9 * unit},
                                         {2.5F * unit - d, 6.5F * unit}}};
    for (Canvas::Spot& corner : corners) {
        corner.X += static_cast<float>(box.left);
        corner.Y += static_cast<float>(box.top);
    }
    canvas.FillPolygon(corners, color);
}

void DrawSquare(Canvas& canvas, const RECT& box, const StateStyle& style, int thickness, bool checked) {
    canvas.DrawRounded(box, style);
    if (checked) DrawCheckMark(canvas, box, thickness, style.Text);
}

void DrawCircle(Canvas& canvas, const RECT& box, const StateStyle& style, int, bool checked) {
    const auto fill = [&](int inset, Color color) {
        RECT around = box;
        InflateRect(&around, -inset, -inset);
        canvas.FillEllipse(around, color);
    };
    fill(0, style.Border);
    if (style.BorderWidth > 0) fill(style.BorderWidth, style.Background);
    if (!checked) return;
    fill(3 * Win32::GetWidth(box) / 13, style.Text);
    fill(4 * Win32::GetWidth(box) / 13, style.Text);
}

using DrawBox = void (*)(Canvas&, const RECT& box, const StateStyle&, int thickness, bool checked);

void Draw(const Controls::AnyCheckControl& control, HDC dc, bool pressed, DrawBox drawBox) {
    const RECT area = GetClientArea(ToWindow(control.GetHandle()));
    const CheckStyle& style = control.GetStyle();
    Canvas canvas(dc, area, style.Background);
    const auto centre = [&area](int left, int width, int height) {
        const LONG top = (area.bottom - height) / 2;
        return RECT{left, top, left + width, top + height};
    };
    drawBox(canvas, centre(0, style.BoxSize, style.BoxSize), style.Box[control.GetState(pressed)], style.MarkThickness,
            control.IsChecked());

    RECT text = area;
    text.left = style.TextColumn;
    canvas.DrawString(control.GetText(), text, DT_LEFT | DT_VCENTER | DT_SINGLELINE, style.Font,
                      control.IsEnabled() ? style.Text : style.DisabledText, style.Background);
    if (HasFocusMark(control)) {
        const Size size = MeasureText(style.Font, control.GetText());
        RECT mark = centre(style.TextColumn, size.Width, size.Height);
        InflateRect(&mark, style.FocusInset, 0);
        canvas.DrawFocusMark(mark);
    }
    canvas.Show();
}

void AttachCheck(Controls::AnyCheckControl& control, DrawBox drawBox) {
    SkipErasing(control);
    AttachColors(control, [&control] {
        const CheckStyle& style = control.GetStyle();
        StateStyle colors;
        colors.Text = control.IsEnabled() ? style.Text : style.DisabledText;
        colors.Background = style.Background;
        return colors;
    });
    // The class keeps no state of what others draw.
    control.AddResultHandler(BM_GETCHECK, [&control](WParam, LParam) {
        return static_cast<MessageResult>(control.IsChecked() ? BST_CHECKED : BST_UNCHECKED);
    });
    control.AddResultHandler(Message::DrawItem, [&control, drawBox](WParam, LParam lParam) {
        Draw(control, GetItem(lParam).hDC, IsPressed(lParam), drawBox);
        return MessageResult{1};
    });
}

}  // namespace

void Attach(Controls::Button& button) {
    SkipErasing(button);
    AttachColors(button, [&button] {
        StateStyle colors = button.GetStyle().States[button.GetState()];
        colors.Background = button.GetStyle().WindowBackground;
        return colors;
    });
    button.AddResultHandler(Message::DrawItem, [&button](WParam, LParam lParam) {
        const ButtonStyle& style = button.GetStyle();
        const StateStyle& state = style.States[button.GetState(IsPressed(lParam))];
        const RECT area = GetClientArea(ToWindow(button.GetHandle()));
        Canvas canvas(GetItem(lParam).hDC, area, style.WindowBackground);
        canvas.DrawRounded(area, state);
        RECT text = area;
        InflateRect(&text, -state.BorderWidth, -state.BorderWidth);
        canvas.DrawString(button.GetText(), text, DT_CENTER | DT_VCENTER | DT_SINGLELINE, style.Font, state.Text,
                          state.Background);
        if (HasFocusMark(button)) {
            const Padding& padding = style.TextPadding;
            canvas.DrawFocusMark({area.left + padding.Left, area.top + padding.Top, area.right - padding.Right,
                                  area.bottom - padding.Bottom});
        }
        canvas.Show();
        return MessageResult{1};
    });
}

void Attach(Controls::CheckBox& box) { AttachCheck(box, DrawSquare); }
void Attach(Controls::RadioButton& button) { AttachCheck(button, DrawCircle); }

}  // namespace UI::Native
