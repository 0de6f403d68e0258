#include "model/cta/product_info.h"

#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

CtaProductInfoDataBlockFields MakeFields(int reserved, const String& name) {
    CtaProductInfoDataBlockFields fields;
    fields.VendorId = 0x123456;
    fields.Reserved = reserved;
    fields.Name = name;
    return fields;
}

TEST(CtaProductInfo, NamesVendorAndProduct) {
    const auto block =
        CheckBlock<CtaProductInfoDataBlock>("E8 21 56 34 AB 07 41 62 20", "Product information: AB3456 - Ab ");
    EXPECT_EQ(block.VendorId, 0xAB3456);
    EXPECT_EQ(block.Reserved, 7);
    EXPECT_EQ(block.Name, U"Ab ");
    EXPECT_EQ(block.PresentLength, 5);
    EXPECT_TRUE(block.IsValid());
}

TEST(CtaProductInfo, AMissingReservedByteStaysMissing) {
    const auto block = CheckBlock<CtaProductInfoDataBlock>("E4 21 56 34 12", "Product information: 123456");
    EXPECT_EQ(block.Size, 5);
    EXPECT_EQ(block.PresentLength, 3);
    EXPECT_TRUE(block.IsValid());
    const CtaProductInfoDataBlock edited(static_cast<const CtaProductInfoDataBlockFields&>(block));
    EXPECT_EQ(BytesOf(edited, edited.GetSize()), FromHex("E4 21 56 34 12"));
}

TEST(CtaProductInfo, ABlockTooShortForItsVendorKeepsItsLength) {
    const auto block = CheckBlock<CtaProductInfoDataBlock>("E2 21 56", "Product information: 000056");
    EXPECT_EQ(block.PresentLength, 1);
    EXPECT_FALSE(block.IsValid());
}

TEST(CtaProductInfo, AnEditTakesTheBytesThatNameAndReservedNeed) {
    EXPECT_EQ(CtaProductInfoDataBlock(MakeFields(0, {})).Size, 5);
    EXPECT_EQ(CtaProductInfoDataBlock(MakeFields(0, {})).PresentLength, 3);
    EXPECT_EQ(CtaProductInfoDataBlock(MakeFields(1, {})).Size, 6);
    EXPECT_EQ(CtaProductInfoDataBlock(MakeFields(1, {})).PresentLength, 4);
    const CtaProductInfoDataBlock named(MakeFields(0, U"A"));
    EXPECT_EQ(named.PresentLength, 5);
    EXPECT_EQ(BytesOf(named, 7), FromHex("E6 21 56 34 12 00 41"));
}

TEST(CtaProductInfo, ANameKeepsEveryByte) {
    const auto block = CheckBlock<CtaProductInfoDataBlock>(
        "E9 21 56 34 12 00 41 00 FF 00",
        "Product information: 123456 - A" + std::string(1, '\0') + "\u00FF" + std::string(1, '\0'));
    EXPECT_EQ(block.Name.Length(), 4);
    const CtaProductInfoDataBlock edited(static_cast<const CtaProductInfoDataBlockFields&>(block));
    EXPECT_EQ(edited, block);
}

TEST(CtaProductInfo, ANameOfBracesIsNoTemplate) {
    EXPECT_EQ(TextOf(CtaProductInfoDataBlock(MakeFields(0, U"{name}"))), "Product information: 123456 - {name}");
}

TEST(CtaProductInfo, ANameHasRoomForWhatIsLeftAndForCharactersOfAByte) {
    const CtaProductInfoDataBlock block(MakeFields(0, U"abcd"));
    EXPECT_TRUE(block.IsValid(10));
    EXPECT_FALSE(block.GetStatus(9).IsProper("Name"));
    EXPECT_FALSE(block.IsValidAll(9));
    EXPECT_TRUE(CtaProductInfoDataBlock(MakeFields(0, String(std::u32string(26, U'x')))).IsValidAll());
    EXPECT_FALSE(CtaProductInfoDataBlock(MakeFields(0, String(std::u32string(27, U'x')))).IsValidAll());
    EXPECT_TRUE(CtaProductInfoDataBlock(MakeFields(0, U"\u00FF")).IsValid());
    EXPECT_FALSE(CtaProductInfoDataBlock(MakeFields(0, U"\u0100")).IsValidAll());
    EXPECT_FALSE(block.GetAvailable(6).IsProper("Name"));
    EXPECT_TRUE(block.GetAvailable(7).IsProper("Name"));
}

}  // namespace
}  // namespace VNT::Testing
