#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/platform.h"

// Files and folders of one folder, by name. They are found by listing, so that no name leads out of the folder; links
// are neither.
namespace VNT::Files {

enum class Kind { File, Folder, Other };

struct Entry {
    std::wstring name;
    std::filesystem::path path;
    Kind kind = Kind::Other;
};

// What a folder holds, sorted by name. Of names that differ in the case of ASCII letters only the first counts, for
// they are one name to those who ask; what isn't UTF-8 is no name that anybody could ask for. The files that a program
// left over that was ended while it wrote are not told.
class Listing {
public:
    explicit Listing(const std::filesystem::path& folder);

    SystemError Error() const { return error_; }
    // In letters of either case; null if there is none.
    const Entry* Find(const std::wstring& name) const;
    // The path of the entry of that kind and name; IsLink if something else has the name.
    SystemError Find(const std::wstring& name, Kind kind, std::filesystem::path& out) const;
    const std::vector<Entry>& Of(Kind kind) const { return kind == Kind::File ? files_ : folders_; }

private:
    SystemError error_ = SystemErrors::None;
    std::map<std::wstring, Entry> entries_;  // by the name in upper case
    std::vector<Entry> files_;
    std::vector<Entry> folders_;
};

// Each folder is listed once, until it is changed.
class Folders {
public:
    const Listing& List(const std::filesystem::path& folder);
    void Forget(const std::filesystem::path& folder) { listings_.erase(folder); }
    void ForgetAll() { listings_.clear(); }
    int Count() const { return count_; }  // of the listings so far

private:
    std::map<std::filesystem::path, Listing> listings_;
    int count_ = 0;
};

// `name` as a path inside `folder`, if it is a plain file name.
std::optional<std::filesystem::path> Place(const std::filesystem::path& folder, const std::wstring& name);
// Takes away what a program left over that was ended while it wrote there.
void RemoveLeftovers(const std::filesystem::path& folder);

SystemError Read(const std::filesystem::path& file, Bytes& out);
// Whole or not at all; a link is replaced, not followed.
SystemError Write(const std::filesystem::path& file, ByteRange bytes);

}  // namespace VNT::Files
