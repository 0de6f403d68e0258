// The small screens that every form has to fit into.
#pragma once

#include <ostream>

#include "ui/types.h"

namespace Testing {

struct SmallScreenCase {
    int Dpi;
    UI::Rect WorkArea;       // of the primary monitor if its corner is at 0, 0
    int CharacterWidth = 7;  // of the font, in sixteenths of its height
};

// The last of the primary monitor's is of a font that is as wide as they get.
inline constexpr SmallScreenCase SmallScreens[] = {
    {96, {0, 0, 1366, 728}},      {120, {0, 0, 1366, 708}},   {96, {0, 0, 1280, 680}},
    {144, {0, 0, 1920, 1020}},    {168, {0, 0, 1920, 1020}},  {192, {0, 0, 1920, 1020}},
    {192, {0, 0, 1920, 1020}, 9}, {120, {-1366, 40, 0, 748}}, {96, {200, -720, 1480, -40}}};

inline void PrintTo(const SmallScreenCase& screen, std::ostream* out) {
    const UI::Rect& area = screen.WorkArea;
    *out << area.Right - area.Left << "x" << area.Bottom - area.Top << " at " << area.Left << ", " << area.Top
         << " with " << screen.Dpi << " DPI";
    if (screen.CharacterWidth != SmallScreenCase().CharacterWidth) *out << " and a wide font";
}

}  // namespace Testing
