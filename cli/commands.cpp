#include "cli/commands.h"

namespace VNT::Cli {

const char* const ProgramVersion = VANTELLE_VERSION;

extern const Command ShowCommand, CheckCommand, ConvertCommand;
extern const Command JsonCommand, BuildCommand, DiffCommand, SchemaCommand;
extern const Command InfCommand, PictureCommand;
extern const Command TimingCommand;
extern const Command ListCommand, ReadCommand, WriteCommand, ResetCommand;

std::span<const Command* const> Commands() {
    static constexpr const Command* commands[] = {
        &ShowCommand, &CheckCommand,   &ConvertCommand, &JsonCommand, &BuildCommand, &DiffCommand,  &SchemaCommand,
        &InfCommand,  &PictureCommand, &TimingCommand,  &ListCommand, &ReadCommand,  &WriteCommand, &ResetCommand,
    };
    return commands;
}

std::string UsageOf(const Command& command) {
    std::string usage = command.name;
    for (const Word& word : command.words) usage.append(" ").append(word.name);
    if (command.insteadOfWords != nullptr) usage.append(" | ").append(command.insteadOfWords);
    for (const Option& option : command.options) {
        if (command.insteadOfWords != nullptr && std::string(option.name) == command.insteadOfWords) continue;
        usage.append(" [").append(option.name);
        if (option.value != nullptr) usage.append(" ").append(option.value);
        usage.append("]");
    }
    return usage;
}

}  // namespace VNT::Cli
