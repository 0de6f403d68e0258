#include "json/edid_json.h"

#include <algorithm>

#include "model/core/field_teller.h"
#include "model/edid/edid.h"
#include "model/edid/file_formats.h"

namespace VNT::Json {

namespace {

constexpr int BlockSize = Edid::BlockSize;
constexpr int MostBlocks = 256;
constexpr int EstablishedBits = 24;

// What the object has beside the fields of the properties.
const std::vector<std::string>& OwnNames() {
    static const std::vector<std::string> names{"established",
                                                "standardResolutions",
                                                "descriptors",
                                                "extensionBlocks",
                                                "extensionBlockCount",
                                                "extensionOverrideCount",
                                                "checksum",
                                                "blocks",
                                                "behind",
                                                "bytes"};
    return names;
}

template <class Enum>
constexpr Enum FlagAt(int bit) {
    return static_cast<Enum>(bit);
}

Node NodeOfEstablished(const EdidFields& fields) {
    using Flags = EdidEstablishedResolutionFlagEnum;
    constexpr int named = static_cast<int>(std::size(Flags::Texts));
    Node list = Node::EmptyList();
    for (int bit = 0; bit < EstablishedBits; ++bit) {
        if (!fields.established.Test(FlagAt<Flags::Enum>(bit))) continue;
        list.Add(bit < named ? Node::Of(std::string(Flags::Texts[bit])) : Node::OfNumber(bit));
    }
    return list;
}

void BuildEstablished(const Node& node, EdidFields& fields, Building& building) {
    using Flags = EdidEstablishedResolutionFlagEnum;
    const std::vector<std::string> texts(std::begin(Flags::Texts), std::end(Flags::Texts));
    if (!node.Is(Node::Kind::List)) return building.Fail("established", "a list of flags is needed");
    for (const Node& item : node.Items()) {
        const auto found = item.Is(Node::Kind::Text) ? std::find(texts.begin(), texts.end(), item.Text()) : texts.end();
        int bit = static_cast<int>(found - texts.begin());
        if (item.Is(Node::Kind::Number)) {
            bit = item.Number() >= Decimal() && item.Number() < Decimal(EstablishedBits) ? item.Number().ToInt()
                                                                                         : EstablishedBits;
        } else if (found == texts.end()) {
            bit = EstablishedBits;
        }
        if (bit >= EstablishedBits)
            return building.Fail("established",
                                 PrintShort(item) + " is none of its flags" + SayNearest(item.Text(), texts));
        fields.established.Set(FlagAt<Flags::Enum>(bit), true);
    }
}

template <class List>
PartRef RefOf(List& list) {
    return PartRef(&list, Detail::PartTypeOf<List>);
}

// What its kind couldn't write back stands as bytes alone, which the list takes as it takes them from a file.
Node NodeOfBlocks(const EdidExtensionBlockList& blocks) {
    Node list = Node::EmptyList();
    EdidExtensionBlockList& told = const_cast<EdidExtensionBlockList&>(blocks);
    for (int i = 0; i < blocks.GetCount(); ++i) list.Add(NodeOfItem(RefOf(told).At(i)));
    return list;
}

void BuildBlocks(const Node& node, EdidExtensionBlockList& blocks, Building& building) {
    if (!node.Is(Node::Kind::List)) return building.Fail("extensionBlocks", "a list is needed");
    int index = 0;
    for (const Node& child : node.Items()) {
        const std::string place = "extensionBlocks[" + std::to_string(index++) + "]";
        Bytes bytes;
        const Node* data = child.Find("data");
        const int before = blocks.GetCount();
        if (data != nullptr && data->Is(Node::Kind::Text) &&
            HexFromText(String(std::string_view(data->Text())), bytes) && bytes.Size() == BlockSize) {
            blocks.ReadMore(bytes);
        } else {
            RefOf(blocks).Add([&](const ItemRef& item) { BuildItem(child, item, place, building); });
        }
        if (blocks.GetCount() != before + 1) building.Fail(place, "can't be written");
        if (building.HasFailed()) return;
    }
}

bool ReadSmall(const Node& node, const char* name, int& value, Building& building) {
    const Node* found = node.Find(name);
    if (found == nullptr) return false;
    if (found->Is(Node::Kind::Null)) {
        value = Undefined;
        return true;
    }
    if (!found->Is(Node::Kind::Number) || found->Number() < Decimal() || found->Number() > Decimal(MostBlocks)) {
        building.Fail(name, PrintShort(*found) + " is not 0 to " + std::to_string(MostBlocks));
        return false;
    }
    value = found->Number().ToInt();
    return true;
}

bool ReadHex(const Node& node, const std::string& path, Bytes& bytes, Building& building) {
    if (node.Is(Node::Kind::Text) && HexFromText(String(std::string_view(node.Text())), bytes)) return true;
    building.Fail(path, "bytes as hex text are needed");
    return false;
}

// The bytes that fields can't tell, by their place: they stand as they are given.
void Patch(const Node& node, Bytes& bytes, Building& building) {
    for (const auto& [name, value] : node.Members()) {
        Decimal place;
        Bytes patch;
        if (!TextToDecimal(String(std::string_view(name)), place) || place < Decimal() ||
            place >= Decimal(bytes.Size()))
            return building.Fail("bytes." + name, "is no place in the EDID");
        if (!ReadHex(value, "bytes." + name, patch, building)) return;
        ByteRange range = bytes;
        range.Drop(place.ToInt());
        range.CopyFrom(patch);
    }
}

Node FindPatches(const Bytes& built, const Bytes& wanted) {
    Node patches = Node::EmptyObject();
    for (int at = 0; at < wanted.Size(); ++at) {
        if (built.At(at) == wanted.At(at)) continue;
        int end = at;
        while (end < wanted.Size() && built.At(end) != wanted.At(end)) ++end;
        patches.Set(std::to_string(at), Node::Of(HexText(wanted.Slice(at, end - at)).ToUtf8()));
        at = end;
    }
    return patches;
}

std::optional<Edid> BuildWhole(const Node& node, Building& building) {
    EdidFields fields;
    EdidProperties properties;
    if (!node.Is(Node::Kind::Object)) {
        building.Fail("the whole", "an object is needed");
        return std::nullopt;
    }
    // From EDID 1.4 on, a screen whose size isn't given has none.
    if (node.Find("horizontalSize") == nullptr && node.Find("verticalSize") == nullptr)
        properties.screenFieldsPresent = EdidScreenFieldsPresentEnum::None;
    BuildItem(node, ItemRef(&properties, Detail::ItemTypeOf<EdidProperties>), "", building, OwnNames());
    fields.properties = properties;
    if (const Node* established = node.Find("established")) BuildEstablished(*established, fields, building);
    if (const Node* list = node.Find("standardResolutions"))
        BuildPart(*list, RefOf(fields.standardResolutions), "standardResolutions", building);
    if (const Node* list = node.Find("descriptors"))
        BuildPart(*list, RefOf(fields.descriptors), "descriptors", building);
    if (const Node* list = node.Find("extensionBlocks")) BuildBlocks(*list, fields.extensionBlocks, building);
    if (building.HasFailed()) return std::nullopt;
    return Edid(fields);
}

// What stands beside the items.
std::optional<Bytes> FinishEdid(const Node& node, Edid edid, Building& building) {
    ReadSmall(node, "extensionBlockCount", edid.extensionBlockCount, building);
    ReadSmall(node, "extensionOverrideCount", edid.extensionOverrideCount, building);
    ReadSmall(node, "checksum", edid.checksum, building);
    Bytes bytes = edid.GetBytes();
    if (bytes.IsEmpty()) building.Fail("the whole", "can't be written: too many items for the base block");
    int blocks = bytes.Size() / BlockSize;
    if (ReadSmall(node, "blocks", blocks, building)) bytes.Resize(std::max(0, blocks) * BlockSize);
    if (const Node* behind = node.Find("behind")) {
        Bytes more;
        if (ReadHex(*behind, "behind", more, building)) bytes.Append(more);
    }
    if (const Node* patches = node.Find("bytes")) Patch(*patches, bytes, building);
    if (building.HasFailed()) return std::nullopt;
    return bytes;
}

}  // namespace

std::optional<Bytes> BuildEdid(const Node& node, Building& building) {
    const std::optional<Edid> edid = BuildWhole(node, building);
    return edid ? FinishEdid(node, *edid, building) : std::nullopt;
}

std::optional<Node> NodeOfEdid(const Bytes& bytes) {
    Edid edid;
    if (!edid.Read(bytes)) return std::nullopt;
    EdidProperties properties(edid.properties);
    Node node = NodeOfItem(ItemRef(&properties, Detail::ItemTypeOf<EdidProperties>));
    if (node.Find("data") != nullptr) node = Node::EmptyObject();
    node.Set("established", NodeOfEstablished(edid));
    node.Set("standardResolutions", NodeOfPart(RefOf(edid.standardResolutions)));
    node.Set("descriptors", NodeOfPart(RefOf(edid.descriptors)));
    if (!edid.extensionBlocks.IsEmpty()) node.Set("extensionBlocks", NodeOfBlocks(edid.extensionBlocks));

    Building building;
    const std::optional<Edid> built = BuildWhole(node, building);
    const auto add = [&node](const char* name, int value, int given) {
        if (value != given) node.Set(name, value == Undefined ? Node() : Node::OfNumber(value));
    };
    if (built) {
        add("extensionBlockCount", edid.extensionBlockCount, built->extensionBlockCount);
        add("extensionOverrideCount", edid.extensionOverrideCount, built->extensionOverrideCount);
        add("checksum", edid.checksum, built->checksum);
    }
    const int whole = built ? std::min(bytes.Size(), built->GetSize()) / BlockSize * BlockSize : 0;
    if (built && whole != built->GetSize()) node.Set("blocks", Node::OfNumber(whole / BlockSize));
    if (whole < bytes.Size()) node.Set("behind", Node::Of(HexText(bytes.Slice(whole, bytes.Size() - whole)).ToUtf8()));
    Building second;
    const std::optional<Bytes> again = built ? FinishEdid(node, *built, second) : std::nullopt;
    if (again && again->Size() == bytes.Size() && *again != bytes) node.Set("bytes", FindPatches(*again, bytes));
    if (again && again->Size() == bytes.Size()) return node;
    // No field can say it: the bytes themselves do, behind no block at all.
    Node plain = Node::EmptyObject();
    plain.Set("blocks", Node::OfNumber(0));
    plain.Set("behind", Node::Of(HexText(bytes).ToUtf8()));
    return plain;
}

}  // namespace VNT::Json
