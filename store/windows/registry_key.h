#pragma once

#include <windows.h>

#include "store/platform.h"

namespace VNT {

// Owns a key of the registry.
class WindowsRegistryKey : public RegistryKey {
public:
    explicit WindowsRegistryKey(HKEY key) : key_(key) {}
    ~WindowsRegistryKey() override { RegCloseKey(key_); }
    WindowsRegistryKey(const WindowsRegistryKey&) = delete;
    WindowsRegistryKey& operator=(const WindowsRegistryKey&) = delete;

    SystemError OpenKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override;
    SystemError CreateKey(const std::wstring& name, KeyAccess access, std::shared_ptr<RegistryKey>& out) override;
    SystemError QueryValue(const std::wstring& name, ByteRange out, int& size) override;
    SystemError EnumValue(int index, std::wstring& name) override;
    SystemError EnumKey(int index, std::wstring& name) override;
    SystemError SetValue(const std::wstring& name, ByteRange bytes) override;
    SystemError DeleteValue(const std::wstring& name) override;
    SystemError DeleteKey(const std::wstring& name) override;

private:
    HKEY key_;
};

}  // namespace VNT
