#include "editor/item_window.h"

void ItemWindow::Update() {
    Build();
    if (!isOpen) KeepOpened();
    isOpen = true;
    AnyWindow::Update();
}

void ItemWindow::Register(const Forms::AnyField& field) {
    const auto isIt = [&field](const Forms::AnyField& other) { return other.GetAddress() == field.GetAddress(); };
    if (std::none_of(shown.begin(), shown.end(), isIt)) shown.push_back(field);
}

bool ItemWindow::HasRoom(std::string_view field) const {
    return GetOpener() != Opener::Size || (available.IsProper(field) && available.IsProper("Size"));
}

bool ItemWindow::IsBlocked() {
    const bool fits = status.IsProper("Size") && status.IsProper("size");
    return (!fits || !status.IsValidAll()) && IsChanged();
}

Forms::FieldState ItemWindow::GetFieldState(std::string_view field) const {
    const bool isProper = status.IsProper(field);
    const bool closesOk = AllowsUnsound() ? !status.IsAll(field) : !isProper;
    switch (GetOpener()) {
        case Opener::Size:
            return {isProper, available.IsPresent(field) && available.IsProper(field), closesOk};
        case Opener::Item:
            return {isProper, available.IsProper(field), closesOk};
        default:
            return {isProper, status.IsPresent(field), closesOk};
    }
}

void ItemWindow::SetStatus(VNT::ItemStatus newStatus, VNT::ItemStatus newAvailable) {
    status = std::move(newStatus);
    available = std::move(newAvailable);
}

void ItemWindow::PutBackHeld(const Records& records, void* whole) const {
    for (const Forms::AnyField& field : away) {
        const Forms::AnyField target = field.In(whole, records.fields);
        // What was changed since is another's.
        if (!target.Differs(field.In(records.normal, records.fields)))
            target.CopyFrom(field.In(records.held, records.fields));
    }
}

void ItemWindow::FindHeld(const Records& records) {
    away.clear();
    for (const Forms::AnyField& field : shown) {
        if (!field.IsIn(records.fields, records.size)) continue;
        const Forms::AnyField given = field.In(records.held, records.fields);
        if (field.Differs(given) && !Forms::IsBad(given) && !status.IsPresent(field.Name)) away.push_back(field);
    }
}

int ItemWindow::RunIn(int newBytes) {
    bytes = newBytes;
    isOpen = false;
    ForgetHeld();
    return RunForm();
}
