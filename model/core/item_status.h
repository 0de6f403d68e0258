#pragma once

#include <string_view>
#include <vector>

namespace VNT {

// The state of each field that applies now. A field that is not listed doesn't apply, which is no fault.
struct FieldStatus {
    const char* name;
    bool proper;  // within what a sound EDID holds
    bool all;     // within what the bytes can carry
};

class ItemStatus {
public:
    void Report(const char* name, bool proper, bool all);
    bool IsPresent(std::string_view name) const;
    bool IsProper(std::string_view name) const;  // true for a field that doesn't apply
    bool IsAll(std::string_view name) const;
    bool IsValid() const;
    bool IsValidAll() const;
    const std::vector<FieldStatus>& Fields() const { return fields_; }

private:
    const FieldStatus* Find(std::string_view name) const;
    std::vector<FieldStatus> fields_;
};

// The two overall tests alone, for the paths that run often.
struct Validity {
    bool proper = true;
    bool all = true;
    void Report(const char*, bool fieldProper, bool fieldAll) {
        proper = proper && fieldProper;
        all = all && fieldAll;
    }
};

}  // namespace VNT
