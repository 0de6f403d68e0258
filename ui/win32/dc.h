// Device contexts. What was selected into one is undone before it is released.
#pragma once

#include "ui/win32/platform.h"

namespace UI::Win32 {

class DC {
public:
    DC(const DC&) = delete;
    DC& operator=(const DC&) = delete;
    operator HDC() const { return dc; }

protected:
    // `failure` is thrown when there is no context to hold.
    DC(HDC dc, const wchar_t* failure);
    ~DC() = default;
    // To be called before the context is released.
    HDC Restore();

private:
    LiveResource live{Resource::DeviceContext};
    HDC dc;
    bool saved = false;
};

class ClientDC : public DC {
public:
    explicit ClientDC(HWND window) : DC(GetDC(window), L"GetDC failed."), window(window) {}
    ~ClientDC() { ReleaseDC(window, Restore()); }

private:
    HWND window;
};

class WindowDC : public DC {
public:
    explicit WindowDC(HWND window) : DC(GetWindowDC(window), L"GetWindowDC failed."), window(window) {}
    ~WindowDC() { ReleaseDC(window, Restore()); }

private:
    HWND window;
};

class PaintDC : private PAINTSTRUCT, public DC {
public:
    explicit PaintDC(HWND window)
        : PAINTSTRUCT{}, DC(BeginPaint(window, this), L"BeginPaint failed."), window(window) {}
    ~PaintDC() {
        Restore();
        EndPaint(window, this);
    }

private:
    HWND window;
};

class ScreenDC : public ClientDC {
public:
    ScreenDC() : ClientDC(nullptr) {}
};

class CompatibleDC : public DC {
public:
    CompatibleDC() : DC(CreateCompatibleDC(nullptr), L"CreateCompatibleDC failed.") {}
    ~CompatibleDC() { DeleteDC(Restore()); }
};

}  // namespace UI::Win32
