#include "model/edid/color_coordinates.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {
constexpr int Steps = 1024;
}

int EncodeColorCoordinate(Decimal value) {
    if (value < Decimal() || value > Decimal(1)) return Undefined;
    const std::int64_t raw = (value.Millionths() * Steps + Decimal::Scale / 2) / Decimal::Scale;
    return raw < Steps ? static_cast<int>(raw) : Undefined;
}

Decimal DecodeColorCoordinate(int raw) {
    if (raw < 0 || raw >= Steps) return Decimal::Undefined();
    return Decimal::FromMillionths(raw * Decimal::Scale / Steps);
}

EdidColorCoordinates::EdidColorCoordinates() {
    static const EdidColorCoordinates normalized{EdidColorCoordinatesFields()};
    *this = normalized;
}

bool EdidColorCoordinates::Read(ByteRange range) {
    if (!range.Limit(FrameSize)) return false;
    TLayout<EdidColorCoordinates>::Read(*this, range);
    useRaw = true;
    Normalize();
    return true;
}

bool EdidColorCoordinates::Write(ByteRange range) const {
    if (!range.Limit(FrameSize) || !IsValidAll()) return false;
    TLayout<EdidColorCoordinates>::Write(*this, range);
    return true;
}

void EdidColorCoordinates::Normalize() {
    for (std::size_t i = 0; i < CoordinateCount; ++i) {
        if (!useRaw) raw[i] = EncodeColorCoordinate(value[i]);
        actual[i] = DecodeColorCoordinate(raw[i]);
        if (useRaw) value[i] = actual[i];
    }
}

template struct TMadeItem<EdidColorCoordinates>;

}  // namespace VNT
