#include "model/core/decimal.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

#include "tests/core/wide.h"
#include "tests/print.h"

namespace VNT {

namespace {

constexpr std::int64_t Most = INT64_MAX;

Decimal Millionths(std::int64_t count) { return Decimal::FromMillionths(count); }

// Zero, units, powers and the ends of the range, with both signs.
std::vector<std::int64_t> Landmarks() {
    std::vector<std::int64_t> values = {0};
    for (const std::int64_t value :
         {std::int64_t{1}, std::int64_t{2}, std::int64_t{999999}, std::int64_t{1000000}, std::int64_t{1000001},
          std::int64_t{INT32_MAX}, std::int64_t{4294967296}, std::int64_t{999999999999}, Most / 1000000, Most / 2,
          Most / 2 + 1, Most - 1, Most}) {
        values.push_back(value);
        values.push_back(-value);
    }
    return values;
}

// Numbers of every size alike: each takes a random count of digits first.
std::int64_t RandomCount(std::mt19937_64& random) {
    const auto limit = static_cast<std::uint64_t>(PowerOfTen(static_cast<int>(random() % 18) + 1));
    const auto magnitude = static_cast<std::int64_t>(random() % limit);
    return random() % 2 == 0 ? magnitude : -magnitude;
}

template <class Check>
void ForPairs(const Check& check) {
    for (const std::int64_t a : Landmarks()) {
        for (const std::int64_t b : Landmarks()) check(a, b);
    }
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 20000; ++i) {
        const std::int64_t a = RandomCount(random);
        check(a, RandomCount(random));
    }
}

// The sign of a product or quotient; a zero has none.
bool HasSignOf(Decimal result, std::int64_t a, std::int64_t b) {
    return result.Millionths() == 0 || (result.Millionths() < 0) == ((a < 0) != (b < 0));
}

}  // namespace

TEST(Decimal, IsAMantissaAndACountOfDecimals) {
    EXPECT_EQ(Decimal(10, 3).Millionths(), 10000);
    EXPECT_EQ(Decimal(5).Millionths(), 5000000);
    EXPECT_EQ(Decimal(-14850, 2).Millionths(), -148500000);
    EXPECT_EQ(Decimal(1, 6).Millionths(), 1);
    EXPECT_EQ(Decimal(5, -2).Millionths(), 500000000);
    EXPECT_EQ(Decimal().Millionths(), 0);
}

TEST(Decimal, CutsDecimalsBeyondTheSixth) {
    EXPECT_EQ(Decimal(12345678, 7).Millionths(), 1234567);
    EXPECT_EQ(Decimal(-19, 7).Millionths(), -1);
    EXPECT_EQ(Decimal(Most, 24).Millionths(), 9);
    EXPECT_EQ(Decimal(Most, 25).Millionths(), 0);
    EXPECT_EQ(Decimal(Most, 1000).Millionths(), 0);
}

TEST(Decimal, HoldsWhatIsTooLargeAtTheEnds) {
    EXPECT_EQ(Decimal(Most).Millionths(), Most);
    EXPECT_EQ(Decimal(-Most).Millionths(), -Most);
    EXPECT_EQ(Decimal(INT64_MIN).Millionths(), -Most);
    EXPECT_EQ(Decimal(9, -12).Millionths(), 9 * PowerOfTen(18));
    EXPECT_EQ(Decimal(10, -12).Millionths(), Most);
    EXPECT_EQ(Decimal(1, -13).Millionths(), Most);
    EXPECT_EQ(Decimal(-1, -1000).Millionths(), -Most);
    EXPECT_EQ(Decimal(0, -13).Millionths(), 0);
    EXPECT_EQ(Decimal(0, -1000).Millionths(), 0);
}

TEST(Decimal, TheIntUndefinedIsUndefined) {
    EXPECT_TRUE(Decimal(Undefined).IsUndefined());
    EXPECT_TRUE(Decimal(Undefined, 3).IsUndefined());
    EXPECT_EQ(Decimal(Undefined), Decimal::Undefined());
    EXPECT_EQ(Decimal::Undefined().Millionths(), INT64_MIN);
    EXPECT_FALSE(Decimal(Undefined + 1).IsUndefined());
}

TEST(Decimal, ComparesByValue) {
    EXPECT_TRUE(Decimal(1, 2) == Decimal(10, 3));
    EXPECT_TRUE(Decimal(-1) < Decimal(0));
    EXPECT_TRUE(Decimal(2) > Decimal(199, 2));
    EXPECT_TRUE(Decimal::Undefined() < Millionths(-Most));
    EXPECT_TRUE(Decimal::Undefined() == Decimal::Undefined());
}

TEST(Decimal, AddsAndSubtractsExactlyHeldAtTheEnds) {
    ForPairs([](std::int64_t a, std::int64_t b) {
        std::int64_t sum = 0;
        if (__builtin_add_overflow(a, b, &sum)) sum = a < 0 ? -Most : Most;
        sum = std::max(sum, -Most);
        EXPECT_EQ((Millionths(a) + Millionths(b)).Millionths(), sum) << a << " + " << b;
        EXPECT_EQ((Millionths(a) - Millionths(-b)).Millionths(), sum) << a << " - " << -b;
    });
}

TEST(Decimal, MultipliesWithTruncationHeldAtTheEnds) {
    ForPairs([](std::int64_t a, std::int64_t b) {
        const Decimal product = Millionths(a) * Millionths(b);
        EXPECT_TRUE(IsQuotient(Magnitude(product.Millionths()), Product(Magnitude(a), Magnitude(b)), Decimal::Scale))
            << a << " * " << b << " = " << product.Millionths();
        EXPECT_TRUE(HasSignOf(product, a, b)) << a << " * " << b;
    });
}

TEST(Decimal, DividesWithTruncationHeldAtTheEnds) {
    ForPairs([](std::int64_t a, std::int64_t b) {
        const Decimal quotient = Millionths(a) / Millionths(b);
        if (b == 0) {
            EXPECT_TRUE(quotient.IsUndefined());
            return;
        }
        EXPECT_TRUE(IsQuotient(Magnitude(quotient.Millionths()), Product(Magnitude(a), Decimal::Scale), Magnitude(b)))
            << a << " / " << b << " = " << quotient.Millionths();
        EXPECT_TRUE(HasSignOf(quotient, a, b)) << a << " / " << b;
    });
}

TEST(Decimal, MultipliesAndDividesByAnInteger) {
    ForPairs([](std::int64_t a, std::int64_t b) {
        const Decimal product = Millionths(a) * b;
        EXPECT_TRUE(IsQuotient(Magnitude(product.Millionths()), Product(Magnitude(a), Magnitude(b)), 1))
            << a << " * " << b << " = " << product.Millionths();
        EXPECT_TRUE(HasSignOf(product, a, b)) << a << " * " << b;
        const Decimal quotient = Millionths(a) / b;
        if (b == 0) {
            EXPECT_TRUE(quotient.IsUndefined());
        } else {
            EXPECT_EQ(quotient.Millionths(), a / b) << a << " / " << b;
        }
    });
}

TEST(Decimal, TruncatesTowardsZeroOnBothSides) {
    EXPECT_EQ((Decimal(2) / Decimal(3)).Millionths(), 666666);
    EXPECT_EQ((Decimal(-2) / Decimal(3)).Millionths(), -666666);
    EXPECT_EQ((Decimal(-2) / 3).Millionths(), -666666);
    EXPECT_EQ((Millionths(1999) * Millionths(999)).Millionths(), 1);
    EXPECT_EQ((Millionths(-1999) * Millionths(999)).Millionths(), -1);
}

TEST(Decimal, UndefinedSpreadsThroughEveryOperation) {
    const Decimal undefined = Decimal::Undefined();
    for (const Decimal& result :
         {undefined + Decimal(1), Decimal(1) + undefined, undefined - undefined, -undefined, undefined * Decimal(0),
          Decimal(0) * undefined, undefined / Decimal(1), Decimal(1) / undefined, undefined * 0, undefined / 1,
          Decimal(1) * Undefined, Decimal(1) / Undefined, undefined.RoundNearest(2), undefined.RoundUp(2)}) {
        EXPECT_TRUE(result.IsUndefined());
    }
    EXPECT_EQ(undefined.ToInt(), Undefined);
    EXPECT_EQ(undefined.ToInt(7), Undefined);
}

TEST(Decimal, NegationOfTheEndsStaysInRange) {
    EXPECT_EQ((-Millionths(Most)).Millionths(), -Most);
    EXPECT_EQ((-Millionths(-Most)).Millionths(), Most);
}

TEST(Decimal, ADoubleIsRoundedToTheNearestMillionth) {
    EXPECT_EQ(Decimal::FromDouble(0.1).Millionths(), 100000);
    EXPECT_EQ(Decimal::FromDouble(1.0000004).Millionths(), 1000000);
    EXPECT_EQ(Decimal::FromDouble(1.0000006).Millionths(), 1000001);
    EXPECT_EQ(Decimal::FromDouble(-1.0000006).Millionths(), -1000001);
    EXPECT_DOUBLE_EQ(Decimal(14850, 2).ToDouble(), 148.5);
}

TEST(Decimal, ADoubleThatDoesNotFitIsUndefined) {
    for (const double value : {1e13, -1e13, 1e300, std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(Decimal::FromDouble(value).IsUndefined()) << value;
    }
    EXPECT_FALSE(Decimal::FromDouble(9.223372e12).IsUndefined());
}

TEST(Decimal, RoundsToNearestWithTiesAwayFromZero) {
    EXPECT_EQ(Decimal(12345, 4).RoundNearest(3), Decimal(1235, 3));
    EXPECT_EQ(Decimal(12344, 4).RoundNearest(3), Decimal(1234, 3));
    EXPECT_EQ(Decimal(-12345, 4).RoundNearest(3), Decimal(-1235, 3));
    EXPECT_EQ(Decimal(-12344, 4).RoundNearest(3), Decimal(-1234, 3));
    EXPECT_EQ(Decimal(5, 1).RoundNearest(0), Decimal(1));
    EXPECT_EQ(Decimal(15).RoundNearest(-1), Decimal(20));
    EXPECT_EQ(Decimal(2).RoundNearest(3), Decimal(2));
}

TEST(Decimal, RoundsUpTowardsPlusInfinity) {
    EXPECT_EQ(Decimal(12341, 4).RoundUp(3), Decimal(1235, 3));
    EXPECT_EQ(Decimal(1234, 3).RoundUp(3), Decimal(1234, 3));
    EXPECT_EQ(Decimal(-12349, 4).RoundUp(3), Decimal(-1234, 3));
    EXPECT_EQ(Millionths(1).RoundUp(0), Decimal(1));
    EXPECT_EQ(Decimal(11).RoundUp(-1), Decimal(20));
}

TEST(Decimal, RoundingAtSixPlacesOrMoreChangesNothing) {
    for (const int places : {6, 7, 1000}) {
        EXPECT_EQ(Millionths(1234567).RoundNearest(places), Millionths(1234567));
        EXPECT_EQ(Millionths(1234567).RoundUp(places), Millionths(1234567));
    }
}

TEST(Decimal, RoundingAtTheEndsDoesNotOverflow) {
    for (const int places : {5, 0, -6, -12, -13, -1000}) {
        for (const std::int64_t end : {Most, -Most}) {
            EXPECT_FALSE(Millionths(end).RoundNearest(places).IsUndefined());
            EXPECT_FALSE(Millionths(end).RoundUp(places).IsUndefined());
        }
    }
    EXPECT_EQ(Millionths(Most).RoundUp(0).Millionths(), Most);
    EXPECT_EQ(Millionths(-Most).RoundUp(0).Millionths(), -Most / 1000000 * 1000000);
}

TEST(Decimal, ToIntCountsUnitsTruncatedTowardsZero) {
    EXPECT_EQ(Decimal(-19, 1).ToInt(), -1);
    EXPECT_EQ(Decimal(19999, 3).ToInt(), 19);
    EXPECT_EQ(Decimal(14850, 2).ToInt(2), 14850);
    EXPECT_EQ(Decimal(123).ToInt(-1), 12);
    EXPECT_EQ(Decimal(1, 6).ToInt(6), 1);
    EXPECT_EQ(Decimal(1, 6).ToInt(8), 100);
}

TEST(Decimal, ToIntIsHeldWithinAnInt) {
    EXPECT_EQ(Millionths(Most).ToInt(), INT32_MAX);
    EXPECT_EQ(Millionths(-Most).ToInt(), -INT32_MAX);
    EXPECT_EQ(Millionths(Most).ToInt(1000), INT32_MAX);
    EXPECT_EQ(Millionths(Most).ToInt(-12), 9);
    EXPECT_EQ(Millionths(Most).ToInt(-1000), 9);
}

TEST(Decimal, PowersOfTenAreOneForANegativeExponent) {
    EXPECT_EQ(PowerOfTen(18), 1000000000000000000);
    EXPECT_EQ(PowerOfTen(0), 1);
    EXPECT_EQ(PowerOfTen(-3), 1);
}

}  // namespace VNT
