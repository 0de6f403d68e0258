#pragma once

#include <windows.h>

#include <setupapi.h>

#include "store/platform.h"

namespace VNT {

// Owns a set of devices.
class WindowsDeviceSet : public DeviceSet {
public:
    // Null if the system gives no set.
    static std::unique_ptr<DeviceSet> Open(const GUID& guid, const wchar_t* enumerator, DWORD flags);

    explicit WindowsDeviceSet(HDEVINFO set) : set_(set) { current_.cbSize = sizeof(current_); }
    ~WindowsDeviceSet() override { SetupDiDestroyDeviceInfoList(set_); }
    WindowsDeviceSet(const WindowsDeviceSet&) = delete;
    WindowsDeviceSet& operator=(const WindowsDeviceSet&) = delete;

    bool EnumDevice(int index) override;
    SystemError GetInstanceId(std::span<wchar_t> out, int& length) override;
    SystemError GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) override;
    std::shared_ptr<RegistryKey> OpenHardwareKey(KeyAccess access) override;
    bool LacksHardwareKey() override { return lacksKey_; }

private:
    HDEVINFO set_;
    bool lacksKey_ = false;
    SP_DEVINFO_DATA current_ = {};
};

}  // namespace VNT
