// List boxes and combo boxes: the control keeps the texts and fonts of its items, the system only counts them.
#pragma once

#include <vector>

#include "ui/any_hot_control.h"

namespace UI::Controls {

class AnyItemList : public AnyHotControl {
public:
    static constexpr int SelectionChanged = 1;  // notification, by the user only
    static constexpr int NoSelection = -1;

    int GetCount() const { return static_cast<int>(texts.size()); }
    // Index of the selected item, or `NoSelection`.
    int GetSelection() const;
    // An index outside the list leaves nothing selected. Notifies nobody.
    void SetSelection(int index);
    // The style's font stands in where an item is given none.
    void AddItem(const std::wstring& text, const Font& itemFont = Font());
    // False when the index is past the end.
    bool InsertItem(int index, const std::wstring& text, const Font& itemFont = Font());
    bool RemoveItem(int index);
    // Removes all items.
    void Clear();
    // Empty outside the list.
    const std::wstring& GetItemText(int index) const;
    const Font& GetItemFont(int index) const;

protected:
    AnyItemList(Window& window, ControlKind kind, unsigned style);

private:
    bool HasItem(int index) const { return index >= 0 && index < GetCount(); }
    void EraseItem(int index);
    // Selects the next row that begins with what was typed, as long as typing goes on; else with the last character.
    void GoToTyped(wchar_t c);
    // The first row from `from` on, and around, that begins with `text` in capitals or not; -1 when there is none.
    int FindRow(const std::wstring& text, int from) const;

    std::wstring typed;
    int typedRow = NoSelection;  // that typing led to: typing goes on while it stays selected

    std::vector<std::wstring> texts;
    std::vector<Font> fonts;
};

class ListBox : public AnyItemList {
public:
    static constexpr unsigned CreationStyle = 0x210111;
    static constexpr int DoubleClicked = 2;  // notification

    explicit ListBox(Window& window);

    // The first item in view.
    int GetTopIndex() const;
    void SetTopIndex(int index);

    const ListBoxStyle& GetStyle() const { return style; }
    // The colours of one item.
    StateStyle GetItemStyle(bool selected) const;
    Size Measure(std::wstring_view text) const override;
    void ApplyStyle(const StyleTable& table) override;

protected:
    void RedrawHot() override;

private:
    ListBoxStyle style;
};

class ComboBox : public AnyItemList {
public:
    static constexpr unsigned CreationStyle = 0x210013;

    static constexpr int Closed = 8;  // notification: the list is no longer dropped down

    explicit ComboBox(Window& window);

    // The system draws only the inside of a box that closed.
    bool DispatchNotification(int code) override;
    // Height of the closed box; the list that drops down takes what its items need.
    bool SetSize(int width, int height) override;
    bool IsDroppedDown() const;
    void SetDroppedDown(bool down);
    ControlState GetState(bool pressed = false) const override;

    const ComboBoxStyle& GetStyle() const { return style; }
    // The colours of one item of the list that drops down.
    StateStyle GetItemStyle(bool selected) const;
    Color GetArrowColor() const { return IsEnabled() ? style.Arrow : style.DisabledArrow; }
    Size Measure(std::wstring_view text) const override;
    void ApplyStyle(const StyleTable& table) override;

protected:
    bool RedrawsOnLeave() const override { return !IsDroppedDown(); }

private:
    ComboBoxStyle style;
    int controlHeight = 0;
};

}  // namespace UI::Controls
