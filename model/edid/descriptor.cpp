#include "model/edid/descriptor.h"

namespace VNT {

std::unique_ptr<AnyEdidDescriptor> EdidDescriptorKinds::Read(ByteRange range) {
    return ReadKind<EdidOtherDescriptor>(All(), range);
}

bool EdidDescriptorList::Write(ByteRange range) const {
    if (!TSlotList::Write(range)) return false;
    const EdidEmptyDescriptor empty;
    for (range.Drop(GetSize()); empty.Write(range);) range.Drop(SlotBytes);
    return true;
}

}  // namespace VNT
