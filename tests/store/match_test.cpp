#include "store/match.h"

#include <gtest/gtest.h>

#include "model/core/layout_made.h"
#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

// A driver's display that is nothing but its record.
class TestGpuDisplay : public TCommonType<TestGpuDisplay, WindowsGpuTypeId, WindowsGpuTypeId::Amd, AnyWindowsGpuDisplay,
                                          AnyWindowsGpuDisplay> {
public:
    explicit TestGpuDisplay(GpuDisplayRecord record) : record_(std::move(record)) {}
    const GpuDisplayRecord& GetRecord() const override { return record_; }
    bool ReadI2c(std::uint8_t, ByteRange) const override { return false; }
    bool WriteI2c(ByteRange) const override { return false; }
    bool IsValid() const override { return true; }
    bool IsValidAll() const override { return true; }
    bool EqualFields(const TestGpuDisplay& other) const { return record_ == other.record_; }

private:
    GpuDisplayRecord record_;
};

WindowsGpuDisplay Gpu(const std::wstring& name, const Bytes& edid, std::uint32_t mark = 0) {
    return WindowsGpuDisplay(std::make_unique<TestGpuDisplay>(GpuDisplayRecord{name, edid, mark, 0}));
}

Display Active(const std::wstring& adapter, const Bytes& edid, const Bytes& overriding = {}) {
    Display display;
    display.Active = true;
    display.EdidData = edid;
    display.OverrideData = overriding;
    if (!adapter.empty()) display.DisplayDevice = {L"{}\\0001", adapter, adapter + L"\\Monitor0"};
    return display;
}

// The mark of the record that each display got, in order; "-" for none.
std::string Attached(DisplayList list, std::vector<WindowsGpuDisplay> records) {
    AttachGpuDisplays(list, records);
    std::string marks;
    for (const Display& display : list) {
        marks += display.GpuDisplay.IsEmpty() ? "-" : std::to_string(display.GpuDisplay.GetRecord().Handle1);
    }
    return marks;
}

const Bytes Whole = Join({Base(1, 1), Block(2, 2)});
const Bytes WholeOther = Join({Base(1, 1), Block(2, 3)});
const Bytes Untagged = Join({Base(1, 1), Block(0, 2)});

}  // namespace

TEST(LoadDisplays, RunsThePassesWhenADriverAnswered) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1, 1));
    platform.gpuDisplays = std::vector<WindowsGpuDisplay>{Gpu(L"", Whole, 7)};
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_EQ(list.at(0).GpuDisplay.GetRecord().Handle1, 7u);
    EXPECT_EQ(list[0].CurrentData, Whole);
}

TEST(MatchesExactly, ComparesAllCountedBlocks) {
    EXPECT_TRUE(MatchesExactly(Base(1), Base(1)));
    EXPECT_TRUE(MatchesExactly(Whole, Whole));
    EXPECT_FALSE(MatchesExactly(Base(1), Base(2)));
    EXPECT_FALSE(MatchesExactly(Whole, WholeOther));
}

TEST(MatchesExactly, NeedsTheCountedLengthOnBothSides) {
    EXPECT_FALSE(MatchesExactly(Base(1, 1), Whole));
    EXPECT_FALSE(MatchesExactly(Whole, Base(1, 1)));
    EXPECT_FALSE(MatchesExactly(Whole, Whole.Slice(0, 255)));
    EXPECT_TRUE(MatchesExactly(Base(1), Join({Base(1), Block(2, 2)})));  // nothing promised, nothing compared
}

TEST(MatchesExactly, IsFalseForATagOfZeroOnEitherSideEvenInEqualBlocks) {
    EXPECT_FALSE(MatchesExactly(Untagged, Untagged));
    EXPECT_FALSE(MatchesExactly(Whole, Untagged));
    EXPECT_FALSE(MatchesExactly(Untagged, Whole));
}

TEST(MatchesExactly, IsFalseBelowOneBlock) {
    EXPECT_FALSE(MatchesExactly({}, {}));
    EXPECT_FALSE(MatchesExactly(Base(1), {}));
    EXPECT_FALSE(MatchesExactly(Base(1).Slice(0, 127), Base(1)));
    EXPECT_FALSE(MatchesLoosely({}, {}));
    EXPECT_FALSE(MatchesLoosely(Base(1), Base(1).Slice(0, 127)));
}

TEST(MatchesLoosely, PassesOverABlockWithATagOfZero) {
    EXPECT_TRUE(MatchesLoosely(Whole, Untagged));
    EXPECT_TRUE(MatchesLoosely(Untagged, Whole));
    EXPECT_TRUE(MatchesLoosely(Untagged, Join({Base(1, 1), Block(0, 9)})));
    EXPECT_FALSE(MatchesLoosely(Whole, WholeOther));
}

TEST(MatchesLoosely, PassesOverADifferenceOfLength) {
    EXPECT_TRUE(MatchesLoosely(Whole, Base(1, 1)));
    EXPECT_TRUE(MatchesLoosely(Base(1, 1), Whole));
    EXPECT_TRUE(MatchesLoosely(Whole, WholeOther.Slice(0, 255)));  // no second block that is whole
    EXPECT_TRUE(MatchesLoosely(Join({Base(1), Block(2, 2)}), Join({Base(1), Block(2, 3)})));  // behind the count
}

TEST(AttachWmi, TakesTheRecordAndItsDataEvenIfEmpty) {
    std::vector<WmiMonitorRecord> records = {{First, {}}, {Second, Base(5)}};
    Display display = Active(L"", Base(1));
    display.InstanceId = First;
    AttachWmi(display, records);
    EXPECT_EQ(display.WmiMonitor.InstanceId, First);
    EXPECT_TRUE(display.EdidData.IsEmpty());
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].InstanceId, Second);
}

TEST(AttachWmi, ComparesTheIdentityExactlyAndOnlyForActiveDisplays) {
    std::vector<WmiMonitorRecord> records = {
        {L"display\\vta1001\\4&1&0&uid1", Base(5)}, {First, Base(6)}, {L"", Base(7)}};
    Display inactive;
    inactive.InstanceId = First;
    AttachWmi(inactive, records);
    EXPECT_TRUE(inactive.EdidData.IsEmpty());
    Display nameless = Active(L"", Base(1));
    AttachWmi(nameless, records);
    EXPECT_EQ(nameless.EdidData, Base(1));
    Display display = Active(L"", Base(1));
    display.InstanceId = First;
    AttachWmi(display, records);
    EXPECT_EQ(display.EdidData, Base(6));
}

TEST(AttachWmi, OneRecordServesOneDisplay) {
    std::vector<WmiMonitorRecord> records = {{First, Base(5)}};
    DisplayList list = {Active(L"", Base(1)), Active(L"", Base(1))};
    for (Display& display : list) {
        display.InstanceId = First;
        AttachWmi(display, records);
    }
    EXPECT_EQ(list[0].EdidData, Base(5));
    EXPECT_EQ(list[1].EdidData, Base(1));
}

TEST(AttachDisplayDevice, MatchesTheDriverKeyExactlyAndConsumesTheRecord) {
    std::vector<DisplayDeviceRecord> records = {{L"", L"none", L""},
                                                {L"{A}\\0001", L"upper", L""},
                                                {L"{a}\\0001", L"first", L""},
                                                {L"{a}\\0001", L"second", L""}};
    DisplayList list(4);
    for (Display& display : list) display.Active = true;
    list[0].DriverKey = L"{a}\\0001";
    list[1].DriverKey = L"{a}\\0001";
    list[3].DriverKey = L"{A}\\0001";
    list[3].Active = false;
    for (Display& display : list) AttachDisplayDevice(display, records);
    EXPECT_EQ(list[0].DisplayDevice.AdapterName, L"first");
    EXPECT_EQ(list[1].DisplayDevice.AdapterName, L"second");
    EXPECT_EQ(list[2].DisplayDevice, DisplayDeviceRecord());  // without a driver key
    EXPECT_EQ(list[3].DisplayDevice, DisplayDeviceRecord());  // not active
    EXPECT_EQ(records.size(), 2u);
}

// One display, one record that meets one pass and no earlier one; and what makes it miss.
TEST(AttachGpuDisplay, EachPassFindsItsRecord) {
    struct Row {
        const char* pass;
        Display display;
        WindowsGpuDisplay record;
        bool attached;
    };
    const Bytes loose = Base(1, 1);  // matches Whole loosely
    const Bytes own = Join({Base(8, 1), Block(2, 8)});
    const Row rows[] = {
        {"1", Active(L"A", Whole), Gpu(L"A", Whole), true},
        {"2", Active(L"A", loose, Whole), Gpu(L"A", Whole), true},
        {"3", Active(L"A", loose, Untagged), Gpu(L"A", Whole), true},
        {"4", Active(L"A", loose, own), Gpu(L"A", Whole), true},
        {"5: other name", Active(L"A", Whole), Gpu(L"B", Whole), true},
        {"5: no device", Active(L"", Whole), Gpu(L"A", Whole), true},
        {"6", Active(L"", loose, Whole), Gpu(L"A", Whole), true},
        {"7", Active(L"", loose, Untagged), Gpu(L"A", Whole), true},
        {"8", Active(L"", loose), Gpu(L"A", Whole), true},
        {"none: other base block", Active(L"A", Whole), Gpu(L"A", Base(2, 1)), false},
        {"none: no data of the display", Active(L"A", {}, Whole), Gpu(L"A", Whole), false},
        {"none: no data of the record", Active(L"A", Whole), Gpu(L"A", {}), false},
        {"none: empty record", Active(L"A", Whole), WindowsGpuDisplay(), false},
    };
    for (const Row& row : rows) EXPECT_EQ(Attached({row.display}, {row.record}), row.attached ? "0" : "-") << row.pass;
}

TEST(AttachGpuDisplay, InactiveDisplayGetsNone) {
    Display display = Active(L"A", Whole);
    display.Active = false;
    EXPECT_EQ(Attached({display}, {Gpu(L"A", Whole)}), "-");
}

// Each row holds, behind each other, a record for a later pass and one for an earlier pass: the earlier pass wins.
TEST(AttachGpuDisplay, StricterEvidenceClaimsARecordFirst) {
    const Bytes loose = Base(1, 1);
    const Display both = Active(L"A", loose, Whole);
    EXPECT_EQ(Attached({Active(L"A", Whole)}, {Gpu(L"A", loose, 4), Gpu(L"A", Whole, 1)}), "1");
    EXPECT_EQ(Attached({both}, {Gpu(L"A", Untagged, 3), Gpu(L"A", Whole, 2)}), "2");
    EXPECT_EQ(Attached({both}, {Gpu(L"A", WholeOther, 4), Gpu(L"A", Untagged, 3)}), "3");
    EXPECT_EQ(Attached({Active(L"A", Whole)}, {Gpu(L"B", Whole, 5), Gpu(L"A", loose, 4)}), "4");
    EXPECT_EQ(Attached({Active(L"", Whole)}, {Gpu(L"B", loose, 8), Gpu(L"B", Whole, 5)}), "5");
    const Display unnamed = Active(L"", loose, Whole);
    EXPECT_EQ(Attached({unnamed}, {Gpu(L"B", Untagged, 7), Gpu(L"B", Whole, 6)}), "6");
    EXPECT_EQ(Attached({unnamed}, {Gpu(L"B", WholeOther, 8), Gpu(L"B", Untagged, 7)}), "7");
}

TEST(AttachGpuDisplay, TwoEqualMonitorsOnTwoAdaptersGetTheirOwn) {
    EXPECT_EQ(Attached({Active(L"A", Whole), Active(L"B", Whole)}, {Gpu(L"B", Whole, 2), Gpu(L"A", Whole, 1)}), "12");
}

TEST(AttachGpuDisplay, TwoEqualMonitorsOnOneAdapterTakeTheRecordsInOrder) {
    EXPECT_EQ(Attached({Active(L"A", Whole), Active(L"A", Whole)}, {Gpu(L"A", Whole, 1), Gpu(L"A", Whole, 2)}), "12");
}

TEST(AttachGpuDisplay, ARecordIsConsumedByOneDisplay) {
    EXPECT_EQ(Attached({Active(L"A", Whole), Active(L"A", Whole)}, {Gpu(L"A", Whole, 1)}), "1-");
}

TEST(AttachGpuDisplay, EachPassGoesOverTheWholeListBeforeTheNext) {
    // The first display would take the record in pass 4; the second claims it in pass 1.
    EXPECT_EQ(Attached({Active(L"A", Base(1, 1)), Active(L"A", Whole)}, {Gpu(L"A", Whole, 1)}), "-1");
}

TEST(AttachGpuDisplay, ADisplayKeepsItsFirstRecord) {
    EXPECT_EQ(Attached({Active(L"A", Whole)}, {Gpu(L"A", Whole, 1), Gpu(L"A", Whole, 2)}), "1");
}

TEST(SettleData, ADriverThatReportsMoreWins) {
    Display display = Active(L"A", Base(1, 1));
    display.GpuDisplay = Gpu(L"A", Whole);
    SettleData(display);
    EXPECT_EQ(display.EdidData, Whole);
    EXPECT_EQ(display.CurrentData, Whole);
}

TEST(SettleData, ADriverThatReportsTheSameLengthOrLessDoesNot) {
    Display display = Active(L"A", Whole);
    display.GpuDisplay = Gpu(L"A", WholeOther);
    SettleData(display);
    EXPECT_EQ(display.EdidData, Whole);
    display.GpuDisplay = Gpu(L"A", Base(1, 1));
    SettleData(display);
    EXPECT_EQ(display.EdidData, Whole);
}

TEST(SettleData, AnOverrideWinsOverWhatTheDisplayReports) {
    Display display = Active(L"A", Base(1), Base(2));
    SettleData(display);
    EXPECT_EQ(display.CurrentData, Base(2));
    EXPECT_EQ(display.EdidData, Base(1));
}

TEST(LoadDisplays, DisplayWhoseWmiRecordHasNoBlocksStaysWithoutData) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    platform.wmiMonitors = std::vector<WmiMonitorRecord>{{First, {}}};
    platform.gpuDisplays = std::vector<WindowsGpuDisplay>{Gpu(L"A", Base(1))};
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_TRUE(list.at(0).EdidData.IsEmpty());
    EXPECT_TRUE(list.at(0).GpuDisplay.IsEmpty());
    EXPECT_TRUE(list.at(0).CurrentData.IsEmpty());
}

TEST(LoadDisplays, LongerDriverDataReplacesTheEdidAndIsWrittenOnTheNextSave) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1, 1));
    device.driverKey = L"{}\\0001";
    platform.displayDevices = std::vector<DisplayDeviceRecord>{{L"{}\\0001", L"A", L"A\\Monitor0"}};
    platform.gpuDisplays = std::vector<WindowsGpuDisplay>{Gpu(L"A", Whole)};
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_EQ(list.at(0).EdidData, Whole);
    EXPECT_TRUE(list[0].Saved);
    list[0].SetData(Base(9));
    ASSERT_TRUE(SaveDisplays(platform, list));
    EXPECT_EQ(*Edid(device), Whole);
}

TEST(LoadDisplays, SourcesAreAskedInOrder) {
    MemoryPlatform platform;
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_EQ(platform.Log(), (std::vector<std::string_view>{"OpenMonitorClass", "EnumDevice", "ReadWmiMonitors",
                                                             "ReadDisplayDevices", "ReadGpuDisplays"}));
}

TEST(WindowsGpuDisplay, EmptyHolderReportsNothing) {
    const WindowsGpuDisplay empty;
    EXPECT_EQ(empty.GetType(), 0x1000000);
    EXPECT_EQ(empty.GetRecord(), GpuDisplayRecord());
    Bytes bytes(4, 7);
    EXPECT_FALSE(empty.ReadI2c(0x50, bytes));
    EXPECT_FALSE(empty.WriteI2c(bytes));
    EXPECT_EQ(bytes, Bytes(4, 7));
    EXPECT_FALSE(empty.IsValid());
    EXPECT_FALSE(empty.IsValidAll());
    EXPECT_EQ(empty.Clone(), nullptr);
    EXPECT_FALSE(empty == WindowsGpuDisplay());
}

TEST(WindowsGpuDisplay, CopyOfADisplayClonesTheItem) {
    Display display = Active(L"A", Whole);
    display.GpuDisplay = Gpu(L"A", Whole, 3);
    const Display copy = display;
    EXPECT_NE(&copy.GpuDisplay.Get(), &display.GpuDisplay.Get());
    EXPECT_TRUE(copy.GpuDisplay == display.GpuDisplay);
}

}  // namespace VNT
