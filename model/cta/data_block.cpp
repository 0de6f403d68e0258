#include "model/cta/data_block.h"

#include "model/cta/extension_override.h"

namespace VNT {

SizedPeek AnyCtaDataBlock::Peek(ByteRange range) {
    using Header = CtaDataBlockHeader;
    constexpr int sizes = 32, values = 256;
    const int size = range.ByteAt(0) % sizes + 1;
    const int tag = range.ByteAt(0) / sizes;
    if (range.Size() < size) return {NoType, NoType};
    SizedPeek peek{tag, tag, size};
    auto family = CtaDataBlockTypeId::Vendor;
    bool namesVendor = tag == Header::VendorTag;
    int ouiAt = 1;
    if (tag == Header::UsesExtendedTag && size > 1) {
        const int extended = range.ByteAt(1);
        peek.type = peek.plainType = CtaDataBlockTypeId::Of(CtaDataBlockTypeId::ExtendedTag, extended);
        namesVendor = extended == Header::VendorVideoTag || extended == Header::VendorAudioTag;
        family = extended == Header::VendorVideoTag ? CtaDataBlockTypeId::VendorVideo : CtaDataBlockTypeId::VendorAudio;
        ouiAt = 2;
    }
    if (namesVendor && size >= ouiAt + 3) {
        const int oui = range.ByteAt(ouiAt) + values * (range.ByteAt(ouiAt + 1) + values * range.ByteAt(ouiAt + 2));
        peek.type = CtaDataBlockTypeId::Of(family, oui);
    }
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
