#include <gtest/gtest.h>

#include "model/timing/preset_timings.h"
#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

using Edid = EdidDetailedResolution;
using DisplayId = DisplayId2DetailedResolution;

struct Table {
    const char* name;
    Timing::Enum mode;
    std::span<const PresetTiming> rows;
};
const Table Tables[] = {{"PC", Timing::AutomaticPc, PresetTimings::Pc},
                        {"HDTV", Timing::AutomaticHdtv, PresetTimings::Hdtv},
                        {"CRT", Timing::AutomaticCrt, PresetTimings::Crt}};

TEST(PresetTimings, HaveTheirRowCounts) {
    EXPECT_EQ(PresetTimings::Pc.size(), 22u);
    EXPECT_EQ(PresetTimings::Hdtv.size(), 92u);
    EXPECT_EQ(PresetTimings::Crt.size(), 34u);
}

TEST(PresetTimings, EachRowIsFoundByItsModeAndIsAValidTiming) {
    for (const Table& table : Tables) {
        for (const PresetTiming& row : table.rows) {
            const auto item = Calculated<DisplayId>(table.mode, row.hactive, row.vactive, row.rate, row.interlaced);
            const std::string title = std::string(table.name) + " " + TextOf(item);
            EXPECT_TRUE(item.IsValid()) << title;
            EXPECT_EQ(item.hfront, row.hfront) << title;
            EXPECT_EQ(item.hsync, row.hsync) << title;
            EXPECT_EQ(item.hback, row.hback) << title;
            EXPECT_EQ(item.vfront, row.vfront) << title;
            EXPECT_EQ(item.vsync, row.vsync) << title;
            EXPECT_EQ(item.vback, row.vback) << title;
            EXPECT_EQ(item.hpolarity, row.hpolarity) << title;
            EXPECT_EQ(item.vpolarity, row.vpolarity) << title;
            EXPECT_GE(item.actualvrate, Decimal(row.rate)) << title;
        }
    }
}

TEST(PresetTimings, KeepTheParityOfTheScan) {
    for (const Table& table : Tables) {
        for (const PresetTiming& row : table.rows) {
            if (!row.interlaced) continue;
            EXPECT_EQ(row.vfront % 2, 0);
            EXPECT_EQ(row.vsync % 2, 0);
            EXPECT_EQ(row.vback % 2, 1);
        }
    }
}

TEST(AutomaticTiming, FullHdHasTheBroadcastTiming) {
    const auto item = Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, 60);
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_EQ(item.actualpixelclock, Rate("148.5"));
    EXPECT_TRUE(item.hpolarity && item.vpolarity);
}

TEST(AutomaticTiming, ARateNearARowTakesItsCountsButKeepsItsOwnClock) {
    const auto item = Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, "59.94");
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_EQ(item.vrate, Rate("59.94"));
    EXPECT_EQ(item.actualpixelclock, Rate("148.36"));
    EXPECT_GT(item.actualvrate, Rate("59.94"));
    EXPECT_LT(item.actualvrate, Rate("59.95"));
}

TEST(AutomaticTiming, FindsARowByTheRateRoundedHalvesUp) {
    EXPECT_EQ(Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, "59.5").hfront, 88);
    EXPECT_EQ(Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, "60.499999").hfront, 88);
    EXPECT_EQ(Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, "59.499999").hfront, 48);
    EXPECT_EQ(Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, "60.5").hfront, 48);
}

TEST(AutomaticTiming, PassesByAPorchThatTheEncodingCannotHold) {
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::AutomaticPc, 1280, 720, 24)), "48 32 80 3 5 6 1440x734");
    EXPECT_EQ(Counts(Calculated<DisplayId>(Timing::AutomaticPc, 1280, 720, 24)), "1760 40 220 5 5 20 3300x750");
    EXPECT_EQ(Counts(Calculated<DisplayId1DetailedResolution>(Timing::AutomaticPc, 1280, 720, 24)),
              "1760 40 220 5 5 20 3300x750");
}

TEST(AutomaticTiming, KeepsTheRowOfAPictureThatTheEncodingCannotHoldAnyway) {
    const auto item = Calculated<Edid>(Timing::AutomaticHdtv, 7680, 4320, 24);
    EXPECT_EQ(item.hfront, 2552);
    EXPECT_FALSE(item.IsValid());
}

TEST(AutomaticTiming, TellsInterlacedRowsApart) {
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::AutomaticPc, 1920, 1080, 60, true)), "88 44 148 4 10 31 2200x1125");
    EXPECT_EQ(Counts(Calculated<Edid>(Timing::AutomaticHdtv, 1440, 480, 60, true)), "38 124 114 8 6 31 1716x525");
    EXPECT_FALSE(Calculated<Edid>(Timing::AutomaticHdtv, 1440, 480, 60).hfront == 38);
}

TEST(AutomaticTiming, WithoutARowIsTheReducedOrTheCrtStandard) {
    for (const bool interlaced : {false, true}) {
        for (const int rate : {50, 60, 75, 90}) {
            const auto reduced = Calculated<Edid>(Timing::CvtRb, 1440, 900, rate, interlaced);
            const auto crt = Calculated<Edid>(Timing::Cvt, 1440, 900, rate, interlaced);
            const auto sameTiming = [](Edid a, const Edid& b) {
                a.timing = b.timing;
                return a == b;
            };
            EXPECT_TRUE(sameTiming(Calculated<Edid>(Timing::AutomaticPc, 1440, 900, rate, interlaced), reduced));
            EXPECT_TRUE(sameTiming(Calculated<Edid>(Timing::AutomaticHdtv, 1440, 900, rate, interlaced), reduced));
            EXPECT_TRUE(sameTiming(Calculated<Edid>(Timing::AutomaticCrt, 1440, 900, rate, interlaced), crt));
        }
    }
}

TEST(NativeTiming, DrivesTheSixtyHertzTotalsAtAnyRate) {
    const auto item = Calculated<DisplayId>(Timing::NativePc, 1920, 1080, 144);
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_EQ(item.actualpixelclock, Rate("356.4"));
    EXPECT_EQ(item.actualvrate, Decimal(144));
}

TEST(NativeTiming, TakesTheFiftyHertzRowWhereThereIsNoOther) {
    const auto item = Calculated<Edid>(Timing::NativePc, 720, 576, 75);
    EXPECT_EQ(Counts(item), "12 64 68 5 5 39 864x625");
    EXPECT_EQ(item.actualvrate, Decimal(75));
}

TEST(NativeTiming, LooksIntoItsOwnTable) {
    EXPECT_EQ(Calculated<DisplayId>(Timing::NativeHdtv, 3840, 2160, 60).hfront, 176);
    EXPECT_EQ(Calculated<DisplayId>(Timing::NativePc, 3840, 2160, 60).hfront, 48);
}

TEST(NativeTiming, WithoutARowHasTheReducedBlankingOfSixtyHertz) {
    const auto sixty = Calculated<DisplayId>(Timing::CvtRb, 2560, 1440, 60);
    for (const int rate : {30, 60, 75, 144, 240}) {
        const auto item = Calculated<DisplayId>(Timing::NativePc, 2560, 1440, rate);
        EXPECT_EQ(Counts(item), Counts(sixty)) << rate;
        EXPECT_EQ(Counts(item), "48 32 80 3 5 33 2720x1481") << rate;
        EXPECT_EQ(item.vrate, Decimal(rate));
        EXPECT_EQ(item.actualpixelclock, Decimal(static_cast<std::int64_t>(2720) * 1481 * rate, 6).RoundUp(3));
        EXPECT_EQ(item.pixelclock, item.actualpixelclock);
    }
}

TEST(NativeTiming, WithoutARowKeepsItsTotalsUnchangedAtAnyRate) {
    for (const bool interlaced : {false, true}) {
        for (const int height : {200, 480, 900, 1200, 1440, 2160}) {
            const auto slow = Calculated<Edid>(Timing::NativeHdtv, 2000, height, "0.5", interlaced);
            const auto fast = Calculated<Edid>(Timing::NativeHdtv, 2000, height, 300, interlaced);
            EXPECT_EQ(Counts(slow), Counts(fast));
            EXPECT_EQ(slow.htotal, 2160);
        }
    }
}

}  // namespace
}  // namespace VNT
