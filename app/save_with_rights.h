// Saving what the user may not write: the command line does it, with the rights that the desktop asks for.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "store/display.h"

namespace VNT::App {

using Words = std::vector<std::string>;
// Runs a command to its end: its exit code, or nothing if there is no such command.
using RunCommand = std::function<std::optional<int>(const Words&)>;

class SaveWithRights {
public:
    // `commandLine` is the path of vantelle-cli; `folder` is where the EDIDs wait for it and stay if it fails.
    SaveWithRights(std::filesystem::path commandLine, std::filesystem::path folder,
                   std::optional<std::filesystem::path> store, RunCommand run)
        : commandLine(std::move(commandLine)),
          folder(std::move(folder)),
          store(std::move(store)),
          run(std::move(run)) {}

    // Saves the displays that are not saved yet. What can't be saved is left in a file, and `GetAdvice` tells the
    // commands that save it.
    bool Save(DisplayList& displays);
    const std::wstring& GetAdvice() const { return advice; }

private:
    bool SaveOne(Display& display);
    Words GetCommand(const Display& display, const std::filesystem::path& file) const;

    std::filesystem::path commandLine;
    std::filesystem::path folder;
    std::optional<std::filesystem::path> store;
    RunCommand run;
    std::wstring advice;
};

// A word as a shell reads it.
std::string Quote(const std::string& word);

}  // namespace VNT::App
