// What differs between two EDIDs as JSON.
#pragma once

#include <optional>

#include "json/node.h"

namespace VNT::Json {

// A value that one of them has in another way, or that only one has.
struct Change {
    std::string path;
    std::optional<Node> before;
    std::optional<Node> after;
};

// In the order of the first. Items of lists are matched by their content, then by their kind, so that one that was put
// between others is one change.
std::vector<Change> Compare(const Node& before, const Node& after);

// "PATH: OLD -> NEW", "+ PATH", "- PATH".
std::string Describe(const Change& change);
// The same for machines: a list of objects with "path", "old" and "new".
Node NodeOfChanges(const std::vector<Change>& changes);

}  // namespace VNT::Json
