#pragma once

#include <filesystem>
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
Bytes GetFileBytes(const Bytes& edid, FileFormat format);

// Each is false if the EDID or the file can't be written, see WriteFile. The lines of a text end as the system's do.
bool Export(const std::filesystem::path& path, const Edid& edid, FileFormat format);
bool Export(const std::filesystem::path& path, const Bytes& edid, FileFormat format);  // bytes as they are
bool ExportBin(const std::filesystem::path& path, const Edid& edid);
bool ExportDat(const std::filesystem::path& path, const Edid& edid);
bool ExportTxt(const std::filesystem::path& path, const Edid& edid);

// What the stream has, up to `most` bytes, taken in pieces as it comes. False, with what came, if reading it failed.
bool ReadStream(std::istream& in, std::int64_t most, Bytes& out);

}  // namespace VNT
