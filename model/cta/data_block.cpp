#include "model/cta/data_block.h"

#include "model/cta/extension_override.h"

namespace VNT {

SizedPeek AnyCtaDataBlock::Peek(ByteRange range) {
    constexpr SizedPeek none{NoType, NoType};
    using Header = CtaDataBlockHeader;
    if (range.Size() == 0) return none;
    const int size = static_cast<int>(range.ReadLsb(5)) + 1;
    const int tag = static_cast<int>(range.ReadLsb(3));
    if (!range.Limit(size)) return none;
    SizedPeek peek{tag, tag, size};
    auto family = CtaDataBlockTypeId::Vendor;
    bool namesVendor = tag == Header::VendorTag;
    if (tag == Header::UsesExtendedTag && range.RemainingBits() >= 8) {
        const int extended = static_cast<int>(range.ReadLsb(8));
        peek.type = peek.plainType = CtaDataBlockTypeId::Of(CtaDataBlockTypeId::ExtendedTag, extended);
        namesVendor = extended == Header::VendorVideoTag || extended == Header::VendorAudioTag;
        family = extended == Header::VendorVideoTag ? CtaDataBlockTypeId::VendorVideo : CtaDataBlockTypeId::VendorAudio;
    }
    if (namesVendor && range.RemainingBits() >= 24)
        peek.type = CtaDataBlockTypeId::Of(family, static_cast<int>(range.ReadLsb(24)));
    return peek;
}

bool CtaDataBlockList::Add(const CtaDataBlock& block) {
    return Insert(block.GetType() == CtaDataBlockTypeId::ExtensionOverride ? 0 : GetCount(), block);
}

int CtaDataBlockList::GetOverrideCount() const {
    CtaExtensionOverrideDataBlock block;
    return !IsEmpty() && block.Assign(At(0)) ? block.BlockCount : Undefined;
}

void CtaDataBlockList::SetOverrideCount(int count) {
    CtaExtensionOverrideDataBlock block;
    if (IsEmpty() || !block.Assign(At(0))) return;
    block.BlockCount = count;
    // One without the byte for it gets that, as any block that is edited.
    const bool hasCount = block.PresentLength > 0;
    if (!hasCount) block.SetFields(CtaExtensionOverrideDataBlockFields(block));
    Set(0, CtaDataBlock(block.Clone()));
}

}  // namespace VNT
