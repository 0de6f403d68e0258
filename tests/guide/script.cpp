#include "tests/guide/script.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

#include "model/core/text_string.h"

namespace Guide {

namespace {

std::string Trim(const std::string& text) {
    const auto begin = text.find_first_not_of(" \t\r\n");
    if (begin == std::string::npos) return {};
    return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

// A text that may go over the end of a line is read with one blank there.
std::string JoinLines(const std::string& text) {
    std::istringstream words(text);
    std::string joined;
    for (std::string word; words >> word;) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

// What stands between two marks, one behind the other.
std::vector<std::string> FindBetween(const std::string& text, const std::string& open, const std::string& close) {
    std::vector<std::string> found;
    for (std::size_t begin = text.find(open); begin != std::string::npos;) {
        begin += open.size();
        const std::size_t end = text.find(close, begin);
        if (end == std::string::npos) break;
        found.push_back(text.substr(begin, end - begin));
        begin = text.find(open, end + close.size());
    }
    return found;
}

class PageReader {
public:
    PageReader(std::string name, const std::string& text) : name_(std::move(name)), text_(text) {}

    Page Read() {
        std::size_t at = 0;
        for (;;) {
            const std::size_t begin = text_.find("<!--", at);
            ReadText(text_.substr(at, begin - at));
            if (begin == std::string::npos) return page_;
            const std::size_t end = text_.find("-->", begin);
            line_ = 1 + std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(begin), '\n');
            if (end == std::string::npos) {
                Fail("a comment without an end");
                return page_;
            }
            ReadComment(text_.substr(begin + 4, end - begin - 4));
            at = end + 3;
        }
    }

private:
    std::string Place() const { return name_ + ":" + std::to_string(line_); }
    void Fail(const std::string& what) { page_.errors.push_back(Place() + ": " + what); }

    void ReadText(const std::string& text) {
        for (const std::string& picture : FindBetween(text, "](pictures/", ".png)")) page_.pictures.push_back(picture);
        for (const std::string& bold : FindBetween(text, "**", "**")) shown_.push_back(FromUtf8(JoinLines(bold)));
    }

    void ReadComment(const std::string& comment) {
        constexpr std::string_view mark = "task:";
        const std::string whole = Trim(comment);
        if (whole.starts_with(mark)) {
            page_.tasks.push_back({Trim(whole.substr(mark.size())), {}});
            shown_.clear();
            return;
        }
        if (page_.tasks.empty()) return Fail("commands before the first task");
        Step step{std::exchange(shown_, {}), {}, Place()};
        std::istringstream lines(comment);
        for (std::string line; std::getline(lines, line); ++line_) {
            if (!Trim(line).empty()) step.commands.push_back(ReadCommand(Trim(line)));
        }
        if (step.commands.empty()) return Fail("a step without a command");
        page_.tasks.back().steps.push_back(std::move(step));
    }

    // A verb, then words in quotation marks, and "#2" for the second of several.
    Command ReadCommand(const std::string& line) {
        Command command{line.substr(0, line.find(' ')), {}, 0, Place()};
        std::size_t at = command.verb.size();
        for (; at < line.size(); ++at) {
            if (line[at] == ' ') continue;
            if (line[at] == '#') {
                const std::size_t end = std::min(line.find(' ', at), line.size());
                command.nth = std::atoi(line.substr(at + 1, end - at - 1).c_str()) - 1;
                at = end;
                continue;
            }
            const std::size_t end = line.find('"', at + 1);
            if (line[at] != '"' || end == std::string::npos) {
                Fail("no command: " + line);
                break;
            }
            command.words.push_back(FromUtf8(line.substr(at + 1, end - at - 1)));
            at = end;
        }
        return command;
    }

    std::string name_;
    const std::string& text_;
    std::ptrdiff_t line_ = 1;
    Page page_;
    std::vector<std::wstring> shown_;
};

}  // namespace

Page ReadPage(const std::string& name, const std::string& text) { return PageReader(name, text).Read(); }

std::vector<Page> ReadPages(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (file.path().extension() == ".md") files.push_back(file.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<Page> pages;
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        pages.push_back(ReadPage(file.filename().string(), text.str()));
    }
    return pages;
}

std::wstring FromUtf8(const std::string& text) { return VNT::String(text).ToWide(); }
std::string ToUtf8(const std::wstring& text) { return VNT::String(text).ToUtf8(); }

}  // namespace Guide
