#include "cli/edid_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

fs::path PathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

Bytes ReadStream(std::istream& in, const std::string& name) {
    std::vector<std::uint8_t> bytes(MaxFileBytes);
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (in.bad()) throw Failure(name, "can't be read");
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return Bytes(std::move(bytes));
}

std::optional<FileFormat> FormatNamed(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    if (name == "bin") return FileFormat::Bin;
    if (name == "dat") return FileFormat::Dat;
    if (name == "txt") return FileFormat::Txt;
    return std::nullopt;
}

}  // namespace

Bytes ReadFileBytes(const std::string& file, const Console& console) {
    if (file == "-") return ReadStream(console.in, "standard input");
    const fs::path path = PathOf(file);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) throw Failure(file, "no such file");
    if (fs::is_directory(status)) throw Failure(file, "is a folder");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(file, "can't be opened");
    return ReadStream(in, file);
}

Edid ImportFile(const std::string& file, const Console& console) {
    Edid edid;
    if (!ReadAnyFormat(ReadFileBytes(file, console), edid)) throw Failure(file, "is no EDID in BIN, DAT or TXT format");
    return edid;
}

FileFormat ChooseFormat(const Arguments& arguments, const std::string& file) {
    if (const std::string* name = arguments.Value("--format")) return FormatNamed(*name).value_or(FileFormat::Bin);
    const std::size_t point = file.find_last_of('.');
    if (point == std::string::npos) return FileFormat::Bin;
    return FormatNamed(file.substr(point + 1)).value_or(FileFormat::Bin);
}

void ExportFile(const Edid& edid, FileFormat format, const std::string& file, const Console& console) {
    std::error_code error;
    if (edid.GetBytes().IsEmpty()) throw Failure(file, "the EDID can't be written");
    if (file == "-") {
        const Bytes bytes = GetFileBytes(edid, format);
        console.out.write(reinterpret_cast<const char*>(bytes.Range().data), bytes.Size());
        return;
    }
    if (fs::is_directory(PathOf(file), error)) throw Failure(file, "is a folder");
    if (!Export(PathOf(file), edid, format)) throw Failure(file, "can't be written");
}

}  // namespace VNT::Cli
