#include "tests/editor_windows/misread.h"

#include <array>

#include "ui/controls.h"
#include "ui/win32/platform.h"

namespace Testing {

namespace {

using namespace UI;
using namespace UI::Controls;

long GetRole(const Control& control) {
    if (dynamic_cast<const CheckBox*>(&control)) return ROLE_SYSTEM_CHECKBUTTON;
    if (dynamic_cast<const RadioButton*>(&control)) return ROLE_SYSTEM_RADIOBUTTON;
    if (dynamic_cast<const Button*>(&control)) return ROLE_SYSTEM_PUSHBUTTON;
    if (dynamic_cast<const ComboBox*>(&control)) return ROLE_SYSTEM_COMBOBOX;
    if (dynamic_cast<const ListBox*>(&control)) return ROLE_SYSTEM_LIST;
    if (dynamic_cast<const TextBox*>(&control)) return ROLE_SYSTEM_TEXT;
    if (dynamic_cast<const GroupBox*>(&control)) return ROLE_SYSTEM_GROUPING;
    return dynamic_cast<const Label*>(&control) ? ROLE_SYSTEM_STATICTEXT : ROLE_SYSTEM_BORDER;
}

std::wstring GetValue(const Control& control) {
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return combo->GetItemText(combo->GetSelection());
    return control.GetKind() == ControlKind::Edit ? control.GetText() : std::wstring();
}

bool IsChecked(const Control& control) {
    const auto* check = dynamic_cast<const AnyCheckControl*>(&control);
    return check && check->IsChecked();
}

// By the messages that readers send to lists.
std::wstring ReadRow(HWND window, bool isListBox, int row) {
    const auto length = SendMessageW(window, isListBox ? LB_GETTEXTLEN : CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length < 0) return L"no row";
    std::wstring text(static_cast<std::size_t>(length) + 1, L'?');
    SendMessageW(window, isListBox ? LB_GETTEXT : CB_GETLBTEXT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

std::wstring FindMisreadRow(HWND window, const AnyItemList& list) {
    const bool isListBox = list.GetKind() == ControlKind::ListBox;
    for (int row = 0; row < list.GetCount(); ++row) {
        if (ReadRow(window, isListBox, row) != list.GetItemText(row)) return L"row " + std::to_wstring(row);
    }
    if (isListBox) return {};
    std::array<wchar_t, 256> text{};
    SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data() == list.GetItemText(list.GetSelection()) ? L"" : L"its text";
}

std::wstring FindMisread(const ScreenReader& reader, const Control& control) {
    HWND window = Win32::ToWindow(control.GetHandle());
    const auto object = reader.Open(window);
    const Reading reading = object.Read();
    const bool takesFocus = control.GetKind() != ControlKind::Static;
    if (reading.Name != control.GetName() || (takesFocus && reading.Name.empty())) return L"name " + reading.Name;
    if (reading.Role != GetRole(control)) return L"role " + std::to_wstring(reading.Role);
    if (reading.Value != GetValue(control)) return L"value " + reading.Value;
    if (reading.Description != control.GetHint()) return L"description " + reading.Description;
    if (reading.Is(STATE_SYSTEM_CHECKED) != IsChecked(control)) return L"check";
    if (dynamic_cast<const AnyCheckControl*>(&control) &&
        (SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) != IsChecked(control))
        return L"BM_GETCHECK";
    if (reading.Is(STATE_SYSTEM_UNAVAILABLE) == control.IsEnabled()) return L"enabled";
    if (reading.Is(STATE_SYSTEM_INVISIBLE) == control.IsVisible()) return L"visible";
    if (reading.Is(STATE_SYSTEM_FOCUSED) != control.HasFocus()) return L"focus";
    const auto* list = dynamic_cast<const ListBox*>(&control);
    for (int row = 0; list && row < list->GetCount(); ++row) {
        const Reading item = object.Read(row + 1);
        if (item.Name != list->GetItemText(row) || item.Role != ROLE_SYSTEM_LISTITEM) return L"item " + item.Name;
        if (item.Is(STATE_SYSTEM_SELECTED) != (row == list->GetSelection())) return L"selection of " + item.Name;
    }
    const auto* items = dynamic_cast<const AnyItemList*>(&control);
    return items ? FindMisreadRow(window, *items) : L"";
}

}  // namespace

std::wstring FindMisread(const ScreenReader& reader, const Window& form) {
    for (const Control* control : form.GetControls()) {
        const std::wstring found = FindMisread(reader, *control);
        if (!found.empty()) return L"\"" + control->GetName() + L"\": " + found;
    }
    return {};
}

}  // namespace Testing
