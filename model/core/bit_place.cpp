#include "model/core/bit_place.h"

#include <algorithm>

namespace VNT {

std::int64_t BitPlace::Most() const { return (std::int64_t{1} << std::clamp(bits_, 0, 32)) - 1; }

std::uint32_t BitPlace::Read(ByteRange& range, BitOrder order) const {
    if (pieces_.begin() == pieces_.end()) return order == BitOrder::Lsb ? range.ReadLsb(bits_) : range.ReadMsb(bits_);
    std::uint32_t raw = 0;
    int done = 0;
    for (const BitPiece& piece : pieces_) {
        range.position = std::min(piece.byte * 8 + piece.bit, range.BitSize());
        raw |= range.ReadLsb(piece.count) << done;
        done += piece.count;
    }
    return raw;
}

void BitPlace::Write(ByteRange& range, BitOrder order, std::uint32_t raw) const {
    if (pieces_.begin() == pieces_.end()) {
        order == BitOrder::Lsb ? range.WriteLsb(bits_, raw) : range.WriteMsb(bits_, raw);
        return;
    }
    int done = 0;
    for (const BitPiece& piece : pieces_) {
        range.position = std::min(piece.byte * 8 + piece.bit, range.BitSize());
        range.WriteLsb(piece.count, raw >> done);
        done += piece.count;
    }
}

int BitPlace::End(int position) const {
    if (pieces_.begin() == pieces_.end()) return position + bits_;
    int end = 0;
    for (const BitPiece& piece : pieces_) end = std::max(end, piece.byte * 8 + piece.bit + piece.count);
    return end;
}

}  // namespace VNT
