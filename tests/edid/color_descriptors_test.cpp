#include <gtest/gtest.h>

#include "model/edid/color_management_descriptor.h"
#include "model/edid/color_point_descriptor.h"
#include "tests/support/items.h"

namespace VNT {
namespace {

using namespace Testing;

// Point 1: index 1, raw 321 and 337, gamma 2.20; point 2: index 2, raw 0 and 1023, no gamma, reserved bits.
const Bytes TwoPoints = FromHex("00 00 00 FB 00 01 05 50 54 78 02 A3 00 FF FF 0A 20 20");

EdidColorPointDescriptor WithPoint(const EdidColorPoint& point, bool useRaw) {
    EdidColorPointDescriptorFields fields;
    fields.useRaw = useRaw;
    fields.points[0] = point;
    return EdidColorPointDescriptor(fields);
}

TEST(ColorDescriptors, WhatIsAddedComesBackRaw) {
    EXPECT_EQ(EdidDescriptor(std::make_unique<EdidColorPointDescriptor>()).GetType(), EdidDescriptorTypeId::ColorPoint);
    for (const Bytes& bytes : {BytesOf(EdidColorPointDescriptor()), BytesOf(EdidColorManagementDescriptor())}) {
        const auto descriptor = ReadAs<EdidDescriptor>(bytes);
        EXPECT_EQ(descriptor.GetType(), EdidDescriptorTypeId::Other);
        EXPECT_EQ(BytesOf(descriptor, 18), bytes);
    }
    EXPECT_EQ(TextOf(ReadAs<EdidDescriptor>(TwoPoints)), "Other (251)");
    EXPECT_EQ(TextOf(ReadAs<EdidColorPointDescriptor>(TwoPoints)), "Color point");
    EXPECT_EQ(TextOf(EdidColorManagementDescriptor()), "Color management");
}

TEST(ColorPointDescriptor, ReadsBothPoints) {
    const auto item = ReadAs<EdidColorPointDescriptor>(TwoPoints);
    EXPECT_TRUE(item.useRaw);
    EXPECT_EQ(item.points[0].index, 1);
    EXPECT_EQ(item.points[0].rawX, 321);
    EXPECT_EQ(item.points[0].rawY, 337);
    EXPECT_EQ(item.points[0].x, DecodeColorCoordinate(321));
    EXPECT_EQ(item.points[0].gamma, Decimal(220, 2));
    EXPECT_EQ(item.points[1].index, 2);
    EXPECT_EQ(item.points[1].rawX, 0);
    EXPECT_EQ(item.points[1].rawY, 1023);
    EXPECT_TRUE(item.points[1].gamma.IsUndefined());
    EXPECT_EQ(item.points[1].reservedBits, 0xA);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), TwoPoints);
}

TEST(ColorPointDescriptor, APointOfZerosIsEmptyAndKeepsItsReservedBits) {
    const Bytes bytes = FromHex("00 00 00 FB 00 01 05 50 54 78 00 70 00 00 00 0A 20 20");
    const auto item = ReadAs<EdidColorPointDescriptor>(bytes);
    EXPECT_TRUE(item.points[1].IsEmpty());
    EXPECT_EQ(item.points[1].index, Undefined);
    EXPECT_TRUE(item.points[1].x.IsUndefined());
    EXPECT_EQ(item.points[1].reservedBits, 7);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(ColorPointDescriptor, OneNumberThatIsNotZeroMakesAPoint) {
    for (const char* hex : {"01 00 00 00 00", "00 04 00 00 00", "00 00 00 01 00", "00 00 00 00 FF"}) {
        const Bytes bytes = FromHex((std::string("00 00 00 FB 00 ") + hex + " 00 00 00 00 00 0A 20 20").c_str());
        const auto item = ReadAs<EdidColorPointDescriptor>(bytes);
        EXPECT_FALSE(item.points[0].IsEmpty()) << hex;
        EXPECT_EQ(BytesOf(item), bytes);
    }
}

TEST(ColorPointDescriptor, PartOfAPointIsNotValid) {
    EdidColorPoint point;
    point.index = 1;
    EXPECT_FALSE(WithPoint(point, false).IsValidAll());
    point.x = Decimal(313, 3);
    point.y = Decimal(329, 3);
    EXPECT_TRUE(WithPoint(point, false).IsValid());
    point.index = Undefined;
    EXPECT_FALSE(WithPoint(point, false).IsValidAll());
}

TEST(ColorPointDescriptor, TheIndexStartsAt1AndAt2) {
    EdidColorPointDescriptorFields fields = ReadAs<EdidColorPointDescriptor>(TwoPoints);
    fields.points[0].index = 0;
    fields.points[1].index = 1;
    const ItemStatus status = EdidColorPointDescriptor(fields).GetStatus();
    EXPECT_FALSE(status.IsProper("index1"));
    EXPECT_FALSE(status.IsProper("index2"));
    EXPECT_TRUE(status.IsValidAll());
}

TEST(ColorPointDescriptor, CoordinatesAndRawNumbersFollowFromEachOther) {
    EdidColorPoint point;
    point.index = 1;
    point.x = Decimal(313, 3);
    point.y = Decimal(1);
    const EdidColorPoint fromValue = WithPoint(point, false).points[0];
    EXPECT_EQ(fromValue.x, Decimal(313, 3));
    EXPECT_EQ(fromValue.rawX, 321);
    EXPECT_EQ(fromValue.rawY, Undefined);  // 1.0 has none
    EXPECT_FALSE(WithPoint(point, false).GetStatus().IsAll("rawY1"));
    point.rawX = 640;
    point.rawY = 0;
    const EdidColorPoint fromRaw = WithPoint(point, true).points[0];
    EXPECT_EQ(fromRaw.x, Decimal(625, 3));
    EXPECT_EQ(fromRaw.y, Decimal());
}

TEST(ColorPointDescriptor, PaddingIsKept) {
    Bytes bytes = TwoPoints;
    bytes.At(15) = 0;
    const auto item = ReadAs<EdidColorPointDescriptor>(bytes);
    EXPECT_FALSE(item.GetStatus().IsProper("padding"));
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_EQ(BytesOf(item), bytes);
    EXPECT_TRUE(EdidColorPointDescriptor(static_cast<const EdidColorPointDescriptorFields&>(item)).IsValid());
}

TEST(ColorManagementDescriptor, CoefficientsAreSignedHundredths) {
    const Bytes bytes = FromHex("00 00 00 F9 00 03 64 00 9C FF FF 7F 00 80 00 00 01 00");
    const auto item = ReadAs<EdidColorManagementDescriptor>(bytes);
    EXPECT_EQ(item.version, 3);
    EXPECT_EQ(item.redA3, Decimal(1));
    EXPECT_EQ(item.redA2, Decimal(-1));
    EXPECT_EQ(item.greenA3, Decimal(32767, 2));
    EXPECT_EQ(item.greenA2, Decimal(-32768, 2));
    EXPECT_EQ(item.blueA3, Decimal());
    EXPECT_EQ(item.blueA2, Decimal(1, 2));
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(ColorManagementDescriptor, LimitsOfWhatIsEntered) {
    EdidColorManagementDescriptorFields fields;
    fields.redA3 = Decimal(5, 3);
    EXPECT_FALSE(EdidColorManagementDescriptor(fields).GetStatus().IsAll("redA3"));
    fields.redA3 = Decimal(-32769, 2);
    EXPECT_FALSE(EdidColorManagementDescriptor(fields).IsValidAll());
    fields.redA3 = Decimal();
    fields.version = 2;
    EXPECT_FALSE(EdidColorManagementDescriptor(fields).IsValid());
    EXPECT_TRUE(EdidColorManagementDescriptor(fields).IsValidAll());
}

}  // namespace
}  // namespace VNT
