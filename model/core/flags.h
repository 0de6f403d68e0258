#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <utility>

#include "model/core/bytes.h"
#include "model/core/text_string.h"

namespace VNT {

// A row of a vocabulary: the value of an enumeration and its text. Forms, texts and the command line read one array.
template <class Enum>
struct ValueText {
    Enum value;
    const char* text;
};

namespace Detail {
constexpr std::uint32_t LowBits(int n) { return n == 32 ? 0xFFFFFFFFu : (1u << n) - 1; }
}  // namespace Detail

// n flags in an integer (n up to 32), masked on construction: those of `mask` can be set, the others never are. `E` is
// a structure with the enumeration `Enum` in it.
template <class E, int n, std::uint32_t mask = Detail::LowBits(n)>
class TFlags {
public:
    using Flag = typename E::Enum;
    using Vocabulary = E;
    static constexpr int BitCount = n;
    static constexpr std::uint32_t AllBits = mask;

    constexpr TFlags() = default;
    constexpr explicit TFlags(std::uint32_t bits) : bits_(bits & AllBits) {}
    constexpr std::uint32_t GetBits() const { return bits_; }
    constexpr bool operator==(const TFlags&) const = default;

protected:
    constexpr bool TestMask(std::uint32_t bits) const { return (bits_ & bits) != 0; }
    constexpr void SetMask(std::uint32_t bits, bool on) { bits_ = on ? (bits_ | bits) & AllBits : bits_ & ~bits; }

private:
    std::uint32_t bits_ = 0;
};

// The enumeration's value k is bit k counted from the lowest.
template <class E, int n, std::uint32_t mask = Detail::LowBits(n)>
class TFlagsLsb : public TFlags<E, n, mask> {
public:
    using Flag = typename E::Enum;
    using TFlags<E, n, mask>::TFlags;
    constexpr TFlagsLsb(std::initializer_list<Flag> set) {
        for (const Flag flag : set) Set(flag, true);
    }
    static constexpr std::uint32_t Mask(Flag flag) { return 1u << static_cast<int>(flag); }
    static constexpr bool Holds(Flag flag) { return (Mask(flag) & mask) != 0; }  // whether it can be set
    constexpr bool Test(Flag flag) const { return this->TestMask(Mask(flag)); }
    constexpr void Set(Flag flag, bool on) { this->SetMask(Mask(flag), on); }
};

// The enumeration's value k is bit k counted from the highest of the n bits: a table reads as the standards draw the
// byte.
template <class E, int n>
class TFlagsMsb : public TFlags<E, n> {
public:
    using Flag = typename E::Enum;
    using TFlags<E, n>::TFlags;
    constexpr TFlagsMsb(std::initializer_list<Flag> set) {
        for (const Flag flag : set) Set(flag, true);
    }
    static constexpr std::uint32_t Mask(Flag flag) { return 1u << (n - 1 - static_cast<int>(flag)); }
    constexpr bool Test(Flag flag) const { return this->TestMask(Mask(flag)); }
    constexpr void Set(Flag flag, bool on) { this->SetMask(Mask(flag), on); }
};

// A bit array of up to n bits in bytes, bit 0 being the first byte's lowest; n is 0xFFFF for maps of unbounded length.
// Bits beyond n, and beyond the bytes held, read as false.
template <int n>
class TBits {
public:
    static constexpr int BitCount = n;
    static constexpr bool IsUnbounded = n == 0xFFFF;

    TBits() : bytes_(IsUnbounded ? 0 : (n + 7) / 8, 0) {}
    explicit TBits(Bytes bytes) : bytes_(std::move(bytes)) {}
    bool TestAt(int bit) const {
        return bit >= 0 && bit < std::min(n, bytes_.Size() * 8) && ((bytes_.At(bit / 8) >> (bit % 8)) & 1) != 0;
    }
    // Grows an unbounded map; a bit outside a bounded one is ignored.
    void SetAt(int bit, bool on) {
        if (bit < 0 || bit >= n) return;
        if (bit / 8 >= bytes_.Size()) {
            if (!on) return;
            bytes_.Resize(bit / 8 + 1);
        }
        std::uint8_t& byte = bytes_.At(bit / 8);
        const int mask = 1 << (bit % 8);
        byte = static_cast<std::uint8_t>(on ? byte | mask : byte & ~mask);
    }
    int CountSet() const {
        int count = 0;
        for (int bit = 0; bit < std::min(n, bytes_.Size() * 8); ++bit) count += TestAt(bit) ? 1 : 0;
        return count;
    }
    const Bytes& GetBytes() const { return bytes_; }
    Bytes& GetBytes() { return bytes_; }
    bool operator==(const TBits&) const = default;

private:
    Bytes bytes_;
};

// A bit array whose value 0 is the first byte's highest bit.
template <class E, int n>
class TBitsMsb : public TBits<n> {
public:
    using Flag = typename E::Enum;
    using TBits<n>::TBits;
    static int BitOf(Flag flag) { return static_cast<int>(flag) / 8 * 8 + 7 - static_cast<int>(flag) % 8; }
    bool Test(Flag flag) const { return this->TestAt(BitOf(flag)); }
    void Set(Flag flag, bool on) { this->SetAt(BitOf(flag), on); }
};

}  // namespace VNT
