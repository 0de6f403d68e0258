#pragma once

#include <functional>
#include <memory>
#include <random>
#include <set>

#include "model/core/kinds.h"
#include "tests/support/difference.h"
#include "tests/support/every_bit.h"
#include "tests/support/field_probe.h"
#include "tests/support/items.h"

// The same treatment for every kind of a family. The family's tests say
//
//     struct XFamily {
//         using Any = AnyX;
//         using Holder = X;
//         using Kinds = XKinds;
//         static constexpr const auto& List = XKindList;
//         static Bytes Frame(int type, const Fill& fill);  // bytes of that type, of `fill` where they are free
//     };
//     INSTANTIATE_TYPED_TEST_SUITE_P(X, FamilySuite, XFamily);
//
// and, where a kind can't be written before its user fills it in,
//
//     static bool IsBlankWhenNew(int type);    // a new item
//     static bool NeedsAllItsBytes(int type);  // one made from the fields of a short one
//
// The suites know the kinds by what all items of the family can, so that they are compiled once for a family.
namespace VNT::Testing {

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
template <class X>
Teller TellerOf(X& item, int room) {
    return [&item, room](FieldSink& sink) { item.TellFields(room, sink); };
}
// Of which fields the bytes have the place, so that they give back what it holds.
template <class X>
ItemStatus GetPlaces(X& item, const Bytes& bytes) {
    if constexpr (Sized<X>) return GetReachOf(TellerOf(item, X::MaxSize), bytes.Size());
    return {};
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
    using Any = typename Family::Any;
    using Holder = typename Family::Holder;
    static constexpr int RandomRounds = 100;

    struct Class {
        int type;
        std::unique_ptr<Any> (*make)();

        std::unique_ptr<Any> Read(const Bytes& bytes) const {
            std::unique_ptr<Any> item = make();
            EXPECT_TRUE(item->Read(bytes)) << ToHex(bytes);
            return item;
        }
    };
    // Each class of the family, that of all others included.
    static std::vector<Class> Classes() {
        std::vector<Class> classes;
        Family::List.ForEach([&classes](auto kind) {
            using X = typename decltype(kind)::type;
            classes.push_back({static_cast<int>(X::TypeValue), &MakeKind<X, Any>});
        });
        return classes;
    }

    using FrameCheck = std::function<void(const Class& kind, const Bytes& bytes)>;
    // For each class: `check` with frames of zeros, of ones and of random bytes.
    void ForEachFrame(const FrameCheck& check) {
        for (const Class& kind : Classes()) {
            SCOPED_TRACE(testing::Message() << "type " << kind.type);
            check(kind, Family::Frame(kind.type, [] { return std::uint8_t{0}; }));
            check(kind, Family::Frame(kind.type, [] { return std::uint8_t{0xFF}; }));
            for (int round = 0; round < RandomRounds && !this->HasFailure(); ++round) check(kind, RandomFrame(kind));
        }
    }
    Bytes RandomFrame(const Class& kind) {
        return Family::Frame(kind.type, [this] { return static_cast<std::uint8_t>(random_() % 256); });
    }

    std::mt19937 random_{20260107};
};

TYPED_TEST_SUITE_P(FamilySuite);

TYPED_TEST_P(FamilySuite, EachRowOfTheTableIsTested) {
    std::set<int> listed{TypeParam::Any::NoType}, rows{TypeParam::Any::NoType};
    for (const auto& kind : this->Classes()) EXPECT_TRUE(listed.insert(kind.type).second) << kind.type << " twice";
    for (const auto& row : TypeParam::Kinds::All()) rows.insert(row.type);
    rows.insert(this->Classes().back().type);
    EXPECT_TRUE(HaveNoDifference(rows, listed));
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
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const auto item = kind.Read(bytes);
        EXPECT_TRUE(item->IsValidAll()) << ToHex(bytes);
        EXPECT_EQ(BytesOf(*item, bytes.Size()), bytes);
        const auto holder = ReadAs<typename TypeParam::Holder>(bytes);
        EXPECT_TRUE(holder.IsValidAll()) << ToHex(bytes);
        EXPECT_EQ(BytesOf(holder, bytes.Size()), bytes);
    });
}

TYPED_TEST_P(FamilySuite, ACutAtAnyLengthIsRefused) {
    for (const auto& kind : this->Classes()) {
        const Bytes bytes = this->RandomFrame(kind);
        const auto item = kind.Read(bytes);
        for (int length = 0; length < bytes.Size(); ++length) {
            const auto target = kind.Read(bytes);
            EXPECT_FALSE(target->Read(bytes.Slice(0, length))) << length;
            EXPECT_TRUE(*target == *item) << length;
            typename TypeParam::Holder holder;
            EXPECT_FALSE(holder.Read(bytes.Slice(0, length))) << length;
            EXPECT_TRUE(holder.IsEmpty()) << length;
            EXPECT_EQ(BytesOf(*item, length), Bytes()) << length;
        }
    }
}

TYPED_TEST_P(FamilySuite, BytesBehindTheFrameAreLeftAlone) {
    for (const auto& kind : this->Classes()) {
        Bytes bytes = this->RandomFrame(kind);
        const auto item = kind.Read(bytes);
        bytes.Append(Bytes{0xEE, 0xEE, 0xEE});
        EXPECT_TRUE(*kind.Read(bytes) == *item) << ToHex(bytes);
        EXPECT_EQ(BytesOf(*item, bytes.Size()), bytes);
    }
}

TYPED_TEST_P(FamilySuite, EveryFieldKeepsToItsLimits) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        using Any = typename TypeParam::Any;
        const int size = bytes.Size();
        const int room = GetRoom<Any>(bytes);
        const auto base = kind.Read(bytes);
        const ItemStatus places = GetPlaces(*base, bytes);
        for (const FieldProbe& probe : ProbesOf(TellerOf(*base, room))) {
            if ((Sized<Any> && probe.isRest) || !places.IsProper(probe.name)) continue;
            SCOPED_TRACE(probe.name + " = " + std::to_string(probe.number) + " in " + ToHex(bytes));
            const auto item = base->Clone();
            PutField(TellerOf(*item, room), probe.name, probe.number);
            const ItemStatus status = GetStatusOf(TellerOf(*item, room));
            EXPECT_EQ(status.IsProper(probe.name), probe.proper);
            EXPECT_EQ(status.IsAll(probe.name), probe.all);
            EXPECT_EQ(status.IsValid(), item->IsValid());
            EXPECT_EQ(status.IsValidAll(), item->IsValidAll());
            const Bytes written = BytesOf(*item, size);
            EXPECT_EQ(written.IsEmpty(), !item->IsValidAll());
            if (!item->IsValidAll()) {
                EXPECT_EQ(TextOf(*item), "");
                continue;
            }
            const auto back = kind.Read(written);
            EXPECT_EQ(GetField(TellerOf(*back, room), probe.name).value_or(probe.number), probe.number);
        }
    });
}

TYPED_TEST_P(FamilySuite, EveryFieldHasANameOfItsOwn) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const auto item = kind.Read(bytes);
        const ItemStatus status = GetStatusOf(TellerOf(*item, GetRoom<typename TypeParam::Any>(bytes)));
        std::set<std::string> names;
        for (const FieldStatus& field : status.Fields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
    });
}

TYPED_TEST_P(FamilySuite, ACloneIsEqualAndOtherBytesAreNot) {
    this->ForEachFrame([this](const auto& kind, const Bytes& bytes) {
        const auto holder = ReadAs<typename TypeParam::Holder>(bytes);
        EXPECT_TRUE(*holder.Clone() == holder);
        const auto item = kind.Read(bytes);
        const auto copy = kind.make();
        EXPECT_EQ(copy->Assign(holder), holder.GetType() == item->GetType());
        EXPECT_EQ(*copy == *item, holder.GetType() == item->GetType());
        const Bytes others = this->RandomFrame(kind);
        EXPECT_EQ(*kind.Read(others) == *item, others == bytes);
        EXPECT_EQ(ReadAs<typename TypeParam::Holder>(others) == holder, others == bytes);
    });
}

TYPED_TEST_P(FamilySuite, EachBitTells) {
    using Holder = typename TypeParam::Holder;
    for (const auto& kind : this->Classes()) {
        ExpectThatEachBitTells<Holder>(TypeParam::Frame(kind.type, [] { return std::uint8_t{0}; }));
        ExpectThatEachBitTells<Holder>(TypeParam::Frame(kind.type, [] { return std::uint8_t{0xFF}; }));
        for (int round = 0; round < 5; ++round) ExpectThatEachBitTells<Holder>(this->RandomFrame(kind));
    }
}

TYPED_TEST_P(FamilySuite, AnEmptyHolderAnswersWithNothing) {
    constexpr int room = 40;
    typename TypeParam::Holder holder;
    EXPECT_EQ(BytesOf(holder, room), Bytes());
    EXPECT_FALSE(holder.IsValid());
    EXPECT_FALSE(holder.IsValidAll());
    EXPECT_TRUE(holder.GetParts().empty());
    EXPECT_TRUE(GetStatusOf(TellerOf(holder, room)).Fields().empty());
    EXPECT_EQ(TextOf(holder), "");
    EXPECT_EQ(TextOf(holder, U"{type}"), "");
    holder.Renew();
    EXPECT_TRUE(holder.IsEmpty());
    if constexpr (Sized<typename TypeParam::Any>) {
        EXPECT_EQ(holder.GetSize(), 0);
        EXPECT_FALSE(holder.IsAvailable(room));
        EXPECT_TRUE(holder.GetAvailable(room).Fields().empty());
        EXPECT_FALSE(holder.IsValid(room));
        EXPECT_FALSE(holder.IsValidAll(room));
    } else {
        EXPECT_FALSE(holder.IsValidAllAsRead());
    }
}

// A holder says what the item in it says.
TYPED_TEST_P(FamilySuite, AHolderAnswersAsWhatItHolds) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const int room = GetRoom<typename TypeParam::Any>(bytes);
        typename TypeParam::Holder holder(kind.Read(bytes));
        const auto item = kind.Read(bytes);
        EXPECT_EQ(holder.GetType(), kind.type);
        EXPECT_EQ(holder.IsValid(), item->IsValid());
        EXPECT_EQ(TextOf(holder, U"{type}"), TextOf(*item, U"{type}"));
        EXPECT_EQ(GetStatusOf(TellerOf(holder, room)).IsValidAll(), GetStatusOf(TellerOf(*item, room)).IsValidAll());
        EXPECT_EQ(GetStatusOf(TellerOf(holder, room)).Fields().size(),
                  GetStatusOf(TellerOf(*item, room)).Fields().size());
        EXPECT_EQ(holder.GetParts().size(), item->GetParts().size());
        if constexpr (Sized<typename TypeParam::Any>) {
            EXPECT_EQ(holder.GetSize(), item->GetSize());
            for (const int size : {0, item->GetSize() - 1, item->GetSize(), room}) {
                EXPECT_EQ(holder.IsAvailable(size), item->IsAvailable(size)) << size;
                EXPECT_EQ(holder.IsValid(size), item->IsValid(size)) << size;
                EXPECT_EQ(holder.IsValidAll(size), item->IsValidAll(size)) << size;
                EXPECT_EQ(holder.GetAvailable(size).Fields().size(), item->GetAvailable(size).Fields().size()) << size;
            }
        }
        holder.Renew();
        item->Renew();
        EXPECT_TRUE(holder == *item);
    });
}

TYPED_TEST_P(FamilySuite, EveryTemplateExpands) {
    this->ForEachFrame([](const auto& kind, Bytes bytes) {
        for (int i = 0; i < bytes.Size(); ++i) {
            if (bytes.At(i) == '{' || bytes.At(i) == '}') bytes.At(i) = '*';
        }
        const auto item = kind.make();
        if (!item->Read(bytes)) return;
        for (const std::string& text : {TextOf(*item), TextOf(*item, U"{type}: {description}!")}) {
            EXPECT_NE(text, "");
            EXPECT_EQ(text.find_first_of("{}"), std::string::npos) << text;
        }
        EXPECT_EQ(TextOf(*item, U"as it stands"), "as it stands");
    });
}

TYPED_TEST_P(FamilySuite, FromItsFieldsTwiceIsAsOnce) {
    this->ForEachFrame([](const auto& kind, const Bytes& bytes) {
        const auto item = kind.Read(bytes);
        const auto once = item->Clone();
        once->Renew();
        const auto twice = once->Clone();
        twice->Renew();
        EXPECT_TRUE(*once == *twice) << ToHex(bytes);
        if (NeedsAllItsBytes<TypeParam>(kind.type) && !item->IsValid() && !once->IsValidAll()) return;
        const int size = GetSizeOf(*once, bytes);
        const Bytes written = BytesOf(*once, size);
        ASSERT_FALSE(written.IsEmpty()) << ToHex(bytes);
        EXPECT_EQ(BytesOf(*kind.Read(written), size), written);
    });
}

REGISTER_TYPED_TEST_SUITE_P(FamilySuite, EachRowOfTheTableIsTested, TheTableMakesWhatItSays,
                            AnyPayloadGoesBackAsItWasRead, ACutAtAnyLengthIsRefused, BytesBehindTheFrameAreLeftAlone,
                            EveryFieldKeepsToItsLimits, EveryFieldHasANameOfItsOwn, ACloneIsEqualAndOtherBytesAreNot,
                            EachBitTells, AnEmptyHolderAnswersWithNothing, AHolderAnswersAsWhatItHolds,
                            EveryTemplateExpands, FromItsFieldsTwiceIsAsOnce);

}  // namespace VNT::Testing
