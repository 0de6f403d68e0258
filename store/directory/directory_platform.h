#pragma once

#include <filesystem>

#include "store/platform.h"

namespace VNT {

// The door over a folder of files: a folder per device, named by its instance ID with "\" written as "#", and in it
// EDID, EDID_OVERRIDE/0, EDID_OVERRIDE/1, ..., DeviceDesc and Driver (UTF-8 texts) and, if the display is present, an
// empty file Active. Folders and files are found by listing, so that no name leads out of the folder; links are not
// followed. A file is written beside its place and renamed over the old one. The other sources report nothing.
class DirectoryPlatform : public Platform {
public:
    explicit DirectoryPlatform(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::unique_ptr<DeviceSet> OpenMonitorClass() override;
    std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) override;
    bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) override;
    bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) override;
    bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) override;

private:
    std::filesystem::path folder_;
};

}  // namespace VNT
