// What a screen reader gets wrong of a form on the screen.
#pragma once

#include "tests/ui/win32/screen_reader.h"
#include "ui/window.h"

namespace Testing {

// The first control whose name, role, state, value or rows the system tells otherwise than they are shown, or that can
// take the focus and has no name; empty when there is none.
std::wstring FindMisread(const ScreenReader& reader, const UI::Window& form);

}  // namespace Testing
