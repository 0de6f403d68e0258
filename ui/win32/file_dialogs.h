// The system's dialogs that ask for a file, over any object that answers as they do.
#pragma once

#include <optional>
#include <shobjidl.h>
#include <vector>

#include "ui/dialogs.h"
#include "ui/resources.h"
#include "ui/win32/platform.h"

namespace UI::Win32 {

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
    const wchar_t* GetFileTypeIndex;  // null: the type is not asked for
};

inline constexpr Failures OpenFailures{L"IFileOpenDialog::SetTitle failed.",
                                       L"IFileOpenDialog::SetOkButtonLabel failed.",
                                       L"IFileOpenDialog::SetDefaultExtension failed.",
                                       L"IFileOpenDialog::SetFileTypes failed.",
                                       L"IFileOpenDialog::GetResult failed.",
                                       nullptr};
inline constexpr Failures SaveFailures{L"IFileSaveDialog::SetTitle failed.",
                                       L"IFileSaveDialog::SetOkButtonLabel failed.",
                                       L"IFileSaveDialog::SetDefaultExtension failed.",
                                       L"IFileSaveDialog::SetFileTypes failed.",
                                       L"IFileSaveDialog::GetResult failed.",
                                       L"IFileSaveDialog::GetFileTypeIndex failed."};

inline void Require(HRESULT result, const wchar_t* failure) {
    if (FAILED(result)) throw failure;
}

inline HWND GetOwner(const Window* owner) { return owner ? ToWindow(owner->GetHandle()) : nullptr; }

// Shows the dialog that `create` makes. Nothing if the user cancels it; a step that fails throws its text.
template <class Dialog, class Create>
std::optional<ChosenFile> ChooseFile(const Create& create, const Window* owner, const FileDialog& description,
                                     const Failures& failures) {
    const ComLibrary library;
    ComObject<Dialog> dialog;
    Require(create(&dialog), L"CoCreateInstance failed.");
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
    UINT typeIndex = 1;
    if (failures.GetFileTypeIndex) Require(dialog->GetFileTypeIndex(&typeIndex), failures.GetFileTypeIndex);
    return ChosenFile{static_cast<const wchar_t*>(path), static_cast<int>(typeIndex)};
}

}  // namespace UI::Win32
