#include "store/windows/device_set.h"

#include "store/windows/registry_key.h"

namespace VNT {

namespace {

static_assert(sizeof(SP_DEVINFO_DATA) == (sizeof(void*) == 8 ? 32 : 28));

// The set of DEVPKEY_Device_...
constexpr GUID DeviceProperties = {0xA45C254E, 0xDF1C, 0x4EFD, {0x80, 0x20, 0x67, 0xD1, 0x46, 0xA8, 0x50, 0xE0}};

SystemError Result(BOOL succeeded) { return succeeded ? SystemErrors::None : GetLastError(); }

}  // namespace

std::unique_ptr<DeviceSet> WindowsDeviceSet::Open(const GUID& guid, const wchar_t* enumerator, DWORD flags) {
    const HDEVINFO set = SetupDiGetClassDevsW(&guid, enumerator, nullptr, flags);
    if (set == INVALID_HANDLE_VALUE) return nullptr;
    return std::make_unique<WindowsDeviceSet>(set);
}

bool WindowsDeviceSet::EnumDevice(int index) {
    return SetupDiEnumDeviceInfo(set_, static_cast<DWORD>(index), &current_) != FALSE;
}

SystemError WindowsDeviceSet::GetInstanceId(std::span<wchar_t> out, int& length) {
    DWORD needed = 0;
    const BOOL succeeded = SetupDiGetDeviceInstanceIdW(set_, &current_, out.empty() ? nullptr : out.data(),
                                                       static_cast<DWORD>(out.size()), &needed);
    const SystemError result = Result(succeeded);
    length = static_cast<int>(needed);
    return result;
}

SystemError WindowsDeviceSet::GetProperty(DeviceProperty property, std::span<wchar_t> out, int& length) {
    const DEVPROPKEY key = {DeviceProperties, static_cast<DEVPROPID>(property)};
    DEVPROPTYPE type = 0;
    DWORD bytes = 0;
    auto* const buffer = reinterpret_cast<BYTE*>(out.data());
    const BOOL succeeded = SetupDiGetDevicePropertyW(set_, &current_, &key, &type, out.empty() ? nullptr : buffer,
                                                     static_cast<DWORD>(out.size_bytes()), &bytes, 0);
    const SystemError result = Result(succeeded);
    length = static_cast<int>((bytes + sizeof(wchar_t) - 1) / sizeof(wchar_t));
    return result;
}

std::shared_ptr<RegistryKey> WindowsDeviceSet::OpenHardwareKey(KeyAccess access) {
    const HKEY key = SetupDiOpenDevRegKey(set_, &current_, DICS_FLAG_GLOBAL, 0, DIREG_DEV, static_cast<REGSAM>(access));
    if (key == INVALID_HANDLE_VALUE || key == nullptr) {
        const DWORD error = GetLastError();
        lacksKey_ = error == ERROR_KEY_DOES_NOT_EXIST || error == ERROR_FILE_NOT_FOUND;
        return nullptr;
    }
    return std::make_shared<WindowsRegistryKey>(key);
}

}  // namespace VNT
