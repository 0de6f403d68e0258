// What windows show, against what they stand for.
#pragma once

#include <string>
#include <vector>

#include "editor/main_window.h"

namespace Testing {

// Compares what the main window shows with a fresh read of the bytes of its displays.
class MainWindowView {
public:
    explicit MainWindowView(const MainWindow& window);

    // What differs first, or nothing. Rows of displays that are not chosen are compared with those of the last time.
    std::wstring FindDifference();

private:
    struct ListView {
        const UI::Controls::GroupBox* caption = nullptr;
        const UI::Controls::ListBox* list = nullptr;
        std::vector<const UI::Controls::Button*> buttons;  // Add, Edit, Delete, Delete all, up, down
    };
    template <class List>
    std::wstring FindListDifference(const ListView& view, const List& list, const VNT::SlotListLimits& limits,
                                    const VNT::ListCaptions& captions) const;
    std::wstring FindDisplayDifference();

    const MainWindow& window;
    const UI::Controls::ComboBox* choice = nullptr;
    std::vector<const UI::Controls::CheckBox*> established;
    std::vector<ListView> lists;
    std::vector<std::wstring> displayRows;
};

// What a refresh changes on a window that has just been refreshed, or nothing.
std::wstring FindRestless(AnyWindow& window);

// A visible control that is cut off, or drawn otherwise than it is, or nothing.
std::wstring FindUnseen(const UI::Window& window);

}  // namespace Testing
