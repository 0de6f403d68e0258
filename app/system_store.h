#pragma once

#include <memory>

#include "store/platform.h"

namespace VNT::App {

// The displays of this machine; null where the program knows no way to them.
std::unique_ptr<Platform> OpenSystemStore();

}  // namespace VNT::App
