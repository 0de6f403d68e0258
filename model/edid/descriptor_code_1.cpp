#include "model/core/layout_made.h"
#include "model/edid/descriptor_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(EdidDescriptorKindList), 1, 4>;

}  // namespace VNT
