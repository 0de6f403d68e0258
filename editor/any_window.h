// The base of every form. To add the form of an item:
//
//     // editor/cta_sync_windows.h
//     class CtaGSyncDataBlockWindow : public TItemWindow<VNT::CtaGSyncDataBlock> {
//     public:
//         explicit CtaGSyncDataBlockWindow(UI::Window* parent);
//     };
//
//     // editor/cta_sync_windows.cpp: all that the form says about itself
//     CtaGSyncDataBlockWindow::CtaGSyncDataBlockWindow(UI::Window* parent)
//         : TItemWindow(parent, L"CtaGSyncDataBlockWindow", L"G-SYNC") {
//         Group(L"Version").Number(Field<&Fields::Version>, L"000");
//         Group(L"Min refresh rate").Number(Field<&Fields::MinRefreshRate>, L"000", L"Hz");
//     }
//
//     // its row in its family's table of forms, which is the chooser's too
//     FormOf<CtaGSyncDataBlockWindow, CtaDataBlock>(),
//
// Such a form edits the item's `FieldsType` in `fields`. After every input it builds `item` from them, the one that
// would be written, takes the normalised fields back but for those that do not apply now, and refreshes all rows: what
// is red, what can be used and whether OK can be come from the item's status by the name of each field. A row names its
// field once, never positions a control and names no colour. `group.h` lists the kinds of rows. What is particular
// hangs on the row that it belongs to:
//
//     .OnChange(f)   runs between an input and the refresh: linked fields (`fields.useRaw = true`)
//     .EnabledIf(c)  beside what the status says
//     .VisibleIf(c)  behind `Group` or `Row` that, else what was added last; the form is laid out anew when it changes
//
// A form without an item of its own derives from `TFieldsWindow<Record>` and overrides `Update`.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "editor/field.h"
#include "editor/form_rows.h"
#include "model/core/layout.h"
#include "ui/message.h"

class AnyWindow : public UI::Window {
public:
    using Callback = Forms::Callback;

    ~AnyWindow() override;
    // Brings every control in line with the form's copy of the item.
    virtual void Update();

    // The window's buttons. OK runs `commit` and ends the form with 1 when it is enabled, so does Enter; Cancel, Esc
    // and the close box end it with 2.
    void BindOk(UI::Controls::Button& ok, Callback commit);
    void BindCancel(UI::Controls::Button& cancel);

    // What input does: `Store` puts it into the field, then the cell's `OnChange` and `Update` run. What is put back as
    // it was at any time since something else was touched takes the whole record back to where it was then.
    struct Input {
        const void* Source;  // the same for what belongs together
        std::function<VNT::String()> Get;
        Callback Store;
        std::function<VNT::String()> GetTyped{};  // what stands there now, if that is not what `Get` tells
    };
    void TakeInput(Forms::Cell& cell, const Input& input);
    // Of a text box `parse` stores the text, and says whether it was one of the field's kind.
    void BindTextBox(Forms::TControlCell<UI::Controls::TextBox>& cell, std::function<VNT::String()> get,
                     std::function<void(const VNT::String&)> parse);
    void BindChoice(UI::Controls::ComboBox& box, std::function<void(int row)> choose, Callback onChange);
    // The field takes the index of the chosen row plus `offset`.
    void BindComboBox(UI::Controls::ComboBox& box, int offset, int& field, Callback onChange = {}) {
        BindChoice(
            box, [offset, &field](int row) { field = row + offset; }, std::move(onChange));
    }
    // The form is laid out anew with the next refresh.
    void RequireLayout() { isLaidOut = false; }
    // Something else than an input changes the record: what was put in before is not put back any more.
    void ForgetInput() { lastInput = nullptr; }
    // A field that a row shows.
    virtual void Register(const Forms::AnyField&) {}

    // What a refresh does. The text of a box that has the focus stays as typed, and so does a bad one.
    static void SetText(UI::Controls::TextBox& box, const VNT::String& text, const Forms::FieldState& state,
                        bool isBadText);
    // The text, followed by " (no space left)" when not `available`.
    static void SetCaption(UI::Control& control, const VNT::String& text, bool available);
    // The read-out of a calculated value: "Actual: 60.000 Hz".
    static void SetActual(UI::Controls::Label& label, const VNT::DecimalFormat& format, const std::wstring& unit,
                          bool enabled, VNT::Decimal value);
    static void SetValidStyle(UI::Controls::GroupBox& box, bool valid) { box.SetValidStyle(valid); }

    Forms::Group& AddGroup(const std::wstring& caption);
    int CountGroups() const { return static_cast<int>(groups.size()); }
    // For those who look at a form without knowing which: its groups, and the limits of its item's fields as it is now.
    const std::vector<std::unique_ptr<Forms::Group>>& GetGroups() const { return groups; }
    virtual std::vector<VNT::FieldLimits> GetFieldLimits() const { return {}; }
    bool IsAvailable(std::string_view field) const { return GetFieldState(field).IsAvailable; }
    // Whether the bytes that the item may take are enough for it and for a field.
    virtual bool HasRoom(std::string_view) const { return true; }
    // A button below the groups, at the left.
    UI::Controls::Button& AddBottomButton(const std::wstring& text, Callback action);

protected:
    AnyWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title);

    // What the form's copy of the item says of a field, and whether the item may replace the caller's.
    virtual Forms::FieldState GetFieldState(std::string_view) const { return {}; }
    virtual bool CanConfirm() const { return true; }
    // What OK does before the form ends.
    virtual void Commit() {}
    // Keeps the record as it is now as the next of those that may be put back, puts one of them back, drops them all.
    virtual void Remember() {}
    virtual void Recall(std::size_t) {}
    virtual void ForgetPast() {}
    // Whether what was put in last made the record something that can't be written, whatever its fields say.
    virtual bool IsBlocked() { return false; }

    // Whether a field of the group closes OK, seen or not.
    static bool HasFault(const Forms::Group& group);

    // Shows what the form's copy holds and runs until the form is confirmed (1) or cancelled (2).
    int RunForm();

    // After a change of the scale or the theme.
    void LayOutAnew() override;
    void Scrolled(int by) override { Forms::MoveGroups(groups, by); }

private:
    void AddOkAndCancel();
    // What a screen reader calls each control: the label of its row, with the heading of its column.
    void NameCells();
    // The hints of what is red and of an OK that is closed.
    void Explain();
    std::wstring Explain(const Forms::Row& row, std::size_t cell, const std::vector<VNT::FieldLimits>& limits) const;
    // Each is true if what is visible changed.
    bool UpdateGroup(Forms::Group& group);
    bool UpdateRow(Forms::Row& row, bool isVisible, bool& isValid, bool& isAvailable);
    static bool UpdateCell(Forms::Cell& cell, bool isVisible);
    void SetState(Forms::Cell& cell) const;
    bool IsClosed() const;
    // Where `text` stands in the past, or behind all of it.
    std::size_t FindPast(const VNT::String& text) const;
    // Whether the focus is where a button that closed has left it.
    bool IsInRefuge() const;

    std::vector<std::unique_ptr<Forms::Group>> groups;
    std::vector<std::unique_ptr<UI::Controls::Button>> leftButtons;
    std::unique_ptr<UI::Controls::Button> ok;
    std::unique_ptr<UI::Controls::Button> cancel;
    bool isLaidOut = false;
    Forms::Cell* lastCell = nullptr;  // that took an input
    const void* lastInput = nullptr;  // its source, while what was before it is remembered
    std::vector<VNT::String> past;    // what stood there with each record that is
    VNT::String lastText;             // what stands there now
};
