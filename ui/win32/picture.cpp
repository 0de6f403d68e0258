#include "ui/win32/picture.h"

#include "ui/win32/canvas.h"
#include "ui/win32/drawing.h"

namespace UI {

using namespace Gdiplus::DllExports;
using namespace Win32;

namespace {

// A bitmap is read only while no context holds it.
bool Copy(HBITMAP copy, HDC dc, int width, int height) {
    const CompatibleDC memory;
    return SelectObject(memory, copy) && BitBlt(memory, 0, 0, width, height, dc, 0, 0, SRCCOPY);
}

bool Save(HDC dc, int width, int height, const std::filesystem::path& file) {
    constexpr CLSID png{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    const Bitmap copy(dc, width, height);
    if (!Copy(copy, dc, width, height)) return false;
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

std::vector<Color> ReadPicture(const Window& window) {
    const ClientDC dc(ToWindow(window.GetHandle()));
    const int width = window.GetClientWidth();
    const int height = window.GetClientHeight();
    const Bitmap copy(dc, width, height);
    if (!Copy(copy, dc, width, height)) return {};
    BITMAPINFO form{};
    form.bmiHeader.biSize = sizeof(form.bmiHeader);
    form.bmiHeader.biWidth = width;
    form.bmiHeader.biHeight = -height;  // from the top on
    form.bmiHeader.biPlanes = 1;
    form.bmiHeader.biBitCount = 32;
    std::vector<RGBQUAD> read(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    if (GetDIBits(dc, copy, 0, static_cast<UINT>(height), read.data(), &form, DIB_RGB_COLORS) == 0) return {};
    std::vector<Color> colors;
    for (const RGBQUAD& pixel : read) colors.push_back(RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue));
    return colors;
}

bool SaveScreen(const std::filesystem::path& file) {
    return Save(ScreenDC(), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), file);
}

}  // namespace UI
