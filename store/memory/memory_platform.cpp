#include "store/memory/memory_platform.h"

#include <algorithm>

#include "store/answers.h"
#include "store/display.h"

namespace VNT {

using SystemErrors::None;

template <class T>
auto TNamedList<T>::Position(const std::wstring& name) {
    return std::find_if(entries_.begin(), entries_.end(),
                        [&](const auto& entry) { return UpperAscii(entry.first) == UpperAscii(name); });
}

template <class T>
T* TNamedList<T>::Find(const std::wstring& name) {
    const auto found = Position(name);
    return found != entries_.end() ? &found->second : nullptr;
}

template <class T>
T& TNamedList<T>::Put(const std::wstring& name, T entry) {
    const auto found = Position(name);
    if (found == entries_.end()) return entries_.emplace_back(name, std::move(entry)).second;
    return found->second = std::move(entry);
}

template <class T>
bool TNamedList<T>::Erase(const std::wstring& name) {
    const auto found = Position(name);
    if (found == entries_.end()) return false;
    entries_.erase(found);
    return true;
}

template <class T>
const std::wstring* TNamedList<T>::NameAt(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < entries_.size()
               ? &entries_[static_cast<std::size_t>(index)].first
               : nullptr;
}

template class TNamedList<Bytes>;
template class TNamedList<MemoryKeyPointer>;

// Counted while it is alive.
class MemoryPlatform::Handle {
public:
    explicit Handle(MemoryPlatform& platform) : platform_(platform) { ++platform_.openHandles_; }
    ~Handle() { --platform_.openHandles_; }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    MemoryPlatform& platform_;
};

class MemoryPlatform::OpenedKey : public RegistryKey, Handle {
public:
    OpenedKey(MemoryPlatform& platform, MemoryKeyPointer key, KeyAccess access)
        : Handle(platform), key_(std::move(key)), access_(access) {}

    SystemError OpenKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override {
        const SystemError fault = platform_.Enter("OpenKey");
        return fault != None ? fault : Open(name, access, out);
    }

    SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override {
        const SystemError fault = Enter("CreateKey", KeyAccess::Write);
        if (fault != None) return fault;
        if (key_->keys.Find(name) == nullptr) key_->keys.Put(name, std::make_shared<MemoryKey>());
        return Open(name, access, out);
    }

    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override {
        const SystemError fault = Enter("QueryValue", KeyAccess::Read);
        if (fault != None) return fault;
        const Bytes* value = key_->values.Find(name);
        return value != nullptr ? AnswerBytes(*value, out, size) : SystemErrors::FileNotFound;
    }

    SystemError EnumValue(int index, std::wstring& name) override {
        const SystemError fault = Enter("EnumValue", KeyAccess::Read);
        if (platform_.endless && !key_->values.IsEmpty()) index = 0;
        return fault != None ? fault : AnswerName(key_->values.NameAt(index), name);
    }

    SystemError EnumKey(int index, std::wstring& name) override {
        const SystemError fault = Enter("EnumKey", KeyAccess::Read);
        if (platform_.endless && !key_->keys.IsEmpty()) index = 0;
        return fault != None ? fault : AnswerName(key_->keys.NameAt(index), name);
    }

    SystemError SetValue(const std::wstring& name, ByteRange bytes) override {
        const SystemError fault = Enter("SetValue", KeyAccess::Write);
        if (fault == None) key_->values.Put(name, Bytes(bytes));
        return fault;
    }

    SystemError DeleteValue(const std::wstring& name) override {
        const SystemError fault = Enter("DeleteValue", KeyAccess::Write);
        if (fault != None) return fault;
        return key_->values.Erase(name) ? None : SystemErrors::FileNotFound;
    }

    SystemError DeleteKey(const std::wstring& name) override {
        const SystemError fault = platform_.Enter("DeleteKey");
        if (fault != None) return fault;
        const MemoryKeyPointer* key = key_->keys.Find(name);
        if (key == nullptr) return SystemErrors::FileNotFound;
        if (!(*key)->keys.IsEmpty()) return SystemErrors::AccessDenied;
        key_->keys.Erase(name);
        return None;
    }

    SystemError Commit() override { return Enter("Commit", KeyAccess::Write); }

private:
    SystemError Enter(const char* name, KeyAccess needed) {
        const SystemError fault = platform_.Enter(name);
        if (fault != None) return fault;
        return access_ == needed ? None : SystemErrors::AccessDenied;
    }

    SystemError Open(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) {
        const MemoryKeyPointer* key = key_->keys.Find(name);
        if (key == nullptr) return SystemErrors::FileNotFound;
        out = std::make_shared<OpenedKey>(platform_, *key, access);
        return None;
    }

    static SystemError AnswerName(const std::wstring* found, std::wstring& name) {
        if (found == nullptr) return SystemErrors::NoMoreItems;
        name = *found;
        return None;
    }

    MemoryKeyPointer key_;
    KeyAccess access_;
};

class MemoryPlatform::OpenSet : public DeviceSet, Handle {
public:
    OpenSet(MemoryPlatform& platform, std::vector<MemoryDevice*> devices)
        : Handle(platform), devices_(std::move(devices)) {}

    bool EnumDevice(int index) override {
        if (platform_.Enter("EnumDevice") != None) return false;
        if (platform_.endless && !devices_.empty()) index = 0;
        if (index < 0 || static_cast<std::size_t>(index) >= devices_.size()) return false;
        current_ = devices_[static_cast<std::size_t>(index)];
        return true;
    }

    SystemError GetInstanceId(std::span<wchar_t> out, int& length) override {
        const SystemError fault = platform_.Enter("GetInstanceId");
        return fault != None ? fault : AnswerText(current_->instanceId, out, length);
    }

    SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) override {
        const SystemError fault = platform_.Enter("GetProperty");
        if (fault != None) return fault;
        const auto& text = property == DeviceProperty::DriverKey ? current_->driverKey : current_->description;
        return text ? AnswerText(*text, out, length) : SystemErrors::FileNotFound;
    }

    std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess access) override {
        if (platform_.Enter("OpenHardwareKey") != None || current_->hardwareKey == nullptr) return nullptr;
        return std::make_shared<OpenedKey>(platform_, current_->hardwareKey, access);
    }
    bool LacksHardwareKey() override { return current_->hardwareKey == nullptr; }

private:
    std::vector<MemoryDevice*> devices_;
    MemoryDevice* current_ = nullptr;
};

void MemoryPlatform::FailCall(int count, SystemError error) {
    failAt_ = log_.size() + static_cast<std::size_t>(count);
    failAtError_ = error;
}

void MemoryPlatform::FailEach(const std::string& name, SystemError error) { failEach_[name] = error; }

void MemoryPlatform::ClearFaults() {
    failAt_ = 0;
    failEach_.clear();
}

int MemoryPlatform::Count(std::string_view name) const {
    return static_cast<int>(std::count(log_.begin(), log_.end(), name));
}

SystemError MemoryPlatform::Enter(std::string_view name) {
    log_.push_back(name);
    if (failAt_ == log_.size()) return failAtError_;
    if (endsAt != 0 && log_.size() >= static_cast<std::size_t>(endsAt)) return SystemErrors::AccessDenied;
    const auto found = failEach_.find(name);
    return found != failEach_.end() ? found->second : None;
}

std::unique_ptr<DeviceSet> MemoryPlatform::OpenMonitorClass() {
    if (Enter("OpenMonitorClass") != None) return nullptr;
    std::vector<MemoryDevice*> all;
    for (MemoryDevice& device : devices) all.push_back(&device);
    return std::make_unique<OpenSet>(*this, std::move(all));
}

// A device that is not on record, or not present, gives a set with nothing in it.
std::unique_ptr<DeviceSet> MemoryPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    if (Enter(presentOnly ? "OpenPresentMonitor" : "OpenMonitor") != None) return nullptr;
    std::vector<MemoryDevice*> found;
    for (MemoryDevice& device : devices) {
        const bool named = UpperAscii(device.instanceId) == UpperAscii(instanceId);
        if (named && (device.present || !presentOnly)) found.push_back(&device);
    }
    return std::make_unique<OpenSet>(*this, std::move(found));
}

bool MemoryPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) {
    if (Enter("ReadWmiMonitors") != None || !wmiMonitors) return false;
    out = *wmiMonitors;
    return true;
}

bool MemoryPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) {
    if (Enter("ReadDisplayDevices") != None || !displayDevices) return false;
    out = *displayDevices;
    return true;
}

bool MemoryPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) {
    if (Enter("ReadGpuDisplays") != None || !gpuDisplays) return false;
    out = *gpuDisplays;
    return true;
}

}  // namespace VNT
