#pragma once

#include "model/core/layout.h"

namespace VNT {

// What makes the first `bytes` of the range and the byte behind them sum to 0 modulo 256.
int ComputeChecksum(ByteRange range, int bytes);

// A checksum byte: kept as read, right or wrong, until its block is built from edited fields. Undefined is one that is
// not known yet.
template <class IO>
void MapChecksum(IO& io, auto& checksum) {
    constexpr ValueCoding plain{0, 1, {}};
    io.Derived("checksum", 8, checksum, plain, TLimitPair<ValueLimits>(ValueLimits{0, 255, 0, 0, {Undefined}}));
}

}  // namespace VNT
