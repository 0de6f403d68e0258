// Writes the rows of one group of a form. What is added stands in the row that `Row` began last, in its order; a group
// that begins without `Row` begins a row without a label.
#pragma once

#include <algorithm>
#include <span>

#include "editor/any_window.h"
#include "editor/field.h"
#include "editor/field_hint.h"
#include "editor/field_text.h"
#include "model/core/flags.h"

namespace Forms {

// A row of a combo box.
using Choice = RowText;
using Choices = std::vector<Choice>;

template <class Value>
[[gnu::noinline]] Choices MakeChoices(std::span<const VNT::ValueText<Value>> rows) {
    Choices choices;
    choices.reserve(rows.size());
    for (const auto& row : rows)
        choices.push_back({static_cast<std::int64_t>(row.value), VNT::String(row.text).ToWide()});
    return choices;
}
template <class Value, std::size_t count>
Choices MakeChoices(const VNT::ValueText<Value> (&rows)[count]) {
    return MakeChoices(std::span<const VNT::ValueText<Value>>(rows));
}

// Of texts alone, in order.
Choices MakeChoices(std::span<const char* const> texts);

// The kinds of rows, for fields of whatever record and type. `TGroup` below says what each is.
class GroupWriter {
public:
    GroupWriter(AnyWindow& window, Group& group) : window(window), group(group), radioGroup(window.CountGroups()) {}

    void BeginRow(const std::wstring& label);
    void RadioRow(const AnyField& field, std::int64_t value, const std::wstring& text);
    void Box(const AnyField& field, const FieldFormat& format, const std::wstring& pattern, bool stretches = false);
    void Number(const AnyField& field, const std::wstring& pattern, const std::wstring& unit);
    void Number(const AnyField& field, const std::wstring& pattern, const VNT::DecimalFormat& format,
                const std::wstring& unit);
    void SizedText(const AnyField& field, std::function<int()> most);
    void SizedHex(const AnyField& field, std::function<int()> most);
    void Combo(const AnyField& field, Choices choices);
    void ComboOther(const AnyField& field, Choices choices, const std::wstring& pattern);
    UI::Controls::ComboBox& OpenCombo(Callback chosen);
    void Check(const AnyField& field, const std::wstring& text);
    void Flag(const AnyField& field, int bit, const std::wstring& text);
    void Flags(const AnyField& field, const Choices& flags, const std::wstring& unit);
    void Radio(const AnyField& field, std::int64_t value, const std::wstring& text);
    UI::Controls::Button& Button(const std::wstring& text, Callback action);
    void Label(const std::wstring& text);
    void Heading(const std::wstring& text);
    void LabelOf(std::string_view field, const std::wstring& text);
    void Actual(const AnyField& field, const std::wstring& pattern, const VNT::DecimalFormat& format,
                const std::wstring& unit);
    void List(std::unique_ptr<ListCell> cell, const VNT::ListCaptions& captions);
    void OnChange(const Callback& callback);
    void EnabledIf(const Condition& condition);
    void VisibleIf(const Condition& condition);
    void Span();
    void Align() { group.IsAligned = true; }
    AnyWindow& GetWindow() const { return window; }

private:
    using TextCell = TControlCell<UI::Controls::TextBox>;
    using ComboCell = TControlCell<UI::Controls::ComboBox>;
    using Cells = std::vector<std::unique_ptr<Cell>>;

    void Begin();
    void BeginRow(RowKind kind);
    template <class Control, class... Arguments>
    TControlCell<Control>& AddTo(Cells& cells, const std::wstring& sizing, Arguments&&... arguments);
    template <class Control, class... Arguments>
    TControlCell<Control>& AddCell(const std::wstring& sizing, Arguments&&... arguments);
    template <class Control>
    void AddInput(TControlCell<Control>& cell, int notification, const void* source, std::function<VNT::String()> get,
                  Callback store);
    TextCell& AddBox(const AnyField& field, const FieldFormat& format, const std::wstring& pattern);
    void ShowText(TextCell& cell, const AnyField& field, const FieldFormat& format);
    void SetSizeCaption(Cell& cell, std::function<int()> size, std::function<int()> most);
    ComboCell& AddComboCell(std::string_view name, const Choices& choices);
    TControlCell<UI::Controls::CheckBox>& AddCheckCell(std::string_view name, const std::wstring& text);
    void AddFlag(const AnyField& field, int bit, const std::wstring& text);
    TControlCell<UI::Controls::RadioButton>& AddRadio(Cells& cells, const AnyField& field, std::int64_t value,
                                                      const std::wstring& text);

    AnyWindow& window;
    Group& group;
    int radioGroup;
    Row* row = nullptr;
    std::vector<Cell*> last;
};

}  // namespace Forms

template <class Fields>
class TGroup {
public:
    using Callback = Forms::Callback;
    using Condition = Forms::Condition;

    TGroup(AnyWindow& window, Forms::Group& group, Fields& fields) : rows(window, group), fields(fields) {}

    TGroup& Row(const std::wstring& label = {}) {
        rows.BeginRow(label);
        return *this;
    }
    // A row that a radio button leads while `field` is open for input, and a plain label else.
    template <class F, class Value>
    TGroup& RadioRow(F field, Value value, const std::wstring& text) {
        rows.RadioRow(Forms::Bind(fields, field), static_cast<std::int64_t>(value), text);
        return *this;
    }

    // Text boxes. `pattern` is the text that sizes the box, and says how many decimals or digits it has; a box without
    // one takes the width of the group.
    template <class F>
    TGroup& Number(F field, const std::wstring& pattern, const std::wstring& unit = {}) {
        rows.Number(Forms::Bind(fields, field), pattern, unit);
        return *this;
    }
    template <class F>
    TGroup& Number(F field, const std::wstring& pattern, const VNT::DecimalFormat& format,
                   const std::wstring& unit = {}) {
        rows.Number(Forms::Bind(fields, field), pattern, format, unit);
        return *this;
    }
    template <class F>
    TGroup& Hex(F field, const std::wstring& pattern) {
        rows.Box(Forms::Bind(fields, field), Forms::HexDigits{static_cast<int>(pattern.size())}, pattern);
        return *this;
    }
    template <class F>
    TGroup& Dotted(F field, const std::wstring& pattern) {
        rows.Box(Forms::Bind(fields, field), Forms::DottedNibbles(), pattern);
        return *this;
    }
    template <class F>
    TGroup& Text(F field, const std::wstring& pattern = {}) {
        rows.Box(Forms::Bind(fields, field), Forms::PlainText(), pattern);
        return *this;
    }
    // As many bytes as the field always has, on one line, which takes the width of the group.
    template <class F>
    TGroup& HexBytes(F field, const std::wstring& pattern) {
        rows.Box(Forms::Bind(fields, field), Forms::HexDump(), pattern, true);
        return *this;
    }
    // A text or bytes that fill the group, whose caption tells how many of `most()` characters or bytes are left.
    template <class F>
    TGroup& SizedText(F field, std::function<int()> most) {
        rows.SizedText(Forms::Bind(fields, field), std::move(most));
        return *this;
    }
    template <class F>
    TGroup& SizedHex(F field, std::function<int()> most) {
        rows.SizedHex(Forms::Bind(fields, field), std::move(most));
        return *this;
    }

    // Combo boxes of a vocabulary, and those that take any other number as well.
    template <class F, class Rows>
    TGroup& Combo(F field, const Rows& vocabulary) {
        rows.Combo(Forms::Bind(fields, field), Forms::MakeChoices(vocabulary));
        return *this;
    }
    template <class F, class Rows>
    TGroup& ComboOther(F field, const Rows& vocabulary, const std::wstring& pattern) {
        rows.ComboOther(Forms::Bind(fields, field), Forms::MakeChoices(vocabulary), pattern);
        return *this;
    }
    // A combo box whose rows the form fills and follows itself.
    UI::Controls::ComboBox& OpenCombo(Callback chosen) { return rows.OpenCombo(std::move(chosen)); }

    // Check boxes: of a bool, of one flag, of all flags of a vocabulary that the field can hold. The vocabulary may be
    // texts alone, in order.
    template <class F>
    TGroup& Check(F field, const std::wstring& text) {
        rows.Check(Forms::Bind(fields, field), text);
        return *this;
    }
    template <class F>
    TGroup& Flag(F field, int bit, const std::wstring& text) {
        rows.Flag(Forms::Bind(fields, field), bit, text);
        return *this;
    }
    template <class F, class Value, std::size_t count>
    TGroup& Checks(F field, const VNT::ValueText<Value> (&vocabulary)[count], const std::wstring& unit = {}) {
        rows.Flags(Forms::Bind(fields, field), Forms::MakeChoices(std::span<const VNT::ValueText<Value>>(vocabulary)),
                   unit);
        return *this;
    }
    template <class F, std::size_t count>
    TGroup& Checks(F field, const char* const (&texts)[count]) {
        rows.Flags(Forms::Bind(fields, field), Forms::MakeChoices(std::span<const char* const>(texts)), {});
        return *this;
    }
    // Radio buttons, in one column as far as that goes. All of a group belong together.
    template <class F, class Value>
    TGroup& Radio(F field, Value value, const std::wstring& text) {
        rows.Radio(Forms::Bind(fields, field), static_cast<std::int64_t>(value), text);
        return *this;
    }

    TGroup& Button(const std::wstring& text, Callback action) {
        AddButton(text, std::move(action));
        return *this;
    }
    UI::Controls::Button& AddButton(const std::wstring& text, Callback action) {
        return rows.Button(text, std::move(action));
    }
    TGroup& Label(const std::wstring& text) {
        rows.Label(text);
        return *this;
    }
    // Above a column of boxes and that of their units.
    TGroup& Heading(const std::wstring& text) {
        rows.Heading(text);
        return *this;
    }
    // Of the field that stands behind it in the row.
    template <class F>
    TGroup& LabelOf(F field, const std::wstring& text) {
        rows.LabelOf(Forms::Bind(fields, field).Name, text);
        return *this;
    }
    // The read-out of a calculated value, as wide as `pattern`.
    template <class F>
    TGroup& Actual(F field, const std::wstring& pattern, const VNT::DecimalFormat& format, const std::wstring& unit) {
        rows.Actual(Forms::Bind(fields, field), pattern, format, unit);
        return *this;
    }

    // A list with its buttons; its caption is the group's. `edit` opens the form of an item, `shown` rows are in view.
    template <class F, class GetLimits, class Edit>
    auto& List(F field, const VNT::ListCaptions& captions, GetLimits limits, Edit edit, int shown = ListRows) {
        auto bound = Forms::Bind(fields, field);
        using List = std::remove_reference_t<decltype(bound.Value)>;
        using Editor = Forms::TListEditor<List, decltype(limits())>;
        auto cell = std::make_unique<Forms::ListCell>(rows.GetWindow(), shown);
        cell->Field = bound.Name;
        auto owned =
            std::make_unique<Editor>(cell->Controls, bound.Value, captions, limits, edit, [window = &rows.GetWindow()] {
                window->ForgetInput();
                window->Update();
            });
        Editor& editor = *owned;
        cell->Editor = std::move(owned);
        rows.List(std::move(cell), captions);
        return editor;
    }

    // Of what was added last: of a group or row, when nothing stands in it yet.
    TGroup& OnChange(const Callback& callback) {
        rows.OnChange(callback);
        return *this;
    }
    TGroup& EnabledIf(const Condition& condition) {
        rows.EnabledIf(condition);
        return *this;
    }
    TGroup& VisibleIf(const Condition& condition) {
        rows.VisibleIf(condition);
        return *this;
    }
    // What was added last is as wide as two columns.
    TGroup& Span() {
        rows.Span();
        return *this;
    }
    // The cells of the group's rows stand in columns.
    TGroup& Aligned() {
        rows.Align();
        return *this;
    }

private:
    static constexpr int ListRows = 6;

    Forms::GroupWriter rows;
    Fields& fields;
};
