// A hundred thousand random actions on the program, the same ones every time.
#include "tests/monkey/monkey.h"

#include <gtest/gtest.h>
#include <random>

#include "ui/resources.h"

// The stack of each allocation costs more than the allocation.
extern "C" const char* __asan_default_options() { return "malloc_context_size=4"; }

namespace {

using namespace Testing;

// The same sequence on every system.
class SeededDice : public Dice {
public:
    SeededDice(unsigned seed, int actions) : random(seed), left(actions) {}
    int Roll(int sides) override { return static_cast<int>(random() % static_cast<unsigned>(sides)); }
    bool HasMore() const override { return left > 0; }
    void Pass() override { --left; }

private:
    std::mt19937 random;
    int left;
};

class MonkeyTest : public testing::TestWithParam<unsigned> {};

constexpr int Actions = 25000;

TEST_P(MonkeyTest, WhatIsShownIsWhatTheBytesHoldAfterEachOfManyActions) {
    const int alive = UI::CountLive();
    SeededDice dice(GetParam(), Actions);
    {
        const auto folder =
            std::filesystem::path(testing::TempDir()) / ("vantelle_monkey_" + std::to_string(GetParam()));
        Monkey monkey(dice, 8, folder);
        try {
            monkey.Work();
        } catch (const std::exception& finding) {
            FAIL() << finding.what();
        }
        std::string tally;
        for (const auto& [name, count] : monkey.GetSeen())
            tally += VNT::String(name).ToUtf8() + " " + std::to_string(count) + "\n";
        EXPECT_GT(monkey.GetSeen().size(), 8u) << "of the forms it saw only\n" << tally;
        RecordProperty("seen", tally);
        std::cout << monkey.CountSessions() << " sessions\n" << tally;
    }
    EXPECT_EQ(UI::CountLive(), alive);
}

INSTANTIATE_TEST_SUITE_P(OfFourSeeds, MonkeyTest, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
