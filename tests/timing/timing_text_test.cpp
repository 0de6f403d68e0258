#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

constexpr DetailedResolutionTextFormat Format{U"{description}", U"Test", 2};

// The text of a bare record.
std::string Described(const DetailedResolutionFields& fields, std::u32string_view format) {
    TextTable table;
    FillTimingTexts(table, fields, Format);
    return Replace(format, table).ToUtf8();
}

TEST(TimingTexts, FullHdHasWholeRatesAndNoMark) {
    const auto item = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60);
    EXPECT_EQ(item.htotal, 2200);
    EXPECT_EQ(item.vtotal, 1125);
    EXPECT_EQ(item.actualvrate, Decimal(60));
    EXPECT_EQ(item.actualhrate, Rate("67.5"));
    EXPECT_EQ(TextOf(item, "{resolutiontext}"), "1920x1080");
    EXPECT_EQ(TextOf(item, "{resolutiontext}{p}"), "1920x1080p");
    EXPECT_EQ(TextOf(item, "{modeline}"),
              "Modeline \"1920x1080_60.000\" 148.50 1920 2008 2052 2200 1080 1084 1089 1125 +HSync +VSync");
}

TEST(TimingTexts, AnInterlacedResolutionEndsInIAndItsModelineInInterlace) {
    const auto item = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60, true);
    EXPECT_EQ(TextOf(item, "{resolutiontext}"), "1920x1080i");
    EXPECT_EQ(TextOf(item, "{resolutiontext}{p}"), "1920x1080i");
    EXPECT_EQ(TextOf(item, "{modeline}"),
              "Modeline \"1920x1080i_60.000\" 74.25 1920 2008 2052 2200 1080 1084 1094 1125 +HSync +VSync Interlace");
}

TEST(TimingTexts, ARateIsCutToThreeDecimals) {
    DetailedResolutionFields fields;
    fields.actualvrate = Rate("59.9999");
    fields.actualhrate = Rate("31.4699");
    EXPECT_EQ(Described(fields, U"{refreshratetext} {vrate} {hrate}"), " @ 59.999 Hz 59.999 31.469");
}

TEST(TimingTexts, ShowTheStoredRatesAndNotTheEnteredOnes) {
    DetailedResolutionFields fields;
    fields.vrate = Decimal(1);
    fields.hrate = Decimal(2);
    fields.pixelclock = Decimal(3);
    EXPECT_EQ(Described(fields, U"{vrate} {hrate} {pixelclock}"), "60.000 31.500 25.20");
}

TEST(TimingTexts, AnUndefinedRateIsLeftOut) {
    DetailedResolutionFields fields;
    fields.actualvrate = fields.actualhrate = fields.actualpixelclock = Decimal::Undefined();
    EXPECT_EQ(Described(fields, U"{resolutiontext}{refreshratetext}|{vrate}{refreshrate}{hrate}{pixelclock}"),
              "640x480|");
}

TEST(TimingTexts, NameEveryCount) {
    DetailedResolutionFields fields;
    EXPECT_EQ(Described(fields, U"{hactive} {hfront} {hsync} {hback} {hblank} {htotal} {hsyncstart} {hsyncend}"),
              "640 16 96 48 160 800 656 752");
    EXPECT_EQ(Described(fields, U"{vactive} {vfront} {vsync} {vback} {vblank} {vtotal} {vsyncstart} {vsyncend}"),
              "480 10 2 33 45 525 490 492");
    EXPECT_EQ(Described(fields, U"{width} {height}"), "640 480");
}

TEST(TimingTexts, SumsOfWildCountsDoNotOverflow) {
    DetailedResolutionFields fields;
    fields.hactive = fields.hfront = fields.hsync = 2147483647;
    fields.vactive = fields.vfront = fields.vsync = Undefined;
    EXPECT_EQ(Described(fields, U"{hsyncstart} {hsyncend} {vsyncstart} {vsyncend}"),
              "4294967294 6442450941 -4294967296 -6442450944");
}

TEST(TimingTexts, ShowBothPolarities) {
    DetailedResolutionFields fields;
    fields.vpolarity = true;
    EXPECT_EQ(Described(fields, U"{synctext} {modelineflags} {hpolarity}{vpolarity}"), "-/+ -HSync +VSync -+");
}

TEST(TimingTexts, LeaveNoPlaceholderInAnyTemplate) {
    const auto expectNone = [](const AnyResolution& item) {
        for (const char* format : {"{description}", "{modeline}", "{type}", "{synctext}{modelineflags}{scantext}{p}{i}",
                                   "{resolutiontext}{aspectratiotext}{refreshratetext}{vrate}{hrate}{pixelclock}"}) {
            const std::string text = TextOf(item, format);
            EXPECT_EQ(text.find_first_of("{}"), std::string::npos) << text;
            EXPECT_NE(text, "");
        }
        EXPECT_EQ(TextOf(item).find_first_of("{}"), std::string::npos) << TextOf(item);
    };
    for (const bool interlaced : {false, true}) {
        expectNone(Calculated<EdidDetailedResolution>(Timing::Cvt, 1024, 768, 60, interlaced));
        expectNone(Calculated<DisplayId1DetailedResolution>(Timing::Cvt, 1024, 768, 60, interlaced));
        expectNone(Calculated<DisplayId2DetailedResolution>(Timing::Cvt, 1024, 768, 60, interlaced));
        expectNone(Calculated<DisplayId2DetailedResolutionR2>(Timing::Cvt, 1024, 768, 60, interlaced));
    }
}

TEST(TimingTexts, NumbersReadBackAsTheyAreTyped) {
    Decimal value;
    EXPECT_TRUE(TextToDecimal("1.2345678", value));
    EXPECT_EQ(value, Rate("1.234567"));
    EXPECT_FALSE(TextToDecimal(".", value));
    EXPECT_EQ(value, Rate("1.234567"));
    EXPECT_TRUE(TextToDecimal("", value));
    EXPECT_TRUE(value.IsUndefined());
}

TEST(TimingVocabulary, ListsTheModesInTheOrderOfTheirBox) {
    std::string modes;
    int next = 0;
    for (const auto& row : Timing::Texts) {
        EXPECT_EQ(row.value, next++);
        modes += std::string(row.text) + ";";
    }
    EXPECT_EQ(next, Timing::Count);
    EXPECT_EQ(modes,
              "Manual;Automatic PC;Automatic HDTV;Automatic CRT;Native PC;Native HDTV;Exact;Exact reduced;Exact CRT;"
              "OVT standard;CVT standard;CVT-RB standard;CVT-RB2 standard;GTF standard;QFT calculator;");
}

}  // namespace
}  // namespace VNT
