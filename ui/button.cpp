#include "ui/button.h"

#include "ui/message.h"
#include "ui/native.h"

namespace UI::Controls {

Button::Button(Window& window, const std::wstring& text)
    : AnyHotControl(window, ControlKind::Button, text, CreationStyle) {
    TakeDoubleClickAsPress();
    AddResultHandler(Message::GetDialogCode, [this](WParam wParam, LParam lParam) -> MessageResult {
        if (wParam == static_cast<WParam>(Key::Return)) return DialogCode::WantAllKeys;
        return CallPrevious(Message::GetDialogCode, wParam, lParam);
    });
    AddResultHandler(Message::KeyDown, [this](WParam wParam, LParam lParam) -> MessageResult {
        if (wParam != static_cast<WParam>(Key::Return)) return CallPrevious(Message::KeyDown, wParam, lParam);
        // One press is one click, however long it takes.
        if (!IsHeld(lParam)) DispatchNotification(Clicked);
        return 0;
    });
    Native::Attach(*this);
    Button::ApplyStyle(window.GetStyle());
}

void Button::SetEnabled(bool enabled) {
    if (!enabled) SetDefault(false);
    AnyHotControl::SetEnabled(enabled);
}

void Button::SetDefault(bool on) {
    if (on == isDefault) return;
    isDefault = on;
    Native::Announce(*this, Native::Change::State);
    Redraw();
}

Size Button::Measure(std::wstring_view text) const {
    const Padding& padding = style.TextPadding;
    return {AnyHotControl::Measure(text).Width + padding.Left + padding.Right, controlHeight};
}

void Button::ApplyStyle(const StyleTable& table) {
    style = table.Button;
    defaultStyle = table.DefaultButton;
    controlHeight = table.Metrics.ControlHeight;
    ApplyLook(style.Font);
}

}  // namespace UI::Controls
