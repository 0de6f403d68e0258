#pragma once

#include <string>

// What is told of the commands elsewhere than in the program, made from the same table.
namespace VNT::Cli {

std::string MakeBashCompletion();
std::string MakeZshCompletion();
std::string MakeManual();  // vantelle-cli(1), as troff

}  // namespace VNT::Cli
