#pragma once

#include <vector>

#include "store/driver_library.h"
#include "store/gpu_display.h"

namespace VNT {

// What the drivers of all makers report; both are asked. True if either answers.
bool ReadGpuDisplays(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out);

}  // namespace VNT
