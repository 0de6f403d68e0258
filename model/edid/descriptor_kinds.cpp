#include "model/edid/descriptor_kinds.h"

namespace VNT {

namespace {

constexpr auto Rows = EdidDescriptorKindList.MakeTable<AnyEdidDescriptor>();

}  // namespace

std::span<const TKind<AnyEdidDescriptor>> EdidDescriptorKinds::All() { return Rows; }

std::unique_ptr<AnyEdidDescriptor> EdidDescriptorKinds::Read(ByteRange range) {
    return ReadKind<decltype(EdidDescriptorKindList)::Other>(All(), range);
}

}  // namespace VNT
