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

namespace {

template <class X>
constexpr TKind<AnyDisplayIdDataBlock> Kind(const char* title, int addSize) {
    return VNT::Kind<X, AnyDisplayIdDataBlock>(title, addSize);
}

constexpr TKind<AnyDisplayIdDataBlock> Rows[] = {
    Kind<DisplayId1ProductIdDataBlock>("Product identification", 15),
    Kind<DisplayId1DisplayParametersDataBlock>("Display parameters", 15),
    Kind<DisplayId1DetailedResolutionListDataBlock>("Detailed resolutions", 3),
    Kind<DisplayId1RangeLimitsDataBlock>("Range limits", 18),
    Kind<DisplayId1SerialNumberDataBlock>("Serial number", 3),
    Kind<DisplayId1TextDataBlock>("Text", 3),
    Kind<DisplayId1TiledDisplayTopologyDataBlock>("Tiled display topology", 25),
    Kind<DisplayId2ProductIdDataBlock>("Product identification", 15),
    Kind<DisplayId2DetailedResolutionListDataBlock>("Detailed resolutions", 3),
    Kind<DisplayId2DetailedResolutionListDataBlockR2>("Detailed resolutions r2", 3),
    Kind<DisplayId2RangeLimitsDataBlock>("Range limits", 12),
    Kind<DisplayId2DisplayInterfaceDataBlock>("Display interface", 12),
    Kind<DisplayId2TiledDisplayTopologyDataBlock>("Tiled display topology", 25),
    Kind<DisplayId2ContainerIdDataBlock>("Container ID", 19),
    Kind<DisplayId2VendorSpecificDataBlock>("Vendor-specific", 6),
    Kind<DisplayId1VendorSpecificDataBlock>("Vendor-specific", 6),
    Kind<DisplayIdCtaDataBlockListDataBlock>("CTA-861 data blocks", 3),
};

}  // namespace

std::span<const TKind<AnyDisplayIdDataBlock>> DisplayIdDataBlockKinds::All() { return Rows; }

std::unique_ptr<AnyDisplayIdDataBlock> DisplayIdDataBlockKinds::Read(ByteRange range) {
    return ReadSizedKind<DisplayIdOtherDataBlock>(All(), range);
}

}  // namespace VNT
