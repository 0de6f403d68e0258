#include <algorithm>

#include "json/edid_json.h"
#include "json/nearest.h"
#include "model/core/text.h"

namespace VNT::Json {

namespace {

std::vector<std::string> TextsOf(NumberNames names) {
    std::vector<std::string> texts;
    for (const NumberName& name : names) texts.emplace_back(name.text);
    return texts;
}

const NumberName* FindName(NumberNames names, const std::string& text) {
    for (const NumberName& name : names) {
        if (text == name.text) return &name;
    }
    return nullptr;
}

std::string RangeOf(const AnyLimits& limits) {
    const auto say = [](const auto& l) -> std::string {
        using L = std::decay_t<decltype(l)>;
        if constexpr (std::is_same_v<L, EnumLimits>) {
            return "0 to " + std::to_string(l.count - 1);
        } else if constexpr (std::is_same_v<L, DecimalLimits>) {
            const DecimalFormat format{6, 40, true};
            return DecimalToText(l.min, format).ToUtf8() + " to " + DecimalToText(l.max, format).ToUtf8();
        } else {
            return std::to_string(l.min) + " to " + std::to_string(l.max);
        }
    };
    return std::visit(say, limits);
}

bool Has(const std::vector<std::string_view>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Puts the values of an object into the fields of their names.
class Putter : public FieldSink {
public:
    Putter(const Node& node, const std::string& path, Building& building, const NamedParts* parts = nullptr)
        : node_(node), path_(path), building_(building), parts_(parts) {}

    void Kept(const char* name, const BitPlace&, const NumberRef& value) override { Put(name, value, {}); }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) override {
        Put(name, value, limits.GetNames());
    }
    void Derived(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits&) override {
        PutSmall(name, value, {});
    }
    void Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>&) override { Put(name, value); }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>&) override { Put(name, value); }
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>&) override { Put(name, value); }
    void Part(const char* name, int, const PartRef& part, bool, bool) override { PutPart(name, part); }
    void List(const char* name, const PartRef& list, bool, bool) override { PutPart(name, list); }
    void Optional(const char* name, const PartRef& item, bool, bool) override { PutPart(name, item); }
    void Value(const char* name, const NumberRef& value, NumberNames names, bool, bool) override {
        PutSmall(name, value, names);
    }
    void Value(const char* name, String& value, bool, bool) override { Put(name, value); }
    void Value(const char* name, Bytes& value, bool, bool) override { Put(name, value); }

    std::vector<std::string_view> known;  // names of fields

private:
    const Node* Find(const char* name) {
        if (!Has(known, name)) known.push_back(name);
        return building_.HasFailed() ? nullptr : node_.Find(name);
    }
    std::string PathOf(const char* name) const { return path_.empty() ? name : path_ + "." + name; }
    void Fail(const char* name, const std::string& what) { building_.Fail(PathOf(name), what); }

    // Sizes and counts: no more than any EDID has, whatever is made of them on the way.
    void PutSmall(const char* name, const NumberRef& value, NumberNames names) {
        constexpr int most = 65535;
        const Node* node = Find(name);
        if (node == nullptr) return;
        // Where one may be undefined, it is so from the start.
        const bool isCount = value.Form() == NumberForm::Count && value.Get() != Undefined;
        if (node->Is(Node::Kind::Null) && isCount) return Fail(name, "a number is needed");
        const bool isSmall =
            !node->Is(Node::Kind::Number) || (node->Number() >= Decimal() && node->Number() <= Decimal(most));
        if (isSmall) {
            Put(name, value, names);
        } else {
            Fail(name, PrintShort(*node) + " is not 0 to " + std::to_string(most));
        }
    }
    void Put(const char* name, const NumberRef& value, NumberNames names) {
        const Node* node = Find(name);
        if (node == nullptr) return;
        std::int64_t number = 0;
        if (!ReadNumber(name, *node, value, names, number)) return;
        if (value.Held(number) != number) return Fail(name, PrintShort(*node) + " doesn't fit its bits");
        value.Put(number);
    }
    bool ReadNumber(const char* name, const Node& node, const NumberRef& value, NumberNames names,
                    std::int64_t& number) {
        if (value.Form() == NumberForm::Flags) return ReadFlags(name, node, value.Flags(), number);
        if (value.Form() == NumberForm::Truth) {
            number = node.IsTrue() ? 1 : 0;
            if (!node.Is(Node::Kind::Truth)) Fail(name, PrintShort(node) + " is not true or false");
            return node.Is(Node::Kind::Truth);
        }
        if (node.Is(Node::Kind::Null)) {
            number = value.Form() == NumberForm::Decimal ? Decimal::Undefined().Millionths() : Undefined;
            return true;
        }
        if (node.Is(Node::Kind::Text)) {
            if (const NumberName* found = FindName(names, node.Text())) {
                number = found->number;
                return true;
            }
            Fail(name, PrintShort(node) + (names.empty()
                                               ? " is not a number"
                                               : " is none of its texts" + SayNearest(node.Text(), TextsOf(names))));
            return false;
        }
        if (!node.Is(Node::Kind::Number)) {
            Fail(name, "a number is needed");
            return false;
        }
        if (value.Form() == NumberForm::Decimal) {
            number = node.Number().Millionths();
            return true;
        }
        number = node.Number().Millionths() / Decimal::Scale;
        if (Decimal(number) != node.Number()) Fail(name, PrintShort(node) + " is not a whole number");
        return Decimal(number) == node.Number();
    }
    bool ReadFlags(const char* name, const Node& node, NumberNames names, std::int64_t& bits) {
        constexpr int mostBits = 32;
        if (!node.Is(Node::Kind::List)) {
            Fail(name, "a list of flags is needed");
            return false;
        }
        for (const Node& item : node.Items()) {
            const NumberName* found = item.Is(Node::Kind::Text) ? FindName(names, item.Text()) : nullptr;
            std::int64_t flag = 0;
            if (found != nullptr) {
                flag = found->number;
            } else if (item.Is(Node::Kind::Number) && item.Number() >= Decimal() && item.Number() < Decimal(mostBits)) {
                flag = 1;
                for (int i = 0; i < item.Number().ToInt(); ++i) flag *= 2;
            } else {
                const std::string text = item.Is(Node::Kind::Text) ? item.Text() : "";
                Fail(name, PrintShort(item) + " is none of its flags" + SayNearest(text, TextsOf(names)));
                return false;
            }
            if (bits / flag % 2 == 0) bits += flag;
        }
        return true;
    }
    void Put(const char* name, Bytes& value) {
        const Node* node = Find(name);
        if (node == nullptr) return;
        if (!node->Is(Node::Kind::Text) || !HexFromText(String(std::string_view(node->Text())), value))
            Fail(name, "bytes as hex text are needed");
    }
    void Put(const char* name, String& value) {
        const Node* node = Find(name);
        if (node == nullptr) return;
        if (!node->Is(Node::Kind::Text)) return Fail(name, "a text is needed");
        value = String(std::string_view(node->Text()));
    }
    // Once: building from the other fields leaves it as it is.
    void PutPart(const char* name, const PartRef& part) {
        const Node* node = Find(name);
        if (node == nullptr || Has(done_, name)) return;
        done_.push_back(name);
        const PartRef* known = FindKnown(name);
        if (known == nullptr || !Copy(*known, part)) BuildPart(*node, part, PathOf(name), building_);
    }
    const PartRef* FindKnown(std::string_view name) const {
        if (parts_ == nullptr) return nullptr;
        const auto found =
            std::find_if(parts_->begin(), parts_->end(), [name](const auto& known) { return known.first == name; });
        return found != parts_->end() ? &found->second : nullptr;
    }
    // Reading bytes is much less than building.
    static bool Copy(const PartRef& from, const PartRef& to) {
        if (!from.IsList()) return Copy(from.Item(), to.Item());
        to.Clear();
        for (int i = 0; i < from.GetCount(); ++i) {
            bool isCopied = false;
            const bool isAdded = to.Add([&](const ItemRef& item) { isCopied = Copy(from.At(i), item); });
            if (!isAdded || !isCopied) return false;
        }
        return true;
    }
    static bool Copy(const ItemRef& from, const ItemRef& to) {
        const Bytes bytes = from.GetBytes();
        return !bytes.IsEmpty() && to.Read(bytes);
    }

    const Node& node_;
    std::string path_;
    Building& building_;
    const NamedParts* parts_;
    std::vector<std::string_view> done_;
};

// The limits of the fields that are outside of them.
void ReportLimits(const ItemRef& item, const std::string& path, Building& building) {
    StatusSink status;
    item.Tell(status);
    if (status.status.IsValid()) return;
    LimitsSink limits;
    item.Tell(limits);
    for (const FieldStatus& field : status.status.Fields()) {
        if (field.proper) continue;
        const auto found = std::find_if(limits.limits.begin(), limits.limits.end(), [&field](const FieldLimits& l) {
            return std::string_view(l.name) == field.name;
        });
        const bool isKnown = found != limits.limits.end();
        const std::string place = path.empty() ? field.name : path + "." + field.name;
        if (!field.all) {
            building.Fail(place, isKnown ? "can be " + RangeOf(found->all) : "can't be written");
        } else {
            building.Warn(place, isKnown ? "should be " + RangeOf(found->proper) : "is not what a sound EDID holds");
        }
    }
}

// False, with the reason told, if the object names no kind of the holder.
bool ChooseKind(const Node& node, const ItemRef& holder, const std::string& path, Building& building) {
    const Node* type = node.Find("type");
    const std::vector<const char*> kinds = holder.GetKinds();
    const std::string title = type != nullptr && type->Is(Node::Kind::Text) ? type->Text() : "";
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        if (!title.starts_with(kinds[kind]) || GetUniqueTitle(kinds, kind) != title) continue;
        holder.MakeKind(static_cast<int>(kind));
        return true;
    }
    building.Fail(path, (type == nullptr ? "\"type\" is missing" : PrintShort(*type) + " is no kind") +
                            SayNearest(title, GetUniqueTitles(kinds)));
    return false;
}

}  // namespace

std::string SayNearest(const std::string& word, const std::vector<std::string>& names) {
    if (word.empty() || names.empty()) return "";
    return "; the nearest is \"" + Nearest(word, names) + "\"";
}

void BuildItem(const Node& node, const ItemRef& item, const std::string& path, Building& building,
               const std::vector<std::string>& more) {
    if (!node.Is(Node::Kind::Object)) return building.Fail(path, "an object is needed");
    if (const Node* data = node.Find("data"); data != nullptr && more.empty()) {
        Bytes bytes;
        if (!data->Is(Node::Kind::Text) || !HexFromText(String(std::string_view(data->Text())), bytes) ||
            !item.Read(bytes))
            building.Fail(path.empty() ? "data" : path + ".data", "is not the hex text of such an item");
        return;
    }
    if (node.Find("mode") != nullptr) {
        const Node expanded = ExpandTiming(node, item, path, building);
        if (!building.HasFailed()) BuildItem(expanded, item, path, building, more);
        return;
    }
    if (item.HasKinds() && !ChooseKind(node, item, path, building)) return;
    // What building from fields would change of what is given is given again behind it.
    Putter putter(node, path, building);
    item.Tell(putter);
    if (building.HasFailed()) return;
    item.Renew();
    item.Tell(putter);
    for (const auto& [name, value] : node.Members()) {
        if (Has(putter.known, name) || (name == "type" && item.HasKinds())) continue;
        if (std::find(more.begin(), more.end(), name) != more.end()) continue;
        std::vector<std::string> names(putter.known.begin(), putter.known.end());
        names.insert(names.end(), more.begin(), more.end());
        building.Fail(path.empty() ? name : path + "." + name, "no such field here" + SayNearest(name, names));
    }
    if (!building.HasFailed()) ReportLimits(item, path, building);
}

void BuildAlike(const Node& node, const ItemRef& item, const NamedParts& parts) {
    Building building;
    Putter putter(node, "", building, &parts);
    item.Tell(putter);
    item.Renew();
    item.Tell(putter);
}

void BuildPart(const Node& node, const PartRef& part, const std::string& path, Building& building) {
    if (!part.IsList()) return BuildItem(node, part.Item(), path, building);
    if (!node.Is(Node::Kind::List)) return building.Fail(path, "a list is needed");
    part.Clear();
    int index = 0;
    for (const Node& child : node.Items()) {
        const std::string place = path + "[" + std::to_string(index++) + "]";
        const bool isAdded = part.Add([&](const ItemRef& item) { BuildItem(child, item, place, building); });
        if (!isAdded) building.Fail(place, "can't be written");
        if (building.HasFailed()) return;
    }
}

}  // namespace VNT::Json
