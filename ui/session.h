#pragma once

namespace UI {

// Stands around all windows of the process: starts the drawing library and stops it.
class Session {
public:
    // Throws "GdiplusStartup failed.".
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();
};

}  // namespace UI
