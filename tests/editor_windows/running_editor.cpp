#include "tests/editor_windows/running_editor.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace Testing {

namespace {

constexpr DWORD Patience = 20000;  // milliseconds

std::wstring GetClass(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

std::string ToNarrow(const std::wstring& text) { return {text.begin(), text.end()}; }

std::filesystem::path GetProgram() {
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return std::filesystem::path(self).parent_path() / L"Vantelle.exe";
}

bool IsListBox(HWND list) { return GetClass(list) == L"ListBox"; }

}  // namespace

RunningEditor::RunningEditor() {
    QueryPerformanceCounter(&started);
    STARTUPINFOW info{};
    info.cb = sizeof(info);
    std::wstring command = L"\"" + GetProgram().wstring() + L"\"";
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info, &process))
        << GetLastError();
}

RunningEditor::~RunningEditor() {
    if (WaitForSingleObject(process.hProcess, 0) != WAIT_OBJECT_0) TerminateProcess(process.hProcess, 99);
    WaitForSingleObject(process.hProcess, Patience);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

bool RunningEditor::Await(const std::string& what, const std::function<bool()>& isSo) {
    for (const DWORD begin = GetTickCount(); GetTickCount() - begin < Patience; Sleep(5)) {
        if (isSo()) return true;
    }
    ADD_FAILURE() << "Waited in vain: " << what;
    return false;
}

HWND RunningEditor::AwaitWindow(const std::wstring& className) {
    HWND front = nullptr;
    const bool came = Await("a window with the focus", [&] {
        front = GetForegroundWindow();
        DWORD owner = 0;
        GetWindowThreadProcessId(front, &owner);
        return owner == process.dwProcessId && GetClass(front) == className && IsWindowVisible(front) &&
               IsChild(front, GetFocus());
    });
    EXPECT_TRUE(came) << "in front: " << ToNarrow(GetClass(front)) << ", focus: " << ToNarrow(GetClass(GetFocus()));
    return came ? front : nullptr;
}

int RunningEditor::AwaitExit() {
    if (WaitForSingleObject(process.hProcess, Patience) != WAIT_OBJECT_0) {
        ADD_FAILURE() << "It goes on.";
        return -1;
    }
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

void RunningEditor::Press(WORD key) const {
    INPUT inputs[2]{};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    EXPECT_EQ(SendInput(2, inputs, sizeof(INPUT)), 2u);
}

void RunningEditor::Click(HWND control) const {
    RECT place{};
    GetWindowRect(control, &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    INPUT inputs[2]{};
    for (INPUT& input : inputs) input.type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    EXPECT_EQ(SendInput(2, inputs, sizeof(INPUT)), 2u);
}

void RunningEditor::TabTo(HWND control) {
    constexpr int most = 100;
    for (int i = 0; i < most && GetFocus() != control; ++i) {
        HWND last = GetFocus();
        Press(VK_TAB);
        if (!Await("the focus to move", [&] { return GetFocus() != last; })) return;
    }
    EXPECT_EQ(GetFocus(), control) << "Tab does not come to " << ToNarrow(GetText(control));
}

void RunningEditor::Select(HWND list, int row) {
    TabTo(list);
    while (GetSelection(list) != row) {
        const int last = GetSelection(list);
        Press(last < row ? VK_DOWN : VK_UP);
        if (!Await("the selection to move", [&] { return GetSelection(list) != last; })) return;
    }
}

HWND RunningEditor::Find(HWND window, const std::wstring& className, const std::wstring& text, HWND after) {
    bool isBehind = after == nullptr;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (isBehind && GetClass(child) == className && (text.empty() || GetText(child) == text)) return child;
        if (child == after) isBehind = true;
    }
    ADD_FAILURE() << "No control of this text";
    return nullptr;
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
