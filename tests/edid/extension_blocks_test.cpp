#include <random>

#include "model/cta/colorimetry.h"
#include "model/cta/extension_override.h"
#include "model/cta/gsync.h"
#include "model/cta/video_lists.h"
#include "model/displayid/vendor_specific.h"
#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/text_descriptor.h"
#include "model/edid/vtb_extension_block.h"
#include "tests/edid/support.h"
#include "tests/support/every_bit.h"

namespace VNT::Testing {
namespace {

constexpr const char* Detailed = "02 3A 80 18 71 38 2D 40 58 2C 45 00 13 2B 21 00 00 1E";
constexpr const char* Name = "00 00 00 FC 00 56 41 4E 0A 20 20 20 20 20 20 20 20 20";

// A block of the given bytes and zeros behind them, with the checksum that it should have.
Bytes Block(const Bytes& head) {
    Bytes bytes = head;
    bytes.Resize(127);
    bytes.Append(Bytes{ComputeChecksum(bytes, 127)});
    return bytes;
}
Bytes Block(std::initializer_list<Bytes> parts) { return Block(Join(parts)); }

// The holder reads the bytes as X and writes the same bytes.
template <class X>
X CheckBlock(const Bytes& bytes, bool isValid, const std::string& text) {
    const auto holder = ReadAs<EdidExtensionBlock>(bytes);
    X block;
    EXPECT_TRUE(block.Assign(holder)) << ToHex(bytes);
    EXPECT_EQ(block.IsValid(), isValid) << ToHex(bytes);
    EXPECT_TRUE(block.IsValidAll()) << ToHex(bytes);
    EXPECT_EQ(TextOf(holder), text);
    EXPECT_EQ(BytesOf(holder), bytes);
    return block;
}

template <class X>
X Edited(const X& block) {
    return X(static_cast<const typename X::FieldsType&>(block));
}

template <class X>
CtaDataBlock Hold(const X& block) {
    return CtaDataBlock(block.Clone());
}

TEST(EdidCtaExtensionBlock, HoldsDataBlocksAndDescriptors) {
    const auto block = CheckBlock<EdidCtaExtensionBlock>(
        Block({FromHex("02 03 0E F1 E3 05 01 00 65 4B 04 00 01 1E"), FromHex(Detailed), FromHex(Name)}), true,
        "CTA-861: 2 data blocks, 1 detailed resolution, 1 descriptor");
    EXPECT_EQ(block.version, 3);
    EXPECT_EQ(block.nativeDetailedCount, 1);
    EXPECT_EQ(block.flags.GetBits(), 15u);
    EXPECT_EQ(block.tail, Bytes(77, 0));
    EXPECT_EQ(block.GetDataBlockLimits().BytesLeft(block.dataBlocks), 77);
    EXPECT_EQ(block.GetDescriptorLimits().slots, 6);
}

TEST(EdidCtaExtensionBlock, AnOffsetBelowFourInterpretsNothing) {
    const auto block =
        CheckBlock<EdidCtaExtensionBlock>(Block(FromHex("02 03 02 00 E3 05 01 00")), false,
                                          "CTA-861: 0 data blocks, 0 detailed resolutions, 0 descriptors");
    EXPECT_EQ(block.tail.Size(), 123);
    EXPECT_TRUE(block.dataBlocks.IsEmpty());
}

TEST(EdidCtaExtensionBlock, AnOffsetOfFourHasSlotsAndNoDataBlocks) {
    const auto block =
        CheckBlock<EdidCtaExtensionBlock>(Block({FromHex("02 03 04 00"), FromHex(Detailed)}), true,
                                          "CTA-861: 0 data blocks, 1 detailed resolution, 0 descriptors");
    EXPECT_TRUE(block.dataBlocks.IsEmpty());
}

TEST(EdidCtaExtensionBlock, AnOffsetOfZeroStaysUntilTheBlockIsEdited) {
    const auto block = CheckBlock<EdidCtaExtensionBlock>(
        Block(FromHex("02 03 00 00")), true, "CTA-861: 0 data blocks, 0 detailed resolutions, 0 descriptors");
    EXPECT_EQ(block.detailedOffset, 0);
    EXPECT_EQ(Edited(block).detailedOffset, 4);
    EXPECT_TRUE(Edited(block).IsValid());
}

TEST(EdidCtaExtensionBlock, AnAreaThatEndsInsideADataBlockKeepsItAsPadding) {
    const auto block =
        CheckBlock<EdidCtaExtensionBlock>(Block(FromHex("02 03 0B 00 E3 05 01 00 65 4B 04")), false,
                                          "CTA-861: 1 data block, 0 detailed resolutions, 0 descriptors");
    EXPECT_EQ(block.dataBlockPadding, FromHex("65 4B 04"));
    EXPECT_FALSE(block.GetStatus().IsProper("dataBlockPadding"));
    EXPECT_TRUE(block.GetStatus().IsAll("dataBlockPadding"));
    const auto edited = Edited(block);
    EXPECT_TRUE(edited.dataBlockPadding.IsEmpty());
    EXPECT_EQ(edited.detailedOffset, 8);
    EXPECT_TRUE(edited.IsValid());
}

TEST(EdidCtaExtensionBlock, AnOffsetBehindTheBlockTakesWhatThereIs) {
    Bytes bytes = FromHex("02 03 C8 00");
    for (int i = 0; i < 31; ++i) bytes.Append(FromHex("E3 05 01 00"));
    bytes.Resize(127);
    const auto block = CheckBlock<EdidCtaExtensionBlock>(
        Block(bytes), false, "CTA-861: 30 data blocks, 0 detailed resolutions, 0 descriptors");
    EXPECT_EQ(block.detailedOffset, 200);
    EXPECT_EQ(block.dataBlockPadding.Size(), 3);
    EXPECT_EQ(block.GetDescriptorLimits().slots, 0);
}

TEST(EdidCtaExtensionBlock, ZeroSlotsAtTheEndArePaddingAndEmptyDescriptorsAreNot) {
    const Bytes empty = FromHex("00 00 00 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    const auto block =
        CheckBlock<EdidCtaExtensionBlock>(Block({FromHex("02 03 04 00"), FromHex(Detailed), empty}), true,
                                          "CTA-861: 0 data blocks, 1 detailed resolution, 1 descriptor");
    EXPECT_EQ(block.descriptors.GetCount(), 2);
}

TEST(EdidCtaExtensionBlock, AWrongChecksumIsKeptUntilTheBlockIsEdited) {
    Bytes bytes = Block(FromHex("02 03 08 00 E3 05 01 00"));
    bytes.At(127) ^= 0x55;
    const auto block =
        CheckBlock<EdidCtaExtensionBlock>(bytes, false, "CTA-861: 1 data block, 0 detailed resolutions, 0 descriptors");
    EXPECT_TRUE(Edited(block).IsValid());
    EXPECT_EQ(Edited(block).checksum, ComputeChecksum(bytes));
}

TEST(EdidCtaExtensionBlock, ListsThatExceedTheBlockAreRefused) {
    EdidCtaExtensionBlockFields fields;
    for (int i = 0; i < 31; ++i) EXPECT_TRUE(fields.dataBlocks.Add(Hold(CtaColorimetryDataBlock())));
    EXPECT_FALSE(EdidCtaExtensionBlock(fields).IsValidAll());
    fields.dataBlocks.Remove(0);
    EXPECT_TRUE(EdidCtaExtensionBlock(fields).IsValid());
    EXPECT_EQ(EdidCtaExtensionBlock(fields).GetDataBlockLimits().BytesLeft(fields.dataBlocks), 3);
    EXPECT_EQ(EdidCtaExtensionBlock(fields).detailedOffset, 124);
}

TEST(EdidCtaExtensionBlock, AFullAreaPutsTheOffsetAtTheEnd) {
    EdidCtaExtensionBlockFields fields;
    for (int i = 0; i < 30; ++i) fields.dataBlocks.Add(Hold(CtaColorimetryDataBlock()));
    fields.dataBlocks.Add(Hold(CtaExtensionOverrideDataBlock()));
    const EdidCtaExtensionBlock block(fields);
    EXPECT_EQ(block.detailedOffset, 127);
    EXPECT_TRUE(block.IsValid());
    EXPECT_EQ(ReadAs<EdidCtaExtensionBlock>(BytesOf(block)), block);
}

TEST(EdidCtaExtensionBlock, TheOverrideCountChangesNothingElseOfTheBlock) {
    Bytes bytes = Block(FromHex("02 03 0A 00 E2 78 02 65 4B 04"));
    bytes.At(127) ^= 1;
    auto block = ReadAs<EdidCtaExtensionBlock>(bytes);
    EXPECT_EQ(block.GetOverrideCount(), 2);
    block.SetOverrideCount(2);
    EXPECT_EQ(BytesOf(block), bytes) << "the same count is no edit";
    block.SetOverrideCount(5);
    EXPECT_EQ(block.dataBlockPadding, FromHex("65 4B 04"));
    EXPECT_EQ(block.GetOverrideCount(), 5);
    EXPECT_EQ(block.checksum, block.GetComputedChecksum());
}

TEST(EdidCtaExtensionBlock, AnOverrideWithoutItsCountGetsTheByteWithTheCount) {
    auto block = ReadAs<EdidCtaExtensionBlock>(Block(FromHex("02 03 06 00 E1 78")));
    block.SetOverrideCount(3);
    EXPECT_EQ(block.GetOverrideCount(), 3);
    EXPECT_EQ(BytesOf(block), Block(FromHex("02 03 07 00 E2 78 03")));
}

TEST(EdidCtaExtensionBlock, AnOverrideWithoutItsCountStaysSoWhereThereIsNoRoom) {
    EdidCtaExtensionBlockFields fields;
    CtaDataBlock uncounted;
    EXPECT_TRUE(uncounted.Read(FromHex("E1 78")));
    fields.dataBlocks.Add(uncounted);
    for (int i = 0; i < 30; ++i) fields.dataBlocks.Add(Hold(CtaColorimetryDataBlock()));
    fields.dataBlocks.Add(Hold(CtaVideoResolutionListDataBlock()));
    EdidCtaExtensionBlock block(fields);
    EXPECT_TRUE(block.tail.IsEmpty());
    const EdidCtaExtensionBlock before = block;
    block.SetOverrideCount(3);
    EXPECT_EQ(block, before);
}

TEST(EdidVtbExtensionBlock, HoldsThreeLists) {
    const auto block = CheckBlock<EdidVtbExtensionBlock>(
        Block({FromHex("10 01 01 01 02"), FromHex(Detailed), FromHex("37 F4 3C"), FromHex("81 80 A9 C0")}), true,
        "VTB-EXT: 1 detailed, 1 CVT, 2 standard");
    EXPECT_EQ(block.tail.Size(), 122 - 18 - 3 - 4);
    EXPECT_EQ(block.GetLimitsOf(block.detailed).slots, 6);
    EXPECT_EQ(block.GetLimitsOf(block.standardResolutions).slots, 50);
}

TEST(EdidVtbExtensionBlock, CountsBeyondTheBlockReadWhatFitsAndNoListTakesIt) {
    Bytes bytes = FromHex("10 01 07 00 00");
    for (int i = 0; i < 7; ++i) bytes.Append(FromHex(Detailed));
    bytes.Resize(127);
    const auto block = ReadAs<EdidVtbExtensionBlock>(Block(bytes));
    EXPECT_EQ(block.detailed.GetCount(), 6);
    EXPECT_EQ(block.detailedCount, 7);
    EXPECT_EQ(block.detailedPadding.Size(), 14);
    EXPECT_FALSE(block.IsValid());
    EXPECT_FALSE(block.IsValidAll());
    EdidExtensionBlockList list;
    EXPECT_FALSE(list.Add(EdidExtensionBlock(block.Clone())));
}

TEST(EdidVtbExtensionBlock, OneThatNoListTakesIsKeptAsTheBytesOfAnotherBlock) {
    const Bytes bytes = Block(FromHex("10 01 FF 00 00"));
    EdidExtensionBlockList list;
    EXPECT_TRUE(list.Read(bytes));
    ASSERT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.At(0).GetType(), EdidExtensionBlockTypeId::Other);
    EXPECT_EQ(BytesOf(list.At(0)), bytes);
}

TEST(EdidVtbExtensionBlock, FromTheFirstSlotThatIsNoDetailedTimingOnItIsPadding) {
    const auto block = ReadAs<EdidVtbExtensionBlock>(
        Block({FromHex("10 01 03 00 00"), FromHex(Detailed), FromHex(Name), FromHex(Detailed)}));
    EXPECT_EQ(block.detailed.GetCount(), 1);
    EXPECT_EQ(block.detailedPadding, Join({FromHex(Name), FromHex(Detailed)}));
    EXPECT_EQ(Edited(block).detailedCount, 1);
    EXPECT_TRUE(Edited(block).IsValid());
}

TEST(EdidDisplayIdSectionExtensionBlock, HoldsASectionAndWhatStandsBehindIt) {
    const auto block = CheckBlock<EdidDisplayIdSectionExtensionBlock>(
        Block(FromHex("70 12 06 03 00 7F 00 03 41 42 43 9D")), true, "DisplayID v1: 1 data block");
    EXPECT_EQ(block.section.revision, 2);
    EXPECT_EQ(block.tail, Bytes(115, 0));
    const auto edited = Edited(block);
    EXPECT_EQ(edited.section, block.section);
}

TEST(EdidDisplayIdSectionExtensionBlock, ASectionOfAWrongChecksumIsASectionAndGoesBack) {
    const auto block = CheckBlock<EdidDisplayIdSectionExtensionBlock>(
        Block(FromHex("70 20 06 00 00 7F 00 03 41 42 43 00")), false, "DisplayID v2: 1 data block");
    EXPECT_TRUE(block.raw.IsEmpty());
    EXPECT_EQ(block.section.checksum, 0);
}

TEST(EdidDisplayIdSectionExtensionBlock, AnAreaThatIsNoSectionIsKeptRawAndShownEmpty) {
    const Bytes bytes = Block(FromHex("70 20 FF 00 00 7F 00 03 41 42 43"));
    const auto block = CheckBlock<EdidDisplayIdSectionExtensionBlock>(bytes, false, "DisplayID v1: 0 data blocks");
    EXPECT_EQ(block.raw, bytes.Slice(1, 126));
    EXPECT_TRUE(block.tail.IsEmpty());
    EXPECT_TRUE(block.section.dataBlocks.IsEmpty());
    EXPECT_EQ(Edited(block), EdidDisplayIdSectionExtensionBlock());
}

TEST(EdidExtensionBlock, AnyBytesOfAKnownTagGoBackAsTheyWere) {
    std::mt19937 random(20260107);
    for (const int tag : {0x02, 0x10, 0x70}) {
        for (int round = 0; round < 2000; ++round) {
            Bytes bytes(128, 0);
            for (int i = 1; i < 128; ++i) bytes.At(i) = static_cast<std::uint8_t>(random() % 3 ? random() : 0);
            bytes.At(0) = static_cast<std::uint8_t>(tag);
            if (random() % 2) bytes.At(2) = static_cast<std::uint8_t>(random() % 132);
            EdidExtensionBlockList list;
            ASSERT_TRUE(list.Read(bytes));
            ASSERT_EQ(list.GetCount(), 1) << ToHex(bytes);
            const EdidExtensionBlock& block = list.At(0);
            ASSERT_TRUE(block.GetType() == tag || tag == EdidExtensionBlockTypeId::Vtb) << block.GetType();
            ASSERT_TRUE(block.IsValidAll()) << ToHex(bytes);
            ASSERT_EQ(BytesOf(block), bytes);
        }
    }
}

TEST(EdidExtensionBlock, EachBitTells) {
    std::mt19937 random(20260109);
    for (const int tag : {0x02, 0x10, 0x42, 0x70}) {
        Bytes bytes(128, 0);
        for (int round = 0; round < 5; ++round) {
            bytes.At(0) = static_cast<std::uint8_t>(tag);
            ExpectThatEachBitTells<EdidExtensionBlock>(bytes);
            for (int i = 1; i < 128; ++i) bytes.At(i) = static_cast<std::uint8_t>(random());
            if (round % 2 != 0) bytes.At(2) = static_cast<std::uint8_t>(random() % 128);
        }
    }
    ExpectThatEachBitTells<EdidExtensionBlock>(Block({FromHex("02 03 0B F1 23 09 07 07 83 01 00"), FromHex(Detailed)}));
    ExpectThatEachBitTells<EdidExtensionBlock>(Block(FromHex("70 13 06 02 01 0B 00 03 41 42 43")));
    ExpectThatEachBitTells<EdidExtensionBlock>(
        Block({FromHex("10 01 01 01 01"), FromHex(Detailed), FromHex("1B 24 4E D1 C0")}));
    ExpectThatCutsAreRefused<EdidExtensionBlock>(Block(FromHex("42 01 02 03")));
}

TEST(EdidExtensionBlock, AnEditTwiceIsAsOnce) {
    std::mt19937 random(20260108);
    const auto check = [](auto block) {
        using X = decltype(block);
        const X once = Edited(block);
        ASSERT_TRUE(once.IsValidAll());
        ASSERT_EQ(Edited(once), once);
        ASSERT_EQ(ReadAs<X>(BytesOf(once)), once);
    };
    for (int round = 0; round < 1000; ++round) {
        Bytes bytes(128, 0);
        for (int i = 1; i < 128; ++i) bytes.At(i) = static_cast<std::uint8_t>(random() % 3 ? random() : 0);
        bytes.At(0) = 0x02;
        check(ReadAs<EdidCtaExtensionBlock>(bytes));
        bytes.At(0) = 0x70;
        check(ReadAs<EdidDisplayIdSectionExtensionBlock>(bytes));
        bytes.At(0) = 0x10;
        check(ReadAs<EdidVtbExtensionBlock>(bytes));
    }
}

TEST(EdidExtensionBlock, TheDefaultsAreWhatAnEditWithoutContentGives) {
    EXPECT_EQ(EdidCtaExtensionBlock(), Edited(EdidCtaExtensionBlock()));
    EXPECT_EQ(EdidVtbExtensionBlock(), Edited(EdidVtbExtensionBlock()));
    EXPECT_EQ(EdidDisplayIdSectionExtensionBlock(), Edited(EdidDisplayIdSectionExtensionBlock()));
    EXPECT_EQ(DisplayIdSection(), DisplayIdSection(DisplayIdSectionFields()));
}

TEST(EdidExtensionBlock, ANewBlockOfEachKindIsSound) {
    for (const auto& kind : EdidExtensionBlockKinds::All()) {
        const auto block = kind.make();
        EXPECT_TRUE(block->IsValid()) << kind.title;
        EXPECT_EQ(ReadAs<EdidExtensionBlock>(BytesOf(*block)).GetType(), kind.type) << kind.title;
    }
}

}  // namespace
}  // namespace VNT::Testing
