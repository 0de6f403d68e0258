// A hundred thousand random actions on the program, the same ones every time.
#include "tests/monkey/seeded_dice.h"

// The stack of each allocation costs more than the allocation.
extern "C" const char* __asan_default_options() { return "malloc_context_size=4"; }

namespace {

class MonkeyTest : public testing::TestWithParam<unsigned> {};

constexpr int Actions = 25000;

TEST_P(MonkeyTest, WhatIsShownIsWhatTheBytesHoldAfterEachOfManyActions) {
    Testing::LetMonkeyWork(GetParam(), Actions, 4);
}

INSTANTIATE_TEST_SUITE_P(OfFourSeeds, MonkeyTest, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
