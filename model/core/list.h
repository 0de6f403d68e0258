#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "model/core/bytes.h"
#include "model/core/text.h"

namespace VNT {

// A list of holders or, for plain records, of items by value. It refuses what cannot be written back (`IsValidAll`).
template <class Item>
class TList {
public:
    using ItemType = Item;

    int GetCount() const { return static_cast<int>(items_.size()); }
    bool IsEmpty() const { return items_.empty(); }
    void Clear() { items_.clear(); }
    bool Add(const Item& item) { return Insert(GetCount(), item); }
    bool Add(Item&& item) {
        if (!item.IsValidAll()) return false;
        items_.push_back(std::move(item));
        return true;
    }
    // False, with nothing stored, for an index outside 0 to the count or an item that is not IsValidAll.
    bool Insert(int index, const Item& item) {
        if (index < 0 || index > GetCount() || !item.IsValidAll()) return false;
        items_.insert(items_.begin() + index, item);
        return true;
    }
    bool Remove(int index) {
        if (!Has(index)) return false;
        items_.erase(items_.begin() + index);
        return true;
    }
    bool Set(int index, const Item& item) {
        if (!Has(index) || !item.IsValidAll()) return false;
        Slot(index) = item;
        return true;
    }
    // False for an index out of range, or if `target` is of another class than the item.
    template <class Target>
    bool Get(int index, Target& target) const {
        if (!Has(index)) return false;
        if constexpr (requires { target.Assign(At(index)); }) {
            return target.Assign(At(index));
        } else {
            target = At(index);
            return true;
        }
    }
    // The first item of the class of `target`, assigned to it.
    template <class Target>
    bool Find(Target& target) const {
        return std::any_of(items_.begin(), items_.end(), [&target](const Item& item) {
            return item.GetType() == target.GetType() && target.Assign(item);
        });
    }
    const Item& At(int index) const { return items_[static_cast<std::size_t>(index)]; }
    // Exchanges two neighbours: what the list's arrow buttons do.
    bool Swap(int a, int b) {
        if (!Has(a) || !Has(b)) return false;
        std::swap(Slot(a), Slot(b));
        return true;
    }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    bool operator==(const TList& other) const { return items_ == other.items_; }

protected:
    // An item that is as its bytes gave it.
    bool AddRead(Item&& item) {
        bool isCarried = true;
        if constexpr (requires { item.IsValidAllAsRead(); }) {
            isCarried = item.IsValidAllAsRead();
        } else {
            isCarried = item.IsValidAll();
        }
        if (isCarried) items_.push_back(std::move(item));
        return isCarried;
    }
    bool Has(int index) const { return index >= 0 && index < GetCount(); }
    // The item to be changed in place; whoever does so keeps it IsValidAll.
    Item& Slot(int index) { return items_[static_cast<std::size_t>(index)]; }
    std::vector<Item> items_;
};

// A list of items that all take `slotBytes`.
template <class Item, int slotBytes>
class TSlotList : public TList<Item> {
public:
    static constexpr int SlotBytes = slotBytes;

    // Reads slot after slot until one doesn't read; what cannot be written back is dropped. Always true.
    bool Read(ByteRange range) {
        this->Clear();
        this->items_.reserve(static_cast<std::size_t>(range.Size() / slotBytes));
        for (; range.Size() >= slotBytes; range.Drop(slotBytes)) {
            Item item;
            if (!item.Read(range)) break;
            this->AddRead(std::move(item));
        }
        return true;
    }
    // False if the range is too short for all slots. What stays behind the last one is left as it is.
    bool Write(ByteRange range) const {
        if (range.Size() < GetSize()) return false;
        for (const Item& item : *this) {
            item.Write(range);
            range.Drop(slotBytes);
        }
        return true;
    }
    // The same, then `unused` in each whole slot that is left.
    template <class Unused>
    bool WriteFilled(ByteRange range, const Unused& unused) const {
        if (!TSlotList::Write(range)) return false;
        for (range.Drop(GetSize()); unused.Write(range);) range.Drop(slotBytes);
        return true;
    }
    int GetSize() const { return this->GetCount() * slotBytes; }
    // Removes the slots at the end that equal `unused`; one in the middle stays.
    template <class Unused>
    void TrimTrailing(const Unused& unused) {
        while (!this->items_.empty() && this->items_.back() == unused) this->items_.pop_back();
    }
};

// A list whose place always holds whole slots: those that it doesn't use hold `Item()`.
template <class List>
class TFilledSlotList : public List {
public:
    // As the list's; the unused slots at the end are none of its items.
    bool Read(ByteRange range) {
        List::Read(range);
        this->TrimTrailing(typename List::ItemType());
        return true;
    }
    bool Write(ByteRange range) const { return this->WriteFilled(range, typename List::ItemType()); }
};

// Fixed slots: made from the bytes that the format gives the list.
struct SlotListLimits {
    int slots = 0;
    int slotBytes = 1;
    static SlotListLimits FromBytes(int bytes, int slotBytes) { return {std::max(0, bytes / slotBytes), slotBytes}; }
    template <class List>
    bool Contains(const List& list) const {
        return list.GetCount() <= slots;
    }
    template <class List>
    bool HasRoom(const List& list) const {
        return list.GetCount() < slots;
    }
    template <class List>
    ListMeasure Measure(const List& list) const {
        return {list.GetCount(), slots, list.GetCount() * slotBytes, slots * slotBytes};
    }
};

// Bytes for the whole list, each item having its own size; the slots of the texts are those bytes.
template <class List>
struct TSizeListLimits {
    int bytes = 0;
    int leastItem = 1;  // bytes that the shortest new item takes
    bool HasRoom(const List& list) const { return BytesLeft(list) >= leastItem; }
    bool Contains(const List& list) const { return list.GetSize() <= bytes; }
    int BytesLeft(const List& list) const { return bytes - list.GetSize(); }
    ListMeasure Measure(const List& list) const { return {list.GetCount(), bytes, list.GetSize(), bytes}; }
};

// Bytes for the whole list, all items being of one size, so that bytes and slots convert exactly.
template <class List>
struct TFixedSizeListLimits {
    int bytes = 0;
    int itemBytes = 1;
    int Slots() const { return std::max(0, itemBytes > 0 ? bytes / itemBytes : 0); }
    bool Contains(const List& list) const { return list.GetCount() <= Slots(); }
    ListMeasure Measure(const List& list) const {
        return {list.GetCount(), Slots(), list.GetCount() * itemBytes, Slots() * itemBytes};
    }
};

}  // namespace VNT
