#pragma once

#include "model/edid/edid.h"

// The input as an EDID: with its header, and of one to four blocks. More take the time of many other inputs and show
// nothing new.
inline VNT::Bytes FuzzEdid(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint8_t header[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    constexpr int countAt = 126;
    constexpr int mostBlocks = 4;
    const auto most = static_cast<std::size_t>(mostBlocks * VNT::Edid::BlockSize);
    VNT::Bytes bytes(std::vector<std::uint8_t>(data, data + std::min(size, most)));
    for (int i = 0; i < 8 && i < bytes.Size(); ++i) bytes.At(i) = header[i];
    if (bytes.Size() > countAt) bytes.At(countAt) %= mostBlocks;
    return bytes;
}
