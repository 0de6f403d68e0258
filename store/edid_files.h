#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>

#include "model/edid/file_formats.h"

// EDIDs in files of the three formats: raw bytes (BIN), a listing with offsets (DAT), plain hex (TXT).
namespace VNT {

// Each is false, with `edid` unchanged, for a file that can't be read or is no EDID in the format.
bool ImportBin(const std::filesystem::path& path, Edid& edid);
bool ImportDat(const std::filesystem::path& path, Edid& edid);
bool ImportTxt(const std::filesystem::path& path, Edid& edid);
// Whichever of the three takes the file, tried in this order.
bool ImportAny(const std::filesystem::path& path, Edid& edid);

enum class FileFormat { Bin, Dat, Txt };

// What a file in that format holds, lines ending in "\n"; empty if the EDID can't be written.
Bytes GetFileBytes(const Edid& edid, FileFormat format);

// Each is false, with an older file of that name as it was, if the EDID or the file can't be written. The lines of a
// text end as the system's do.
bool Export(const std::filesystem::path& path, const Edid& edid, FileFormat format);
bool ExportBin(const std::filesystem::path& path, const Edid& edid);
bool ExportDat(const std::filesystem::path& path, const Edid& edid);
bool ExportTxt(const std::filesystem::path& path, const Edid& edid);

enum class FileKind { Binary, Text };

// Writes a new file beside `path` and renames it over the old one. False, with the old file as it was and nothing left
// beside it, if any of that fails: `write` too, by the state of its stream.
bool ReplaceFile(const std::filesystem::path& path, FileKind kind, const std::function<void(std::ostream&)>& write);
bool ReplaceFile(const std::filesystem::path& path, FileKind kind, ByteRange bytes);

}  // namespace VNT
