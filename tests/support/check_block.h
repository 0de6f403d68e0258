#pragma once

#include "tests/support/items.h"

namespace VNT::Testing {

// The holder reads the bytes as X, which says `text` and writes the same bytes.
template <class Holder, class X>
X CheckHeld(const char* hex, const std::string& text) {
    const Bytes bytes = FromHex(hex);
    const auto holder = ReadAs<Holder>(bytes);
    X block;
    EXPECT_TRUE(block.Assign(holder)) << hex;
    EXPECT_EQ(holder.GetSize(), bytes.Size()) << hex;
    EXPECT_EQ(TextOf(holder), text) << hex;
    EXPECT_EQ(BytesOf(holder, bytes.Size()), bytes) << hex;
    return block;
}

}  // namespace VNT::Testing
