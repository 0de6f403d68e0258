#include <gtest/gtest.h>

#include "model/edid/established3_descriptor.h"
#include "model/edid/resolution_list_descriptors.h"
#include "tests/support/items.h"

namespace VNT {
namespace {

using namespace Testing;

TEST(StandardResolutionListDescriptor, ReadsItsSlotsAndTrimsTheUnusedOnes) {
    const Bytes bytes = FromHex("00 00 00 FA 00 D1 C0 01 01 81 80 01 01 01 01 01 01 0A");
    const auto item = ReadAs<EdidStandardResolutionListDescriptor>(bytes);
    ASSERT_EQ(item.resolutions.GetCount(), 3);
    EXPECT_EQ(TextOf(item.resolutions.At(0)), "1920x1080 (16:9) @ 60 Hz");
    EXPECT_EQ(TextOf(item.resolutions.At(1)), "Empty");
    EXPECT_EQ(TextOf(item), "Standard resolutions: 3 resolutions");
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(StandardResolutionListDescriptor, KeepsALastByteThatIsNoLineFeed) {
    const Bytes bytes = FromHex("00 00 00 FA 00 D1 C0 01 01 01 01 01 01 01 01 01 01 20");
    const auto item = ReadAs<EdidStandardResolutionListDescriptor>(bytes);
    EXPECT_EQ(item.lastByte, 0x20);
    EXPECT_FALSE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
    EXPECT_EQ(EdidStandardResolutionListDescriptor(static_cast<const EdidStandardResolutionListDescriptorFields&>(item))
                  .lastByte,
              0x0A);
}

TEST(StandardResolutionListDescriptor, HoldsSix) {
    EdidStandardResolutionListDescriptorFields fields;
    for (int i = 0; i < 6; ++i) fields.resolutions.Add(EdidStandardResolution());
    EXPECT_TRUE(EdidStandardResolutionListDescriptor(fields).IsValidAll());
    fields.resolutions.Add(EdidStandardResolution());
    EXPECT_FALSE(EdidStandardResolutionListDescriptor(fields).GetStatus().IsAll("resolutions"));
}

TEST(CvtResolutionListDescriptor, ReadsItsSlotsAndTrimsTheUnusedOnes) {
    const Bytes bytes = FromHex("00 00 00 F8 00 01 1B 24 4E 00 00 00 1B 24 09 00 00 00");
    const auto item = ReadAs<EdidCvtResolutionListDescriptor>(bytes);
    EXPECT_EQ(item.version, 1);
    ASSERT_EQ(item.resolutions.GetCount(), 3);
    EXPECT_EQ(TextOf(item.resolutions.At(0)), "1920x1080 (16:9) @ 60/75/85 Hz");
    EXPECT_EQ(TextOf(item.resolutions.At(1)), "Empty");
    EXPECT_EQ(TextOf(item), "CVT resolutions: 3 resolutions");
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(CvtResolutionListDescriptor, HoldsFourOfAVersionFrom1) {
    EdidCvtResolutionListDescriptorFields fields;
    EXPECT_TRUE(EdidCvtResolutionListDescriptor(fields).IsValid());
    fields.version = 0;
    EXPECT_FALSE(EdidCvtResolutionListDescriptor(fields).IsValid());
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(EdidCvtResolutionListDescriptor(fields).IsValidAll()) << i;
        fields.resolutions.Add(EdidCvtResolution());
    }
    EXPECT_FALSE(EdidCvtResolutionListDescriptor(fields).IsValidAll());
}

TEST(ResolutionListDescriptors, CountTheirResolutions) {
    EXPECT_EQ(TextOf(EdidCvtResolutionListDescriptor()), "CVT resolutions: 0 resolutions");
    EdidStandardResolutionListDescriptorFields fields;
    fields.resolutions.Add(EdidStandardResolution());
    EXPECT_EQ(TextOf(EdidStandardResolutionListDescriptor(fields)), "Standard resolutions: 1 resolution");
}

TEST(ResolutionListDescriptors, ListTheirResolutionsAsParts) {
    const auto holder = ReadAs<EdidDescriptor>(FromHex("00 00 00 FA 00 D1 C0 00 00 01 01 01 01 01 01 01 01 0A"));
    const std::vector<ItemPart> parts = holder.GetParts();
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_STREQ(parts[0].list, "resolutions");
    EXPECT_EQ(parts[0].text.ToUtf8(), "1920x1080 (16:9) @ 60 Hz");
    EXPECT_TRUE(parts[0].isValid);
    EXPECT_EQ(parts[1].index, 1);
    EXPECT_FALSE(parts[1].isValid);
    EXPECT_TRUE(EdidDescriptor(std::make_unique<EdidEmptyDescriptor>()).GetParts().empty());
    EXPECT_TRUE(EdidDescriptor().GetParts().empty());
}

TEST(Established3Descriptor, TheFirstFlagIsTheHighestBitOfByte6) {
    using Flag = EdidEstablished3ResolutionFlagEnum;
    const Bytes bytes = FromHex("00 00 00 F7 00 0A 80 00 00 00 00 10 01 00 00 00 00 01");
    const auto item = ReadAs<EdidEstablished3ResolutionFlagsDescriptor>(bytes);
    EXPECT_EQ(item.revision, 10);
    EXPECT_TRUE(item.resolutions.Test(Flag::Enum{0}));
    EXPECT_FALSE(item.resolutions.Test(Flag::Enum{1}));
    EXPECT_TRUE(item.resolutions.Test(Flag::Enum{43}));
    EXPECT_STREQ(Flag::Texts[43], "1920x1440 @ 75 Hz");
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "Established III resolutions: 4 resolutions");  // unnamed bits count
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(Established3Descriptor, ARevisionBelow10IsKeptOutOfLimits) {
    EdidEstablished3ResolutionFlagsDescriptorFields fields;
    EXPECT_TRUE(EdidEstablished3ResolutionFlagsDescriptor(fields).IsValid());
    EXPECT_EQ(TextOf(EdidEstablished3ResolutionFlagsDescriptor(fields)), "Established III resolutions: 0 resolutions");
    fields.revision = 9;
    EXPECT_FALSE(EdidEstablished3ResolutionFlagsDescriptor(fields).IsValid());
    EXPECT_TRUE(EdidEstablished3ResolutionFlagsDescriptor(fields).IsValidAll());
}

}  // namespace
}  // namespace VNT
