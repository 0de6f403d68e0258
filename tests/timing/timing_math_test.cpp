#include "model/timing/timing_math.h"

#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

TEST(TimingMath, DerivesTheCountsOfAnAxisFromEachOther) {
    EXPECT_EQ(BackFromBlank(88, 44, 280), 148);
    EXPECT_EQ(BackFromTotal(1920, 88, 44, 2200), 148);
    EXPECT_EQ(BlankFromBack(88, 44, 148), 280);
    EXPECT_EQ(TotalFromBlank(1920, 280), 2200);
}

TEST(TimingMath, SpreadsUndefinedCounts) {
    EXPECT_EQ(BackFromBlank(Undefined, 44, 280), Undefined);
    EXPECT_EQ(BackFromBlank(88, Undefined, 280), Undefined);
    EXPECT_EQ(BackFromBlank(88, 44, Undefined), Undefined);
    EXPECT_EQ(BackFromTotal(Undefined, 88, 44, 2200), Undefined);
    EXPECT_EQ(BackFromTotal(1920, 88, 44, Undefined), Undefined);
    EXPECT_EQ(BlankFromBack(88, 44, Undefined), Undefined);
    EXPECT_EQ(TotalFromBlank(Undefined, 280), Undefined);
    EXPECT_EQ(TotalFromBlank(1920, Undefined), Undefined);
}

TEST(TimingMath, TakesCountsUpTo65536AndFrontPorchesUpTo32768) {
    EXPECT_EQ(BackFromBlank(32768, 0, 65536), 32768);
    EXPECT_EQ(BackFromBlank(32769, 0, 65536), Undefined);
    EXPECT_EQ(BackFromBlank(0, 65536, 65536), 0);
    EXPECT_EQ(BackFromBlank(0, 65537, 65536), Undefined);
    EXPECT_EQ(BackFromBlank(0, 0, 65537), Undefined);
    EXPECT_EQ(BackFromBlank(0, 0, -1), Undefined);
    EXPECT_EQ(TotalFromBlank(65536, 65536), 131072);
    EXPECT_EQ(TotalFromBlank(65537, 0), Undefined);
}

TEST(TimingMath, TakesATotalFromTheActiveSizeUpTo65536More) {
    EXPECT_EQ(BackFromTotal(1920, 0, 0, 1920), 0);
    EXPECT_EQ(BackFromTotal(1920, 0, 0, 1919), Undefined);
    EXPECT_EQ(BackFromTotal(1920, 0, 0, 1920 + 65536), 65536);
    EXPECT_EQ(BackFromTotal(1920, 0, 0, 1920 + 65537), Undefined);
    EXPECT_EQ(BackFromTotal(1920, 88, 44, 1921), -131);
}

TEST(TimingMath, TakesANegativeBackPorchDownToAnEmptyBlanking) {
    EXPECT_EQ(BlankFromBack(88, 44, -132), 0);
    EXPECT_EQ(BlankFromBack(88, 44, -133), Undefined);
    EXPECT_EQ(BlankFromBack(88, 44, 65536 - 132), 65536);
    EXPECT_EQ(BlankFromBack(88, 44, 65536 - 131), Undefined);
}

TEST(TimingMath, RatesOfFullHdFollowFromItsClock) {
    EXPECT_EQ(RefreshRateFromClock(Rate("148.5"), 2200, 1125, false), Decimal(60));
    EXPECT_EQ(ScanRateFromClock(Rate("148.5"), 2200), Rate("67.5"));
    EXPECT_EQ(ClockFromRefreshRate(Decimal(60), 2200, 1125, false), Rate("148.5"));
    EXPECT_EQ(ClockFromScanRate(Rate("67.5"), 2200), Rate("148.5"));
}

TEST(TimingMath, CountsTheFieldsOfAnInterlacedFrame) {
    EXPECT_EQ(RefreshRateFromClock(Rate("74.25"), 2200, 1125, true), Decimal(60));
    EXPECT_EQ(ClockFromRefreshRate(Decimal(60), 2200, 1125, true), Rate("74.25"));
    EXPECT_EQ(ScanRateFromClock(Rate("74.25"), 2200), Rate("33.75"));
}

TEST(TimingMath, TruncatesAtEachStep) {
    // 100 MHz / 3 = 33333333.333333 Hz; that / 7 = 4761904.761904, not 4761904.761905.
    EXPECT_EQ(RefreshRateFromClock(Decimal(100), 3, 7, false), Rate("4761904.761904"));
    EXPECT_EQ(ClockFromRefreshRate(Decimal::FromMillionths(1), 1, 1, false), Decimal());
}

TEST(TimingMath, HasNoFrequencyOfTotalsThatNoTimingHas) {
    for (const int total : {Undefined, -1, 0, 131073}) {
        EXPECT_TRUE(RefreshRateFromClock(Decimal(100), total, 1000, false).IsUndefined()) << total;
        EXPECT_TRUE(RefreshRateFromClock(Decimal(100), 1000, total, false).IsUndefined()) << total;
        EXPECT_TRUE(ScanRateFromClock(Decimal(100), total).IsUndefined()) << total;
        EXPECT_TRUE(ClockFromRefreshRate(Decimal(60), total, 1000, false).IsUndefined()) << total;
        EXPECT_TRUE(ClockFromRefreshRate(Decimal(60), 1000, total, false).IsUndefined()) << total;
        EXPECT_TRUE(ClockFromScanRate(Decimal(60), total).IsUndefined()) << total;
        EXPECT_EQ(TotalFromRefreshRate(Decimal(100), Decimal(60), total, false), Undefined) << total;
    }
    EXPECT_FALSE(RefreshRateFromClock(Decimal(100), 131072, 131072, false).IsUndefined());
}

TEST(TimingMath, TakesClocksFrom0To16777216Hundredths) {
    EXPECT_EQ(ScanRateFromClock(Decimal(), 1000), Decimal());
    EXPECT_EQ(ScanRateFromClock(MaxTimingClock, 1000), Rate("167772.16"));
    EXPECT_TRUE(ScanRateFromClock(Rate("167772.160001"), 1000).IsUndefined());
    EXPECT_TRUE(ScanRateFromClock(Rate("-0.000001"), 1000).IsUndefined());
    EXPECT_TRUE(ScanRateFromClock(Decimal::Undefined(), 1000).IsUndefined());
}

TEST(TimingMath, TakesRatesUpToTheGreatestClock) {
    const Decimal most = RefreshRateFromClock(MaxTimingClock, 2200, 1125, true);
    EXPECT_FALSE(ClockFromRefreshRate(most, 2200, 1125, true).IsUndefined());
    EXPECT_TRUE(ClockFromRefreshRate(most + Decimal::FromMillionths(1), 2200, 1125, true).IsUndefined());
    EXPECT_TRUE(ClockFromRefreshRate(Rate("-0.000001"), 2200, 1125, true).IsUndefined());
    const Decimal mostLines = ScanRateFromClock(MaxTimingClock, 2200);
    EXPECT_FALSE(ClockFromScanRate(mostLines, 2200).IsUndefined());
    EXPECT_TRUE(ClockFromScanRate(mostLines + Decimal::FromMillionths(1), 2200).IsUndefined());
    EXPECT_TRUE(ClockFromScanRate(Rate("-0.000001"), 2200).IsUndefined());
}

TEST(TimingMath, FindsTheLinesThatAClockHasTimeFor) {
    EXPECT_EQ(TotalFromRefreshRate(Rate("148.5"), Decimal(60), 2200, false), 1125);
    EXPECT_EQ(TotalFromRefreshRate(Rate("148.5"), Rate("60.001"), 2200, false), 1124);
    EXPECT_EQ(TotalFromRefreshRate(Rate("148.5"), Decimal(60), 2200, true), 2249);
    EXPECT_EQ(TotalFromRefreshRate(Rate("74.25"), Decimal(60), 2200, true), 1125);
    EXPECT_EQ(TotalFromRefreshRate(Decimal(1), Decimal(1), 8, false), 125000);
    EXPECT_EQ(TotalFromRefreshRate(Decimal(1), Decimal(1), 7, false), Undefined);
    EXPECT_EQ(TotalFromRefreshRate(Decimal(1), Decimal(1000000), 2, false), Undefined);
    EXPECT_EQ(TotalFromRefreshRate(Decimal(1), Decimal(), 800, false), Undefined);
    EXPECT_EQ(TotalFromRefreshRate(Decimal::Undefined(), Decimal(60), 800, false), Undefined);
    EXPECT_EQ(TotalFromRefreshRate(MaxTimingClock, Decimal::FromMillionths(1), 1, true), Undefined);
}

TEST(TimingMath, RoundsToAGrain) {
    EXPECT_EQ(FloorTo(2001, 80), 2000);
    EXPECT_EQ(FloorTo(2000, 80), 2000);
    EXPECT_EQ(FloorTo(-1, 16), -16);
    EXPECT_EQ(FloorTo(-16, 16), -16);
    EXPECT_EQ(CeilTo(2001, 80), 2080);
    EXPECT_EQ(CeilTo(2080, 80), 2080);
    EXPECT_EQ(CeilTo(-1, 16), 0);
    EXPECT_EQ(RoundTo(7, 16), 0);
    EXPECT_EQ(RoundTo(8, 16), 16);
    EXPECT_EQ(RoundTo(-7, 16), 0);
    EXPECT_EQ(RoundTo(-8, 16), -16);
}

}  // namespace
}  // namespace VNT
