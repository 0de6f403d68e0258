#pragma once

#include "tests/support/family_suite.h"

// What families of items with a size of their own hold beside `FamilySuite`; for the same family structures, which say
//
//     static bool DropsExtra(int type);  // an edit of the kind keeps nothing behind its fields
//
// where it has such kinds.
namespace VNT::Testing {

template <class Family>
bool DropsExtra(int type) {
    if constexpr (requires { Family::DropsExtra(type); }) return Family::DropsExtra(type);
    return false;
}

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
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const auto item = kind.Read(bytes);
        ASSERT_EQ(item->GetSize(), bytes.Size());
        for (int size = -1; size <= TypeParam::Any::MaxSize + 1; ++size) {
            const bool fits = size >= bytes.Size();
            EXPECT_EQ(item->IsAvailable(size), fits) << size;
            EXPECT_EQ(item->IsValidAll(size), fits) << size;
            EXPECT_FALSE(item->IsValid(size) && !fits) << size;
        }
    });
}

TYPED_TEST_P(SizedSuite, FieldsOpenOneAfterTheOtherWithTheRoom) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const auto item = kind.Read(bytes);
        for (int size = 0; size < TypeParam::Any::MaxSize; ++size) {
            const ItemStatus narrow = item->GetAvailable(size), wide = item->GetAvailable(size + 1);
            for (const FieldStatus& field : narrow.Fields()) EXPECT_TRUE(!field.proper || wide.IsProper(field.name));
        }
        const ItemStatus none = item->GetAvailable(0);
        for (const FieldStatus& field : none.Fields()) EXPECT_FALSE(field.proper) << field.name;
    });
}

TYPED_TEST_P(SizedSuite, BytesBehindTheFieldsAreKeptByAnEditOrDropped) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        constexpr int room = TypeParam::Any::MaxSize;
        const Bytes extra{0xFF, 0};  // nothing that a list could read
        const auto put = [&extra](auto& target) {
            BytesHand hand("Extra", extra);
            target.TellFields(room, hand);
            target.Renew();
        };
        const auto get = [](auto& source) {
            BytesHand hand("Extra");
            source.TellFields(room, hand);
            return hand.bytes;
        };
        const auto item = kind.Read(bytes);
        put(*item);
        if (!item->IsValidAll()) return;
        const Bytes written = BytesOf(*item, item->GetSize());
        if (DropsExtra<TypeParam>(kind.type)) {
            EXPECT_EQ(get(*item), Bytes());
            return;
        }
        const auto back = kind.Read(written);
        EXPECT_EQ(get(*back), extra);
        EXPECT_EQ(written.Slice(written.Size() - extra.Size(), extra.Size()), extra);
    });
}

REGISTER_TYPED_TEST_SUITE_P(SizedSuite, ANewItemTakesTheBytesThatTheChooserAsksFor,
                            AnItemIsAvailableInItsOwnBytesAndNoFewer, FieldsOpenOneAfterTheOtherWithTheRoom,
                            BytesBehindTheFieldsAreKeptByAnEditOrDropped);

}  // namespace VNT::Testing
