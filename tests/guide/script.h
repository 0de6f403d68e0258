// The guide's tasks as scripts. A task begins at a comment "<!-- task: name -->" of its Markdown file; a comment behind
// a step holds the commands that do on the program what the step tells the reader to do:
//
//     2. Below **Standard resolutions** press **Add...**.
//        <!--
//        click "Standard resolutions" "Add..."
//        -->
//
// What stands in bold is what the reader looks for on the screen. `player.h` lists the commands.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Guide {

struct Command {
    std::string verb;
    std::vector<std::wstring> words;
    int nth = 0;        // "#2": the second box behind a label is 1
    std::string place;  // "file.md:12"
};

// The commands of one comment, and what the text before them shows in bold.
struct Step {
    std::vector<std::wstring> shown;
    std::vector<Command> commands;
    std::string place;
};

struct Task {
    std::string name;
    std::vector<Step> steps;
};

// What a file says, in the order in which it says it. `errors` tells what no script can be made of.
struct Page {
    std::vector<Task> tasks;
    std::vector<std::string> pictures;  // that the text shows
    std::vector<std::string> errors;
};

Page ReadPage(const std::string& name, const std::string& text);

// All pages of a folder, by name.
std::vector<Page> ReadPages(const std::filesystem::path& folder);

std::wstring FromUtf8(const std::string& text);
std::string ToUtf8(const std::wstring& text);

}  // namespace Guide
