#include "json/schema.h"

#include <algorithm>

#include "json/edid_json.h"
#include "json/field_survey.h"
#include "model/core/field_teller.h"
#include "model/edid/edid.h"

namespace VNT::Json {

namespace {

constexpr const char* HexPattern = "^[0-9A-Fa-f\\s]*$";
constexpr std::int64_t MostListed = 64;

Node Object(std::initializer_list<std::pair<const char*, Node>> members) {
    Node node = Node::EmptyObject();
    for (const auto& [name, value] : members) node.Set(name, value);
    return node;
}
Node List(std::initializer_list<Node> items) {
    Node node = Node::EmptyList();
    for (const Node& item : items) node.Add(item);
    return node;
}
Node Text(const std::string& text) { return Node::Of(text); }
Node OfType(const char* type) { return Object({{"type", Text(type)}}); }

Node NumberNode(std::int64_t number, NumberForm form) {
    return form == NumberForm::Decimal ? Node::Of(Decimal::FromMillionths(number)) : Node::OfNumber(number);
}

std::string SayRange(const NumberRange& range, NumberForm form) {
    if (range.min == range.max) return PrintShort(NumberNode(range.min, form));
    return PrintShort(NumberNode(range.min, form)) + " to " + PrintShort(NumberNode(range.max, form));
}

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char Lower(char c) { return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; }
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// "maxVRate": "Max v rate".
std::string TitleOf(const std::string& name) {
    std::string title;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool begins = i > 0 && IsUpper(name[i]) && !IsUpper(name[i - 1]);
        if (begins) title += ' ';
        title += i == 0 ? Upper(name[i]) : Lower(name[i]);
    }
    return title;
}

// "HDMI v1": "hdmiV1", as a part of a name that a pointer of JSON takes as it is.
std::string NameOf(const std::string& title) {
    std::string name;
    bool begins = false;
    for (const char c : title) {
        const bool isLetter = IsUpper(c) || IsUpper(Upper(c));
        if (!isLetter && !IsDigit(c)) {
            begins = !name.empty();
        } else {
            name += begins ? Upper(c) : Lower(c);
            begins = false;
        }
    }
    return name;
}

Node TextsOf(const SurveyedField& field) {
    Node texts = Node::EmptyList();
    for (const auto& [number, text] : field.texts) texts.Add(Text(text));
    return texts;
}

// The texts of its bits, and the numbers of those without one.
Node SchemaOfFlags(const SurveyedField& field) {
    Node flags = TextsOf(field);
    std::int64_t bits = field.bits;
    for (std::int64_t bit = 0; bits != 0; ++bit, bits /= 2) {
        std::int64_t flag = 1;
        for (std::int64_t i = 0; i < bit; ++i) flag *= 2;
        if (bits % 2 != 0 && !field.texts.contains(flag)) flags.Add(Node::OfNumber(bit));
    }
    return Object({{"type", Text("array")}, {"uniqueItems", Node::Of(true)}, {"items", Object({{"enum", flags}})}});
}

// Its texts, and the numbers of the values without one.
Node SchemaOfTexts(const SurveyedField& field) {
    Node values = TextsOf(field);
    if (field.all.max - field.all.min < MostListed) {
        for (std::int64_t number = field.all.min; number <= field.all.max; ++number) {
            if (!field.texts.contains(number)) values.Add(Node::OfNumber(number));
        }
    }
    for (const std::int64_t number : field.extra) {
        if (!field.texts.contains(number)) values.Add(Node::OfNumber(number));
    }
    if (field.mayBeUndefined) values.Add(Node());
    return Object({{"enum", values}});
}

Node SchemaOfNumber(const SurveyedField& field) {
    if (field.form == NumberForm::Truth) return OfType("boolean");
    if (field.form == NumberForm::Flags) return SchemaOfFlags(field);
    if (!field.texts.empty()) return SchemaOfTexts(field);
    Node schema = OfType(field.form == NumberForm::Decimal ? "number" : "integer");
    if (!field.all.IsEmpty()) {
        schema.Set("minimum", NumberNode(field.all.min, field.form));
        schema.Set("maximum", NumberNode(field.all.max, field.form));
        const bool isWhole = field.form != NumberForm::Decimal;
        if (isWhole && field.step > 1) schema.Set("multipleOf", Node::OfNumber(field.step));
    }
    Node beside = Node::EmptyList();
    for (const std::int64_t number : field.extra) beside.Add(NumberNode(number, field.form));
    if (field.mayBeUndefined) beside.Add(Node());
    if (beside.Items().empty()) return schema;
    return Object({{"anyOf", List({schema, Object({{"enum", beside}})})}});
}

Node SchemaOfHex() { return Object({{"type", Text("string")}, {"pattern", Text(HexPattern)}}); }

Node SchemaOfField(const SurveyedField& field) {
    Node schema = field.kind == SurveyedField::Kind::Number  ? SchemaOfNumber(field)
                  : field.kind == SurveyedField::Kind::Bytes ? SchemaOfHex()
                                                             : OfType("string");
    schema.Set("title", Text(TitleOf(field.name)));
    std::string description = UnitOf(field.name);
    if (!description.empty()) description = "In " + description + ".";
    const bool isNarrower = !field.proper.IsEmpty() && field.proper != field.all;
    if (field.kind == SurveyedField::Kind::Number && isNarrower && field.form != NumberForm::Flags)
        description +=
            (description.empty() ? "" : " ") + ("A sound EDID holds " + SayRange(field.proper, field.form) + ".");
    if (field.kind != SurveyedField::Kind::Number && !field.length.IsEmpty())
        description += "Of " + SayRange(field.length, NumberForm::Count) +
                       (field.kind == SurveyedField::Kind::Text ? " characters." : " bytes.");
    if (!description.empty()) schema.Set("description", Text(description));
    return schema;
}

Node TitledHex(const char* title) {
    Node schema = SchemaOfHex();
    schema.Set("title", Text(title));
    return schema;
}

// An item that stands as its bytes, whatever its kind.
Node SchemaOfData() { return TitledHex("The whole item as its bytes"); }

// The calculator fills the rest of a timing.
void AddMode(Node& properties) {
    Node modes = Node::EmptyList();
    for (const std::string& mode : GetTimingModes()) modes.Add(Text(mode));
    properties.Set("mode", Object({{"enum", modes}, {"title", Text("How the timing is calculated")}}));
    properties.Set("vrate", Object({{"type", Text("number")},
                                    {"minimum", Node::OfNumber(0)},
                                    {"title", Text("Refresh rate")},
                                    {"description", Text("In " + UnitOf("vrate") + ". Of a timing with \"mode\".")}}));
}

Node ClosedObject(const Node& properties) {
    return Object({{"type", Text("object")}, {"properties", properties}, {"additionalProperties", Node::Of(false)}});
}

Node ConstOf(const std::string& text) { return Object({{"const", Text(text)}}); }

Node SchemaOfEstablished() {
    constexpr int bits = decltype(EdidFields::established)::BitCount;
    Node flags = Node::EmptyList();
    for (const char* text : EdidEstablishedResolutionFlagEnum::Texts) flags.Add(Text(text));
    for (int bit = static_cast<int>(flags.Items().size()); bit < bits; ++bit) flags.Add(Node::OfNumber(bit));
    return Object({{"type", Text("array")},
                   {"title", Text("Established resolutions")},
                   {"uniqueItems", Node::Of(true)},
                   {"items", Object({{"enum", flags}})}});
}

// Where "type" is this one.
Node WhereTypeIs(const std::string& title) {
    return Object({{"properties", Object({{"type", ConstOf(title)}})}, {"required", List({Text("type")})}});
}

}  // namespace

Node SchemaMaker::Define(const std::string& name, Node schema) {
    const auto& known = definitions_.Members();
    const auto found =
        std::find_if(known.begin(), known.end(), [&schema](const auto& d) { return d.second == schema; });
    const std::string& place = found != known.end() ? found->first : name;
    const Node reference = Object({{"$ref", Text("#/$defs/" + place)}});
    if (found == known.end()) definitions_.Set(name, std::move(schema));
    return reference;
}

Node SchemaMaker::PropertiesOf(const ItemRef& item, const std::string& name) {
    const ItemRef source = item;
    return FieldsOf([source] { return source.MakeNew(); }, name);
}

Node SchemaMaker::FieldsOf(const std::function<ItemRef()>& make, const std::string& name) {
    std::map<std::string, Node> parts;
    const auto onPart = [&](const std::string& field, const PartRef& part) {
        if (!parts.contains(field)) parts.emplace(field, OfPart(part, name + "." + field));
    };
    Node properties = Node::EmptyObject();
    for (const SurveyedField& field : SurveyFields(make, onPart)) {
        const auto part = parts.find(field.name);
        Node schema = part != parts.end() ? part->second : SchemaOfField(field);
        if (part != parts.end()) schema.Set("title", Text(TitleOf(field.name)));
        properties.Set(field.name, std::move(schema));
    }
    return properties;
}

Node SchemaMaker::OfPart(const PartRef& part, const std::string& name) {
    if (!part.IsList()) return OfItem(part.Item(), name);
    Node items;
    part.Add([&](const ItemRef& item) { items = OfItem(item, name); });
    return Object({{"type", Text("array")}, {"items", items}});
}

Node SchemaMaker::OfItem(const ItemRef& item, const std::string& name) {
    if (item.HasKinds()) return OfKinds(item, name);
    Node properties = PropertiesOf(item, name);
    if (IsTiming(properties)) AddMode(properties);
    properties.Set("type", ConstOf("Other"));
    properties.Set("data", SchemaOfData());
    Node schema = ClosedObject(properties);
    schema.Set("dependentRequired", Object({{"type", List({Text("data")})}}));
    return Define(name, std::move(schema));
}

// Each kind is a schema of its own, which "type" chooses: so an editor offers the fields of this kind, and what it says
// of a mistake is of this kind.
Node SchemaMaker::OfKinds(const ItemRef& holder, const std::string& name) {
    const std::vector<std::string> titles = GetUniqueTitles(holder.GetKinds());
    Node types = Node::EmptyList(), cases = Node::EmptyList(), untyped = Node::EmptyList();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const ItemRef source = holder;
        const auto make = [source, i] {
            ItemRef made = source.MakeNew();
            made.MakeKind(static_cast<int>(i));
            return made;
        };
        const std::string place = name + "." + NameOf(titles[i]);
        Node properties = Object({{"type", ConstOf(titles[i])}});
        const Node fields = FieldsOf(make, place);
        for (const auto& [field, schema] : fields.Members()) properties.Set(field, schema);
        const bool isTiming = IsTiming(fields);
        if (isTiming) AddMode(properties);
        properties.Set("data", SchemaOfData());
        Node schema = ClosedObject(properties);
        schema.Set("title", Text(titles[i]));
        const Node reference = Define(place, std::move(schema));
        types.Add(Text(titles[i]));
        cases.Add(Object({{"if", WhereTypeIs(titles[i])}, {"then", reference}}));
        if (isTiming) {
            Node calculated = reference;
            calculated.Set("required", List({Text("mode")}));
            untyped.Add(std::move(calculated));
        }
    }
    types.Add(Text("Other"));
    const Node data = Object({{"required", List({Text("data")})}});
    cases.Add(Object({{"if", WhereTypeIs("Other")}, {"then", data}}));
    untyped.Add(data);
    cases.Add(Object({{"if", Object({{"not", Object({{"required", List({Text("type")})}})}})},
                      {"then", Object({{"anyOf", untyped}})}}));
    return Define(name, Object({{"type", Text("object")},
                                {"properties", Object({{"type", Object({{"enum", types}})}, {"data", SchemaOfData()}})},
                                {"allOf", cases}}));
}

bool SchemaMaker::IsTiming(const Node& properties) {
    return properties.Find("pixelclock") != nullptr && properties.Find("hactive") != nullptr;
}

Node SchemaOfEdid() {
    constexpr int mostBlocks = 256;
    SchemaMaker maker;
    EdidFields fields;
    EdidProperties properties;
    Node members = maker.PropertiesOf(ItemRef(&properties, Detail::ItemTypeOf<EdidProperties>), "properties");
    const auto listOf = [&](const char* name, const char* title, auto& list) -> Node {
        Node schema = maker.OfPart(PartRef(&list, Detail::PartTypeOf<std::decay_t<decltype(list)>>), name);
        schema.Set("title", Text(title));
        return schema;
    };
    const auto counted = [](const char* title, int most) {
        return Object({{"type", List({Text("integer"), Text("null")})},
                       {"minimum", Node::OfNumber(0)},
                       {"maximum", Node::OfNumber(most)},
                       {"title", Text(title)}});
    };
    members.Set("established", SchemaOfEstablished());
    Node standard = listOf("standardResolutions", "Standard resolutions", fields.standardResolutions);
    Node descriptors = listOf("descriptors", "Detailed resolutions and descriptors", fields.descriptors);
    const EdidLimits limits = Edid().GetAllLimits();
    standard.Set("maxItems", Node::OfNumber(limits.standardResolutions.slots));
    descriptors.Set("maxItems", Node::OfNumber(limits.descriptors.slots));
    members.Set("standardResolutions", standard);
    members.Set("descriptors", descriptors);
    members.Set("extensionBlocks", listOf("extensionBlocks", "Extension blocks", fields.extensionBlocks));
    members.Set("extensionBlockCount", counted("Blocks that byte 126 counts", mostBlocks - 1));
    members.Set("extensionOverrideCount", counted("Blocks that the extension override counts", mostBlocks - 1));
    members.Set("checksum", counted("Checksum of the base block", mostBlocks - 1));
    members.Set("blocks", counted("Blocks that are there", mostBlocks));
    members.Set("behind", TitledHex("Bytes behind the last block"));
    Node bytes = Object({{"type", Text("object")},
                         {"title", Text("Bytes that no field tells, by their place")},
                         {"patternProperties", Object({{"^[0-9]+$", SchemaOfHex()}})},
                         {"additionalProperties", Node::Of(false)}});
    members.Set("bytes", bytes);
    Node schema = Object({{"$schema", Text("https://json-schema.org/draft/2020-12/schema")},
                          {"title", Text("An EDID")},
                          {"description", Text("What vantelle-cli json prints and vantelle-cli build takes.")}});
    const Node whole = ClosedObject(members);
    for (const auto& [name, value] : whole.Members()) schema.Set(name, value);
    schema.Set("$defs", maker.Definitions());
    return schema;
}

}  // namespace VNT::Json
