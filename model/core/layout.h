#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "model/core/bytes.h"
#include "model/core/characters.h"
#include "model/core/limits.h"

// One layout, many visitors. An item says once what its bytes are, in
//
//     template <class IO> static void Map(IO& io, auto& item);
//
// a run of lines like `io.Number("gamma", 8, item.gamma, coding, limits)`, in the order of the bytes. A field that does
// not exist for the item's other fields is simply not visited. The visitors here read, write, check and list limits.

namespace VNT {

enum class BitOrder { Lsb, Msb };

// Where a number's bits stand: the next bits at the cursor, or up to four pieces at fixed places of the frame, the
// number's lowest bits first. A piece is read from its byte's bit `bit` upwards and may run over several bytes.
struct BitPiece {
    int byte = 0;
    int bit = 0;
    int count = 0;
    constexpr bool operator==(const BitPiece&) const = default;
};

class BitPlace {
public:
    constexpr BitPlace(int bits) : bits_(bits) {}
    constexpr BitPlace(std::initializer_list<BitPiece> pieces) : pieces_(pieces) {
        for (const BitPiece& piece : pieces) bits_ += piece.count;
    }
    constexpr int Count() const { return bits_; }
    std::int64_t Most() const;  // the greatest number that fits
    std::uint32_t Read(ByteRange& range, BitOrder order) const;
    void Write(ByteRange& range, BitOrder order, std::uint32_t raw) const;
    int End(int position) const;  // the bit behind it, of the frame, for a cursor at `position`

private:
    int bits_ = 0;
    TFew<BitPiece> pieces_{};
};

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

protected:
    BitOrder order_ = BitOrder::Lsb;

private:
    int available_;
};

class LayoutReader : public LayoutVisitor {
public:
    explicit LayoutReader(ByteRange range) : LayoutVisitor(range.Size()), range_(range) {}

    void Constant(const BitPlace& place, std::uint32_t) { place.Read(range_, order_); }
    template <class T>
    void Kept(const char*, const BitPlace& place, T& value) {
        value = Detail::FromRaw<T>(place.Read(range_, order_));
    }
    template <class T, class L>
    void Number(const char*, const BitPlace& place, T& value, const TLimitPair<L>&) {
        value = Detail::FromRaw<T>(place.Read(range_, order_));
    }
    // `coding` has `Decode(raw)` and `Encode(value)`, as TValueCoding.
    template <class T, class Coding, class L>
    void Number(const char*, const BitPlace& place, T& value, const Coding& coding, const TLimitPair<L>&) {
        value = coding.Decode(place.Read(range_, order_));
    }
    // A number that is no field of its own: `set` takes the raw number, `get` gives it.
    template <class Get, class Set>
    void Through(const BitPlace& place, const Get&, const Set& set) {
        set(place.Read(range_, order_));
    }
    // The same for `count` bytes.
    template <class Get, class Set>
    void ThroughData(int count, const Get&, const Set& set) {
        set(range_.Take(count));
    }
    void Data(const char*, int count, Bytes& value, const TLimitPair<CountLimits>&) {
        value = Bytes(range_.Take(count));
    }
    // What is left: bytes, or characters of a byte each.
    void Rest(const char*, Bytes& value, const TLimitPair<CountLimits>&) { value = Bytes(range_.TakeRest()); }
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

private:
    ByteRange range_;
};

class LayoutWriter : public LayoutVisitor {
public:
    explicit LayoutWriter(ByteRange range) : LayoutVisitor(range.Size()), range_(range) {}

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

private:
    ByteRange range_;
};

// A visitor that looks at fields and at no bytes: what is no field is nothing to it.
class LayoutObserver : public LayoutVisitor {
public:
    using LayoutVisitor::LayoutVisitor;
    void Constant(const BitPlace&, std::uint32_t) {}
    template <class Get, class Set>
    void Through(const BitPlace&, const Get&, const Set&) {}
    template <class Get, class Set>
    void ThroughData(int, const Get&, const Set&) {}
};

// The parts of an observer that treats an area as it treats the frame. X is the observer itself.
template <class X>
class TLayoutObserver : public LayoutObserver {
public:
    using LayoutObserver::LayoutObserver;
    template <class Inner>
    void Area(int, const Inner& map) {
        map(static_cast<X&>(*this));
    }
};

// Tests each field; `Sink` has `void Report(const char* name, bool proper, bool all)`.
template <class Sink>
class TLayoutChecker : public TLayoutObserver<TLayoutChecker<Sink>> {
public:
    TLayoutChecker(int available, Sink& sink) : TLayoutObserver<TLayoutChecker>(available), sink_(sink) {}

    template <class T>
    void Kept(const char* name, const BitPlace& place, const T& value) {
        bool fits = true;
        if constexpr (std::is_integral_v<T>) fits = value >= T{} && static_cast<std::int64_t>(value) <= place.Most();
        sink_.Report(name, fits, fits);
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace&, const T& value, const TLimitPair<L>& limits) {
        sink_.Report(name, Detail::Passes(value, limits.proper), Detail::Passes(value, limits.all));
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const Coding&, const TLimitPair<L>& limits) {
        Number(name, place, value, limits);
    }
    void Data(const char* name, int, const Bytes& value, const TLimitPair<CountLimits>& limits) {
        Rest(name, value, limits);
    }
    void Rest(const char* name, const Bytes& value, const TLimitPair<CountLimits>& limits) {
        sink_.Report(name, limits.proper.Contains(value.Size()), limits.all.Contains(value.Size()));
    }
    void Rest(const char* name, const String& value, const TLimitPair<CountLimits>& limits) {
        const bool fits = AreBytes(value);
        sink_.Report(name, fits && limits.proper.Contains(value.Length()), fits && limits.all.Contains(value.Length()));
    }
    // `proper` and `all` are what the part's own tests say.
    template <class Item>
    void Part(const char* name, int, const Item&, bool proper, bool all) {
        sink_.Report(name, proper, all);
    }
    template <class Items, class L>
    void List(const char* name, const Items& list, const TLimitPair<L>& limits) {
        sink_.Report(name, limits.proper.Contains(list), limits.all.Contains(list));
    }
    template <class Item>
    bool Optional(const char* name, const Item& item, bool isThere, int available) {
        if (isThere) sink_.Report(name, item.IsValid(available), item.IsValidAll(available));
        return isThere;
    }
    // A rule of the item's own.
    void Check(const char* name, bool proper, bool all) { sink_.Report(name, proper, all); }

private:
    Sink& sink_;
};

// The state of each field that applies now. A field that is not listed doesn't apply, which is no fault.
struct FieldStatus {
    const char* name;
    bool proper;  // within what a sound EDID holds
    bool all;     // within what the bytes can carry
};

class ItemStatus {
public:
    void Report(const char* name, bool proper, bool all);
    bool IsPresent(std::string_view name) const;
    bool IsProper(std::string_view name) const;  // true for a field that doesn't apply
    bool IsAll(std::string_view name) const;
    bool IsValid() const;
    bool IsValidAll() const;
    const std::vector<FieldStatus>& Fields() const { return fields_; }

private:
    const FieldStatus* Find(std::string_view name) const;
    std::vector<FieldStatus> fields_;
};

// The two overall tests alone, for the paths that run often.
struct Validity {
    bool proper = true;
    bool all = true;
    void Report(const char*, bool fieldProper, bool fieldAll) {
        proper = proper && fieldProper;
        all = all && fieldAll;
    }
};

using AnyLimits = std::variant<ValueLimits, LongLimits, DecimalLimits, CountLimits, EnumLimits>;

struct FieldLimits {
    const char* name;
    AnyLimits proper;
    AnyLimits all;
};

// The limits of each field as they are now, for those who need the numbers themselves.
class LimitsLister : public TLayoutObserver<LimitsLister> {
public:
    using TLayoutObserver::TLayoutObserver;

    template <class T>
    void Kept(const char* name, const BitPlace& place, const T&) {
        const LongLimits carried{0, place.Most()};
        limits.push_back({name, carried, carried});
    }
    template <class T, class L>
    void Number(const char* name, const BitPlace&, const T&, const TLimitPair<L>& pair) {
        limits.push_back({name, pair.proper, pair.all});
    }
    template <class T, class Coding, class L>
    void Number(const char* name, const BitPlace& place, const T& value, const Coding&, const TLimitPair<L>& pair) {
        Number(name, place, value, pair);
    }
    void Data(const char* name, int, const Bytes& value, const TLimitPair<CountLimits>& pair) {
        Rest(name, value, pair);
    }
    template <class T>
    void Rest(const char* name, const T&, const TLimitPair<CountLimits>& pair) {
        limits.push_back({name, pair.proper, pair.all});
    }
    template <class Item>
    void Part(const char*, int, const Item&, bool, bool) {}
    template <class Items, class L>
    void List(const char*, const Items&, const TLimitPair<L>&) {}
    template <class Item>
    bool Optional(const char*, const Item&, bool isThere, int) {
        return isThere;
    }
    void Check(const char*, bool, bool) {}

    std::vector<FieldLimits> limits;
};

// The limits of padding: `length` bytes, and all of them 0 where it is sound.
inline TLimitPair<CountLimits> Zeros(const Bytes& padding, int length) {
    const CountLimits exactly{length, length};
    constexpr CountLimits nothing{1, 0};
    return {padding.IsAll(0) ? exactly : nothing, exactly};
}

template <class X>
ItemStatus StatusOf(const X& item, int available) {
    ItemStatus status;
    TLayoutChecker<ItemStatus> io(available, status);
    X::Map(io, item);
    return status;
}

template <class X>
Validity ValidityOf(const X& item, int available) {
    Validity validity;
    TLayoutChecker<Validity> io(available, validity);
    X::Map(io, item);
    return validity;
}

template <class X>
std::vector<FieldLimits> LimitsOf(const X& item, int available) {
    LimitsLister io(available);
    X::Map(io, item);
    return std::move(io.limits);
}

}  // namespace VNT
