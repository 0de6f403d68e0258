#pragma once

#include <memory>

#include "store/linux/edid_parameter.h"
#include "store/linux/kept_files.h"

// What gives the kernel its command line at each start.
namespace VNT::Linux {

// What we have among the parameter's entries, before and after a change.
struct EntryChange {
    std::vector<FirmwareEntry> before;
    std::vector<FirmwareEntry> after;
};

class BootLoader {
public:
    virtual ~BootLoader() = default;

    virtual std::string Name() const = 0;
    // Where the kernel finds firmware files that are put there, below the root; empty: nowhere.
    virtual std::string FirmwareFolder() const = 0;
    // What has to run makes the early image as well.
    virtual bool MakesImages() const { return false; }
    // Plans the change of the parameter, and what has to run then; `isDue`: whatever changes, as it may not have run
    // when it had to. False, with nothing planned, if the settings can't be understood: they are left alone.
    virtual bool Plan(const EntryChange& entries, bool isDue, const KeptFiles& kept, Changes& changes) = 0;
    // Has the early image hold the second files in place of the first, their bytes changed too if `isDue`, where that
    // is the loader's own affair; false where it isn't.
    virtual bool PlanImage(const std::vector<std::string>& /*before*/, const std::vector<std::string>& /*after*/,
                           bool /*isDue*/, Changes&) {
        return false;
    }
};

// The loader of this system, as far as it is one that we know; null otherwise.
std::unique_ptr<BootLoader> FindBootLoader(Host& host);

std::unique_ptr<BootLoader> FindGrub(Host& host);         // GRUB by its settings in /etc/default
std::unique_ptr<BootLoader> FindGrubby(Host& host);       // any loader that grubby knows
std::unique_ptr<BootLoader> FindCommandLine(Host& host);  // /etc/kernel/cmdline: systemd-boot, unified kernel images
std::unique_ptr<BootLoader> FindRpmOstree(Host& host);    // images of the whole system

// Where most systems have it; empty if they have none.
std::string UsualFirmwareFolder(const Host& host);

}  // namespace VNT::Linux
