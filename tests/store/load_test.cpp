#include "store/load.h"

#include <gtest/gtest.h>

#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

DisplayList Load(MemoryPlatform& platform, bool includeInactiveWithEdid = false) {
    DisplayList list;
    EXPECT_TRUE(LoadDisplays(platform, list, includeInactiveWithEdid));
    EXPECT_EQ(platform.OpenHandles(), 0);
    return list;
}

// The override data of a display whose EDID_OVERRIDE holds these values.
Bytes LoadOverride(const std::vector<std::pair<std::wstring, Bytes>>& values) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, {});
    for (const auto& [name, bytes] : values) PutOverride(device, name, bytes);
    return Load(platform).at(0).OverrideData;
}

}  // namespace

TEST(LoadDisplays, ListsAnActiveDisplayWithAllItsFields) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, L"Display\\vta1001\\4&1&0&uid1", true, Base(7));
    device.driverKey = L"{4d36e96e-e325-11ce-bfc1-08002be10318}\\0001";
    device.description = std::wstring(L"Sample monitor\0\0", 16);
    const Display display = Load(platform).at(0);
    EXPECT_EQ(display.InstanceId, First);
    EXPECT_EQ(display.DriverKey, L"{4d36e96e-e325-11ce-bfc1-08002be10318}\\0001");
    EXPECT_EQ(display.DeviceDescription, L"Sample monitor");
    EXPECT_EQ(display.EdidData, Base(7));
    EXPECT_EQ(display.CurrentData, Base(7));
    EXPECT_TRUE(display.OverrideData.IsEmpty());
    EXPECT_TRUE(display.GpuDisplay.IsEmpty());
    EXPECT_TRUE(display.Active);
    EXPECT_TRUE(display.NotDefaultMonitor);
    EXPECT_TRUE(display.Saved);
}

TEST(LoadDisplays, UpperCasesOnlyAsciiLetters) {
    EXPECT_EQ(UpperAscii(L"az{AZ09\u00e4\u00df\u0131"), L"AZ{AZ09\u00e4\u00df\u0131");
}

TEST(LoadDisplays, InactiveWithEdidAndNoOverrideIsListedOnlyOnRequest) {
    MemoryPlatform platform;
    Add(platform, First, false, Base(7));
    EXPECT_TRUE(Load(platform, false).empty());
    EXPECT_EQ(Load(platform, true).size(), 1u);
}

TEST(LoadDisplays, InactiveWithoutAnyDataIsNeverListed) {
    MemoryPlatform platform;
    Add(platform, First, false, {});
    EXPECT_TRUE(Load(platform, true).empty());
}

TEST(LoadDisplays, InactiveWithOverrideIsListedAndShowsTheOverride) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, false, Base(7)), L"0", Base(9));
    const DisplayList list = Load(platform);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_FALSE(list[0].Active);
    EXPECT_EQ(list[0].EdidData, Base(7));
    EXPECT_EQ(list[0].CurrentData, Base(9));
}

TEST(LoadDisplays, ActiveWithoutAnyDataIsListed) {
    MemoryPlatform platform;
    Add(platform, First, true, {});
    const DisplayList list = Load(platform);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_TRUE(list[0].CurrentData.IsEmpty());
}

TEST(LoadDisplays, KeepsTheOrderOfEnumeration) {
    MemoryPlatform platform;
    Add(platform, Third, true, {});
    Add(platform, First, true, {});
    Add(platform, Second, true, {});
    const DisplayList list = Load(platform);
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0].InstanceId, Third);
    EXPECT_EQ(list[1].InstanceId, First);
    EXPECT_EQ(list[2].InstanceId, Second);
}

TEST(LoadDisplays, ClearsTheListFirst) {
    MemoryPlatform platform;
    DisplayList list(2);
    EXPECT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_TRUE(list.empty());
}

TEST(LoadDisplays, TheDefaultMonitorIsMarkedByAnExactSearch) {
    MemoryPlatform platform;
    Add(platform, L"DISPLAY\\DEFAULT_MONITOR\\0000&0000", true, {});
    Add(platform, L"display\\default_monitor\\0001", true, {});
    Add(platform, L"DISPLAY\\DEFAULT_MONITOR0\\0002", true, {});
    const DisplayList list = Load(platform);
    EXPECT_FALSE(list.at(0).NotDefaultMonitor);
    EXPECT_FALSE(list.at(1).NotDefaultMonitor);  // upper-cased before the search
    EXPECT_TRUE(list.at(2).NotDefaultMonitor);
}

TEST(LoadDisplays, DeviceWithoutKeyIsLeftOutInSilence) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1)).hardwareKey = nullptr;
    Add(platform, Second, true, Base(2));
    const DisplayList list = Load(platform);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].InstanceId, Second);
}

TEST(LoadDisplays, PropertiesThatCannotBeReadAreEmpty) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    const DisplayList list = Load(platform);
    EXPECT_EQ(list.at(0).DriverKey, L"");
    EXPECT_EQ(list.at(0).DeviceDescription, L"");
}

TEST(ReadEdid, LengthThatIsNoWholeNumberOfBlocksGivesNothingAndTheDisplayStays) {
    for (const int size : {1, 127, 129, 200, 255}) {
        MemoryPlatform platform;
        Add(platform, First, true, Bytes(size, 1));
        EXPECT_TRUE(Load(platform).at(0).EdidData.IsEmpty()) << size;
    }
}

TEST(ReadEdid, WholeBlocksAreTakenWhole) {
    MemoryPlatform platform;
    const Bytes edid = Join({Base(1, 1), Block(2, 3), Block(4, 5)});
    Add(platform, First, true, edid);
    EXPECT_EQ(Load(platform).at(0).EdidData, edid);
}

TEST(ReadOverride, SparseGapReadsAsZeros) {
    EXPECT_EQ(LoadOverride({{L"0", Base(1)}, {L"2", Block(2, 2)}}), Join({Base(1), Zeros(), Block(2, 2)}));
}

TEST(ReadOverride, SparseOrderOfEnumerationDoesNotMatter) {
    EXPECT_EQ(LoadOverride({{L"3", Block(3, 3)}, {L"1", Block(1, 1)}, {L"0", Base(9)}}),
              Join({Base(9), Block(1, 1), Zeros(), Block(3, 3)}));
}

TEST(ReadOverride, SparseIgnoresNamesThatAreNotPrintedAsNumbers) {
    for (const wchar_t* name : {L"007", L"01", L"+1", L"-1", L" 1", L"1 ", L"", L"1a", L"0x1", L"a", L"256", L"1000",
                                L"4294967297", L"99999999999999999999", L"\uff11"}) {
        EXPECT_EQ(LoadOverride({{L"0", Base(1)}, {name, Block(2, 2)}}), Base(1));
    }
}

TEST(ReadOverride, SparseTakesBlockNumbersUpTo255) {
    const Bytes data = LoadOverride({{L"0", Base(1)}, {L"255", Block(2, 2)}});
    EXPECT_EQ(data.Size(), 256 * 128);
    EXPECT_EQ(data.Slice(255 * 128, 128), Block(2, 2));
}

TEST(ReadOverride, SparseSkipsAValueOfAnotherSize) {
    EXPECT_EQ(LoadOverride({{L"0", Base(1)}, {L"1", Bytes(127, 1)}, {L"2", Block(2, 2)}, {L"3", Bytes(129, 1)}}),
              Join({Base(1), Zeros(), Block(2, 2)}));
}

TEST(ReadOverride, SequentialStopsAtTheFirstGap) {
    EXPECT_EQ(LoadOverride({{L"0", Block(1, 1)}, {L"1", Block(2, 2)}, {L"3", Block(3, 3)}}),
              Join({Block(1, 1), Block(2, 2)}));
}

TEST(ReadOverride, SequentialStopsAtAValueOfAnotherSize) {
    EXPECT_EQ(LoadOverride({{L"0", Block(1, 1)}, {L"1", Bytes(127, 2)}, {L"2", Block(3, 3)}}), Block(1, 1));
}

TEST(ReadOverride, SequentialHoldsAtMost512Blocks) {
    std::vector<std::pair<std::wstring, Bytes>> values;
    for (int i = 0; i < 514; ++i) values.emplace_back(std::to_wstring(i), Block(1, i % 256));
    EXPECT_EQ(LoadOverride(values).Size(), 512 * 128);
}

TEST(ReadOverride, BlockZeroOfAnotherSizeIsNoOverrideAtAll) {
    EXPECT_TRUE(LoadOverride({{L"0", Bytes(127, 0)}, {L"1", Block(1, 1)}}).IsEmpty());
    EXPECT_TRUE(LoadOverride({{L"0", Bytes(256, 1)}, {L"1", Block(1, 1)}}).IsEmpty());
}

TEST(ReadOverride, WithoutBlockZeroThereIsNoOverride) { EXPECT_TRUE(LoadOverride({{L"1", Block(1, 1)}}).IsEmpty()); }

TEST(LoadDisplays, FailsOnlyIfTheClassCannotBeOpened) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    platform.FailEach("OpenMonitorClass");
    DisplayList list(1);
    EXPECT_FALSE(LoadDisplays(platform, list, false));
    EXPECT_TRUE(list.empty());
}

TEST(LoadDisplays, AnInstanceIdThatCannotBeReadEndsTheEnumeration) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    Add(platform, Second, true, Base(2));
    platform.FailEach("GetInstanceId");
    EXPECT_TRUE(Load(platform).empty());
}

TEST(LoadDisplays, EachFaultCostsNoMoreThanWhatItConcerns) {
    MemoryPlatform platform;
    const auto fill = [](MemoryDevice& device, int mark) {
        device.driverKey = L"{}\\0001";
        device.description = L"Sample";
        PutOverride(device, L"0", Base(mark));
        PutOverride(device, L"1", Block(1, mark));
    };
    fill(Add(platform, First, true, Base(1)), 10);
    fill(Add(platform, Second, true, Base(2)), 20);
    const DisplayList whole = Load(platform);
    const int calls = static_cast<int>(platform.Log().size());
    ASSERT_GT(calls, 30);
    for (int k = 1; k <= calls; ++k) {
        platform.FailCall(k);
        DisplayList list;
        const bool loaded = LoadDisplays(platform, list, false);
        EXPECT_EQ(platform.OpenHandles(), 0) << k;
        EXPECT_EQ(loaded, k != 1) << k;  // the first call opens the class
        for (const Display& display : list) {
            const Display& good = display.InstanceId == First ? whole[0] : whole[1];
            EXPECT_TRUE(display.Saved);
            EXPECT_TRUE(display.EdidData == good.EdidData || display.EdidData.IsEmpty()) << k;
            // Cut short, never wrong.
            EXPECT_EQ(display.OverrideData, good.OverrideData.Slice(0, display.OverrideData.Size())) << k;
            EXPECT_EQ(display.CurrentData, display.OverrideData.IsEmpty() ? display.EdidData : display.OverrideData)
                << k;
        }
        platform.ClearFaults();
    }
}

TEST(LoadDisplays, AValueThatGrowsBetweenTheTwoCallsIsNotRead) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    Load(platform);
    int query = 0;  // the second call of the first query
    int seen = 0;
    for (int i = 0; i < static_cast<int>(platform.Log().size()) && seen < 2; ++i) {
        if (platform.Log()[static_cast<std::size_t>(i)] == "QueryValue" && ++seen == 2) query = i + 1;
    }
    platform.FailCall(query, SystemErrors::MoreData);
    EXPECT_TRUE(Load(platform).at(0).EdidData.IsEmpty());
}

TEST(LoadDisplays, AnOverrideThatCannotBeOpenedIsNone) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    platform.FailEach("OpenKey");
    EXPECT_EQ(Load(platform).at(0).CurrentData, Base(1));
}

TEST(LoadDisplays, EnumerationsThatNeverEndEnd) {
    MemoryPlatform platform;
    PutOverride(Add(platform, First, true, Base(1)), L"0", Base(2));
    platform.endless = true;
    const DisplayList list = Load(platform);
    ASSERT_EQ(list.size(), 1024u);
    EXPECT_EQ(list[0].OverrideData, Base(2));
}

TEST(LoadDisplays, WmiRecordsReachEachDisplayTheyName) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    Add(platform, Second, true, Base(2));
    Add(platform, Third, false, Base(3));
    platform.wmiMonitors = std::vector<WmiMonitorRecord>{{Third, Base(30)}, {Second, Base(20)}, {First, Base(10)}};
    const DisplayList list = Load(platform, true);
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0].CurrentData, Base(10));
    EXPECT_EQ(list[1].CurrentData, Base(20));
    EXPECT_EQ(list[2].CurrentData, Base(3));
}

TEST(LoadDisplays, SourcesThatFailAddNothing) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1)).driverKey = L"{}\\0001";
    platform.displayDevices.reset();
    const DisplayList list = Load(platform);
    EXPECT_EQ(list.at(0).EdidData, Base(1));
    EXPECT_EQ(list.at(0).WmiMonitor, WmiMonitorRecord());
    EXPECT_EQ(list.at(0).DisplayDevice, DisplayDeviceRecord());
    EXPECT_TRUE(list.at(0).GpuDisplay.IsEmpty());
    EXPECT_EQ(platform.Count("ReadWmiMonitors"), 1);
    EXPECT_EQ(platform.Count("ReadDisplayDevices"), 1);
    EXPECT_EQ(platform.Count("ReadGpuDisplays"), 1);
}

}  // namespace VNT
