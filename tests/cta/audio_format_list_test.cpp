#include "model/cta/audio_format_list.h"

#include "model/cta/audio_formats.h"
#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

using Block = CtaAudioFormatListDataBlock;

CtaAudioFormatListDataBlockFields MakeFields(int count) {
    CtaAudioFormatListDataBlockFields fields;
    for (int i = 0; i < count; ++i) fields.Formats.Add(CtaAudioFormat(CtaLpcmAudioFormat().Clone()));
    return fields;
}

TEST(CtaAudioFormatList, CountsItsFormats) {
    CheckBlock<Block>("20", "Audio formats: 0 formats");
    CheckBlock<Block>("23 09 07 07", "Audio formats: 1 format");
    const auto block = CheckBlock<Block>("26 09 07 07 FF FF FF", "Audio formats: 2 formats");
    EXPECT_EQ(TextOf(block.Formats.At(0)), "LPCM: 2 channels, 32/44.1/48 kHz, 16/20/24-bit");
    EXPECT_EQ(TextOf(block.Formats.At(1)), "Other");
    ASSERT_EQ(block.GetParts().size(), 2u);
    EXPECT_EQ(block.GetParts()[1].text, U"Other");
}

TEST(CtaAudioFormatList, AByteBehindTheFormatsFollowsThem) {
    const auto block = CheckBlock<Block>("24 09 07 07 AB", "Audio formats: 1 format");
    EXPECT_EQ(block.Formats.GetCount(), 1);
    EXPECT_EQ(block.Extra, FromHex("AB"));
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
    EXPECT_EQ(CheckBlock<Block>("22 09 07", "Audio formats: 0 formats").Extra, FromHex("09 07"));
}

TEST(CtaAudioFormatList, AnEditDropsTheBytesBehindTheFormats) {
    const auto block = ReadAs<Block>(FromHex("25 09 07 07 AB CD"));
    const Block edited(static_cast<const CtaAudioFormatListDataBlockFields&>(block));
    EXPECT_EQ(edited.Size, 4);
    EXPECT_EQ(BytesOf(edited, 4), FromHex("23 09 07 07"));
    EXPECT_TRUE(edited.IsValid());
}

TEST(CtaAudioFormatList, ABlockHoldsTenFormats) {
    EXPECT_EQ(Block(MakeFields(10)).Size, 31);
    EXPECT_TRUE(Block(MakeFields(10)).IsValid());
    EXPECT_FALSE(Block(MakeFields(11)).IsValidAll());
    EXPECT_TRUE(Block(MakeFields(2)).IsValid(7));
    EXPECT_FALSE(Block(MakeFields(2)).IsValid(6));
    EXPECT_EQ(Block().GetListLimits(32).slots, 10);
    EXPECT_EQ(Block().GetListLimits(6).slots, 1);
    EXPECT_EQ(Block().GetListLimits(0).slots, 0);
    EXPECT_EQ(ReadAs<Block>(FromHex("21 00")).GetListLimits(32).slots, 10);
    EXPECT_EQ(ReadAs<Block>(FromHex("22 00 00")).GetListLimits(32).slots, 9);
}

TEST(CtaAudioFormatList, AListNeedsThreeBytesForEachFormatToBeWritten) {
    const CtaAudioFormatList list = MakeFields(2).Formats;
    Bytes tooShort(5, 0xEE);
    EXPECT_FALSE(list.Write(tooShort));
    EXPECT_TRUE(tooShort.IsAll(0xEE));
}

}  // namespace
}  // namespace VNT::Testing
