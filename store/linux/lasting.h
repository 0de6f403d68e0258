#pragma once

#include "store/linux/boot_loader.h"
#include "store/linux/display_records.h"

// Overrides for every start: a firmware file for each display, the parameter that names them, and both in the early
// image where the system has one.
namespace VNT::Linux {

struct LastingPlan {
    bool isComplete = false;          // planned as a whole; else `advice` tells what the user has to do
    bool isBlocked = false;           // the boot loader is known, but its settings are not understood
    bool losesOwn = false;            // what stands there of ours would be forgotten: nothing may be changed
    bool leavesFile = false;          // something else changed a firmware file of ours since: it stays
    std::vector<std::string> advice;  // a line each
    std::string value;                // the parameter's value for the running kernel
    bool hasValue = false;            // it has one
};

// Plans what leads from the displays that have a lasting override on record to those that are to have one. `isDue`:
// what makes the early image and the loader's settings runs in any case.
LastingPlan PlanLasting(Host& host, const std::vector<DisplayRecord>& before, const std::vector<DisplayRecord>& after,
                        bool isDue, Changes& changes);

// The running kernel's value of the parameter, which can be written.
inline constexpr char LiveParameter[] = "sys/module/drm/parameters/edid_firmware";

}  // namespace VNT::Linux
