#pragma once

#include <algorithm>
#include <string>

#include "store/load.h"
#include "store/match.h"
#include "store/memory/memory_platform.h"
#include "store/save.h"
#include "tests/store/blocks.h"

// Displays of our own making for the store's tests.
namespace VNT::Sample {

inline const std::wstring First = L"DISPLAY\\VTA1001\\4&1&0&UID1";
inline const std::wstring Second = L"DISPLAY\\VTB2002\\4&2&0&UID2";
inline const std::wstring Third = L"DISPLAY\\VTC3003\\4&3&0&UID3";

inline MemoryDevice& Add(MemoryPlatform& platform, const std::wstring& instanceId, bool present, const Bytes& edid) {
    MemoryDevice device;
    device.instanceId = instanceId;
    device.present = present;
    if (!edid.IsEmpty()) device.hardwareKey->values.Put(L"EDID", edid);
    return platform.devices.emplace_back(std::move(device));
}

inline void PutOverride(MemoryDevice& device, const std::wstring& name, const Bytes& bytes) {
    MemoryKeyPointer* key = device.hardwareKey->keys.Find(L"EDID_OVERRIDE");
    if (key == nullptr) key = &device.hardwareKey->keys.Put(L"EDID_OVERRIDE", std::make_shared<MemoryKey>());
    (*key)->values.Put(name, bytes);
}

// The names of the values of EDID_OVERRIDE, sorted, each with a blank behind it; "-" if there is no such key.
inline std::wstring OverrideNames(const MemoryDevice& device) {
    const MemoryKeyPointer* key = device.hardwareKey->keys.Find(L"EDID_OVERRIDE");
    if (key == nullptr) return L"-";
    std::vector<std::wstring> names;
    for (int i = 0; (*key)->values.NameAt(i) != nullptr; ++i) names.push_back(*(*key)->values.NameAt(i));
    std::sort(names.begin(), names.end());
    std::wstring all;
    for (const std::wstring& name : names) all += name + L" ";
    return all;
}

inline const Bytes* Edid(const MemoryDevice& device) { return device.hardwareKey->values.Find(L"EDID"); }

}  // namespace VNT::Sample
