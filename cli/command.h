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

struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    // The machine's own display store; null where there is none, and a folder takes its place.
    std::function<std::unique_ptr<Platform>()> openSystemStore;
};

// A command's words, options taken out: `--name VALUE` and `--name`.
class Arguments {
public:
    // Fails on an option that is not among `valued` (with a value) or `plain`.
    Arguments(std::span<const std::string> words, std::span<const char* const> valued,
              std::span<const char* const> plain);
    const std::vector<std::string>& Words() const { return words_; }
    const std::string* Value(const std::string& option) const;
    bool Has(const std::string& option) const { return Value(option) != nullptr; }
    // Fails unless there are `least` to `most` words.
    void Expect(std::size_t least, std::size_t most) const;

private:
    std::vector<std::string> words_;
    std::vector<std::pair<std::string, std::string>> options_;
};

// Runs one call of the program; `arguments` are UTF-8, the program's name not among them. Returns the exit status.
int Run(std::span<const std::string> arguments, const Console& console);

int RunShow(const Arguments& arguments, const Console& console);
int RunCheck(const Arguments& arguments, const Console& console);
int RunConvert(const Arguments& arguments, const Console& console);
int RunTiming(const Arguments& arguments, const Console& console);
int RunList(const Arguments& arguments, const Console& console);
int RunRead(const Arguments& arguments, const Console& console);
int RunWrite(const Arguments& arguments, const Console& console);
int RunReset(const Arguments& arguments, const Console& console);

}  // namespace VNT::Cli
