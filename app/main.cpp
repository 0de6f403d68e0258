// The native program: edits the displays of this machine, those of a folder, or one file.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>

#include "app/arguments.h"
#include "app/edit_file.h"
#include "app/run_command.h"
#include "app/save_with_rights.h"
#include "app/system_store.h"
#include "editor/main_window.h"
#include "model/core/text_string.h"
#include "store/directory/directory_platform.h"
#include "store/entry.h"
#include "ui/dialogs.h"
#include "ui/session.h"

namespace fs = std::filesystem;

namespace {

constexpr int WrongUse = 2;

void ShowError(const wchar_t* text) {
    std::cerr << "vantelle: " << VNT::String(text).ToUtf8() << "\n";
    UI::ShowMessage(nullptr, text, L"Error");
}

bool HasScreen() {
    for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        const char* value = std::getenv(name);
        if (value && *value) return true;
    }
    return false;
}

// The command line stands beside this program.
fs::path FindCommandLine() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path() / "vantelle-cli";
}

// Where what could not be saved waits, for this user's eyes alone.
fs::path GetStateFolder() {
    const auto get = [](const char* name) {
        const char* value = std::getenv(name);
        return fs::path(value ? value : "");
    };
    const fs::path state = get("XDG_STATE_HOME");
    return (state.is_absolute() ? state : get("HOME") / ".local" / "state") / "vantelle" / "unsaved";
}

// The machine's own displays unless a folder is named; where there is no way to those, a folder of the usual name.
std::unique_ptr<VNT::Platform> OpenStore(const std::optional<fs::path>& store) {
    if (!store) {
        if (auto system = VNT::App::OpenSystemStore()) return system;
    }
    const fs::path folder = store.value_or("displays");
    std::error_code error;
    if (fs::is_directory(folder, error)) return std::make_unique<VNT::DirectoryPlatform>(folder);
    std::cerr << "vantelle: " << folder.string() << ": is no folder of displays\n";
    return nullptr;
}

}  // namespace

int main(int count, char** words) {
    const VNT::App::Arguments arguments = VNT::App::ReadArguments({words + (count > 0 ? 1 : 0), words + count});
    if (!arguments.error.empty()) {
        std::cerr << "vantelle: " << arguments.error << "\n" << VNT::App::Usage;
        return WrongUse;
    }
    if (arguments.help || arguments.version) {
        std::cout << (arguments.help ? VNT::App::Usage : "vantelle " VANTELLE_VERSION "\n");
        return 0;
    }
    if (!HasScreen()) {
        std::cerr << "vantelle: there is no screen here: neither WAYLAND_DISPLAY nor DISPLAY is set\n";
        return 1;
    }
    std::optional<UI::Session> session;
    VNT::App::SaveWithRights saving(FindCommandLine(), GetStateFolder(), arguments.store, VNT::App::RunCommandToEnd);
    VNT::EntryScreen screen{[&session] {
                                session.emplace();
                                return 0;
                            },
                            EditDisplays, ShowError,
                            [&saving](VNT::DisplayList& displays) {
                                if (saving.Save(displays)) return true;
                                if (!saving.GetAdvice().empty()) throw saving.GetAdvice().c_str();
                                return false;
                            }};
    if (arguments.file) return VNT::App::EditFile(*arguments.file, screen);
    const std::unique_ptr<VNT::Platform> platform = OpenStore(arguments.store);
    return platform ? VNT::RunEntry(*platform, screen) : 1;
}
