// A picture of a window, for the gallery.
#pragma once

#include <filesystem>

namespace UI {

class Window;

// Writes what the visible window's client area shows as a PNG. False when that fails.
bool SavePicture(const Window& window, const std::filesystem::path& file);

}  // namespace UI
