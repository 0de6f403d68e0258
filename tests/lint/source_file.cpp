#include "tests/lint/source_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace Lint {

namespace {

constexpr std::string_view Rooms[] = {"model", "json", "picture", "store", "ui",   "editor",
                                      "app",   "cli",  "samples", "tests", "fuzz", "bench"};

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool IsWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

// Where the comment or literal that starts at `at` ends; `at` itself if none starts there.
std::size_t EndOfBlank(std::string_view text, std::size_t at) {
    const auto after = [&](std::string_view mark, std::size_t from) {
        const std::size_t found = text.find(mark, from);
        return found == std::string_view::npos ? text.size() : found + mark.size();
    };
    const bool inWord = at > 0 && IsWordCharacter(text[at - 1]);
    const std::string_view rest = text.substr(at);
    if (rest.starts_with("//")) return std::min(text.find('\n', at), text.size());
    if (rest.starts_with("/*")) return after("*/", at + 2);
    if (rest.starts_with("R\"")) {
        const std::size_t open = std::min(rest.find('('), rest.size());
        return after(")" + std::string(rest.substr(2, open - 2)) + "\"", at + open);
    }
    if (rest[0] != '"' && (rest[0] != '\'' || inWord)) return at;  // a ' in a number parts its digits
    for (std::size_t end = at + 1; end < text.size(); ++end) {
        if (text[end] == '\\') {
            ++end;
        } else if (text[end] == rest[0] || text[end] == '\n') {
            return end + 1;
        }
    }
    return text.size();
}

std::string ReadText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

SourceFile::SourceFile(std::string where, std::string_view text)
    : path(std::move(where)), lines(LinesOf(text)), code(LinesOf(OnlyCode(text))) {}

std::string OnlyCode(std::string_view text) {
    std::string code(text);
    for (std::size_t at = 0; at < code.size();) {
        const std::size_t end = EndOfBlank(text, at);
        if (end == at) {
            ++at;
            continue;
        }
        for (; at < end; ++at) {
            if (code[at] != '\n') code[at] = ' ';
        }
    }
    return code;
}

std::vector<SourceFile> ReadTree(const std::string& folder) {
    namespace fs = std::filesystem;
    std::vector<SourceFile> files;
    for (const std::string_view room : Rooms) {
        if (!fs::is_directory(fs::path(folder) / room)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(folder) / room)) {
            const fs::path& path = entry.path();
            if (path.extension() != ".h" && path.extension() != ".cpp") continue;
            files.emplace_back(path.lexically_relative(folder).generic_string(), ReadText(path));
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

}  // namespace Lint
