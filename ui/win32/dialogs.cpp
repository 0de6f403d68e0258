// Message boxes and the system's dialogs that ask for a file.
#include "ui/dialogs.h"

#include "ui/win32/file_dialogs.h"

namespace UI {

using namespace Win32;

namespace {

template <class Dialog>
auto CreatorOf(const CLSID& id) {
    return [&id](Dialog** dialog) {
        return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Dialog), reinterpret_cast<void**>(dialog));
    };
}

}  // namespace

void ShowMessage(const Window* owner, const std::wstring& text, const std::wstring& caption, MessageKind kind) {
    MessageBoxW(GetOwner(owner), text.c_str(), caption.c_str(), static_cast<UINT>(kind));
}

std::optional<ChosenFile> ChooseFileToOpen(const Window* owner, const FileDialog& dialog) {
    return ChooseFile<IFileOpenDialog>(CreatorOf<IFileOpenDialog>(CLSID_FileOpenDialog), owner, dialog, OpenFailures);
}

std::optional<ChosenFile> ChooseFileToSave(const Window* owner, const FileDialog& dialog) {
    return ChooseFile<IFileSaveDialog>(CreatorOf<IFileSaveDialog>(CLSID_FileSaveDialog), owner, dialog, SaveFailures);
}

}  // namespace UI
