#pragma once

#include "model/displayid/container_id.h"
#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_interface.h"
#include "model/displayid/display_parameters.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/product_id.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/text_data_block.h"
#include "model/displayid/tiled_display_topology.h"
#include "model/displayid/vendor_specific.h"

namespace VNT {

inline constexpr TKindList DisplayIdDataBlockKindList{
    TOtherKind<DisplayIdOtherDataBlock>(),
    KindOf<DisplayId1ProductIdDataBlock>("Product identification"),
    KindOf<DisplayId1DisplayParametersDataBlock>("Display parameters"),
    KindOf<DisplayId1DetailedResolutionListDataBlock>("Detailed resolutions"),
    KindOf<DisplayId1RangeLimitsDataBlock>("Range limits"),
    KindOf<DisplayId1SerialNumberDataBlock>("Serial number"),
    KindOf<DisplayId1TextDataBlock>("Text"),
    KindOf<DisplayId1TiledDisplayTopologyDataBlock>("Tiled display topology"),
    KindOf<DisplayId2ProductIdDataBlock>("Product identification"),
    KindOf<DisplayId2DetailedResolutionListDataBlock>("Detailed resolutions"),
    KindOf<DisplayId2DetailedResolutionListDataBlockR2>("Detailed resolutions r2"),
    KindOf<DisplayId2RangeLimitsDataBlock>("Range limits"),
    KindOf<DisplayId2DisplayInterfaceDataBlock>("Display interface"),
    KindOf<DisplayId2TiledDisplayTopologyDataBlock>("Tiled display topology"),
    KindOf<DisplayId2ContainerIdDataBlock>("Container ID"),
    KindOf<DisplayId1VendorSpecificDataBlock>("Vendor-specific"),
    KindOf<DisplayId2VendorSpecificDataBlock>("Vendor-specific"),
    KindOf<DisplayIdCtaDataBlockListDataBlock>("CTA-861 data blocks"),
};

}  // namespace VNT
