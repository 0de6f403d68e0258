// The row of a number and of the raw number that carries it. The one that is typed leads, the other follows.
#pragma once

#include "editor/group.h"

namespace Forms {

struct RawRowShape {
    const wchar_t* number;
    const wchar_t* unit;
    const wchar_t* raw;
};
inline constexpr RawRowShape CoordinateRow{L"0.0000", L"", L"0000"};
inline constexpr RawRowShape LuminanceRow{L"00000.000", L"cd/m²", L"000"};

}  // namespace Forms

// `rawLeads` is a field of the record.
template <class Fields, class Number, class Raw>
void AddRawRow(TGroup<Fields>& group, const Forms::RawRowShape& shape, bool& rawLeads, const std::wstring& label,
               Number number, Raw raw) {
    const auto lead = [&rawLeads](bool isRaw) { return [&rawLeads, isRaw] { rawLeads = isRaw; }; };
    group.Row(label).Number(number, shape.number, shape.unit).OnChange(lead(false));
    group.Label(L"Raw:").Number(raw, shape.raw).OnChange(lead(true));
}
