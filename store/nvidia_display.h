#pragma once

#include <map>
#include <string>
#include <vector>

#include "store/driver_gpu_display.h"
#include "store/driver_library.h"
#include "store/nvidia_api.h"

namespace VNT {

// NVIDIA's driver library, started.
class NvidiaDriver {
public:
    // The one that is in use, or a new one; null if there is no library, or it lacks a call or doesn't start.
    static std::shared_ptr<const NvidiaDriver> Acquire(const LibraryLoader& load);

    NvidiaDriver(std::unique_ptr<DriverLibrary> library, const Nvapi::Calls& calls);
    ~NvidiaDriver();
    NvidiaDriver(const NvidiaDriver&) = delete;
    NvidiaDriver& operator=(const NvidiaDriver&) = delete;

    const Nvapi::Calls& Call() const { return calls_; }
    std::map<std::uint32_t, std::wstring> GetDisplayNames() const;  // by display ID
    // False if the library doesn't say.
    bool GetGpus(std::vector<Nvapi::GpuHandle>& out) const;
    std::vector<std::uint32_t> GetConnectedDisplays(Nvapi::GpuHandle gpu) const;

private:
    std::unique_ptr<DriverLibrary> library_;
    Nvapi::Calls calls_;
};

class WindowsNvidiaGpuDisplay
    : public TDriverGpuDisplay<WindowsNvidiaGpuDisplay, WindowsGpuTypeId::Nvidia, NvidiaDriver> {
public:
    using TDriverGpuDisplay::TDriverGpuDisplay;

    bool ReadEdid();
    bool ReadI2c(std::uint8_t address, ByteRange out) const override;
    bool WriteI2c(ByteRange data) const override;

private:
    bool ReadEdidPart(std::uint32_t offset, Nvapi::Edid& out) const;
    bool FindOutput();  // puts the GPU and output that the display ID stands for in its place
    Nvapi::I2cInfo MakeI2cInfo(std::uint8_t address, ByteRange data) const;
};

// Adds every display that the driver gives an EDID for. False if there is no driver or it doesn't list its GPUs.
bool ReadNvidia(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out);

}  // namespace VNT
