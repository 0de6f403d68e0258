#include "tests/editor/resolution_form.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

TEST_F(ResolutionForm, InterlaceOfThe1080LinesGoesOverIntoTheKnownPorches) {
    DetailedResolutionFields fields;
    fields.vactive = 1080;
    fields.vfront = 4;
    fields.vsync = 5;
    fields.vback = 36;
    fields.interlaced = true;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 4);
    EXPECT_EQ(fields.vsync, 10);
    EXPECT_EQ(fields.vback, 31);
    EXPECT_EQ(fields.vtotal, 1125);
    fields.interlaced = false;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 4);
    EXPECT_EQ(fields.vsync, 5);
    EXPECT_EQ(fields.vback, 36);
}

TEST_F(ResolutionForm, InterlaceDoublesAndHalvesOtherPorchesAndKeepsBlankOnes) {
    DetailedResolutionFields fields;
    fields.interlaced = true;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 20);
    EXPECT_EQ(fields.vsync, 4);
    EXPECT_EQ(fields.vback, 67);
    EXPECT_EQ(fields.vblank, 91);
    fields.interlaced = false;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 10);
    EXPECT_EQ(fields.vback, 33);
    fields.vfront = Undefined;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, Undefined);
    EXPECT_EQ(fields.vblank, Undefined);
}

TEST_F(ResolutionForm, TurningInterlaceOnAndOffConvertsWhatIsShown) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Active:", Vertical), L"1080");
        driver.Enter(Box(L"Front porch:", Vertical), L"4");
        driver.Enter(Box(L"Sync width:", Vertical), L"5");
        driver.Enter(Box(L"Back porch:", Vertical), L"36");
        ClickInterlaced();
        EXPECT_EQ(Counts(Vertical), L"1080 4 10 31 45 1125");
        ClickInterlaced();
        EXPECT_EQ(Counts(Vertical), L"1080 4 5 36 45 1125");
        Leave();
    });
}

TEST_F(ResolutionForm, TurningInterlaceOffHalvesTowardsZero) {
    DetailedResolutionFields fields;
    fields.vfront = 7;
    fields.vsync = 3;
    fields.vback = -5;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 3);
    EXPECT_EQ(fields.vsync, 1);
    EXPECT_EQ(fields.vback, -2);
    EXPECT_EQ(fields.vblank, 2);
    EXPECT_EQ(fields.vtotal, 482);
}

TEST_F(ResolutionForm, OtherPorchesOf1080LinesAndThePorchesOfOtherLinesAreHalvedAndDoubled) {
    DetailedResolutionFields fields;
    fields.vfront = 4;
    fields.vsync = 5;
    fields.vback = 36;
    fields.interlaced = true;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vsync, 10);
    EXPECT_EQ(fields.vfront, 8);
    EXPECT_EQ(fields.vback, 73);
    fields.vactive = 1080;
    fields.interlaced = false;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 4);
    EXPECT_EQ(fields.vback, 36);
}

}  // namespace
