#include <algorithm>

#include "picture/parts.h"

namespace VNT::Picture {

namespace {

constexpr int Columns = 32;
constexpr double Cell = 14;
constexpr double MapWidth = Columns * Cell;
constexpr int TextColumns = 3;
constexpr double TextLeft = MapWidth + 24;
constexpr double TextWidth = (PictureWidth - 40 - TextLeft) / TextColumns;
constexpr double TextLine = 16;
constexpr double Head = 24;

const char* StyleOf(Use use) {
    switch (use) {
        case Use::Frame:
            return "use frame";
        case Use::Properties:
            return "use properties";
        case Use::Colors:
            return "use colors";
        case Use::Resolutions:
            return "use resolutions";
        case Use::Descriptor:
            return "use descriptor";
        case Use::DataBlock:
            return "use datablock";
        case Use::Free:
            return "use free";
        case Use::Unknown:
            break;
    }
    return "use unknown";
}

// An area runs over rows of the map as a text over lines. Every second one of a kind is lighter, so that they part.
void DrawArea(Svg& svg, Point at, const Area& area, bool isOdd) {
    const std::string range = area.size == 1
                                  ? std::to_string(area.start)
                                  : std::to_string(area.start) + "\u2013" + std::to_string(area.start + area.size - 1);
    const std::string hint = area.name + ": bytes " + range;
    svg.Open("g", {{"class", "area"},
                   {"data-start", std::to_string(area.start)},
                   {"data-size", std::to_string(area.size)},
                   {"data-name", area.name}});
    for (int byte = area.start; byte < area.start + area.size;) {
        const int column = byte % Columns;
        const int count = std::min(Columns - column, area.start + area.size - byte);
        svg.Rect({at.x + column * Cell, at.y + byte / Columns * Cell}, {count * Cell, Cell},
                 std::string(StyleOf(area.use)) + (isOdd ? " odd" : ""), hint);
        byte += count;
    }
    svg.Close("g");
}

double DrawBlock(Svg& svg, Point at, std::size_t index, const std::vector<Area>& areas) {
    svg.Open("g", {{"class", "block"}});
    int free = 0;
    for (const Area& area : areas) free += area.use == Use::Free ? area.size : 0;
    svg.Text({at.x, at.y + 14}, "Block " + std::to_string(index) + ": " + std::to_string(free) + " bytes free",
             "label");
    bool isOdd = false;
    const int shown = static_cast<int>(areas.size());
    const int lines = std::max(4, (shown + TextColumns - 1) / TextColumns);
    for (int i = 0; i < shown; ++i) {
        const Area& area = areas[static_cast<std::size_t>(i)];
        DrawArea(svg, {at.x, at.y + Head}, area, isOdd);
        const Point place{at.x + TextLeft + i / lines * TextWidth, at.y + Head + i % lines * TextLine};
        svg.Rect(place, {11, 11}, std::string(StyleOf(area.use)) + (isOdd ? " odd" : ""));
        svg.Text({place.x + 17, place.y + 10}, std::to_string(area.size) + "  " + area.name, "small", "start",
                 TextWidth - 26);
        isOdd = !isOdd;
    }
    svg.Close("g");
    return Head + std::max(4 * Cell, lines * TextLine) + 14;
}

}  // namespace

double DrawBytes(Svg& svg, Point at, const std::vector<std::vector<Area>>& blocks) {
    svg.Open("g", {{"id", "bytes"}});
    svg.Text({at.x, at.y + 16}, "Bytes: what takes how many, and what is left", "heading");
    double y = at.y + 28;
    for (std::size_t i = 0; i < blocks.size(); ++i) y += DrawBlock(svg, {at.x, y}, i, blocks[i]);
    svg.Close("g");
    return y - at.y;
}

}  // namespace VNT::Picture
