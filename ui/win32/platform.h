// The platform's headers, and the way from the toolkit's words to its own.
#pragma once

#include <windows.h>

#include "ui/native.h"

namespace UI::Win32 {

// A `Handle` of the interface is the system's window handle itself.
inline HWND ToWindow(Handle handle) { return reinterpret_cast<HWND>(handle); }
inline Handle ToHandle(HWND window) { return reinterpret_cast<Handle>(window); }

inline RECT ToRect(const Rect& rect) { return {rect.Left, rect.Top, rect.Right, rect.Bottom}; }
inline Rect FromRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}
inline int GetWidth(const RECT& rect) { return static_cast<int>(rect.right - rect.left); }
inline int GetHeight(const RECT& rect) { return static_cast<int>(rect.bottom - rect.top); }

// The client area in its own coordinates.
inline RECT GetClientArea(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return area;
}

// Sends a message of the system's own numbers.
inline LRESULT Tell(Handle handle, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(ToWindow(handle), message, wParam, lParam);
}

// The text of a window as the system has it: "\r\n" at the ends of lines.
std::wstring ReadSystemText(Handle handle);

// No C++ exception may pass through the system's frames, so a procedure keeps what its handlers threw, and the loop
// that called the system throws it on.
void KeepException() noexcept;
void RethrowKept();

// Shows the hint of the control under the pointer as a message of the mouse tells.
void FollowPointer(HWND window, const MSG& message);
// Where the hint of the control shows already.
void ShowNewHint(const Control& control);

// What the modal loop of `window` does with a message.
void Process(HWND window, MSG& message);

}  // namespace UI::Win32

namespace UI {

struct NativeFont {
    explicit NativeFont(const FontSpec& spec);
    NativeFont(const NativeFont&) = delete;
    NativeFont& operator=(const NativeFont&) = delete;
    ~NativeFont() { DeleteObject(Object); }

    LiveResource Live{Resource::Font};
    HFONT Object;
};

struct NativeIcon {
    explicit NativeIcon(HICON icon) : Object(icon) {}
    NativeIcon(const NativeIcon&) = delete;
    NativeIcon& operator=(const NativeIcon&) = delete;
    ~NativeIcon() { DestroyIcon(Object); }

    LiveResource Live{Resource::Icon};
    HICON Object;
};

}  // namespace UI
