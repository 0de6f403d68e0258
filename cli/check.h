#pragma once

#include <string>
#include <vector>

#include "model/core/bytes.h"
#include "model/edid/edid.h"

namespace VNT::Cli {

// What is wrong with an EDID that was read from `bytes`, a reason each, in the order that `check` prints them.
std::vector<std::string> CheckEdid(const Edid& edid, const Bytes& bytes);

}  // namespace VNT::Cli
