#pragma once

#include <iosfwd>

#include "model/edid/edid.h"

namespace VNT::Cli {

// What `show` prints of an EDID.
void ShowEdid(const Edid& edid, std::ostream& out);

}  // namespace VNT::Cli
