#include "model/edid/displayid_extension_block.h"

namespace VNT {

void EdidDisplayIdSectionExtensionBlock::Normalize() {
    raw = Bytes();
    tail = Bytes(SectionBytes - section.GetSize(), 0);
    UpdateChecksum();
}

void EdidDisplayIdSectionExtensionBlock::FillTexts(TextTable& table) const {
    const int count = section.dataBlocks.GetCount();
    table.Set(U"{version}", section.version);
    table.Set(U"{revision}", section.revision);
    table.Set(U"{datablockcount}", count);
    table.Set(U"{datablockcounttext}",
              ChooseByCount(count, U"0 data blocks", U"1 data block", U"{datablockcount} data blocks"));
}

}  // namespace VNT
