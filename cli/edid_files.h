#pragma once

#include <string>

#include "cli/command.h"
#include "store/edid_files.h"

namespace VNT::Cli {

// The bytes of FILE, or of standard input for "-", as far as any format reaches. Fails on what can't be read.
Bytes ReadFileBytes(const std::string& file, const Console& console);
// FILE as the editor's import reads it. Fails if it is no EDID.
Edid ImportFile(const std::string& file, const Console& console);

// The format of `--format`, else of the file's ending, else BIN.
FileFormat ChooseFormat(const Arguments& arguments, const std::string& file);
// Writes the EDID in that format to a file, or to standard output for "-". Fails with an older file of that name as it
// was.
void ExportFile(const Edid& edid, FileFormat format, const std::string& file, const Console& console);

}  // namespace VNT::Cli
