#pragma once

#include <vector>

#include "store/amd_api.h"
#include "store/driver_gpu_display.h"
#include "store/driver_library.h"

namespace VNT {

// AMD's driver library, started.
class AmdDriver : public TDriver<AmdDriver, Adl::Calls> {
public:
    static constexpr const wchar_t* FirstName = L"atiadlxx.dll";
    static constexpr const wchar_t* SecondName = L"atiadlxy.dll";
    static bool FindCalls(const DriverLibrary& library, Calls& calls);
    static bool Start(const Calls& calls);

    using TDriver::TDriver;
    ~AmdDriver();

    // False if the library doesn't say.
    bool GetAdapters(std::vector<Adl::AdapterInfo>& out) const;
    std::vector<Adl::DisplayInfo> GetDisplays(int adapter) const;
    bool IsActive(int adapter) const;
    // Buffers that the library asked for and that were not freed.
    static std::size_t BuffersInUse();
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
