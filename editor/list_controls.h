// A list with its buttons, and what they do to a list of items.
#pragma once

#include <functional>
#include <utility>

#include "model/core/text.h"
#include "model/edid/captions.h"
#include "ui/controls.h"
#include "ui/message.h"

struct ListControls {
    explicit ListControls(UI::Window& window);

    // Appends the text of the item at `index` to the list box; false past the last item.
    std::function<bool(int index)> Fill;
    UI::Controls::ListBox ListBox;
    UI::Controls::Button AddButton;
    UI::Controls::Button EditButton;
    UI::Controls::Button DeleteButton;
    UI::Controls::Button DeleteAllButton;
    UI::Controls::Button UpButton;
    UI::Controls::Button DownButton;

    // What all of it needs from left to right, and from top to bottom with `rows` items in view.
    int GetMinWidth() const;
    int GetHeight(int rows) const;
    void Place(int x, int y, int width, int height);
    void SetVisible(bool visible);
};

// Rebuilds the list box at its scroll position. `select` past the last item leaves nothing selected.
void RefreshList(ListControls& controls, int select);

// Which of the controls can be used, with `count` items in the list and room for another or not.
void UpdateListControls(ListControls& controls, int count, bool hasRoom, bool enabled);

namespace Forms {

// The bytes that an item may take: what the other items leave of the limit. `index` is that of the item, or the count
// for a new one.
template <class List, class Limits>
int GetBudget(const List& list, const Limits& limits, int index) {
    if constexpr (requires { limits.GetBudget(list, index); }) {
        return limits.GetBudget(list, index);
    } else if constexpr (requires { limits.BytesLeft(list); }) {
        return limits.BytesLeft(list) + (index < list.GetCount() ? list.At(index).GetSize() : 0);
    } else if constexpr (requires { limits.slotBytes; }) {
        return limits.slotBytes;
    } else {
        return limits.itemBytes;
    }
}

template <class List, class Limits>
bool HasRoom(const List& list, const Limits& limits) {
    if constexpr (requires { limits.HasRoom(list); }) {
        return limits.HasRoom(list);
    } else {
        return list.GetCount() < limits.Slots();
    }
}

// The caption of a list; the one for no room stands when nothing more fits.
template <class List, class Limits>
VNT::String GetListCaption(const List& list, const Limits& limits, const VNT::ListCaptions& captions) {
    if (!captions.noRoom.empty() && !HasRoom(list, limits)) return captions.noRoom;
    return VNT::GetListText(limits, list, VNT::CountTextFormat(), captions.withRoom);
}

// Opens the form of an item, a new one or one of the list; its modal result. `budget` is the bytes that it may take.
template <class Item>
using EditForm = std::function<int(UI::Window* parent, Item& item, int budget)>;

template <class List>
using ItemOf = std::remove_cvref_t<decltype(std::declval<const List&>().At(0))>;

// Joins the controls and a list of the form's record. `update` brings the whole form in line.
template <class List, class Limits>
class TListEditor {
public:
    using Item = ItemOf<List>;
    // Puts a new item into the list; its index.
    using Inserter = std::function<int(List& list, Item&& item)>;

    TListEditor(ListControls& controls, List& list, VNT::ListCaptions captions, std::function<Limits()> limits,
                EditForm<Item> edit, std::function<void()> update)
        : controls_(controls),
          list_(list),
          captions_(captions),
          limits_(std::move(limits)),
          edit_(std::move(edit)),
          update_(std::move(update)) {
        controls.Fill = [this](int index) { return Fill(index); };
        using UI::Controls::Button;
        using UI::Controls::ListBox;
        controls.AddButton.AddNotificationHandler(Button::Clicked, [this] { AddItem(); });
        controls.EditButton.AddNotificationHandler(Button::Clicked, [this] { EditItem(); });
        controls.DeleteButton.AddNotificationHandler(Button::Clicked, [this] { DeleteItem(); });
        controls.DeleteAllButton.AddNotificationHandler(Button::Clicked, [this] { DeleteAllItems(); });
        controls.UpButton.AddNotificationHandler(Button::Clicked, [this] { MoveItemUp(); });
        controls.DownButton.AddNotificationHandler(Button::Clicked, [this] { MoveItemDown(); });
        controls.ListBox.AddNotificationHandler(ListBox::SelectionChanged, update_);
        controls.ListBox.AddNotificationHandler(ListBox::DoubleClicked, [this] { EditItem(); });
    }
    TListEditor(const TListEditor&) = delete;
    TListEditor& operator=(const TListEditor&) = delete;

    void SetInserter(Inserter inserter) { insert_ = std::move(inserter); }
    ListControls& GetControls() { return controls_; }
    VNT::String GetCaption() const { return GetListCaption(list_, limits_(), captions_); }
    bool IsWithinLimits() const { return limits_().Contains(list_); }

    // Shows what the list holds now.
    void Update(bool enabled) {
        if (!isShown_ || !(shown_ == list_)) Refresh(controls_.ListBox.GetSelection());
        UpdateListControls(controls_, list_.GetCount(), HasRoom(list_, limits_()), enabled);
    }
    void ClearSelection() { controls_.ListBox.SetSelection(UI::Controls::ListBox::NoSelection); }

    void AddItem() {
        Item item;
        if (edit_(&controls_.ListBox.GetWindow(), item, GetBudget(list_, limits_(), list_.GetCount())) != UI::IdOk)
            return;
        Refresh(insert_(list_, std::move(item)));
        update_();
    }
    void EditItem() {
        const int selected = controls_.ListBox.GetSelection();
        if (selected < 0 || selected >= list_.GetCount()) return;
        Item item = list_.At(selected);
        if (edit_(&controls_.ListBox.GetWindow(), item, GetBudget(list_, limits_(), selected)) != UI::IdOk) return;
        list_.Set(selected, item);
        Refresh(selected);
        update_();
    }
    void DeleteItem() {
        const int selected = controls_.ListBox.GetSelection();
        list_.Remove(selected);
        Refresh(selected);
        update_();
    }
    void DeleteAllItems() {
        list_.Clear();
        Refresh(UI::Controls::ListBox::NoSelection);
        update_();
    }
    void MoveItemUp() { MoveItem(-1); }
    void MoveItemDown() { MoveItem(1); }

private:
    // Exchanges the selected item with a neighbour.
    void MoveItem(int step) {
        const int selected = controls_.ListBox.GetSelection();
        list_.Swap(selected, selected + step);
        Refresh(selected + step);
        update_();
    }
    bool Fill(int index) {
        if (index < list_.GetCount()) {
            VNT::String text;
            list_.At(index).GetText(text);
            controls_.ListBox.AddItem(text.ToWide());
            return true;
        }
        if (index == 0 && !captions_.emptyRow.empty()) {
            controls_.ListBox.AddItem(VNT::String(captions_.emptyRow).ToWide());
        }
        return false;
    }
    void Refresh(int select) {
        RefreshList(controls_, select);
        shown_ = list_;
        isShown_ = true;
    }

    ListControls& controls_;
    List& list_;
    VNT::ListCaptions captions_;
    std::function<Limits()> limits_;
    EditForm<Item> edit_;
    std::function<void()> update_;
    Inserter insert_ = [](List& list, Item&& item) {
        list.Add(std::move(item));
        return list.GetCount() - 1;
    };
    List shown_;
    bool isShown_ = false;
};

}  // namespace Forms
