#pragma once

#include "store/linux/overrides.h"
#include "store/platform.h"

namespace VNT {

// The door to the displays of a Linux machine: a device for each connector of its graphics cards, and for each that is
// on record with an override though its connector is not there. Its identity is the card's place in the machine and the
// connector's name, "pci0000:00/0000:00:02.0/HDMI-A-1", as cards may change their numbers at each start. The value EDID
// is what the display reports and can't be written; EDID_OVERRIDE is what this program put in its place. It is written
// as a whole: what is asked of a hardware key is kept back until the commit.
class LinuxPlatform : public Platform {
public:
    LinuxPlatform(std::unique_ptr<Linux::Host> host, Linux::Report report, Linux::Options options = {})
        : host_(std::move(host)), report_(std::move(report)), options_(options) {}

    // Whether the machine has connectors at all.
    static bool HasConnectors(const Linux::Host& host);

    // The name that the kernel gives a connector, "card1-DP-2".
    std::wstring InstanceIdOf(const std::wstring& name) override;
    std::unique_ptr<DeviceSet> OpenMonitorClass() override;
    std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) override;
    bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) override;
    bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) override;
    bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) override;

private:
    class HardwareKey;
    class OverrideKey;
    class ConnectorSet;

    std::vector<Linux::Connector> FindAll() const;

    std::unique_ptr<Linux::Host> host_;
    Linux::Report report_;
    Linux::Options options_;
};

}  // namespace VNT
