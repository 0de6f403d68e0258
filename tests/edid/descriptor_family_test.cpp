#include <gtest/gtest.h>

#include "model/edid/descriptor_kinds.h"
#include "tests/support/family_suite.h"

namespace VNT::Testing {
namespace {

struct EdidDescriptorFamily {
    using Any = AnyEdidDescriptor;
    using Holder = EdidDescriptor;
    using Kinds = EdidDescriptorKinds;
    static constexpr const auto& List = EdidDescriptorKindList;

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
    using Any = AnyEdidRangeLimitsTiming;
    using Holder = EdidRangeLimitsTiming;
    using Kinds = EdidRangeLimitsTimingKinds;
    static constexpr const auto& List = EdidRangeLimitsTimingKindList;

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
