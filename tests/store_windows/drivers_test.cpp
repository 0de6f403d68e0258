#include "store/load.h"
#include "store/save.h"
#include "tests/store/blocks.h"
#include "tests/store_windows/stand_ins.h"

namespace VNT {

using namespace Sample;

namespace {

class Drivers : public StandInTest {
protected:
    // The displays as "type name handle handle size", a line each.
    std::wstring Read(bool succeeds = true) {
        std::vector<WindowsGpuDisplay> displays;
        EXPECT_EQ(platform_.ReadGpuDisplays(displays), succeeds);
        std::wstring text;
        for (const WindowsGpuDisplay& display : displays) {
            const GpuDisplayRecord& record = display.GetRecord();
            text.append(std::to_wstring(display.GetType())).append(L" ").append(record.DisplayName);
            text.append(L" ").append(std::to_wstring(record.Handle1)).append(L" ");
            text.append(std::to_wstring(record.Handle2)).append(L" ");
            text.append(std::to_wstring(record.EdidData.Size())).append(L"\n");
        }
        return text;
    }
};

const std::string AmdText = "adapter 0 \\\\.\\DISPLAY1 PCI_0\ndisplay 3 0\n" + EdidLine(LongEdid(300)) +
                            "adapter 1 \\\\.\\DISPLAY2 PCI_0\ndisplay 3 0\n" + EdidLine(LongEdid(300)) +
                            "adapter 2 \\\\.\\DISPLAY3 PCI_1\ndisplay 4 -1\n" + EdidLine(Base(4)) + "inactive 2\n";
const std::string NvidiaText = "gpu 256\ndisplay 0x80061081 \\\\.\\DISPLAY5\n" + EdidLine(LongEdid(512)) +
                               "display 7\nby 512 9\n" + EdidLine(LongEdid(300)) + "gpu 512\n";

}  // namespace

TEST_F(Drivers, WithoutALibraryInTheSystemFolderReadingFailsEvenIfOneIsBesideTheProgram) {
    EXPECT_EQ(Read(false), L"");
    EXPECT_EQ(GetModuleHandleW(L"atiadlxx.dll"), nullptr);
    EXPECT_EQ(GetModuleHandleW(L"nvapi64.dll"), nullptr);
}

TEST_F(Drivers, AmdDisplaysAreRead) {
    Install(L"atiadlxx", L"atiadlxx", AmdText);
    EXPECT_EQ(Read(), L"26 \\\\.\\DISPLAY1 0 3 300\n26 \\\\.\\DISPLAY3 2 4 128\n");
    EXPECT_EQ(Report(L"atiadlxx"), "started 0\n");
}

TEST_F(Drivers, TheOtherAmdLibraryServesAsWell) {
    Install(L"atiadlxx", L"atiadlxy", AmdText);
    EXPECT_EQ(Read(), L"26 \\\\.\\DISPLAY1 0 3 300\n26 \\\\.\\DISPLAY3 2 4 128\n");
    EXPECT_EQ(Report(L"atiadlxy"), "started 0\n");
}

TEST_F(Drivers, NvidiaDisplaysAreRead) {
    Install(L"nvapi64", L"nvapi64", NvidiaText);
    EXPECT_EQ(Read(), L"1099 \\\\.\\DISPLAY5 256 2147881089 512\n1099  512 9 300\n");
    EXPECT_EQ(Report(L"nvapi64"), "started 0\n");
}

TEST_F(Drivers, BothMakersTogetherAmdFirst) {
    Install(L"atiadlxx", L"atiadlxx", "adapter 0 A P\ndisplay 3 0\n" + EdidLine(Base(3)));
    Install(L"nvapi64", L"nvapi64", "gpu 1\ndisplay 2 B\n" + EdidLine(Base(4)));
    EXPECT_EQ(Read(), L"26 A 0 3 128\n1099 B 1 2 128\n");
}

TEST_F(Drivers, LibraryWithoutTheEntryPointsIsUnloadedAndTheOtherMakerIsRead) {
    Install(L"nvapi64", L"atiadlxx", "");
    Install(L"nvapi64", L"nvapi64", "gpu 1\ndisplay 2 B\n" + EdidLine(Base(4)));
    EXPECT_EQ(Read(), L"1099 B 1 2 128\n");
    EXPECT_EQ(GetModuleHandleW(L"atiadlxx.dll"), nullptr);
}

TEST_F(Drivers, FailureToStartIsSilent) {
    Install(L"atiadlxx", L"atiadlxx", AmdText + "fail ADL_Main_Control_Create\n");
    Install(L"nvapi64", L"nvapi64", NvidiaText + "fail Initialize\n");
    EXPECT_EQ(Read(false), L"");
    EXPECT_TRUE(errors_.empty());
    EXPECT_EQ(GetModuleHandleW(L"atiadlxx.dll"), nullptr);
    EXPECT_EQ(GetModuleHandleW(L"nvapi64.dll"), nullptr);
}

TEST_F(Drivers, ZeroAdaptersAndZeroGpusAreASuccess) {
    Install(L"atiadlxx", L"atiadlxx", "");
    Install(L"nvapi64", L"nvapi64", "");
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(Report(L"atiadlxx"), "started 0\n");
    EXPECT_EQ(Report(L"nvapi64"), "started 0\n");
}

TEST_F(Drivers, PlainBaseBlockAndEdidsOfEverySize) {
    const auto amd = [&](const Bytes& edid) {
        Install(L"atiadlxx", L"atiadlxx", "adapter 0 A P\ndisplay 0 0\nfirst 256\n" + EdidLine(edid));
        return Read();
    };
    const auto nvidia = [&](const Bytes& edid) {
        DeleteFileW(L"C:\\windows\\system32\\atiadlxx.dll");
        Install(L"nvapi64", L"nvapi64", "gpu 1\ndisplay 2 A\n" + EdidLine(edid));
        return Read();
    };
    EXPECT_EQ(amd(Join({Base(1), Block(2, 2)})), L"26 A 0 0 128\n");
    for (const int size : {128, 256, 300, 512}) {
        EXPECT_EQ(amd(LongEdid(size)), L"26 A 0 0 " + std::to_wstring(size) + L"\n");
    }
    for (const int size : {128, 256, 300, 512}) {
        EXPECT_EQ(nvidia(LongEdid(size)), L"1099 A 1 2 " + std::to_wstring(size) + L"\n");
    }
}

TEST_F(Drivers, FailingSecondBlockKeepsTheFirst) {
    Install(L"atiadlxx", L"atiadlxx",
            "adapter 0 A P\ndisplay 0 0\n" + EdidLine(LongEdid(300)) + "fail ADL_Display_EdidData_Get -1 1\n");
    Install(L"nvapi64", L"nvapi64", "gpu 1\ndisplay 2 A\n" + EdidLine(LongEdid(300)) + "fail GetEdid -1 1\n");
    EXPECT_EQ(Read(), L"26 A 0 0 128\n1099 A 1 2 256\n");
}

TEST_F(Drivers, DriversThatMisbehaveDoNoHarm) {
    const std::string name(300, 'N');
    Install(L"atiadlxx", L"atiadlxx",
            "adapter 0 " + name + " P\ndisplay 0 0\n" + EdidLine(LongEdid(256)) +
                "endless\nclaim ADL_Display_DisplayInfo_Get 2000000000\n");
    Install(L"nvapi64", L"nvapi64",
            "gpu 1\ndisplay 2 " + name + "\n" + EdidLine(LongEdid(256)) +
                "endless\nclaim GetEdid 4294967295\nclaim EnumPhysicalGpus 4294967295\n"
                "claim GetConnectedDisplayIds 4294967295\n");
    EXPECT_EQ(Read(),
              L"26 " + std::wstring(256, L'N') + L" 0 0 32768\n1099 " + std::wstring(64, L'N') + L" 1 2 32768\n");
    Install(L"atiadlxx", L"atiadlxx", AmdText + "null ADL_Display_DisplayInfo_Get\n");
    Install(L"nvapi64", L"nvapi64", NvidiaText + "claim GetConnectedDisplayIdsCount 4294967295\n");
    EXPECT_EQ(Read(), L"");
    Install(L"atiadlxx", L"atiadlxx",
            "adapter 0 A P\ndisplay 0 0\nfirst 256\n" + EdidLine(LongEdid(256)) +
                "claim ADL_Display_EdidData_Get 2000000000\n");
    EXPECT_EQ(Read(), L"26 A 0 0 256\n");
}

TEST_F(Drivers, I2cGoesThroughAndTheLibraryStaysLoadedMeanwhile) {
    Install(L"atiadlxx", L"atiadlxx", AmdText);
    Install(L"nvapi64", L"nvapi64", NvidiaText);
    std::vector<WindowsGpuDisplay> displays;
    ASSERT_TRUE(platform_.ReadGpuDisplays(displays));
    ASSERT_EQ(displays.size(), 4u);
    EXPECT_EQ(Report(L"atiadlxx"), "");
    for (const WindowsGpuDisplay& display : displays) {
        Bytes bytes(3, 0);
        EXPECT_TRUE(display.ReadI2c(0x50, bytes));
        EXPECT_EQ(bytes, (Bytes{0x50, 0x51, 0x52}));
        EXPECT_TRUE(display.WriteI2c(Bytes{0x50, 1, 2}));
        EXPECT_FALSE(display.WriteI2c(Bytes{0x50, 1, 9}));
    }
    displays.clear();
    EXPECT_EQ(Report(L"atiadlxx"), "started 0\n");
    EXPECT_EQ(Report(L"nvapi64"), "started 0\n");
}

TEST_F(Drivers, DisplayDevicesOfThePrefixAreJoined) {
    std::vector<DisplayDeviceRecord> devices;
    EXPECT_TRUE(platform_.ReadDisplayDevices(devices));
    ASSERT_FALSE(devices.empty());
    EXPECT_EQ(devices[0].AdapterName, L"\\\\.\\DISPLAY1");
    EXPECT_EQ(devices[0].DriverKey.substr(0, 1), L"{");
    EXPECT_EQ(devices[0].MonitorName.substr(0, 12), L"\\\\.\\DISPLAY1");
}

// All sources at once, in their order: WMI replaces what the registry has, a longer record of a driver wins over both.
TEST_F(Drivers, LoadDisplaysTakesAllSourcesWithTheirPrecedence) {
    std::vector<DisplayDeviceRecord> devices;
    ASSERT_TRUE(platform_.ReadDisplayDevices(devices));
    ASSERT_FALSE(devices.empty());
    const Bytes reported = Join({Base(1, 1), Block(2, 2)});
    PrefixDisplay display = {L"VTA1001", L"4&a1b2&0&UID1", devices[0].DriverKey, L"Sample", Base(9)};
    PrefixDisplay other = {L"VTB2002", L"4&a1b2&0&UID2", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0102", L"Other",
                           Base(8)};
    Add(display);
    Add(other);
    AddOverride(other, L"0", Base(7));
    InstallWmi("monitor " + String(display.InstanceId()).ToUtf8() + "_0\n" + EdidLine(reported.Slice(0, 128)));
    Install(L"atiadlxx", L"atiadlxx",
            "adapter 0 \\\\.\\DISPLAY9 P\ndisplay 5 0\n" + EdidLine(reported) + "adapter 1 \\\\.\\DISPLAY1 Q\n" +
                "display 6 1\n" + EdidLine(reported));
    DisplayList list;
    ASSERT_TRUE(LoadDisplays(platform_, list, false));
    EXPECT_TRUE(errors_.empty());
    const Display* found = nullptr;
    for (const Display& candidate : list) {
        if (candidate.InstanceId == UpperAscii(display.InstanceId())) found = &candidate;
        if (candidate.InstanceId != UpperAscii(other.InstanceId())) continue;
        EXPECT_EQ(candidate.EdidData, Base(8));  // no source knows it
        EXPECT_EQ(candidate.CurrentData, Base(7));
    }
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->WmiMonitor.EdidData, Base(1, 1));
    EXPECT_EQ(found->DisplayDevice, devices[0]);
    EXPECT_EQ(found->GpuDisplay.GetRecord().Handle2, 6u);  // the one of its own adapter
    EXPECT_EQ(found->EdidData, reported);
    EXPECT_EQ(found->CurrentData, reported);
}

}  // namespace VNT
