#include "model/core/bytes.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#ifdef VNT_ADDRESSES_ARE_WATCHED
#include <sanitizer/asan_interface.h>
#endif

#include "tests/print.h"

namespace VNT {

TEST(ByteRange, ReadsSixteenBitsLowByteFirst) {
    EXPECT_EQ((Bytes{0x34, 0x12}.Range().ReadLsb(16)), 0x1234u);
    EXPECT_EQ((Bytes{0x78, 0x56, 0x34, 0x12}.Range().ReadLsb(32)), 0x12345678u);
}

TEST(ByteRange, ReadsMsbFromTheHighestBit) {
    const Bytes bytes{0b10100000};
    ByteRange range = bytes;
    EXPECT_EQ(range.ReadMsb(3), 5u);
    EXPECT_EQ(range.position, 3);
    EXPECT_EQ(range.ReadMsb(5), 0u);
    EXPECT_EQ(range.RemainingBits(), 0);
}

TEST(ByteRange, ReadsMsbAcrossBytesHighByteFirst) {
    const Bytes bytes{0x12, 0x34, 0x56, 0x78, 0x9A};
    ByteRange range = bytes;
    EXPECT_EQ(range.ReadMsb(4), 0x1u);
    EXPECT_EQ(range.ReadMsb(32), 0x23456789u);
}

TEST(ByteRange, ReadsLsbFromTheCursorOnwards) {
    const Bytes bytes{0b11010110, 0b00000101};
    ByteRange range = bytes;
    EXPECT_EQ(range.ReadLsb(3), 0b110u);
    EXPECT_EQ(range.ReadLsb(8), 0b10111010u);
    EXPECT_EQ(range.position, 11);
}

TEST(ByteRange, ReadPastTheEndGivesWhatRemainsAndZeros) {
    const Bytes bytes{0xFF};
    ByteRange lsb = bytes;
    lsb.Skip(5);
    EXPECT_EQ(lsb.ReadLsb(16), 0b111u);
    EXPECT_EQ(lsb.ReadLsb(16), 0u);
    ByteRange msb = bytes;
    msb.Skip(5);
    EXPECT_EQ(msb.ReadMsb(8), 0b11100000u);
    EXPECT_EQ(msb.ReadMsb(8), 0u);
    EXPECT_EQ(msb.position, 8);
}

TEST(ByteRange, CountsOutsideZeroToThirtyTwoAreClamped) {
    const Bytes bytes(8, 0xFF);
    ByteRange range = bytes;
    EXPECT_EQ(range.ReadLsb(-1), 0u);
    EXPECT_EQ(range.ReadMsb(0), 0u);
    EXPECT_EQ(range.position, 0);
    EXPECT_EQ(range.ReadLsb(99), 0xFFFFFFFFu);
    EXPECT_EQ(range.position, 32);
    EXPECT_EQ(range.ReadMsb(99), 0xFFFFFFFFu);
    EXPECT_EQ(range.position, 64);
}

TEST(ByteRange, WritesAreTheInversesOfReads) {
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        Bytes bytes(8, 0);
        for (int at = 0; at < 8; ++at) bytes.At(at) = static_cast<std::uint8_t>(random());
        const Bytes before = bytes;
        const int skip = static_cast<int>(random() % 70);
        const int count = static_cast<int>(random() % 33);
        const bool lsb = random() % 2 != 0;
        const auto read = [&] {
            ByteRange range = bytes;
            range.Skip(skip);
            return lsb ? range.ReadLsb(count) : range.ReadMsb(count);
        };
        const auto write = [&](std::uint32_t value) {
            ByteRange range = bytes;
            range.Skip(skip);
            lsb ? range.WriteLsb(count, value) : range.WriteMsb(count, value);
        };
        const std::uint32_t held = read();
        write(~held);
        if (skip + count <= bytes.Size() * 8) {
            EXPECT_EQ(held ^ read(), count == 32 ? ~0u : (1u << count) - 1);
        }
        write(held);
        EXPECT_EQ(bytes, before) << skip << " " << count << " " << lsb;
    }
}

TEST(ByteRange, WriteChangesOnlyItsBits) {
    Bytes lsb(2, 0xFF);
    ByteRange range = lsb;
    range.Skip(6);
    range.WriteLsb(4, 0);
    EXPECT_EQ(lsb, (Bytes{0x3F, 0xFC}));
    Bytes msb(2, 0xFF);
    range = msb;
    range.Skip(6);
    range.WriteMsb(4, 0);
    EXPECT_EQ(msb, (Bytes{0xFC, 0x3F}));
}

TEST(ByteRange, WriteIgnoresBitsAboveItsCount) {
    Bytes lsb(2, 0);
    lsb.Range().WriteLsb(4, 0xFFFFFFFF);
    EXPECT_EQ(lsb, (Bytes{0x0F, 0}));
    Bytes msb(2, 0);
    msb.Range().WriteMsb(4, 0xFFFFFFF5);
    EXPECT_EQ(msb, (Bytes{0x50, 0}));
}

TEST(ByteRange, WritePastTheEndIsClippedBitByBit) {
    Bytes bytes{0, 0xEE};
    ByteRange range(bytes);
    range.Limit(1);
    range.Skip(4);
    range.WriteLsb(8, 0xFF);
    EXPECT_EQ(bytes, (Bytes{0xF0, 0xEE}));
    range.WriteMsb(8, 0xFF);
    EXPECT_EQ(bytes, (Bytes{0xF0, 0xEE}));
    range.position = 4;
    range.WriteMsb(8, 0x0F);  // only the upper half fits
    EXPECT_EQ(bytes, (Bytes{0xF0, 0xEE}));
}

TEST(ByteRange, CountsWhatRemains) {
    const Bytes bytes(3, 0);
    ByteRange range = bytes;
    EXPECT_EQ(range.Size(), 3);
    EXPECT_EQ(range.BitSize(), 24);
    EXPECT_EQ(range.RemainingBytes(), 3);
    range.Skip(1);
    EXPECT_EQ(range.BytePosition(), 1);
    EXPECT_EQ(range.RemainingBytes(), 2);
    EXPECT_EQ(range.RemainingBits(), 23);
}

TEST(ByteRange, SkipMovesBitsUpToTheEnd) {
    const Bytes bytes(2, 0);
    ByteRange range = bytes;
    range.Skip(3);
    EXPECT_EQ(range.position, 3);
    range.Skip(-5);
    EXPECT_EQ(range.position, 3);
    range.Skip(1000);
    EXPECT_EQ(range.position, 16);
}

TEST(ByteRange, SkipBytesGoesToTheNextWholeByteFirst) {
    const Bytes bytes(4, 0);
    ByteRange range = bytes;
    range.Skip(1);
    range.SkipBytes(0);
    EXPECT_EQ(range.position, 8);
    range.SkipBytes(1);
    EXPECT_EQ(range.position, 16);
    range.SkipBytes(9);
    EXPECT_EQ(range.position, 32);
}

TEST(ByteRange, TakeGivesARangeOfItsOwnAndMovesBehindIt) {
    const Bytes bytes{1, 2, 3, 4};
    ByteRange range = bytes;
    range.Skip(1);
    const ByteRange taken = range.Take(2);
    EXPECT_EQ(Bytes(taken), (Bytes{2, 3}));
    EXPECT_EQ(taken.position, 0);
    EXPECT_EQ(range.position, 24);
}

TEST(ByteRange, TakeBeyondTheEndGivesWhatRemains) {
    const Bytes bytes{1, 2, 3, 4};
    ByteRange range = bytes;
    range.SkipBytes(3);
    EXPECT_EQ(Bytes(range.Take(9)), (Bytes{4}));
    EXPECT_EQ(range.Take(9).Size(), 0);
    EXPECT_EQ(range.Take(-1).Size(), 0);
}

TEST(ByteRange, TakeRestGivesAllThatRemains) {
    const Bytes bytes{1, 2, 3, 4};
    ByteRange range = bytes;
    range.SkipBytes(1);
    EXPECT_EQ(Bytes(range.TakeRest()), (Bytes{2, 3, 4}));
    EXPECT_EQ(range.RemainingBits(), 0);
}

TEST(ByteRange, TakeUntilEndsBeforeTheByte) {
    const Bytes bytes{0x0A, 1, 2, 0x0A, 3};
    ByteRange range = bytes;
    EXPECT_EQ(range.TakeUntil(0x0A).Size(), 0);
    EXPECT_EQ(range.position, 0);
    range.SkipBytes(1);
    EXPECT_EQ(Bytes(range.TakeUntil(0x0A)), (Bytes{1, 2}));
    EXPECT_EQ(range.position, 24);
    range.SkipBytes(1);
    EXPECT_EQ(Bytes(range.TakeUntil(0x0A)), (Bytes{3}));
    EXPECT_EQ(range.TakeUntil(0x0A).Size(), 0);
}

TEST(ByteRange, PeekLeavesTheCursor) {
    const Bytes bytes{1, 2, 3, 4};
    ByteRange range = bytes;
    range.Skip(3);
    EXPECT_EQ(Bytes(range.Peek(2)), (Bytes{2, 3}));
    EXPECT_EQ(range.position, 3);
}

TEST(ByteRange, FillSetsEveryByteWhateverTheCursor) {
    Bytes bytes{1, 2, 3};
    ByteRange range = bytes;
    range.SkipBytes(2);
    range.Limit(2);
    range.Fill(9);
    EXPECT_EQ(bytes, (Bytes{9, 9, 3}));
}

TEST(ByteRange, CopyFromTakesAsManyBytesAsBothHaveWhateverTheCursors) {
    Bytes bytes{1, 2, 3};
    ByteRange range = bytes;
    range.Skip(11);
    const Bytes two{7, 8};
    ByteRange from = two;
    from.Skip(5);
    range.CopyFrom(from);
    EXPECT_EQ(bytes, (Bytes{7, 8, 3}));
    EXPECT_EQ(range.position, 11);
    range.CopyFrom(Bytes{4, 5, 6, 9});
    EXPECT_EQ(bytes, (Bytes{4, 5, 6}));
    range.CopyFrom(Bytes());
    EXPECT_EQ(bytes, (Bytes{4, 5, 6}));
}

TEST(ByteRange, LimitBeyondTheSizeIsRefusedAndChangesNothing) {
    const Bytes bytes(4, 0);
    ByteRange range = bytes;
    range.Skip(5);
    EXPECT_FALSE(range.Limit(5));
    EXPECT_EQ(range.size, 4);
    EXPECT_EQ(range.position, 5);
}

TEST(ByteRange, LimitShortensAndHoldsTheCursorWithin) {
    const Bytes bytes(4, 0);
    ByteRange range = bytes;
    range.Skip(20);
    EXPECT_TRUE(range.Limit(4));
    EXPECT_EQ(range.position, 20);
    EXPECT_TRUE(range.Limit(2));
    EXPECT_EQ(range.size, 2);
    EXPECT_EQ(range.position, 16);
    EXPECT_TRUE(range.Limit(-1));
    EXPECT_EQ(range.size, 0);
    EXPECT_EQ(range.position, 0);
}

TEST(ByteRange, DropMovesTheStartAndLowersTheCursor) {
    const Bytes bytes{1, 2, 3, 4};
    ByteRange range = bytes;
    range.Skip(20);
    range.Drop(1);
    EXPECT_EQ(range.ByteAt(0), 2);
    EXPECT_EQ(range.size, 3);
    EXPECT_EQ(range.position, 12);
    range.Drop(2);
    EXPECT_EQ(range.position, 0);
    range.Drop(9);
    EXPECT_EQ(range.size, 0);
    EXPECT_EQ(range.ReadLsb(8), 0u);
}

TEST(ByteRange, ByteAtGivesZeroOutside) {
    const Bytes bytes{7};
    EXPECT_EQ(bytes.Range().ByteAt(0), 7);
    EXPECT_EQ(bytes.Range().ByteAt(1), 0);
    EXPECT_EQ(bytes.Range().ByteAt(-1), 0);
}

TEST(ByteRange, IsAllLooksAtEveryByte) {
    EXPECT_TRUE(Bytes(3, 0xFF).Range().IsAll(0xFF));
    EXPECT_FALSE((Bytes{0xFF, 0xFE}.Range().IsAll(0xFF)));
    EXPECT_TRUE(ByteRange().IsAll(0xFF));
}

TEST(ByteRange, AnEmptyOneAnswersEveryOperation) {
    ByteRange range;
    EXPECT_EQ(range.ReadLsb(8), 0u);
    EXPECT_EQ(range.ReadMsb(8), 0u);
    range.WriteLsb(8, 1);
    range.WriteMsb(8, 1);
    range.Skip(3);
    range.SkipBytes(3);
    range.Fill(1);
    range.Drop(1);
    EXPECT_EQ(range.TakeUntil(0).Size(), 0);
    EXPECT_EQ(range.TakeRest().Size(), 0);
    EXPECT_TRUE(range.Limit(0));
    EXPECT_EQ(ByteRange(nullptr, -4).size, 0);
}

TEST(ByteRange, MovementsOfACopyDoNotReachTheOriginal) {
    const Bytes bytes{1, 2};
    const ByteRange range = bytes;
    ByteRange copy = range;
    copy.ReadLsb(8);
    copy.Drop(1);
    EXPECT_EQ(range.position, 0);
    EXPECT_EQ(range.size, 2);
}

TEST(Bytes, SliceIsClampedOnBothSides) {
    const Bytes bytes{1, 2, 3, 4};
    EXPECT_EQ(bytes.Slice(1, 2), (Bytes{2, 3}));
    EXPECT_EQ(bytes.Slice(3, 9), (Bytes{4}));
    EXPECT_EQ(bytes.Slice(9, 1), Bytes());
    EXPECT_EQ(bytes.Slice(-1, 2), (Bytes{1, 2}));
    EXPECT_EQ(bytes.Slice(1, -1), Bytes());
}

TEST(Bytes, ResizeCutsOrFills) {
    Bytes bytes{1, 2, 3};
    bytes.Resize(2);
    EXPECT_EQ(bytes, (Bytes{1, 2}));
    bytes.Resize(4, 9);
    EXPECT_EQ(bytes, (Bytes{1, 2, 9, 9}));
    bytes.Resize(-1);
    EXPECT_TRUE(bytes.IsEmpty());
    EXPECT_EQ(Bytes(-1, 0), Bytes());
}

TEST(Bytes, LastIndexNotIsTheLengthWithoutTheTrailingByte) {
    EXPECT_EQ((Bytes{1, 0, 2, 0, 0}.LastIndexNot(0)), 3);
    EXPECT_EQ((Bytes{0, 0}.LastIndexNot(0)), 0);
    EXPECT_EQ((Bytes{1, 2}.LastIndexNot(0)), 2);
    EXPECT_EQ(Bytes().LastIndexNot(0), 0);
}

TEST(Bytes, TrimTrailingCutsThemOff) {
    Bytes bytes{1, 0, 2, 0, 0};
    bytes.TrimTrailing(0);
    EXPECT_EQ(bytes, (Bytes{1, 0, 2}));
}

TEST(Bytes, AppendTakesAllOfARange) {
    Bytes bytes{1};
    bytes.Append(Bytes{2, 3});
    bytes.Append(Bytes());
    EXPECT_EQ(bytes, (Bytes{1, 2, 3}));
}

TEST(Bytes, IsAllIsTrueOfNone) {
    EXPECT_TRUE(Bytes().IsAll(5));
    EXPECT_TRUE((Bytes{5, 5}.IsAll(5)));
    EXPECT_FALSE((Bytes{5, 6}.IsAll(5)));
}

// Few bytes stand in the object, more in memory of their own.
TEST(Bytes, AreTheSameWhateverTheyStandIn) {
    for (const int count : {0, 1, 15, 16, 17, 100}) {
        Bytes bytes;
        for (int i = 0; i < count; ++i) bytes.Append(Bytes{i});
        ASSERT_EQ(bytes.Size(), count);
        for (int i = 0; i < count; ++i) EXPECT_EQ(bytes.At(i), i) << count;
        Bytes copy = bytes;
        EXPECT_EQ(copy, bytes);
        if (count > 0) copy.At(0) = 0xFF;
        EXPECT_EQ(copy == bytes, count == 0) << "a copy stands for itself";
        EXPECT_EQ(bytes.Slice(0, count), bytes);
        const Bytes moved = std::move(copy);
        EXPECT_EQ(moved.Size(), count);
        EXPECT_TRUE(copy.IsEmpty());  // NOLINT(bugprone-use-after-move): it can be used again
        copy.Append(Bytes{7});
        EXPECT_EQ(copy, Bytes{7});
        EXPECT_EQ(moved.Slice(1, count), bytes.Slice(1, count));
        for (const int other : {0, 5, 16, 40}) {
            Bytes assigned(other, 0x5A);
            assigned = bytes;
            EXPECT_EQ(assigned, bytes) << other;
            assigned = Bytes(other, 0x5A);
            EXPECT_EQ(assigned, Bytes(other, 0x5A)) << count;
            assigned.Assign(bytes);
            EXPECT_EQ(assigned, bytes) << other;
        }
    }
}

TEST(Bytes, KeepWhatTheyHoldWhereTheyGrowAndFillTheRest) {
    Bytes bytes{1, 2, 3};
    bytes.Resize(16, 9);
    bytes.Resize(20, 8);
    EXPECT_EQ(bytes.Slice(0, 4), (Bytes{1, 2, 3, 9}));
    EXPECT_EQ(bytes.Slice(15, 5), (Bytes{9, 8, 8, 8, 8}));
    bytes.Resize(2);
    bytes.Resize(3);
    EXPECT_EQ(bytes, (Bytes{1, 2, 0}));
    EXPECT_EQ(Bytes(-1, 5), Bytes());
}

TEST(Bytes, TakeTwiceTheRoomWhereTheyGrow) {
    Bytes bytes(16, 0);
    EXPECT_EQ(bytes.Capacity(), 16);
    bytes.Append(Bytes{1});
    EXPECT_EQ(bytes.Capacity(), 32);
    const std::uint8_t* const first = bytes.View().data();
    while (bytes.Size() < 32) bytes.Append(Bytes{1});
    EXPECT_EQ(bytes.View().data(), first) << "moved within their room";
    bytes.Append(Bytes{1});
    EXPECT_EQ(bytes.Capacity(), 64);
    bytes.Resize(1000);
    EXPECT_EQ(bytes.Capacity(), 1000);
    EXPECT_EQ(Bytes(100, 0).Capacity(), 100);
}

TEST(Bytes, AreAssignedToThemselvesAndStay) {
    for (const int count : {3, 30}) {
        Bytes bytes(count, 4);
        Bytes& same = bytes;
        bytes = same;
        EXPECT_EQ(bytes, Bytes(count, 4));
        bytes = std::move(same);
        EXPECT_EQ(bytes, Bytes(count, 4));
    }
}

TEST(Bytes, AppendAndAssignPartsOfThemselves) {
    for (const int count : {3, 8, 12, 16, 17, 40}) {
        Bytes wanted;
        for (int i = 0; i < count; ++i) wanted.Append(Bytes{i});
        Bytes bytes(wanted.Range());
        bytes.Append(bytes);
        ASSERT_EQ(bytes.Size(), 2 * count);
        EXPECT_EQ(bytes.Slice(0, count), wanted);
        EXPECT_EQ(bytes.Slice(count, count), wanted);
        ByteRange last = bytes;
        last.Drop(count - 2);
        bytes.Assign(last);
        ASSERT_EQ(bytes.Size(), count + 2);
        EXPECT_EQ(bytes.Slice(0, 2), wanted.Slice(count - 2, 2));
        EXPECT_EQ(bytes.Slice(2, count), wanted);
    }
}

#ifdef VNT_ADDRESSES_ARE_WATCHED
// Without that an access behind few bytes, or behind those that were cut off, would go unnoticed.
TEST(Bytes, OfARoomThatIsNotFilledOnlyTheyCanBeReached) {
    const auto isFenced = [](const Bytes& bytes) {
        const std::uint8_t* const first = bytes.View().data();
        for (int i = 0; i < bytes.Capacity(); ++i) {
            if ((__asan_address_is_poisoned(first + i) != 0) != (i >= bytes.Size())) return false;
        }
        return true;
    };
    EXPECT_TRUE(isFenced(Bytes()));
    for (const int count : {0, 1, 7, 8, 9, 16, 17, 40}) {
        Bytes bytes(count, 4);
        EXPECT_TRUE(isFenced(bytes)) << count;
        for (const int other : {0, 5, 16, 30, 3}) {
            Bytes assigned(other, 5);
            assigned = bytes;
            EXPECT_TRUE(isFenced(assigned)) << count << " in the room of " << other;
            assigned.Resize(other);
            EXPECT_TRUE(isFenced(assigned)) << other << " of " << count;
            Bytes moved = std::move(assigned);
            EXPECT_TRUE(isFenced(moved)) << other << " of " << count;
            EXPECT_TRUE(isFenced(assigned));  // NOLINT(bugprone-use-after-move): it can be used again
            moved = Bytes(count, 6);
            EXPECT_TRUE(isFenced(moved)) << count << " moved over " << other;
            moved.Append(Bytes(2, 7));
            EXPECT_TRUE(isFenced(moved)) << count << " and two";
        }
    }
    // What stands there when they are gone can be reached whole.
    alignas(Bytes) std::uint8_t place[sizeof(Bytes)];
    std::destroy_at(new (place) Bytes{1});
    EXPECT_EQ(__asan_region_is_poisoned(place, sizeof(place)), nullptr);
}
#endif

TEST(Bytes, AsARangeHasTheCursorAtTheStart) {
    Bytes bytes{1, 2};
    ByteRange range = bytes;
    EXPECT_EQ(range.position, 0);
    EXPECT_EQ(range.size, 2);
    range.WriteLsb(8, 9);
    EXPECT_EQ(bytes, (Bytes{9, 2}));
}

}  // namespace VNT
