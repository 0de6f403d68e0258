#include "model/core/bit_place.h"

#include <algorithm>

namespace VNT {

std::uint32_t BitPlace::ReadPieceBits(ByteRange range, const BitPiece& piece) {
    range.position = std::min(piece.byte * 8 + piece.bit, range.BitSize());
    return range.ReadLsb(piece.count);
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
