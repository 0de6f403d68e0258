#pragma once

#include "store/display.h"
#include "store/platform.h"

namespace VNT {

// Saves every display that was edited. Goes on after a failure, and is false if any display failed.
bool SaveDisplays(Platform& platform, DisplayList& list);

// What a deletion left of an override.
enum class OverrideLeft { None, Values, Locked, Link };

// Deletes EDID_OVERRIDE below a device's key, whatever it holds. Deleting the key may fail for reasons of its own
// (there is none, it has child keys, somebody holds it), so what counts is what remains afterwards: None if no value
// does, Locked if that can't be told, Link if a link stands there, which is not followed.
OverrideLeft DeleteOverride(RegistryKey& device);

// Deletes a sub-key with all below it, as far as it can. Of several child keys every second one is passed over, and
// the sub-key then stays: false.
bool DeleteKeyTree(RegistryKey& parent, const std::wstring& name);

}  // namespace VNT
