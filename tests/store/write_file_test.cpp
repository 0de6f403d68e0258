#include "store/write_file.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "store/system_files.h"

namespace fs = std::filesystem;

namespace VNT {

namespace {

class WritingFiles : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("vantelle_write_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path Put(const std::string& name, const std::string& content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }
    static std::string Get(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static bool Write(const fs::path& path, const std::string& content, Links links = Links::Follow) {
        return WriteFile(path, Bytes(std::vector<std::uint8_t>(content.begin(), content.end())), links);
    }
    std::string List() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string all;
        for (const std::string& name : names) all += name + " ";
        return all;
    }

    fs::path folder;
};

}  // namespace

TEST_F(WritingFiles, ANewFileAndAnOldOneGetTheBytesAndNothingElse) {
    EXPECT_TRUE(Write(folder / "file", "first, which is longer"));
    EXPECT_EQ(Get(folder / "file"), "first, which is longer");
    EXPECT_TRUE(Write(folder / "file", "second"));
    EXPECT_EQ(Get(folder / "file"), "second");
    EXPECT_TRUE(Write(folder / "file", ""));
    EXPECT_EQ(Get(folder / "file"), "");
    EXPECT_EQ(List(), "file ");
}

TEST_F(WritingFiles, AFolderAndAFolderThatIsNotThereAreRefused) {
    fs::create_directories(folder / "taken" / "inner");
    EXPECT_FALSE(Write(folder / "taken", "x"));
    EXPECT_FALSE(Write(folder / "none" / "file", "x"));
    EXPECT_FALSE(Write(fs::path(), "x"));
    EXPECT_EQ(List(), "taken ");
}

TEST_F(WritingFiles, TheLongestNameIsWritten) {
    const std::string name(255, 'n');
    EXPECT_TRUE(Write(folder / name, "x"));
    EXPECT_TRUE(Write(folder / name, "y"));
    EXPECT_EQ(Get(folder / name), "y");
    EXPECT_FALSE(Write(folder / std::string(256, 'n'), "x"));
    EXPECT_EQ(List(), name + " ");
}

TEST_F(WritingFiles, NamesOfNewFilesAreKnown) {
    EXPECT_TRUE(IsFreshName(".vantelle-0123456789abcdef"));
    for (const char* name : {".vantelle-", "", ".vantelle-0123456789abcde", ".vantelle-0123456789abcdef0",
                             ".vantelle-0123456789abcdeg", "xvantelle-0123456789abcdef", "0"}) {
        EXPECT_FALSE(IsFreshName(name)) << name;
    }
}

TEST_F(WritingFiles, TwoThatHoldAFolderWaitForEachOther) {
    int value = 0;
    const auto add = [&] {
        for (int i = 0; i < 50; ++i) {
            const auto lock = SystemFiles::LockFolder(folder);
            ASSERT_NE(lock, nullptr);
            const int before = value;
            std::this_thread::yield();
            value = before + 1;
        }
    };
    std::thread other(add);
    add();
    other.join();
    EXPECT_EQ(value, 100);
    EXPECT_EQ(SystemFiles::LockFolder(folder / "none"), nullptr);
}

#ifndef _WIN32  // where links can't be made without more ado, and modes are none

TEST_F(WritingFiles, ALinkIsFollowedAndItsTargetReplaced) {
    fs::create_directories(folder / "elsewhere");
    Put("elsewhere/target", "old");
    fs::create_symlink("elsewhere/target", folder / "link");
    fs::create_symlink(folder / "link", folder / "further");
    fs::create_symlink("elsewhere/new", folder / "dangling");
    EXPECT_TRUE(Write(folder / "further", "new"));
    EXPECT_EQ(Get(folder / "elsewhere" / "target"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_TRUE(fs::is_symlink(folder / "further"));
    EXPECT_TRUE(Write(folder / "dangling", "made"));
    EXPECT_EQ(Get(folder / "elsewhere" / "new"), "made");
    fs::create_symlink("circle", folder / "circle");
    EXPECT_FALSE(Write(folder / "circle", "x"));
    EXPECT_EQ(List(), "circle dangling elsewhere further link ");
}

TEST_F(WritingFiles, ALinkThatIsToBeReplacedLeadsNowhere) {
    Put("target", "old");
    fs::create_symlink("target", folder / "link");
    EXPECT_TRUE(Write(folder / "link", "new", Links::Replace));
    EXPECT_EQ(Get(folder / "target"), "old");
    EXPECT_FALSE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Get(folder / "link"), "new");
    EXPECT_FALSE(Write("/dev/null", "x", Links::Replace));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(WritingFiles, APlantedLinkBesideTheFileChangesNothingElsewhere) {
    Put("victim", "untouched");
    for (const char* name : {"OUT.new", "OUT.new2", "OUT.tmp", "OUT~"}) fs::create_symlink("victim", folder / name);
    EXPECT_TRUE(Write(folder / "OUT", "x"));
    EXPECT_EQ(Get(folder / "victim"), "untouched");
    EXPECT_EQ(List(), "OUT OUT.new OUT.new2 OUT.tmp OUT~ victim ");
}

TEST_F(WritingFiles, ADeviceIsWrittenToAndStays) {
    EXPECT_TRUE(Write("/dev/null", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_FALSE(Write("/dev/full", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    fs::create_symlink("/dev/null", folder / "null");
    EXPECT_TRUE(Write(folder / "null", "x"));
    EXPECT_TRUE(fs::is_symlink(folder / "null"));
}

TEST_F(WritingFiles, ANewFileKeepsTheModeOfTheOldOne) {
    const fs::path path = Put("file", "old");
    for (const fs::perms mode : {fs::perms(0604), fs::perms(0640), fs::perms(0755), fs::perms(0444)}) {
        fs::permissions(path, mode);
        EXPECT_TRUE(Write(path, "new"));
        EXPECT_EQ(fs::status(path).permissions(), mode);
    }
    std::ofstream(folder / "usual") << "x";
    EXPECT_TRUE(Write(folder / "fresh", "x"));
    EXPECT_EQ(fs::status(folder / "fresh").permissions(), fs::status(folder / "usual").permissions());
}

// Only root can give a file away, and see that it stays so.
TEST_F(WritingFiles, ANewFileKeepsTheOwnerOfTheOldOne) {
    const std::string file = "'" + Put("file", "old").string() + "'";
    const bool given = std::system(("chown 65534:65533 " + file + " 2>/dev/null").c_str()) == 0;
    EXPECT_TRUE(Write(folder / "file", "new"));
    EXPECT_EQ(Get(folder / "file"), "new");
    const std::string owner = given ? "65534:65533" : "$(id -u):$(id -g)";
    EXPECT_EQ(std::system(("test \"$(stat -c %u:%g " + file + ")\" = \"" + owner + "\"").c_str()), 0);
}

// Root may make files anywhere, but in no folder whose path leaves a longer name no room.
TEST_F(WritingFiles, WhereNoFileCanBeMadeBesideItAnOldOneGetsTheBytes) {
    constexpr std::size_t longest = 4095, left = 6, much = 200;
    fs::path deep = folder;
    while (deep.native().size() < longest - left) {
        const std::size_t more = longest - left - deep.native().size() - 1;
        deep /= std::string(more > much + 20 ? much : more, 'd');
    }
    fs::create_directories(deep);
    std::ofstream(deep / "old") << "old";
    EXPECT_TRUE(Write(deep / "old", "new and longer"));
    EXPECT_EQ(Get(deep / "old"), "new and longer");
    EXPECT_FALSE(Write(deep / "new", "x"));
    EXPECT_FALSE(fs::exists(deep / "new"));
}

TEST_F(WritingFiles, TheFolderOfALinkToNothingIsNotMade) {
    fs::create_symlink("none/file", folder / "link");
    EXPECT_FALSE(Write(folder / "link", "x"));
    EXPECT_EQ(List(), "link ");
}

#endif

}  // namespace VNT
