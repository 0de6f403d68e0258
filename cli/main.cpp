#include <iostream>

#include "cli/command.h"
#include "model/core/text_string.h"
#include "store/system_files.h"
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include "store/windows/system_library.h"
#include "store/windows/windows_platform.h"
#endif

namespace {

int RunProgram(std::vector<std::string> arguments) {
    VNT::SystemFiles::HoldStandardStreams();
    VNT::Cli::Console console{std::cin, std::cout, std::cerr, {}};
#ifdef _WIN32
    // Lines end in "\n" and files are bytes, here as elsewhere.
    for (const int stream : {0, 1, 2}) _setmode(stream, _O_BINARY);
    console.openSystemStore = [] {
        return std::make_unique<VNT::WindowsPlatform>(
            [](const wchar_t* text) { std::cerr << "vantelle-cli: " << VNT::String(text).ToUtf8() << "\n"; });
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
