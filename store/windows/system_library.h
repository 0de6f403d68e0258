#pragma once

#include "store/driver_library.h"

namespace VNT {

// Loads a library of the system's folder and no other; null if there is none.
std::unique_ptr<DriverLibrary> LoadSystemLibrary(const wchar_t* name);

// From here on the process finds libraries that are asked for by bare name in the system's folder only, whoever asks:
// it may run with the rights of an administrator, and anybody can put files into the folder it stands in or is started
// from.
void ConfineLibrarySearch();

}  // namespace VNT
