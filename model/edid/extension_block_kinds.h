#pragma once

#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/vtb_extension_block.h"

namespace VNT {

inline constexpr TKindList EdidExtensionBlockKindList{
    TOtherKind<EdidOtherExtensionBlock>(),        KindOf<EdidCtaExtensionBlock>("CTA-861"),
    KindOf<EdidVtbExtensionBlock>("VTB-EXT"),     KindOf<EdidDisplayIdSectionExtensionBlock>("DisplayID"),
    KindOf<EdidDefaultExtensionBlock>("Default"),
};

}  // namespace VNT
