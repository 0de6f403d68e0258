// What the picture shows, taken from an EDID without a thought of where it is drawn.
#pragma once

#include <string>
#include <vector>

#include "json/node.h"
#include "model/edid/edid.h"

namespace VNT::Picture {

// A picture size and a rate that the EDID lists somewhere.
struct Mode {
    std::string text;
    int width = 0;
    int height = 0;
    bool isInterlaced = false;
    bool isHalf = false;  // in YCbCr 4:2:0 alone: half of the clock
    double rate = 0;      // Hz; of a field where interlaced
    double clock = 0;     // MHz; 0 where only a whole timing would tell
    std::string beyond;   // which borders it lies beyond, empty if none

    // MHz that the visible pixels take alone.
    double VisibleClock() const { return width * 1.0 * height * rate / (isInterlaced ? 2e6 : 1e6); }
};

// The borders that the display states; 0 where it states none.
struct Borders {
    double minRate = 0, maxRate = 0;  // Hz
    double maxClock = 0;              // MHz, of the range limits
    double interfaceClock = 0;        // MHz, of HDMI
};

struct Timing {
    std::string path;
    double clock = 0;  // MHz
    int hactive = 0, hblank = 0, hfront = 0, hsync = 0;
    int vactive = 0, vblank = 0, vfront = 0, vsync = 0;
    bool isInterlaced = false;
    std::string hpolarity, vpolarity;  // "+", "-", empty where the sync has none of its own
    int HTotal() const { return hactive + hblank; }
    int VTotal() const { return vactive + vblank; }
    double Rate() const;
};

enum class Use { Frame, Properties, Colors, Resolutions, Descriptor, DataBlock, Free, Unknown };

// Bytes of a block that belong together.
struct Area {
    int start = 0;
    int size = 0;
    Use use = Use::Unknown;
    std::string name;
};

// Every mode that the EDID lists, in its order; a mode that stands in several places is there once for each rate.
std::vector<Mode> FindModes(const Edid& edid, const Borders& borders);
Borders FindBorders(const Json::Node& node);
std::vector<Timing> FindTimings(const Json::Node& node);
// The areas of each block; together they are all of its bytes.
std::vector<std::vector<Area>> FindAreas(const Edid& edid);

}  // namespace VNT::Picture
