// What the painting of several classes of control has in common.
#pragma once

#include <functional>

#include "ui/win32/canvas.h"

namespace UI::Win32 {

// The rectangle of that size at the origin.
inline RECT MakeArea(int width, int height) { return {0, 0, width, height}; }

inline const DRAWITEMSTRUCT& GetItem(LPARAM lParam) { return *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam); }

// Answer to a WM_CTLCOLOR message: its context gets the colours, and the class gets the brush to clear with.
LRESULT SetColors(WPARAM dc, Color text, Color background);

// What is painted whole must not be cleared on the screen before.
void SkipErasing(Control& control);

// A standard class that paints its own client area within a frame of ours.
struct Frame {
    std::function<StateStyle()> GetStyle;
    std::function<Color()> GetOutside;  // the colour around the rounded corners
    // From the edges of a window of that height to the client area.
    std::function<Padding(int height)> GetPadding;
};
void AttachFrame(Control& control, const Frame& frame);

}  // namespace UI::Win32
