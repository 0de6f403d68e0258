#pragma once

#include "cli/command.h"

// The words and options that several commands take.
namespace VNT::Cli {

inline constexpr Word FileWord{"FILE", "an EDID in BIN, DAT or TXT format; - is standard input"};
inline constexpr Word OutWord{"OUT", "the file to write; - is standard output"};
inline constexpr Word DisplayWord{"DISPLAY",
                                  "an instance ID, a number that list prints, or on Linux a name such as card1-DP-2"};

inline constexpr Option FormatOption{"--format", "bin|dat|txt", "the format of OUT; else its ending tells, else BIN"};
inline constexpr Option StoreOption{"--store", "DIR", "a folder of displays, in the place of the machine's own"};
inline constexpr Option DryRunOption{"--dry-run", nullptr, "on Linux: tells what would be done, and does nothing"};

}  // namespace VNT::Cli
