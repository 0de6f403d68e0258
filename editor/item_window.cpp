#include "editor/item_window.h"

#include <algorithm>

namespace {

// Most names differ in their first letter.
bool IsName(const char* name, std::string_view wanted) {
    for (const char c : wanted) {
        if (*name++ != c) return false;
    }
    return *name == '\0';
}

}  // namespace

const VNT::FieldStatus* ItemWindow::Status::Find(std::string_view field) const {
    const std::vector<VNT::FieldStatus>& all = status.Fields();
    if (field.empty()) return nullptr;
    const auto front = static_cast<unsigned char>(field.front());
    const auto back = static_cast<unsigned char>(field.back());
    std::uint8_t& place = places[(field.size() + 5U * front + 11U * back) % places.size()];
    if (place < all.size() && IsName(all[place].name, field)) return &all[place];
    const auto found = std::find_if(all.begin(), all.end(), [field](const auto& of) { return IsName(of.name, field); });
    if (found == all.end()) return nullptr;
    place = static_cast<std::uint8_t>(found - all.begin());
    return &*found;
}

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
    return (!fits || !status.Get().IsValidAll()) && IsChanged();
}

Forms::FieldState ItemWindow::GetFieldState(std::string_view field) const {
    const VNT::FieldStatus* found = status.Find(field);
    const bool isProper = !found || found->proper;
    const bool closesOk = found && !(AllowsUnsound() ? found->all : found->proper);
    switch (GetOpener()) {
        case Opener::Size:
            return {isProper, available.IsPresent(field) && available.IsProper(field), closesOk};
        case Opener::Item:
            return {isProper, available.IsProper(field), closesOk};
        default:
            return {isProper, found != nullptr, closesOk};
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
