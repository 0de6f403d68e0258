// What windows show, against what they stand for. Nothing is built where nothing is wrong: the monkey looks after each
// of very many actions.
#pragma once

#include <string>
#include <vector>

#include "editor/main_window.h"

namespace Testing {

// Compares what the main window shows with a fresh read of the bytes of its displays.
class MainWindowView {
public:
    explicit MainWindowView(const MainWindow& window);

    // What differs first, or nothing.
    std::wstring FindDifference();

private:
    struct ListView {
        const UI::Controls::GroupBox* caption = nullptr;
        const UI::Controls::ListBox* list = nullptr;
        std::vector<const UI::Controls::Button*> buttons;  // Add, Edit, Delete, Delete all, up, down
        // What the bytes say.
        std::wstring captionText;
        std::vector<std::wstring> rows;
        int count = 0;
        bool hasRoom = false;
    };
    template <class List>
    static void ReadList(ListView& view, const List& list, const VNT::SlotListLimits& limits,
                         const VNT::ListCaptions& captions);
    static std::wstring FindDifference(const ListView& view);
    int CountRows() const;
    // Reads the bytes of the chosen display, unless they are those that were read last for as many rows.
    void Read(std::size_t chosen);

    const MainWindow& window;
    const UI::Controls::ComboBox* choice = nullptr;
    std::vector<const UI::Controls::CheckBox*> established;
    std::vector<ListView> lists;
    std::vector<std::wstring> displayRows;
    std::size_t lastChosen = std::string::npos;  // none yet
    VNT::Bytes lastBytes;
    int lastRows = 0;
    decltype(VNT::EdidFields::established) lastEstablished;
};

// A number for all that the user sees of each control.
std::vector<std::size_t> DigestAll(const UI::Window& window);

// The first control that is not seen as it was `before`, or nothing.
std::wstring FindChanged(const UI::Window& window, const std::vector<std::size_t>& before);

// What a refresh changes on a window that has just been refreshed, or nothing.
std::wstring FindRestless(AnyWindow& window);

// A number that stands for where everything on the window is, and is seen.
std::size_t GetLayoutDigest(const UI::Window& window);

}  // namespace Testing
