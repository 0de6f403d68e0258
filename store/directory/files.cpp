#include "store/directory/files.h"

#include <algorithm>
#include <fstream>

#include "model/core/text_string.h"
#include "store/display.h"
#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT::Files {

namespace {

using SystemErrors::None;

// As the registry's values; a larger file is no EDID.
constexpr std::uintmax_t LargestFile = 1024 * 1024;

Kind KindOf(const fs::directory_entry& entry) {
    std::error_code error;
    const fs::file_status status = entry.symlink_status(error);
    if (fs::is_regular_file(status)) return Kind::File;
    return fs::is_directory(status) ? Kind::Folder : Kind::Other;
}

// The name in UTF-8; nothing if it isn't text.
std::optional<std::string> NameOf(const fs::path& path) {
    try {
        const std::u8string name = path.filename().u8string();
        std::string utf8(name.begin(), name.end());
        if (String(std::string_view(utf8)).ToUtf8() == utf8) return utf8;
    } catch (const std::exception&) {  // half of a character that takes two, where names are such halves
    }
    return std::nullopt;
}

}  // namespace

Listing::Listing(const fs::path& folder) {
    std::vector<fs::directory_entry> found;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) found.push_back(*at);
    if (error) error_ = SystemErrors::AccessDenied;
    std::sort(found.begin(), found.end());
    for (const fs::directory_entry& item : found) {
        const std::optional<std::string> name = NameOf(item.path());
        if (!name || IsFreshName(*name)) continue;
        const Entry entry{String(std::string_view(*name)).ToWide(), item.path(), KindOf(item)};
        if (!entries_.emplace(UpperAscii(entry.name), entry).second) continue;
        if (entry.kind == Kind::File) files_.push_back(entry);
        if (entry.kind == Kind::Folder) folders_.push_back(entry);
    }
}

const Entry* Listing::Find(const std::wstring& name) const {
    const auto found = entries_.find(UpperAscii(name));
    return found != entries_.end() ? &found->second : nullptr;
}

SystemError Listing::Find(const std::wstring& name, Kind kind, fs::path& out) const {
    if (error_ != None) return error_;
    const Entry* entry = Find(name);
    if (entry == nullptr) return SystemErrors::FileNotFound;
    if (entry->kind != kind) return entry->kind == Kind::Other ? SystemErrors::IsLink : SystemErrors::AccessDenied;
    out = entry->path;
    return None;
}

const Listing& Folders::List(const fs::path& folder) {
    const auto found = listings_.find(folder);
    if (found != listings_.end()) return found->second;
    ++count_;
    return listings_.emplace(folder, Listing(folder)).first->second;
}

std::optional<fs::path> Place(const fs::path& folder, const std::wstring& name) {
    constexpr std::wstring_view separators(L"/\\:\0", 4);
    if (name.empty() || name == L"." || name == L".." || name.find_first_of(separators) != std::wstring::npos) {
        return std::nullopt;
    }
    const std::string utf8 = String(name).ToUtf8();
    return folder / fs::path(std::u8string(utf8.begin(), utf8.end()));
}

void RemoveLeftovers(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> left;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (IsFreshName(NameOf(at->path()).value_or("")) && KindOf(*at) == Kind::File) left.push_back(at->path());
    }
    for (const fs::path& file : left) fs::remove(file, error);
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
    return WriteFile(file, bytes, Links::Replace) ? None : SystemErrors::AccessDenied;
}

}  // namespace VNT::Files
