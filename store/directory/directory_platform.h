#pragma once

#include <filesystem>

#include "store/directory/files.h"
#include "store/platform.h"

namespace VNT {

// The door over a folder of files: a folder per device, named by its instance ID with "\" written as "#", and in it
// EDID, EDID_OVERRIDE/0, EDID_OVERRIDE/1, ..., DeviceDesc and Driver (UTF-8 texts) and, if the display is present, an
// empty file Active. Folders and files are found by listing, so that no name leads out of the folder; links are not
// followed. A file is written beside its place and renamed over the old one. Programs wait for each other. The other
// sources report nothing.
class DirectoryPlatform : public Platform {
public:
    explicit DirectoryPlatform(std::filesystem::path folder) : folder_(std::move(folder)) {}

    bool Lock(StoreLock& out) override;
    std::unique_ptr<DeviceSet> OpenMonitorClass() override;
    std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) override;
    bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) override;
    bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) override;
    bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) override;

    // Folders are listed once for each load and each save, whatever is asked of them.
    int CountListings() const { return folders_->Count(); }

private:
    std::filesystem::path folder_;
    std::shared_ptr<Files::Folders> folders_ = std::make_shared<Files::Folders>();
    std::weak_ptr<const void> lock_;
};

}  // namespace VNT
