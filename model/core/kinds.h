#pragma once

#include <algorithm>
#include <memory>
#include <span>

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

template <class X, class AnyX>
constexpr TKind<AnyX> Kind(const char* title, int addSize, bool isRead = true) {
    return {static_cast<int>(X::TypeValue), title, addSize, isRead, &MakeKind<X, AnyX>};
}

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
    for (const int type : {peek.type, peek.plainType}) {
        for (const TKind<AnyX>& kind : kinds) {
            if (kind.type != type || !kind.isRead) continue;
            std::unique_ptr<AnyX> item = kind.make();
            if (item->Read(range) && item->IsValidAll()) return item;
        }
    }
    auto other = std::make_unique<Other>();
    if (!other->Read(range)) return nullptr;
    return other;
}

}  // namespace VNT
