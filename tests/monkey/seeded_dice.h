#pragma once

#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/monkey/monkey.h"
#include "ui/resources.h"

namespace Testing {

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

// Lets the monkey work on eight displays; the test fails by what it finds, if anything of the toolkit stays alive, and
// if it put back controls of fewer kinds.
inline void LetMonkeyWork(unsigned seed, int actions, std::size_t leastKinds = 1) {
    const int alive = UI::CountLive();
    SeededDice dice(seed, actions);
    {
        // Another program may have a monkey of its own at work.
        const std::string name = testing::UnitTest::GetInstance()->current_test_suite()->name();
        const auto folder = std::filesystem::path(testing::TempDir()) /
                            ("vantelle_monkey_" + name.substr(name.find('/') + 1) + std::to_string(seed));
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
        testing::Test::RecordProperty("seen", tally);
        EXPECT_GE(monkey.GetPutBacks().size(), leastKinds) << "kinds of controls that were put back";
        int putBack = 0;
        for (const auto& [kind, count] : monkey.GetPutBacks()) putBack += count;
        std::cout << putBack << " put back, " << monkey.CountSessions() << " sessions\n" << tally;
    }
    EXPECT_EQ(UI::CountLive(), alive);
}

}  // namespace Testing
