// The desktop that has no screen: its windows, its focus, its modal loops and the script that they run.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include "ui/control.h"
#include "ui/dialogs.h"
#include "ui/native.h"

namespace UI::Headless {

// What a script got wrong: it ended inside a modal loop, or looked for what is not there. Ends all loops.
class ScriptError : public std::runtime_error {
public:
    explicit ScriptError(std::wstring_view text);
};

struct ItemLook {
    std::wstring Caption;
    Color Text = 0;
    Color Background = 0;
    UI::Font Font;
    bool operator==(const ItemLook&) const = default;
};

// What a window or control was drawn with last.
struct Look {
    ControlState State = ControlState::Normal;
    StateStyle Frame;  // of the box of a check box
    std::wstring Caption;
    Color Text = 0;
    Color Background = 0;
    bool FocusMark = false;
    bool Checked = false;
    std::vector<ItemLook> Items;
    bool operator==(const Look&) const = default;
};

struct Monitor {
    Rect Place;
    Rect WorkArea;
    int Dpi = 96;
};

// What the system says of itself.
struct SystemSettings {
    bool Windows10OrGreater = true;
    SystemVersion Version{10, 0, 19045};
    bool HighContrast = false;
    bool PrefersDark = false;
    // Of the primary monitor, which has all the room that is no other's.
    int Dpi = 96;
    std::optional<Rect> WorkArea = Rect{0, 0, 1920, 1040};
    std::vector<Monitor> OtherMonitors;
    int CharacterWidth = 7;               // of a plain font, in sixteenths of its height
    std::map<SystemColor, Color> Colors;  // others have the colours of a black contrast theme

    void SetTheme(Theme theme);
};

struct ShownMessage {
    std::wstring Text;
    std::wstring Caption;
    MessageKind Kind = MessageKind::Plain;
    const Window* Owner = nullptr;
};

// The answer to one file dialog: a file, nothing for Cancel, or the text that it throws.
struct FileAnswer {
    std::optional<ChosenFile> File;
    const wchar_t* Failure = nullptr;
};

struct Desktop {
    std::unordered_map<Handle, std::unique_ptr<NativeWindow>> Windows;
    std::set<std::wstring> Classes;
    Handle Focus = nullptr;
    Handle UnderPointer = nullptr;
    bool ShiftDown = false;
    bool PointerDown = false;
    bool Draws = true;          // what is never looked at need not be drawn; it outlives drivers
    std::vector<Handle> Loops;  // the innermost last
    std::optional<int> Quit;    // posted, and not yet taken by a loop
    std::deque<std::function<void()>> Script;
    SystemSettings System;
    std::vector<ShownMessage> Messages;
    std::vector<FileDialog> FileDialogs;
    std::deque<FileAnswer> FileAnswers;
    // Hears of what changes.
    std::function<void(const Control&, Native::Change)> Reader;
    // Looks at the window in front before each input, and so at all that a user comes to see; it outlives drivers.
    std::function<void(const Window&)> Watcher;

    // Null unless `handle` is a window that the system still has.
    NativeWindow* Find(Handle handle) const;
    void Remove(Handle handle);

private:
    mutable Handle lastFound = nullptr;
};

Desktop& GetDesktop();

using Behaviour = MessageResult (*)(NativeWindow&, int message, WParam wParam, LParam lParam);
Behaviour GetBehaviour(ControlKind kind);

// Draws one window, its children aside, if it can be seen.
void Draw(NativeWindow& window);
void DrawAll(NativeWindow& window);
// Whether it and the window around it are visible and enabled.
bool CanTakeInput(NativeWindow& window);
// As when the system destroys a window: its children go with it, while what their owners hold stays.
void Break(NativeWindow& window);

}  // namespace UI::Headless

namespace UI {

struct NativeWindow {
    bool IsAlive = true;                  // false once the system has destroyed it while its owner has not
    NativeWindow* Parent = nullptr;       // null for top-level windows, whose owner plays no part here
    std::vector<NativeWindow*> Children;  // in Tab order
    UI::Window* Window = nullptr;
    UI::Control* Control = nullptr;
    ControlKind Kind = ControlKind::Static;
    Rect Place;
    std::wstring Text;
    bool IsEnabled = true;
    bool IsVisible = false;
    bool IsTabStop = false;
    bool IsDrawing = true;
    bool ShowsFocus = false;  // of a top-level window, for all inside
    bool TracksPointer = false;
    bool IsPressed = false;  // button
    bool IsChecked = false;  // button
    bool IsDropped = false;  // combo box
    bool HasDarkParts = false;
    UI::Font Font;
    int Limit = 0;      // edit: most characters, 0 for any number
    int Anchor = 0;     // edit: where the selection began
    int Caret = 0;      // edit: where it ends
    int Count = 0;      // lists
    int Selected = -1;  // lists
    int Top = 0;        // list box
    std::optional<Headless::Look> Drawn;
    std::optional<Rect> View;       // of a child: all that shows of its parent's client area
    std::optional<Rect> ScrollBar;  // of a top-level window
    ScrollRange Scroll;

    bool IsTop() const { return !Parent; }
    NativeWindow& GetTop() { return Parent ? *Parent : *this; }
};

}  // namespace UI
