#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

TEST(Paste, IntoTheSameKindTakesAllFields) {
    EdidDetailedResolution source = Calculated<EdidDetailedResolution>(Timing::Manual, 640, 480, 60);
    source.imageWidth = 300;
    source.hborder = 4;
    source.syncType = SyncType::AnalogComposite;
    EdidDetailedResolution target = Calculated<EdidDetailedResolution>(Timing::Cvt, 1024, 768, 75);
    EXPECT_TRUE(target.Paste(Holding(source)));
    EXPECT_TRUE(target == source);
}

TEST(Paste, IntoAnotherKindTakesTheTimingRecordAlone) {
    DisplayId1DetailedResolution source = Calculated<DisplayId1DetailedResolution>(Timing::CvtRb, 1920, 1200, 60);
    source.preferred = true;
    source.aspectRatio = DisplayIdDetailedResolutionAspectRatioEnum::Ratio16x10;
    EdidDetailedResolution target;
    target.imageWidth = 520;
    target.vborder = 2;
    target.stereo = EdidDetailedResolutionStereoEnum::SideBySide;
    EXPECT_TRUE(target.Paste(Holding(source)));
    EXPECT_TRUE(target.GetFields() == source.GetFields());
    EXPECT_EQ(target.imageWidth, 520);
    EXPECT_EQ(target.vborder, 2);
    EXPECT_EQ(target.stereo, EdidDetailedResolutionStereoEnum::SideBySide);

    DisplayId2DetailedResolution second;
    second.extraBytes = Bytes{1};
    second.stereo = DisplayIdDetailedResolutionStereoEnum::Stereo;
    EXPECT_TRUE(second.Paste(Holding(source)));
    EXPECT_EQ(second.extraBytes, Bytes{1});
    EXPECT_EQ(second.stereo, DisplayIdDetailedResolutionStereoEnum::Stereo);
    EXPECT_EQ(second.aspectRatio, DisplayIdDetailedResolutionAspectRatioEnum::Automatic);
    EXPECT_FALSE(second.preferred);
}

TEST(Paste, CalculatesWithTheLimitsOfTheTarget) {
    DisplayId2DetailedResolution target;
    EXPECT_TRUE(target.Paste(Holding(Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, "59.94"))));
    EXPECT_EQ(target.actualpixelclock, Rate("148.352"));
    // 1280x720 at 24 Hz has a front porch that EDID cannot hold: the same mode gives another timing there.
    EdidDetailedResolution edid;
    EXPECT_TRUE(edid.Paste(Holding(Calculated<DisplayId1DetailedResolution>(Timing::AutomaticPc, 1280, 720, 24))));
    EXPECT_EQ(edid.hfront, 48);
}

TEST(Paste, ShowsWhatTheTargetCannotHoldAndClampsNothing) {
    EdidDetailedResolution target;
    EXPECT_TRUE(target.Paste(Holding(Calculated<DisplayId2DetailedResolution>(Timing::CvtRb, 7680, 4320, 60))));
    EXPECT_EQ(target.hactive, 7680);
    EXPECT_EQ(target.vactive, 4320);
    EXPECT_FALSE(target.GetStatus().IsProper("hactive"));
    EXPECT_FALSE(target.GetStatus().IsProper("pixelclock"));
    EXPECT_FALSE(target.IsValidAll());
}

TEST(Paste, OfAModeForcesSeparateSync) {
    EdidDetailedResolution target;
    target.syncType = SyncType::AnalogComposite;
    EXPECT_TRUE(target.Paste(Holding(DisplayId1DetailedResolution())));
    EXPECT_EQ(target.syncType, SyncType::AnalogComposite);
    EXPECT_TRUE(target.Paste(Holding(Calculated<DisplayId1DetailedResolution>(Timing::Gtf, 800, 600, 60))));
    EXPECT_EQ(target.syncType, SyncType::DigitalSeparate);
}

TEST(Paste, OfNothingChangesNothing) {
    EdidDetailedResolution target;
    EXPECT_FALSE(target.Paste(DetailedResolution()));
    EXPECT_TRUE(target == EdidDetailedResolution());
}

}  // namespace
}  // namespace VNT
