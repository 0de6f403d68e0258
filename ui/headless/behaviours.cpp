// What the standard classes do by themselves, as far as a form's user can tell.
#include <algorithm>

#include "ui/dialog_keys.h"
#include "ui/headless/desktop.h"
#include "ui/message.h"

namespace UI::Headless {

namespace {

void Notify(NativeWindow& window, int code) {
    if (!window.Parent) return;
    Native::Send(window.Parent, Message::Command, static_cast<WParam>(code) * 0x10000,
                 reinterpret_cast<LParam>(&window));
}

bool IsKey(WParam wParam, Key key) { return wParam == static_cast<WParam>(key); }

MessageResult GetDialogCode(const NativeWindow& window, WParam key) {
    return DialogKeys::GetStandardCode(*window.Control, static_cast<Key>(key));
}

MessageResult ButtonBehaviour(NativeWindow& window, int message, WParam wParam, LParam lParam) {
    const auto press = [&window](bool pressed) {
        window.IsPressed = pressed;
        Draw(window);
    };
    const auto release = [&window, press] {
        if (!window.IsPressed) return;
        press(false);
        Notify(window, Controls::Button::Clicked);
    };
    switch (message) {
        case Message::SetFocus:
            Draw(window);
            return 0;
        case Message::KillFocus:
            press(false);
            return 0;
        case Message::LeftButtonDown:
            Native::SetFocus(&window);
            press(true);
            return 0;
        case Message::LeftButtonUp:
            release();
            return 0;
        case Message::KeyDown:
            if (IsKey(wParam, Key::Space)) press(true);
            return 0;
        case Message::KeyUp:
            if (IsKey(wParam, Key::Space)) release();
            return 0;
        default:
            return Native::CallDefault(&window, message, wParam, lParam);
    }
}

// Puts `text` in the place of the selection.
void Insert(NativeWindow& edit, std::wstring_view text) {
    const int begin = std::min(edit.Anchor, edit.Caret);
    const int end = std::max(edit.Anchor, edit.Caret);
    const auto length = static_cast<int>(edit.Text.size()) - (end - begin) + static_cast<int>(text.size());
    if (edit.Limit > 0 && length > edit.Limit && !text.empty()) return;
    if (begin == end && text.empty()) return;
    edit.Text.replace(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin), text);
    edit.Anchor = edit.Caret = begin + static_cast<int>(text.size());
    Draw(edit);
    Notify(edit, Controls::TextBox::Changed);
}

// Removes the selection, or the character beside the caret.
void Remove(NativeWindow& edit, int step) {
    if (edit.Anchor == edit.Caret) {
        edit.Anchor = std::clamp(edit.Caret + step, 0, static_cast<int>(edit.Text.size()));
    }
    Insert(edit, {});
}

void MoveCaret(NativeWindow& edit, int caret) {
    edit.Caret = std::clamp(caret, 0, static_cast<int>(edit.Text.size()));
    if (!GetDesktop().ShiftDown) edit.Anchor = edit.Caret;
}

bool IsMultiLine(const NativeWindow& edit) {
    const auto* box = dynamic_cast<Controls::TextBox*>(edit.Control);
    return box && box->IsMultiLine();
}

void EditKey(NativeWindow& edit, WParam key) {
    if (IsKey(key, Key::Left)) MoveCaret(edit, edit.Caret - 1);
    if (IsKey(key, Key::Right)) MoveCaret(edit, edit.Caret + 1);
    if (IsKey(key, Key::Home)) MoveCaret(edit, 0);
    if (IsKey(key, Key::End)) MoveCaret(edit, static_cast<int>(edit.Text.size()));
    if (IsKey(key, Key::Delete)) Remove(edit, 1);
}

void EditCharacter(NativeWindow& edit, wchar_t c) {
    constexpr wchar_t firstPrintable = L' ';
    if (c == L'\b') {
        Remove(edit, -1);
    } else if (c == L'\r') {
        if (IsMultiLine(edit)) Insert(edit, L"\n");
    } else if (c >= firstPrintable) {
        Insert(edit, {&c, 1});
    }
}

MessageResult EditBehaviour(NativeWindow& window, int message, WParam wParam, LParam lParam) {
    switch (message) {
        case Message::GetDialogCode:
            return GetDialogCode(window, wParam);
        case Message::SetText: {
            const MessageResult result = Native::CallDefault(&window, message, wParam, lParam);
            window.Anchor = window.Caret = 0;
            Notify(window, Controls::TextBox::Changed);
            return result;
        }
        case Message::KillFocus:
            Notify(window, Controls::TextBox::FocusLost);
            return 0;
        case Message::LeftButtonDown:
            Native::SetFocus(&window);
            window.Anchor = window.Caret = static_cast<int>(window.Text.size());
            return 0;
        case Message::LeftButtonDoubleClick:
            Native::Select(&window, 0, -1);
            return 0;
        case Message::KeyDown:
            EditKey(window, wParam);
            return 0;
        case Message::Char:
            EditCharacter(window, static_cast<wchar_t>(wParam));
            return 0;
        default:
            return Native::CallDefault(&window, message, wParam, lParam);
    }
}

int GetItemHeight(const NativeWindow& list) {
    const auto* box = dynamic_cast<Controls::ListBox*>(list.Control);
    return box ? std::max(1, box->GetStyle().ItemHeight) : 1;
}

int GetRowsInView(const NativeWindow& list) {
    return std::max(1, (list.Place.Bottom - list.Place.Top) / GetItemHeight(list));
}

// What the user selects; the program's own selecting notifies nobody.
void SelectByUser(NativeWindow& list, int index) {
    index = std::clamp(index, 0, list.Count - 1);
    if (list.Count == 0 || index == list.Selected) return;
    list.Selected = index;
    const int rows = GetRowsInView(list);
    list.Top = std::clamp(list.Top, std::max(0, index - rows + 1), index);
    Draw(list);
    Notify(list, Controls::AnyItemList::SelectionChanged);
}

void ListKey(NativeWindow& list, WParam key) {
    if (IsKey(key, Key::Up)) SelectByUser(list, list.Selected - 1);
    if (IsKey(key, Key::Down)) SelectByUser(list, list.Selected + 1);
    if (IsKey(key, Key::PageUp)) SelectByUser(list, list.Selected - GetRowsInView(list));
    if (IsKey(key, Key::PageDown)) SelectByUser(list, list.Selected + GetRowsInView(list));
    if (IsKey(key, Key::Home)) SelectByUser(list, 0);
    if (IsKey(key, Key::End)) SelectByUser(list, list.Count - 1);
}

MessageResult ListBoxBehaviour(NativeWindow& window, int message, WParam wParam, LParam lParam) {
    switch (message) {
        case Message::GetDialogCode:
            return GetDialogCode(window, wParam);
        case Message::LeftButtonDown: {
            Native::SetFocus(&window);
            const int row = window.Top + static_cast<int>(lParam / 0x10000) / GetItemHeight(window);
            if (row < window.Count) SelectByUser(window, row);
            return 0;
        }
        case Message::LeftButtonDoubleClick:
            Notify(window, Controls::ListBox::DoubleClicked);
            return 0;
        case Message::KeyDown:
            ListKey(window, wParam);
            return 0;
        default:
            return Native::CallDefault(&window, message, wParam, lParam);
    }
}

MessageResult ComboBoxBehaviour(NativeWindow& window, int message, WParam wParam, LParam lParam) {
    switch (message) {
        case Message::GetDialogCode:
            return GetDialogCode(window, wParam);
        case Message::KillFocus:
            Native::SetDroppedDown(&window, false);
            return 0;
        case Message::LeftButtonDown:
        case Message::LeftButtonDoubleClick:
            Native::SetFocus(&window);
            Native::SetDroppedDown(&window, !window.IsDropped);
            return 0;
        case Message::KeyDown:
            if (IsKey(wParam, Key::F4)) {
                Native::SetDroppedDown(&window, !window.IsDropped);
            } else if (IsKey(wParam, Key::Return) || IsKey(wParam, Key::Escape)) {
                Native::SetDroppedDown(&window, false);
            } else {
                ListKey(window, wParam);
            }
            return 0;
        default:
            return Native::CallDefault(&window, message, wParam, lParam);
    }
}

MessageResult StaticBehaviour(NativeWindow& window, int message, WParam wParam, LParam lParam) {
    return Native::CallDefault(&window, message, wParam, lParam);
}

}  // namespace

Behaviour GetBehaviour(ControlKind kind) {
    switch (kind) {
        case ControlKind::Button:
            return ButtonBehaviour;
        case ControlKind::ComboBox:
            return ComboBoxBehaviour;
        case ControlKind::Edit:
            return EditBehaviour;
        case ControlKind::ListBox:
            return ListBoxBehaviour;
        case ControlKind::Static:
            break;
    }
    return StaticBehaviour;
}

}  // namespace UI::Headless
