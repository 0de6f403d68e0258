#include <gtest/gtest.h>

#include "samples/drivers/amd_stand_in.h"
#include "store/amd_display.h"
#include "tests/store/sample.h"
#include "tests/store/stand_in_library.h"

namespace VNT {

using namespace Sample;

namespace {

class Amd : public DriverTest {
protected:
    Amd() : DriverTest(StandIn::Amd(), ReadAmd) { libraries_.libraries[L"atiadlxx.dll"] = AmdExports(); }
    // The EDID of the one display of a machine that gives `edid`, with further lines.
    Bytes EdidOf(const Bytes& edid, const std::string& more = {}) {
        EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 0\n" + EdidLine(edid) + more));
        return displays_.empty() ? Bytes() : displays_[0].GetRecord().EdidData;
    }
};

const std::string TwoDisplays = "adapter 0 \\\\.\\DISPLAY1 PCI_0\ndisplay 0 0\n" + EdidLine(Base(1)) + "display 1 2\n" +
                                EdidLine(Base(2)) + "adapter 2 \\\\.\\DISPLAY3 PCI_1\ndisplay 0 2\n" +
                                EdidLine(Base(3));

}  // namespace

TEST_F(Amd, WithoutALibraryBothNamesAreTried) {
    libraries_.libraries.clear();
    EXPECT_FALSE(Read(TwoDisplays));
    EXPECT_EQ(libraries_.asked, (std::vector<std::wstring>{L"atiadlxx.dll", L"atiadlxy.dll"}));
}

TEST_F(Amd, TheSecondLibraryServesAsWell) {
    libraries_.libraries[L"atiadlxy.dll"] = libraries_.libraries[L"atiadlxx.dll"];
    libraries_.libraries.erase(L"atiadlxx.dll");
    EXPECT_TRUE(Read(TwoDisplays));
    EXPECT_EQ(displays_.size(), 3u);
}

TEST_F(Amd, EachMissingEntryPointFails) {
    const StandInLibraries::Exports all = libraries_.libraries[L"atiadlxx.dll"];
    ASSERT_EQ(all.size(), 9u);
    for (const auto& [name, procedure] : all) {
        libraries_.libraries[L"atiadlxx.dll"] = all;
        libraries_.libraries[L"atiadlxx.dll"].erase(name);
        EXPECT_FALSE(Read(TwoDisplays)) << name;
        EXPECT_EQ(libraries_.loaded, 0) << name;
        EXPECT_EQ(StandIn::Amd().Report(), "") << name;
    }
}

TEST_F(Amd, LibraryThatDoesNotStartFailsAndIsNotStopped) {
    EXPECT_FALSE(Read(TwoDisplays + "fail ADL_Main_Control_Create\n"));
    EXPECT_EQ(StandIn::Amd().Report(), "");
}

TEST_F(Amd, ListsDisplaysByAdapterAndLogicalIndex) {
    EXPECT_TRUE(Read(TwoDisplays));
    EXPECT_EQ(Found(), L"\\\\.\\DISPLAY1 0 0 128\n\\\\.\\DISPLAY3 0 1 128\n\\\\.\\DISPLAY3 2 0 128\n");
    EXPECT_EQ(displays_[0].GetType(), 26);
    EXPECT_EQ(displays_[1].GetRecord().EdidData, Base(2));
}

TEST_F(Amd, FailureToCountOrListAdaptersFails) {
    EXPECT_FALSE(Read(TwoDisplays + "fail ADL_Adapter_NumberOfAdapters_Get\n"));
    EXPECT_FALSE(Read(TwoDisplays + "fail ADL_Adapter_AdapterInfo_Get\n"));
    EXPECT_EQ(StandIn::Amd().Report(), "started 0\n");
}

TEST_F(Amd, ZeroAdaptersAreASuccessWithoutDisplays) {
    EXPECT_TRUE(Read(""));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Amd, APhysicalAdapterListedSeveralTimesIsReadOnce) {
    EXPECT_TRUE(Read("adapter 0 A PCI_0\ndisplay 0 1\n" + EdidLine(Base(1)) + "adapter 1 B PCI_0\ndisplay 0 1\n" +
                     EdidLine(Base(1)) + "adapter 2 C PCI_1\ndisplay 0 2\n" + EdidLine(Base(2))));
    EXPECT_EQ(Found(), L"B 0 0 128\nC 2 0 128\n");  // a name comes from the logical adapter, read or not
}

TEST_F(Amd, InactiveAdapterLeavesTheNameEmpty) {
    EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 0\n" + EdidLine(Base(1)) + "inactive 0\n"));
    EXPECT_EQ(Found(), L" 0 0 128\n");
    EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 0\n" + EdidLine(Base(1)) + "fail ADL_Adapter_Active_Get\n"));
    EXPECT_EQ(Found(), L" 0 0 128\n");
}

TEST_F(Amd, NegativeLogicalIndexCountsAsActiveUnderItsOwnAdapter) {
    EXPECT_TRUE(Read("adapter 3 A P\ndisplay 5 -1\n" + EdidLine(Base(1)) + "inactive 3\n"));
    EXPECT_EQ(Found(), L"A 3 5 128\n");
}

TEST_F(Amd, LogicalIndexWithoutAnAdapterLeavesTheNameEmpty) {
    EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 9\n" + EdidLine(Base(1))));
    EXPECT_EQ(Found(), L" 0 0 128\n");
}

TEST_F(Amd, AdapterThatFailsDoesNotStopTheOthers) {
    EXPECT_TRUE(Read(TwoDisplays + "fail ADL_Display_NumberOfDisplays_Get -1 1\n"));
    EXPECT_EQ(displays_.size(), 2u);
    EXPECT_TRUE(Read(TwoDisplays + "fail ADL_Display_DisplayInfo_Get -1 1\n"));
    EXPECT_EQ(displays_.size(), 2u);
}

TEST_F(Amd, DisplayThatFailsIsNotAddedAndDoesNotStopTheOthers) {
    EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 0\ndisplay 1 0\n" + EdidLine(Bytes(127, 1)) + "display 2 0\n" +
                     EdidLine(Base(3))));
    EXPECT_EQ(Found(), L"A 0 2 128\n");
}

TEST_F(Amd, EdidsOfEverySizeComeWhole) {
    for (const int size : {128, 256, 300, 384, 512, 32768}) {
        for (const char* first : {"first 128\n", "first 256\n"})
            EXPECT_EQ(EdidOf(LongEdid(size), first), LongEdid(size));
    }
}

TEST_F(Amd, PlainBaseBlockIsCutTo128BytesWhateverTheSize) {
    EXPECT_EQ(EdidOf(Join({Base(1, 0), Block(2, 2)}), "first 256\n"), Base(1, 0));
    EXPECT_EQ(EdidOf(Join({Base(1, 0), Block(2, 2), Block(3, 3)})), Base(1, 0));
    EXPECT_EQ(EdidOf(Base(1, 0), "claim ADL_Display_EdidData_Get 5000\n"), Base(1, 0));
}

TEST_F(Amd, NonZeroFirstByteOrCountIsNotCut) {
    EXPECT_EQ(EdidOf(Join({Block(1, 0), Block(2, 2)})), Join({Block(1, 0), Block(2, 2)}));
    EXPECT_EQ(EdidOf(Join({Base(1, 1), Block(2, 2)})), Join({Base(1, 1), Block(2, 2)}));
}

TEST_F(Amd, FailingSecondBlockKeepsTheFirst) {
    EXPECT_EQ(EdidOf(LongEdid(384), "fail ADL_Display_EdidData_Get -1 1\n"), LongEdid(128));
}

TEST_F(Amd, EndlessBlocksEndAt256) {
    EXPECT_EQ(EdidOf(LongEdid(256), "endless\n").Size(), 256 * 128);
    EXPECT_EQ(EdidOf(LongEdid(256), "endless\nclaim ADL_Display_EdidData_Get 128\n").Size(), 256 * 128);
}

TEST_F(Amd, SizeBeyondTheBufferIsCutToIt) {
    const Bytes edid = EdidOf(LongEdid(256), "first 256\nclaim ADL_Display_EdidData_Get 2000000000\n");
    EXPECT_EQ(edid, LongEdid(256));
}

TEST_F(Amd, NegativeSizeFails) {
    EXPECT_TRUE(EdidOf(LongEdid(256), "claim ADL_Display_EdidData_Get -5\n").IsEmpty());
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Amd, CountsThatAreWrongDoNoHarm) {
    for (const char* count : {"-1", "2147483647", "1000000"}) {
        EXPECT_FALSE(Read(TwoDisplays + "claim ADL_Adapter_NumberOfAdapters_Get " + count + "\n"));
    }
    EXPECT_TRUE(Read(TwoDisplays + "claim ADL_Adapter_NumberOfAdapters_Get 50\n"));
    EXPECT_GE(displays_.size(), 3u);
    EXPECT_TRUE(Read(TwoDisplays + "claim ADL_Display_DisplayInfo_Get 2147483647\n"));
    EXPECT_EQ(displays_.size(), 3u);
    EXPECT_TRUE(Read(TwoDisplays + "claim ADL_Display_DisplayInfo_Get -7\n"));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Amd, NullListOfDisplaysIsEmpty) {
    EXPECT_TRUE(Read(TwoDisplays + "null ADL_Display_DisplayInfo_Get\n"));
    EXPECT_TRUE(displays_.empty());
}

TEST_F(Amd, TextWithoutATerminatorEndsWithItsField) {
    const std::string name(300, 'N');
    EXPECT_TRUE(Read("adapter 0 " + name + " " + std::string(300, 'P') + "\ndisplay 0 0\n" + EdidLine(Base(1))));
    EXPECT_EQ(displays_.at(0).GetRecord().DisplayName, std::wstring(256, L'N'));
}

TEST_F(Amd, LibraryStaysLoadedWhileADisplayIsHeldAndIsSharedByReaders) {
    EXPECT_TRUE(Read(TwoDisplays));
    const WindowsGpuDisplay kept = displays_[0];
    displays_.clear();
    EXPECT_EQ(libraries_.loaded, 1);
    EXPECT_EQ(StandIn::Amd().Report(), "started 1\n");
    std::vector<WindowsGpuDisplay> more;
    EXPECT_TRUE(ReadAmd(libraries_.Loader(), more));
    EXPECT_EQ(libraries_.loaded, 1);
    EXPECT_EQ(StandIn::Amd().Report(), "started 1\n");
}

TEST_F(Amd, TheSecondHandleAloneMakesTwoDisplays) {
    EXPECT_TRUE(Read("adapter 0 A P\ndisplay 0 0\n" + EdidLine(Base(1)) + "display 1 0\n" + EdidLine(Base(1))));
    ASSERT_EQ(Found(), L"A 0 0 128\nA 0 1 128\n");
    EXPECT_FALSE(displays_[0] == displays_[1]);
}

TEST_F(Amd, MemoryOfTheLibraryIsFreedAtOnce) {
    EXPECT_TRUE(Read(TwoDisplays));
    ASSERT_EQ(displays_.size(), 3u);  // so that the library is still in use
    EXPECT_EQ(AmdDriver::BuffersInUse(), 0u);
}

TEST_F(Amd, EqualityIsOfHandlesAndName) {
    EXPECT_TRUE(Read(TwoDisplays));
    const std::vector<WindowsGpuDisplay> before = displays_;
    EXPECT_TRUE(before[0] == before[0]);
    EXPECT_FALSE(before[0] == before[1]);
    StandIn::Amd().Start("adapter 0 \\\\.\\DISPLAY1 PCI_0\ndisplay 0 0\n" + EdidLine(Base(9)));
    displays_.clear();
    ASSERT_TRUE(ReadAmd(libraries_.Loader(), displays_));
    EXPECT_TRUE(before[0] == displays_[0]);  // whatever the EDID is by now
    EXPECT_FALSE(before[1] == displays_[0]);
    StandIn::Amd().Count("started", 1);  // the restart has forgotten the one that is in use
}

TEST_F(Amd, I2cReadsFromAnAddress) {
    EXPECT_TRUE(Read(TwoDisplays));
    Bytes bytes(4, 0);
    EXPECT_TRUE(displays_[0].ReadI2c(0x50, bytes));
    EXPECT_EQ(bytes, (Bytes{0x50, 0x51, 0x52, 0x53}));
}

TEST_F(Amd, I2cWritesTheWholeRange) {
    EXPECT_TRUE(Read(TwoDisplays));
    EXPECT_TRUE(displays_[0].WriteI2c(Bytes{0x50, 1, 2}));
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes{0x50, 1, 3}));
    const int entered = StandIn::Amd().Entered("ADL_Display_DDCBlockAccess_Get");
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes()));
    EXPECT_EQ(StandIn::Amd().Entered("ADL_Display_DDCBlockAccess_Get"), entered)
        << "the driver is not asked to write nothing";
}

TEST_F(Amd, I2cFailureIsTold) {
    EXPECT_TRUE(Read(TwoDisplays + "fail ADL_Display_DDCBlockAccess_Get\n"));
    Bytes bytes(4, 0);
    EXPECT_FALSE(displays_[0].ReadI2c(0x50, bytes));
    EXPECT_FALSE(displays_[0].WriteI2c(Bytes{0x50, 1, 2}));
    displays_.clear();
    EXPECT_TRUE(Read(TwoDisplays + "claim ADL_Display_DDCBlockAccess_Get 2\n"));
    EXPECT_FALSE(displays_[0].ReadI2c(0x50, bytes));  // fewer bytes than asked for
}

}  // namespace VNT
