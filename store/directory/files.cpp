#include "store/directory/files.h"

#include <algorithm>
#include <fstream>

#include "model/core/text_string.h"
#include "store/display.h"
#include "store/edid_files.h"

namespace fs = std::filesystem;

namespace VNT::Files {

namespace {

using SystemErrors::None;

// As the registry's values; a larger file is no EDID.
constexpr std::uintmax_t LargestFile = 1024 * 1024;

bool IsOfKind(const fs::directory_entry& entry, Kind kind) {
    std::error_code error;
    const fs::file_status status = entry.symlink_status(error);
    return !error && (kind == Kind::File ? fs::is_regular_file(status) : fs::is_directory(status));
}

}  // namespace

std::wstring NameOf(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return String(std::string_view(reinterpret_cast<const char*>(name.data()), name.size())).ToWide();
}

SystemError Entries(const fs::path& folder, Kind kind, std::vector<fs::path>& out) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (IsOfKind(*at, kind)) out.push_back(at->path());
    }
    std::sort(out.begin(), out.end());
    return error ? SystemErrors::AccessDenied : None;
}

SystemError Find(const fs::path& folder, const std::wstring& name, Kind kind, fs::path& out) {
    std::vector<fs::path> entries;
    const SystemError error = Entries(folder, kind, entries);
    if (error != None) return error;
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const fs::path& entry) {
        return UpperAscii(NameOf(entry)) == UpperAscii(name);
    });
    if (found == entries.end()) return SystemErrors::FileNotFound;
    out = *found;
    return None;
}

std::optional<fs::path> Place(const fs::path& folder, const std::wstring& name) {
    constexpr std::wstring_view separators(L"/\\:\0", 4);
    if (name.empty() || name == L"." || name == L".." || name.find_first_of(separators) != std::wstring::npos) {
        return std::nullopt;
    }
    const std::string utf8 = String(name).ToUtf8();
    return folder / fs::path(std::u8string(utf8.begin(), utf8.end()));
}

SystemError Read(const fs::path& file, Bytes& out) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    if (error || size > LargestFile) return SystemErrors::AccessDenied;
    std::vector<char> bytes(static_cast<std::size_t>(size));
    std::ifstream in(file, std::ios::binary);
    in.read(bytes.data(), static_cast<std::streamsize>(size));
    if (!in) return SystemErrors::AccessDenied;
    out = Bytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    return None;
}

SystemError Write(const fs::path& file, ByteRange bytes) {
    return ReplaceFile(file, FileKind::Binary, bytes) ? None : SystemErrors::AccessDenied;
}

}  // namespace VNT::Files
