#pragma once

#include <string>

#include "model/core/bytes.h"

namespace VNT {

// What WMI reports of one active monitor. `InstanceId` is upper-cased, as a display's is.
struct WmiMonitorRecord {
    std::wstring InstanceId;
    Bytes EdidData;
    bool operator==(const WmiMonitorRecord&) const = default;
};

// The names by which drivers know a monitor device. Empty when `DriverKey` is.
struct DisplayDeviceRecord {
    std::wstring DriverKey;    // as the device's own property prints it: class GUID in braces, instance number
    std::wstring AdapterName;  // GDI device name of the adapter
    std::wstring MonitorName;  // GDI device name of the monitor
    bool operator==(const DisplayDeviceRecord&) const = default;
};

// A graphics driver's view of one display.
struct GpuDisplayRecord {
    std::wstring DisplayName;  // GDI device name of the adapter that shows it; empty when unknown
    Bytes EdidData;
    std::uint32_t Handle1 = 0;  // AMD: adapter index; NVIDIA: GPU handle
    std::uint32_t Handle2 = 0;  // AMD: display logical index; NVIDIA: display ID
    bool operator==(const GpuDisplayRecord&) const = default;
};

}  // namespace VNT
