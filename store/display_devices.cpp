#include "store/display_devices.h"

#include "store/source.h"

namespace VNT {

namespace {

std::wstring DriverKey(const std::wstring& deviceId) {
    const std::size_t brace = deviceId.rfind(L'{');
    return brace != std::wstring::npos ? deviceId.substr(brace) : std::wstring();
}

}  // namespace

bool ReadDisplayDevices(const EnumDisplayDevices& enumerate, std::vector<DisplayDeviceRecord>& out) {
    out.clear();
    DisplayDeviceEntry adapter;
    for (int i = 0; i < Source::MostRecords && enumerate(nullptr, i, adapter); ++i) {
        DisplayDeviceEntry monitor;
        for (int j = 0; j < Source::MostRecords && enumerate(adapter.DeviceName.c_str(), j, monitor); ++j) {
            out.push_back({DriverKey(monitor.DeviceId), adapter.DeviceName, monitor.DeviceName});
        }
    }
    return true;
}

}  // namespace VNT
