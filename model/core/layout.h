#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "model/core/field_sink.h"

// One layout, many visitors. An item says once what its bytes are, in
//
//     template <class IO> static void Map(IO& io, auto& item);
//
// a run of lines like `io.Number("gamma", 8, item.gamma, coding, limits)`, in the order of the bytes. A field that does
// not exist for the item's other fields is simply not visited. Limits that cost something to compute go through
// `io.Tested([&] { return limits; })`: a visitor that tests nothing takes them as they are without a value.
// layout_visitors.h has the four that are compiled for
// each class: one reads, one writes, one checks, one tells the fields to a sink (field_sink.h), which may be anything.

namespace VNT {

// What is made from X's layout, in one place: where the list of X's family is made into code (TMadeKinds), or in X's
// own source file by `template struct TLayout<X>;`. Whoever uses X compiles none of it.
template <class X>
struct TLayout {
    static void Read(X& item, ByteRange range);
    static void Write(const X& item, ByteRange range);
    static Validity Check(const X& item, int available);
    static void Tell(X& item, int available, FieldSink& sink);
};

// The limits of padding: `length` bytes, and all of them 0 where it is sound.
template <class IO>
TLimitPair<CountLimits> Zeros(IO& io, const Bytes& padding, int length) {
    const CountLimits exactly{length, length};
    constexpr CountLimits nothing{1, 0};
    return {io.Tested([&] { return padding.IsAll(0); }) ? exactly : nothing, exactly};
}

template <class X>
Validity ValidityOf(const X& item, int available) {
    return TLayout<X>::Check(item, available);
}

// An item of any class, to be told to sinks that change nothing.
class FieldSource {
public:
    template <class X>
    FieldSource(const X& item, int available)
        : item_(const_cast<X*>(&item)),
          available_(available),
          tell_([](void* told, int room, FieldSink& sink) { TLayout<X>::Tell(*static_cast<X*>(told), room, sink); }) {}
    void Tell(FieldSink& sink) const { tell_(item_, available_, sink); }
    int Available() const { return available_; }

private:
    void* item_;
    int available_;
    void (*tell_)(void* item, int available, FieldSink& sink);
};

ItemStatus StatusOf(const FieldSource& source);
std::vector<FieldLimits> LimitsOf(const FieldSource& source);
// Of each field, whether the bytes available reach its last one, behind those that `reach` tells already.
ItemStatus ReachOf(const FieldSource& source, ItemStatus reach = {});
// The bytes that the fields take as they are.
int MeasureLayout(const FieldSource& source);
std::vector<ItemPart> PartsOf(const FieldSource& source);

template <class X>
ItemStatus StatusOf(const X& item, int available) {
    return StatusOf(FieldSource(item, available));
}
template <class X>
std::vector<FieldLimits> LimitsOf(const X& item, int available) {
    return LimitsOf(FieldSource(item, available));
}

}  // namespace VNT
