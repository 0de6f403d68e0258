// An off-screen picture of one rectangle of a window: drawn there, then put on the screen by one blit.
#pragma once

#include <span>
#include <string_view>

#include "ui/win32/dc.h"

namespace Gdiplus {
class GpGraphics;
class GpPath;
}  // namespace Gdiplus

namespace UI::Win32 {

// Owns a bitmap that fits a device context.
class Bitmap {
public:
    Bitmap(HDC dc, int width, int height);
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    ~Bitmap() { DeleteObject(bitmap); }
    operator HBITMAP() const { return bitmap; }

private:
    LiveResource live{Resource::Bitmap};
    HBITMAP bitmap;
};

class Canvas {
public:
    struct Spot {
        float X;
        float Y;
    };

    // The picture of `area` of `target`, filled with `background`. Its own coordinates begin at the area's corner.
    // Throws "CreateCompatibleDC failed.", "CreateCompatibleBitmap failed.", "SelectObject failed." or
    // "GdipCreateFromHDC failed.".
    Canvas(HDC target, const RECT& area, Color background);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    void FillRectangle(const RECT& rectangle, Color color);
    // Filled and bordered; the border lies within the rectangle.
    void DrawRounded(const RECT& rectangle, Color fill, Color border, int borderWidth, int radius);
    void DrawRounded(const RECT& rectangle, const StateStyle& style) {
        DrawRounded(rectangle, style.Background, style.Border, style.BorderWidth, style.CornerRadius);
    }
    void FillEllipse(const RECT& around, Color color);
    void FillPolygon(std::span<const Spot> corners, Color color);
    // `format` is that of DrawTextW; an ampersand is a character like any other.
    void DrawString(std::wstring_view text, RECT rectangle, unsigned format, const Font& font, Color color,
                    Color background);
    void DrawFocusMark(const RECT& rectangle);
    // Puts the picture on the screen.
    void Show();

    // Blits since the program began.
    static int CountShown();

private:
    void FillPath(Gdiplus::GpPath* path, Color color);
    void FillRounded(const RECT& rectangle, int radius, Color color);
    // Right and bottom edges for a fill whose smoothing shall reach no pixel beyond them.
    Spot GetFillEnd(const RECT& rectangle) const;
    // Text goes by another library, which must find all shapes done.
    HDC GetTextDC();

    HDC target;
    RECT area;
    Bitmap bitmap;
    CompatibleDC memory;
    LiveResource liveGraphics{Resource::DrawingObject};
    Gdiplus::GpGraphics* graphics = nullptr;
    Spot sample;  // distance of the samples that a smoothed pixel is made of
};

}  // namespace UI::Win32
