#include "cli/command.h"

#include <algorithm>
#include <ostream>

namespace VNT::Cli {

namespace {

constexpr const char* Version = "0.1.0";

constexpr const char* Usage =
    "vantelle-cli show FILE\n"
    "vantelle-cli check FILE...\n"
    "vantelle-cli convert FILE OUT [--format bin|dat|txt]\n"
    "vantelle-cli timing MODE WIDTHxHEIGHT[i]@RATE [--kind edid|displayid1|displayid2|displayid2r2]\n"
    "vantelle-cli list   [--store DIR] [--all]\n"
    "vantelle-cli read   DISPLAY OUT [--store DIR] [--format bin|dat|txt]\n"
    "vantelle-cli write  DISPLAY FILE [--store DIR]\n"
    "vantelle-cli reset  DISPLAY | --all [--store DIR]\n";

struct Command {
    const char* name;
    std::vector<const char*> valuedOptions;
    std::vector<const char*> plainOptions;
    int (*run)(const Arguments&, const Console&);
};

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands{
        {"show", {}, {}, &RunShow},
        {"check", {}, {}, &RunCheck},
        {"convert", {"--format"}, {}, &RunConvert},
        {"timing", {"--kind"}, {}, &RunTiming},
        {"list", {"--store"}, {"--all"}, &RunList},
        {"read", {"--store", "--format"}, {}, &RunRead},
        {"write", {"--store"}, {}, &RunWrite},
        {"reset", {"--store"}, {"--all"}, &RunReset},
    };
    return commands;
}

int RunCommand(std::span<const std::string> arguments, const Console& console) {
    if (arguments.empty()) throw Failure("no command given; --help lists them");
    const std::string& word = arguments.front();
    if (word == "--help" || word == "--version") {
        if (arguments.size() > 1) throw Failure(arguments[1], "unknown word");
        console.out << (word == "--help" ? std::string(Usage) : std::string("vantelle-cli ") + Version + "\n");
        return Success;
    }
    const auto& commands = Commands();
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&word](const Command& c) { return c.name == word; });
    if (found == commands.end()) throw Failure(word, "unknown command; --help lists them");
    return found->run(Arguments(arguments.subspan(1), found->valuedOptions, found->plainOptions), console);
}

bool IsAmong(std::span<const char* const> names, const std::string& name) {
    return std::any_of(names.begin(), names.end(), [&name](const char* n) { return name == n; });
}

}  // namespace

Arguments::Arguments(std::span<const std::string> words, std::span<const char* const> valued,
                     std::span<const char* const> plain) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (!word.starts_with("--")) {
            words_.push_back(word);
            continue;
        }
        if (Has(word)) throw Failure(word, "given twice");
        if (IsAmong(plain, word)) {
            options_.emplace_back(word, "");
        } else if (!IsAmong(valued, word)) {
            throw Failure(word, "unknown option");
        } else if (i + 1 == words.size()) {
            throw Failure(word, "a value must follow");
        } else {
            options_.emplace_back(word, words[++i]);
        }
    }
}

const std::string* Arguments::Value(const std::string& option) const {
    const auto found = std::find_if(options_.begin(), options_.end(), [&](const auto& o) { return o.first == option; });
    return found == options_.end() ? nullptr : &found->second;
}

void Arguments::Expect(std::size_t least, std::size_t most) const {
    if (words_.size() > most) throw Failure(words_[most], "unknown word");
    if (words_.size() < least) throw Failure("too few words; --help shows the commands");
}

int Run(std::span<const std::string> arguments, const Console& console) {
    try {
        return RunCommand(arguments, console);
    } catch (const Failure& failure) {
        console.err << "vantelle-cli: " << failure.what() << "\n";
        return Refused;
    }
}

}  // namespace VNT::Cli
