#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/records.h"

namespace VNT {

// What EnumDisplayDevicesW says of an adapter or of one of its monitors.
struct DisplayDeviceEntry {
    std::wstring DeviceName;
    std::wstring DeviceId;
};

// EnumDisplayDevicesW: the adapters if `adapter` is null, else the monitors of the adapter of that name. False past the
// last.
using EnumDisplayDevices = std::function<bool(const wchar_t* adapter, int index, DisplayDeviceEntry& out)>;

// A record for each monitor of each adapter, whatever their state. Always true.
bool ReadDisplayDevices(const EnumDisplayDevices& enumerate, std::vector<DisplayDeviceRecord>& out);

}  // namespace VNT
