#include "editor/list_controls.h"

#include <algorithm>

#include "ui/window.h"

using UI::Control;

namespace {

constexpr const wchar_t* UpArrow = L"\u25B2";
constexpr const wchar_t* DownArrow = L"\u25BC";

}  // namespace

ListControls::ListControls(UI::Window& window)
    : ListBox(window),
      AddButton(window, L"Add..."),
      EditButton(window, L"Edit..."),
      DeleteButton(window, L"Delete"),
      DeleteAllButton(window, L"Delete all"),
      UpButton(window, UpArrow),
      DownButton(window, DownArrow) {}

int ListControls::GetMinWidth() const {
    const UI::LayoutMetrics& metrics = ListBox.GetWindow().GetStyle().Metrics;
    int width = 2 * metrics.ControlHeight;
    for (const UI::Controls::Button* button : {&AddButton, &EditButton, &DeleteButton, &DeleteAllButton})
        width += button->Measure(button->GetText()).Width;
    return width + 5 * AddButton.GetStyle().Gap;
}

int ListControls::GetHeight(int rows) const {
    const UI::LayoutMetrics& metrics = ListBox.GetWindow().GetStyle().Metrics;
    const UI::Padding& border = ListBox.GetStyle().BorderPadding;
    return rows * ListBox.GetStyle().ItemHeight + border.Top + border.Bottom + metrics.Spacing + metrics.ControlHeight;
}

void ListControls::Place(int x, int y, int width, int height) {
    const UI::LayoutMetrics& metrics = ListBox.GetWindow().GetStyle().Metrics;
    const int side = metrics.ControlHeight;
    const int gap = AddButton.GetStyle().Gap;
    ListBox.SetRect(x, y, width, height - side - metrics.Spacing);
    const int top = ListBox.GetBottom() + metrics.Spacing;
    int left = x;
    for (UI::Controls::Button* button : {&AddButton, &EditButton, &DeleteButton, &DeleteAllButton}) {
        button->SetRect(left, top, button->Measure(button->GetText()).Width, side);
        left = button->GetRight() + gap;
    }
    DownButton.SetRect(ListBox.GetRight() - side, top, side, side);
    UpButton.SetRect(DownButton.GetX() - gap - side, top, side, side);
}

void ListControls::SetVisible(bool visible) {
    for (Control* control : GetAll()) control->SetVisible(visible);
}

std::vector<Control*> ListControls::GetAll() {
    return {&ListBox, &AddButton, &EditButton, &DeleteButton, &DeleteAllButton, &UpButton, &DownButton};
}

void RefreshList(ListControls& controls, int select) {
    UI::Controls::ListBox& box = controls.ListBox;
    const int top = box.GetTopIndex();
    box.BeginUpdate();
    if (box.GetCount() > 0) box.Clear();
    int count = 0;
    while (controls.Fill(count)) ++count;
    box.SetTopIndex(top);
    box.SetSelection(select < count ? select : UI::Controls::ListBox::NoSelection);
    box.EndUpdate();
}

void UpdateListControls(ListControls& controls, int count, bool hasRoom, bool enabled) {
    if (!controls.ListBox.HasFocus()) controls.isRefuge = false;
    const int selected = controls.ListBox.GetSelection();
    const bool isItem = selected >= 0 && selected < count;
    // The focus leaves a button that closes for the list box, and not for whatever comes next: a key that is pressed
    // again is none of that.
    const auto enable = [&controls, enabled](Control& control, bool usable) {
        if (enabled && !usable && control.HasFocus()) {
            controls.ListBox.SetFocus();
            controls.isRefuge = true;
        }
        control.SetEnabled(enabled && usable);
    };
    enable(controls.ListBox, true);
    enable(controls.AddButton, hasRoom);
    controls.AddButton.SetHint(enabled && !hasRoom ? L"No space left" : L"");
    enable(controls.EditButton, isItem);
    enable(controls.DeleteButton, isItem);
    enable(controls.DeleteAllButton, count > 0);
    enable(controls.UpButton, isItem && selected > 0);
    enable(controls.DownButton, isItem && selected < count - 1);
}

namespace Forms {

ListEditor::ListEditor(ListControls& controls, VNT::ListCaptions captions, std::function<void()> update)
    : captions(captions), controls(controls), update(std::move(update)) {
    controls.Fill = [this](int index) { return Fill(index); };
    using UI::Controls::Button;
    using UI::Controls::ListBox;
    controls.AddButton.AddNotificationHandler(Button::Clicked, [this] { AddItem(); });
    controls.EditButton.AddNotificationHandler(Button::Clicked, [this] { EditItem(); });
    controls.DeleteButton.AddNotificationHandler(Button::Clicked, [this] { DeleteItem(); });
    controls.DeleteAllButton.AddNotificationHandler(Button::Clicked, [this] { DeleteAllItems(); });
    controls.UpButton.AddNotificationHandler(Button::Clicked, [this] { MoveItemUp(); });
    controls.DownButton.AddNotificationHandler(Button::Clicked, [this] { MoveItemDown(); });
    controls.ListBox.AddNotificationHandler(ListBox::SelectionChanged, [this] {
        this->controls.isRefuge = false;
        this->update();
    });
    controls.ListBox.AddNotificationHandler(ListBox::DoubleClicked, [this] { EditItem(); });
}

void ListEditor::Update(bool enabled) {
    if (!IsAsShown()) Refresh(controls.ListBox.GetSelection());
    UpdateListControls(controls, GetCount(), HasRoom(), enabled);
}

void ListEditor::AddItem() {
    const int index = Add(controls.ListBox.GetWindow());
    if (index >= 0) Show(index);
}

void ListEditor::EditItem() {
    const int selected = controls.ListBox.GetSelection();
    if (selected < 0 || selected >= GetCount()) return;
    if (Edit(controls.ListBox.GetWindow(), selected) >= 0) Show(selected);
}

void ListEditor::DeleteItem() {
    const int selected = controls.ListBox.GetSelection();
    Remove(selected);
    Show(selected);
}

void ListEditor::DeleteAllItems() {
    Clear();
    Show(UI::Controls::ListBox::NoSelection);
}

void ListEditor::MoveItem(int step) {
    const int selected = controls.ListBox.GetSelection();
    Swap(selected, selected + step);
    Show(selected + step);
}

bool ListEditor::Fill(int index) {
    if (index < GetCount()) {
        controls.ListBox.AddItem(GetTextOf(index).ToWide());
        return true;
    }
    if (index == 0 && !captions.emptyRow.empty()) controls.ListBox.AddItem(VNT::String(captions.emptyRow).ToWide());
    return false;
}

void ListEditor::Refresh(int select) {
    RefreshList(controls, select);
    TakeAsShown();
}

void ListEditor::Show(int select) {
    Refresh(select);
    update();
}

}  // namespace Forms
