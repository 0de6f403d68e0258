#include "model/edid/descriptor.h"
#include "model/edid/text_descriptor.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT {

namespace {

constexpr int Slot = AnyEdidDescriptor::FrameSize;

constexpr TKind<AnyEdidDescriptor> Rows[] = {
    Kind<EdidDetailedResolution, AnyEdidDescriptor>("Detailed resolution", Slot),
    Kind<EdidEmptyDescriptor, AnyEdidDescriptor>("Empty", Slot),
    Kind<EdidNameDescriptor, AnyEdidDescriptor>("Name", Slot),
    Kind<EdidSerialNumberDescriptor, AnyEdidDescriptor>("Serial number", Slot),
    Kind<EdidTextDescriptor, AnyEdidDescriptor>("Text", Slot),
};

}  // namespace

std::span<const TKind<AnyEdidDescriptor>> EdidDescriptorKinds::All() { return Rows; }

}  // namespace VNT
