#include "store/directory/directory_platform.h"

#include <algorithm>
#include <optional>

#include "model/core/text_string.h"
#include "store/answers.h"
#include "store/directory/files.h"
#include "store/display.h"
#include "store/system_files.h"

namespace fs = std::filesystem;

namespace VNT {

namespace {

using Files::Kind;
using SystemErrors::None;

constexpr wchar_t ActiveFile[] = L"Active";
constexpr wchar_t DescriptionFile[] = L"DeviceDesc";
constexpr wchar_t DriverFile[] = L"Driver";

std::wstring Exchanged(std::wstring text, wchar_t from, wchar_t to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

using FoldersPointer = std::shared_ptr<Files::Folders>;

// A folder as a key: its files are the values, its folders the sub-keys.
class FolderKey : public RegistryKey {
public:
    FolderKey(FoldersPointer folders, fs::path folder) : folders_(std::move(folders)), folder_(std::move(folder)) {}

    SystemError OpenKey(const std::wstring& name, KeyAccess, std::shared_ptr<RegistryKey>& out) override {
        fs::path folder;
        const SystemError error = Find(name, Kind::Folder, folder);
        if (error == None) out = std::make_shared<FolderKey>(folders_, folder);
        return error;
    }

    SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override {
        const SystemError found = OpenKey(name, access, out);
        if (found != SystemErrors::FileNotFound) return found;
        const std::optional<fs::path> folder = Files::Place(folder_, name);
        std::error_code error;
        if (!folder || !fs::create_directory(*folder, error)) return SystemErrors::AccessDenied;
        folders_->Forget(folder_);
        return OpenKey(name, access, out);
    }

    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override {
        fs::path file;
        Bytes bytes;
        SystemError error = Find(name, Kind::File, file);
        if (error == None) error = Files::Read(file, bytes);
        return error == None ? AnswerBytes(bytes, out, size) : error;
    }

    SystemError EnumValue(int index, std::wstring& name) override { return NameAt(Kind::File, index, name); }
    SystemError EnumKey(int index, std::wstring& name) override { return NameAt(Kind::Folder, index, name); }

    SystemError SetValue(const std::wstring& name, ByteRange bytes) override {
        fs::path file;
        const SystemError found = Find(name, Kind::File, file);
        if (found == None) return Files::Write(file, bytes);
        if (found != SystemErrors::FileNotFound) return found;
        const std::optional<fs::path> place = Files::Place(folder_, name);
        folders_->Forget(folder_);
        return place ? Files::Write(*place, bytes) : SystemErrors::AccessDenied;
    }

    SystemError DeleteValue(const std::wstring& name) override {
        fs::path file;
        const SystemError found = Find(name, Kind::File, file);
        if (found != None) return found;
        std::error_code error;
        folders_->Forget(folder_);
        return fs::remove(file, error) ? None : SystemErrors::AccessDenied;
    }

    SystemError DeleteKey(const std::wstring& name) override {
        fs::path folder;
        const SystemError found = Find(name, Kind::Folder, folder);
        if (found != None) return found;
        if (!folders_->List(folder).Of(Kind::Folder).empty()) return SystemErrors::AccessDenied;
        std::error_code error;
        folders_->ForgetAll();
        fs::remove_all(folder, error);
        return error ? SystemErrors::AccessDenied : None;
    }

private:
    SystemError Find(const std::wstring& name, Kind kind, fs::path& out) const {
        return folders_->List(folder_).Find(name, kind, out);
    }

    SystemError NameAt(Kind kind, int index, std::wstring& name) const {
        const Files::Listing& listing = folders_->List(folder_);
        if (listing.Error() != None) return listing.Error();
        const std::vector<Files::Entry>& entries = listing.Of(kind);
        if (index < 0 || static_cast<std::size_t>(index) >= entries.size()) return SystemErrors::NoMoreItems;
        name = entries[static_cast<std::size_t>(index)].name;
        return None;
    }

    FoldersPointer folders_;
    fs::path folder_;
};

// Device folders, in sorted order.
class FolderSet : public DeviceSet {
public:
    FolderSet(FoldersPointer folders, std::vector<Files::Entry> devices)
        : folders_(std::move(folders)), devices_(std::move(devices)) {}

    bool EnumDevice(int index) override {
        if (index < 0 || static_cast<std::size_t>(index) >= devices_.size()) return false;
        current_ = devices_[static_cast<std::size_t>(index)];
        return true;
    }

    SystemError GetInstanceId(std::span<wchar_t> out, int& length) override {
        return AnswerText(Exchanged(current_.name, L'#', L'\\'), out, length);
    }

    SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) override {
        fs::path file;
        Bytes bytes;
        const auto* name = property == DeviceProperty::DriverKey ? DriverFile : DescriptionFile;
        SystemError error = folders_->List(current_.path).Find(name, Kind::File, file);
        if (error == None) error = Files::Read(file, bytes);
        if (error != None) return error;
        std::string text(bytes.View().begin(), bytes.View().end());
        text.resize(text.find_last_not_of("\r\n") + 1);
        return AnswerText(String(std::string_view(text)).ToWide(), out, length);
    }

    std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess access) override {
        if (access == KeyAccess::Write) Files::RemoveLeftovers(current_.path);
        return std::make_shared<FolderKey>(folders_, current_.path);
    }

private:
    FoldersPointer folders_;
    std::vector<Files::Entry> devices_;
    Files::Entry current_;
};

}  // namespace

bool DirectoryPlatform::Lock(StoreLock& out) {
    out = lock_.lock();
    if (out != nullptr) return true;
    out = SystemFiles::LockFolder(folder_);
    lock_ = out;
    folders_->ForgetAll();  // somebody else may have had it
    return out != nullptr;
}

std::unique_ptr<DeviceSet> DirectoryPlatform::OpenMonitorClass() {
    folders_->ForgetAll();
    const Files::Listing& listing = folders_->List(folder_);
    if (listing.Error() != None) return nullptr;
    return std::make_unique<FolderSet>(folders_, listing.Of(Kind::Folder));
}

std::unique_ptr<DeviceSet> DirectoryPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    const Files::Entry* device = folders_->List(folder_).Find(Exchanged(instanceId, L'\\', L'#'));
    std::vector<Files::Entry> found;
    if (device != nullptr && device->kind == Kind::Folder) found.push_back(*device);
    fs::path active;
    if (presentOnly && !found.empty() && folders_->List(found[0].path).Find(ActiveFile, Kind::File, active) != None) {
        found.clear();
    }
    return std::make_unique<FolderSet>(folders_, std::move(found));
}

bool DirectoryPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>&) { return false; }

bool DirectoryPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) {
    out.clear();
    return true;
}

bool DirectoryPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>&) { return false; }

}  // namespace VNT
