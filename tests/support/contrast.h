// How well one colour can be read on another.
#pragma once

#include <algorithm>
#include <cmath>

#include "ui/types.h"

namespace Testing {

// The relative luminance and the contrast ratio of the Web Content Accessibility Guidelines: 1 for the same colour, 21
// for black on white; 4.5 is what a text needs, 3 a large or bold one and the parts of a control.
inline double GetLuminance(UI::Color color) {
    const auto linear = [](unsigned part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color % 256) + 0.7152 * linear(color / 256 % 256) + 0.0722 * linear(color / 65536 % 256);
}

inline double GetContrast(UI::Color a, UI::Color b) {
    const double first = GetLuminance(a);
    const double second = GetLuminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace Testing
