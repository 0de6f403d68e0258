#include "model/edid/properties.h"

#include <gtest/gtest.h>

#include "tests/edid/support.h"
#include "tests/support/every_bit.h"

namespace VNT {
namespace {

using namespace Testing;

// The 27 bytes of a plain record, with some of them replaced (offsets in the base block).
Bytes Record(std::initializer_list<std::pair<int, int>> changes, int revision = 3) {
    Bytes bytes = BaseBlock(0, revision).Slice(8, EdidProperties::FrameSize);
    for (const auto& [offset, value] : changes) bytes.At(offset - 8) = static_cast<std::uint8_t>(value);
    return bytes;
}

EdidProperties ReadProperties(const Bytes& bytes) {
    EdidProperties properties;
    EXPECT_TRUE(properties.Read(bytes));
    return properties;
}

void CheckRoundTrip(const Bytes& bytes) {
    const EdidProperties properties = ReadProperties(bytes);
    ASSERT_TRUE(properties.IsValidAll()) << ToHex(bytes);
    Bytes written(EdidProperties::FrameSize, 0xCC);
    EXPECT_TRUE(properties.Write(written));
    EXPECT_EQ(ToHex(written), ToHex(bytes));
}

TEST(Properties, YearIsCountedFrom1990AndZeroIsUndefined) {
    EXPECT_EQ(ReadProperties(Record({{17, 0}})).year, Undefined);
    EXPECT_EQ(ReadProperties(Record({{17, 1}})).year, 1991);
    EXPECT_EQ(ReadProperties(Record({{17, 255}})).year, 2245);
}

TEST(Properties, Week255IsTheModelYearInVersion14) {
    const Bytes bytes = Record({{16, 255}}, 4);
    const EdidProperties properties = ReadProperties(bytes);
    EXPECT_TRUE(properties.modelYear);
    EXPECT_EQ(properties.week, Undefined);
    EXPECT_FALSE(properties.GetPresent("week"));
    CheckRoundTrip(bytes);
}

TEST(Properties, Week255IsAWeekInVersion13) {
    const Bytes bytes = Record({{16, 255}});
    const EdidProperties properties = ReadProperties(bytes);
    EXPECT_FALSE(properties.modelYear);
    EXPECT_EQ(properties.week, 255);
    EXPECT_FALSE(properties.GetStatus().IsProper("week"));
    EXPECT_TRUE(properties.GetStatus().IsAll("week"));
    CheckRoundTrip(bytes);
}

TEST(Properties, AnEnteredWeek255IsRefusedInVersion14) {
    EdidPropertiesFields fields = ReadProperties(Record({}, 4));
    fields.week = 255;
    EXPECT_FALSE(EdidProperties(fields).IsValidAll());
}

TEST(Properties, VendorLettersOutsideTheAlphabetAreKept) {
    const EdidProperties properties = ReadProperties(Record({{8, 0}, {9, 0}}));
    EXPECT_EQ(properties.vendorId.ToUtf8(), "@@@");
    EXPECT_FALSE(properties.GetStatus().IsProper("vendorId"));
    EXPECT_TRUE(properties.GetStatus().IsAll("vendorId"));
    EXPECT_EQ(ReadProperties(Record({{8, 0x7F}, {9, 0xFF}})).vendorId.ToUtf8(), "___");
    CheckRoundTrip(Record({{8, 0xFF}, {9, 0xFF}}));
}

TEST(Properties, ALowercaseVendorIdFailsBothLimits) {
    EdidPropertiesFields fields;
    fields.vendorId = "abc";
    const ItemStatus status = EdidProperties(fields).GetStatus();
    EXPECT_FALSE(status.IsProper("vendorId"));
    EXPECT_FALSE(status.IsAll("vendorId"));
    fields.vendorId = "AB";
    EXPECT_FALSE(EdidProperties(fields).IsValidAll());
}

TEST(Properties, EveryByteValueGoesBack) {
    for (const int revision : {3, 4}) {
        for (int offset = 8; offset < 35; ++offset) {
            for (int value = 0; value < 256; ++value) {
                CheckRoundTrip(Record({{offset, value}}, revision));
                if (offset == 24) CheckRoundTrip(Record({{20, 0}, {24, value}}, revision));
                if (offset == 21) CheckRoundTrip(Record({{22, 40}, {21, value}}, revision));
            }
        }
    }
}

TEST(Properties, EachBitTells) {
    for (const int revision : {3, 4}) {
        ExpectThatEachBitTells<EdidProperties>(Record({}, revision));
        ExpectThatEachBitTells<EdidProperties>(Record({{20, 0}, {24, 0xFF}}, revision));
    }
}

TEST(Properties, ReadAndWriteTheirWholeFrameOnly) {
    ExpectThatCutsAreRefused<EdidProperties>(Record({}));
    EdidPropertiesFields fields;
    fields.vendorId = "abc";
    EXPECT_EQ(BytesOf(EdidProperties(fields)), Bytes());
}

TEST(Properties, NoVersionButExactly14HasTheNewerLayout) {
    EXPECT_TRUE(ReadProperties(Record({}, 4)).IsVersion14());
    EXPECT_FALSE(ReadProperties(Record({{19, 5}})).IsVersion14());
    EXPECT_FALSE(ReadProperties(Record({{18, 2}, {19, 4}})).IsVersion14());
}

TEST(Properties, SizesGiveTheScreenFieldsOfVersion14) {
    using Present = EdidScreenFieldsPresentEnum;
    const EdidProperties size = ReadProperties(Record({{21, 60}, {22, 34}}, 4));
    EXPECT_EQ(size.screenFieldsPresent, Present::ScreenSize);
    EXPECT_EQ(size.horizontalSize, 60);
    EXPECT_EQ(size.verticalSize, 34);
    EXPECT_TRUE(size.aspectRatio.IsUndefined());
    const EdidProperties landscape = ReadProperties(Record({{21, 79}, {22, 0}}, 4));
    EXPECT_EQ(landscape.screenFieldsPresent, Present::LandscapeAspectRatio);
    EXPECT_EQ(landscape.aspectRatio, Decimal(178, 2));
    EXPECT_EQ(landscape.horizontalSize, Undefined);
    const EdidProperties portrait = ReadProperties(Record({{21, 0}, {22, 79}}, 4));
    EXPECT_EQ(portrait.screenFieldsPresent, Present::PortraitAspectRatio);
    EXPECT_EQ(portrait.aspectRatio, Decimal(178, 2));  // the same number as for landscape
    EXPECT_EQ(ReadProperties(Record({{21, 0}, {22, 0}}, 4)).screenFieldsPresent, Present::None);
}

TEST(Properties, OneUndefinedSizeIsKeptButNotSound) {
    const EdidProperties properties = ReadProperties(Record({{21, 60}, {22, 0}}));
    EXPECT_EQ(properties.verticalSize, Undefined);
    EXPECT_FALSE(properties.GetStatus().IsProper("verticalSize"));
    EXPECT_TRUE(properties.GetStatus().IsAll("verticalSize"));
    EXPECT_TRUE(ReadProperties(Record({{21, 0}, {22, 0}})).IsValid());
}

TEST(Properties, PresentFollowsVersionAndSignal) {
    const EdidProperties analog = ReadProperties(Record({{20, 0}}));
    for (const char* field : {"analogSignalLevel", "analogFlags", "colorType", "week", "horizontalSize"}) {
        EXPECT_TRUE(analog.GetPresent(field)) << field;
    }
    for (const char* field : {"digitalFlags", "digitalInterface", "digitalColorDepth", "digitalColorFormats",
                              "screenFieldsPresent", "aspectRatio", "modelYear"}) {
        EXPECT_FALSE(analog.GetPresent(field)) << field;
    }
    EXPECT_TRUE(ReadProperties(Record({})).GetPresent("digitalFlags"));
    const EdidProperties digital14 = ReadProperties(Record({}, 4));
    for (const char* field :
         {"digitalInterface", "digitalColorDepth", "digitalColorFormats", "screenFieldsPresent", "modelYear"}) {
        EXPECT_TRUE(digital14.GetPresent(field)) << field;
    }
    EXPECT_FALSE(digital14.GetPresent("digitalFlags"));
    EXPECT_FALSE(digital14.GetPresent("colorType"));
}

TEST(Properties, WhatTheSignalCannotCarryGoesToItsDefault) {
    EdidPropertiesFields fields;
    fields.digital = false;
    fields.digitalFlags.Set(EdidDigitalFlagEnum::DfpCompatible, true);
    fields.analogSignalLevel = EdidAnalogSignalLevelEnum::Level1000_0400;
    EdidProperties analog(fields);
    EXPECT_FALSE(analog.digitalFlags.Test(EdidDigitalFlagEnum::DfpCompatible));
    EXPECT_EQ(analog.analogSignalLevel, EdidAnalogSignalLevelEnum::Level1000_0400);
    fields.digital = true;
    EXPECT_EQ(EdidProperties(fields).analogSignalLevel, EdidAnalogSignalLevelEnum::Level0700_0000);
}

TEST(ColorCoordinates, TheDenominatorIs1024) {
    EXPECT_EQ(DecodeColorCoordinate(1023), Decimal::FromMillionths(999023));
    EXPECT_EQ(EncodeColorCoordinate(Decimal(1)), Undefined);
    EXPECT_EQ(EncodeColorCoordinate(Decimal(-1, 3)), Undefined);
    EXPECT_EQ(EncodeColorCoordinate(Decimal(640, 3)), 655);
    EXPECT_TRUE(DecodeColorCoordinate(1024).IsUndefined());
}

TEST(ColorCoordinates, EnteringOneLeavesNoRawValue) {
    EdidColorCoordinatesFields fields;
    fields.value[EdidColorCoordinatesFields::WhiteX] = Decimal(1);
    const EdidColorCoordinates colors(fields);
    EXPECT_EQ(colors.raw[EdidColorCoordinatesFields::WhiteX], Undefined);
    EXPECT_FALSE(colors.IsValid());
    EXPECT_EQ(BytesOf(colors), Bytes());
    EXPECT_EQ(EncodeColorCoordinate(Decimal(2)), Undefined);
}

TEST(ColorCoordinates, EachBitTells) {
    ExpectThatEachBitTells<EdidColorCoordinates>(FromHex("EE 95 A3 54 4C 99 26 0F 50 54"));
    ExpectThatEachBitTells<EdidColorCoordinates>(Bytes(10, 0));
    ExpectThatCutsAreRefused<EdidColorCoordinates>(FromHex("EE 95 A3 54 4C 99 26 0F 50 54"));
}

TEST(ColorCoordinates, DifferByEachOfTheirFields) {
    const EdidColorCoordinates colors;
    EXPECT_EQ(colors, EdidColorCoordinates());
    for (std::size_t i = 0; i < EdidColorCoordinatesFields::CoordinateCount; ++i) {
        EdidColorCoordinates other = colors;
        other.value[i] = Decimal(1, 1);
        EXPECT_FALSE(other == colors) << i;
        other = colors;
        other.raw[i] = 1;
        EXPECT_FALSE(other == colors) << i;
        other = colors;
        other.actual[i] = Decimal(1, 1);
        EXPECT_FALSE(other == colors) << i;
    }
    EdidColorCoordinates other = colors;
    other.useRaw = !other.useRaw;
    EXPECT_FALSE(other == colors);
}

TEST(ColorCoordinates, RawNumbersLeadAfterARead) {
    EdidColorCoordinates colors;
    ASSERT_TRUE(colors.Read(FromHex("EE 95 A3 54 4C 99 26 0F 50 54")));
    EXPECT_TRUE(colors.useRaw);
    EXPECT_EQ(colors.raw, (std::array<int, 8>{655, 338, 307, 614, 154, 61, 321, 337}));
    EXPECT_EQ(colors.value, colors.actual);
    for (int raw = 0; raw < 1024; ++raw) EXPECT_EQ(EncodeColorCoordinate(DecodeColorCoordinate(raw)), raw);
}

}  // namespace
}  // namespace VNT
