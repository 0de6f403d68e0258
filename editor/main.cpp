// The editor's entry: loads the displays, runs the main window on them, saves what was changed.
#include <optional>

#include "editor/main_window.h"
#include "store/entry.h"
#include "store/windows/system_library.h"
#include "store/windows/windows_platform.h"
#include "ui/dialogs.h"
#include "ui/session.h"

namespace {

void ShowError(const wchar_t* text) { UI::ShowMessage(nullptr, text, L"Error"); }

}  // namespace

// The program's start, in the types that stand for the platform's here, where none of its headers is.
extern "C" int __stdcall wWinMain(void*, void*, wchar_t*, int) {
    VNT::ConfineLibrarySearch();
    VNT::WindowsPlatform platform(
        [](const wchar_t* text) { UI::ShowMessage(nullptr, text, L"Error", UI::MessageKind::Error); });
    std::optional<UI::Session> session;
    const auto startDrawing = [&session] {
        session.emplace();
        return 0;
    };
    return VNT::RunEntry(platform, {startDrawing, EditDisplays, ShowError});
}
