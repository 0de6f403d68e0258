// list, read, write and reset, over a folder of displays.

#include "tests/cli/commands_fixture.h"

namespace VNT::Cli {

TEST_F(Commands, ListShowsActiveDisplaysAndOverrides) {
    const std::string usual =
        "1\tKLR5501 - KELLAR TV (active)\tDISPLAY\\KLR5501\\5&1A2B3C&0&UID258\n"
        "2\t@B_2401 - LIAR\xE2\x98\xBA (active)\tDISPLAY\\LIA0001\\6&5150&0&UID3\n"
        "3\tLQP1416 - Integrated panel (active)\tDISPLAY\\LQP1416\\4&77AA00&0&UID265\n"
        "4\tQOR2401 - QORVEL 24 (active)\tDISPLAY\\QOR2401\\5&1A2B3C&0&UID256\n"
        "5\tQOR2401 - QORVEL 24*\tDISPLAY\\QOR2402\\5&1A2B3C&0&UID300\n"
        "6\tVDM1700 - VIDAMO 17 (active)\tDISPLAY\\VDM1700\\4&77AA00&0&UID1\n"
        "7\tZUB3414 - ZUBEN WIDE 34 (active)\tDISPLAY\\ZUB3414\\5&1A2B3C&0&UID257\n";
    EXPECT_EQ(Store({"list"}).out, usual);
    EXPECT_EQ(Store({"list", "--all"}).out, usual + "8\tQOR2401 - QORVEL 24\tDISPLAY\\QOR2401\\5&9F00&0&UID1\n");
}

TEST_F(Commands, ANumberMeansTheSameDisplayWithAllAndWithout) {
    ASSERT_EQ(Store({"read", "8", Path("x.bin")}).status, Success);
    EXPECT_EQ(Content(Path("x.bin")), Content(folder_ / "displays" / "DISPLAY#QOR2401#5&9F00&0&UID1" / "EDID"));
    ASSERT_EQ(Store({"read", "7", Path("x.bin")}).status, Success);
    EXPECT_EQ(Content(Path("x.bin")), Content(folder_ / "displays" / "DISPLAY#ZUB3414#5&1A2B3C&0&UID257" / "EDID"));
    ExpectRefused(Store({"read", "9", Path("y")}), "9: no display of this number");
}

TEST_F(Commands, TextsOfDevicesStayOnTheirLine) {
    const fs::path device = folder_ / "displays" / "DISPLAY#LQP1416#4&77AA00&0&UID265";
    Put(device / "DeviceDesc", Text("a\nb\x1b[2J\tc\r\n"));
    EXPECT_NE(Store({"list"}).out.find("3\tLQP1416 - a\\x0Ab\\x1B[2J\\x09c (active)\tDISPLAY"), std::string::npos)
        << Store({"list"}).out;
#ifndef _WIN32  // where no name holds the end of a line
    fs::rename(device, folder_ / "displays" / "DISPLAY#A\nB#1");
    EXPECT_NE(Store({"list"}).out.find("\tDISPLAY\\A\\x0AB\\1\n"), std::string::npos) << Store({"list"}).out;
#endif
}

TEST_F(Commands, WriteReadResetRoundTrip) {
    const fs::path device = folder_ / "displays" / "DISPLAY#KLR5501#5&1A2B3C&0&UID258";
    const std::string before = Content(device / "EDID");
    EXPECT_EQ(Store({"write", "1", Sample(1)}).out,
              "stored 256 bytes as the override of DISPLAY\\KLR5501\\5&1A2B3C&0&UID258\n");
    EXPECT_EQ(Content(device / "EDID_OVERRIDE" / "0") + Content(device / "EDID_OVERRIDE" / "1"), Content(Sample(1)));
    EXPECT_EQ(Content(device / "EDID"), before);
    EXPECT_EQ(Store({"read", "1", Path("back.bin")}).status, Success);
    EXPECT_EQ(Content(Path("back.bin")), Content(Sample(1)));
    EXPECT_EQ(Store({"reset", "display\\klr5501\\5&1a2b3c&0&uid258"}).status, Success);
    EXPECT_FALSE(fs::exists(device / "EDID_OVERRIDE"));
    EXPECT_EQ(Content(device / "EDID"), before);
    EXPECT_EQ(Store({"read", "1", Path("back.bin")}).status, Success);
    EXPECT_EQ(Content(Path("back.bin")), before);
}

TEST_F(Commands, WritingWhatTheDisplayShowsStoresAnOverrideAllTheSame) {
    EXPECT_EQ(Store({"write", "4", Sample(0)}).status, Success);
    EXPECT_NE(Store({"list"}).out.find("QOR2401 - QORVEL 24 (active)*\t"), std::string::npos);
}

TEST_F(Commands, ResetTakesABrokenOverrideOffToo) {
    const fs::path device = folder_ / "displays" / "DISPLAY#KLR5501#5&1A2B3C&0&UID258" / "EDID_OVERRIDE";
    fs::create_directories(device);
    Put(device / "0", Samples::Block(77, 1));
    EXPECT_EQ(Store({"reset", "1"}).status, Success);
    EXPECT_FALSE(fs::exists(device));
}

TEST_F(Commands, ResetAllLeavesDisplaysWithoutOverrideAlone) {
    EXPECT_EQ(Store({"reset", "--all"}).out, "removed the override of DISPLAY\\QOR2402\\5&1A2B3C&0&UID300\n");
    EXPECT_EQ(Store({"reset", "--all"}).out, "");
    EXPECT_EQ(Store({"reset", "1"}).out, "DISPLAY\\KLR5501\\5&1A2B3C&0&UID258 has no override\n");
    ExpectRefused(Store({"reset", "DISPLAY\\none"}), "DISPLAY\\NONE: no such display");
}

TEST_F(Commands, ResetRescuesWhatNoListShows) {
    const fs::path unlisted = folder_ / "displays" / "DISPLAY#GONE#1";
    fs::create_directories(unlisted / "EDID_OVERRIDE");
    Put(unlisted / "EDID_OVERRIDE" / "1", Samples::Block(128, 0));
    EXPECT_EQ(Store({"list", "--all"}).out.find("GONE"), std::string::npos);
    EXPECT_EQ(Store({"reset", "display\\gone\\1"}).out, "removed the override of DISPLAY\\GONE\\1\n");
    EXPECT_FALSE(fs::exists(unlisted / "EDID_OVERRIDE"));
    fs::create_directories(unlisted / "EDID_OVERRIDE");
    Put(unlisted / "EDID_OVERRIDE" / "0", Samples::Block(127, 0));
    EXPECT_NE(Store({"reset", "--all"}).out.find("removed the override of DISPLAY\\GONE\\1\n"), std::string::npos);
    EXPECT_FALSE(fs::exists(unlisted / "EDID_OVERRIDE"));
}

TEST_F(Commands, WhatResetCouldNotTakeOffIsToldAndTheRestIsDone) {
    const fs::path device = folder_ / "displays" / "DISPLAY#KLR5501#5&1A2B3C&0&UID258";
    Put(device / "EDID_OVERRIDE", Text("a file"));
    const Outcome outcome = Store({"reset", "--all"});
    EXPECT_EQ(outcome.status, Refused);
    EXPECT_EQ(outcome.err, "vantelle-cli: DISPLAY\\KLR5501\\5&1A2B3C&0&UID258: the override can't be opened\n");
    EXPECT_EQ(outcome.out, "removed the override of DISPLAY\\QOR2402\\5&1A2B3C&0&UID300\n");
}

TEST_F(Commands, WriteAndResetTouchTheOverrideAlone) {
    const fs::path device = folder_ / "displays" / "DISPLAY#KLR5501#5&1A2B3C&0&UID258";
    for (const Samples::Block& value : {Samples::Block(300, 1), Samples::Block(1, 1), Samples::Block()}) {
        Put(device / "EDID", value);
        EXPECT_EQ(Store({"write", "1", Sample(0)}).status, Success);
        EXPECT_EQ(Content(device / "EDID").size(), value.size());
        EXPECT_EQ(Store({"reset", "1"}).status, Success);
        EXPECT_EQ(Content(device / "EDID").size(), value.size());
    }
}

TEST_F(Commands, WriteRefusesAFileThatLostBlocksUnlessForced) {
    Samples::Block edid = Samples::MakeDisplays()[1].edid;
    edid.resize(200);
    Put(folder_ / "cut.bin", edid);
    ExpectRefused(Store({"write", "4", Path("cut.bin")}),
                  Path("cut.bin") + ": 1 block missing; --force stores the rest");
    ExpectRefused(Store({"write", "4", Sample(5)}),
                  Sample(5) + ": 256 bytes behind the last block; --force stores the rest");
    EXPECT_FALSE(fs::exists(folder_ / "displays" / "DISPLAY#QOR2401#5&1A2B3C&0&UID256" / "EDID_OVERRIDE"));
    EXPECT_EQ(Store({"write", "4", Path("cut.bin"), "--force"}).status, Success);
    EXPECT_EQ(Store({"write", "4", Sample(5), "--force"}).status, Success);
}

TEST_F(Commands, AnInactiveDisplayIsReachedByItsInstanceId) {
    EXPECT_EQ(Store({"read", R"(DISPLAY\QOR2401\5&9F00&0&UID1)", Path("x.bin")}).status, Success);
}

TEST_F(Commands, BadStoresAndDisplaysAreOneLineAndStatus2) {
    ExpectRefused(Call({"list", "--store", Path("none")}), Path("none") + ": is no folder of displays");
    ExpectRefused(Call({"list", "--store", Sample(0)}), Sample(0) + ": is no folder of displays");
    ExpectRefused(Store({"read", "0", Path("x")}), "0: no display of this number");
    ExpectRefused(Store({"read", "9", Path("x")}), "9: no display of this number");
    ExpectRefused(Store({"read", "DISPLAY\\NONE", Path("x")}), "DISPLAY\\NONE: no such display");
    ExpectRefused(Store({"write", "1", Path("none")}), Path("none") + ": no such file");
    EXPECT_FALSE(fs::exists(Path("x")));
}

}  // namespace VNT::Cli
