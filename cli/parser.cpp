#include "cli/parser.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "cli/commands.h"
#include "json/nearest.h"

namespace VNT::Cli {

namespace {

// The library takes "[a,b]" apart as a list. A file may be called so, so that each word of this start gets a mark.
constexpr char WordMark = '\x01';

class HelpText : public CLI::Formatter {
public:
    std::string make_usage(const CLI::App* app, std::string) const override {
        std::string text;
        for (const Command* command : Commands()) {
            if (app->get_parent() != nullptr && app->get_name() != command->name) continue;
            text.append(text.empty() ? "Usage: " : "       ").append(ProgramName).append(" ");
            text.append(UsageOf(*command)).append("\n");
        }
        return text;
    }
    std::string make_description(const CLI::App* app) const override {
        return std::string(ProgramName) + " " + app->get_name() + (app->get_name().empty() ? "" : " ") +
               app->get_description() + ".\n";
    }
};

// The results are asked for when all is parsed.
const CLI::callback_t Keep = [](const CLI::results_t&) { return true; };

// A command as the library's, with what it found.
struct Parsed {
    CLI::App* app = nullptr;
    std::vector<CLI::Option*> words;
    std::vector<CLI::Option*> options;
};

std::string PlainName(const Word& word) {
    std::string name = word.name;
    if (name.starts_with("[") && name.ends_with("]")) name = name.substr(1, name.size() - 2);
    if (name.ends_with("...")) name.erase(name.size() - 3);
    return name;
}

bool MayBeMissing(const Word& word) { return word.name[0] == '['; }
bool TakesMore(const Word& word) { return std::string_view(word.name).ends_with("..."); }

std::vector<std::string> ChoicesOf(const Option& option) {
    const std::string value = option.value != nullptr ? option.value : "";
    return value.find('|') != std::string::npos ? CLI::detail::split(value, '|') : std::vector<std::string>();
}

Parsed AddCommand(CLI::App& program, const Command& command) {
    Parsed parsed;
    parsed.app = program.add_subcommand(command.name, command.summary);
    parsed.app->footer(std::string("Example: ") + ProgramName + " " + command.name + " " + command.example);
    for (const Word& word : command.words) {
        parsed.words.push_back(parsed.app->add_option(PlainName(word), Keep, word.help));
        parsed.words.back()->type_name("");
        if (TakesMore(word))
            parsed.words.back()->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
    }
    for (const Option& option : command.options) {
        CLI::Option* added = option.value != nullptr ? parsed.app->add_option(option.name, Keep, option.help)
                                                     : parsed.app->add_flag(option.name)->description(option.help);
        if (option.value != nullptr) added->type_name(option.value);
        parsed.options.push_back(added);
    }
    return parsed;
}

// What the library could do nothing with.
void RefuseRest(const CLI::App& app, const char* what, const std::vector<std::string>& known) {
    std::vector<std::string> rest = app.remaining();
    std::erase(rest, "--");  // what stands behind it is no option
    if (rest.empty()) return;
    const bool isOption = rest[0].size() > 1 && rest[0][0] == '-';
    std::vector<std::string> candidates;
    for (const std::string& word : known) {
        if (word.starts_with("-") == isOption) candidates.push_back(word);
    }
    const std::string nearest = Nearest(rest[0], candidates);
    throw Failure(rest[0], std::string("unknown ") + (isOption ? "option" : what) +
                               (nearest.empty() ? "" : "; the nearest is " + nearest));
}

std::vector<std::string> OptionNames(const Command& command) {
    std::vector<std::string> names{"--help"};
    for (const Option& option : command.options) names.emplace_back(option.name);
    return names;
}

std::string ChosenValue(const Option& option, const std::string& value) {
    const std::vector<std::string> choices = ChoicesOf(option);
    if (choices.empty()) return value;
    const std::string plain = CLI::detail::to_lower(value);
    if (std::find(choices.begin(), choices.end(), plain) != choices.end()) return plain;
    throw Failure(value, std::string("unknown value of ") + option.name + "; " + option.value + " is possible");
}

std::vector<std::string> TakeWords(const Parsed& parsed) {
    std::vector<std::string> words;
    for (const CLI::Option* option : parsed.words) {
        for (const std::string& word : option->results()) {
            words.push_back(word.starts_with(WordMark) ? word.substr(1) : word);
        }
    }
    return words;
}

std::vector<std::pair<std::string, std::string>> TakeOptions(const Command& command, const Parsed& parsed) {
    std::vector<std::pair<std::string, std::string>> options;
    for (std::size_t i = 0; i < parsed.options.size(); ++i) {
        const Option& option = command.options[i];
        const CLI::results_t& results = parsed.options[i]->results();
        if (results.size() > 1) throw Failure(option.name, "given twice");
        if (results.empty()) continue;
        const bool isValued = option.value != nullptr;
        if (!isValued && results[0] != "true") throw Failure(option.name, "takes no value");
        options.emplace_back(option.name, isValued ? ChosenValue(option, results[0]) : "");
    }
    return options;
}

void CheckWords(const Command& command, const Arguments& arguments) {
    if (command.insteadOfWords != nullptr && arguments.Has(command.insteadOfWords)) {
        if (!arguments.Words().empty()) {
            throw Failure(arguments.Words()[0], std::string("is one too many beside ") + command.insteadOfWords);
        }
        return;
    }
    for (std::size_t i = arguments.Words().size(); i < command.words.size(); ++i) {
        if (MayBeMissing(command.words[i])) continue;
        throw Failure(command.name,
                      PlainName(command.words[i]) + " is missing; " + ProgramName + " " + UsageOf(command));
    }
}

Call CallOf(const Command& command, const Parsed& parsed) {
    RefuseRest(*parsed.app, "word", OptionNames(command));
    Call call{&command, Arguments(TakeWords(parsed), TakeOptions(command, parsed)), ""};
    CheckWords(command, call.arguments);
    return call;
}

}  // namespace

Call ParseCall(std::span<const std::string> words) {
    CLI::App program(ProgramSummary);
    program.formatter(std::make_shared<HelpText>());
    program.allow_windows_style_options(false);
    program.allow_extras();
    program.require_subcommand(0, 1);
    CLI::Option* version = program.add_flag("--version")->description("Print the version and exit");
    program.footer(std::string(ProgramName) + " COMMAND --help tells more of one.");
    std::vector<Parsed> parsed;
    std::vector<std::string> known{"--help", "--version"};
    for (const Command* command : Commands()) {
        parsed.push_back(AddCommand(program, *command));
        known.emplace_back(command->name);
    }

    std::vector<std::string> reversed(words.rbegin(), words.rend());
    for (std::string& word : reversed) {
        if (word.starts_with('[')) word.insert(0, 1, WordMark);
    }
    try {
        program.parse(reversed);
    } catch (const CLI::CallForHelp&) {
        return {nullptr, {}, program.help()};
    } catch (const CLI::ParseError& error) {
        throw Failure(error.what());
    }
    RefuseRest(program, "command", known);
    if (version->count() > 0) return {nullptr, {}, std::string(ProgramName) + " " + ProgramVersion + "\n"};
    for (std::size_t i = 0; i < parsed.size(); ++i) {
        if (parsed[i].app->parsed()) return CallOf(*Commands()[i], parsed[i]);
    }
    throw Failure("no command given; --help lists them");
}

}  // namespace VNT::Cli
