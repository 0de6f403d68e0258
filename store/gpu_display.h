#pragma once

#include "model/core/any.h"
#include "store/records.h"

namespace VNT {

enum class WindowsGpuTypeId { Amd = 26, Nvidia = 1099 };

// A driver's view of one display, with access to the devices on its DDC port.
class AnyWindowsGpuDisplay : public TAny<AnyWindowsGpuDisplay> {
public:
    static constexpr int NoType = 0x1000000;

    virtual int GetType() const = 0;
    virtual const GpuDisplayRecord& GetRecord() const = 0;
    // Fills `out` from the I2C device of that address, or writes to one: `data` begins with the device address. False
    // if the driver refuses.
    virtual bool ReadI2c(std::uint8_t address, ByteRange out) const = 0;
    virtual bool WriteI2c(ByteRange data) const = 0;
    virtual bool IsValid() const = 0;
    virtual bool IsValidAll() const = 0;
};

// The holder: owns at most one item, clones it when it is copied.
class WindowsGpuDisplay : public TContainer<AnyWindowsGpuDisplay, AnyWindowsGpuDisplay> {
public:
    using TContainer::TContainer;

    int GetType() const override;
    const GpuDisplayRecord& GetRecord() const override;
    bool ReadI2c(std::uint8_t address, ByteRange out) const override;
    bool WriteI2c(ByteRange data) const override;
    bool IsValid() const override;
    bool IsValidAll() const override;
};

}  // namespace VNT
