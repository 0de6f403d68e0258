#include "model/cta/hdmi2.h"

#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

using Block = CtaHdmi2DataBlock;
using Fields = CtaHdmi2DataBlockFields;

Bytes Edited(const Fields& fields) {
    const Block block(fields);
    return BytesOf(block, block.Size);
}

TEST(CtaHdmi2, ANewBlockTakesEightBytes) {
    EXPECT_EQ(Edited({}), FromHex("67 D8 5D C4 01 00 00 00"));
    EXPECT_EQ(Block().PresentLength, 4);
    EXPECT_TRUE(Block().IsValid());
}

TEST(CtaHdmi2, ReadsItsFields) {
    const auto block = CheckBlock<Block>("6D D8 5D C4 01 78 81 6F 42 70 90 C3 23 0A", "HDMI v2");
    EXPECT_EQ(block.MaxTmdsCharacterRate, 600);
    EXPECT_TRUE(block.Flags.Test(CtaHdmi2DataBlockFlagEnum::Scdc));
    EXPECT_TRUE(block.Flags.Test(CtaHdmi2DataBlockFlagEnum::OsdDisparity3d));
    EXPECT_TRUE(block.Flags.Test(CtaHdmi2DataBlockFlagEnum::UhdVic));
    EXPECT_TRUE(block.Flags.Test(CtaHdmi2DataBlockFlagEnum::Ycc420Depth30));
    EXPECT_FALSE(block.Flags.Test(CtaHdmi2DataBlockFlagEnum::CableStatus));
    EXPECT_EQ(block.MaxFrlRate, CtaHdmi2DataBlockMaxFrlRateEnum::Rate48);
    EXPECT_TRUE(block.Flags2.Test(CtaHdmi2DataBlockFlag2Enum::AutoLowLatency));
    EXPECT_TRUE(block.Flags2.Test(CtaHdmi2DataBlockFlag2Enum::QuickMediaSwitching));
    EXPECT_EQ(block.VrrMin, 48);
    EXPECT_EQ(block.VrrMax, 400);
    EXPECT_TRUE(block.Flags3.Test(CtaHdmi2DataBlockFlag3Enum::Dsc));
    EXPECT_TRUE(block.Flags3.Test(CtaHdmi2DataBlockFlag3Enum::Ycc420));
    EXPECT_EQ(block.DscMaxSlices, CtaHdmi2DataBlockDscMaxSlicesEnum::Four);
    EXPECT_EQ(block.DscMaxFrlRate, CtaHdmi2DataBlockMaxFrlRateEnum::Rate18);
    EXPECT_EQ(block.DscTotalChunkSize, 11);
    EXPECT_EQ(block.PresentLength, 10);
    EXPECT_TRUE(block.IsValid());
}

TEST(CtaHdmi2, TheGreatestRateTakesTheBitsBesideTheLeast) {
    Fields fields;
    fields.VrrMin = 63;
    fields.VrrMax = 1023;
    EXPECT_EQ(Edited(fields), FromHex("6A D8 5D C4 01 00 00 00 00 FF FF"));
    fields.VrrMin = Undefined;
    EXPECT_EQ(Edited(fields), FromHex("6A D8 5D C4 01 00 00 00 00 C0 FF"));
    fields.VrrMin = 64;
    EXPECT_FALSE(Block(fields).IsValidAll());
}

TEST(CtaHdmi2, EachFieldMakesTheBlockAsLongAsItNeeds) {
    const auto lengthOf = [](auto set) {
        Fields fields;
        set(fields);
        return Block(fields).PresentLength;
    };
    EXPECT_EQ(lengthOf([](Fields& f) { f.Flags2 = decltype(f.Flags2)(1); }), 5);
    EXPECT_EQ(lengthOf([](Fields& f) { f.VrrMin = 1; }), 6);
    EXPECT_EQ(lengthOf([](Fields& f) { f.VrrMax = 100; }), 7);
    EXPECT_EQ(lengthOf([](Fields& f) { f.VrrMax = 256; }), 7);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Flags3 = decltype(f.Flags3)(1); }), 8);
    EXPECT_EQ(lengthOf([](Fields& f) { f.DscMaxSlices = CtaHdmi2DataBlockDscMaxSlicesEnum::One; }), 9);
    EXPECT_EQ(lengthOf([](Fields& f) { f.DscMaxFrlRate = CtaHdmi2DataBlockMaxFrlRateEnum::Rate9; }), 9);
    EXPECT_EQ(lengthOf([](Fields& f) { f.DscTotalChunkSize = 2; }), 10);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Reserved = 1; }), 10);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Extra = Bytes{0}; }), 11);
}

TEST(CtaHdmi2, KeepsToItsLimits) {
    const auto status = [](const char* name, auto set) {
        Fields fields;
        set(fields);
        const ItemStatus found = Block(fields).GetStatus();
        return std::pair(found.IsProper(name), found.IsAll(name));
    };
    const auto rate = [&](int value) {
        return status("MaxTmdsCharacterRate", [value](Fields& f) { f.MaxTmdsCharacterRate = value; });
    };
    EXPECT_EQ(rate(340), std::pair(false, true));
    EXPECT_EQ(rate(345), std::pair(true, true));
    EXPECT_EQ(rate(346), std::pair(false, false));
    EXPECT_EQ(rate(1275), std::pair(true, true));
    EXPECT_EQ(rate(1280), std::pair(false, false));
    EXPECT_EQ(rate(Undefined), std::pair(true, true));
    const auto vrr = [&](int value) { return status("VrrMax", [value](Fields& f) { f.VrrMax = value; }); };
    EXPECT_EQ(vrr(99), std::pair(false, true));
    EXPECT_EQ(vrr(100), std::pair(true, true));
    EXPECT_EQ(vrr(1024), std::pair(false, false));
    const auto chunk = [&](int value) {
        return status("DscTotalChunkSize", [value](Fields& f) { f.DscTotalChunkSize = value; });
    };
    EXPECT_EQ(chunk(1), std::pair(false, false));
    EXPECT_EQ(chunk(64), std::pair(true, true));
    EXPECT_EQ(chunk(65), std::pair(false, false));
}

TEST(CtaHdmi2, AShortBlockKeepsItsLengthAndOpensWhatItReaches) {
    const auto block = CheckBlock<Block>("65 D8 5D C4 01 78", "HDMI v2");
    EXPECT_EQ(block.PresentLength, 2);
    EXPECT_EQ(block.MaxFrlRate, CtaHdmi2DataBlockMaxFrlRateEnum::NotSupported);
    EXPECT_EQ(block.VrrMax, Undefined);
    EXPECT_FALSE(block.IsValid());
    EXPECT_FALSE(block.GetAvailable(10).IsProper("VrrMax"));
    EXPECT_TRUE(block.GetAvailable(10).IsProper("VrrMin"));
    EXPECT_TRUE(block.GetAvailable(11).IsProper("VrrMax"));
    EXPECT_FALSE(block.GetAvailable(13).IsProper("DscTotalChunkSize"));
    EXPECT_TRUE(block.GetAvailable(14).IsProper("DscTotalChunkSize"));
}

}  // namespace
}  // namespace VNT::Testing
