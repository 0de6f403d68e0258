#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/platform.h"

namespace VNT::Cli {

enum ExitStatus { Success = 0, Negative = 1, Refused = 2 };

// What ends a command with status 2 and one line on standard error: "vantelle-cli: SUBJECT: what is wrong". Thrown
// within this folder only; `Run` catches it.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
    Failure(const std::string& subject, const std::string& what) : std::runtime_error(subject + ": " + what) {}
};

// Where the machine's own store keeps an override, if it has a choice; neither: wherever it can.
struct StoreMode {
    bool now = false;      // in the running system, until its next start
    bool lasting = false;  // for every start
    bool dryRun = false;   // nowhere: what would be done is told
    bool IsUsual() const { return !now && !lasting && !dryRun; }
};

struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    // The machine's own display store; null, it or what it gives, where there is none, and a folder takes its place.
    std::function<std::unique_ptr<Platform>(const StoreMode& mode, const Console& console)> openSystemStore;
};

// What was given to a command: its words in order, and its options by name.
class Arguments {
public:
    Arguments() = default;
    Arguments(std::vector<std::string> words, std::vector<std::pair<std::string, std::string>> options)
        : words_(std::move(words)), options_(std::move(options)) {}
    const std::vector<std::string>& Words() const { return words_; }
    // The option's value, empty for one without; null if it was not given.
    const std::string* Value(const std::string& option) const;
    bool Has(const std::string& option) const { return Value(option) != nullptr; }

private:
    std::vector<std::string> words_;
    std::vector<std::pair<std::string, std::string>> options_;
};

// A word that a command takes: "FILE"; "[OUT]" may be left out; "FILE..." stands for one or more.
struct Word {
    const char* name;
    const char* help;
};

// An option; `value` is null if it takes none, "a|b|c" if it is one of these, else what stands for it in the help.
struct Option {
    const char* name;
    const char* value;
    const char* help;
};

// A command as parser, help, completions and manual know it. A new one is such an object, beside the code that it runs,
// and a line in commands.cpp. Wherever a word or value is called FILE, OUT, DIR, DISPLAY or MODE, the shells complete
// it.
struct Command {
    const char* name;
    std::vector<Word> words;
    std::vector<Option> options;
    const char* summary;  // what it does, in the third person, without a point
    const char* example;  // the words and options of a call
    int (*run)(const Arguments&, const Console&);
    const char* insteadOfWords = nullptr;  // the option that stands in the place of the words
};

// Runs one call of the program; `arguments` are UTF-8, the program's name not among them. Returns the exit status.
int Run(std::span<const std::string> arguments, const Console& console);

}  // namespace VNT::Cli
