// How each class of control looks now: what a backend with a screen would paint.
#include "ui/closed_box.h"
#include "ui/headless/desktop.h"
#include "ui/message.h"

namespace UI::Native {

using Headless::ItemLook;
using Headless::Look;

namespace {

// Records the look whenever `message` asks for a drawing.
template <class Target>
void AttachLook(Target& target, int message, std::function<Look()> look) {
    target.AddResultHandler(message, [handle = target.GetHandle(), look](WParam, LParam) -> MessageResult {
        handle->Drawn = look();
        return 1;
    });
}

Look GetFramedLook(const Controls::AnyHotControl& control, const StateStyles& states, bool pressed = false) {
    const ControlState state = control.GetState(pressed);
    const StateStyle& style = states[state];
    return {state, style, control.GetText(), style.Text, style.Background, false, false, {}};
}

Look GetCheckLook(const Controls::AnyCheckControl& control) {
    const CheckStyle& style = control.GetStyle();
    Look look = GetFramedLook(control, style.Box, control.GetHandle()->IsPressed);
    look.Text = control.IsEnabled() ? style.Text : style.DisabledText;
    look.Background = style.Background;
    look.FocusMark = control.HasFocus() && control.ShowsFocus();
    look.Checked = control.IsChecked();
    return look;
}

template <class List>
std::vector<ItemLook> GetItemLooks(const List& list) {
    std::vector<ItemLook> items;
    for (int i = 0; i < list.GetCount(); ++i) {
        const StateStyle style = list.GetItemStyle(i == list.GetSelection());
        items.push_back({list.GetItemText(i), style.Text, style.Background, list.GetItemFont(i)});
    }
    return items;
}

Look GetPlainLook(const Control& control, Color text, Color border, Color background) {
    Look look;
    look.State = control.IsEnabled() ? ControlState::Normal : ControlState::Disabled;
    look.Caption = control.GetText();
    look.Text = text;
    look.Frame.Border = border;
    look.Background = background;
    return look;
}

}  // namespace

void Attach(Window& window) {
    AttachLook(window, Message::Paint, [&window] {
        Look look;
        look.Caption = window.GetTitle();
        look.Background = window.GetStyle().WindowBackground;
        return look;
    });
}

void Attach(Controls::Button& button) {
    AttachLook(button, Message::DrawItem, [&button] {
        Look look = GetFramedLook(button, button.GetStyle().States, button.GetHandle()->IsPressed);
        look.FocusMark = button.HasFocus() && button.ShowsFocus();
        return look;
    });
}

void Attach(Controls::CheckBox& box) {
    AttachLook(box, Message::DrawItem, [&box] { return GetCheckLook(box); });
}

void Attach(Controls::RadioButton& button) {
    AttachLook(button, Message::DrawItem, [&button] { return GetCheckLook(button); });
}

void Attach(Controls::ComboBox& box) {
    AttachLook(box, Message::Paint, [&box] {
        Look look = GetFramedLook(box, box.GetStyle().States);
        look.Text = GetClosedStyle(box.GetStyle(), look.State).Text;
        look.Caption = box.GetItemText(box.GetSelection());
        if (box.IsDroppedDown()) look.Items = GetItemLooks(box);
        return look;
    });
}

void Attach(Controls::GroupBox& box) {
    const auto look = [&box] {
        return GetPlainLook(box, box.GetTextColor(), box.GetBorderColor(), box.GetStyle().Caption.Background);
    };
    for (Control* part : {static_cast<Control*>(&box), &box.GetLeftEdge(), &box.GetRightEdge(), &box.GetBottomEdge()}) {
        AttachLook(*part, Message::DrawItem, look);
    }
}

void Attach(Controls::Label& label) {
    AttachLook(label, Message::DrawItem,
               [&label] { return GetPlainLook(label, label.GetTextColor(), 0, label.GetStyle().Background); });
}

void Attach(Controls::ListBox& box) {
    AttachLook(box, Message::Paint, [&box] {
        Look look = GetFramedLook(box, box.GetStyle().States);
        look.Items = GetItemLooks(box);
        return look;
    });
}

void Attach(Controls::TextBox& box) {
    AttachLook(box, Message::Paint, [&box] {
        Look look = GetFramedLook(box, box.GetStyle().States);
        look.Caption = box.GetHandle()->Text;
        return look;
    });
}

}  // namespace UI::Native
