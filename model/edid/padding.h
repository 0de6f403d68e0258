#pragma once

#include "model/core/bytes.h"

namespace VNT {

// Bytes that a sound EDID fills with `proper`; whatever they hold is kept.
template <class IO>
void MapPadding(IO& io, const char* name, auto& padding, const Bytes& proper) {
    io.ThroughData(
        proper.Size(), [&] { return padding; }, [&](auto bytes) { padding = Bytes(bytes); });
    io.Check(name, padding == proper, padding.Size() == proper.Size());
}

}  // namespace VNT
