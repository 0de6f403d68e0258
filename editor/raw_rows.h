// The row of a number and of the raw number that carries it. The one that is typed leads, the other follows.
#pragma once

#include "editor/group.h"
#include "model/cta/luminance.h"

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
               Number number, Raw raw, const Forms::Callback& onNumber = {}) {
    group.Row(label).Number(number, shape.number, shape.unit).OnChange([&rawLeads, onNumber] {
        rawLeads = false;
        if (onNumber) onNumber();
    });
    group.Label(L"Raw:").Number(raw, shape.raw).OnChange([&rawLeads] { rawLeads = true; });
}

// A number that no code can say is red and can't be confirmed.
inline Forms::FieldState StateOfSaid(Forms::FieldState state, VNT::Decimal number, int code) {
    const bool isSaid = number.IsUndefined() || code != VNT::Undefined;
    state.IsValid = state.IsValid && isSaid;
    state.ClosesOk = state.ClosesOk || !isSaid;
    return state;
}

// The rows of a greatest luminance and of the least one, whose code hangs on that of the greatest: it stays when the
// greatest is typed, as long as the least was not given as a number itself.
class LuminanceRows {
public:
    LuminanceRows(VNT::Decimal& max, VNT::Decimal& min, int& minRaw) : max(max), min(min), minRaw(minRaw) {}

    template <class Fields, class Number, class Raw>
    void AddMax(TGroup<Fields>& group, bool& rawLeads, const std::wstring& label, Number number, Raw raw) {
        AddRawRow(group, Forms::LuminanceRow, rawLeads, label, number, raw, [this] {
            if (!isMinTyped) min = VNT::Luminance::DecodeMin(minRaw, VNT::Luminance::EncodeMax(max));
        });
    }
    template <class Fields, class Number, class Raw>
    void AddMin(TGroup<Fields>& group, bool& rawLeads, const std::wstring& label, Number number, Raw raw) {
        AddRawRow(group, Forms::LuminanceRow, rawLeads, label, number, raw, [this] { isMinTyped = true; });
    }

private:
    VNT::Decimal& max;
    VNT::Decimal& min;
    int& minRaw;
    bool isMinTyped = false;
};
