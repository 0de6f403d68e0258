#include "model/displayid/container_id.h"
#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_interface.h"
#include "model/displayid/product_id.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/tiled_display_topology.h"
#include "tests/support/displayid.h"

namespace VNT::Testing {
namespace {

// 1920x1080 at 148.5 MHz, 16:9, the highest bit of its flags set.
#define TIMING_1080 "13 44 02 84 7F 07 17 01 57 80 2B 00 37 04 2C 00 03 80 04 00"

TEST(DisplayId2ProductId, NamesItsVendorByNumber) {
    const auto block = CheckBlock<DisplayId2ProductIdDataBlock>("20 00 0E 00 1A 2B 34 12 FF FF FF FF FF 18 02 41 42",
                                                                "Product identification: 001A2B1234 - AB");
    EXPECT_EQ(block.vendorId, 0x001A2B);
    EXPECT_EQ(block.productId, 0x1234);
    EXPECT_EQ(block.serialNumber, 4294967295);
    EXPECT_TRUE(block.modelYear);
    EXPECT_EQ(block.year, 2024);
    EXPECT_EQ(block.name, String(U"AB"));
    EXPECT_TRUE(block.IsValid(17));
}

TEST(DisplayId2ProductId, WithoutPayloadItIsABlock) {
    CheckBlock<DisplayId2ProductIdDataBlock>("20 00 00", "Product identification: 0000000000");
}

TEST(DisplayId2DetailedResolutions, FortyBytesAreTwoDescriptorsOfTwenty) {
    const auto block = CheckBlock<DisplayId2DetailedResolutionListDataBlock>("22 00 28 " TIMING_1080 TIMING_1080,
                                                                             "Detailed resolutions: 2 resolutions");
    EXPECT_EQ(block.resolutions.descriptorSize, 20);
    EXPECT_TRUE(block.Extra.IsEmpty());
    ASSERT_EQ(block.GetParts().size(), 2u);
    EXPECT_EQ(block.GetParts()[1].text.ToUtf8(), "1920x1080 (16:9) @ 60.000 Hz (148.500 MHz) [+/+]*");
}

TEST(DisplayId2DetailedResolutions, TheFrameTellsTheSizeOfADescriptor) {
    const auto block = CheckBlock<DisplayId2DetailedResolutionListDataBlock>(
        "22 41 32 " TIMING_1080 " 07 00 09 00" TIMING_1080 " 00 00 00 00 55 66", "Detailed resolutions: 2 resolutions");
    EXPECT_EQ(block.revision, 1);
    EXPECT_EQ(block.resolutions.descriptorSize, 24);
    EXPECT_EQ(block.resolutions.At(0).extraBytes, FromHex("07 00 09"));
    EXPECT_TRUE(block.resolutions.At(1).extraBytes.IsEmpty());
    EXPECT_EQ(block.Extra, FromHex("55 66"));
    EXPECT_EQ(block.GetListLimits(53).Slots(), 2);
    EXPECT_EQ(block.GetListLimits(76).Slots(), 2);
    EXPECT_EQ(block.GetListLimits(77).Slots(), 3);
}

TEST(DisplayId2DetailedResolutions, ADescriptorLongerThanTheFrameSaysIsRefused) {
    DisplayId2DetailedResolutionListDataBlockFields fields =
        ReadAs<DisplayId2DetailedResolutionListDataBlock>(FromHex("22 00 14 " TIMING_1080));
    DisplayId2DetailedResolution longer = fields.resolutions.At(0);
    longer.extraBytes = FromHex("01");
    fields.resolutions.Set(0, longer);
    EXPECT_FALSE(DisplayId2DetailedResolutionListDataBlock(fields).IsValidAll());
    fields.resolutions.descriptorSize = 21;
    const DisplayId2DetailedResolutionListDataBlock block(fields);
    EXPECT_TRUE(block.IsValid());
    EXPECT_EQ(BytesOf(block, 24), FromHex("22 10 15 " TIMING_1080 " 01"));
}

TEST(DisplayId2DetailedResolutions, TheFlagsSurvive) {
    const auto block =
        CheckBlock<DisplayId2DetailedResolutionListDataBlock>("22 08 00", "Detailed resolutions: 0 resolutions");
    EXPECT_TRUE(block.resolutionFlags.Test(DisplayId2DetailedResolutionListDataBlockFlagEnum::DscPassThrough));
    EXPECT_EQ(block.resolutionFlags.GetBits(), 1u);
    EXPECT_EQ(BytesOf(DisplayId2DetailedResolutionListDataBlock(block), 3), FromHex("22 08 00"));
    EXPECT_EQ(CheckBlock<DisplayId2DetailedResolutionListDataBlock>("22 81 00", "Detailed resolutions: 0 resolutions")
                  .resolutionFlags.GetBits(),
              2u);
}

TEST(DisplayId2DetailedResolutions, TheRevisionTellsTheKind) {
    for (const char* hex : {"22 00 00", "22 01 00", "22 F9 00"})
        CheckBlock<DisplayId2DetailedResolutionListDataBlock>(hex, "Detailed resolutions: 0 resolutions");
    for (const char* hex : {"22 02 00", "22 07 00", "22 FA 00"}) {
        const auto block =
            CheckBlock<DisplayId2DetailedResolutionListDataBlockR2>(hex, "Detailed resolutions r2: 0 resolutions");
        EXPECT_EQ(block.GetType(), 0x222);
        EXPECT_FALSE(DisplayId2DetailedResolutionListDataBlock().Read(FromHex(hex)));
    }
    EXPECT_FALSE(DisplayId2DetailedResolutionListDataBlockR2().Read(FromHex("22 01 00")));
    EXPECT_EQ(PeekDisplayIdBlockType(FromHex("22 02 00")).type, 0x22);
}

TEST(DisplayId2DetailedResolutions, TheSecondRevisionTellsYcc420) {
    const auto block = CheckBlock<DisplayId2DetailedResolutionListDataBlockR2>("22 02 14 " TIMING_1080,
                                                                               "Detailed resolutions r2: 1 resolution");
    ASSERT_EQ(block.resolutions.GetCount(), 1);
    EXPECT_TRUE(block.resolutions.At(0).preferred);
    EXPECT_EQ(block.resolutions.At(0).GetType(), ResolutionTypeEnum::DisplayId2DetailedR2);
    DisplayId2DetailedResolutionListDataBlockFieldsR2 fields;
    EXPECT_EQ(fields.revision, 2);
    fields.revision = 1;
    EXPECT_FALSE(DisplayId2DetailedResolutionListDataBlockR2(fields).IsValidAll());
}

TEST(DisplayId2RangeLimits, ReadsEachField) {
    const auto block = CheckBlock<DisplayId2RangeLimitsDataBlock>("25 01 09 A7 61 00 FF FF FF 30 2C 81",
                                                                  "Range limits: 25.000-16777.216 MHz, 48-300 Hz");
    EXPECT_EQ(block.minPixelClock, Decimal(25));
    EXPECT_TRUE(block.rangeFlags.Test(DisplayId2RangeLimitsDataBlockFlagEnum::VariableRefreshRate));
    EXPECT_TRUE(block.IsValid(12));
}

TEST(DisplayId2RangeLimits, Revision0HasNoRateAbove255) {
    const auto block = CheckBlock<DisplayId2RangeLimitsDataBlock>("25 00 09 00 00 00 00 00 00 30 2C 01",
                                                                  "Range limits: 0.001-0.001 MHz, 48-300 Hz");
    EXPECT_EQ(block.maxVRate, 300);
    EXPECT_FALSE(block.GetStatus().IsProper("maxVRate"));
    EXPECT_TRUE(block.GetStatus().IsAll("maxVRate"));
    EXPECT_FALSE(block.rangeFlags.Test(DisplayId2RangeLimitsDataBlockFlagEnum::VariableRefreshRate));
}

TEST(DisplayId2RangeLimits, FlagsWithoutACheckBoxSurvive) {
    const auto block = CheckBlock<DisplayId2RangeLimitsDataBlock>("25 00 09 00 00 00 00 00 00 00 00 7C",
                                                                  "Range limits: 0.001-0.001 MHz, 0-0 Hz");
    EXPECT_EQ(BytesOf(DisplayId2RangeLimitsDataBlock(block), 12).At(11), 0x7C);
}

TEST(DisplayId2DisplayInterface, ReadsEachFieldAndTheList) {
    const auto block = CheckBlock<DisplayId2DisplayInterfaceDataBlock>("26 00 0B 01 02 04 3F 08 E0 41 80 FA 98 13",
                                                                       "Display interface");
    EXPECT_EQ(block.rgbColorDepth.GetBits(), 1u);
    EXPECT_EQ(block.ycc444ColorDepth.GetBits(), 2u);
    EXPECT_EQ(block.ycc422ColorDepth.GetBits(), 4u);
    EXPECT_EQ(block.ycc420ColorDepth.GetBits(), 0x3Fu);
    EXPECT_EQ(block.ycc420MinPixelRate, Decimal(594));
    EXPECT_TRUE(block.audioSampleRates.Test(DisplayId2DisplayInterfaceDataBlockAudioFlagEnum::Rate32));
    EXPECT_EQ(block.colorimetryFlags.GetBits(), 0x8041u);
    EXPECT_EQ(block.colorimetryCount, 2);
    EXPECT_EQ(block.reservedBits, 31);
    ASSERT_EQ(block.colorimetry.GetCount(), 2);
    ASSERT_EQ(block.GetParts().size(), 2u);
    EXPECT_EQ(block.GetParts()[1].text.ToUtf8(), "sRGB + BT.1886 EOTF");
    EXPECT_TRUE(block.IsValid(14));
}

TEST(DisplayId2DisplayInterface, AColorSpaceWithoutARowIsOther) {
    const auto colorimetry = ReadAs<DisplayId2DisplayInterfaceColorimetry>(FromHex("98"));
    EXPECT_EQ(colorimetry.colorSpace, 9);
    EXPECT_EQ(colorimetry.eotf, 8);
    EXPECT_EQ(TextOf(colorimetry), "Other (9) + ST 2084 EOTF");
    EXPECT_EQ(BytesOf(colorimetry), FromHex("98"));
    EXPECT_EQ(TextOf(ReadAs<DisplayId2DisplayInterfaceColorimetry>(FromHex("6F"))), "BT.2020 + Other (15) EOTF");
}

TEST(DisplayId2DisplayInterface, EveryColorimetryByteIsKept) {
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes bytes{byte};
        const auto colorimetry = ReadAs<DisplayId2DisplayInterfaceColorimetry>(bytes);
        EXPECT_TRUE(colorimetry.IsValid());
        EXPECT_EQ(BytesOf(colorimetry), bytes);
    }
    DisplayId2DisplayInterfaceColorimetry none;
    EXPECT_FALSE(none.Read(Bytes()));
    EXPECT_FALSE(none.Write(Bytes()));
}

TEST(DisplayId2DisplayInterface, ACountBeyondTheBlockIsKeptUntilItIsEdited) {
    const auto block =
        CheckBlock<DisplayId2DisplayInterfaceDataBlock>("26 00 0A 00 00 00 00 00 00 00 00 05 11", "Display interface");
    EXPECT_EQ(block.colorimetry.GetCount(), 1);
    EXPECT_FALSE(block.GetStatus().IsProper("colorimetryCount"));
    EXPECT_TRUE(block.GetStatus().IsAll("colorimetryCount"));
    const DisplayId2DisplayInterfaceDataBlock edited(
        static_cast<const DisplayId2DisplayInterfaceDataBlockFields&>(block));
    EXPECT_TRUE(edited.IsValid());
    EXPECT_EQ(BytesOf(edited, 13).At(11), 1);
}

TEST(DisplayId2DisplayInterface, TheListHoldsSevenAtMost) {
    DisplayId2DisplayInterfaceDataBlockFields fields;
    EXPECT_EQ(DisplayId2DisplayInterfaceDataBlock(fields).GetListLimits(15).slots, 3);
    EXPECT_EQ(DisplayId2DisplayInterfaceDataBlock(fields).GetListLimits(100).slots, 7);
    for (int i = 0; i < 7; ++i) fields.colorimetry.Add(DisplayId2DisplayInterfaceColorimetry());
    EXPECT_TRUE(DisplayId2DisplayInterfaceDataBlock(fields).IsValid());
    EXPECT_EQ(DisplayId2DisplayInterfaceDataBlock(fields).GetSize(), 19);
    fields.colorimetry.Add(DisplayId2DisplayInterfaceColorimetry());
    EXPECT_FALSE(DisplayId2DisplayInterfaceDataBlock(fields).IsValidAll());
}

TEST(DisplayId2TiledDisplay, NamesItsVendorByNumber) {
    const auto block = CheckBlock<DisplayId2TiledDisplayTopologyDataBlock>(
        "28 00 16 82 10 10 00 FF 0E 6F 08 00 00 00 00 00 00 1A 2B 34 12 00 00 00 00",
        "Tiled display topology: 3840x2160 (2x1) @ (2, 1)");
    EXPECT_EQ(block.vendorId, 0x001A2B);
    EXPECT_EQ(block.productId, 0x1234);
    EXPECT_EQ(block.serialNumber, Undefined);
    EXPECT_TRUE(block.IsValid(25));
}

TEST(DisplayId2ContainerId, IsSixteenBytes) {
    const auto block =
        CheckBlock<DisplayId2ContainerIdDataBlock>("29 00 11 00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF 01",
                                                   "Container ID: 00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF");
    EXPECT_EQ(block.Extra, FromHex("01"));
    EXPECT_TRUE(block.IsValid(20));
    DisplayId2ContainerIdDataBlockFields fields = block;
    fields.containerId.Resize(15);
    EXPECT_FALSE(DisplayId2ContainerIdDataBlock(fields).IsValidAll());
}

TEST(DisplayId2ContainerId, WhatAShortBlockLacksIsZeros) {
    const auto block = CheckBlock<DisplayId2ContainerIdDataBlock>(
        "29 00 02 AA BB", "Container ID: AA BB 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(block.PresentLength, 2);
}

}  // namespace
}  // namespace VNT::Testing
