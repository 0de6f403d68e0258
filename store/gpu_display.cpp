#include "store/gpu_display.h"

namespace VNT {

int WindowsGpuDisplay::GetType() const { return item_ != nullptr ? item_->GetType() : NoType; }

const GpuDisplayRecord& WindowsGpuDisplay::GetRecord() const {
    static const GpuDisplayRecord empty;
    return item_ != nullptr ? item_->GetRecord() : empty;
}

bool WindowsGpuDisplay::ReadI2c(std::uint8_t address, ByteRange out) const {
    return item_ != nullptr && item_->ReadI2c(address, out);
}

bool WindowsGpuDisplay::WriteI2c(ByteRange data) const { return item_ != nullptr && item_->WriteI2c(data); }

bool WindowsGpuDisplay::IsValid() const { return item_ != nullptr && item_->IsValid(); }

bool WindowsGpuDisplay::IsValidAll() const { return item_ != nullptr && item_->IsValidAll(); }

}  // namespace VNT
