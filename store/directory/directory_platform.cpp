#include "store/directory/directory_platform.h"

#include <algorithm>
#include <optional>

#include "model/core/text_string.h"
#include "store/answers.h"
#include "store/directory/files.h"
#include "store/display.h"

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

// A folder as a key: its files are the values, its folders the sub-keys.
class FolderKey : public RegistryKey {
public:
    explicit FolderKey(fs::path folder) : folder_(std::move(folder)) {}

    SystemError OpenKey(const std::wstring& name, KeyAccess, std::shared_ptr<RegistryKey>& out) override {
        fs::path folder;
        const SystemError error = Files::Find(folder_, name, Kind::Folder, folder);
        if (error == None) out = std::make_shared<FolderKey>(folder);
        return error;
    }

    SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override {
        const SystemError found = OpenKey(name, access, out);
        if (found != SystemErrors::FileNotFound) return found;
        const std::optional<fs::path> folder = Files::Place(folder_, name);
        std::error_code error;
        if (!folder || !fs::create_directory(*folder, error)) return SystemErrors::AccessDenied;
        return OpenKey(name, access, out);
    }

    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override {
        Bytes bytes;
        const SystemError error = ReadFile(folder_, name, bytes);
        return error == None ? AnswerBytes(bytes, out, size) : error;
    }

    SystemError EnumValue(int index, std::wstring& name) override { return NameAt(Kind::File, index, name); }
    SystemError EnumKey(int index, std::wstring& name) override { return NameAt(Kind::Folder, index, name); }

    SystemError SetValue(const std::wstring& name, ByteRange bytes) override {
        fs::path file;
        const SystemError found = Files::Find(folder_, name, Kind::File, file);
        if (found == None) return Files::Write(file, bytes);
        const std::optional<fs::path> place = Files::Place(folder_, name);
        return found == SystemErrors::FileNotFound && place ? Files::Write(*place, bytes) : SystemErrors::AccessDenied;
    }

    SystemError DeleteValue(const std::wstring& name) override {
        fs::path file;
        const SystemError found = Files::Find(folder_, name, Kind::File, file);
        if (found != None) return found;
        std::error_code error;
        return fs::remove(file, error) ? None : SystemErrors::AccessDenied;
    }

    SystemError DeleteKey(const std::wstring& name) override {
        fs::path folder;
        const SystemError found = Files::Find(folder_, name, Kind::Folder, folder);
        if (found != None) return found;
        std::wstring child;
        if (FolderKey(folder).EnumKey(0, child) != SystemErrors::NoMoreItems) return SystemErrors::AccessDenied;
        std::error_code error;
        fs::remove_all(folder, error);
        return error ? SystemErrors::AccessDenied : None;
    }

    static SystemError ReadFile(const fs::path& folder, const std::wstring& name, Bytes& out) {
        fs::path file;
        const SystemError error = Files::Find(folder, name, Kind::File, file);
        return error == None ? Files::Read(file, out) : error;
    }

private:
    SystemError NameAt(Kind kind, int index, std::wstring& name) const {
        std::vector<fs::path> entries;
        const SystemError error = Files::Entries(folder_, kind, entries);
        if (error != None) return error;
        if (index < 0 || static_cast<std::size_t>(index) >= entries.size()) return SystemErrors::NoMoreItems;
        name = Files::NameOf(entries[static_cast<std::size_t>(index)]);
        return None;
    }

    fs::path folder_;
};

// Device folders, in sorted order.
class FolderSet : public DeviceSet {
public:
    explicit FolderSet(std::vector<fs::path> devices) : devices_(std::move(devices)) {}

    bool EnumDevice(int index) override {
        if (index < 0 || static_cast<std::size_t>(index) >= devices_.size()) return false;
        current_ = devices_[static_cast<std::size_t>(index)];
        return true;
    }

    SystemError GetInstanceId(std::span<wchar_t> out, int& length) override {
        return AnswerText(Exchanged(Files::NameOf(current_), L'#', L'\\'), out, length);
    }

    SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) override {
        Bytes bytes;
        const auto* file = property == DeviceProperty::DriverKey ? DriverFile : DescriptionFile;
        const SystemError error = FolderKey::ReadFile(current_, file, bytes);
        if (error != None) return error;
        std::string text(bytes.Vector().begin(), bytes.Vector().end());
        text.resize(text.find_last_not_of("\r\n") + 1);
        return AnswerText(String(text).ToWide(), out, length);
    }

    std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess) override { return std::make_shared<FolderKey>(current_); }

private:
    std::vector<fs::path> devices_;
    fs::path current_;
};

}  // namespace

std::unique_ptr<DeviceSet> DirectoryPlatform::OpenMonitorClass() {
    std::vector<fs::path> devices;
    if (Files::Entries(folder_, Kind::Folder, devices) != None) return nullptr;
    return std::make_unique<FolderSet>(std::move(devices));
}

std::unique_ptr<DeviceSet> DirectoryPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    fs::path device;
    fs::path active;
    std::vector<fs::path> found;
    if (Files::Find(folder_, Exchanged(instanceId, L'\\', L'#'), Kind::Folder, device) == None &&
        (!presentOnly || Files::Find(device, ActiveFile, Kind::File, active) == None)) {
        found.push_back(device);
    }
    return std::make_unique<FolderSet>(std::move(found));
}

bool DirectoryPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>&) { return false; }

bool DirectoryPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) {
    out.clear();
    return true;
}

bool DirectoryPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>&) { return false; }

}  // namespace VNT
