#pragma once

#include <functional>
#include <string>

namespace VNT::Shim {

// What each call that the shim knows does first; `isChange`: it is not one that only reads. True if the call is to
// fail. A test that stands for the system itself asks for what it stands for.
bool Enter(const char* path, bool isChange = true);

// In a test that is linked to the shim: for as long as this lives, `atCall` is asked at each call that touches files of
// the folder; true lets it fail.
class Watch {
public:
    Watch(std::string folder, std::function<bool(bool isChange)> atCall);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

// For as long as this lives nothing is watched.
class Rest {
public:
    Rest();
    ~Rest();
    Rest(const Rest&) = delete;
    Rest& operator=(const Rest&) = delete;

private:
    std::function<bool(bool isChange)> watcher;
};

}  // namespace VNT::Shim
