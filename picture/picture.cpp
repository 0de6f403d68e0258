#include "picture/picture.h"

#include <algorithm>

#include "json/edid_json.h"
#include "picture/parts.h"

namespace VNT::Picture {

namespace {

// Colours for a light and for a dark page; shapes name what they are and never how they look.
constexpr const char* Style = R"(
svg { background: #ffffff; color-scheme: light dark; }
text { font: 12px sans-serif; fill: #1c1c1e; }
.title { font: bold 20px sans-serif; } .heading { font: bold 15px sans-serif; } .label { font: bold 12px sans-serif; }
.name { paint-order: stroke; stroke: #ffffff; stroke-width: 3px; stroke-linejoin: round; }
.small { font-size: 11px; fill: #48484a; } .onactive { fill: #ffffff; font-size: 13px; }
.page { fill: #ffffff; } .plot, .grid { fill: none; stroke: #e2e2e6; }
.locus { fill: #f4f4f7; stroke: #8e8e93; }
.gamut { fill: none; stroke-width: 1.5; } .own { stroke: #1c1c1e; stroke-width: 2.5; }
.srgb { stroke: #0a7d38; stroke-dasharray: 2 3; } .p3 { stroke: #b3541e; stroke-dasharray: 7 3; }
.bt2020 { stroke: #5b3fb5; stroke-dasharray: 10 3 2 3; }
.primary { fill: #ffffff; stroke: #1c1c1e; stroke-width: 1.5; }
.mode { fill: #2563c9; fill-opacity: .75; } .out { fill: #c62828; } .cross { fill: none; stroke: #c62828; stroke-width: 1.5; }
.border { fill: none; stroke-width: 1.5; } .range { stroke: #b3541e; stroke-dasharray: 6 4; }
.interface { stroke: #5b3fb5; stroke-dasharray: 2 3; }
.active { fill: #2563c9; } .blank { fill: #dcdce1; } .sync { fill: #b3541e; } .v { fill: #0a7d38; fill-opacity: .8; }
.use { stroke: #ffffff; } .frame { fill: #8e8e93; } .properties { fill: #2563c9; } .colors { fill: #5b3fb5; }
.resolutions { fill: #0a7d38; } .descriptor { fill: #0f7b8a; } .datablock { fill: #b3541e; } .free { fill: #ececf0; }
.unknown { fill: #c62828; } .odd { fill-opacity: .72; }
@media (prefers-color-scheme: dark) {
svg { background: #1b1b1f; } text { fill: #f2f2f4; } .small { fill: #c4c4ca; } .onactive { fill: #ffffff; }
.name { stroke: #1b1b1f; } .page { fill: #1b1b1f; } .plot, .grid { stroke: #36363c; } .locus { fill: #26262b; stroke: #8e8e93; }
.own { stroke: #f2f2f4; } .srgb { stroke: #5bd08a; } .p3, .range { stroke: #f0a36b; }
.bt2020, .interface { stroke: #b39df5; } .primary { fill: #1b1b1f; stroke: #f2f2f4; }
.mode { fill: #7aa9ff; } .out { fill: #ff7b72; } .cross { stroke: #ff7b72; }
.active { fill: #3f6fd1; } .blank { fill: #3a3a41; } .sync { fill: #d9793c; } .v { fill: #37a866; }
.use { stroke: #1b1b1f; } .frame { fill: #77777d; } .properties { fill: #5b8def; } .colors { fill: #9a83ea; }
.resolutions { fill: #37a866; } .descriptor { fill: #35a3b3; } .datablock { fill: #d9793c; } .free { fill: #2c2c31; }
.unknown { fill: #e05a52; }
}
)";

std::string TitleOf(const Edid& edid) {
    const EdidIdentity identity = edid.GetIdentity();
    constexpr int hex = 16, digits = 4;
    String title = identity.vendorId + VNT::NumberText(identity.productId, hex, digits, true);
    if (!identity.name.IsEmpty()) title = identity.name + String(U" (") + title + String(U")");
    return title.ToUtf8();
}

}  // namespace

std::optional<std::string> PictureOf(const Bytes& bytes) {
    Edid edid;
    const std::optional<Json::Node> node = Json::NodeOfEdid(bytes);
    if (!node || !edid.Read(bytes)) return std::nullopt;
    const Borders borders = FindBorders(*node);

    constexpr double margin = 20, gamutWidth = 450, gap = 18;
    Svg parts;
    parts.Text({margin, 34}, TitleOf(edid), "title");
    double y = 54;
    const double gamut = DrawGamut(parts, {margin, y}, edid.properties.colors);
    const double modes = DrawModes(parts, {margin + gamutWidth, y}, FindModes(edid, borders), borders);
    y += std::max(gamut, modes) + gap;
    y += DrawTimings(parts, {margin, y}, FindTimings(*node)) + gap;
    y += DrawBytes(parts, {margin, y}, FindAreas(edid)) + margin;

    Svg svg;
    const std::string width = NumberText(PictureWidth), height = NumberText(y);
    svg.Open("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                     {"width", width},
                     {"height", height},
                     {"viewBox", "0 0 " + width + " " + height}});
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + svg.Written() + "<style>" + Style +
           "</style>\n<rect class=\"page\" width=\"100%\" height=\"100%\"/>\n" + parts.Written() + "</svg>\n";
}

}  // namespace VNT::Picture
