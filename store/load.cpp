#include "store/load.h"

#include <algorithm>
#include <optional>

#include "store/match.h"
#include "store/registry_layout.h"

namespace VNT {

namespace {

// A text of the system by its pattern of two calls: the length first, by an error that says so, then the characters.
template <class Call>
std::optional<std::wstring> ReadText(Call call) {
    int length = 0;
    if (call(std::span<wchar_t>(), length) != SystemErrors::InsufficientBuffer || length <= 0) return std::nullopt;
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    if (call(std::span<wchar_t>(text), length) != SystemErrors::None) return std::nullopt;
    text.resize(std::min(text.size(), static_cast<std::size_t>(std::max(length, 0))));
    text.resize(text.find_last_not_of(L'\0') + 1);
    return text;
}

std::optional<std::wstring> ReadInstanceId(DeviceSet& set, int index) {
    if (!set.EnumDevice(index)) return std::nullopt;
    return ReadText([&](std::span<wchar_t> out, int& length) { return set.GetInstanceId(out, length); });
}

std::wstring ReadProperty(DeviceSet& set, DeviceProperty property) {
    return ReadText([&](std::span<wchar_t> out, int& length) { return set.GetProperty(property, out, length); })
        .value_or(std::wstring());
}

std::optional<Bytes> ReadValue(RegistryKey& key, const std::wstring& name) {
    int size = 0;
    if (key.QueryValue(name, ByteRange(), size) != SystemErrors::None || size < 0) return std::nullopt;
    Bytes bytes(size, 0);
    if (key.QueryValue(name, bytes, size) != SystemErrors::None) return std::nullopt;
    return bytes.Slice(0, size);
}

std::optional<Bytes> ReadBlock(RegistryKey& key, const std::wstring& name) {
    std::optional<Bytes> bytes = ReadValue(key, name);
    if (bytes && bytes->Size() != EdidBlockSize) bytes.reset();
    return bytes;
}

Bytes ReadEdid(RegistryKey& device) {
    std::optional<Bytes> bytes = ReadValue(device, RegistryLayout::EdidValue);
    return bytes && bytes->Size() % EdidBlockSize == 0 ? *bytes : Bytes();
}

void ReadSequentialBlocks(RegistryKey& key, Bytes& data) {
    for (int block = 1; block < RegistryLayout::MostSequentialBlocks; ++block) {
        const std::optional<Bytes> bytes = ReadBlock(key, RegistryLayout::BlockName(block));
        if (!bytes) return;
        data.Append(*bytes);
    }
}

// The block's number if `name` is one that the program writes: decimal, no leading zero, in range.
std::optional<int> ParseBlockName(const std::wstring& name) {
    int block = 0;
    for (const wchar_t c : name) {
        if (c < L'0' || c > L'9') return std::nullopt;
        block = block * 10 + (c - L'0');
        if (block > RegistryLayout::LastSparseBlock) return std::nullopt;
    }
    if (block < 1 || RegistryLayout::BlockName(block) != name) return std::nullopt;
    return block;
}

void ReadSparseBlocks(RegistryKey& key, Bytes& data) {
    std::wstring name;
    for (int index = 0; key.EnumValue(index, name) == SystemErrors::None; ++index) {
        const std::optional<int> block = ParseBlockName(name);
        if (!block) continue;
        const std::optional<Bytes> bytes = ReadBlock(key, name);
        if (!bytes) continue;
        const int offset = *block * EdidBlockSize;
        data.Resize(std::max(data.Size(), offset + EdidBlockSize));
        std::copy(bytes->Vector().begin(), bytes->Vector().end(), data.Range().data + offset);
    }
}

Bytes ReadOverride(RegistryKey& device) {
    std::shared_ptr<RegistryKey> key;
    if (device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, key) != SystemErrors::None) return {};
    std::optional<Bytes> data = ReadBlock(*key, RegistryLayout::BlockName(0));
    if (!data) return {};
    if (data->At(0) != 0) {
        ReadSequentialBlocks(*key, *data);
    } else {
        ReadSparseBlocks(*key, *data);
    }
    return *data;
}

bool IsPresent(Platform& platform, const std::wstring& instanceId) {
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitor(instanceId, true);
    return set != nullptr && set->EnumDevice(0);
}

bool IsListed(const Display& display, bool includeInactiveWithEdid) {
    return display.Active || (includeInactiveWithEdid && !display.EdidData.IsEmpty()) ||
           !display.OverrideData.IsEmpty();
}

}  // namespace

bool Display::Load(Platform& platform, const std::wstring& instanceId) {
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitor(instanceId, false);
    if (set == nullptr || !set->EnumDevice(0)) return false;
    const std::shared_ptr<RegistryKey> device = set->OpenHardwareKey(KeyAccess::Read);
    if (device == nullptr) return false;
    *this = Display();
    InstanceId = UpperAscii(instanceId);
    DriverKey = ReadProperty(*set, DeviceProperty::DriverKey);
    DeviceDescription = ReadProperty(*set, DeviceProperty::Description);
    EdidData = ReadEdid(*device);
    OverrideData = ReadOverride(*device);
    Active = IsPresent(platform, instanceId);
    NotDefaultMonitor = InstanceId.find(L"\\DEFAULT_MONITOR\\") == std::wstring::npos;
    return true;
}

bool LoadDisplays(Platform& platform, DisplayList& list, bool includeInactiveWithEdid) {
    list.clear();
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitorClass();
    if (set == nullptr) return false;
    for (int index = 0;; ++index) {
        const std::optional<std::wstring> instanceId = ReadInstanceId(*set, index);
        if (!instanceId) break;
        Display display;
        if (display.Load(platform, *instanceId) && IsListed(display, includeInactiveWithEdid)) {
            list.push_back(std::move(display));
        }
    }

    std::vector<WmiMonitorRecord> monitors;
    if (platform.ReadWmiMonitors(monitors)) {
        for (Display& display : list) AttachWmi(display, monitors);
    }
    std::vector<DisplayDeviceRecord> devices;
    if (platform.ReadDisplayDevices(devices)) {
        for (Display& display : list) AttachDisplayDevice(display, devices);
    }
    std::vector<WindowsGpuDisplay> gpuDisplays;
    if (platform.ReadGpuDisplays(gpuDisplays)) AttachGpuDisplays(list, gpuDisplays);
    for (Display& display : list) SettleData(display);
    return true;
}

}  // namespace VNT
