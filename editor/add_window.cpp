#include "editor/add_window.h"

AddWindow::AddWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title,
                     std::vector<AddRow> offered)
    : TFieldsWindow(parent, className, title), rows(std::move(offered)) {
    auto group = Group(L"Type");
    for (const AddRow& row : rows) {
        group.Radio(Field<&AddFields::type>, row.value, VNT::String(row.text).ToWide())
            .EnabledIf([isEnabled = row.isEnabled] { return isEnabled; });
    }
}

int AddWindow::Run(int& type) {
    fields.type = rows.empty() ? 0 : rows.front().value;
    const int result = RunForm();
    if (result == UI::IdOk) type = fields.type;
    return result;
}

void AddWindow::Update() {
    TFieldsWindow::Update();
    if (CanConfirm()) return;
    SetValidStyle(GetGroups().front()->Box, false);
    // Tab comes to the selected button; where that can't be used it has to come to one that can.
    for (UI::Control* control : GetControls()) {
        auto* radio = dynamic_cast<UI::Controls::RadioButton*>(control);
        if (radio && radio->IsEnabled()) return radio->SetTabStop(true);
    }
}

bool AddWindow::CanConfirm() const {
    return std::any_of(rows.begin(), rows.end(),
                       [this](const AddRow& row) { return row.value == fields.type && row.isEnabled; });
}
