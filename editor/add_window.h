// The chooser of a family, and the table of its forms: one row for each kind that can be added or edited.
#pragma once

#include <algorithm>
#include <limits>
#include <span>
#include <vector>

#include "editor/item_window.h"
#include "model/core/kinds.h"

struct AddRow {
    int value;
    const char* text;
    bool isEnabled = true;
};

struct AddFields {
    int type = 0;
};

// Radio buttons, one for each row; the first is selected at first. While there is no room for what is selected, the
// group is red and OK closed.
class AddWindow : public TFieldsWindow<AddFields> {
public:
    // Of a family's chooser: whether a kind that there is no room for can't be chosen.
    static constexpr bool NeedsRoom = false;

    AddWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title,
              std::vector<AddRow> offered);

    // 1 when a row was chosen, whose value `type` then has; 2 for Cancel.
    int Run(int& type);
    void Update() override;
    bool HasRoom(std::string_view) const override { return CanConfirm(); }

protected:
    bool CanConfirm() const override;

private:
    std::vector<AddRow> rows;
};

namespace Forms {

// A row of a family's table of forms, in the order of the chooser. `edit` opens the form on the holder: on the item
// that it holds if that is of this kind, else on a new one; null for a kind that has no form and is added as it is.
template <class Holder>
struct TFormRow {
    int type;
    int (*edit)(UI::Window* parent, Holder& holder, int bytes);
    bool isOffered = true;        // in the chooser
    const char* title = nullptr;  // there, where it is not that of the kind
};

template <class FormWindow, class Holder>
int EditHeld(UI::Window* parent, Holder& holder, int bytes) {
    return FormWindow(parent).Run(holder, bytes);
}

template <class FormWindow, class Holder>
constexpr TFormRow<Holder> FormOf() {
    return {static_cast<int>(FormWindow::Item::TypeValue), &EditHeld<FormWindow, Holder>};
}
template <class Item, class Holder>
constexpr TFormRow<Holder> NoForm() {
    return {static_cast<int>(Item::TypeValue), nullptr};
}

// The row of a type; null for one that has none.
template <class Rows>
auto FindForm(const Rows& forms, int type) -> decltype(&*std::begin(forms)) {
    const auto found =
        std::find_if(std::begin(forms), std::end(forms), [type](const auto& row) { return row.type == type; });
    return found == std::end(forms) ? nullptr : &*found;
}

template <class AnyX>
const VNT::TKind<AnyX>* FindKind(std::span<const VNT::TKind<AnyX>> kinds, int type) {
    const auto found = std::find_if(kinds.begin(), kinds.end(), [type](const auto& kind) { return kind.type == type; });
    return found == kinds.end() ? nullptr : &*found;
}

// What the family's chooser offers; a kind that `bytes` are too few for can't be chosen.
template <class Holder, class AnyX>
std::vector<AddRow> GetAddRows(std::span<const TFormRow<Holder>> forms, std::span<const VNT::TKind<AnyX>> kinds,
                               int bytes) {
    std::vector<AddRow> rows;
    for (const TFormRow<Holder>& form : forms) {
        const VNT::TKind<AnyX>* kind = FindKind(kinds, form.type);
        const char* title = form.title || !kind ? form.title : kind->title;
        if (form.isOffered && title) rows.push_back({form.type, title, !kind || kind->addSize <= bytes});
    }
    return rows;
}

// Adds to an empty holder by way of the chooser, edits what a filled one holds; the modal result. A type without a form
// is added as it is, and not edited. `bytes` is what the item may take.
template <class Chooser, class Holder, class Kinds>
int EditHolder(UI::Window* parent, Holder& holder, int bytes,
               std::type_identity_t<std::span<const TFormRow<Holder>>> forms, const Kinds& kinds) {
    int type = holder.GetType();
    const bool isNew = holder.IsEmpty();
    constexpr int anyRoom = std::numeric_limits<int>::max();
    if (isNew) Chooser(parent, GetAddRows(forms, kinds, Chooser::NeedsRoom ? bytes : anyRoom)).Run(type);
    const TFormRow<Holder>* form = FindForm(forms, type);
    if (!form) return UI::IdCancel;
    if (form->edit) return form->edit(parent, holder, bytes);
    if (isNew) holder = Holder(FindKind(kinds, type)->make());
    return isNew ? UI::IdOk : UI::IdCancel;
}

}  // namespace Forms
