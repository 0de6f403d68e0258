#include <filesystem>
#include <fstream>

#include "cli/documents.h"

// make-cli-documents FOLDER: the completions and the manual of vantelle-cli.
int main(int count, char** words) {
    if (count != 2) return 2;
    const std::filesystem::path folder = words[1];
    std::filesystem::create_directories(folder);
    const std::pair<const char*, std::string> documents[] = {
        {"vantelle-cli.bash", VNT::Cli::MakeBashCompletion()},
        {"_vantelle-cli", VNT::Cli::MakeZshCompletion()},
        {"vantelle-cli.1", VNT::Cli::MakeManual()},
    };
    for (const auto& [name, text] : documents) {
        std::ofstream out(folder / name, std::ios::binary);
        out << text;
        out.close();
        if (!out) return 1;
    }
    return 0;
}
