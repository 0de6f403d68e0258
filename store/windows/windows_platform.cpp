#include "store/windows/windows_platform.h"

#include "store/display_devices.h"
#include "store/gpu_displays.h"
#include "store/windows/device_set.h"
#include "store/windows/system_library.h"
#include "store/windows/wmi.h"

namespace VNT {

namespace {

constexpr GUID MonitorClass = {0x4D36E96E, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};
constexpr GUID MonitorInterface = {0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}};

static_assert(sizeof(DISPLAY_DEVICEW) == 840);

// The text in a field of the system, which may lack its terminator.
template <std::size_t size>
std::wstring FieldText(const wchar_t (&field)[size]) {
    return {field, wcsnlen(field, size)};
}

bool EnumerateDisplayDevice(const wchar_t* adapter, int index, DisplayDeviceEntry& out) {
    DISPLAY_DEVICEW device = {};
    device.cb = sizeof(device);
    if (!EnumDisplayDevicesW(adapter, static_cast<DWORD>(index), &device, 0)) return false;
    out = {FieldText(device.DeviceName), FieldText(device.DeviceID)};
    return true;
}

}  // namespace

std::unique_ptr<DeviceSet> WindowsPlatform::OpenMonitorClass() {
    return WindowsDeviceSet::Open(MonitorClass, nullptr, 0);
}

std::unique_ptr<DeviceSet> WindowsPlatform::OpenMonitor(const std::wstring& instanceId, bool presentOnly) {
    return WindowsDeviceSet::Open(MonitorInterface, instanceId.c_str(),
                                  presentOnly ? DIGCF_DEVICEINTERFACE | DIGCF_PRESENT : DIGCF_DEVICEINTERFACE);
}

bool WindowsPlatform::ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) {
    WindowsWmiConnection connection;
    return VNT::ReadWmiMonitors(connection, showError_, out);
}

bool WindowsPlatform::ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) {
    return VNT::ReadDisplayDevices(EnumerateDisplayDevice, out);
}

bool WindowsPlatform::ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) {
    return VNT::ReadGpuDisplays(LoadSystemLibrary, out);
}

}  // namespace VNT
