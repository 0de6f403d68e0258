#pragma once

#include <algorithm>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

#include "model/core/field_teller.h"
#include "model/core/kinds.h"
#include "model/core/sized_item.h"

// The code of the classes of items: what any.h, item.h, sized_item.h and layout.h only declare. It is compiled once for
// each class, where `TMadeItem` or `TMadeKinds` says so; these files and tests with items of their own include this.

namespace VNT {

template <class X>
void TLayout<X>::Read(X& item, ByteRange range) {
    LayoutReader io(range);
    X::Map(io, item);
}
template <class X>
void TLayout<X>::Write(const X& item, ByteRange range) {
    LayoutWriter io(range);
    X::Map(io, item);
}
template <class X>
Validity TLayout<X>::Check(const X& item, int available) {
    LayoutChecker io(available);
    X::Map(io, item);
    return io.validity;
}
template <class X>
void TLayout<X>::Tell(X& item, int available, FieldSink& sink) {
    FieldTeller io(available, sink);
    X::Map(io, item);
}

template <class X, class TypeEnum, TypeEnum value, class AnyX, class AnyY>
bool TCommonType<X, TypeEnum, value, AnyX, AnyY>::Equals(const AnyX& other) const {
    return other.GetType() == static_cast<int>(value) &&
           static_cast<const X&>(*this).EqualFields(static_cast<const X&>(other.Get()));
}
template <class X, class TypeEnum, TypeEnum value, class AnyX, class AnyY>
bool TCommonType<X, TypeEnum, value, AnyX, AnyY>::Assign(const AnyX& other) {
    if (other.GetType() != static_cast<int>(value)) return false;
    static_cast<X&>(*this) = static_cast<const X&>(other.Get());
    return true;
}
template <class X, class TypeEnum, TypeEnum value, class AnyX, class AnyY>
std::unique_ptr<AnyX> TCommonType<X, TypeEnum, value, AnyX, AnyY>::Clone() const {
    return std::make_unique<X>(static_cast<const X&>(*this));
}

template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
void TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::SetFields(const Fields& fields) {
    static_cast<AllFields&>(*this) = AllFields();
    static_cast<Fields&>(*this) = fields;
    Self().Normalize();
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
bool TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::Read(ByteRange range) {
    if (!X::Accepts(AnyX::PeekType(range)) || !range.Limit(AnyX::FrameSize)) return false;
    // From one that is kept: what the defaults allocate needn't be allocated again.
    static const AllFields defaults;
    static_cast<AllFields&>(*this) = defaults;
    TLayout<X>::Read(Self(), range);
    Self().NormalizeRead();
    return true;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
bool TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::Write(ByteRange range) const {
    if (!range.Limit(AnyX::FrameSize) || !this->IsValidAll()) return false;
    TLayout<X>::Write(Self(), range);
    return true;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
void TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::GetText(String& out, const String& format) const {
    DescribeItem(Self(), Self().GetFormat(), format, out);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
void TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::GetText(String& out) const {
    DescribeItem(Self(), Self().GetFormat(), out);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
[[gnu::noinline]] bool TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::IsValid() const {
    return ValidityOf(Self(), AnyX::FrameSize).proper;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
bool TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::IsValidAll() const {
    return ValidityOf(Self(), AnyX::FrameSize).all;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
std::vector<ItemPart> TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::GetParts() const {
    return PartsOf({Self(), AnyX::FrameSize});
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
void TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::TellFields(int available, FieldSink& sink) {
    TLayout<X>::Tell(Self(), available, sink);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
void TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::Renew() {
    SetFields(Fields(*this));
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields, class AllFields>
bool TFramedItem<X, AnyX, TypeEnum, value, Fields, AllFields>::EqualFields(const X& other) const {
    return static_cast<const AllFields&>(*this) == static_cast<const AllFields&>(other);
}

template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::SetFields(const Fields& fields) {
    static_cast<Fields&>(*this) = fields;
    if (!X::KeepsExtra) this->Extra = Bytes();
    Self().Normalize();
    Self().UpdateSize();
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
bool TSizedItem<X, AnyX, TypeEnum, value, Fields>::Read(ByteRange range) {
    const SizedPeek peek = AnyX::Peek(range);
    if (!X::Accepts(peek) || !range.Limit(peek.size)) return false;
    static const Fields defaults;
    static_cast<Fields&>(*this) = defaults;
    this->Size = peek.size;
    TLayout<X>::Read(Self(), range);
    PresentLength = Self().GetPresentLength();
    Self().NormalizeRead();
    return true;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
bool TSizedItem<X, AnyX, TypeEnum, value, Fields>::Write(ByteRange range) const {
    if (!range.Limit(this->Size) || !IsValidAll()) return false;
    TLayout<X>::Write(Self(), range);
    return true;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::GetText(String& out, const String& format) const {
    DescribeItem(Self(), Self().GetFormat(), format, out);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::GetText(String& out) const {
    DescribeItem(Self(), Self().GetFormat(), out);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
bool TSizedItem<X, AnyX, TypeEnum, value, Fields>::IsValid(int size) const {
    return ValidityOf(Self(), Clamp(size)).proper;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
bool TSizedItem<X, AnyX, TypeEnum, value, Fields>::IsValidAll(int size) const {
    return ValidityOf(Self(), Clamp(size)).all;
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
std::vector<ItemPart> TSizedItem<X, AnyX, TypeEnum, value, Fields>::GetParts() const {
    return PartsOf({Self(), AnyX::MaxSize});
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
ItemStatus TSizedItem<X, AnyX, TypeEnum, value, Fields>::GetReach(int size) const {
    ItemStatus reach;
    reach.Report("Size", IsAvailable(size), IsAvailable(size));
    return ReachOf({Self(), Clamp(size)}, std::move(reach));
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::TellFields(int available, FieldSink& sink) {
    TLayout<X>::Tell(Self(), available, sink);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::Renew() {
    SetFields(Fields(*this));
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
bool TSizedItem<X, AnyX, TypeEnum, value, Fields>::EqualFields(const X& other) const {
    return this->Size == other.Size && PresentLength == other.PresentLength &&
           static_cast<const Fields&>(*this) == static_cast<const Fields&>(other);
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::UpdateSize() {
    PresentLength = X::Shape.fixed;
    this->Size = MeasureLayout({Self(), AnyX::MaxSize});
    if (this->Extra.IsEmpty() && this->Size <= PrefixSize + X::Shape.fixed) TrimToStep();
    PresentLength = Self().GetPresentLength();
}
template <class X, class AnyX, class TypeEnum, TypeEnum value, class Fields>
void TSizedItem<X, AnyX, TypeEnum, value, Fields>::TrimToStep() {
    Bytes scratch(this->Size, 0);
    TLayout<X>::Write(Self(), scratch);
    const int needed = Self().GetNeeded(scratch.LastIndexNot(0) - PrefixSize);
    this->Size = std::min(this->Size, PrefixSize + X::Shape.Holding(needed));
}

// `template struct TMadeItem<X>;` in the source file of a class compiles its code there.
namespace Detail {

// The base's own test, where X has another: the base's table of virtual functions names it all the same. As a function
// of its own, not as a part of this one.
template <class X>
bool IsValidAsFramed(const X& item) {
    return item.X::Framed::IsValid();
}

template <class X>
constexpr auto ListMembers() {
    if constexpr (requires { typename X::Sized; }) {
        using Base = typename X::Sized;
        return std::tuple(&Base::SetFields, &Base::EqualFields, &Base::GetReach, &Base::UpdateSize);
    } else if constexpr (requires { typename X::Framed; }) {
        using Base = typename X::Framed;
        return std::tuple(&Base::SetFields, &Base::EqualFields, &IsValidAsFramed<X>);
    } else {
        return std::tuple();
    }
}

// Its table of virtual functions is made wherever it is: with it come those that X takes from its base. X's own table
// may stand in another file, which knows none of them.
template <class X>
struct TAnchor : X {};

template <class X>
std::unique_ptr<X> MakeItem() {
    return std::make_unique<TAnchor<X>>();
}

// Pointers to all of it, which keep it in the object file for those who call it from elsewhere.
template <class X>
struct TItemCode {
    decltype(&TLayout<X>::Read) read = &TLayout<X>::Read;
    decltype(&TLayout<X>::Write) write = &TLayout<X>::Write;
    decltype(&TLayout<X>::Check) check = &TLayout<X>::Check;
    decltype(&TLayout<X>::Tell) tell = &TLayout<X>::Tell;
    decltype(&MakeItem<X>) make = &MakeItem<X>;  // and with it the virtual functions
    decltype(ListMembers<X>()) members = ListMembers<X>();
};
struct NoItemCode {};

template <int part, int parts, class Indexes, class... X>
struct TItemCodes;
template <int part, int parts, int... index, class... X>
struct TItemCodes<part, parts, std::integer_sequence<int, index...>, X...> {
    using Type = std::tuple<std::conditional_t<index % parts == part, TItemCode<X>, NoItemCode>...>;
};

}  // namespace Detail

template <class X>
struct TMadeItem {
    static const Detail::TItemCode<X> Code;
};
template <class X>
const Detail::TItemCode<X> TMadeItem<X>::Code{};

// The same for every `parts`-th class of a list of kinds, from `part` on, so that a long list is compiled in several
// files: `template struct TMadeKinds<decltype(XKindList), 0, 2>;` in one, with 1 in the next.
template <class List, int part, int parts>
struct TMadeKinds;

template <class Other, class... X, int part, int parts>
struct TMadeKinds<const TKindList<Other, X...>, part, parts> {
    static const typename Detail::TItemCodes<part, parts, std::make_integer_sequence<int, sizeof...(X) + 1>, X...,
                                             Other>::Type Code;
};
template <class Other, class... X, int part, int parts>
const typename Detail::TItemCodes<part, parts, std::make_integer_sequence<int, sizeof...(X) + 1>, X..., Other>::Type
    TMadeKinds<const TKindList<Other, X...>, part, parts>::Code{};

}  // namespace VNT
