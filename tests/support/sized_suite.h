#pragma once

#include "tests/support/family_suite.h"

// What families of items with a size of their own hold beside `FamilySuite`; for the same family structures.
namespace VNT::Testing {

template <class Family>
class SizedSuite : public FamilySuite<Family> {};

TYPED_TEST_SUITE_P(SizedSuite);

TYPED_TEST_P(SizedSuite, ANewItemTakesTheBytesThatTheChooserAsksFor) {
    for (const auto& row : TypeParam::Kinds::All()) {
        const auto item = row.make();
        EXPECT_EQ(item->GetSize(), row.addSize) << row.title;
        const bool isBlank = IsBlankWhenNew<TypeParam>(row.type);
        EXPECT_EQ(item->IsValidAll(row.addSize), !isBlank) << row.title;
        if (isBlank) continue;
        EXPECT_FALSE(item->IsValidAll(row.addSize - 1)) << row.title;
        const Bytes bytes = BytesOf(*item, row.addSize);
        const auto again = ReadAs<typename TypeParam::Holder>(bytes);
        EXPECT_EQ(again.GetSize(), row.addSize) << row.title;
        EXPECT_EQ(BytesOf(again, row.addSize), bytes) << row.title;
    }
}

TYPED_TEST_P(SizedSuite, AnItemIsAvailableInItsOwnBytesAndNoFewer) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const X item = ReadAs<X>(bytes);
        ASSERT_EQ(item.GetSize(), bytes.Size());
        for (int size = -1; size <= X::MaxSize + 1; ++size) {
            const bool fits = size >= bytes.Size();
            EXPECT_EQ(item.IsAvailable(size), fits) << size;
            EXPECT_EQ(item.IsValidAll(size), fits) << size;
            EXPECT_FALSE(item.IsValid(size) && !fits) << size;
        }
    });
}

TYPED_TEST_P(SizedSuite, FieldsOpenOneAfterTheOtherWithTheRoom) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const X item = ReadAs<X>(bytes);
        for (int size = 0; size < X::MaxSize; ++size) {
            const ItemStatus narrow = item.GetAvailable(size), wide = item.GetAvailable(size + 1);
            for (const FieldStatus& field : narrow.Fields()) EXPECT_TRUE(!field.proper || wide.IsProper(field.name));
        }
        const ItemStatus none = item.GetAvailable(0);
        for (const FieldStatus& field : none.Fields()) EXPECT_FALSE(field.proper) << field.name;
    });
}

TYPED_TEST_P(SizedSuite, BytesBehindTheFieldsAreKeptByAnEditOrDropped) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        if constexpr (std::is_constructible_v<X, const typename X::FieldsType&>) {
            typename X::FieldsType fields = ReadAs<X>(bytes);
            fields.Extra = Bytes{0xFF, 0};  // nothing that a list could read
            const X item(fields);
            if (!item.IsValidAll()) return;
            if (!X::KeepsExtra) {
                EXPECT_EQ(item.Extra, Bytes());
                return;
            }
            EXPECT_EQ(item.PresentLength, X::Shape.Longer());
            const X back = ReadAs<X>(BytesOf(item, item.GetSize()));
            EXPECT_EQ(back.Extra, fields.Extra);
        }
    });
}

REGISTER_TYPED_TEST_SUITE_P(SizedSuite, ANewItemTakesTheBytesThatTheChooserAsksFor,
                            AnItemIsAvailableInItsOwnBytesAndNoFewer, FieldsOpenOneAfterTheOtherWithTheRoom,
                            BytesBehindTheFieldsAreKeptByAnEditOrDropped);

}  // namespace VNT::Testing
