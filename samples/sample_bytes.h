#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Builds EDID bytes by hand, apart from the model: samples are what the model is measured by.
namespace Samples {

using Block = std::vector<std::uint8_t>;

struct Timing {
    int clock;  // 10 kHz
    int width, hblank, hfront, hsync;
    int height, vblank, vfront, vsync;
    int imageWidth = 0, imageHeight = 0;  // mm
    int flags = 0x1E;                     // digital separate sync, both positive
};

struct Base {
    std::string vendor;
    int product = 0;
    std::uint32_t serial = 0;
    int week = 0;
    int year = 0;
    int revision = 3;
    int input = 0x80;
    int width = 0, height = 0;  // cm
    int gamma = 120;
    int features = 0x2A;
    std::vector<int> established = {0, 0, 0};
    std::vector<int> standard = {};  // bytes, two a slot
    std::vector<Block> slots = {};
    int extensions = 0;
};

Block Detailed(const Timing& timing);
Block Text(int tag, const std::string& text);
Block RangeLimits(int minV, int maxV, int minH, int maxH, int maxClock);  // Hz, kHz, MHz
Block BaseBlock(const Base& base);

// A CTA-861 block, revision 3: flags of byte 3, data blocks, timings.
Block Cta(int flags, const std::vector<Block>& dataBlocks, const std::vector<Block>& timings);
Block DataBlock(int tag, const Block& payload);
Block ExtendedDataBlock(int extendedTag, const Block& payload);

// A DisplayID 1.3 section in an extension block.
Block DisplayId(const std::vector<Block>& dataBlocks);
Block DisplayIdBlock(int tag, int revision, const Block& payload);
Block DisplayIdTiming(const Timing& timing);  // type I, 20 bytes

Block operator+(Block a, const Block& b);
void PutChecksum(Block& block);

}  // namespace Samples
