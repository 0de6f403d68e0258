// The conformance suite's user on real windows: keys and clicks go through the message queue and the modal loop's own
// treatment of them, the pointer is the real one.
#include <gtest/gtest.h>
#include <string>

#include "tests/ui/conformance/adapter.h"
#include "ui/session.h"
#include "ui/win32/dc.h"

namespace Conformance {

using namespace UI::Win32;

namespace {

class DrawingLibrary : public testing::Environment {
public:
    void SetUp() override {
        session = std::make_unique<UI::Session>();
        // Wine looks for a pointer that left as often as for one that hovers; for this process alone.
        constexpr UINT milliseconds = 20;
        SystemParametersInfoW(SPI_SETMOUSEHOVERTIME, milliseconds, nullptr, 0);
        SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    }
    void TearDown() override { session.reset(); }

private:
    std::unique_ptr<UI::Session> session;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new DrawingLibrary);

std::vector<HWND> loops;                         // their windows, the innermost last
UI::Controls::AnyHotControl* hovered = nullptr;  // of the innermost

bool HasQuit() {
    MSG message;
    return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) && message.message == WM_QUIT;
}

// Does with all that waits what the innermost loop does.
void ProcessAll() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
        Process(loops.back(), message);
    }
}

// A window without a place on the screen that does one step of a script at a message, so that steps run inside the
// loop.
class Runner {
public:
    static constexpr UINT DoStep = WM_APP;

    explicit Runner(const Steps& steps) : steps(steps) {
        window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
        PostMessageW(window, DoStep, 0, 0);
    }
    Runner(const Runner&) = delete;
    Runner& operator=(const Runner&) = delete;
    ~Runner() { DestroyWindow(window); }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != DoStep) return DefWindowProcW(window, message, wParam, lParam);
        reinterpret_cast<Runner*>(GetWindowLongPtrW(window, GWLP_USERDATA))->Do();
        return 0;
    }

    void Do() {
        if (next == steps.size()) {
            ADD_FAILURE() << "The steps are over and the loop is not.";
            return UI::EndRun(-1);
        }
        steps[next++]();
        ProcessAll();
        if (!HasQuit()) PostMessageW(window, DoStep, 0, 0);
    }

    const Steps& steps;
    std::size_t next = 0;
    HWND window;
};

// The user's input has a target only where the system would give it one.
HWND GetTarget(UI::Control& control) {
    HWND window = ToWindow(control.GetHandle());
    return IsWindowVisible(window) && IsWindowEnabled(window) && IsWindowEnabled(GetParent(window)) ? window : nullptr;
}

void Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0) {
    PostMessageW(window, message, wParam, lParam);
    ProcessAll();
}

POINT GetCentre(HWND window) {
    const RECT area = GetClientArea(window);
    return {area.right / 2, area.bottom / 2};
}

void PostMouse(HWND window, std::initializer_list<UINT> messages, POINT at) {
    for (UINT message : messages) {
        const WPARAM buttons = message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
        if (IsWindow(window)) Post(window, message, buttons, MAKELPARAM(at.x, at.y));
    }
}

void Click(UI::Control& control, POINT at) {
    Hover(control);
    if (HWND window = GetTarget(control)) PostMouse(window, {WM_LBUTTONDOWN, WM_LBUTTONUP}, at);
}

void DoubleClick(UI::Control& control, POINT at) {
    Click(control, at);
    if (HWND window = GetTarget(control)) PostMouse(window, {WM_LBUTTONDBLCLK, WM_LBUTTONUP}, at);
}

POINT GetRow(UI::Controls::ListBox& list, int row) {
    const int height = list.GetStyle().ItemHeight;
    return {5, (row - list.GetTopIndex()) * height + height / 2};
}

void PressWith(int modifier, int key) {
    BYTE keys[256] = {};
    keys[key] = 0x80;
    if (modifier) keys[modifier] = 0x80;
    SetKeyboardState(keys);
    HWND focus = GetFocus();
    Post(focus, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    if (IsWindow(focus)) Post(focus, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
    const BYTE none[256] = {};
    SetKeyboardState(const_cast<BYTE*>(none));
}

// The system tells of a pointer that left, but not at once.
void AwaitLeave() {
    constexpr DWORD patience = 20000;  // milliseconds until what does not come is said never to come
    for (const DWORD begin = GetTickCount(); hovered && hovered->IsHot(); Sleep(1)) {
        ProcessAll();
        if (GetTickCount() - begin > patience) {
            ADD_FAILURE() << "Waited in vain for the system to tell that the pointer left.";
            break;
        }
    }
    hovered = nullptr;
}

}  // namespace

int RunWith(UI::Window& window, const Steps& steps) {
    struct Level {
        explicit Level(HWND window) { loops.push_back(window); }
        ~Level() {
            loops.pop_back();
            hovered = nullptr;
        }
    };
    const Level level(ToWindow(window.GetHandle()));
    const Runner runner(steps);
    return window.Run();
}

void Press(UI::Key key) { PressWith(0, static_cast<int>(key)); }
void Repeat(UI::Key key) {
    constexpr LPARAM wasDown = 0x40000001;
    Post(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), wasDown);
}

void PressShiftTab() { PressWith(VK_SHIFT, VK_TAB); }
void PressControlA() { PressWith(VK_CONTROL, 'A'); }

void Type(std::wstring_view text) {
    for (wchar_t c : text) Post(GetFocus(), WM_CHAR, c, 1);
}

void Click(UI::Control& control) { Click(control, GetCentre(ToWindow(control.GetHandle()))); }
void DoubleClick(UI::Control& control) { DoubleClick(control, GetCentre(ToWindow(control.GetHandle()))); }
void Click(UI::Controls::ListBox& list, int row) { Click(list, GetRow(list, row)); }
void DoubleClick(UI::Controls::ListBox& list, int row) { DoubleClick(list, GetRow(list, row)); }

void Choose(UI::Controls::ComboBox& box, int row) {
    Click(box);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(ToWindow(box.GetHandle()), &info);
    RECT place{};
    SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    const POINT at{5, (place.top + place.bottom) / 2};
    PostMouse(info.hwndList, {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP}, at);
}

void Hover(UI::Control& control) {
    HWND window = GetTarget(control);
    if (!window) return;
    POINT at = GetCentre(window);
    POINT onScreen = at;
    ClientToScreen(window, &onScreen);
    SetCursorPos(onScreen.x, onScreen.y);
    if (hovered != &control) AwaitLeave();
    hovered = dynamic_cast<UI::Controls::AnyHotControl*>(&control);
    Post(window, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
}

void MovePointerAway() {
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    AwaitLeave();
}

void Hold(UI::Control& control) {
    HWND window = ToWindow(control.GetHandle());
    PostMouse(window, {WM_LBUTTONDOWN}, GetCentre(window));
}

void Release(UI::Control& control) {
    HWND window = ToWindow(control.GetHandle());
    PostMouse(window, {WM_LBUTTONUP}, GetCentre(window));
}

bool Shows(const UI::Control& control, UI::Color color) {
    HWND window = ToWindow(control.GetHandle());
    UpdateWindow(window);
    const WindowDC dc(window);
    const UI::Rect place = UI::Native::GetWindowPlace(control.GetHandle());
    for (int y = 0; y < place.Bottom - place.Top; ++y) {
        for (int x = 0; x < place.Right - place.Left; ++x) {
            if (GetPixel(dc, x, y) == color) return true;
        }
    }
    return false;
}

namespace {

struct Heard {
    HWND Window;
    DWORD Event;
    bool Found = false;
};
Heard* listening = nullptr;

void CALLBACK Listen(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD) {
    // The system tells of some changes as of the whole window.
    const bool isWhole = object == OBJID_CLIENT || object == OBJID_WINDOW;
    if (listening && isWhole && window == listening->Window && event == listening->Event) listening->Found = true;
}

DWORD GetEvent(UI::Native::Change change) {
    switch (change) {
        case UI::Native::Change::Name:
            return EVENT_OBJECT_NAMECHANGE;
        case UI::Native::Change::Hint:
            return EVENT_OBJECT_DESCRIPTIONCHANGE;
        case UI::Native::Change::State:
            return EVENT_OBJECT_STATECHANGE;
        case UI::Native::Change::Value:
            return EVENT_OBJECT_VALUECHANGE;
        case UI::Native::Change::Selection:
            return EVENT_OBJECT_SELECTION;
    }
    return 0;
}

}  // namespace

bool Hears(const UI::Control& control, UI::Native::Change change, const std::function<void()>& action) {
    Heard heard{ToWindow(control.GetHandle()), GetEvent(change)};
    listening = &heard;
    HWINEVENTHOOK hook = SetWinEventHook(heard.Event, heard.Event, GetModuleHandleW(nullptr), Listen,
                                         GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
    action();
    UnhookWinEvent(hook);
    listening = nullptr;
    return heard.Found;
}

std::vector<Monitor> GetMonitors() {
    std::vector<Monitor> monitors;
    const auto add = [](HMONITOR monitor, HDC, RECT*, LPARAM to) -> BOOL {
        MONITORINFO info{};
        info.cbSize = sizeof(info);
        if (!GetMonitorInfoW(monitor, &info)) return TRUE;
        auto& found = *reinterpret_cast<std::vector<Monitor>*>(to);
        const bool isFirst = UI::HasFlag(info.dwFlags, MONITORINFOF_PRIMARY);
        found.insert(isFirst ? found.begin() : found.end(),
                     {FromRect(info.rcWork), GetDeviceCaps(ScreenDC(), LOGPIXELSX)});
        return TRUE;
    };
    EnumDisplayMonitors(nullptr, nullptr, add, reinterpret_cast<LPARAM>(&monitors));
    return monitors;
}

void ClickCloseBox(UI::Window& window) { Post(ToWindow(window.GetHandle()), WM_SYSCOMMAND, SC_CLOSE); }

void Break(UI::Handle handle) { DestroyWindow(ToWindow(handle)); }

}  // namespace Conformance
