#include <tuple>

#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_parameters.h"
#include "model/displayid/product_id.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/text_data_block.h"
#include "model/displayid/tiled_display_topology.h"
#include "tests/support/displayid.h"

namespace VNT::Testing {
namespace {

// 1920x1080 at 148.5 MHz, preferred, 16:9.
#define TIMING_1080 "01 3A 00 84 7F 07 17 01 57 80 2B 00 37 04 2C 00 03 80 04 00"

template <class X>
X Edited(const typename X::FieldsType& fields) {
    const X item(fields);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(ReadAs<X>(BytesOf(item, item.GetSize())), item.GetSize()), BytesOf(item, item.GetSize()));
    return item;
}

TEST(DisplayId1ProductId, ReadsEachFieldAndTheName) {
    const auto block = CheckBlock<DisplayId1ProductIdDataBlock>(
        "00 0A 10 41 42 43 34 12 78 56 34 12 07 18 04 4E 41 4D 45", "Product identification: ABC1234 - NAME");
    EXPECT_EQ(block.revision, 2);
    EXPECT_EQ(block.flags, 1);
    EXPECT_EQ(block.vendorId, String(U"ABC"));
    EXPECT_EQ(block.productId, 0x1234);
    EXPECT_EQ(block.serialNumber, 0x12345678);
    EXPECT_EQ(block.week, 7);
    EXPECT_EQ(block.year, 2024);
    EXPECT_FALSE(block.modelYear);
    EXPECT_EQ(block.nameLength, 4);
    EXPECT_EQ(block.name, String(U"NAME"));
    EXPECT_EQ(block.PresentLength, 12);
    EXPECT_TRUE(block.IsValid(19));
}

TEST(DisplayId1ProductId, AWeekOf255IsAModelYear) {
    const auto block = CheckBlock<DisplayId1ProductIdDataBlock>("00 00 0C 41 42 43 00 00 00 00 00 00 FF 18 00",
                                                                "Product identification: ABC0000");
    EXPECT_TRUE(block.modelYear);
    EXPECT_EQ(block.week, Undefined);
    EXPECT_EQ(block.serialNumber, Undefined);
    EXPECT_FALSE(block.GetStatus().IsPresent("week"));
    DisplayId1ProductIdDataBlockFields fields = block;
    fields.week = 3;
    EXPECT_EQ(Edited<DisplayId1ProductIdDataBlock>(fields), block);
    fields.modelYear = false;
    EXPECT_EQ(BytesOf(Edited<DisplayId1ProductIdDataBlock>(fields), 15).At(12), 3);
}

TEST(DisplayId1ProductId, ZerosAreUndefined) {
    const auto block = CheckBlock<DisplayId1ProductIdDataBlock>("00 00 0C 41 42 43 00 00 00 00 00 00 00 00 00",
                                                                "Product identification: ABC0000");
    EXPECT_EQ(block.week, Undefined);
    EXPECT_EQ(block.year, Undefined);
    EXPECT_TRUE(block.IsValid(15));
}

TEST(DisplayId1ProductId, AWeekBeyond54IsCarriedButNotSound) {
    const auto block = CheckBlock<DisplayId1ProductIdDataBlock>("00 00 0C 41 42 43 00 00 00 00 00 00 FE 18 00",
                                                                "Product identification: ABC0000");
    EXPECT_EQ(block.week, 254);
    EXPECT_FALSE(block.GetStatus().IsProper("week"));
    EXPECT_TRUE(block.GetStatus().IsAll("week"));
}

// A byte is a character: there are 256 of them.
TEST(DisplayId1ProductId, WhatNoByteHoldsIsInNoText) {
    DisplayId1ProductIdDataBlockFields fields;
    fields.name = U"\u00FF";
    EXPECT_EQ(BytesOf(Edited<DisplayId1ProductIdDataBlock>(fields), 16).At(15), 0xFF);
    fields.name = U"\u0100";
    const DisplayId1ProductIdDataBlock named(fields);
    EXPECT_FALSE(named.GetStatus().IsProper("name"));
    EXPECT_FALSE(named.GetStatus().IsAll("name"));
    EXPECT_EQ(BytesOf(named, 16), Bytes());
    fields.name = {};
    for (const auto& [vendor, isProper, isAll] : {std::tuple{U"AB\u00FF", true, true},
                                                  {U"AB\u0100", false, false},
                                                  {U"AB", false, true},
                                                  {U"ABCD", false, false}}) {
        fields.vendorId = vendor;
        const ItemStatus status = DisplayId1ProductIdDataBlock(fields).GetStatus();
        EXPECT_EQ(status.IsProper("vendorId"), isProper) << fields.vendorId.ToUtf8();
        EXPECT_EQ(status.IsAll("vendorId"), isAll) << fields.vendorId.ToUtf8();
    }
}

TEST(DisplayId1ProductId, ThePresentLengthTellsOfTheNameAndWhatFollows) {
    const char* head = "00 00 %s 41 42 43 00 00 00 00 00 00 00 00 02%s";
    const auto read = [head](const char* length, const char* tail) {
        char hex[100];
        std::snprintf(hex, sizeof hex, head, length, tail);
        const Bytes bytes = FromHex(hex);
        const auto block = ReadAs<DisplayId1ProductIdDataBlock>(bytes);
        EXPECT_EQ(BytesOf(block, bytes.Size()), bytes);
        EXPECT_EQ(block.GetSize(), bytes.Size());
        return block;
    };
    EXPECT_EQ(read("0E", " 41 42").PresentLength, 12);
    const auto longer = read("0F", " 41 42 07");
    EXPECT_EQ(longer.PresentLength, 13);
    EXPECT_EQ(longer.Extra, FromHex("07"));
    EXPECT_TRUE(longer.IsValid(18));
    const auto cutOff = read("0D", " 41");
    EXPECT_EQ(cutOff.PresentLength, 13);
    EXPECT_EQ(cutOff.name, String(U"A"));
    EXPECT_FALSE(cutOff.IsValid(16));
    EXPECT_TRUE(cutOff.IsValidAll(16));
    EXPECT_EQ(read("0C", "").PresentLength, 12);
}

TEST(DisplayId1ProductId, AShortBlockKeepsItsLengthUntilItIsEdited) {
    const auto block =
        CheckBlock<DisplayId1ProductIdDataBlock>("00 00 05 41 42 43 34 12", "Product identification: ABC1234");
    EXPECT_EQ(block.PresentLength, 5);
    EXPECT_EQ(block.week, Undefined);
    const auto edited = Edited<DisplayId1ProductIdDataBlock>(block);
    EXPECT_EQ(edited.GetSize(), 15);
    EXPECT_EQ(edited.PresentLength, 12);
}

TEST(DisplayId1ProductId, WithoutPayloadItIsABlockOnlyIfItsSecondByteSaysSomething) {
    CheckBlock<DisplayId1ProductIdDataBlock>("00 01 00", "Product identification: 0000");
    auto block = CheckBlock<DisplayId1ProductIdDataBlock>("00 08 00", "Product identification: 0000");
    block.flags = 0;
    EXPECT_FALSE(block.IsValidAll());
    EXPECT_EQ(BytesOf(block, 3), Bytes());
}

TEST(DisplayId1ProductId, ANameIsEditedByteForByteAndTakesTheRoom) {
    DisplayId1ProductIdDataBlockFields fields;
    fields.name = U"\xE9\x01";
    const auto block = Edited<DisplayId1ProductIdDataBlock>(fields);
    EXPECT_EQ(block.GetSize(), 17);
    EXPECT_EQ(BytesOf(block, 17).Slice(14, 3), FromHex("02 E9 01"));
    EXPECT_EQ(block.GetNameRoom(20), 5);
    EXPECT_FALSE(block.IsValidAll(16));
    EXPECT_FALSE(block.GetStatus(16).IsProper("name"));
    fields.name = U"\u0100";
    EXPECT_FALSE(DisplayId1ProductIdDataBlock(fields).IsValidAll());
}

TEST(DisplayId1DisplayParameters, ReadsEachField) {
    const auto block = CheckBlock<DisplayId1DisplayParametersDataBlock>("01 00 0C 88 13 F4 0B 80 07 38 04 81 78 4E 97",
                                                                        "Display parameters: 1920x1080 (8/10 bpc)");
    EXPECT_EQ(block.imageWidth, Decimal(500));
    EXPECT_EQ(block.imageHeight, Decimal(306));
    EXPECT_EQ(block.gamma, Decimal(22, 1));
    EXPECT_EQ(block.aspectRatio, Decimal(178, 2));
    using Flag = DisplayId1DisplayParametersDataBlockFlagEnum;
    EXPECT_TRUE(block.featureFlags.Test(Flag::AudioOnVideo));
    EXPECT_TRUE(block.featureFlags.Test(Flag::Deinterlacing));
    EXPECT_FALSE(block.featureFlags.Test(Flag::PowerManagement));
    EXPECT_TRUE(block.IsValid(15));
    EXPECT_EQ(TextOf(block, U"{imagesizetext}, {gammatext}"), "500.0x306.0, 2.20");
}

TEST(DisplayId1DisplayParameters, OfSize9ReadsSixBytesAndStaysSo) {
    const auto block = CheckBlock<DisplayId1DisplayParametersDataBlock>("01 00 06 88 13 F4 0B 80 07",
                                                                        "Display parameters: 1920x? (1 bpc)");
    EXPECT_EQ(block.Size, 9);
    EXPECT_EQ(block.PresentLength, 6);
    EXPECT_EQ(block.nativeWidth, 1920);
    EXPECT_EQ(block.nativeHeight, Undefined);
    EXPECT_EQ(block.gamma, Decimal(1));
    EXPECT_FALSE(block.GetAvailable(9).IsProper("nativeHeight"));
    EXPECT_TRUE(block.GetAvailable(9).IsProper("nativeWidth"));
}

TEST(DisplayId1DisplayParameters, SizesAndGammaMayBeUntold) {
    const auto block = CheckBlock<DisplayId1DisplayParametersDataBlock>("01 00 0C 00 00 0A 00 00 00 38 04 00 FF FF 77",
                                                                        "Display parameters: ?x1080 (8 bpc)");
    EXPECT_EQ(block.aspectRatio, Decimal(355, 2));
    EXPECT_TRUE(block.IsValid(15));
    EXPECT_EQ(TextOf(block, U"{imagesizetext}, {gammatext}"), "?x1.0, no gamma");
    EXPECT_EQ(TextOf(DisplayId1DisplayParametersDataBlock(), U"{imagesizetext}, {resolutiontext}"),
              "no image size, no native resolution");
}

TEST(DisplayId1DetailedResolutions, ReadsTwentyBytesATimingAndKeepsTheRest) {
    const auto block = CheckBlock<DisplayId1DetailedResolutionListDataBlock>(
        "03 0A 2A " TIMING_1080 TIMING_1080 " 01 02", "Detailed resolutions: 2 resolutions");
    EXPECT_EQ(block.flags, 1);
    EXPECT_EQ(block.resolutions.GetCount(), 2);
    EXPECT_EQ(block.Extra, FromHex("01 02"));
    ASSERT_EQ(block.GetParts().size(), 2u);
    EXPECT_EQ(block.GetParts()[0].text.ToUtf8(), "1920x1080 (16:9) @ 60.000 Hz (148.50 MHz) [+/+]*");
    EXPECT_TRUE(block.IsValid(45));
    EXPECT_FALSE(block.IsValidAll(44));
}

TEST(DisplayId1DetailedResolutions, ATimingThatCouldNotBeWrittenBackStaysBytes) {
    // The blanking of the second one is shorter than its front porch and sync.
    const auto block = CheckBlock<DisplayId1DetailedResolutionListDataBlock>(
        "03 00 3C " TIMING_1080 "01 3A 00 84 7F 07 01 00 57 80 2B 00 37 04 2C 00 03 80 04 00" TIMING_1080,
        "Detailed resolutions: 1 resolution");
    EXPECT_EQ(block.resolutions.GetCount(), 1);
    EXPECT_EQ(block.Extra.Size(), 40);
}

TEST(DisplayId1DetailedResolutions, TheListLivesFromTheRoomOfTheBlock) {
    const auto block = CheckBlock<DisplayId1DetailedResolutionListDataBlock>("03 00 16 " TIMING_1080 " 01 02",
                                                                             "Detailed resolutions: 1 resolution");
    EXPECT_EQ(block.GetListLimits(64).Slots(), 2);
    EXPECT_EQ(block.GetListLimits(65).Slots(), 3);
    EXPECT_EQ(CheckBlock<DisplayId1DetailedResolutionListDataBlock>("03 00 00", "Detailed resolutions: 0 resolutions")
                  .GetListLimits(121)
                  .Slots(),
              5);
}

TEST(DisplayId1RangeLimits, AClockOfZeroIsAHundredth) {
    const auto block = CheckBlock<DisplayId1RangeLimitsDataBlock>(
        "09 00 0F 00 00 00 CF 07 00 1E 5A A0 00 30 4B 17 00 A0", "Range limits: 0.01-20.00 MHz, 30-90 kHz, 48-75 Hz");
    EXPECT_EQ(block.minPixelClock, Decimal(1, 2));
    EXPECT_EQ(block.minHBlank, 160);
    EXPECT_EQ(block.minVBlank, 23);
    EXPECT_TRUE(block.limitFlags.Test(DisplayId1RangeLimitsDataBlockFlagEnum::Interlaced));
    EXPECT_FALSE(block.limitFlags.Test(DisplayId1RangeLimitsDataBlockFlagEnum::CvtStandard));
    EXPECT_TRUE(block.limitFlags.Test(DisplayId1RangeLimitsDataBlockFlagEnum::CvtReduced));
    EXPECT_TRUE(block.IsValid(18));
}

TEST(DisplayId1RangeLimits, FlagsWithoutACheckBoxSurvive) {
    const auto block = CheckBlock<DisplayId1RangeLimitsDataBlock>(
        "09 00 0F 00 00 00 00 00 00 00 00 00 00 00 00 00 00 0F", "Range limits: 0.01-0.01 MHz, 0-0 kHz, 0-0 Hz");
    DisplayId1RangeLimitsDataBlockFields fields = block;
    fields.limitFlags.Set(DisplayId1RangeLimitsDataBlockFlagEnum::Interlaced, true);
    EXPECT_EQ(BytesOf(Edited<DisplayId1RangeLimitsDataBlock>(fields), 18).At(17), 0x8F);
}

TEST(DisplayId1RangeLimits, TheClocksDoNotPassEachOther) {
    const auto block = CheckBlock<DisplayId1RangeLimitsDataBlock>(
        "09 00 0F CF 07 00 00 00 00 00 00 00 00 00 00 00 00 00", "Range limits: 20.00-0.01 MHz, 0-0 kHz, 0-0 Hz");
    for (const char* clock : {"minPixelClock", "maxPixelClock"}) {
        EXPECT_FALSE(block.GetStatus().IsProper(clock));
        EXPECT_TRUE(block.GetStatus().IsAll(clock));
    }
    DisplayId1RangeLimitsDataBlock odd = block;
    odd.maxPixelClock = Decimal(200000);
    EXPECT_TRUE(odd.GetStatus().IsProper("minPixelClock")) << "what is no clock is no bound";
    EXPECT_FALSE(odd.GetStatus().IsAll("maxPixelClock"));
}

TEST(DisplayId1Text, WithoutPayloadItIsEmpty) {
    CheckBlock<DisplayId1SerialNumberDataBlock>("0A 00 00", "Serial number is empty");
    CheckBlock<DisplayId1TextDataBlock>("0B 00 00", "Text is empty");
}

TEST(DisplayId1Text, IsItsPayloadByteForByte) {
    const auto block =
        CheckBlock<DisplayId1TextDataBlock>("0B 05 04 41 E9 00 42", "Text: A\xC3\xA9" + std::string(1, '\0') + "B");
    EXPECT_EQ(block.text.Length(), 4);
    EXPECT_EQ(block.revision, 5);
    EXPECT_TRUE(block.Extra.IsEmpty());
    EXPECT_EQ(CheckBlock<DisplayId1SerialNumberDataBlock>("0A 00 02 37 38", "Serial number: 78").text, String(U"78"));
}

TEST(DisplayId1Text, TakesItsLengthFromTheText) {
    DisplayId1TextDataBlockFields fields;
    fields.text = String(std::u32string(255, U'x'));
    const auto block = Edited<DisplayId1TextDataBlock>(fields);
    EXPECT_EQ(block.GetSize(), 258);
    EXPECT_FALSE(block.GetStatus(257).IsProper("text"));
    fields.text.Append(U'x');
    EXPECT_FALSE(DisplayId1TextDataBlock(fields).IsValidAll());
    fields.text = U"\u20AC";
    EXPECT_FALSE(DisplayId1TextDataBlock(fields).IsValidAll());
}

TEST(DisplayId1TiledDisplay, ZerosAreOneTileAtOne) {
    const auto block = CheckBlock<DisplayId1TiledDisplayTopologyDataBlock>(
        "12 00 16 00 00 00 00 7F 07 37 04 00 00 00 00 00 41 42 43 00 00 00 00 00 00",
        "Tiled display topology: 1920x1080 (1x1) @ (1, 1)");
    EXPECT_TRUE(block.IsValid(25));
    EXPECT_EQ(TextOf(block, U"{serialnumbertext}"), "no serial number");
}

TEST(DisplayId1TiledDisplay, ReadsEachField) {
    const auto block = CheckBlock<DisplayId1TiledDisplayTopologyDataBlock>(
        "12 00 16 A9 12 34 E4 FF FF 6F 08 0A 01 02 03 04 41 42 43 34 12 07 00 00 00",
        "Tiled display topology: 65536x2160 (50x35) @ (20, 5)");
    EXPECT_EQ(block.singleTileBehavior, 1);
    EXPECT_EQ(block.multipleTileBehavior, 1);
    EXPECT_EQ(block.reservedBits, 1);
    EXPECT_EQ(block.enclosures, DisplayId1TiledDisplayTopologyDataBlockEnclosuresEnum::Single);
    EXPECT_EQ(block.pixelMultiplier, 10);
    EXPECT_EQ(block.bezelTop, 1);
    EXPECT_EQ(block.bezelBottom, 2);
    EXPECT_EQ(block.bezelRight, 3);
    EXPECT_EQ(block.bezelLeft, 4);
    EXPECT_EQ(block.vendorId, String(U"ABC"));
    EXPECT_EQ(block.productId, 0x1234);
    EXPECT_EQ(TextOf(block, U"{serialnumbertext}"), "7");
}

TEST(DisplayId1TiledDisplay, BehaviorsWithoutARowAreKept) {
    const auto block = CheckBlock<DisplayId1TiledDisplayTopologyDataBlock>(
        "12 00 16 1F 00 00 00 00 00 00 00 00 00 00 00 00 41 42 43 00 00 00 00 00 00",
        "Tiled display topology: 1x1 (1x1) @ (1, 1)");
    EXPECT_EQ(block.singleTileBehavior, 7);
    EXPECT_EQ(block.multipleTileBehavior, 3);
    EXPECT_TRUE(block.IsValid(25));
    EXPECT_EQ(Edited<DisplayId1TiledDisplayTopologyDataBlock>(block), block);
}

}  // namespace
}  // namespace VNT::Testing
