#include "ui/item_lists.h"

#include <algorithm>
#include <cwctype>

#include "ui/message.h"
#include "ui/native.h"

namespace UI::Controls {

AnyItemList::AnyItemList(Window& window, ControlKind kind, unsigned style) : AnyHotControl(window, kind, L"", style) {
    RedrawWithFocus();
    AddResultHandler(Message::Char, [this](WParam wParam, LParam lParam) -> MessageResult {
        constexpr WParam space = L' ';
        if (wParam < space || (wParam == space && typed.empty())) return CallPrevious(Message::Char, wParam, lParam);
        GoToTyped(static_cast<wchar_t>(wParam));
        return 0;
    });
}

void AnyItemList::GoToTyped(wchar_t c) {
    const int selected = GetSelection();
    if (selected != typedRow) typed.clear();
    std::wstring text = typed + c;
    int row = typed.empty() ? NoSelection : FindRow(text, selected);
    if (row == NoSelection) {
        text.assign(1, c);
        row = FindRow(text, selected + 1);
    }
    if (row == NoSelection) return;
    typed = text;
    typedRow = row;
    if (row == selected) return;
    SetSelection(row);
    DispatchNotification(SelectionChanged);
    typedRow = GetSelection();
}

int AnyItemList::FindRow(const std::wstring& text, int from) const {
    const auto begins = [&text](const std::wstring& item) {
        return item.size() >= text.size() &&
               std::equal(text.begin(), text.end(), item.begin(), [](wchar_t a, wchar_t b) {
                   return std::towlower(static_cast<std::wint_t>(a)) == std::towlower(static_cast<std::wint_t>(b));
               });
    };
    for (int i = 0; i < GetCount(); ++i) {
        const int row = (std::max(from, 0) + i) % GetCount();
        if (begins(GetItemText(row))) return row;
    }
    return NoSelection;
}

int AnyItemList::GetSelection() const { return Native::GetSelectedItem(*this); }

void AnyItemList::SetSelection(int index) {
    const int before = GetSelection();
    Native::SetSelectedItem(*this, HasItem(index) ? index : NoSelection);
    if (GetSelection() != before) Native::AnnounceSelection(*this);
}

void AnyItemList::AddItem(const std::wstring& text, const Font& itemFont) { InsertItem(GetCount(), text, itemFont); }

bool AnyItemList::InsertItem(int index, const std::wstring& text, const Font& itemFont) {
    if (index != GetCount() && !HasItem(index)) return false;
    // Here and below the texts change first: the system may draw the list at once.
    texts.insert(texts.begin() + index, text);
    fonts.insert(fonts.begin() + index, itemFont);
    if (Native::InsertItem(*this, index)) return true;
    EraseItem(index);
    return false;
}

bool AnyItemList::RemoveItem(int index) {
    if (!HasItem(index)) return false;
    EraseItem(index);
    return Native::RemoveItem(*this, index);
}

void AnyItemList::EraseItem(int index) {
    texts.erase(texts.begin() + index);
    fonts.erase(fonts.begin() + index);
}

void AnyItemList::Clear() {
    texts.clear();
    fonts.clear();
    Native::ClearItems(*this);
}

const std::wstring& AnyItemList::GetItemText(int index) const {
    static const std::wstring none;
    return HasItem(index) ? texts[static_cast<std::size_t>(index)] : none;
}

const Font& AnyItemList::GetItemFont(int index) const {
    if (!HasItem(index)) return GetFont();
    const Font& own = fonts[static_cast<std::size_t>(index)];
    return own ? own : GetFont();
}

ListBox::ListBox(Window& window) : AnyItemList(window, ControlKind::ListBox, CreationStyle) {
    Native::Attach(*this);
    ListBox::ApplyStyle(window.GetStyle());
}

int ListBox::GetTopIndex() const { return Native::GetTopItem(GetHandle()); }
void ListBox::SetTopIndex(int index) { Native::SetTopItem(GetHandle(), index); }

StateStyle ListBox::GetItemStyle(bool selected) const { return style.GetItem(IsEnabled(), selected); }

Size ListBox::Measure(std::wstring_view text) const {
    return {AnyItemList::Measure(text).Width + style.TextPadding.Left + style.TextPadding.Right +
                style.BorderPadding.Left + style.BorderPadding.Right + style.ScrollBarWidth,
            style.ItemHeight + style.BorderPadding.Top + style.BorderPadding.Bottom};
}

void ListBox::ApplyStyle(const StyleTable& table) {
    style = table.ListBox;
    ApplyLook(style.Font);
}

void ListBox::RedrawHot() { Native::RedrawFrame(GetHandle()); }

ComboBox::ComboBox(Window& window) : AnyItemList(window, ControlKind::ComboBox, CreationStyle) {
    Native::Attach(*this);
    ComboBox::ApplyStyle(window.GetStyle());
}

bool ComboBox::DispatchNotification(int code) {
    if (code == Closed) Redraw();
    if (code == Native::DroppedDown || code == Closed) Native::Announce(*this, Native::Change::State);
    return AnyItemList::DispatchNotification(code);
}

bool ComboBox::SetSize(int width, int height) {
    if (!Native::ResizeComboBox(*this, width, height)) return false;
    StoreSize(width, height);
    ClipToView();
    return true;
}

bool ComboBox::IsDroppedDown() const { return Native::IsDroppedDown(GetHandle()); }
void ComboBox::SetDroppedDown(bool down) { Native::SetDroppedDown(GetHandle(), down); }

ControlState ComboBox::GetState(bool pressed) const { return AnyItemList::GetState(pressed || IsDroppedDown()); }

StateStyle ComboBox::GetItemStyle(bool selected) const { return style.List.GetItem(IsEnabled(), selected); }

Size ComboBox::Measure(std::wstring_view text) const {
    return {AnyItemList::Measure(text).Width + style.TextPadding.Left + style.TextPadding.Right + style.ArrowWidth,
            controlHeight};
}

void ComboBox::ApplyStyle(const StyleTable& table) {
    style = table.ComboBox;
    controlHeight = table.Metrics.ControlHeight;
    ApplyLook(style.Font);
}

}  // namespace UI::Controls
