#include "model/cta/data_block.h"

#include "model/cta/colorimetry.h"
#include "model/cta/extension_override.h"
#include "model/cta/gsync.h"
#include "model/cta/other_data_block.h"
#include "model/cta/vendor_specific.h"
#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

template <class X>
CtaDataBlock Hold(const X& block) {
    return CtaDataBlock(block.Clone());
}

CtaDataBlockList ReadList(const char* hex) {
    CtaDataBlockList list;
    EXPECT_TRUE(list.Read(FromHex(hex)));
    return list;
}

TEST(CtaDataBlock, ATypeIsMadeOfFamilyAndCode) {
    using Id = CtaDataBlockTypeId;
    EXPECT_EQ(Id::VideoFormatResolutionList, 0x6);
    EXPECT_EQ(Id::ExtensionOverride, 0x1000078);
    EXPECT_EQ(Id::Microsoft, 0x2CA125C);
    EXPECT_EQ(Id::Hdr10Plus, 0x390848B);
    EXPECT_EQ(Id::Other, 0x5000000);
    EXPECT_EQ(Id::OfVendor(0x00044B), Id::GSync);
}

TEST(CtaDataBlock, TagSevenOfLengthZeroHasNoExtendedTag) {
    const auto block = CheckBlock<CtaOtherDataBlock>("E0", "Other (7)");
    EXPECT_EQ(block.Size, 1);
    EXPECT_EQ(AnyCtaDataBlock::Peek(FromHex("E0")).type, 7);
}

TEST(CtaDataBlock, AVendorBlockTooShortForItsOuiStaysAVendorBlock) {
    const auto block = CheckBlock<CtaVendorSpecificDataBlock>("62 AA BB", "Vendor-specific: 00BBAA");
    EXPECT_EQ(block.Size, 3);
    EXPECT_EQ(block.PresentLength, 2);
    EXPECT_EQ(CheckBlock<CtaVendorSpecificDataBlock>("60", "Vendor-specific: 000000").PresentLength, 0);
    EXPECT_EQ(CheckBlock<CtaVendorSpecificVideoDataBlock>("E1 01", "Vendor-specific video: 000000").PresentLength, 0);
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
}

TEST(CtaDataBlock, AnUnknownOuiIsRetained) {
    EXPECT_EQ(CheckBlock<CtaVendorSpecificDataBlock>("63 56 34 12", "Vendor-specific: 123456").VendorId, 0x123456);
    EXPECT_EQ(CheckBlock<CtaVendorSpecificVideoDataBlock>("E4 01 56 34 12", "Vendor-specific video: 123456").VendorId,
              0x123456);
    EXPECT_EQ(CheckBlock<CtaVendorSpecificAudioDataBlock>("E4 11 56 34 12", "Vendor-specific audio: 123456").VendorId,
              0x123456);
}

TEST(CtaDataBlock, AVendorBlockOf32BytesRoundTrips) {
    const auto block = CheckBlock<CtaVendorSpecificDataBlock>(
        "7F 56 34 12 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B",
        "Vendor-specific: 123456");
    EXPECT_EQ(block.Extra.Size(), 28);
    EXPECT_TRUE(block.IsValid(32));
    EXPECT_FALSE(block.IsValidAll(31));
}

TEST(CtaDataBlock, AHeaderThatClaimsMoreThanThereIsIsNoBlock) {
    CtaDataBlock block;
    EXPECT_FALSE(block.Read(FromHex("63 56 34")));
    EXPECT_FALSE(block.Read(Bytes()));
    EXPECT_TRUE(block.IsEmpty());
    EXPECT_EQ(block.GetType(), 0x6000000);
    EXPECT_EQ(block.GetSize(), 0);
    EXPECT_FALSE(block.IsAvailable(32) || block.IsValid(32) || block.IsValidAll(32));
    EXPECT_EQ(TextOf(block), "");
}

TEST(CtaDataBlock, AnUnknownExtendedTagIsKeptWhole) {
    const auto block = CheckBlock<CtaOtherDataBlock>("E3 63 01 02", "Other (7)");
    EXPECT_EQ(block.Extra, FromHex("63 01 02"));
    CheckBlock<CtaOtherDataBlock>("A1 09", "Other (5)");
}

TEST(CtaDataBlock, TheTypeIsFoundInEveryFamily) {
    const auto peek = [](const char* hex) { return AnyCtaDataBlock::Peek(FromHex(hex)); };
    EXPECT_EQ(peek("43 00 00 00").type, 2);
    EXPECT_EQ(peek("E2 05 00").type, 0x1000005);
    EXPECT_EQ(peek("65 4B 04 00 01 1E").type, 0x200044B);
    EXPECT_EQ(peek("65 4B 04 00 01 1E").plainType, 3);
    EXPECT_EQ(peek("E4 01 8B 84 90").type, 0x390848B);
    EXPECT_EQ(peek("E4 01 8B 84 90").plainType, 0x1000001);
    EXPECT_EQ(peek("E4 11 8B 84 90").type, 0x490848B);
    EXPECT_EQ(peek("E4 11 8B 84 90").plainType, 0x1000011);
    EXPECT_EQ(peek("").type, 0x6000000);
}

TEST(CtaDataBlock, AKindRefusesTheBytesOfAnother) {
    auto block = ReadAs<CtaGSyncDataBlock>(FromHex("65 4B 04 00 01 1E"));
    const auto same = block;
    EXPECT_FALSE(block.Read(FromHex("65 4B 04 01 02 03")));
    EXPECT_FALSE(block.Read(FromHex("E3 05 00 00")));
    EXPECT_EQ(block, same);
}

TEST(CtaDataBlock, GSyncOfItsOuiAloneWritesItsOuiOnly) {
    const auto block = CheckBlock<CtaGSyncDataBlock>("63 4B 04 00", "G-SYNC");
    EXPECT_EQ(block.PresentLength, 0);
    EXPECT_EQ(block.Version, 0);
    EXPECT_FALSE(block.IsValid());
    EXPECT_EQ(CheckBlock<CtaGSyncDataBlock>("65 4B 04 00 01 1E", "G-SYNC").MinRefreshRate, 30);
    EXPECT_EQ(TextOf(block, U"{version}/{minrefreshrate}"), "0/0");
}

TEST(CtaDataBlock, AnEditTakesTheLengthThatTheFieldsNeed) {
    CtaGSyncDataBlockFields fields = ReadAs<CtaGSyncDataBlock>(FromHex("63 4B 04 00"));
    EXPECT_EQ(CtaGSyncDataBlock(fields).Size, 6);
    EXPECT_EQ(CtaGSyncDataBlock(fields).PresentLength, 2);
    fields.Extra = Bytes{1, 2};
    EXPECT_EQ(CtaGSyncDataBlock(fields).Size, 8);
    EXPECT_EQ(CtaGSyncDataBlock(fields).PresentLength, 3);
}

TEST(CtaDataBlock, AColorimetryBlockOfThreeBytesHoldsHalfItsFlags) {
    const auto block = CheckBlock<CtaColorimetryDataBlock>("E2 05 83", "Colorimetry");
    EXPECT_EQ(block.Flags.GetBits(), 0x83u);
    EXPECT_EQ(block.PresentLength, 1);
    EXPECT_EQ(CheckBlock<CtaColorimetryDataBlock>("E3 05 00 8F", "Colorimetry").Flags.GetBits(), 0x8F00u);
}

TEST(CtaDataBlock, BytesBehindTheFieldsAreExtra) {
    const auto block = CheckBlock<CtaColorimetryDataBlock>("E5 05 00 00 12 34", "Colorimetry");
    EXPECT_EQ(block.Extra, FromHex("12 34"));
    EXPECT_EQ(block.PresentLength, 3);
}

TEST(CtaDataBlock, AFieldOpensWhereTheRoomReachesItsLastByte) {
    const CtaGSyncDataBlock block;
    EXPECT_FALSE(block.GetAvailable(4).IsProper("Version"));
    EXPECT_TRUE(block.GetAvailable(5).IsProper("Version"));
    EXPECT_FALSE(block.GetAvailable(5).IsProper("MinRefreshRate"));
    EXPECT_TRUE(block.GetAvailable(6).IsProper("MinRefreshRate"));
    EXPECT_FALSE(block.GetAvailable(6).IsProper("Extra"));
    EXPECT_TRUE(block.GetAvailable(7).IsProper("Extra"));
}

TEST(CtaDataBlock, TheHexDataOfAVendorIsLimitedByTheRoom) {
    CtaVendorSpecificDataBlockFields fields;
    fields.Extra = Bytes(6, 0x11);
    const CtaVendorSpecificDataBlock block(fields);
    EXPECT_TRUE(block.IsValid(10));
    EXPECT_TRUE(block.GetStatus(10).IsProper("Extra"));
    EXPECT_FALSE(block.GetStatus(9).IsProper("Extra"));
    EXPECT_EQ(TextOf(block, U"{sizetext}"), "6 bytes");
}

TEST(CtaDataBlockList, ZerosAreBlocksOfTagZeroToTheEndOfTheRange) {
    const auto list = ReadList("00 00 00");
    ASSERT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetSize(), 3);
    for (const CtaDataBlock& block : list) EXPECT_EQ(block.GetType(), CtaDataBlockTypeId::Other);
}

TEST(CtaDataBlockList, ReadsToTheFirstPlaceWithoutABlock) {
    const auto list = ReadList("E3 05 00 00 65 4B 04 00 01 1E 44 01 02");
    ASSERT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetSize(), 10);
    EXPECT_EQ(list.At(1).GetType(), CtaDataBlockTypeId::GSync);
}

TEST(CtaDataBlockList, AnOverrideGoesInFrontWhenAddedAndStaysWhereItWasRead) {
    CtaDataBlockList list = ReadList("E3 05 00 00 E2 78 03");
    EXPECT_EQ(list.At(0).GetType(), CtaDataBlockTypeId::Colorimetry);
    EXPECT_EQ(list.GetOverrideCount(), Undefined);
    EXPECT_TRUE(list.Add(Hold(CtaExtensionOverrideDataBlock())));
    EXPECT_EQ(list.At(0).GetType(), CtaDataBlockTypeId::ExtensionOverride);
    EXPECT_EQ(list.GetOverrideCount(), 1);
    EXPECT_TRUE(list.Add(Hold(CtaGSyncDataBlock())));
    EXPECT_EQ(list.At(3).GetType(), CtaDataBlockTypeId::GSync);
}

TEST(CtaDataBlockList, ASecondOverrideGoesInFrontOfTheFirst) {
    CtaDataBlockList list = ReadList("E2 78 03");
    EXPECT_TRUE(list.Add(Hold(CtaExtensionOverrideDataBlock())));
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetOverrideCount(), 1);
    CtaExtensionOverrideDataBlock earlier;
    EXPECT_TRUE(list.Get(1, earlier));
    EXPECT_EQ(earlier.BlockCount, 3);
}

TEST(CtaDataBlockList, SettingTheCountChangesNothingElse) {
    CtaDataBlockList list = ReadList("E3 78 03 AA E3 05 00 00");
    list.SetOverrideCount(7);
    Bytes bytes(list.GetSize(), 0);
    EXPECT_TRUE(list.Write(bytes));
    EXPECT_EQ(bytes, FromHex("E3 78 07 AA E3 05 00 00"));
}

TEST(CtaDataBlockList, RefusesWhatHasNoPlace) {
    CtaDataBlockList list;
    EXPECT_FALSE(list.Add(CtaDataBlock()));
    EXPECT_FALSE(list.Insert(1, Hold(CtaGSyncDataBlock())));
    EXPECT_FALSE(list.Insert(-1, Hold(CtaGSyncDataBlock())));
    EXPECT_TRUE(list.Insert(0, Hold(CtaGSyncDataBlock())));
    Bytes tooShort(5, 0xEE);
    EXPECT_FALSE(list.Write(tooShort));
    EXPECT_TRUE(tooShort.IsAll(0xEE));
}

}  // namespace
}  // namespace VNT::Testing
