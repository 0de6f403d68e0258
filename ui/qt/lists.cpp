// List boxes and combo boxes. The widgets have texts and fonts of their own: accessible programs and the search by
// letters read them there.
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "ui/qt/platform.h"

namespace UI::Native {

using namespace Widgets;

namespace {

// One of the two is null.
struct Lists {
    explicit Lists(Handle handle) {
        if (!Find(handle)) return;
        List = dynamic_cast<QListWidget*>(handle->Widget.data());
        Combo = dynamic_cast<QComboBox*>(handle->Widget.data());
    }

    // What the program does notifies nobody.
    std::pair<QSignalBlocker, QSignalBlocker> Silence() const { return {QSignalBlocker(List), QSignalBlocker(Combo)}; }

    int GetSelected() const {
        if (Combo) return Combo->currentIndex();
        const QModelIndexList selected = List ? List->selectionModel()->selectedIndexes() : QModelIndexList();
        return selected.empty() ? Controls::AnyItemList::NoSelection : selected.front().row();
    }

    void Select(int index) const {
        const auto silence = Silence();
        if (Combo) Combo->setCurrentIndex(index);
        if (!List) return;
        if (index < 0) List->selectionModel()->clear();
        if (index >= 0) List->setCurrentRow(index);
    }

    QListWidget* List = nullptr;
    QComboBox* Combo = nullptr;
};

QListWidget* GetList(Handle handle) { return Lists(handle).List; }

}  // namespace

int GetSelectedItem(const Controls::AnyItemList& list) { return Lists(list.GetHandle()).GetSelected(); }
void SetSelectedItem(const Controls::AnyItemList& list, int index) { Lists(list.GetHandle()).Select(index); }

bool InsertItem(const Controls::AnyItemList& list, int index) {
    const Lists lists(list.GetHandle());
    if (!lists.List && !lists.Combo) return false;
    const QString text = ToQt(list.GetItemText(index));
    const QFont& font = list.GetItemFont(index).GetNative()->Object;
    const int selected = lists.GetSelected();
    const auto silence = lists.Silence();
    if (lists.List) {
        auto* item = new QListWidgetItem(text);
        item->setFont(font);
        lists.List->insertItem(index, item);
    } else {
        lists.Combo->insertItem(index, text);
        lists.Combo->setItemData(index, font, Qt::FontRole);
        // An empty box takes its first item by itself.
        if (selected == Controls::AnyItemList::NoSelection) lists.Combo->setCurrentIndex(selected);
    }
    return true;
}

bool RemoveItem(const Controls::AnyItemList& list, int index) {
    const Lists lists(list.GetHandle());
    if (!lists.List && !lists.Combo) return false;
    // The widgets would go on to a neighbour.
    if (lists.GetSelected() == index) lists.Select(Controls::AnyItemList::NoSelection);
    const auto silence = lists.Silence();
    if (lists.List) delete lists.List->takeItem(index);
    if (lists.Combo) lists.Combo->removeItem(index);
    return true;
}

void ClearItems(const Controls::AnyItemList& list) {
    const Lists lists(list.GetHandle());
    const auto silence = lists.Silence();
    if (lists.List) lists.List->clear();
    if (lists.Combo) lists.Combo->clear();
}

int GetTopItem(Handle listBox) {
    const QListWidget* list = GetList(listBox);
    return list && IsVisible(listBox) ? list->verticalScrollBar()->value() : listBox->Top;
}

void SetTopItem(Handle listBox, int index) {
    QListWidget* list = GetList(listBox);
    if (!list) return;
    listBox->Top = std::clamp(index, 0, std::max(0, list->count() - 1));
    list->scrollToItem(list->item(listBox->Top), QAbstractItemView::PositionAtTop);
}

bool IsDroppedDown(Handle comboBox) { return comboBox->IsDropped; }

void SetDroppedDown(Handle comboBox, bool down) {
    QComboBox* combo = Lists(comboBox).Combo;
    if (!combo || comboBox->IsDropped == down) return;
    if (down) combo->showPopup();
    if (!down) combo->hidePopup();
}

}  // namespace UI::Native
