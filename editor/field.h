// A field of a form's record, named once: `Field<&XFields::version>` carries the member and, for the item's status, its
// name.
#pragma once

#include <string_view>

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

namespace Detail {
struct Sample {
    int version;
};
static_assert(GetMemberName<&Sample::version>() == "version");
}  // namespace Detail

}  // namespace Forms

template <auto member>
inline constexpr Forms::TField<member> Field;
