#include "model/core/layout_made.h"
#include "model/edid/descriptor_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(EdidDescriptorKindList), 0, 4>;

}  // namespace VNT
