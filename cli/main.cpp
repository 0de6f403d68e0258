#include <iostream>

#include "cli/command.h"
#include "model/core/text_string.h"
#include "store/system_files.h"
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include "store/windows/system_library.h"
#include "store/windows/windows_platform.h"
#elif defined(__linux__)
#include "cli/linux_store.h"
#include "store/linux/system_host.h"
#endif

namespace {

int RunProgram(std::vector<std::string> arguments) {
    VNT::SystemFiles::HoldStandardStreams();
    VNT::Cli::Console console{std::cin, std::cout, std::cerr, {}};
#ifdef _WIN32
    // Lines end in "\n" and files are bytes, here as elsewhere.
    for (const int stream : {0, 1, 2}) _setmode(stream, _O_BINARY);
    console.openSystemStore = [](const VNT::Cli::StoreMode& mode, const VNT::Cli::Console&) {
        if (!mode.IsUsual()) return std::unique_ptr<VNT::WindowsPlatform>();
        return std::make_unique<VNT::WindowsPlatform>(
            [](const wchar_t* text) { std::cerr << "vantelle-cli: " << VNT::String(text).ToUtf8() << "\n"; });
    };
#elif defined(__linux__)
    console.openSystemStore = [](const VNT::Cli::StoreMode& mode, const VNT::Cli::Console& own) {
        return VNT::Cli::OpenLinuxStore(std::make_unique<VNT::Linux::SystemHost>("/"), mode, own);
    };
#endif
    return VNT::Cli::Run(arguments, console);
}

}  // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** words) {
    VNT::ConfineLibrarySearch();
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(VNT::String(words[i]).ToUtf8());
    return RunProgram(std::move(arguments));
}
#else
int main(int count, char** words) { return RunProgram({words + (count > 0 ? 1 : 0), words + count}); }
#endif
