#include <gtest/gtest.h>

#include "model/edid/range_limits_descriptor.h"
#include "tests/support/items.h"

namespace VNT {
namespace {

using namespace Testing;

// 50-76 Hz, 30-83 kHz, 170 MHz, default GTF.
const Bytes Plain = FromHex("00 00 00 FD 00 32 4C 1E 53 11 00 0A 20 20 20 20 20 20");

Bytes With(std::initializer_list<std::pair<int, int>> changes, Bytes bytes = Plain) {
    for (const auto& [offset, value] : changes) bytes.At(offset) = static_cast<std::uint8_t>(value);
    return bytes;
}

EdidRangeLimitsDescriptor Read(const Bytes& bytes) {
    const auto item = ReadAs<EdidRangeLimitsDescriptor>(bytes);
    EXPECT_EQ(ToHex(BytesOf(item)), ToHex(bytes));
    return item;
}

template <class Timing>
Timing TimingOf(const EdidRangeLimitsDescriptor& item) {
    Timing timing;
    EXPECT_TRUE(timing.Assign(item.timing));
    return timing;
}

EdidRangeLimitsCvtTiming ReadCvt(const char* hex) { return ReadAs<EdidRangeLimitsCvtTiming>(FromHex(hex)); }

TEST(RangeLimits, ReadsItsFields) {
    const EdidRangeLimitsDescriptor item = Read(Plain);
    EXPECT_EQ(item.minVRate, 50);
    EXPECT_EQ(item.maxVRate, 76);
    EXPECT_EQ(item.minHRate, 30);
    EXPECT_EQ(item.maxHRate, 83);
    EXPECT_EQ(item.maxPixelClock, 170);
    EXPECT_EQ(item.timing.GetType(), EdidRangeLimitsTimingTypeId::DefaultGtf);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "Range limits: 50-76 Hz, 30-83 kHz, 170 MHz");
}

TEST(RangeLimits, AnOffsetFlagAdds255) {
    const EdidRangeLimitsDescriptor item = Read(With({{4, 0x02}, {6, 45}}));
    EXPECT_EQ(item.maxVRate, 300);
    EXPECT_EQ(item.minVRate, 50);
}

TEST(RangeLimits, EachRateHasAFlagOfItsOwn) {
    const EdidRangeLimitsDescriptor item = Read(With({{4, 0x05}, {5, 1}, {7, 255}}));
    EXPECT_EQ(item.minVRate, 256);
    EXPECT_EQ(item.maxVRate, 76);
    EXPECT_EQ(item.minHRate, 510);
    EXPECT_EQ(item.maxHRate, 83);
    EXPECT_EQ(Read(With({{4, 0x08}, {8, 2}})).maxHRate, 257);
}

TEST(RangeLimits, ARateOfZeroWithItsFlagIsUndefined) {
    const EdidRangeLimitsDescriptor item = Read(With({{4, 0x01}, {5, 0}}));
    EXPECT_EQ(item.minVRate, Undefined);
    EXPECT_FALSE(item.IsValid());
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_EQ(TextOf(item), "Range limits: -76 Hz, 30-83 kHz, 170 MHz");
}

TEST(RangeLimits, EveryRateGoesBackThroughItsFlag) {
    for (int rate = 0; rate <= 510; ++rate) {
        EdidRangeLimitsDescriptorFields fields = Read(Plain);
        fields.maxHRate = rate;
        const Bytes bytes = BytesOf(EdidRangeLimitsDescriptor(fields));
        EXPECT_EQ(Read(bytes).maxHRate, rate);
        EXPECT_EQ(bytes.At(4), rate > 255 ? 0x08 : 0);
    }
}

TEST(RangeLimits, AMinimumAboveItsMaximumIsKeptOutOfLimits) {
    const EdidRangeLimitsDescriptor item = Read(With({{5, 77}, {7, 84}}));
    for (const char* field : {"minVRate", "maxVRate", "minHRate", "maxHRate"}) {
        EXPECT_FALSE(item.GetStatus().IsProper(field)) << field;
        EXPECT_TRUE(item.GetStatus().IsAll(field)) << field;
    }
}

TEST(RangeLimits, ABoundThatIsNoRateBindsNothing) {
    const ItemStatus status = Read(With({{5, 200}, {6, 0}})).GetStatus();
    EXPECT_TRUE(status.IsProper("minVRate"));
    EXPECT_FALSE(status.IsProper("maxVRate"));
}

TEST(RangeLimits, TheGreatestClockIs2550AndZeroIsOutOfLimits) {
    EXPECT_EQ(Read(With({{9, 255}})).maxPixelClock, 2550);
    EXPECT_TRUE(Read(With({{9, 255}})).IsValid());
    const EdidRangeLimitsDescriptor zero = Read(With({{9, 0}}));
    EXPECT_EQ(zero.maxPixelClock, 0);
    EXPECT_FALSE(zero.IsValid());
    EXPECT_TRUE(zero.IsValidAll());
}

TEST(RangeLimits, AnUnknownTimingKeepsItsBytes) {
    const EdidRangeLimitsDescriptor item = Read(With({{10, 3}}));
    const auto other = TimingOf<EdidRangeLimitsOtherTiming>(item);
    EXPECT_EQ(other.tag, 3);
    EXPECT_EQ(ToHex(other.data), "0A 20 20 20 20 20 20");
    EXPECT_TRUE(item.IsValid());
}

TEST(RangeLimits, TheTimingHasAPartInTheLimits) {
    const EdidRangeLimitsDescriptor item = Read(With({{10, 1}, {11, 0}}));
    EXPECT_EQ(item.timing.GetType(), EdidRangeLimitsTimingTypeId::Only);
    EXPECT_FALSE(item.GetStatus().IsProper("timing"));
    EXPECT_TRUE(item.IsValidAll());
}

TEST(RangeLimits, KeepsItsReservedBitsUntilAnEdit) {
    const EdidRangeLimitsDescriptor item = Read(With({{2, 0x5A}, {4, 0xF0}}));
    EXPECT_EQ(item.reserved1, 0x5A);
    EXPECT_EQ(item.reservedBits, 15);
    EXPECT_EQ(BytesOf(EdidRangeLimitsDescriptor(static_cast<const EdidRangeLimitsDescriptorFields&>(item))), Plain);
}

TEST(RangeLimits, ANewOneStatesNothingYet) {
    const EdidRangeLimitsDescriptor item;
    EXPECT_EQ(item.timing.GetType(), EdidRangeLimitsTimingTypeId::DefaultGtf);
    EXPECT_FALSE(item.IsValidAll());
    EXPECT_EQ(TextOf(item), "");
}

TEST(RangeLimits, ACvtTimingTakesItsPartOffTheClock) {
    const Bytes cvt = FromHex("00 00 00 FD 00 32 4C 1E 53 11 04 11 04 F0 F8 18 00 3C");
    const EdidRangeLimitsDescriptor item = Read(cvt);
    EXPECT_EQ(item.GetActualMaxPixelClock(), Decimal(16975, 2));
    EXPECT_EQ(TextOf(item), "Range limits: 50-76 Hz, 30-83 kHz, 169.75 MHz");
    EXPECT_EQ(TextOf(Read(With({{12, 0x08}}, cvt))), "Range limits: 50-76 Hz, 30-83 kHz, 169.5 MHz");
}

TEST(RangeLimitsTiming, ReadsASecondaryGtfCurve) {
    const auto timing = ReadAs<EdidRangeLimitsSecondaryGtfTiming>(FromHex("02 07 2D 51 58 02 80 29"));
    EXPECT_EQ(timing.reserved, 7);
    EXPECT_EQ(timing.startFrequency, 90);
    EXPECT_EQ(timing.c, Decimal(405, 1));
    EXPECT_EQ(timing.m, 600);
    EXPECT_EQ(timing.k, 128);
    EXPECT_EQ(timing.j, Decimal(205, 1));
    EXPECT_EQ(TextOf(timing), "Secondary GTF");
    EXPECT_TRUE(EdidRangeLimitsSecondaryGtfTiming().IsValid());
}

TEST(RangeLimitsTiming, ReadsTheFieldsOfCvt) {
    using Ratio = EdidRangeLimitsCvtTimingAspectRatioEnum;
    using Blanking = EdidRangeLimitsCvtTimingBlankingFlagEnum;
    using Scaling = EdidRangeLimitsCvtTimingScalingFlagEnum;
    const EdidRangeLimitsCvtTiming timing = ReadCvt("04 12 05 F0 A3 2C 95 3C");
    EXPECT_EQ(timing.versionMajor, 1);
    EXPECT_EQ(timing.versionMinor, 2);
    EXPECT_EQ(timing.subtractPixelClock, Decimal(25, 2));
    EXPECT_EQ(timing.maxWidth, (256 + 0xF0) * 8);
    EXPECT_EQ(timing.aspectRatios, (TFlagsMsb<Ratio, 5>{Ratio::Ratio4x3, Ratio::Ratio16x10}));
    EXPECT_EQ(timing.reserved1, 3);
    EXPECT_EQ(timing.preferredAspectRatio, Ratio::Ratio16x9);
    EXPECT_EQ(timing.blanking, (TFlagsLsb<Blanking, 2>{Blanking::Standard}));
    EXPECT_EQ(timing.reserved2, 4);
    EXPECT_EQ(timing.scaling, (TFlagsMsb<Scaling, 4>{Scaling::HorizontalShrink, Scaling::VerticalStretch}));
    EXPECT_EQ(timing.reserved3, 5);
    EXPECT_EQ(timing.preferredRefreshRate, 60);
    EXPECT_FALSE(timing.GetStatus().IsProper("preferredAspectRatio"));  // not among the supported ones
    EXPECT_EQ(TextOf(timing), "CVT");
}

TEST(RangeLimitsTiming, AWidthOfZeroIsUndefinedAndTheGreatestIs8184) {
    EXPECT_EQ(ReadCvt("04 11 00 00 00 00 00 3C").maxWidth, Undefined);
    EXPECT_EQ(ReadCvt("04 11 03 FF 00 00 00 3C").maxWidth, 8184);
    EXPECT_TRUE(ReadCvt("04 11 00 00 00 00 00 3C").IsValid());
}

TEST(RangeLimitsTiming, ThePreferredRatioIsASupportedOne) {
    using Ratio = EdidRangeLimitsCvtTimingAspectRatioEnum;
    for (std::uint32_t bits = 0; bits < 32; ++bits) {
        for (int ratio = 0; ratio <= 8; ++ratio) {
            EdidRangeLimitsCvtTimingFields fields;
            fields.aspectRatios = TFlagsMsb<Ratio, 5>(bits);
            fields.preferredAspectRatio = static_cast<Ratio::Enum>(ratio);
            const ItemStatus status = EdidRangeLimitsCvtTiming(fields).GetStatus();
            const bool isNamed = ratio < Ratio::Count;
            const bool isSupported = isNamed && (bits == 0 || fields.aspectRatios.Test(fields.preferredAspectRatio));
            EXPECT_EQ(status.IsProper("preferredAspectRatio"), isSupported) << bits << " " << ratio;
            EXPECT_EQ(status.IsAll("preferredAspectRatio"), ratio < 8);
        }
    }
}

TEST(RangeLimitsTiming, MoreThanASoundSubtractionIsKept) {
    const EdidRangeLimitsCvtTiming timing = ReadCvt("04 01 A0 00 00 00 00 00");
    EXPECT_EQ(timing.subtractPixelClock, Decimal(10));
    for (const char* field : {"subtractPixelClock", "versionMajor", "preferredRefreshRate"}) {
        EXPECT_FALSE(timing.GetStatus().IsProper(field)) << field;
        EXPECT_TRUE(timing.GetStatus().IsAll(field)) << field;
    }
}

TEST(RangeLimitsTiming, ANewOneIsSound) {
    for (const auto& kind : EdidRangeLimitsTimingKinds::All()) {
        EXPECT_TRUE(kind.make()->IsValid()) << kind.title;
        EXPECT_EQ(TextOf(*kind.make()), kind.title);
    }
    EXPECT_EQ(TextOf(EdidRangeLimitsOtherTiming()), "Other");
}

}  // namespace
}  // namespace VNT
