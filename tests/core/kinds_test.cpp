#include "model/core/kinds.h"

#include <gtest/gtest.h>

#include "tests/core/shapes.h"

namespace VNT {

namespace {

// A circle whose type is written but no longer read, and a square that takes nothing.
constexpr TKind<AnyShape> UnreadCircle[] = {Kind<Circle, AnyShape>("Circle", false)};
std::unique_ptr<AnyShape> MakeSquareForCircle() { return std::make_unique<Square>(); }
constexpr TKind<AnyShape> RefusingKind[] = {{ShapeTypeId::Circle, "Refuses", 4, true, &MakeSquareForCircle}};

}  // namespace

TEST(Kinds, ARowSaysItsTypeAndMakesTheItem) {
    const TKind<AnyShape>& row = ShapeKinds::Rows[1];
    EXPECT_EQ(row.type, ShapeTypeId::Square);
    EXPECT_STREQ(row.title, "Square");
    EXPECT_EQ(row.addSize, 4);
    EXPECT_EQ(*row.make(), static_cast<const AnyShape&>(Square()));
}

TEST(Kinds, AKindThatIsNotReadLeavesTheBytesToTheRawClass) {
    const auto item = ReadKind<OtherShape, AnyShape>(UnreadCircle, Bytes{1, 2, 3, 4});
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->GetType(), ShapeTypeId::Other);
}

TEST(Kinds, AKindThatRefusesItsBytesLeavesThemToTheRawClass) {
    const auto item = ReadKind<OtherShape, AnyShape>(RefusingKind, Bytes{1, 2, 3, 4});
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->GetType(), ShapeTypeId::Other);
    EXPECT_EQ(BytesOf(*item), (Bytes{1, 2, 3, 4}));
}

TEST(Kinds, ARangeTooShortForTheFrameGivesNothing) {
    EXPECT_EQ((ReadKind<OtherShape, AnyShape>(ShapeKinds::Rows, Bytes{1, 2, 3})), nullptr);
}

}  // namespace VNT
