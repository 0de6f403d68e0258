// The form of one item: it edits the item's record of fields, and what it shows has always been through the item.
#pragma once

#include <array>

#include "editor/group.h"
#include "model/core/layout.h"

// A form on a record of fields.
template <class Record, class Base = AnyWindow>
class TFieldsWindow : public Base {
public:
    using Fields = Record;

protected:
    using Base::Base;

    TGroup<Record> Group(const std::wstring& caption) { return {*this, this->AddGroup(caption), fields}; }

    Record fields;
};

// What the forms of all items do alike. The record keeps what the user gave it until OK: a field that does not apply
// for the moment holds what it held and comes back with it. The item is what would be written: it tells what applies,
// what is open for input and what is wrong. OK is closed by what can be seen: by a field that the form shows, and by
// the control that was used last if the item can't be written for it.
class ItemWindow : public AnyWindow {
public:
    void Update() override;
    bool HasRoom(std::string_view field) const override;
    void Register(const Forms::AnyField& field) override;

protected:
    using AnyWindow::AnyWindow;

    // What tells whether a field is open for input: the item's status, the item apart from it, or, where the item has a
    // size of its own, the bytes that it may take.
    enum class Opener { Status, Item, Size };
    // Builds the item of the fields, takes the normalised fields back, and asks the item what it says of them.
    virtual void Build() = 0;
    virtual Opener GetOpener() const = 0;
    virtual void KeepOpened() = 0;
    // Whether the record is another than when the form was opened.
    virtual bool IsChanged() = 0;
    bool IsBlocked() override;
    // Whether the form may be confirmed with a field beyond what a sound EDID holds, if the bytes can carry it.
    virtual bool AllowsUnsound() const { return false; }
    Forms::FieldState GetFieldState(std::string_view field) const override;
    // `newAvailable` is what is open for input, or there is room for, as the opener tells.
    void SetStatus(VNT::ItemStatus newStatus, VNT::ItemStatus newAvailable);
    // Fields that do not apply are shown as the item has them, and held as the user gave them. The records that tell
    // so: what is shown, what the item was made of, and what it made of that.
    struct Records {
        void* fields;
        void* held;
        void* normal;
        std::size_t size;
    };
    // Puts back what is held into a copy of the shown record, or into itself.
    void PutBackHeld(const Records& records, void* whole) const;
    // Finds what is held now.
    void FindHeld(const Records& records);
    void ForgetHeld() { away.clear(); }
    int GetBytes() const { return bytes; }
    // The modal result. `newBytes` is what the item may take.
    int RunIn(int newBytes);

    int bytes = 0;

private:
    // A status that is asked for each field of a form after each key: a field most likely stands where one of a like
    // name was found last.
    class Status {
    public:
        void operator=(VNT::ItemStatus newStatus) { status = std::move(newStatus); }
        const VNT::ItemStatus& Get() const { return status; }
        // Null for a field that doesn't apply.
        const VNT::FieldStatus* Find(std::string_view field) const;
        bool IsPresent(std::string_view field) const { return Find(field) != nullptr; }
        bool IsProper(std::string_view field) const {
            const VNT::FieldStatus* found = Find(field);
            return !found || found->proper;
        }

    private:
        VNT::ItemStatus status;
        mutable std::array<std::uint8_t, 64> places{};
    };

    std::vector<Forms::AnyField> shown;
    std::vector<Forms::AnyField> away;  // those that are held
    Status status;
    Status available;
    bool isOpen = false;
};

template <class X, class Record = typename X::FieldsType>
class TItemWindow : public TFieldsWindow<Record, ItemWindow> {
    using Base = TFieldsWindow<Record, ItemWindow>;

public:
    using Item = X;

    // Edits a copy of `target`, which it replaces if the form is confirmed (1) and something was changed, not if it is
    // cancelled (2). `bytes` is what the item may take, where its size is its own. A holder that holds no item of this
    // kind gets a new one.
    template <class Target>
    [[gnu::noinline]] int Run(Target& target, int bytes = 0) {
        bool isNew = false;
        if constexpr (IsHolder<Target>) {
            item = X();
            isNew = !item.Assign(target);
            fields = item;
        } else {
            fields = target;
        }
        const int result = this->RunIn(bytes);
        if (result != UI::IdOk || (!isNew && !IsChanged())) return result;
        if constexpr (IsHolder<Target>) {
            target.Assign(item);
        } else {
            target = item;
        }
        return result;
    }

    std::vector<VNT::FieldLimits> GetFieldLimits() const override {
        if constexpr (requires { item.GetFieldLimits(bytes); }) {
            return item.GetFieldLimits(bytes);
        } else if constexpr (requires { item.GetFieldLimits(); }) {
            return item.GetFieldLimits();
        } else {
            return {};
        }
    }

protected:
    using Base::Base;
    using Base::bytes;
    using Base::fields;

    // The item of the fields, normalised.
    virtual X MakeItem() const { return X(fields); }
    bool IsChanged() override { return !(GetWhole() == opened); }

    X item;

private:
    template <class Target>
    static constexpr bool IsHolder = !std::is_base_of_v<Record, Target>;
    static constexpr bool HasOwnSize = requires(const X& x) { x.GetAvailable(0); };
    static constexpr bool SaysAvailable = requires(const X& x) { x.GetAvailable(); };

    ItemWindow::Opener GetOpener() const override {
        using Opener = ItemWindow::Opener;
        return HasOwnSize ? Opener::Size : SaysAvailable ? Opener::Item : Opener::Status;
    }
    // With what is held.
    Record GetWhole() {
        Record whole = fields;
        this->PutBackHeld(GetRecords(), &whole);
        return whole;
    }
    ItemWindow::Records GetRecords() { return {&fields, &held, &static_cast<Record&>(item), sizeof(Record)}; }
    void KeepOpened() override { opened = GetWhole(); }
    void Remember() override { past.push_back(GetWhole()); }
    void Recall(std::size_t index) override {
        fields = past[index];
        this->ForgetHeld();
    }
    void ForgetPast() override { past.clear(); }
    void Build() override {
        this->PutBackHeld(GetRecords(), &fields);
        item = MakeItem();
        if constexpr (HasOwnSize) {
            this->SetStatus(item.GetStatus(bytes), item.GetAvailable(bytes));
        } else if constexpr (SaysAvailable) {
            this->SetStatus(item.GetStatus(), item.GetAvailable());
        } else {
            this->SetStatus(item.GetStatus(), {});
        }
        held = std::move(fields);
        fields = item;
        this->FindHeld(GetRecords());
    }

    Record held;  // what the item was made of
    Record opened;
    std::vector<Record> past;  // what input may put back
};

namespace Forms {

// Opens the form on an item: the shape in which lists and tables take a form.
template <class FormWindow>
int EditItem(UI::Window* parent, typename FormWindow::Item& item, int bytes) {
    return FormWindow(parent).Run(item, bytes);
}

}  // namespace Forms
