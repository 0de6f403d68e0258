#include <gtest/gtest.h>

#include "samples/drivers/nvidia_stand_in.h"
#include "store/nvidia_display.h"
#include "tests/store/sample.h"
#include "tests/store/stand_in_library.h"

namespace VNT {

using namespace Sample;

namespace {

const StandInLibraries::Exports NvidiaExports = {
    {"nvapi_QueryInterface", reinterpret_cast<DriverLibrary::Procedure>(StandIn::nvapi_QueryInterface)}};

class Nvidia : public DriverTest {
protected:
    Nvidia() : DriverTest(StandIn::Nvidia(), ReadNvidia) { libraries_.libraries[L"nvapi64.dll"] = NvidiaExports; }
    Bytes EdidOf(const Bytes& edid, const std::string& more = {}) {
        EXPECT_TRUE(Read("gpu 256\ndisplay 7 A\n" + EdidLine(edid) + more));
        return displays_.empty() ? Bytes() : displays_[0].GetRecord().EdidData;
    }
};

const std::string ThreeDisplays = "gpu 256\ndisplay 0x80061081 \\\\.\\DISPLAY1\n" + EdidLine(Base(1)) +
                                  "display 0x80061082\n" + EdidLine(Base(2)) + "gpu 512\ndisplay 3 \\\\.\\DISPLAY3\n" +
                                  EdidLine(Base(3));

}  // namespace

TEST_F(Nvidia, WithoutALibraryBothNamesAreTried) {
    libraries_.libraries.clear();
    EXPECT_FALSE(Read(ThreeDisplays));
    EXPECT_EQ(libraries_.asked, (std::vector<std::wstring>{L"nvapi.dll", L"nvapi64.dll"}));
}

TEST_F(Nvidia, LibraryWithoutItsOneExportFails) {
    libraries_.libraries[L"nvapi64.dll"].clear();
    EXPECT_FALSE(Read(ThreeDisplays));
}

TEST_F(Nvidia, EachMissingCallFails) {
    for (const char* name :
         {"Initialize", "EnumPhysicalGpus", "EnumDisplayHandle", "GetDisplayName", "GetDisplayId",
          "GetConnectedDisplayIds", "GetGpuAndOutputId", "GetEdid", "I2cRead", "I2cWrite", "Unload"}) {
        EXPECT_FALSE(Read(ThreeDisplays + "missing " + name + "\n")) << name;
        EXPECT_EQ(libraries_.loaded, 0) << name;
        EXPECT_EQ(StandIn::Nvidia().Report(), "") << name;
    }
}

TEST_F(Nvidia, LibraryThatDoesNotStartFailsAndIsNotStopped) {
    EXPECT_FALSE(Read(ThreeDisplays + "fail Initialize -6\n"));
    EXPECT_EQ(StandIn::Nvidia().Report(), "");
}

TEST_F(Nvidia, ListsDisplaysByGpuAndDisplayId) {
    EXPECT_TRUE(Read(ThreeDisplays));
    EXPECT_EQ(Found(), L"\\\\.\\DISPLAY1 256 2147881089 128\n 256 2147881090 128\n\\\\.\\DISPLAY3 512 3 128\n");
    EXPECT_EQ(displays_[0].GetType(), 1099);
    EXPECT_EQ(displays_[1].GetRecord().EdidData, Base(2));
}

TEST_F(Nvidia, FailureToListGpusFails) { EXPECT_FALSE(Read(ThreeDisplays + "fail EnumPhysicalGpus\n")); }

TEST_F(Nvidia, NoGpuIsASuccessWithoutDisplays) {
    EXPECT_TRUE(Read(""));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Nvidia, HandleThatFailsAtNameOrIdIsSkipped) {
    const std::string two = "gpu 1\ndisplay 2 A\n" + EdidLine(Base(1)) + "display 3 B\n" + EdidLine(Base(2));
    for (const char* call : {"GetDisplayName", "GetDisplayId", "EnumDisplayHandle"}) {
        EXPECT_TRUE(Read(two + "fail " + call + " -1 1\n"));
        EXPECT_EQ(Found(), L"A 1 2 128\n 1 3 128\n") << call;
    }
}

TEST_F(Nvidia, GpuThatFailsDoesNotStopTheOthers) {
    EXPECT_TRUE(Read("gpu 1\ngpu 2\ndisplay 3 A\n" + EdidLine(Base(1))));  // the first has no display
    EXPECT_EQ(Found(), L"A 2 3 128\n");
    EXPECT_TRUE(Read(ThreeDisplays + "fail GetConnectedDisplayIds -1 2\n"));
    EXPECT_EQ(displays_.size(), 2u);
    EXPECT_TRUE(Read(ThreeDisplays + "fail GetConnectedDisplayIds -1 3\n"));  // its second call
    EXPECT_EQ(displays_.size(), 2u);
}

TEST_F(Nvidia, FailedReadIsTriedOnceMoreByGpuAndOutput) {
    const std::string redirected =
        "gpu 1\ndisplay 7 A\nby 99 5\n" + EdidLine(LongEdid(300)) + "display 8 B\n" + EdidLine(Base(2));
    EXPECT_TRUE(Read(redirected));
    EXPECT_EQ(Found(), L"A 99 5 300\nB 1 8 128\n");  // they replace the handles
    EXPECT_EQ(displays_[0].GetRecord().EdidData, LongEdid(300));
}

TEST_F(Nvidia, FailedRetryLeavesTheDisplayOut) {
    const std::string redirected =
        "gpu 1\ndisplay 7 A\nby 99 5\n" + EdidLine(Base(1)) + "display 8 B\n" + EdidLine(Base(2));
    EXPECT_TRUE(Read(redirected + "fail GetGpuAndOutputId\n"));
    EXPECT_EQ(Found(), L"B 1 8 128\n");
    EXPECT_TRUE(Read("gpu 1\ndisplay 7 A\n" + EdidLine(Base(1)) + "fail GetEdid\n"));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Nvidia, EdidsOfEverySizeComeWhole) {
    for (const int size : {128, 256, 257, 300, 384, 512, 513, 32768}) EXPECT_EQ(EdidOf(LongEdid(size)), LongEdid(size));
}

TEST_F(Nvidia, SizeOf300Gives256BytesAnd44FromTheSecondRead) {
    EXPECT_EQ(EdidOf(LongEdid(300)), LongEdid(300));
    EXPECT_EQ(EdidOf(LongEdid(300), "fail GetEdid -1 1\n"), LongEdid(256));
}

TEST_F(Nvidia, SizeBelowOneBlockFails) {
    EXPECT_TRUE(EdidOf(LongEdid(127)).IsEmpty());
    EXPECT_TRUE(EdidOf(LongEdid(256), "claim GetEdid 0\n").IsEmpty());
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Nvidia, EndlessSizeEndsAt256Blocks) {
    EXPECT_EQ(EdidOf(LongEdid(256), "endless\nclaim GetEdid 4294967295\n").Size(), 256 * 128);
}

TEST_F(Nvidia, SizeBeyondWhatThereIsKeepsWhatWasRead) {
    EXPECT_EQ(EdidOf(LongEdid(256), "claim GetEdid 4294967295\n"), LongEdid(256));
}

TEST_F(Nvidia, EndlessNamesEnd) {
    EXPECT_TRUE(Read(ThreeDisplays + "endless\n"));
    EXPECT_EQ(displays_.size(), 3u);
}

TEST_F(Nvidia, CountsThatAreWrongDoNoHarm) {
    EXPECT_TRUE(Read(ThreeDisplays + "claim EnumPhysicalGpus 4294967295\n"));
    EXPECT_EQ(displays_.size(), 3u);
    EXPECT_TRUE(Read(ThreeDisplays + "claim GetConnectedDisplayIds 4294967295\n"));
    EXPECT_EQ(displays_.size(), 3u);
    EXPECT_TRUE(Read(ThreeDisplays + "claim GetConnectedDisplayIdsCount 1024\n"));
    EXPECT_EQ(displays_.size(), 3u) << "as many as a driver may have";
    EXPECT_TRUE(Read(ThreeDisplays + "claim GetConnectedDisplayIdsCount 1025\n"));
    EXPECT_TRUE(displays_.empty());
    EXPECT_TRUE(Read(ThreeDisplays + "claim GetConnectedDisplayIdsCount 4294967295\n"));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Nvidia, NameWithoutATerminatorEndsWithItsField) {
    EXPECT_TRUE(Read("gpu 1\ndisplay 2 " + std::string(100, 'N') + "\n" + EdidLine(Base(1))));
    EXPECT_EQ(displays_.at(0).GetRecord().DisplayName, std::wstring(64, L'N'));
}

TEST_F(Nvidia, LibraryStaysLoadedWhileADisplayIsHeld) {
    EXPECT_TRUE(Read(ThreeDisplays));
    const WindowsGpuDisplay kept = displays_[0];
    displays_.clear();
    EXPECT_EQ(libraries_.loaded, 1);
    EXPECT_EQ(StandIn::Nvidia().Report(), "started 1\n");
}

TEST_F(Nvidia, I2cReadsAndWrites) {
    EXPECT_TRUE(Read(ThreeDisplays));
    Bytes bytes(4, 0);
    EXPECT_TRUE(displays_[0].ReadI2c(0x50, bytes));
    EXPECT_EQ(bytes, (Bytes{0x50, 0x51, 0x52, 0x53}));
    EXPECT_TRUE(displays_[0].WriteI2c(Bytes{0x50, 1, 2}));
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes{0x51, 1, 2}));
    const int entered = StandIn::Nvidia().Entered("I2cWrite");
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes()));
    EXPECT_EQ(StandIn::Nvidia().Entered("I2cWrite"), entered) << "the driver is not asked to write nothing";
}

TEST_F(Nvidia, I2cFailureIsTold) {
    EXPECT_TRUE(Read(ThreeDisplays + "fail I2cRead\nfail I2cWrite\n"));
    Bytes bytes(4, 0);
    EXPECT_FALSE(displays_[0].ReadI2c(0x50, bytes));
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes{0x50, 1, 2}));
}

}  // namespace VNT
