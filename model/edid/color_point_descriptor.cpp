#include "model/edid/color_point_descriptor.h"

namespace VNT {

void EdidColorPoint::Link(bool useRaw) {
    if (!useRaw) {
        rawX = EncodeColorCoordinate(x);
        rawY = EncodeColorCoordinate(y);
    } else {
        x = DecodeColorCoordinate(rawX);
        y = DecodeColorCoordinate(rawY);
    }
}

void EdidColorPointDescriptor::Normalize() {
    for (EdidColorPoint& point : points) point.Link(useRaw);
}

void EdidColorPointDescriptor::NormalizeRead() {
    useRaw = true;
    for (EdidColorPoint& point : points) {
        const bool isZero = point.index == 0 && point.rawX == 0 && point.rawY == 0 && point.gamma == Decimal(1);
        if (!isZero) continue;
        const int reservedBits = point.reservedBits;
        point = EdidColorPoint();
        point.reservedBits = reservedBits;
    }
    Normalize();
}

}  // namespace VNT
