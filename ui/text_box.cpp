#include "ui/text_box.h"

#include "ui/message.h"
#include "ui/native.h"

namespace UI::Controls {

TextBox::TextBox(Window& window, unsigned style, Face face)
    : AnyHotControl(window, ControlKind::Edit, L"", style), face(face) {
    RedrawWithFocus();
    // Tab and Esc are the window's, even where a box of several lines would take every key.
    AddResultHandler(Message::GetDialogCode, [this](WParam wParam, LParam lParam) -> MessageResult {
        if (wParam == static_cast<WParam>(Key::Tab) || wParam == static_cast<WParam>(Key::Escape)) return 0;
        return CallPrevious(Message::GetDialogCode, wParam, lParam);
    });
    AddResultHandler(Message::Char, [this](WParam wParam, LParam lParam) -> MessageResult {
        constexpr WParam controlA = 1;
        if (wParam != controlA) return CallPrevious(Message::Char, wParam, lParam);
        Select(0, -1);
        return 0;
    });
    Native::Attach(*this);
    TextBox::ApplyStyle(window.GetStyle());
}

bool TextBox::SetText(const std::wstring& text) {
    setting = true;
    const bool taken = AnyHotControl::SetText(text);
    setting = false;
    return taken;
}

bool TextBox::DispatchNotification(int code) {
    if (code == Changed) {
        if (setting) return false;
        StoreText(Native::GetText(GetHandle()));
        Native::Announce(*this, Native::Change::Value);
    }
    return AnyHotControl::DispatchNotification(code);
}

void TextBox::TakeFocusByKeyboard() {
    AnyHotControl::TakeFocusByKeyboard();
    Select(0, -1);
}

bool TextBox::IsMultiLine() const {
    constexpr unsigned multiLine = 4;
    return HasFlag(GetStyleFlags(), multiLine);
}

void TextBox::SetLimit(int characters) { Native::SetLimit(GetHandle(), characters); }
void TextBox::Select(int begin, int end) { Native::Select(GetHandle(), begin, end); }
void TextBox::GetSelection(int& begin, int& end) const { Native::GetSelection(GetHandle(), begin, end); }

void TextBox::SetValidStyle(bool valid) {
    if (valid == validStyle) return;
    validStyle = valid;
    ChangeFont(GetStyle().Font);
    Native::ResetTextMargins(GetHandle());
}

Padding TextBox::GetTextInset(int height) const {
    Padding inset = GetStyle().TextPadding;
    if (!IsMultiLine()) inset.Top = inset.Bottom = (height - GetFont().GetMetrics().Height) / 2;
    return inset;
}

Size TextBox::Measure(std::wstring_view text) const {
    const TextBoxStyle& style = GetStyle();
    const Size size = AnyHotControl::Measure(text);
    const int width = size.Width + style.TextPadding.Left + style.TextPadding.Right + style.CaretWidth;
    if (!IsMultiLine()) return {width, controlHeight};
    return {width + style.ScrollBarWidth, size.Height + style.TextPadding.Top + style.TextPadding.Bottom};
}

void TextBox::ApplyStyle(const StyleTable& table) {
    const bool monospace = face == Face::Monospace;
    normalStyle = monospace ? table.MonospaceTextBox : table.TextBox;
    invalidStyle = monospace ? table.InvalidMonospaceTextBox : table.InvalidTextBox;
    controlHeight = table.Metrics.ControlHeight;
    ApplyLook(GetStyle().Font);
}

void TextBox::RedrawHot() { Native::RedrawFrame(GetHandle()); }

}  // namespace UI::Controls
