#include "model/cta/native_video_resolution.h"
#include "model/cta/video_capability.h"
#include "model/cta/video_format_list.h"
#include "model/cta/video_lists.h"
#include "model/cta/ycc420_capability_map.h"
#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

TEST(CtaVideoResolutionList, AHeaderAloneIsAnEmptyList) {
    const auto block = CheckBlock<CtaVideoResolutionListDataBlock>("40", "Video resolutions: 0 resolutions");
    EXPECT_TRUE(block.List.IsEmpty());
    EXPECT_TRUE(block.IsValid());
    CheckBlock<CtaYcc420VideoResolutionListDataBlock>("E1 0E", "4:2:0 video resolutions: 0 resolutions");
    CheckBlock<CtaVideoFormatPreferenceDataBlock>("E1 0D", "Video format preference: 0 references");
}

TEST(CtaVideoResolutionList, CountsItsResolutions) {
    const auto block = CheckBlock<CtaVideoResolutionListDataBlock>("43 90 04 FF", "Video resolutions: 3 resolutions");
    EXPECT_TRUE(block.List.At(0).native);
    EXPECT_EQ(TextOf(block.List.At(2)), "Other (255)");
    CheckBlock<CtaVideoResolutionListDataBlock>("41 10", "Video resolutions: 1 resolution");
    CheckBlock<CtaYcc420VideoResolutionListDataBlock>("E3 0E 60 61", "4:2:0 video resolutions: 2 resolutions");
    CheckBlock<CtaVideoFormatPreferenceDataBlock>("E2 0D 81", "Video format preference: 1 reference");
}

TEST(CtaVideoResolutionList, HoldsWhatTheRoomHolds) {
    CtaVideoResolutionListDataBlock::FieldsType fields;
    for (int i = 0; i < 31; ++i) EXPECT_TRUE(fields.List.Add(CtaVideoResolution()));
    const CtaVideoResolutionListDataBlock full(fields);
    EXPECT_EQ(full.Size, 32);
    EXPECT_TRUE(full.IsValid());
    EXPECT_FALSE(full.IsValid(31));
    EXPECT_FALSE(full.IsValidAll(31));
    fields.List.Add(CtaVideoResolution());
    EXPECT_FALSE(CtaVideoResolutionListDataBlock(fields).IsValidAll());
    EXPECT_EQ(CtaVideoResolutionListDataBlock::GetListLimits(32).slots, 31);
    EXPECT_EQ(CtaYcc420VideoResolutionListDataBlock::GetListLimits(32).slots, 30);
    EXPECT_EQ(CtaVideoFormatPreferenceDataBlock::GetListLimits(32).slots, 30);
    EXPECT_EQ(CtaVideoFormatPreferenceDataBlock::GetListLimits(1).slots, 0);
}

TEST(CtaYcc420CapabilityMap, PassesThroughUntouchedUnlessAssigned) {
    const auto block = CheckBlock<CtaYcc420CapabilityMapDataBlock>("E4 0F 01 80 00", "4:2:0 capability map");
    const CtaYcc420CapabilityMapDataBlockFields fields = block;
    EXPECT_EQ(fields.Map, FromHex("01 80 00"));
    CheckBlock<CtaYcc420CapabilityMapDataBlock>("E1 0F", "4:2:0 capability map");
    const CtaYcc420CapabilityMapDataBlock edited(fields);
    EXPECT_EQ(BytesOf(edited, edited.Size), FromHex("E3 0F 01 80"));
    EXPECT_TRUE(block.IsValid());
    EXPECT_FALSE(block.IsValid(4));
}

using Native = CtaNativeVideoResolutionDataBlock;

TEST(CtaNativeVideoResolution, ABlockOfThreeBytesHasNoFlags) {
    const auto block = CheckBlock<Native>("E2 08 10", "Native video resolution: 16");
    EXPECT_EQ(block.PresentLength, 1);
    EXPECT_EQ(block.Flags.GetBits(), 0u);
    EXPECT_EQ(block.Reference.Id, 16);
    EXPECT_TRUE(block.IsValid());
}

TEST(CtaNativeVideoResolution, ItsPresentLengthFollowsFromTheFlagOfTheImageSize) {
    const std::pair<const char*, int> lengths[] = {
        {"E1 08", 0},
        {"E3 08 10 00", 2},
        {"E3 08 10 01", 2},
        {"E4 08 10 00 AA", 7},
        {"E4 08 10 01 AA", 3},
        {"E5 08 10 01 AA 01", 4},
        {"E6 08 10 01 AA 01 BB", 5},
        {"E7 08 10 01 AA 01 BB 01", 6},
        {"E7 08 10 00 AA 01 BB 01", 7},
        {"E8 08 10 01 AA 01 BB 01 CC", 7},
    };
    for (const auto& [hex, length] : lengths) {
        const Bytes bytes = FromHex(hex);
        const auto block = ReadAs<Native>(bytes);
        EXPECT_EQ(block.PresentLength, length) << hex;
        EXPECT_EQ(BytesOf(block, bytes.Size()), bytes);
    }
}

TEST(CtaNativeVideoResolution, ReadsTheImageSizeInItsUnit) {
    const auto tenths = CheckBlock<Native>("E7 08 10 01 52 17 2F 0D", "Native video resolution: 16");
    EXPECT_EQ(tenths.ImageWidth, Decimal(5970, 1));
    EXPECT_EQ(tenths.ImageHeight, Decimal(3375, 1));
    const auto whole = CheckBlock<Native>("E7 08 10 81 55 02 00 00", "Native video resolution: 16");
    EXPECT_EQ(whole.ImageWidth, Decimal(597));
    EXPECT_TRUE(whole.ImageHeight.IsUndefined());
}

TEST(CtaNativeVideoResolution, OneSideOfTheImageIsEnoughToKeepTheFlag) {
    const auto block = ReadAs<Native>(FromHex("E7 08 10 01 00 00 2F 0D"));
    EXPECT_TRUE(block.ImageWidth.IsUndefined());
    const Native edited(static_cast<const Native::FieldsType&>(block));
    EXPECT_EQ(BytesOf(edited, edited.Size), FromHex("E7 08 10 01 00 00 2F 0D"));
    Native::FieldsType fields = block;
    fields.ImageHeight = Decimal::Undefined();
    const Native without(fields);
    EXPECT_EQ(BytesOf(without, without.Size), FromHex("E2 08 10"));
    fields.ImageWidth = Decimal(1);
    const Native wide(fields);
    EXPECT_EQ(BytesOf(wide, wide.Size), FromHex("E7 08 10 01 0A 00 00 00"));
}

TEST(CtaNativeVideoResolution, TakesTheUnitThatTheImageNeeds) {
    Native::FieldsType fields;
    fields.ImageWidth = Decimal(65535, 1);
    EXPECT_EQ(Native(fields).Flags.GetBits(), 0x01u);
    EXPECT_TRUE(Native(fields).IsValid());
    fields.ImageWidth = Decimal(6554);
    EXPECT_EQ(Native(fields).Flags.GetBits(), 0x81u);
    EXPECT_TRUE(Native(fields).IsValid());
    fields.ImageHeight = Decimal(5, 1);
    EXPECT_FALSE(Native(fields).GetStatus().IsProper("ImageHeight"));
    fields.ImageWidth = Decimal::Undefined();
    fields.ImageHeight = Decimal(65535);
    EXPECT_EQ(Native(fields).Flags.GetBits(), 0x81u);
    fields.ImageHeight = Decimal(65536);
    EXPECT_FALSE(Native(fields).IsValidAll());
}

TEST(CtaNativeVideoResolution, AnEditKeepsTheFlagsThatMeanNothing) {
    Native::FieldsType fields = ReadAs<Native>(FromHex("E3 08 10 7E"));
    const Native edited(fields);
    EXPECT_EQ(edited.Flags.GetBits(), 0x7Eu);
    EXPECT_EQ(edited.Size, 4);
    EXPECT_EQ(edited.PresentLength, 2);
}

TEST(CtaNativeVideoResolution, TheImageSizeOpensWhereThereIsRoomForIt) {
    const Native block;
    EXPECT_FALSE(block.GetAvailable(5).IsProper("ImageWidth"));
    EXPECT_TRUE(block.GetAvailable(6).IsProper("ImageWidth"));
    EXPECT_FALSE(block.GetAvailable(7).IsProper("ImageHeight"));
    EXPECT_TRUE(block.GetAvailable(8).IsProper("ImageHeight"));
}

using FormatList = CtaVideoFormatResolutionListDataBlock;

TEST(CtaVideoFormatResolutionListBlock, AHeaderAloneHoldsNothing) {
    const auto block = CheckBlock<FormatList>("C0", "Video format resolutions: 0 resolutions");
    EXPECT_EQ(block.PresentLength, 0);
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
}

TEST(CtaVideoFormatResolutionListBlock, ItsPresentLengthTellsAListAndWhatStandsBehindIt) {
    const std::tuple<const char*, int, const char*> cases[] = {
        {"C1 A0", 1, "Video format resolutions: 0 resolutions"},
        {"C2 00 04", 2, "Video format resolutions: 1 resolution"},
        {"C5 01 04 82 0B 82", 2, "Video format resolutions: 2 resolutions"},
        {"C4 01 04 82 0B", 3, "Video format resolutions: 1 resolution"},
        {"C2 03 04", 3, "Video format resolutions: 0 resolutions"},
    };
    for (const auto& [hex, length, text] : cases) EXPECT_EQ(CheckBlock<FormatList>(hex, text).PresentLength, length);
}

TEST(CtaVideoFormatResolutionListBlock, NamesTwoOfItsFlags) {
    using Flag = CtaVideoFormatResolutionListDataBlockFlagEnum;
    EXPECT_TRUE(ReadAs<FormatList>(FromHex("C1 80")).Flags.Test(Flag::Ycc420));
    EXPECT_TRUE(ReadAs<FormatList>(FromHex("C1 40")).Flags.Test(Flag::Ntsc));
    EXPECT_EQ(ReadAs<FormatList>(FromHex("C1 FC")).Flags.GetBits(), 0x3Fu);
}

TEST(CtaVideoFormatResolutionListBlock, AnEditTakesTheLengthFromTheListAndDropsWhatStandsBehind) {
    const auto block = ReadAs<FormatList>(FromHex("C8 02 04 82 00 0B 82 00 AA BB"));
    EXPECT_EQ(block.List.DescriptorLength, 3);
    const FormatList edited(static_cast<const FormatList::FieldsType&>(block));
    EXPECT_EQ(BytesOf(edited, edited.Size), FromHex("C5 01 04 82 0B 82"));
    EXPECT_EQ(edited.PresentLength, 2);
    FormatList::FieldsType fields = block;
    fields.List.Clear();
    EXPECT_EQ(BytesOf(FormatList(fields), 2), FromHex("C1 00"));
    EXPECT_EQ(FormatList(fields).PresentLength, 1);
}

// CTA-861-I, 7.5.15: two bits say one byte less than a descriptor has.
TEST(CtaVideoFormatResolutionListBlock, HasDescriptorsOfOneToFourBytes) {
    FormatList block;
    for (int length = -1; length <= 5; ++length) {
        block.List.DescriptorLength = length;
        const bool isLength = length >= 1 && length <= 4;
        EXPECT_EQ(block.IsValid(), isLength) << length;
        EXPECT_EQ(block.IsValidAll(), isLength) << length;
    }
}

TEST(CtaVideoFormatResolutionListBlock, TheListIsLimitedByTheBytes) {
    FormatList::FieldsType fields;
    for (int i = 0; i < 30; ++i) fields.List.Add(CtaVideoFormatResolution());
    EXPECT_EQ(FormatList(fields).Size, 32);
    EXPECT_TRUE(FormatList(fields).IsValid());
    EXPECT_FALSE(FormatList(fields).GetStatus(31).IsProper("List"));
    CtaVideoFormatResolutionFields wide;
    wide.flags.Set(CtaVideoFormatResolutionFlagEnum::Rate144, true);
    fields.List.Set(0, CtaVideoFormatResolution(wide));
    EXPECT_FALSE(FormatList(fields).IsValidAll());
}

TEST(CtaVideoCapability, ReadsItsFieldsFromTheLowBit) {
    const auto block = CheckBlock<CtaVideoCapabilityDataBlock>("E2 00 79", "Video capability");
    using Overscan = CtaVideoCapabilityDataBlockOverscanEnum;
    EXPECT_EQ(block.CeOverscan, Overscan::AlwaysOverscanned);
    EXPECT_EQ(block.ItOverscan, Overscan::AlwaysUnderscanned);
    EXPECT_EQ(block.PtOverscan, CtaVideoCapabilityDataBlockPtOverscanEnum::Both);
    EXPECT_TRUE(block.RangeFlags.Test(CtaVideoCapabilityDataBlockRangeFlagEnum::RgbSelectable));
    EXPECT_FALSE(block.RangeFlags.Test(CtaVideoCapabilityDataBlockRangeFlagEnum::YccSelectable));
    EXPECT_EQ(CheckBlock<CtaVideoCapabilityDataBlock>("E1 00", "Video capability").PresentLength, 0);
    EXPECT_EQ(CheckBlock<CtaVideoCapabilityDataBlock>("E3 00 79 AA", "Video capability").Extra, FromHex("AA"));
}

}  // namespace
}  // namespace VNT::Testing
