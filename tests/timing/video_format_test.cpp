#include "model/timing/video_format.h"

#include <algorithm>

#include "model/timing/video_code.h"
#include "model/timing/video_format_resolution.h"
#include "tests/support/every_bit.h"

namespace VNT::Testing {
namespace {

int CountPresent(const VideoFormatTable& table) {
    return static_cast<int>(
        std::count_if(table.rows.begin(), table.rows.end(), [](const VideoFormat& row) { return row.present; }));
}

template <class X>
std::string TextOfCode(int code) {
    return TextOf(ReadAs<X>(Bytes{static_cast<std::uint8_t>(code)}));
}

TEST(VideoFormatTable, HoldsTheCodesOfTheStandards) {
    EXPECT_EQ(VideoFormatTable::CtaCodes.rows.size(), 220u);
    EXPECT_EQ(VideoFormatTable::HdmiCodes.rows.size(), 5u);
    EXPECT_EQ(VideoFormatTable::CtaFormatIds.rows.size(), 32u);
    for (int vic = 0; vic < 256; ++vic) {
        const bool isCode = (vic >= 1 && vic <= 127) || (vic >= 193 && vic <= 219);
        EXPECT_EQ(VideoFormatTable::CtaCodes.At(vic).present, isCode) << vic;
    }
    EXPECT_EQ(CountPresent(VideoFormatTable::HdmiCodes), 4);
    EXPECT_EQ(CountPresent(VideoFormatTable::CtaFormatIds), 28);
}

TEST(VideoFormatTable, ACodeThatItDoesNotHoldHasNeitherSizeNorRate) {
    for (const int code : {-1, 0, 128, 192, 220, 1000}) {
        const VideoFormat& row = VideoFormatTable::CtaCodes.At(code);
        EXPECT_FALSE(row.present);
        EXPECT_EQ(row.width, Undefined);
        EXPECT_EQ(row.height, Undefined);
        EXPECT_EQ(row.rates.begin(), row.rates.end());
        EXPECT_EQ(VideoFormatTable::CtaCodes.Summarize(code, {Decimal(60)}), ResolutionSummary());
    }
}

TEST(VideoFormatTable, EachRowIsSound) {
    for (const VideoFormatTable& table :
         {VideoFormatTable::CtaCodes, VideoFormatTable::HdmiCodes, VideoFormatTable::CtaFormatIds}) {
        for (const VideoFormat& row : table.rows) {
            if (!row.present) continue;
            EXPECT_TRUE(row.width >= 640 && row.width <= 20480 && row.height >= 240 && row.height <= 8640);
            EXPECT_TRUE(row.aspect >= 0 && row.aspect < static_cast<int>(table.aspectTexts.size()));
            EXPECT_TRUE(!row.interlaced || row.height == 1080 || row.height == 576 || row.height == 480);
            const bool statesRates = table.rows.data() != VideoFormatTable::CtaFormatIds.rows.data();
            EXPECT_EQ(row.rates.end() - row.rates.begin(), statesRates ? 1 : 0);
        }
    }
}

TEST(CtaVideoResolution, ALowCodeCanBeNative) {
    const auto resolution = ReadAs<CtaVideoResolution>(FromHex("90"));
    EXPECT_EQ(resolution.code.Id, 16);
    EXPECT_TRUE(resolution.native);
    EXPECT_EQ(TextOf(resolution), "1920x1080 (16:9) @ 60 Hz");
    EXPECT_EQ(BytesOf(resolution), FromHex("90"));
    ResolutionSummary summary;
    resolution.GetSummary(summary);
    EXPECT_EQ(summary, (ResolutionSummary{1920, 1080, false, {Decimal(60)}}));
}

TEST(CtaVideoResolution, AHighCodeKeepsTheHighestBit) {
    const auto resolution = ReadAs<CtaVideoResolution>(FromHex("C1"));
    EXPECT_EQ(resolution.code.Id, 193);
    EXPECT_FALSE(resolution.native);
    EXPECT_EQ(TextOf(resolution), "5120x2160 (64:27) @ 120 Hz");
}

TEST(CtaVideoResolution, EveryByteGoesBackAndIsValid) {
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes bytes{static_cast<std::uint8_t>(byte)};
        const auto resolution = ReadAs<CtaVideoResolution>(bytes);
        EXPECT_EQ(BytesOf(resolution), bytes) << byte;
        EXPECT_TRUE(resolution.IsValid()) << byte;
        EXPECT_EQ(resolution.native, byte >= 129 && byte <= 192) << byte;
        EXPECT_EQ(resolution.code.Id, resolution.native ? byte - 128 : byte) << byte;
    }
}

TEST(CtaVideoResolution, ACodeWithoutAFormatSaysItsNumber) {
    for (const int code : {0, 128, 220, 255}) {
        EXPECT_EQ(TextOfCode<CtaVideoResolution>(code), "Other (" + std::to_string(code) + ")");
        ResolutionSummary summary{1, 1, true, {}};
        ReadAs<CtaVideoResolution>(Bytes{static_cast<std::uint8_t>(code)}).GetSummary(summary);
        EXPECT_EQ(summary, ResolutionSummary());
    }
}

TEST(CtaVideoResolution, ACodeWhoseByteIsThatOfANativeOneIsInvalid) {
    CtaVideoResolutionFields fields;
    for (int code = 0; code < 256; ++code) {
        fields.code.Id = code;
        const CtaVideoResolution resolution(fields);
        const bool isTaken = code >= 129 && code <= 192;
        EXPECT_EQ(resolution.GetStatus().IsProper("code"), !isTaken) << code;
        EXPECT_EQ(resolution.IsValidAll(), !isTaken) << code;
        EXPECT_TRUE(resolution.GetStatus().IsProper("native"));
    }
    for (const int code : {-1, 256, Undefined}) {
        fields.code.Id = code;
        EXPECT_FALSE(CtaVideoResolution(fields).IsValidAll()) << code;
    }
}

TEST(CtaVideoResolution, OnlyALowCodeCanBeMarkedNative) {
    for (const auto& [code, canBe] : {std::pair{0, false}, {1, true}, {64, true}, {65, false}, {193, false}}) {
        const CtaVideoResolution resolution(CtaVideoResolutionFields{CtaVideoReference(code), true});
        EXPECT_EQ(resolution.GetStatus().IsProper("native"), canBe) << code;
        EXPECT_EQ(resolution.IsValid(), canBe) << code;
    }
}

TEST(CtaVideoResolution, FormatsThatDifferInTheLinesOfTheFrameAreToldApart) {
    EXPECT_EQ(TextOfCode<CtaVideoResolution>(20), "1920x1080i (16:9) @ 50 Hz");
    EXPECT_EQ(TextOfCode<CtaVideoResolution>(39), "1920x1080i (16:9) @ 50 Hz (1250VT)");
    EXPECT_EQ(TextOfCode<CtaYcc420VideoResolution>(102), "4096x2160 (256:135) @ 60 Hz");
    EXPECT_EQ(TextOf(CtaYcc420VideoResolution(), U"{type}: {p}{i}"), "CTA video (4:2:0): p");
    EXPECT_EQ(TextOf(CtaVideoResolution(), U"{type}"), "CTA video");
}

TEST(CtaVideoResolution, TheTwoKindsAreNeverEqual) {
    const CtaVideoResolution resolution;
    const CtaYcc420VideoResolution other;
    EXPECT_FALSE(resolution.Equals(other));
    EXPECT_TRUE(resolution.Equals(CtaVideoResolution()));
    EXPECT_EQ(resolution.GetType(), 7);
    EXPECT_EQ(other.GetType(), 8);
    EXPECT_EQ(HdmiResolution().GetType(), 10);
    EXPECT_EQ(CtaVideoFormatResolution().GetType(), 9);
}

TEST(HdmiResolution, ACodeBeyondTheFourthIsKeptAndInvalid) {
    EXPECT_EQ(TextOfCode<HdmiResolution>(4), "4096x2160 (256:135) @ 24 Hz");
    const auto resolution = ReadAs<HdmiResolution>(FromHex("05"));
    EXPECT_EQ(TextOf(resolution), "Other (5)");
    EXPECT_FALSE(resolution.IsValid());
    EXPECT_TRUE(resolution.IsValidAll());
    EXPECT_EQ(BytesOf(resolution), FromHex("05"));
    EXPECT_FALSE(ReadAs<HdmiResolution>(FromHex("00")).IsValid());
    EXPECT_TRUE(ReadAs<HdmiResolution>(FromHex("01")).IsValid());
}

TEST(VideoCodes, ReadAndWriteOneByte) {
    for (const Bytes& bytes : {Bytes{0}, Bytes{0x90}, Bytes{0xFF}}) {
        ExpectThatEachBitTells<CtaVideoResolution>(bytes);
        ExpectThatEachBitTells<CtaYcc420VideoResolution>(bytes);
        ExpectThatEachBitTells<HdmiResolution>(bytes);
        ExpectThatCutsAreRefused<CtaVideoResolution>(bytes);
        ExpectThatCutsAreRefused<CtaYcc420VideoResolution>(bytes);
        ExpectThatCutsAreRefused<HdmiResolution>(bytes);
    }
}

TEST(VideoCodes, WhatNoByteHoldsIsNeitherWrittenNorSummarized) {
    CtaVideoResolutionFields fields;
    fields.code.Id = 256;
    const CtaVideoResolution resolution(fields);
    EXPECT_EQ(BytesOf(resolution), Bytes());
    ResolutionSummary summary{1, 1, true, {Decimal(60)}};
    resolution.GetSummary(summary);
    EXPECT_EQ(summary, ResolutionSummary());
}

TEST(ResolutionSummary, DiffersByEachOfItsFields) {
    const ResolutionSummary summary{1920, 1080, false, {Decimal(60)}};
    EXPECT_EQ(summary, (ResolutionSummary{1920, 1080, false, {Decimal(60)}}));
    EXPECT_FALSE(summary == (ResolutionSummary{1921, 1080, false, {Decimal(60)}}));
    EXPECT_FALSE(summary == (ResolutionSummary{1920, 1081, false, {Decimal(60)}}));
    EXPECT_FALSE(summary == (ResolutionSummary{1920, 1080, true, {Decimal(60)}}));
    EXPECT_FALSE(summary == (ResolutionSummary{1920, 1080, false, {}}));
}

TEST(CtaVideoReference, SaysWhatItsByteStandsFor) {
    const std::pair<int, const char*> texts[] = {
        {1, "640x480 (4:3) @ 60 Hz"},
        {39, "1920x1080i (16:9) @ 50 Hz (1250VT)"},
        {219, "4096x2160 (256:135) @ 120 Hz"},
        {129, "DTD #1"},
        {144, "DTD #16"},
        {145, "T7/T10VTDB #1"},
        {160, "T7/T10VTDB #16"},
        {161, "VFD #1 @ 24 Hz"},
        {166, "VFD #1 @ 60 Hz"},
        {175, "VFD #1 @ 480 Hz"},
        {254, "T8VTDB #1"},
    };
    for (const auto& [id, text] : texts) EXPECT_EQ(TextOf(CtaVideoReference(id)), text) << id;
    EXPECT_EQ(TextOf(CtaVideoReference(), U"{type} {id}"), "CTA video reference 1");
}

TEST(CtaVideoReference, WhatMeansNothingSaysItsNumber) {
    for (const int id : {0, 128, 176, 192, 220, 253, 255})
        EXPECT_EQ(TextOf(CtaVideoReference(id)), "Other (" + std::to_string(id) + ")");
    for (int id = 0; id < 256; ++id) EXPECT_TRUE(CtaVideoReference(id).IsValid()) << id;
    EXPECT_FALSE(CtaVideoReference(256).IsValidAll());
    EXPECT_FALSE(CtaVideoReference(Undefined).IsValidAll());
}

CtaVideoFormatResolution FormatOf(const char* hex) { return ReadAs<CtaVideoFormatResolution>(FromHex(hex)); }

TEST(CtaVideoFormatResolution, EachBitTells) {
    for (int size = 1; size <= 4; ++size) {
        ExpectThatEachBitTells<CtaVideoFormatResolution>(Bytes(size, 0));
        ExpectThatEachBitTells<CtaVideoFormatResolution>(Bytes(size, 0xFF));
    }
}

TEST(CtaVideoFormatResolution, IsWrittenWholeOrNotAtAll) {
    const Bytes bytes = FromHex("81 FF 07");
    const auto resolution = ReadAs<CtaVideoFormatResolution>(bytes);
    EXPECT_EQ(BytesOf(resolution, 3), bytes);
    EXPECT_EQ(BytesOf(resolution, 2), Bytes());
    auto broken = resolution;
    broken.rid = 64;
    EXPECT_EQ(BytesOf(broken, 3), Bytes());
    for (const char* field : {"Size", "rid", "flags"}) {
        EXPECT_TRUE(resolution.GetAvailable(1).IsProper(field)) << field;
        EXPECT_FALSE(resolution.GetAvailable(0).IsProper(field)) << field;
    }
}

TEST(CtaVideoFormatResolution, TakesOneToFourBytes) {
    CtaVideoFormatResolution resolution;
    EXPECT_FALSE(resolution.Read(Bytes()));
    EXPECT_FALSE(resolution.Read(Bytes(5, 0)));
    for (const char* hex : {"84", "C4 40", "04 00", "04 8C 01", "3F FF FF FF"}) {
        const auto read = FormatOf(hex);
        EXPECT_EQ(read.size, FromHex(hex).Size());
        EXPECT_EQ(ToHex(BytesOf(read, read.size)), hex);
    }
}

TEST(CtaVideoFormatResolution, ListsTheRatesOfItsFlags) {
    EXPECT_EQ(TextOf(FormatOf("04")), "1920x1080 (16:9) @ 30/60 Hz");
    EXPECT_EQ(TextOf(FormatOf("44")), "1920x1080 (16:9) @ 24/30/60 Hz");
    EXPECT_EQ(TextOf(FormatOf("C4")), "1920x1080 (16:9) @ 24/25/30/50/60 Hz");
    EXPECT_EQ(TextOf(FormatOf("CB FF 01")),
              "3840x2160 (16:9) @ 24/25/30/48/50/60/100/120/144/200/240/300/360/400/480 Hz");
    EXPECT_EQ(TextOf(FormatOf("0B 82")), "3840x2160 (16:9) @ 60 Hz");
    EXPECT_EQ(TextOf(FormatOf("0B 02")), "3840x2160 (16:9)");
    EXPECT_EQ(TextOf(FormatOf("0B 00")), "3840x2160 (16:9) @ 30/60 Hz");
    ResolutionSummary summary;
    FormatOf("0B 82").GetSummary(summary);
    EXPECT_EQ(summary, (ResolutionSummary{3840, 2160, false, {Decimal(60)}}));
}

TEST(CtaVideoFormatResolution, AnUnknownResolutionSaysItsNumberAndRates) {
    for (int rid = 29; rid < 64; ++rid) {
        const auto resolution = ReadAs<CtaVideoFormatResolution>(Bytes{static_cast<std::uint8_t>(rid)});
        EXPECT_EQ(TextOf(resolution), "Other (" + std::to_string(rid) + ") @ 30/60 Hz");
        EXPECT_TRUE(resolution.IsValid());
    }
    EXPECT_EQ(TextOf(FormatOf("00")), "Other (0) @ 30/60 Hz");
    EXPECT_FALSE(FormatOf("00").IsValid());
}

TEST(CtaVideoFormatResolution, NeedsAsManyBytesAsItsHighestFlag) {
    const auto sizeOf = [](std::uint32_t flags) {
        CtaVideoFormatResolutionFields fields;
        fields.flags = CtaVideoFormatResolutionFlags(flags);
        return CtaVideoFormatResolution(fields).size;
    };
    // One byte alone says the default rates beside its own.
    const std::uint32_t byDefault = CtaVideoFormatResolutionFields::DefaultFlags.GetBits();
    for (const std::uint32_t flags : {0u, 1u, 3u}) EXPECT_EQ(sizeOf(byDefault + flags), 1) << flags;
    for (const std::uint32_t flags : {0u, 1u, 3u, 4u, 0x3FFu}) EXPECT_EQ(sizeOf(flags), 2) << flags;
    for (const std::uint32_t flags : {0x400u, 0x3FFFFu}) EXPECT_EQ(sizeOf(flags), 3) << flags;
    for (const std::uint32_t flags : {0x40000u, 0x3FFFFFFu}) EXPECT_EQ(sizeOf(flags), 4) << flags;
}

TEST(CtaVideoFormatResolution, WhatNoByteSaysIsTheDefault) {
    EXPECT_EQ(FormatOf("01").flags, CtaVideoFormatResolutionFields::DefaultFlags);
}

TEST(CtaVideoFormatResolution, ARateOfTheFirstByteAloneTakesTheSecondByteToo) {
    CtaVideoFormatResolutionFields fields;
    fields.rid = 16;
    for (const CtaVideoFormatResolutionFlags flags :
         {CtaVideoFormatResolutionFlags{CtaVideoFormatResolutionFlagEnum::Rate24}, CtaVideoFormatResolutionFlags()}) {
        fields.flags = flags;
        const CtaVideoFormatResolution resolution(fields);
        Bytes bytes(resolution.size, 0);
        EXPECT_TRUE(resolution.Write(bytes));
        CtaVideoFormatResolution again;
        EXPECT_TRUE(again.Read(bytes));
        EXPECT_EQ(again.flags, flags);
        EXPECT_EQ(again.GetSize(), 2);
    }
}

TEST(CtaVideoFormatResolution, IsValidWhereItsFlagsHaveRoom) {
    const auto resolution = FormatOf("0B 00 01");
    EXPECT_EQ(resolution.GetSize(), 3);
    EXPECT_TRUE(resolution.IsValid(3));
    EXPECT_FALSE(resolution.IsValid(2));
    EXPECT_TRUE(resolution.IsValid(100));
    EXPECT_FALSE(resolution.IsValid(-1));
    // Bytes that say nothing are no need.
    EXPECT_TRUE(FormatOf("0B 83 00 00").IsValid(1));
}

TEST(CtaVideoFormatResolutionList, AllTakeTheLengthOfTheLongest) {
    CtaVideoFormatResolutionList list;
    list.Add(CtaVideoFormatResolution());
    list.Add(FormatOf("0B 00 01"));
    list.Normalize();
    EXPECT_EQ(list.DescriptorLength, 3);
    EXPECT_EQ(list.GetSize(), 6);
    Bytes bytes(6, 0xEE);
    EXPECT_TRUE(list.Write(bytes));
    EXPECT_EQ(ToHex(bytes), "01 83 00 0B 00 01");
    Bytes tooShort(5, 0xEE);
    EXPECT_FALSE(list.Write(tooShort));
}

TEST(CtaVideoFormatResolutionList, ANewItemMayTakeWhatAllCanTake) {
    CtaVideoFormatResolutionList list;
    list.DescriptorLength = 2;
    list.Read(FromHex("0B 82 04 82 01 82"));
    ASSERT_EQ(list.GetCount(), 3);
    EXPECT_EQ((CtaVideoFormatResolutionListLimits{11}.GetBudget(list, 3)), 2);
    EXPECT_EQ((CtaVideoFormatResolutionListLimits{12}.GetBudget(list, 3)), 3);
    EXPECT_EQ((CtaVideoFormatResolutionListLimits{12}.GetBudget(list, 0)), 4);
    EXPECT_EQ((CtaVideoFormatResolutionListLimits{28}.GetBudget(list, 3)), 4);
    EXPECT_FALSE(CtaVideoFormatResolutionListLimits{7}.HasRoom(list));
    EXPECT_TRUE(CtaVideoFormatResolutionListLimits{8}.HasRoom(list));
}

}  // namespace
}  // namespace VNT::Testing
