#include "store/linux/linux_platform.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "model/core/text_string.h"
#include "store/answers.h"
#include "store/display.h"
#include "store/registry_layout.h"

namespace VNT {

namespace {

using SystemErrors::None;

using Blocks = std::map<int, Bytes>;

Blocks Split(const Bytes& bytes) {
    Blocks blocks;
    for (int i = 0; i * EdidBlockSize < bytes.Size(); ++i) blocks[i] = bytes.Slice(i * EdidBlockSize, EdidBlockSize);
    return blocks;
}

// A block that is left out is all zero.
Bytes Join(const Blocks& blocks) {
    Bytes bytes;
    for (const auto& [number, block] : blocks) {
        bytes.Resize(number * EdidBlockSize);
        bytes.Append(block);
    }
    return bytes;
}

std::optional<int> BlockNumber(const std::wstring& name) {
    const std::string text = String(name).ToUtf8();
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || name != std::to_wstring(number))
        return std::nullopt;
    return number >= 0 && number <= RegistryLayout::LastSparseBlock ? std::optional(number) : std::nullopt;
}

}  // namespace

// The blocks of an override, as the hardware key keeps them.
class LinuxPlatform::OverrideKey : public RegistryKey {
public:
    explicit OverrideKey(std::shared_ptr<std::optional<Blocks>> blocks) : blocks_(std::move(blocks)) {}

    SystemError OpenKey(const std::wstring&, KeyAccess, std::shared_ptr<RegistryKey>&) override {
        return SystemErrors::FileNotFound;
    }
    SystemError CreateKey(const std::wstring&, KeyAccess, std::shared_ptr<RegistryKey>&) override {
        return SystemErrors::AccessDenied;
    }
    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override {
        const std::optional<int> number = BlockNumber(name);
        if (!number || !*blocks_ || !(*blocks_)->contains(*number)) return SystemErrors::FileNotFound;
        return AnswerBytes((*blocks_)->at(*number), out, size);
    }
    SystemError EnumValue(int index, std::wstring& name) override {
        if (!*blocks_ || index < 0 || static_cast<std::size_t>(index) >= (*blocks_)->size()) {
            return SystemErrors::NoMoreItems;
        }
        name = RegistryLayout::BlockName(std::next((*blocks_)->begin(), index)->first);
        return None;
    }
    SystemError EnumKey(int, std::wstring&) override { return SystemErrors::NoMoreItems; }
    SystemError SetValue(const std::wstring& name, ByteRange bytes) override {
        const std::optional<int> number = BlockNumber(name);
        if (!number || !*blocks_ || bytes.Size() != EdidBlockSize) return SystemErrors::AccessDenied;
        (**blocks_)[*number] = Bytes(bytes);
        return None;
    }
    SystemError DeleteValue(const std::wstring& name) override {
        const std::optional<int> number = BlockNumber(name);
        return number && *blocks_ && (*blocks_)->erase(*number) > 0 ? None : SystemErrors::FileNotFound;
    }
    SystemError DeleteKey(const std::wstring&) override { return SystemErrors::FileNotFound; }

private:
    std::shared_ptr<std::optional<Blocks>> blocks_;
};

class LinuxPlatform::HardwareKey : public RegistryKey {
public:
    HardwareKey(LinuxPlatform& platform, Linux::Connector connector)
        : platform_(platform), connector_(std::move(connector)) {
        const Bytes bytes = Overrides().Get(connector_);
        if (!bytes.IsEmpty() || Overrides().IsOnRecord(connector_)) *blocks_ = Split(bytes);
    }

    SystemError OpenKey(const std::wstring& name, KeyAccess, std::shared_ptr<RegistryKey>& out) override {
        if (name != RegistryLayout::OverrideKey || !*blocks_) return SystemErrors::FileNotFound;
        out = std::make_shared<OverrideKey>(blocks_);
        return None;
    }
    SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override {
        if (name != RegistryLayout::OverrideKey) return SystemErrors::AccessDenied;
        if (!*blocks_) blocks_->emplace();
        return OpenKey(name, access, out);
    }
    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override {
        const Bytes bytes = name == RegistryLayout::EdidValue ? Overrides().GetReported(connector_) : Bytes();
        return bytes.IsEmpty() ? SystemErrors::FileNotFound : AnswerBytes(bytes, out, size);
    }
    SystemError EnumValue(int index, std::wstring& name) override {
        if (index != 0) return SystemErrors::NoMoreItems;
        name = RegistryLayout::EdidValue;
        return None;
    }
    SystemError EnumKey(int index, std::wstring& name) override {
        if (index != 0 || !*blocks_) return SystemErrors::NoMoreItems;
        name = RegistryLayout::OverrideKey;
        return None;
    }
    // What a display reports is its own.
    SystemError SetValue(const std::wstring&, ByteRange) override { return SystemErrors::AccessDenied; }
    SystemError DeleteValue(const std::wstring&) override { return SystemErrors::AccessDenied; }
    SystemError DeleteKey(const std::wstring& name) override {
        if (name != RegistryLayout::OverrideKey || !*blocks_) return SystemErrors::FileNotFound;
        blocks_->reset();
        return None;
    }

    SystemError Commit() override {
        const Bytes bytes = *blocks_ ? Join(**blocks_) : Bytes();
        const bool done = bytes.IsEmpty() ? Overrides().TakeOff(connector_) : Overrides().Set(connector_, bytes);
        return done ? None : SystemErrors::AccessDenied;
    }

private:
    Linux::Overrides Overrides() const { return {*platform_.host_, platform_.report_, platform_.options_}; }

    LinuxPlatform& platform_;
    Linux::Connector connector_;
    std::shared_ptr<std::optional<Blocks>> blocks_ = std::make_shared<std::optional<Blocks>>();
};

class LinuxPlatform::ConnectorSet : public DeviceSet {
public:
    ConnectorSet(LinuxPlatform& platform, std::vector<Linux::Connector> connectors)
        : platform_(platform), connectors_(std::move(connectors)) {}

    bool EnumDevice(int index) override {
        if (index < 0 || static_cast<std::size_t>(index) >= connectors_.size()) return false;
        current_ = connectors_[static_cast<std::size_t>(index)];
        return true;
    }
    SystemError GetInstanceId(std::span<wchar_t> out, int& length) override {
        return AnswerText(String(current_.Identity()).ToWide(), out, length);
    }
    SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) override {
        const std::string driver = DriverOf(*platform_.host_, current_);
        if (property == DeviceProperty::DriverKey) return AnswerText(String(driver).ToWide(), out, length);
        std::string text = current_.FullName();
        for (const std::string& part : {CardNameOf(*platform_.host_, current_), driver}) {
            if (!part.empty()) text += ", " + part;
        }
        return AnswerText(String(text).ToWide(), out, length);
    }
    std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess) override {
        return std::make_shared<HardwareKey>(platform_, current_);
    }

private:
    LinuxPlatform& platform_;
    std::vector<Linux::Connector> connectors_;
    Linux::Connector current_;
};

bool LinuxPlatform::HasConnectors(const Linux::Host& host) { return !Linux::FindConnectors(host).empty(); }

std::vector<Linux::Connector> LinuxPlatform::FindAll() const {
    std::vector<Linux::Connector> all = Linux::FindConnectors(*host_);
    for (const Linux::DisplayRecord& record : Linux::ReadRecords(*host_)) {
        const bool isThere = std::any_of(all.begin(), all.end(), [&](const Linux::Connector& connector) {
            return connector.Identity() == record.Identity();
        });
        if (!isThere) all.push_back({"", record.name, record.device, ""});
    }
    return all;
}

std::wstring LinuxPlatform::InstanceIdOf(const std::wstring& name) {
    for (const Linux::Connector& connector : Linux::FindConnectors(*host_)) {
        const std::wstring fullName = String(connector.FullName()).ToWide();
        if (UpperAscii(fullName) == UpperAscii(name)) return String(connector.Identity()).ToWide();
    }
    return name;
}

std::unique_ptr<DeviceSet> LinuxPlatform::OpenMonitorClass() {
    return std::make_unique<ConnectorSet>(*this, FindAll());
}

std::unique_ptr<DeviceSet> LinuxPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    std::vector<Linux::Connector> found;
    for (const Linux::Connector& connector : FindAll()) {
        const std::wstring identity = String(connector.Identity()).ToWide();
        if (UpperAscii(identity) != UpperAscii(instanceId)) continue;
        if (!presentOnly || IsConnected(*host_, connector)) found.push_back(connector);
    }
    return std::make_unique<ConnectorSet>(*this, std::move(found));
}

bool LinuxPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>&) { return false; }

bool LinuxPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) {
    out.clear();
    return true;
}

bool LinuxPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>&) { return false; }

}  // namespace VNT
