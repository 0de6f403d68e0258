#include <gtest/gtest.h>

#include "model/edid/color_management_descriptor.h"
#include "model/edid/color_point_descriptor.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/range_limits_descriptor.h"
#include "model/edid/resolution_list_descriptors.h"
#include "model/edid/text_descriptor.h"
#include "model/timing/edid_detailed_resolution.h"
#include "tests/support/family_suite.h"

namespace VNT::Testing {
namespace {

struct EdidDescriptorFamily {
    using Holder = EdidDescriptor;
    using Kinds = EdidDescriptorKinds;
    using Items =
        ItemList<EdidDetailedResolution, EdidStandardResolutionListDescriptor, EdidCvtResolutionListDescriptor,
                 EdidEstablished3ResolutionFlagsDescriptor, EdidRangeLimitsDescriptor, EdidNameDescriptor,
                 EdidSerialNumberDescriptor, EdidTextDescriptor, EdidColorPointDescriptor,
                 EdidColorManagementDescriptor, EdidEmptyDescriptor, EdidOtherDescriptor>;

    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedTag = 0x42;
        Bytes bytes = Filled(AnyEdidDescriptor::FrameSize, fill);
        if (type == EdidDescriptorTypeId::DetailedResolution) {
            if (bytes.At(0) == 0) bytes.At(0) = 1;
        } else {
            bytes.At(0) = bytes.At(1) = 0;
            bytes.At(3) = static_cast<std::uint8_t>(type == EdidDescriptorTypeId::Other ? unclaimedTag : type);
        }
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(EdidDescriptor, FamilySuite, EdidDescriptorFamily);

struct EdidRangeLimitsTimingFamily {
    using Holder = EdidRangeLimitsTiming;
    using Kinds = EdidRangeLimitsTimingKinds;
    using Items = ItemList<EdidRangeLimitsDefaultGtfTiming, EdidRangeLimitsOnlyTiming,
                           EdidRangeLimitsSecondaryGtfTiming, EdidRangeLimitsCvtTiming, EdidRangeLimitsOtherTiming>;

    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedTag = 3;
        Bytes bytes = Filled(AnyEdidRangeLimitsTiming::FrameSize, fill);
        bytes.At(0) = static_cast<std::uint8_t>(type == EdidRangeLimitsTimingTypeId::Other ? unclaimedTag : type);
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(EdidRangeLimitsTiming, FamilySuite, EdidRangeLimitsTimingFamily);

}  // namespace
}  // namespace VNT::Testing
