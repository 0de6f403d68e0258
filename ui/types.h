// The small words of the toolkit: colours, rectangles, handles, message parameters.
#pragma once

#include <cstdint>

namespace UI {

// 0x00BBGGRR: red in the low byte.
using Color = std::uint32_t;

struct Point {
    int X = 0;
    int Y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int Width = 0;
    int Height = 0;
    bool operator==(const Size&) const = default;
};

// Right and bottom lie just outside.
struct Rect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    bool operator==(const Rect&) const = default;
};

// Lengths inside the four sides of something.
struct Padding {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    bool operator==(const Padding&) const = default;
};

// What the backend has behind a window or control; only the backend looks inside.
struct NativeWindow;
using Handle = NativeWindow*;

// The behaviour that a control had before the toolkit took it over; only the backend calls it.
using Procedure = void (*)();

using WParam = std::uintptr_t;
using LParam = std::intptr_t;
using MessageResult = std::intptr_t;

// Whether the single bit `flag` is set in `flags`.
constexpr bool HasFlag(unsigned flags, unsigned flag) { return flags / flag % 2 == 1; }

}  // namespace UI
