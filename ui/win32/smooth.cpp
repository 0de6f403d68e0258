#include "ui/win32/smooth.h"

#include <algorithm>
#include <vector>

#include "ui/win32/canvas.h"
#include "ui/win32/drawing.h"

namespace UI::Win32 {

using namespace Gdiplus::DllExports;

namespace {

constexpr int Scale = 8;  // samples of a pixel, in both directions
constexpr int Whole = Scale * Scale;

bool DrawsSlantSmoothly() {
    constexpr int size = 8;
    const ScreenDC screen;
    const Bitmap bitmap(screen, size, size);
    const CompatibleDC memory;
    SelectObject(memory, bitmap);
    PatBlt(memory, 0, 0, size, size, WHITENESS);
    Gdiplus::GpGraphics* graphics = nullptr;
    if (GdipCreateFromHDC(memory, &graphics) != Gdiplus::Ok) throw L"GdipCreateFromHDC failed.";
    SetSmoothing(graphics);
    Gdiplus::GpSolidFill* brush = nullptr;
    GdipCreateSolidFill(Gdiplus::Color::Black, &brush);
    const Gdiplus::PointF corners[] = {{0, 0}, {size, 0}, {0, size / 2}};
    GdipFillPolygon(graphics, brush, corners, static_cast<INT>(std::size(corners)), Gdiplus::FillModeAlternate);
    GdipDeleteBrush(brush);
    GdipDeleteGraphics(graphics);
    for (int i = 0; i < Whole; ++i) {
        const COLORREF color = GetPixel(memory, i % size, i / size);
        if (color != RGB(0, 0, 0) && color != RGB(0xFF, 0xFF, 0xFF)) return true;
    }
    return false;
}

// The rectangles that a path is made of on a grid of `Scale` lines a pixel.
class ScaledPath {
public:
    explicit ScaledPath(Gdiplus::GpPath* path) {
        GdipClonePath(path, &scaled);
        GdipCreateMatrix2(Scale, 0, 0, Scale, 0, 0, &matrix);
        GdipTransformPath(scaled, matrix);
        GdipCreateRegionPath(scaled, &region);
        GdipGetRegionHRgn(region, nullptr, &grid);
        data.resize(GetRegionData(grid, 0, nullptr));
        if (!data.empty()) GetRegionData(grid, static_cast<DWORD>(data.size()), GetHeader());
    }
    ScaledPath(const ScaledPath&) = delete;
    ScaledPath& operator=(const ScaledPath&) = delete;
    ~ScaledPath() {
        DeleteObject(grid);
        GdipDeleteRegion(region);
        GdipDeleteMatrix(matrix);
        GdipDeletePath(scaled);
    }

    const RECT* begin() { return reinterpret_cast<const RECT*>(GetHeader()->Buffer); }
    const RECT* end() { return begin() + (data.empty() ? 0 : GetHeader()->rdh.nCount); }

private:
    RGNDATA* GetHeader() { return reinterpret_cast<RGNDATA*>(data.data()); }

    LiveResource live{Resource::DrawingObject};
    Gdiplus::GpPath* scaled = nullptr;
    Gdiplus::GpMatrix* matrix = nullptr;
    Gdiplus::GpRegion* region = nullptr;
    HRGN grid = nullptr;
    std::vector<char> data;
};

// How many of its samples each pixel of an area has inside.
class Coverage {
public:
    explicit Coverage(const RECT& area)
        : area(area), samples(static_cast<std::size_t>(GetWidth(area)) * static_cast<std::size_t>(GetHeight(area))) {}

    int& At(LONG x, LONG y) {
        return samples[static_cast<std::size_t>(y - area.top) * static_cast<std::size_t>(GetWidth(area)) +
                       static_cast<std::size_t>(x - area.left)];
    }

    // Adds what lies in the area, but for whole pixels: those are handed back as one rectangle.
    RECT Add(RECT grid) {
        const RECT all{area.left * Scale, area.top * Scale, area.right * Scale, area.bottom * Scale};
        if (!IntersectRect(&grid, &grid, &all)) return {};
        const RECT whole{(grid.left + Scale - 1) / Scale, (grid.top + Scale - 1) / Scale, grid.right / Scale,
                         grid.bottom / Scale};
        for (LONG y = grid.top / Scale; y * Scale < grid.bottom; ++y) {
            const int lines = Overlap(y, grid.top, grid.bottom);
            for (LONG x = grid.left / Scale; x * Scale < grid.right; ++x) {
                // On to the right of the whole ones.
                if (x == whole.left && x < whole.right && y >= whole.top && y < whole.bottom) x = whole.right;
                if (x * Scale < grid.right) At(x, y) += lines * Overlap(x, grid.left, grid.right);
            }
        }
        return whole;
    }

private:
    // Of the grid lines of pixel `at`, those from `begin` to `end`.
    static int Overlap(LONG at, LONG begin, LONG end) {
        return static_cast<int>(std::min(end, (at + 1) * Scale) - std::max(begin, at * Scale));
    }

    RECT area;
    std::vector<int> samples;
};

COLORREF Mix(COLORREF under, COLORREF over, int samples) {
    const auto mix = [samples](int a, int b) { return (a * (Whole - samples) + b * samples + Whole / 2) / Whole; };
    return RGB(mix(GetRValue(under), GetRValue(over)), mix(GetGValue(under), GetGValue(over)),
               mix(GetBValue(under), GetBValue(over)));
}

}  // namespace

void SetSmoothing(Gdiplus::GpGraphics* graphics) {
    if (GdipSetSmoothingMode(graphics, Gdiplus::SmoothingModeAntiAlias8x8) == Gdiplus::Ok) return;
    GdipSetSmoothingMode(graphics, Gdiplus::SmoothingModeAntiAlias8x4);
}

bool LibrarySmooths() {
    static const bool smooths = DrawsSlantSmoothly();
    return smooths;
}

void FillSmooth(HDC dc, const RECT& area, Gdiplus::GpPath* path, Color color) {
    SetDCBrushColor(dc, color);
    const auto fill = [dc](const RECT& pixels) {
        if (!IsRectEmpty(&pixels)) FillRect(dc, &pixels, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    };
    Coverage coverage(area);
    for (const RECT& rectangle : ScaledPath(path)) fill(coverage.Add(rectangle));
    for (LONG y = area.top; y < area.bottom; ++y) {
        LONG from = area.left;
        for (LONG x = area.left; x <= area.right; ++x) {
            const int samples = x < area.right ? coverage.At(x, y) : 0;
            if (samples == Whole) continue;
            fill({from, y, x, y + 1});
            if (samples > 0) SetPixelV(dc, x, y, Mix(GetPixel(dc, x, y), color, samples));
            from = x + 1;
        }
    }
}

}  // namespace UI::Win32
