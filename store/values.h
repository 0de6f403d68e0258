#pragma once

#include <string>
#include <vector>

#include "store/platform.h"

namespace VNT {

// The value's bytes, by the system's pattern of two calls. `out` is set only on success.
SystemError ReadValue(RegistryKey& key, const std::wstring& name, Bytes& out);
// The names of the values, as many as a key can have at most: an enumeration may never end. NoMoreItems if that was
// all of them.
SystemError ListValues(RegistryKey& key, std::vector<std::wstring>& out);

}  // namespace VNT
