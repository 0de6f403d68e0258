#pragma once

#include <cstdint>
#include <initializer_list>

#include "model/core/bytes.h"
#include "model/core/limits.h"

// Where speed counts: always inlined. Where size or the time to compile does, the compiler decides.
#ifdef VANTELLE_FOR_SPEED
#define VANTELLE_INLINED [[gnu::always_inline]]
#else
#define VANTELLE_INLINED
#endif

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
    // Settled when it is compiled, of which clang 14 isn't sure where a piece hangs on a parameter of a template.
#ifdef __clang__
    constexpr
#else
    consteval
#endif
        BitPlace(std::initializer_list<BitPiece> pieces)
        : pieces_(pieces) {
        for (const BitPiece& piece : pieces) bits_ += piece.count;
    }
    constexpr int Count() const { return bits_; }
    // The greatest number that fits.
    constexpr std::int64_t Most() const { return (std::int64_t{1} << (bits_ < 32 ? bits_ : 32)) - 1; }
    // Inlined: a layout says its pieces in numbers, of which a few shifts are left when it is compiled.
    VANTELLE_INLINED std::uint32_t Read(ByteRange& range, BitOrder order) const {
        const auto count = static_cast<int>(pieces_.end() - pieces_.begin());
        if (count == 0) return order == BitOrder::Lsb ? range.ReadLsb(bits_) : range.ReadMsb(bits_);
        std::uint32_t raw = ReadPiece(range, 0);
        int done = pieces_.begin()[0].count;
        if (count > 1) {
            raw |= ReadPiece(range, 1) << done;
            done += pieces_.begin()[1].count;
        }
        if (count > 2) {
            raw |= ReadPiece(range, 2) << done;
            done += pieces_.begin()[2].count;
        }
        if (count > 3) raw |= ReadPiece(range, 3) << done;
        const BitPiece& last = pieces_.begin()[count - 1];
        range.position = std::min(last.byte * 8 + last.bit + last.count, range.BitSize());
        return raw;
    }
    void Write(ByteRange& range, BitOrder order, std::uint32_t raw) const;
    int End(int position) const;  // the bit behind it, of the frame, for a cursor at `position`

private:
    VANTELLE_INLINED std::uint32_t ReadPiece(const ByteRange& range, int index) const {
        const BitPiece& piece = pieces_.begin()[index];
        if (piece.bit + piece.count <= 8 && piece.byte < range.size)
            return (static_cast<std::uint32_t>(range.data[piece.byte]) >> piece.bit) & ((1u << piece.count) - 1);
        return ReadPieceBits(range, piece);
    }
    static std::uint32_t ReadPieceBits(ByteRange range, const BitPiece& piece);

    int bits_ = 0;
    TFew<BitPiece> pieces_{};
};

}  // namespace VNT
