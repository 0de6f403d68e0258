// The program ended, or refused by the system, at each call to it: what it leaves behind.

#ifndef _WIN32  // the shim is preloaded

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

#include "samples/sample_bytes.h"
#include "store/directory/directory_platform.h"
#include "store/load.h"

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

constexpr int MostCalls = 1000;

Bytes EdidOf(int serial, int extensions) {
    Samples::Base base{.vendor = "QOR"};
    base.product = serial;
    base.extensions = extensions;
    Samples::Block edid = Samples::BaseBlock(base);
    for (int i = 0; i < extensions; ++i) edid = Samples::operator+(edid, Samples::Cta(0, {}, {}));
    return Bytes(edid);
}

const Bytes Own = EdidOf(1, 0);
const Bytes Old = EdidOf(2, 2);
const Bytes New = EdidOf(3, 1);

class Ended : public testing::Test {
protected:
    Ended() {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        root_ = fs::path(testing::TempDir()) / ("vantelle_ended_" + name);
        fs::remove_all(root_);
        Put(root_ / "new.bin", New);
    }
    ~Ended() override {
        std::error_code error;
        fs::remove_all(root_, error);
    }

    static void Put(const fs::path& file, const Bytes& bytes) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(bytes.Range().data), bytes.Size());
    }
    fs::path Device() const { return root_ / "store" / "DISPLAY#A#1"; }
    void MakeStore() const {
        fs::remove_all(root_ / "store");
        Put(Device() / "EDID", Own);
        Put(Device() / "Active", {});
        for (int i = 0; i < Old.Size() / 128; ++i) {
            Put(Device() / "EDID_OVERRIDE" / std::to_string(i), Old.Slice(i * 128, 128));
        }
    }
    // The status of the program as the system gives it; `order` is the shim's.
    int Run(const std::string& words, const std::string& order = {}, const char* option = " --store ") const {
        const std::string store = (root_ / "store").string();
        std::string line;
        if (!order.empty()) {
            line = "env ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 LD_PRELOAD=" VANTELLE_BINARY_DIR
                   "/bin/vantelle-shim.so VANTELLE_SHIM='" +
                   order + "' VANTELLE_SHIM_FOLDER='" + store + "' ";
        }
        line += VANTELLE_BINARY_DIR "/bin/vantelle-cli " + words;
        if (*option != '\0') line += option + ("'" + store + "'");
        line += " >/dev/null 2>&1";
        return std::system(line.c_str());
    }
    static Bytes Content(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        return Bytes(std::vector<std::uint8_t>(text.begin(), text.end()));
    }
    Bytes Shown() const {
        DirectoryPlatform door(root_ / "store");
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(door, list, false));
        return list.size() == 1 ? list[0].CurrentData : Bytes();
    }
    std::string Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(root_ / "store")) {
            names.insert(fs::relative(entry.path(), Device()).string());
        }
        std::string all;
        for (const std::string& name : names) all += name + " ";
        return all;
    }
    std::string Write() const { return "write 1 '" + (root_ / "new.bin").string() + "'"; }
    // What stands there is whole, and nothing else that the next save doesn't take away.
    void ExpectWhole(const std::string& where) const {
        const Bytes shown = Shown();
        EXPECT_TRUE(shown == Own || shown == Old || shown == New) << where;
        ASSERT_EQ(Run(Write()), 0) << where;
        EXPECT_EQ(Shown(), New) << where;
        EXPECT_EQ(Names(), ". Active EDID EDID_OVERRIDE EDID_OVERRIDE/0 EDID_OVERRIDE/1 ") << where;
    }
    // Ends the command at its first call, at its second, and so on; then has each call refused.
    void EndEverywhere(const std::string& words, const Bytes& done) const {
        int calls = 0;
        for (bool ended = true; ended; ExpectWhole(words + ", ended at call " + std::to_string(calls))) {
            MakeStore();
            ASSERT_LT(++calls, MostCalls);
            ended = Run(words, "kill " + std::to_string(calls)) != 0;
            if (!ended) {
                EXPECT_EQ(Shown(), done);
            }
        }
        EXPECT_GT(calls, 8) << "the shim was not there";
        for (int call = 1; call < calls; ++call) {
            MakeStore();
            const std::string where = words + ", refused at call " + std::to_string(call);
            const bool succeeded = Run(words, "fail " + std::to_string(call)) == 0;
            if (succeeded) {
                EXPECT_EQ(Shown(), done) << where;
            }
            ExpectWhole(where);
        }
    }

    fs::path root_;
};

}  // namespace

TEST_F(Ended, AWriteLeavesTheOldTheNewOrTheDisplaysOwn) { EndEverywhere(Write(), New); }

TEST_F(Ended, AResetLeavesTheOldOrTheDisplaysOwn) { EndEverywhere("reset --all", Own); }

// A file beside the store's, which is written in the same way: each call refused in turn leaves the old one and nothing
// else, or the new one.
TEST_F(Ended, AnExportThatFailsLeavesTheOldFileAndNothingElse) {
    const fs::path out = root_ / "store" / "out.bin";
    bool isDone = false;
    int refused = 0;
    for (int call = 1; !isDone; ++call) {
        ASSERT_LT(call, MostCalls);
        fs::remove_all(root_ / "store");
        Put(out, Old);
        const bool succeeded = Run("convert '" + (root_ / "new.bin").string() + "' '" + out.string() + "'",
                                   "fail " + std::to_string(call), "") == 0;
        EXPECT_EQ(Content(out), succeeded ? New : Old) << call;
        EXPECT_EQ(std::distance(fs::directory_iterator(root_ / "store"), fs::directory_iterator()), 1) << call;
        refused += succeeded ? 0 : 1;
        isDone = succeeded && call > 15;  // more than it makes
    }
    EXPECT_GT(refused, 2) << "the shim was not there";
}

// What can only be seen of a running program.
TEST_F(Ended, OutputThatGoesNowhereIsStatus2) {
    MakeStore();
    const std::string list = VANTELLE_BINARY_DIR "/bin/vantelle-cli list --store '" + (root_ / "store").string() + "' ";
    EXPECT_EQ(std::system((list + ">/dev/null").c_str()), 0);
    const std::string said = (root_ / "said").string();
    for (const char* nowhere : {">/dev/full", ">&-"}) {
        EXPECT_NE(std::system((list + nowhere + " 2>'" + said + "'").c_str()), 0) << nowhere;
        std::ifstream in(said);
        std::string line;
        EXPECT_TRUE(std::getline(in, line));
        EXPECT_EQ(line, "vantelle-cli: standard output: can't be written");
        EXPECT_FALSE(std::getline(in, line));
    }
    // A stream that is missing is no place for what is written to a file.
    EXPECT_EQ(std::system((VANTELLE_BINARY_DIR "/bin/vantelle-cli " + Write() + " --store '" +
                           (root_ / "store").string() + "' <&- >&- 2>&-")
                              .c_str()) != 0,
              true);
    EXPECT_EQ(Shown(), New);
}

}  // namespace VNT::Cli

#endif
