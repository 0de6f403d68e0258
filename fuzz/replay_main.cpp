// Runs a fuzz program's kept inputs without libFuzzer: the files of the folder given, a few inputs made here, and of
// each some mutations, the same ones every time.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "fuzz/fuzz.h"

namespace {

using Input = std::vector<std::uint8_t>;

#ifndef REPLAY_MUTATIONS  // less of a program that takes its time
#define REPLAY_MUTATIONS 64
#endif
constexpr int MutationsPerInput = REPLAY_MUTATIONS;

Input ReadInput(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Input> GeneralInputs() {
    Input ramp(256);
    for (std::size_t i = 0; i < ramp.size(); ++i) ramp[i] = static_cast<std::uint8_t>(i);
    return {{}, Input(256, 0x00), Input(256, 0xFF), ramp};
}

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::is_directory(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// A cut, an added byte, or up to four bytes set to others. `random` is a fixed sequence on every system.
Input Mutated(Input input, std::mt19937& random) {
    const auto below = [&random](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
    const auto byte = [&random] { return static_cast<std::uint8_t>(random() % 256); };
    if (input.empty()) return {byte()};
    switch (below(4)) {
        case 0:
            input.resize(below(input.size()));
            break;
        case 1:
            input.insert(input.begin() + static_cast<std::ptrdiff_t>(below(input.size())), byte());
            break;
        default:
            for (std::size_t change = below(4) + 1; change > 0; --change) input[below(input.size())] = byte();
    }
    return input;
}

void Run(const Input& input) { LLVMFuzzerTestOneInput(input.data(), input.size()); }

void RunWithMutations(const Input& input) {
    Run(input);
    std::mt19937 random(static_cast<std::mt19937::result_type>(input.size()));
    for (int i = 0; i < MutationsPerInput; ++i) Run(Mutated(input, random));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    for (const Input& input : GeneralInputs()) RunWithMutations(input);
    for (const std::filesystem::path& file : FilesOf(argv[1])) {
        std::printf("%s\n", file.string().c_str());
        std::fflush(stdout);
        RunWithMutations(ReadInput(file));
    }
    return 0;
}
