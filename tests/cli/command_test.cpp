#include "cli/command.h"

#include "cli/commands.h"
#include "json/nearest.h"
#include "model/edid/edid.h"
#include "samples/sample_bytes.h"
#include "tests/cli/commands_fixture.h"

namespace VNT::Cli {
namespace {

TEST_F(Commands, HelpAndVersion) {
    EXPECT_EQ(Call({"--help"}).status, Success);
    EXPECT_NE(Call({"--help"}).out.find("vantelle-cli show FILE\n"), std::string::npos);
    EXPECT_EQ(Call({"--version"}).out.substr(0, 13), "vantelle-cli ");
    EXPECT_EQ(Call({"--version"}).status, Success);
}

TEST_F(Commands, HelpOfEachCommandHasItsUsageAndAnExample) {
    const std::string all = Call({"--help"}).out;
    for (const Command* command : Cli::Commands()) {
        const Outcome help = Call({command->name, "--help"});
        EXPECT_EQ(help.status, Success) << command->name;
        EXPECT_EQ(help.err, "") << command->name;
        EXPECT_NE(all.find("vantelle-cli " + UsageOf(*command) + "\n"), std::string::npos) << command->name;
        EXPECT_NE(help.out.find("Usage: vantelle-cli " + UsageOf(*command) + "\n"), std::string::npos) << help.out;
        EXPECT_NE(help.out.find(std::string("Example: vantelle-cli ") + command->name + " " + command->example + "\n"),
                  std::string::npos)
            << help.out;
        for (const Option& option : command->options) {
            EXPECT_NE(help.out.find(option.help), std::string::npos) << option.name;
        }
    }
}

TEST_F(Commands, BadWordsAreOneLineAndStatus2) {
    ExpectRefused(Call({}), "no command given; --help lists them");
    ExpectRefused(Call({"convrt"}), "convrt: unknown command; the nearest is convert");
    ExpectRefused(Call({"frob", "show", "x"}), "frob: unknown command; the nearest is show");
    ExpectRefused(Call({"--hepl"}), "--hepl: unknown option; the nearest is --help");
    ExpectRefused(Call({"show"}), "show: FILE is missing; vantelle-cli show FILE");
    ExpectRefused(Call({"check"}), "check: FILE is missing; vantelle-cli check FILE...");
    ExpectRefused(Call({"show", "a", "b"}), "b: unknown word");
    ExpectRefused(Call({"show", "--format", "bin", "a"}), "--format: unknown option; the nearest is --help");
    ExpectRefused(Call({"list", "--stor", "x"}), "--stor: unknown option; the nearest is --store");
    ExpectRefused(Call({"list", "--store"}), "--store: 1 required DIR missing");
    ExpectRefused(Call({"list", "--store", "a", "--store", "b"}), "--store: At Most 1 required but received 2");
    ExpectRefused(Call({"list", "--all", "--all"}), "--all: given twice");
    ExpectRefused(Call({"list", "--all=no"}), "--all: takes no value");
    ExpectRefused(Call({"reset", "--store", "x"}),
                  "reset: DISPLAY is missing; vantelle-cli reset DISPLAY | --all [--store DIR] [--dry-run]");
    ExpectRefused(Call({"reset", "1", "--all"}), "1: is one too many beside --all");
}

TEST_F(Commands, WordsOfEveryLookAreTakenAsTheyStand) {
    for (const char* name : {"[a,b]", "list", "/tmp", "a b", "-"}) {
        const std::string path = Path(name);
        EXPECT_EQ(Call({"show", "none/" + std::string(name)}).err,
                  "vantelle-cli: none/" + std::string(name) + ": no such file\n");
    }
    ExpectRefused(Call({"show", "[a,b]"}), "[a,b]: no such file");
    ExpectRefused(Call({"show", "no list"}), "no list: no such file");
    ExpectRefused(Call({"show", "--", "--all"}), "--all: no such file");
    ExpectRefused(Call({"show", ""}), ": no such file");
    EXPECT_EQ(Call({"check", "[a]", "[b,c]", "d\ne"}).out,
              "unreadable [a]: no such file\nunreadable [b,c]: no such file\nunreadable d\\x0Ae: no such file\n");
    EXPECT_EQ(Store({"list", "--all"}).out, Call({"list", "--all", "--store=" + Path("displays")}).out);
}

TEST_F(Commands, OutputThatCannotBeWrittenIsStatus2AndOneLine) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--help"}, {"show", Sample(0)}, {"convert", Sample(0), "-"}, {"check", Sample(0)}}) {
        err.str("");
        EXPECT_EQ(Cli::Run(words, {in, out, err, {}}), Refused);
        EXPECT_EQ(err.str(), "vantelle-cli: standard output: can't be written\n");
    }
}

TEST_F(Commands, ConvertAndReadWriteToStandardOutput) {
    const std::string edid = Content(Sample(0));
    EXPECT_EQ(Call({"convert", Sample(0), "-"}).out, edid);
    EXPECT_EQ(Call({"convert", Sample(0), "-", "--format", "TXT"}).out.substr(0, 9), "00 FF FF ");
    EXPECT_EQ(Store({"read", R"(DISPLAY\QOR2401\5&1A2B3C&0&UID256)", "-"}).out, edid);
    EXPECT_FALSE(fs::exists("-"));
}

TEST(Nearest, CountsKeysAndPrefersWhatBeginsSo) {
    const std::vector<std::string> words{"exact", "cvt standard", "list", "write"};
    EXPECT_EQ(Nearest("cvt", words), "cvt standard");
    EXPECT_EQ(Nearest("lsit", words), "list");
    EXPECT_EQ(Nearest("exakt", words), "exact");
    EXPECT_EQ(Nearest("wite", words), "write");
    EXPECT_EQ(Nearest(std::string(100000, 'x'), words), "exact");
    EXPECT_EQ(Nearest("", words), "list");
    EXPECT_EQ(Nearest("x", {}), "");
}

TEST_F(Commands, BadFilesAreOneLineAndStatus2) {
    ExpectRefused(Call({"show", Path("none")}), Path("none") + ": no such file");
    ExpectRefused(Call({"show", folder_.string()}), folder_.string() + ": is a folder");
    Put(folder_ / "empty", {});
    ExpectRefused(Call({"show", Path("empty")}), Path("empty") + ": is no EDID in BIN, DAT or TXT format");
    Put(folder_ / "short", Samples::Block(127, 0));
    ExpectRefused(Call({"show", Path("short")}), Path("short") + ": is no EDID in BIN, DAT or TXT format");
    Put(folder_ / "noise", Samples::Block(10 * 1024 * 1024, 0x5B));
    ExpectRefused(Call({"show", Path("noise")}), Path("noise") + ": is no EDID in BIN, DAT or TXT format");
}

TEST_F(Commands, WhatStandsBehindAnEdidInALargeFileIsNotLookedAt) {
    const std::string edid = Content(Sample(0));
    std::ofstream(folder_ / "large", std::ios::binary) << edid << std::string(10 * 1024 * 1024, 'x');
    EXPECT_EQ(Call({"show", Path("large")}).out, Call({"show", Sample(0)}).out);
}

TEST_F(Commands, ShowReadsStandardInput) {
    const std::string file = Sample(0);
    EXPECT_EQ(Call({"show", "-"}, Content(file)).out, Call({"show", file}).out);
    ExpectRefused(Call({"show", "-"}, ""), "-: is no EDID in BIN, DAT or TXT format");
}

TEST_F(Commands, ShowPrintsTheSectionsInOrder) {
    const std::string out = Call({"show", Sample(0)}).out;
    std::size_t at = 0;
    for (const char* line :
         {"Properties\n  Vendor ID: QOR\n  Product ID: 2401\n  Serial number: 20260107\n  Week: 7\n  Year: 2023\n",
          "  Digital interface: None\n  Screen size: 53 x 30 cm\n  Gamma: 2.20\n  Power management: Active off\n",
          "  Red: raw 655, 338\n", "Established resolutions\n  640x480 @ 60 Hz\n",
          "Detailed resolutions and descriptors (no space left)\n", "Standard resolutions (4 slots left)\n",
          "Extension blocks (255 slots left)\n  No extension blocks\n"}) {
        at = out.find(line, at);
        ASSERT_NE(at, std::string::npos) << line << out;
    }
}

TEST_F(Commands, ShowKeepsAControlCharacterOnItsLine) {
    Samples::Base base{.vendor = "QOR"};
    base.slots = {Samples::Text(0xFC, std::string("A\0B", 3))};
    Put(folder_ / "name.bin", Samples::BaseBlock(base));
    EXPECT_NE(Call({"show", Path("name.bin")}).out.find("  Name: A\\x00B\n"), std::string::npos);
}

TEST_F(Commands, CheckNamesWhatIsWrongInOrder) {
    EXPECT_EQ(Call({"check", Sample(0)}).out, "ok " + Sample(0) + "\n");
    const Outcome liar = Call({"check", Sample(0), Sample(5)});
    EXPECT_EQ(liar.status, Negative);
    EXPECT_EQ(
        liar.out.substr(liar.out.find('\n') + 1),
        "problem " + Sample(5) +
            ": checksum of block 0 is 4A, should be 5A; checksum of block 1 is 2F, should be 2E; 256 bytes behind the "
            "last block; properties/vendorId is \"@B_\", out of limits; descriptors/2/text is \"LIAR\u263A\", out of "
            "limits; extensions/0 out of limits\n");
    const Outcome missing = Call({"check", Path("none"), Sample(0)});
    EXPECT_EQ(missing.status, Refused);
    EXPECT_EQ(missing.out, "unreadable " + Path("none") + ": no such file\nok " + Sample(0) + "\n");
}

TEST_F(Commands, CheckCountsMissingBlocks) {
    Samples::Block edid = Samples::MakeDisplays()[1].edid;
    edid.resize(130);
    Put(folder_ / "cut.bin", edid);
    EXPECT_EQ(Call({"check", Path("cut.bin")}).out,
              "problem " + Path("cut.bin") + ": 2 bytes behind the last block; 1 block missing\n");
}

TEST_F(Commands, ConvertWritesEachFormatAndReadsItBack) {
    for (const char* out : {"a.bin", "a.dat", "a.txt", "a.other"}) {
        ASSERT_EQ(Call({"convert", Sample(2), Path(out)}).status, Success) << out;
        ASSERT_EQ(Call({"convert", Path(out), Path("back.bin")}).status, Success) << out;
        EXPECT_EQ(Content(Path("back.bin")), Content(Sample(2))) << out;
    }
    EXPECT_EQ(Content(Path("a.dat")).substr(0, 11), "EDID BYTES:");
    EXPECT_EQ(Content(Path("a.other")), Content(Sample(2)));
    ASSERT_EQ(Call({"convert", Sample(2), Path("b.bin"), "--format", "txt"}).status, Success);
    EXPECT_EQ(Content(Path("b.bin")), Content(Path("a.txt")));
}

TEST_F(Commands, ConvertNormalises) {
    ASSERT_EQ(Call({"convert", Sample(5), Path("mended.bin")}).status, Success);
    EXPECT_EQ(Content(Path("mended.bin")).size(), 256u);
    const std::string out = Call({"check", Path("mended.bin")}).out;
    EXPECT_EQ(out.find("checksum of block 0"), std::string::npos);
    EXPECT_NE(out.find("checksum of block 1"), std::string::npos);  // no edit has touched that block
}

TEST_F(Commands, AFailedConvertLeavesTheOldFileAndNoHalfOne) {
    Put(folder_ / "old.bin", Text("old"));
    ExpectRefused(Call({"convert", Path("none"), Path("old.bin")}), Path("none") + ": no such file");
    ExpectRefused(Call({"convert", Sample(0), Path("old.bin"), "--format", "pdf"}),
                  "pdf: unknown value of --format; bin|dat|txt is possible");
    EXPECT_EQ(Content(Path("old.bin")), "old");
    ExpectRefused(Call({"convert", Sample(0), Path("no/such/folder.bin")}),
                  Path("no/such/folder.bin") + ": can't be written");
    ExpectRefused(Call({"convert", Sample(0), Path("displays")}), Path("displays") + ": is a folder");
    for (const auto& entry : fs::directory_iterator(folder_)) EXPECT_NE(entry.path().extension(), ".new");
}

TEST_F(Commands, CheckSaysOfATextWhatItSaysOfBytes) {
    ASSERT_EQ(Call({"convert", Sample(1), Path("a.dat")}).status, Success);
    ASSERT_EQ(Call({"convert", Sample(1), Path("a.txt")}).status, Success);
    const auto check = [&](const std::string& name) {
        const std::string out = Call({"check", Path(name)}).out;
        return out.substr(0, out.find(' ')) + out.substr(out.find(name) + name.size());
    };
    EXPECT_EQ(check("a.dat"), "ok\n");
    EXPECT_EQ(check("a.txt"), "ok\n");
    const std::string dat = Content(Path("a.dat"));
    std::string txt = Content(Path("a.txt"));
    std::erase(txt, '\r');  // the ends of lines are the system's own
    const auto put = [&](const char* name, const std::string& text) { Put(folder_ / name, Text(text)); };
    put("short.dat", dat.substr(0, dat.find("\n80 ") + 1));
    EXPECT_EQ(check("short.dat"), "problem: 1 block missing\n");
    put("short.txt", txt.substr(0, 128 * 3));
    EXPECT_EQ(check("short.txt"), "problem: 1 block missing\n");
    put("long.txt", txt + "01 02 03\n");
    EXPECT_EQ(check("long.txt"), "problem: 3 bytes behind the last block\n");
    put("junk.dat", dat + "  \n zz y\n");
    EXPECT_EQ(check("junk.dat"), "problem: 5 bytes not understood\n");
    put("blank.dat", dat + "  \n  \n");
    EXPECT_EQ(check("blank.dat"), "ok\n");
    std::string wrong = txt;
    wrong.replace(127 * 3, 2, wrong.substr(127 * 3, 2) == "00" ? "01" : "00");
    put("wrong.txt", wrong);
    EXPECT_EQ(check("wrong.txt").substr(0, 31), "problem: checksum of block 0 is");
    put("endless.txt", txt + std::string(600000, ' ') + "x");
    EXPECT_EQ(check("endless.txt").substr(0, 9), "problem: ");
    ExpectRefused(Store({"write", "1", Path("junk.dat")}),
                  Path("junk.dat") + ": 5 bytes not understood; --force stores the rest");
}

TEST_F(Commands, CheckCountsSizesOfAnyMagnitude) {
    const std::string edid = Content(Sample(0));
    std::ofstream(folder_ / "large", std::ios::binary) << edid << std::string(3 * 1024 * 1024, 'x');
    EXPECT_EQ(Call({"check", Path("large")}).out,
              "problem " + Path("large") + ": 3145728 bytes behind the last block\n");
    EXPECT_EQ(Call({"check", "-"}, Content(Path("large"))).out, "problem -: 3145728 bytes behind the last block\n");
}

}  // namespace
}  // namespace VNT::Cli
