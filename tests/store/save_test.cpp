#include "store/save.h"

#include <gtest/gtest.h>

#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

DisplayList Load(MemoryPlatform& platform) {
    DisplayList list;
    EXPECT_TRUE(LoadDisplays(platform, list, false));
    return list;
}

bool HasWriteCall(const MemoryPlatform& platform) {
    return platform.Count("SetValue") + platform.Count("CreateKey") + platform.Count("DeleteKey") +
               platform.Count("DeleteValue") !=
           0;
}

}  // namespace

TEST(SetData, SameBytesLeaveSavedTrueAndSaveTouchesNothing) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    EXPECT_TRUE(list[0].SetData(Base(1)));
    EXPECT_TRUE(list[0].Saved);
    const std::size_t calls = platform.Log().size();
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(platform.Log().size(), calls);
}

TEST(SetData, LengthThatIsNoWholeNumberOfBlocksIsRefused) {
    Display display;
    ASSERT_TRUE(display.SetData(Base(1)));
    display.Saved = true;
    EXPECT_FALSE(display.SetData(Bytes(129, 1)));
    EXPECT_FALSE(display.SetData(Bytes(127, 1)));
    EXPECT_EQ(display.CurrentData, Base(1));
    EXPECT_TRUE(display.Saved);
}

TEST(SetData, ChangingBackDoesNotMakeItSavedAgain) {
    Display display;
    EXPECT_TRUE(display.SetData(Base(1)));
    EXPECT_FALSE(display.Saved);
    EXPECT_TRUE(display.SetData({}));
    EXPECT_FALSE(display.Saved);
}

TEST(SetData, EqualBytesAfterAnEditAreTakenAndStayUnsaved) {
    Display display;
    ASSERT_TRUE(display.SetData(Base(1)));
    EXPECT_TRUE(display.SetData(Base(1)));
    EXPECT_FALSE(display.Saved);
    EXPECT_EQ(display.CurrentData, Base(1));
}

TEST(DisplayList, ReplacesTheFirstOfThatIdentity) {
    DisplayList list(3);
    list[0].InstanceId = First;
    list[1].InstanceId = Second;
    list[2].InstanceId = Second;
    Display display;
    display.InstanceId = Second;
    display.DeviceDescription = L"new";
    EXPECT_TRUE(list.Replace(display));
    EXPECT_EQ(list[0].DeviceDescription, L"");
    EXPECT_EQ(list[1].DeviceDescription, L"new");
    EXPECT_EQ(list[2].DeviceDescription, L"");
    display.InstanceId = Third;
    EXPECT_FALSE(list.Replace(display));
    EXPECT_EQ(list.size(), 3u);
}

TEST(SaveDisplays, ZeroFirstByteLeavesOutZeroBlocks) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    const Bytes data = Join({Base(2, 2), Zeros(), Block(3, 3)});
    list[0].SetData(data);
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"0 2 ");
    EXPECT_TRUE(list[0].Saved);
    EXPECT_EQ(list[0].OverrideData, data);
    EXPECT_EQ(Load(platform).at(0).CurrentData, data);
    EXPECT_EQ(platform.OpenHandles(), 0);
}

TEST(SaveDisplays, NonZeroFirstByteWritesEveryBlock) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    list[0].SetData(Join({Block(2, 2), Zeros(), Block(3, 3)}));
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"0 1 2 ");
    EXPECT_EQ(Load(platform).at(0).CurrentData, list[0].CurrentData);
}

TEST(SaveDisplays, BlockZeroIsWrittenEvenIfItIsAllZero) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    list[0].SetData(Zeros());
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"0 ");
}

TEST(SaveDisplays, EmptyDataDeletesTheOverrideAndWritesTheEdidBack) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    PutOverride(device, L"0", Base(2));
    DisplayList list = Load(platform);
    device.hardwareKey->values.Erase(L"EDID");
    list[0].SetData({});
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"-");
    ASSERT_NE(Edid(device), nullptr);
    EXPECT_EQ(*Edid(device), Base(1));
}

TEST(SaveDisplays, StaleBlocksOfALongerOverrideAreGone) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    for (const wchar_t* name : {L"0", L"1", L"2", L"17", L"junk"}) PutOverride(device, name, Base(9));
    DisplayList list = Load(platform);
    list[0].SetData(Join({Base(2, 1), Block(2, 2)}));
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"0 1 ");
}

TEST(SaveDisplays, UneditedDisplayIsNotTouched) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    Add(platform, Second, true, Base(3));
    DisplayList list = Load(platform);
    list[1].SetData(Base(4));
    ASSERT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(platform.Count("OpenHardwareKey"), 4);  // two loads, one save that looks before it writes
    EXPECT_EQ(OverrideNames(platform.devices[0]), L"0 ");
    EXPECT_EQ(*Edid(platform.devices[0]), Base(1));
}

TEST(SaveDisplays, LoadWritesNothing) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    Load(platform);
    EXPECT_FALSE(HasWriteCall(platform));
}

TEST(SaveDisplays, DeviceThatIsGoneFailsAndStaysUnsaved) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    Add(platform, Second, true, Base(2));
    DisplayList list = Load(platform);
    list[0].SetData(Base(3));
    list[1].SetData(Base(4));
    platform.devices.pop_front();
    EXPECT_FALSE(SaveDisplays(platform, list));
    EXPECT_FALSE(list[0].Saved);
    EXPECT_TRUE(list[0].OverrideData.IsEmpty());
    EXPECT_TRUE(list[1].Saved);
    EXPECT_EQ(OverrideNames(platform.devices[0]), L"0 ");
}

TEST(SaveDisplays, FailedWriteLeavesTheOverridePartlyWrittenAndReports) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    list[0].SetData(Join({Base(2, 2), Block(2, 2), Block(3, 3)}));
    int before = 0;
    {
        MemoryPlatform twin;
        Add(twin, First, true, Base(1));
        DisplayList other = list;
        SaveDisplays(twin, other);
        while (twin.Log()[static_cast<std::size_t>(before)] != "SetValue") ++before;
    }
    platform.FailCall(before + 2);  // the second block
    EXPECT_FALSE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"2 ");
    EXPECT_FALSE(list[0].Saved);
    EXPECT_TRUE(Load(platform)[0].OverrideData.IsEmpty());  // without its base block it is none
    EXPECT_TRUE(SaveDisplays(platform, list));              // a second attempt mends it
    EXPECT_EQ(OverrideNames(device), L"0 1 2 ");
}

TEST(SaveDisplays, FailureToWriteTheEdidValueIsIgnored) {
    MemoryPlatform platform;
    Add(platform, First, true, {});
    DisplayList list = Load(platform);
    list[0].SetData(Base(2));
    platform.FailEach("DeleteValue");
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_TRUE(list[0].Saved);
    EXPECT_EQ(platform.Count("DeleteValue"), 1);
}

// Three edits at once: one to a longer override, one to a shorter, one back to the display's own data. Whichever call
// fails, a display that says it is saved is saved to the byte, and the others come to their end.
TEST(SaveDisplays, WhicheverCallFailsNothingReportsSuccessWrongly) {
    const auto build = [](MemoryPlatform& platform) {
        Add(platform, First, true, Base(1));
        MemoryDevice& second = Add(platform, Second, true, Base(2));
        for (const wchar_t* name : {L"0", L"1", L"2"}) PutOverride(second, name, Base(22));
        PutOverride(Add(platform, Third, true, Base(3)), L"0", Base(33));
    };
    const std::vector<Bytes> edits = {Join({Base(11, 2), Zeros(), Block(2, 2)}), Base(23), {}};
    for (const SystemError error : {SystemErrors::AccessDenied, SystemErrors::FileNotFound}) {
        int calls = 1;
        for (int k = 1; k <= calls; ++k) {
            MemoryPlatform platform;
            build(platform);
            DisplayList list = Load(platform);
            const std::size_t before = platform.Log().size();
            for (std::size_t i = 0; i < 3; ++i) list[i].SetData(edits[i]);
            platform.FailCall(k, error);
            const bool saved = SaveDisplays(platform, list);
            calls = static_cast<int>(platform.Log().size() - before) + 1;
            platform.ClearFaults();
            EXPECT_EQ(platform.OpenHandles(), 0) << k;

            const DisplayList stored = Load(platform);
            int unsaved = 0;
            for (std::size_t i = 0; i < 3; ++i) {
                if (list[i].Saved) {
                    EXPECT_EQ(stored[i].OverrideData, edits[i]) << "call " << k << ", display " << i;
                    EXPECT_EQ(list[i].OverrideData, edits[i]);
                } else {
                    ++unsaved;
                }
            }
            EXPECT_EQ(saved, unsaved == 0) << k;
            EXPECT_LE(unsaved, 1) << k;
        }
        EXPECT_GT(calls, 20);
    }
}

TEST(SaveDisplays, DoorThatCannotCarryOutWhatWasWrittenReports) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    DisplayList list = Load(platform);
    list[0].SetData(Base(2));
    platform.FailEach("Commit");
    EXPECT_FALSE(SaveDisplays(platform, list));
    EXPECT_FALSE(list[0].Saved);
    EXPECT_TRUE(list[0].OverrideData.IsEmpty());
    platform.ClearFaults();
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(platform.Log().back(), "Commit");
}

TEST(SaveDisplays, AnOverrideThatCannotBeDeletedIsEmptiedInstead) {
    for (const Bytes& data : {Bytes(), Base(5)}) {
        MemoryPlatform platform;
        MemoryDevice& device = Add(platform, First, true, Base(1));
        for (const wchar_t* name : {L"0", L"1", L"2"}) PutOverride(device, name, Base(9));
        DisplayList list = Load(platform);
        list[0].SetData(data);
        platform.FailEach("DeleteKey");
        EXPECT_TRUE(SaveDisplays(platform, list));
        EXPECT_EQ(OverrideNames(device), data.IsEmpty() ? L"" : L"0 ");
    }
}

TEST(SaveDisplays, AnOverrideThatCanNeitherBeDeletedNorEmptiedIsAFailure) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(9));
    DisplayList list = Load(platform);
    list[0].SetData({});
    platform.FailEach("DeleteKey");
    platform.FailEach("DeleteValue");
    EXPECT_FALSE(SaveDisplays(platform, list));
    EXPECT_FALSE(list[0].Saved);
}

TEST(SaveDisplays, AnOverrideThatCannotBeOpenedIsAFailure) {
    for (const Bytes& data : {Bytes(), Base(5)}) {
        MemoryPlatform platform;
        MemoryDevice& device = Add(platform, First, true, Base(1));
        PutOverride(device, L"0", Base(9));
        DisplayList list = Load(platform);
        list[0].SetData(data);
        platform.FailEach("OpenKey");
        EXPECT_FALSE(SaveDisplays(platform, list));
        EXPECT_FALSE(list[0].Saved);
        EXPECT_EQ(list[0].OverrideData, Base(9));
        EXPECT_EQ(OverrideNames(device), L"0 ");
        EXPECT_EQ(platform.Count("SetValue"), 0);
    }
}

TEST(SaveDisplays, AnOverrideWithSubKeysIsEmptiedAndWritten) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    for (const wchar_t* name : {L"0", L"1"}) PutOverride(device, name, Base(9));
    MemoryKey& key = **device.hardwareKey->keys.Find(L"EDID_OVERRIDE");
    for (const wchar_t* name : {L"a", L"b", L"c"}) key.keys.Put(name, std::make_shared<MemoryKey>());
    DisplayList list = Load(platform);
    list[0].SetData(Base(5));
    EXPECT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(OverrideNames(device), L"0 ");
    EXPECT_EQ(Load(platform)[0].OverrideData, Base(5));
}

TEST(SaveDisplays, EnumerationsThatNeverEndAreNoOverrideThatIsGone) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    PutOverride(device, L"0", Base(9));
    PutOverride(device, L"1", Base(9));
    DisplayList list = Load(platform);
    list[0].SetData({});
    platform.endless = true;
    platform.FailEach("DeleteKey");
    EXPECT_FALSE(SaveDisplays(platform, list));
    EXPECT_FALSE(list[0].Saved);
}

TEST(SaveDisplays, TheBaseBlockGoesFirstAndComesLast) {
    const Bytes edited = Join({Base(2, 2), Block(2, 2), Block(3, 3)});
    // How many calls a save makes that ends at one of them; what it left is whole.
    const auto save = [&](int endsAt) {
        MemoryPlatform platform;
        MemoryDevice& device = Add(platform, First, true, Base(1));
        for (const wchar_t* name : {L"1", L"0", L"2"}) PutOverride(device, name, Base(9));
        DisplayList list = Load(platform);
        const auto before = static_cast<int>(platform.Log().size());
        list[0].SetData(edited);
        platform.endsAt = before + endsAt;
        SaveDisplays(platform, list);
        const auto calls = static_cast<int>(platform.Log().size()) - before;
        platform.endsAt = 0;
        const Bytes stored = Load(platform)[0].OverrideData;
        EXPECT_TRUE(stored.IsEmpty() || stored == edited || stored == Join({Base(9), Base(9), Base(9)})) << endsAt;
        return calls;
    };
    const int calls = save(1000);
    EXPECT_GT(calls, 10);
    EXPECT_LT(calls, 1000);
    for (int k = 1; k <= calls; ++k) save(k);
}

TEST(DeleteKeyTree, DeletesAKeyWithOneChildAtEachLevel) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, {});
    auto child = std::make_shared<MemoryKey>();
    child->keys.Put(L"grandchild", std::make_shared<MemoryKey>());
    auto top = std::make_shared<MemoryKey>();
    top->keys.Put(L"child", child);
    device.hardwareKey->keys.Put(L"EDID_OVERRIDE", top);
    const auto set = platform.OpenMonitorClass();
    ASSERT_TRUE(set->EnumDevice(0));
    EXPECT_TRUE(DeleteKeyTree(*set->OpenHardwareKey(KeyAccess::Write), L"EDID_OVERRIDE"));
    EXPECT_TRUE(device.hardwareKey->keys.IsEmpty());
}

TEST(DeleteKeyTree, PassesOverEverySecondChildAndThenFails) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, {});
    auto top = std::make_shared<MemoryKey>();
    for (const wchar_t* name : {L"a", L"b", L"c", L"d"}) top->keys.Put(name, std::make_shared<MemoryKey>());
    device.hardwareKey->keys.Put(L"top", top);
    const auto set = platform.OpenMonitorClass();
    ASSERT_TRUE(set->EnumDevice(0));
    EXPECT_FALSE(DeleteKeyTree(*set->OpenHardwareKey(KeyAccess::Write), L"top"));
    EXPECT_EQ(top->keys.Find(L"a"), nullptr);
    EXPECT_NE(top->keys.Find(L"b"), nullptr);
    EXPECT_EQ(top->keys.Find(L"c"), nullptr);
    EXPECT_NE(top->keys.Find(L"d"), nullptr);
}

TEST(DeleteKeyTree, KeyThatIsNotThereIsAFailure) {
    MemoryPlatform platform;
    Add(platform, First, true, {});
    const auto set = platform.OpenMonitorClass();
    ASSERT_TRUE(set->EnumDevice(0));
    EXPECT_FALSE(DeleteKeyTree(*set->OpenHardwareKey(KeyAccess::Write), L"none"));
}

}  // namespace VNT
