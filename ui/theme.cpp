#include "ui/native.h"
#include "ui/style.h"

namespace UI {

bool IsDarkMode(const StyleTable& table) { return table.Theme == Theme::Dark; }

bool IsWindows10OrGreater() { return Native::IsWindows10OrGreater(); }

bool SupportsDarkMode(const SystemVersion& version) {
    constexpr unsigned firstBuild = 17763;
    constexpr unsigned buildNumbers = 0x10000000;
    if (version.Major != 10) return version.Major > 10;
    return version.Minor > 0 || version.Build % buildNumbers >= firstBuild;
}

Theme ChooseTheme() {
    if (Native::IsHighContrast()) return Theme::HighContrast;
    const bool dark =
        IsWindows10OrGreater() && SupportsDarkMode(Native::GetSystemVersion()) && Native::UserPrefersDark();
    return dark ? Theme::Dark : Theme::Light;
}

int GetDpi(const Window& window) { return Native::GetDpi(window.GetHandle()); }

void ApplyTheme(Window& window, const StyleTable& table) {
    if (IsWindows10OrGreater()) {
        Native::SetDarkProcess(IsDarkMode(table));
        Native::SetDarkFrame(window.GetHandle(), IsDarkMode(table));
    }
    window.table = table;
    for (Control* control : window.controls) control->ApplyStyle(table);
    Native::Redraw(window.GetHandle());
}

}  // namespace UI
