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
#include "tests/support/sized_suite.h"

namespace VNT::Testing {
namespace {

struct CtaDataBlockFamily {
    using Holder = CtaDataBlock;
    using Kinds = CtaDataBlockKinds;
    // clang-format off
    using Items = ItemList<
        CtaAudioFormatListDataBlock,
        CtaColorimetryDataBlock,
        CtaExtensionOverrideDataBlock,
        CtaFreeSyncDataBlock,
        CtaGSyncDataBlock,
        CtaHdmiDataBlock,
        CtaHdmi2DataBlock,
        CtaHdr10PlusDataBlock,
        CtaHdrDynamicMetadataListDataBlock,
        CtaHdrStaticMetadataDataBlock,
        CtaMicrosoftDataBlock,
        CtaNativeVideoResolutionDataBlock,
        CtaProductInfoDataBlock,
        CtaSpeakerAllocationDataBlock,
        CtaVendorSpecificAudioDataBlock,
        CtaVendorSpecificDataBlock,
        CtaVendorSpecificVideoDataBlock,
        CtaVideoCapabilityDataBlock,
        CtaVideoFormatPreferenceDataBlock,
        CtaVideoFormatResolutionListDataBlock,
        CtaVideoResolutionListDataBlock,
        CtaYcc420CapabilityMapDataBlock,
        CtaYcc420VideoResolutionListDataBlock,
        CtaOtherDataBlock>;
    // clang-format on

    static bool IsBlankWhenNew(int type) { return type == CtaDataBlockTypeId::FreeSync; }
    static bool NeedsAllItsBytes(int type) { return type == CtaDataBlockTypeId::Microsoft; }

    // Of any length that the type can have.
    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedTag = 5;
        const bool isOther = type == CtaDataBlockTypeId::Other;
        const int prefix = AnyCtaDataBlock::GetPrefixSize(type);
        const int size = prefix + fill() % (AnyCtaDataBlock::MaxSize - prefix + 1);
        Bytes bytes = Filled(size, fill);
        const CtaDataBlockHeader header = CtaDataBlockHeader::Of(isOther ? unclaimedTag : type);
        ByteRange range = bytes;
        range.WriteLsb(5, static_cast<std::uint32_t>(size - 1));
        range.WriteLsb(3, static_cast<std::uint32_t>(header.tag));
        if (header.extendedTag != Undefined) range.WriteLsb(8, static_cast<std::uint32_t>(header.extendedTag));
        if (header.oui != Undefined) range.WriteLsb(24, static_cast<std::uint32_t>(header.oui));
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(CtaDataBlock, FamilySuite, CtaDataBlockFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(CtaDataBlock, SizedSuite, CtaDataBlockFamily);

struct CtaHdrDynamicMetadataFamily {
    using Holder = CtaHdrDynamicMetadata;
    using Kinds = CtaHdrDynamicMetadataKinds;
    using Items = ItemList<CtaType1HdrDynamicMetadata, CtaType2HdrDynamicMetadata, CtaType3HdrDynamicMetadata,
                           CtaType4HdrDynamicMetadata, CtaType0x100HdrDynamicMetadata, CtaOtherHdrDynamicMetadata>;

    // Of any length that a data block has room for.
    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedType = 5, most = 30, prefix = 3;
        const int size = prefix + fill() % (most - prefix + 1);
        Bytes bytes = Filled(size, fill);
        ByteRange range = bytes;
        range.WriteLsb(8, static_cast<std::uint32_t>(size - 1));
        range.WriteLsb(16,
                       static_cast<std::uint32_t>(type == CtaHdrDynamicMetadataTypeId::Other ? unclaimedType : type));
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(CtaHdrDynamicMetadata, FamilySuite, CtaHdrDynamicMetadataFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(CtaHdrDynamicMetadata, SizedSuite, CtaHdrDynamicMetadataFamily);

}  // namespace
}  // namespace VNT::Testing
