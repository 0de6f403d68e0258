#include "model/displayid/section.h"

#include <tuple>

#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/vendor_specific.h"
#include "tests/support/every_bit.h"

namespace VNT::Testing {
namespace {

// A section of the payload, with the checksum that it should have.
Bytes Section(const char* payload, int version = 1) {
    Bytes bytes{version * 16 + 2, 0, 0, 0};
    bytes.Append(FromHex(payload));
    bytes.At(1) = static_cast<std::uint8_t>(bytes.Size() - 4);
    bytes.Append(Bytes{ComputeChecksum(bytes, bytes.Size())});
    return bytes;
}

DisplayIdSection CheckSection(const Bytes& bytes, bool isValid) {
    const auto section = ReadAs<DisplayIdSection>(bytes);
    EXPECT_EQ(section.size, bytes.Size());
    EXPECT_EQ(BytesOf(section, bytes.Size()), bytes);
    EXPECT_EQ(section.IsValid(), isValid);
    EXPECT_TRUE(section.IsValidAll());
    return section;
}

TEST(DisplayIdSection, AnEmptyPayloadIsAnEmptyList) {
    const auto section = CheckSection(Section(""), true);
    EXPECT_EQ(section.size, 5);
    EXPECT_EQ(section.version, 1);
    EXPECT_EQ(section.revision, 2);
    EXPECT_TRUE(section.dataBlocks.IsEmpty());
}

TEST(DisplayIdSection, TheZeroFrameEndsTheListAndThePaddingSurvives) {
    const auto section = CheckSection(Section("0B 00 01 41 00 00 00"), true);
    EXPECT_EQ(section.dataBlocks.GetCount(), 1);
    EXPECT_EQ(section.padding, Bytes(3, 0));
    EXPECT_TRUE(section.otherBytes.IsEmpty());
}

TEST(DisplayIdSection, ZerosThatEndTheListMayBeFewerThanThree) {
    EXPECT_EQ(CheckSection(Section("0B 00 01 41 00"), true).padding, Bytes(1, 0));
}

TEST(DisplayIdSection, BytesBehindTheZerosAreKeptAndOutOfLimits) {
    const auto section = CheckSection(Section("0B 00 01 41 00 00 00 07"), false);
    EXPECT_EQ(section.padding, FromHex("00 00 00 07"));
}

TEST(DisplayIdSection, TwoZerosBeginABlockOfTypeZero) {
    const auto section = CheckSection(Section("0B 00 01 41 00 00 05"), false);
    EXPECT_EQ(section.otherBytes, FromHex("00 00 05"));
    EXPECT_TRUE(section.padding.IsEmpty());
}

TEST(DisplayIdSection, TwoBytesBehindTheListAreOtherBytes) {
    const auto section = CheckSection(Section("0B 00 01 41 01 00"), false);
    EXPECT_EQ(section.otherBytes, FromHex("01 00"));
    EXPECT_TRUE(section.padding.IsEmpty());
}

TEST(DisplayIdSection, ABlockThatRunsPastThePayloadIsOtherBytes) {
    const auto section = CheckSection(Section("0B 00 01 41 0B 00 09 41"), false);
    EXPECT_EQ(section.dataBlocks.GetCount(), 1);
    EXPECT_EQ(section.otherBytes, FromHex("0B 00 09 41"));
}

TEST(DisplayIdSection, AWrongChecksumIsKeptUntilTheSectionIsEdited) {
    Bytes bytes = Section("0B 00 01 41");
    bytes.At(bytes.Size() - 1) ^= 0x55;
    const auto section = CheckSection(bytes, false);
    DisplayIdSectionFields fields = section;
    fields.revision = 0;
    const DisplayIdSection edited(fields);
    EXPECT_EQ(edited.checksum, edited.ComputeChecksum());
    EXPECT_TRUE(edited.IsValid());
}

TEST(DisplayIdSection, AnEditFillsTheRoomWithZeros) {
    const DisplayIdSectionFields fields = ReadAs<DisplayIdSection>(Section("0B 00 01 41 01 00"));
    const DisplayIdSection edited(fields);
    EXPECT_EQ(edited.size, 126);
    EXPECT_TRUE(edited.otherBytes.IsEmpty());
    EXPECT_EQ(edited.padding, Bytes(117, 0));
    EXPECT_TRUE(edited.IsValid(126));
    EXPECT_FALSE(edited.IsValidAll(125));
    EXPECT_EQ(ReadAs<DisplayIdSection>(BytesOf(edited, 126)), edited);
}

TEST(DisplayIdSection, MoreDataBlocksThanTheRoomHoldsAreRefused) {
    DisplayIdSectionFields fields;
    DisplayId1VendorSpecificDataBlockFields vendor;
    vendor.Extra = Bytes(60, 0x11);
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(fields.dataBlocks.Add(DisplayIdDataBlock(DisplayId1VendorSpecificDataBlock(vendor).Clone())));
    EXPECT_EQ(DisplayIdSection(fields).size, 137);
    EXPECT_FALSE(DisplayIdSection(fields).IsValidAll(126));
    EXPECT_TRUE(DisplayIdSection(fields).IsValidAll());
}

TEST(DisplayIdSection, ALengthThatTheRangeDoesNotHoldIsNoSection) {
    DisplayIdSection section;
    const DisplayIdSection same = section;
    EXPECT_FALSE(section.Read(FromHex("12 01 00 00 00")));
    EXPECT_FALSE(section.Read(FromHex("12 00 00 00")));
    EXPECT_EQ(section, same);
}

TEST(DisplayIdSection, TheVersionDoesNotChooseTheKinds) {
    using Id = DisplayIdDataBlockTypeId;
    const char* payload = "20 00 00 00 01 00 22 00 00 22 02 00 7E 00 03 12 34 56 7F 00 03 41 42 43";
    for (const int version : {1, 2}) {
        const auto section = CheckSection(Section(payload, version), true);
        ASSERT_EQ(section.dataBlocks.GetCount(), 6);
        int index = 0;
        for (const int type : {Id::ProductId2, Id::ProductId1, Id::DetailedResolutionList2,
                               Id::DetailedResolutionList2R2, Id::VendorSpecific2, Id::VendorSpecific1})
            EXPECT_EQ(section.dataBlocks.At(index++).GetType(), type);
    }
}

TEST(DisplayIdSection, ANewOneFillsAnExtensionBlock) {
    const DisplayIdSection section;
    Bytes written = FromHex("10 79 00 00");
    written.Append(Bytes(121, 0));
    written.Append(Bytes{0x77});
    EXPECT_EQ(BytesOf(section, 126), written);
    EXPECT_TRUE(section.IsValid(126));
    EXPECT_FALSE(section.IsValidAll(125));
    EXPECT_EQ(DisplayIdSection(DisplayIdSectionFields()), section);
}

TEST(DisplayIdSection, EachFieldOfTheFrameHasItsBits) {
    const Bytes bytes = FromHex("A5 00 C3 7E 00");
    const auto section = ReadAs<DisplayIdSection>(bytes);
    EXPECT_EQ(section.revision, 0x5);
    EXPECT_EQ(section.version, 0xA);
    EXPECT_EQ(section.size, 5);
    EXPECT_EQ(section.productType, 0x3);
    EXPECT_EQ(section.reserved, 0xC);
    EXPECT_EQ(section.extensionCount, 0x7E);
    EXPECT_EQ(section.checksum, 0x00);
    EXPECT_EQ(BytesOf(section, 5), bytes);
}

TEST(DisplayIdSection, AFrameOfFiveBytesToTwoHundredFiftySixIsSound) {
    for (const int payload : {0, 1, 121, 251, 252, 255}) {
        const Bytes bytes = Section(ToHex(Bytes(payload, 0)).c_str());
        const auto section = ReadAs<DisplayIdSection>(bytes);
        EXPECT_EQ(section.size, payload + 5);
        EXPECT_EQ(section.IsValid(), payload <= 251) << payload;
        EXPECT_TRUE(section.IsValidAll()) << payload;
        EXPECT_TRUE(section.IsValidAll(payload + 5)) << payload;
        EXPECT_FALSE(section.IsValidAll(payload + 4)) << payload;
        DisplayIdSection cut = section;
        EXPECT_FALSE(cut.Read(bytes.Slice(0, bytes.Size() - 1)));
    }
    EXPECT_EQ(DisplayIdSection::MaxSize, 260);
}

TEST(DisplayIdSection, TheVersionIsOneToFifteen) {
    for (const auto& [version, isSound, isCarried] :
         {std::tuple{-1, false, false}, {0, false, true}, {1, true, true}, {15, true, true}, {16, false, false}}) {
        DisplayIdSectionFields fields;
        fields.version = version;
        const ItemStatus status = DisplayIdSection(fields).GetStatus();
        EXPECT_EQ(status.IsProper("version"), isSound) << version;
        EXPECT_EQ(status.IsAll("version"), isCarried) << version;
    }
}

TEST(DisplayIdSection, TheOtherFieldsOfTheFrameTakeAllTheirBits) {
    using Fields = DisplayIdSectionFields;
    const std::tuple<const char*, int Fields::*, int> fields[] = {{"revision", &Fields::revision, 15},
                                                                  {"productType", &Fields::productType, 15},
                                                                  {"reserved", &Fields::reserved, 15},
                                                                  {"extensionCount", &Fields::extensionCount, 255}};
    for (const auto& [name, field, most] : fields) {
        for (const int value : {-1, 0, most, most + 1}) {
            Fields edited;
            edited.*field = value;
            const bool fits = value >= 0 && value <= most;
            EXPECT_EQ(DisplayIdSection(edited).GetStatus().IsProper(name), fits) << name << value;
        }
    }
}

TEST(DisplayIdSection, TheListHasWhatTheFrameLeaves) {
    EXPECT_EQ(DisplayIdSection::GetListLimits(126).bytes, 121);
    EXPECT_EQ(ReadAs<DisplayIdSection>(Section("0B 00 01 41 00 00 00")).GetListLimits().bytes, 4);
}

TEST(DisplayIdSection, EachBitTells) {
    ExpectThatEachBitTells<DisplayIdSection>(Section("0B 00 01 41 00 00 00"));
    ExpectThatEachBitTells<DisplayIdSection>(Section("0B 00 01 41 00 00 00 05", 2));
    ExpectThatEachBitTells<DisplayIdSection>(Section("FF FF FF"));
    ExpectThatCutsAreRefused<DisplayIdSection>(Section("0B 00 01 41 00 00 00"));
}

TEST(DisplayIdSection, EveryByteOfAnySectionGoesBack) {
    std::uint32_t state = 20260107;
    const auto random = [&state] { return static_cast<int>((state = state * 1664525 + 1013904223) / 0x1000000); };
    for (int round = 0; round < 2000; ++round) {
        Bytes bytes(5 + random() % 122, 0);
        for (int i = 0; i < bytes.Size(); ++i) bytes.At(i) = static_cast<std::uint8_t>(random() % 4 ? random() : 0);
        bytes.At(1) = static_cast<std::uint8_t>(bytes.Size() - 5);
        const auto section = ReadAs<DisplayIdSection>(bytes);
        ASSERT_EQ(BytesOf(section, bytes.Size()), bytes) << ToHex(bytes);
    }
}

}  // namespace
}  // namespace VNT::Testing
