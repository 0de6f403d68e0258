#pragma once

#include "cli/command.h"
#include "store/linux/host.h"

namespace VNT::Cli {

// The displays of a Linux machine, what is done to them told on the console; null if it has no connectors.
std::unique_ptr<Platform> OpenLinuxStore(std::unique_ptr<Linux::Host> host, const StoreMode& mode,
                                         const Console& console);

}  // namespace VNT::Cli
