#include "store/display_row.h"

#include "model/core/text.h"

namespace VNT {

String GetDisplayRow(const Display& display) {
    Edid edid;
    edid.Read(display.CurrentData);
    return GetDisplayRow(display, edid.GetIdentity());
}

String GetDisplayRow(const Display& display, const EdidIdentity& identity) {
    String row = identity.vendorId + NumberText(identity.productId, 16, 4, true) + U" - ";
    row += identity.name.IsEmpty() ? String(display.DeviceDescription) : identity.name;
    if (display.Active) row += U" (active)";
    if (!display.OverrideData.IsEmpty()) row += U"*";
    return row;
}

}  // namespace VNT
