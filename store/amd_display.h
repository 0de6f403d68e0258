#pragma once

#include <vector>

#include "store/amd_api.h"
#include "store/driver_gpu_display.h"
#include "store/driver_library.h"

namespace VNT {

// AMD's driver library, started.
class AmdDriver {
public:
    // The one that is in use, or a new one; null if there is no library, or it lacks a call or doesn't start.
    static std::shared_ptr<const AmdDriver> Acquire(const LibraryLoader& load);

    AmdDriver(std::unique_ptr<DriverLibrary> library, const Adl::Calls& calls);
    ~AmdDriver();
    AmdDriver(const AmdDriver&) = delete;
    AmdDriver& operator=(const AmdDriver&) = delete;

    const Adl::Calls& Call() const { return calls_; }
    // False if the library doesn't say.
    bool GetAdapters(std::vector<Adl::AdapterInfo>& out) const;
    std::vector<Adl::DisplayInfo> GetDisplays(int adapter) const;
    bool IsActive(int adapter) const;

private:
    std::unique_ptr<DriverLibrary> library_;
    Adl::Calls calls_;
};

class WindowsAmdGpuDisplay : public TDriverGpuDisplay<WindowsAmdGpuDisplay, WindowsGpuTypeId::Amd, AmdDriver> {
public:
    using TDriverGpuDisplay::TDriverGpuDisplay;

    bool ReadEdid();
    bool ReadI2c(std::uint8_t address, ByteRange out) const override;
    bool WriteI2c(ByteRange data) const override;

private:
    bool ReadEdidBlocks(int index, Adl::DisplayEdidData& out) const;
    bool AccessDdc(ByteRange send, ByteRange receive) const;
};

// Adds every display that the driver gives an EDID for. False if there is no driver or it doesn't list its adapters.
bool ReadAmd(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out);

}  // namespace VNT
