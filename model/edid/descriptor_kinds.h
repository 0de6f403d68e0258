#pragma once

#include "model/edid/color_management_descriptor.h"
#include "model/edid/color_point_descriptor.h"
#include "model/edid/descriptor.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/range_limits_descriptor.h"
#include "model/edid/resolution_list_descriptors.h"
#include "model/edid/text_descriptor.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT {

// In the order of the "Add Descriptor" form.
inline constexpr TKindList EdidDescriptorKindList{
    TOtherKind<EdidOtherDescriptor>(),
    KindOf<EdidDetailedResolution>("Detailed resolution"),
    KindOf<EdidStandardResolutionListDescriptor>("Standard resolutions"),
    KindOf<EdidCvtResolutionListDescriptor>("CVT resolutions"),
    KindOf<EdidEstablished3ResolutionFlagsDescriptor>("Established III resolutions"),
    KindOf<EdidRangeLimitsDescriptor>("Range limits"),
    KindOf<EdidNameDescriptor>("Name"),
    KindOf<EdidSerialNumberDescriptor>("Serial number"),
    KindOf<EdidTextDescriptor>("Text"),
    KindOf<EdidColorPointDescriptor>("Color point", false),
    KindOf<EdidColorManagementDescriptor>("Color management", false),
    KindOf<EdidEmptyDescriptor>("Empty"),
};

}  // namespace VNT
