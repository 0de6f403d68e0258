#include "model/timing/cvt_resolution.h"

#include <gtest/gtest.h>

#include "tests/support/every_bit.h"

namespace VNT {

namespace {

using namespace Testing;
using Fields = EdidCvtResolutionFields;
using Present = EdidCvtResolutionFieldsPresentEnum;
using Ratio = EdidCvtResolutionAspectRatioEnum;
using Rate = EdidCvtResolutionRefreshRateEnum;

// 1920x1080 (16:9) at 60, 75 and 85 Hz, 75 Hz preferred; raw height 539 is 0x21B.
const Bytes FullHd{0x1B, 0x24, 0x4E};

EdidCvtResolution ReadFrom(const Bytes& bytes) { return ReadAs<EdidCvtResolution>(bytes); }

Fields Given(Present::Enum present, int width, int height, Ratio::Enum ratio) {
    Fields fields;
    fields.fieldsPresent = present;
    fields.width = width;
    fields.height = height;
    fields.aspectRatio = ratio;
    return fields;
}

EdidCvtResolution FromHeight(int height, Ratio::Enum ratio) {
    return EdidCvtResolution(Given(Present::HeightAndAspectRatio, 0, height, ratio));
}

EdidCvtResolution FromWidth(int width, Ratio::Enum ratio) {
    return EdidCvtResolution(Given(Present::WidthAndAspectRatio, width, 0, ratio));
}

}  // namespace

TEST(EdidCvtResolution, ReadsItsFields) {
    const EdidCvtResolution item = ReadFrom(FullHd);
    EXPECT_EQ(item.height, 1080);
    EXPECT_EQ(item.width, 1920);
    EXPECT_EQ(item.aspectRatio, Ratio::Ratio16x9);
    EXPECT_EQ(item.fieldsPresent, Present::HeightAndAspectRatio);
    EXPECT_EQ(item.refreshRates, (TFlagsMsb<Rate, 5>{Rate::Hz60, Rate::Hz75, Rate::Hz85}));
    EXPECT_EQ(item.preferredRefreshRate, Rate::Hz75);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), FullHd);
}

TEST(EdidCvtResolution, TheTextShowsAllRates) { EXPECT_EQ(TextOf(ReadFrom(FullHd)), "1920x1080 (16:9) @ 60/75/85 Hz"); }

TEST(EdidCvtResolution, ReducedBlankingAddsNoRateToTheText) {
    EXPECT_EQ(TextOf(ReadFrom({0x1B, 0x24, 0x09})), "1920x1080 (16:9) @ 60 Hz");
    EXPECT_EQ(TextOf(ReadFrom({0x1B, 0x24, 0x01})), "1920x1080 (16:9)");
    EXPECT_EQ(TextOf(ReadFrom({0x1B, 0x24, 0x11})), "1920x1080 (16:9) @ 50 Hz");
}

TEST(EdidCvtResolution, AnyThreeBytesGoBackAsTheyWereRead) {
    const auto check = [](int first, int second, int third) {
        const Bytes bytes{first, second, third};
        const EdidCvtResolution item = ReadFrom(bytes);
        ASSERT_TRUE(item.IsValidAll());
        ASSERT_EQ(BytesOf(item), bytes);
        ASSERT_NE(TextOf(item), "");
    };
    for (int byte = 0; byte < 256; ++byte) {
        for (const int low : {0, 1, 2, 3, 0xFE, 0xFF}) check(low, byte, 0);
        check(byte, 0x00, 0x08);
        check(byte, 0xFF, 0xFF);
        check(0x1B, 0x24, byte);
    }
}

TEST(EdidCvtResolution, EachBitTells) {
    for (const Bytes& bytes : {FullHd, Bytes(3, 0), Bytes(3, 0xFF)}) ExpectThatEachBitTells<EdidCvtResolution>(bytes);
    ExpectThatCutsAreRefused<EdidCvtResolution>(FullHd);
}

TEST(EdidCvtResolution, KeepsItsReservedBits) {
    const EdidCvtResolution item = ReadFrom({0x1B, 0x27, 0xCE});
    EXPECT_EQ(item.reserved1, 3);
    EXPECT_EQ(item.reserved2, 1);
    EXPECT_EQ(BytesOf(EdidCvtResolution(static_cast<const Fields&>(item))), FullHd);
}

TEST(EdidCvtResolution, AnUnusedSlotReadsEmptyAndStaysAsItIs) {
    const EdidCvtResolution item = ReadFrom({0, 0, 0});
    EXPECT_EQ(item, EdidCvtResolution());
    EXPECT_EQ(item.width, Undefined);
    EXPECT_EQ(item.height, Undefined);
    EXPECT_EQ(TextOf(item), "Empty");
    EXPECT_EQ(BytesOf(item), (Bytes{0, 0, 0}));
    EXPECT_FALSE(item.IsValid());
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_TRUE(item.GetStatus().IsProper("width"));
    EXPECT_TRUE(item.GetStatus().IsProper("height"));
}

TEST(EdidCvtResolution, AHeightBelowSixIsKeptOutOfLimits) {
    const EdidCvtResolution item = ReadFrom({1, 0, 0});
    EXPECT_EQ(item.height, 4);
    EXPECT_EQ(item.width, 0);
    EXPECT_FALSE(item.GetStatus().IsProper("height"));
    EXPECT_FALSE(item.GetStatus().IsProper("width"));
    EXPECT_TRUE(item.IsValidAll());
}

TEST(EdidCvtResolution, TheGreatestRawHeightIs8192Lines) {
    const EdidCvtResolution item = ReadFrom({0xFF, 0xF4, 0x08});
    EXPECT_EQ(item.height, 8192);
    EXPECT_EQ(item.width, 14560);
    EXPECT_TRUE(item.IsValid());
}

TEST(EdidCvtResolution, AWidthFollowsInWholeCharacterCells) {
    EXPECT_EQ(FromHeight(1080, Ratio::Ratio16x9).width, 1920);
    EXPECT_EQ(FromHeight(768, Ratio::Ratio16x9).width, 1360);
    EXPECT_EQ(FromHeight(768, Ratio::Ratio15x9).width, 1280);
    EXPECT_EQ(FromHeight(1050, Ratio::Ratio16x10).width, 1680);
    EXPECT_EQ(FromHeight(1050, Ratio::Ratio4x3).width, 1400);
}

TEST(EdidCvtResolution, AHeightFollowsInLinesThatTheBytesHold) {
    EXPECT_EQ(FromWidth(1920, Ratio::Ratio16x9).height, 1080);
    EXPECT_EQ(FromWidth(1360, Ratio::Ratio16x9).height, 768);  // 765, on to a multiple of 4
    EXPECT_EQ(FromWidth(1368, Ratio::Ratio16x10).height, 856);
    EXPECT_EQ(FromWidth(1288, Ratio::Ratio4x3).height, 966);
}

TEST(EdidCvtResolution, TheFirstRatioThatFitsTheSizeIsTaken) {
    const auto ratioOf = [](int width, int height) {
        return EdidCvtResolution(Given(Present::WidthAndHeight, width, height, Ratio::Ratio4x3)).aspectRatio;
    };
    EXPECT_EQ(ratioOf(1600, 1200), Ratio::Ratio4x3);
    EXPECT_EQ(ratioOf(1360, 768), Ratio::Ratio16x9);
    EXPECT_EQ(ratioOf(1680, 1050), Ratio::Ratio16x10);
    EXPECT_EQ(ratioOf(1280, 768), Ratio::Ratio15x9);
    EXPECT_EQ(ratioOf(1366, 768), Ratio::None);
    EXPECT_EQ(ratioOf(Undefined, 768), Ratio::None);
}

TEST(EdidCvtResolution, BeyondTheGreatestSizeNothingFollows) {
    EXPECT_EQ(FromHeight(8192, Ratio::Ratio16x9).width, 14560);
    EXPECT_EQ(FromHeight(8193, Ratio::Ratio16x9).width, Undefined);
    EXPECT_EQ(FromWidth(14560, Ratio::Ratio16x9).height, 8192);
    EXPECT_EQ(FromWidth(14561, Ratio::Ratio16x9).height, Undefined);
    EXPECT_EQ(FromWidth(14560, Ratio::None).height, Undefined);
}

TEST(EdidCvtResolution, LimitsOfWhatIsEntered) {
    EXPECT_TRUE(FromHeight(6, Ratio::Ratio4x3).GetStatus().IsProper("height"));
    EXPECT_FALSE(FromHeight(1081, Ratio::Ratio16x9).GetStatus().IsAll("height"));
    EXPECT_FALSE(FromWidth(1366, Ratio::Ratio16x9).GetStatus().IsAll("width"));
    EXPECT_FALSE(FromWidth(14560, Ratio::Ratio4x3).GetStatus().IsAll("height"));  // 10920 lines
    Fields fields = FromHeight(1080, Ratio::Ratio16x9);
    fields.preferredRefreshRate = Rate::Hz60Reduced;
    EXPECT_FALSE(EdidCvtResolution(fields).GetStatus().IsAll("preferredRefreshRate"));
}

TEST(EdidCvtResolution, AnUnreadableRatioIsInvalidWithTheRatesBehindIt) {
    Fields fields = Given(Present::WidthAndAspectRatio, 1920, 0, Ratio::None);
    fields.refreshRates = {Rate::Hz50, Rate::Hz85};
    EXPECT_EQ(TextOf(EdidCvtResolution(fields)), "Invalid @ 50/85 Hz");
}

TEST(EdidCvtResolution, SummaryIsItsSizeAndRates) {
    ResolutionSummary summary;
    ReadFrom({0x1B, 0x24, 0x1F}).GetSummary(summary);
    EXPECT_EQ(summary, (ResolutionSummary{1920, 1080, false, {Decimal(50), Decimal(60), Decimal(75), Decimal(85)}}));
}

TEST(EdidCvtResolutionList, AnUnusedSlotBeforeAUsedOneStays) {
    TFilledSlotList<EdidCvtResolutionList> list;
    ASSERT_TRUE(list.Read(Bytes{0, 0, 0, 0x1B, 0x24, 0x4E, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(list.GetCount(), 2);
    Bytes bytes(12, 0xEE);
    EXPECT_TRUE(list.Write(bytes));
    EXPECT_EQ(bytes, (Bytes{0, 0, 0, 0x1B, 0x24, 0x4E, 0, 0, 0, 0, 0, 0}));
}

}  // namespace VNT
