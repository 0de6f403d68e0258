// Message boxes and the system's dialogs that ask for a file.
#include "ui/dialogs.h"

#include <shobjidl.h>

#include "ui/win32/platform.h"

namespace UI {

using namespace Win32;

namespace {

HWND GetOwner(const Window* owner) { return owner ? ToWindow(owner->GetHandle()) : nullptr; }

// The object library, for as long as a dialog needs it.
class ComLibrary {
public:
    ComLibrary() {
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {
            throw L"CoInitializeEx failed.";
        }
    }
    ComLibrary(const ComLibrary&) = delete;
    ComLibrary& operator=(const ComLibrary&) = delete;
    ~ComLibrary() { CoUninitialize(); }

private:
    LiveResource live{Resource::SystemObject};
};

// Owns one reference to an object of the system, or none.
template <class Interface>
class ComObject {
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    ~ComObject() {
        if (object) object->Release();
    }
    Interface** operator&() { return &object; }
    Interface* operator->() const { return object; }

private:
    LiveResource live{Resource::SystemObject};
    Interface* object = nullptr;
};

// A text that the system gave and that its allocator takes back.
class ComText {
public:
    ComText() = default;
    ComText(const ComText&) = delete;
    ComText& operator=(const ComText&) = delete;
    ~ComText() { CoTaskMemFree(text); }
    wchar_t** operator&() { return &text; }
    operator const wchar_t*() const { return text; }

private:
    LiveResource live{Resource::SystemObject};
    wchar_t* text = nullptr;
};

// What the two dialogs throw when a step fails.
struct Failures {
    const wchar_t* SetTitle;
    const wchar_t* SetOkButtonLabel;
    const wchar_t* SetDefaultExtension;
    const wchar_t* SetFileTypes;
    const wchar_t* GetResult;
    const wchar_t* GetFileTypeIndex;
};

constexpr Failures OpenFailures{L"IFileOpenDialog::SetTitle failed.",
                                L"IFileOpenDialog::SetOkButtonLabel failed.",
                                L"IFileOpenDialog::SetDefaultExtension failed.",
                                L"IFileOpenDialog::SetFileTypes failed.",
                                L"IFileOpenDialog::GetResult failed.",
                                L"IFileOpenDialog::GetFileTypeIndex failed."};
constexpr Failures SaveFailures{L"IFileSaveDialog::SetTitle failed.",
                                L"IFileSaveDialog::SetOkButtonLabel failed.",
                                L"IFileSaveDialog::SetDefaultExtension failed.",
                                L"IFileSaveDialog::SetFileTypes failed.",
                                L"IFileSaveDialog::GetResult failed.",
                                L"IFileSaveDialog::GetFileTypeIndex failed."};

void Require(HRESULT result, const wchar_t* failure) {
    if (FAILED(result)) throw failure;
}

template <class Dialog>
std::optional<ChosenFile> Choose(const CLSID& id, const Window* owner, const FileDialog& description,
                                 const Failures& failures) {
    const ComLibrary library;
    ComObject<Dialog> dialog;
    Require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Dialog), reinterpret_cast<void**>(&dialog)),
            L"CoCreateInstance failed.");
    Require(dialog->SetTitle(description.Title.c_str()), failures.SetTitle);
    Require(dialog->SetOkButtonLabel(description.OkLabel.c_str()), failures.SetOkButtonLabel);
    Require(dialog->SetDefaultExtension(description.DefaultExtension.c_str()), failures.SetDefaultExtension);
    std::vector<COMDLG_FILTERSPEC> types;
    for (const FileType& type : description.Types) types.push_back({type.Name.c_str(), type.Pattern.c_str()});
    Require(dialog->SetFileTypes(static_cast<UINT>(types.size()), types.data()), failures.SetFileTypes);
    if (FAILED(dialog->Show(GetOwner(owner)))) return std::nullopt;

    ComObject<IShellItem> item;
    Require(dialog->GetResult(&item), failures.GetResult);
    ComText path;
    Require(item->GetDisplayName(SIGDN_FILESYSPATH, &path), L"IShellItem::GetDisplayName failed.");
    UINT typeIndex = 0;
    Require(dialog->GetFileTypeIndex(&typeIndex), failures.GetFileTypeIndex);
    return ChosenFile{static_cast<const wchar_t*>(path), static_cast<int>(typeIndex)};
}

}  // namespace

void ShowMessage(const Window* owner, const std::wstring& text, const std::wstring& caption, MessageKind kind) {
    MessageBoxW(GetOwner(owner), text.c_str(), caption.c_str(), static_cast<UINT>(kind));
}

std::optional<ChosenFile> ChooseFileToOpen(const Window* owner, const FileDialog& dialog) {
    return Choose<IFileOpenDialog>(CLSID_FileOpenDialog, owner, dialog, OpenFailures);
}

std::optional<ChosenFile> ChooseFileToSave(const Window* owner, const FileDialog& dialog) {
    return Choose<IFileSaveDialog>(CLSID_FileSaveDialog, owner, dialog, SaveFailures);
}

}  // namespace UI
