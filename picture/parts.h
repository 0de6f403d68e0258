// The parts of the picture. Each is drawn from its top left corner on and tells how high it came out.
#pragma once

#include "picture/facts.h"
#include "picture/svg.h"

namespace VNT::Picture {

double DrawGamut(Svg& svg, Point at, const EdidColorCoordinates& colors);
double DrawModes(Svg& svg, Point at, const std::vector<Mode>& modes, const Borders& borders);
double DrawTimings(Svg& svg, Point at, const std::vector<Timing>& timings);
double DrawBytes(Svg& svg, Point at, const std::vector<std::vector<Area>>& blocks);

inline constexpr double PictureWidth = 1160;

}  // namespace VNT::Picture
