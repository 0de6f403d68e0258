// The base of every form. To add the form of an item:
//
//     // editor/cta_gsync_window.h: all that the form says about itself
//     class CtaGSyncDataBlockWindow : public TItemWindow<VNT::CtaGSyncDataBlock> {
//     public:
//         explicit CtaGSyncDataBlockWindow(UI::Window* parent)
//             : TItemWindow(parent, L"CtaGSyncDataBlockWindow", L"G-SYNC") {
//             Group(L"Version").Number(Field<&Fields::Version>, L"000");
//             Group(L"Min refresh rate").Number(Field<&Fields::MinRefreshRate>, L"000", L"Hz");
//         }
//     };
//
//     // its row in its family's table of forms, which is the chooser's too
//     FormOf<CtaGSyncDataBlockWindow, CtaDataBlock>(),
//
// Such a form edits the item's `FieldsType` in `fields`. After every input it builds `item` from them, takes the
// normalised fields back, and refreshes all rows: what is red, what can be used and whether OK can be come from the
// item's status by the name of each field. A row names its field once, never positions a control and names no colour.
// `group.h` lists the kinds of rows. What is particular hangs on the row that it belongs to:
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

    // What input does: it is stored in the field, then `onChange` and `Update` run.
    // For a text box `parse` stores the text, and `onChange` gets told whether it was one of the field's kind.
    void BindTextBox(UI::Controls::TextBox& box, std::function<bool(const VNT::String&)> parse,
                     std::function<void(bool parsed)> onChange);
    void BindChoice(UI::Controls::ComboBox& box, std::function<void(int row)> choose, Callback onChange);
    // The field takes the index of the chosen row plus `offset`.
    void BindComboBox(UI::Controls::ComboBox& box, int offset, int& field, Callback onChange = {}) {
        BindChoice(
            box, [offset, &field](int row) { field = row + offset; }, std::move(onChange));
    }
    // The handler of a button that changes a field: `store` does it.
    Callback GetHandler(Callback store, Callback onChange);

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

    // Shows what the form's copy holds and runs until the form is confirmed (1) or cancelled (2).
    int RunForm();

    // After a change of the scale or the theme.
    void LayOutAnew() override;

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
    bool HasBadText() const;

    std::vector<std::unique_ptr<Forms::Group>> groups;
    std::vector<std::unique_ptr<UI::Controls::Button>> leftButtons;
    std::unique_ptr<UI::Controls::Button> ok;
    std::unique_ptr<UI::Controls::Button> cancel;
    bool isLaidOut = false;
};
