#pragma once

#include "store/gpu_display.h"

namespace VNT {

// What the drivers' displays have in common. Each keeps its driver, and so the library, in use.
template <class X, WindowsGpuTypeId value, class Driver>
class TDriverGpuDisplay : public TCommonType<X, WindowsGpuTypeId, value, AnyWindowsGpuDisplay, AnyWindowsGpuDisplay> {
public:
    TDriverGpuDisplay(std::shared_ptr<const Driver> driver, GpuDisplayRecord record)
        : driver_(std::move(driver)), record_(std::move(record)) {}

    const GpuDisplayRecord& GetRecord() const override { return record_; }
    bool IsValid() const override { return true; }
    bool IsValidAll() const override { return true; }
    bool EqualFields(const X& other) const {
        return record_.Handle1 == other.record_.Handle1 && record_.Handle2 == other.record_.Handle2 &&
               record_.DisplayName == other.record_.DisplayName;
    }

protected:
    std::shared_ptr<const Driver> driver_;
    GpuDisplayRecord record_;
};

}  // namespace VNT
