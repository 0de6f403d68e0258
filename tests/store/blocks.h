#pragma once

#include <string>

#include "store/display.h"

// Blocks of our own making for the store's tests.
namespace VNT::Sample {

// A block of 128 equal bytes behind its first one.
inline Bytes Block(int first, int fill) {
    Bytes block(EdidBlockSize, static_cast<std::uint8_t>(fill));
    block.At(0) = static_cast<std::uint8_t>(first);
    return block;
}

// A base block that begins with zero, as an EDID does, and counts `extensions` in byte 126.
inline Bytes Base(int fill, int extensions = 0) {
    Bytes block = Block(0, fill);
    block.At(126) = static_cast<std::uint8_t>(extensions);
    return block;
}

inline Bytes Join(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) all.Append(part);
    return all;
}

inline Bytes Zeros() { return Bytes(EdidBlockSize, 0); }

// A line that gives a stand-in an EDID.
inline std::string EdidLine(const Bytes& edid) {
    constexpr char digits[] = "0123456789abcdef";
    std::string line = "edid ";
    for (const std::uint8_t byte : edid.View()) {
        line += digits[byte / 16];
        line += digits[byte % 16];
    }
    return line + "\n";
}

// `size` bytes that begin as an EDID with extensions does, each other byte telling its place.
inline Bytes LongEdid(int size) {
    Bytes bytes(size, 0);
    for (int i = 1; i < size; ++i) bytes.At(i) = static_cast<std::uint8_t>(i % 251);
    if (size > 126) bytes.At(126) = 1;
    return bytes;
}

}  // namespace VNT::Sample
