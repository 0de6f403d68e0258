#include "editor/main_window.h"

#include "editor/descriptor_windows.h"
#include "editor/extension_block_windows.h"
#include "editor/properties_windows.h"
#include "editor/short_resolution_windows.h"
#include "store/display_row.h"
#include "store/edid_files.h"
#include "ui/dialogs.h"

using namespace VNT;

namespace {

// Behind the last detailed resolution, or in front of all: so the first one stays the preferred one.
int InsertDescriptor(EdidDescriptorList& list, EdidDescriptor&& descriptor) {
    int index = list.GetCount();
    if (descriptor.GetType() == EdidDescriptorTypeId::DetailedResolution) {
        const auto isDetailed = [&list](int i) {
            return list.At(i).GetType() == EdidDescriptorTypeId::DetailedResolution;
        };
        while (index > 0 && !isDetailed(index - 1)) --index;
    }
    list.Insert(index, descriptor);
    return index;
}

// Bytes don't tell an unused slot behind the last item from one that nobody listed: one that was moved there stays.
template <class List>
void KeepUnused(List& read, const List& edited, const typename List::ItemType& unused) {
    const auto isKept = [&] { return read.GetCount() < edited.GetCount() && edited.At(read.GetCount()) == unused; };
    while (isKept() && read.Add(unused)) {
    }
}

// Runs `work`; what the system refuses it tells in a box.
void ShowFailure(const UI::Window& owner, const std::function<void()>& work) {
    try {
        work();
    } catch (const wchar_t* text) {
        UI::ShowMessage(&owner, text, L"Error", UI::MessageKind::Error);
    }
}

}  // namespace

MainWindow::MainWindow(DisplayList list)
    : TFieldsWindow(nullptr, L"MainWindow", L"Vantelle (VNT) Test 2026-01"), opened(list), displays(std::move(list)) {
    AddDisplayRow();
    Group(L"Established resolutions").Checks(Field<&Fields::established>, EdidEstablishedResolutionFlagEnum::Texts);
    AddLists();
    AddBottomButton(L"Import...", [this] { ShowFailure(*this, [this] { Import(); }); });
    AddBottomButton(L"Export...", [this] { ShowFailure(*this, [this] { Export(); }); });
    Load(0);
    choice->SetSelection(0);
}

void MainWindow::AddDisplayRow() {
    auto group = Group(L"");
    group.Row(L"Display:");
    choice = &group.OpenCombo([this] {
        Update();
        ClearSelections();
        Update();
    });
    for (const Display& each : displays) choice->AddItem(GetDisplayRow(each).ToWide());
    group.Button(L"Edit...", [this] { EditProperties(); });
}

void MainWindow::AddLists() {
    const EdidLimits limits = Edid().GetAllLimits();
    // So few rows that the window fits a screen of 1080 lines at 150 %.
    const auto add = [this](auto field, const ListCaptions& captions, SlotListLimits room, auto edit,
                            int rows) -> auto& {
        auto& editor = Group(L"").List(
            field, captions, [room] { return room; }, edit, rows);
        clearSelections.push_back([&editor] { editor.ClearSelection(); });
        return editor;
    };
    add(Field<&Fields::descriptors>, DescriptorCaptions, limits.descriptors, &EditEdidDescriptor, 4)
        .SetInserter(&InsertDescriptor);
    add(Field<&Fields::standardResolutions>, StandardResolutionCaptions, limits.standardResolutions,
        &EditEdidStandardResolution, 3);
    add(Field<&Fields::extensionBlocks>, ExtensionBlockCaptions, limits.extensionBlocks, &EditEdidExtensionBlock, 3);
}

void MainWindow::Load(int index) {
    if (index < 0 || index >= static_cast<int>(displays.size())) return;
    display = displays[static_cast<std::size_t>(index)];
    Edid edid;
    edid.Read(display.CurrentData);
    RefreshRow(index, GetDisplayRow(display, edid.GetIdentity()).ToWide());
    loaded = std::move(edid);
    fields = loaded;
    loadedIndex = index;
    isImported = false;
}

bool MainWindow::Save() {
    // What was not edited keeps its bytes, also those that a new EDID would have otherwise.
    if (fields == loaded && !isImported) return false;
    const Bytes bytes = Edid(fields).GetBytes();
    if (isImported) imported.insert(loadedIndex);
    const Display* before = loadedIndex < 0 ? nullptr : &opened[static_cast<std::size_t>(loadedIndex)];
    if (before && !imported.contains(loadedIndex) && bytes == GetEdited(before->CurrentData)) {
        // What is put back as it was is as if it had never been touched.
        display = *before;
    } else if (!bytes.IsEmpty()) {
        display.SetData(bytes);
    }
    displays.Replace(display);
    return true;
}

const Bytes& MainWindow::GetEdited(const Bytes& bytes) {
    if (editedIndex == loadedIndex) return edited;
    Edid edid;
    edid.Read(bytes);
    edited = Edid(EdidFields(edid)).GetBytes();
    editedIndex = loadedIndex;
    return edited;
}

void MainWindow::Update() {
    // What was not edited is as it was read.
    const bool isEdited = isOpen && Save();
    const int index = choice->GetSelection();
    if (index != loadedIndex) {
        Load(index);
    } else if (isEdited) {
        const auto descriptors = fields.descriptors;
        const auto standardResolutions = fields.standardResolutions;
        Load(index);
        for (EdidFields* of : {&fields, &loaded}) {
            KeepUnused(of->descriptors, descriptors, EdidDescriptor(EdidEmptyDescriptor().Clone()));
            KeepUnused(of->standardResolutions, standardResolutions, EdidStandardResolution());
        }
    }
    isOpen = true;
    TFieldsWindow::Update();
}

void MainWindow::RefreshRow(int index, const std::wstring& text) {
    if (choice->GetItemText(index) == text) return;
    choice->RemoveItem(index);
    choice->InsertItem(index, text);
    choice->SetSelection(index);
    RequireLayout();
}

void MainWindow::ClearSelections() {
    for (const auto& clear : clearSelections) clear();
}

void MainWindow::EditProperties() {
    EdidPropertiesFields properties = fields.properties;
    if (EdidPropertiesWindow(this).Run(properties) != UI::IdOk) return;
    fields.properties = properties;
    Update();
}

void MainWindow::Import() {
    const auto file = UI::ChooseFileToOpen(
        this, {L"Import",
               L"Import",
               L"bin",
               {{L"BIN/DAT Files", L"*.bin;*.dat"}, {L"TXT Files", L"*.txt"}, {L"All Files", L"*.*"}}});
    if (!file) return;
    Edid edid;
    if (!ImportAny(file->Path, edid)) throw L"Failed to import file.";
    fields = edid;
    isImported = true;
    Update();
    ClearSelections();
    Update();
}

void MainWindow::Export() {
    const auto file = UI::ChooseFileToSave(
        this,
        {L"Export", L"Export", L"bin", {{L"BIN Files", L"*.bin"}, {L"DAT Files", L"*.dat"}, {L"TXT Files", L"*.txt"}}});
    if (!file) return;
    constexpr FileFormat formats[] = {FileFormat::Bin, FileFormat::Dat, FileFormat::Txt};
    const bool isKnown = file->TypeIndex >= 1 && file->TypeIndex <= 3;
    const FileFormat format = isKnown ? formats[file->TypeIndex - 1] : FileFormat::Bin;
    // The display's bytes as they are, whether they are an EDID or not; of one without any what is shown for it.
    const Bytes& bytes = display.CurrentData;
    const bool isAsRead = fields == loaded && !bytes.IsEmpty();
    const bool isWritten = VNT::Export(file->Path, isAsRead ? bytes : Edid(fields).GetBytes(), format);
    if (!isWritten) throw L"Failed to export file.";
}

int EditDisplays(DisplayList& displays) {
    MainWindow window(displays);
    const int result = window.Run();
    if (result == UI::IdOk) displays = window.GetDisplays();
    return result;
}
