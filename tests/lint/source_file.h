#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Lint {

// A C++ file of the project.
struct SourceFile {
    std::string path;  // from the project's folder, with "/"
    std::vector<std::string> lines;
    std::vector<std::string> code;  // the same lines with comments and the insides of literals as blanks

    SourceFile(std::string where, std::string_view text);
    bool IsIn(std::string_view folder) const { return path.starts_with(folder); }
    bool IsHeader() const { return path.ends_with(".h"); }
};

// The text with comments and the insides of text and character literals as blanks; its lines and columns stay.
std::string OnlyCode(std::string_view text);

// All C++ files of the project's folder.
std::vector<SourceFile> ReadTree(const std::string& folder);

}  // namespace Lint
