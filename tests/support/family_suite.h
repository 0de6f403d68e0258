#pragma once

#include <functional>
#include <memory>
#include <random>
#include <set>

#include "tests/support/field_probe.h"
#include "tests/support/items.h"

// The same treatment for every kind of a family. The family's tests say
//
//     struct XFamily {
//         using Holder = X;
//         using Kinds = XKinds;
//         using Items = ItemList<XKindA, XKindB, ..., XOther>;  // a row of the table that is missing here is a failure
//         static Bytes Frame(int type, const Fill& fill);       // bytes of that type, of `fill` where they are free
//     };
//     INSTANTIATE_TYPED_TEST_SUITE_P(X, FamilySuite, XFamily);
//
// and, where a kind can't be written before its user fills it in,
//
//     static bool IsBlankWhenNew(int type);    // a new item
//     static bool NeedsAllItsBytes(int type);  // one made from the fields of a short one
namespace VNT::Testing {

template <class... X>
struct ItemList {
    template <class F>
    static void ForEach(const F& f) {
        (f(std::type_identity<X>()), ...);
    }
};

using Fill = std::function<std::uint8_t()>;

// An item of a family whose items have a size of their own: its limits are those of all the room there can be.
template <class X>
concept Sized = requires {
    X::MaxSize;
};

template <class X>
int GetRoom(const Bytes& bytes) {
    if constexpr (Sized<X>) return X::MaxSize;
    return bytes.Size();
}
// The bytes that an item made from the fields of one of `bytes` takes.
template <class X>
int GetSizeOf(const X& item, const Bytes& bytes) {
    if constexpr (Sized<X>) return item.GetSize();
    return bytes.Size();
}
// Whether the bytes have a place for the field, so that they give back what it holds.
template <class X>
bool HasPlaceFor(const X& item, const FieldProbe& probe) {
    if constexpr (Sized<X>) return !probe.isRest && item.PresentLength >= X::Shape.fixed;
    return true;
}

template <class Family>
bool IsBlankWhenNew(int type) {
    if constexpr (requires { Family::IsBlankWhenNew(type); }) return Family::IsBlankWhenNew(type);
    return false;
}
template <class Family>
bool NeedsAllItsBytes(int type) {
    if constexpr (requires { Family::NeedsAllItsBytes(type); }) return Family::NeedsAllItsBytes(type);
    return false;
}

inline Bytes Filled(int size, const Fill& fill) {
    Bytes bytes(size, 0);
    for (int i = 0; i < size; ++i) bytes.At(i) = fill();
    return bytes;
}

template <class Family>
class FamilySuite : public testing::Test {
protected:
    static constexpr int RandomRounds = 100;

    // For each class: `check(std::type_identity<X>(), bytes)` with frames of zeros, of ones and of random bytes.
    template <class F>
    void ForEachFrame(const F& check) {
        Family::Items::ForEach([&](auto kind) {
            using X = typename decltype(kind)::type;
            SCOPED_TRACE(testing::Message() << "type " << static_cast<int>(X::TypeValue));
            check(kind, Frame<X>([] { return std::uint8_t{0}; }));
            check(kind, Frame<X>([] { return std::uint8_t{0xFF}; }));
            for (int round = 0; round < RandomRounds && !this->HasFailure(); ++round) check(kind, RandomFrame<X>());
        });
    }
    template <class X>
    Bytes RandomFrame() {
        return Frame<X>([this] { return static_cast<std::uint8_t>(random_() % 256); });
    }
    template <class X>
    static Bytes Frame(const Fill& fill) {
        return Family::Frame(static_cast<int>(X::TypeValue), fill);
    }

    std::mt19937 random_{20260107};
};

TYPED_TEST_SUITE_P(FamilySuite);

TYPED_TEST_P(FamilySuite, EachRowOfTheTableIsTested) {
    std::set<int> listed;
    TypeParam::Items::ForEach([&](auto kind) { listed.insert(static_cast<int>(decltype(kind)::type::TypeValue)); });
    for (const auto& row : TypeParam::Kinds::All()) EXPECT_TRUE(listed.contains(row.type)) << row.title;
}

TYPED_TEST_P(FamilySuite, TheTableMakesWhatItSays) {
    for (const auto& row : TypeParam::Kinds::All()) {
        EXPECT_EQ(row.make()->GetType(), row.type) << row.title;
        typename TypeParam::Holder holder;
        ASSERT_TRUE(holder.Read(TypeParam::Frame(row.type, [] { return std::uint8_t{0x20}; }))) << row.title;
        EXPECT_EQ(holder.GetType() == row.type, row.isRead) << row.title;
    }
}

TYPED_TEST_P(FamilySuite, AnyPayloadGoesBackAsItWasRead) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const X item = ReadAs<X>(bytes);
        EXPECT_TRUE(item.IsValidAll()) << ToHex(bytes);
        EXPECT_EQ(BytesOf(item, bytes.Size()), bytes);
        const auto holder = ReadAs<typename TypeParam::Holder>(bytes);
        EXPECT_TRUE(holder.IsValidAll()) << ToHex(bytes);
        EXPECT_EQ(BytesOf(holder, bytes.Size()), bytes);
    });
}

TYPED_TEST_P(FamilySuite, ACutAtAnyLengthIsRefused) {
    TypeParam::Items::ForEach([&](auto kind) {
        using X = typename decltype(kind)::type;
        const Bytes bytes = this->template RandomFrame<X>();
        const X item = ReadAs<X>(bytes);
        for (int length = 0; length < bytes.Size(); ++length) {
            X target = ReadAs<X>(bytes);
            EXPECT_FALSE(target.Read(bytes.Slice(0, length))) << length;
            EXPECT_EQ(target, item) << length;
            typename TypeParam::Holder holder;
            EXPECT_FALSE(holder.Read(bytes.Slice(0, length))) << length;
            EXPECT_TRUE(holder.IsEmpty()) << length;
            EXPECT_EQ(BytesOf(item, length), Bytes()) << length;
        }
    });
}

TYPED_TEST_P(FamilySuite, BytesBehindTheFrameAreLeftAlone) {
    TypeParam::Items::ForEach([&](auto kind) {
        using X = typename decltype(kind)::type;
        Bytes bytes = this->template RandomFrame<X>();
        const X item = ReadAs<X>(bytes);
        bytes.Append(Bytes{0xEE, 0xEE, 0xEE});
        EXPECT_EQ(ReadAs<X>(bytes), item);
        EXPECT_EQ(BytesOf(item, bytes.Size()), bytes);
    });
}

TYPED_TEST_P(FamilySuite, EveryFieldKeepsToItsLimits) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const int size = bytes.Size();
        const int room = GetRoom<X>(bytes);
        const X base = ReadAs<X>(bytes);
        for (const FieldProbe& probe : ProbesOf(base, room)) {
            if (!HasPlaceFor(base, probe)) continue;
            SCOPED_TRACE(probe.name + " = " + std::to_string(probe.number) + " in " + ToHex(bytes));
            X item = base;
            PutField(item, room, probe.name, probe.number);
            const ItemStatus status = item.GetStatus();
            EXPECT_EQ(status.IsProper(probe.name), probe.proper);
            EXPECT_EQ(status.IsAll(probe.name), probe.all);
            EXPECT_EQ(status.IsValid(), item.IsValid());
            EXPECT_EQ(status.IsValidAll(), item.IsValidAll());
            const Bytes written = BytesOf(item, size);
            EXPECT_EQ(written.IsEmpty(), !item.IsValidAll());
            if (!item.IsValidAll()) {
                EXPECT_EQ(TextOf(item), "");
                continue;
            }
            const auto back = GetField(ReadAs<X>(written), room, probe.name);
            EXPECT_EQ(back.value_or(probe.number), probe.number);
        }
    });
}

TYPED_TEST_P(FamilySuite, EveryFieldHasANameOfItsOwn) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const ItemStatus status = ReadAs<X>(bytes).GetStatus();
        std::set<std::string> names;
        for (const FieldStatus& field : status.Fields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
    });
}

TYPED_TEST_P(FamilySuite, ACloneIsEqualAndOtherBytesAreNot) {
    this->ForEachFrame([this](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        const auto holder = ReadAs<typename TypeParam::Holder>(bytes);
        EXPECT_TRUE(*holder.Clone() == holder);
        const X item = ReadAs<X>(bytes);
        X copy;
        EXPECT_EQ(copy.Assign(holder), holder.GetType() == item.GetType());
        EXPECT_EQ(copy == item, holder.GetType() == item.GetType());
        const Bytes others = this->template RandomFrame<X>();
        EXPECT_EQ(ReadAs<X>(others) == item, others == bytes);
        EXPECT_EQ(ReadAs<typename TypeParam::Holder>(others) == holder, others == bytes);
    });
}

TYPED_TEST_P(FamilySuite, EveryTemplateExpands) {
    this->ForEachFrame([](auto kind, Bytes bytes) {
        using X = typename decltype(kind)::type;
        for (int i = 0; i < bytes.Size(); ++i) {
            if (bytes.At(i) == '{' || bytes.At(i) == '}') bytes.At(i) = '*';
        }
        X item;
        if (!item.Read(bytes)) return;
        for (const std::string& text : {TextOf(item), TextOf(item, U"{type}: {description}!")}) {
            EXPECT_NE(text, "");
            EXPECT_EQ(text.find_first_of("{}"), std::string::npos) << text;
        }
        EXPECT_EQ(TextOf(item, U"as it stands"), "as it stands");
    });
}

TYPED_TEST_P(FamilySuite, FromItsFieldsTwiceIsAsOnce) {
    this->ForEachFrame([](auto kind, const Bytes& bytes) {
        using X = typename decltype(kind)::type;
        if constexpr (std::is_constructible_v<X, const typename X::FieldsType&>) {
            const X item = ReadAs<X>(bytes);
            const X once(static_cast<const typename X::FieldsType&>(item));
            const X twice(static_cast<const typename X::FieldsType&>(once));
            EXPECT_EQ(once, twice) << ToHex(bytes);
            if (NeedsAllItsBytes<TypeParam>(static_cast<int>(X::TypeValue)) && !item.IsValid() && !once.IsValidAll())
                return;
            const int size = GetSizeOf(once, bytes);
            const Bytes written = BytesOf(once, size);
            ASSERT_FALSE(written.IsEmpty()) << ToHex(bytes);
            EXPECT_EQ(BytesOf(ReadAs<X>(written), size), written);
        }
    });
}

REGISTER_TYPED_TEST_SUITE_P(FamilySuite, EachRowOfTheTableIsTested, TheTableMakesWhatItSays,
                            AnyPayloadGoesBackAsItWasRead, ACutAtAnyLengthIsRefused, BytesBehindTheFrameAreLeftAlone,
                            EveryFieldKeepsToItsLimits, EveryFieldHasANameOfItsOwn, ACloneIsEqualAndOtherBytesAreNot,
                            EveryTemplateExpands, FromItsFieldsTwiceIsAsOnce);

}  // namespace VNT::Testing
