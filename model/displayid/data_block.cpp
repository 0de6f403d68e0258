#include "model/displayid/data_block.h"

namespace VNT {

DisplayIdBlockType PeekDisplayIdBlockType(ByteRange range) {
    constexpr int vendorTag1 = 0x7F, vendorTag2 = 0x7E;
    constexpr int vendorStep1 = 0x1000000, vendorStep2 = 0x2000000;
    constexpr int none = DisplayIdDataBlockTypeId::None;
    DisplayIdBlockType block{{none, none}};
    if (range.Size() < AnyDisplayIdDataBlock::FrameBytes) return block;
    block.tag = static_cast<int>(range.ReadLsb(8));
    block.revision = static_cast<int>(range.ReadLsb(3));
    block.flags = static_cast<int>(range.ReadLsb(5));
    block.size = static_cast<int>(range.ReadLsb(8)) + AnyDisplayIdDataBlock::FrameBytes;
    const bool isZero =
        block.tag == 0 && block.revision == 0 && block.flags == 0 && block.size == AnyDisplayIdDataBlock::FrameBytes;
    if (isZero || !range.Limit(block.size)) return block;
    block.type = block.plainType = block.tag;
    if ((block.tag == vendorTag1 || block.tag == vendorTag2) && range.RemainingBits() >= 24) {
        block.oui = static_cast<int>(range.ReadMsb(24));
        block.type = block.oui + (block.tag == vendorTag1 ? vendorStep1 : vendorStep2);
    }
    return block;
}

SizedPeek AnyDisplayIdDataBlock::Peek(ByteRange range) {
    DisplayIdBlockType block = PeekDisplayIdBlockType(range);
    constexpr int firstOfR2 = 2;
    if (block.type == DisplayIdDataBlockTypeId::DetailedResolutionList2 && block.revision >= firstOfR2)
        block.type = block.plainType = DisplayIdDataBlockTypeId::DetailedResolutionList2R2;
    return block;
}

}  // namespace VNT
