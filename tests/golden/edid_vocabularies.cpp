#include "model/edid/color_coordinates.h"
#include "model/edid/cta_extension_block.h"
#include "model/edid/edid.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/properties.h"
#include "model/edid/range_limits_timing.h"
#include "model/timing/cvt_resolution.h"
#include "model/timing/detailed_resolution.h"
#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"
#include "model/timing/standard_resolution.h"
#include "model/timing/video_format.h"
#include "model/timing/video_format_resolution.h"
#include "tests/golden/vocabulary.h"

namespace VNT::Testing {

std::string PrintEdidVocabularies() {
    VocabularyPrinter print;
    print("CtaVideoAspectEnum::Texts", CtaVideoAspectEnum::Texts);
    print("CtaVideoFormatAspectEnum::Texts", CtaVideoFormatAspectEnum::Texts);
    print("CtaVideoFormatResolutionFlagEnum::BaseTexts", CtaVideoFormatResolutionFlagEnum::BaseTexts);
    print("CtaVideoFormatResolutionFlagEnum::FactorTexts", CtaVideoFormatResolutionFlagEnum::FactorTexts);
    print("CtaVideoFormatResolutionFlagEnum::RateTexts", CtaVideoFormatResolutionFlagEnum::RateTexts);
    print("DetailedResolutionFrequencyTypeEnum::Texts", DetailedResolutionFrequencyTypeEnum::Texts);
    print("DetailedResolutionParameterTypeEnum::Texts", DetailedResolutionParameterTypeEnum::Texts);
    print("DetailedResolutionTimingEnum::Texts", DetailedResolutionTimingEnum::Texts);
    print("DisplayIdDetailedResolutionAspectRatioEnum::Texts", DisplayIdDetailedResolutionAspectRatioEnum::Texts);
    print("DisplayIdDetailedResolutionStereoEnum::Texts", DisplayIdDetailedResolutionStereoEnum::Texts);
    print("EdidAnalogFlagEnum::Texts", EdidAnalogFlagEnum::Texts);
    print("EdidAnalogSignalLevelEnum::Texts", EdidAnalogSignalLevelEnum::Texts);
    print("EdidColorCoordinates::Names", EdidColorCoordinates::Names);
    print("EdidColorTypeEnum::Texts", EdidColorTypeEnum::Texts);
    print("EdidCtaExtensionBlockFlagEnum::ColorFormatTexts", EdidCtaExtensionBlockFlagEnum::ColorFormatTexts);
    print("EdidCtaExtensionBlockFlagEnum::Texts", EdidCtaExtensionBlockFlagEnum::Texts);
    print("EdidCvtResolutionAspectRatioEnum::Texts", EdidCvtResolutionAspectRatioEnum::Texts);
    print("EdidCvtResolutionRefreshRateEnum::PreferredTexts", EdidCvtResolutionRefreshRateEnum::PreferredTexts);
    print("EdidCvtResolutionRefreshRateEnum::Texts", EdidCvtResolutionRefreshRateEnum::Texts);
    print("EdidDetailedResolutionStereoEnum::Texts", EdidDetailedResolutionStereoEnum::Texts);
    print("EdidDetailedResolutionSyncOnEnum::Texts", EdidDetailedResolutionSyncOnEnum::Texts);
    print("EdidDetailedResolutionSyncTypeEnum::Texts", EdidDetailedResolutionSyncTypeEnum::Texts);
    print("EdidDigitalColorDepthEnum::Texts", EdidDigitalColorDepthEnum::Texts);
    print("EdidDigitalColorFormatFlagEnum::Texts", EdidDigitalColorFormatFlagEnum::Texts);
    print("EdidDigitalFlagEnum::Texts", EdidDigitalFlagEnum::Texts);
    print("EdidDigitalInterfaceEnum::Texts", EdidDigitalInterfaceEnum::Texts);
    print("EdidEstablished3ResolutionFlagEnum::Texts", EdidEstablished3ResolutionFlagEnum::Texts);
    print("EdidEstablishedResolutionFlagEnum::Texts", EdidEstablishedResolutionFlagEnum::Texts);
    print("EdidFlagEnum::Texts", EdidFlagEnum::Texts);
    print("EdidFlagEnum::Texts14", EdidFlagEnum::Texts14);
    print("EdidPowerFlagEnum::Texts", EdidPowerFlagEnum::Texts);
    print("EdidRangeLimitsCvtTimingAspectRatioEnum::Texts", EdidRangeLimitsCvtTimingAspectRatioEnum::Texts);
    print("EdidRangeLimitsCvtTimingBlankingFlagEnum::Texts", EdidRangeLimitsCvtTimingBlankingFlagEnum::Texts);
    print("EdidRangeLimitsCvtTimingScalingFlagEnum::Texts", EdidRangeLimitsCvtTimingScalingFlagEnum::Texts);
    print("EdidRangeLimitsTimingTypeId::Texts", EdidRangeLimitsTimingTypeId::Texts);
    print("EdidScreenFieldsPresentEnum::Texts", EdidScreenFieldsPresentEnum::Texts);
    print("EdidSignalTypeTexts", EdidSignalTypeTexts);
    print("EdidStandardResolutionAspectRatioEnum::Texts", EdidStandardResolutionAspectRatioEnum::Texts);
    print("HdmiVideoAspectEnum::Texts", HdmiVideoAspectEnum::Texts);
    return print.text;
}

}  // namespace VNT::Testing
