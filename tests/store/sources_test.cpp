#include <gtest/gtest.h>

#include "samples/drivers/amd_stand_in.h"
#include "samples/drivers/nvidia_stand_in.h"
#include "store/display_devices.h"
#include "store/gpu_displays.h"
#include "store/source.h"
#include "store/wmi_monitors.h"
#include "tests/store/sample.h"
#include "tests/store/stand_in_library.h"

namespace VNT {

using namespace Sample;

namespace {

struct Adapter {
    std::wstring name;
    std::vector<std::wstring> monitorIds;
};

std::vector<DisplayDeviceRecord> ReadDevices(const std::vector<Adapter>& adapters) {
    std::vector<DisplayDeviceRecord> records(3);
    EXPECT_TRUE(ReadDisplayDevices(
        [&](const wchar_t* adapter, int index, DisplayDeviceEntry& out) {
            const auto at = static_cast<std::size_t>(index);
            if (adapter == nullptr) {
                if (at >= adapters.size()) return false;
                out = {adapters[at].name, L"PCI\\{no monitor}"};
                return true;
            }
            for (const Adapter& a : adapters) {
                if (a.name != adapter || at >= a.monitorIds.size()) continue;
                out = {a.name + L"\\Monitor" + std::to_wstring(index), a.monitorIds[at]};
                return true;
            }
            return false;
        },
        records));
    return records;
}

// A connection that gives these monitors, and whose calls of one name fail.
class FakeWmi : public WmiConnection {
public:
    struct Monitor {
        std::wstring name;
        std::vector<Bytes> blocks;
    };

    std::vector<Monitor> monitors;
    std::string failing = {};
    bool endless = false;
    std::string log = {};

    bool Do(WmiStep step) override { return Enter("Step" + std::to_string(static_cast<int>(step))); }
    WmiNext Next() override {
        if (!Enter("Next")) return WmiNext::Failed;
        if (!endless && ++monitor_ >= static_cast<int>(monitors.size())) return WmiNext::End;
        monitor_ = std::max(0, monitor_);
        return WmiNext::Object;
    }
    bool GetPath() override { return Enter("GetPath"); }
    bool GetInstanceName(std::wstring& out) override {
        out = Current().name;
        return Enter("GetInstanceName");
    }
    bool PutBlockId(std::uint8_t block) override {
        block_ = block;
        return Enter("PutBlockId");
    }
    bool ExecMethod() override { return Enter("ExecMethod") && (endless || block_ < Current().blocks.size()); }
    bool GetBlockContent(Bytes& out) override {
        out = Current().blocks[std::min(block_, Current().blocks.size() - 1)];
        return Enter("GetBlockContent");
    }

private:
    const Monitor& Current() const { return monitors[static_cast<std::size_t>(monitor_)]; }
    bool Enter(const std::string& call) {
        if (!endless) log += call + " ";
        return call != failing;
    }

    int monitor_ = -1;
    std::size_t block_ = 0;
};

struct WmiOutcome {
    bool succeeded = false;
    std::vector<std::wstring> errors = {};
    std::vector<WmiMonitorRecord> records = {};
};

WmiOutcome ReadWmi(FakeWmi& wmi) {
    WmiOutcome outcome;
    outcome.records.resize(2);
    outcome.succeeded = ReadWmiMonitors(
        wmi, [&](const wchar_t* text) { outcome.errors.emplace_back(text); }, outcome.records);
    return outcome;
}

FakeWmi TwoMonitors() {
    FakeWmi wmi;
    wmi.monitors = {{L"Display\\vta1001\\4&1&0&uid1_0", {Base(1, 1), Block(2, 2)}}, {Second + L"_0", {Base(2)}}};
    return wmi;
}

}  // namespace

TEST(DisplayDevices, JoinsDriverKeyAdapterAndMonitor) {
    const auto records = ReadDevices({{L"\\\\.\\DISPLAY1", {L"MONITOR\\VTA1001\\{4d36e96e}\\0001"}}});
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].DriverKey, L"{4d36e96e}\\0001");
    EXPECT_EQ(records[0].AdapterName, L"\\\\.\\DISPLAY1");
    EXPECT_EQ(records[0].MonitorName, L"\\\\.\\DISPLAY1\\Monitor0");
}

TEST(DisplayDevices, DeviceIdWithoutABraceGivesAnEmptyDriverKeyThatNeverMatches) {
    std::vector<DisplayDeviceRecord> records = ReadDevices({{L"A", {L"MONITOR\\VTA1001"}}});
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].DriverKey, L"");
    Display display;
    display.Active = true;
    AttachDisplayDevice(display, records);
    EXPECT_EQ(display.DisplayDevice, DisplayDeviceRecord());
}

TEST(DisplayDevices, TakesTheTextFromTheLastBraceInItsOwnCase) {
    EXPECT_EQ(ReadDevices({{L"A", {L"x{a}\\{4D36e96E}\\0001"}}}).at(0).DriverKey, L"{4D36e96E}\\0001");
}

TEST(DisplayDevices, TwoMonitorsOnOneAdapterHaveItsName) {
    const auto records = ReadDevices({{L"A", {L"{1}", L"{2}"}}, {L"B", {L"{3}"}}});
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].AdapterName, L"A");
    EXPECT_EQ(records[1].AdapterName, L"A");
    EXPECT_EQ(records[1].MonitorName, L"A\\Monitor1");
    EXPECT_EQ(records[2].AdapterName, L"B");
}

TEST(DisplayDevices, AdapterWithoutMonitorsGivesNoRecord) {
    EXPECT_TRUE(ReadDevices({{L"A", {}}}).empty());
    EXPECT_TRUE(ReadDevices({}).empty());
}

TEST(DisplayDevices, EndlessEnumerationEnds) {
    std::vector<DisplayDeviceRecord> records;
    int calls = 0;
    const auto endless = [&](const wchar_t* adapter, int, DisplayDeviceEntry& out) {
        out.DeviceName = L"A";
        ++calls;
        return adapter == nullptr || calls % 2 == 0;
    };
    EXPECT_TRUE(ReadDisplayDevices(endless, records));
    EXPECT_LE(records.size(), 2048u);
}

TEST(DisplayDevices, NoMoreAdaptersAreAskedForThanThereMayBe) {
    std::vector<DisplayDeviceRecord> records;
    int last = 0;
    const auto endless = [&](const wchar_t* adapter, int index, DisplayDeviceEntry& out) {
        out.DeviceName = L"A";
        if (adapter == nullptr) last = index;
        return adapter == nullptr;
    };
    EXPECT_TRUE(ReadDisplayDevices(endless, records));
    EXPECT_TRUE(records.empty());
    EXPECT_EQ(last, 1023);
}

TEST(WmiMonitors, ReadsEachMonitorBlockByBlock) {
    FakeWmi wmi = TwoMonitors();
    const WmiOutcome outcome = ReadWmi(wmi);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_TRUE(outcome.errors.empty());
    EXPECT_EQ(outcome.records,
              (std::vector<WmiMonitorRecord>{{First, Join({Base(1, 1), Block(2, 2)})}, {Second, Base(2)}}));
    EXPECT_EQ(wmi.log,
              "Step0 Step1 Step2 Step3 Step4 Step5 Step6 Step7 Step8 "
              "Next GetPath GetInstanceName PutBlockId ExecMethod GetBlockContent PutBlockId ExecMethod "
              "GetBlockContent PutBlockId ExecMethod "
              "Next GetPath GetInstanceName PutBlockId ExecMethod GetBlockContent PutBlockId ExecMethod Next ");
}

TEST(WmiMonitors, EachFailureHasItsOwnText) {
    const std::pair<const char*, const wchar_t*> rows[] = {
        {"Step0", L"CoInitializeEx failed."},
        {"Step1", L"CoInitializeSecurity failed."},
        {"Step2", L"CoCreateInstance failed."},
        {"Step3", L"IWbemLocator::ConnectServer(\"ROOT\\WMI\") failed."},
        {"Step4", L"CoSetProxyBlanket failed."},
        {"Step5", L"IWbemServices::GetObjectW(\"WmiMonitorDescriptorMethods\") failed."},
        {"Step6", L"WmiMonitorDescriptorMethods::GetMethod(\"WmiGetMonitorRawEEdidV1Block\") failed."},
        {"Step7", L"WmiGetMonitorRawEEdidV1Block::SpawnInstance failed."},
        {"Next", L"IEnumWbemClassObject::Next failed."},
        {"GetPath", L"IWbemClassObject::Get(\"__Path\") failed."},
        {"GetInstanceName", L"IWbemClassObject::Get(\"InstanceName\") failed."},
        {"PutBlockId", L"WmiGetMonitorRawEEdidV1Block::Put(\"BlockId\") failed."},
        {"GetBlockContent", L"WmiGetMonitorRawEEdidV1Block::Get(\"BlockContent\") failed."},
    };
    for (const auto& [call, text] : rows) {
        FakeWmi wmi = TwoMonitors();
        wmi.failing = call;
        const WmiOutcome outcome = ReadWmi(wmi);
        EXPECT_FALSE(outcome.succeeded) << call;
        EXPECT_EQ(outcome.errors, (std::vector<std::wstring>{text})) << call;
        EXPECT_EQ(wmi.log.substr(wmi.log.size() - std::string(call).size() - 1), std::string(call) + " ");
    }
}

TEST(WmiMonitors, FailedQueryShowsNothing) {
    FakeWmi wmi = TwoMonitors();
    wmi.failing = "Step8";
    const WmiOutcome outcome = ReadWmi(wmi);
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_TRUE(outcome.errors.empty());
    EXPECT_TRUE(outcome.records.empty());
}

TEST(WmiMonitors, MonitorWithNoBlocksGivesARecordWithEmptyData) {
    FakeWmi wmi = TwoMonitors();
    wmi.failing = "ExecMethod";
    const WmiOutcome outcome = ReadWmi(wmi);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(outcome.records, (std::vector<WmiMonitorRecord>{{First, {}}, {Second, {}}}));
}

TEST(WmiMonitors, InstanceNameLosesWhatFollowsItsLastUnderscore) {
    for (const auto& [name, id] : std::vector<std::pair<std::wstring, std::wstring>>{
             {L"a\\b_c\\d_0", L"A\\B_C\\D"}, {L"plain", L"PLAIN"}, {L"_", L""}, {L"", L""}}) {
        FakeWmi wmi;
        wmi.monitors = {{name, {}}};
        EXPECT_EQ(ReadWmi(wmi).records.at(0).InstanceId, id);
    }
}

TEST(WmiMonitors, NoMonitorIsASuccess) {
    FakeWmi wmi;
    const WmiOutcome outcome = ReadWmi(wmi);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_TRUE(outcome.records.empty());
}

TEST(WmiMonitors, EndlessMonitorsAndBlocksEnd) {
    FakeWmi wmi = TwoMonitors();
    wmi.endless = true;
    const WmiOutcome outcome = ReadWmi(wmi);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(outcome.records.size(), static_cast<std::size_t>(Source::MostRecords));
    EXPECT_EQ(outcome.records[0].EdidData.Size(), 256 * 128);
}

TEST(WmiMonitors, BlockLargerThanAnEdidIsCut) {
    FakeWmi wmi;
    wmi.monitors = {{First, {Bytes(1000000, 1), Bytes(1000000, 1)}}};
    EXPECT_EQ(ReadWmi(wmi).records.at(0).EdidData.Size(), Source::MostEdidBytes);
}

namespace {

class GpuDisplays : public testing::Test {
protected:
    GpuDisplays() {
        StandIn::Nvidia().Start("gpu 1\ndisplay 2 A\n" + EdidLine(Base(1)));
        libraries_.libraries[L"atiadlxx.dll"] = {};  // has none of the names
    }

    StandInLibraries libraries_;
    std::vector<WindowsGpuDisplay> displays_ = std::vector<WindowsGpuDisplay>(2);
};

}  // namespace

TEST_F(GpuDisplays, NeitherLibraryIsAFailure) {
    libraries_.libraries.clear();
    EXPECT_FALSE(ReadGpuDisplays(libraries_.Loader(), displays_));
    EXPECT_TRUE(displays_.empty());
    EXPECT_EQ(libraries_.asked.size(), 4u);  // both are asked
}

TEST_F(GpuDisplays, WithoutDriversThePassesAreSkippedAndTheDataSettle) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform, list, false));
    EXPECT_TRUE(list.at(0).GpuDisplay.IsEmpty());
    EXPECT_EQ(list[0].CurrentData, Base(1));
}

TEST_F(GpuDisplays, BothDriversAreAskedWhenTheFirstAnswers) {
    libraries_.libraries[L"nvapi.dll"] = {
        {"nvapi_QueryInterface", reinterpret_cast<DriverLibrary::Procedure>(StandIn::nvapi_QueryInterface)}};
    libraries_.libraries[L"atiadlxx.dll"] = AmdExports();
    StandIn::Amd().Start("adapter 0 A P\ndisplay 0 0\n" + EdidLine(Base(3)));
    EXPECT_TRUE(ReadGpuDisplays(libraries_.Loader(), displays_));
    ASSERT_EQ(displays_.size(), 2u);
    EXPECT_EQ(displays_[0].GetRecord().EdidData, Base(3));
    EXPECT_EQ(displays_[1].GetRecord().EdidData, Base(1));
}

TEST_F(GpuDisplays, OneThatFailsAndOneThatWorksIsASuccess) {
    libraries_.libraries[L"nvapi.dll"] = {
        {"nvapi_QueryInterface", reinterpret_cast<DriverLibrary::Procedure>(StandIn::nvapi_QueryInterface)}};
    EXPECT_TRUE(ReadGpuDisplays(libraries_.Loader(), displays_));
    ASSERT_EQ(displays_.size(), 1u);
    EXPECT_EQ(displays_[0].GetRecord().EdidData, Base(1));
    displays_.clear();
    EXPECT_EQ(libraries_.loaded, 0);
}

}  // namespace VNT
