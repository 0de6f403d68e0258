#include "app/save_with_rights.h"

#include <algorithm>

#include "model/core/text_string.h"
#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT::App {

namespace {

// A file name of an instance ID: what else is in there is no part of one.
std::string GetFileName(const Display& display) {
    std::string name = String(display.InstanceId).ToUtf8();
    std::replace_if(
        name.begin(), name.end(),
        [](unsigned char c) { return c >= 0x80 || !(std::isalnum(c) || c == '-' || c == '_' || c == '.'); }, '-');
    return name + ".bin";
}

std::wstring ToWide(const std::string& text) { return String(std::string_view(text)).ToWide(); }

}  // namespace

std::string Quote(const std::string& word) {
    constexpr const char* plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./:=@";
    if (!word.empty() && word.find_first_not_of(plain) == std::string::npos) return word;
    std::string quoted = "'";
    for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

Words SaveWithRights::GetCommand(const Display& display, const fs::path& file) const {
    Words words{commandLine.string(), "write"};
    if (store) words.insert(words.end(), {"--store", fs::absolute(*store).string()});
    words.insert(words.end(), {"--", String(display.InstanceId).ToUtf8(), file.string()});
    return words;
}

bool SaveWithRights::SaveOne(Display& display) {
    const fs::path file = folder / GetFileName(display);
    std::error_code error;
    fs::create_directories(folder, error);
    if (error || !WriteFile(file, display.CurrentData, Links::Replace)) return false;
    const Words command = GetCommand(display, file);
    Words withRights{"pkexec"};
    withRights.insert(withRights.end(), command.begin(), command.end());
    if (run(withRights) == 0) {
        fs::remove(file, error);
        display.Saved = true;
        display.OverrideData = display.CurrentData;
        return true;
    }
    std::string line = "sudo";
    for (const std::string& word : command) line += " " + Quote(word);
    advice += L"\n" + ToWide(line);
    return false;
}

bool SaveWithRights::Save(DisplayList& displays) {
    advice.clear();
    bool isAllSaved = true;
    for (Display& display : displays) {
        if (!display.Saved) isAllSaved = SaveOne(display) && isAllSaved;
    }
    if (!advice.empty()) {
        advice = L"Not all changes were saved. What is missing is kept in " + ToWide(folder.string()) +
                 L", and this saves it:\n" + advice;
    }
    return isAllSaved;
}

}  // namespace VNT::App
