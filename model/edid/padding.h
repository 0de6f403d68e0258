#pragma once

#include "model/core/bytes.h"

namespace VNT {

namespace Detail {
inline void SetBytes(Bytes& bytes, ByteRange read) { bytes = Bytes(read); }
}  // namespace Detail

// Bytes that a sound EDID fills with `proper`; whatever they hold is kept.
template <class IO>
void MapPadding(IO& io, const char* name, auto& padding, const Bytes& proper) {
    io.ThroughData(
        proper.Size(), [&] { return padding; }, [&](auto read) { Detail::SetBytes(padding, read); });
    io.Value(name, padding, padding == proper, padding.Size() == proper.Size());
}

}  // namespace VNT
