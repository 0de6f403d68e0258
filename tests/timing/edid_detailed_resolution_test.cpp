#include "model/timing/edid_detailed_resolution.h"

#include <gtest/gtest.h>

namespace VNT {

namespace {

// 1920x1080 at 60 Hz as most monitors hold it: 148.5 MHz, 597 x 336 mm, digital separate sync, both positive.
const Bytes FullHd{0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58,
                   0x2C, 0x45, 0x00, 0x55, 0x50, 0x21, 0x00, 0x00, 0x1E};

EdidDetailedResolution ReadFrom(const Bytes& bytes) {
    EdidDetailedResolution item;
    EXPECT_TRUE(item.Read(bytes));
    return item;
}

Bytes BytesOf(const EdidDetailedResolution& item) {
    Bytes bytes;
    bytes.Resize(AnyEdidDescriptor::FrameSize);
    EXPECT_TRUE(item.Write(bytes));
    return bytes;
}

String TextOf(const AnyEdidDescriptor& item) {
    String text;
    item.GetText(text);
    return text;
}

}  // namespace

TEST(EdidDetailedResolution, ReadsTheFieldsOfAFullHdTiming) {
    const EdidDetailedResolution item = ReadFrom(FullHd);
    EXPECT_EQ(item.hactive, 1920);
    EXPECT_EQ(item.hfront, 88);
    EXPECT_EQ(item.hsync, 44);
    EXPECT_EQ(item.hback, 148);
    EXPECT_EQ(item.hblank, 280);
    EXPECT_EQ(item.htotal, 2200);
    EXPECT_EQ(item.vactive, 1080);
    EXPECT_EQ(item.vfront, 4);
    EXPECT_EQ(item.vsync, 5);
    EXPECT_EQ(item.vback, 36);
    EXPECT_EQ(item.vtotal, 1125);
    EXPECT_EQ(item.imageWidth, 597);
    EXPECT_EQ(item.imageHeight, 336);
    EXPECT_EQ(item.actualpixelclock, Decimal(1485, 1));
    EXPECT_EQ(item.actualvrate, Decimal(60));
    EXPECT_EQ(item.actualhrate, Decimal(675, 1));
    EXPECT_TRUE(item.hpolarity);
    EXPECT_TRUE(item.vpolarity);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item).ToUtf8(), "1920x1080 @ 60.000 Hz (148.50 MHz) [+/+]");
    EXPECT_EQ(BytesOf(item), FullHd);
}

TEST(EdidDetailedResolution, IsADescriptorAndAResolution) {
    const EdidDetailedResolution item = ReadFrom(FullHd);
    const AnyEdidDescriptor& descriptor = item;
    const AnyResolution& resolution = item;
    EXPECT_EQ(descriptor.GetType(), EdidDescriptorTypeId::DetailedResolution);
    EXPECT_EQ(resolution.GetType(), ResolutionTypeEnum::EdidDetailed);
    EXPECT_TRUE(*descriptor.Clone() == descriptor);
    EXPECT_TRUE(*resolution.Clone() == resolution);
    EXPECT_TRUE(item == ReadFrom(FullHd));
    EXPECT_FALSE(item == EdidDetailedResolution());
    EdidDetailedResolution other;
    EXPECT_TRUE(other.Assign(descriptor));
    EXPECT_TRUE(other == item);
}

}  // namespace VNT
