#pragma once

#include <gtest/gtest.h>

namespace VNT::Testing {

// For `EXPECT_TRUE`: that two sets are equal. A failure names what one has and the other hasn't, and nothing else.
template <class Set>
testing::AssertionResult HaveNoDifference(const Set& expected, const Set& found) {
    testing::AssertionResult result = expected == found ? testing::AssertionSuccess() : testing::AssertionFailure();
    for (const auto& value : expected) {
        if (!found.contains(value)) result << "missing: " << testing::PrintToString(value) << "\n";
    }
    for (const auto& value : found) {
        if (!expected.contains(value)) result << "unexpected: " << testing::PrintToString(value) << "\n";
    }
    return result;
}

}  // namespace VNT::Testing
