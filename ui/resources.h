// Counts of what is alive, so that a test can tell a leak that the system's own counters do not show.
#pragma once

namespace UI {

enum class Resource {
    WindowClass,
    Window,
    Control,
    Font,
    Icon,
    DeviceContext,
    Bitmap,
    DrawingObject,  // pens, paths, brushes and surfaces of the drawing library
    SystemObject,   // dialogs, libraries, and other objects of the system
    Last,
};

// How many of `kind` are alive in the process.
int CountLive(Resource kind);

// How many of all kinds.
int CountLive();

// A member of every owner of a resource: counts it for as long as it lives.
class LiveResource {
public:
    explicit LiveResource(Resource kind);
    LiveResource(const LiveResource&) = delete;
    LiveResource& operator=(const LiveResource&) = delete;
    ~LiveResource();

private:
    Resource kind;
};

}  // namespace UI
