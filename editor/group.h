// Writes the rows of one group of a form. What is added stands in the row that `Row` began last, in its order; a group
// that begins without `Row` begins a row without a label.
#pragma once

#include "editor/any_window.h"
#include "editor/field.h"

template <class Fields>
class TGroup {
public:
    using Callback = Forms::Callback;
    using Condition = Forms::Condition;

    TGroup(AnyWindow& window, Forms::Group& group, Fields& fields)
        : window(window), group(group), fields(fields), radioGroup(window.CountGroups()) {}

    TGroup& Row(const std::wstring& label = {}) {
        BeginRow(Forms::RowKind::Line);
        if (!label.empty()) AddTo<UI::Controls::Label>(row->Labels, label, label);
        last.clear();
        return *this;
    }
    // A row that a radio button leads while `field` is open for input, and a plain label else.
    template <class F, class Value>
    TGroup& RadioRow(F field, Value value, const std::wstring& text) {
        BeginRow(Forms::RowKind::Line);
        auto bound = Forms::Bind(fields, field);
        const auto isOpen = [window = &window, name = bound.Name] { return window->IsAvailable(name); };
        AddRadio(row->Labels, bound, value, text).VisibleIf = isOpen;
        AddTo<UI::Controls::Label>(row->Labels, text, text).VisibleIf = [isOpen] { return !isOpen(); };
        last.clear();
        return *this;
    }

    // Text boxes. `pattern` is the text that sizes the box, and says how many decimals or digits it has; a box without
    // one takes the width of the group.
    template <class F>
    TGroup& Number(F field, const std::wstring& pattern, const std::wstring& unit = {}) {
        auto bound = Forms::Bind(fields, field);
        if constexpr (std::is_same_v<decltype(bound.Value), VNT::Decimal&>) {
            return Number(field, pattern, VNT::DecimalFormat{CountDecimals(pattern)}, unit);
        } else {
            AddBox(bound, Forms::DecimalDigits(), pattern);
            return Label(unit);
        }
    }
    template <class F>
    TGroup& Number(F field, const std::wstring& pattern, const VNT::DecimalFormat& format,
                   const std::wstring& unit = {}) {
        AddBox(Forms::Bind(fields, field), format, pattern);
        return Label(unit);
    }
    template <class F>
    TGroup& Hex(F field, const std::wstring& pattern) {
        AddBox(Forms::Bind(fields, field), Forms::HexDigits{static_cast<int>(pattern.size())}, pattern);
        return *this;
    }
    template <class F>
    TGroup& Dotted(F field, const std::wstring& pattern) {
        AddBox(Forms::Bind(fields, field), Forms::DottedNibbles(), pattern);
        return *this;
    }
    template <class F>
    TGroup& Text(F field, const std::wstring& pattern = {}) {
        AddBox(Forms::Bind(fields, field), Forms::PlainText(), pattern);
        return *this;
    }
    // As many bytes as the field always has, on one line.
    template <class F>
    TGroup& HexBytes(F field, const std::wstring& pattern) {
        AddBox(Forms::Bind(fields, field), Forms::HexDump(), pattern);
        return *this;
    }
    // A text or bytes that fill the group, whose caption tells how many of `most()` characters or bytes are left.
    template <class F>
    TGroup& SizedText(F field, std::function<int()> most) {
        auto bound = Forms::Bind(fields, field);
        auto& cell = AddBox(bound, Forms::PlainText(), {});
        SetSizeCaption(
            cell, [&value = bound.Value] { return value.Length(); }, std::move(most));
        return *this;
    }
    template <class F>
    TGroup& SizedHex(F field, std::function<int()> most) {
        auto bound = Forms::Bind(fields, field);
        Begin();
        auto& cell = AddCell<UI::Controls::TextBox>(L"", UI::Controls::TextBox::MultiLine,
                                                    UI::Controls::TextBox::Face::Monospace);
        cell.Lines = HexLines;
        cell.Sizing = {L"00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"};
        ShowText(cell, bound, Forms::HexDump());
        SetSizeCaption(
            cell, [&value = bound.Value] { return value.Size(); }, std::move(most));
        return *this;
    }

    // Combo boxes of a vocabulary, and those that take any other number as well.
    template <class F, class Value, std::size_t count>
    TGroup& Combo(F field, const VNT::ValueText<Value> (&rows)[count]) {
        return Combo(field, std::span<const VNT::ValueText<Value>>(rows));
    }
    template <class F, class Value>
    TGroup& Combo(F field, std::span<const VNT::ValueText<Value>> rows) {
        auto bound = Forms::Bind(fields, field);
        auto& cell = AddComboCell(bound.Name, rows);
        UI::Controls::ComboBox& box = cell.Control;
        window.BindComboBox(box, rows, bound.Value, GetOnChange(cell));
        cell.Show = [&box, rows, &value = bound.Value](const auto&) {
            const int found = FindRow(rows, value);
            box.SetSelection(found != UI::Controls::ComboBox::NoSelection ? found : FindOther(rows));
        };
        return *this;
    }
    template <class F, class Value, std::size_t count>
    TGroup& ComboOther(F field, const VNT::ValueText<Value> (&rows)[count], const std::wstring& pattern) {
        return ComboOther(field, std::span<const VNT::ValueText<Value>>(rows), pattern);
    }
    template <class F, class Value>
    TGroup& ComboOther(F field, std::span<const VNT::ValueText<Value>> rows, const std::wstring& pattern) {
        auto bound = Forms::Bind(fields, field);
        auto& cell = AddComboCell(bound.Name, rows);
        UI::Controls::ComboBox& box = cell.Control;
        AddChoice(cell, L"Other");
        const int other = static_cast<int>(rows.size());
        auto& number = AddBox(bound, Forms::DecimalDigits(), pattern);
        // "Other" stays chosen while a number is typed that a row happens to have, and after that.
        auto isOther = std::make_shared<bool>(false);
        window.BindChoice(
            box,
            [isOther, other, rows, &value = bound.Value](int chosen) {
                using T = std::remove_reference_t<decltype(value)>;
                *isOther = chosen == other;
                value = static_cast<T>(*isOther ? static_cast<Value>(VNT::Undefined)
                                                : rows[static_cast<std::size_t>(chosen)].value);
            },
            GetOnChange(cell));
        cell.Show = [&box, &typed = number.Control, isOther, other, rows, &value = bound.Value,
                     shown = bound.Value](const auto&) mutable {
            const int found = FindRow(rows, value);
            if (found < 0) {
                *isOther = true;
            } else if (value != shown && !typed.HasFocus()) {
                *isOther = false;
            }
            shown = value;
            box.SetSelection(*isOther ? other : found);
        };
        number.VisibleIf = [isOther] { return *isOther; };
        last.push_back(&cell);
        return *this;
    }

    // A combo box whose rows the form fills and follows itself.
    UI::Controls::ComboBox& OpenCombo(Callback chosen) {
        Begin();
        auto& cell = AddCell<UI::Controls::ComboBox>(L"");
        cell.Stretches = true;
        cell.Control.AddNotificationHandler(UI::Controls::ComboBox::SelectionChanged, std::move(chosen));
        return cell.Control;
    }

    // Check boxes: of a bool, of one flag, of all flags of a vocabulary that the field can hold. The vocabulary may be
    // texts alone, in order.
    template <class F>
    TGroup& Check(F field, const std::wstring& text) {
        Begin();
        auto bound = Forms::Bind(fields, field);
        auto& cell = AddCheckCell(bound.Name, text);
        cell.Control.AddNotificationHandler(Clicked, window.BindToggle(bound.Value, GetOnChange(cell)));
        cell.Show = [&box = cell.Control, &value = bound.Value](const auto&) { box.SetChecked(value); };
        return *this;
    }
    template <class F>
    TGroup& Flag(F field, int bit, const std::wstring& text) {
        Begin();
        AddFlag(Forms::Bind(fields, field), bit, text);
        return *this;
    }
    template <class F, class Value, std::size_t count>
    TGroup& Checks(F field, const VNT::ValueText<Value> (&rows)[count], const std::wstring& unit = {}) {
        BeginRow(Forms::RowKind::Columns);
        auto bound = Forms::Bind(fields, field);
        for (const auto& row : rows) {
            if (CanHold(bound.Value, row.value))
                AddFlag(bound, static_cast<int>(row.value), VNT::String(row.text).ToWide() + unit);
        }
        return *this;
    }
    template <class F, std::size_t count>
    TGroup& Checks(F field, const char* const (&texts)[count]) {
        BeginRow(Forms::RowKind::Columns);
        for (std::size_t i = 0; i < count; ++i)
            AddFlag(Forms::Bind(fields, field), static_cast<int>(i), VNT::String(texts[i]).ToWide());
        return *this;
    }
    // Radio buttons, in one column as far as that goes. All of a group belong together.
    template <class F, class Value>
    TGroup& Radio(F field, Value value, const std::wstring& text) {
        if (!row || row->Kind != Forms::RowKind::Stack) BeginRow(Forms::RowKind::Stack);
        last.clear();
        AddRadio(row->Cells, Forms::Bind(fields, field), value, text);
        return *this;
    }

    TGroup& Button(const std::wstring& text, Callback action) {
        Begin();
        AddCell<UI::Controls::Button>(text, text).Control.AddNotificationHandler(Clicked, std::move(action));
        return *this;
    }
    TGroup& Label(const std::wstring& text) {
        if (!text.empty()) AddCell<UI::Controls::Label>(text, text).IsPart = true;
        return *this;
    }
    // Above a column of boxes and that of their units.
    TGroup& Heading(const std::wstring& text) {
        last.clear();
        return Label(text).Span();
    }
    // Of the field that stands behind it in the row.
    template <class F>
    TGroup& LabelOf(F field, const std::wstring& text) {
        Begin();
        auto& cell = AddCell<UI::Controls::Label>(text, text);
        cell.Field = Forms::Bind(fields, field).Name;
        cell.IsPart = true;
        return *this;
    }
    // The read-out of a calculated value, as wide as `pattern`.
    template <class F>
    TGroup& Actual(F field, const std::wstring& pattern, const VNT::DecimalFormat& format, const std::wstring& unit) {
        auto bound = Forms::Bind(fields, field);
        auto& cell = AddCell<UI::Controls::Label>(L"Actual: " + pattern + L" " + unit, L"");
        cell.Sizing.push_back(L"(no space left)");
        cell.IsPart = true;
        cell.Show = [&label = cell.Control, window = &window, bound, format, unit](const Forms::FieldState&) {
            AnyWindow::SetActual(label, format, unit, window->HasRoom(bound.Name), bound.Value);
        };
        return *this;
    }

    // A list with its buttons; its caption is the group's. `edit` opens the form of an item, `rows` are in view.
    template <class F, class GetLimits, class Edit>
    auto& List(F field, const VNT::ListCaptions& captions, GetLimits limits, Edit edit, int rows = ListRows) {
        auto bound = Forms::Bind(fields, field);
        using List = std::remove_reference_t<decltype(bound.Value)>;
        using Editor = Forms::TListEditor<List, decltype(limits())>;
        auto owned = std::make_unique<Forms::TListCell<Editor>>(window, rows);
        Forms::TListCell<Editor>& cell = *owned;
        cell.Field = bound.Name;
        cell.Editor = std::make_unique<Editor>(cell.Controls, bound.Value, captions, limits, edit,
                                               [window = &window] { window->Update(); });
        group.Sizing.push_back(VNT::String(captions.noRoom).ToWide());
        group.RefreshCaption = [&box = group.Box, &editor = *cell.Editor] {
            box.SetText(editor.GetCaption().ToWide());
        };
        Begin();
        row->Cells.push_back(std::move(owned));
        last.push_back(&cell);
        return *cell.Editor;
    }

    // Of what was added last: of a group or row, when nothing stands in it yet.
    TGroup& OnChange(Callback callback) {
        for (Forms::Cell* cell : last) cell->OnChange = callback;
        return *this;
    }
    TGroup& EnabledIf(Condition condition) {
        for (Forms::Cell* cell : last) cell->EnabledIf = condition;
        return *this;
    }
    TGroup& VisibleIf(Condition condition) {
        if (last.empty()) (row ? row->VisibleIf : group.VisibleIf) = condition;
        for (Forms::Cell* cell : last) cell->VisibleIf = condition;
        return *this;
    }
    // What was added last is as wide as two columns.
    TGroup& Span() {
        for (Forms::Cell* cell : last) {
            cell->Span = 2;
            cell->Stretches = false;
        }
        return *this;
    }
    // The cells of the group's rows stand in columns.
    TGroup& Aligned() {
        group.IsAligned = true;
        return *this;
    }

private:
    static constexpr int Clicked = UI::Controls::Button::Clicked;
    static constexpr int HexLines = 4;
    static constexpr int ListRows = 6;

    // "000.00" has two.
    static int CountDecimals(const std::wstring& pattern) {
        const std::size_t point = pattern.find(L'.');
        return point == std::wstring::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
    }

    // What is added now is what `OnChange` and the like are about.
    void Begin() {
        last.clear();
        if (!row) BeginRow(Forms::RowKind::Line);
    }
    void BeginRow(Forms::RowKind kind) {
        last.clear();
        // A block under a label stands in the label's row.
        if (row && row->Cells.empty() && kind != Forms::RowKind::Line) {
            row->Kind = kind;
            return;
        }
        group.Rows.push_back(std::make_unique<Forms::Row>());
        row = group.Rows.back().get();
        row->Kind = kind;
    }
    template <class Control, class... Arguments>
    Forms::TControlCell<Control>& AddTo(std::vector<std::unique_ptr<Forms::Cell>>& cells, const std::wstring& sizing,
                                        Arguments&&... arguments) {
        auto owned = std::make_unique<Forms::TControlCell<Control>>(window, std::forward<Arguments>(arguments)...);
        Forms::TControlCell<Control>& cell = *owned;
        cell.Sizing = {sizing};
        cells.push_back(std::move(owned));
        last.push_back(&cell);
        return cell;
    }
    template <class Control, class... Arguments>
    Forms::TControlCell<Control>& AddCell(const std::wstring& sizing, Arguments&&... arguments) {
        if (!row) BeginRow(Forms::RowKind::Line);
        return AddTo<Control>(row->Cells, sizing, std::forward<Arguments>(arguments)...);
    }
    static Callback GetOnChange(Forms::Cell& cell) {
        return [&cell] {
            if (cell.OnChange) cell.OnChange();
        };
    }

    template <class T, class Format>
    auto& AddBox(Forms::TBoundField<T> field, const Format& format, const std::wstring& pattern) {
        Begin();
        auto& cell = AddCell<UI::Controls::TextBox>(pattern);
        cell.Stretches = pattern.empty();
        ShowText(cell, field, format);
        return cell;
    }
    template <class T, class Format>
    void ShowText(Forms::TControlCell<UI::Controls::TextBox>& cell, Forms::TBoundField<T> field, const Format& format) {
        cell.Field = field.Name;
        cell.ShowsValidity = true;
        window.BindTextBox(
            cell.Control,
            [&value = field.Value, format](const VNT::String& text) { return Forms::ParseField(text, value, format); },
            [&cell](bool parsed) {
                // A field with a sentinel says so itself.
                if constexpr (std::is_same_v<T, VNT::Bytes>) cell.IsBadText = !parsed;
                if (cell.OnChange) cell.OnChange();
            });
        cell.Show = [&cell, &value = field.Value, format](const Forms::FieldState& state) {
            AnyWindow::SetText(cell.Control, Forms::PrintField(value, format), state,
                               cell.IsBadText || Forms::IsBad(value));
        };
    }
    // The caption says what is left of the size, or that there is none left or that the text is none.
    void SetSizeCaption(Forms::Cell& cell, std::function<int()> size, std::function<int()> most) {
        const VNT::String name(group.Box.GetText());
        group.Sizing.push_back((name + U" (no space left)").ToWide());
        group.RefreshCaption = [&cell, &box = group.Box, name, size = std::move(size), most = std::move(most)] {
            const int used = size();
            const int room = most();
            if (used <= room && cell.IsBadText) {
                box.SetText((name + U" (invalid)").ToWide());
            } else {
                const VNT::String caption = name + U" ({sizelefttext})";
                AnyWindow::SetCaption(box, used <= room ? VNT::GetSizeText(used, room, caption) : name, used <= room);
            }
        };
    }

    template <class Value>
    static int FindRow(std::span<const VNT::ValueText<Value>> rows, const auto& value) {
        const auto found =
            std::find_if(rows.begin(), rows.end(), [&value](const auto& row) { return value == row.value; });
        return found == rows.end() ? UI::Controls::ComboBox::NoSelection : static_cast<int>(found - rows.begin());
    }
    // The row that stands for every value without one.
    template <class Value>
    static int FindOther(std::span<const VNT::ValueText<Value>> rows) {
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [](const auto& row) { return std::string_view(row.text) == "Other"; });
        return found == rows.end() ? UI::Controls::ComboBox::NoSelection : static_cast<int>(found - rows.begin());
    }
    static void AddChoice(Forms::TControlCell<UI::Controls::ComboBox>& cell, const std::wstring& text) {
        cell.Control.AddItem(text);
        cell.Sizing.push_back(text);
    }
    template <class Value>
    auto& AddComboCell(std::string_view name, std::span<const VNT::ValueText<Value>> rows) {
        Begin();
        auto& cell = AddCell<UI::Controls::ComboBox>(L"");
        cell.Field = name;
        cell.Stretches = true;
        for (const auto& row : rows) AddChoice(cell, VNT::String(row.text).ToWide());
        return cell;
    }
    auto& AddCheckCell(std::string_view name, const std::wstring& text) {
        auto& cell = AddCell<UI::Controls::CheckBox>(text, text);
        cell.Field = name;
        return cell;
    }
    template <class Flags>
    static bool CanHold(const Flags&, auto flag) {
        if constexpr (requires { Flags::Holds(flag); }) return Flags::Holds(flag);
        return true;
    }
    template <class T>
    void AddFlag(Forms::TBoundField<T> field, int bit, const std::wstring& text) {
        auto& cell = AddCheckCell(field.Name, text);
        cell.Control.AddNotificationHandler(Clicked, window.BindCheck(bit, field.Value, GetOnChange(cell)));
        cell.Show = [&box = cell.Control, &flags = field.Value, bit](const auto&) {
            box.SetChecked(AnyWindow::TestBit(flags, bit));
        };
    }
    template <class T, class Value>
    auto& AddRadio(std::vector<std::unique_ptr<Forms::Cell>>& cells, Forms::TBoundField<T> field, Value value,
                   const std::wstring& text) {
        auto& cell = AddTo<UI::Controls::RadioButton>(cells, text, text, radioGroup);
        cell.Field = field.Name;
        cell.Control.AddNotificationHandler(Clicked, window.BindRadio(value, field.Value, GetOnChange(cell)));
        cell.Show = [&radio = cell.Control, &current = field.Value, value](const auto&) {
            const bool isChosen = current == static_cast<T>(value);
            radio.SetChecked(isChosen);
            radio.SetTabStop(isChosen);
        };
        return cell;
    }

    AnyWindow& window;
    Forms::Group& group;
    Fields& fields;
    int radioGroup;
    Forms::Row* row = nullptr;
    std::vector<Forms::Cell*> last;
};
