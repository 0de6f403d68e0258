#include "tests/store_windows/prefix.h"

#include "model/core/text_string.h"

namespace VNT {

namespace {

constexpr wchar_t MonitorClass[] = L"{4D36E96E-E325-11CE-BFC1-08002BE10318}";
constexpr wchar_t MonitorInterface[] = L"{E6F07B5F-EE97-4A90-B076-33F57BF4EAA7}";
constexpr wchar_t Properties[] = L"\\Properties\\{a45c254e-df1c-4efd-8020-67d146a850e0}\\";
constexpr DWORD PropertyText = 0xFFFF0012;  // how Wine marks a property that is a text

class Key {
public:
    explicit Key(const std::wstring& path, DWORD options = REG_OPTION_NON_VOLATILE) {
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, options, KEY_READ | KEY_WRITE, nullptr, &key_,
                        nullptr);
    }
    ~Key() { RegCloseKey(key_); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    void Put(const wchar_t* name, DWORD type, const void* data, std::size_t size) const {
        ASSERT_EQ(RegSetValueExW(key_, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)), 0);
    }
    void PutText(const wchar_t* name, const std::wstring& text, DWORD type = REG_SZ) const {
        Put(name, type, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    }
    void PutBytes(const wchar_t* name, const Bytes& bytes) const {
        Put(name, REG_BINARY, bytes.Range().data, static_cast<std::size_t>(bytes.Size()));
    }
    HKEY Get() const { return key_; }

private:
    HKEY key_ = nullptr;
};

std::wstring InterfacePath(const PrefixDisplay& display) {
    return std::wstring(L"System\\CurrentControlSet\\Control\\DeviceClasses\\") + MonitorInterface + L"\\##?#DISPLAY#" +
           display.hardware + L"#" + display.instance + L"#" + MonitorInterface;
}

std::string Line(const std::wstring& path, const std::wstring& name, DWORD type, const std::vector<BYTE>& data) {
    std::string line = String(path + L" " + name).ToUtf8();
    line.append(" ").append(std::to_string(type));
    for (const BYTE byte : data) line.append(" ").append(std::to_string(byte));
    return line + "\n";
}

}  // namespace

bool IsWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

void PrefixTest::SetUp() {
    if (!IsWine()) GTEST_SKIP() << "only for a Wine prefix";
}

void PrefixTest::TearDown() {
    for (const PrefixDisplay& display : displays_) {
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"System\\CurrentControlSet\\Enum\\DISPLAY\\" + display.hardware).c_str());
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, InterfacePath(display).c_str());
    }
}

void PrefixTest::Add(const PrefixDisplay& display) {
    displays_.push_back(display);
    const Key device(display.Path());
    device.PutText(L"Class", L"Monitor");
    device.PutText(L"ClassGUID", MonitorClass);
    device.PutText(L"DeviceDesc", display.description);
    device.PutText(L"Driver", display.driverKey);
    device.PutText(L"HardwareID", L"MONITOR\\" + display.hardware + std::wstring(1, L'\0'), REG_MULTI_SZ);
    Key(display.Path() + Properties + L"000B").PutText(nullptr, display.driverKey, PropertyText);
    Key(display.Path() + Properties + L"0002").PutText(nullptr, display.description, PropertyText);
    const Key parameters(display.ParametersPath(), display.refusesKeys ? REG_OPTION_VOLATILE : REG_OPTION_NON_VOLATILE);
    if (!display.edid.IsEmpty()) parameters.PutBytes(L"EDID", display.edid);

    const std::wstring path = InterfacePath(display);
    Key(path).PutText(L"DeviceInstance", display.InstanceId());
    Key(path + L"\\#")
        .PutText(L"SymbolicLink",
                 L"\\\\?\\DISPLAY#" + display.hardware + L"#" + display.instance + L"#" + MonitorInterface);
    const DWORD linked = 1;
    Key(path + L"\\#\\Control").Put(L"Linked", REG_DWORD, &linked, sizeof(linked));
}

void PrefixTest::AddOverride(const PrefixDisplay& display, const std::wstring& name, const Bytes& bytes) const {
    Key(display.ParametersPath() + L"\\EDID_OVERRIDE").PutBytes(name.c_str(), bytes);
}

std::string Dump(const std::wstring& path) {
    std::string text;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return text;
    std::wstring name(32767, L'\0');
    std::vector<BYTE> data(1024 * 1024);
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        if (RegEnumValueW(key, index, name.data(), &length, nullptr, &type, data.data(), &size) != 0) break;
        text += Line(path, name.substr(0, length), type, std::vector<BYTE>(data.begin(), data.begin() + size));
    }
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) != 0) break;
        const std::wstring child = path + L"\\" + name.substr(0, length);
        text += String(child).ToUtf8() + "\n" + Dump(child);
    }
    RegCloseKey(key);
    return text;
}

}  // namespace VNT
