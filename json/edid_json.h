// A whole EDID as one object, and back to the byte.
#pragma once

#include <optional>

#include "json/item_json.h"

namespace VNT::Json {

// Of the bytes of a file; nothing where they are no EDID. `BuildEdid` gives just these bytes again.
std::optional<Node> NodeOfEdid(const Bytes& bytes);

// The bytes of what the object says. Nothing, with the error told, if it says what no EDID can hold.
std::optional<Bytes> BuildEdid(const Node& node, Building& building);

// A detailed timing by the calculator: "mode", sizes and rate give way to the fields that follow from them.
Node ExpandTiming(const Node& node, const ItemRef& item, const std::string& path, Building& building);

// What "mode" can be: the texts of the timing box.
std::vector<std::string> GetTimingModes();

}  // namespace VNT::Json
