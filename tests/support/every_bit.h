#pragma once

#include "tests/support/items.h"

namespace VNT::Testing {

// Two items are equal where their bytes are, and nowhere else: whichever bit is changed, another item is read, or none.
template <class X>
void ExpectThatEachBitTells(const Bytes& bytes) {
    const X item = ReadAs<X>(bytes);
    EXPECT_TRUE(ReadAs<X>(bytes) == item) << ToHex(bytes);
    for (int bit = 0; bit < bytes.Size() * 8; ++bit) {
        Bytes others = bytes;
        others.At(bit / 8) ^= static_cast<std::uint8_t>(1 << bit % 8);
        X other;
        if (!other.Read(others)) continue;
        EXPECT_FALSE(other == item) << "bit " << bit << " of " << ToHex(bytes);
    }
}

// A range that ends within the frame is neither read nor written.
template <class X>
void ExpectThatCutsAreRefused(const Bytes& bytes) {
    const X item = ReadAs<X>(bytes);
    EXPECT_EQ(BytesOf(item, bytes.Size()), bytes);
    for (int length = 0; length < bytes.Size(); ++length) {
        X other = item;
        EXPECT_FALSE(other.Read(bytes.Slice(0, length))) << length;
        EXPECT_TRUE(other == item) << length;
        EXPECT_EQ(BytesOf(item, length), Bytes()) << length;
    }
}

}  // namespace VNT::Testing
