#include "store/edid_files.h"

#include <fstream>

namespace fs = std::filesystem;

namespace VNT {

namespace {

// Nothing of a file that can't be read.
Bytes ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::uint8_t> bytes(MaxFileBytes);
    in.read(reinterpret_cast<char*>(bytes.data()), MaxFileBytes);
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return Bytes(std::move(bytes));
}

// A name beside `path` that no file has.
fs::path GetFreshName(const fs::path& path) {
    std::error_code error;
    for (int i = 1;; ++i) {
        fs::path fresh = path;
        fresh += ".new" + (i > 1 ? std::to_string(i) : std::string());
        if (!fs::exists(fresh, error)) return fresh;
    }
}

}  // namespace

bool ImportBin(const fs::path& path, Edid& edid) { return ReadBin(ReadFile(path), edid); }
bool ImportDat(const fs::path& path, Edid& edid) { return ReadDat(ReadFile(path), edid); }
bool ImportTxt(const fs::path& path, Edid& edid) { return ReadTxt(ReadFile(path), edid); }
bool ImportAny(const fs::path& path, Edid& edid) { return ReadAnyFormat(ReadFile(path), edid); }

Bytes GetFileBytes(const Edid& edid, FileFormat format) {
    switch (format) {
        case FileFormat::Txt:
            return WriteTxt(edid);
        case FileFormat::Dat:
            return WriteDat(edid);
        case FileFormat::Bin:
            break;
    }
    return WriteBin(edid);
}

bool Export(const fs::path& path, const Edid& edid, FileFormat format) {
    const Bytes bytes = GetFileBytes(edid, format);
    return !bytes.IsEmpty() && ReplaceFile(path, format == FileFormat::Bin ? FileKind::Binary : FileKind::Text, bytes);
}

bool ExportBin(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Bin); }
bool ExportDat(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Dat); }
bool ExportTxt(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Txt); }

bool ReplaceFile(const fs::path& path, FileKind kind, const std::function<void(std::ostream&)>& write) {
    const fs::path fresh = GetFreshName(path);
    std::ofstream out(fresh, kind == FileKind::Binary ? std::ios::binary | std::ios::out : std::ios::out);
    if (out) write(out);
    out.close();
    std::error_code error;
    if (out) {
        fs::rename(fresh, path, error);
        if (!error) return true;
    }
    fs::remove(fresh, error);
    return false;
}

bool ReplaceFile(const fs::path& path, FileKind kind, ByteRange bytes) {
    return ReplaceFile(
        path, kind, [bytes](std::ostream& out) { out.write(reinterpret_cast<const char*>(bytes.data), bytes.size); });
}

}  // namespace VNT
