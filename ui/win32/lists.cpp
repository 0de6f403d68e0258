// List boxes and combo boxes. The system has the texts of their items only to tell them to others.
#include "ui/message.h"
#include "ui/win32/platform.h"

namespace UI::Native {

using namespace Win32;

namespace {

// The message that a list of this kind understands.
LRESULT TellList(const Controls::AnyItemList& list, UINT listBox, UINT comboBox, WPARAM wParam = 0, LPARAM lParam = 0) {
    const bool isListBox = list.GetKind() == ControlKind::ListBox;
    return Tell(list.GetHandle(), isListBox ? listBox : comboBox, wParam, lParam);
}

}  // namespace

int GetSelectedItem(const Controls::AnyItemList& list) {
    return static_cast<int>(TellList(list, LB_GETCURSEL, CB_GETCURSEL));
}

void SetSelectedItem(const Controls::AnyItemList& list, int index) {
    TellList(list, LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(static_cast<INT_PTR>(index)));
}

bool InsertItem(const Controls::AnyItemList& list, int index) {
    return TellList(list, LB_INSERTSTRING, CB_INSERTSTRING, static_cast<WPARAM>(index),
                    reinterpret_cast<LPARAM>(list.GetItemText(index).c_str())) == index;
}

bool RemoveItem(const Controls::AnyItemList& list, int index) {
    return TellList(list, LB_DELETESTRING, CB_DELETESTRING, static_cast<WPARAM>(index)) >= 0;
}

void ClearItems(const Controls::AnyItemList& list) { TellList(list, LB_RESETCONTENT, CB_RESETCONTENT); }

int GetTopItem(Handle listBox) { return static_cast<int>(Tell(listBox, LB_GETTOPINDEX)); }
void SetTopItem(Handle listBox, int index) { Tell(listBox, LB_SETTOPINDEX, static_cast<WPARAM>(index)); }
bool IsDroppedDown(Handle comboBox) { return Tell(comboBox, CB_GETDROPPEDSTATE) != 0; }
void SetDroppedDown(Handle comboBox, bool down) { Tell(comboBox, CB_SHOWDROPDOWN, down); }

bool ResizeComboBox(const Controls::ComboBox& box, int width, int height) {
    constexpr int rows = 30;  // at most, in the list that drops down
    constexpr WPARAM closed = static_cast<WPARAM>(-1);
    const Handle handle = box.GetHandle();
    // The system takes the closed height from that of its item, to which it adds borders of its own.
    Tell(handle, CB_SETITEMHEIGHT, closed, height);
    const Rect place = GetWindowPlace(handle);
    const int borders = place.Bottom - place.Top - height;
    Tell(handle, CB_SETITEMHEIGHT, closed, height - borders);
    return Resize(handle, width, height + rows * box.GetStyle().List.ItemHeight);
}

}  // namespace UI::Native
