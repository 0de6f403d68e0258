// Windows, labels and group boxes.
#include <memory>

#include "ui/message.h"
#include "ui/win32/paint.h"

namespace UI::Native {

using namespace Win32;

namespace {

// A static that is drawn by `draw`, which finds the picture in the window's background.
void AttachDrawing(Control& control, std::function<LabelStyle()> getStyle,
                   std::function<void(Canvas&, const RECT& area)> draw) {
    SkipErasing(control);
    control.AddResultHandler(Message::ColorStatic, [getStyle](WParam wParam, LParam) {
        const LabelStyle style = getStyle();
        return SetColors(wParam, style.Text, style.Background);
    });
    control.AddResultHandler(Message::DrawItem, [&control, getStyle, draw](WParam, LParam lParam) {
        const RECT area = GetClientArea(ToWindow(control.GetHandle()));
        Canvas canvas(GetItem(lParam).hDC, area, getStyle().Background);
        draw(canvas, area);
        canvas.Show();
        return MessageResult{1};
    });
}

// The frame as it stands in the window of `part`, whose corner is at (x, y).
void DrawFrame(const Controls::GroupBox& box, Canvas& canvas, int x, int y) {
    const GroupBoxStyle& style = box.GetStyle();
    RECT frame{box.GetX(), box.GetY() - style.Thickness.Top, box.GetRight(), box.GetBottom()};
    OffsetRect(&frame, -x, -y);
    canvas.DrawRounded(frame, style.Caption.Background, box.GetBorderColor(), style.BorderWidth, style.CornerRadius);
}

void DrawCaption(const Controls::GroupBox& box, Canvas& canvas, RECT area) {
    if (box.GetText().empty()) return;
    const GroupBoxStyle& style = box.GetStyle();
    area.left += style.CaptionInset;
    // A gap in the frame, a little wider than the text.
    const int gap = 2 * style.BorderWidth;
    const int width = MeasureText(style.Caption.Font, box.GetText()).Width;
    canvas.FillRectangle({area.left - gap, area.top, area.left + width + gap, area.bottom}, style.Caption.Background);
    canvas.DrawString(box.GetText(), area, DT_SINGLELINE, style.Caption.Font, box.GetTextColor(),
                      style.Caption.Background);
}

// Focus marks, and the focus itself: a window that comes to the front again has it where it was.
void AttachActivation(Window& window) {
    const auto last = std::make_shared<HWND>(nullptr);
    window.AddMessageHandler(WM_SHOWWINDOW, [&window, last](WParam shown, LParam) {
        *last = nullptr;
        // Focus marks come with the first key, unless the user wants them always or opened the window by key.
        if (shown) Tell(window.GetHandle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0));
    });
    window.AddResultHandler(WM_ACTIVATE, [&window, last](WParam wParam, LParam lParam) -> MessageResult {
        HWND self = ToWindow(window.GetHandle());
        const bool active = LOWORD(wParam) != WA_INACTIVE;
        if (!active) *last = ::GetFocus();
        if (!active || !IsChild(self, *last) || !IsWindowEnabled(*last)) {
            return CallDefault(window.GetHandle(), WM_ACTIVATE, wParam, lParam);
        }
        ::SetFocus(*last);
        return 0;
    });
}

}  // namespace

void Attach(Window& window) {
    window.AddResultHandler(Message::Paint, [&window](WParam, LParam) -> MessageResult {
        const PaintDC dc(ToWindow(window.GetHandle()));
        const Color background = window.GetStyle().WindowBackground;
        const RECT area = GetClientArea(ToWindow(window.GetHandle()));
        FillRect(dc, &area,
                 reinterpret_cast<HBRUSH>(SetColors(reinterpret_cast<WPARAM>(static_cast<HDC>(dc)), 0, background)));
        return 0;
    });
    AttachActivation(window);
}

void Attach(Controls::Label& label) {
    AttachDrawing(
        label, [&label] { return label.GetStyle(); },
        [&label](Canvas& canvas, const RECT& area) {
            const LabelStyle& style = label.GetStyle();
            canvas.DrawString(label.GetText(), area, label.GetFormat(), style.Font, label.GetTextColor(),
                              style.Background);
        });
}

void Attach(Controls::GroupBox& box) {
    const auto getStyle = [&box] { return box.GetStyle().Caption; };
    AttachDrawing(box, getStyle, [&box](Canvas& canvas, const RECT& area) {
        DrawFrame(box, canvas, box.GetX(), box.GetY() - box.GetOverhang());
        DrawCaption(box, canvas, area);
    });
    for (Control* edge : {&box.GetLeftEdge(), &box.GetRightEdge(), &box.GetBottomEdge()}) {
        AttachDrawing(*edge, getStyle, [&box, edge](Canvas& canvas, const RECT&) {
            DrawFrame(box, canvas, edge->GetX(), edge->GetY());
        });
    }
}

}  // namespace UI::Native
