// The started program and its user: keys and the mouse go the way that those of hardware go, and what the user sees is
// asked of the program's windows. A key goes out when the control that is to get it has the focus, and each call
// returns when the program has done with it. What never comes throws, with what was seen instead, and leaves a picture.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>

namespace Testing {

class RunningEditor {
public:
    // Starts the Vantelle.exe beside this program.
    RunningEditor();
    RunningEditor(const RunningEditor&) = delete;
    RunningEditor& operator=(const RunningEditor&) = delete;
    // Ends it, should it still run.
    ~RunningEditor();

    // Its front window as soon as that is of this class, one of its controls has the focus and its loop runs.
    HWND AwaitWindow(const std::wstring& className);
    // Its exit code.
    int AwaitExit();
    double GetMilliseconds() const;  // since the start

    // Whoever has the focus gets the key.
    void Press(WORD key);
    void Click(HWND control);
    // Until it and all in it are painted.
    void AwaitPaint(HWND window) const;
    // Presses Tab until the control has the focus.
    void TabTo(HWND control);
    // Chooses a row of a list box or combo box by the arrow keys.
    void Select(HWND list, int row);

    // The children of `window` in Tab order: the first of that class and text behind `after`.
    HWND Find(HWND window, const std::wstring& className, const std::wstring& text = L"", HWND after = nullptr) const;
    static std::wstring GetText(HWND window);
    static int CountRows(HWND list);
    // A picture of the screen, beside the folder that this program stands in: `folder`/`name`.png.
    static std::filesystem::path TakePicture(const std::wstring& folder, const std::wstring& name);

    // Looks again and again until it is so.
    void Await(const std::string& what, const std::function<bool()>& isSo) const;

private:
    // Presses and releases; returns when the program has taken both from its queue and has done with them.
    void Send(INPUT down, INPUT up) const;
    // Until the program's thread answers: what it began has come to its end.
    void AwaitAnswer() const;
    bool HasEnded() const;
    HWND GetFocus() const;
    std::string Describe() const;
    [[noreturn]] void Fail(const std::string& what) const;
    static int GetSelection(HWND list);

    LARGE_INTEGER started{};
    PROCESS_INFORMATION process{};
};

}  // namespace Testing
