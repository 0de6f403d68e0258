#include "model/cta/audio_format.h"
#include "model/cta/audio_formats.h"
#include "model/cta/colorimetry.h"
#include "model/cta/freesync.h"
#include "model/cta/hdmi.h"
#include "model/cta/hdmi2.h"
#include "model/cta/hdmi_stereo.h"
#include "model/cta/hdr_dynamic_metadata.h"
#include "model/cta/hdr_static_metadata.h"
#include "model/cta/microsoft.h"
#include "model/cta/speaker_allocation.h"
#include "model/cta/video_capability.h"
#include "model/cta/video_format_list.h"
#include "tests/golden/vocabulary.h"

namespace VNT::Testing {

std::string PrintCtaVocabularies() {
    VocabularyPrinter print;
    print("CtaAudioFormatBitDepthFlagEnum::Texts", CtaAudioFormatBitDepthFlagEnum::Texts);
    print("CtaAudioFormatChannelPresetEnum::Texts", CtaAudioFormatChannelPresetEnum::Texts);
    print("CtaAudioFormatFrameLengthFlagEnum::Texts", CtaAudioFormatFrameLengthFlagEnum::Texts);
    print("CtaAudioFormatSampleRateFlagEnum::Texts", CtaAudioFormatSampleRateFlagEnum::Texts);
    print("CtaAudioFormatTypeId::Texts", CtaAudioFormatTypeId::Texts);
    print("CtaColorimetryDataBlockFlagEnum::ColorTexts", CtaColorimetryDataBlockFlagEnum::ColorTexts);
    print("CtaColorimetryDataBlockFlagEnum::MetadataTexts", CtaColorimetryDataBlockFlagEnum::MetadataTexts);
    print("CtaFreeSyncDataBlockFlagEnum::Texts", CtaFreeSyncDataBlockFlagEnum::Texts);
    print("CtaHdmi2DataBlockDscMaxSlicesEnum::Texts", CtaHdmi2DataBlockDscMaxSlicesEnum::Texts);
    print("CtaHdmi2DataBlockFlag2Enum::Texts", CtaHdmi2DataBlockFlag2Enum::Texts);
    print("CtaHdmi2DataBlockFlag3Enum::DepthTexts", CtaHdmi2DataBlockFlag3Enum::DepthTexts);
    print("CtaHdmi2DataBlockFlag3Enum::DscTexts", CtaHdmi2DataBlockFlag3Enum::DscTexts);
    print("CtaHdmi2DataBlockFlag3Enum::QmsTexts", CtaHdmi2DataBlockFlag3Enum::QmsTexts);
    print("CtaHdmi2DataBlockFlagEnum::DepthTexts", CtaHdmi2DataBlockFlagEnum::DepthTexts);
    print("CtaHdmi2DataBlockFlagEnum::StereoTexts", CtaHdmi2DataBlockFlagEnum::StereoTexts);
    print("CtaHdmi2DataBlockFlagEnum::Texts", CtaHdmi2DataBlockFlagEnum::Texts);
    print("CtaHdmi2DataBlockMaxFrlRateEnum::DscTexts", CtaHdmi2DataBlockMaxFrlRateEnum::DscTexts);
    print("CtaHdmi2DataBlockMaxFrlRateEnum::Texts", CtaHdmi2DataBlockMaxFrlRateEnum::Texts);
    print("CtaHdmiDataBlockFlag2Enum::ContentTexts", CtaHdmiDataBlockFlag2Enum::ContentTexts);
    print("CtaHdmiDataBlockFlagEnum::Texts", CtaHdmiDataBlockFlagEnum::Texts);
    print("CtaHdmiDataBlockImageSizeEnum::Texts", CtaHdmiDataBlockImageSizeEnum::Texts);
    print("CtaHdrStaticMetadataDataBlockFlagEnum::MetadataTexts", CtaHdrStaticMetadataDataBlockFlagEnum::MetadataTexts);
    print("CtaHdrStaticMetadataDataBlockFlagEnum::TransferTexts", CtaHdrStaticMetadataDataBlockFlagEnum::TransferTexts);
    print("CtaMicrosoftDataBlockFlagEnum::Texts", CtaMicrosoftDataBlockFlagEnum::Texts);
    print("CtaMicrosoftDataBlockPrimaryUseCaseEnum::Texts", CtaMicrosoftDataBlockPrimaryUseCaseEnum::Texts);
    print("CtaMpegH3dAudioFormatLevelEnum::Texts", CtaMpegH3dAudioFormatLevelEnum::Texts);
    print("CtaMpegH3dAudioFormatProfileFlagEnum::Texts", CtaMpegH3dAudioFormatProfileFlagEnum::Texts);
    print("CtaSpeakerAllocationDataBlockPresetEnum::Texts", CtaSpeakerAllocationDataBlockPresetEnum::Texts);
    print("CtaSpeakerAllocationDataBlockSpeakerFlagEnum::Texts", CtaSpeakerAllocationDataBlockSpeakerFlagEnum::Texts);
    print("CtaType2HdrDynamicMetadataFlagEnum::Texts", CtaType2HdrDynamicMetadataFlagEnum::Texts);
    print("CtaVideoCapabilityDataBlockOverscanEnum::Texts", CtaVideoCapabilityDataBlockOverscanEnum::Texts);
    print("CtaVideoCapabilityDataBlockPtOverscanEnum::Texts", CtaVideoCapabilityDataBlockPtOverscanEnum::Texts);
    print("CtaVideoCapabilityDataBlockRangeFlagEnum::Texts", CtaVideoCapabilityDataBlockRangeFlagEnum::Texts);
    print("CtaVideoFormatResolutionListDataBlockFlagEnum::Texts", CtaVideoFormatResolutionListDataBlockFlagEnum::Texts);
    print("HdmiStereoFormatDetailEnum::Texts", HdmiStereoFormatDetailEnum::Texts);
    print("HdmiStereoFormatStructureEnum::Texts", HdmiStereoFormatStructureEnum::Texts);
    print("HdmiStereoFormatsFieldsPresentEnum::Texts", HdmiStereoFormatsFieldsPresentEnum::Texts);
    print("HdmiStereoFormatsStructureFlagEnum::Texts", HdmiStereoFormatsStructureFlagEnum::Texts);
    print("HdmiStereoTexts", HdmiStereoTexts);
    return print.text;
}

}  // namespace VNT::Testing
