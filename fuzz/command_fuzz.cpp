// The command line: any words end with a status of the three and, where they are refused, with a reason.

#include <algorithm>
#include <fstream>
#include <sstream>

#include "cli/commands.h"
#include "fuzz/fuzz.h"
#include "fuzz/fuzz_folder.h"
#include "model/core/bytes.h"
#include "samples/displays.h"
#include "store/memory/memory_platform.h"

namespace {

using namespace VNT;
namespace fs = std::filesystem;

constexpr int MostWords = 8;
constexpr int MostLength = 24;
constexpr const char* UsualWords[] = {"a.bin", "b.json", "c.txt",  "-",  "out.bin", "cvt-rb", "1920x1080",
                                      "60",    "1",      "--help", "--", "dir",     "",       "DISPLAY\\LIA0001\\1",
                                      "0",     "--store"};

// The program works there as long as this lives; the fuzzer's own files are elsewhere.
class WorkingFolder {
public:
    explicit WorkingFolder(const fs::path& folder) : before_(fs::current_path()) { fs::current_path(folder); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        std::error_code ignored;
        fs::current_path(before_, ignored);
    }

private:
    fs::path before_;
};

// No word leads out of the folder that the program works in.
std::string Harmless(std::string word) {
    std::replace(word.begin(), word.end(), '/', '_');
    std::replace(word.begin(), word.end(), '\0', '_');
    return word;
}

std::string WordFrom(ByteRange& input, const Cli::Command& command) {
    const std::uint32_t kind = input.ReadLsb(8);
    if (kind < 96) return UsualWords[kind % std::size(UsualWords)];
    if (kind < 192) {
        if (command.options.empty()) return "--";
        const Cli::Option& option = command.options[kind % command.options.size()];
        return option.name + std::string(kind >= 160 ? "=1" : "");
    }
    const ByteRange text = input.Take(static_cast<int>(kind % MostLength));
    return Harmless({reinterpret_cast<const char*>(text.data), static_cast<std::size_t>(text.size)});
}

void PutFiles(const FuzzFolder& folder, ByteRange content) {
    folder.Clear();
    std::ofstream(folder.Path() / "a.bin", std::ios::binary)
        .write(reinterpret_cast<const char*>(Samples::MakeDisplays()[1].edid.data()), 256);
    std::ofstream(folder.Path() / "c.txt", std::ios::binary)
        .write(reinterpret_cast<const char*>(content.data), content.size);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzFolder folder("command_fuzz");
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    ByteRange input = bytes;

    const auto commands = Cli::Commands();
    const std::uint32_t chosen = input.ReadLsb(8);
    const Cli::Command& command = *commands[chosen % commands.size()];
    std::vector<std::string> words;
    if (chosen < 250) words.emplace_back(command.name);
    for (std::uint32_t left = input.ReadLsb(8) % MostWords; left > 0; --left) words.push_back(WordFrom(input, command));

    PutFiles(folder, input);
    const WorkingFolder inside(folder.Path());
    std::istringstream in(std::string(reinterpret_cast<const char*>(input.data), static_cast<std::size_t>(input.size)));
    std::ostringstream out;
    std::ostringstream err;
    Cli::Console console{in, out, err, [](const Cli::StoreMode&, const Cli::Console&) {
                             auto platform = std::make_unique<MemoryPlatform>();
                             MemoryDevice& device = platform->devices.emplace_back();
                             device.instanceId = L"DISPLAY\\LIA0001\\1";
                             device.present = true;
                             device.hardwareKey->values.Put(L"EDID", Bytes(Samples::MakeDisplays()[0].edid));
                             return platform;
                         }};
    const int status = Cli::Run(words, console);
    Require(status >= Cli::Success && status <= Cli::Refused, "a status is one of the three");
    Require(status != Cli::Refused || !err.str().empty() || !out.str().empty(), "what is refused has a reason");
    return 0;
}
