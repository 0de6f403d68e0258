#pragma once

#include "store/linux/host.h"

// The connectors of the machine's graphics cards, as the kernel lists them in /sys/class/drm.
namespace VNT::Linux {

struct Connector {
    std::string card;    // "card1": a number that may be another one after the next start
    std::string name;    // "DP-2"
    std::string device;  // the card's place in the machine, below /sys/devices: "pci0000:00/0000:00:01.0/0000:03:00.0"
    std::string folder;  // its own, below the root; empty: on record only, the kernel has no such connector now

    std::string Identity() const { return device + "/" + name; }
    std::string FullName() const { return folder.empty() ? name : card + "-" + name; }
    std::string DeviceName() const { return device.substr(device.rfind('/') + 1); }
};

// In the order of their names. What has no name that the kernel gives, or leads elsewhere than to its card, is left
// out.
std::vector<Connector> FindConnectors(const Host& host);
bool IsConnected(const Host& host, const Connector& connector);
// What it reports, all of it; nothing if there is none, or it never ends.
Bytes ReadEdid(const Host& host, const Connector& connector);
std::string DriverOf(const Host& host, const Connector& connector);  // "amdgpu"
// The card's name, or its maker's and its own number.
std::string CardNameOf(const Host& host, const Connector& connector);
// Where the kernel takes an override for it, below the root: `edid_override` in debugfs; empty if it offers none.
std::string OverrideFile(const Host& host, const Connector& connector);

// Names of ours for files and for the kernel's command line: letters, digits and hyphens.
bool IsConnectorName(const std::string& name);

}  // namespace VNT::Linux
