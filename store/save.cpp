#include "store/save.h"

#include <vector>

#include "store/registry_layout.h"
#include "store/values.h"

namespace VNT {

namespace {

using SystemErrors::None;

// True if no value is left.
bool DeleteValues(RegistryKey& parent, const std::wstring& name) {
    std::shared_ptr<RegistryKey> key;
    std::vector<std::wstring> values;
    if (parent.OpenKey(name, KeyAccess::Read, key) != None) return false;
    if (ListValues(*key, values) != SystemErrors::NoMoreItems) return false;
    if (values.empty()) return true;
    std::shared_ptr<RegistryKey> written;
    if (parent.OpenKey(name, KeyAccess::Write, written) != None) return false;
    for (const std::wstring& value : values) {
        if (written->DeleteValue(value) != None) return false;
    }
    return ListValues(*key, values) == SystemErrors::NoMoreItems && values.empty();
}

// Without its base block no other block is an override: this one goes first and comes last, so that whatever ends the
// program meanwhile leaves a whole override or none.
void DeleteBaseBlock(RegistryKey& device) {
    std::shared_ptr<RegistryKey> key;
    if (device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Write, key) != None) return;
    key->DeleteValue(RegistryLayout::BlockName(0));
}

bool WriteOverride(RegistryKey& device, const Bytes& data) {
    if (DeleteOverride(device) != OverrideLeft::None) return false;
    if (data.IsEmpty()) return true;
    std::shared_ptr<RegistryKey> key;
    if (device.CreateKey(RegistryLayout::OverrideKey, KeyAccess::Write, key) != None) return false;
    const bool sparse = data.At(0) == 0;
    for (int block = data.Size() / EdidBlockSize - 1; block >= 0; --block) {
        const Bytes bytes = data.Slice(block * EdidBlockSize, EdidBlockSize);
        if (sparse && block > 0 && bytes.IsAll(0)) continue;
        if (key->SetValue(RegistryLayout::BlockName(block), bytes) != None) return false;
    }
    return true;
}

// The system's copy of what the display reports is the display's own EDID where the display is not there: it is never
// made shorter, replaced by what is no whole EDID, or written where it can't be told what stands there. A failure here
// loses nothing.
void WriteEdid(DeviceSet& set, RegistryKey& device, const Display& display) {
    if (display.EdidData.IsEmpty()) {
        if (!display.EdidValueFound) device.DeleteValue(RegistryLayout::EdidValue);
        return;
    }
    if (display.EdidData.Size() % EdidBlockSize != 0) return;
    const std::shared_ptr<RegistryKey> readable = set.OpenHardwareKey(KeyAccess::Read);
    if (readable == nullptr) return;
    Bytes there;
    const SystemError error = ReadValue(*readable, RegistryLayout::EdidValue, there);
    if (error != None && error != SystemErrors::FileNotFound) return;
    if (there.Size() > display.EdidData.Size() || there == display.EdidData) return;
    device.SetValue(RegistryLayout::EdidValue, display.EdidData);
}

// Gives the set with the display's device and its key to `write`, while nobody else changes the store; carries out
// what was written. False if any of that fails.
template <class Write>
bool WriteDevice(Platform& platform, const std::wstring& instanceId, Write write) {
    StoreLock lock;
    if (!platform.Lock(lock)) return false;
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitor(instanceId, false);
    if (set == nullptr || !set->EnumDevice(0)) return false;
    const std::shared_ptr<RegistryKey> device = set->OpenHardwareKey(KeyAccess::Write);
    return device != nullptr && write(*set, *device) && device->Commit() == None;
}

}  // namespace

bool DeleteKeyTree(RegistryKey& parent, const std::wstring& name) {
    std::shared_ptr<RegistryKey> key;
    if (parent.OpenKey(name, KeyAccess::Read, key) != None) return false;
    std::wstring child;
    for (int index = 0; key->EnumKey(index, child) == None; ++index) {
        if (index == RegistryLayout::MostNames || !DeleteKeyTree(*key, child)) return false;
    }
    key.reset();
    return parent.DeleteKey(name) == None;
}

OverrideLeft DeleteOverride(RegistryKey& device) {
    DeleteBaseBlock(device);
    DeleteKeyTree(device, RegistryLayout::OverrideKey);
    std::shared_ptr<RegistryKey> left;
    const SystemError error = device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, left);
    if (error == SystemErrors::FileNotFound) return OverrideLeft::None;
    if (error == SystemErrors::IsLink) return OverrideLeft::Link;
    if (error != None) return OverrideLeft::Locked;
    left.reset();
    return DeleteValues(device, RegistryLayout::OverrideKey) ? OverrideLeft::None : OverrideLeft::Values;
}

bool Display::SaveOverride(Platform& platform) {
    const auto write = [this](DeviceSet&, RegistryKey& device) { return WriteOverride(device, CurrentData); };
    Saved = WriteDevice(platform, InstanceId, write);
    if (Saved) OverrideData = CurrentData;
    return Saved;
}

bool Display::Save(Platform& platform) {
    if (Saved) return true;
    const auto write = [this](DeviceSet& set, RegistryKey& device) {
        if (!WriteOverride(device, CurrentData)) return false;
        WriteEdid(set, device, *this);
        return true;
    };
    Saved = WriteDevice(platform, InstanceId, write);
    if (Saved) OverrideData = CurrentData;
    return Saved;
}

bool SaveDisplays(Platform& platform, DisplayList& list) {
    bool saved = true;
    for (Display& display : list) saved = display.Save(platform) && saved;
    return saved;
}

}  // namespace VNT
