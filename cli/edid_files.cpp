#include "cli/edid_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

fs::path PathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

void RefuseFolder(const std::string& file) {
    std::error_code error;
    if (fs::is_directory(PathOf(file), error)) throw Failure(file, "is a folder");
}

// Counts the rest of a stream without keeping it.
std::int64_t CountRest(std::istream& in) {
    constexpr std::int64_t pieceSize = 1024 * 1024;
    std::int64_t count = 0;
    Bytes piece;
    do {
        if (!VNT::ReadStream(in, pieceSize, piece)) break;
        count += piece.Size();
    } while (!piece.IsEmpty());
    return count;
}

FileBytes ReadAll(std::istream& in, const std::string& name) {
    FileBytes file;
    if (!VNT::ReadStream(in, MaxFileBytes, file.bytes)) throw Failure(name, "can't be read");
    file.size = file.bytes.Size();
    return file;
}

bool BeginsAsJson(const Bytes& bytes) {
    int at = 0;
    while (at < bytes.Size() && IsBlank(bytes.At(at))) ++at;
    return at < bytes.Size() && bytes.At(at) == '{';
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

FileBytes ReadFileBytes(const std::string& file, const Console& console) {
    if (file == "-") {
        FileBytes read = ReadAll(console.in, "standard input");
        read.size += CountRest(console.in);
        return read;
    }
    const fs::path path = PathOf(file);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) throw Failure(file, "no such file");
    if (fs::is_directory(status)) throw Failure(file, "is a folder");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(file, "can't be opened");
    FileBytes read = ReadAll(in, file);
    // A device may have no end.
    if (fs::is_regular_file(status)) read.size += CountRest(in);
    return read;
}

ImportedFile ReadImportedFile(const std::string& file, const Console& console) {
    const FileBytes read = ReadFileBytes(file, console);
    ImportedFile imported;
    if (BeginsAsJson(read.bytes)) {
        Json::Building building;
        const Bytes bytes = BuildJson(read.bytes, file, building);
        if (!imported.edid.Read(bytes)) throw Failure(file, "is no EDID");
        return ImportBytes(imported.edid, bytes);
    }
    FileContent content;
    if (!ReadAnyFormat(read.bytes, imported.edid) || !GetContent(read.bytes, content)) {
        throw Failure(file, "is no EDID in BIN, DAT or TXT format");
    }
    imported = ImportBytes(imported.edid, content.bytes);
    const std::int64_t unread = read.size - read.bytes.Size();
    imported.notUnderstood = content.isText ? content.notUnderstood + unread : 0;
    if (!content.isText) imported.behind += unread;
    return imported;
}

Bytes BuildJson(const Bytes& text, const std::string& file, Json::Building& building) {
    std::string problem;
    const auto& bytes = text.View();
    const auto node = Json::Parse(std::string(bytes.begin(), bytes.end()), problem);
    if (!node) throw Failure(file, problem);
    const auto built = Json::BuildEdid(*node, building);
    if (!built) throw Failure(file, building.error);
    return *built;
}

ImportedFile ImportBytes(const Edid& edid, const Bytes& bytes) {
    ImportedFile imported{edid, bytes};
    const int blocks = 1 + std::max(edid.extensionBlockCount, edid.extensionOverrideCount);
    const int whole = std::min(blocks, bytes.Size() / Edid::BlockSize);
    imported.behind = bytes.Size() - whole * Edid::BlockSize;
    imported.missing = blocks - whole;
    return imported;
}

std::string CountText(std::int64_t count, const std::string& word) {
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

std::vector<std::string> LossTexts(const ImportedFile& file) {
    std::vector<std::string> texts;
    if (file.behind > 0) texts.push_back(CountText(file.behind, "byte") + " behind the last block");
    if (file.missing > 0) texts.push_back(CountText(file.missing, "block") + " missing");
    if (file.notUnderstood > 0) texts.push_back(CountText(file.notUnderstood, "byte") + " not understood");
    return texts;
}

FileFormat ChooseFormat(const Arguments& arguments, const std::string& file) {
    if (const std::string* name = arguments.Value("--format")) return FormatNamed(*name).value_or(FileFormat::Bin);
    const std::size_t point = file.find_last_of('.');
    if (point == std::string::npos) return FileFormat::Bin;
    return FormatNamed(file.substr(point + 1)).value_or(FileFormat::Bin);
}

void WriteOut(const Bytes& bytes, const std::string& file, const Console& console) {
    if (file == "-") {
        console.out.write(reinterpret_cast<const char*>(bytes.Range().data), bytes.Size());
        return;
    }
    RefuseFolder(file);
    if (!WriteFile(PathOf(file), bytes)) throw Failure(file, "can't be written");
}

void ExportFile(const Edid& edid, FileFormat format, const std::string& file, const Console& console) {
    if (edid.GetBytes().IsEmpty()) throw Failure(file, "the EDID can't be written");
    if (file == "-") return WriteOut(GetFileBytes(edid, format), file, console);
    RefuseFolder(file);
    if (!Export(PathOf(file), edid, format)) throw Failure(file, "can't be written");
}

}  // namespace VNT::Cli
