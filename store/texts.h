#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "store/platform.h"

namespace VNT {

// A text of the system by its pattern of two calls: the length first, by an error that says so, then the characters.
template <class Call>
std::optional<std::wstring> ReadText(Call call) {
    int length = 0;
    if (call(std::span<wchar_t>(), length) != SystemErrors::InsufficientBuffer || length <= 0) return std::nullopt;
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    if (call(std::span<wchar_t>(text), length) != SystemErrors::None) return std::nullopt;
    text.resize(std::min(text.size(), static_cast<std::size_t>(std::max(length, 0))));
    text.resize(text.find_last_not_of(L'\0') + 1);
    return text;
}

// Of the set's current device.
inline std::optional<std::wstring> ReadInstanceId(DeviceSet& set) {
    return ReadText([&](std::span<wchar_t> out, int& length) { return set.GetInstanceId(out, length); });
}

}  // namespace VNT
