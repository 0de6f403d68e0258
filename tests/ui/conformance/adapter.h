// What the conformance suite asks of a backend's tests: a user for real keys and clicks, and a system that fails.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/message.h"
#include "ui/native.h"
#include "ui/window.h"

namespace Conformance {

using Steps = std::vector<std::function<void()>>;

// Runs the window's modal loop with the steps done inside it, one after the other. A step may call it again for a
// window on top. The test fails, and the loop ends, when the steps are over and the loop is not. The calls below are
// for steps, and take effect before they return.
int RunWith(UI::Window& window, const Steps& steps);

void Press(UI::Key key);
// The key is down still from `Press`, and tells so again.
void Repeat(UI::Key key);
void PressShiftTab();
void PressControlA();
void Type(std::wstring_view text);
void Click(UI::Control& control);
void DoubleClick(UI::Control& control);
void Click(UI::Controls::ListBox& list, int row);
void DoubleClick(UI::Controls::ListBox& list, int row);
// Opens the list and takes the item.
void Choose(UI::Controls::ComboBox& box, int row);
void Hover(UI::Control& control);
void MovePointerAway();
// The two halves of a click.
void Hold(UI::Control& control);
void Release(UI::Control& control);
void ClickCloseBox(UI::Window& window);

// Whether the control, as it was drawn last, has that colour anywhere.
bool Shows(const UI::Control& control, UI::Color color);

// Whether a screen reader hears of that change of the control while `action` runs.
bool Hears(const UI::Control& control, UI::Native::Change change, const std::function<void()>& action);

// The monitors of the desktop that the tests run on, the primary one first: two at least, of different scale where the
// system can have that.
struct Monitor {
    UI::Rect WorkArea;
    int Dpi = 96;
};
std::vector<Monitor> GetMonitors();

// Destroys a window behind the back of the object that owns it.
void Break(UI::Handle handle);

// A window of the suite; a class name stands for one live window.
class TestWindow : public UI::Window {
public:
    explicit TestWindow(UI::Window* parent = nullptr, const std::wstring& className = L"ConformanceWindow")
        : Window(parent, className, L"Conformance") {
        SetClientSize(600, 400);
    }
};

// One of each control, in a column.
struct AllControls {
    explicit AllControls(UI::Window& window);

    UI::Controls::GroupBox Group;
    UI::Controls::Label Label;
    UI::Controls::TextBox Box;
    UI::Controls::TextBox Lines;
    UI::Controls::CheckBox Check;
    UI::Controls::RadioButton Radio;
    UI::Controls::ComboBox Combo;
    UI::Controls::ListBox List;
    UI::Controls::Button Ok;

    std::vector<UI::Control*> All() { return {&Group, &Label, &Box, &Lines, &Check, &Radio, &Combo, &List, &Ok}; }
};

}  // namespace Conformance
