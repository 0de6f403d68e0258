#include "editor/field_hint.h"

#include <type_traits>
#include <utility>

using namespace VNT;

namespace Forms {

namespace {

// A value as the box shows it.
template <class T>
std::wstring Print(T value, const FieldFormat& format) {
    return PrintField(TBoundField<T>{value, {}}, format).ToWide();
}

std::wstring WithUnit(std::wstring text, const std::wstring& unit) {
    if (!unit.empty()) text.append(L" ").append(unit);
    return text;
}

template <class T>
std::wstring Describe(const TValueLimits<T>& limits, const FieldFormat& format, const std::wstring& unit) {
    std::wstring text;
    if (limits.max < limits.min) {
        for (const T& value : limits.extra) text += (text.empty() ? L"Only " : L" or ") + Print(value, format);
        return text.empty() ? L"Nothing fits here now" : WithUnit(text, unit);
    }
    text = limits.min == limits.max ? L"Only " + Print(limits.min, format)
                                    : Print(limits.min, format) + L" to " + Print(limits.max, format);
    text = WithUnit(text, unit);
    if (limits.step != T{} && VNT::Detail::Raw(limits.step) > 1) {
        text += L" in steps of " + Print(limits.step, format);
    }
    for (const T& value : limits.extra) {
        if (value == T{} || VNT::Detail::Raw(value) != Undefined) text += L", or " + Print(value, format);
    }
    return text;
}

std::wstring Describe(const CountLimits& limits, const FieldFormat& format, const std::wstring&) {
    const std::wstring things = std::holds_alternative<HexDump>(format) ? L" bytes" : L" characters";
    const std::wstring most = std::to_wstring(limits.max);
    if (limits.min == limits.max) return most + things;
    if (limits.min > 0) return std::to_wstring(limits.min) + L" to " + most + things;
    return L"Up to " + most + things;
}

std::wstring Describe(const EnumLimits&, const FieldFormat&, const std::wstring&) { return L"One of the rows"; }

}  // namespace

std::wstring DescribeLimits(const AnyLimits& limits, const FieldFormat& format, const std::wstring& unit) {
    return std::visit([&](const auto& of) { return Describe(of, format, unit); }, limits);
}

namespace {

bool Contains(const AnyLimits& limits, std::int64_t value) {
    return std::visit(
        [value]<class L>(const L& of) {
            if constexpr (std::is_same_v<L, LongLimits>) {
                return of.Contains(value);
            } else if constexpr (std::is_same_v<L, ValueLimits> || std::is_same_v<L, EnumLimits>) {
                return std::in_range<int>(value) && of.Contains(static_cast<int>(value));
            } else {
                return true;
            }
        },
        limits);
}

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

}  // namespace

std::wstring DescribeRows(const AnyLimits& limits, const std::vector<RowText>& rows, std::int64_t chosen) {
    constexpr std::size_t most = 3;
    std::vector<std::wstring> open;
    std::wstring refused;
    for (const RowText& row : rows) {
        if (Contains(limits, row.Value)) {
            open.push_back(Quoted(row.Text));
        } else if (row.Value == chosen) {
            refused = Quoted(row.Text);
        }
    }
    if (open.empty()) return {};
    if (open.size() > most || open.size() == rows.size())
        return refused.empty() ? L"One of the rows" : L"Not " + refused + L" here";
    std::wstring text = L"Only ";
    for (std::size_t i = 0; i < open.size(); ++i)
        text += (i == 0 ? L"" : i + 1 == open.size() ? L" or " : L", ") + open[i];
    return text;
}

std::wstring DescribeList(const ListMeasure& measure) {
    const auto count = [](int over, const std::wstring& what) {
        return std::to_wstring(over) + L" " + what + (over == 1 ? L"" : L"s") + L" too many";
    };
    if (measure.count > measure.maxCount) return count(measure.count - measure.maxCount, L"row");
    if (measure.size > measure.maxSize) return count(measure.size - measure.maxSize, L"byte");
    return {};
}

std::wstring DescribeBadText(const FieldFormat& format) {
    if (std::holds_alternative<HexDump>(format)) return L"Not bytes of two hexadecimal digits each";
    if (std::holds_alternative<PlainText>(format)) return L"Not a text that fits here";
    if (const auto* hex = std::get_if<HexDigits>(&format))
        return L"Not a number of " + std::to_wstring(hex->least) + L" hexadecimal digits or more";
    if (std::holds_alternative<DottedNibbles>(format)) return L"Not four numbers below 16 with dots between them";
    return L"Not a number";
}

}  // namespace Forms
