#include "store/system_files.h"

#include <windows.h>

#include <algorithm>
#include <string>

namespace fs = std::filesystem;

namespace VNT::SystemFiles {

namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() {
        if (IsOpen()) CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE Get() const { return handle_; }
    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }

private:
    HANDLE handle_;
};

class WindowsFile : public OpenFile {
public:
    explicit WindowsFile(HANDLE handle) : file_(handle) {}

    bool Write(ByteRange bytes) override {
        const std::uint8_t* data = bytes.data;
        auto left = static_cast<DWORD>(bytes.size);
        while (left > 0) {
            DWORD count = 0;
            if (!::WriteFile(file_.Get(), data, left, &count, nullptr) || count == 0) return false;
            data += count;
            left -= count;
        }
        return true;
    }
    bool Finish() override { return SetEndOfFile(file_.Get()) && FlushFileBuffers(file_.Get()); }
    bool TakeAfter(const fs::path&) override { return true; }  // the system does it when it replaces

private:
    Handle file_;
};

HANDLE OpenToLook(const fs::path& path) {
    return CreateFileW(path.c_str(), 0, ShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

Kind KindOf(const Handle& file) {
    if (!file.IsOpen()) return Kind::None;
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) return Kind::Other;
    BY_HANDLE_FILE_INFORMATION information = {};
    if (!GetFileInformationByHandle(file.Get(), &information)) return Kind::Other;
    return (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder : Kind::File;
}

bool IsLink(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

fs::path FinalPath(const Handle& file) {
    std::wstring path(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    if (path.empty()) return {};
    path.resize(
        GetFinalPathNameByHandleW(file.Get(), path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED));
    return path;
}

std::unique_ptr<OpenFile> Opened(HANDLE handle) {
    return handle != INVALID_HANDLE_VALUE ? std::make_unique<WindowsFile>(handle) : nullptr;
}

}  // namespace

Place At(const fs::path& path) {
    if (IsLink(path)) return {path, Kind::None};
    return {path, KindOf(Handle(OpenToLook(path)))};
}

bool Follow(const fs::path& path, Place& out) {
    const Handle file(OpenToLook(path));
    out = {path, KindOf(file)};
    if (out.kind != Kind::File || !IsLink(path)) return out.kind != Kind::None || !IsLink(path);
    out.path = FinalPath(file);
    return !out.path.empty();
}

std::unique_ptr<OpenFile> Create(const fs::path& path, Rights, bool& taken) {
    const HANDLE handle =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    taken = handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS;
    return Opened(handle);
}

std::unique_ptr<OpenFile> Open(const fs::path& path) {
    return Opened(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool Replace(const fs::path& fresh, const fs::path& path) {
    if (ReplaceFileW(path.c_str(), fresh.c_str(), nullptr, 0, nullptr, nullptr)) return true;
    return MoveFileExW(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

// By a name that every program makes of the same folder; the system lets go of it when a program ends.
std::shared_ptr<const void> LockFolder(const fs::path& folder) {
    const Handle opened(OpenToLook(folder));
    if (KindOf(opened) != Kind::Folder) return nullptr;
    std::wstring path = FinalPath(opened).wstring();
    CharUpperBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::replace(path.begin(), path.end(), L'\\', L'/');
    constexpr std::size_t longest = 200;  // what a name has room for; the end tells folders apart
    if (path.size() > longest) path.erase(0, path.size() - longest);
    const std::wstring name = L"Global\\Vantelle " + path;
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    if (mutex == nullptr) return nullptr;
    const DWORD waited = WaitForSingleObject(mutex, INFINITE);
    const std::shared_ptr<const void> lock(mutex, [](HANDLE held) {
        ReleaseMutex(held);
        CloseHandle(held);
    });
    return waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED ? lock : nullptr;
}

void HoldStandardStreams() {}  // a handle there is no number that another could get

const char* LineEnd() { return "\r\n"; }

}  // namespace VNT::SystemFiles
