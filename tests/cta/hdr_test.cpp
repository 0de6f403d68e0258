// The HDR data blocks.
#include <gtest/gtest.h>

#include "model/cta/hdr10_plus.h"
#include "model/cta/hdr_dynamic_metadata_list.h"
#include "model/cta/hdr_static_metadata.h"
#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

using StaticFields = CtaHdrStaticMetadataDataBlockFields;

CtaHdrStaticMetadataDataBlock ReadStatic(const char* hex) {
    return CheckBlock<CtaHdrStaticMetadataDataBlock>(hex, "HDR static metadata");
}
int SizeOf(const StaticFields& fields) { return CtaHdrStaticMetadataDataBlock(fields).Size; }

TEST(CtaHdrStaticMetadataDataBlock, ItsFieldsStandWhereTheBytesHaveThem) {
    using Flag = CtaHdrStaticMetadataDataBlockFlagEnum;
    const auto block = ReadStatic("E8 06 0F 81 A0 8A 33 AA BB");
    for (const Flag::Enum flag : {Flag::TraditionalGammaSdr, Flag::TraditionalGammaHdr, Flag::PerceptualQuantization,
                                  Flag::HybridLogGamma, Flag::Type1})
        EXPECT_TRUE(block.Flags.Test(flag));
    EXPECT_EQ(block.Flags.GetBits(), 0x810Fu) << "every bit is kept";
    EXPECT_EQ(block.MaxLuminanceRaw, 160);
    EXPECT_EQ(block.MaxFrameAverageRaw, 138);
    EXPECT_EQ(block.MinLuminanceRaw, 51);
    EXPECT_TRUE(block.RawMode);
    EXPECT_EQ(block.MaxLuminance, Decimal(1600));
    EXPECT_EQ(DecimalToText(block.MaxFrameAverage, 3), "993.486");
    EXPECT_EQ(block.MinLuminance, Decimal(64, 2));
    EXPECT_EQ(block.Extra, FromHex("AA BB"));
    EXPECT_EQ(block.PresentLength, 6);
}

TEST(CtaHdrStaticMetadataDataBlock, FourBytesAreItsFlagsAlone) {
    const auto block = ReadStatic("E3 06 05 01");
    EXPECT_EQ(block.PresentLength, 2);
    for (const int code : {block.MaxLuminanceRaw, block.MaxFrameAverageRaw, block.MinLuminanceRaw})
        EXPECT_EQ(code, Undefined);
    for (const Decimal number : {block.MaxLuminance, block.MaxFrameAverage, block.MinLuminance})
        EXPECT_TRUE(number.IsUndefined());
    EXPECT_TRUE(block.IsValid(4));
    EXPECT_EQ(SizeOf(block), 4);
}

TEST(CtaHdrStaticMetadataDataBlock, ItMayEndBehindAnyCode) {
    for (const char* hex : {"E3 06 05 01", "E4 06 05 01 A0", "E5 06 05 01 A0 A0", "E6 06 05 01 A0 A0 33"}) {
        const auto block = ReadStatic(hex);
        EXPECT_TRUE(block.IsValid());
        EXPECT_EQ(SizeOf(block), block.Size);
    }
    for (const char* hex : {"E1 06", "E2 06 05"}) {
        const auto block = ReadStatic(hex);
        EXPECT_FALSE(block.IsValid());
        EXPECT_TRUE(block.IsValidAll());
        EXPECT_EQ(SizeOf(block), 4);
    }
}

TEST(CtaHdrStaticMetadataDataBlock, TheLastCodeThatIsSetTellsTheLength) {
    const auto sizeWith = [](auto&& change) {
        StaticFields fields;
        change(fields);
        return SizeOf(fields);
    };
    EXPECT_EQ(sizeWith([](StaticFields&) {}), 4);
    EXPECT_EQ(sizeWith([](StaticFields& f) { f.MaxLuminanceRaw = 1; }), 5);
    EXPECT_EQ(sizeWith([](StaticFields& f) { f.MaxFrameAverageRaw = 1; }), 6);
    EXPECT_EQ(sizeWith([](StaticFields& f) { f.MinLuminanceRaw = 1; }), 7);
    EXPECT_EQ(sizeWith([](StaticFields& f) { f.Extra = Bytes{0}; }), 8);
    StaticFields fields;
    fields.MinLuminanceRaw = 51;
    EXPECT_EQ(ToHex(BytesOf(CtaHdrStaticMetadataDataBlock(fields), 7)), "E6 06 00 00 00 00 33")
        << "the bytes ahead of it are there";
}

TEST(CtaHdrStaticMetadataDataBlock, TheLastNumberThatIsSetTellsTheLength) {
    const auto sizeWith = [](Decimal StaticFields::*number) {
        StaticFields fields;
        fields.RawMode = false;
        fields.*number = Decimal(50);  // that no code says
        return SizeOf(fields);
    };
    EXPECT_EQ(sizeWith(&StaticFields::MaxLuminance), 5);
    EXPECT_EQ(sizeWith(&StaticFields::MaxFrameAverage), 6);
    EXPECT_EQ(sizeWith(&StaticFields::MinLuminance), 7);
    StaticFields fields;
    fields.RawMode = false;
    fields.MaxLuminanceRaw = 160;
    EXPECT_EQ(SizeOf(fields), 4) << "a code that follows its blank number";
}

TEST(CtaHdrStaticMetadataDataBlock, ANumberIsRoundedToItsCode) {
    auto block = ReadStatic("E4 06 05 01 A0");
    EXPECT_EQ(DecimalToText(block.MaxLuminance, 3), "1600.000");
    block.RawMode = false;
    block.MaxLuminance = Decimal(1000);
    const CtaHdrStaticMetadataDataBlock edited(static_cast<const StaticFields&>(block));
    EXPECT_EQ(edited.MaxLuminanceRaw, 138);
    EXPECT_EQ(DecimalToText(edited.MaxLuminance, 3), "993.486");
    const auto again = ReadAs<CtaHdrStaticMetadataDataBlock>(BytesOf(edited, 5));
    EXPECT_EQ(again.MaxLuminance, edited.MaxLuminance);
}

TEST(CtaHdrStaticMetadataDataBlock, TheLeastLuminanceHangsOnTheGreatestAndNotOnTheAverage) {
    const auto block = ReadStatic("E6 06 05 01 00 A0 33");
    EXPECT_EQ(block.MaxFrameAverage, Decimal(1600));
    EXPECT_TRUE(block.MinLuminance.IsUndefined());
    EXPECT_EQ(block.MinLuminanceRaw, 51) << "its code is retained";
    EXPECT_TRUE(block.IsValid());
    EXPECT_EQ(BytesOf(CtaHdrStaticMetadataDataBlock(static_cast<const StaticFields&>(block)), 7),
              FromHex("E6 06 05 01 00 A0 33"));
}

TEST(CtaHdrStaticMetadataDataBlock, ItsLimits) {
    const auto isValid = [](auto StaticFields::*field, auto value) {
        StaticFields fields;
        fields.RawMode = std::is_same_v<decltype(value), int>;
        fields.*field = value;
        const CtaHdrStaticMetadataDataBlock block(fields);
        EXPECT_EQ(block.IsValid(), block.IsValidAll());
        return block.IsValid();
    };
    for (int StaticFields::*const code :
         {&StaticFields::MaxLuminanceRaw, &StaticFields::MaxFrameAverageRaw, &StaticFields::MinLuminanceRaw}) {
        EXPECT_TRUE(isValid(code, 1) && isValid(code, 255) && isValid(code, Undefined));
        EXPECT_FALSE(isValid(code, 0) || isValid(code, 256) || isValid(code, Undefined + 1));
    }
    for (Decimal StaticFields::*const number : {&StaticFields::MaxLuminance, &StaticFields::MaxFrameAverage}) {
        EXPECT_TRUE(isValid(number, Decimal(50)) && isValid(number, Decimal(12800)));
        EXPECT_FALSE(isValid(number, Decimal(49999, 3)) || isValid(number, Decimal(12800001, 3)));
    }
    EXPECT_TRUE(isValid(&StaticFields::MinLuminance, Decimal(0)));
    EXPECT_TRUE(isValid(&StaticFields::MinLuminance, Decimal(128)));
    EXPECT_FALSE(isValid(&StaticFields::MinLuminance, Decimal(-1, 3)));
    EXPECT_FALSE(isValid(&StaticFields::MinLuminance, Decimal(128001, 3)));
}

using List = CtaHdrDynamicMetadataListDataBlock;

template <class X>
X RecordOf(const List& block, int index) {
    X record;
    EXPECT_TRUE(block.Types.Get(index, record));
    return record;
}

TEST(CtaHdrDynamicMetadataListDataBlock, EachTypeIsReadAsItsClass) {
    const auto block = CheckBlock<List>("F9 07 03 01 00 12 03 02 00 75 02 03 00 04 04 00 0F AA 03 00 01 0F 02 05 00 00",
                                        "HDR dynamic metadata: 6 types");
    EXPECT_EQ(RecordOf<CtaType1HdrDynamicMetadata>(block, 0).Version, 2);
    EXPECT_EQ(RecordOf<CtaType1HdrDynamicMetadata>(block, 0).Reserved, 1);
    const auto type2 = RecordOf<CtaType2HdrDynamicMetadata>(block, 1);
    EXPECT_EQ(type2.Version, 5);
    EXPECT_EQ(type2.Flags.GetBits(), 7u);
    EXPECT_EQ(RecordOf<CtaType3HdrDynamicMetadata>(block, 2).Size, 3);
    EXPECT_EQ(RecordOf<CtaType4HdrDynamicMetadata>(block, 3).Extra, Bytes{0xAA});
    EXPECT_EQ(RecordOf<CtaType4HdrDynamicMetadata>(block, 3).PresentLength, 2);
    EXPECT_EQ(RecordOf<CtaType0x100HdrDynamicMetadata>(block, 4).Version, 15);
    EXPECT_EQ(RecordOf<CtaOtherHdrDynamicMetadata>(block, 5).Tag, 5);
    EXPECT_EQ(block.Extra, Bytes{0});
    std::string texts;
    for (const ItemPart& part : block.GetParts()) texts += part.text.ToUtf8() + ";";
    EXPECT_EQ(texts, "Type 1;Type 2;Type 3;Type 4;Type 0x100;Other (5);");
}

TEST(CtaHdrDynamicMetadataListDataBlock, CountsItsTypes) {
    CheckBlock<List>("E1 07", "HDR dynamic metadata: 0 types");
    CheckBlock<List>("E4 07 02 03 00", "HDR dynamic metadata: 1 type");
    CheckBlock<List>("E7 07 02 03 00 02 03 00", "HDR dynamic metadata: 2 types");
}

TEST(CtaHdrDynamicMetadataListDataBlock, ARecordOfTwoBytesEndsTheListAndIsExtra) {
    const auto block = CheckBlock<List>("EA 07 02 03 00 01 03 02 03 00 00", "HDR dynamic metadata: 1 type");
    EXPECT_EQ(block.Extra, FromHex("01 03 02 03 00 00"));
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
    EXPECT_EQ(CheckBlock<List>("E2 07 00", "HDR dynamic metadata: 0 types").Extra, Bytes{0});
}

TEST(CtaHdrDynamicMetadataListDataBlock, ARecordThatRunsOutOfTheBlockIsExtra) {
    EXPECT_EQ(CheckBlock<List>("E4 07 03 01 00", "HDR dynamic metadata: 0 types").Extra, FromHex("03 01 00"));
}

TEST(CtaHdrDynamicMetadataListDataBlock, ARecordOfAnUnknownTypeSurvives) {
    const auto block = CheckBlock<List>("E8 07 06 05 00 11 22 33 44", "HDR dynamic metadata: 1 type");
    const auto other = RecordOf<CtaOtherHdrDynamicMetadata>(block, 0);
    EXPECT_EQ(other.Extra, FromHex("11 22 33 44"));
    EXPECT_EQ(TextOf(other), "Other (5)");
    const List edited(static_cast<const CtaHdrDynamicMetadataListDataBlockFields&>(block));
    EXPECT_EQ(BytesOf(edited, 9), FromHex("E8 07 06 05 00 11 22 33 44"));
    EXPECT_EQ(TextOf(ReadAs<CtaHdrDynamicMetadata>(FromHex("02 FF FF"))), "Other (65535)");
}

TEST(CtaHdrDynamicMetadataListDataBlock, ANewListLeavesNothingBehindIt) {
    const auto block = ReadAs<List>(FromHex("E8 07 02 03 00 01 03 AA BB"));
    const List edited(static_cast<const CtaHdrDynamicMetadataListDataBlockFields&>(block));
    EXPECT_EQ(ToHex(BytesOf(edited, edited.Size)), "E4 07 02 03 00");
}

TEST(CtaHdrDynamicMetadataListDataBlock, TheListTakesTheRoomOfTheBlock) {
    CtaHdrDynamicMetadataListDataBlockFields fields;
    for (int i = 0; i < 10; ++i) fields.Types.Add(CtaHdrDynamicMetadata(CtaType3HdrDynamicMetadata().Clone()));
    EXPECT_TRUE(List(fields).IsValid(32));
    EXPECT_FALSE(List(fields).IsValidAll(31));
    fields.Types.Add(CtaHdrDynamicMetadata(CtaType3HdrDynamicMetadata().Clone()));
    EXPECT_FALSE(List(fields).IsValidAll(32));
}

TEST(CtaHdrDynamicMetadata, AnEditTakesTheLengthThatTheFieldsNeed) {
    const auto shortOne = ReadAs<CtaType1HdrDynamicMetadata>(FromHex("02 01 00"));
    EXPECT_EQ(shortOne.PresentLength, 0);
    EXPECT_EQ(shortOne.Version, 0);
    CtaVersionHdrDynamicMetadataFields fields = shortOne;
    EXPECT_EQ(CtaType1HdrDynamicMetadata(fields).Size, 4);
    EXPECT_EQ(CtaType1HdrDynamicMetadata(fields).PresentLength, 1);
    fields.Extra = Bytes{0xAA};
    EXPECT_EQ(CtaType1HdrDynamicMetadata(fields).Size, 5);
    EXPECT_EQ(CtaType1HdrDynamicMetadata(fields).PresentLength, 2);
    fields.Version = 16;
    EXPECT_FALSE(CtaType1HdrDynamicMetadata(fields).IsValidAll());
}

TEST(CtaHdrDynamicMetadata, WhatIsNoRecordIsNotRead) {
    CtaHdrDynamicMetadata record;
    for (const char* hex : {"", "00 01 00", "01 01 00", "02 01", "03 01 00"}) EXPECT_FALSE(record.Read(FromHex(hex)));
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_EQ(record.GetType(), 0x20000);
    EXPECT_EQ(ReadAs<CtaHdrDynamicMetadata>(FromHex("02 06 00")).GetType(), 0x10000);
    EXPECT_EQ(ReadAs<CtaHdrDynamicMetadata>(FromHex("03 00 01 00")).GetType(), 0x100);
}

TEST(CtaHdr10PlusDataBlock, ItsFieldsStandWhereTheBytesHaveThem) {
    const auto block = CheckBlock<CtaHdr10PlusDataBlock>("E6 01 8B 84 90 9D AA", "HDR10+");
    EXPECT_EQ(TextOf(block, U"{version} {fullframepeakluminanceindex} {peakluminanceindex}"), "1 3 9");
    EXPECT_EQ(block.Extra, Bytes{0xAA});
    EXPECT_EQ(block.PresentLength, 2);
    CtaHdr10PlusDataBlockFields fields = block;
    EXPECT_EQ(CtaHdr10PlusDataBlock(fields).Size, 7);
    fields.Extra = Bytes();
    EXPECT_EQ(CtaHdr10PlusDataBlock(fields).Size, 6);
    EXPECT_EQ(CtaHdr10PlusDataBlock(fields).PresentLength, 1);
}

TEST(CtaHdr10PlusDataBlock, OfFiveBytesItHoldsNoFieldsAndWritesFive) {
    const auto block = CheckBlock<CtaHdr10PlusDataBlock>("E4 01 8B 84 90", "HDR10+");
    EXPECT_EQ(block.PresentLength, 0);
    EXPECT_EQ(block.Version, 0);
    EXPECT_FALSE(block.IsValid());
    EXPECT_TRUE(block.IsValidAll());
}

TEST(CtaHdr10PlusDataBlock, ItsLimits) {
    CtaHdr10PlusDataBlockFields fields;
    fields.Version = 0;
    EXPECT_FALSE(CtaHdr10PlusDataBlock(fields).IsValid());
    EXPECT_TRUE(CtaHdr10PlusDataBlock(fields).IsValidAll());
    fields.Version = 4;
    EXPECT_FALSE(CtaHdr10PlusDataBlock(fields).IsValidAll());
    fields.Version = 3;
    fields.FullFramePeakLuminanceIndex = 3;
    fields.PeakLuminanceIndex = 15;
    EXPECT_TRUE(CtaHdr10PlusDataBlock(fields).IsValid());
    fields.PeakLuminanceIndex = 16;
    EXPECT_FALSE(CtaHdr10PlusDataBlock(fields).IsValidAll());
}

}  // namespace
}  // namespace VNT::Testing
