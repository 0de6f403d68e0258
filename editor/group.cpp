#include "editor/group.h"

namespace Forms {

using namespace VNT;
using UI::Controls::CheckBox;
using UI::Controls::ComboBox;
using UI::Controls::RadioButton;
using UI::Controls::TextBox;

namespace {

constexpr int Clicked = UI::Controls::Button::Clicked;
constexpr int HexLines = 4;

// "000.00" has two.
int CountDecimals(const std::wstring& pattern) {
    const std::size_t point = pattern.find(L'.');
    return point == std::wstring::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
}

String Print(std::int64_t number) { return NumberText(number, 10, 0, false); }

template <class Test>
int FindRow(const Choices& choices, const Test& test) {
    const auto found = std::find_if(choices.begin(), choices.end(), test);
    return found == choices.end() ? ComboBox::NoSelection : static_cast<int>(found - choices.begin());
}
int FindValue(const Choices& choices, std::int64_t value) {
    return FindRow(choices, [value](const Choice& choice) { return choice.Value == value; });
}

// Choosing what is chosen would draw the box all the same.
void Choose(ComboBox& box, int row) {
    if (box.GetSelection() != row) box.SetSelection(row);
}

void AddChoice(TControlCell<ComboBox>& cell, const std::wstring& text) {
    cell.Control.AddItem(text);
    cell.Sizing.push_back(text);
}

}  // namespace

Choices MakeChoices(std::span<const char* const> texts) {
    Choices choices;
    for (const char* text : texts)
        choices.push_back({static_cast<std::int64_t>(choices.size()), String(text).ToWide()});
    return choices;
}

// What is added now is what `OnChange` and the like are about.
void GroupWriter::Begin() {
    last.clear();
    if (!row) BeginRow(RowKind::Line);
}

void GroupWriter::BeginRow(RowKind kind) {
    last.clear();
    // A block under a label stands in the label's row.
    if (row && row->Cells.empty() && kind != RowKind::Line) {
        row->Kind = kind;
        return;
    }
    group.Rows.push_back(std::make_unique<Row>());
    row = group.Rows.back().get();
    row->Kind = kind;
}

template <class Control, class... Arguments>
TControlCell<Control>& GroupWriter::AddTo(Cells& cells, const std::wstring& sizing, Arguments&&... arguments) {
    auto owned = std::make_unique<TControlCell<Control>>(window, std::forward<Arguments>(arguments)...);
    TControlCell<Control>& cell = *owned;
    cell.Sizing = {sizing};
    cells.push_back(std::move(owned));
    last.push_back(&cell);
    return cell;
}
template <class Control, class... Arguments>
TControlCell<Control>& GroupWriter::AddCell(const std::wstring& sizing, Arguments&&... arguments) {
    if (!row) BeginRow(RowKind::Line);
    return AddTo<Control>(row->Cells, sizing, std::forward<Arguments>(arguments)...);
}

// What the user does to a control of `cell`, as `AnyWindow::TakeInput` takes it.
template <class Control>
void GroupWriter::AddInput(TControlCell<Control>& cell, int notification, const void* source,
                           std::function<String()> get, Callback store) {
    const AnyWindow::Input input{source, std::move(get), std::move(store)};
    cell.Control.AddNotificationHandler(notification, [form = &window, &cell, input] { form->TakeInput(cell, input); });
}

void GroupWriter::BeginRow(const std::wstring& label) {
    BeginRow(RowKind::Line);
    if (!label.empty()) AddTo<UI::Controls::Label>(row->Labels, label, label);
    last.clear();
}

void GroupWriter::RadioRow(const AnyField& field, std::int64_t value, const std::wstring& text) {
    BeginRow(RowKind::Line);
    auto& radio = AddRadio(row->Labels, field, value, text);
    radio.VisibleIf = [form = &window, name = field.Name] { return form->IsAvailable(name); };
    AddTo<UI::Controls::Label>(row->Labels, text, text).VisibleIf = [&radio] { return !radio.IsVisible; };
    last.clear();
}

GroupWriter::TextCell& GroupWriter::AddBox(const AnyField& field, const FieldFormat& format,
                                           const std::wstring& pattern) {
    Begin();
    auto& cell = AddCell<TextBox>(pattern);
    cell.Stretches = pattern.empty();
    ShowText(cell, field, format);
    return cell;
}

void GroupWriter::ShowText(TextCell& cell, const AnyField& field, const FieldFormat& format) {
    cell.Field = field.Name;
    cell.ShowsValidity = true;
    window.Register(field);
    window.BindTextBox(
        cell, [field, format] { return PrintField(field, format); },
        [&cell, field, format](const String& text) {
            const bool isParsed = ParseField(text, field, format);
            // A field with a sentinel says so itself.
            cell.IsBadText = !isParsed && field.GetKind() == FieldKind::Data;
        });
    cell.Explain = [&cell, field, format](const AnyLimits* limits, const std::wstring& unit) {
        if (cell.IsBadText || IsBad(field)) return DescribeBadText(format);
        return limits ? DescribeLimits(*limits, format, unit) : std::wstring();
    };
    cell.Show = [&cell, field, format](const FieldState& state) {
        AnyWindow::SetText(cell.Control, PrintField(field, format), state, cell.IsBadText || IsBad(field));
    };
}

void GroupWriter::Box(const AnyField& field, const FieldFormat& format, const std::wstring& pattern, bool stretches) {
    TextCell& cell = AddBox(field, format, pattern);
    cell.Stretches = cell.Stretches || stretches;
}

void GroupWriter::Number(const AnyField& field, const std::wstring& pattern, const std::wstring& unit) {
    if (field.GetKind() == FieldKind::Decimal) return Number(field, pattern, {CountDecimals(pattern)}, unit);
    AddBox(field, DecimalDigits(), pattern);
    Label(unit);
}

void GroupWriter::Number(const AnyField& field, const std::wstring& pattern, const DecimalFormat& format,
                         const std::wstring& unit) {
    AddBox(field, format, pattern);
    Label(unit);
}

void GroupWriter::SizedText(const AnyField& field, std::function<int()> most) {
    auto& cell = AddBox(field, PlainText(), {});
    SetSizeCaption(
        cell, [field] { return field.GetText().Length(); }, std::move(most));
}

void GroupWriter::SizedHex(const AnyField& field, std::function<int()> most) {
    Begin();
    auto& cell = AddCell<TextBox>(L"", TextBox::MultiLine, TextBox::Face::Monospace);
    cell.Lines = HexLines;
    cell.Sizing = {L"00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"};
    ShowText(cell, field, HexDump());
    SetSizeCaption(
        cell, [field] { return field.GetData().Size(); }, std::move(most));
}

// The caption says what is left of the size, or that there is none left or that the text is none.
void GroupWriter::SetSizeCaption(Cell& cell, std::function<int()> size, std::function<int()> most) {
    const String name(group.Box.GetText());
    group.Sizing.push_back((name + U" (no space left)").ToWide());
    group.RefreshCaption = [&cell, &box = group.Box, name, size = std::move(size), most = std::move(most)] {
        const int used = size();
        const int room = most();
        if (used <= room && cell.IsBadText) {
            box.SetText((name + U" (invalid)").ToWide());
        } else {
            const String caption = name + U" ({sizelefttext})";
            AnyWindow::SetCaption(box, used <= room ? GetSizeText(used, room, caption) : name, used <= room);
        }
    };
}

GroupWriter::ComboCell& GroupWriter::AddComboCell(std::string_view name, const Choices& choices) {
    Begin();
    auto& cell = AddCell<ComboBox>(L"");
    cell.Field = name;
    cell.Stretches = true;
    for (const Choice& choice : choices) AddChoice(cell, choice.Text);
    return cell;
}

void GroupWriter::Combo(const AnyField& field, Choices choices) {
    auto& cell = AddComboCell(field.Name, choices);
    // The row that stands for every value without one.
    const int others = FindRow(choices, [](const Choice& choice) { return choice.Text == L"Other"; });
    const auto shared = std::make_shared<const Choices>(std::move(choices));
    AddInput(
        cell, ComboBox::SelectionChanged, &cell, [field] { return Print(field.GetNumber()); },
        [&box = cell.Control, field, shared] {
            const int chosen = box.GetSelection();
            if (chosen != ComboBox::NoSelection) field.SetNumber((*shared)[static_cast<std::size_t>(chosen)].Value);
        });
    window.Register(field);
    cell.Explain = [field, shared](const AnyLimits* limits, const std::wstring&) {
        return limits ? DescribeRows(*limits, *shared, field.GetNumber()) : std::wstring();
    };
    cell.Show = [&box = cell.Control, field, shared, others](const FieldState&) {
        const int found = FindValue(*shared, field.GetNumber());
        Choose(box, found != ComboBox::NoSelection ? found : others);
    };
}

void GroupWriter::ComboOther(const AnyField& field, Choices choices, const std::wstring& pattern) {
    auto& cell = AddComboCell(field.Name, choices);
    const int other = static_cast<int>(choices.size());
    AddChoice(cell, L"Other");
    auto& number = AddBox(field, DecimalDigits(), pattern);
    const auto shared = std::make_shared<const Choices>(std::move(choices));
    // "Other" stays chosen while a number is typed that a row happens to have, and after that. The number that it had
    // last comes back with it.
    struct Others {
        bool isChosen = false;
        std::int64_t number = Undefined;
    };
    const auto others = std::make_shared<Others>();
    AddInput(
        cell, ComboBox::SelectionChanged, &cell,
        [others, field] { return Print(field.GetNumber()) + (others->isChosen ? U" of others" : U""); },
        [&box = cell.Control, others, other, field, shared] {
            const int chosen = box.GetSelection();
            if (chosen == ComboBox::NoSelection) return;
            others->isChosen = chosen == other;
            field.SetNumber(others->isChosen ? others->number : (*shared)[static_cast<std::size_t>(chosen)].Value);
        });
    window.Register(field);
    cell.Show = [&box = cell.Control, &typed = number.Control, others, other, field, shared,
                 shown = field.GetNumber()](const FieldState&) mutable {
        const std::int64_t value = field.GetNumber();
        const int found = FindValue(*shared, value);
        if (found < 0) {
            others->isChosen = true;
            if (value != BadNumber) others->number = value;
        } else if (value != shown && !typed.HasFocus()) {
            others->isChosen = false;
        }
        shown = value;
        Choose(box, others->isChosen ? other : found);
    };
    number.VisibleIf = [others] { return others->isChosen; };
    last.push_back(&cell);
}

ComboBox& GroupWriter::OpenCombo(Callback chosen) {
    Begin();
    auto& cell = AddCell<ComboBox>(L"");
    cell.Stretches = true;
    cell.ShowsRows = true;
    cell.Control.AddNotificationHandler(ComboBox::SelectionChanged, std::move(chosen));
    return cell.Control;
}

TControlCell<CheckBox>& GroupWriter::AddCheckCell(std::string_view name, const std::wstring& text) {
    auto& cell = AddCell<CheckBox>(text, text);
    cell.Field = name;
    return cell;
}

void GroupWriter::Check(const AnyField& field, const std::wstring& text) {
    Begin();
    auto& cell = AddCheckCell(field.Name, text);
    AddInput(
        cell, Clicked, &cell, [field] { return Print(field.GetNumber()); },
        [field] { field.SetNumber(field.GetNumber() == 0 ? 1 : 0); });
    window.Register(field);
    cell.Show = [&box = cell.Control, field](const FieldState&) { box.SetChecked(field.GetNumber() != 0); };
}

void GroupWriter::Flag(const AnyField& field, int bit, const std::wstring& text) {
    Begin();
    AddFlag(field, bit, text);
}

void GroupWriter::AddFlag(const AnyField& field, int bit, const std::wstring& text) {
    auto& cell = AddCheckCell(field.Name, text);
    AddInput(
        cell, Clicked, &cell, [field, bit] { return Print(field.TestBit(bit) ? 1 : 0); },
        [field, bit] { field.SetBit(bit, !field.TestBit(bit)); });
    window.Register(field);
    cell.Show = [&box = cell.Control, field, bit](const FieldState&) { box.SetChecked(field.TestBit(bit)); };
}

void GroupWriter::Flags(const AnyField& field, const Choices& flags, const std::wstring& unit) {
    BeginRow(RowKind::Columns);
    for (const Choice& flag : flags) {
        const int bit = static_cast<int>(flag.Value);
        if (field.HoldsBit(bit)) AddFlag(field, bit, flag.Text + unit);
    }
}

TControlCell<RadioButton>& GroupWriter::AddRadio(Cells& cells, const AnyField& field, std::int64_t value,
                                                 const std::wstring& text) {
    auto& cell = AddTo<RadioButton>(cells, text, text, radioGroup);
    cell.Field = field.Name;
    AddInput(
        cell, Clicked, field.GetAddress(), [field] { return Print(field.GetNumber()); },
        [field, value] { field.SetNumber(value); });
    window.Register(field);
    cell.Show = [&radio = cell.Control, field, value](const FieldState&) {
        const bool isChosen = field.GetNumber() == value;
        radio.SetChecked(isChosen);
        radio.SetTabStop(isChosen);
    };
    return cell;
}

void GroupWriter::Radio(const AnyField& field, std::int64_t value, const std::wstring& text) {
    if (!row || row->Kind != RowKind::Stack) BeginRow(RowKind::Stack);
    last.clear();
    AddRadio(row->Cells, field, value, text);
}

UI::Controls::Button& GroupWriter::Button(const std::wstring& text, Callback action) {
    Begin();
    auto& button = AddCell<UI::Controls::Button>(text, text).Control;
    button.AddNotificationHandler(Clicked, [form = &window, action = std::move(action)] {
        form->ForgetInput();
        action();
    });
    return button;
}

void GroupWriter::Label(const std::wstring& text) {
    if (!text.empty()) AddCell<UI::Controls::Label>(text, text).IsPart = true;
}

void GroupWriter::Heading(const std::wstring& text) {
    last.clear();
    Label(text);
    Span();
}

void GroupWriter::LabelOf(std::string_view field, const std::wstring& text) {
    Begin();
    auto& cell = AddCell<UI::Controls::Label>(text, text);
    cell.Field = field;
    cell.IsPart = true;
}

void GroupWriter::Actual(const AnyField& field, const std::wstring& pattern, const DecimalFormat& format,
                         const std::wstring& unit) {
    auto& cell = AddCell<UI::Controls::Label>(L"Actual: " + pattern + L" " + unit, L"");
    cell.Sizing.push_back(L"(no space left)");
    cell.IsPart = true;
    cell.Show = [&label = cell.Control, window = &window, field, format, unit](const FieldState&) {
        AnyWindow::SetActual(label, format, unit, window->HasRoom(field.Name), field.GetDecimal());
    };
}

void GroupWriter::List(std::unique_ptr<ListCell> cell, const ListCaptions& captions) {
    group.Sizing.push_back(String(captions.noRoom).ToWide());
    group.RefreshCaption = [&box = group.Box, &editor = *cell->Editor] { box.SetText(editor.GetCaption().ToWide()); };
    cell->Explain = [&editor = *cell->Editor](const AnyLimits*, const std::wstring&) {
        return DescribeList(editor.Measure());
    };
    Begin();
    last.push_back(cell.get());
    row->Cells.push_back(std::move(cell));
}

void GroupWriter::OnChange(const Callback& callback) {
    for (Cell* cell : last) cell->OnChange = callback;
}

void GroupWriter::EnabledIf(const Condition& condition) {
    for (Cell* cell : last) cell->EnabledIf = condition;
}

void GroupWriter::VisibleIf(const Condition& condition) {
    if (last.empty()) (row ? row->VisibleIf : group.VisibleIf) = condition;
    for (Cell* cell : last) cell->VisibleIf = condition;
}

void GroupWriter::Span() {
    for (Cell* cell : last) {
        cell->Span = 2;
        cell->Stretches = false;
    }
}

}  // namespace Forms
