#pragma once

#include "model/cta/data_block.h"
#include "tests/support/check_block.h"

namespace VNT::Testing {

template <class X>
X CheckBlock(const char* hex, const std::string& text) {
    return CheckHeld<CtaDataBlock, X>(hex, text);
}

}  // namespace VNT::Testing
