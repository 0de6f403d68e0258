#pragma once

#include <functional>

#include "store/platform.h"

namespace VNT {

// The door to the machine's displays: SetupAPI, the registry, EnumDisplayDevicesW, WMI and the drivers' libraries.
class WindowsPlatform : public Platform {
public:
    // `showError` gets the texts of the one source that reports its failures (WMI).
    explicit WindowsPlatform(std::function<void(const wchar_t*)> showError) : showError_(std::move(showError)) {}

    std::unique_ptr<DeviceSet> OpenMonitorClass() override;
    std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) override;
    bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) override;
    bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) override;
    bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) override;

private:
    std::function<void(const wchar_t*)> showError_;
};

}  // namespace VNT
