// Smooth edges where the drawing library leaves them rough, as Wine's does whatever smoothing it is asked for.
#pragma once

#include "ui/win32/platform.h"

namespace Gdiplus {
class GpGraphics;
class GpPath;
}  // namespace Gdiplus

namespace UI::Win32 {

// Asks `graphics` for the best smoothing that the library has.
void SetSmoothing(Gdiplus::GpGraphics* graphics);

// Whether the library heeds it.
bool LibrarySmooths();

// Fills within `area` of `dc`, edges by how much of each pixel is inside.
void FillSmooth(HDC dc, const RECT& area, Gdiplus::GpPath* path, Color color);

}  // namespace UI::Win32
