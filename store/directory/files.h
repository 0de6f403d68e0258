#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "store/platform.h"

// Files and folders of one folder, by name. They are found by listing, so that no name leads out of the folder; links
// count as neither.
namespace VNT::Files {

enum class Kind { File, Folder };

// The entries of that kind in `folder`, sorted.
SystemError Entries(const std::filesystem::path& folder, Kind kind, std::vector<std::filesystem::path>& out);
// The path of the entry of that kind and name, in ASCII letters of either case.
SystemError Find(const std::filesystem::path& folder, const std::wstring& name, Kind kind, std::filesystem::path& out);
std::wstring NameOf(const std::filesystem::path& path);
// `name` as a path inside `folder`, if it is a plain file name.
std::optional<std::filesystem::path> Place(const std::filesystem::path& folder, const std::wstring& name);

SystemError Read(const std::filesystem::path& file, Bytes& out);
// Through a new file beside it that is renamed over the old one: on any failure the old file stays as it was.
SystemError Write(const std::filesystem::path& file, ByteRange bytes);

}  // namespace VNT::Files
