#include "cli/command.h"

#include <algorithm>
#include <ostream>

#include "cli/outline.h"
#include "cli/parser.h"

namespace VNT::Cli {

namespace {

int RunCall(const Call& call, const Console& console) {
    if (call.command != nullptr) return call.command->run(call.arguments, console);
    console.out << call.text;
    return Success;
}

int Tell(const Failure& failure, const Console& console) {
    console.err << "vantelle-cli: " << OneLine(String(std::string_view(failure.what()))) << "\n";
    return Refused;
}

}  // namespace

const std::string* Arguments::Value(const std::string& option) const {
    const auto found = std::find_if(options_.begin(), options_.end(), [&](const auto& o) { return o.first == option; });
    return found == options_.end() ? nullptr : &found->second;
}

int Run(std::span<const std::string> arguments, const Console& console) {
    int status = Success;
    try {
        status = RunCall(ParseCall(arguments), console);
    } catch (const Failure& failure) {
        status = Tell(failure, console);
    }
    console.out.flush();
    return console.out ? status : Tell(Failure("standard output", "can't be written"), console);
}

}  // namespace VNT::Cli
