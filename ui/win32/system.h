// What the system may have or not: looked up once, in libraries of the system folder only.
#pragma once

#include <unknwn.h>

#include "ui/win32/platform.h"

namespace UI::Win32 {

struct User32 {
    UINT(WINAPI* GetDpiForWindow)(HWND) = nullptr;
    BOOL(WINAPI* AdjustWindowRectExForDpi)(RECT*, DWORD, BOOL, DWORD, UINT) = nullptr;
    int(WINAPI* GetSystemMetricsForDpi)(int, UINT) = nullptr;
};

struct UxTheme {
    bool(WINAPI* PrefersDark)() = nullptr;       // ordinal 132
    int(WINAPI* SetProcessMode)(int) = nullptr;  // ordinal 135
    HRESULT(WINAPI* SetWindowTheme)(HWND, const wchar_t*, const wchar_t*) = nullptr;
};

struct Dwm {
    HRESULT(WINAPI* SetWindowAttribute)(HWND, DWORD, const void*, DWORD) = nullptr;
};

struct Oleacc {
    HRESULT(WINAPI* CreateStdAccessibleObject)(HWND, LONG, const IID&, void**) = nullptr;
    LRESULT(WINAPI* LresultFromObject)(const IID&, WPARAM, IUnknown*) = nullptr;
};

// Each entry is null where the system lacks it, and all of `User32` before Windows 10.
const User32& GetUser32();
const UxTheme& GetUxTheme();
const Dwm& GetDwm();
const Oleacc& GetOleacc();

// A length of the system's own, such as SM_CXVSCROLL, at `dpi` where it can tell.
int GetMetric(int index, int dpi);

}  // namespace UI::Win32
