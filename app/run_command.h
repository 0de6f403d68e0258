#pragma once

#include <optional>
#include <string>
#include <vector>

namespace VNT::App {

// Runs the command, found as the shell finds it, to its end. Its exit code; nothing if it can't be started or was
// stopped.
std::optional<int> RunCommandToEnd(const std::vector<std::string>& words);

}  // namespace VNT::App
