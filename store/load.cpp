#include "store/load.h"

#include <algorithm>
#include <optional>

#include "store/match.h"
#include "store/registry_layout.h"
#include "store/source.h"
#include "store/texts.h"
#include "store/values.h"

namespace VNT {

namespace {

std::wstring ReadProperty(DeviceSet& set, DeviceProperty property) {
    return ReadText([&](std::span<wchar_t> out, int& length) { return set.GetProperty(property, out, length); })
        .value_or(std::wstring());
}

std::optional<Bytes> ReadBlock(RegistryKey& key, const std::wstring& name) {
    Bytes bytes;
    if (ReadValue(key, name, bytes) != SystemErrors::None || bytes.Size() != EdidBlockSize) return std::nullopt;
    return bytes;
}

Bytes ReadEdid(RegistryKey& device, bool& found) {
    Bytes bytes;
    const SystemError error = ReadValue(device, RegistryLayout::EdidValue, bytes);
    found = error != SystemErrors::FileNotFound;
    return bytes.Size() % EdidBlockSize == 0 ? bytes : Bytes();
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
    std::vector<std::wstring> names;
    ListValues(key, names);
    for (const std::wstring& name : names) {
        const std::optional<int> block = ParseBlockName(name);
        if (!block) continue;
        const std::optional<Bytes> bytes = ReadBlock(key, name);
        if (!bytes) continue;
        const int offset = *block * EdidBlockSize;
        data.Resize(std::max(data.Size(), offset + EdidBlockSize));
        std::copy(bytes->View().begin(), bytes->View().end(), data.Range().data + offset);
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
    EdidData = ReadEdid(*device, EdidValueFound);
    OverrideData = ReadOverride(*device);
    Active = IsPresent(platform, instanceId);
    NotDefaultMonitor = InstanceId.find(L"\\DEFAULT_MONITOR\\") == std::wstring::npos;
    return true;
}

bool IsUsual(const Display& display) { return display.Active || !display.OverrideData.IsEmpty(); }

bool LoadDisplays(Platform& platform, DisplayList& list, bool includeInactiveWithEdid) {
    list.clear();
    StoreLock lock;
    platform.Lock(lock);
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitorClass();
    if (set == nullptr) return false;
    for (int index = 0; index < Source::MostRecords; ++index) {
        if (!set->EnumDevice(index)) break;
        const std::optional<std::wstring> instanceId = ReadInstanceId(*set);
        if (!instanceId) break;
        Display display;
        if (!display.Load(platform, *instanceId)) continue;
        const bool isListed = IsUsual(display) || (includeInactiveWithEdid && !display.EdidData.IsEmpty());
        if (isListed) list.push_back(std::move(display));
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
