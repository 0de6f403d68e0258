// The user of a test: types, presses, clicks, and looks at what the windows show.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "ui/headless/desktop.h"
#include "ui/message.h"

namespace UI::Headless {

enum class Modifier { None, Shift };

// Starts from an empty desktop with the default system settings. What it types and clicks goes to the window whose
// modal loop is the innermost; a loop runs the steps of the script one after the other, and a step that opens a further
// window has the steps behind it run in there. A loop that finds no step left throws `ScriptError`, as does input when
// there is no loop to take it, so that a test fails and never hangs.
class Driver {
public:
    Driver();
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    // Adds a step to the script.
    Driver& Then(std::function<void()> step);
    // Steps that no loop has run.
    std::size_t CountStepsLeft() const { return desktop.Script.size(); }
    SystemSettings& GetSystem() { return desktop.System; }
    // Answers the next file dialog that has no answer yet.
    void AnswerFileDialog(const FileAnswer& answer) { desktop.FileAnswers.push_back(answer); }
    const std::vector<FileDialog>& GetFileDialogs() const { return desktop.FileDialogs; }
    const std::vector<ShownMessage>& GetMessages() const { return desktop.Messages; }

    // Characters for whatever has the focus; "\t" and "\n" are the keys Tab and Enter.
    void Type(std::wstring_view text);
    void Press(Key key, Modifier modifier = Modifier::None);
    // The key is down still from `Press`, and tells so again.
    void Repeat(Key key);
    // With the Control key; `letter` is a capital.
    void PressControl(wchar_t letter);
    // What is hidden, disabled or behind a modal window takes no click; to what is out of view the user scrolls.
    void Click(Control& control);
    void DoubleClick(Control& control);
    // An item of a list; a row past the last is the empty space below.
    void Click(Controls::ListBox& list, int row);
    void DoubleClick(Controls::ListBox& list, int row);
    // Opens the list and clicks the item.
    void Choose(Controls::ComboBox& box, int row);
    void Choose(Controls::ComboBox& box, std::wstring_view text);
    // Clicks into the box and types over all its text.
    void Enter(Controls::TextBox& box, std::wstring_view text);
    // Moves the pointer there, or away from all.
    void Hover(Control& control);
    void MovePointerAway();
    // Turns the wheel over the window by so many notches, towards the user if they are more than 0.
    void TurnWheel(int notches);
    void ClickCloseBox();

    // The window that takes the input.
    Window& GetWindow() const;
    // Whether any of the control shows.
    static bool IsInView(const Control& control);
    // Null when the window itself or nothing has the focus.
    Control* GetFocused() const;
    // What the control was drawn with last. It throws when the control was never drawn.
    const Look& GetLook(const Control& control) const;
    const Look& GetLook(const Window& window) const;

    // The visible control of the front window that the texts lead to: each is looked for behind the one before, and the
    // last is the control's own, or stands before it as its label. `nth` counts the controls behind the same label,
    // from 0: `Find<TextBox>({L"Red", L"x:"})`, `Find<TextBox>(L"Active:", 1)`.
    template <class T>
    T& Find(std::initializer_list<std::wstring_view> path, int nth = 0) const {
        return static_cast<T&>(
            FindWhere(path, nth, [](Control* control) { return dynamic_cast<T*>(control) != nullptr; }));
    }
    template <class T>
    T& Find(std::wstring_view text, int nth = 0) const {
        return Find<T>({text}, nth);
    }

    // The visible control of the front window that a screen reader calls so; `nth` counts those of that name.
    template <class T>
    T& FindNamed(std::wstring_view name, int nth = 0) const {
        return static_cast<T&>(
            FindNamedWhere(name, nth, [](Control* control) { return dynamic_cast<T*>(control) != nullptr; }));
    }

private:
    Control& FindNamedWhere(std::wstring_view name, int nth, const std::function<bool(Control*)>& isWanted) const;
    Control& FindWhere(std::initializer_list<std::wstring_view> path, int nth,
                       const std::function<bool(Control*)>& isWanted) const;
    void RequireInput() const;
    bool ReachesPointer(Control& control);
    void SendMouse(Control& control, int message, int y = 0);
    void DoubleClickAt(Control& control, int y);
    int ScrollTo(Controls::ListBox& list, int row);
    void PressKey(Key key, bool isHeld);
    bool PressDialogKey(Key key, Handle target, bool isHeld);

    Desktop& desktop;
};

}  // namespace UI::Headless
