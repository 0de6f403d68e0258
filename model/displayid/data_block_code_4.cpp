#include "model/core/layout_made.h"
#include "model/displayid/data_block_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(DisplayIdDataBlockKindList), 3, 6>;

}  // namespace VNT
