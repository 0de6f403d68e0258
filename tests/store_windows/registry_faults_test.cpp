// What stands in a registry that no program of ours has written: nothing of it may cost a display its own EDID.

#include "store/load.h"
#include "store/reset.h"
#include "store/save.h"
#include "store/windows/windows_platform.h"
#include "tests/store/blocks.h"
#include "tests/store_windows/prefix.h"

namespace VNT {

using namespace Sample;

namespace {

class RegistryFaults : public PrefixTest {
protected:
    // Opens or creates a key below HKEY_LOCAL_MACHINE and puts a value of any type there.
    static void Put(const std::wstring& path, const wchar_t* name, DWORD type, const Bytes& bytes) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExW(key, name, 0, type, bytes.Range().data, static_cast<DWORD>(bytes.Size())),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }
    std::wstring Override() const { return display_.ParametersPath() + L"\\EDID_OVERRIDE"; }
    Display Load() {
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(platform_, list, true));
        for (const Display& found : list) {
            if (found.InstanceId == UpperAscii(display_.InstanceId())) return found;
        }
        return {};
    }
    // The device's key without the override.
    std::string WithoutOverride() const {
        const std::string override = Dump(Override());
        std::string all = Dump(display_.ParametersPath());
        if (const std::size_t at = all.find(override); !override.empty() && at != std::string::npos) {
            all.erase(at, override.size());
        }
        const std::string line = String(Override()).ToUtf8() + "\n";
        if (const std::size_t at = all.find(line); at != std::string::npos) all.erase(at, line.size());
        return all;
    }
    // Saves an edit; all but the override stays to the byte.
    void ExpectEditKeepsTheRest() {
        const std::string before = WithoutOverride();
        ASSERT_FALSE(before.empty());
        Display display = Load();
        ASSERT_TRUE(display.SetData(Base(77)));
        EXPECT_TRUE(display.Save(platform_));
        EXPECT_EQ(WithoutOverride(), before);
        EXPECT_EQ(Load().OverrideData, Base(77));
        EXPECT_EQ(ResetOverride(platform_, display_.InstanceId()).Result, ResetResult::Removed);
        EXPECT_EQ(WithoutOverride(), before);
        EXPECT_EQ(Dump(Override()), "");
    }

    WindowsPlatform platform_{[](const wchar_t*) {}};
    PrefixDisplay display_ = {L"VTA1001", L"4&a1b2&0&UID1", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0101",
                              L"Plain sample monitor", Base(1)};
};

}  // namespace

TEST_F(RegistryFaults, AnEdidOfAnotherTypeIsLeft) {
    for (const DWORD type : {REG_SZ, REG_DWORD, REG_MULTI_SZ, REG_NONE}) {
        Add(display_);
        const Bytes bytes = type == REG_DWORD ? Bytes{1, 2, 3, 4} : Bytes(130, 0x20);
        Put(display_.ParametersPath(), L"EDID", type, bytes);
        ExpectEditKeepsTheRest();
    }
}

TEST_F(RegistryFaults, AnEdidOfAnOddSizeIsLeft) {
    for (const int size : {0, 1, 127, 129, 300}) {
        Add(display_);
        Put(display_.ParametersPath(), L"EDID", REG_BINARY, Bytes(size, 1));
        ExpectEditKeepsTheRest();
    }
}

TEST_F(RegistryFaults, BlocksOfAnotherTypeOrSizeAreTakenOff) {
    const std::pair<const wchar_t*, Bytes> values[] = {
        {L"0", Bytes(127, 0)}, {L"1", Base(1)}, {L"0", Bytes()}, {L"junk", Bytes(3, 1)}};
    for (const auto& [name, bytes] : values) {
        for (const DWORD type : {REG_BINARY, REG_SZ}) {
            Add(display_);
            const std::string before = WithoutOverride();
            Put(Override(), name, type, bytes);
            EXPECT_EQ(Load().CurrentData, Base(1));
            EXPECT_EQ(ResetOverride(platform_, display_.InstanceId()).Result, ResetResult::Removed);
            EXPECT_EQ(Dump(Override()), "");
            EXPECT_EQ(WithoutOverride(), before);
        }
    }
}

TEST_F(RegistryFaults, AnOverrideWithManySubKeysIsTakenOff) {
    Add(display_);
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e"}) {
        Put(Override() + L"\\" + name, L"value", REG_BINARY, Base(1));
    }
    std::vector<ResetOutcome> outcomes;
    EXPECT_TRUE(ResetAllOverrides(platform_, outcomes));
    int removed = 0;
    for (const ResetOutcome& outcome : outcomes) {
        EXPECT_NE(outcome.Result, ResetResult::Failed) << outcome.Reason;
        if (outcome.InstanceId == UpperAscii(display_.InstanceId())) {
            removed += outcome.Result == ResetResult::Removed ? 1 : 0;
        }
    }
    EXPECT_EQ(removed, 1);
    EXPECT_EQ(Dump(Override()), "");
}

TEST_F(RegistryFaults, AKeyThatVanishesBetweenLoadAndSaveIsAFailure) {
    Add(display_);
    Display display = Load();
    ASSERT_TRUE(display.SetData(Base(77)));
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, display_.Path().c_str());
    const bool saved = display.Save(platform_);
    EXPECT_EQ(saved, display.Saved);
    EXPECT_FALSE(saved);
    EXPECT_TRUE(display.OverrideData.IsEmpty());
}

TEST_F(RegistryFaults, AnEdidThatVanishesBetweenLoadAndSaveIsWrittenAgain) {
    Add(display_);
    const std::string before = WithoutOverride();
    Display display = Load();
    ASSERT_TRUE(display.SetData(Base(77)));
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, display_.ParametersPath().c_str(), L"EDID");
    EXPECT_TRUE(display.Save(platform_));
    EXPECT_EQ(WithoutOverride(), before);
}

TEST_F(RegistryFaults, AKeyThatRefusesIsAFailureAndKeepsItsEdid) {
    display_.refusesKeys = true;
    Add(display_);
    const std::string before = WithoutOverride();
    Display display = Load();
    EXPECT_EQ(display.EdidData, Base(1));
    ASSERT_TRUE(display.SetData(Base(77)));
    EXPECT_FALSE(display.Save(platform_));
    EXPECT_FALSE(display.Saved);
    EXPECT_EQ(WithoutOverride(), before);
    EXPECT_EQ(ResetOverride(platform_, display_.InstanceId()).Result, ResetResult::NothingThere);
}

}  // namespace VNT
