#pragma once

#include <cstdint>
#include <initializer_list>

#include "model/core/bytes.h"
#include "model/core/limits.h"

namespace VNT {

enum class BitOrder { Lsb, Msb };

// Where a number's bits stand: the next bits at the cursor, or up to four pieces at fixed places of the frame, the
// number's lowest bits first. A piece is read from its byte's bit `bit` upwards and may run over several bytes.
struct BitPiece {
    int byte = 0;
    int bit = 0;
    int count = 0;
    constexpr bool operator==(const BitPiece&) const = default;
};

class BitPlace {
public:
    constexpr BitPlace(int bits) : bits_(bits) {}
    constexpr BitPlace(std::initializer_list<BitPiece> pieces) : pieces_(pieces) {
        for (const BitPiece& piece : pieces) bits_ += piece.count;
    }
    constexpr int Count() const { return bits_; }
    std::int64_t Most() const;  // the greatest number that fits
    std::uint32_t Read(ByteRange& range, BitOrder order) const;
    void Write(ByteRange& range, BitOrder order, std::uint32_t raw) const;
    int End(int position) const;  // the bit behind it, of the frame, for a cursor at `position`

private:
    int bits_ = 0;
    TFew<BitPiece> pieces_{};
};

}  // namespace VNT
