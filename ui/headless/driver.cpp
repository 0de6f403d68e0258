#include "ui/headless/driver.h"

#include <algorithm>
#include <utility>

#include "ui/dialog_keys.h"

namespace UI::Headless {

namespace {

// The desktop but for the windows that are still open.
void Clear(Desktop& desktop) {
    desktop.Quit.reset();
    desktop.Script.clear();
    desktop.UnderPointer = nullptr;
    desktop.ShiftDown = false;
    desktop.PointerDown = false;
    desktop.System = {};
    desktop.Messages.clear();
    desktop.FileDialogs.clear();
    desktop.FileAnswers.clear();
    desktop.Reader = nullptr;
}

// The character that a key types, or 0.
wchar_t GetCharacter(Key key) {
    switch (key) {
        case Key::Back:
            return L'\b';
        case Key::Tab:
            return L'\t';
        case Key::Return:
            return L'\r';
        case Key::Escape:
            return L'\x1B';
        case Key::Space:
            return L' ';
        default:
            return 0;
    }
}

}  // namespace

Driver::Driver() : desktop(GetDesktop()) { Clear(desktop); }

Driver::~Driver() { Clear(desktop); }

Driver& Driver::Then(std::function<void()> step) {
    desktop.Script.push_back(std::move(step));
    return *this;
}

Window& Driver::GetWindow() const {
    if (desktop.Loops.empty()) throw ScriptError(L"No window runs.");
    return *desktop.Loops.back()->Window;
}

void Driver::RequireInput() const {
    if (desktop.Quit) throw ScriptError(L"Input for \"" + GetWindow().GetTitle() + L"\", which is about to close.");
    const Window& window = GetWindow();
    if (desktop.Watcher) desktop.Watcher(window);
}

Control* Driver::GetFocused() const { return Native::FindControl(desktop.Focus); }

const Look& Driver::GetLook(const Control& control) const {
    if (!control.GetHandle()->Drawn) throw ScriptError(L"\"" + control.GetText() + L"\" was never drawn.");
    return *control.GetHandle()->Drawn;
}

const Look& Driver::GetLook(const Window& window) const {
    if (!window.GetHandle()->Drawn) throw ScriptError(L"\"" + window.GetTitle() + L"\" was never drawn.");
    return *window.GetHandle()->Drawn;
}

void Driver::Type(std::wstring_view text) {
    for (wchar_t c : text) {
        switch (c) {
            case L'\t':
                Press(Key::Tab);
                break;
            case L'\n':
                Press(Key::Return);
                break;
            case L' ':
                Press(Key::Space);
                break;
            default:
                RequireInput();
                Native::Send(desktop.Focus, Message::Char, static_cast<WParam>(c), 0);
        }
    }
}

void Driver::PressControl(wchar_t letter) {
    RequireInput();
    Native::Send(desktop.Focus, Message::KeyDown, static_cast<WParam>(letter), 0);
    Native::Send(desktop.Focus, Message::Char, static_cast<WParam>(letter - L'A' + 1), 0);
}

void Driver::Press(Key key, Modifier modifier) {
    RequireInput();
    desktop.ShiftDown = modifier == Modifier::Shift;
    PressKey(key, false);
    desktop.ShiftDown = false;
}

void Driver::Repeat(Key key) {
    RequireInput();
    PressKey(key, true);
}

void Driver::PressKey(Key key, bool isHeld) {
    const Handle target = desktop.Focus;
    if (!target || PressDialogKey(key, target, isHeld)) return;
    constexpr LParam wasDown = 0x40000000;  // see IsHeld
    Native::Send(target, Message::KeyDown, static_cast<WParam>(key), isHeld ? wasDown : 0);
    if (const wchar_t c = GetCharacter(key)) Native::Send(target, Message::Char, static_cast<WParam>(c), 0);
    if (!isHeld) Native::Send(desktop.Focus, Message::KeyUp, static_cast<WParam>(key), 0);
}

// What the modal loop makes of a key before the control sees it.
bool Driver::PressDialogKey(Key key, Handle target, bool isHeld) {
    Window& window = GetWindow();
    const bool isCommand = key == Key::Return || key == Key::Escape;
    if (isHeld && isCommand && !DialogKeys::Wants(target, key, DialogCode::WantAllKeys)) return true;
    if (!DialogKeys::Press(window, target, key, desktop.ShiftDown)) return false;
    if (key == Key::Tab && !std::exchange(window.GetHandle()->ShowsFocus, true)) DrawAll(*window.GetHandle());
    return true;
}

bool Driver::ReachesPointer(Control& control) {
    RequireInput();
    NativeWindow& window = *control.GetHandle();
    if (&window.GetTop() != GetWindow().GetHandle() || !CanTakeInput(window)) return false;
    control.GetWindow().Reveal(control);
    return true;
}

bool Driver::IsInView(const Control& control) {
    const NativeWindow& window = *control.GetHandle();
    const Rect& place = window.Place;
    const Size client = Native::GetClientSize(window.Parent);
    const Rect view = window.View.value_or(Rect{0, 0, client.Width, client.Height});
    return Native::IsVisible(control.GetHandle()) && place.Left < view.Right && place.Right > view.Left &&
           place.Top < view.Bottom && place.Bottom > view.Top;
}

void Driver::TurnWheel(int notches) {
    RequireInput();
    Window& window = GetWindow();
    const NativeWindow& native = *window.GetHandle();
    if (native.ScrollBar) window.ScrollTo(native.Scroll.Position + notches * native.Scroll.Step);
}

void Driver::SendMouse(Control& control, int message, int y) {
    // A press before this one may have opened or closed a window.
    if (desktop.Quit || &control.GetWindow() != &GetWindow() || !CanTakeInput(*control.GetHandle())) return;
    desktop.PointerDown = message == Message::LeftButtonDown;
    Native::Send(control.GetHandle(), message, 0, static_cast<LParam>(y) * 0x10000);
}

void Driver::MovePointerAway() {
    NativeWindow* last = desktop.Find(std::exchange(desktop.UnderPointer, nullptr));
    if (last && std::exchange(last->TracksPointer, false)) Native::Send(last, Message::MouseLeave, 0, 0);
}

void Driver::Hover(Control& control) {
    if (desktop.UnderPointer != control.GetHandle()) MovePointerAway();
    if (!ReachesPointer(control)) return;
    desktop.UnderPointer = control.GetHandle();
    SendMouse(control, Message::MouseMove);
}

void Driver::Click(Control& control) {
    Hover(control);
    SendMouse(control, Message::LeftButtonDown);
    SendMouse(control, Message::LeftButtonUp);
}

void Driver::DoubleClickAt(Control& control, int y) {
    SendMouse(control, Message::LeftButtonDown, y);
    SendMouse(control, Message::LeftButtonUp, y);
    SendMouse(control, Message::LeftButtonDoubleClick, y);
    SendMouse(control, Message::LeftButtonUp, y);
}

void Driver::DoubleClick(Control& control) {
    Hover(control);
    DoubleClickAt(control, 0);
}

int Driver::ScrollTo(Controls::ListBox& list, int row) {
    if (row < list.GetTopIndex()) list.SetTopIndex(row);
    return (row - list.GetTopIndex()) * list.GetStyle().ItemHeight;
}

void Driver::Click(Controls::ListBox& list, int row) {
    Hover(list);
    const int y = ScrollTo(list, row);
    SendMouse(list, Message::LeftButtonDown, y);
    SendMouse(list, Message::LeftButtonUp, y);
}

void Driver::DoubleClick(Controls::ListBox& list, int row) {
    Hover(list);
    DoubleClickAt(list, ScrollTo(list, row));
}

void Driver::Choose(Controls::ComboBox& box, int row) {
    if (!box.IsDroppedDown()) Click(box);
    if (!box.IsDroppedDown()) return;
    if (row < 0 || row >= box.GetCount()) throw ScriptError(L"The list has no such row.");
    const bool changes = row != box.GetSelection();
    box.SetSelection(row);
    box.SetDroppedDown(false);
    const auto code = static_cast<WParam>(Controls::ComboBox::SelectionChanged);
    if (changes) {
        Native::Send(box.GetWindow().GetHandle(), Message::Command, code * 0x10000,
                     reinterpret_cast<LParam>(box.GetHandle()));
    }
}

void Driver::Choose(Controls::ComboBox& box, std::wstring_view text) {
    for (int row = 0; row < box.GetCount(); ++row) {
        if (box.GetItemText(row) == text) return Choose(box, row);
    }
    throw ScriptError(L"The list has no row \"" + std::wstring(text) + L"\".");
}

void Driver::Enter(Controls::TextBox& box, std::wstring_view text) {
    Click(box);
    if (!box.HasFocus()) return;
    PressControl(L'A');
    if (text.empty()) {
        Press(Key::Delete);
    } else {
        Type(text);
    }
}

void Driver::ClickCloseBox() {
    RequireInput();
    Native::Send(GetWindow().GetHandle(), Message::Close, 0, 0);
}

namespace {

std::vector<Control*> GetVisible(const Window& window) {
    std::vector<Control*> visible;
    std::ranges::copy_if(window.GetControls(), std::back_inserter(visible), &Control::IsVisible);
    return visible;
}

}  // namespace

Control& Driver::FindNamedWhere(std::wstring_view name, int nth, const std::function<bool(Control*)>& isWanted) const {
    for (Control* control : GetVisible(GetWindow())) {
        if (isWanted(control) && control->GetName() == name && nth-- == 0) return *control;
    }
    throw ScriptError(L"Nothing is called \"" + std::wstring(name) + L"\".");
}

Control& Driver::FindWhere(std::initializer_list<std::wstring_view> path, int nth,
                           const std::function<bool(Control*)>& isWanted) const {
    // What the user reads on a control is its label; what stands in a text box is not.
    const auto reads = [](Control* control, std::wstring_view text) {
        return control->GetText() == text && control->GetKind() != ControlKind::Edit;
    };
    std::vector<Control*> seen = GetVisible(GetWindow());
    auto from = seen.begin();
    const auto goTo = [&](std::wstring_view text) {
        from = std::find_if(from, seen.end(), [&](Control* control) { return reads(control, text); });
        if (from == seen.end()) throw ScriptError(L"Nothing reads \"" + std::wstring(text) + L"\".");
    };
    const std::wstring_view last = *(path.end() - 1);
    for (auto text = path.begin(); text + 1 != path.end(); ++text) goTo(*text);
    std::vector<Control*> found;
    const auto collect = [&](const auto& isRight) {
        std::copy_if(from, seen.end(), std::back_inserter(found), isRight);
        return !found.empty();
    };
    if (!collect([&](Control* control) { return isWanted(control) && reads(control, last); })) {
        goTo(last);
        collect(isWanted);
    }
    if (nth < 0 || nth >= static_cast<int>(found.size())) {
        throw ScriptError(L"No such control at \"" + std::wstring(last) + L"\".");
    }
    return *found[static_cast<std::size_t>(nth)];
}

}  // namespace UI::Headless
