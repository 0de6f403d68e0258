// A list with its buttons, and what they do to a list of items.
#pragma once

#include <functional>
#include <utility>
#include <vector>

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
    std::vector<UI::Control*> GetAll();
    // Whether the list box has the focus because the button that had it closed: Enter that was meant for the button
    // once more is not one for the form.
    bool IsRefuge() const { return isRefuge && ListBox.HasFocus(); }
    bool isRefuge = false;
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

// What the buttons of a list do, whatever is in it. `update` brings the whole form in line.
class ListEditor {
public:
    ListEditor(ListControls& controls, VNT::ListCaptions captions, std::function<void()> update);
    ListEditor(const ListEditor&) = delete;
    ListEditor& operator=(const ListEditor&) = delete;
    virtual ~ListEditor() = default;

    ListControls& GetControls() { return controls; }
    virtual VNT::String GetCaption() const = 0;
    virtual bool IsWithinLimits() const = 0;
    virtual VNT::ListMeasure Measure() const = 0;

    // Shows what the list holds now.
    void Update(bool enabled);
    void ClearSelection() { controls.ListBox.SetSelection(UI::Controls::ListBox::NoSelection); }

    void AddItem();
    void EditItem();
    void DeleteItem();
    void DeleteAllItems();
    void MoveItemUp() { MoveItem(-1); }
    void MoveItemDown() { MoveItem(1); }

protected:
    virtual int GetCount() const = 0;
    virtual VNT::String GetTextOf(int index) const = 0;
    virtual bool HasRoom() const = 0;
    // Whether the list is as it was when it was shown last; it is shown now.
    virtual bool IsAsShown() const = 0;
    virtual void TakeAsShown() = 0;
    // Open the form of a new item or of one of the list; the index of the row that it has then, or one below 0 if the
    // form was cancelled.
    virtual int Add(UI::Window& parent) = 0;
    virtual int Edit(UI::Window& parent, int index) = 0;
    virtual void Remove(int index) = 0;
    virtual void Clear() = 0;
    virtual void Swap(int index, int other) = 0;

    VNT::ListCaptions captions;

private:
    // Exchanges the selected item with a neighbour.
    void MoveItem(int step);
    bool Fill(int index);
    void Refresh(int select);
    void Show(int select);

    ListControls& controls;
    std::function<void()> update;
};

// Joins the controls and a list of the form's record.
template <class List, class Limits>
class TListEditor : public ListEditor {
public:
    using Item = ItemOf<List>;
    // Puts a new item into the list; its index.
    using Inserter = std::function<int(List& list, Item&& item)>;

    TListEditor(ListControls& controls, List& list, VNT::ListCaptions captions, std::function<Limits()> limits,
                EditForm<Item> edit, std::function<void()> update)
        : ListEditor(controls, captions, std::move(update)),
          list(list),
          limits(std::move(limits)),
          edit(std::move(edit)) {}

    void SetInserter(Inserter inserter) { insert = std::move(inserter); }
    VNT::String GetCaption() const override { return GetListCaption(list, limits(), captions); }
    bool IsWithinLimits() const override { return limits().Contains(list); }
    VNT::ListMeasure Measure() const override { return limits().Measure(list); }

protected:
    int GetCount() const override { return list.GetCount(); }
    VNT::String GetTextOf(int index) const override {
        VNT::String text;
        list.At(index).GetText(text);
        return text;
    }
    bool HasRoom() const override { return Forms::HasRoom(list, limits()); }
    bool IsAsShown() const override { return isShown && shown == list; }
    void TakeAsShown() override {
        shown = list;
        isShown = true;
    }
    int Add(UI::Window& parent) override {
        Item item;
        if (edit(&parent, item, GetBudget(list, limits(), list.GetCount())) != UI::IdOk) return -1;
        if (insert) return insert(list, std::move(item));
        list.Add(std::move(item));
        return list.GetCount() - 1;
    }
    int Edit(UI::Window& parent, int index) override {
        Item item = list.At(index);
        if (edit(&parent, item, GetBudget(list, limits(), index)) != UI::IdOk) return -1;
        // What was not edited stays as it is.
        if (!(item == list.At(index))) list.Set(index, item);
        return index;
    }
    void Remove(int index) override { list.Remove(index); }
    void Clear() override { list.Clear(); }
    void Swap(int index, int other) override { list.Swap(index, other); }

private:
    List& list;
    std::function<Limits()> limits;
    EditForm<Item> edit;
    Inserter insert;  // null: at the end
    List shown;
    bool isShown = false;
};

}  // namespace Forms
