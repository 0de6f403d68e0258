#include "model/core/layout_made.h"
#include "model/edid/extension_block_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(EdidExtensionBlockKindList), 0, 3>;

}  // namespace VNT
