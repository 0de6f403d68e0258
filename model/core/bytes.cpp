#include "model/core/bytes.h"

#include <algorithm>
#include <utility>

#ifdef VNT_ADDRESSES_ARE_WATCHED
#include <sanitizer/asan_interface.h>
#endif

namespace VNT {

namespace {

// The next piece of a transfer: the bits of one byte that the cursor can cover at once.
struct Piece {
    int bit;    // first bit in the byte, in the direction of the transfer
    int count;  // bits
};

Piece NextPiece(int position, int wanted) {
    const int bit = position % 8;
    return {bit, std::min(8 - bit, wanted)};
}

std::uint32_t Mask(int bits) { return (1u << bits) - 1; }

}  // namespace

std::uint32_t ByteRange::ReadLsbAtEdge(int count) {
    const int wanted = Clamp(Clamp(count, 32), RemainingBits());
    std::uint32_t result = 0;
    for (int done = 0; done < wanted;) {
        const Piece piece = NextPiece(position, wanted - done);
        result |= ((data[position / 8] >> piece.bit) & Mask(piece.count)) << done;
        done += piece.count;
        position += piece.count;
    }
    return result;
}

std::uint32_t ByteRange::ReadMsbAtEdge(int count) {
    const int asked = Clamp(count, 32);
    const int wanted = Clamp(asked, RemainingBits());
    std::uint32_t result = 0;
    for (int done = 0; done < wanted;) {
        const Piece piece = NextPiece(position, wanted - done);
        const std::uint32_t bits = (data[position / 8] >> (8 - piece.bit - piece.count)) & Mask(piece.count);
        done += piece.count;
        result |= bits << (asked - done);
        position += piece.count;
    }
    return result;
}

void ByteRange::WriteLsb(int count, std::uint32_t value) {
    const int wanted = Clamp(Clamp(count, 32), RemainingBits());
    for (int done = 0; done < wanted;) {
        const Piece piece = NextPiece(position, wanted - done);
        const std::uint32_t mask = Mask(piece.count) << piece.bit;
        std::uint8_t& byte = data[position / 8];
        byte = static_cast<std::uint8_t>((byte & ~mask) | (((value >> done) << piece.bit) & mask));
        done += piece.count;
        position += piece.count;
    }
}

void ByteRange::WriteMsb(int count, std::uint32_t value) {
    const int asked = Clamp(count, 32);
    const int wanted = Clamp(asked, RemainingBits());
    for (int done = 0; done < wanted;) {
        const Piece piece = NextPiece(position, wanted - done);
        const int shift = 8 - piece.bit - piece.count;
        const std::uint32_t mask = Mask(piece.count) << shift;
        done += piece.count;
        std::uint8_t& byte = data[position / 8];
        byte = static_cast<std::uint8_t>((byte & ~mask) | (((value >> (asked - done)) << shift) & mask));
        position += piece.count;
    }
}

ByteRange ByteRange::TakeUntil(std::uint8_t byte) {
    const ByteRange rest = Peek(RemainingBytes());
    return Take(static_cast<int>(std::find(rest.data, rest.data + rest.size, byte) - rest.data));
}

void ByteRange::Fill(std::uint8_t byte) const { std::fill(data, data + size, byte); }

void ByteRange::CopyFrom(ByteRange from) const { std::copy_n(from.data, std::min(size, from.size), data); }

Bytes::Bytes(std::initializer_list<int> bytes) {
    Resize(static_cast<int>(bytes.size()));
    std::transform(bytes.begin(), bytes.end(), Data(), [](int byte) { return static_cast<std::uint8_t>(byte); });
}

Bytes::Bytes(std::span<const std::uint8_t> bytes) {
    Resize(static_cast<int>(bytes.size()));
    std::copy(bytes.begin(), bytes.end(), Data());
}

Bytes Bytes::Slice(int offset, int length) const {
    ByteRange range = Range();
    range.Drop(offset);
    return Bytes(range.Peek(length));
}

int Bytes::LastIndexNot(std::uint8_t byte) const {
    int length = Size();
    while (length > 0 && At(length - 1) == byte) --length;
    return length;
}

Bytes::Bytes(int count, std::uint8_t fill) { Resize(count, fill); }
Bytes::Bytes(ByteRange range) { Assign(range); }
Bytes::Bytes(const Bytes& other) { Assign(other); }
Bytes::Bytes(Bytes&& other) noexcept { *this = std::move(other); }
Bytes::~Bytes() { Unfence(); }

#ifdef VNT_ADDRESSES_ARE_WATCHED
void Bytes::Fence() { ASAN_POISON_MEMORY_REGION(Data() + size_, room_ - size_); }
void Bytes::Unfence() { ASAN_UNPOISON_MEMORY_REGION(Data(), room_); }
#endif

Bytes& Bytes::operator=(const Bytes& other) {
    if (this != &other) Assign(other);
    return *this;
}

Bytes& Bytes::operator=(Bytes&& other) noexcept {
    if (this == &other) return *this;
    Unfence();
    other.Unfence();
    many_ = std::move(other.many_);
    std::copy_n(other.few_.data(), FewBytes, few_.data());
    size_ = std::exchange(other.size_, 0);
    room_ = std::exchange(other.room_, FewBytes);
    Fence();
    other.Fence();
    return *this;
}

// Keeps the bytes that there are, and returns the memory that they leave.
std::unique_ptr<std::uint8_t[]> Bytes::Reserve(int count) {
    if (count <= room_) return nullptr;
    // Twice as much each time, so that many short pieces are not moved for each of them.
    const int room = std::max(count, size_ == 0 ? 0 : room_ * 2);
    std::unique_ptr<std::uint8_t[]> many(new std::uint8_t[static_cast<std::size_t>(room)]);
    std::copy_n(Data(), size_, many.get());
    many_.swap(many);
    room_ = room;
    return many;
}

void Bytes::Resize(int count, std::uint8_t fill) {
    const int size = std::max(count, 0);
    Unfence();
    Reserve(size);
    if (size > size_) std::fill(Data() + size_, Data() + size, fill);
    size_ = size;
    Fence();
}

void Bytes::Assign(ByteRange range) {
    size_ = 0;
    Append(range);
}

void Bytes::Append(ByteRange range) {
    Unfence();
    const std::unique_ptr<std::uint8_t[]> left = Reserve(size_ + range.size);  // the range may be of it
    std::copy_n(range.data, range.size, Data() + size_);
    size_ += range.size;
    Fence();
}

bool Bytes::operator==(const Bytes& other) const { return Range().Equals(other); }

}  // namespace VNT
