#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/command.h"
#include "samples/displays.h"

namespace VNT::Cli {

namespace fs = std::filesystem;

struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
};

// A folder of its own for each test, with the sample displays in `displays/`.
class Commands : public testing::Test {
protected:
    void SetUp() override {
        folder_ = fs::path(testing::TempDir()) /
                  ("vantelle_cli_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        for (const Samples::Display& display : Samples::MakeDisplays()) {
            std::string name = display.instanceId;
            std::replace(name.begin(), name.end(), '\\', '#');
            const fs::path device = folder_ / "displays" / name;
            fs::create_directories(device);
            Put(device / "EDID", display.edid);
            Put(device / "DeviceDesc", Text(display.description));
            Put(device / "Driver", Text(display.driverKey));
            if (display.active) Put(device / "Active", {});
            for (std::size_t i = 0; i * 128 < display.edidOverride.size(); ++i) {
                const auto start = display.edidOverride.begin() + static_cast<std::ptrdiff_t>(i * 128);
                fs::create_directories(device / "EDID_OVERRIDE");
                Put(device / "EDID_OVERRIDE" / std::to_string(i), {start, start + 128});
            }
        }
    }
    void TearDown() override { fs::remove_all(folder_); }

    static Samples::Block Text(const std::string& text) { return {text.begin(), text.end()}; }
    static void Put(const fs::path& file, const Samples::Block& bytes) {
        std::ofstream(file, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    static std::string Content(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    std::string Sample(int index) const {
        const std::string name = "sample" + std::to_string(index) + ".bin";
        Put(folder_ / name, Samples::MakeDisplays()[static_cast<std::size_t>(index)].edid);
        return Path(name);
    }
    Outcome Call(std::vector<std::string> words, const std::string& input = "") const {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = Cli::Run(words, {in, out, err, {}});
        return {status, out.str(), err.str()};
    }
    Outcome Store(std::vector<std::string> words) const {
        words.insert(words.end(), {"--store", Path("displays")});
        return Call(std::move(words));
    }
    // Bad input: status 2, nothing on standard output, one line on standard error.
    static void ExpectRefused(const Outcome& outcome, const std::string& line) {
        EXPECT_EQ(outcome.status, Refused);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "vantelle-cli: " + line + "\n");
    }

    fs::path folder_;
};

}  // namespace VNT::Cli
