#include "store/edid_files.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <vector>

#include "store/system_files.h"
#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT {

namespace {

constexpr int PieceSize = 16 * 1024;  // more than most files have

// Nothing of a file that can't be read.
Bytes ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    Bytes bytes;
    return in && ReadStream(in, MaxFileBytes, bytes) ? bytes : Bytes();
}

// The text with its lines ended as the system's are.
Bytes AsSystemText(const Bytes& text) {
    const std::string_view end = SystemFiles::LineEnd();
    std::vector<std::uint8_t> bytes;
    for (const std::uint8_t byte : text.View()) {
        if (byte == '\n') {
            bytes.insert(bytes.end(), end.begin(), end.end());
        } else {
            bytes.push_back(byte);
        }
    }
    return Bytes(bytes);
}

}  // namespace

bool ReadStream(std::istream& in, std::int64_t most, Bytes& out) {
    Bytes bytes;
    Bytes piece(PieceSize, 0);
    while (bytes.Size() < most && in) {
        in.read(reinterpret_cast<char*>(&piece.At(0)), std::min<std::int64_t>(PieceSize, most - bytes.Size()));
        bytes.Append(piece.Range().Peek(static_cast<int>(in.gcount())));
    }
    out = std::move(bytes);
    return !in.bad();
}

bool ImportBin(const fs::path& path, Edid& edid) { return ReadBin(ReadFile(path), edid); }
bool ImportDat(const fs::path& path, Edid& edid) { return ReadDat(ReadFile(path), edid); }
bool ImportTxt(const fs::path& path, Edid& edid) { return ReadTxt(ReadFile(path), edid); }
bool ImportAny(const fs::path& path, Edid& edid) { return ReadAnyFormat(ReadFile(path), edid); }

Bytes GetFileBytes(const Edid& edid, FileFormat format) { return GetFileBytes(edid.GetBytes(), format); }

Bytes GetFileBytes(const Bytes& edid, FileFormat format) {
    switch (format) {
        case FileFormat::Txt:
            return WriteTxt(edid);
        case FileFormat::Dat:
            return WriteDat(edid);
        case FileFormat::Bin:
            break;
    }
    return edid;
}

bool Export(const fs::path& path, const Edid& edid, FileFormat format) { return Export(path, edid.GetBytes(), format); }

bool Export(const fs::path& path, const Bytes& edid, FileFormat format) {
    const Bytes bytes = GetFileBytes(edid, format);
    return !bytes.IsEmpty() && WriteFile(path, format == FileFormat::Bin ? bytes : AsSystemText(bytes));
}

bool ExportBin(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Bin); }
bool ExportDat(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Dat); }
bool ExportTxt(const fs::path& path, const Edid& edid) { return Export(path, edid, FileFormat::Txt); }

}  // namespace VNT
