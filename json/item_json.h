// Items as objects: their kind's title and their fields, which their layouts tell.
#pragma once

#include "json/node.h"
#include "model/core/field_sink.h"

namespace VNT::Json {

// What a build has found. `error` is the first one; what is built then is of no use.
struct Building {
    std::string error;
    std::vector<std::string> warnings;  // values that the bytes carry, but no sound EDID holds
    bool HasFailed() const { return !error.empty(); }
    void Fail(const std::string& path, const std::string& what) {
        if (error.empty()) error = path + ": " + what;
    }
    void Warn(const std::string& path, const std::string& what) { warnings.push_back(path + ": " + what); }
};

// The least object that gives the same bytes: what a new item of the other fields has by itself is left out.
Node NodeOfItem(const ItemRef& item);
Node NodeOfPart(const PartRef& part);

// The parts of an item by their names.
using NamedParts = std::vector<std::pair<const char*, PartRef>>;

// Makes the item what the object says, its parts alike to `parts`. Nothing is told of what is wrong: who calls it looks
// at the bytes.
void BuildAlike(const Node& node, const ItemRef& item, const NamedParts& parts);

// Makes the item what the object says; `more` are names that are not the item's to know.
void BuildItem(const Node& node, const ItemRef& item, const std::string& path, Building& building,
               const std::vector<std::string>& more = {});
void BuildPart(const Node& node, const PartRef& part, const std::string& path, Building& building);

// The titles of kinds, each of them once: a later one of the same title is its second version.
std::vector<std::string> GetUniqueTitles(const std::vector<const char*>& titles);
std::string GetUniqueTitle(const std::vector<const char*>& titles, std::size_t kind);

// What stands nearest among `names`, as the end of a message; empty if nothing is near.
std::string SayNearest(const std::string& word, const std::vector<std::string>& names);

}  // namespace VNT::Json
