#pragma once

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

}  // namespace VNT::Sample
