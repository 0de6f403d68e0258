#include <gtest/gtest.h>

#include "model/timing/timing_calculation.h"
#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

using Edid = EdidDetailedResolution;
using DisplayId = DisplayId2DetailedResolution;

// A timing as VESA or the CTA published it; the clock in MHz is theirs.
struct Published {
    int width, height, rate;
    const char* counts;
    const char* clock;
};

template <std::size_t n>
void ExpectCounts(Timing::Enum mode, const Published (&timings)[n]) {
    for (const Published& p : timings) {
        const auto item = Calculated<DisplayId>(mode, p.width, p.height, p.rate);
        EXPECT_EQ(Counts(item), p.counts) << p.width << "x" << p.height << "@" << p.rate;
        EXPECT_TRUE(item.IsValid());
    }
}

// DMT 1.0 revision 13, the timings that it made by CVT.
constexpr Published CvtTimings[] = {
    {1280, 768, 60, "64 128 192 3 7 20 1664x798", "79.5"},
    {1280, 768, 75, "80 128 208 3 7 27 1696x805", "102.25"},
    {1280, 800, 60, "72 128 200 3 6 22 1680x831", "83.5"},
    {1280, 800, 75, "80 128 208 3 6 29 1696x838", "106.5"},
    {1280, 800, 85, "80 136 216 3 6 34 1712x843", "122.5"},
    {1400, 1050, 60, "88 144 232 3 4 32 1864x1089", "121.75"},
    {1400, 1050, 75, "104 144 248 3 4 42 1896x1099", "156"},
    {1400, 1050, 85, "104 152 256 3 4 48 1912x1105", "179.5"},
    {1440, 900, 60, "80 152 232 3 6 25 1904x934", "106.5"},
    {1440, 900, 75, "96 152 248 3 6 33 1936x942", "136.75"},
    {1440, 900, 85, "104 152 256 3 6 39 1952x948", "157"},
    {1680, 1050, 60, "104 176 280 3 6 30 2240x1089", "146.25"},
    {1680, 1050, 75, "120 176 296 3 6 40 2272x1099", "187"},
    {1680, 1050, 85, "128 176 304 3 6 46 2288x1105", "214.75"},
    {1920, 1200, 60, "136 200 336 3 6 36 2592x1245", "193.25"},
    {1920, 1200, 75, "136 208 344 3 6 46 2608x1255", "245.25"},
    {1920, 1200, 85, "144 208 352 3 6 53 2624x1262", "281.25"},
    {2560, 1600, 60, "192 280 472 3 6 49 3504x1658", "348.5"},
};

constexpr Published CvtRbTimings[] = {
    {800, 600, 120, "48 32 80 3 4 29 960x636", "73.25"},      {1024, 768, 120, "48 32 80 3 4 38 1184x813", "115.5"},
    {1280, 768, 60, "48 32 80 3 7 12 1440x790", "68.25"},     {1280, 800, 60, "48 32 80 3 6 14 1440x823", "71"},
    {1280, 800, 120, "48 32 80 3 6 38 1440x847", "146.25"},   {1400, 1050, 60, "48 32 80 3 4 23 1560x1080", "101"},
    {1400, 1050, 120, "48 32 80 3 4 55 1560x1112", "208"},    {1440, 900, 60, "48 32 80 3 6 17 1600x926", "88.75"},
    {1440, 900, 120, "48 32 80 3 6 44 1600x953", "182.75"},   {1680, 1050, 60, "48 32 80 3 6 21 1840x1080", "119"},
    {1680, 1050, 120, "48 32 80 3 6 53 1840x1112", "245.5"},  {1920, 1200, 60, "48 32 80 3 6 26 2080x1235", "154"},
    {1920, 1200, 120, "48 32 80 3 6 62 2080x1271", "317"},    {2560, 1600, 60, "48 32 80 3 6 37 2720x1646", "268.5"},
    {2560, 1600, 120, "48 32 80 3 6 85 2720x1694", "552.75"},
};

constexpr Published CvtRb2Timings[] = {
    {1920, 1080, 60, "8 32 40 17 8 6 2000x1111", "133.32"},
    {2560, 1440, 60, "8 32 40 27 8 6 2640x1481", "234.59"},
    {3840, 2160, 60, "8 32 40 48 8 6 3920x2222", "522.614"},
    {4096, 2160, 60, "8 32 40 48 8 6 4176x2222", "556.744"},
};

constexpr Published GtfTimings[] = {
    {640, 480, 60, "16 64 80 1 3 13 800x497", "23.86"},
    {800, 600, 60, "32 80 112 1 3 18 1024x622", "38.22"},
    {1024, 768, 60, "56 104 160 1 3 23 1344x795", "64.11"},
    {1280, 1024, 60, "80 136 216 1 3 32 1712x1060", "108.88"},
    {1600, 1200, 60, "104 176 280 1 3 38 2160x1242", "160.96"},
    {1920, 1080, 60, "120 208 328 1 3 34 2576x1118", "172.8"},
};

// The steps of CTA-861's OVT, worked out on paper.
constexpr Published OvtTimings[] = {
    {1280, 720, 60, "136 32 32 21 8 11 1480x760", "67.488"},
    {1920, 1080, 60, "96 32 32 13 8 19 2080x1120", "139.776"},
    {3840, 2160, 60, "56 32 32 26 8 46 3960x2240", "532.224"},
    {3840, 2160, 50, "56 32 32 474 8 46 3960x2688", "532.224"},
};

TEST(CvtTiming, HasThePublishedCounts) { ExpectCounts(Timing::Cvt, CvtTimings); }
TEST(CvtRbTiming, HasThePublishedCounts) { ExpectCounts(Timing::CvtRb, CvtRbTimings); }
TEST(CvtRb2Timing, HasThePublishedCounts) { ExpectCounts(Timing::CvtRb2, CvtRb2Timings); }
TEST(GtfTiming, HasThePublishedCounts) { ExpectCounts(Timing::Gtf, GtfTimings); }
TEST(OvtTiming, HasTheCountsOfTheStandard) { ExpectCounts(Timing::Ovt, OvtTimings); }

TEST(StandardTimings, HaveTheirPolarities) {
    const auto polarities = [](Timing::Enum mode) {
        const auto item = Calculated<Edid>(mode, 1024, 768, 60);
        return TextOf(item, "{synctext}");
    };
    EXPECT_EQ(polarities(Timing::Cvt), "-/+");
    EXPECT_EQ(polarities(Timing::CvtRb), "+/-");
    EXPECT_EQ(polarities(Timing::CvtRb2), "+/-");
    EXPECT_EQ(polarities(Timing::Gtf), "-/+");
    EXPECT_EQ(polarities(Timing::Ovt), "+/+");
}

// CVT and its reduced blankings round the clock down and so end below the rate; here it is the least clock of the
// encoding that reaches it.
TEST(StandardTimings, ReachTheRateWhereThePublishedClocksStayBelow) {
    const auto expectReached = [](Timing::Enum mode, const Published& p) {
        const auto item = Calculated<DisplayId>(mode, p.width, p.height, p.rate);
        const Decimal published = RefreshRateFromClock(Rate(p.clock), item.htotal, item.vtotal, false);
        EXPECT_LE(published, Decimal(p.rate)) << TextOf(item);
        EXPECT_GE(item.actualvrate, Decimal(p.rate)) << TextOf(item);
        const Decimal less = item.actualpixelclock - Rate("0.001");
        EXPECT_LT(RefreshRateFromClock(less, item.htotal, item.vtotal, false), Decimal(p.rate)) << TextOf(item);
    };
    for (const Published& p : CvtTimings) expectReached(Timing::Cvt, p);
    for (const Published& p : CvtRbTimings) expectReached(Timing::CvtRb, p);
    for (const Published& p : CvtRb2Timings) expectReached(Timing::CvtRb2, p);
    EXPECT_EQ(Calculated<Edid>(Timing::CvtRb, 1920, 1200, 60).actualpixelclock, Rate("154.13"));
    EXPECT_EQ(Calculated<DisplayId>(Timing::CvtRb, 1920, 1200, 60).actualpixelclock, Rate("154.128"));
}

TEST(GtfTiming, HasThePublishedClocks) {
    for (const Published& p : GtfTimings) {
        EXPECT_EQ(Calculated<Edid>(Timing::Gtf, p.width, p.height, p.rate).actualpixelclock.RoundNearest(1),
                  Rate(p.clock).RoundNearest(1));
    }
}

TEST(OvtTiming, HasTheClocksOfTheStandard) {
    for (const Published& p : OvtTimings) {
        EXPECT_EQ(Calculated<DisplayId>(Timing::Ovt, p.width, p.height, p.rate).actualpixelclock, Rate(p.clock));
    }
}

// The second pass sees the rate that the rounded clock of the first gives. A little faster, the sync time then takes a
// line more than CVT and GTF count.
TEST(StandardTimings, TakeASecondPassThatTheStandardsDoNot) {
    const auto linesOf = [](TimingFormula formula, int width, int height, int rate) {
        Edid item;
        item.hactive = width;
        item.vactive = height;
        item.vrate = Decimal(rate);
        const DetailedResolutionLimits limits = item.GetLimits();
        TimingCalculation run(item, limits);
        EXPECT_TRUE(formula(run, item.vrate));
        return item.vtotal;
    };
    EXPECT_EQ(linesOf(CvtTiming, 1680, 1200, 85), 1262);
    EXPECT_EQ(Calculated<Edid>(Timing::Cvt, 1680, 1200, 85).vtotal, 1263);
    EXPECT_EQ(linesOf(GtfTiming, 640, 900, 144), 978);
    EXPECT_EQ(Calculated<Edid>(Timing::Gtf, 640, 900, 144).vtotal, 979);
}

TEST(StandardTimings, CountTheFieldsOfAnInterlacedFrame) {
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::Cvt, 1920, 1080, 60, true)), "64 192 256 6 10 29 2432x1125");
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::CvtRb, 1920, 1080, 60, true)), "48 32 80 6 10 17 2080x1113");
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::CvtRb2, 1920, 1080, 60, true)), "8 32 40 4 16 13 2000x1113");
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::Gtf, 1920, 1080, 60, true)), "64 192 256 2 6 31 2432x1119");
}

TEST(StandardTimings, TellThePictureBySyncLines) {
    EXPECT_EQ(CvtSyncLines(1920, 1080), 5);
    EXPECT_EQ(CvtSyncLines(1280, 768), 7);
    EXPECT_EQ(CvtSyncLines(1920, 1200), 6);
    EXPECT_EQ(CvtSyncLines(1600, 1200), 4);
    EXPECT_EQ(CvtSyncLines(1280, 1024), 7);
    EXPECT_EQ(CvtSyncLines(2560, 1080), 10);
    EXPECT_EQ(CvtSyncLines(1366, 768), 5);
    EXPECT_EQ(CvtSyncLines(4000, 2204), 10);
    EXPECT_EQ(CvtSyncLines(4000, 2205), 5);
    EXPECT_EQ(CvtSyncLines(4000, 2295), 5);
    EXPECT_EQ(CvtSyncLines(4000, 2296), 10);
    EXPECT_EQ(CvtSyncLines(4000, 2449), 10);
    EXPECT_EQ(CvtSyncLines(1, 65536), 10);
    EXPECT_EQ(CvtSyncLines(65536, 1), 10);
}

TEST(StandardTimings, TakeNoPictureOrRateThatIsNone) {
    for (int mode = Timing::AutomaticPc; mode <= Timing::Gtf; ++mode) {
        const auto fails = [mode](int width, int height, const char* rate) {
            const auto item = Calculated<Edid>(static_cast<Timing::Enum>(mode), width, height, rate);
            return Counts(item) == "- - - - - - -x-" && item.actualpixelclock.IsUndefined();
        };
        EXPECT_TRUE(fails(1920, 1080, "0")) << mode;
        EXPECT_TRUE(fails(1920, 1080, "-60")) << mode;
        EXPECT_TRUE(fails(1920, 1080, "")) << mode;
        EXPECT_TRUE(fails(0, 1080, "60")) << mode;
        EXPECT_TRUE(fails(65537, 1080, "60")) << mode;
        EXPECT_TRUE(fails(1920, 0, "60")) << mode;
        EXPECT_TRUE(fails(1920, 65537, "60")) << mode;
        EXPECT_FALSE(fails(1920, 1080, "60")) << mode;
    }
}

TEST(StandardTimings, HaveNoTimeForALineAtTooHighARate) {
    for (const Timing::Enum mode : {Timing::Cvt, Timing::CvtRb, Timing::CvtRb2, Timing::Gtf, Timing::Ovt,
                                    Timing::AutomaticPc, Timing::AutomaticCrt, Timing::ExactCrt}) {
        EXPECT_EQ(Counts(Calculated<DisplayId>(mode, 1920, 1080, 2200)), "- - - - - - -x-") << mode;
    }
}

TEST(StandardTimings, AFailureLeavesPictureRateAndPolaritiesAlone) {
    DetailedResolutionFields fields;
    EdidDetailedResolutionFields edid;
    edid.timing = Timing::Cvt;
    edid.vrate = Decimal();
    edid.hpolarity = true;
    edid.interlaced = true;
    const Edid item(edid);
    fields.timing = Timing::Cvt;
    fields.vrate = Decimal();
    fields.hpolarity = true;
    fields.interlaced = true;
    fields.hfront = fields.hsync = fields.hback = fields.hblank = fields.htotal = Undefined;
    fields.vfront = fields.vsync = fields.vback = fields.vblank = fields.vtotal = Undefined;
    fields.hrate = fields.pixelclock = Decimal::Undefined();
    fields.actualvrate = fields.actualhrate = fields.actualpixelclock = Decimal::Undefined();
    EXPECT_TRUE(item.GetFields() == fields);
}

// The share of the blanking falls without a floor as lines get longer.
TEST(GtfTiming, OfVeryLongLinesHasANegativeBlankingThatFailsItsLimit) {
    const auto item = Calculated<DisplayId>(Timing::Gtf, 640, 100, 60);
    EXPECT_EQ(item.hblank, -96);
    EXPECT_EQ(item.htotal, 544);
    EXPECT_FALSE(item.GetStatus().IsProper("hblank"));
    EXPECT_FALSE(item.IsValidAll());
    EXPECT_GT(item.actualpixelclock, Decimal());
    EXPECT_GT(Calculated<DisplayId>(Timing::Cvt, 640, 100, 60).hblank, 0);
}

TEST(GtfTiming, OfLinesOfHoursEndsInNoTiming) {
    EXPECT_EQ(Counts(Calculated<DisplayId>(Timing::Gtf, 65536, 1, "0.000001")), "- - - - - - -x-");
}

TEST(OvtTiming, TimesAFamilyOfRatesAtItsBaseRate) {
    const auto fifty = Calculated<DisplayId>(Timing::Ovt, 3840, 2160, 50);
    const auto sixty = Calculated<DisplayId>(Timing::Ovt, 3840, 2160, 60);
    EXPECT_EQ(fifty.htotal, sixty.htotal);
    EXPECT_EQ(fifty.vsync + fifty.vback, sixty.vsync + sixty.vback);
    EXPECT_EQ(fifty.actualpixelclock, sixty.actualpixelclock);
    EXPECT_EQ(sixty.vtotal % 20, 0);
    EXPECT_EQ(Calculated<DisplayId>(Timing::Ovt, 3840, 2160, 120).vtotal % 5, 0);
    EXPECT_EQ(Calculated<DisplayId>(Timing::Ovt, 3840, 2160, "59.94").htotal, sixty.htotal);
    EXPECT_NE(Calculated<DisplayId>(Timing::Ovt, 3840, 2160, 61).vtotal % 20, 0);
}

TEST(OvtTiming, OfAHighClockHasTheWiderBlanking) {
    const auto item = Calculated<DisplayId>(Timing::Ovt, 5120, 2160, 60);
    EXPECT_EQ(Counts(item), "136 32 32 26 8 46 5320x2240");
    EXPECT_GE(item.hblank, 128);
    EXPECT_GE(item.actualpixelclock, Decimal(590));
    EXPECT_LT(Calculated<DisplayId>(Timing::Ovt, 3840, 2160, 60).hblank, 128);
}

TEST(OvtTiming, KeepsTheClockAWholeNumberOfKilohertz) {
    for (const int rate : {30, 60, 72, 85, 120, 144, 165, 240, 360, 480}) {
        const auto item = Calculated<DisplayId>(Timing::Ovt, 2560, 1440, rate);
        EXPECT_EQ(static_cast<std::int64_t>(item.htotal) * item.vtotal * rate % 1000, 0) << rate;
        EXPECT_EQ(item.actualvrate, Decimal(rate)) << rate;
    }
}

TEST(OvtTiming, IgnoresTheScan) {
    const auto progressive = Calculated<DisplayId>(Timing::Ovt, 1920, 1080, 60);
    const auto interlaced = Calculated<DisplayId>(Timing::Ovt, 1920, 1080, 60, true);
    EXPECT_EQ(Counts(interlaced), Counts(progressive));
    EXPECT_EQ(interlaced.actualpixelclock * 2, progressive.actualpixelclock);
}

TEST(OvtTiming, NeedsARateThatRoundsAboveZero) {
    EXPECT_EQ(Counts(Calculated<DisplayId>(Timing::Ovt, 640, 480, "0.49")), "- - - - - - -x-");
    EXPECT_NE(Counts(Calculated<DisplayId>(Timing::Ovt, 640, 480, "0.5")), "- - - - - - -x-");
}

TEST(ExactTiming, LandsOnRoundTotals) {
    const auto item = Calculated<Edid>(Timing::Exact, 1920, 1080, 60);
    EXPECT_EQ(Counts(item), "48 32 80 3 5 37 2080x1125");
    EXPECT_EQ(TextOf(item, "{synctext}"), "+/-");
    EXPECT_EQ(item.actualpixelclock, Rate("140.4"));
    EXPECT_EQ(item.actualvrate, Decimal(60));
}

TEST(ExactTiming, OfAnInterlacedFrameHasAnOddTotal) {
    const auto item = Calculated<Edid>(Timing::Exact, 1920, 1080, 60, true);
    EXPECT_EQ(Counts(item), "48 32 80 6 10 29 2080x1125");
    EXPECT_EQ(Calculated<Edid>(Timing::Exact, 2000, 1080, 60, true).htotal, 2240);
    EXPECT_EQ(Calculated<Edid>(Timing::Exact, 1920, 1224, 60, true).vtotal, 1375);
    EXPECT_EQ(Calculated<Edid>(Timing::Exact, 1920, 1102, 60, true).vtotal, 1125);
    EXPECT_EQ(Calculated<Edid>(Timing::Exact, 1920, 1104, 60, true).vtotal, 1375);
}

TEST(ExactReducedTiming, TakesTheFinerGrainOfARateThatIsAMultipleOfFive) {
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1920, 1080, 60);
    EXPECT_EQ(Counts(item), "48 32 80 3 5 12 2080x1100");
    EXPECT_EQ(item.actualpixelclock, Rate("137.28"));
    EXPECT_EQ(TextOf(item, "{synctext}"), "+/-");
}

// 1999 + 48 + 32 pixels leave one of 26 times 80 for the back porch.
TEST(ExactReducedTiming, LeavesABackPorchOfOnePixelAtLeast) {
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1999, 1080, 60);
    EXPECT_EQ(item.htotal, 2080);
    EXPECT_EQ(item.hback, 1);
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 2000, 1080, 60).htotal, 2160);
}

TEST(ExactReducedTiming, TakesTheFinerGrainOfALineOfFourHundreds) {
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 1920, 1080, 59).vtotal, 1125);
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1900, 1080, 59);
    EXPECT_EQ(item.htotal, 2000);
    EXPECT_EQ(item.vtotal, 1100);
}

TEST(ExactReducedTiming, TradesPorchForClockAbove165MHz) {
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1920, 1200, 65);
    EXPECT_EQ(Counts(item), "24 32 24 3 6 16 2000x1225");
    EXPECT_EQ(TextOf(item, "{synctext}"), "+/+");
    EXPECT_EQ(item.actualpixelclock, Rate("159.25"));
    // 2048 x 1200 is the greatest picture that does.
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 2048, 1200, 65).hfront, 24);
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 2048, 1201, 65).hfront, 48);
}

TEST(ExactReducedTiming, DecidesTheGrainAgainInItsSecondPass) {
    // With the wide porch a line takes 2080 pixels and 125 lines are the grain; the narrow one makes it 2000.
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1920, 1200, 66);
    EXPECT_EQ(item.htotal, 2000);
    EXPECT_EQ(item.vtotal, 1225);
    EXPECT_EQ(item.hfront, 24);
}

TEST(ExactReducedTiming, OfAnInterlacedFrameHasAnOddTotal) {
    const auto item = Calculated<Edid>(Timing::ExactReduced, 1920, 1080, 60, true);
    EXPECT_EQ(item.vtotal, 1125);
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 1920, 1100, 60, true).vtotal, 1125);
    EXPECT_EQ(Calculated<Edid>(Timing::ExactReduced, 1920, 1110, 60, true).vtotal, 1175);
}

TEST(ExactCrtTiming, WidensCvtToRoundTotals) {
    const auto cvt = Calculated<Edid>(Timing::Cvt, 1024, 768, 75);
    const auto item = Calculated<Edid>(Timing::ExactCrt, 1024, 768, 75);
    EXPECT_EQ(Counts(cvt), "64 104 168 3 4 30 1360x805");
    EXPECT_EQ(Counts(item), "64 104 168 3 4 100 1360x875");
    EXPECT_EQ(TextOf(item, "{synctext}"), "-/+");
    const auto interlaced = Calculated<Edid>(Timing::ExactCrt, 1920, 1080, 60, true);
    EXPECT_EQ(interlaced.htotal, 2560);
    EXPECT_EQ(interlaced.vtotal, 1125);
    EXPECT_EQ(interlaced.hfront + interlaced.hsync + interlaced.hback, interlaced.hblank);
}

TEST(ExactCrtTiming, BeyondTheLargestBlankingHasItsTotalAndNoBackPorch) {
    const auto item = Calculated<Edid>(Timing::ExactCrt, 254, 33919, "1253.947", true);
    EXPECT_EQ(item.vtotal, 109375);
    EXPECT_EQ(item.vback, Undefined);
    EXPECT_EQ(item.vblank, Undefined);
    EXPECT_FALSE(item.IsValid());
    EXPECT_FALSE(item.IsValidAll());
}

}  // namespace
}  // namespace VNT
