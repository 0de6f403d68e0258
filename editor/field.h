// A field of a form's record, named once: `Field<&XFields::version>` carries the member and, for the item's status, its
// name. The rows of a form take it as `AnyField`, whatever its type is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "model/core/bytes.h"
#include "model/core/decimal.h"
#include "model/core/text_string.h"

namespace Forms {

// The last word of what the compiler calls the member; names in a status are the members' own.
template <auto member>
constexpr std::string_view GetMemberName() {
    std::string_view text = __PRETTY_FUNCTION__;
    text.remove_prefix(text.find("member = ") + 9);
    text = text.substr(0, text.find_first_of(";]"));
    return text.substr(text.rfind(':') + 1);
}

template <auto member>
struct TField {};

// A field of a record at hand. `Name` is empty where no status tells of it.
template <class T>
struct TBoundField {
    T& Value;
    std::string_view Name;
};
template <class T>
TBoundField(T&, std::string_view) -> TBoundField<T>;

// What a row is given: a field by its member, or one that is already bound, such as an element of an array.
template <class Fields, auto member>
auto Bind(Fields& fields, TField<member>) {
    return TBoundField{fields.*member, GetMemberName<member>()};
}
template <class Fields, class T>
TBoundField<T> Bind(Fields&, TBoundField<T> field) {
    return field;
}

// What rows know of a field's type. A number is an integer, an enumeration or a bool; of flags a bit beyond them reads
// as false and is not set.
enum class FieldKind { Number, Decimal, Text, Data, Flags, Other };

struct FieldType {
    FieldKind Kind;
    int Size;  // bytes of a number
    bool IsSigned;
    void (*Copy)(void* to, const void* from);
    bool (*HoldsBit)(int bit) = nullptr;  // whether a flag can be set
    bool (*TestBit)(const void* flags, int bit) = nullptr;
    void (*SetBit)(void* flags, int bit, bool on) = nullptr;
};

namespace Detail {

template <class T>
concept IsFlags = requires {
    T::BitCount;
};

template <class T>
constexpr FieldKind KindOf() {
    if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
        static_assert(sizeof(T) == 1 || sizeof(T) == 4 || sizeof(T) == 8);
        return FieldKind::Number;
    } else if constexpr (std::is_same_v<T, VNT::Decimal>) {
        return FieldKind::Decimal;
    } else if constexpr (std::is_same_v<T, VNT::String>) {
        return FieldKind::Text;
    } else if constexpr (std::is_same_v<T, VNT::Bytes>) {
        return FieldKind::Data;
    } else if constexpr (IsFlags<T>) {
        return FieldKind::Flags;
    } else {
        return FieldKind::Other;
    }
}

template <class T>
constexpr bool IsSignedNumber() {
    if constexpr (std::is_enum_v<T>) {
        return std::is_signed_v<std::underlying_type_t<T>>;
    } else {
        return std::is_signed_v<T>;
    }
}

template <class T>
void CopyField(void* to, const void* from) {
    *static_cast<T*>(to) = *static_cast<const T*>(from);
}
template <class T>
bool HoldsFlag(int bit) {
    if constexpr (requires { T::Holds(typename T::Flag()); }) return T::Holds(static_cast<typename T::Flag>(bit));
    return bit >= 0 && bit < T::BitCount;
}
template <class T>
bool TestFlag(const void* flags, int bit) {
    if constexpr (requires { typename T::Flag; }) {
        return bit >= 0 && bit < T::BitCount && static_cast<const T*>(flags)->Test(static_cast<typename T::Flag>(bit));
    } else {
        return static_cast<const T*>(flags)->TestAt(bit);
    }
}
template <class T>
void SetFlag(void* flags, int bit, bool on) {
    if (bit < 0 || bit >= T::BitCount) return;
    if constexpr (requires { typename T::Flag; }) {
        static_cast<T*>(flags)->Set(static_cast<typename T::Flag>(bit), on);
    } else {
        static_cast<T*>(flags)->SetAt(bit, on);
    }
}

template <class T>
constexpr FieldType MakeFieldType() {
    FieldType type{KindOf<T>(), static_cast<int>(sizeof(T)), IsSignedNumber<T>(), &CopyField<T>};
    if constexpr (IsFlags<T>) {
        type.HoldsBit = &HoldsFlag<T>;
        type.TestBit = &TestFlag<T>;
        type.SetBit = &SetFlag<T>;
    }
    return type;
}
template <class T>
inline constexpr FieldType TypeOf = MakeFieldType<T>();

struct Sample {
    int version;
};
static_assert(GetMemberName<&Sample::version>() == "version");

}  // namespace Detail

// A field of whatever type.
class AnyField {
public:
    template <class T>
    AnyField(TBoundField<T> field) : Name(field.Name), value(&field.Value), type(&Detail::TypeOf<T>) {}

    FieldKind GetKind() const { return type->Kind; }
    void* GetAddress() const { return value; }
    // Of other records of the class of the one at `record`, in which the field stands: it stands at the same place
    // there.
    AnyField In(void* other, const void* record) const;
    void CopyFrom(const AnyField& other) const { type->Copy(value, other.value); }
    bool Differs(const AnyField& other) const;  // flags may be said to differ when they don't
    bool IsIn(const void* record, std::size_t size) const;
    // Of a number; the sentinels of what is empty or no number stand in each type as they do in an int. What the field
    // can't hold is not stored: false.
    std::int64_t GetNumber() const;
    bool SetNumber(std::int64_t number) const;
    bool HoldsBit(int bit) const { return type->HoldsBit(bit); }
    bool TestBit(int bit) const { return type->TestBit(value, bit); }
    void SetBit(int bit, bool on) const { type->SetBit(value, bit, on); }
    // Of the kind that the field is.
    VNT::Decimal& GetDecimal() const { return *static_cast<VNT::Decimal*>(value); }
    VNT::String& GetText() const { return *static_cast<VNT::String*>(value); }
    VNT::Bytes& GetData() const { return *static_cast<VNT::Bytes*>(value); }

    std::string_view Name;

private:
    void* value;
    const FieldType* type;
};

}  // namespace Forms

template <auto member>
inline constexpr Forms::TField<member> Field;
