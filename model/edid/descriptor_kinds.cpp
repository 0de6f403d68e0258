#include "model/edid/color_management_descriptor.h"
#include "model/edid/color_point_descriptor.h"
#include "model/edid/descriptor.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/range_limits_descriptor.h"
#include "model/edid/resolution_list_descriptors.h"
#include "model/edid/text_descriptor.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT {

namespace {

constexpr int Slot = AnyEdidDescriptor::FrameSize;

constexpr TKind<AnyEdidDescriptor> Rows[] = {
    Kind<EdidDetailedResolution, AnyEdidDescriptor>("Detailed resolution", Slot),
    Kind<EdidStandardResolutionListDescriptor, AnyEdidDescriptor>("Standard resolutions", Slot),
    Kind<EdidCvtResolutionListDescriptor, AnyEdidDescriptor>("CVT resolutions", Slot),
    Kind<EdidEstablished3ResolutionFlagsDescriptor, AnyEdidDescriptor>("Established III resolutions", Slot),
    Kind<EdidRangeLimitsDescriptor, AnyEdidDescriptor>("Range limits", Slot),
    Kind<EdidNameDescriptor, AnyEdidDescriptor>("Name", Slot),
    Kind<EdidSerialNumberDescriptor, AnyEdidDescriptor>("Serial number", Slot),
    Kind<EdidTextDescriptor, AnyEdidDescriptor>("Text", Slot),
    Kind<EdidColorPointDescriptor, AnyEdidDescriptor>("Color point", Slot, false),
    Kind<EdidColorManagementDescriptor, AnyEdidDescriptor>("Color management", Slot, false),
    Kind<EdidEmptyDescriptor, AnyEdidDescriptor>("Empty", Slot),
};

}  // namespace

std::span<const TKind<AnyEdidDescriptor>> EdidDescriptorKinds::All() { return Rows; }

}  // namespace VNT
