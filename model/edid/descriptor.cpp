#include "model/edid/descriptor.h"

namespace VNT {

std::unique_ptr<AnyEdidDescriptor> EdidDescriptorKinds::Read(ByteRange range) {
    return ReadKind<EdidOtherDescriptor>(All(), range);
}

bool EdidDescriptorList::Write(ByteRange range) const { return WriteFilled(range, EdidEmptyDescriptor()); }

}  // namespace VNT
