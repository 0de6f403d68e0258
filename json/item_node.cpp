#include <algorithm>

#include "json/item_json.h"
#include "model/core/text.h"

namespace VNT::Json {

namespace {

// A field as JSON. One that may be left out says nothing where a new item has the same.
struct Field {
    std::string_view name;
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
    NamedParts parts;

private:
    void Add(const char* name, Node node, bool mayGo) { fields.push_back({name, std::move(node), mayGo}); }
    void AddPart(const char* name, const PartRef& part) {
        if (!takesParts_) return;
        Add(name, NodeOfPart(part), false);
        parts.emplace_back(name, part);
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

// A new item as the object makes it, with the parts of the item itself: theirs have been tried when they were told.
ItemRef MakeAlike(const ItemRef& item, const Node& node, const NamedParts& parts) {
    const ItemRef made = item.MakeNew();
    if (item.HasKinds()) made.MakeKind(item.GetKind());
    BuildAlike(node, made, parts);
    return made;
}

Node NodeOfData(const std::string& title, const Bytes& bytes) {
    Node node = Node::EmptyObject();
    node.Set("type", Node::Of(title));
    node.Set("data", Node::Of(HexText(bytes).ToUtf8()));
    return node;
}

}  // namespace

std::string GetUniqueTitle(const std::vector<const char*>& titles, std::size_t kind) {
    const std::string_view title = titles[kind];
    const auto end = titles.begin() + static_cast<std::ptrdiff_t>(kind);
    const bool isTaken = std::any_of(titles.begin(), end, [title](const char* other) { return title == other; });
    return std::string(title) + (isTaken ? " v2" : "");
}

std::vector<std::string> GetUniqueTitles(const std::vector<const char*>& titles) {
    std::vector<std::string> unique;
    for (std::size_t i = 0; i < titles.size(); ++i) unique.push_back(GetUniqueTitle(titles, i));
    return unique;
}

Node NodeOfItem(const ItemRef& item) {
    const Bytes bytes = item.GetBytes();
    Node node = Node::EmptyObject();
    if (item.HasKinds()) {
        const int kind = item.GetKind();
        if (kind < 0) return NodeOfData("Other", bytes);
        node.Set("type", Node::Of(GetUniqueTitle(item.GetKinds(), static_cast<std::size_t>(kind))));
    }
    Collector own(true);
    item.Tell(own);
    Node least = node;
    // That a part is there is enough: what it holds is copied.
    const auto isPart = [&own](const Field& field) {
        return std::any_of(own.parts.begin(), own.parts.end(),
                           [&field](const auto& p) { return p.first == field.name; });
    };
    for (const Field& field : own.fields) {
        if (!field.mayGo) least.Set(field.name, isPart(field) ? Node() : field.node);
    }
    // What a new item of the other fields has is left out.
    const ItemRef alike = MakeAlike(item, least, own.parts);
    Collector given(false);
    alike.Tell(given);
    const auto isGiven = [&given](const Field& field) {
        return std::any_of(given.fields.begin(), given.fields.end(),
                           [&field](const Field& g) { return g.name == field.name && g.node == field.node; });
    };
    Node all = node;
    for (Field& field : own.fields) {
        if (!field.mayGo || !isGiven(field)) node.Set(field.name, std::move(field.node));
    }
    const auto gives = [&](const Node& tried) { return MakeAlike(item, tried, own.parts).GetBytes() == bytes; };
    if (bytes.IsEmpty() || gives(node)) return node;
    for (const Field& field : own.fields) {
        const Node* told = node.Find(field.name);
        all.Set(field.name, told != nullptr ? *told : field.node);
    }
    if (gives(all)) return all;
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
