#pragma once

#include "cli/command.h"

namespace VNT::Cli {

// What a call of the program asks for: a command, or a text to print (help, version).
struct Call {
    const Command* command = nullptr;
    Arguments arguments;
    std::string text;
};

// Fails on what is no call of any command; names the nearest known word.
Call ParseCall(std::span<const std::string> words);

}  // namespace VNT::Cli
