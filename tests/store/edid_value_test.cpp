// What a save does to the value EDID, the system's copy of what the display reports: nothing that could cost a display
// its own EDID.

#include <gtest/gtest.h>

#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

const Bytes TwoBlocks = Join({Base(1, 1), Block(2, 2)});

// A machine with one display, edited; what it reports may come from another source.
class EdidValue : public testing::Test {
protected:
    void Start(const Bytes& value, const std::optional<Bytes>& wmi = std::nullopt) {
        device_ = &Add(platform_, First, true, value);
        if (wmi) platform_.wmiMonitors = std::vector<WmiMonitorRecord>{{First, *wmi}};
        Edit();
    }
    void Edit() {
        list_.clear();
        EXPECT_TRUE(LoadDisplays(platform_, list_, false));
        ASSERT_EQ(list_.size(), 1u);
        ASSERT_TRUE(list_[0].SetData(Base(77)));
    }
    void ExpectSaved() {
        EXPECT_TRUE(SaveDisplays(platform_, list_));
        EXPECT_EQ(OverrideNames(*device_), L"0 ");
    }
    void ExpectLeft(const Bytes& value) {
        const std::size_t before = platform_.Log().size();
        ExpectSaved();
        ASSERT_NE(Edid(*device_), nullptr);
        EXPECT_EQ(*Edid(*device_), value);
        const auto writes = [&](const char* name) {
            return std::count(platform_.Log().begin() + static_cast<std::ptrdiff_t>(before), platform_.Log().end(),
                              name);
        };
        EXPECT_EQ(writes("SetValue"), 1) << "the override's";
        EXPECT_EQ(writes("DeleteValue"), 0);
    }

    MemoryPlatform platform_;
    MemoryDevice* device_ = nullptr;
    DisplayList list_;
};

}  // namespace

TEST_F(EdidValue, ThatStandsThereIsNotWrittenAgain) {
    Start(TwoBlocks);
    ExpectLeft(TwoBlocks);
}

TEST_F(EdidValue, OfAnOddSizeIsLeft) {
    for (const int size : {1, 100, 127, 129, 300}) {
        platform_.devices.clear();
        Start(Bytes(size, 1));
        EXPECT_TRUE(list_[0].EdidValueFound);
        ExpectLeft(Bytes(size, 1));
    }
}

TEST_F(EdidValue, OfAnOddSizeIsNotMadeShorterByAnotherSource) {
    Start(Bytes(300, 1), TwoBlocks);
    EXPECT_EQ(list_[0].EdidData, TwoBlocks);
    ExpectLeft(Bytes(300, 1));
}

TEST_F(EdidValue, ThatCannotBeReadAtTheLoadIsLeft) {
    platform_.FailEach("QueryValue");
    Start(TwoBlocks);
    platform_.ClearFaults();
    EXPECT_TRUE(list_[0].EdidData.IsEmpty());
    ExpectLeft(TwoBlocks);
}

TEST_F(EdidValue, ThatCannotBeReadAtTheSaveIsLeft) {
    Start(Base(1), TwoBlocks);
    platform_.FailEach("QueryValue");
    ExpectLeft(Base(1));
}

TEST_F(EdidValue, IsLeftIfTheKeyCannotBeOpenedForReading) {
    Start(Base(1), TwoBlocks);
    DisplayList copy = list_;
    MemoryPlatform twin;
    Add(twin, First, true, Base(1));
    SaveDisplays(twin, copy);
    int call = 0;
    for (int opened = 0; opened < 2; ++call) {
        ASSERT_LT(call, static_cast<int>(twin.Log().size()));
        if (twin.Log()[static_cast<std::size_t>(call)] == "OpenHardwareKey") ++opened;
    }
    platform_.FailCall(call);
    ExpectLeft(Base(1));
}

TEST_F(EdidValue, IsLeftByAWmiRecordWithoutBlocks) {
    Start(TwoBlocks, Bytes());
    EXPECT_TRUE(list_[0].EdidData.IsEmpty());
    ExpectLeft(TwoBlocks);
}

TEST_F(EdidValue, IsNotMadeShorterByAWmiRecordOfFewerBlocks) {
    Start(TwoBlocks, Base(5));
    ExpectLeft(TwoBlocks);
}

TEST_F(EdidValue, IsLeftByARecordThatIsNoWholeNumberOfBlocks) {
    Bytes longer = TwoBlocks;
    longer.Append(Bytes(44, 3));
    Start(TwoBlocks, longer);
    EXPECT_EQ(list_[0].EdidData.Size(), 300);
    ExpectLeft(TwoBlocks);
}

TEST_F(EdidValue, TakesWholeBlocksThatAnotherSourceReports) {
    Start(Base(1), TwoBlocks);
    ExpectSaved();
    EXPECT_EQ(*Edid(*device_), TwoBlocks);
}

TEST_F(EdidValue, ThatVanishedSinceTheLoadIsWrittenAgain) {
    Start(TwoBlocks);
    device_->hardwareKey->values.Erase(L"EDID");
    ExpectSaved();
    ASSERT_NE(Edid(*device_), nullptr);
    EXPECT_EQ(*Edid(*device_), TwoBlocks);
}

TEST_F(EdidValue, IsDeletedOnlyWhereTheLoadFoundNone) {
    Start({});
    EXPECT_FALSE(list_[0].EdidValueFound);
    device_->hardwareKey->values.Put(L"EDID", Bytes(5, 1));
    ExpectSaved();
    EXPECT_EQ(Edid(*device_), nullptr);
}

TEST_F(EdidValue, IsNoConcernOfASaveOfTheOverrideAlone) {
    for (const Bytes& data : {Base(77), Bytes()}) {
        platform_.devices.clear();
        Start({}, TwoBlocks);
        list_[0].SetData(data);
        device_->hardwareKey->values.Put(L"EDID", Bytes(5, 1));
        EXPECT_TRUE(list_[0].SaveOverride(platform_));
        EXPECT_EQ(*Edid(*device_), Bytes(5, 1));
        EXPECT_EQ(list_[0].OverrideData, data);
        EXPECT_TRUE(list_[0].Saved);
        platform_.FailEach("OpenMonitor");
        EXPECT_FALSE(list_[0].SaveOverride(platform_));
        EXPECT_FALSE(list_[0].Saved);
        platform_.ClearFaults();
    }
}

}  // namespace VNT
