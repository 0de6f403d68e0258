#include "json/edid_json.h"
#include "model/core/field_teller.h"
#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT::Json {

namespace {

// What the calculator is given; the rest of the timing follows.
struct Given {
    DetailedResolutionFields fields;
    bool isWhole = true;
};

Given ReadGiven(const Node& node, const std::string& path, Building& building) {
    Given given;
    const auto fail = [&](const char* name, const std::string& what) {
        building.Fail(path.empty() ? name : path + "." + name, what);
        given.isWhole = false;
    };
    const Node& mode = *node.Find("mode");
    bool isFound = false;
    for (const auto& row : DetailedResolutionTimingEnum::Texts) {
        if (!mode.Is(Node::Kind::Text) || mode.Text() != row.text) continue;
        given.fields.timing = row.value;
        isFound = true;
    }
    if (!isFound) fail("mode", PrintShort(mode) + " is no mode" + SayNearest(mode.Text(), GetTimingModes()));
    const auto number = [&](const char* name, auto put) {
        const Node* value = node.Find(name);
        constexpr int most = 65536;
        if (value == nullptr || !value->Is(Node::Kind::Number) || value->Number() < Decimal() ||
            value->Number() > Decimal(most))
            return fail(name, "the calculator needs it, 0 to " + std::to_string(most));
        put(value->Number());
    };
    number("hactive", [&](Decimal n) { given.fields.hactive = n.ToInt(); });
    number("vactive", [&](Decimal n) { given.fields.vactive = n.ToInt(); });
    number("vrate", [&](Decimal n) { given.fields.vrate = n; });
    if (const Node* scan = node.Find("interlaced")) given.fields.interlaced = scan->IsTrue();
    return given;
}

// The timing's fields under the names that all encodings share.
template <class X, class Fields>
Node Calculated(const DetailedResolutionFields& entered) {
    Fields fields;
    static_cast<DetailedResolutionFields&>(fields) = entered;
    X timing(fields);
    if (!timing.IsValidAll()) return Node();
    return NodeOfItem(ItemRef(&timing, Detail::ItemTypeOf<X>));
}

// Of which precision the clocks of the item are.
bool CountsKilohertz(const ItemRef& item) {
    LimitsSink limits;
    item.Tell(limits);
    for (const FieldLimits& field : limits.limits) {
        const auto* clock = std::get_if<DecimalLimits>(&field.all);
        if (std::string_view(field.name) == "pixelclock" && clock != nullptr) return clock->step == Decimal(1, 3);
    }
    return false;
}

}  // namespace

std::vector<std::string> GetTimingModes() {
    std::vector<std::string> modes;
    for (const auto& row : DetailedResolutionTimingEnum::Texts) modes.emplace_back(row.text);
    return modes;
}

Node ExpandTiming(const Node& node, const ItemRef& item, const std::string& path, Building& building) {
    const Given given = ReadGiven(node, path, building);
    if (!given.isWhole) return node;
    const Node timing = CountsKilohertz(item)
                            ? Calculated<DisplayId2DetailedResolution, DisplayId2DetailedResolutionFields>(given.fields)
                            : Calculated<EdidDetailedResolution, EdidDetailedResolutionFields>(given.fields);
    if (!timing.Is(Node::Kind::Object)) {
        building.Fail(path.empty() ? "mode" : path + ".mode", "gives no timing that fits");
        return node;
    }
    Node expanded = node;
    expanded.Remove("mode");
    expanded.Remove("vrate");
    if (item.HasKinds() && node.Find("type") == nullptr)
        expanded.Set("type", Node::Of(std::string("Detailed resolution")));
    for (const char* name : {"pixelclock", "interlaced", "hblank", "hfront", "hsync", "hpolarity", "vblank", "vfront",
                             "vsync", "vpolarity"}) {
        const Node* value = timing.Find(name);
        if (value != nullptr && node.Find(name) == nullptr) expanded.Set(name, *value);
    }
    return expanded;
}

}  // namespace VNT::Json
