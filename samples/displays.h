#pragma once

#include <string>
#include <vector>

#include "samples/sample_bytes.h"

namespace Samples {

// A display of our own making; makers and models are fictional.
struct Display {
    std::string instanceId;
    std::string description;
    std::string driverKey;
    bool active = true;
    Block edid;
    Block edidOverride;  // empty: none
};

std::vector<Display> MakeDisplays();

}  // namespace Samples
