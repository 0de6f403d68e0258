#pragma once

#include <functional>

#include "store/display.h"
#include "store/platform.h"

namespace VNT {

// What the entry flow asks of the screen. Any of them may throw a text (const wchar_t*), which ends the flow.
struct EntryScreen {
    std::function<int()> startDrawing;              // zero on success
    std::function<int(DisplayList&)> edit;          // runs the editor on the list; its modal result, 1 is OK
    std::function<void(const wchar_t*)> showError;  // a box with this text
    // Where there is another way to save what the store refused: true when nothing is left to save.
    std::function<bool(DisplayList&)> saveRest = nullptr;
};

// Load, edit, save: the whole program. Returns its exit code.
int RunEntry(Platform& platform, const EntryScreen& screen);

}  // namespace VNT
