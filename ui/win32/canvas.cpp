#include "ui/win32/canvas.h"

#include <algorithm>
#include <vector>

#include "ui/session.h"
#include "ui/win32/drawing.h"
#include "ui/win32/smooth.h"

namespace UI {

namespace Win32 {

using namespace Gdiplus::DllExports;

namespace {

int shown = 0;

// Opaque, with red and blue exchanged.
Gdiplus::ARGB ToArgb(Color color) {
    return Gdiplus::Color::MakeARGB(0xFF, GetRValue(color), GetGValue(color), GetBValue(color));
}

class Brush {
public:
    explicit Brush(Color color) { GdipCreateSolidFill(ToArgb(color), &brush); }
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;
    ~Brush() { GdipDeleteBrush(brush); }
    operator Gdiplus::GpBrush*() const { return brush; }

private:
    LiveResource live{Resource::DrawingObject};
    Gdiplus::GpSolidFill* brush = nullptr;
};

class Path {
public:
    Path() { GdipCreatePath(Gdiplus::FillModeAlternate, &path); }
    Path(const Path&) = delete;
    Path& operator=(const Path&) = delete;
    ~Path() { GdipDeletePath(path); }
    operator Gdiplus::GpPath*() const { return path; }

    // Four quarter circles and the lines between them.
    void AddRounded(Canvas::Spot from, Canvas::Spot to, float radius) {
        const float size = 2 * radius;
        GdipAddPathArc(path, from.X, from.Y, size, size, 180, 90);
        GdipAddPathLine(path, from.X + radius, from.Y, to.X - radius, from.Y);
        GdipAddPathArc(path, to.X - size, from.Y, size, size, 270, 90);
        GdipAddPathLine(path, to.X, from.Y + radius, to.X, to.Y - radius);
        GdipAddPathArc(path, to.X - size, to.Y - size, size, size, 0, 90);
        GdipAddPathLine(path, to.X - radius, to.Y, from.X + radius, to.Y);
        GdipAddPathArc(path, from.X, to.Y - size, size, size, 90, 90);
        GdipAddPathLine(path, from.X, to.Y - radius, from.X, from.Y + radius);
        GdipClosePathFigure(path);
    }

private:
    LiveResource live{Resource::DrawingObject};
    Gdiplus::GpPath* path = nullptr;
};

// A fill of the library reaches one sample too far to the right and down.
Canvas::Spot GetSample(Gdiplus::GpGraphics* graphics) {
    Gdiplus::SmoothingMode mode{};
    GdipGetSmoothingMode(graphics, &mode);
    return {1.0F / 8, mode == Gdiplus::SmoothingModeAntiAlias8x8 ? 1.0F / 8 : 1.0F / 4};
}

Canvas::Spot GetStart(const RECT& rectangle) {
    return {static_cast<float>(rectangle.left), static_cast<float>(rectangle.top)};
}

}  // namespace

Bitmap::Bitmap(HDC dc, int width, int height)
    : bitmap(CreateCompatibleBitmap(dc, std::max(1, width), std::max(1, height))) {
    if (!bitmap) throw L"CreateCompatibleBitmap failed.";
}

Canvas::Canvas(HDC target, const RECT& area, Color background)
    : target(target), area(area), bitmap(target, Win32::GetWidth(area), Win32::GetHeight(area)) {
    if (!SelectObject(memory, bitmap)) throw L"SelectObject failed.";
    if (GdipCreateFromHDC(memory, &graphics) != Gdiplus::Ok) throw L"GdipCreateFromHDC failed.";
    GdipSetCompositingQuality(graphics, Gdiplus::CompositingQualityGammaCorrected);
    GdipSetPixelOffsetMode(graphics, Gdiplus::PixelOffsetModeHalf);
    SetSmoothing(graphics);
    sample = LibrarySmooths() ? GetSample(graphics) : Spot{0, 0};
    GdipGraphicsClear(graphics, ToArgb(background));
}

Canvas::~Canvas() { GdipDeleteGraphics(graphics); }

Canvas::Spot Canvas::GetFillEnd(const RECT& rectangle) const {
    return {static_cast<float>(rectangle.right) - sample.X, static_cast<float>(rectangle.bottom) - sample.Y};
}

void Canvas::FillRectangle(const RECT& rectangle, Color color) {
    const Brush brush(color);
    GdipFillRectangleI(graphics, brush, rectangle.left, rectangle.top, Win32::GetWidth(rectangle),
                       Win32::GetHeight(rectangle));
}

void Canvas::FillPath(Gdiplus::GpPath* path, Color color) {
    if (!LibrarySmooths()) {
        return FillSmooth(GetTextDC(), {0, 0, Win32::GetWidth(area), Win32::GetHeight(area)}, path, color);
    }
    const Brush brush(color);
    GdipFillPath(graphics, brush, path);
}

void Canvas::FillRounded(const RECT& rectangle, int radius, Color color) {
    if (radius <= 0) return FillRectangle(rectangle, color);
    Path path;
    path.AddRounded(GetStart(rectangle), GetFillEnd(rectangle), static_cast<float>(radius));
    FillPath(path, color);
}

void Canvas::DrawRounded(const RECT& rectangle, Color fill, Color border, int borderWidth, int radius) {
    if (borderWidth > 0) FillRounded(rectangle, radius, border);
    RECT inner = rectangle;
    InflateRect(&inner, -borderWidth, -borderWidth);
    FillRounded(inner, radius - borderWidth, fill);
}

void Canvas::FillEllipse(const RECT& around, Color color) {
    const Spot start = GetStart(around);
    const Spot end = GetFillEnd(around);
    const Path path;
    GdipAddPathEllipse(path, start.X, start.Y, end.X - start.X, end.Y - start.Y);
    FillPath(path, color);
}

void Canvas::FillPolygon(std::span<const Spot> corners, Color color) {
    std::vector<Gdiplus::PointF> points;
    for (const Spot& corner : corners) points.emplace_back(corner.X, corner.Y);
    const Path path;
    GdipAddPathPolygon(path, points.data(), static_cast<INT>(points.size()));
    FillPath(path, color);
}

HDC Canvas::GetTextDC() {
    GdipFlush(graphics, Gdiplus::FlushIntentionSync);
    return memory;
}

void Canvas::DrawString(std::wstring_view text, RECT rectangle, unsigned format, const Font& font, Color color,
                        Color background) {
    HDC dc = GetTextDC();
    SetTextColor(dc, color);
    SetBkColor(dc, background);
    if (!SelectObject(dc, font.GetNative()->Object)) throw L"SelectObject failed.";
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rectangle, format | DT_NOPREFIX);
}

void Canvas::DrawFocusMark(const RECT& rectangle) {
    HDC dc = GetTextDC();
    SetTextColor(dc, 0x000000);
    SetBkColor(dc, 0xFFFFFF);
    DrawFocusRect(dc, &rectangle);
}

void Canvas::Show() {
    BitBlt(target, area.left, area.top, Win32::GetWidth(area), Win32::GetHeight(area), GetTextDC(), 0, 0, SRCCOPY);
    ++shown;
}

int Canvas::CountShown() { return shown; }

}  // namespace Win32

namespace {

ULONG_PTR drawingLibrary = 0;

}  // namespace

Session::Session() {
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&drawingLibrary, &input, nullptr) != Gdiplus::Ok) throw L"GdiplusStartup failed.";
}

Session::~Session() { Gdiplus::GdiplusShutdown(drawingLibrary); }

}  // namespace UI
