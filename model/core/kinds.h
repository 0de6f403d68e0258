#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>

#include "model/core/bytes.h"

namespace VNT {

// A row of a family's table of kinds: what `PeekType` finds in the bytes, the kind's title, the least bytes that adding
// one takes, whether bytes of the type are read as this class, and the maker of a new item.
template <class AnyX>
struct TKind {
    int type;
    const char* title;
    int addSize;
    bool isRead;
    std::unique_ptr<AnyX> (*make)();
};

// The bytes that the shortest new item of the family takes.
template <class AnyX>
int GetLeastAddSize(std::span<const TKind<AnyX>> kinds) {
    int least = kinds.front().addSize;
    for (const TKind<AnyX>& kind : kinds) least = std::min(least, kind.addSize);
    return least;
}

template <class X, class AnyX>
std::unique_ptr<AnyX> MakeKind() {
    return std::make_unique<X>();
}

// The bytes that a new item takes.
template <class X, class AnyX>
constexpr int GetAddSize() {
    if constexpr (requires { X::Shape; }) {
        return X::PrefixSize + X::Shape.Least();
    } else {
        return AnyX::FrameSize;
    }
}

template <class X, class AnyX>
constexpr TKind<AnyX> Kind(const char* title, bool isRead = true) {
    return {static_cast<int>(X::TypeValue), title, GetAddSize<X, AnyX>(), isRead, &MakeKind<X, AnyX>};
}

// A row of the list of a family's kinds.
template <class X>
struct TKindRow {
    const char* title;
    bool isRead;
};
template <class X>
constexpr TKindRow<X> KindOf(const char* title, bool isRead = true) {
    return {title, isRead};
}
// The class that takes what no kind takes.
template <class X>
struct TOtherKind {};

// The one list of a family's kinds, in a header of its own, which the family's other headers don't include. The table
// of kinds, the code of their layouts (TMadeKinds) and the list of the tests are made of it:
//
//     inline constexpr TKindList XKindList{TOtherKind<XOther>(), KindOf<XA>("A"), KindOf<XB>("B")};
template <class OtherX, class... X>
class TKindList {
public:
    using Other = OtherX;

    constexpr TKindList(TOtherKind<OtherX>, TKindRow<X>... rows) : titles_{rows.title...}, isRead_{rows.isRead...} {}

    template <class AnyX>
    constexpr std::array<TKind<AnyX>, sizeof...(X)> MakeTable() const {
        std::size_t at = 0;
        return {MakeRow<X, AnyX>(at++)...};
    }
    // `f(std::type_identity<X>())` for each class, that of all others last.
    template <class F>
    static void ForEach(const F& f) {
        (f(std::type_identity<X>()), ...);
        f(std::type_identity<OtherX>());
    }

private:
    template <class Row, class AnyX>
    constexpr TKind<AnyX> MakeRow(std::size_t at) const {
        return Kind<Row, AnyX>(titles_[at], isRead_[at]);
    }

    std::array<const char*, sizeof...(X)> titles_;
    std::array<bool, sizeof...(X)> isRead_;
};

// The item for the bytes: the kind whose type they have, else `Other`, which keeps whatever it is given. Null if the
// range is too short for the family's frame.
template <class Other, class AnyX>
std::unique_ptr<AnyX> ReadKind(std::span<const TKind<AnyX>> kinds, ByteRange range) {
    const int type = AnyX::PeekType(range);
    if (type == AnyX::NoType) return nullptr;
    for (const TKind<AnyX>& kind : kinds) {
        if (kind.type != type || !kind.isRead) continue;
        std::unique_ptr<AnyX> item = kind.make();
        if (item->Read(range)) return item;
    }
    auto other = std::make_unique<Other>();
    if (!other->Read(range)) return nullptr;
    return other;
}

// The same for a family whose items have a size of their own, and whose bytes may name a vendor: a kind of just this
// vendor comes first, then one that takes any. What a kind reads but couldn't write back goes to `Other` as well, so
// that no item of a list gets lost.
template <class Other, class AnyX>
std::unique_ptr<AnyX> ReadSizedKind(std::span<const TKind<AnyX>> kinds, ByteRange range) {
    const auto peek = AnyX::Peek(range);
    if (peek.type == AnyX::NoType) return nullptr;
    const auto read = [kinds, range](int type) -> std::unique_ptr<AnyX> {
        for (const TKind<AnyX>& kind : kinds) {
            if (kind.type != type || !kind.isRead) continue;
            std::unique_ptr<AnyX> item = kind.make();
            if (item->Read(range) && item->IsValidAll()) return item;
        }
        return nullptr;
    };
    if (auto item = read(peek.type)) return item;
    if (peek.plainType != peek.type) {
        if (auto item = read(peek.plainType)) return item;
    }
    auto other = std::make_unique<Other>();
    if (!other->Read(range) || !other->IsValidAll()) return nullptr;
    return other;
}

}  // namespace VNT
