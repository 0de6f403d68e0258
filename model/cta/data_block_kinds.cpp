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

namespace {

template <class X>
constexpr TKind<AnyCtaDataBlock> Kind(const char* title, int addSize) {
    return VNT::Kind<X, AnyCtaDataBlock>(title, addSize);
}

// In the order of the "Add Data Block" form.
constexpr TKind<AnyCtaDataBlock> Rows[] = {
    Kind<CtaAudioFormatListDataBlock>("Audio formats", 1),
    Kind<CtaColorimetryDataBlock>("Colorimetry", 4),
    Kind<CtaExtensionOverrideDataBlock>("Extension override", 3),
    Kind<CtaFreeSyncDataBlock>("FreeSync", 9),
    Kind<CtaGSyncDataBlock>("G-SYNC", 6),
    Kind<CtaHdmiDataBlock>("HDMI v1", 6),
    Kind<CtaHdmi2DataBlock>("HDMI v2", 8),
    Kind<CtaHdrStaticMetadataDataBlock>("HDR static metadata", 4),
    Kind<CtaHdrDynamicMetadataListDataBlock>("HDR dynamic metadata", 2),
    Kind<CtaHdr10PlusDataBlock>("HDR10+", 6),
    Kind<CtaMicrosoftDataBlock>("Microsoft", 22),
    Kind<CtaNativeVideoResolutionDataBlock>("Native video resolution", 3),
    Kind<CtaProductInfoDataBlock>("Product information", 5),
    Kind<CtaSpeakerAllocationDataBlock>("Speaker allocation", 4),
    Kind<CtaVendorSpecificDataBlock>("Vendor-specific", 4),
    Kind<CtaVendorSpecificAudioDataBlock>("Vendor-specific audio", 5),
    Kind<CtaVendorSpecificVideoDataBlock>("Vendor-specific video", 5),
    Kind<CtaVideoCapabilityDataBlock>("Video capability", 3),
    Kind<CtaVideoFormatPreferenceDataBlock>("Video format preference", 2),
    Kind<CtaVideoFormatResolutionListDataBlock>("Video format resolutions", 2),
    Kind<CtaVideoResolutionListDataBlock>("Video resolutions", 1),
    Kind<CtaYcc420VideoResolutionListDataBlock>("4:2:0 video resolutions", 2),
    // Read, and not offered.
    Kind<CtaYcc420CapabilityMapDataBlock>("4:2:0 capability map", 2),
};

}  // namespace

std::span<const TKind<AnyCtaDataBlock>> CtaDataBlockKinds::All() { return Rows; }

std::unique_ptr<AnyCtaDataBlock> CtaDataBlockKinds::Read(ByteRange range) {
    return ReadSizedKind<CtaOtherDataBlock>(All(), range);
}

}  // namespace VNT
