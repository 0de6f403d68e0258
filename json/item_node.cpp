#include <algorithm>

#include "json/item_json.h"
#include "model/core/text.h"

namespace VNT::Json {

namespace {

// A field as JSON. One that may be left out says nothing where a new item has the same.
struct Field {
    std::string name;
    Node node;
    bool mayGo;
};

Node NodeOfFlags(std::int64_t bits, NumberNames names) {
    Node list = Node::EmptyList();
    for (const NumberName& name : names) {
        if (bits / name.number % 2 == 0) continue;
        list.Add(Node::Of(std::string(name.text)));
        bits -= name.number;
    }
    for (int bit = 0; bits != 0; ++bit, bits /= 2) {
        if (bits % 2 != 0) list.Add(Node::OfNumber(bit));
    }
    return list;
}

Node NodeOfNumber(const NumberRef& value, NumberNames names) {
    const std::int64_t number = value.Get();
    if (value.Form() == NumberForm::Truth) return Node::Of(number != 0);
    if (value.Form() == NumberForm::Flags) return NodeOfFlags(number, value.Flags());
    for (const NumberName& name : names) {
        if (name.number == number) return Node::Of(std::string(name.text));
    }
    if (value.Form() == NumberForm::Decimal) {
        const Decimal decimal = Decimal::FromMillionths(number);
        return decimal.IsUndefined() ? Node() : Node::Of(decimal);
    }
    return number == Undefined ? Node() : Node::OfNumber(number);
}

class Collector : public FieldSink {
public:
    explicit Collector(bool takesParts) : takesParts_(takesParts) {}

    void Kept(const char* name, const BitPlace&, const NumberRef& value) override {
        const bool isPlain =
            value.Form() == NumberForm::Count || (value.Form() == NumberForm::Flags && value.Flags().empty());
        Add(name, NodeOfNumber(value, {}), isPlain);
    }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) override {
        Add(name, NodeOfNumber(value, limits.GetNames()), IsExact(limits));
    }
    void Derived(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits&) override {
        Add(name, NodeOfNumber(value, {}), true);
    }
    void Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>&) override { AddBytes(name, value); }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>&) override { AddBytes(name, value); }
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>&) override { AddText(name, value); }
    void Part(const char* name, int, const PartRef& part, bool, bool) override { AddPart(name, part); }
    void List(const char* name, const PartRef& list, bool, bool) override { AddPart(name, list); }
    void Optional(const char* name, const PartRef& item, bool, bool) override { AddPart(name, item); }
    void Value(const char* name, const NumberRef& value, NumberNames names, bool, bool) override {
        Add(name, NodeOfNumber(value, names), true);
    }
    void Value(const char* name, String& value, bool, bool) override { AddText(name, value); }
    void Value(const char* name, Bytes& value, bool, bool) override { AddBytes(name, value); }

    std::vector<Field> fields;

private:
    void Add(const char* name, Node node, bool mayGo) { fields.push_back({name, std::move(node), mayGo}); }
    void AddPart(const char* name, const PartRef& part) {
        if (takesParts_) Add(name, NodeOfPart(part), false);
    }
    void AddText(const char* name, const String& value) { Add(name, Node::Of(value.ToUtf8()), false); }
    void AddBytes(const char* name, const Bytes& value) { Add(name, Node::Of(HexText(value).ToUtf8()), true); }
    // One number is right, and what is built from the other fields has it.
    static bool IsExact(const NumberLimits& limits) {
        const AnyLimits proper = limits.GetProper();
        const auto* range = std::get_if<ValueLimits>(&proper);
        return range != nullptr && range->min == range->max;
    }

    bool takesParts_;
};

std::vector<Field> Collect(const ItemRef& item, bool takesParts = true) {
    Collector collector(takesParts);
    item.Tell(collector);
    return std::move(collector.fields);
}

// A new item of the kind as the object makes it; nothing if it can't be made.
ItemRef MakeAlike(const ItemRef& item, const Node& node, bool& isMade) {
    const ItemRef made = item.MakeNew();
    Building building;
    BuildItem(node, made, "", building);
    isMade = !building.HasFailed();
    return made;
}

bool Gives(const ItemRef& item, const Node& node, const Bytes& bytes) {
    bool isMade = false;
    const ItemRef made = MakeAlike(item, node, isMade);
    return isMade && made.GetBytes() == bytes;
}

Node NodeOfData(const std::string& title, const Bytes& bytes) {
    Node node = Node::EmptyObject();
    node.Set("type", Node::Of(title));
    node.Set("data", Node::Of(HexText(bytes).ToUtf8()));
    return node;
}

}  // namespace

std::vector<std::string> GetUniqueTitles(const std::vector<const char*>& titles) {
    std::vector<std::string> unique;
    for (const char* title : titles) {
        const bool isTaken = std::find(unique.begin(), unique.end(), title) != unique.end();
        unique.push_back(isTaken ? std::string(title) + " v2" : title);
    }
    return unique;
}

Node NodeOfItem(const ItemRef& item) {
    const Bytes bytes = item.GetBytes();
    Node node = Node::EmptyObject();
    if (item.HasKinds()) {
        const int kind = item.GetKind();
        if (kind < 0) return NodeOfData("Other", bytes);
        node.Set("type", Node::Of(GetUniqueTitles(item.GetKinds())[static_cast<std::size_t>(kind)]));
    }
    Node all = node;
    const std::vector<Field> fields = Collect(item);
    Node least = node;
    for (const Field& field : fields) {
        all.Set(field.name, field.node);
        if (!field.mayGo) least.Set(field.name, field.node);
    }
    bool isMade = false;
    ItemRef alike = MakeAlike(item, least, isMade);
    // Where the least is no item at all, what any new one has is left out.
    if (!isMade) {
        alike = item.MakeNew();
        if (item.HasKinds()) alike.MakeKind(item.GetKind());
    }
    // Parts stand in the object anyway.
    const std::vector<Field> given = Collect(alike, false);
    const auto isGiven = [&given](const Field& field) {
        return std::any_of(given.begin(), given.end(),
                           [&field](const Field& g) { return g.name == field.name && g.node == field.node; });
    };
    for (const Field& field : fields) {
        if (!field.mayGo || !isGiven(field)) node.Set(field.name, field.node);
    }
    if (bytes.IsEmpty() || Gives(item, node, bytes)) return node;
    if (Gives(item, all, bytes)) return all;
    const Node* title = node.Find("type");
    return NodeOfData(title != nullptr ? title->Text() : "Other", bytes);
}

Node NodeOfPart(const PartRef& part) {
    if (!part.IsList()) return NodeOfItem(part.Item());
    Node list = Node::EmptyList();
    for (int i = 0; i < part.GetCount(); ++i) list.Add(NodeOfItem(part.At(i)));
    return list;
}

}  // namespace VNT::Json
