// What a form is made of: groups of rows of cells. A cell is one control, or a list with its buttons, and what keeps it
// in line with the form's record. `TGroup` writes them, `AnyWindow` refreshes them, `LayOut` places them.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "editor/list_controls.h"
#include "model/core/field_sink.h"
#include "ui/controls.h"
#include "ui/window.h"

namespace Forms {

using Callback = std::function<void()>;
using Condition = std::function<bool()>;

inline bool Holds(const Condition& condition) { return !condition || condition(); }

// Of a field: within its limits, and open for input in the record's present state.
struct FieldState {
    bool IsValid = true;
    bool IsAvailable = true;
    bool ClosesOk = false;  // the form can't be confirmed as long as the field is so
};

class Cell {
public:
    Cell() = default;
    Cell(const Cell&) = delete;
    Cell& operator=(const Cell&) = delete;
    virtual ~Cell() = default;

    // What it needs to be seen whole.
    virtual UI::Size GetLeast() const = 0;
    virtual void Place(int x, int y, int width, int height) = 0;
    // What it consists of.
    virtual std::vector<UI::Control*> GetControls() = 0;
    // Of a list: the rows that it shows, and the most that it may show now.
    virtual int GetRows() const { return 0; }
    virtual void LimitRows(int) {}
    virtual void SetVisible(bool visible) = 0;
    virtual void Refresh(const FieldState& state) = 0;
    // The one that a hint and a name are about.
    virtual UI::Control& GetControl() = 0;

    std::string_view Field;      // its name in the item's status; empty for what shows no field
    bool Stretches = false;      // takes what the row has left
    bool IsPart = false;         // a label: usable where a field of its row is
    bool ShowsValidity = false;  // turns red itself; for the others their group does
    bool IsBadText = false;      // holds a text that is nothing, and that no sentinel in the field tells of
    bool IsBlamed = false;       // what was put in last, and can't be written
    bool IsVisible = true;
    bool IsWide = false;  // a form of single boxes is too narrow for it
    int Span = 1;         // the columns that it takes in a group of columns
    FieldState State;
    Condition EnabledIf;
    Condition VisibleIf;
    Callback OnChange;  // runs between an input and the refresh that follows it
    // Of a box that is red: why, by the limits of its field where the item lists them. Null where its form says why.
    std::function<std::wstring(const VNT::AnyLimits* limits, const std::wstring& unit)> Explain;
};

template <class C>
class TControlCell : public Cell {
public:
    template <class... Arguments>
    explicit TControlCell(UI::Window& window, Arguments&&... arguments)
        : Control(window, std::forward<Arguments>(arguments)...) {}

    UI::Size GetLeast() const override {
        UI::Size least;
        for (const std::wstring& text : Sizing) {
            const UI::Size size = Control.Measure(text);
            least = {std::max(least.Width, size.Width), std::max(least.Height, size.Height)};
        }
        least.Height += (Lines - 1) * Control.GetFont().GetMetrics().Height;
        if constexpr (std::is_same_v<C, UI::Controls::ComboBox>) {
            if (ShowsRows) least.Width = std::max(least.Width, GetRowWidth());
        }
        return least;
    }
    void Place(int x, int y, int width, int height) override { Control.SetRect(x, y, width, height); }
    void SetVisible(bool visible) override { Control.SetVisible(visible); }
    void Refresh(const FieldState& state) override {
        if (Show) Show(state);
        if (Control.IsEnabled() != state.IsAvailable) Control.SetEnabled(state.IsAvailable);
    }

    UI::Control& GetControl() override { return Control; }
    std::vector<UI::Control*> GetControls() override { return {&Control}; }

    C Control;
    std::vector<std::wstring> Sizing;  // the texts that it must show whole
    int Lines = 1;
    bool ShowsRows = false;                       // a combo box whose rows come and go: as far as there is room
    std::function<void(const FieldState&)> Show;  // null for what looks the same whatever the record holds

private:
    int GetRowWidth() const {
        int width = 0;
        for (int i = 0; i < Control.GetCount(); ++i)
            width = std::max(width, Control.Measure(Control.GetItemText(i)).Width);
        return std::min(width, 2 * Control.GetWindow().GetStyle().Metrics.FormWidth);
    }
};

class ListCell : public Cell {
public:
    ListCell(UI::Window& window, int rows) : Controls(window), rows(rows) {
        Stretches = true;
        IsWide = true;
    }

    UI::Size GetLeast() const override {
        return {Controls.GetMinWidth(), Controls.GetHeight(std::min(rows, mostRows))};
    }
    int GetRows() const override { return rows; }
    void LimitRows(int most) override { mostRows = most; }
    void Place(int x, int y, int width, int height) override { Controls.Place(x, y, width, height); }
    void SetVisible(bool visible) override { Controls.SetVisible(visible); }
    void Refresh(const FieldState& state) override { Editor->Update(state.IsAvailable); }
    UI::Control& GetControl() override { return Controls.ListBox; }
    std::vector<UI::Control*> GetControls() override { return Controls.GetAll(); }

    ListControls Controls;
    std::unique_ptr<ListEditor> Editor;

private:
    int rows;
    int mostRows = rows;
};

// How the cells of a row stand: one behind the other; from top to bottom in as many columns as there is room for; or
// so, but in one column as far as that goes.
enum class RowKind { Line, Columns, Stack };

struct Row {
    std::vector<std::unique_ptr<Cell>> Labels;  // all in one place, one of them shown
    std::vector<std::unique_ptr<Cell>> Cells;
    RowKind Kind = RowKind::Line;
    Condition VisibleIf;

    bool IsVisible() const;
};

struct Group {
    Group(UI::Window& window, const std::wstring& caption) : Box(window, caption), Sizing{caption} {}

    UI::Controls::GroupBox Box;
    std::vector<std::unique_ptr<Row>> Rows;
    std::vector<std::wstring> Sizing;  // the captions that it must show whole
    bool IsAligned = false;            // the cells of its rows stand in columns
    bool IsVisible = true;
    Condition VisibleIf;
    Callback RefreshCaption;
};

// The buttons below the groups: those at the left, then those at the right.
struct BottomButtons {
    std::vector<UI::Controls::Button*> Left;
    std::vector<UI::Controls::Button*> Right;
};

using Groups = std::vector<std::unique_ptr<Group>>;

// Places all that is visible, and gives the window the size that it takes. Where the screen has no room for that, lists
// give up rows, then the groups stand side by side, then they scroll above the buttons.
void LayOut(UI::Window& window, const Groups& groups, const BottomButtons& buttons);
// Moves what is visible in the groups down by so many pixels.
void MoveGroups(const Groups& groups, int by);

}  // namespace Forms
