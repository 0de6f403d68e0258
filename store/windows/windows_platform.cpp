#include "store/windows/windows_platform.h"

#include "store/windows/device_set.h"

namespace VNT {

namespace {

constexpr GUID MonitorClass = {0x4D36E96E, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};
constexpr GUID MonitorInterface = {0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}};

}  // namespace

std::unique_ptr<DeviceSet> WindowsPlatform::OpenMonitorClass() {
    return WindowsDeviceSet::Open(MonitorClass, nullptr, 0);
}

std::unique_ptr<DeviceSet> WindowsPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    return WindowsDeviceSet::Open(MonitorInterface, instanceId.c_str(),
                                  presentOnly ? DIGCF_DEVICEINTERFACE | DIGCF_PRESENT : DIGCF_DEVICEINTERFACE);
}

bool WindowsPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>&) { return false; }
bool WindowsPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>&) { return true; }
bool WindowsPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>&) { return false; }

}  // namespace VNT
