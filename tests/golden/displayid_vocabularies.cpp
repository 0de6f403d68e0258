#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_interface.h"
#include "model/displayid/display_parameters.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/section.h"
#include "model/displayid/tiled_display_topology.h"
#include "tests/golden/vocabulary.h"

namespace VNT::Testing {

std::string PrintDisplayIdVocabularies() {
    VocabularyPrinter print;
    print("DisplayId1DisplayParametersDataBlockFlagEnum::Texts", DisplayId1DisplayParametersDataBlockFlagEnum::Texts);
    print("DisplayId1ProductTypeEnum::Texts", DisplayId1ProductTypeEnum::Texts);
    print("DisplayId1RangeLimitsDataBlockFlagEnum::Texts", DisplayId1RangeLimitsDataBlockFlagEnum::Texts);
    print("DisplayId1TiledDisplayTopologyDataBlockEnclosuresEnum::Texts",
          DisplayId1TiledDisplayTopologyDataBlockEnclosuresEnum::Texts);
    print("DisplayId1TiledDisplayTopologyDataBlockMultipleTileBehaviorEnum::Texts",
          DisplayId1TiledDisplayTopologyDataBlockMultipleTileBehaviorEnum::Texts);
    print("DisplayId1TiledDisplayTopologyDataBlockSingleTileBehaviorEnum::Texts",
          DisplayId1TiledDisplayTopologyDataBlockSingleTileBehaviorEnum::Texts);
    print("DisplayId2DetailedResolutionListDataBlockFlagEnum::Texts",
          DisplayId2DetailedResolutionListDataBlockFlagEnum::Texts);
    print("DisplayId2DisplayInterfaceColorSpaceEnum::Texts", DisplayId2DisplayInterfaceColorSpaceEnum::Texts);
    print("DisplayId2DisplayInterfaceDataBlockAudioFlagEnum::Texts",
          DisplayId2DisplayInterfaceDataBlockAudioFlagEnum::Texts);
    print("DisplayId2DisplayInterfaceDataBlockColorDepthFlagEnum::Texts",
          DisplayId2DisplayInterfaceDataBlockColorDepthFlagEnum::Texts);
    print("DisplayId2DisplayInterfaceDataBlockColorimetryFlagEnum::Texts",
          DisplayId2DisplayInterfaceDataBlockColorimetryFlagEnum::Texts);
    print("DisplayId2DisplayInterfaceEotfEnum::Texts", DisplayId2DisplayInterfaceEotfEnum::Texts);
    print("DisplayId2ProductTypeEnum::Texts", DisplayId2ProductTypeEnum::Texts);
    print("DisplayId2RangeLimitsDataBlockFlagEnum::Texts", DisplayId2RangeLimitsDataBlockFlagEnum::Texts);
    return print.text;
}

}  // namespace VNT::Testing
