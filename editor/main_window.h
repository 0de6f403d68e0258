// The main window: the displays, and the parts of the chosen one's EDID.
#pragma once

#include <set>

#include "editor/item_window.h"
#include "model/edid/edid.h"
#include "store/display.h"

// `fields` is the working copy. After every change it is normalised, stored in the display's record and read back: all
// that is shown has been through a write and a read. Nothing of a display that was not edited changes.
class MainWindow : public TFieldsWindow<VNT::EdidFields> {
public:
    explicit MainWindow(VNT::DisplayList displays);

    // Runs the window: 1 when the displays are to be saved, 2 when all changes are dropped.
    int Run() { return RunForm(); }
    const VNT::DisplayList& GetDisplays() const { return displays; }

    void Update() override;

protected:
    void Commit() override { Save(); }

private:
    void AddDisplayRow();
    void AddLists();
    // The record and the working copy of a display; what its bytes can't give comes from a new EDID.
    void Load(int index);
    // Stores an edited working copy in the display's record; whether it was edited. One that can't be written leaves
    // the record as it was.
    bool Save();
    void RefreshRow(int index, const std::wstring& text);
    void ClearSelections();
    void EditProperties();
    void Import();
    void Export();

    // The bytes that an EDID of the loaded display's bytes gets by being edited at all.
    const VNT::Bytes& GetEdited(const VNT::Bytes& bytes);

    const VNT::DisplayList opened;  // as the window was given them
    VNT::DisplayList displays;
    VNT::Display display;     // a copy of the chosen one's record
    VNT::EdidFields loaded;   // the working copy as it was read
    int loadedIndex = -1;     // of the display that it was read from
    bool isImported = false;  // the working copy stands for another EDID than was read, even if it is equal
    bool isOpen = false;
    std::set<int> imported;  // the displays that another EDID was imported to
    VNT::Bytes edited;       // what `GetEdited` told last
    int editedIndex = -1;    // of the display that it told it of
    UI::Controls::ComboBox* choice = nullptr;
    std::vector<std::function<void()>> clearSelections;
};

// Runs the main window on the displays; its modal result. The displays are those as edited if that is OK, else as they
// were.
int EditDisplays(VNT::DisplayList& displays);
