#pragma once

#include <vector>

#include "store/display.h"

// Which record of which source belongs to which display. A record that is attached leaves its list, so that it serves
// one display only.
namespace VNT {

// Compare a display's bytes with a driver's, block by block. Exactly: every block that `display` counts in its byte 126
// is there and equal, none with a tag of zero. Loosely: the base blocks are equal, and so is each pair of later blocks
// that both sides hold with a tag other than zero.
bool MatchesExactly(const Bytes& display, const Bytes& driver);
bool MatchesLoosely(const Bytes& display, const Bytes& driver);

void AttachWmi(Display& display, std::vector<WmiMonitorRecord>& records);
void AttachDisplayDevice(Display& display, std::vector<DisplayDeviceRecord>& records);
// Eight passes over the whole list, the strictest evidence first.
void AttachGpuDisplays(DisplayList& list, std::vector<WindowsGpuDisplay>& records);
// A driver that reports more than the store wins; an override wins over what the display reports.
void SettleData(Display& display);

}  // namespace VNT
