// The forms: whatever the input does to them, by keys, clicks and texts, nothing crashes, and the main window shows
// what a fresh read of its bytes would show.

#include <filesystem>
#include <random>

#include "fuzz/fuzz.h"
#include "tests/monkey/monkey.h"

namespace {

// Each byte is a decision.
class InputDice : public Testing::Dice {
public:
    InputDice(const std::uint8_t* data, std::size_t size) : data(data), size(size) {}
    int Roll(int sides) override { return HasBytes() ? data[at++] % sides : 0; }
    void Pass() override { ++passed; }
    bool HasMore() const override { return HasBytes() && passed < MostActions; }

private:
    static constexpr int MostActions = 200;
    bool HasBytes() const { return at < size; }

    const std::uint8_t* data;
    std::size_t size;
    std::size_t at = 0;
    int passed = 0;
};

// Several fuzzers may run at once.
const std::filesystem::path& GetFolder() {
    static const auto folder =
        std::filesystem::temp_directory_path() / ("vantelle_form_fuzz_" + std::to_string(std::random_device()()));
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
