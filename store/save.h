#pragma once

#include "store/display.h"
#include "store/platform.h"

namespace VNT {

// Saves every display that was edited. Goes on after a failure, and is false if any display failed.
bool SaveDisplays(Platform& platform, DisplayList& list);

// Deletes a sub-key with all below it, as far as it can. Of several child keys every second one is passed over, and
// the sub-key then stays: false.
bool DeleteKeyTree(RegistryKey& parent, const std::wstring& name);

}  // namespace VNT
