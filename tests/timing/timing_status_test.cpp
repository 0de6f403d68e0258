#include "model/timing/timing_status.h"

#include <gtest/gtest.h>
#include <set>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

using Names = std::set<std::string>;

Names OpenFields(const ItemStatus& available) {
    Names open;
    for (const FieldStatus& field : available.Fields()) {
        if (field.proper) open.insert(field.name);
    }
    return open;
}

Names FaultyFields(const ItemStatus& status) {
    Names faulty;
    for (const FieldStatus& field : status.Fields()) {
        if (!field.proper) faulty.insert(field.name);
    }
    return faulty;
}

DetailedResolutionFields InMode(Timing::Enum mode) {
    DetailedResolutionFields fields;
    fields.timing = mode;
    return fields;
}

const Names AllFields{"timing",     "parameterType", "frequencyType", "qftSource", "hactive",   "hfront",
                      "hsync",      "hback",         "hblank",        "htotal",    "vactive",   "vfront",
                      "vsync",      "vback",         "vblank",        "vtotal",    "hpolarity", "vpolarity",
                      "interlaced", "vrate",         "hrate",         "pixelclock"};

// What was built, with the status then computed for the fields as they are changed behind the calculator's back.
Names FaultsOf(void (*change)(EdidDetailedResolution&)) {
    auto item = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60);
    change(item);
    return FaultyFields(item.GetStatus());
}

void ExpectLimits(const ValueLimits& limits, int min, int max, int step = 0, int offset = 0) {
    EXPECT_EQ(limits.min, min);
    EXPECT_EQ(limits.max, max);
    EXPECT_EQ(limits.step, step);
    EXPECT_EQ(limits.stepOffset, offset);
}

TEST(TimingAvailability, ManualOpensAllButTheQftSource) {
    Names expected = AllFields;
    expected.erase("qftSource");
    EXPECT_EQ(OpenFields(GetAvailable(InMode(Timing::Manual))), expected);
}

TEST(TimingAvailability, QftOpensTheSourceAndComputesTheLines) {
    Names expected = AllFields;
    for (const char* name : {"vback", "vblank", "vtotal"}) expected.erase(name);
    EXPECT_EQ(OpenFields(GetAvailable(InMode(Timing::Qft))), expected);
}

TEST(TimingAvailability, EveryOtherModeOpensThePictureAndItsRateAlone) {
    const Names expected{"timing", "hactive", "vactive", "interlaced", "vrate"};
    for (int mode = Timing::AutomaticPc; mode < Timing::Qft; ++mode) {
        EXPECT_EQ(OpenFields(GetAvailable(InMode(static_cast<Timing::Enum>(mode)))), expected) << mode;
    }
}

TEST(TimingAvailability, AModeThatIsNoneCountsAsManual) {
    for (const int mode : {-1, 15, 1000}) {
        EXPECT_EQ(OpenFields(GetAvailable(InMode(static_cast<Timing::Enum>(mode)))),
                  OpenFields(GetAvailable(InMode(Timing::Manual))));
    }
}

TEST(TimingAvailability, NamesEveryFieldOnce) {
    const ItemStatus available = GetAvailable(InMode(Timing::Cvt));
    Names names;
    for (const FieldStatus& field : available.Fields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
    EXPECT_EQ(names, AllFields);
}

TEST(EdidTimingAvailability, FollowsTheSyncTypeWhereTheClockIsOpen) {
    const Names polarities{"hpolarity", "vpolarity"};
    const Names syncFields{"syncType", "syncOn", "serrations", "hpolarity", "vpolarity"};
    const auto openSync = [&syncFields](Timing::Enum mode, SyncType::Enum type) {
        EdidDetailedResolution item;
        item.timing = mode;
        item.syncType = type;
        Names open;
        for (const std::string& name : OpenFields(item.GetAvailable())) {
            if (syncFields.contains(name)) open.insert(name);
        }
        return open;
    };
    for (const Timing::Enum mode : {Timing::Manual, Timing::Qft}) {
        EXPECT_EQ(openSync(mode, SyncType::AnalogComposite), (Names{"syncType", "syncOn", "serrations"}));
        EXPECT_EQ(openSync(mode, SyncType::BipolarAnalogComposite), (Names{"syncType", "syncOn", "serrations"}));
        EXPECT_EQ(openSync(mode, SyncType::DigitalComposite), (Names{"syncType", "hpolarity", "serrations"}));
        EXPECT_EQ(openSync(mode, SyncType::DigitalSeparate), (Names{"syncType", "hpolarity", "vpolarity"}));
    }
    EXPECT_EQ(openSync(Timing::Cvt, SyncType::DigitalSeparate), Names{});
    EXPECT_EQ(openSync(Timing::Cvt, SyncType::AnalogComposite), Names{});
}

TEST(EdidTimingAvailability, AlwaysOpensImageBorderAndStereo) {
    for (const Timing::Enum mode : {Timing::Manual, Timing::Qft, Timing::Gtf}) {
        EdidDetailedResolution item;
        item.timing = mode;
        const ItemStatus available = item.GetAvailable();
        for (const char* name : {"imageWidth", "imageHeight", "hborder", "vborder", "stereo"}) {
            EXPECT_TRUE(available.IsPresent(name) && available.IsProper(name)) << name;
        }
    }
}

TEST(DisplayIdTimingAvailability, OpensItsOwnFieldsWithTheRoomForThem) {
    const auto openOwn = [](const ItemStatus& available) {
        Names open;
        for (const std::string& name : OpenFields(available)) {
            if (!AllFields.contains(name)) open.insert(name);
        }
        return open;
    };
    EXPECT_EQ(openOwn(DisplayId1DetailedResolution().GetAvailable()), (Names{"aspectRatio", "stereo", "preferred"}));
    DisplayId2DetailedResolutionR2 item;
    item.extraBytes = Bytes{1, 2};
    const Names all{"Size", "aspectRatio", "stereo", "preferred", "extraBytes"};
    EXPECT_EQ(openOwn(item.GetAvailable()), all);
    EXPECT_EQ(openOwn(item.GetAvailable(22)), all);
    EXPECT_EQ(openOwn(item.GetAvailable(21)), (Names{"aspectRatio", "stereo", "preferred"}));
}

TEST(EdidTimingLimits, FollowThePorchesOfAProgressiveTiming) {
    const auto limits = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60).GetLimits();
    ExpectLimits(limits.horizontal.active, 1, 4095);
    ExpectLimits(limits.horizontal.front, 1, 1023);
    ExpectLimits(limits.horizontal.sync, 1, 1023);
    ExpectLimits(limits.horizontal.back, 0, 4095 - 88 - 44);
    ExpectLimits(limits.horizontal.blank, 88 + 44, 4095);
    ExpectLimits(limits.horizontal.total, 1920 + 88 + 44, 1920 + 4095);
    ExpectLimits(limits.vertical.active, 1, 4095);
    ExpectLimits(limits.vertical.front, 1, 63);
    ExpectLimits(limits.vertical.sync, 1, 63);
    ExpectLimits(limits.vertical.back, 0, 4095 - 4 - 5);
    ExpectLimits(limits.vertical.blank, 4 + 5, 4095);
    ExpectLimits(limits.vertical.total, 1080 + 4 + 5, 1080 + 4095);
    EXPECT_EQ(limits.pixelclock.min, Rate("0.01"));
    EXPECT_EQ(limits.pixelclock.max, Rate("655.35"));
    EXPECT_EQ(limits.pixelclock.step, Rate("0.01"));
    EXPECT_EQ(limits.pixelClockDecimals, 2);
}

TEST(EdidTimingLimits, CountFieldsOfAnInterlacedTiming) {
    const auto limits = Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60, true).GetLimits();
    ExpectLimits(limits.vertical.active, 2, 8190, 2);
    ExpectLimits(limits.vertical.front, 2, 126, 2);
    ExpectLimits(limits.vertical.sync, 2, 126, 2);
    ExpectLimits(limits.vertical.back, 1, 8191 - 4 - 10, 2, 1);
    ExpectLimits(limits.vertical.blank, 4 + 10 + 1, 8191, 2, 1);
    ExpectLimits(limits.vertical.total, 1080 + 4 + 10 + 1, 1080 + 8191, 2, 1);
    ExpectLimits(limits.horizontal.total, 1920 + 88 + 44, 1920 + 4095);
}

TEST(EdidTimingLimits, TakeTheLeastWhereACountFails) {
    EdidDetailedResolution item;
    item.hactive = item.hfront = item.hsync = item.vactive = item.vfront = item.vsync = Undefined;
    const auto limits = item.GetLimits();
    ExpectLimits(limits.horizontal.back, 0, 4095 - 2);
    ExpectLimits(limits.horizontal.blank, 2, 4095);
    ExpectLimits(limits.horizontal.total, 1 + 2, 4095 + 4095);
    item.interlaced = true;
    const auto interlaced = item.GetLimits();
    ExpectLimits(interlaced.vertical.back, 1, 8191 - 4, 2, 1);
    ExpectLimits(interlaced.vertical.blank, 5, 8191, 2, 1);
    ExpectLimits(interlaced.vertical.total, 2 + 5, 8190 + 8191, 2, 1);
}

TEST(EdidTimingLimits, OfTheBytesReachFromZero) {
    EdidDetailedResolution item;
    auto limits = item.GetAllLimits();
    ExpectLimits(limits.horizontal.active, 0, 4095);
    ExpectLimits(limits.horizontal.front, 0, 1023);
    ExpectLimits(limits.horizontal.sync, 0, 1023);
    ExpectLimits(limits.horizontal.back, -(16 + 96), 4095 - 16 - 96);
    ExpectLimits(limits.horizontal.blank, 0, 4095);
    ExpectLimits(limits.horizontal.total, 640, 640 + 4095);
    ExpectLimits(limits.vertical.front, 0, 63);
    EXPECT_EQ(limits.pixelclock.min, Rate("0.01"));
    EXPECT_EQ(limits.pixelclock.max, Rate("655.35"));
    item.hactive = item.hfront = item.hsync = Undefined;
    item.vactive = item.vfront = item.vsync = Undefined;
    item.interlaced = true;
    limits = item.GetAllLimits();
    ExpectLimits(limits.horizontal.back, -(1023 + 1023), 4095);
    ExpectLimits(limits.horizontal.total, 0, 4095 + 4095);
    ExpectLimits(limits.vertical.active, 0, 8190, 2);
    ExpectLimits(limits.vertical.front, 0, 126, 2);
    ExpectLimits(limits.vertical.back, 1 - 126 - 126, 8191, 2, 1);
    ExpectLimits(limits.vertical.blank, 1, 8191, 2, 1);
    ExpectLimits(limits.vertical.total, 1, 8190 + 8191, 2, 1);
}

TEST(EdidTimingLimits, BordersLeaveAPicture) {
    const auto fits = [](int width, int hborder, int vborder, bool interlaced) {
        auto item = Calculated<EdidDetailedResolution>(Timing::Exact, width, 480, 60, interlaced);
        item.hborder = hborder;
        item.vborder = vborder;
        const ItemStatus status = item.GetStatus();
        EXPECT_TRUE(status.IsAll("hborder"));
        return status.IsProper("hborder") && status.IsProper("vborder");
    };
    EXPECT_TRUE(fits(640, 255, 239, false));
    EXPECT_FALSE(fits(640, 255, 240, false));
    EXPECT_TRUE(fits(101, 50, 0, false));
    EXPECT_FALSE(fits(100, 50, 0, false));
    EXPECT_TRUE(fits(640, 0, 238, true));
    EXPECT_FALSE(fits(640, 0, 239, true));
    EXPECT_TRUE(fits(5000, 255, 0, false));
    EdidDetailedResolution item;
    item.hborder = 256;
    EXPECT_FALSE(item.IsValidAll());
    item.hborder = 0;
    item.vborder = 510;
    EXPECT_FALSE(item.GetStatus().IsAll("vborder"));
    item.interlaced = true;
    EXPECT_TRUE(item.GetStatus().IsAll("vborder"));
    EXPECT_FALSE(item.GetStatus().IsProper("vborder"));
}

TEST(DisplayIdTimingLimits, ReachTo65536) {
    const auto limits = Calculated<DisplayId2DetailedResolution>(Timing::AutomaticPc, 1920, 1080, 60).GetLimits();
    ExpectLimits(limits.horizontal.active, 1, 65536);
    ExpectLimits(limits.horizontal.front, 1, 32768);
    ExpectLimits(limits.horizontal.sync, 1, 65536);
    ExpectLimits(limits.horizontal.back, 0, 65536 - 88 - 44);
    ExpectLimits(limits.horizontal.blank, 88 + 44, 65536);
    ExpectLimits(limits.horizontal.total, 1920 + 88 + 44, 1920 + 65536);
    ExpectLimits(limits.vertical.active, 1, 65536);
    ExpectLimits(limits.vertical.front, 1, 32768);
    ExpectLimits(limits.vertical.total, 1080 + 4 + 5, 1080 + 65536);
    EXPECT_EQ(limits.pixelclock.min, Rate("0.001"));
    EXPECT_EQ(limits.pixelclock.max, Rate("16777.216"));
    EXPECT_EQ(limits.pixelClockDecimals, 3);
    const auto first = DisplayId1DetailedResolution().GetLimits();
    EXPECT_EQ(first.pixelclock.min, Rate("0.01"));
    EXPECT_EQ(first.pixelclock.max, Rate("167772.16"));
    EXPECT_EQ(first.pixelClockDecimals, 2);
}

TEST(TimingStatus, ASoundTimingHasNoFault) {
    EXPECT_EQ(FaultsOf([](auto&) {}), Names{});
}

TEST(TimingStatus, FindsChoicesThatAreNone) {
    EXPECT_EQ(FaultsOf([](auto& x) { x.parameterType = ParameterType::None; }), Names{"parameterType"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.frequencyType = FrequencyType::None; }), Names{"frequencyType"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.qftSource = QftSource::None; }), Names{"qftSource"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.timing = Timing::None; }), Names{"timing"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.timing = static_cast<Timing::Enum>(-1); }), Names{"timing"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.syncType = static_cast<SyncType::Enum>(4); }), Names{"syncType"});
}

TEST(TimingStatus, FindsCountsOutOfLimits) {
    EXPECT_EQ(FaultsOf([](auto& x) { x.hactive = 4096; }), Names{"hactive"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.hfront = 1024; }), (Names{"hfront", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.hsync = 0; }), (Names{"hsync", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.hback = -1; }), (Names{"hback", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.hblank = 4096; }), Names{"hblank"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.htotal = 1920; }), Names{"htotal"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.vactive = 4096; }), Names{"vactive"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.vfront = 64; }), (Names{"vfront", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.vsync = 64; }), (Names{"vsync", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.vback = 4095; }), (Names{"vback", "vrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.vblank = 8; }), Names{"vblank"});
    EXPECT_EQ(FaultsOf([](auto& x) { x.vtotal = Undefined; }), Names{"vtotal"});
}

TEST(TimingStatus, TestsTheStoredClockAndNotTheEnteredOne) {
    EXPECT_EQ(FaultsOf([](auto& x) { x.pixelclock = Decimal(1000); }), Names{});
    EXPECT_EQ(FaultsOf([](auto& x) { x.actualpixelclock = Decimal(1000); }), (Names{"pixelclock", "vrate", "hrate"}));
    EXPECT_EQ(FaultsOf([](auto& x) { x.actualpixelclock = Rate("148.505"); }), (Names{"pixelclock", "vrate", "hrate"}));
}

TEST(TimingStatus, OfAModeWithoutAPictureTestsTheEnteredRates) {
    const auto rates = [](int width, const char* vrate, const char* hrate) {
        EdidDetailedResolution item;
        item.timing = Timing::Cvt;
        item.hactive = width;
        item.vrate = Rate(vrate);
        item.hrate = Rate(hrate);
        item.actualpixelclock = Decimal::Undefined();
        Names faulty;
        for (const std::string& name : FaultyFields(item.GetStatus())) {
            if (name == "vrate" || name == "hrate") faulty.insert(name);
        }
        return faulty;
    };
    EXPECT_EQ(rates(0, "60", "30"), Names{});
    EXPECT_EQ(rates(65537, "60", "0"), Names{"hrate"});
    EXPECT_EQ(rates(0, "-1", ""), (Names{"vrate", "hrate"}));
    EXPECT_EQ(rates(640, "60", "30"), (Names{"vrate", "hrate"}));
}

TEST(TimingStatus, OfAManualTimingHangsOnTheTotals) {
    const auto rates = [](int htotal, int vtotal, const char* vrate, const char* hrate, bool clockFits) {
        EdidDetailedResolution item;
        item.htotal = htotal;
        item.vtotal = vtotal;
        item.vrate = Rate(vrate);
        item.hrate = Rate(hrate);
        if (!clockFits) item.actualpixelclock = Decimal::Undefined();
        const ItemStatus status = item.GetStatus();
        return std::string(status.IsProper("vrate") ? "v" : "") + (status.IsProper("hrate") ? "h" : "");
    };
    EXPECT_EQ(rates(800, 525, "0", "0", true), "vh");
    EXPECT_EQ(rates(800, 525, "60", "30", false), "");
    EXPECT_EQ(rates(800, 0, "0", "0", true), "h");
    EXPECT_EQ(rates(800, 0, "60", "30", false), "v");
    EXPECT_EQ(rates(800, 131073, "", "30", false), "v");
    EXPECT_EQ(rates(0, 525, "60", "30", false), "vh");
    EXPECT_EQ(rates(0, 525, "", "", false), "vh");
    EXPECT_EQ(rates(0, 525, "0", "-1", true), "");
    EXPECT_EQ(rates(131073, 0, "0", "30", true), "h");
}

TEST(TimingStatus, OfTheBytesTestsNothingOfTheRatesButTheClock) {
    EdidDetailedResolution item = Calculated<EdidDetailedResolution>(Timing::Cvt, 1024, 768, 60);
    item.hfront = 0;
    EXPECT_FALSE(item.GetStatus().IsProper("vrate"));
    EXPECT_TRUE(item.GetStatus().IsAll("vrate"));
    item.actualpixelclock = Decimal::Undefined();
    EXPECT_FALSE(item.GetStatus().IsAll("vrate"));
    EXPECT_FALSE(item.GetStatus().IsAll("hrate"));
}

TEST(TimingStatus, AlwaysPassesPolaritiesAndScan) {
    Random random(5);
    for (int i = 0; i < 2000; ++i) {
        DisplayId1DetailedResolution item;
        static_cast<DetailedResolutionFields&>(item) = random.Fields();
        const ItemStatus status = item.GetStatus();
        for (const char* name : {"hpolarity", "vpolarity", "interlaced"}) {
            EXPECT_TRUE(status.IsPresent(name) && status.IsProper(name) && status.IsAll(name));
        }
        EXPECT_EQ(status.IsValid(), item.IsValid());
        EXPECT_EQ(status.IsValidAll(), item.IsValidAll());
        EXPECT_TRUE(item.IsValidAll() || !item.IsValid());
    }
}

TEST(TimingStatus, NamesEveryFieldOnce) {
    for (const ItemStatus& status :
         {EdidDetailedResolution().GetStatus(), DisplayId1DetailedResolution().GetStatus(),
          DisplayId2DetailedResolution().GetStatus(), DisplayId2DetailedResolutionR2().GetStatus()}) {
        Names names;
        for (const FieldStatus& field : status.Fields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
        for (const std::string& name : AllFields) EXPECT_TRUE(names.contains(name)) << name;
    }
}

}  // namespace
}  // namespace VNT
