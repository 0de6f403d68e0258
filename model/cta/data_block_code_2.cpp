#include "model/core/layout_made.h"
#include "model/cta/data_block_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(CtaDataBlockKindList), 1, 6>;

}  // namespace VNT
