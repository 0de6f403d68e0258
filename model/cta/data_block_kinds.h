#pragma once

#include "model/cta/audio_format_list.h"
#include "model/cta/colorimetry.h"
#include "model/cta/extension_override.h"
#include "model/cta/freesync.h"
#include "model/cta/gsync.h"
#include "model/cta/hdmi.h"
#include "model/cta/hdmi2.h"
#include "model/cta/hdr10_plus.h"
#include "model/cta/hdr_dynamic_metadata_list.h"
#include "model/cta/hdr_static_metadata.h"
#include "model/cta/microsoft.h"
#include "model/cta/native_video_resolution.h"
#include "model/cta/other_data_block.h"
#include "model/cta/product_info.h"
#include "model/cta/speaker_allocation.h"
#include "model/cta/vendor_specific.h"
#include "model/cta/video_capability.h"
#include "model/cta/video_format_list.h"
#include "model/cta/video_lists.h"
#include "model/cta/ycc420_capability_map.h"

namespace VNT {

// In the order of the "Add Data Block" form.
inline constexpr TKindList CtaDataBlockKindList{
    TOtherKind<CtaOtherDataBlock>(),
    KindOf<CtaAudioFormatListDataBlock>("Audio formats"),
    KindOf<CtaColorimetryDataBlock>("Colorimetry"),
    KindOf<CtaExtensionOverrideDataBlock>("Extension override"),
    KindOf<CtaFreeSyncDataBlock>("FreeSync"),
    KindOf<CtaGSyncDataBlock>("G-SYNC"),
    KindOf<CtaHdmiDataBlock>("HDMI v1"),
    KindOf<CtaHdmi2DataBlock>("HDMI v2"),
    KindOf<CtaHdrStaticMetadataDataBlock>("HDR static metadata"),
    KindOf<CtaHdrDynamicMetadataListDataBlock>("HDR dynamic metadata"),
    KindOf<CtaHdr10PlusDataBlock>("HDR10+"),
    KindOf<CtaMicrosoftDataBlock>("Microsoft"),
    KindOf<CtaNativeVideoResolutionDataBlock>("Native video resolution"),
    KindOf<CtaProductInfoDataBlock>("Product information"),
    KindOf<CtaSpeakerAllocationDataBlock>("Speaker allocation"),
    KindOf<CtaVendorSpecificDataBlock>("Vendor-specific"),
    KindOf<CtaVendorSpecificAudioDataBlock>("Vendor-specific audio"),
    KindOf<CtaVendorSpecificVideoDataBlock>("Vendor-specific video"),
    KindOf<CtaVideoCapabilityDataBlock>("Video capability"),
    KindOf<CtaVideoFormatPreferenceDataBlock>("Video format preference"),
    KindOf<CtaVideoFormatResolutionListDataBlock>("Video format resolutions"),
    KindOf<CtaVideoResolutionListDataBlock>("Video resolutions"),
    KindOf<CtaYcc420VideoResolutionListDataBlock>("4:2:0 video resolutions"),
    // Read, and not offered.
    KindOf<CtaYcc420CapabilityMapDataBlock>("4:2:0 capability map"),
};

}  // namespace VNT
