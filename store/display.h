#pragma once

#include <string>
#include <vector>

#include "model/core/bytes.h"
#include "store/gpu_display.h"
#include "store/records.h"

namespace VNT {

class Platform;

inline constexpr int EdidBlockSize = 128;
inline constexpr int EdidExtensionCountOffset = 126;  // in the base block

// One monitor device: a plain value, copied whole.
struct Display {
    std::wstring InstanceId;  // upper-cased; the identity of the display everywhere
    std::wstring DriverKey;
    std::wstring DeviceDescription;
    Bytes CurrentData;   // what the editor shows, and writes as the override
    Bytes EdidData;      // what the display itself reports
    Bytes OverrideData;  // what the store held as override at load or after the last successful save
    WmiMonitorRecord WmiMonitor;
    DisplayDeviceRecord DisplayDevice;
    WindowsGpuDisplay GpuDisplay;
    bool Active = false;            // present now
    bool NotDefaultMonitor = true;  // not the system's stand-in for a monitor that it does not know
    bool Saved = true;              // the store holds what CurrentData holds
    bool EdidValueFound = false;    // the load found a value of what the display reports, whatever it held

    // Reads the device's own data from the store; `CurrentData` stays empty until SettleData. False, with nothing
    // changed, if the device or its key can't be opened.
    bool Load(Platform& platform, const std::wstring& instanceId);
    // Writes `CurrentData` as the override, or takes the override away if that is empty, and keeps up the system's copy
    // of what the display reports; touches nothing if `Saved`. False if the store refused: there may be no override
    // then, but never a part of one.
    bool Save(Platform& platform);
    // The same of the override alone, and whether it is `Saved` or not.
    bool SaveOverride(Platform& platform);
    // The edit path. False, with nothing changed, if the length is no whole number of blocks.
    bool SetData(const Bytes& bytes);
};

// The displays, in the order in which the system lists them.
class DisplayList : public std::vector<Display> {
public:
    using std::vector<Display>::vector;

    // Puts `display` in the place of the first with its identity; false if there is none.
    bool Replace(const Display& display);
};

// The text with the ASCII letters a to z in upper case and nothing else changed.
std::wstring UpperAscii(std::wstring text);

}  // namespace VNT
