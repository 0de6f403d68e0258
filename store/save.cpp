#include "store/save.h"

#include "store/registry_layout.h"

namespace VNT {

namespace {

using SystemErrors::None;

bool DeleteValues(RegistryKey& parent, const std::wstring& name) {
    std::shared_ptr<RegistryKey> names;
    std::shared_ptr<RegistryKey> values;
    if (parent.OpenKey(name, KeyAccess::Read, names) != None) return false;
    if (parent.OpenKey(name, KeyAccess::Write, values) != None) return false;
    for (;;) {
        std::wstring value;
        const SystemError error = names->EnumValue(0, value);
        if (error != None) return error == SystemErrors::NoMoreItems;
        if (values->DeleteValue(value) != None) return false;
    }
}

// True if no block of an earlier override is left. Deleting the key may fail for reasons of its own (there is none, it
// has child keys, somebody holds it), so what counts is what remains afterwards.
bool DeleteOverride(RegistryKey& device) {
    DeleteKeyTree(device, RegistryLayout::OverrideKey);
    std::shared_ptr<RegistryKey> left;
    const SystemError error = device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, left);
    if (error == SystemErrors::FileNotFound) return true;
    return error == None && DeleteValues(device, RegistryLayout::OverrideKey);
}

bool WriteOverride(RegistryKey& device, const Bytes& data) {
    if (!DeleteOverride(device)) return false;
    if (data.IsEmpty()) return true;
    std::shared_ptr<RegistryKey> key;
    if (device.CreateKey(RegistryLayout::OverrideKey, KeyAccess::Write, key) != None) return false;
    const bool sparse = data.At(0) == 0;
    for (int block = 0; block < data.Size() / EdidBlockSize; ++block) {
        const Bytes bytes = data.Slice(block * EdidBlockSize, EdidBlockSize);
        if (sparse && block > 0 && bytes.IsAll(0)) continue;
        if (key->SetValue(RegistryLayout::BlockName(block), bytes) != None) return false;
    }
    return true;
}

// The system keeps a copy of its own of what the display reports: a failure here loses nothing.
void WriteEdid(RegistryKey& device, const Bytes& data) {
    if (data.IsEmpty()) {
        device.DeleteValue(RegistryLayout::EdidValue);
    } else {
        device.SetValue(RegistryLayout::EdidValue, data);
    }
}

}  // namespace

bool DeleteKeyTree(RegistryKey& parent, const std::wstring& name) {
    std::shared_ptr<RegistryKey> key;
    if (parent.OpenKey(name, KeyAccess::Read, key) != None) return false;
    std::wstring child;
    for (int index = 0; key->EnumKey(index, child) == None; ++index) {
        if (!DeleteKeyTree(*key, child)) return false;
    }
    key.reset();
    return parent.DeleteKey(name) == None;
}

bool Display::Save(Platform& platform) {
    if (Saved) return true;
    const std::unique_ptr<DeviceSet> set = platform.OpenMonitor(InstanceId, false);
    if (set == nullptr || !set->EnumDevice(0)) return false;
    const std::shared_ptr<RegistryKey> device = set->OpenHardwareKey(KeyAccess::Write);
    if (device == nullptr) return false;
    if (!WriteOverride(*device, CurrentData)) return false;
    WriteEdid(*device, EdidData);
    if (device->Commit() != None) return false;
    OverrideData = CurrentData;
    Saved = true;
    return true;
}

bool SaveDisplays(Platform& platform, DisplayList& list) {
    bool saved = true;
    for (Display& display : list) saved = display.Save(platform) && saved;
    return saved;
}

}  // namespace VNT
