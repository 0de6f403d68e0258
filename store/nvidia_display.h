#pragma once

#include <map>
#include <string>
#include <vector>

#include "store/driver_gpu_display.h"
#include "store/driver_library.h"
#include "store/nvidia_api.h"

namespace VNT {

// NVIDIA's driver library, started.
class NvidiaDriver : public TDriver<NvidiaDriver, Nvapi::Calls> {
public:
    static constexpr const wchar_t* FirstName = L"nvapi.dll";
    static constexpr const wchar_t* SecondName = L"nvapi64.dll";
    static bool FindCalls(const DriverLibrary& library, Calls& calls);
    static bool Start(const Calls& calls);

    using TDriver::TDriver;
    ~NvidiaDriver();

    std::map<std::uint32_t, std::wstring> GetDisplayNames() const;  // by display ID
    // False if the library doesn't say.
    bool GetGpus(std::vector<Nvapi::GpuHandle>& out) const;
    std::vector<std::uint32_t> GetConnectedDisplays(Nvapi::GpuHandle gpu) const;
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
