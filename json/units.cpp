#include <algorithm>

#include "json/schema.h"

namespace VNT::Json {

namespace {

struct Unit {
    const char* text;
    std::vector<std::string_view> fields;
};

// By the fields' names in the layouts, whatever they begin with: one name means one thing everywhere.
const std::vector<Unit>& Units() {
    static const std::vector<Unit> units{
        {"MHz",
         {"pixelclock", "minPixelClock", "maxPixelClock", "v3MaxPixelClock", "subtractPixelClock", "ycc420MinPixelRate",
          "maxTmdsClock", "maxTmdsCharacterRate"}},
        {"kHz", {"minHRate", "maxHRate", "startFrequency", "sampleRates"}},
        {"Hz",
         {"vrate", "minVRate", "maxVRate", "refreshRate", "preferredRefreshRate", "minRefreshRate", "maxRefreshRate",
          "v3MaxRefreshRate", "vrrMin", "vrrMax"}},
        {"mm", {"imageWidth", "imageHeight"}},
        {"cm", {"horizontalSize", "verticalSize"}},
        {"pixels",
         {"hactive", "hblank", "hfront", "hsync", "hborder", "width", "maxWidth", "minHBlank", "nativeWidth",
          "hTileResolution"}},
        {"lines",
         {"vactive", "vblank", "vfront", "vsync", "vborder", "height", "minVBlank", "nativeHeight", "vTileResolution"}},
        {"ms", {"videoLatency", "audioLatency", "interlacedVideoLatency", "interlacedAudioLatency"}},
        {"kbit/s", {"maxBitRate"}},
    };
    return units;
}

}  // namespace

std::string UnitOf(const std::string& field) {
    std::string name = field;
    if (!name.empty() && name[0] >= 'A' && name[0] <= 'Z') name[0] = static_cast<char>(name[0] - 'A' + 'a');
    for (const Unit& unit : Units()) {
        if (std::find(unit.fields.begin(), unit.fields.end(), name) != unit.fields.end()) return unit.text;
    }
    return "";
}

std::vector<std::string> FieldsWithUnits() {
    std::vector<std::string> fields;
    for (const Unit& unit : Units()) fields.insert(fields.end(), unit.fields.begin(), unit.fields.end());
    return fields;
}

}  // namespace VNT::Json
