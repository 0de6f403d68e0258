#include "store/gpu_displays.h"

#include "store/amd_display.h"
#include "store/nvidia_display.h"

namespace VNT {

bool ReadGpuDisplays(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out) {
    out.clear();
    const bool amd = ReadAmd(load, out);
    const bool nvidia = ReadNvidia(load, out);
    return amd || nvidia;
}

}  // namespace VNT
