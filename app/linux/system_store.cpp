// The connectors of a Linux machine.
#include "app/system_store.h"

#include <iostream>

#include "store/linux/linux_platform.h"
#include "store/linux/system_host.h"

namespace VNT::App {

std::unique_ptr<Platform> OpenSystemStore() {
    auto host = std::make_unique<Linux::SystemHost>("/");
    if (!LinuxPlatform::HasConnectors(*host)) return nullptr;
    const auto print = [](const std::string& line) { std::cerr << "vantelle: " << line << "\n"; };
    return std::make_unique<LinuxPlatform>(std::move(host), Linux::Report{print, print});
}

}  // namespace VNT::App
