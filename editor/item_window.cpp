#include "editor/item_window.h"

void ItemWindow::Update() {
    Build();
    AnyWindow::Update();
}

bool ItemWindow::HasRoom(std::string_view field) const {
    return GetOpener() != Opener::Size || (available.IsProper(field) && available.IsProper("Size"));
}

Forms::FieldState ItemWindow::GetFieldState(std::string_view field) const {
    switch (GetOpener()) {
        case Opener::Size:
            return {status.IsProper(field), available.IsPresent(field) && available.IsProper(field)};
        case Opener::Item:
            return {status.IsProper(field), available.IsProper(field)};
        default:
            return {status.IsProper(field), status.IsPresent(field)};
    }
}

void ItemWindow::SetStatus(VNT::ItemStatus newStatus, VNT::ItemStatus newAvailable) {
    status = std::move(newStatus);
    available = std::move(newAvailable);
}

int ItemWindow::RunIn(int newBytes) {
    bytes = newBytes;
    return RunForm();
}
