#pragma once

#include <sstream>
#include <string>

namespace VNT::Testing {

// What one of two sets has and the other hasn't, so that a failure names it; empty for equal ones.
template <class Set>
std::string Difference(const Set& expected, const Set& found) {
    std::ostringstream out;
    for (const auto& value : expected) {
        if (!found.contains(value)) out << "missing: " << value << "\n";
    }
    for (const auto& value : found) {
        if (!expected.contains(value)) out << "unexpected: " << value << "\n";
    }
    return out.str();
}

}  // namespace VNT::Testing
