// Pictures of what is on the screen.
#pragma once

#include <filesystem>

namespace UI {

class Window;

// Writes what the visible window's client area shows as a PNG. False when that fails.
bool SavePicture(const Window& window, const std::filesystem::path& file);
// The same of the whole screen, whoever's windows stand there.
bool SaveScreen(const std::filesystem::path& file);

}  // namespace UI
