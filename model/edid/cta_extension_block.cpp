#include "model/edid/cta_extension_block.h"

namespace VNT {

void EdidCtaExtensionBlock::Normalize() {
    dataBlockPadding = Bytes();
    detailedOffset = dataBlocks.GetSize() + HeadBytes;
    tail = Bytes(BodyBytes - dataBlocks.GetSize() - descriptors.GetSize(), 0);
    UpdateChecksum();
}

void EdidCtaExtensionBlock::FillTexts(TextTable& table) const {
    const int dataBlockCount = dataBlocks.GetCount();
    const auto detailedCount =
        static_cast<int>(std::count_if(descriptors.begin(), descriptors.end(), [](const auto& d) {
            return d.GetType() == EdidDescriptorTypeId::DetailedResolution;
        }));
    const int descriptorCount = descriptors.GetCount() - detailedCount;
    table.Set(U"{datablockcount}", dataBlockCount);
    table.Set(U"{detailedcount}", detailedCount);
    table.Set(U"{descriptorcount}", descriptorCount);
    table.Set(U"{datablockcounttext}",
              ChooseByCount(dataBlockCount, U"0 data blocks", U"1 data block", U"{datablockcount} data blocks"));
    table.Set(U"{detailedcounttext}", ChooseByCount(detailedCount, U"0 detailed resolutions", U"1 detailed resolution",
                                                    U"{detailedcount} detailed resolutions"));
    table.Set(U"{descriptorcounttext}",
              ChooseByCount(descriptorCount, U"0 descriptors", U"1 descriptor", U"{descriptorcount} descriptors"));
}

void EdidCtaExtensionBlock::SetOverrideCount(int count) {
    // A block that states the count already is as it was read.
    if (GetOverrideCount() == Undefined || GetOverrideCount() == count) return;
    const int size = dataBlocks.GetSize();
    CtaDataBlockList counted = dataBlocks;
    counted.SetOverrideCount(count);
    if (counted.GetSize() - size > BodyBytes - size - descriptors.GetSize()) return;
    dataBlocks = counted;
    // One that had no byte for the count has it now, and all behind it moves.
    if (dataBlocks.GetSize() != size) return Normalize();
    UpdateChecksum();
}

TLimitPair<ValueLimits> EdidCtaExtensionBlock::GetOffsetLimits() const {
    constexpr int end = HeadBytes + BodyBytes;
    const int used = HeadBytes + GetAreaSize();
    if (used == HeadBytes && descriptors.IsEmpty()) return Within({0, 0, 0, 0, {HeadBytes}}, {0, HeadBytes});
    if (used < end) return ValueLimits{used, used};
    return Within({end, end}, {end, 255});
}

}  // namespace VNT
