#include "ui/win32/picture.h"

#include "ui/win32/canvas.h"
#include "ui/win32/drawing.h"

namespace UI {

using namespace Gdiplus::DllExports;
using namespace Win32;

namespace {

bool Save(HDC dc, int width, int height, const std::filesystem::path& file) {
    constexpr CLSID png{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    const Bitmap copy(dc, width, height);
    {
        // The library reads a bitmap only while no context holds it.
        const CompatibleDC memory;
        if (!SelectObject(memory, copy) || !BitBlt(memory, 0, 0, width, height, dc, 0, 0, SRCCOPY)) return false;
    }
    Gdiplus::GpBitmap* picture = nullptr;
    if (GdipCreateBitmapFromHBITMAP(copy, nullptr, &picture) != Gdiplus::Ok) return false;
    const bool saved = GdipSaveImageToFile(picture, file.c_str(), &png, nullptr) == Gdiplus::Ok;
    GdipDisposeImage(picture);
    return saved;
}

}  // namespace

bool SavePicture(const Window& window, const std::filesystem::path& file) {
    return Save(ClientDC(ToWindow(window.GetHandle())), window.GetClientWidth(), window.GetClientHeight(), file);
}

bool SaveScreen(const std::filesystem::path& file) {
    return Save(ScreenDC(), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), file);
}

}  // namespace UI
