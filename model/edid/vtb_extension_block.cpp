#include "model/edid/vtb_extension_block.h"

namespace VNT {

void EdidVtbExtensionBlock::Normalize() {
    detailedCount = detailed.GetCount();
    cvtCount = cvtResolutions.GetCount();
    standardCount = standardResolutions.GetCount();
    detailedPadding = cvtPadding = standardPadding = Bytes();
    tail = Bytes(GetTailSize(), 0);
    UpdateChecksum();
}

void EdidVtbExtensionBlock::FillTexts(TextTable& table) const {
    table.Set(U"{detailedcount}", detailed.GetCount());
    table.Set(U"{cvtcount}", cvtResolutions.GetCount());
    table.Set(U"{standardcount}", standardResolutions.GetCount());
    table.Set(U"{detailedcounttext}",
              ChooseByCount(detailed.GetCount(), U"0 detailed", U"1 detailed", U"{detailedcount} detailed"));
    table.Set(U"{cvtcounttext}", ChooseByCount(cvtResolutions.GetCount(), U"0 CVT", U"1 CVT", U"{cvtcount} CVT"));
    table.Set(U"{standardcounttext}",
              ChooseByCount(standardResolutions.GetCount(), U"0 standard", U"1 standard", U"{standardcount} standard"));
}

}  // namespace VNT
