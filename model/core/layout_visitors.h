#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "model/core/characters.h"
#include "model/core/layout.h"

// The visitors of bytes, which are compiled for each class because they run often.

namespace VNT {

namespace Detail {

template <class T>
concept FlagHolder = requires(const T& t) {
    t.GetBits();
    T::BitCount;
    T::AllBits;
};

template <class T>
T FromRaw(std::uint32_t raw) {
    constexpr bool keepsAnyNumber = !std::is_enum_v<T> || requires { T{0}; };
    static_assert(keepsAnyNumber, "an enumeration that is read from bytes needs a fixed underlying type");
    if constexpr (std::is_same_v<T, bool>) {
        return raw != 0;
    } else {
        return static_cast<T>(raw);
    }
}

template <class T>
std::uint32_t ToRaw(const T& value) {
    if constexpr (FlagHolder<T>) {
        return value.GetBits();
    } else {
        return static_cast<std::uint32_t>(value);
    }
}

template <class T, class L>
bool Passes(const T& value, const L& limits) {
    if constexpr (std::is_enum_v<T>) {
        return limits.Contains(static_cast<int>(value));
    } else if constexpr (FlagHolder<T>) {
        return limits.Contains(static_cast<int>(value.GetBits()));
    } else {
        return limits.Contains(value);
    }
}

}  // namespace Detail

// What every visitor knows of its frame.
class LayoutVisitor {
public:
    explicit LayoutVisitor(int available) : available_(available) {}
    int Available() const { return available_; }  // bytes that the item may take
    void Order(BitOrder order) { order_ = order; }
    // What only tests look at: `make()`, which a visitor that moves bytes needn't run.
    template <class Make>
    static auto Tested(const Make& make) {
        return make();
    }

protected:
    BitOrder order_ = BitOrder::Lsb;

private:
    int available_;
};

// A visitor that moves bytes and tests nothing.
class ByteVisitor : public LayoutVisitor {
public:
    using LayoutVisitor::LayoutVisitor;

    template <class Make>
    static auto Tested(const Make&) {
        return decltype(std::declval<const Make&>()()){};
    }
};

// Its lines are inlined, or the places would not be settled when they are compiled.
class LayoutReader : public ByteVisitor {
public:
    explicit LayoutReader(ByteRange range) : ByteVisitor(range.Size()), range_(range) {}

    VANTELLE_INLINED void Constant(const BitPlace& place, std::uint32_t) { place.Read(range_, order_); }
    template <class T>
    VANTELLE_INLINED void Kept(const char*, const BitPlace& place, T& value) {
        value = Detail::FromRaw<T>(place.Read(range_, order_));
    }
    template <class T, class L>
    VANTELLE_INLINED void Number(const char*, const BitPlace& place, T& value, const TLimitPair<L>&) {
        value = Detail::FromRaw<T>(place.Read(range_, order_));
    }
    // `coding` has `Decode(raw)` and `Encode(value)`, as TValueCoding.
    template <class T, class Coding, class L>
    VANTELLE_INLINED void Number(const char*, const BitPlace& place, T& value, const Coding& coding,
                                 const TLimitPair<L>&) {
        value = coding.Decode(place.Read(range_, order_));
    }
    // A number that building from the other fields gives.
    template <class... Line>
    VANTELLE_INLINED void Derived(const char* name, Line&&... line) {
        Number(name, std::forward<Line>(line)...);
    }
    // A number that is no field of its own: `set` takes the raw number, `get` gives it.
    template <class Get, class Set>
    VANTELLE_INLINED void Through(const BitPlace& place, const Get&, const Set& set) {
        set(place.Read(range_, order_));
    }
    // The same for `count` bytes.
    template <class Get, class Set>
    void ThroughData(int count, const Get&, const Set& set) {
        set(range_.Take(count));
    }
    void Data(const char*, int count, Bytes& value, const TLimitPair<CountLimits>&) {
        value.Assign(range_.Take(count));
    }
    // What is left: bytes, or characters of a byte each.
    void Rest(const char*, Bytes& value, const TLimitPair<CountLimits>&) { value.Assign(range_.TakeRest()); }
    void Rest(const char*, String& value, const TLimitPair<CountLimits>&) {
        value = CharactersOfBytes(range_.TakeRest());
    }
    // An item or list of its own in the next `count` bytes.
    template <class Item>
    void Part(const char*, int count, Item& item, bool, bool) {
        item.Read(range_.Take(count));
    }
    // A list that takes as many of the next bytes as it can read.
    template <class Items, class L>
    void List(const char*, Items& list, const TLimitPair<L>&) {
        list.Read(range_.Peek(range_.RemainingBytes()));
        range_.Take(list.GetSize());
    }
    // An item with a size of its own, of at most `available` bytes, that stands here or doesn't; whether it does.
    // `isThere` tells that of an item that is not being read.
    template <class Item>
    bool Optional(const char*, Item& item, bool, int) {
        if (!item.Read(range_.Peek(range_.RemainingBytes()))) return false;
        range_.Take(item.GetSize());
        return true;
    }
    // The next `count` bytes are laid out by `map`, whatever stands behind them.
    template <class Inner>
    void Area(int count, const Inner& map) {
        LayoutReader io(range_.Take(count));
        map(io);
    }
    void Check(const char*, bool, bool) {}
    // A field whose bytes go through another line, and what its tests say.
    template <class T>
    void Value(const char*, const T&, bool, bool, NumberNames = {}) {}

private:
    ByteRange range_;
};

class LayoutWriter : public ByteVisitor {
public:
    explicit LayoutWriter(ByteRange range) : ByteVisitor(range.Size()), range_(range) {}

    void Constant(const BitPlace& place, std::uint32_t raw) { place.Write(range_, order_, raw); }
    // Flags with holes leave the bits there to whatever else writes them.
    template <class T>
    void Kept(const char*, const BitPlace& place, const T& value) {
        std::uint32_t raw = Detail::ToRaw(value);
        if constexpr (Detail::FlagHolder<T>) {
            ByteRange before = range_;
            raw |= place.Read(before, order_) & ~T::AllBits;
        }
        place.Write(range_, order_, raw);
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const TLimitPair<L>&) {
        Kept(name, place, value);
    }
    template <class T, class Coding, class L>
    void Number(const char*, const BitPlace& place, const T& value, const Coding& coding, const TLimitPair<L>&) {
        place.Write(range_, order_, static_cast<std::uint32_t>(coding.Encode(value)));
    }
    // A number that building from the other fields gives.
    template <class... Line>
    void Derived(const char* name, Line&&... line) {
        Number(name, std::forward<Line>(line)...);
    }
    template <class Get, class Set>
    void Through(const BitPlace& place, const Get& get, const Set&) {
        place.Write(range_, order_, static_cast<std::uint32_t>(get()));
    }
    template <class Get, class Set>
    void ThroughData(int count, const Get& get, const Set&) {
        range_.Take(count).CopyFrom(get());
    }
    void Data(const char*, int count, const Bytes& value, const TLimitPair<CountLimits>&) {
        range_.Take(count).CopyFrom(value);
    }
    void Rest(const char*, const Bytes& value, const TLimitPair<CountLimits>&) {
        range_.Take(value.Size()).CopyFrom(value);
    }
    void Rest(const char*, const String& value, const TLimitPair<CountLimits>&) {
        range_.Take(value.Length()).CopyFrom(BytesOfCharacters(value, value.Length()));
    }
    template <class Item>
    void Part(const char*, int count, const Item& item, bool, bool) {
        item.Write(range_.Take(count));
    }
    template <class Items, class L>
    void List(const char*, const Items& list, const TLimitPair<L>&) {
        list.Write(range_.Take(list.GetSize()));
    }
    template <class Item>
    bool Optional(const char*, const Item& item, bool isThere, int) {
        if (isThere) item.Write(range_.Take(item.GetSize()));
        return isThere;
    }
    template <class Inner>
    void Area(int count, const Inner& map) {
        LayoutWriter io(range_.Take(count));
        map(io);
    }
    void Check(const char*, bool, bool) {}
    // A field whose bytes go through another line, and what its tests say.
    template <class T>
    void Value(const char*, const T&, bool, bool, NumberNames = {}) {}

private:
    ByteRange range_;
};

// Tests each field: the two overall tests alone, for the paths that run often.
class LayoutChecker : public LayoutVisitor {
public:
    using LayoutVisitor::LayoutVisitor;

    void Constant(const BitPlace&, std::uint32_t) {}
    template <class Get, class Set>
    void Through(const BitPlace&, const Get&, const Set&) {}
    template <class Get, class Set>
    void ThroughData(int, const Get&, const Set&) {}
    template <class T>
    void Kept(const char*, const BitPlace& place, const T& value) {
        bool fits = true;
        if constexpr (std::is_integral_v<T>) fits = value >= T{} && static_cast<std::int64_t>(value) <= place.Most();
        Add(fits, fits);
    }
    template <class T, class L>
    void Number(const char*, const BitPlace&, const T& value, const TLimitPair<L>& limits) {
        Add(Detail::Passes(value, limits.proper), Detail::Passes(value, limits.all));
    }
    template <class T, class Coding, class L>
    void Number(const char*, const BitPlace&, const T& value, const Coding&, const TLimitPair<L>& limits) {
        Add(Detail::Passes(value, limits.proper), Detail::Passes(value, limits.all));
    }
    // A number that building from the other fields gives.
    template <class... Line>
    void Derived(const char* name, Line&&... line) {
        Number(name, std::forward<Line>(line)...);
    }
    void Data(const char* name, int, const Bytes& value, const TLimitPair<CountLimits>& limits) {
        Rest(name, value, limits);
    }
    void Rest(const char*, const Bytes& value, const TLimitPair<CountLimits>& limits) {
        Add(limits.proper.Contains(value.Size()), limits.all.Contains(value.Size()));
    }
    void Rest(const char*, const String& value, const TLimitPair<CountLimits>& limits) {
        const bool fits = AreBytes(value);
        Add(fits && limits.proper.Contains(value.Length()), fits && limits.all.Contains(value.Length()));
    }
    // `proper` and `all` are what the part's own tests say.
    template <class Item>
    void Part(const char*, int, const Item&, bool proper, bool all) {
        Add(proper, all);
    }
    template <class Items, class L>
    void List(const char*, const Items& list, const TLimitPair<L>& limits) {
        Add(limits.proper.Contains(list), limits.all.Contains(list));
    }
    template <class Item>
    bool Optional(const char*, const Item& item, bool isThere, int available) {
        if (isThere) Add(item.IsValid(available), item.IsValidAll(available));
        return isThere;
    }
    template <class Inner>
    void Area(int, const Inner& map) {
        map(*this);
    }
    // A rule of the item's own.
    void Check(const char*, bool proper, bool all) { Add(proper, all); }
    template <class T>
    void Value(const char*, const T&, bool proper, bool all, NumberNames = {}) {
        Add(proper, all);
    }

    Validity validity;

private:
    void Add(bool proper, bool all) {
        validity.proper = validity.proper && proper;
        validity.all = validity.all && all;
    }
};

}  // namespace VNT
