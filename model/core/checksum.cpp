#include "model/core/checksum.h"

namespace VNT {

int ComputeChecksum(ByteRange range, int bytes) {
    int sum = 0;
    for (int i = 0; i < bytes; ++i) sum += range.ByteAt(i);
    return (256 - sum % 256) % 256;
}

}  // namespace VNT
