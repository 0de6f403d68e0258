#include "model/core/item.h"

#include <gtest/gtest.h>

#include "tests/core/shapes.h"

namespace VNT {

TEST(FramedItem, ReadsItsBytesAndWritesThemBack) {
    const Bytes bytes{1, 50, 0x34, 0x12};
    Circle circle;
    ASSERT_TRUE(circle.Read(bytes));
    EXPECT_EQ(circle.radius, 50);
    EXPECT_EQ(circle.reserved, 0x1234);
    EXPECT_EQ(BytesOf(circle), bytes);
}

TEST(FramedItem, RefusesBytesOfAnotherTypeUnchanged) {
    Circle circle = CircleOf(33);
    EXPECT_FALSE(circle.Read(Bytes{2, 50, 0, 0}));
    EXPECT_EQ(circle, CircleOf(33));
}

TEST(FramedItem, RefusesARangeShorterThanItsFrameUnchanged) {
    for (int length = 0; length < AnyShape::FrameSize; ++length) {
        Circle circle = CircleOf(33);
        EXPECT_FALSE(circle.Read(Bytes{1, 50, 0, 0}.Slice(0, length))) << length;
        EXPECT_EQ(circle, CircleOf(33)) << length;
    }
}

TEST(FramedItem, ReadsNothingBehindItsFrame) {
    OtherShape other;
    ASSERT_TRUE(other.Read(Bytes{9, 8, 7, 6, 5}));
    EXPECT_EQ(other.bytes, (Bytes{9, 8, 7, 6}));
}

TEST(FramedItem, ReadForgetsWhatItHeld) {
    Square square;
    square.pattern = Bytes{1, 2};
    ASSERT_TRUE(square.Read(Bytes{2, 0, 3, 4}));
    EXPECT_EQ(square.side, 0);
    EXPECT_TRUE(square.pattern.IsEmpty());
}

TEST(FramedItem, KeepsAValueOutOfItsLimits) {
    Circle circle;
    ASSERT_TRUE(circle.Read(Bytes{1, 150, 0, 0}));
    EXPECT_EQ(circle.radius, 150);
    EXPECT_FALSE(circle.IsValid());
    EXPECT_TRUE(circle.IsValidAll());
    ASSERT_TRUE(circle.Read(Bytes{1, 201, 0, 0}));
    EXPECT_EQ(circle.radius, 201);
    EXPECT_FALSE(circle.IsValidAll());
}

TEST(FramedItem, WritesNothingUnlessAllIsValid) {
    Bytes bytes(4, 0xEE);
    EXPECT_FALSE(CircleOf(201).Write(bytes));
    EXPECT_EQ(bytes, Bytes(4, 0xEE));
    Circle circle;
    circle.reserved = 0x10000;
    EXPECT_FALSE(circle.Write(bytes));
    EXPECT_EQ(bytes, Bytes(4, 0xEE));
}

TEST(FramedItem, WritesNothingIntoARangeShorterThanItsFrame) {
    Bytes bytes(3, 0xEE);
    EXPECT_FALSE(Circle().Write(bytes));
    EXPECT_EQ(bytes, Bytes(3, 0xEE));
}

TEST(FramedItem, WritesNothingBehindItsFrame) {
    Bytes bytes(6, 0xEE);
    EXPECT_TRUE(Circle().Write(bytes));
    EXPECT_EQ(bytes, (Bytes{1, 10, 0, 0, 0xEE, 0xEE}));
}

TEST(FramedItem, SetFieldsForgetsWhatNoFormShows) {
    Circle circle;
    ASSERT_TRUE(circle.Read(Bytes{1, 50, 0x34, 0x12}));
    circle.SetFields({20});
    EXPECT_EQ(circle, CircleOf(20));
}

TEST(FramedItem, FromFieldsHasDefaultsWhereNoFormShowsAnything) {
    Circle circle;
    ASSERT_TRUE(circle.Read(Bytes{1, 50, 0x34, 0x12}));
    const Circle edited(static_cast<const CircleFields&>(circle));
    EXPECT_EQ(edited.radius, 50);
    EXPECT_EQ(edited.reserved, 0);
}

TEST(FramedItem, FromFieldsIsNormalised) {
    const Square square(SquareFields{0, Bytes{1, 2}});
    EXPECT_TRUE(square.pattern.IsEmpty());
}

TEST(FramedItem, StatusNamesTheFieldThatIsOut) {
    const ItemStatus status = CircleOf(150).GetStatus();
    EXPECT_FALSE(status.IsProper("radius"));
    EXPECT_TRUE(status.IsAll("radius"));
    EXPECT_TRUE(status.IsProper("reserved"));
    EXPECT_FALSE(status.IsValid());
    EXPECT_TRUE(status.IsValidAll());
}

TEST(FramedItem, AFieldThatDoesNotApplyIsNoFault) {
    Square square(SquareFields{0, Bytes()});
    square.pattern = Bytes{1, 2, 3};
    EXPECT_FALSE(square.GetStatus().IsPresent("pattern"));
    EXPECT_TRUE(square.IsValidAll());
}

TEST(FramedItem, ListsTheLimitsOfItsFields) {
    const std::vector<FieldLimits> limits = Circle().GetFieldLimits();
    ASSERT_EQ(limits.size(), 2u);
    EXPECT_STREQ(limits[0].name, "radius");
    EXPECT_EQ(std::get<ValueLimits>(limits[0].proper).max, 100);
    EXPECT_EQ(std::get<ValueLimits>(limits[0].all).max, 200);
    EXPECT_STREQ(limits[1].name, "reserved");
    EXPECT_EQ(std::get<LongLimits>(limits[1].all).max, 0xFFFF);
}

TEST(FramedItem, DescribesItselfInItsOwnFormat) {
    EXPECT_EQ(TextOf(CircleOf(12)), U"Circle: radius 12");
    EXPECT_EQ(TextOf(CircleOf(0)), U"Circle is empty");
}

TEST(FramedItem, DescribesItselfInTheFormatGivenWithContentOrWithout) {
    String text;
    CircleOf(12).GetText(text, U"<{description}>");
    EXPECT_EQ(text, U"<radius 12>");
    CircleOf(0).GetText(text, U"<{description}>");
    EXPECT_EQ(text, U"<radius 0>");
}

TEST(FramedItem, HasNoTextUnlessAllIsValid) {
    EXPECT_EQ(TextOf(CircleOf(201)), String());
    String text("left over");
    CircleOf(201).GetText(text, U"{type}");
    EXPECT_EQ(text, String());
}

TEST(FramedHolder, TakesTheClassOfTheTag) {
    Shape shape;
    ASSERT_TRUE(shape.Read(Bytes{2, 5, 6, 7}));
    EXPECT_EQ(shape.GetType(), ShapeTypeId::Square);
    ASSERT_TRUE(shape.Read(Bytes{1, 5, 6, 7}));
    EXPECT_EQ(shape.GetType(), ShapeTypeId::Circle);
    EXPECT_EQ(TextOf(shape), U"Circle: radius 5");
    EXPECT_EQ(BytesOf(shape), (Bytes{1, 5, 6, 7}));
}

TEST(FramedHolder, LeavesTagsOfNoClassToTheRawOne) {
    Shape shape;
    ASSERT_TRUE(shape.Read(Bytes{3, 0xAA, 0xBB, 0xCC}));
    EXPECT_EQ(shape.GetType(), ShapeTypeId::Other);
    EXPECT_EQ(BytesOf(shape), (Bytes{3, 0xAA, 0xBB, 0xCC}));
}

TEST(FramedHolder, StaysAsItWasWhenTheRangeIsTooShort) {
    Shape shape = Held(CircleOf(7));
    EXPECT_FALSE(shape.Read(Bytes{1, 2, 3}));
    EXPECT_EQ(shape, CircleOf(7));
}

TEST(FramedHolder, RoundTripsAnyFrame) {
    for (int tag = 0; tag < 256; ++tag) {
        const Bytes bytes{tag, 1, 0x5A, 0xA5};
        Shape shape;
        ASSERT_TRUE(shape.Read(bytes));
        EXPECT_EQ(BytesOf(shape), bytes) << tag;
    }
}

}  // namespace VNT
