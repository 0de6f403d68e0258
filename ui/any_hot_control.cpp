#include "ui/any_hot_control.h"

#include "ui/message.h"
#include "ui/native.h"

namespace UI::Controls {

AnyHotControl::AnyHotControl(Window& window, ControlKind kind, const std::wstring& text, unsigned style)
    : Control(window, kind, text, style) {
    AddMessageHandler(Message::MouseMove, [this](WParam, LParam) {
        if (hot) return;
        Native::TrackMouseLeave(GetHandle());
        hot = true;
        RedrawHot();
    });
    AddMessageHandler(Message::MouseLeave, [this](WParam, LParam) {
        hot = false;
        if (RedrawsOnLeave()) RedrawHot();
    });
}

ControlState AnyHotControl::GetState(bool pressed) const {
    if (!IsEnabled()) return ControlState::Disabled;
    if (pressed) return ControlState::Pressed;
    const bool focused = LooksFocused();
    if (hot) return focused ? ControlState::HotFocused : ControlState::Hot;
    return focused ? ControlState::Focused : ControlState::Normal;
}

void AnyHotControl::RedrawWithFocus() {
    for (int message : {Message::SetFocus, Message::KillFocus}) {
        AddMessageHandler(message, [this](WParam, LParam) { Redraw(); });
    }
}

void AnyHotControl::TakeDoubleClickAsPress() {
    AddResultHandler(Message::LeftButtonDoubleClick, [this](WParam wParam, LParam lParam) {
        return Native::Send(GetHandle(), Message::LeftButtonDown, wParam, lParam);
    });
}

}  // namespace UI::Controls
