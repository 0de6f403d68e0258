#include "model/edid/extension_block_kinds.h"

namespace VNT {

namespace {

constexpr auto Rows = EdidExtensionBlockKindList.MakeTable<AnyEdidExtensionBlock>();

}  // namespace

int AnyEdidExtensionBlock::PeekType(ByteRange range) {
    if (!range.Limit(FrameSize)) return NoType;
    if (range.IsAll(0)) return EdidExtensionBlockTypeId::Default;
    return range.ByteAt(0);
}

std::span<const TKind<AnyEdidExtensionBlock>> EdidExtensionBlockKinds::All() { return Rows; }

std::unique_ptr<AnyEdidExtensionBlock> EdidExtensionBlockKinds::Read(ByteRange range) {
    return ReadKind<decltype(EdidExtensionBlockKindList)::Other>(All(), range);
}

void EdidExtensionBlockList::ReadMore(ByteRange range) {
    items_.reserve(items_.size() + static_cast<std::size_t>(range.Size() / SlotBytes));
    for (; range.Size() >= SlotBytes; range.Drop(SlotBytes)) {
        EdidExtensionBlock block;
        block.Read(range);
        if (AddRead(std::move(block))) continue;
        // What its kind couldn't write back (a VTB-EXT block whose counts exceed it) is kept as bytes.
        EdidOtherExtensionBlock other;
        other.Read(range);
        Add(EdidExtensionBlock(other.Clone()));
    }
}

bool EdidExtensionBlockList::UpdateOverrideCount() {
    if (GetOverrideCount() == Undefined) return false;
    Slot(0).SetOverrideCount(GetCount());
    return GetOverrideCount() == GetCount();
}

void EdidExtensionBlockList::FillUp(int count) {
    EdidDefaultExtensionBlock block;
    while (GetCount() < count && Add(EdidExtensionBlock(block.Clone()))) {
    }
}

}  // namespace VNT
