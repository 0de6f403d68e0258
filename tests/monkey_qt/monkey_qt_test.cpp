// Ten thousand random actions on the native program, by the keys and the pointer of its widgets.
#include "tests/monkey/seeded_dice.h"

// The stack of each allocation costs more than the allocation.
extern "C" const char* __asan_default_options() { return "malloc_context_size=4"; }

namespace {

class MonkeyInQt : public testing::TestWithParam<unsigned> {};

constexpr int Actions = 5000;

TEST_P(MonkeyInQt, WhatIsShownIsWhatTheBytesHoldAfterEachOfManyActions) { Testing::LetMonkeyWork(GetParam(), Actions); }

INSTANTIATE_TEST_SUITE_P(OfTwoSeeds, MonkeyInQt, testing::Values(1u, 2u));

}  // namespace
