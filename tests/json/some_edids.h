#pragma once

#include <cstdlib>

#include "tests/support/edids.h"

namespace VNT::Testing {

// The EDIDs of a set; of many one in so many, all of them with VANTELLE_ALL set.
inline std::vector<NamedEdid> SomeEdidsOf(const std::string& set, std::size_t first = 0) {
    constexpr std::size_t few = 50, oneOf = 12;
    const std::vector<NamedEdid> all = EdidsOf(set, VANTELLE_SOURCE_DIR);
    if (all.size() <= few || std::getenv("VANTELLE_ALL") != nullptr) return all;
    std::vector<NamedEdid> some;
    for (std::size_t i = first; i < all.size(); i += oneOf) some.push_back(all[i]);
    return some;
}

}  // namespace VNT::Testing
