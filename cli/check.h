#pragma once

#include <string>
#include <vector>

#include "cli/edid_files.h"

namespace VNT::Cli {

// What is wrong with an EDID that was read from a file, a reason each, in the order that `check` prints them.
std::vector<std::string> CheckEdid(const ImportedFile& file);
inline std::vector<std::string> CheckEdid(const Edid& edid, const Bytes& bytes) {
    return CheckEdid(ImportBytes(edid, bytes));
}

}  // namespace VNT::Cli
