// Qt without a screen, and pictures of its windows.
#pragma once

#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>

#include "ui/window.h"

namespace Testing {

// The step that runs inside the next modal loop, once its window is painted.
class NextStep {
public:
    NextStep();

    // In place of one that waits.
    void Set(std::function<void()> newStep);

private:
    QTimer timer;
    std::function<void()> step;
};

// The client area, as it is on the screen.
bool SavePicture(const UI::Window& window, const std::filesystem::path& file);

}  // namespace Testing
