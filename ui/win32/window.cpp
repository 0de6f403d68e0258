// Windows and their procedures, and the modal loop.
#include <exception>
#include <utility>

#include "ui/message.h"
#include "ui/win32/platform.h"

namespace UI {

namespace Win32 {

namespace {

std::exception_ptr kept;

LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The object behind a window; `procedure` tells whose it is, for the value means nothing in windows of others.
template <class Object>
Object* GetObject(HWND window, WNDPROC procedure) {
    if (!IsWindow(window) || GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(procedure)) {
        return nullptr;
    }
    return reinterpret_cast<Object*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

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
    auto* object = reinterpret_cast<Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!object) return DefWindowProcW(window, message, wParam, lParam);
    MessageResult result = 0;
    try {
        if (object->Dispatch(static_cast<int>(message), wParam, lParam, result)) return result;
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

void Process(HWND window, MSG& message) {
    if (!IsDialogMessageW(window, &message)) {
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
    return ToHandle(CreateWindowExW(extendedStyle, className.c_str(), title.c_str(), style | WS_CLIPCHILDREN, 0, 0, 0,
                                    0, ToWindow(parent), nullptr, GetModuleHandleW(nullptr), nullptr));
}

Child CreateChild(ControlKind kind, const std::wstring& text, unsigned style, Handle parent) {
    HWND window = CreateWindowExW(0, Win32::GetClassName(kind), text.c_str(), style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                                  ToWindow(parent), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window) return {};
    const LONG_PTR previous = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ControlProcedure));
    return {ToHandle(window), reinterpret_cast<Procedure>(previous)};
}

void SetObject(Handle handle, Window* window) {
    SetWindowLongPtrW(ToWindow(handle), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
}

void SetObject(Handle handle, Control* control) {
    SetWindowLongPtrW(ToWindow(handle), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(control));
}

Control* FindControl(Handle handle) { return GetObject<Control>(ToWindow(handle), ControlProcedure); }

void Destroy(Handle handle) {
    HWND window = ToWindow(handle);
    if (!IsWindow(window)) return;
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    // The standard class must hear of the end, or what it holds for the window would stay.
    SetWindowLongPtrW(window, GWLP_WNDPROC, static_cast<LONG_PTR>(GetClassLongPtrW(window, GCLP_WNDPROC)));
    DestroyWindow(window);
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
    MSG message;
    BOOL got = 0;
    while ((got = GetMessageW(&message, nullptr, 0, 0)) > 0) Process(ToWindow(handle), message);
    RethrowKept();
    return got == 0 ? static_cast<int>(message.wParam) : -1;
}

}  // namespace Native

void EndRun(int result) { PostQuitMessage(result); }

}  // namespace UI
