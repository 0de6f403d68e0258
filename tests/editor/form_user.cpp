#include "tests/editor/form_user.h"

#include <algorithm>

namespace VNT::Testing {

using namespace UI::Controls;

namespace {

constexpr int MostTried = 400;

template <class Visitor>
void ForEachTextCell(const AnyWindow& form, const Visitor& visit) {
    for (const auto& group : form.GetGroups()) {
        for (const auto& row : group->Rows) {
            for (const auto& cell : row->Cells) {
                const auto* text = dynamic_cast<const Forms::TControlCell<TextBox>*>(cell.get());
                if (text) visit(*text);
            }
        }
    }
}

std::wstring Print(std::int64_t number, int hexDigits) {
    return hexDigits > 0 ? NumberText(number, 16, hexDigits, true).ToWide() : NumberText(number, 10, 0, false).ToWide();
}
std::wstring Print(Decimal number, int) { return DecimalToText(number, DecimalFormat{6, 21, true}).ToWide(); }

template <class T>
FormUser::Edges EdgesOf(const TValueLimits<T>& limits, int hexDigits) {
    const T grain = limits.step != T{} ? limits.step : T(1);
    FormUser::Edges edges{{Print(limits.min, hexDigits), Print(limits.max, hexDigits)}, {}};
    for (const T beyond : {limits.min - grain, limits.max + grain}) {
        if (!limits.extra.Contains(beyond)) edges.beyond.push_back(Print(beyond, hexDigits));
    }
    return edges;
}

}  // namespace

void FormUser::ShowAll() {
    for (Button* button : Open<Button>()) {
        if (button->GetText() == L"\u25BC") driver.Click(*button);
    }
    for (ComboBox* box : Open<ComboBox>()) {
        const int last = box->GetCount() - 1;
        if (last >= 0 && box->GetItemText(last) == L"Other") driver.Choose(*box, last);
    }
}

std::string FormUser::FieldOf(const TextBox& box) const {
    std::string name;
    ForEachTextCell(Form(), [&](const auto& cell) {
        if (&cell.Control == &box) name = cell.Field;
    });
    return name;
}

bool FormUser::IsOnlyBox(const TextBox& box) const {
    const std::string name = FieldOf(box);
    int count = 0;
    ForEachTextCell(Form(), [&](const auto& cell) { count += cell.Field == name ? 1 : 0; });
    return count == 1;
}

std::optional<FieldLimits> FormUser::LimitsOf(const TextBox& box) const {
    const std::string name = FieldOf(box);
    for (const FieldLimits& limits : Form().GetFieldLimits()) {
        if (limits.name == name) return limits;
    }
    return std::nullopt;
}

std::optional<FormUser::Edges> FormUser::FindEdges(TextBox& box) {
    const auto limits = LimitsOf(box);
    if (!limits || !IsOnlyBox(box)) return std::nullopt;
    const std::wstring before = box.GetText();
    if (std::holds_alternative<ValueLimits>(limits->proper) && Takes(box, L"00.00.00.00")) {
        driver.Enter(box, before);
        return Edges{{L"0.0.0.0", L"15.15.15.15"}, {L"16.0.0.0", L"0.0.0.16"}};
    }
    // A hex box takes its digits and no fewer.
    const int hexDigits = Takes(box, L"00FF") ? 4 : Takes(box, L"0000FF") ? 6 : 0;
    driver.Enter(box, before);
    return std::visit(
        [hexDigits](const auto& proper) -> std::optional<Edges> {
            if constexpr (requires { proper.step; }) return EdgesOf(proper, hexDigits);
            return std::nullopt;
        },
        limits->proper);
}

bool FormUser::Takes(TextBox& box, const std::wstring& text) {
    driver.Enter(box, text);
    return box.HasValidStyle();
}

std::optional<std::wstring> FormUser::FindLeast(TextBox& box) {
    std::vector<std::wstring> tried;
    if (const auto edges = FindEdges(box)) tried.push_back(edges->within.front());
    if (const auto limits = LimitsOf(box)) {
        const auto* count = std::get_if<CountLimits>(&limits->proper);
        if (count != nullptr) tried.push_back(HexText(Bytes(count->min, 0)).ToWide());
    }
    for (const wchar_t* text : {L"0000", L"00", L"A", L"AAA", L"00.00.00.00", L"0.1"}) tried.push_back(text);
    for (int number = 0; number < MostTried; ++number) tried.push_back(Print(number, 0));
    for (const std::wstring& text : tried) {
        if (Takes(box, text)) return text;
    }
    return std::nullopt;
}

void FormUser::ChangeAll() {
    for (CheckBox* box : Open<CheckBox>()) driver.Click(*box);
    for (ComboBox* box : Open<ComboBox>()) driver.Choose(*box, (box->GetSelection() + 1) % box->GetCount());
    for (TextBox* box : Open<TextBox>()) driver.Enter(*box, L"12");
    for (RadioButton* button : Open<RadioButton>()) driver.Click(*button);
}

}  // namespace VNT::Testing
