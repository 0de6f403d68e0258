#include "store/windows/registry_key.h"

#include <climits>

namespace VNT {

namespace {

using SystemErrors::None;

constexpr DWORD ValueNameLength = 32767;  // characters
constexpr DWORD KeyNameLength = 260;

SystemError Error(LSTATUS status) { return static_cast<SystemError>(status); }

SystemError Opened(LSTATUS status, HKEY key, std::shared_ptr<RegistryKey>& out) {
    if (status != ERROR_SUCCESS) return Error(status);
    if (key == nullptr) return ERROR_INVALID_HANDLE;
    out = std::make_shared<WindowsRegistryKey>(key);
    return None;
}

}  // namespace

SystemError WindowsRegistryKey::OpenKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(key_, name.c_str(), 0, static_cast<REGSAM>(access), &key);
    return Opened(status, key, out);
}

SystemError WindowsRegistryKey::CreateKey(const std::wstring& name, KeyAccess access,
                                          std::shared_ptr<RegistryKey>& out) {
    HKEY key = nullptr;
    const LSTATUS status =
        RegCreateKeyExW(key_, name.c_str(), 0, nullptr, 0, static_cast<REGSAM>(access), nullptr, &key, nullptr);
    return Opened(status, key, out);
}

SystemError WindowsRegistryKey::QueryValue(const std::wstring& name, ByteRange out, int& size) {
    DWORD bytes = static_cast<DWORD>(out.size);
    const LSTATUS status = RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, out.data, &bytes);
    if (bytes > INT_MAX) return ERROR_MORE_DATA;
    size = static_cast<int>(bytes);
    return Error(status);
}

SystemError WindowsRegistryKey::EnumValue(int index, std::wstring& name) {
    DWORD length = ValueNameLength;
    name.resize(length);
    const LSTATUS status =
        RegEnumValueW(key_, static_cast<DWORD>(index), name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    name.resize(status == ERROR_SUCCESS ? length : 0);
    return Error(status);
}

SystemError WindowsRegistryKey::EnumKey(int index, std::wstring& name) {
    DWORD length = KeyNameLength;
    name.resize(length);
    const LSTATUS status =
        RegEnumKeyExW(key_, static_cast<DWORD>(index), name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    name.resize(status == ERROR_SUCCESS ? length : 0);
    return Error(status);
}

SystemError WindowsRegistryKey::SetValue(const std::wstring& name, ByteRange bytes) {
    return Error(RegSetValueExW(key_, name.c_str(), 0, REG_BINARY, bytes.data, static_cast<DWORD>(bytes.size)));
}

SystemError WindowsRegistryKey::DeleteValue(const std::wstring& name) {
    return Error(RegDeleteValueW(key_, name.c_str()));
}

SystemError WindowsRegistryKey::DeleteKey(const std::wstring& name) { return Error(RegDeleteKeyW(key_, name.c_str())); }

}  // namespace VNT
