#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace VNT::App {

// What the program was asked to do.
struct Arguments {
    std::optional<std::filesystem::path> file;   // to be edited in place of the displays
    std::optional<std::filesystem::path> store;  // a folder of displays in place of the machine's
    bool help = false;
    bool version = false;
    std::string error;  // why the rest means nothing, or empty
};

// The words behind the program's name.
Arguments ReadArguments(const std::vector<std::string>& words);

extern const char* const Usage;

}  // namespace VNT::App
