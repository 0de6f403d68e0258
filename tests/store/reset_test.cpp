#include "store/reset.h"

#include <gtest/gtest.h>

#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

std::string Name(const std::wstring& id) { return String(id).ToUtf8(); }

// "ID result reason", a line each.
std::string ResetAll(MemoryPlatform& platform) {
    std::vector<ResetOutcome> outcomes;
    EXPECT_TRUE(ResetAllOverrides(platform, outcomes));
    std::string text;
    for (const ResetOutcome& outcome : outcomes) {
        const char* results[] = {" nothing", " removed", " failed "};
        text += Name(outcome.InstanceId) + results[static_cast<int>(outcome.Result)] + outcome.Reason + "\n";
    }
    EXPECT_EQ(platform.OpenHandles(), 0);
    return text;
}

void PutChild(MemoryDevice& device, const std::wstring& name) {
    (*device.hardwareKey->keys.Find(L"EDID_OVERRIDE"))->keys.Put(name, std::make_shared<MemoryKey>());
}

}  // namespace

TEST(Reset, TakesOffBrokenOverridesOfDisplaysThatNoListShows) {
    const std::vector<std::pair<std::wstring, Bytes>> broken[] = {
        {{L"0", Bytes(127, 0)}}, {{L"1", Base(1)}}, {{L"junk", Bytes(3, 9)}}, {{L"0", Zeros()}}, {}};
    for (const auto& values : broken) {
        for (const bool present : {true, false}) {
            MemoryPlatform platform;
            MemoryDevice& device = Add(platform, First, present, {});
            PutOverride(device, L"0", {});
            (*device.hardwareKey->keys.Find(L"EDID_OVERRIDE"))->values.Erase(L"0");
            for (const auto& [name, bytes] : values) PutOverride(device, name, bytes);
            EXPECT_EQ(ResetAll(platform), Name(First) + " removed\n");
            EXPECT_EQ(OverrideNames(device), L"-");
        }
    }
}

TEST(Reset, TouchesTheOverrideAlone) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Bytes(100, 1));
    PutOverride(device, L"0", Base(2));
    EXPECT_EQ(ResetAll(platform), Name(First) + " removed\n");
    EXPECT_EQ(*Edid(device), Bytes(100, 1));
    EXPECT_EQ(platform.Count("SetValue"), 0);
    EXPECT_EQ(platform.Count("Commit"), 1);
}

TEST(Reset, TellsWhereThereIsNothingAndChangesNothing) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    Add(platform, Second, false, {}).hardwareKey = nullptr;
    EXPECT_EQ(ResetAll(platform), Name(First) + " nothing\n" + Name(Second) + " nothing\n");
    for (const char* call : {"SetValue", "DeleteKey", "DeleteValue", "CreateKey", "Commit"}) {
        EXPECT_EQ(platform.Count(call), 0) << call;
    }
}

TEST(Reset, OneInstanceInAnyCase) {
    MemoryPlatform platform;
    MemoryDevice& first = Add(platform, First, false, {});
    MemoryDevice& second = Add(platform, Second, false, {});
    PutOverride(first, L"1", Base(1));
    PutOverride(second, L"0", Base(2));
    const ResetOutcome outcome = ResetOverride(platform, L"display\\vta1001\\4&1&0&uid1");
    EXPECT_EQ(outcome.Result, ResetResult::Removed);
    EXPECT_EQ(outcome.InstanceId, First);
    EXPECT_EQ(OverrideNames(first), L"-");
    EXPECT_EQ(OverrideNames(second), L"0 ");
    EXPECT_EQ(ResetOverride(platform, First).Result, ResetResult::NothingThere);
    EXPECT_EQ(ResetOverride(platform, Third).Reason, "no such display");
    platform.FailEach("OpenMonitorClass");
    EXPECT_EQ(ResetOverride(platform, Second).Reason, "the displays can't be loaded");
    std::vector<ResetOutcome> outcomes(1);
    EXPECT_FALSE(ResetAllOverrides(platform, outcomes));
    EXPECT_TRUE(outcomes.empty());
}

TEST(Reset, AKeyWithManySubKeysGoesWhole) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, {});
    PutOverride(device, L"0", Base(2));
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f", L"g"}) PutChild(device, name);
    EXPECT_EQ(ResetAll(platform), Name(First) + " removed\n");
    EXPECT_EQ(OverrideNames(device), L"-");
}

TEST(Reset, TellsWhatRemainsAndGoesOn) {
    struct Fault {
        const char* call;
        const char* second;
        const char* reason;
    };
    for (const Fault& fault : {Fault{"OpenKey", "OpenKey", "the override can't be opened"},
                               Fault{"DeleteKey", "DeleteValue", "blocks of the override can't be deleted"},
                               Fault{"OpenHardwareKey", "OpenHardwareKey", "its key can't be opened for writing"},
                               Fault{"Commit", "Commit", "the system did not take it"}}) {
        MemoryPlatform platform;
        PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
        PutOverride(Add(platform, Second, false, Base(1)), L"0", Base(2));
        platform.FailEach(fault.call);
        platform.FailEach(fault.second);
        EXPECT_EQ(ResetAll(platform),
                  Name(First) + " failed " + fault.reason + "\n" + Name(Second) + " failed " + fault.reason + "\n");
    }
}

TEST(Reset, ADeviceWhoseNameCannotBeReadIsResetAllTheSame) {
    MemoryPlatform platform;
    MemoryDevice& first = Add(platform, First, true, Base(1));
    MemoryDevice& second = Add(platform, Second, true, Base(1));
    PutOverride(first, L"0", Base(2));
    PutOverride(second, L"0", Base(2));
    platform.FailEach("GetInstanceId");
    EXPECT_EQ(ResetAll(platform), " removed\n removed\n");
    EXPECT_EQ(OverrideNames(second), L"-");
}

TEST(Reset, AnEmptyKeyThatStaysIsNoOverride) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    platform.FailEach("DeleteKey");
    EXPECT_EQ(ResetAll(platform), Name(First) + " removed\n");
    PutChild(platform.devices[0], L"child");
    EXPECT_EQ(ResetAll(platform), Name(First) + " failed keys below the override can't be deleted\n");
}

TEST(Reset, EnumerationsThatNeverEndEnd) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    platform.endless = true;
    std::vector<ResetOutcome> outcomes;
    EXPECT_TRUE(ResetAllOverrides(platform, outcomes));
    ASSERT_EQ(outcomes.size(), 1024u);
    EXPECT_EQ(outcomes[0].Result, ResetResult::Removed);
    EXPECT_EQ(outcomes[1].Result, ResetResult::NothingThere);
}

}  // namespace VNT
