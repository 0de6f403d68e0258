#pragma once

#include <filesystem>

#include "store/entry.h"

namespace VNT::App {

// Edits one EDID file as the editor edits a display, and writes it again in its own format when the user has changed
// and confirmed it; what stands behind the EDID in a binary file stays. Returns the program's exit code.
int EditFile(const std::filesystem::path& path, const EntryScreen& screen);

}  // namespace VNT::App
