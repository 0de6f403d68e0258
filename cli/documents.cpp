#include "cli/documents.h"

#include <string_view>

#include "cli/commands.h"

namespace VNT::Cli {

namespace {

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string Quoted(const std::string& text) { return "'" + Replaced(text, "'", "'\\''") + "'"; }

std::string Joined(const std::string& a, const std::string& b) { return a.empty() || b.empty() ? a + b : a + " " + b; }

std::string CommandNames() {
    std::string names;
    for (const Command* command : Commands()) names = Joined(names, command->name);
    return names;
}

std::string OptionNames(const Command& command) {
    std::string names = "--help";
    for (const Option& option : command.options) names = Joined(names, option.name);
    return names;
}

// What a word or the value of an option is completed from, by what the table calls it.
enum class Source { Files, Folders, Displays, Modes, Choices, Nothing };

Source SourceOf(std::string_view name) {
    if (name.find('|') != name.npos) return Source::Choices;
    if (name == "DIR") return Source::Folders;
    if (name == "DISPLAY") return Source::Displays;
    if (name == "MODE") return Source::Modes;
    for (const std::string_view file : {"FILE", "OUT", "JSON", "A", "B"}) {
        const std::string_view plain = name.substr(name.starts_with('[') ? 1 : 0);
        if (plain == file || (plain.starts_with(file) && plain.find_first_of(".]", file.size()) == file.size())) {
            return Source::Files;
        }
    }
    return Source::Nothing;
}

// The lines that a call of the program prints, as words: without blanks, as it takes them, too.
constexpr const char* DisplaysCall = "vantelle-cli list --all 2>/dev/null | cut -f3";
constexpr const char* ModesCall = "vantelle-cli timing --list 2>/dev/null | tr ' A-Z' '-a-z'";

std::string BashWords(const std::string& words) { return "COMPREPLY=($(compgen -W \"" + words + "\" -- \"$word\"))"; }

std::string BashReply(std::string_view name) {
    switch (SourceOf(name)) {
        case Source::Choices:
            return BashWords(Replaced(std::string(name), "|", " "));
        case Source::Folders:
            return "COMPREPLY=($(compgen -d -- \"$word\"))";
        case Source::Files:
            return "COMPREPLY=($(compgen -f -- \"$word\"))";
        case Source::Displays:
            return std::string("COMPREPLY=(); while IFS= read -r id; do [[ $id == \"${plain^^}\"* ]] && ") +
                   "COMPREPLY+=(\"$id\"); done < <(" + DisplaysCall + ")";
        case Source::Modes:
            return BashWords(std::string("$(") + ModesCall + ")");
        case Source::Nothing:
            break;
    }
    return "COMPREPLY=()";
}

// One case of a command: its options, what stands behind each of them, and its words by their place.
std::string BashCase(const Command& command) {
    std::string text = std::string("    ") + command.name + ")\n      case $before in\n";
    std::string valued;
    for (const Option& option : command.options) {
        if (option.value == nullptr) continue;
        text += std::string("        ") + option.name + ") " + BashReply(option.value) + "; return ;;\n";
        valued += (valued.empty() ? "" : "|") + std::string(option.name);
    }
    text += "      esac\n";
    text += "      if [[ $word == -* ]]; then " + BashWords(OptionNames(command)) + "; return; fi\n";
    text += "      case $(_vantelle_cli_place '" + valued + "') in\n";
    int place = 0;
    for (const Word& word : command.words) {
        const bool more = std::string_view(word.name).ends_with("...");
        text += "        " + (more ? "*" : std::to_string(place)) + ") " + BashReply(word.name) + " ;;\n";
        ++place;
    }
    return text + "      esac ;;\n";
}

std::string ZshLinesOf(const std::string& call) {
    return "{local -a found; found=(${(f)\"$(" + call + ")\"}); compadd -a found}";
}

std::string ZshAction(std::string_view name) {
    switch (SourceOf(name)) {
        case Source::Choices:
            return "(" + Replaced(std::string(name), "|", " ") + ")";
        case Source::Folders:
            return "_files -/";
        case Source::Files:
            return "_files";
        case Source::Displays:
            return ZshLinesOf(DisplaysCall);
        case Source::Modes:
            return ZshLinesOf(ModesCall);
        case Source::Nothing:
            break;
    }
    return " ";
}

// In a text of _arguments the colon and brackets have a meaning.
std::string ZshText(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        if (c == ':' || c == '[' || c == ']' || c == '\\') plain += '\\';
        plain += c;
    }
    return plain;
}

std::string ZshCase(const Command& command) {
    std::string text = std::string("    ") + command.name + ")\n      _arguments \\\n        '--help[print the help]'";
    for (const Option& option : command.options) {
        std::string line = std::string(option.name) + "[" + ZshText(option.help) + "]";
        if (option.value != nullptr) line += ":" + ZshText(option.name) + ":" + ZshAction(option.value);
        text += " \\\n        " + Quoted(line);
    }
    for (const Word& word : command.words) {
        const bool more = std::string_view(word.name).ends_with("...");
        const bool optional = word.name[0] == '[';
        const std::string line = (more       ? "*:"
                                  : optional ? "::"
                                             : ":") +
                                 ZshText(word.help) + ":" + ZshAction(word.name);
        text += " \\\n        " + Quoted(line);
    }
    return text + " ;;\n";
}

// Text of a manual: a hyphen is one that can be copied, and no line begins with a request.
std::string Roff(const std::string& text) {
    std::string plain = Replaced(Replaced(text, "\\", "\\e"), "-", "\\-");
    return plain.starts_with('.') || plain.starts_with('\'') ? "\\&" + plain : plain;
}

std::string RoffEntry(const std::string& term, const std::string& text) {
    return ".TP\n.B " + Roff(term) + "\n" + Roff(text) + ".\n";
}

std::string ManualOf(const Command& command) {
    std::string text = ".SS " + Roff(command.name) + "\n.B " + Roff(std::string(ProgramName) + " " + UsageOf(command)) +
                       "\n.PP\nThis command " + Roff(command.summary) + ".\n";
    for (const Word& word : command.words) text += RoffEntry(word.name, word.help);
    for (const Option& option : command.options) {
        const std::string value = option.value != nullptr ? std::string(" ") + option.value : "";
        text += RoffEntry(option.name + value, option.help);
    }
    return text + ".PP\nExample:\n.RS\n.nf\n" +
           Roff(std::string(ProgramName) + " " + command.name + " " + command.example) + "\n.fi\n.RE\n";
}

}  // namespace

std::string MakeBashCompletion() {
    std::string text = "# bash completion of vantelle-cli; made from the table of its commands\n\n";
    // How many words stand before the one that is being typed, options and their values left out.
    text +=
        "_vantelle_cli_place() {\n"
        "  local i place=0\n"
        "  for ((i = 2; i < COMP_CWORD; i++)); do\n"
        "    if [[ -n $1 && ${COMP_WORDS[i]} == @($1) ]]; then ((i++))\n"
        "    elif [[ ${COMP_WORDS[i]} != --* ]]; then ((place++)); fi\n"
        "  done\n"
        "  echo \"$place\"\n"
        "}\n\n";
    text +=
        "_vantelle_cli() {\n"
        "  shopt -s extglob\n"
        "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
        // Typed for the shell: an instance ID has backslashes and ampersands.
        "  local id plain=${word//'\\\\'/'\\'}\n"
        "  plain=${plain//'\\&'/'&'}\n"
        "  COMPREPLY=()\n"
        "  if ((COMP_CWORD == 1)); then " +
        BashWords(CommandNames() + " --help --version") +
        "; return; fi\n"
        "  case ${COMP_WORDS[1]} in\n";
    for (const Command* command : Commands()) text += BashCase(*command);
    return text + "  esac\n}\n\nshopt -s extglob\ncomplete -o filenames -F _vantelle_cli vantelle-cli\n";
}

std::string MakeZshCompletion() {
    std::string text =
        "#compdef vantelle-cli\n# made from the table of its commands\n\n"
        "_vantelle_cli() {\n  local -a commands\n  commands=(\n";
    for (const Command* command : Commands()) {
        text += "    " + Quoted(std::string(command->name) + ":" + command->summary) + "\n";
    }
    text +=
        "  )\n  if ((CURRENT == 2)); then\n    _describe command commands\n    return\n  fi\n"
        "  local name=$words[2]\n  shift words\n  ((CURRENT--))\n  case $name in\n";
    for (const Command* command : Commands()) text += ZshCase(*command);
    return text + "  esac\n}\n\n_vantelle_cli \"$@\"\n";
}

std::string MakeManual() {
    std::string text = std::string(".TH VANTELLE\\-CLI 1 \"\" \"") + ProgramName + " " + ProgramVersion +
                       "\" \"User Commands\"\n.SH NAME\n" + Roff(ProgramName) + " \\- " + Roff(ProgramSummary) +
                       "\n.SH SYNOPSIS\n";
    for (const Command* command : Commands()) {
        text += ".B " + Roff(std::string(ProgramName) + " " + UsageOf(*command)) + "\n.br\n";
    }
    text += ".B " + Roff(std::string(ProgramName) + " --help | --version") + "\n.SH COMMANDS\n";
    for (const Command* command : Commands()) text += ManualOf(*command);
    text +=
        ".SH EXIT STATUS\n"
        ".TP\n.B 0\nSuccess.\n"
        ".TP\n.B 1\nA negative finding: a problem, a difference, a timing that is not valid.\n"
        ".TP\n.B 2\nBad usage, a file that can't be read, output that can't be written, a store that refused.\n"
        ".SH FILES\n"
        ".TP\n.I displays/\nThe folder of displays, where the machine has no store of its own and\n.B \\-\\-store\n"
        "names no other.\n";
    return text;
}

}  // namespace VNT::Cli
