#include "model/edid/edid.h"

#include <gtest/gtest.h>

#include "model/edid/text_descriptor.h"
#include "tests/edid/support.h"
#include "tests/support/every_bit.h"

namespace VNT {
namespace {

using namespace Testing;

// A CTA-861 block whose first data block is an extension override that states `count`.
Bytes OverrideBlock(int count) {
    Bytes block(128, 0);
    const int head[] = {0x02, 0x03, 0x07, 0x00, 0xE2, 0x78, count};
    for (int i = 0; i < 7; ++i) block.At(i) = static_cast<std::uint8_t>(head[i]);
    block.At(127) = static_cast<std::uint8_t>(ComputeChecksum(block));
    return block;
}

Bytes UnknownBlock(int tag) {
    Bytes block(128, 0x5A);
    block.At(0) = static_cast<std::uint8_t>(tag);
    return block;
}

Edid ReadEdid(const Bytes& bytes) {
    Edid edid;
    EXPECT_TRUE(edid.Read(bytes));
    return edid;
}

TEST(Edid, ANewOneIsWholeAndItsChecksumRight) {
    const Edid edid;
    EXPECT_TRUE(edid.IsValid());
    const Bytes bytes = edid.GetBytes();
    ASSERT_EQ(bytes.Size(), 128);
    EXPECT_EQ(edid.checksum, ComputeChecksum(bytes));
    EXPECT_EQ(ReadEdid(bytes).GetBytes(), bytes);
}

TEST(Edid, ANewOneHasTheKnownBytes) {
    EXPECT_EQ(
        ToHex(Edid().GetBytes().Slice(0, 54)),
        "00 FF FF FF FF FF FF 00 41 D0 FF 09 00 00 00 00 00 00 01 03 80 00 00 78 2A EE 95 A3 54 4C 99 26 0F 50 54 "
        "00 00 00 01 01 01 01 01 01 01 01 01 01 01 01 01 01 01 01");
}

TEST(Edid, RefusesOneByteLessThanABlock) {
    Edid edid;
    const Edid before = edid;
    EXPECT_FALSE(edid.Read(BaseBlock().Slice(0, 127)));
    EXPECT_EQ(edid, before);
}

TEST(Edid, ReadsABlockWithoutExtensions) { EXPECT_EQ(ReadEdid(BaseBlock()).extensionBlocks.GetCount(), 0); }

TEST(Edid, RefusesAWrongHeader) {
    Bytes bytes = BaseBlock();
    bytes.At(7) = 1;
    EXPECT_FALSE(Edid().Read(bytes));
}

TEST(Edid, FillsMissingBlocksWithDefaultOnes) {
    const Edid edid = ReadEdid(BaseBlock(2));
    ASSERT_EQ(edid.extensionBlocks.GetCount(), 2);
    EXPECT_TRUE(edid.extensionBlocks.At(0) == EdidDefaultExtensionBlock());
    EXPECT_TRUE(edid.extensionBlocks.At(1) == EdidDefaultExtensionBlock());
    EXPECT_EQ(edid.GetBytes().Size(), 3 * 128);
}

TEST(Edid, FillsUpTo255Blocks) {
    const Edid edid = ReadEdid(Join({BaseBlock(255), UnknownBlock(0x77)}));
    ASSERT_EQ(edid.extensionBlocks.GetCount(), 255);
    EXPECT_EQ(edid.extensionBlocks.At(0).GetType(), EdidExtensionBlockTypeId::Other);
    EXPECT_EQ(edid.extensionBlocks.At(254).GetType(), EdidExtensionBlockTypeId::Default);
    EXPECT_TRUE(edid.IsValidAll());
}

TEST(Edid, LeavesBytesBehindTheLastCountedBlock) {
    EXPECT_EQ(ReadEdid(Join({BaseBlock(), UnknownBlock(0x77)})).GetBytes(), BaseBlock());
}

TEST(Edid, EachBitTells) {
    Bytes bytes = BaseBlock(2);
    bytes.Append(OverrideBlock(2));
    bytes.Append(UnknownBlock(0x42));
    ExpectThatEachBitTells<Edid>(bytes);
}

TEST(Edid, APartOfABlockIsNoBlock) {
    const Edid edid = ReadEdid(Join({BaseBlock(1), Bytes(127, 0x33)}));
    ASSERT_EQ(edid.extensionBlocks.GetCount(), 1);
    EXPECT_EQ(edid.extensionBlocks.At(0).GetType(), EdidExtensionBlockTypeId::Default);
}

TEST(Edid, EightUnusedStandardSlotsGiveAnEmptyList) {
    EXPECT_EQ(ReadEdid(BaseBlock()).standardResolutions.GetCount(), 0);
}

TEST(Edid, AnUnusedStandardSlotInFrontOfAUsedOneStays) {
    Bytes bytes = BaseBlock();
    bytes.At(42) = 0xD1;
    bytes.At(43) = 0xC0;
    const Edid edid = ReadEdid(bytes);
    EXPECT_EQ(edid.standardResolutions.GetCount(), 3);
    EXPECT_EQ(edid.GetBytes(), bytes);
}

TEST(Edid, AnEmptyDescriptorInTheMiddleStaysAndAtTheEndIsTrimmed) {
    Bytes bytes = BaseBlock();
    const Bytes name = FromHex("00 00 00 FC 00 41 42 43 0A 20 20 20 20 20 20 20 20 20");
    for (int i = 0; i < 18; ++i) bytes.At(54 + 18 + i) = name.At(i);
    const Edid edid = ReadEdid(bytes);
    EXPECT_EQ(edid.descriptors.GetCount(), 2);
    EXPECT_EQ(edid.GetBytes(), bytes);
}

TEST(Edid, AnEmptyDescriptorWithAPayloadIsNotTrimmed) {
    Bytes bytes = BaseBlock();
    bytes.At(125) = 7;
    const Edid edid = ReadEdid(bytes);
    EXPECT_EQ(edid.descriptors.GetCount(), 4);
    EXPECT_EQ(edid.GetBytes(), bytes);
}

TEST(Edid, KeepsAWrongChecksumUntilAnEdit) {
    const Bytes right = BaseBlock();
    Bytes wrong = right;
    wrong.At(127) = static_cast<std::uint8_t>(wrong.At(127) + 1);
    const Edid edid = ReadEdid(wrong);
    EXPECT_FALSE(edid == ReadEdid(right));
    EXPECT_TRUE(edid.IsValidAll());
    EXPECT_FALSE(edid.IsValid());
    EXPECT_FALSE(edid.GetStatus(edid.GetLimits()).checksum);
    EXPECT_EQ(edid.GetBytes(), wrong);
    EXPECT_EQ(Edid(edid).checksum, edid.checksum);
    EXPECT_EQ(Edid(static_cast<const EdidFields&>(edid)).GetBytes(), right);
}

TEST(Edid, AnOverrideBlockStatesTheCountAndByte126Is1) {
    Edid edid = ReadEdid(Join({BaseBlock(1), OverrideBlock(3), UnknownBlock(0x77), UnknownBlock(0x78)}));
    EXPECT_EQ(edid.extensionBlockCount, 1);
    EXPECT_EQ(edid.extensionOverrideCount, 3);
    ASSERT_EQ(edid.extensionBlocks.GetCount(), 3);

    EdidFields fields = edid;
    fields.extensionBlocks.Remove(2);
    const Edid edited(fields);
    EXPECT_EQ(edited.extensionBlockCount, 1);
    EXPECT_EQ(edited.extensionOverrideCount, 2);
    const Bytes bytes = edited.GetBytes();
    EXPECT_EQ(bytes.At(126), 1);
    EXPECT_EQ(bytes.At(128 + 6), 2);
    EXPECT_EQ(bytes.At(255), ComputeChecksum(bytes.Slice(128, 128)));
    EXPECT_EQ(ReadEdid(bytes).GetBytes(), bytes);
}

TEST(Edid, AnOverrideWithoutItsCountLosesNoBlock) {
    Bytes uncounted(128, 0);
    int at = 0;
    for (const int byte : {0x02, 0x03, 0x06, 0x00, 0xE1, 0x78}) uncounted.At(at++) = static_cast<std::uint8_t>(byte);
    Edid edid = ReadEdid(Join({BaseBlock(3), uncounted, UnknownBlock(0x77), UnknownBlock(0x78)}));
    for (int conversion = 0; conversion < 2; ++conversion) {
        edid = ReadEdid(Edid(EdidFields(edid)).GetBytes());
        EXPECT_EQ(edid.extensionBlocks.GetCount(), 3);
        EXPECT_EQ(edid.extensionOverrideCount, 3);
    }
}

TEST(Edid, AnOverrideIsReadOnlyWhereDataBlocksStand) {
    Bytes block = OverrideBlock(9);
    block.At(2) = 4;  // detailed timings start at once: no data blocks
    EXPECT_EQ(ReadEdid(Join({BaseBlock(1), block})).extensionOverrideCount, Undefined);
}

TEST(Edid, ItsCountsAgreeOrNot) {
    Bytes bytes = BaseBlock(2);
    bytes.Append(OverrideBlock(2));
    bytes.Append(UnknownBlock(0x42));
    Edid edid = ReadEdid(bytes);
    const auto agree = [&edid](int blocks, int overrides) {
        edid.extensionBlockCount = blocks;
        edid.extensionOverrideCount = overrides;
        const bool counts = edid.GetStatus(edid.GetLimits()).counts;
        EXPECT_EQ(edid.GetStatus(edid.GetAllLimits()).counts, counts);
        return counts;
    };
    for (int blocks = -1; blocks <= 4; ++blocks) {
        EXPECT_EQ(agree(blocks, Undefined), blocks == 2) << blocks;
        for (int overrides = -1; overrides <= 4; ++overrides) {
            const bool isAll = blocks == 2 && overrides >= 0 && overrides <= 2;
            const bool isBehind = blocks == 1 && overrides == 2;
            EXPECT_EQ(agree(blocks, overrides), isAll || isBehind) << blocks << " and " << overrides;
        }
    }
}

TEST(EdidStatus, IsAllRightWithoutAnyFault) {
    using Rule = bool EdidStatus::*;
    constexpr EdidStatus right{true, true, true, true, true, true};
    EXPECT_TRUE(right.All());
    for (const Rule rule : {&EdidStatus::properties, &EdidStatus::standardResolutions, &EdidStatus::descriptors,
                            &EdidStatus::extensionBlocks, &EdidStatus::checksum, &EdidStatus::counts}) {
        EdidStatus status = right;
        status.*rule = false;
        EXPECT_FALSE(status.All());
    }
}

TEST(Edid, CountsThatContradictEachOtherAreRefused) {
    Edid edid = ReadEdid(Join({BaseBlock(1), UnknownBlock(0x77)}));
    edid.extensionBlockCount = 2;
    EXPECT_FALSE(edid.IsValidAll());
    EXPECT_TRUE(edid.GetBytes().IsEmpty());
    edid.extensionBlockCount = 1;
    edid.extensionOverrideCount = 1;
    EXPECT_TRUE(edid.IsValidAll());
    edid.extensionOverrideCount = 2;
    EXPECT_FALSE(edid.IsValidAll());
}

TEST(Edid, RefusesToWriteIntoLessThanItsSize) {
    const Edid edid = ReadEdid(BaseBlock());
    Bytes space(127, 0xEE);
    EXPECT_FALSE(edid.Write(space));
    EXPECT_TRUE(space.IsAll(0xEE));
}

TEST(Edid, MoreThan255BlocksCannotBeWritten) {
    EdidFields fields;
    fields.extensionBlocks.FillUp(256);
    EXPECT_FALSE(Edid(fields).IsValidAll());
    EXPECT_EQ(Edid(fields).checksum, Undefined);
}

TEST(Edid, IdentityNamesTheDisplay) {
    EdidFields fields;
    EdidTextDescriptorFields text;
    text.text = "BLUE";
    fields.descriptors.Add(EdidDescriptor(EdidNameDescriptor(text).Clone()));
    text.text = "X77";
    fields.descriptors.Add(EdidDescriptor(EdidSerialNumberDescriptor(text).Clone()));
    const EdidIdentity identity = Edid(fields).GetIdentity();
    EXPECT_EQ(identity.vendorId.ToUtf8(), "PNP");
    EXPECT_EQ(identity.productId, 2559);
    EXPECT_EQ(identity.name.ToUtf8(), "BLUE");
    EXPECT_EQ(identity.serialNumberText.ToUtf8(), "X77");
    EXPECT_TRUE(Edid().GetIdentity().name.IsEmpty());
}

TEST(ExtensionBlock, ZerosAreADefaultBlock) {
    EdidExtensionBlock block;
    ASSERT_TRUE(block.Read(Bytes(128, 0)));
    EXPECT_EQ(block.GetType(), EdidExtensionBlockTypeId::Default);
    EXPECT_EQ(TextOf(block), "Default");
    EXPECT_TRUE(block.IsValid());
    EXPECT_FALSE(block.Read(Bytes(127, 0)));
}

TEST(ExtensionBlock, AnUnknownTagIsKeptWhole) {
    EdidExtensionBlock block;
    ASSERT_TRUE(block.Read(UnknownBlock(0x40)));
    EXPECT_EQ(TextOf(block), "Other (64)");
    EXPECT_FALSE(block.IsValid());  // its checksum is wrong
    EXPECT_TRUE(block.IsValidAll());
    Bytes written(128, 0);
    EXPECT_TRUE(block.Write(written));
    EXPECT_EQ(written, UnknownBlock(0x40));

    EdidOtherExtensionBlock other;
    ASSERT_TRUE(other.Assign(block));
    EXPECT_TRUE(EdidOtherExtensionBlock(other).IsValidAll());
    const EdidOtherExtensionBlock mended(static_cast<const EdidOtherExtensionBlockFields&>(other));
    EXPECT_TRUE(mended.IsValid());
    EXPECT_EQ(mended.data, other.data);
}

TEST(Descriptor, EighteenZeroBytesAreAnOtherDescriptorOfTag0) {
    EdidDescriptor descriptor;
    ASSERT_TRUE(descriptor.Read(Bytes(18, 0)));
    EXPECT_EQ(descriptor.GetType(), EdidDescriptorTypeId::Other);
    EXPECT_EQ(TextOf(descriptor), "Other (0)");
}

TEST(Descriptor, Tag10IsTheEmptyOne) {
    EdidDescriptor descriptor;
    ASSERT_TRUE(descriptor.Read(FromHex("00 00 00 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00")));
    EXPECT_TRUE(descriptor == EdidEmptyDescriptor());
    EXPECT_EQ(TextOf(descriptor), "Empty");
    EXPECT_FALSE(descriptor.Read(Bytes(17, 0)));
}

TEST(Descriptor, KeepsTheBytesOfItsFrame) {
    for (const char* hex : {"00 00 12 10 34 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D",
                            "00 00 12 77 34 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D",
                            "00 00 12 FC 34 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D",
                            "00 00 00 FF 00 41 42 43 44 45 46 47 48 49 4A 4B 4C 4D",
                            "00 00 00 FE 00 41 42 43 44 45 46 47 48 49 4A 4B 4C 0A",
                            "00 00 00 FE 00 41 42 43 44 45 46 47 48 49 4A 4B 0A 00"}) {
        EdidDescriptor descriptor;
        ASSERT_TRUE(descriptor.Read(FromHex(hex))) << hex;
        ASSERT_TRUE(descriptor.IsValidAll()) << hex;
        Bytes written(18, 0xCC);
        EXPECT_TRUE(descriptor.Write(written));
        EXPECT_EQ(ToHex(written), hex);
    }
}

TEST(DescriptorList, FillsTheRestWithEmptyOnes) {
    Bytes written(40, 0xCC);
    EXPECT_TRUE(EdidDescriptorList().Write(written));
    EXPECT_EQ(ToHex(written),
              "00 00 00 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
              "00 00 00 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00 CC CC CC CC");
}

}  // namespace
}  // namespace VNT
