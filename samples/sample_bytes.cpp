#include "samples/sample_bytes.h"

#include <algorithm>
#include <numeric>

namespace Samples {

namespace {

constexpr std::size_t BlockSize = 128;

std::uint8_t Low(int value) { return static_cast<std::uint8_t>(value % 256); }
std::uint8_t High(int value) { return static_cast<std::uint8_t>(value / 256 % 256); }
std::uint8_t Nibbles(int high, int low) { return static_cast<std::uint8_t>(high / 256 * 16 + low / 256); }

std::uint8_t Checksum(const Block& bytes, std::size_t from, std::size_t count) {
    const auto start = bytes.begin() + static_cast<std::ptrdiff_t>(from);
    const int sum = std::accumulate(start, start + static_cast<std::ptrdiff_t>(count), 0);
    return static_cast<std::uint8_t>((256 - sum % 256) % 256);
}

}  // namespace

void PutChecksum(Block& block) { block[BlockSize - 1] = Checksum(block, 0, BlockSize - 1); }

Block operator+(Block a, const Block& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Block Detailed(const Timing& t) {
    return {Low(t.clock),
            High(t.clock),
            Low(t.width),
            Low(t.hblank),
            Nibbles(t.width, t.hblank),
            Low(t.height),
            Low(t.vblank),
            Nibbles(t.height, t.vblank),
            Low(t.hfront),
            Low(t.hsync),
            static_cast<std::uint8_t>(t.vfront % 16 * 16 + t.vsync % 16),
            static_cast<std::uint8_t>(t.hfront / 256 * 64 + t.hsync / 256 * 16 + t.vfront / 16 * 4 + t.vsync / 16),
            Low(t.imageWidth),
            Low(t.imageHeight),
            Nibbles(t.imageWidth, t.imageHeight),
            0,
            0,
            Low(t.flags)};
}

Block Text(int tag, const std::string& text) {
    Block block{0, 0, 0, Low(tag), 0};
    for (const char character : text) block.push_back(static_cast<std::uint8_t>(character));
    if (block.size() < 18) block.push_back(0x0A);
    block.resize(18, 0x20);
    return block;
}

Block RangeLimits(int minV, int maxV, int minH, int maxH, int maxClock) {
    return {0, 0,    0,    0xFD, 0,    Low(minV), Low(maxV), Low(minH), Low(maxH), Low(maxClock / 10),
            0, 0x0A, 0x20, 0x20, 0x20, 0x20,      0x20,      0x20};
}

Block BaseBlock(const Base& b) {
    const int letters = (b.vendor[0] - 64) * 1024 + (b.vendor[1] - 64) * 32 + (b.vendor[2] - 64);
    Block block{0x00, 0xFF, 0xFF,          0xFF,         0xFF,           0xFF,
                0xFF, 0x00, High(letters), Low(letters), Low(b.product), High(b.product)};
    for (std::uint32_t rest = b.serial, i = 0; i < 4; ++i, rest /= 256)
        block.push_back(static_cast<std::uint8_t>(rest % 256));
    block = block + Block{Low(b.week),
                          static_cast<std::uint8_t>(b.year > 0 ? b.year - 1990 : 0),
                          1,
                          Low(b.revision),
                          Low(b.input),
                          Low(b.width),
                          Low(b.height),
                          Low(b.gamma),
                          Low(b.features)};
    block = block + Block{0xEE, 0x95, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54};
    for (const int byte : b.established) block.push_back(Low(byte));
    for (std::size_t i = 0; i < 16; ++i) block.push_back(i < b.standard.size() ? Low(b.standard[i]) : 0x01);
    const Block empty = {0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    for (std::size_t i = 0; i < 4; ++i) block = block + (i < b.slots.size() ? b.slots[i] : empty);
    block.push_back(Low(b.extensions));
    block.resize(BlockSize);
    PutChecksum(block);
    return block;
}

Block DataBlock(int tag, const Block& payload) {
    return Block{static_cast<std::uint8_t>(tag * 32 + static_cast<int>(payload.size()))} + payload;
}

Block ExtendedDataBlock(int extendedTag, const Block& payload) {
    return DataBlock(7, Block{Low(extendedTag)} + payload);
}

Block Cta(int flags, const std::vector<Block>& dataBlocks, const std::vector<Block>& timings) {
    Block block{0x02, 0x03, 0x00, Low(flags)};
    for (const Block& dataBlock : dataBlocks) block = block + dataBlock;
    block[2] = static_cast<std::uint8_t>(block.size());
    for (const Block& timing : timings) block = block + timing;
    block.resize(BlockSize);
    PutChecksum(block);
    return block;
}

Block DisplayIdTiming(const Timing& t) {
    Block block;
    const auto word = [&block](int value) {
        block.push_back(Low(value));
        block.push_back(High(value));
    };
    word((t.clock - 1) % 65536);
    block.push_back(static_cast<std::uint8_t>((t.clock - 1) / 65536));
    block.push_back(0x88);  // preferred; no aspect ratio stated
    constexpr int positive = 0x8000;
    word(t.width - 1);
    word(t.hblank - 1);
    word(t.hfront - 1 + positive);
    word(t.hsync - 1);
    word(t.height - 1);
    word(t.vblank - 1);
    word(t.vfront - 1);
    word(t.vsync - 1);
    return block;
}

Block DisplayIdBlock(int tag, int revision, const Block& payload) {
    return Block{Low(tag), Low(revision), static_cast<std::uint8_t>(payload.size())} + payload;
}

Block DisplayId(const std::vector<Block>& dataBlocks) {
    constexpr std::size_t sectionData = 121;
    Block section{0x13, sectionData, 0x03, 0x00};  // version 1.3, a monitor, no further section
    for (const Block& dataBlock : dataBlocks) section = section + dataBlock;
    section.resize(4 + sectionData);
    section.push_back(Checksum(section, 0, section.size()));
    Block block = Block{0x70} + section;
    block.resize(BlockSize);
    PutChecksum(block);
    return block;
}

}  // namespace Samples
