#include "editor/any_window.h"

#include <algorithm>

#include "editor/field_text.h"

using namespace VNT;
using UI::Controls::Button;
using UI::Controls::ComboBox;
using UI::Controls::TextBox;

AnyWindow::AnyWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
    : UI::Window(parent, className, title) {}

AnyWindow::~AnyWindow() = default;

void AnyWindow::BindOk(Button& button, Callback commit) {
    const auto confirm = [&button, commit = std::move(commit)] {
        if (!button.IsEnabled()) return;
        if (commit) commit();
        UI::EndRun(UI::IdOk);
    };
    button.AddNotificationHandler(Button::Clicked, confirm);
    AddCommandHandler(UI::IdOk, [this, confirm] {
        if (!IsInRefuge()) confirm();
    });
}

void AnyWindow::BindCancel(Button& button) {
    const auto end = [] { UI::EndRun(UI::IdCancel); };
    button.AddNotificationHandler(Button::Clicked, end);
    AddCommandHandler(UI::IdCancel, end);
    AddResultHandler(UI::Message::Close, [end](UI::WParam, UI::LParam) -> UI::MessageResult {
        end();
        return 0;
    });
}

std::size_t AnyWindow::FindPast(const String& text) const {
    return static_cast<std::size_t>(std::find(past.begin(), past.end(), text) - past.begin());
}

void AnyWindow::TakeInput(Forms::Cell& cell, const Input& input) {
    if (lastInput != input.Source) {
        lastInput = input.Source;
        lastText = input.Get();
        past.clear();
        ForgetPast();
    }
    // A bad text is none that the record has anything of.
    const bool isKept = past.empty() || !cell.IsBadText;
    constexpr std::size_t most = 64;
    if (past.size() < most && isKept && FindPast(lastText) == past.size()) {
        past.push_back(lastText);
        Remember();
    }
    if (lastCell) lastCell->IsBlamed = false;
    lastCell = &cell;
    input.Store();
    if (cell.OnChange) cell.OnChange();
    lastText = input.GetTyped ? input.GetTyped() : input.Get();
    const std::size_t found = FindPast(lastText);
    if (!cell.IsBadText && found < past.size()) Recall(found);
    Update();
}

void AnyWindow::BindTextBox(Forms::TControlCell<TextBox>& cell, std::function<String()> get,
                            std::function<void(const String&)> parse) {
    TextBox& box = cell.Control;
    const Input input{&cell, std::move(get), [&box, parse = std::move(parse)] { parse(String(box.GetText())); },
                      [&box] { return String(box.GetText()); }};
    box.AddNotificationHandler(TextBox::Changed, [this, &cell, input] { TakeInput(cell, input); });
    box.AddNotificationHandler(TextBox::FocusLost, [this] { Update(); });
}

void AnyWindow::BindChoice(ComboBox& box, std::function<void(int row)> choose, Callback onChange) {
    box.AddNotificationHandler(ComboBox::SelectionChanged,
                               [this, &box, choose = std::move(choose), onChange = std::move(onChange)] {
                                   if (box.GetSelection() != ComboBox::NoSelection) choose(box.GetSelection());
                                   if (onChange) onChange();
                                   Update();
                               });
}

void AnyWindow::SetText(TextBox& box, const String& text, const Forms::FieldState& state, bool isBadText) {
    if (!isBadText && !box.HasFocus()) box.SetText(text.ToWide());
    box.SetValidStyle(state.IsValid);
    if (box.IsEnabled() != state.IsAvailable) box.SetEnabled(state.IsAvailable);
}

void AnyWindow::SetCaption(UI::Control& control, const String& text, bool available) {
    control.SetText((available ? text : text + U" (no space left)").ToWide());
}

void AnyWindow::SetActual(UI::Controls::Label& label, const DecimalFormat& format, const std::wstring& unit,
                          bool enabled, Decimal value) {
    std::wstring text = L"(no space left)";
    if (enabled) {
        const bool isNone = value.IsUndefined() || value == Forms::BadDecimal;
        text = L"Actual: ";
        text.append(isNone ? L"–" : DecimalToText(value, format).ToWide()).append(L" ").append(unit);
    }
    label.SetText(text);
}

Forms::Group& AnyWindow::AddGroup(const std::wstring& caption) {
    groups.push_back(std::make_unique<Forms::Group>(*this, caption));
    return *groups.back();
}

Button& AnyWindow::AddBottomButton(const std::wstring& text, Callback action) {
    leftButtons.push_back(std::make_unique<Button>(*this, text));
    leftButtons.back()->AddNotificationHandler(Button::Clicked, std::move(action));
    return *leftButtons.back();
}

void AnyWindow::AddOkAndCancel() {
    // Behind the controls of all groups, so that they come last in the Tab order.
    if (ok) return;
    ok = std::make_unique<Button>(*this, L"OK");
    cancel = std::make_unique<Button>(*this, L"Cancel");
    BindOk(*ok, [this] { Commit(); });
    BindCancel(*cancel);
}

void AnyWindow::LayOutAnew() {
    if (!isLaidOut) return;
    RequireLayout();
    Update();
}

int AnyWindow::RunForm() {
    AddOkAndCancel();
    NameCells();
    RequireLayout();
    lastCell = nullptr;
    lastInput = nullptr;
    Update();
    Center();
    return Run();
}

void AnyWindow::Update() {
    bool changed = !isLaidOut;
    if (lastCell) lastCell->IsBlamed = false;
    for (const auto& group : groups) changed = UpdateGroup(*group) || changed;
    // What can't be written although no field says so is told at what was put in last.
    const bool isBlocked = !IsClosed() && IsBlocked();
    if (lastCell && isBlocked) {
        lastCell->IsBlamed = true;
        for (const auto& group : groups) changed = UpdateGroup(*group) || changed;
    }
    if (!ok) return;
    const bool canConfirm = CanConfirm() && !isBlocked && !IsClosed();
    if (ok->IsEnabled() != canConfirm) ok->SetEnabled(canConfirm);
    ok->SetDefault(canConfirm);
    Explain();
    if (!changed) return;
    isLaidOut = true;
    Forms::BottomButtons buttons{{}, {ok.get(), cancel.get()}};
    for (const auto& button : leftButtons) buttons.Left.push_back(button.get());
    Forms::LayOut(*this, groups, buttons);
    if (GetRunning() != this) return;
    StayInWorkArea();
    const auto focused = [](const UI::Control* control) { return control->HasFocus(); };
    const auto found = std::find_if(GetControls().begin(), GetControls().end(), focused);
    if (found != GetControls().end()) Reveal(**found);
}

bool AnyWindow::UpdateGroup(Forms::Group& group) {
    const bool isVisible = Forms::Holds(group.VisibleIf);
    bool changed = isVisible != group.IsVisible;
    if (changed) group.Box.SetVisible(isVisible);
    group.IsVisible = isVisible;
    bool isValid = true;
    bool isAvailable = group.Rows.empty();
    for (const auto& row : group.Rows) changed = UpdateRow(*row, isVisible, isValid, isAvailable) || changed;
    if (group.RefreshCaption) group.RefreshCaption();
    SetValidStyle(group.Box, isValid);
    if (group.Box.IsEnabled() != isAvailable) group.Box.SetEnabled(isAvailable);
    return changed;
}

void AnyWindow::SetState(Forms::Cell& cell) const {
    cell.State = cell.Field.empty() ? Forms::FieldState{} : GetFieldState(cell.Field);
    cell.State.IsAvailable = cell.State.IsAvailable && Forms::Holds(cell.EnabledIf);
    // What follows from other fields is red too where it is out of its limits. A text that is nothing counts only where
    // it can be mended.
    if ((cell.IsBadText && cell.State.IsAvailable) || cell.IsBlamed) {
        cell.State.IsValid = false;
        cell.State.ClosesOk = true;
    }
}

bool AnyWindow::UpdateRow(Forms::Row& row, bool isVisible, bool& isValid, bool& isAvailable) {
    // Labels and units can be used where a field of their row can.
    bool hasField = false;
    bool hasOpenField = false;
    for (const auto& cell : row.Cells) {
        SetState(*cell);
        if (!cell->State.IsValid && !cell->ShowsValidity) isValid = false;
        hasField = hasField || !cell->IsPart;
        hasOpenField = hasOpenField || (!cell->IsPart && cell->State.IsAvailable);
    }
    const bool isOpen = hasOpenField || !hasField;
    isVisible = isVisible && Forms::Holds(row.VisibleIf);
    isAvailable = isAvailable || isOpen;
    bool changed = false;
    for (const auto& cell : row.Cells) {
        if (cell->IsPart) cell->State.IsAvailable = cell->State.IsAvailable && isOpen;
        changed = UpdateCell(*cell, isVisible) || changed;
    }
    for (const auto& label : row.Labels) {
        SetState(*label);
        label->State.IsAvailable = label->State.IsAvailable && isOpen;
        changed = UpdateCell(*label, isVisible && row.IsVisible()) || changed;
    }
    return changed;
}

bool AnyWindow::UpdateCell(Forms::Cell& cell, bool isVisible) {
    isVisible = isVisible && Forms::Holds(cell.VisibleIf);
    const bool changed = isVisible != cell.IsVisible;
    if (changed) cell.SetVisible(isVisible);
    cell.IsVisible = isVisible;
    cell.Refresh(cell.State);
    return changed;
}

namespace {

// Without the colon that parts a label from its box.
std::wstring GetLabel(std::wstring text) {
    while (!text.empty() && (text.back() == L':' || text.back() == L' ')) text.pop_back();
    return text;
}

// "Red x: 0 to 1"
std::wstring Join(const std::wstring& name, const std::wstring& text) {
    return name.empty() || text.empty() ? name + text : name + L": " + text;
}

// A label says what stands behind it; one behind a box is its unit.
bool IsUnit(const Forms::Row& row, std::size_t cell) {
    return row.Cells[cell]->IsPart && cell > 0 && !row.Cells[cell - 1]->IsPart;
}

bool HasLabelsOnly(const Forms::Row& row) {
    return std::all_of(row.Cells.begin(), row.Cells.end(), [](const auto& cell) { return cell->IsPart; });
}

}  // namespace

void AnyWindow::NameCells() {
    for (const auto& group : groups) {
        const Forms::Row* headings = nullptr;
        std::wstring rowLabel;
        for (const auto& row : group->Rows) {
            if (HasLabelsOnly(*row)) {
                if (group->IsAligned && row->Cells.size() > 1) headings = row.get();
                continue;
            }
            if (!row->Labels.empty()) rowLabel = GetLabel(row->Labels.front()->GetControl().GetText());
            std::wstring label = rowLabel;
            int column = 0;
            for (std::size_t i = 0; i < row->Cells.size(); ++i) {
                Forms::Cell& cell = *row->Cells[i];
                const int begin = column;
                column += cell.Span;
                UI::Control& control = cell.GetControl();
                if (cell.IsPart && !IsUnit(*row, i)) label = GetLabel(control.GetText());
                if (cell.IsPart || control.GetKind() == UI::ControlKind::Button) continue;
                std::wstring name = label;
                int end = 0;
                for (std::size_t h = 0; headings && h < headings->Cells.size(); ++h) {
                    const int start = end;
                    end += headings->Cells[h]->Span;
                    if (begin >= start && begin < end)
                        name += (name.empty() ? L"" : L" ") + headings->Cells[h]->GetControl().GetText();
                }
                // Without a label it is called by the group's caption, which may change.
                control.SetName(name);
            }
        }
    }
}

std::wstring AnyWindow::Explain(const Forms::Row& row, std::size_t index,
                                const std::vector<FieldLimits>& limits) const {
    const Forms::Cell& cell = *row.Cells[index];
    if (!cell.Explain) return L"Not possible here";
    std::wstring unit;
    if (index + 1 < row.Cells.size() && IsUnit(row, index + 1)) unit = row.Cells[index + 1]->GetControl().GetText();
    const auto found =
        std::find_if(limits.begin(), limits.end(), [&](const FieldLimits& of) { return of.name == cell.Field; });
    const std::wstring text = cell.Explain(found != limits.end() ? &found->proper : nullptr, unit);
    return text.empty() ? L"Not possible here" : text;
}

void AnyWindow::Explain() {
    std::wstring first;
    std::vector<FieldLimits> limits;
    for (const auto& group : groups) {
        for (const auto& row : group->Rows) {
            for (std::size_t i = 0; i < row->Cells.size(); ++i) {
                Forms::Cell& cell = *row->Cells[i];
                if (cell.IsPart) continue;
                std::wstring hint;
                if (!cell.State.IsValid && cell.IsVisible) {
                    if (limits.empty()) limits = GetFieldLimits();
                    hint = Explain(*row, i, limits);
                    if (first.empty()) first = Join(cell.GetControl().GetName(), hint);
                }
                UI::Control& control = cell.GetControl();
                if (!hint.empty() || !control.GetHint().empty()) control.SetHint(hint);
            }
        }
    }
    if (first.empty()) first = HasRoom("Size") ? L"These values do not go together" : L"No space left";
    ok->SetHint(ok->IsEnabled() ? L"" : first);
}

bool AnyWindow::IsInRefuge() const {
    const auto isRefuge = [](const auto& cell) {
        const auto* list = dynamic_cast<const Forms::ListCell*>(cell.get());
        return list != nullptr && list->Controls.IsRefuge();
    };
    for (const auto& group : groups) {
        for (const auto& row : group->Rows) {
            if (std::any_of(row->Cells.begin(), row->Cells.end(), isRefuge)) return true;
        }
    }
    return false;
}

bool AnyWindow::HasFault(const Forms::Group& group) {
    const auto closes = [](const auto& cell) { return cell->State.ClosesOk; };
    return std::any_of(group.Rows.begin(), group.Rows.end(), [&closes](const auto& row) {
        return std::any_of(row->Cells.begin(), row->Cells.end(), closes);
    });
}

bool AnyWindow::IsClosed() const {
    const auto closes = [](const auto& cell) { return cell->State.ClosesOk && cell->IsVisible; };
    for (const auto& group : groups) {
        for (const auto& row : group->Rows) {
            if (std::any_of(row->Cells.begin(), row->Cells.end(), closes)) return true;
        }
    }
    return false;
}
