#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/command.h"
#include "json/edid_json.h"
#include "store/edid_files.h"

namespace VNT::Cli {

// What FILE holds, or standard input for "-": its bytes as far as any format reaches, and how many there are in all.
struct FileBytes {
    Bytes bytes;
    std::int64_t size = 0;
};
// Fails on what can't be read.
FileBytes ReadFileBytes(const std::string& file, const Console& console);

// What the editor's import reads from FILE, and what the file says beyond that.
struct ImportedFile {
    Edid edid;
    Bytes bytes;                     // that the file gives, up to the most that any format has
    std::int64_t behind = 0;         // bytes behind the last block that the EDID counts
    int missing = 0;                 // blocks that it counts and the file lacks
    std::int64_t notUnderstood = 0;  // characters of a text
    // Blocks were there, or should have been, that the EDID lacks now.
    bool HasLost() const { return missing > 0 || behind >= Edid::BlockSize || notUnderstood > 0; }
};
// Fails if it is no EDID.
ImportedFile ReadImportedFile(const std::string& file, const Console& console);
inline Edid ImportFile(const std::string& file, const Console& console) { return ReadImportedFile(file, console).edid; }
// The same of bytes that are in no file.
ImportedFile ImportBytes(const Edid& edid, const Bytes& bytes);

// "3 bytes": the number with the word, in the plural where it is not one.
std::string CountText(std::int64_t count, const std::string& word);
// "2 blocks missing" and the like, of what the file says and the EDID lacks.
std::vector<std::string> LossTexts(const ImportedFile& file);

// The bytes of an EDID that JSON describes. Fails with the path of what is wrong with it.
Bytes BuildJson(const Bytes& text, const std::string& file, Json::Building& building);

// The format of `--format`, else of the file's ending, else BIN.
FileFormat ChooseFormat(const Arguments& arguments, const std::string& file);
// Writes the bytes to a file, or to standard output for "-". Fails with an older file of that name as it was.
void WriteOut(const Bytes& bytes, const std::string& file, const Console& console);
// The same of an EDID in that format.
void ExportFile(const Edid& edid, FileFormat format, const std::string& file, const Console& console);

}  // namespace VNT::Cli
