#include "model/core/item_status.h"

#include <algorithm>

namespace VNT {

void ItemStatus::Report(const char* name, bool proper, bool all) { fields_.push_back({name, proper, all}); }

const FieldStatus* ItemStatus::Find(std::string_view name) const {
    const auto found =
        std::find_if(fields_.begin(), fields_.end(), [name](const FieldStatus& f) { return f.name == name; });
    return found == fields_.end() ? nullptr : &*found;
}

bool ItemStatus::IsPresent(std::string_view name) const { return Find(name) != nullptr; }

bool ItemStatus::IsProper(std::string_view name) const {
    const FieldStatus* field = Find(name);
    return field == nullptr || field->proper;
}

bool ItemStatus::IsAll(std::string_view name) const {
    const FieldStatus* field = Find(name);
    return field == nullptr || field->all;
}

bool ItemStatus::IsValid() const {
    return std::all_of(fields_.begin(), fields_.end(), [](const FieldStatus& f) { return f.proper; });
}

bool ItemStatus::IsValidAll() const {
    return std::all_of(fields_.begin(), fields_.end(), [](const FieldStatus& f) { return f.all; });
}

}  // namespace VNT
