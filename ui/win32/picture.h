// Pictures of what is on the screen.
#pragma once

#include <filesystem>
#include <vector>

#include "ui/types.h"

namespace UI {

class Window;

// Writes what the visible window's client area shows as a PNG. False when that fails.
bool SavePicture(const Window& window, const std::filesystem::path& file);
// The colours of that, row by row; empty when it can't be read.
std::vector<Color> ReadPicture(const Window& window);
// The same as the first of the whole screen, whoever's windows stand there.
bool SaveScreen(const std::filesystem::path& file);

}  // namespace UI
