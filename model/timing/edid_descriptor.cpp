#include "model/timing/edid_descriptor.h"

namespace VNT {

int AnyEdidDescriptor::PeekType(ByteRange range) {
    if (!range.Limit(FrameSize)) return NoType;
    range.position = 0;
    if (range.ReadLsb(16) != 0) return EdidDescriptorTypeId::DetailedResolution;
    range.SkipBytes(1);
    return static_cast<int>(range.ReadLsb(8));
}

}  // namespace VNT
