#include "model/edid/descriptor.h"
#include "model/edid/text_descriptor.h"

namespace VNT {

namespace {

constexpr int Slot = AnyEdidDescriptor::FrameSize;

constexpr TKind<AnyEdidDescriptor> Rows[] = {
    Kind<EdidEmptyDescriptor, AnyEdidDescriptor>("Empty", Slot),
    Kind<EdidNameDescriptor, AnyEdidDescriptor>("Name", Slot),
    Kind<EdidSerialNumberDescriptor, AnyEdidDescriptor>("Serial number", Slot),
    Kind<EdidTextDescriptor, AnyEdidDescriptor>("Text", Slot),
};

}  // namespace

std::span<const TKind<AnyEdidDescriptor>> EdidDescriptorKinds::All() { return Rows; }

}  // namespace VNT
