#include "model/timing/detailed_resolution.h"

#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

TEST(DetailedResolutionFields, StartFromTheVgaMode) {
    const DetailedResolutionFields f;
    EXPECT_EQ(f.timing, Timing::Manual);
    EXPECT_EQ(f.parameterType, ParameterType::BackPorch);
    EXPECT_EQ(f.frequencyType, FrequencyType::RefreshRate);
    EXPECT_EQ(f.qftSource, QftSource::PixelClock);
    EXPECT_EQ(Counts(f), "16 96 48 10 2 33 800x525");
    EXPECT_EQ(f.hactive, 640);
    EXPECT_EQ(f.hblank, 160);
    EXPECT_EQ(f.vactive, 480);
    EXPECT_EQ(f.vblank, 45);
    EXPECT_FALSE(f.hpolarity || f.vpolarity || f.interlaced);
    EXPECT_EQ(f.vrate, Decimal(60));
    EXPECT_EQ(f.hrate, Rate("31.5"));
    EXPECT_EQ(f.pixelclock, Rate("25.2"));
    EXPECT_EQ(f.actualvrate, Decimal(60));
    EXPECT_EQ(f.actualhrate, Rate("31.5"));
    EXPECT_EQ(f.actualpixelclock, Rate("25.2"));
}

TEST(DetailedResolutionFields, StayAsTheyAreWhenANewItemIsCalculated) {
    EXPECT_TRUE(EdidDetailedResolution(EdidDetailedResolutionFields()) == EdidDetailedResolution());
    EXPECT_TRUE(DisplayId2DetailedResolution(DisplayId2DetailedResolutionFields()) == DisplayId2DetailedResolution());
    EXPECT_TRUE(EdidDetailedResolution().IsValid());
    EXPECT_TRUE(DisplayId1DetailedResolution().IsValid());
    EXPECT_TRUE(DisplayId2DetailedResolution().IsValid());
    EXPECT_TRUE(DisplayId2DetailedResolutionR2().IsValid());
}

TEST(DetailedResolutionFields, DifferByAnyOneOfTheirFields) {
    const DetailedResolutionFields same;
    EXPECT_TRUE(same == DetailedResolutionFields());
    const auto differs = [&same](auto change) {
        DetailedResolutionFields changed;
        change(changed);
        return !(changed == same);
    };
    EXPECT_TRUE(differs([](auto& f) { f.timing = Timing::Cvt; }));
    EXPECT_TRUE(differs([](auto& f) { f.parameterType = ParameterType::Total; }));
    EXPECT_TRUE(differs([](auto& f) { f.frequencyType = FrequencyType::ScanRate; }));
    EXPECT_TRUE(differs([](auto& f) { f.qftSource = QftSource::ScanRate; }));
    EXPECT_TRUE(differs([](auto& f) { f.hpolarity = true; }));
    EXPECT_TRUE(differs([](auto& f) { f.vpolarity = true; }));
    EXPECT_TRUE(differs([](auto& f) { f.interlaced = true; }));
    for (int DetailedResolutionFields::*count :
         {&DetailedResolutionFields::hactive, &DetailedResolutionFields::hfront, &DetailedResolutionFields::hsync,
          &DetailedResolutionFields::hback, &DetailedResolutionFields::hblank, &DetailedResolutionFields::htotal,
          &DetailedResolutionFields::vactive, &DetailedResolutionFields::vfront, &DetailedResolutionFields::vsync,
          &DetailedResolutionFields::vback, &DetailedResolutionFields::vblank, &DetailedResolutionFields::vtotal}) {
        EXPECT_TRUE(differs([count](auto& f) { f.*count = Undefined; }));
    }
    for (Decimal DetailedResolutionFields::*rate :
         {&DetailedResolutionFields::vrate, &DetailedResolutionFields::hrate, &DetailedResolutionFields::pixelclock,
          &DetailedResolutionFields::actualvrate, &DetailedResolutionFields::actualhrate,
          &DetailedResolutionFields::actualpixelclock}) {
        EXPECT_TRUE(differs([rate](auto& f) { f.*rate = f.*rate + Decimal::FromMillionths(1); }));
    }
}

TEST(DetailedResolutionFields, UndefinedEqualsUndefined) {
    DetailedResolutionFields a, b;
    a.hfront = b.hfront = Undefined;
    a.actualvrate = b.actualvrate = Decimal::Undefined();
    EXPECT_TRUE(a == b);
}

TEST(DetailedResolution, EmptyGivesOneSharedRecordThatSaysNothing) {
    DetailedResolution empty, other;
    const DetailedResolutionFields& f = empty.GetFields();
    EXPECT_EQ(&f, &other.GetFields());
    EXPECT_EQ(&f, &empty.GetAllFields());
    EXPECT_EQ(f.timing, 15);
    EXPECT_EQ(f.parameterType, 3);
    EXPECT_EQ(f.frequencyType, 3);
    EXPECT_EQ(f.qftSource, 2);
    EXPECT_EQ(Counts(f), "- - - - - - -x-");
    for (const int count : {f.hactive, f.hblank, f.vactive, f.vblank}) EXPECT_EQ(count, Undefined);
    for (const Decimal rate : {f.vrate, f.hrate, f.pixelclock, f.actualvrate, f.actualhrate, f.actualpixelclock}) {
        EXPECT_TRUE(rate.IsUndefined());
    }
    EXPECT_FALSE(f.hpolarity || f.vpolarity || f.interlaced);
}

TEST(DetailedResolution, EmptyAnswersWithNothing) {
    const DetailedResolution empty;
    EXPECT_EQ(empty.GetType(), 15);
    EXPECT_EQ(TextOf(empty), "");
    EXPECT_EQ(TextOf(empty, "{type}"), "");
    EXPECT_FALSE(empty.IsValid());
    EXPECT_FALSE(empty.IsValidAll());
    ResolutionSummary summary{1, 2, true, {Decimal(3)}};
    empty.GetSummary(summary);
    EXPECT_TRUE(summary == ResolutionSummary());
    EXPECT_EQ(summary.width, Undefined);
    EXPECT_EQ(empty.Clone(), nullptr);
}

TEST(DetailedResolution, EmptyEqualsNothing) {
    const DetailedResolution empty;
    EXPECT_FALSE(empty == DetailedResolution());
    EXPECT_FALSE(empty == EdidDetailedResolution());
    EXPECT_FALSE(static_cast<const AnyResolution&>(EdidDetailedResolution()) == empty);
}

TEST(DetailedResolution, ForwardsToTheItemThatItHolds) {
    const auto item = Calculated<EdidDetailedResolution>(Timing::Cvt, 1024, 768, 75);
    DetailedResolution holder = Holding(item);
    EXPECT_EQ(holder.GetType(), ResolutionTypeEnum::EdidDetailed);
    EXPECT_EQ(TextOf(holder), TextOf(item));
    EXPECT_EQ(TextOf(holder, "{type}"), "EDID detailed");
    EXPECT_TRUE(holder.GetFields() == item.GetFields());
    EXPECT_TRUE(holder.IsValid());
    EXPECT_TRUE(holder.IsValidAll());
    EXPECT_TRUE(holder == item);
    holder.GetAllFields().hfront = Undefined;
    EXPECT_FALSE(holder.IsValidAll());
    EXPECT_FALSE(holder == item);
}

TEST(DetailedResolution, CopiesWhatItHolds) {
    DetailedResolution holder = Holding(EdidDetailedResolution());
    DetailedResolution copy = holder;
    copy.GetAllFields().hactive = 1;
    EXPECT_EQ(holder.GetFields().hactive, 640);
    EXPECT_TRUE(copy.Assign(holder));
    EXPECT_TRUE(copy == holder);
    EXPECT_TRUE(copy.Assign(DetailedResolution()));
    EXPECT_TRUE(copy.IsEmpty());
}

TEST(DetailedResolution, AssignsToItsOwnKindOnly) {
    const DetailedResolution holder = Holding(Calculated<DisplayId1DetailedResolution>(Timing::Exact, 1920, 1080, 60));
    DisplayId2DetailedResolution other;
    EXPECT_FALSE(other.Assign(holder));
    EXPECT_TRUE(other == DisplayId2DetailedResolution());
    DisplayId1DetailedResolution same;
    EXPECT_TRUE(same.Assign(holder));
    EXPECT_EQ(same.hactive, 1920);
}

TEST(DetailedResolution, ItemsOfTwoKindsNeverEqual) {
    const DisplayId2DetailedResolution first;
    const DisplayId2DetailedResolutionR2 second;
    EXPECT_TRUE(first.GetFields() == second.GetFields());
    EXPECT_FALSE(static_cast<const AnyResolution&>(first) == static_cast<const AnyResolution&>(second));
    EXPECT_FALSE(Holding(first) == Holding(second));
    EXPECT_TRUE(Holding(first) == Holding(first));
}

TEST(DetailedResolution, SummaryHasSizeScanAndActualRate) {
    ResolutionSummary summary;
    Calculated<EdidDetailedResolution>(Timing::AutomaticPc, 1920, 1080, "59.94", true).GetSummary(summary);
    EXPECT_EQ(summary.width, 1920);
    EXPECT_EQ(summary.height, 1080);
    EXPECT_TRUE(summary.interlaced);
    ASSERT_EQ(summary.refreshRates.size(), 1u);
    EXPECT_EQ(summary.refreshRates[0], RefreshRateFromClock(Rate("74.18"), 2200, 1125, true));
}

TEST(DetailedResolution, SummaryOfATimingThatBytesCannotHoldIsEmpty) {
    ResolutionSummary summary{1, 2, true, {Decimal(3)}};
    Calculated<EdidDetailedResolution>(Timing::CvtRb, 5120, 2880, 60).GetSummary(summary);
    EXPECT_TRUE(summary == ResolutionSummary());
}

TEST(DetailedResolutionClipboard, IsOneAndStartsEmpty) {
    EXPECT_EQ(&DetailedResolutionClipboard(), &DetailedResolutionClipboard());
    EXPECT_TRUE(DetailedResolutionClipboard().IsEmpty());
    const EdidDetailedResolution item;
    DetailedResolutionClipboard().Assign(item);
    EXPECT_TRUE(DetailedResolutionClipboard() == item);
    DetailedResolutionClipboard().Assign(DetailedResolution());
}

}  // namespace
}  // namespace VNT
