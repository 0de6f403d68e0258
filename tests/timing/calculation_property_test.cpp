#include <gtest/gtest.h>

#include "tests/timing/promises.h"
#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

// A picture and rate such as displays have, in any mode.
DetailedResolutionFields UsualFields(Random& random) {
    constexpr int rates[] = {24, 25, 30, 48, 50, 60, 72, 75, 85, 100, 120, 144, 165, 240, 360, 480};
    DetailedResolutionFields fields;
    fields.timing = static_cast<Timing::Enum>(random.Between(0, Timing::Count - 1));
    fields.parameterType = static_cast<ParameterType::Enum>(random.Between(0, 2));
    fields.frequencyType = static_cast<FrequencyType::Enum>(random.Between(0, 2));
    fields.qftSource = static_cast<QftSource::Enum>(random.Between(0, 1));
    fields.hactive = random.Between(100, 4500);
    fields.vactive = random.Between(100, 2400);
    fields.interlaced = random.Coin();
    fields.vrate = Decimal(rates[random.Word() % std::size(rates)]);
    if (random.Coin()) fields.vrate = fields.vrate * 1000 / 1001;
    fields.hrate = Decimal(random.Between(15000, 200000), 3);
    fields.pixelclock = Decimal(random.Between(10000, 700000), 3);
    fields.htotal = fields.hactive + random.Between(100, 1000);
    fields.hblank = random.Between(100, 1000);
    fields.vtotal = fields.vactive + random.Between(20, 200);
    fields.vblank = random.Between(20, 200);
    fields.hpolarity = random.Coin();
    fields.vpolarity = random.Coin();
    return fields;
}

template <class X>
int CheckPromises(int size, std::uint32_t seed, DetailedResolutionFields (*make)(Random& random), int count) {
    Random random(seed);
    int valid = 0;
    for (int i = 0; i < count; ++i) {
        typename X::FieldsType fields;
        static_cast<DetailedResolutionFields&>(fields) = make(random);
        const char* broken = BrokenPromise<X>(fields, size);
        EXPECT_EQ(broken, nullptr) << broken << " " << TextOf(X(fields)) << " mode " << fields.timing << " "
                                   << fields.hactive << "x" << fields.vactive << " case " << i;
        if (X(fields).IsValid()) ++valid;
    }
    return valid;
}

DetailedResolutionFields AnyFields(Random& random) { return random.Fields(); }

TEST(TimingPromises, HoldForUsualPictures) {
    EXPECT_GT(CheckPromises<EdidDetailedResolution>(18, 11, UsualFields, 10000), 3000);
    EXPECT_GT(CheckPromises<DisplayId1DetailedResolution>(20, 12, UsualFields, 10000), 3000);
    EXPECT_GT(CheckPromises<DisplayId2DetailedResolution>(20, 13, UsualFields, 10000), 3000);
    EXPECT_GT(CheckPromises<DisplayId2DetailedResolutionR2>(27, 14, UsualFields, 10000), 3000);
}

TEST(TimingPromises, HoldForAnyFields) {
    CheckPromises<EdidDetailedResolution>(18, 21, AnyFields, 20000);
    CheckPromises<DisplayId1DetailedResolution>(20, 22, AnyFields, 20000);
    CheckPromises<DisplayId2DetailedResolution>(20, 23, AnyFields, 20000);
}

TEST(TimingPromises, TheEntryThatIsKeptIsReached) {
    Random random(31);
    for (int i = 0; i < 5000; ++i) {
        EdidDetailedResolutionFields fields;
        static_cast<DetailedResolutionFields&>(fields) = UsualFields(random);
        fields.timing = Timing::Manual;
        const EdidDetailedResolution item(fields);
        if (item.actualpixelclock.IsUndefined()) continue;
        const Decimal asked = AskedClock(item);
        EXPECT_GE(item.actualpixelclock, asked);
        EXPECT_LT(item.actualpixelclock, asked + Decimal(1, 2));
    }
}

TEST(TimingPromises, TextsOfAnyFieldsEnd) {
    Random random(41);
    for (int i = 0; i < 5000; ++i) {
        TextTable table;
        FillTimingTexts(table, random.Fields(), EdidDetailedResolution::Format);
        EXPECT_LT(Replace(U"{description}{modeline}", table).Length(), 1000);
    }
}

}  // namespace
}  // namespace VNT
