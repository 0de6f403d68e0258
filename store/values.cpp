#include "store/values.h"

#include "store/registry_layout.h"

namespace VNT {

using SystemErrors::None;

SystemError ReadValue(RegistryKey& key, const std::wstring& name, Bytes& out) {
    int size = 0;
    const SystemError asked = key.QueryValue(name, ByteRange(), size);
    if (asked != None) return asked;
    if (size < 0) return SystemErrors::MoreData;
    Bytes bytes(size, 0);
    const SystemError read = key.QueryValue(name, bytes, size);
    if (read == None) out = bytes.Slice(0, size);
    return read;
}

SystemError ListValues(RegistryKey& key, std::vector<std::wstring>& out) {
    out.clear();
    SystemError error = None;
    for (int index = 0; index < RegistryLayout::MostNames; ++index) {
        std::wstring name;
        error = key.EnumValue(index, name);
        if (error != None) break;
        out.push_back(std::move(name));
    }
    return error;
}

}  // namespace VNT
