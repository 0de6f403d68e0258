#include "model/edid/range_limits_descriptor.h"

namespace VNT {

void EdidRangeLimitsDescriptor::Normalize() {
    if (timing.GetType() == EdidRangeLimitsTimingTypeId::DefaultGtf) timing.Assign(EdidRangeLimitsDefaultGtfTiming());
    if (timing.GetType() == EdidRangeLimitsTimingTypeId::Only) timing.Assign(EdidRangeLimitsOnlyTiming());
}

void EdidRangeLimitsDescriptor::FillTexts(TextTable& table) const {
    table.Set(U"{minvrate}", minVRate);
    table.Set(U"{maxvrate}", maxVRate);
    table.Set(U"{minhrate}", minHRate);
    table.Set(U"{maxhrate}", maxHRate);
    table.Set(U"{actualmaxpixelclock}", DecimalToText(GetActualMaxPixelClock(), DecimalFormat{2, 21, true}));
}

Decimal EdidRangeLimitsDescriptor::GetActualMaxPixelClock() const {
    EdidRangeLimitsCvtTiming cvt;
    return Decimal(maxPixelClock) - (cvt.Assign(timing) ? cvt.subtractPixelClock : Decimal());
}

}  // namespace VNT
