#pragma once

#include <optional>
#include <string>
#include <vector>

#include "store/linux/edid_parameter.h"

// /etc/default/grub and its drop-ins: files that a shell reads, in which the variables GRUB_CMDLINE_LINUX and
// GRUB_CMDLINE_LINUX_DEFAULT hold the kernel's command line (the second one behind the first, and not in the entries
// for rescue). Understood are assignments that stand at the start of a line; all else is left alone.
namespace VNT::Linux {

inline constexpr char GrubLine[] = "GRUB_CMDLINE_LINUX";
inline constexpr char GrubDefaultLine[] = "GRUB_CMDLINE_LINUX_DEFAULT";

// The value's word of an assignment, as it stands in the text, with its quotes.
struct Assignment {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool extends = false;  // what the variable held before is part of the value
};

// The assignments to a variable, in order; nothing if one of them isn't understood.
std::optional<std::vector<Assignment>> FindAssignments(const std::string& text, const std::string& variable);

// Which of the files, in the order in which they are read, our entries have to go into: the one whose value has a
// parameter of its own in effect, else that with the last assignment to the variable for ordinary starts. None: no file
// assigns it. Unclear: they can't be read as assignments.
struct GrubPlace {
    Found found = Found::No;
    std::size_t file = 0;
    Assignment assignment;
    bool hasParameter = false;
};
GrubPlace FindGrubPlace(const std::vector<std::string>& texts);

// The text of one file with our entries at that place, or without a place as a line at its end.
std::optional<std::string> AddToGrub(const std::string& text, const GrubPlace& place,
                                     const std::vector<FirmwareEntry>& ours);
// The inverse, wherever in the file they stand.
std::optional<std::string> RemoveFromGrub(const std::string& text, const std::vector<FirmwareEntry>& ours);

}  // namespace VNT::Linux
