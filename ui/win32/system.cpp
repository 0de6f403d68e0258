// DPI, system colours, dark mode: what the style table and the themes ask of the system.
#include "ui/win32/system.h"

#include "ui/win32/dc.h"

namespace UI {

namespace Win32 {

namespace {

// Stays loaded for the life of the process; null when the system folder has none.
HMODULE LoadFromSystemFolder(const wchar_t* name) {
    return LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// `name` may be an ordinal, as MAKEINTRESOURCEA gives it.
template <class Function>
void Find(HMODULE library, const char* name, Function& function) {
    if (!library) return;
    function = reinterpret_cast<Function>(reinterpret_cast<Procedure>(GetProcAddress(library, name)));
}

}  // namespace

const User32& GetUser32() {
    static const User32 found = [] {
        User32 user;
        if (!IsWindows10OrGreater()) return user;
        HMODULE library = LoadFromSystemFolder(L"user32.dll");
        Find(library, "GetDpiForWindow", user.GetDpiForWindow);
        Find(library, "AdjustWindowRectExForDpi", user.AdjustWindowRectExForDpi);
        Find(library, "GetSystemMetricsForDpi", user.GetSystemMetricsForDpi);
        return user;
    }();
    return found;
}

const UxTheme& GetUxTheme() {
    static const UxTheme found = [] {
        UxTheme theme;
        HMODULE library = LoadFromSystemFolder(L"uxtheme.dll");
        Find(library, "SetWindowTheme", theme.SetWindowTheme);
        // Before dark mode the two ordinals, which no document names, were other functions.
        if (IsWindows10OrGreater() && SupportsDarkMode(Native::GetSystemVersion())) {
            Find(library, MAKEINTRESOURCEA(132), theme.PrefersDark);
            Find(library, MAKEINTRESOURCEA(135), theme.SetProcessMode);
        }
        return theme;
    }();
    return found;
}

const Dwm& GetDwm() {
    static const Dwm found = [] {
        Dwm dwm;
        Find(LoadFromSystemFolder(L"dwmapi.dll"), "DwmSetWindowAttribute", dwm.SetWindowAttribute);
        return dwm;
    }();
    return found;
}

const Oleacc& GetOleacc() {
    static const Oleacc found = [] {
        Oleacc oleacc;
        HMODULE library = LoadFromSystemFolder(L"oleacc.dll");
        Find(library, "CreateStdAccessibleObject", oleacc.CreateStdAccessibleObject);
        Find(library, "LresultFromObject", oleacc.LresultFromObject);
        return oleacc;
    }();
    return found;
}

int GetMetric(int index, int dpi) {
    const auto forDpi = GetUser32().GetSystemMetricsForDpi;
    return forDpi ? forDpi(index, static_cast<UINT>(dpi)) : GetSystemMetrics(index);
}

}  // namespace Win32

namespace Native {

using namespace Win32;

int GetDpi(Handle handle) {
    if (const auto forWindow = GetUser32().GetDpiForWindow) {
        const auto dpi = static_cast<int>(forWindow(ToWindow(handle)));
        if (dpi > 0) return dpi;
    }
    return GetDeviceCaps(ScreenDC(), LOGPIXELSX);
}

int GetScrollBarWidth(int dpi) { return GetMetric(SM_CXVSCROLL, dpi); }

void FitToDesktop(StyleTable&) {}

Color GetSystemColor(SystemColor color) { return GetSysColor(static_cast<int>(color)); }

bool IsWindows10OrGreater() {
    static const bool answer = [] {
        OSVERSIONINFOEXW wanted{};
        wanted.dwOSVersionInfoSize = sizeof(wanted);
        wanted.dwMajorVersion = 10;
        const DWORDLONG conditions = VerSetConditionMask(VerSetConditionMask(0, VER_MAJORVERSION, VER_GREATER_EQUAL),
                                                         VER_MINORVERSION, VER_GREATER_EQUAL);
        return VerifyVersionInfoW(&wanted, VER_MAJORVERSION | VER_MINORVERSION, conditions) != 0;
    }();
    return answer;
}

SystemVersion GetSystemVersion() {
    static const SystemVersion version = [] {
        SystemVersion numbers;
        void(WINAPI * getNumbers)(DWORD*, DWORD*, DWORD*) = nullptr;
        Find(LoadFromSystemFolder(L"ntdll.dll"), "RtlGetNtVersionNumbers", getNumbers);
        if (!getNumbers) return numbers;
        DWORD major = 0;
        DWORD minor = 0;
        DWORD build = 0;
        getNumbers(&major, &minor, &build);
        numbers.Major = major;
        numbers.Minor = minor;
        numbers.Build = build;
        return numbers;
    }();
    return version;
}

bool IsHighContrast() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof(contrast);
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           HasFlag(contrast.dwFlags, HCF_HIGHCONTRASTON);
}

bool UserPrefersDark() {
    constexpr int allow = 1;
    const UxTheme& theme = GetUxTheme();
    if (theme.SetProcessMode) theme.SetProcessMode(allow);
    return theme.PrefersDark && theme.PrefersDark();
}

void SetDarkProcess(bool dark) {
    constexpr int forceDark = 2;
    constexpr int forceLight = 3;
    if (const auto set = GetUxTheme().SetProcessMode) set(dark ? forceDark : forceLight);
}

void SetDarkFrame(Handle handle, bool dark) {
    const auto set = GetDwm().SetWindowAttribute;
    if (!set) return;
    // The attribute's number changed with Windows 10 build 18985.
    const BOOL value = dark;
    for (const DWORD attribute : {20U, 19U}) {
        if (SUCCEEDED(set(ToWindow(handle), attribute, &value, sizeof(value)))) return;
    }
}

void SetDarkParts(Handle handle, bool dark) {
    const auto set = GetUxTheme().SetWindowTheme;
    if (!set) return;
    const wchar_t* theme = dark ? L"DarkMode_Explorer" : nullptr;
    set(ToWindow(handle), theme, nullptr);
    COMBOBOXINFO combo{};
    combo.cbSize = sizeof(combo);
    const Control* control = FindControl(handle);
    if (control && control->GetKind() == ControlKind::ComboBox && GetComboBoxInfo(ToWindow(handle), &combo)) {
        set(combo.hwndList, theme, nullptr);
    }
}

}  // namespace Native

}  // namespace UI
