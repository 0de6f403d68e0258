#include <gtest/gtest.h>
#include <sstream>

#include "cli/command.h"
#include "model/timing/detailed_resolution.h"

namespace VNT::Cli {

namespace {

struct Outcome {
    int status;
    std::string out, err;
};

Outcome RunTimingWith(std::vector<std::string> words) {
    words.insert(words.begin(), "timing");
    std::istringstream in;
    std::ostringstream out, err;
    const int status = Run(words, Console{in, out, err, {}});
    return {status, out.str(), err.str()};
}

std::string LineOf(const std::string& text, const std::string& start) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(start)) return line;
    }
    return "";
}

// One clear line on standard error, nothing on standard output.
void ExpectRefused(const std::vector<std::string>& words) {
    const Outcome outcome = RunTimingWith(words);
    EXPECT_EQ(outcome.status, Refused) << outcome.out;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("vantelle-cli: ")) << outcome.err;
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
}

void ExpectNoTiming(const std::string& picture) {
    const Outcome outcome = RunTimingWith({"cvt standard", picture});
    EXPECT_EQ(outcome.status, Negative) << picture << outcome.err;
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(outcome.out.starts_with("\nhactive ")) << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("\nvalid 0\n")) << outcome.out;
}

}  // namespace

TEST(TimingCommand, PrintsATimingLineByLine) {
    const Outcome outcome = RunTimingWith({"automatic-pc", "1920x1080@60"});
    EXPECT_EQ(outcome.status, Success);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out,
              "Modeline \"1920x1080_60.000\" 148.50 1920 2008 2052 2200 1080 1084 1089 1125 +HSync +VSync\n"
              "hactive 1920 hfront 88 hsync 44 hback 148 hblank 280 htotal 2200\n"
              "vactive 1080 vfront 4 vsync 5 vback 36 vblank 45 vtotal 1125\n"
              "hpolarity + vpolarity + interlaced 0\n"
              "vrate 60.000000 hrate 67.500000 pixelclock 148.500000\n"
              "valid 1\n");
}

TEST(TimingCommand, TakesAModeInAnySpelling) {
    const std::string expected = RunTimingWith({"CVT-RB standard", "2560x1440@60"}).out;
    EXPECT_NE(expected, "");
    for (const char* mode : {"cvt-rb standard", "cvt rb standard", "Cvt-Rb-Standard", "CVT RB-STANDARD"}) {
        EXPECT_EQ(RunTimingWith({mode, "2560x1440@60"}).out, expected) << mode;
    }
}

TEST(TimingCommand, KnowsEveryMode) {
    for (const char* mode : {"manual", "automatic pc", "automatic hdtv", "automatic crt", "native pc", "native hdtv",
                             "exact", "exact reduced", "exact crt", "ovt standard", "cvt standard", "cvt-rb standard",
                             "cvt-rb2 standard", "gtf standard"}) {
        EXPECT_EQ(RunTimingWith({mode, "1920x1080@60"}).status, Success) << mode;
    }
}

TEST(TimingCommand, ListsTheModesByTheNamesThatItTakes) {
    const Outcome list = RunTimingWith({"--list"});
    EXPECT_EQ(list.status, Success);
    std::istringstream lines(list.out);
    int count = 0;
    for (std::string mode; std::getline(lines, mode); ++count) {
        EXPECT_EQ(RunTimingWith({mode, "640x480@60"}).err, "") << mode;
    }
    EXPECT_EQ(count, static_cast<int>(std::size(DetailedResolutionTimingEnum::Texts)));
}

TEST(TimingCommand, NamesTheNearestMode) {
    EXPECT_EQ(RunTimingWith({"cvt", "640x480@60"}).err,
              "vantelle-cli: cvt: unknown timing mode; the nearest is CVT standard\n");
    EXPECT_EQ(RunTimingWith({"Gft Standard", "640x480@60"}).err,
              "vantelle-cli: Gft Standard: unknown timing mode; the nearest is GTF standard\n");
}

TEST(TimingCommand, StretchesTheFrameInTheQftCalculator) {
    const Outcome outcome = RunTimingWith({"qft calculator", "640x480@30"});
    EXPECT_EQ(outcome.status, Success);
    EXPECT_EQ(LineOf(outcome.out, "vactive"), "vactive 480 vfront 10 vsync 2 vback 558 vblank 570 vtotal 1050");
    EXPECT_EQ(LineOf(outcome.out, "vrate"), "vrate 30.000000 hrate 31.500000 pixelclock 25.200000");
}

TEST(TimingCommand, TakesInterlacedPictures) {
    const Outcome outcome = RunTimingWith({"automatic hdtv", "1920x1080i@59.94", "--kind", "displayid1"});
    EXPECT_EQ(outcome.status, Success);
    EXPECT_EQ(LineOf(outcome.out, "vactive"), "vactive 1080 vfront 4 vsync 10 vback 31 vblank 45 vtotal 1125");
    EXPECT_TRUE(LineOf(outcome.out, "Modeline").ends_with(" Interlace"));
    EXPECT_TRUE(LineOf(outcome.out, "hpolarity").ends_with("interlaced 1"));
}

TEST(TimingCommand, CalculatesForTheKindAsked) {
    const auto clockOf = [](const char* kind) {
        return LineOf(RunTimingWith({"automatic pc", "1920x1080@59.94", "--kind", kind}).out, "vrate");
    };
    EXPECT_TRUE(clockOf("edid").ends_with("pixelclock 148.360000"));
    EXPECT_TRUE(clockOf("displayid1").ends_with("pixelclock 148.360000"));
    EXPECT_TRUE(clockOf("displayid2").ends_with("pixelclock 148.352000"));
    EXPECT_TRUE(clockOf("displayid2r2").ends_with("pixelclock 148.352000"));
    EXPECT_EQ(RunTimingWith({"cvt-rb standard", "7680x4320@60"}).status, Negative);
    EXPECT_EQ(RunTimingWith({"cvt-rb standard", "7680x4320@60", "--kind", "displayid2"}).status, Success);
}

TEST(TimingCommand, PrintsATimingThatCannotBeAsNotValid) {
    for (const char* picture :
         {"0x1080@60", "1920x0@60", "0x0@0", "65537x1080@60", "1920x65537@60", "1920x1080@0", "1920x1080@1000000000",
          "1920x1080@99999999999999999999999", "1920x1080@0.0000001", "1x1@0.000001", "65536x65536i@0.000001"}) {
        ExpectNoTiming(picture);
    }
    EXPECT_EQ(RunTimingWith({"cvt standard", "1920x1080@0"}).out,
              "\n"
              "hactive 1920 hfront - hsync - hback - hblank - htotal -\n"
              "vactive 1080 vfront - vsync - vback - vblank - vtotal -\n"
              "hpolarity - vpolarity - interlaced 0\n"
              "vrate - hrate - pixelclock -\n"
              "valid 0\n");
}

TEST(TimingCommand, RefusesBadWordsWithOneLine) {
    ExpectRefused({});
    ExpectRefused({"cvt standard"});
    ExpectRefused({"cvt standard", "1920x1080@60", "more"});
    ExpectRefused({"cvt", "1920x1080@60"});
    ExpectRefused({"", "1920x1080@60"});
    ExpectRefused({"cvt standard", "1920x1080@60", "--kind"});
    ExpectRefused({"cvt standard", "1920x1080@60", "--kind", "vesa"});
    ExpectRefused({"cvt standard", "1920x1080@60", "--speed"});
}

TEST(TimingCommand, RefusesBadPicturesWithOneLine) {
    for (const char* picture : {"",
                                "1920",
                                "1920x",
                                "1920x1080",
                                "1920x1080@",
                                "1920x1080@abc",
                                "1920x1080@-60",
                                "1920x1080@+60",
                                "1920x1080@1e9",
                                "1920x1080@60Hz",
                                "1920x1080@ 60",
                                "1920x1080@.",
                                "1920x1080@6.0.0",
                                "1920x1080p@60",
                                "1920X1080@60",
                                "-1920x1080@60",
                                "1920x-1080@60",
                                "99999999999x1080@60",
                                "x1080@60",
                                "1920x1080ii@60"}) {
        ExpectRefused({"cvt standard", picture});
    }
}

}  // namespace VNT::Cli
