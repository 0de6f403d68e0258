#include "model/displayid/data_block.h"

#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/vendor_specific.h"
#include "tests/support/displayid.h"

namespace VNT::Testing {
namespace {

TEST(DisplayIdDataBlock, ThePeekTellsSevenValues) {
    const DisplayIdBlockType block = PeekDisplayIdBlockType(FromHex("7E 8A 04 00 0C 03 55 99"));
    EXPECT_EQ(block.type, 0x2000C03);
    EXPECT_EQ(block.plainType, 0x7E);
    EXPECT_EQ(block.tag, 0x7E);
    EXPECT_EQ(block.revision, 2);
    EXPECT_EQ(block.flags, 0x11);
    EXPECT_EQ(block.size, 7);
    EXPECT_EQ(block.oui, 0x000C03);
    EXPECT_EQ(PeekDisplayIdBlockType(FromHex("7F 00 03 41 42 43")).type, 0x1414243);
    EXPECT_EQ(PeekDisplayIdBlockType(FromHex("0B 00 01 41")).oui, Undefined);
}

TEST(DisplayIdDataBlock, TwoBytesAreNoBlock) {
    const DisplayIdBlockType block = PeekDisplayIdBlockType(FromHex("0B 00"));
    EXPECT_EQ(block.type, DisplayIdDataBlockTypeId::None);
    EXPECT_EQ(block.tag, Undefined);
}

TEST(DisplayIdDataBlock, ThreeZeroBytesAreNoBlock) {
    DisplayIdDataBlock block;
    EXPECT_FALSE(block.Read(FromHex("00 00 00")));
    EXPECT_TRUE(block.Read(FromHex("00 01 00")));
    EXPECT_TRUE(block.Read(FromHex("00 08 00")));
}

TEST(DisplayIdDataBlock, ABlockThatRunsPastTheRangeIsNone) {
    DisplayIdDataBlock block;
    EXPECT_FALSE(block.Read(FromHex("0B 00 02 41")));
    EXPECT_TRUE(block.IsEmpty());
    EXPECT_EQ(block.GetType(), 0x4000000);
}

TEST(DisplayIdDataBlock, AVendorBlockTooShortForItsVendorStaysOne) {
    const auto block = CheckBlock<DisplayId1VendorSpecificDataBlock>("7F 00 02 41 42", "Vendor-specific: AB");
    EXPECT_EQ(block.PresentLength, 2);
    EXPECT_FALSE(block.IsValid(4));
    EXPECT_EQ(CheckBlock<DisplayId2VendorSpecificDataBlock>("7E 00 00", "Vendor-specific: 000000").PresentLength, 0);
}

TEST(DisplayIdDataBlock, VendorsAreNamedByLettersOrByNumber) {
    const auto letters =
        CheckBlock<DisplayId1VendorSpecificDataBlock>("7F 2A 05 41 42 43 01 02", "Vendor-specific: ABC");
    EXPECT_EQ(letters.revision, 2);
    EXPECT_EQ(letters.flags, 5);
    EXPECT_EQ(letters.Extra, FromHex("01 02"));
    EXPECT_EQ(CheckBlock<DisplayId2VendorSpecificDataBlock>("7E 00 03 12 34 56", "Vendor-specific: 123456").vendorId,
              0x123456);
}

TEST(DisplayIdDataBlock, AnUnknownTagKeepsItsBytes) {
    const auto block = CheckBlock<DisplayIdOtherDataBlock>("55 FF 03 01 02 03", "Other (85)");
    EXPECT_EQ(block.Extra, FromHex("01 02 03"));
    EXPECT_EQ(block.revision, 7);
    EXPECT_EQ(block.flags, 31);
}

TEST(DisplayIdDataBlock, ACarrierWithoutPayloadIsAnEmptyList) {
    const auto block = CheckBlock<DisplayIdCtaDataBlockListDataBlock>("81 00 00", "CTA-861 data blocks: 0 data blocks");
    EXPECT_TRUE(block.dataBlocks.IsEmpty());
}

TEST(DisplayIdDataBlock, ACarrierKeepsWhatItsListLeaves) {
    const auto block = CheckBlock<DisplayIdCtaDataBlockListDataBlock>("81 08 08 E3 05 01 00 65 4B 04 00",
                                                                      "CTA-861 data blocks: 1 data block");
    EXPECT_EQ(block.dataBlocks.GetCount(), 1);
    EXPECT_EQ(block.Extra, FromHex("65 4B 04 00"));
    EXPECT_EQ(block.flags, 1);
    ASSERT_EQ(block.GetParts().size(), 1u);
    EXPECT_EQ(block.GetParts()[0].text, "Colorimetry");
}

TEST(DisplayIdDataBlock, ACarriersListLivesFromTheRoomOfTheBlock) {
    auto block =
        CheckBlock<DisplayIdCtaDataBlockListDataBlock>("81 00 04 E3 05 01 00", "CTA-861 data blocks: 1 data block");
    EXPECT_EQ(block.GetListLimits(20).BytesLeft(block.dataBlocks), 13);
    EXPECT_TRUE(block.IsValid(7));
    EXPECT_FALSE(block.IsValidAll(6));
    EXPECT_FALSE(block.GetStatus(6).IsAll("dataBlocks"));
}

}  // namespace
}  // namespace VNT::Testing
