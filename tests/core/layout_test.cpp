#include <gtest/gtest.h>
#include <random>

#include "model/core/flags.h"
#include "model/core/layout_made.h"
#include "tests/print.h"

namespace VNT {

namespace {

struct ColorEnum {
    enum Enum : int { Red, Green, Blue };
};
struct FeatureFlagEnum {
    enum Enum : int { Low, Middle, High };
};

// A part of its own: one byte.
struct Inner {
    static constexpr int FrameSize = 1;
    int value = 0;
    bool IsValidAll() const { return value < 200; }
    bool Read(ByteRange range) {
        value = static_cast<int>(range.ReadLsb(8));
        return true;
    }
    bool Write(ByteRange range) const {
        range.WriteLsb(8, static_cast<std::uint32_t>(value));
        return true;
    }
};

// One of every kind of line that a layout can have, in fourteen bytes and what follows.
struct Sample {
    static constexpr int Size = 14;

    int number = 0;                          // byte 0
    ColorEnum::Enum color = ColorEnum::Red;  // byte 1: 2 bits
    bool on = false;                         // 1 bit
    int reserved = 0;                        // 5 bits
    int split = 0;                           // bytes 2 (low 8) and 3 (bits 4 to 7 high)
    int crossed = 0;                         // byte 3 (bits 0 to 3, low) and 4, 5 in one piece
    Decimal scaled;                          // byte 6
    TFlagsLsb<FeatureFlagEnum, 3> flags;     // byte 7: bits 0 to 2, then a constant
    int address = 0;                         // bytes 8, 9: drawn from the left
    int shadow = 0;                          // byte 10, through functions
    Bytes pair;                              // bytes 11, 12
    Inner inner;                             // byte 13
    Bytes rest;

    void SetShadow(std::uint32_t raw) { shadow = static_cast<int>(raw / 2); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("number", 8, item.number, Within({1, 100}, {0, 200}));
        io.Number("color", 2, item.color, OneOf(3));
        io.Number("on", 1, item.on, OneOf(2));
        io.Kept("reserved", 5, item.reserved);
        io.Number("split", {{2, 0, 8}, {3, 4, 4}}, item.split, Within(0, 4095));
        io.Number("crossed", {{3, 0, 4}, {4, 0, 16}}, item.crossed, Within(0, 0xFFFFF));
        const DecimalCoding coding{Decimal(1), Decimal(1, 2), {{255, Decimal::Undefined()}}};
        io.Number("scaled", 8, item.scaled, coding,
                  Within(DecimalLimits{Decimal(1), Decimal(3), {}, {}, {Decimal::Undefined()}}));
        io.Kept("flags", 3, item.flags);
        io.Constant(5, 0b10101);
        io.Order(BitOrder::Msb);
        io.Number("address", 16, item.address, Within(0, 0xFFFF));
        io.Order(BitOrder::Lsb);
        io.Through(
            8, [&] { return item.shadow * 2; }, [&](auto raw) { item.SetShadow(raw); });
        io.Check("even", item.number % 2 == 0, true);
        io.Data("pair", 2, item.pair, Exactly(2));
        io.Part("inner", 1, item.inner, item.inner.value < 10, item.inner.value < 200);
        if (io.Available() > Size) io.Rest("rest", item.rest, TLimitPair<CountLimits>({0, io.Available() - Size}));
    }
};

const Bytes SampleBytes{100, 0b10110110, 0x34, 0x12, 0xAB, 0xCD, 120, 0b10101011, 0x12, 0x34, 66, 7, 8, 9, 0xF0, 0x0D};

Sample ReadSample(ByteRange bytes) {
    Sample sample;
    LayoutReader reader(bytes);
    Sample::Map(reader, sample);
    return sample;
}

Bytes WriteSample(const Sample& sample, int size) {
    Bytes bytes(size, 0);
    LayoutWriter writer(bytes);
    Sample::Map(writer, sample);
    return bytes;
}

}  // namespace

TEST(LayoutReader, ReadsEveryKindOfLine) {
    const Sample sample = ReadSample(SampleBytes);
    EXPECT_EQ(sample.number, 100);
    EXPECT_EQ(sample.color, ColorEnum::Blue);
    EXPECT_TRUE(sample.on);
    EXPECT_EQ(sample.reserved, 0b10110);
    EXPECT_EQ(sample.split, 0x134);
    EXPECT_EQ(sample.crossed, 0xCDAB2);
    EXPECT_EQ(sample.scaled, Decimal(220, 2));
    EXPECT_EQ(sample.flags.GetBits(), 0b011u);
    EXPECT_EQ(sample.address, 0x1234);
    EXPECT_EQ(sample.shadow, 33);
    EXPECT_EQ(sample.pair, (Bytes{7, 8}));
    EXPECT_EQ(sample.inner.value, 9);
    EXPECT_EQ(sample.rest, (Bytes{0xF0, 0x0D}));
}

TEST(LayoutWriter, GivesBackWhatWasRead) {
    EXPECT_EQ(WriteSample(ReadSample(SampleBytes), SampleBytes.Size()), SampleBytes);
}

TEST(LayoutWriter, GivesBackAnyBytesButConstants) {
    std::mt19937 random(7);
    for (int i = 0; i < 500; ++i) {
        Bytes bytes(SampleBytes.Size(), 0);
        for (int at = 0; at < bytes.Size(); ++at) bytes.At(at) = static_cast<std::uint8_t>(random());
        bytes.At(7) = static_cast<std::uint8_t>(bytes.At(7) % 8 + 0b10101000);
        bytes.At(10) = static_cast<std::uint8_t>(bytes.At(10) / 2 * 2);
        EXPECT_EQ(WriteSample(ReadSample(bytes), bytes.Size()), bytes);
    }
}

TEST(LayoutWriter, WritesAConstantWhateverWasRead) {
    Bytes bytes = SampleBytes;
    bytes.At(7) = 0b01010011;
    EXPECT_EQ(WriteSample(ReadSample(bytes), bytes.Size()), SampleBytes);
}

TEST(LayoutWriter, LeavesTheBitsBetweenFlagsWithHoles) {
    Bytes bytes{0b10101010};
    LayoutWriter writer(bytes);
    writer.Kept("some", 8, TFlags<ColorEnum, 8, 0b00001111>(0b0101));
    EXPECT_EQ(bytes, Bytes{0b10100101});
}

TEST(LayoutWriter, LeavesAloneWhatNoLineNames) {
    Bytes bytes(2, 0xFF);
    LayoutWriter writer(bytes);
    writer.Number("low", {{1, 2, 3}}, 0, Within(0, 7));
    EXPECT_EQ(bytes, (Bytes{0xFF, 0b11100011}));
}

TEST(LayoutWriter, ClipsDataToItsPlaceAndLeavesWhatItDoesNotFill) {
    Bytes bytes(4, 0xEE);
    LayoutWriter writer(bytes);
    writer.Data("long", 2, Bytes{1, 2, 3}, Exactly(2));
    writer.Data("short", 2, Bytes{4}, Exactly(2));
    EXPECT_EQ(bytes, (Bytes{1, 2, 4, 0xEE}));
}

TEST(Layout, ACutAtEveryLengthReadsZerosAndWritesNothingOutside) {
    for (int length = 0; length <= SampleBytes.Size(); ++length) {
        const Bytes cut = SampleBytes.Slice(0, length);
        Bytes expected = cut;
        expected.Resize(SampleBytes.Size(), 0);
        // A field that is cut reads as if zeros followed; bytes and constants end where the frame does.
        const Sample fromCut = ReadSample(cut);
        const Sample fromZeros = ReadSample(expected);
        EXPECT_EQ(fromCut.split, fromZeros.split) << length;
        EXPECT_EQ(fromCut.crossed, fromZeros.crossed) << length;
        EXPECT_EQ(fromCut.address, fromZeros.address) << length;
        EXPECT_EQ(fromCut.scaled, fromZeros.scaled) << length;
        EXPECT_EQ(fromCut.pair.Size(), std::min(2, std::max(0, length - 11))) << length;

        Bytes around(SampleBytes.Size() + 2, 0xEE);
        ByteRange target = around;
        target.Drop(1);
        target.Limit(length);
        LayoutWriter writer(target);
        Sample::Map(writer, fromCut);
        EXPECT_EQ(around.Slice(1, length), cut) << length;
        EXPECT_EQ(around.At(0), 0xEE) << length;
        EXPECT_TRUE(around.Slice(1 + length, around.Size()).IsAll(0xEE)) << length;
    }
}

TEST(LayoutChecker, TestsEveryFieldAgainstBothLimits) {
    Sample sample = ReadSample(SampleBytes);
    EXPECT_TRUE(StatusOf(sample, 16).IsValid());
    sample.number = 150;
    const ItemStatus wide = StatusOf(sample, 16);
    EXPECT_FALSE(wide.IsProper("number"));
    EXPECT_TRUE(wide.IsAll("number"));
    EXPECT_FALSE(wide.IsValid());
    EXPECT_TRUE(wide.IsValidAll());
    sample.number = 202;
    EXPECT_FALSE(StatusOf(sample, 16).IsValidAll());
}

TEST(LayoutChecker, ReportsKeptBitsThatDoNotFit) {
    Sample sample = ReadSample(SampleBytes);
    sample.reserved = 31;
    EXPECT_TRUE(StatusOf(sample, 16).IsProper("reserved"));
    sample.reserved = 32;
    EXPECT_FALSE(StatusOf(sample, 16).IsAll("reserved"));
    sample.reserved = -1;
    EXPECT_FALSE(StatusOf(sample, 16).IsAll("reserved"));
}

TEST(LayoutChecker, ReportsEnumerationsDataPartsAndRules) {
    Sample sample = ReadSample(SampleBytes);
    sample.color = static_cast<ColorEnum::Enum>(3);
    sample.pair = Bytes{1};
    sample.inner.value = 100;
    sample.number = 99;
    sample.rest = Bytes(3, 0);
    const ItemStatus status = StatusOf(sample, 16);
    EXPECT_FALSE(status.IsAll("color"));
    EXPECT_FALSE(status.IsAll("pair"));
    EXPECT_FALSE(status.IsProper("inner"));
    EXPECT_TRUE(status.IsAll("inner"));
    EXPECT_FALSE(status.IsProper("even"));
    EXPECT_TRUE(status.IsAll("even"));
    EXPECT_FALSE(status.IsAll("rest"));
}

TEST(LayoutChecker, AFieldThatDoesNotApplyPasses) {
    Sample sample = ReadSample(SampleBytes);
    sample.rest = Bytes(99, 0);
    const ItemStatus status = StatusOf(sample, Sample::Size);
    EXPECT_FALSE(status.IsPresent("rest"));
    EXPECT_TRUE(status.IsProper("rest"));
    EXPECT_TRUE(status.IsAll("rest"));
    EXPECT_TRUE(status.IsPresent("pair"));
    EXPECT_TRUE(status.IsValidAll());
}

TEST(LayoutChecker, ValidityAloneSaysTheSame) {
    Sample sample = ReadSample(SampleBytes);
    for (const int number : {0, 1, 2, 100, 101, 200, 201, Undefined}) {
        sample.number = number;
        const ItemStatus status = StatusOf(sample, 16);
        const Validity validity = ValidityOf(sample, 16);
        EXPECT_EQ(validity.proper, status.IsValid()) << number;
        EXPECT_EQ(validity.all, status.IsValidAll()) << number;
    }
}

TEST(LimitsLister, ListsEveryFieldInTheOrderOfTheBytes) {
    const std::vector<FieldLimits> limits = LimitsOf(Sample(), 16);
    std::vector<std::string> names;
    for (const FieldLimits& field : limits) names.emplace_back(field.name);
    EXPECT_EQ(names, (std::vector<std::string>{"number", "color", "on", "reserved", "split", "crossed", "scaled",
                                               "flags", "address", "pair", "rest"}));
    EXPECT_EQ(std::get<ValueLimits>(limits[0].proper).max, 100);
    EXPECT_EQ(std::get<ValueLimits>(limits[0].all).max, 200);
    EXPECT_EQ(std::get<EnumLimits>(limits[1].all).count, 3);
    EXPECT_EQ(std::get<LongLimits>(limits[3].all).max, 31);
    EXPECT_EQ(std::get<DecimalLimits>(limits[6].all).max, Decimal(3));
    EXPECT_EQ(std::get<CountLimits>(limits[9].all).min, 2);
    EXPECT_EQ(std::get<CountLimits>(limits[10].all).max, 2);
}

TEST(BitPlace, KnowsTheGreatestNumberThatFits) {
    EXPECT_EQ(BitPlace(1).Most(), 1);
    EXPECT_EQ(BitPlace({{0, 0, 8}, {1, 4, 4}}).Most(), 4095);
    EXPECT_EQ(BitPlace(32).Most(), 0xFFFFFFFF);
}

// The lowest bits first, each piece as long as it says.
TEST(BitPlace, PutsUpToFourPiecesTogether) {
    const Bytes bytes{0b00000101, 0b00001000, 0b01100000, 0b10000001};
    const BitPlace two{{0, 0, 3}, {1, 3, 2}}, three{{0, 0, 3}, {1, 3, 2}, {2, 5, 3}},
        four{{0, 0, 3}, {1, 3, 2}, {2, 5, 3}, {3, 0, 8}};
    ByteRange range = bytes;
    EXPECT_EQ(two.Read(range, BitOrder::Lsb), 0b01'101u);
    EXPECT_EQ(range.position, 8 + 5);
    EXPECT_EQ(three.Read(range, BitOrder::Lsb), 0b011'01'101u);
    EXPECT_EQ(range.position, 16 + 8);
    EXPECT_EQ(four.Read(range, BitOrder::Lsb), 0b10000001'011'01'101u);
    EXPECT_EQ(range.position, 24 + 8);
    EXPECT_EQ(two.Count(), 5);
    EXPECT_EQ(four.Count(), 16);
    Bytes written(4, 0);
    ByteRange target = written;
    four.Write(target, BitOrder::Lsb, 0b10000001'011'01'101u);
    EXPECT_EQ(written, bytes);
}

TEST(BitPlace, OutsideTheFrameReadsZerosAndWritesNothing) {
    Bytes bytes(2, 0xFF);
    ByteRange range = bytes;
    const BitPlace outside{{5, 3, 8}};
    EXPECT_EQ(outside.Read(range, BitOrder::Lsb), 0u);
    outside.Write(range, BitOrder::Lsb, 0);
    EXPECT_EQ(bytes, Bytes(2, 0xFF));
}

TEST(BitPlace, AfterPiecesTheCursorStandsBehindTheLast) {
    const Bytes bytes{0, 0, 0x0F, 0x5A};
    LayoutReader reader(bytes);
    int first = 0;
    int second = 0;
    reader.Number("first", {{2, 0, 8}}, first, Within(0, 255));
    reader.Number("second", 8, second, Within(0, 255));
    EXPECT_EQ(first, 0x0F);
    EXPECT_EQ(second, 0x5A);
}

}  // namespace VNT
