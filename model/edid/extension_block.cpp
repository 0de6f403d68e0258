#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/vtb_extension_block.h"

namespace VNT {

namespace {

template <class X>
constexpr TKind<AnyEdidExtensionBlock> Kind(const char* title) {
    return VNT::Kind<X, AnyEdidExtensionBlock>(title, AnyEdidExtensionBlock::FrameSize);
}

constexpr TKind<AnyEdidExtensionBlock> Rows[] = {
    Kind<EdidCtaExtensionBlock>("CTA-861"),
    Kind<EdidVtbExtensionBlock>("VTB-EXT"),
    Kind<EdidDisplayIdSectionExtensionBlock>("DisplayID"),
    Kind<EdidDefaultExtensionBlock>("Default"),
};

}  // namespace

int AnyEdidExtensionBlock::PeekType(ByteRange range) {
    if (!range.Limit(FrameSize)) return NoType;
    if (range.IsAll(0)) return EdidExtensionBlockTypeId::Default;
    return range.ByteAt(0);
}

std::span<const TKind<AnyEdidExtensionBlock>> EdidExtensionBlockKinds::All() { return Rows; }

std::unique_ptr<AnyEdidExtensionBlock> EdidExtensionBlockKinds::Read(ByteRange range) {
    return ReadKind<EdidOtherExtensionBlock>(All(), range);
}

void EdidExtensionBlockList::ReadMore(ByteRange range) {
    for (; range.Size() >= SlotBytes; range.Drop(SlotBytes)) {
        EdidExtensionBlock block;
        block.Read(range);
        if (Add(std::move(block))) continue;
        // What its kind couldn't write back (a VTB-EXT block whose counts exceed it) is kept as bytes.
        EdidOtherExtensionBlock other;
        other.Read(range);
        Add(EdidExtensionBlock(other.Clone()));
    }
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
