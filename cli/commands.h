#pragma once

#include <span>
#include <string>

#include "cli/command.h"

namespace VNT::Cli {

inline constexpr const char* ProgramName = "vantelle-cli";
extern const char* const ProgramVersion;
inline constexpr const char* ProgramSummary = "reads, shows, checks and stores the EDIDs of displays";

// All commands, in the order of the help.
std::span<const Command* const> Commands();

// The line that shows how a command is called: "show FILE".
std::string UsageOf(const Command& command);

}  // namespace VNT::Cli
