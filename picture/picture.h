// An EDID as a picture: plain SVG without scripts and outside files, light or dark as its viewer prefers.
#pragma once

#include <optional>
#include <string>

#include "model/core/bytes.h"

namespace VNT::Picture {

// Of the bytes of a file; nothing where they are no EDID.
std::optional<std::string> PictureOf(const Bytes& bytes);

}  // namespace VNT::Picture
