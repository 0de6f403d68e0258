#pragma once

#include "model/edid/edid.h"
#include "store/display.h"

namespace VNT {

// The row of a display in a list: vendor and product ID of its current EDID, its name (the device's description where
// the EDID has none), " (active)" if it is present, "*" if it has an override.
String GetDisplayRow(const Display& display);
// The same of a display whose EDID has been read already.
String GetDisplayRow(const Display& display, const EdidIdentity& identity);

}  // namespace VNT
