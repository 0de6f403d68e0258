#include "picture/facts.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/vtb_extension_block.h"

namespace VNT::Picture {

namespace {

using Json::Node;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes numbers and words off the front of a text.
class Reader {
public:
    explicit Reader(std::string_view text) : rest(text) {}
    bool Number(double& number) {
        std::size_t length = 0;
        while (length < rest.size() && (IsDigit(rest[length]) || (length > 0 && rest[length] == '.'))) ++length;
        constexpr std::size_t most = 12;
        Decimal decimal;
        if (length == 0 || length > most || !TextToDecimal(String(rest.substr(0, length)), decimal)) return false;
        number = decimal.ToDouble();
        rest.remove_prefix(length);
        return true;
    }
    bool Word(std::string_view word) {
        if (!rest.starts_with(word)) return false;
        rest.remove_prefix(word.size());
        return true;
    }
    bool SkipTo(std::string_view word) {
        const std::size_t at = rest.find(word);
        if (at == std::string_view::npos) return false;
        rest.remove_prefix(at + word.size());
        return true;
    }
    std::string_view rest;
};

// "1920x1080i (16:9) @ 50/60 Hz (74.25 MHz)": one mode for each rate. Nothing of a text that doesn't begin with a size.
std::vector<Mode> ModesOf(const std::string& text) {
    Reader reader(text);
    Mode mode;
    double width = 0, height = 0;
    if (!reader.Number(width) || !reader.Word("x") || !reader.Number(height)) return {};
    mode.text = text;
    mode.width = static_cast<int>(width);
    mode.height = static_cast<int>(height);
    mode.isInterlaced = reader.Word("i");
    if (!reader.SkipTo("@ ")) return {};
    const std::size_t end = reader.rest.find("Hz");
    Reader rates(reader.rest.substr(0, end));
    Reader behind(end == std::string_view::npos ? std::string_view() : reader.rest.substr(end));
    if (behind.SkipTo("(") && !(behind.Number(mode.clock) && behind.Word(" MHz"))) mode.clock = 0;
    std::vector<Mode> modes;
    while (!rates.rest.empty()) {
        if (rates.Number(mode.rate)) {
            modes.push_back(mode);
        } else {
            rates.rest.remove_prefix(1);
        }
    }
    return modes;
}

struct ListedText {
    std::string text;
    bool isHalf = false;  // in YCbCr 4:2:0 alone, which takes half of the clock
};

void AddTexts(const std::vector<ItemPart>& parts, bool isHalf, std::vector<ListedText>& texts) {
    for (const ItemPart& part : parts) {
        const std::string text = part.text.ToUtf8();
        texts.push_back({text, isHalf});
        AddTexts(part.parts, isHalf || text.starts_with("4:2:0"), texts);
    }
}

template <class Item>
std::string TextOf(const Item& item) {
    String text;
    item.GetText(text);
    return text.ToUtf8();
}

std::vector<ListedText> ModeTextsOf(const Edid& edid) {
    using Established = EdidEstablishedResolutionFlagEnum;
    using Established3 = EdidEstablished3ResolutionFlagEnum;
    std::vector<ListedText> texts;
    for (std::size_t i = 0; i < std::size(Established::Texts); ++i) {
        if (edid.established.Test(static_cast<Established::Enum>(i))) texts.push_back({Established::Texts[i]});
    }
    for (const EdidStandardResolution& resolution : edid.standardResolutions) texts.push_back({TextOf(resolution)});
    for (const EdidDescriptor& descriptor : edid.descriptors) {
        texts.push_back({TextOf(descriptor)});
        AddTexts(descriptor.GetParts(), false, texts);
        EdidEstablished3ResolutionFlagsDescriptor more;
        if (!more.Assign(descriptor)) continue;
        for (std::size_t i = 0; i < std::size(Established3::Texts); ++i) {
            if (more.resolutions.Test(static_cast<Established3::Enum>(i))) texts.push_back({Established3::Texts[i]});
        }
    }
    for (const EdidExtensionBlock& block : edid.extensionBlocks) AddTexts(block.GetParts(), false, texts);
    return texts;
}

// What a rate or a clock may be off before it is beyond a border: borders are whole numbers, of clocks tens.
constexpr double RateGrain = 0.5;
constexpr double ClockGrain = 0.5;

std::string FindBeyond(const Mode& mode, const Borders& borders) {
    std::string beyond;
    const auto add = [&beyond](const char* text) { beyond += (beyond.empty() ? "" : ", ") + std::string(text); };
    const double clock = std::max(mode.clock, mode.VisibleClock()) / (mode.isHalf ? 2 : 1);
    if (borders.minRate > 0 && mode.rate < borders.minRate - RateGrain) add("below the least refresh rate");
    if (borders.maxRate > 0 && mode.rate > borders.maxRate + RateGrain) add("above the greatest refresh rate");
    if (borders.maxClock > 0 && clock > borders.maxClock + ClockGrain) add("above the pixel clock of the range limits");
    if (borders.interfaceClock > 0 && clock > borders.interfaceClock + ClockGrain) add("above the interface's clock");
    return beyond;
}

double NumberOf(const Node& node, const char* name) {
    const Node* found = node.Find(name);
    return found != nullptr && found->Is(Node::Kind::Number) ? found->Number().ToDouble() : 0;
}
int CountOf(const Node& node, const char* name) { return static_cast<int>(NumberOf(node, name)); }

using Visit = std::function<void(const Node& object, const std::string& path)>;

void ForEachObject(const Node& node, const std::string& path, const Visit& visit) {
    if (node.Is(Node::Kind::Object)) {
        visit(node, path);
        for (const auto& [name, value] : node.Members())
            ForEachObject(value, path.empty() ? name : path + "." + name, visit);
    }
    int index = 0;
    for (const Node& item : node.Items()) ForEachObject(item, path + "[" + std::to_string(index++) + "]", visit);
}

std::string PolarityOf(const Node& node, const char* name) {
    const Node* found = node.Find(name);
    if (found == nullptr || !found->Is(Node::Kind::Truth)) return "";
    return found->IsTrue() ? "+" : "-";
}

// The pixels that a fixed rate link carries in a microsecond, of 24 bits each: 16 bits stand in 18 on its lanes (HDMI
// 2.1).
double FrlClock(const Node& block) {
    const Node* rate = block.Find("MaxFrlRate");
    double gigabits = 0;
    if (rate == nullptr || !Reader(rate->Text()).Number(gigabits)) return 0;
    return gigabits * 1000 * 16 / 18 / 24;
}

// The names of the areas are the kinds: what stands before the colon of an item's text, of a timing its size and rate.
template <class Item>
std::string KindOf(const Item& item) {
    const std::string text = TextOf(item);
    const std::size_t end = std::min(text.find(": "), ModesOf(text).empty() ? std::string::npos : text.find("Hz") + 2);
    return text.empty() ? "?" : text.substr(0, end);
}

class AreaWriter {
public:
    void Add(int size, Use use, std::string name) {
        size = std::clamp(size, 0, Edid::BlockSize - at_);
        if (size == 0) return;
        areas.push_back({at_, size, use, std::move(name)});
        at_ += size;
    }
    void UpTo(int end, Use use, std::string name) { Add(end - at_, use, std::move(name)); }
    template <class List>
    void AddItems(const List& list, Use use) {
        for (const auto& item : list) {
            int size = 0;
            if constexpr (requires { item.GetSize(); }) {
                size = item.GetSize();
            } else {
                size = List::SlotBytes;
            }
            Add(size, use, KindOf(item));
        }
    }
    std::vector<Area> Finish() {
        constexpr int checksum = Edid::BlockSize - 1;
        UpTo(checksum, Use::Free, "Free");
        Add(1, Use::Frame, "Checksum");
        return std::move(areas);
    }
    std::vector<Area> areas;

private:
    int at_ = 0;
};

std::vector<Area> AreasOfBase(const Edid& edid) {
    AreaWriter areas;
    areas.Add(8, Use::Frame, "Header");
    areas.Add(10, Use::Properties, "Vendor, product, date");
    areas.Add(2, Use::Properties, "Version");
    areas.Add(5, Use::Properties, "Properties");
    areas.Add(10, Use::Colors, "Color coordinates");
    areas.Add(3, Use::Resolutions, "Established resolutions");
    areas.Add(edid.standardResolutions.GetSize(), Use::Resolutions, "Standard resolutions");
    areas.UpTo(54, Use::Free, "Free: standard resolutions");
    for (const EdidDescriptor& descriptor : edid.descriptors) {
        const bool isTiming = !ModesOf(TextOf(descriptor)).empty();
        areas.Add(EdidDescriptorList::SlotBytes, isTiming ? Use::Resolutions : Use::Descriptor, KindOf(descriptor));
    }
    areas.UpTo(126, Use::Free, "Free: descriptors");
    areas.Add(1, Use::Frame, "Extension count");
    return areas.Finish();
}

std::vector<Area> AreasOf(const EdidExtensionBlock& block) {
    AreaWriter areas;
    EdidCtaExtensionBlock cta;
    EdidVtbExtensionBlock vtb;
    EdidDisplayIdSectionExtensionBlock displayId;
    if (cta.Assign(block)) {
        areas.Add(4, Use::Frame, "Header");
        areas.AddItems(cta.dataBlocks, Use::DataBlock);
        areas.Add(cta.dataBlockPadding.Size(), Use::Unknown, "Padding of the data blocks");
        areas.AddItems(cta.descriptors, Use::Resolutions);
    } else if (vtb.Assign(block)) {
        areas.Add(5, Use::Frame, "Header");
        areas.AddItems(vtb.detailed, Use::Resolutions);
        areas.AddItems(vtb.cvtResolutions, Use::Resolutions);
        areas.AddItems(vtb.standardResolutions, Use::Resolutions);
    } else if (displayId.Assign(block) && displayId.raw.IsEmpty()) {
        areas.Add(5, Use::Frame, "Headers");
        areas.AddItems(displayId.section.dataBlocks, Use::DataBlock);
        areas.UpTo(displayId.section.GetSize(), Use::Free, "Free: section");
        areas.Add(1, Use::Frame, "Checksum of the section");
    } else {
        areas.UpTo(Edid::BlockSize - 1, Use::Unknown, KindOf(block));
    }
    return areas.Finish();
}

}  // namespace

double Timing::Rate() const {
    const double pixels = HTotal() * 1.0 * VTotal();
    return pixels > 0 ? clock * 1e6 / pixels * (isInterlaced ? 2 : 1) : 0;
}

std::vector<Mode> FindModes(const Edid& edid, const Borders& borders) {
    std::vector<Mode> modes;
    for (const ListedText& listed : ModeTextsOf(edid)) {
        for (Mode& mode : ModesOf(listed.text)) {
            mode.isHalf = listed.isHalf;
            const bool isKnown = std::any_of(modes.begin(), modes.end(), [&mode](const Mode& m) {
                return m.text == mode.text && m.rate == mode.rate;
            });
            if (isKnown || mode.width == 0 || mode.height == 0 || mode.rate <= 0) continue;
            mode.beyond = FindBeyond(mode, borders);
            modes.push_back(std::move(mode));
        }
    }
    return modes;
}

Borders FindBorders(const Node& node) {
    Borders borders;
    ForEachObject(node, "", [&borders](const Node& object, const std::string&) {
        if (object.Find("maxVRate") != nullptr) {
            const double least = NumberOf(object, "minVRate");
            if (least > 0) borders.minRate = borders.minRate > 0 ? std::min(borders.minRate, least) : least;
            borders.maxRate = std::max(borders.maxRate, NumberOf(object, "maxVRate"));
            borders.maxClock = std::max(borders.maxClock, NumberOf(object, "maxPixelClock"));
        }
        for (const double clock :
             {NumberOf(object, "MaxTmdsClock"), NumberOf(object, "MaxTmdsCharacterRate"), FrlClock(object)})
            borders.interfaceClock = std::max(borders.interfaceClock, clock);
    });
    return borders;
}

std::vector<Timing> FindTimings(const Node& node) {
    std::vector<Timing> timings;
    ForEachObject(node, "", [&timings](const Node& object, const std::string& path) {
        if (object.Find("pixelclock") == nullptr || object.Find("hactive") == nullptr) return;
        Timing timing{path,
                      NumberOf(object, "pixelclock"),
                      CountOf(object, "hactive"),
                      CountOf(object, "hblank"),
                      CountOf(object, "hfront"),
                      CountOf(object, "hsync"),
                      CountOf(object, "vactive"),
                      CountOf(object, "vblank"),
                      CountOf(object, "vfront"),
                      CountOf(object, "vsync"),
                      false,
                      PolarityOf(object, "hpolarity"),
                      PolarityOf(object, "vpolarity")};
        const Node* interlaced = object.Find("interlaced");
        timing.isInterlaced = interlaced != nullptr && interlaced->IsTrue();
        timings.push_back(std::move(timing));
    });
    return timings;
}

std::vector<std::vector<Area>> FindAreas(const Edid& edid) {
    std::vector<std::vector<Area>> blocks{AreasOfBase(edid)};
    for (const EdidExtensionBlock& block : edid.extensionBlocks) blocks.push_back(AreasOf(block));
    return blocks;
}

}  // namespace VNT::Picture
