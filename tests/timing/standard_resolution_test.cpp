#include "model/timing/standard_resolution.h"

#include <gtest/gtest.h>

#include "tests/support/every_bit.h"

namespace VNT {

namespace {

using namespace Testing;
using Fields = EdidStandardResolutionFields;
using Present = EdidStandardResolutionFieldsPresentEnum;
using Ratio = EdidStandardResolutionAspectRatioEnum;

EdidStandardResolution ReadFrom(int first, int second) { return ReadAs<EdidStandardResolution>(Bytes{first, second}); }

EdidStandardResolution FromHeight(int height, Ratio::Enum ratio) {
    return EdidStandardResolution(Fields{Present::HeightAndAspectRatio, 0, height, ratio, 60});
}

EdidStandardResolution FromWidth(int width, Ratio::Enum ratio) {
    return EdidStandardResolution(Fields{Present::WidthAndAspectRatio, width, 0, ratio, 60});
}

}  // namespace

TEST(EdidStandardResolution, ReadsAFullHdPair) {
    const EdidStandardResolution item = ReadFrom(0xD1, 0xC0);
    EXPECT_EQ(item.width, 1920);
    EXPECT_EQ(item.height, 1080);
    EXPECT_EQ(item.aspectRatio, Ratio::Ratio16x9);
    EXPECT_EQ(item.refreshRate, 60);
    EXPECT_EQ(item.fieldsPresent, Present::WidthAndAspectRatio);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "1920x1080 (16:9) @ 60 Hz");
}

TEST(EdidStandardResolution, AnyPairGoesBackAsItWasRead) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const EdidStandardResolution item = ReadFrom(first, second);
            ASSERT_TRUE(item.IsValidAll()) << first << " " << second;
            ASSERT_EQ(BytesOf(item), (Bytes{first, second}));
            ASSERT_NE(TextOf(item), "");
        }
    }
}

TEST(EdidStandardResolution, EachBitTells) {
    for (const Bytes& bytes : {Bytes{0xD1, 0xC0}, Bytes{1, 1}, Bytes(2, 0), Bytes(2, 0xFF)}) {
        ExpectThatEachBitTells<EdidStandardResolution>(bytes);
    }
}

TEST(EdidStandardResolution, AWidthBelow256IsKeptOutOfLimits) {
    const EdidStandardResolution item = ReadFrom(0x00, 0x00);
    EXPECT_EQ(item.width, 248);
    EXPECT_FALSE(item.IsValid());
    EXPECT_FALSE(item.GetStatus().IsProper("width"));
    EXPECT_FALSE(item.GetStatus().IsProper("height"));
    EXPECT_TRUE(item.GetStatus().IsProper("refreshRate"));
    EXPECT_EQ(TextOf(item), "248x155 (16:10) @ 60 Hz");
}

TEST(EdidStandardResolution, AnUnusedSlotReadsEmptyAndStaysAsItIs) {
    const EdidStandardResolution item = ReadFrom(0x01, 0x01);
    EXPECT_EQ(item, EdidStandardResolution());
    EXPECT_EQ(item.width, Undefined);
    EXPECT_EQ(item.height, Undefined);
    EXPECT_EQ(item.refreshRate, Undefined);
    EXPECT_EQ(item.aspectRatio, 0);
    EXPECT_EQ(TextOf(item), "Empty");
    EXPECT_EQ(BytesOf(item), (Bytes{1, 1}));
}

TEST(EdidStandardResolution, NoResolutionIsNotValidButNoFieldIsToBlame) {
    for (const EdidStandardResolution& item :
         {EdidStandardResolution(),
          EdidStandardResolution(Fields{Present::WidthAndAspectRatio, 256, 0, Ratio::Ratio16x10, 61})}) {
        EXPECT_TRUE(item.IsNoResolution());
        EXPECT_FALSE(item.IsValid());
        EXPECT_TRUE(item.IsValidAll());
        for (const char* field : {"width", "height", "aspectRatio", "refreshRate"}) {
            EXPECT_TRUE(item.GetStatus().IsPresent(field)) << field;
            EXPECT_TRUE(item.GetStatus().IsProper(field)) << field;
        }
    }
}

TEST(EdidStandardResolution, WhatHasTheBytesOfTheUnusedSlotReadsBackAsEmpty) {
    const EdidStandardResolution entered(Fields{Present::WidthAndHeight, 256, 160, Ratio::None, 61});
    EXPECT_EQ(entered.aspectRatio, Ratio::Ratio16x10);
    EXPECT_FALSE(entered.IsEmpty());
    EdidStandardResolution item;
    ASSERT_TRUE(item.Read(BytesOf(entered)));
    EXPECT_TRUE(item.IsEmpty());
}

TEST(EdidStandardResolution, ASmallOneAtAnotherRateIsAResolution) {
    const EdidStandardResolution item = ReadFrom(0x01, 0x00);
    EXPECT_EQ(TextOf(item), "256x160 (16:10) @ 60 Hz");
    EXPECT_TRUE(item.IsValid());
}

TEST(EdidStandardResolution, ReadsNothingFromOneByte) {
    EdidStandardResolution item = ReadFrom(0xD1, 0xC0);
    EXPECT_FALSE(item.Read(Bytes{1}));
    EXPECT_EQ(item, ReadFrom(0xD1, 0xC0));
}

TEST(EdidStandardResolution, WritesNothingIntoOneByteOrWhatNoByteHolds) {
    EXPECT_EQ(BytesOf(ReadFrom(0xD1, 0xC0), 1), Bytes());
    EXPECT_EQ(BytesOf(FromWidth(1366, Ratio::Ratio16x9)), Bytes());
}

TEST(EdidStandardResolution, WidthAndHeightFollowFromEachOther) {
    EXPECT_EQ(FromWidth(1280, Ratio::Ratio5x4).height, 1024);
    EXPECT_EQ(FromHeight(1024, Ratio::Ratio5x4).width, 1280);
    EXPECT_EQ(FromWidth(1920, Ratio::Ratio16x10).height, 1200);
    EXPECT_EQ(FromHeight(1050, Ratio::Ratio4x3).width, 1400);
    EXPECT_EQ(FromHeight(1080, Ratio::Ratio16x9).width, 1920);
}

TEST(EdidStandardResolution, AHeightThatFiveToFourMissesByOneGivesAWidth) {
    EXPECT_EQ(FromWidth(1016, Ratio::Ratio5x4).height, 812);
    EXPECT_EQ(FromHeight(812, Ratio::Ratio5x4).width, 1016);
}

TEST(EdidStandardResolution, EachWidthComesBackFromItsHeight) {
    for (int ratio = 0; ratio < Ratio::Count; ++ratio) {
        for (int width = 256; width <= 2288; width += 8) {
            const auto value = static_cast<Ratio::Enum>(ratio);
            ASSERT_EQ(FromHeight(FromWidth(width, value).height, value).width, width) << ratio;
        }
    }
}

TEST(EdidStandardResolution, TheFirstRatioThatFitsTheSizeIsTaken) {
    const auto ratioOf = [](int width, int height) {
        return EdidStandardResolution(Fields{Present::WidthAndHeight, width, height, Ratio::Ratio16x10, 60})
            .aspectRatio;
    };
    EXPECT_EQ(ratioOf(1920, 1200), Ratio::Ratio16x10);
    EXPECT_EQ(ratioOf(1600, 1200), Ratio::Ratio4x3);
    EXPECT_EQ(ratioOf(1280, 1024), Ratio::Ratio5x4);
    EXPECT_EQ(ratioOf(1280, 720), Ratio::Ratio16x9);
    EXPECT_EQ(ratioOf(1920, 1079), Ratio::None);
    EXPECT_EQ(ratioOf(1920, Undefined), Ratio::None);
}

TEST(EdidStandardResolution, BeyondTheGreatestSizeNothingFollows) {
    EXPECT_EQ(FromHeight(1830, Ratio::Ratio5x4).width, 2288);
    EXPECT_EQ(FromHeight(1831, Ratio::Ratio5x4).width, Undefined);
    EXPECT_EQ(FromHeight(-1, Ratio::Ratio5x4).width, Undefined);
    EXPECT_EQ(FromWidth(2288, Ratio::Ratio5x4).height, 1830);
    EXPECT_EQ(FromWidth(2289, Ratio::Ratio5x4).height, Undefined);
    EXPECT_EQ(FromWidth(Undefined, Ratio::Ratio5x4).height, Undefined);
}

TEST(EdidStandardResolution, AHeightAloneIsNotToBlameForTheWidthThatIsMissing) {
    const auto withHeight = [](int height) {
        return EdidStandardResolution(Fields{Present::HeightAndAspectRatio, 0, height, Ratio::None, 60}).GetStatus();
    };
    EXPECT_TRUE(withHeight(144).IsProper("height"));
    EXPECT_TRUE(withHeight(1830).IsProper("height"));
    EXPECT_FALSE(withHeight(143).IsProper("height"));
    EXPECT_FALSE(withHeight(1831).IsProper("height"));
    EXPECT_FALSE(withHeight(144).IsProper("width"));
}

TEST(EdidStandardResolution, LimitsOfWhatIsEntered) {
    const auto status = [](int width, int rate) {
        return EdidStandardResolution(Fields{Present::WidthAndAspectRatio, width, 0, Ratio::Ratio4x3, rate})
            .GetStatus();
    };
    EXPECT_TRUE(status(256, 60).IsValid());
    EXPECT_TRUE(status(2288, 123).IsValid());
    EXPECT_FALSE(status(264 + 4, 60).IsAll("width"));
    EXPECT_FALSE(status(2296, 60).IsAll("width"));
    EXPECT_FALSE(status(256, 59).IsAll("refreshRate"));
    EXPECT_FALSE(status(256, 124).IsAll("refreshRate"));
    EXPECT_FALSE(FromWidth(256, Ratio::None).GetStatus().IsAll("aspectRatio"));
}

TEST(EdidStandardResolution, AnUnreadableRatioIsInvalidWithTheRateBehindIt) {
    EXPECT_EQ(TextOf(FromWidth(1920, Ratio::None)), "Invalid @ 60 Hz");
    EXPECT_EQ(TextOf(FromWidth(Undefined, Ratio::Ratio4x3)), "Invalid (4:3) @ 60 Hz");
}

TEST(EdidStandardResolution, WhatNoByteHoldsHasNoText) { EXPECT_EQ(TextOf(FromWidth(1366, Ratio::Ratio16x9)), ""); }

TEST(EdidStandardResolution, DescribesItselfInTheFormatGiven) {
    EXPECT_EQ(TextOf(ReadFrom(0xD1, 0xC0), U"{type}: {width}|{height}|{refreshrate}|{aspectratio}"),
              "EDID standard: 1920|1080|60|16:9");
    EXPECT_EQ(TextOf(EdidStandardResolution(), U"<{description}>"), "<Empty>");
}

TEST(EdidStandardResolution, SummaryIsItsSizeAndRate) {
    ResolutionSummary summary;
    ReadFrom(0x81, 0x80).GetSummary(summary);
    EXPECT_EQ(summary, (ResolutionSummary{1280, 1024, false, {Decimal(60)}}));
    EdidStandardResolution().GetSummary(summary);
    EXPECT_EQ(summary, ResolutionSummary());
}

TEST(EdidStandardResolution, IsAResolutionAmongOthers) {
    const EdidStandardResolution item = ReadFrom(0xD1, 0xC0);
    const AnyResolution& any = item;
    EXPECT_EQ(any.GetType(), ResolutionTypeEnum::EdidStandard);
    EXPECT_EQ(*any.Clone(), any);
    EdidStandardResolution other;
    EXPECT_TRUE(other.Assign(any));
    EXPECT_EQ(other, item);
}

TEST(EdidStandardResolutionList, FillsItsPlaceWithUnusedSlotsAndTrimsThem) {
    TFilledSlotList<EdidStandardResolutionList> list;
    ASSERT_TRUE(list.Read(Bytes{1, 1, 0xD1, 0xC0, 1, 1, 1, 1, 7}));
    EXPECT_EQ(list.GetCount(), 2);
    Bytes bytes(9, 0xEE);
    EXPECT_TRUE(list.Write(bytes));
    EXPECT_EQ(bytes, (Bytes{1, 1, 0xD1, 0xC0, 1, 1, 1, 1, 0xEE}));
    EXPECT_FALSE(list.Write(Bytes(3, 0)));
}

}  // namespace VNT
