#include "store/write_file.h"

#include <algorithm>
#include <random>
#include <string>

#include "store/system_files.h"

namespace fs = std::filesystem;

namespace VNT {

namespace {

using SystemFiles::Kind;
using SystemFiles::OpenFile;
using SystemFiles::Place;

constexpr std::string_view FreshStart = ".vantelle-";  // short, so that beside the longest name there is room for it
constexpr std::string_view Digits = "0123456789abcdef";
constexpr std::size_t FreshDigits = 16;
constexpr int Attempts = 16;

std::string MakeFreshName() {
    std::random_device random;
    std::string name(FreshStart);
    for (std::size_t i = 0; i < FreshDigits; ++i) name += Digits[random() % Digits.size()];
    return name;
}

struct Fresh {
    fs::path path;
    std::unique_ptr<OpenFile> file;
};

Fresh CreateBeside(const Place& place) {
    const auto rights = place.kind == Kind::File ? SystemFiles::Rights::Own : SystemFiles::Rights::Usual;
    Fresh fresh;
    bool taken = true;
    for (int i = 0; i < Attempts && taken; ++i) {
        fresh.path = place.path.parent_path() / MakeFreshName();
        fresh.file = SystemFiles::Create(fresh.path, rights, taken);
        if (fresh.file != nullptr) break;
    }
    return fresh;
}

void Discard(Fresh& fresh) {
    std::error_code error;
    fresh.file.reset();
    fs::remove(fresh.path, error);
}

bool WriteInPlace(const Place& place, ByteRange bytes) {
    const std::unique_ptr<OpenFile> file = SystemFiles::Open(place.path);
    return file != nullptr && file->Write(bytes) && (place.kind == Kind::Other || file->Finish());
}

}  // namespace

bool IsFreshName(std::string_view name) {
    return name.size() == FreshStart.size() + FreshDigits && name.starts_with(FreshStart) &&
           name.find_first_not_of(Digits, FreshStart.size()) == std::string_view::npos;
}

bool WriteFile(const fs::path& path, ByteRange bytes, Links links, std::optional<fs::perms> mode) {
    Place place = SystemFiles::At(path);
    if (links == Links::Follow && !SystemFiles::Follow(path, place)) return false;
    if (place.kind == Kind::Folder) return false;
    if (place.kind == Kind::Other) return links == Links::Follow && WriteInPlace(place, bytes);
    Fresh fresh = CreateBeside(place);
    const bool wasThere = place.kind == Kind::File;
    if (fresh.file == nullptr) return wasThere && WriteInPlace(place, bytes);
    if (wasThere && !fresh.file->TakeAfter(place.path)) {
        Discard(fresh);
        return WriteInPlace(place, bytes);
    }
    std::error_code error;
    if (mode) fs::permissions(fresh.path, *mode, error);
    const bool written = !error && fresh.file->Write(bytes) && fresh.file->Finish();
    fresh.file.reset();
    if (written && SystemFiles::Replace(fresh.path, place.path)) return true;
    Discard(fresh);
    return false;
}

}  // namespace VNT
