#pragma once

#include "model/timing/detailed_resolution.h"

namespace VNT {

// Fills in the record by its timing mode (one outside the enumeration counts as Manual), from what the mode takes as
// entered. Of the limits it uses those of `hactive` and `hfront` and the decimals of the clock. A mode that gives no
// timing leaves porches, syncs, blankings, totals, scan rate, clock and the actual rates Undefined. Doing it twice
// gives what doing it once gave.
void Calculate(DetailedResolutionFields& fields, const DetailedResolutionLimits& limits);

// What was read, as a Manual timing: all fields that no byte holds, from `actualpixelclock` and the counts of bytes.
void InitFromEncoded(DetailedResolutionFields& fields);

}  // namespace VNT
