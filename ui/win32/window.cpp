// Windows and their procedures, and the modal loop.
#include <exception>
#include <unordered_map>
#include <utility>

#include "ui/message.h"
#include "ui/win32/accessible.h"

namespace UI {

namespace Win32 {

namespace {

std::exception_ptr kept;

// The controls by their windows. The procedure of a window does not tell whose it is: anybody in the process may put
// another on top, and user data mean nothing in windows of others.
std::unordered_map<HWND, Control*> controls;

// The one that is being destroyed: its object is forgotten, and its class has to hear of the end.
HWND ending = nullptr;

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (auto* object = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA))) {
        MessageResult result = 0;
        try {
            if (object->Dispatch(static_cast<int>(message), wParam, lParam, result)) return result;
        } catch (...) {
            KeepException();
            return 0;
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCDESTROY) controls.erase(window);
    auto* object = reinterpret_cast<Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!object) {
        if (window != ending) return DefWindowProcW(window, message, wParam, lParam);
        const auto ofClass = reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
        return CallWindowProcW(ofClass, window, message, wParam, lParam);
    }
    MessageResult result = 0;
    try {
        if (object->Dispatch(static_cast<int>(message), wParam, lParam, result)) return result;
        if (message == WM_GETOBJECT) {
            if (const LRESULT answer = AnswerReader(*object, wParam, lParam)) return answer;
        }
        return object->CallPrevious(static_cast<int>(message), wParam, lParam);
    } catch (...) {
        KeepException();
        return 0;
    }
}

const wchar_t* GetClassName(ControlKind kind) {
    switch (kind) {
        case ControlKind::Button:
            return L"BUTTON";
        case ControlKind::ComboBox:
            return L"COMBOBOX";
        case ControlKind::Edit:
            return L"EDIT";
        case ControlKind::ListBox:
            return L"LISTBOX";
        case ControlKind::Static:
            break;
    }
    return L"STATIC";
}

}  // namespace

void KeepException() noexcept { kept = std::current_exception(); }

void RethrowKept() {
    if (kept) std::rethrow_exception(std::exchange(kept, nullptr));
}

namespace {

struct LoopLevel {
    LoopLevel() { ++depth; }
    LoopLevel(const LoopLevel&) = delete;
    LoopLevel& operator=(const LoopLevel&) = delete;
    ~LoopLevel() {
        if (--depth == 0) DismissReaders();
    }
    inline static int depth = 0;
};

// Enter or Esc that is still down from before, perhaps from the window before: no command for this one. A box of
// several lines breaks the line again.
bool IsHeldCommand(const MSG& message) {
    if (message.message != WM_KEYDOWN || !IsHeld(message.lParam)) return false;
    if (message.wParam != VK_RETURN && message.wParam != VK_ESCAPE) return false;
    const auto wanted = static_cast<unsigned>(
        SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message)));
    return !HasFlag(wanted, DLGC_WANTALLKEYS);
}

}  // namespace

void Process(HWND window, MSG& message) {
    FollowPointer(window, message);
    if (!IsHeldCommand(message) && !IsDialogMessageW(window, &message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    RethrowKept();
}

}  // namespace Win32

namespace Native {

using namespace Win32;

bool AddWindowClass(const std::wstring& className) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = WindowProcedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = className.c_str();
    return RegisterClassExW(&description) != 0;
}

void RemoveWindowClass(const std::wstring& className) {
    UnregisterClassW(className.c_str(), GetModuleHandleW(nullptr));
}

Handle CreateTopWindow(const std::wstring& className, const std::wstring& title, unsigned style, unsigned extendedStyle,
                       Handle parent) {
    // Clipped, so that painting the window never touches the pixels of a control.
    RECT place{};
    if (parent) GetWindowRect(ToWindow(parent), &place);
    return ToHandle(CreateWindowExW(extendedStyle, className.c_str(), title.c_str(), style | WS_CLIPCHILDREN,
                                    place.left, place.top, 0, 0, ToWindow(parent), nullptr, GetModuleHandleW(nullptr),
                                    nullptr));
}

Child CreateChild(ControlKind kind, const std::wstring& text, unsigned style, Handle parent) {
    // The system knows the texts of lists, too, so that it can tell them to a screen reader.
    if (kind == ControlKind::ListBox) style |= LBS_HASSTRINGS;
    if (kind == ControlKind::ComboBox) style |= CBS_HASSTRINGS;
    // Clipped by their siblings, although none covers another: only then do the classes of controls draw within the
    // region of their own window and not within all of its parent's.
    const DWORD styles = style | WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
    HWND window = CreateWindowExW(0, Win32::GetClassName(kind), text.c_str(), styles, 0, 0, 0, 0, ToWindow(parent),
                                  nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window) return {};
    const LONG_PTR previous = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ControlProcedure));
    return {ToHandle(window), reinterpret_cast<Procedure>(previous)};
}

void SetObject(Handle handle, Window* window) {
    SetWindowLongPtrW(ToWindow(handle), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
}

void SetObject(Handle handle, Control* control) {
    SetWindowLongPtrW(ToWindow(handle), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(control));
    controls[ToWindow(handle)] = control;
}

Control* FindControl(Handle handle) {
    const auto found = controls.find(ToWindow(handle));
    return found != controls.end() ? found->second : nullptr;
}

void Destroy(Handle handle) {
    HWND window = ToWindow(handle);
    controls.erase(window);
    if (!IsWindow(window)) return;
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    // The standard class must hear of the end, or what it holds for the window would stay. A procedure that somebody
    // else put on top stays there, and hears of it first.
    HWND outer = std::exchange(ending, window);
    DestroyWindow(window);
    ending = outer;
}

MessageResult Send(Handle handle, int message, WParam wParam, LParam lParam) {
    return Tell(handle, static_cast<UINT>(message), wParam, lParam);
}

MessageResult CallDefault(Handle handle, int message, WParam wParam, LParam lParam) {
    return DefWindowProcW(ToWindow(handle), static_cast<UINT>(message), wParam, lParam);
}

MessageResult CallPrevious(Procedure previous, Handle handle, int message, WParam wParam, LParam lParam) {
    return CallWindowProcW(reinterpret_cast<WNDPROC>(previous), ToWindow(handle), static_cast<UINT>(message), wParam,
                           lParam);
}

Control* GetDrawnControl(LParam lParam) {
    return FindControl(ToHandle(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem));
}

void SetMinimumTrackSize(LParam lParam, Size size) {
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {size.Width, size.Height};
}

int RunLoop(Handle handle) {
    const LoopLevel level;
    MSG message;
    BOOL got = 0;
    while ((got = GetMessageW(&message, nullptr, 0, 0)) > 0) Process(ToWindow(handle), message);
    RethrowKept();
    return got == 0 ? static_cast<int>(message.wParam) : -1;
}

}  // namespace Native

void EndRun(int result) { PostQuitMessage(result); }

}  // namespace UI
