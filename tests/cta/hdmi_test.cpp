#include "model/cta/hdmi.h"

#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

using Block = CtaHdmiDataBlock;
using Fields = CtaHdmiDataBlockFields;

Block ReadBlock(const char* hex) { return CheckBlock<Block>(hex, "HDMI v1"); }

std::string Edited(const Fields& fields) {
    const Block block(fields);
    return ToHex(BytesOf(block, block.Size));
}

TEST(CtaHdmi, HalfAPhysicalAddressIsWrittenAsHalf) {
    const auto block = ReadBlock("64 03 0C 00 12");
    EXPECT_EQ(block.PresentLength, 1);
    EXPECT_EQ(block.PhysicalAddress, 0x1200);
    EXPECT_FALSE(block.IsValid());
    EXPECT_EQ(ReadBlock("63 03 0C 00").PresentLength, 0);
}

TEST(CtaHdmi, LatenciesBeyondTheEndAreUndefined) {
    const auto block = ReadBlock("68 03 0C 00 10 00 00 00 80");
    EXPECT_EQ(block.PresentLength, 5);
    EXPECT_EQ(block.VideoLatency, Undefined);
    EXPECT_EQ(block.AudioLatency, Undefined);
}

TEST(CtaHdmi, ReadsEachKindOfLatency) {
    const auto block = ReadBlock("6C 03 0C 00 10 00 88 2D C0 01 FB 00 FF");
    EXPECT_EQ(block.VideoLatency, 0);
    EXPECT_EQ(block.AudioLatency, 500);
    EXPECT_EQ(block.InterlacedVideoLatency, Undefined);
    EXPECT_EQ(block.InterlacedAudioLatency, Fields::NoSignal);
    EXPECT_EQ(block.MaxTmdsClock, 225);
    EXPECT_EQ(block.PresentLength, 9);
    EXPECT_TRUE(block.IsValid());
    const auto late = ReadBlock("6A 03 0C 00 10 00 00 00 80 FC FE");
    EXPECT_EQ(late.AudioLatency, 506);
    EXPECT_FALSE(late.GetStatus().IsProper("AudioLatency"));
    EXPECT_TRUE(late.IsValidAll());
}

TEST(CtaHdmi, WhatItsFlagsDoNotTellOfIsEmpty) {
    const auto block = ReadBlock("6C 03 0C 00 10 00 00 00 00 01 FB 00 FF");
    EXPECT_EQ(block.VideoLatency, Undefined);
    EXPECT_TRUE(block.Resolutions.IsEmpty());
    EXPECT_EQ(block.Extra, FromHex("01 FB 00 FF"));
    EXPECT_EQ(block.PresentLength, 14);
}

TEST(CtaHdmi, ReadsResolutionsAndStereoFormats) {
    const auto block = ReadBlock("72 03 0C 00 10 00 B8 3C 2F A0 85 01 05 80 03 0F 05 10 28");
    EXPECT_TRUE(block.Supports3d);
    EXPECT_EQ(block.StereoFormats.FieldsPresent, HdmiStereoFormatsFieldsPresentEnum::Structures);
    EXPECT_EQ(block.StereoLength, 5);
    EXPECT_EQ(block.ResolutionCount, 4);
    ASSERT_EQ(block.Resolutions.GetCount(), 4);
    EXPECT_EQ(TextOf(block.Resolutions.At(0)), "3840x2160 (16:9) @ 30 Hz");
    EXPECT_EQ(TextOf(block.Resolutions.At(1)), "Other (5)");
}

TEST(CtaHdmi, ItsPresentLengthTellsWhereItEnds) {
    const std::pair<const char*, int> lengths[] = {
        {"65 03 0C 00 10 00", 2},
        {"67 03 0C 00 10 00 00 00", 4},
        {"69 03 0C 00 10 00 00 00 80 01", 6},
        {"6A 03 0C 00 10 00 00 00 80 01 01", 7},
        {"6B 03 0C 00 10 00 00 00 C0 01 01 01", 8},
        {"69 03 0C 00 10 00 00 00 40 01", 8},
        {"69 03 0C 00 10 00 00 00 20 80", 10},
        {"6A 03 0C 00 10 00 00 00 20 80 41", 11},
        {"6B 03 0C 00 10 00 00 00 20 80 41 01", 12},
        {"6C 03 0C 00 10 00 00 00 20 80 41 01 02", 12},
        {"6D 03 0C 00 10 00 00 00 20 80 41 01 02 06", 13},
        {"6E 03 0C 00 10 00 00 00 20 80 41 01 02 06 AA", 14},
        {"69 03 0C 00 10 00 00 00 00 AA", 14},
    };
    for (const auto& [hex, length] : lengths) EXPECT_EQ(ReadBlock(hex).PresentLength, length) << hex;
}

TEST(CtaHdmi, TheGreatestCountsOfTheByteAreKeptWhereTheBlockEndsEarlier) {
    const auto block = ReadBlock("6C 03 0C 00 10 00 00 00 20 80 FF 01 02");
    EXPECT_EQ(block.ResolutionCount, 7);
    EXPECT_EQ(block.StereoLength, 31);
    EXPECT_EQ(block.Resolutions.GetCount(), 2);
    EXPECT_TRUE(block.IsValidAll());
    EXPECT_FALSE(block.IsValid());
    EXPECT_EQ(Edited(block), "6C 03 0C 00 10 00 00 00 20 80 40 01 02");
}

TEST(CtaHdmi, ANewBlockTakesSixBytes) {
    EXPECT_EQ(Edited({}), "65 03 0C 00 00 00");
    EXPECT_EQ(Block().PresentLength, 2);
}

TEST(CtaHdmi, EachFieldMakesTheBlockAsLongAsItNeeds) {
    const auto lengthOf = [](auto set) {
        Fields fields;
        set(fields);
        return Block(fields).PresentLength;
    };
    EXPECT_EQ(lengthOf([](Fields& f) { f.Flags.Set(CtaHdmiDataBlockFlagEnum::Depth30, true); }), 3);
    EXPECT_EQ(lengthOf([](Fields& f) { f.MaxTmdsClock = 1275; }), 4);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Flags2.Set(CtaHdmiDataBlockFlag2Enum::Game, true); }), 5);
    EXPECT_EQ(lengthOf([](Fields& f) { f.VideoLatency = 0; }), 7);
    EXPECT_EQ(lengthOf([](Fields& f) { f.InterlacedAudioLatency = 2; }), 9);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Supports3d = true; }), 10);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Resolutions.Add(HdmiResolution()); }), 12);
    EXPECT_EQ(lengthOf([](Fields& f) {
                  HdmiStereoFormatsFields stereo;
                  stereo.Formats.Add(HdmiStereoFormat());
                  f.StereoFormats = HdmiStereoFormats(stereo);
              }),
              13);
    EXPECT_EQ(lengthOf([](Fields& f) { f.Extra = Bytes{1}; }), 14);
}

TEST(CtaHdmi, AnEditWritesWhatItsFieldsTell) {
    Fields fields;
    fields.PhysicalAddress = 0x1000;
    fields.Supports3d = true;
    EXPECT_EQ(Edited(fields), "69 03 0C 00 10 00 00 00 20 80");
    fields.Resolutions.Add(HdmiResolution(HdmiResolutionFields{3}));
    fields.VideoLatency = Fields::NoSignal;
    EXPECT_EQ(Edited(fields), "6D 03 0C 00 10 00 00 00 A0 FF 00 80 20 03");
    fields.Supports3d = false;
    fields.Resolutions.Clear();
    fields.VideoLatency = Undefined;
    fields.Flags2.Set(CtaHdmiDataBlockFlag2Enum::VideoPresent, true);
    EXPECT_EQ(Edited(fields), "65 03 0C 00 10 00");
}

TEST(CtaHdmi, TheClockStopsAtWhatItsByteCanSay) {
    Fields fields;
    for (const auto& [clock, isValid] : {std::pair{1275, true}, {1280, false}, {5, true}, {0, false}, {7, false}}) {
        fields.MaxTmdsClock = clock;
        EXPECT_EQ(Block(fields).IsValidAll(), isValid) << clock;
    }
}

TEST(CtaHdmi, TheListsLiveFromTheBytesOfTheBlock) {
    Fields fields;
    EXPECT_EQ(Block(fields).GetResolutionLimits(32).slots, 7);
    EXPECT_EQ(Block(fields).GetResolutionLimits(13).slots, 2);
    EXPECT_EQ(Block(fields).GetStereoRoom(32), 21);
    fields.VideoLatency = 0;
    fields.Resolutions.Add(HdmiResolution());
    EXPECT_EQ(Block(fields).GetResolutionLimits(13).slots, 0);
    EXPECT_EQ(Block(fields).GetStereoRoom(32), 18);
    EXPECT_TRUE(Block(fields).IsValid(14));
    EXPECT_FALSE(Block(fields).IsValid(13));
}

TEST(CtaHdmi, PartsOpenWhereThereIsRoomForThem) {
    const Block block;
    EXPECT_FALSE(block.GetAvailable(9).IsProper("VideoLatency"));
    EXPECT_TRUE(block.GetAvailable(10).IsProper("VideoLatency"));
    EXPECT_FALSE(block.GetAvailable(10).IsProper("AudioLatency"));
    EXPECT_FALSE(block.GetAvailable(9).IsProper("ImageSize"));
    EXPECT_TRUE(block.GetAvailable(10).IsProper("ImageSize"));
    EXPECT_FALSE(block.GetAvailable(10).IsProper("Resolutions"));
    EXPECT_TRUE(block.GetAvailable(11).IsProper("StereoFormats"));
}

HdmiStereoFormats ReadStereo(HdmiStereoFormatsFieldsPresentEnum::Enum present, const char* hex) {
    HdmiStereoFormats formats;
    formats.FieldsPresent = present;
    const Bytes bytes = FromHex(hex);
    EXPECT_TRUE(formats.Read(bytes));
    EXPECT_EQ(BytesOf(formats, bytes.Size()), bytes);
    return formats;
}

using Present = HdmiStereoFormatsFieldsPresentEnum;

TEST(HdmiStereoFormats, LeadingFieldsAreBigEndian) {
    const auto formats = ReadStereo(Present::StructuresAndMask, "80 41 00 07 28 10");
    EXPECT_TRUE(formats.Structures.Test(HdmiStereoFormatsStructureFlagEnum::SideBySideQuincunx));
    EXPECT_TRUE(formats.Structures.Test(HdmiStereoFormatsStructureFlagEnum::TopAndBottom));
    EXPECT_TRUE(formats.Structures.Test(HdmiStereoFormatsStructureFlagEnum::FramePacking));
    EXPECT_EQ(formats.Mask.GetBits(), 7u);
    ASSERT_EQ(formats.Formats.GetCount(), 1);
    EXPECT_EQ(TextOf(formats.Formats.At(0)), "2: Side-by-side (half), All horizontal");
}

TEST(HdmiStereoFormats, AFormatThatLacksItsSecondByteIsNone) {
    const auto formats = ReadStereo(Present::None, "10 08");
    EXPECT_EQ(formats.Formats.GetCount(), 1);
    EXPECT_EQ(formats.Extra, FromHex("08"));
    EXPECT_EQ(formats.GetPresentLength(), 6);
}

TEST(HdmiStereoFormats, ItsPresentLengthTellsWhereItEnds) {
    EXPECT_EQ(ReadStereo(Present::None, "").GetPresentLength(), 0);
    EXPECT_EQ(ReadStereo(Present::None, "06").GetPresentLength(), 5);
    EXPECT_EQ(ReadStereo(Present::Structures, "80").GetPresentLength(), 1);
    EXPECT_EQ(ReadStereo(Present::Structures, "80 00").GetPresentLength(), 2);
    EXPECT_EQ(ReadStereo(Present::StructuresAndMask, "80 00 01").GetPresentLength(), 3);
    EXPECT_EQ(ReadStereo(Present::StructuresAndMask, "80 00 01 00").GetPresentLength(), 4);
    EXPECT_EQ(ReadStereo(Present::StructuresAndMask, "80 00 01 00 06").GetPresentLength(), 5);
}

TEST(HdmiStereoFormats, AreWrittenWholeOrNotAtAll) {
    const auto formats = ReadStereo(Present::StructuresAndMask, "80 41 00 07 28 10");
    EXPECT_EQ(BytesOf(formats, 6), FromHex("80 41 00 07 28 10"));
    EXPECT_EQ(BytesOf(formats, 5), Bytes());
    EXPECT_EQ(BytesOf(formats.Formats.At(0), 2), FromHex("28 10"));
    EXPECT_EQ(BytesOf(formats.Formats.At(0), 1), Bytes());
    auto broken = formats;
    broken.FieldsPresent = HdmiStereoFormatsFieldsPresentEnum::Enum(-1);
    EXPECT_FALSE(broken.IsValid());
    HdmiStereoFormat format = formats.Formats.At(0);
    format.Order = 16;
    EXPECT_EQ(BytesOf(format, 2), Bytes());
}

TEST(HdmiStereoFormats, KeepTheFieldsThatArePresent) {
    HdmiStereoFormatsFields fields = ReadStereo(Present::StructuresAndMask, "80 41 00 07 28 10");
    EXPECT_EQ(HdmiStereoFormats(fields).Structures.GetBits(), 0x8041u);
    EXPECT_EQ(HdmiStereoFormats(fields).Mask.GetBits(), 7u);
    fields.FieldsPresent = Present::Structures;
    EXPECT_EQ(HdmiStereoFormats(fields).Structures.GetBits(), 0x8041u);
    EXPECT_EQ(HdmiStereoFormats(fields).Mask.GetBits(), 0u);
    fields.FieldsPresent = Present::None;
    EXPECT_EQ(HdmiStereoFormats(fields).Structures.GetBits(), 0u);
}

TEST(HdmiStereoFormat, TakesASecondByteFromTheEighthStructureOn) {
    HdmiStereoFormatFields fields;
    fields.Order = 15;
    fields.Structure = HdmiStereoFormatStructureEnum::Enum(7);
    EXPECT_EQ(HdmiStereoFormat(fields).GetSize(), 1);
    EXPECT_EQ(TextOf(HdmiStereoFormat(fields)), "15: Other (7)");
    fields.Structure = HdmiStereoFormatStructureEnum::Enum(9);
    fields.Detail = HdmiStereoFormatDetailEnum::Enum(11);
    const HdmiStereoFormat format(fields);
    EXPECT_EQ(TextOf(format), "15: Other (9), Other (11)");
    EXPECT_EQ(BytesOf(format, 2), FromHex("F9 B0"));
    EXPECT_FALSE(format.IsValid(1));
    EXPECT_TRUE(format.IsValid(2));
}

}  // namespace
}  // namespace VNT::Testing
