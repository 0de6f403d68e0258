// The row of a chromaticity: the coordinate and its raw number. The one that is typed leads, the other follows.
#pragma once

#include "editor/group.h"

// `fields` has the flag `useRaw`; `name` is by what the status tells of both.
template <class Fields>
void AddCoordinateRow(TGroup<Fields>& group, Fields& fields, const std::wstring& label, VNT::Decimal& value, int& raw,
                      const char* name) {
    const auto lead = [&fields](bool useRaw) { return [&fields, useRaw] { fields.useRaw = useRaw; }; };
    group.Row(label).Number(Forms::TBoundField{value, name}, L"0.0000").OnChange(lead(false));
    group.Label(L"Raw:").Number(Forms::TBoundField{raw, name}, L"0000").OnChange(lead(true));
}
