#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "model/core/bytes.h"
#include "store/gpu_display.h"
#include "store/records.h"

// The one door to the system: an operation for each thing that it is asked, close to the system's own call, so that a
// door in memory can answer with the same quirks. All decisions stand above it.
namespace VNT {

// What the system answers: zero, or its number for what went wrong.
using SystemError = std::uint32_t;
namespace SystemErrors {
inline constexpr SystemError None = 0;
inline constexpr SystemError FileNotFound = 2;
inline constexpr SystemError AccessDenied = 5;
inline constexpr SystemError InsufficientBuffer = 122;
inline constexpr SystemError MoreData = 234;
inline constexpr SystemError NoMoreItems = 259;
inline constexpr SystemError IsLink = 4395;  // a link stands where a key or value should, and is not followed
}  // namespace SystemErrors

enum class KeyAccess : std::uint32_t { Read = 0x20019, Write = 0x20006 };

// An open key of the registry; closed when its last owner goes.
class RegistryKey {
public:
    virtual ~RegistryKey() = default;

    // RegOpenKeyExW, RegCreateKeyExW (which opens a key that is there). `out` is set only on success.
    virtual SystemError OpenKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) = 0;
    virtual SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) = 0;
    // RegQueryValueExW: a range with no bytes at all asks for the size; one that is too small gives MoreData.
    virtual SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) = 0;
    // RegEnumValueW and RegEnumKeyExW: the name at `index`, an error past the end. A deletion moves the rest down.
    virtual SystemError EnumValue(int index, std::wstring& name) = 0;
    virtual SystemError EnumKey(int index, std::wstring& name) = 0;
    // RegSetValueExW, always as REG_BINARY.
    virtual SystemError SetValue(const std::wstring& name, ByteRange bytes) = 0;
    virtual SystemError DeleteValue(const std::wstring& name) = 0;
    virtual SystemError DeleteKey(const std::wstring& name) = 0;  // RegDeleteKeyW: fails while it has sub-keys
    // Asked of a device's hardware key when its data are written. A door whose system takes a display's data only as a
    // whole keeps back what is written, answers from that, and does it here; the others have done it already.
    virtual SystemError Commit() { return SystemErrors::None; }
};

enum class DeviceProperty { Description = 2, DriverKey = 11 };  // property IDs of DEVPKEY_Device_...

// A set of devices (SetupDiGetClassDevsW) and its current device.
class DeviceSet {
public:
    virtual ~DeviceSet() = default;

    // SetupDiEnumDeviceInfo: makes the device at `index` the current one; false past the last.
    virtual bool EnumDevice(int index) = 0;
    // SetupDiGetDeviceInstanceIdW and SetupDiGetDevicePropertyW: with a buffer too small InsufficientBuffer and the
    // length that is needed, in characters with the closing NUL.
    virtual SystemError GetInstanceId(std::span<wchar_t> out, int& length) = 0;
    virtual SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) = 0;
    // SetupDiOpenDevRegKey: the device's hardware key, or null.
    virtual std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess access) = 0;
    // True if the key that couldn't be opened last isn't there at all.
    virtual bool LacksHardwareKey() { return false; }
};

// Held while nobody else may change the store; gone with its last owner.
using StoreLock = std::shared_ptr<const void>;

class Platform {
public:
    virtual ~Platform() = default;

    // Waits for others who hold the store. False if it can't be had, and nothing may be written then. Nothing where the
    // system sees to it by itself.
    virtual bool Lock(StoreLock&) { return true; }

    // The instance ID of the display that the system has another name for besides, as its users know it; else the name.
    virtual std::wstring InstanceIdOf(const std::wstring& name) { return name; }

    // SetupDiGetClassDevsW. Null on failure.
    virtual std::unique_ptr<DeviceSet> OpenMonitorClass() = 0;  // every monitor on record, present or not
    virtual std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) = 0;

    // What other sources report of the monitors, each list cleared first. False: the source is absent or failed.
    virtual bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) = 0;
    virtual bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) = 0;
    virtual bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) = 0;
};

}  // namespace VNT
