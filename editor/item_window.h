// The form of one item: it edits the item's record of fields, and what it shows has always been through the item.
#pragma once

#include "editor/group.h"
#include "model/core/layout.h"

// A form on a record of fields.
template <class Record>
class TFieldsWindow : public AnyWindow {
public:
    using Fields = Record;

protected:
    using AnyWindow::AnyWindow;

    TGroup<Record> Group(const std::wstring& caption) { return {*this, AddGroup(caption), fields}; }

    Record fields;
};

template <class X, class Record = typename X::FieldsType>
class TItemWindow : public TFieldsWindow<Record> {
public:
    using Item = X;

    // Edits a copy of `target`, which it replaces if the form is confirmed (1), not if it is cancelled (2). `bytes` is
    // what the item may take, where its size is its own.
    int Run(X& target, int bytes = 0) {
        const int result = RunOn(target, bytes);
        if (result == UI::IdOk) target = item;
        return result;
    }
    int Run(Record& target, int bytes = 0) {
        const int result = RunOn(target, bytes);
        if (result == UI::IdOk) target = item;
        return result;
    }

    void Update() override {
        item = MakeItem();
        fields = item;
        UpdateStatus();
        AnyWindow::Update();
    }

    bool HasRoom(std::string_view field) const override {
        return !HasOwnSize || (available.IsProper(field) && available.IsProper("Size"));
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
    using TFieldsWindow<Record>::TFieldsWindow;
    using TFieldsWindow<Record>::fields;

    // The item of the fields, normalised.
    virtual X MakeItem() const { return X(fields); }
    Forms::FieldState GetFieldState(std::string_view field) const override {
        if constexpr (HasOwnSize) {
            return {status.IsProper(field), available.IsPresent(field) && available.IsProper(field)};
        } else if constexpr (SaysAvailable) {
            return {status.IsProper(field), available.IsProper(field)};
        } else {
            return {status.IsProper(field), status.IsPresent(field)};
        }
    }
    bool CanConfirm() const override {
        if constexpr (HasOwnSize) {
            return item.IsValid(bytes);
        } else {
            return item.IsValid();
        }
    }
    int GetBytes() const { return bytes; }

    X item;

private:
    static constexpr bool HasOwnSize = requires(const X& x) { x.GetAvailable(0); };
    static constexpr bool SaysAvailable = requires(const X& x) { x.GetAvailable(); };

    int RunOn(const Record& target, int newBytes) {
        fields = target;
        bytes = newBytes;
        return this->RunForm();
    }
    void UpdateStatus() {
        if constexpr (HasOwnSize) {
            status = item.GetStatus(bytes);
            available = item.GetAvailable(bytes);
        } else {
            status = item.GetStatus();
            if constexpr (SaysAvailable) available = item.GetAvailable();
        }
    }

    int bytes = 0;
    VNT::ItemStatus status;
    VNT::ItemStatus available;  // of an item that tells this apart: what is open for input, or there is room for
};

namespace Forms {

// Opens the form on an item: the shape in which lists and tables take a form.
template <class FormWindow>
int EditItem(UI::Window* parent, typename FormWindow::Item& item, int bytes) {
    return FormWindow(parent).Run(item, bytes);
}

}  // namespace Forms
