#pragma once

#include "store/display.h"
#include "store/platform.h"

namespace VNT {

// True for what a list shows without being asked for more: it is present, or has an override.
bool IsUsual(const Display& display);

// Rebuilds the list from the store and from what the other sources report: active displays, those with an override
// and, if asked for, inactive ones with an EDID. False only if the monitor class can't be opened.
bool LoadDisplays(Platform& platform, DisplayList& list, bool includeInactiveWithEdid);

}  // namespace VNT
