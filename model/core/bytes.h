#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>

#if defined(__SANITIZE_ADDRESS__)
#define VNT_ADDRESSES_ARE_WATCHED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VNT_ADDRESSES_ARE_WATCHED
#endif
#endif

namespace VNT {

// A view of bytes with a cursor in bits, passed by value into every `Read` and `Write`, so that a callee's movements
// do not reach its caller. It is the one way to bytes: no operation reaches outside `size`, whatever its arguments.
// Reads past the end yield zero bits; writes past the end are clipped bit by bit.
class ByteRange {
public:
    std::uint8_t* data = nullptr;
    int size = 0;      // bytes
    int position = 0;  // bits from `data`

    ByteRange() = default;
    ByteRange(std::uint8_t* bytes, int count) : data(bytes), size(count < 0 ? 0 : count) {}

    int Size() const { return size; }
    int BitSize() const { return size * 8; }
    int BytePosition() const { return (position + 7) / 8; }  // rounded up to the next whole byte
    int RemainingBits() const { return BitSize() - position; }
    int RemainingBytes() const { return size - BytePosition(); }

    // `count` is 0 to 32 bits. Lsb takes each byte's lowest bit first and fills the result from its lowest bit (a
    // 16-bit read is little-endian); Msb takes the highest bit first and fills the result from its highest bit.
    std::uint32_t ReadLsb(int count) {
        const auto begin = static_cast<unsigned>(position), end = begin + static_cast<unsigned>(count);
        // Most fields are whole bytes, or bits of one byte.
        if (count <= 0 || count > 32 || end > static_cast<unsigned>(BitSize())) return ReadLsbAtEdge(count);
        const unsigned first = begin / 8, last = (end - 1) / 8;
        std::uint64_t bits = data[last];
        for (unsigned at = last; at > first;) bits = bits << 8 | data[--at];
        bits >>= begin % 8;
        position = static_cast<int>(end);
        return static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << count) - 1));
    }
    std::uint32_t ReadMsb(int count) {
        const auto begin = static_cast<unsigned>(position), end = begin + static_cast<unsigned>(count);
        if (count <= 0 || count > 32 || end > static_cast<unsigned>(BitSize())) return ReadMsbAtEdge(count);
        const unsigned first = begin / 8, last = (end - 1) / 8;
        std::uint64_t bits = data[first];
        for (unsigned at = first; at < last;) bits = bits << 8 | data[++at];
        bits >>= (last + 1) * 8 - end;
        position = static_cast<int>(end);
        return static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << count) - 1));
    }
    // The exact inverses; no bit but the `count` concerned changes.
    void WriteLsb(int count, std::uint32_t value);
    void WriteMsb(int count, std::uint32_t value);

    void Skip(int bits) { position += Clamp(bits, RemainingBits()); }
    // To the next whole byte, then `count` bytes on.
    void SkipBytes(int count) { position = (BytePosition() + Clamp(count, RemainingBytes())) * 8; }

    // A range of its own, with the cursor at 0, of the next bytes (fewer if fewer remain); this cursor moves behind
    // them.
    ByteRange Take(int count) {
        const ByteRange taken = Peek(count);
        SkipBytes(taken.size);
        return taken;
    }
    ByteRange TakeRest() { return Take(RemainingBytes()); }
    ByteRange TakeUntil(std::uint8_t byte);  // up to, not including, the first `byte`
    // As Take, the cursor stays.
    ByteRange Peek(int count) const { return {data + BytePosition(), Clamp(count, RemainingBytes())}; }
    void Fill(std::uint8_t byte) const;   // every byte of the range, whatever the cursor
    void CopyFrom(ByteRange from) const;  // as many bytes as both have, whatever the cursors
    // False, and no change, if `count` exceeds the size.
    bool Limit(int count) {
        if (count > size) return false;
        size = std::max(0, count);
        position = std::min(position, BitSize());
        return true;
    }
    // Moves the start `count` bytes on.
    void Drop(int count) {
        const int dropped = Clamp(count, size);
        data += dropped;
        size -= dropped;
        position = std::max(0, position - dropped * 8);
    }
    bool IsAll(std::uint8_t byte) const {  // every byte of the range equals `byte`
        return std::all_of(data, data + size, [byte](std::uint8_t b) { return b == byte; });
    }
    bool Equals(ByteRange other) const { return std::equal(data, data + size, other.data, other.data + other.size); }
    std::uint8_t ByteAt(int offset) const { return offset >= 0 && offset < size ? data[offset] : 0; }

private:
    // Of any count, also where fewer bits are left.
    std::uint32_t ReadLsbAtEdge(int count);
    std::uint32_t ReadMsbAtEdge(int count);
    static int Clamp(int count, int most) { return std::max(0, std::min(count, most)); }
};

// Owned bytes. Few of them stand in the object itself: most fields have no more, and memory of their own would cost
// more than all that is done with them. What copies and destroys them is compiled once: every record of fields holds
// some.
class Bytes {
public:
    Bytes() { Fence(); }
    Bytes(std::initializer_list<int> bytes);
    explicit Bytes(std::span<const std::uint8_t> bytes);
    Bytes(int count, std::uint8_t fill);
    explicit Bytes(ByteRange range);
    Bytes(const Bytes& other);
    Bytes(Bytes&& other) noexcept;
    Bytes& operator=(const Bytes& other);
    Bytes& operator=(Bytes&& other) noexcept;
    ~Bytes();

    int Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }
    int Capacity() const { return room_; }  // bytes that the memory has room for
    void Resize(int count, std::uint8_t fill = 0);
    std::uint8_t& At(int index) { return Data()[index]; }
    std::uint8_t At(int index) const { return Data()[index]; }
    Bytes Slice(int offset, int length) const;  // both clamped to what is there
    void Append(ByteRange range);               // also of these bytes
    void Assign(ByteRange range);               // as `= Bytes(range)`, in the memory that there is already

    // The length left once trailing bytes equal to `byte` are removed.
    int LastIndexNot(std::uint8_t byte) const;
    void TrimTrailing(std::uint8_t byte) { Resize(LastIndexNot(byte)); }
    bool IsAll(std::uint8_t byte) const { return LastIndexNot(byte) == 0; }

    // The view of these bytes. Readers get it from a const object too: no `Read` writes through its range.
    ByteRange Range() const { return {const_cast<std::uint8_t*>(Data()), size_}; }
    operator ByteRange() const { return Range(); }

    std::span<const std::uint8_t> View() const { return {Data(), static_cast<std::size_t>(size_)}; }
    bool operator==(const Bytes& other) const;

private:
    static constexpr int FewBytes = 16;

    std::uint8_t* Data() { return many_ != nullptr ? many_.get() : few_.data(); }
    const std::uint8_t* Data() const { return many_ != nullptr ? many_.get() : few_.data(); }
    std::unique_ptr<std::uint8_t[]> Reserve(int count);
    // AddressSanitizer takes what there is room for behind the bytes for outside of them, between a Fence and an
    // Unfence.
#ifdef VNT_ADDRESSES_ARE_WATCHED
    void Fence();
    void Unfence();
#else
    void Fence() {}
    void Unfence() {}
#endif

    std::unique_ptr<std::uint8_t[]> many_;  // in place of the few, once they were more
    std::array<std::uint8_t, FewBytes> few_{};
    int size_ = 0;
    int room_ = FewBytes;
};

}  // namespace VNT
