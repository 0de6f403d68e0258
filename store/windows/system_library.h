#pragma once

#include "store/driver_library.h"

namespace VNT {

// Loads a library of the system's folder and no other; null if there is none.
std::unique_ptr<DriverLibrary> LoadSystemLibrary(const wchar_t* name);

}  // namespace VNT
