// The form of one item: it edits the item's record of fields, and what it shows has always been through the item.
#pragma once

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

// What the forms of all items do alike.
class ItemWindow : public AnyWindow {
public:
    void Update() override;
    bool HasRoom(std::string_view field) const override;

protected:
    using AnyWindow::AnyWindow;

    // What tells whether a field is open for input: the item's status, the item apart from it, or, where the item has a
    // size of its own, the bytes that it may take.
    enum class Opener { Status, Item, Size };

    // Builds the item of the fields, takes the normalised fields back, and asks the item what it says of them.
    virtual void Build() = 0;
    virtual Opener GetOpener() const = 0;
    Forms::FieldState GetFieldState(std::string_view field) const override;
    // `newAvailable` is what is open for input, or there is room for, as the opener tells.
    void SetStatus(VNT::ItemStatus newStatus, VNT::ItemStatus newAvailable);
    int GetBytes() const { return bytes; }
    // The modal result. `newBytes` is what the item may take.
    int RunIn(int newBytes);

    int bytes = 0;

private:
    VNT::ItemStatus status;
    VNT::ItemStatus available;
};

template <class X, class Record = typename X::FieldsType>
class TItemWindow : public TFieldsWindow<Record, ItemWindow> {
    using Base = TFieldsWindow<Record, ItemWindow>;

public:
    using Item = X;

    // Edits a copy of `target`, which it replaces if the form is confirmed (1), not if it is cancelled (2). `bytes` is
    // what the item may take, where its size is its own. A holder takes an item of this kind, or holds one.
    template <class Target>
    [[gnu::noinline]] int Run(Target& target, int bytes = 0) {
        if constexpr (IsHolder<Target>) {
            item = X();
            item.Assign(target);
            fields = item;
        } else {
            fields = target;
        }
        const int result = this->RunIn(bytes);
        if (result != UI::IdOk) return result;
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
    bool CanConfirm() const override {
        if constexpr (HasOwnSize) {
            return item.IsValid(bytes);
        } else {
            return item.IsValid();
        }
    }

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
    void Build() override {
        item = MakeItem();
        fields = item;
        if constexpr (HasOwnSize) {
            this->SetStatus(item.GetStatus(bytes), item.GetAvailable(bytes));
        } else if constexpr (SaysAvailable) {
            this->SetStatus(item.GetStatus(), item.GetAvailable());
        } else {
            this->SetStatus(item.GetStatus(), {});
        }
    }
};

namespace Forms {

// Opens the form on an item: the shape in which lists and tables take a form.
template <class FormWindow>
int EditItem(UI::Window* parent, typename FormWindow::Item& item, int bytes) {
    return FormWindow(parent).Run(item, bytes);
}

}  // namespace Forms
