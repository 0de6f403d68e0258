#include "model/edid/extension_block.h"

namespace VNT {

namespace {

constexpr TKind<AnyEdidExtensionBlock> Rows[] = {
    Kind<EdidDefaultExtensionBlock, AnyEdidExtensionBlock>("Default", AnyEdidExtensionBlock::FrameSize),
};

}  // namespace

int AnyEdidExtensionBlock::PeekType(ByteRange range) {
    if (!range.Limit(FrameSize)) return NoType;
    if (range.IsAll(0)) return EdidExtensionBlockTypeId::Default;
    return range.ByteAt(0);
}

int ComputeChecksum(ByteRange range, int bytes) {
    int sum = 0;
    for (int i = 0; i < bytes; ++i) sum += range.ByteAt(i);
    return (256 - sum % 256) % 256;
}

std::span<const TKind<AnyEdidExtensionBlock>> EdidExtensionBlockKinds::All() { return Rows; }

std::unique_ptr<AnyEdidExtensionBlock> EdidExtensionBlockKinds::Read(ByteRange range) {
    return ReadKind<EdidOtherExtensionBlock>(All(), range);
}

namespace {

// CTA-861-I 7.5.20: the HDMI Forum extension override, first in the data blocks of the first extension: a header of the
// extended tag (7) with a length that holds the extended tag 0x78 and the count. Offsets are in `data`, behind the tag.
constexpr int CtaTag = 0x02;
constexpr int DetailedOffsetAt = 1;
constexpr int FirstDataBlockAt = 3;
constexpr int CountAt = FirstDataBlockAt + 2;

bool HasOverride(const EdidOtherExtensionBlock& block) {
    if (block.tag != CtaTag || block.data.Size() <= CountAt) return false;
    // Data blocks end where the detailed timings start, both counted from the block's first byte.
    const int area = block.data.At(DetailedOffsetAt) - 4;
    ByteRange range = block.data.Range();
    range.SkipBytes(FirstDataBlockAt);
    ByteRange dataBlock = range.Take(area);
    const int length = static_cast<int>(dataBlock.ReadLsb(5));
    const bool isExtended = dataBlock.ReadLsb(3) == 7;
    return isExtended && length >= 1 && length < dataBlock.Size() && dataBlock.ReadLsb(8) == 0x78 && length >= 2;
}

}  // namespace

int EdidOtherExtensionBlock::GetOverrideCount() const { return HasOverride(*this) ? data.At(CountAt) : Undefined; }

void EdidOtherExtensionBlock::SetOverrideCount(int count) {
    if (!HasOverride(*this)) return;
    data.At(CountAt) = static_cast<std::uint8_t>(count);
    UpdateChecksum();
}

bool EdidExtensionBlockList::UpdateOverrideCount() {
    if (GetOverrideCount() == Undefined) return false;
    Slot(0).SetOverrideCount(GetCount());
    return true;
}

void EdidExtensionBlockList::FillUp(int count) {
    EdidDefaultExtensionBlock block;
    while (GetCount() < count && Add(EdidExtensionBlock(block.Clone()))) {
    }
}

}  // namespace VNT
