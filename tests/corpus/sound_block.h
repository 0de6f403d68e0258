// What a sound base block holds, told from its bytes alone and apart from the model.
#pragma once

#include <set>
#include <string>

#include "model/core/bytes.h"

namespace VNT::Testing {

// The paths, as `check` writes them, of what is out of limits in the 128 bytes of a base block.
std::set<std::string> UnsoundPaths(const Bytes& block);

}  // namespace VNT::Testing
