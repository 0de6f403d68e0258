// The JSON Schema (2020-12) of what this room prints and builds, made from the layouts alone.
#pragma once

#include "json/item_json.h"

namespace VNT::Json {

// Makes the schemas of items, and keeps each of them once, for others to refer to.
class SchemaMaker {
public:
    // A reference to the schema of such items; `name` is how it is to be called.
    Node OfItem(const ItemRef& item, const std::string& name);
    Node OfPart(const PartRef& part, const std::string& name);
    // The fields of an item as the members of "properties", under the names of its layout.
    Node PropertiesOf(const ItemRef& item, const std::string& name);
    // What has been referred to, by name.
    const Node& Definitions() const { return definitions_; }

private:
    Node OfKinds(const ItemRef& holder, const std::string& name);
    Node FieldsOf(const std::function<ItemRef()>& make, const std::string& name);
    // Whether the calculator can fill in what is missing.
    static bool IsTiming(const Node& properties);
    Node Define(const std::string& name, Node schema);

    Node definitions_ = Node::EmptyObject();
};

// Of a whole EDID.
Node SchemaOfEdid();

// The unit in which a field's number stands; empty if it has none.
std::string UnitOf(const std::string& field);
// All that have one, as if each began with a small letter.
std::vector<std::string> FieldsWithUnits();

}  // namespace VNT::Json
