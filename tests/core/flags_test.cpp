#include "model/core/flags.h"

#include <gtest/gtest.h>

#include "tests/print.h"

namespace VNT {

namespace {

struct Direction {
    enum Enum : int { First, Second, Third, Fourth, Fifth };
};
struct Place {
    enum Enum : int { Zero = 0, One = 1, Seven = 7, Eight = 8, Eleven = 11, Last = 23 };
};
struct Wide32 {
    enum Enum : int { Lowest = 0, Highest = 31 };
};

using Lsb = TFlagsLsb<Direction, 5>;
using Msb = TFlagsMsb<Direction, 5>;

}  // namespace

TEST(Flags, AreMaskedToTheirBitsOnConstruction) {
    EXPECT_EQ(Lsb(0xFFFFFFFFu).GetBits(), 0b11111u);
    EXPECT_EQ(Msb(0xFFFFFFE1u).GetBits(), 0b00001u);
    EXPECT_EQ((TFlagsLsb<Wide32, 32>(0xFFFFFFFFu).GetBits()), 0xFFFFFFFFu);
    EXPECT_EQ(Lsb().GetBits(), 0u);
}

TEST(Flags, OnlyThoseOfTheMaskCanBeSet) {
    using Some = TFlagsLsb<Direction, 5, 0b01010u>;
    EXPECT_EQ(Some(0xFFFFFFFFu).GetBits(), 0b01010u);
    Some flags({Direction::First, Direction::Second});
    EXPECT_EQ(flags.GetBits(), 0b00010u);
    flags.Set(Direction::Fifth, true);
    flags.Set(Direction::Fourth, true);
    EXPECT_EQ(flags.GetBits(), 0b01010u);
    EXPECT_TRUE(Some::Holds(Direction::Fourth));
    EXPECT_FALSE(Some::Holds(Direction::First));
}

TEST(Flags, LsbCountsFromTheLowestBit) {
    EXPECT_EQ(Lsb({Direction::First}).GetBits(), 0b00001u);
    EXPECT_EQ(Lsb({Direction::Fifth}).GetBits(), 0b10000u);
    EXPECT_TRUE(Lsb(0b00010).Test(Direction::Second));
    EXPECT_FALSE(Lsb(0b00010).Test(Direction::Third));
}

TEST(Flags, MsbCountsFromTheHighestBit) {
    EXPECT_EQ(Msb({Direction::First}).GetBits(), 0b10000u);
    EXPECT_EQ(Msb({Direction::Fifth}).GetBits(), 0b00001u);
    EXPECT_TRUE(Msb(0b01000).Test(Direction::Second));
    EXPECT_FALSE(Msb(0b00010).Test(Direction::Second));
}

TEST(Flags, SetChangesOneFlag) {
    Msb flags({Direction::First, Direction::Third});
    flags.Set(Direction::First, false);
    flags.Set(Direction::Fourth, true);
    flags.Set(Direction::Fourth, true);
    EXPECT_EQ(flags, Msb({Direction::Third, Direction::Fourth}));
}

TEST(Flags, ReachTheHighestOfThirtyTwoBits) {
    EXPECT_EQ((TFlagsLsb<Wide32, 32>({Wide32::Highest}).GetBits()), 0x80000000u);
    EXPECT_EQ((TFlagsMsb<Wide32, 32>({Wide32::Highest}).GetBits()), 1u);
}

TEST(Bits, OfABoundedMapAreThereFromTheStart) {
    TBits<12> bits;
    EXPECT_EQ(bits.GetBytes(), Bytes(2, 0));
    bits.SetAt(9, true);
    EXPECT_EQ(bits.GetBytes(), (Bytes{0, 2}));
    EXPECT_TRUE(bits.TestAt(9));
    bits.SetAt(9, false);
    EXPECT_FALSE(bits.TestAt(9));
}

TEST(Bits, BeyondABoundedMapAreFalseAndIgnored) {
    TBits<12> bits(Bytes{0xFF, 0xFF});
    EXPECT_TRUE(bits.TestAt(11));
    EXPECT_FALSE(bits.TestAt(12));
    EXPECT_FALSE(bits.TestAt(-1));
    EXPECT_EQ(bits.CountSet(), 12);
    bits.SetAt(12, false);
    bits.SetAt(-1, false);
    EXPECT_EQ(bits.GetBytes(), (Bytes{0xFF, 0xFF}));
}

TEST(Bits, OfAnUnboundedMapGrowWhenSet) {
    TBits<0xFFFF> bits;
    EXPECT_TRUE(bits.GetBytes().IsEmpty());
    bits.SetAt(17, false);
    EXPECT_TRUE(bits.GetBytes().IsEmpty());
    bits.SetAt(17, true);
    EXPECT_EQ(bits.GetBytes(), (Bytes{0, 0, 2}));
    EXPECT_FALSE(bits.TestAt(1000));
    EXPECT_EQ(bits.CountSet(), 1);
}

TEST(Bits, MsbAreAddressedFromTheFirstBytesHighestBit) {
    TBitsMsb<Place, 24> bits;
    bits.Set(Place::Zero, true);
    bits.Set(Place::Seven, true);
    bits.Set(Place::Eight, true);
    bits.Set(Place::Last, true);
    EXPECT_EQ(bits.GetBytes(), (Bytes{0x81, 0x80, 0x01}));
    EXPECT_TRUE(bits.Test(Place::Eight));
    EXPECT_FALSE(bits.Test(Place::One));
    bits.Set(Place::Zero, false);
    EXPECT_EQ(bits.GetBytes(), (Bytes{0x01, 0x80, 0x01}));
    EXPECT_EQ(bits.CountSet(), 3);
}

TEST(Bits, CompareByTheirBytes) {
    TBitsMsb<Place, 24> a;
    TBitsMsb<Place, 24> b;
    a.Set(Place::Eleven, true);
    EXPECT_FALSE(a == b);
    b.Set(Place::Eleven, true);
    EXPECT_TRUE(a == b);
}

}  // namespace VNT
