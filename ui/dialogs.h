// Message boxes and the dialogs that ask for a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace UI {

class Window;

// The numbers are the platform's.
enum class MessageKind : unsigned { Plain = 0, Error = 16 };

// Returns when the user has closed the box. `owner` may be null.
void ShowMessage(const Window* owner, const std::wstring& text, const std::wstring& caption,
                 MessageKind kind = MessageKind::Plain);

struct FileType {
    std::wstring Name;
    std::wstring Pattern;  // several are parted by ";"
    bool operator==(const FileType&) const = default;
};

struct FileDialog {
    std::wstring Title;
    std::wstring OkLabel;
    std::wstring DefaultExtension;
    std::vector<FileType> Types;
    bool operator==(const FileDialog&) const = default;
};

struct ChosenFile {
    std::filesystem::path Path;
    int TypeIndex = 1;  // of `Types`, counted from 1, where the file is to be saved
    bool operator==(const ChosenFile&) const = default;
};

// Nothing when the user cancels. Each step that the system refuses throws its text, such as "CoInitializeEx failed." or
// "IFileOpenDialog::SetTitle failed."; what was opened till then is released.
std::optional<ChosenFile> ChooseFileToOpen(const Window* owner, const FileDialog& dialog);
std::optional<ChosenFile> ChooseFileToSave(const Window* owner, const FileDialog& dialog);

}  // namespace UI
