#include "tests/editor_windows/running_editor.h"

#include <stdexcept>

#include "ui/session.h"
#include "ui/win32/picture.h"

namespace Testing {

namespace {

constexpr DWORD Patience = 20000;  // milliseconds until what does not come is said never to come

std::wstring GetClass(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

std::string ToNarrow(const std::wstring& text) {
    std::string narrow;
    for (const wchar_t c : text) narrow += c > 0 && c < 0x7F ? static_cast<char>(c) : '?';
    return narrow;
}

std::string DescribeWindow(HWND window) {
    if (!window) return "none";
    return ToNarrow(GetClass(window)) + " \"" + ToNarrow(RunningEditor::GetText(window)) + "\"";
}

std::filesystem::path GetFolder() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return std::filesystem::path(self).parent_path();
}

bool IsListBox(HWND list) { return GetClass(list) == L"ListBox"; }

DWORD GetProcess(HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner;
}

}  // namespace

RunningEditor::RunningEditor() {
    QueryPerformanceCounter(&started);
    STARTUPINFOW info{};
    info.cb = sizeof(info);
    std::wstring command = L"\"" + (GetFolder() / L"Vantelle.exe").wstring() + L"\"";
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info, &process))
        throw std::runtime_error("Vantelle.exe does not start");
}

RunningEditor::~RunningEditor() {
    if (!HasEnded()) TerminateProcess(process.hProcess, 99);
    WaitForSingleObject(process.hProcess, Patience);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

bool RunningEditor::HasEnded() const { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; }

void RunningEditor::Await(const std::string& what, const std::function<bool()>& isSo) const {
    for (const DWORD begin = GetTickCount(); !isSo(); Sleep(1)) {
        if (GetTickCount() - begin > Patience) Fail("Waited in vain for " + what);
    }
}

std::string RunningEditor::Describe() const {
    if (HasEnded()) return "the program has ended";
    HWND front = GetForegroundWindow();
    HWND focus = GetFocus();
    std::string text = "in front: " + DescribeWindow(front);
    if (front && GetProcess(front) != process.dwProcessId) text += " of another program";
    text += ", focus: " + DescribeWindow(focus);
    if (CountRows(focus) > 0) text += ", row " + std::to_string(GetSelection(focus));
    return text;
}

std::filesystem::path RunningEditor::TakePicture(const std::wstring& folder, const std::wstring& name) {
    const auto place = GetFolder().parent_path() / folder;
    std::filesystem::create_directories(place);
    const UI::Session session;
    const auto file = place / (name + L".png");
    return UI::SaveScreen(file) ? file : std::filesystem::path();
}

void RunningEditor::Fail(const std::string& what) const {
    const auto picture = TakePicture(L"waited-in-vain", std::to_wstring(process.dwProcessId));
    throw std::runtime_error(what + "; " + Describe() + "; see " + ToNarrow(picture.wstring()));
}

HWND RunningEditor::AwaitWindow(const std::wstring& className) {
    HWND front = nullptr;
    Await("a front window of class " + ToNarrow(className), [&] {
        if (HasEnded()) Fail("The program should show " + ToNarrow(className));
        front = GetForegroundWindow();
        return GetProcess(front) == process.dwProcessId && GetClass(front) == className && IsWindowVisible(front) &&
               IsChild(front, GetFocus());
    });
    AwaitAnswer();
    return front;
}

int RunningEditor::AwaitExit() {
    Await("the program's end", [this] { return HasEnded(); });
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}

double RunningEditor::GetMilliseconds() const {
    LARGE_INTEGER now{};
    LARGE_INTEGER second{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&second);
    return 1000.0 * static_cast<double>(now.QuadPart - started.QuadPart) / static_cast<double>(second.QuadPart);
}

void RunningEditor::AwaitPaint(HWND window) const {
    const auto isUnpainted = [](HWND child, LPARAM found) -> BOOL {
        if (!IsWindowVisible(child) || !GetUpdateRect(child, nullptr, FALSE)) return TRUE;
        *reinterpret_cast<bool*>(found) = true;
        return FALSE;
    };
    Await("all to be painted", [&] {
        bool found = false;
        if (isUnpainted(window, reinterpret_cast<LPARAM>(&found)))
            EnumChildWindows(window, isUnpainted, reinterpret_cast<LPARAM>(&found));
        return !found;
    });
    AwaitAnswer();
}

void RunningEditor::AwaitAnswer() const {
    // A message from another thread is answered only where the program waits for one.
    Await("an answer", [this] {
        DWORD_PTR result = 0;
        HWND window = GetFocus();
        return HasEnded() || (window && SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, Patience, &result));
    });
}

void RunningEditor::Send(INPUT down, INPUT up) const {
    HWND front = nullptr;
    Await("the program's window in front", [&] {
        front = GetForegroundWindow();
        return GetProcess(front) == process.dwProcessId;
    });
    AwaitAnswer();
    INPUT inputs[] = {down, up};
    if (SendInput(2, inputs, sizeof(INPUT)) != 2) Fail("The system takes no input");
    // A window is told to paint when no input waits for it any more.
    constexpr RECT corner{0, 0, 1, 1};
    RedrawWindow(front, &corner, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    Await("the program to take its input", [&] { return HasEnded() || !GetUpdateRect(front, nullptr, FALSE); });
    AwaitAnswer();
}

void RunningEditor::Press(WORD key) {
    INPUT down{};
    down.type = INPUT_KEYBOARD;
    down.ki.wVk = key;
    down.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    INPUT up = down;
    up.ki.dwFlags = KEYEVENTF_KEYUP;
    Send(down, up);
}

void RunningEditor::Click(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    INPUT down{};
    down.type = INPUT_MOUSE;
    down.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    INPUT up = down;
    up.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    Send(down, up);
}

void RunningEditor::TabTo(HWND control) {
    constexpr int most = 200;
    for (int i = 0; GetFocus() != control; ++i) {
        if (i == most) Fail("Tab does not come to " + DescribeWindow(control));
        Press(VK_TAB);
    }
}

void RunningEditor::Select(HWND list, int row) {
    TabTo(list);
    while (GetSelection(list) != row) {
        const int last = GetSelection(list);
        Press(last < row ? VK_DOWN : VK_UP);
        if (GetSelection(list) == last) Fail("The arrow keys do not come to row " + std::to_string(row));
    }
}

HWND RunningEditor::Find(HWND window, const std::wstring& className, const std::wstring& text, HWND after) const {
    bool isBehind = after == nullptr;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (isBehind && GetClass(child) == className && (text.empty() || GetText(child) == text)) return child;
        if (child == after) isBehind = true;
    }
    Fail("No " + ToNarrow(className) + " \"" + ToNarrow(text) + "\" in " + DescribeWindow(window));
}

std::wstring RunningEditor::GetText(HWND window) {
    std::wstring text(256, L'\0');
    text.resize(
        static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

int RunningEditor::CountRows(HWND list) {
    return static_cast<int>(SendMessageW(list, IsListBox(list) ? LB_GETCOUNT : CB_GETCOUNT, 0, 0));
}

int RunningEditor::GetSelection(HWND list) {
    return static_cast<int>(SendMessageW(list, IsListBox(list) ? LB_GETCURSEL : CB_GETCURSEL, 0, 0));
}

HWND RunningEditor::GetFocus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(process.dwThreadId, &info);
    return info.hwndFocus;
}

}  // namespace Testing
