#include "store/entry.h"

#include "store/load.h"
#include "store/save.h"

namespace VNT {

namespace {

constexpr int ModalResultOk = 1;

void Run(Platform& platform, const EntryScreen& screen) {
    if (screen.startDrawing() != 0) throw L"GdiplusStartup failed.";
    DisplayList list;
    if (!LoadDisplays(platform, list, false)) throw L"Failed to load displays.";
    if (list.empty()) throw L"No displays found.";
    if (screen.edit(list) != ModalResultOk) return;
    if (SaveDisplays(platform, list) || (screen.saveRest && screen.saveRest(list))) return;
    throw L"An error occurred while saving. Not all changes were saved.";
}

}  // namespace

int RunEntry(Platform& platform, const EntryScreen& screen) {
    try {
        Run(platform, screen);
        return 0;
    } catch (const wchar_t* text) {
        screen.showError(text);
        return 1;
    }
}

}  // namespace VNT
