#include "model/core/any.h"

#include <gtest/gtest.h>

#include "tests/core/shapes.h"

namespace VNT {

TEST(TypedItem, EqualsAnItemOfItsClassWithEqualFields) {
    EXPECT_TRUE(CircleOf(3) == CircleOf(3));
    EXPECT_TRUE(CircleOf(3) != CircleOf(4));
}

TEST(TypedItem, EqualityLooksAtTheFieldsThatNoFormShows) {
    Circle a = CircleOf(3);
    const Circle b = CircleOf(3);
    a.reserved = 1;
    EXPECT_FALSE(a == b);
}

TEST(TypedItem, EqualsNoItemOfAnotherClass) {
    const Circle circle;
    const Square square;
    EXPECT_FALSE(static_cast<const AnyShape&>(circle) == static_cast<const AnyShape&>(square));
}

TEST(TypedItem, ComparesWithAHolderAsWithWhatItHolds) {
    const Circle circle = CircleOf(3);
    EXPECT_TRUE(circle == Held(circle));
    EXPECT_TRUE(Held(circle) == circle);
    EXPECT_TRUE(Held(circle) != CircleOf(4));
    EXPECT_FALSE(circle == Shape());
}

TEST(TypedItem, GetIsTheItemItself) {
    const Circle circle;
    EXPECT_EQ(&circle.Get(), static_cast<const AnyShape*>(&circle));
}

TEST(TypedItem, AssignTakesAllFieldsOfItsClass) {
    Circle from = CircleOf(3);
    from.reserved = 0x1234;
    Circle to;
    EXPECT_TRUE(to.Assign(from));
    EXPECT_EQ(to.radius, 3);
    EXPECT_EQ(to.reserved, 0x1234);
}

TEST(TypedItem, AssignPullsTheItemOutOfAHolder) {
    Circle to;
    EXPECT_TRUE(to.Assign(Held(CircleOf(5))));
    EXPECT_EQ(to.radius, 5);
}

TEST(TypedItem, AssignFromAHolderOfAnotherClassIsRefusedAndChangesNothing) {
    Circle to = CircleOf(9);
    EXPECT_FALSE(to.Assign(Held(Square())));
    EXPECT_EQ(to, CircleOf(9));
}

TEST(TypedItem, AssignFromAnEmptyHolderIsRefused) {
    Circle to = CircleOf(9);
    EXPECT_FALSE(to.Assign(Shape()));
    EXPECT_EQ(to, CircleOf(9));
}

TEST(TypedItem, CloneIsAnEqualCopyOfItsOwn) {
    Circle circle = CircleOf(3);
    circle.reserved = 7;
    const std::unique_ptr<AnyShape> clone = circle.Clone();
    circle.radius = 4;
    Circle copied;
    ASSERT_TRUE(copied.Assign(*clone));
    EXPECT_EQ(copied.radius, 3);
    EXPECT_EQ(copied.reserved, 7);
}

TEST(TypedItem, AssignmentThroughTheFamilysRootDoesNothing) {
    Circle to = CircleOf(1);
    TAny<AnyShape>& root = to;
    root = static_cast<const TAny<AnyShape>&>(CircleOf(2));
    root = static_cast<TAny<AnyShape>&&>(CircleOf(2));
    EXPECT_EQ(to.radius, 1);
}

TEST(EmptyHolder, EqualsNothingNotEvenAnEmptyHolder) {
    const Shape empty;
    EXPECT_FALSE(empty == Shape());
    EXPECT_TRUE(empty != Shape());
    EXPECT_FALSE(empty == empty);
    EXPECT_FALSE(empty == Held(Circle()));
    EXPECT_FALSE(Held(Circle()) == empty);
}

TEST(EmptyHolder, AnswersEveryOperation) {
    const Shape empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(empty.GetType(), ShapeTypeId::None);
    EXPECT_EQ(&empty.Get(), static_cast<const AnyShape*>(&empty));
    EXPECT_EQ(empty.Clone(), nullptr);
    EXPECT_FALSE(empty.IsValid());
    EXPECT_FALSE(empty.IsValidAll());
    EXPECT_EQ(TextOf(empty), String());
    String text("left over");
    empty.GetText(text, U"{type}");
    EXPECT_EQ(text, String());
    Bytes bytes{1, 2, 3, 4};
    EXPECT_FALSE(empty.Write(bytes));
    EXPECT_EQ(bytes, (Bytes{1, 2, 3, 4}));
}

TEST(Holder, AssignFromAnEmptyHolderLeavesItEmpty) {
    Shape holder = Held(Circle());
    EXPECT_TRUE(holder.Assign(Shape()));
    EXPECT_TRUE(holder.IsEmpty());
}

TEST(Holder, AssignTakesACloneOfAnyClass) {
    Shape holder = Held(Circle());
    Square square;
    EXPECT_TRUE(holder.Assign(square));
    square.side = 99;
    EXPECT_EQ(holder, Square());
    EXPECT_EQ(holder.GetType(), ShapeTypeId::Square);
}

TEST(Holder, AssignOfItsOwnItemKeepsIt) {
    Shape holder = Held(CircleOf(6));
    EXPECT_TRUE(holder.Assign(holder.Get()));
    EXPECT_EQ(holder, CircleOf(6));
}

TEST(Holder, CopiesAreApart) {
    const Shape first = Held(CircleOf(6));
    Shape second = first;
    EXPECT_EQ(second, first);
    second.Assign(CircleOf(7));
    EXPECT_EQ(first, CircleOf(6));
    second = first;
    EXPECT_EQ(second, CircleOf(6));
    const Shape& alias = second;
    second = alias;
    EXPECT_EQ(second, CircleOf(6));
}

TEST(Holder, MoveLeavesTheOtherEmpty) {
    Shape from = Held(CircleOf(6));
    Shape to(std::move(from));
    EXPECT_TRUE(from.IsEmpty());  // NOLINT(bugprone-use-after-move): the state after a move is what is tested
    EXPECT_EQ(to, CircleOf(6));
    Shape last = Held(Square());
    last = std::move(to);
    EXPECT_TRUE(to.IsEmpty());  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(last, CircleOf(6));
}

TEST(Holder, IsTransparentForAHolderInIt) {
    const Shape outer(std::make_unique<Shape>(Held(CircleOf(6))));
    EXPECT_EQ(outer, CircleOf(6));
    EXPECT_EQ(outer.GetType(), ShapeTypeId::Circle);
    Circle inner;
    EXPECT_TRUE(inner.Assign(outer));
    EXPECT_EQ(inner.radius, 6);
}

}  // namespace VNT
