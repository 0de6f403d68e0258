#include "ui/dialog_keys.h"

#include <algorithm>
#include <vector>

#include "ui/native.h"

namespace UI::DialogKeys {

namespace {

constexpr int HasSelection = 0x08;  // of an edit

bool IsArrow(Key key) { return key == Key::Left || key == Key::Up || key == Key::Right || key == Key::Down; }

void PressTab(Window& window, bool backwards) {
    const Handle focus = Native::GetFocus();
    std::vector<Control*> stops;
    for (Control* control : window.GetControls()) {
        const bool isStop = control->IsTabStop() && control->IsVisible() && control->IsEnabled() && window.IsEnabled();
        if (isStop || control->GetHandle() == focus) stops.push_back(control);
    }
    if (backwards) std::reverse(stops.begin(), stops.end());
    auto next = std::find_if(stops.begin(), stops.end(), [focus](Control* stop) { return stop->GetHandle() == focus; });
    next = next == stops.end() || next + 1 == stops.end() ? stops.begin() : next + 1;
    if (next != stops.end()) (*next)->TakeFocusByKeyboard();
}

}  // namespace

bool Wants(Handle target, Key key, int code) {
    const MessageResult codes = Native::Send(target, Message::GetDialogCode, static_cast<WParam>(key), 0);
    return HasFlag(static_cast<unsigned>(codes), static_cast<unsigned>(code));
}

MessageResult GetStandardCode(const Control& control, Key key) {
    constexpr int list = DialogCode::WantArrows + DialogCode::WantChars;
    if (const auto* box = dynamic_cast<const Controls::TextBox*>(&control))
        return HasSelection + list + (box->IsMultiLine() ? DialogCode::WantAllKeys : 0);
    if (const auto* box = dynamic_cast<const Controls::ComboBox*>(&control)) {
        const bool closes = box->IsDroppedDown() && (key == Key::Return || key == Key::Escape);
        return list + (closes ? DialogCode::WantAllKeys : 0);
    }
    return control.GetKind() == ControlKind::ListBox ? list : 0;
}

bool Press(Window& window, Handle target, Key key, bool withShift) {
    if (Wants(target, key, DialogCode::WantAllKeys)) return false;
    if (key == Key::Tab && !Wants(target, key, DialogCode::WantTab)) {
        PressTab(window, withShift);
    } else if (IsArrow(key) && !Wants(target, key, DialogCode::WantArrows)) {
        return true;
    } else if (key == Key::Return) {
        Native::Send(window.GetHandle(), Message::Command, IdOk, 0);
    } else if (key == Key::Escape) {
        Native::Send(window.GetHandle(), Message::Command, IdCancel, 0);
    } else {
        return false;
    }
    return true;
}

}  // namespace UI::DialogKeys
