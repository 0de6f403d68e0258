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

bool AddWindow::CanConfirm() const {
    return std::any_of(rows.begin(), rows.end(),
                       [this](const AddRow& row) { return row.value == fields.type && row.isEnabled; });
}
