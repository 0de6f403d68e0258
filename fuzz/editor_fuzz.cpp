// The whole program: whatever the input does to it, by keys, clicks and texts, nothing crashes, and the main window
// shows what a fresh read of its bytes would show.

#include <filesystem>
#include <random>

#include "fuzz/fuzz.h"
#include "fuzz/input_dice.h"

namespace {

// Several fuzzers may run at once.
const std::filesystem::path& GetFolder() {
    static const auto folder =
        std::filesystem::temp_directory_path() / ("vantelle_editor_fuzz_" + std::to_string(std::random_device()()));
    return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    InputDice dice(data, size);
    try {
        Testing::Monkey(dice, 3, GetFolder()).Work();
    } catch (const std::exception& finding) {
        Require(false, finding.what());
    }
    return 0;
}
