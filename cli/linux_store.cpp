#include "cli/linux_store.h"

#include <ostream>

#include "cli/outline.h"
#include "store/linux/linux_platform.h"

namespace VNT::Cli {

std::unique_ptr<Platform> OpenLinuxStore(std::unique_ptr<Linux::Host> host, const StoreMode& mode,
                                         const Console& console) {
    if (!LinuxPlatform::HasConnectors(*host)) return nullptr;
    const Linux::Report report{
        [&out = console.out](const std::string& line) { out << OneLine(String(std::string_view(line))) << '\n'; },
        [&err = console.err](const std::string& line) {
            err << "vantelle-cli: " << OneLine(String(std::string_view(line))) << '\n';
        }};
    Linux::Options options;
    if (mode.now != mode.lasting) options.duration = mode.now ? Linux::Duration::Now : Linux::Duration::Lasting;
    options.dryRun = mode.dryRun;
    return std::make_unique<LinuxPlatform>(std::move(host), report, options);
}

}  // namespace VNT::Cli
