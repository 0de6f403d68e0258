#include "ui/check_controls.h"

#include <algorithm>

#include "ui/message.h"
#include "ui/native.h"
#include "ui/window.h"

namespace UI::Controls {

AnyCheckControl::AnyCheckControl(Window& window, const std::wstring& text, unsigned style)
    : AnyHotControl(window, ControlKind::Button, text, style) {
    TakeDoubleClickAsPress();
    AddMessageHandler(Message::GetDialogCode, [this](WParam wParam, LParam) {
        if (wParam == static_cast<WParam>(Key::Space)) Redraw();
    });
}

void AnyCheckControl::SetChecked(bool on) {
    if (on == checked) return;
    Native::SetChecked(GetHandle(), on);
    checked = on;
    Native::Announce(*this, Native::Change::State);
    Redraw();
}

Size AnyCheckControl::Measure(std::wstring_view text) const {
    const CheckStyle& style = uncheckedStyle;
    const Size size = AnyHotControl::Measure(text);
    return {style.TextColumn + size.Width + style.FocusInset, std::max(size.Height, style.BoxSize)};
}

void AnyCheckControl::ApplyStyles(const CheckStyle& unchecked, const CheckStyle& whenChecked) {
    uncheckedStyle = unchecked;
    checkedStyle = whenChecked;
    ApplyLook(unchecked.Font);
}

CheckBox::CheckBox(Window& window, const std::wstring& text) : AnyCheckControl(window, text, CreationStyle) {
    Native::Attach(*this);
    CheckBox::ApplyStyle(window.GetStyle());
}

void CheckBox::ApplyStyle(const StyleTable& table) { ApplyStyles(table.UncheckedBox, table.CheckedBox); }

RadioButton::RadioButton(Window& window, const std::wstring& text, int group)
    : AnyCheckControl(window, text, CreationStyle), group(group) {
    const auto stepOf = [](WParam key) {
        if (key == static_cast<WParam>(Key::Right) || key == static_cast<WParam>(Key::Down)) return 1;
        if (key == static_cast<WParam>(Key::Left) || key == static_cast<WParam>(Key::Up)) return -1;
        return 0;
    };
    AddResultHandler(Message::GetDialogCode, [this, stepOf](WParam wParam, LParam lParam) -> MessageResult {
        if (stepOf(wParam) != 0) return DialogCode::WantArrows;
        return CallPrevious(Message::GetDialogCode, wParam, lParam);
    });
    AddResultHandler(Message::KeyDown, [this, stepOf](WParam wParam, LParam lParam) -> MessageResult {
        const int step = stepOf(wParam);
        if (step == 0) return CallPrevious(Message::KeyDown, wParam, lParam);
        Go(step);
        return 0;
    });
    Native::Attach(*this);
    RadioButton::ApplyStyle(window.GetStyle());
}

void RadioButton::ApplyStyle(const StyleTable& table) { ApplyStyles(table.UncheckedRadio, table.CheckedRadio); }

void RadioButton::Go(int step) {
    std::vector<RadioButton*> buttons;
    for (Control* control : GetWindow().GetControls()) {
        auto* button = dynamic_cast<RadioButton*>(control);
        if (button && button->group == group && (button == this || (button->IsEnabled() && button->IsVisible()))) {
            buttons.push_back(button);
        }
    }
    const auto count = static_cast<int>(buttons.size());
    const auto self = static_cast<int>(std::find(buttons.begin(), buttons.end(), this) - buttons.begin());
    RadioButton* next = buttons[static_cast<std::size_t>((self + step + count) % count)];
    if (next == this) return;
    next->SetFocus();
    next->DispatchNotification(Clicked);
}

}  // namespace UI::Controls
