#include "app/arguments.h"

namespace VNT::App {

const char* const Usage =
    "usage: vantelle [FILE] [--store DIR]\n"
    "\n"
    "  FILE         edits this file (BIN, DAT or TXT) in place of the displays\n"
    "  --store DIR  edits the displays of this folder in place of the machine's\n"
    "  --help       prints this\n"
    "  --version    prints the version\n";

Arguments ReadArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    const auto fail = [&arguments](const std::string& error) {
        arguments.error = error;
        return arguments;
    };
    const std::string storeEquals = "--store=";
    bool areOptionsOver = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool isOption = !areOptionsOver && word.size() > 1 && word.starts_with('-');
        if (!isOption) {
            if (arguments.file) return fail(word + ": one file at a time");
            arguments.file = word;
        } else if (word == "--") {
            areOptionsOver = true;
        } else if (word == "--help" || word == "-h") {
            arguments.help = true;
        } else if (word == "--version") {
            arguments.version = true;
        } else if (word == "--store") {
            if (i + 1 == words.size()) return fail("--store: which folder?");
            arguments.store = words[++i];
        } else if (word.starts_with(storeEquals)) {
            arguments.store = word.substr(storeEquals.size());
        } else {
            return fail(word + ": no such option");
        }
    }
    if (arguments.file && arguments.store) return fail("a file and a folder of displays at once");
    return arguments;
}

}  // namespace VNT::App
