// The seam between the shared part of the toolkit and a backend: every operation here is written once in `ui/win32` and
// once in `ui/headless`, and a program links one of them. Forms do not include this file.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/control.h"
#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/session.h"
#include "ui/window.h"

// Besides the functions below a backend defines `ShowMessage`, `ChooseFileToOpen`, `ChooseFileToSave`, `EndRun` and
// `Session`.
namespace UI::Native {

// Windows. A top-level window's messages go to `Window::Dispatch`, a child's to `Control::Dispatch`, for as long as the
// object is set; what they leave goes to `CallDefault` and `Control::CallPrevious`. While no object is set all goes to
// `CallDefault`.
bool AddWindowClass(const std::wstring& className);
void RemoveWindowClass(const std::wstring& className);
// Hidden, of no size, with its corner at that of `parent`, so that it has the scale of the monitor there.
Handle CreateTopWindow(const std::wstring& className, const std::wstring& title, unsigned style, unsigned extendedStyle,
                       Handle parent);  // null on failure
struct Child {
    Handle Window = nullptr;  // null on failure
    Procedure Previous = nullptr;
};
// Adds the styles of a visible child to `style`.
Child CreateChild(ControlKind kind, const std::wstring& text, unsigned style, Handle parent);
void SetObject(Handle handle, Window* window);
void SetObject(Handle handle, Control* control);
// The control behind a child window, or null.
Control* FindControl(Handle handle);
// Forgets the object first. Harmless for a window that the system has already destroyed.
void Destroy(Handle handle);

// Messages.
MessageResult Send(Handle handle, int message, WParam wParam, LParam lParam);
MessageResult CallDefault(Handle handle, int message, WParam wParam, LParam lParam);
MessageResult CallPrevious(Procedure previous, Handle handle, int message, WParam wParam, LParam lParam);
// The control that a `DrawItem` message is for, or null.
Control* GetDrawnControl(LParam lParam);
// Stores the size in the record that a `GetMinMaxInfo` message points to.
void SetMinimumTrackSize(LParam lParam, Size size);

// Each class of control hands itself over when its shared part stands, and once only: the backend adds its own
// handlers, such as those that paint.
void Attach(Window& window);
void Attach(Controls::Button& button);
void Attach(Controls::CheckBox& box);
void Attach(Controls::RadioButton& button);
void Attach(Controls::ComboBox& box);
void Attach(Controls::GroupBox& box);
void Attach(Controls::Label& label);
void Attach(Controls::ListBox& box);
void Attach(Controls::TextBox& box);

// Place. A child's position is in its parent's client area, a top-level window's on the screen.
bool Move(Handle handle, int x, int y);
bool Resize(Handle handle, int width, int height);
// Both at once, with no step between that stands elsewhere.
bool Place(Handle handle, const Rect& place);
// `width` and `height` are those of the closed box.
bool ResizeComboBox(const Controls::ComboBox& box, int width, int height);
bool PlaceAfter(Handle handle, Handle other);
Rect GetWindowPlace(Handle handle);  // on the screen
Size GetClientSize(Handle handle);
// The window size around a client area.
std::optional<Size> GetFrameSize(Size client, unsigned style, unsigned extendedStyle, int dpi);
// What the task bar leaves of the monitor that most of the window stands on, or that is nearest to it.
std::optional<Rect> GetWorkArea(Handle handle);
// The place that the system proposes in a `DpiChanged` message.
std::optional<Rect> GetProposedPlace(LParam lParam);
// Shows of a child what stands in `view`, a part of its parent's client area; all of it without one.
void Clip(Handle handle, const std::optional<Rect>& view);
// A scroll bar at `place`, or none. Moving it, and turning the wheel over the window, ends in `Window::ScrollTo`.
void SetScrollBar(Window& window, const std::optional<Rect>& place, const ScrollRange& range);

// State.
// Sends `Message::SetText`; true when it answered 1. Lines end with "\n" here and in `GetText`.
bool SetText(Handle handle, const std::wstring& text);
std::wstring GetText(Handle handle);
void Redraw(Handle handle);       // at once, with all children
void RedrawFrame(Handle handle);  // what a text box or list box has around its client area
void SetDrawing(Handle handle, bool on);
bool IsEnabled(Handle handle);
void SetEnabled(Handle handle, bool enabled);
bool IsVisible(Handle handle);
void SetVisible(Handle handle, bool visible);
Handle GetFocus();  // null when no window of ours has it
void SetFocus(Handle handle);
bool ShowsFocus(Handle handle);
void SetTabStop(Handle handle, bool stop);
bool IsTabStop(Handle handle);
// One `Message::MouseLeave` will come when the pointer leaves.
void TrackMouseLeave(Handle handle);
// Whether the user holds the main button of the mouse down, or has just pressed it.
bool IsPointerDown();
// What is another of a control: a screen reader hears of it. It reads `Control::GetName` as the name and
// `Control::GetHint` as the description. The hint also shows when the pointer rests on the control, enabled or not.
enum class Change { Name, Hint, State, Value, Selection };
void Announce(const Control& control, Change change);
inline void AnnounceSelection(const Controls::AnyItemList& list) {
    Announce(list, list.GetKind() == ControlKind::ListBox ? Change::Selection : Change::Value);
}

// Loop until the next `EndRun`; dialog keys are those of the window. The window is visible while it runs.
int RunLoop(Handle handle);

// Controls.
void SetChecked(Handle handle, bool checked);
void SetLimit(Handle handle, int characters);
void Select(Handle handle, int begin, int end);
void GetSelection(Handle handle, int& begin, int& end);
// After a change of font: margins and text rectangle anew.
void ResetTextMargins(Handle handle);
// Items of a list box or combo box: their texts are the control's, and the system has them for others. All but the last
// three answer by the kind.
int GetSelectedItem(const Controls::AnyItemList& list);
void SetSelectedItem(const Controls::AnyItemList& list, int index);  // -1 for none
bool InsertItem(const Controls::AnyItemList& list, int index);
bool RemoveItem(const Controls::AnyItemList& list, int index);
void ClearItems(const Controls::AnyItemList& list);
int GetTopItem(Handle listBox);
void SetTopItem(Handle listBox, int index);
constexpr int DroppedDown = 7;  // notification of a combo box, before `ComboBox::Closed`
bool IsDroppedDown(Handle comboBox);
void SetDroppedDown(Handle comboBox, bool down);

// Fonts and icons.
std::shared_ptr<NativeFont> MakeFont(const FontSpec& spec, FontMetrics& metrics);  // throws as `Font` says
int MeasureText(NativeFont& font, std::wstring_view text);
void ApplyFont(Handle handle, const Font& font);
// The program's own icons at the window's DPI; null where it has none.
void LoadIcons(Handle handle, int dpi, std::shared_ptr<NativeIcon>& icon, std::shared_ptr<NativeIcon>& smallIcon);

// Theme and DPI.
int GetDpi(Handle handle);
int GetScrollBarWidth(int dpi);
// Where the desktop's own style draws the controls, its lengths take the place of the table's.
void FitToDesktop(StyleTable& table);
Color GetSystemColor(SystemColor color);
bool IsWindows10OrGreater();
SystemVersion GetSystemVersion();  // zeros when the system does not tell
bool IsHighContrast();
// Lets the process have dark parts, then asks for the user's choice. Called only where dark mode is supported.
bool UserPrefersDark();
void SetDarkProcess(bool dark);
void SetDarkFrame(Handle handle, bool dark);
void SetDarkParts(Handle handle, bool dark);  // the standard parts of a control, such as scroll bars

}  // namespace UI::Native
