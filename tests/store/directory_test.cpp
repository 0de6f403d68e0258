#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "store/directory/directory_platform.h"
#include "store/directory/files.h"
#include "store/reset.h"
#include "tests/store/sample.h"

namespace fs = std::filesystem;

namespace VNT {

using namespace Sample;

namespace {

class DirectoryStore : public testing::Test {
protected:
    DirectoryStore() {
        const testing::TestInfo* info = testing::UnitTest::GetInstance()->current_test_info();
        root_ = fs::temp_directory_path() / ("vantelle_" + std::string(info->name()));
        fs::remove_all(root_);
        store_ = root_ / "displays";
        fs::create_directories(store_);
    }
    ~DirectoryStore() override {
        std::error_code error;
        fs::remove_all(root_, error);
    }

    void Put(const std::string& path, const Bytes& bytes = {}) const {
        const fs::path file = store_ / path;
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(bytes.Range().data), bytes.Size());
    }
    void PutText(const std::string& path, const std::string& text) const {
        Put(path, Bytes(std::vector<std::uint8_t>(text.begin(), text.end())));
    }
    Bytes Get(const std::string& path) const {
        Bytes bytes;
        EXPECT_EQ(Files::Read(store_ / path, bytes), SystemErrors::None) << path;
        return bytes;
    }
    // The names below a folder of the store, sorted, each with a blank behind it.
    std::string Names(const std::string& path) const {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(store_ / path)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        std::string all;
        for (const std::string& name : names) all += name + " ";
        return all;
    }
    DisplayList Load(bool all = false) {
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(platform(), list, all));
        return list;
    }
    DirectoryPlatform& platform() { return platform_.emplace(store_); }

    fs::path root_;
    fs::path store_;

private:
    std::optional<DirectoryPlatform> platform_;
};

const std::string Folder = "DISPLAY#VTA1001#4&1&0&UID1";

}  // namespace

TEST_F(DirectoryStore, ListsADisplayWithAllItsFiles) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    Put(Folder + "/EDID_OVERRIDE/0", Base(2, 2));
    Put(Folder + "/EDID_OVERRIDE/2", Block(3, 3));
    PutText(Folder + "/DeviceDesc", "Bildschirm \xc3\xa4\xf0\x9f\x96\xa5\n");
    PutText(Folder + "/Driver", "{4d36e96e-e325-11ce-bfc1-08002be10318}\\0001");
    const Display display = Load().at(0);
    EXPECT_EQ(display.InstanceId, First);
    EXPECT_EQ(display.DeviceDescription, String("Bildschirm \xc3\xa4\xf0\x9f\x96\xa5").ToWide());
    EXPECT_EQ(display.DriverKey, L"{4d36e96e-e325-11ce-bfc1-08002be10318}\\0001");
    EXPECT_EQ(display.EdidData, Base(1));
    EXPECT_EQ(display.OverrideData, Join({Base(2, 2), Zeros(), Block(3, 3)}));
    EXPECT_TRUE(display.Active);
}

TEST_F(DirectoryStore, DevicesComeInSortedOrderAndStrayFilesAreIgnored) {
    for (const char* name : {"DISPLAY#C#1", "DISPLAY#A#1", "DISPLAY#B#1"}) Put(std::string(name) + "/Active");
    PutText("readme.txt", "no display");
    const DisplayList list = Load();
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0].InstanceId, L"DISPLAY\\A\\1");
    EXPECT_EQ(list[1].InstanceId, L"DISPLAY\\B\\1");
    EXPECT_EQ(list[2].InstanceId, L"DISPLAY\\C\\1");
}

TEST_F(DirectoryStore, DisplayWithoutActiveIsInactive) {
    Put(Folder + "/EDID", Base(1));
    EXPECT_TRUE(Load(false).empty());
    ASSERT_EQ(Load(true).size(), 1u);
    EXPECT_FALSE(Load(true)[0].Active);
}

TEST_F(DirectoryStore, FolderInSmallLettersIsFoundAgainAtSave) {
    Put("display#vta1001#x/Active");
    DisplayList list = Load();
    list.at(0).SetData(Base(2));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(Names("display#vta1001#x"), "Active EDID_OVERRIDE ");
    EXPECT_EQ(Names(""), "display#vta1001#x ");
}

TEST_F(DirectoryStore, SavesSparseAndSequentialAndReadsBack) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    for (const Bytes& data :
         {Join({Base(2, 2), Zeros(), Block(3, 3)}), Join({Block(1, 2), Zeros(), Block(3, 3)}), Base(4), Zeros()}) {
        DisplayList list = Load();
        list.at(0).SetData(data);
        ASSERT_TRUE(SaveDisplays(platform(), list));
        EXPECT_EQ(Load().at(0).CurrentData, data);
        EXPECT_EQ(Get(Folder + "/EDID"), Base(1));
        const std::string names = Names(Folder + "/EDID_OVERRIDE");
        EXPECT_EQ(names, data.Size() == 128 ? "0 " : data.At(0) == 0 ? "0 2 " : "0 1 2 ");
    }
}

TEST_F(DirectoryStore, EmptyDataTakesTheOverrideAway) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    Put(Folder + "/EDID_OVERRIDE/0", Base(2));
    DisplayList list = Load();
    list.at(0).SetData({});
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(Names(Folder), "Active EDID ");
}

TEST_F(DirectoryStore, UneditedDisplayIsNotTouched) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    Put(Folder + "/EDID_OVERRIDE/0", Base(2));
    Put("DISPLAY#VTB2002#1/Active");
    const auto before = fs::last_write_time(store_ / Folder / "EDID");
    DisplayList list = Load();
    ASSERT_EQ(list.size(), 2u);
    list[1].SetData(Base(3));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(fs::last_write_time(store_ / Folder / "EDID"), before);
    EXPECT_EQ(Names(Folder), "Active EDID EDID_OVERRIDE ");
    EXPECT_EQ(Get(Folder + "/EDID_OVERRIDE/0"), Base(2));
}

TEST_F(DirectoryStore, FolderThatIsNotThereCannotBeLoaded) {
    DirectoryPlatform missing(root_ / "none");
    DirectoryPlatform file(store_ / "file");
    PutText("file", "x");
    DisplayList list;
    EXPECT_FALSE(LoadDisplays(missing, list, false));
    EXPECT_FALSE(LoadDisplays(file, list, false));
}

TEST_F(DirectoryStore, NoNameLeadsOutOfTheFolder) {
    Put(Folder + "/Active");
    fs::create_directories(root_ / "outside");
    std::ofstream(root_ / "outside" / "EDID") << "x";
    for (const wchar_t* id : {L"..", L"../outside", L"..\\outside", L".", L"", L"/", L"..#outside"}) {
        Display display;
        EXPECT_FALSE(display.Load(platform(), id));
    }
    const auto set = platform().OpenMonitorClass();
    ASSERT_TRUE(set->EnumDevice(0));
    const std::shared_ptr<RegistryKey> key = set->OpenHardwareKey(KeyAccess::Write);
    for (const std::wstring& name :
         {std::wstring(L".."), std::wstring(L"../outside"), std::wstring(L"..\\x"), std::wstring(L"/tmp/x"),
          std::wstring(L"c:x"), std::wstring(L""), std::wstring(L"."), std::wstring(L"a\0b", 3)}) {
        std::shared_ptr<RegistryKey> sub;
        int size = 0;
        EXPECT_NE(key->OpenKey(name, KeyAccess::Read, sub), SystemErrors::None);
        EXPECT_NE(key->CreateKey(name, KeyAccess::Write, sub), SystemErrors::None);
        EXPECT_NE(key->QueryValue(name, ByteRange(), size), SystemErrors::None);
        EXPECT_NE(key->SetValue(name, Base(1)), SystemErrors::None);
        EXPECT_NE(key->DeleteValue(name), SystemErrors::None);
        EXPECT_NE(key->DeleteKey(name), SystemErrors::None);
    }
    EXPECT_EQ(Names(Folder), "Active ");
    EXPECT_TRUE(fs::exists(root_ / "outside" / "EDID"));
}

TEST_F(DirectoryStore, NoFileIsLeftBesideAWrittenOne) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    DisplayList list = Load();
    list.at(0).SetData(Join({Base(2, 1), Block(3, 3)}));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(Names(Folder), "Active EDID EDID_OVERRIDE ");
    EXPECT_EQ(Names(Folder + "/EDID_OVERRIDE"), "0 1 ");
}

TEST_F(DirectoryStore, FileTooLargeForAnEdidIsNotRead) {
    Put(Folder + "/Active");
    PutText(Folder + "/EDID", "");
    fs::resize_file(store_ / Folder / "EDID", 1ull * 1024 * 1024 * 1024);
    EXPECT_TRUE(Load().at(0).EdidData.IsEmpty());
}

TEST_F(DirectoryStore, EachFolderIsListedOnceForALoad) {
    for (const char* name : {"DISPLAY#A#1", "DISPLAY#B#1", "DISPLAY#C#1"}) {
        Put(std::string(name) + "/Active");
        Put(std::string(name) + "/EDID", Base(1, 1));
        for (const char* block : {"/EDID_OVERRIDE/0", "/EDID_OVERRIDE/1"}) Put(std::string(name) + block, Base(2));
        for (int i = 0; i < 100; ++i) PutText(std::string(name) + "/EDID_OVERRIDE/stray" + std::to_string(i), "x");
    }
    for (int i = 0; i < 3000; ++i) PutText("stray" + std::to_string(i), "x");
    DirectoryPlatform& door = platform();
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(door, list, false));
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[2].CurrentData, Join({Base(2), Base(2)}));
    EXPECT_EQ(door.CountListings(), 7);  // the store, each display, each override
}

TEST_F(DirectoryStore, NamesThatDifferInCaseAreOneDisplay) {
    Put("DISPLAY#A#1/Active");
    Put("DISPLAY#A#1/EDID", Base(1));
    Put("display#a#1/Active");
    Put("display#a#1/EDID", Base(2));
    Put("DISPLAY#B#1/Active");
    Put("DISPLAY#B#1/edid", Base(3));
    DisplayList list = Load();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].EdidData, Base(1));
    EXPECT_EQ(list[1].EdidData, Base(3));
    list[0].SetData(Base(9));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(Names("DISPLAY#A#1"), "Active EDID EDID_OVERRIDE ");
    EXPECT_EQ(Names("display#a#1"), "Active EDID ");
}

TEST_F(DirectoryStore, WhatAnEndedProgramLeftOverGoesWithTheNextSave) {
    const std::string left = "/.vantelle-0123456789abcdef";
    Put(Folder + "/Active");
    Put(Folder + left, Base(1));
    Put(Folder + "/EDID_OVERRIDE" + left, Base(1));
    PutText(Folder + "/.vantelle-mine", "x");
    DisplayList list = Load();
    list.at(0).SetData(Base(2));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(Names(Folder), ".vantelle-mine Active EDID_OVERRIDE ");
    EXPECT_EQ(Names(Folder + "/EDID_OVERRIDE"), "0 ");
}

TEST_F(DirectoryStore, AFileInThePlaceOfTheOverrideIsAFailure) {
    Put(Folder + "/Active");
    PutText(Folder + "/EDID_OVERRIDE", "x");
    DisplayList list = Load();
    list.at(0).SetData(Base(2));
    EXPECT_FALSE(SaveDisplays(platform(), list));
    const ResetOutcome outcome = ResetOverride(platform(), First);
    EXPECT_EQ(outcome.Result, ResetResult::Failed);
    EXPECT_EQ(outcome.Reason, "the override can't be opened");
}

TEST_F(DirectoryStore, ResetTakesOffWhatNoListShows) {
    Put(Folder + "/EDID_OVERRIDE/0", Bytes(127, 0));
    Put("DISPLAY#B#1/EDID_OVERRIDE/1", Base(1));
    Put("DISPLAY#C#1/Active");
    fs::create_directories(store_ / "DISPLAY#D#1/EDID_OVERRIDE/sub/key");
    std::vector<ResetOutcome> outcomes;
    EXPECT_TRUE(ResetAllOverrides(platform(), outcomes));
    ASSERT_EQ(outcomes.size(), 4u);
    EXPECT_EQ(outcomes[0].Result, ResetResult::Removed);
    EXPECT_EQ(outcomes[1].Result, ResetResult::NothingThere);
    EXPECT_EQ(outcomes[2].Result, ResetResult::Removed);
    EXPECT_EQ(outcomes[3].Result, ResetResult::Removed);
    EXPECT_EQ(Names(Folder) + Names("DISPLAY#B#1") + Names("DISPLAY#D#1"), "");
}

// Two programs that save one display over and over: whenever it is read, it shows what one of them wrote, whole.
TEST_F(DirectoryStore, SavesAreWholeAgainstEachOther) {
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    const auto dataOf = [](int mark) { return Join({Base(mark, 3), Block(2, mark), Block(3, mark), Block(4, mark)}); };
    const auto saveOften = [&](int mark) {
        for (int i = 0; i < 12; ++i) {
            DirectoryPlatform door(store_);
            DisplayList list;
            EXPECT_TRUE(LoadDisplays(door, list, false));
            ASSERT_EQ(list.size(), 1u);
            list[0].SetData(dataOf(mark));
            list[0].Saved = false;
            EXPECT_TRUE(SaveDisplays(door, list));
            EXPECT_TRUE(LoadDisplays(door, list, false));
            EXPECT_TRUE(list[0].OverrideData == dataOf(5) || list[0].OverrideData == dataOf(6));
        }
    };
    std::thread other(saveOften, 5);
    saveOften(6);
    other.join();
    EXPECT_EQ(Names(Folder + "/EDID_OVERRIDE"), "0 1 2 3 ");
}

#ifndef _WIN32  // neither links nor folders without rights can be made there without more ado
TEST_F(DirectoryStore, ALinkInThePlaceOfTheOverrideIsToldAndLeft) {
    fs::create_directories(root_ / "outside");
    std::ofstream(root_ / "outside" / "0") << "x";
    Put(Folder + "/Active");
    fs::create_directory_symlink(root_ / "outside", store_ / Folder / "EDID_OVERRIDE");
    const ResetOutcome outcome = ResetOverride(platform(), First);
    EXPECT_EQ(outcome.Result, ResetResult::Failed);
    EXPECT_EQ(outcome.Reason, "a link stands in the place of the override; it was not followed");
    EXPECT_TRUE(fs::is_symlink(store_ / Folder / "EDID_OVERRIDE"));
    EXPECT_TRUE(fs::exists(root_ / "outside" / "0"));
}

TEST_F(DirectoryStore, PlantedLinksChangeNothingElsewhere) {
    std::ofstream(root_ / "victim") << "untouched";
    Put(Folder + "/Active");
    Put(Folder + "/EDID", Base(1));
    fs::create_directories(store_ / Folder / "EDID_OVERRIDE");
    for (const char* name : {"EDID.new", "EDID_OVERRIDE/0", "EDID_OVERRIDE/0.new", "EDID_OVERRIDE/1"}) {
        fs::create_symlink(root_ / "victim", store_ / Folder / name);
    }
    DisplayList list = Load();
    list.at(0).EdidData = Join({Base(1, 1), Block(2, 2)});  // so that the value is written, too
    list[0].SetData(Base(2));
    EXPECT_TRUE(SaveDisplays(platform(), list));
    EXPECT_EQ(fs::file_size(root_ / "victim"), 9u);
    EXPECT_EQ(Get(Folder + "/EDID").Size(), 256);
    EXPECT_EQ(Names(Folder + "/EDID_OVERRIDE"), "0 ");
    EXPECT_FALSE(fs::is_symlink(store_ / Folder / "EDID_OVERRIDE" / "0"));
}

TEST_F(DirectoryStore, FoldersWhoseNamesAreNoTextAreNoDisplays) {
    Put(Folder + "/Active");
    for (const char* name : {"DISPLAY#\xff#1", "DISPLAY#\xfe#1", "DISPLAY#\xed\xa0\x80#1"}) {
        Put(std::string(name) + "/Active");
        Put(std::string(name) + "/EDID", Base(1));
    }
    const DisplayList list = Load(true);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].InstanceId, First);
}

TEST_F(DirectoryStore, LinksAreNotFollowed) {
    fs::create_directories(root_ / "outside" / "EDID_OVERRIDE");
    std::ofstream(root_ / "outside" / "keep") << "x";
    fs::create_directory_symlink(root_ / "outside", store_ / "DISPLAY#LINK#1");
    Put(Folder + "/Active");
    fs::create_directory_symlink(root_ / "outside", store_ / Folder / "EDID_OVERRIDE");
    fs::create_symlink(root_ / "outside" / "keep", store_ / Folder / "EDID");
    DisplayList list = Load();
    ASSERT_EQ(list.size(), 1u);
    list[0].SetData(Base(1));
    EXPECT_FALSE(SaveDisplays(platform(), list));
    EXPECT_FALSE(list[0].Saved);
    EXPECT_TRUE(fs::exists(root_ / "outside" / "keep"));
    EXPECT_FALSE(fs::exists(root_ / "outside" / "0"));
}
#endif

}  // namespace VNT
