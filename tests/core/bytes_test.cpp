#include "model/core/bytes.h"

#include <gtest/gtest.h>

namespace VNT {

TEST(ByteRange, ReadsSixteenBitsLowByteFirst) {
    const Bytes bytes{0x34, 0x12};
    EXPECT_EQ(bytes.Range().ReadLsb(16), 0x1234u);
}

TEST(ByteRange, ReadsMsbFromTheHighestBit) {
    const Bytes bytes{0b10100000};
    ByteRange range = bytes;
    EXPECT_EQ(range.ReadMsb(3), 5u);
    EXPECT_EQ(range.position, 3);
    EXPECT_EQ(range.ReadMsb(5), 0u);
}

}  // namespace VNT
