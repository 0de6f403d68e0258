#pragma once

#include <span>

namespace VNT {

// A known timing. Lines count frames, the rate is in Hz and, where interlaced, that of the fields.
struct PresetTiming {
    int hactive, vactive;
    bool interlaced;
    int rate;
    int hfront, hsync, hback;
    int vfront, vsync, vback;
    bool hpolarity, vpolarity;
};

// Each in the order of precedence: the first row that matches wins.
struct PresetTimings {
    static const std::span<const PresetTiming> Pc;
    static const std::span<const PresetTiming> Hdtv;
    static const std::span<const PresetTiming> Crt;
};

}  // namespace VNT
