#include "app/edit_file.h"

#include <fstream>
#include <optional>

#include "model/core/text_string.h"
#include "store/edid_files.h"
#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT::App {

namespace {

constexpr int ModalResultOk = 1;

struct OpenedFile {
    FileFormat format;
    Edid edid;
};

std::optional<OpenedFile> Open(const fs::path& path) {
    Edid edid;
    if (ImportBin(path, edid)) return OpenedFile{FileFormat::Bin, edid};
    if (ImportDat(path, edid)) return OpenedFile{FileFormat::Dat, edid};
    if (ImportTxt(path, edid)) return OpenedFile{FileFormat::Txt, edid};
    return std::nullopt;
}

Bytes ReadFrom(const fs::path& path, int offset) {
    std::ifstream in(path, std::ios::binary);
    in.seekg(offset);
    return Bytes(std::vector<std::uint8_t>{std::istreambuf_iterator<char>(in), {}});
}

bool Write(const fs::path& path, const OpenedFile& before, const Bytes& edited) {
    Edid edid;
    if (!edid.Read(edited)) return false;
    if (before.format != FileFormat::Bin) return Export(path, edid, before.format);
    Bytes bytes = WriteBin(edid);
    if (bytes.IsEmpty()) return false;
    bytes.Append(ReadFrom(path, before.edid.GetBytes().Size()));
    return WriteFile(path, bytes);
}

void Run(const fs::path& path, const EntryScreen& screen) {
    if (screen.startDrawing() != 0) throw L"Failed to start.";
    const auto opened = Open(path);
    if (!opened) throw L"Failed to import file.";
    Display display;
    display.InstanceId = UpperAscii(String(std::string_view(path.string())).ToWide());
    display.DeviceDescription = String(std::string_view(path.filename().string())).ToWide();
    display.CurrentData = display.EdidData = opened->edid.GetBytes();
    DisplayList list{display};
    if (screen.edit(list) != ModalResultOk || list.front().Saved) return;
    if (!Write(path, *opened, list.front().CurrentData)) throw L"Failed to export file.";
}

}  // namespace

int EditFile(const fs::path& path, const EntryScreen& screen) {
    try {
        Run(path, screen);
        return 0;
    } catch (const wchar_t* text) {
        screen.showError(text);
        return 1;
    }
}

}  // namespace VNT::App
