#include "tests/corpus/sound_block.h"

#include <algorithm>

namespace VNT::Testing {

namespace {

bool IsSoundProperties(const Bytes& b) {
    const int letters = b.At(8) * 256 + b.At(9);
    for (const int letter : {letters / 1024 % 32, letters / 32 % 32, letters % 32}) {
        if (letter < 1 || letter > 26) return false;
    }
    const bool is14 = b.At(18) == 1 && b.At(19) == 4;
    const int week = b.At(16);
    if (week > 54 && !(is14 && week == 255)) return false;
    const bool isOneSided = (b.At(21) == 0) != (b.At(22) == 0);
    return b.At(18) != 0 && (is14 || !isOneSided);
}

// E-EDID 1.4, 3.9. The pair 01 01 in front of others is a hole.
bool IsSoundStandard(const Bytes& slot) { return slot.At(0) != 0 && !slot.IsAll(1); }

// E-EDID 1.4, 3.10.3.8
bool IsSoundCvt(const Bytes& slot) {
    constexpr int ratios[][2] = {{4, 3}, {16, 9}, {16, 10}, {15, 9}};
    const int height = (slot.At(0) + slot.At(1) / 16 * 256) * 2 + 2;
    const auto& ratio = ratios[slot.At(1) / 4 % 4];
    const int width = height * ratio[0] / ratio[1] / 8 * 8;
    return height >= 6 && width >= 8 && width <= 14560;
}

bool IsSoundAxis(int active, int blank, int front, int sync, int border, int grain) {
    return active >= 1 && front >= 1 && sync >= 1 && blank >= front + sync &&
           border * grain <= (active * grain - 1) / 2;
}

// E-EDID 1.4, 3.10.2. A count of an interlaced timing is that of a field.
bool IsSoundDetailed(const Bytes& b) {
    const int hactive = b.At(2) + b.At(4) / 16 * 256, hblank = b.At(3) + b.At(4) % 16 * 256;
    const int vactive = b.At(5) + b.At(7) / 16 * 256, vblank = b.At(6) + b.At(7) % 16 * 256;
    const int hfront = b.At(8) + b.At(11) / 64 * 256, hsync = b.At(9) + b.At(11) / 16 % 4 * 256;
    const int vfront = b.At(10) / 16 + b.At(11) / 4 % 4 * 16, vsync = b.At(10) % 16 + b.At(11) % 4 * 16;
    return IsSoundAxis(hactive, hblank, hfront, hsync, b.At(15), 1) &&
           IsSoundAxis(vactive, vblank, vfront, vsync, b.At(16), b.At(17) >= 128 ? 2 : 1);
}

bool IsSoundText(const Bytes& b) {
    int length = 0;
    while (length < 13 && b.At(5 + length) != 0x0A) ++length;
    const Bytes text = b.Slice(5, length);
    const auto isPlain = [](int byte) { return byte >= 32 && byte <= 126; };
    return length > 0 && std::all_of(text.View().begin(), text.View().end(), isPlain) &&
           b.Slice(5 + length + 1, 13).IsAll(0x20);
}

// Bytes 10 to 17 of the range limits.
bool IsSoundTiming(const Bytes& b) {
    if (b.At(10) <= 1) return b.At(11) == 0x0A && b.Slice(12, 6).IsAll(0x20);
    if (b.At(10) != 4) return true;
    const int supported = b.At(14) / 8;
    const int preferred = b.At(15) / 32;
    constexpr int places[] = {16, 8, 4, 2, 1};
    const bool isSupported = preferred < 5 && (supported == 0 || supported / places[preferred] % 2 == 1);
    return b.At(11) >= 16 && b.At(12) / 4 <= 39 && isSupported && b.At(17) != 0;
}

// Two rates of one pair, each with its own flag, which adds 255.
bool IsSoundRange(int min, bool minFlag, int max, bool maxFlag) {
    if (min == 0 || max == 0) return false;
    return min + (minFlag ? 255 : 0) <= max + (maxFlag ? 255 : 0);
}

// E-EDID 1.4, 3.10.3.3
bool IsSoundLimits(const Bytes& b) {
    const int flags = b.At(4);
    return IsSoundRange(b.At(5), flags % 2 == 1, b.At(6), flags / 2 % 2 == 1) &&
           IsSoundRange(b.At(7), flags / 4 % 2 == 1, b.At(8), flags / 8 % 2 == 1) && b.At(9) != 0 && IsSoundTiming(b);
}

// The slots of a list that ends with its last used one.
template <class Test>
void AddSlots(const std::string& path, const Bytes& area, int slotBytes, int unused, const Test& isSound,
              std::set<std::string>& paths) {
    int count = area.Size() / slotBytes;
    while (count > 0 && area.Slice((count - 1) * slotBytes, slotBytes).IsAll(static_cast<std::uint8_t>(unused)))
        --count;
    for (int i = 0; i < count; ++i) {
        if (!isSound(area.Slice(i * slotBytes, slotBytes))) paths.insert(path + "/" + std::to_string(i));
    }
}

bool IsSoundDescriptor(const Bytes& slot) {
    switch (slot.At(3)) {
        case 0xF7:
            return slot.At(5) >= 10;
        case 0xF8:
            return slot.At(5) >= 1;
        case 0xFA:
            return slot.At(17) == 0x0A;
        case 0xFC:
        case 0xFE:
        case 0xFF:
            return IsSoundText(slot);
        case 0xFD:
            return IsSoundLimits(slot);
        default:
            return true;
    }
}

void AddDescriptor(const std::string& path, const Bytes& slot, std::set<std::string>& paths) {
    const bool isDetailed = slot.At(0) != 0 || slot.At(1) != 0;
    if (!(isDetailed ? IsSoundDetailed(slot) : IsSoundDescriptor(slot))) paths.insert(path);
    if (isDetailed) return;
    if (slot.At(3) == 0xF8) AddSlots(path + "/resolutions", slot.Slice(6, 12), 3, 0, IsSoundCvt, paths);
    if (slot.At(3) == 0xFA) AddSlots(path + "/resolutions", slot.Slice(5, 12), 2, 1, IsSoundStandard, paths);
}

}  // namespace

std::set<std::string> UnsoundPaths(const Bytes& block) {
    std::set<std::string> paths;
    if (!IsSoundProperties(block)) paths.insert("properties");
    for (int i = 0; i < 4; ++i) AddDescriptor("descriptors/" + std::to_string(i), block.Slice(54 + 18 * i, 18), paths);
    AddSlots("standard", block.Slice(38, 16), 2, 1, IsSoundStandard, paths);
    return paths;
}

}  // namespace VNT::Testing
