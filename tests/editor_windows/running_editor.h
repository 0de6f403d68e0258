// The started program and its user: keys and the mouse go the way that those of hardware go, and what the user sees is
// asked of the program's windows.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace Testing {

class RunningEditor {
public:
    // Starts the Vantelle.exe beside the test program.
    RunningEditor();
    RunningEditor(const RunningEditor&) = delete;
    RunningEditor& operator=(const RunningEditor&) = delete;
    // Ends it, should it still run.
    ~RunningEditor();

    // Its front window as soon as that is of this class and one of its controls has the focus: its loop runs. Null,
    // with a failure, when none comes.
    HWND AwaitWindow(const std::wstring& className);
    // Its exit code, or -1, with a failure, when it goes on.
    int AwaitExit();
    double GetMilliseconds() const;  // since the start

    void Press(WORD key) const;
    void Click(HWND control) const;
    // Presses Tab until the control has the focus.
    void TabTo(HWND control);
    // Chooses a row of a list box or combo box by the arrow keys.
    void Select(HWND list, int row);

    // The children of `window` in Tab order: the first of that class and text behind `after`.
    static HWND Find(HWND window, const std::wstring& className, const std::wstring& text = L"", HWND after = nullptr);
    static std::wstring GetText(HWND window);
    static int CountRows(HWND list);
    // Looks again and again until it is so; a failure, called `what`, when that takes too long.
    static bool Await(const std::string& what, const std::function<bool()>& isSo);

private:
    HWND GetFocus() const;
    static int GetSelection(HWND list);

    LARGE_INTEGER started{};
    PROCESS_INFORMATION process{};
};

}  // namespace Testing
