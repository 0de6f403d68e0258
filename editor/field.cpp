#include "editor/field.h"

#include <cstring>
#include <functional>

#include "editor/field_text.h"

namespace Forms {

namespace {

template <class T>
T Load(const void* value) {
    T number;
    std::memcpy(&number, value, sizeof(T));
    return number;
}

template <class T>
std::int64_t Widen(T number) {
    for (const int sentinel : {VNT::Undefined, BadNumber}) {
        if (number == static_cast<T>(sentinel)) return sentinel;
    }
    return static_cast<std::int64_t>(number);
}

template <class T>
bool Store(void* value, std::int64_t number) {
    const auto held = static_cast<T>(number);
    if (Widen(held) != number) return false;
    std::memcpy(value, &held, sizeof(T));
    return true;
}

}  // namespace

AnyField AnyField::In(void* other, const void* record) const {
    AnyField field = *this;
    field.value =
        static_cast<std::byte*>(other) + (static_cast<std::byte*>(value) - static_cast<const std::byte*>(record));
    return field;
}

bool AnyField::Differs(const AnyField& other) const {
    switch (type->Kind) {
        case FieldKind::Flags:
            if (type->Size != sizeof(std::uint32_t)) return true;
            [[fallthrough]];
        case FieldKind::Number:
        case FieldKind::Decimal:
            return std::memcmp(value, other.value, static_cast<std::size_t>(type->Size)) != 0;
        case FieldKind::Text:
            return !(GetText() == other.GetText());
        case FieldKind::Data:
            return !(GetData() == other.GetData());
        default:
            return true;
    }
}

bool AnyField::IsIn(const void* record, std::size_t size) const {
    const auto* const first = static_cast<const std::byte*>(record);
    return !std::less<>()(static_cast<const std::byte*>(value), first) &&
           std::less<>()(static_cast<const std::byte*>(value), first + size);
}

std::int64_t AnyField::GetNumber() const {
    switch (type->Size) {
        case sizeof(bool):
            return Load<bool>(value) ? 1 : 0;
        case sizeof(int):
            return type->IsSigned ? Widen(Load<int>(value)) : Widen(Load<unsigned>(value));
        default:
            return Load<std::int64_t>(value);
    }
}

bool AnyField::SetNumber(std::int64_t number) const {
    switch (type->Size) {
        case sizeof(bool): {
            const bool isSet = number != 0;
            std::memcpy(value, &isSet, sizeof isSet);
            return true;
        }
        case sizeof(int):
            return type->IsSigned ? Store<int>(value, number) : Store<unsigned>(value, number);
        default:
            std::memcpy(value, &number, sizeof number);
            return true;
    }
}

}  // namespace Forms
