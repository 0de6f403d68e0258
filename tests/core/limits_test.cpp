#include "model/core/limits.h"

#include <gtest/gtest.h>

#include "tests/print.h"

namespace VNT {

TEST(ValueLimits, HoldMinToMax) {
    constexpr ValueLimits limits{-3, 5};
    static_assert(limits.Contains(-3) && limits.Contains(5));
    EXPECT_FALSE(limits.Contains(-4));
    EXPECT_FALSE(limits.Contains(6));
}

TEST(ValueLimits, WithAStepHoldEveryStepFromTheOffset) {
    constexpr ValueLimits limits{1, 9, 4, 1};
    for (int value = -1; value <= 10; ++value) {
        EXPECT_EQ(limits.Contains(value), value == 1 || value == 5 || value == 9) << value;
    }
}

TEST(ValueLimits, TakeTheModuloOfANegativeValueMathematically) {
    constexpr ValueLimits odd{-7, 7, 2, 1};
    EXPECT_TRUE(odd.Contains(-7));
    EXPECT_TRUE(odd.Contains(-1));
    EXPECT_TRUE(odd.Contains(1));
    EXPECT_FALSE(odd.Contains(-2));
    EXPECT_FALSE(odd.Contains(0));
    constexpr ValueLimits thirds{-9, 9, 3, 1};
    EXPECT_TRUE(thirds.Contains(-8));
    EXPECT_FALSE(thirds.Contains(-7));
}

TEST(ValueLimits, HoldTheExtraValuesWhateverTheRest) {
    constexpr ValueLimits limits{10, 20, 10, 0, {Undefined, 255, 13}};
    EXPECT_TRUE(limits.Contains(Undefined));
    EXPECT_TRUE(limits.Contains(255));
    EXPECT_TRUE(limits.Contains(13));
    EXPECT_TRUE(limits.Contains(20));
    EXPECT_FALSE(limits.Contains(12));
    EXPECT_FALSE(limits.Contains(254));
}

TEST(ValueLimits, UndefinedPassesExactlyWhereListed) {
    EXPECT_FALSE((ValueLimits{0, 10}.Contains(Undefined)));
    EXPECT_TRUE((ValueLimits{0, 10, 0, 0, {Undefined}}.Contains(Undefined)));
    EXPECT_FALSE((LongLimits{0, 10}.Contains(Undefined)));
    EXPECT_TRUE((LongLimits{0, 10, 0, 0, {Undefined}}.Contains(Undefined)));
    EXPECT_FALSE((DecimalLimits{Decimal(0), Decimal(10)}.Contains(Decimal::Undefined())));
    EXPECT_TRUE((DecimalLimits{Decimal(0), Decimal(10), {}, {}, {Decimal(Undefined)}}.Contains(Decimal::Undefined())));
}

TEST(ValueLimits, ReachTheEndsOfTheirType) {
    constexpr ValueLimits all{INT32_MIN, INT32_MAX, 2, 1};
    EXPECT_TRUE(all.Contains(INT32_MAX));
    EXPECT_FALSE(all.Contains(INT32_MIN));
    constexpr LongLimits longs{INT64_MIN, INT64_MAX, 2, 0};
    EXPECT_TRUE(longs.Contains(INT64_MIN));
    EXPECT_FALSE(longs.Contains(INT64_MAX));
}

TEST(LongLimits, HoldNumbersBeyondAnInt) {
    constexpr LongLimits limits{1, 0xFFFFFFFF};
    EXPECT_TRUE(limits.Contains(0xFFFFFFFF));
    EXPECT_FALSE(limits.Contains(0x100000000));
}

TEST(DecimalLimits, HoldTheirStepsOnly) {
    constexpr DecimalLimits limits{Decimal(-32768, 2), Decimal(32767, 2), Decimal(1, 2)};
    EXPECT_TRUE(limits.Contains(Decimal(-32768, 2)));
    EXPECT_TRUE(limits.Contains(Decimal(-1, 2)));
    EXPECT_TRUE(limits.Contains(Decimal(32767, 2)));
    EXPECT_FALSE(limits.Contains(Decimal(-1, 3)));
    EXPECT_FALSE(limits.Contains(Decimal(32768, 2)));
}

TEST(CountLimits, HoldLengths) {
    constexpr CountLimits limits{1, 13};
    EXPECT_FALSE(limits.Contains(0));
    EXPECT_TRUE(limits.Contains(1));
    EXPECT_TRUE(limits.Contains(13));
    EXPECT_FALSE(limits.Contains(14));
}

TEST(EnumLimits, HoldTheRowsAndTheExtraValues) {
    constexpr EnumLimits limits{3, {Undefined, 15}};
    EXPECT_TRUE(limits.Contains(0));
    EXPECT_TRUE(limits.Contains(2));
    EXPECT_FALSE(limits.Contains(3));
    EXPECT_FALSE(limits.Contains(-1));
    EXPECT_TRUE(limits.Contains(15));
    EXPECT_TRUE(limits.Contains(Undefined));
}

TEST(LimitPair, OneSetOfLimitsServesForBoth) {
    const TLimitPair<ValueLimits> same = Within(1, 5);
    EXPECT_TRUE(same.proper.Contains(5) && same.all.Contains(5));
    const TLimitPair<ValueLimits> apart = Within({1, 5}, {0, 9});
    EXPECT_FALSE(apart.proper.Contains(0));
    EXPECT_TRUE(apart.all.Contains(0));
    EXPECT_TRUE(OneOf(2).all.Contains(1));
    EXPECT_FALSE(OneOf(2).all.Contains(2));
    EXPECT_FALSE(Exactly(4).proper.Contains(3));
}

TEST(ValueCoding, ScalesAndShifts) {
    constexpr ValueCoding coding{1990, 2};
    EXPECT_EQ(coding.Decode(10), 2010);
    EXPECT_EQ(coding.Encode(2010), 10);
}

TEST(ValueCoding, WithoutAStepIsTheNumberItself) {
    constexpr ValueCoding coding;
    EXPECT_EQ(coding.Decode(77), 77);
    EXPECT_EQ(coding.Encode(77), 77);
}

TEST(ValueCoding, EncodesWithTruncation) {
    constexpr ValueCoding coding{100, 8};
    EXPECT_EQ(coding.Encode(115), 1);
    EXPECT_EQ(coding.Encode(85), -1);
}

TEST(ValueCoding, PairsGoBeforeTheRuleBothWays) {
    constexpr ValueCoding coding{0, 1, {{0, Undefined}, {255, 7}}};
    EXPECT_EQ(coding.Decode(0), Undefined);
    EXPECT_EQ(coding.Encode(Undefined), 0);
    EXPECT_EQ(coding.Decode(255), 7);
    EXPECT_EQ(coding.Encode(7), 255);
    EXPECT_EQ(coding.Decode(1), 1);
}

TEST(ValueCoding, EncodesAnythingWithoutOverflow) {
    constexpr ValueCoding coding{-1000, 3};
    EXPECT_EQ(coding.Encode(INT32_MAX), (std::int64_t{INT32_MAX} + 1000) / 3);
    EXPECT_EQ(coding.Encode(INT32_MIN), (std::int64_t{INT32_MIN} + 1000) / 3);
    constexpr LongCoding longs{1, 2};
    longs.Encode(INT64_MIN);
    EXPECT_EQ(longs.Encode(INT64_MAX), INT64_MAX / 2);
    constexpr DecimalCoding decimals{Decimal(1), Decimal(1, 2)};
    decimals.Encode(Decimal::Undefined());
    decimals.Encode(Decimal::FromMillionths(-INT64_MAX));
}

TEST(LongCoding, CarriesThirtyTwoBits) {
    constexpr LongCoding coding{0, 1, {{0, Undefined}}};
    EXPECT_EQ(coding.Decode(0xFFFFFFFF), 0xFFFFFFFF);
    EXPECT_EQ(coding.Encode(0xFFFFFFFF), 0xFFFFFFFF);
    EXPECT_EQ(coding.Decode(0), Undefined);
}

TEST(DecimalCoding, CarriesAGammaByte) {
    const DecimalCoding gamma{Decimal(1), Decimal(1, 2), {{255, Decimal::Undefined()}}};
    EXPECT_EQ(gamma.Decode(120), Decimal(220, 2));
    EXPECT_EQ(gamma.Encode(Decimal(220, 2)), 120);
    EXPECT_EQ(gamma.Encode(Decimal(2209, 3)), 120);
    EXPECT_EQ(gamma.Encode(Decimal(99, 2)), -1);
    EXPECT_TRUE(gamma.Decode(255).IsUndefined());
    EXPECT_EQ(gamma.Encode(Decimal::Undefined()), 255);
}

TEST(DecimalCoding, IsItsOwnInverseForEveryRaw) {
    const DecimalCoding aspect{Decimal(99, 2), Decimal(1, 2)};
    for (std::uint32_t raw = 0; raw < 256; ++raw) EXPECT_EQ(aspect.Encode(aspect.Decode(raw)), raw);
}

}  // namespace VNT
