#include "model/cta/speaker_allocation.h"

#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

using Speaker = CtaSpeakerAllocationDataBlockSpeakerFlagEnum;
using Preset = CtaSpeakerAllocationDataBlockPresetEnum;

TEST(CtaSpeakerAllocation, HoldsTheSpeakersOfThreeBytes) {
    const auto block = CheckBlock<CtaSpeakerAllocationDataBlock>("83 4F 01 F8", "Speaker allocation");
    EXPECT_EQ(block.Speakers.GetBits(), 0xF8014Fu);
    EXPECT_TRUE(block.Speakers.Test(Speaker::RearLeftRightCenter));
    EXPECT_TRUE(block.Speakers.Test(Speaker::TopLeftRightSurround));
    EXPECT_EQ(block.PresentLength, 3);
    EXPECT_TRUE(block.IsValid());
}

TEST(CtaSpeakerAllocation, AShortBlockKeepsItsLengthAndIsNotSound) {
    const auto block = CheckBlock<CtaSpeakerAllocationDataBlock>("81 4F", "Speaker allocation");
    EXPECT_EQ(block.Speakers.GetBits(), 0x4Fu);
    EXPECT_EQ(block.PresentLength, 1);
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
    EXPECT_EQ(CheckBlock<CtaSpeakerAllocationDataBlock>("80", "Speaker allocation").PresentLength, 0);
    const CtaSpeakerAllocationDataBlock edited(static_cast<const CtaSpeakerAllocationDataBlockFields&>(block));
    EXPECT_EQ(edited.Size, 4);
    EXPECT_EQ(edited.PresentLength, 3);
}

TEST(CtaSpeakerAllocation, KeepsTheBytesBehindTheSpeakers) {
    const auto block = CheckBlock<CtaSpeakerAllocationDataBlock>("85 01 00 00 AB CD", "Speaker allocation");
    EXPECT_EQ(block.Extra, FromHex("AB CD"));
    EXPECT_EQ(block.PresentLength, 4);
}

TEST(CtaSpeakerAllocation, EachPresetIsASetOfBits) {
    constexpr std::uint32_t bits[] = {0x000001, 0x000807, 0x00000F, 0x00080F, 0x00004F, 0x07F73F};
    for (int preset = Preset::Stereo; preset < Preset::Other; ++preset) {
        CtaSpeakers speakers;
        Preset::Apply(static_cast<Preset::Enum>(preset), speakers);
        EXPECT_EQ(speakers.GetBits(), bits[preset]) << Preset::Texts[preset].text;
        EXPECT_EQ(Preset::Find(speakers), preset);
    }
}

TEST(CtaSpeakerAllocation, SpeakersOfNoPresetAreOther) {
    EXPECT_EQ(Preset::Find(CtaSpeakers(0x000007)), Preset::Other);
    EXPECT_EQ(Preset::Find(CtaSpeakers(0x000000)), Preset::Other);
    EXPECT_EQ(Preset::Find(CtaSpeakers(0x000001)), Preset::Stereo);
    EXPECT_EQ(Preset::Find(CtaSpeakers(0x080001)), Preset::Other);
}

TEST(CtaSpeakerAllocation, APresetLeavesTheBitsOfNoSpeakerAlone) {
    CtaSpeakers speakers(0xFFFFFF);
    Preset::Apply(Preset::Stereo, speakers);
    EXPECT_EQ(speakers.GetBits(), 0xF00001u);
    EXPECT_EQ(Preset::Find(speakers), Preset::Stereo);
    Preset::Apply(Preset::Other, speakers);
    EXPECT_EQ(speakers.GetBits(), 0xF00001u);
}

}  // namespace
}  // namespace VNT::Testing
