#include "model/core/list.h"

#include <gtest/gtest.h>

#include "tests/core/shapes.h"

namespace VNT {

namespace {

ShapeList Circles(std::initializer_list<int> radii) {
    ShapeList list;
    for (const int radius : radii) list.Add(Held(CircleOf(radius)));
    return list;
}

// A list of items with sizes, as far as its limits ask.
struct SizedList {
    int count;
    int size;
    int GetCount() const { return count; }
    int GetSize() const { return size; }
};

}  // namespace

TEST(List, AddAppends) {
    ShapeList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_TRUE(list.Add(Held(CircleOf(1))));
    const Shape second = Held(CircleOf(2));
    EXPECT_TRUE(list.Add(second));
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.At(1), second);
}

TEST(List, AddRefusesWhatCannotBeWrittenBack) {
    ShapeList list;
    const Shape tooLarge = Held(CircleOf(201));
    EXPECT_FALSE(list.Add(tooLarge));
    EXPECT_FALSE(list.Add(Held(CircleOf(201))));
    EXPECT_FALSE(list.Add(Shape()));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(List, AddTakesWhatIsOnlyImproper) { EXPECT_EQ(Circles({150}).GetCount(), 1); }

TEST(List, InsertTakesAnyPlaceUpToTheEnd) {
    ShapeList list = Circles({1, 2});
    EXPECT_TRUE(list.Insert(0, Held(CircleOf(3))));
    EXPECT_TRUE(list.Insert(3, Held(CircleOf(4))));
    EXPECT_TRUE(list.Insert(2, Held(CircleOf(5))));
    EXPECT_EQ(list, Circles({3, 1, 5, 2, 4}));
}

TEST(List, InsertRefusesPlacesOutsideAndInvalidItems) {
    ShapeList list = Circles({1, 2});
    EXPECT_FALSE(list.Insert(-1, Held(CircleOf(3))));
    EXPECT_FALSE(list.Insert(3, Held(CircleOf(3))));
    EXPECT_FALSE(list.Insert(0, Held(CircleOf(201))));
    EXPECT_EQ(list, Circles({1, 2}));
}

TEST(List, RemoveTakesOneAwayAndRefusesPlacesOutside) {
    ShapeList list = Circles({1, 2, 3});
    EXPECT_TRUE(list.Remove(1));
    EXPECT_FALSE(list.Remove(2));
    EXPECT_FALSE(list.Remove(-1));
    EXPECT_EQ(list, Circles({1, 3}));
}

TEST(List, SetReplacesAndRefusesPlacesOutsideAndInvalidItems) {
    ShapeList list = Circles({1, 2});
    EXPECT_TRUE(list.Set(1, Held(CircleOf(9))));
    EXPECT_FALSE(list.Set(2, Held(CircleOf(8))));
    EXPECT_FALSE(list.Set(-1, Held(CircleOf(8))));
    EXPECT_FALSE(list.Set(0, Held(CircleOf(201))));
    EXPECT_EQ(list, Circles({1, 9}));
}

TEST(List, GetAssignsToATargetOfTheClass) {
    const ShapeList list = Circles({4, 5});
    Circle circle;
    EXPECT_TRUE(list.Get(1, circle));
    EXPECT_EQ(circle, CircleOf(5));
    Shape shape;
    EXPECT_TRUE(list.Get(0, shape));
    EXPECT_EQ(shape, CircleOf(4));
}

TEST(List, GetRefusesPlacesOutsideAndOtherClasses) {
    const ShapeList list = Circles({4});
    Circle circle = CircleOf(33);
    EXPECT_FALSE(list.Get(1, circle));
    EXPECT_FALSE(list.Get(-1, circle));
    EXPECT_EQ(circle, CircleOf(33));
    Square square(SquareFields{8, Bytes{1, 2}});
    const Square before = square;
    EXPECT_FALSE(list.Get(0, square));
    EXPECT_EQ(square, before);
}

TEST(List, FindGivesTheFirstOfTheClass) {
    ShapeList list;
    list.Add(Held(Square()));
    list.Add(Held(CircleOf(4)));
    list.Add(Held(CircleOf(5)));
    Circle circle;
    EXPECT_TRUE(list.Find(circle));
    EXPECT_EQ(circle, CircleOf(4));
}

TEST(List, FindOfAClassThatIsNotThereChangesNothing) {
    Square square(SquareFields{8, Bytes{1, 2}});
    const Square before = square;
    EXPECT_FALSE(Circles({1, 2}).Find(square));
    EXPECT_EQ(square, before);
}

TEST(List, FindByAHolderLooksForWhatItHolds) {
    ShapeList list = Circles({4});
    list.Add(Held(Square(SquareFields{8, Bytes{1, 2}})));
    Shape wanted = Held(Square());
    EXPECT_TRUE(list.Find(wanted));
    EXPECT_EQ(wanted, Square(SquareFields{8, Bytes{1, 2}}));
}

TEST(List, SwapExchangesTwoAndRefusesPlacesOutside) {
    ShapeList list = Circles({1, 2});
    EXPECT_TRUE(list.Swap(0, 1));
    EXPECT_FALSE(list.Swap(1, 2));
    EXPECT_FALSE(list.Swap(-1, 0));
    EXPECT_EQ(list, Circles({2, 1}));
}

TEST(List, ComparesItemByItem) {
    EXPECT_EQ(Circles({1, 2}), Circles({1, 2}));
    EXPECT_NE(Circles({1, 2}), Circles({2, 1}));
    EXPECT_NE(Circles({1, 2}), Circles({1}));
    EXPECT_EQ(ShapeList(), ShapeList());
}

TEST(List, ClearLeavesNothing) {
    ShapeList list = Circles({1, 2});
    list.Clear();
    EXPECT_EQ(list, ShapeList());
}

TEST(List, ItsItemsAreReadThroughANonConstList) {
    ShapeList list = Circles({1});
    EXPECT_EQ(list.At(0), CircleOf(1));
}

TEST(SlotList, ReadsSlotAfterSlotAndWritesThemBack) {
    const Bytes bytes{1, 5, 0, 0, 2, 6, 7, 8, 9, 10, 11, 12};
    ShapeList list = Circles({44});
    EXPECT_TRUE(list.Read(bytes));
    ASSERT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.At(1).GetType(), ShapeTypeId::Square);
    EXPECT_EQ(list.GetSize(), 12);
    Bytes written(12, 0xEE);
    EXPECT_TRUE(list.Write(written));
    EXPECT_EQ(written, bytes);
}

TEST(SlotList, ReadEndsAtAPartialSlot) {
    ShapeList list;
    EXPECT_TRUE(list.Read(Bytes{1, 5, 0, 0, 1, 6, 0}));
    EXPECT_EQ(list, Circles({5}));
    EXPECT_TRUE(list.Read(Bytes()));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(SlotList, ReadDropsWhatCannotBeWrittenBackAndGoesOn) {
    ShapeList list;
    EXPECT_TRUE(list.Read(Bytes{1, 201, 0, 0, 1, 6, 0, 0}));
    EXPECT_EQ(list, Circles({6}));
}

TEST(SlotList, WriteRefusesARangeTooShortForAllSlots) {
    Bytes bytes(7, 0xEE);
    EXPECT_FALSE(Circles({1, 2}).Write(bytes));
    EXPECT_EQ(bytes, Bytes(7, 0xEE));
}

TEST(SlotList, WriteLeavesWhatStandsBehindTheLastSlot) {
    Bytes bytes(6, 0xEE);
    EXPECT_TRUE(Circles({1}).Write(bytes));
    EXPECT_EQ(bytes, (Bytes{1, 1, 0, 0, 0xEE, 0xEE}));
}

TEST(SlotList, TrimTrailingTakesUnusedSlotsFromTheEndOnly) {
    ShapeList list = Circles({0, 1, 0, 0});
    list.TrimTrailing(CircleOf(0));
    EXPECT_EQ(list, Circles({0, 1}));
    ShapeList unused = Circles({0, 0});
    unused.TrimTrailing(CircleOf(0));
    EXPECT_TRUE(unused.IsEmpty());
}

TEST(ListLimits, SlotsAreWholeItemsOfTheBytes) {
    EXPECT_EQ(SlotListLimits::FromBytes(16, 2).slots, 8);
    EXPECT_EQ(SlotListLimits::FromBytes(72, 18).slots, 4);
    EXPECT_EQ(SlotListLimits::FromBytes(32640, 128).slots, 255);
    EXPECT_EQ(SlotListLimits::FromBytes(17, 18).slots, 0);
    EXPECT_EQ(SlotListLimits::FromBytes(-20, 18).slots, 0);
}

TEST(ListLimits, FixedSlotsHoldAsManyAsThereAre) {
    const SlotListLimits limits{2, 4};
    EXPECT_TRUE(limits.Contains(Circles({1, 2})));
    EXPECT_FALSE(limits.Contains(Circles({1, 2, 3})));
    EXPECT_TRUE(limits.HasRoom(Circles({1})));
    EXPECT_FALSE(limits.HasRoom(Circles({1, 2})));
}

TEST(ListLimits, FixedSlotsMeasureBytesByTheSlot) {
    const ListMeasure measure = SlotListLimits{255, 128}.Measure(SizedList{3, 0});
    EXPECT_EQ(measure.count, 3);
    EXPECT_EQ(measure.maxCount, 255);
    EXPECT_EQ(measure.size, 384);
    EXPECT_EQ(measure.maxSize, 32640);
}

TEST(ListLimits, SizedListsAreMeasuredInBytes) {
    const TSizeListLimits<SizedList> limits{123};
    EXPECT_TRUE(limits.Contains({5, 123}));
    EXPECT_FALSE(limits.Contains({5, 124}));
    EXPECT_EQ(limits.BytesLeft({5, 100}), 23);
    const ListMeasure measure = limits.Measure({5, 100});
    EXPECT_EQ(measure.count, 5);
    EXPECT_EQ(measure.maxCount, 123);
    EXPECT_EQ(measure.size, 100);
    EXPECT_EQ(measure.maxSize, 123);
}

TEST(ListLimits, EqualSizesConvertBytesToSlotsExactly) {
    const TFixedSizeListLimits<SizedList> limits{25, 6};
    EXPECT_EQ(limits.Slots(), 4);
    EXPECT_TRUE(limits.Contains({4, 24}));
    EXPECT_FALSE(limits.Contains({5, 30}));
    const ListMeasure measure = limits.Measure({3, 18});
    EXPECT_EQ(measure.maxCount, 4);
    EXPECT_EQ(measure.size, 18);
    EXPECT_EQ(measure.maxSize, 24);
    EXPECT_EQ((TFixedSizeListLimits<SizedList>{-1, 6}.Slots()), 0);
}

}  // namespace VNT
