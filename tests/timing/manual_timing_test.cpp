#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

DetailedResolutionFields Calculate(DetailedResolutionFields fields) {
    EdidDetailedResolutionFields edid;
    static_cast<DetailedResolutionFields&>(edid) = fields;
    return EdidDetailedResolution(edid);
}

DetailedResolutionFields FullHd() {
    DetailedResolutionFields fields = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60);
    fields.timing = Timing::Manual;
    return fields;
}

TEST(ManualTiming, BlankingAndTotalFollowTheBackPorch) {
    DetailedResolutionFields fields = FullHd();
    fields.hback = 140;
    fields.vback = 30;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.hblank, 272);
    EXPECT_EQ(f.htotal, 2192);
    EXPECT_EQ(f.vblank, 39);
    EXPECT_EQ(f.vtotal, 1119);
}

TEST(ManualTiming, BackPorchAndTotalFollowTheBlanking) {
    DetailedResolutionFields fields = FullHd();
    fields.parameterType = ParameterType::Blanking;
    fields.hblank = 300;
    fields.vblank = 8;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.hback, 168);
    EXPECT_EQ(f.htotal, 2220);
    EXPECT_EQ(f.vback, -1);
    EXPECT_EQ(f.vtotal, 1088);
}

TEST(ManualTiming, BackPorchAndBlankingFollowTheTotal) {
    DetailedResolutionFields fields = FullHd();
    fields.parameterType = ParameterType::Total;
    fields.htotal = 2100;
    fields.vtotal = 1125;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.hback, 48);
    EXPECT_EQ(f.hblank, 180);
    EXPECT_EQ(f.vback, 36);
    EXPECT_EQ(f.vblank, 45);
}

TEST(ManualTiming, ATotalBelowTheActiveSizeHasAnUndefinedBackPorch) {
    DetailedResolutionFields fields = FullHd();
    fields.parameterType = ParameterType::Total;
    fields.htotal = 1919;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.htotal, 1919);
    EXPECT_EQ(f.hback, Undefined);
    EXPECT_EQ(f.hblank, Undefined);
    EXPECT_EQ(f.vback, 36);
    EXPECT_EQ(f.actualpixelclock, Rate("129.54"));
}

TEST(ManualTiming, ATotalOfZeroHasNoFrequency) {
    DetailedResolutionFields fields;
    fields.parameterType = ParameterType::Total;
    fields.hactive = 0;
    fields.htotal = 0;
    fields.hfront = fields.hsync = 0;
    for (const auto& row : FrequencyType::Texts) {
        fields.frequencyType = row.value;
        const DetailedResolutionFields f = Calculate(fields);
        EXPECT_TRUE(f.actualvrate.IsUndefined()) << row.text;
        EXPECT_TRUE(f.actualhrate.IsUndefined()) << row.text;
        EXPECT_EQ(f.actualpixelclock.IsUndefined(), row.value != FrequencyType::PixelClock) << row.text;
        EXPECT_EQ(f.htotal, 0);
        EXPECT_EQ(f.hblank, 0);
        EXPECT_EQ(f.vtotal, 525);
        EXPECT_EQ(f.vback, 33);
    }
}

TEST(ManualTiming, AnUndefinedCountSpreads) {
    DetailedResolutionFields fields = FullHd();
    fields.hsync = Undefined;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.hsync, Undefined);
    EXPECT_EQ(f.hback, 148);
    EXPECT_EQ(f.hblank, Undefined);
    EXPECT_EQ(f.htotal, Undefined);
    EXPECT_TRUE(f.actualpixelclock.IsUndefined());
    EXPECT_TRUE(f.hrate.IsUndefined());
    EXPECT_EQ(f.vrate, Decimal(60));
}

TEST(ManualTiming, ClockAndScanRateFollowTheRefreshRate) {
    DetailedResolutionFields fields = FullHd();
    fields.vrate = Rate("59.94");
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.vrate, Rate("59.94"));
    EXPECT_EQ(f.actualpixelclock, Rate("148.36"));
    EXPECT_EQ(f.pixelclock, f.actualpixelclock);
    EXPECT_EQ(f.hrate, f.actualhrate);
    EXPECT_EQ(f.actualhrate, Rate("67.436363"));
    EXPECT_EQ(f.actualvrate, Rate("59.943434"));
}

TEST(ManualTiming, ClockAndRefreshRateFollowTheScanRate) {
    DetailedResolutionFields fields = FullHd();
    fields.frequencyType = FrequencyType::ScanRate;
    fields.hrate = Rate("67.433");
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.hrate, Rate("67.433"));
    EXPECT_EQ(f.actualpixelclock, Rate("148.36"));
    EXPECT_EQ(f.pixelclock, Rate("148.36"));
    EXPECT_EQ(f.vrate, Rate("59.943434"));
    EXPECT_EQ(f.actualhrate, Rate("67.436363"));
}

TEST(ManualTiming, RatesFollowThePixelClock) {
    DetailedResolutionFields fields = FullHd();
    fields.frequencyType = FrequencyType::PixelClock;
    fields.pixelclock = Rate("148.3516");
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.pixelclock, Rate("148.3516"));
    EXPECT_EQ(f.actualpixelclock, Rate("148.36"));
    EXPECT_EQ(f.vrate, f.actualvrate);
    EXPECT_EQ(f.hrate, f.actualhrate);
    EXPECT_EQ(f.actualvrate, Rate("59.943434"));
}

TEST(ManualTiming, AClockBeyondTheGreatestIsUndefined) {
    DetailedResolutionFields fields = FullHd();
    fields.frequencyType = FrequencyType::PixelClock;
    for (const char* clock : {"-0.01", "167772.17", ""}) {
        fields.pixelclock = Rate(clock);
        const DetailedResolutionFields f = Calculate(fields);
        EXPECT_EQ(f.pixelclock, Rate(clock));
        EXPECT_TRUE(f.actualpixelclock.IsUndefined());
        EXPECT_TRUE(f.vrate.IsUndefined());
        EXPECT_TRUE(f.hrate.IsUndefined());
    }
    fields.pixelclock = Rate("167772.16");
    EXPECT_EQ(Calculate(fields).actualpixelclock, Rate("167772.16"));
}

TEST(ManualTiming, LeavesChoicesThatAreNoneAlone) {
    DetailedResolutionFields fields = FullHd();
    fields.parameterType = ParameterType::None;
    fields.frequencyType = FrequencyType::None;
    fields.hback = 1;
    fields.pixelclock = Decimal(3);
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_TRUE(f == fields);
}

TEST(ManualTiming, TakesTheModesThatAreNone) {
    DetailedResolutionFields fields = FullHd();
    fields.hback = 140;
    for (const int mode : {-1, 15}) {
        fields.timing = static_cast<Timing::Enum>(mode);
        EXPECT_EQ(Calculate(fields).htotal, 2192);
    }
}

DetailedResolutionFields Qft(Decimal vrate, bool interlaced = false) {
    DetailedResolutionFields fields = FullHd();
    fields.timing = Timing::Qft;
    fields.vrate = vrate;
    fields.interlaced = interlaced;
    return fields;
}

TEST(QftTiming, StretchesTheFrameAtTheSpeedOfThePixelClock) {
    DetailedResolutionFields fields = Qft(Decimal(24));
    fields.pixelclock = Decimal(297);
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.htotal, 2200);
    EXPECT_EQ(f.vtotal, 5625);
    EXPECT_EQ(f.vblank, 4545);
    EXPECT_EQ(f.vback, 4536);
    EXPECT_EQ(f.hrate, Decimal(135));
    EXPECT_EQ(f.actualpixelclock, Decimal(297));
    EXPECT_EQ(f.actualvrate, Decimal(24));
}

TEST(QftTiming, StretchesTheFrameAtTheSpeedOfTheScanRate) {
    DetailedResolutionFields fields = Qft(Decimal(30));
    fields.qftSource = QftSource::ScanRate;
    fields.hrate = Decimal(135);
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.pixelclock, Decimal(297));
    EXPECT_EQ(f.vtotal, 4500);
    EXPECT_EQ(f.actualvrate, Decimal(30));
    EXPECT_EQ(f.hrate, Decimal(135));
}

TEST(QftTiming, TheFrequencyTypeSaysWhichRateTheClockMeets) {
    DetailedResolutionFields fields = Qft(Decimal(50));
    fields.pixelclock = Decimal(297);
    fields.htotal = 2199;
    fields.parameterType = ParameterType::Total;
    fields.frequencyType = FrequencyType::RefreshRate;
    const DetailedResolutionFields byRefresh = Calculate(fields);
    EXPECT_EQ(byRefresh.vtotal, 2701);
    EXPECT_EQ(byRefresh.actualpixelclock, Rate("296.98"));
    EXPECT_EQ(byRefresh.pixelclock, Decimal(297));
    fields.frequencyType = FrequencyType::PixelClock;
    EXPECT_EQ(Calculate(fields).actualpixelclock, Decimal(297));
    fields.frequencyType = FrequencyType::ScanRate;
    fields.qftSource = QftSource::ScanRate;
    fields.hrate = Decimal(135);
    EXPECT_EQ(Calculate(fields).actualpixelclock, Rate("296.87"));
}

TEST(QftTiming, FollowsEachEnteredCountOfTheLine) {
    DetailedResolutionFields fields = Qft(Decimal(60));
    fields.hback = 100;
    fields.parameterType = ParameterType::BackPorch;
    EXPECT_EQ(Calculate(fields).htotal, 2152);
    fields.hblank = 200;
    fields.parameterType = ParameterType::Blanking;
    EXPECT_EQ(Calculate(fields).hback, 68);
    fields.htotal = 2300;
    fields.parameterType = ParameterType::Total;
    EXPECT_EQ(Calculate(fields).hback, 248);
}

TEST(QftTiming, AnInterlacedTotalIsOdd) {
    DetailedResolutionFields fields = Qft(Decimal(50), true);
    fields.pixelclock = Decimal(297);
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_EQ(f.vtotal, 5399);
    EXPECT_EQ(f.vtotal % 2, 1);
}

TEST(QftTiming, NeedsNoPictureAndChangesNoPolarity) {
    DetailedResolutionFields fields = Qft(Decimal());
    fields.hpolarity = false;
    fields.vpolarity = true;
    const DetailedResolutionFields f = Calculate(fields);
    EXPECT_FALSE(f.hpolarity);
    EXPECT_TRUE(f.vpolarity);
    EXPECT_EQ(f.vtotal, Undefined);
    EXPECT_EQ(f.vback, Undefined);
    EXPECT_EQ(f.hfront, 88);
    EXPECT_EQ(f.htotal, 2200);
    EXPECT_TRUE(f.actualvrate.IsUndefined());
}

}  // namespace
}  // namespace VNT
