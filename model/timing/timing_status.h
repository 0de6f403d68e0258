#pragma once

#include <array>

#include "model/core/layout.h"
#include "model/timing/detailed_resolution.h"

namespace VNT {

// What the bytes of an encoding set for one axis; the limits of the other counts follow from it and from the counts.
struct TimingAxisRule {
    ValueLimits active, front, sync;
    ValueLimits blank;         // all that the bytes can carry
    bool mayCutPorch = false;  // the blanking may be shorter than front porch and sync together
};
TimingAxisLimits LimitsOfAxis(const TimingAxisRule& rule, int active, int front, int sync);

// The tests of the fields that no byte of an encoding holds: what is entered how, the counts and rates that follow.
std::array<FieldStatus, 10> StatusBeyondBytes(const DetailedResolutionFields& fields,
                                              const DetailedResolutionLimits& proper,
                                              const DetailedResolutionLimits& all);

// Which fields are open for input in the record's timing mode: those that are IsProper.
ItemStatus GetAvailable(const DetailedResolutionFields& fields);

}  // namespace VNT
