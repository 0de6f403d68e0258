// Text boxes.
#include "ui/message.h"
#include "ui/win32/paint.h"

namespace UI::Native {

using namespace Win32;

namespace {

const StateStyle& GetColors(const Controls::TextBox& box) { return box.GetStyle().States[box.GetState()]; }

// The system writes a disabled text in a colour of its own, so we write it.
void PaintDisabled(const Controls::TextBox& box) {
    HWND window = ToWindow(box.GetHandle());
    const PaintDC dc(window);
    const RECT area = GetClientArea(window);
    const StateStyle& style = GetColors(box);
    Canvas canvas(dc, area, style.Background);
    RECT text = area;
    unsigned format = DT_EDITCONTROL;
    if (box.IsMultiLine()) {
        format |= DT_WORDBREAK;
        text.top -= Tell(box.GetHandle(), EM_GETFIRSTVISIBLELINE) * box.GetFont().GetMetrics().Height;
    }
    canvas.DrawString(box.GetText(), text, format, box.GetFont(), style.Text, style.Background);
    canvas.Show();
}

}  // namespace

void Attach(Controls::TextBox& box) {
    AttachFrame(box, {[&box] { return GetColors(box); }, [&box] { return box.GetStyle().WindowBackground; },
                      [&box](int height) { return box.GetTextInset(height); }});
    for (int message : {Message::ColorEdit, Message::ColorStatic}) {
        box.AddResultHandler(message, [&box](WParam wParam, LParam) {
            const StateStyle& style = GetColors(box);
            return SetColors(wParam, style.Text, style.Background);
        });
    }
    box.AddResultHandler(Message::Paint, [&box](WParam wParam, LParam lParam) -> MessageResult {
        if (box.IsEnabled()) return box.CallPrevious(Message::Paint, wParam, lParam);
        PaintDisabled(box);
        return 0;
    });
}

}  // namespace UI::Native
