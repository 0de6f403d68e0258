// Text boxes.
#include "ui/message.h"
#include "ui/win32/paint.h"

namespace UI::Native {

using namespace Win32;

namespace {

const StateStyle& GetColors(const Controls::TextBox& box) { return box.GetStyle().States[box.GetState()]; }

// The system writes a disabled text in a colour of its own, so we write it, line by line where the system has it.
void PaintDisabled(const Controls::TextBox& box) {
    const Handle handle = box.GetHandle();
    const PaintDC dc(ToWindow(handle));
    const RECT area = GetClientArea(ToWindow(handle));
    const StateStyle& style = GetColors(box);
    Canvas canvas(dc, area, style.Background);
    const std::wstring text = ReadSystemText(handle);
    const auto count = static_cast<WPARAM>(Tell(handle, EM_GETLINECOUNT));
    for (WPARAM line = 0; line < count; ++line) {
        const auto begin = static_cast<std::size_t>(Tell(handle, EM_LINEINDEX, line));
        const auto length = static_cast<std::size_t>(Tell(handle, EM_LINELENGTH, begin));
        if (length == 0 || begin + length > text.size()) continue;
        const LRESULT place = Tell(handle, EM_POSFROMCHAR, begin);
        RECT at = area;
        at.left = static_cast<short>(LOWORD(place));
        at.top = static_cast<short>(HIWORD(place));
        // Like the system, no line that is not whole, save when there is but one.
        if (count > 1 && at.top + box.GetFont().GetMetrics().Height > area.bottom) break;
        canvas.DrawString(std::wstring_view(text).substr(begin, length), at, DT_EDITCONTROL, box.GetFont(), style.Text,
                          style.Background);
    }
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
