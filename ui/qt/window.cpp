// Windows, their messages, and the modal loop.
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <exception>
#include <set>
#include <unordered_map>
#include <utility>

#include "ui/dialog_keys.h"
#include "ui/qt/platform.h"

namespace UI {

namespace {

struct Desktop {
    std::set<std::wstring> Classes;
    std::set<Handle> Living;
    std::unordered_map<const QWidget*, NativeWindow*> ByWidget;
    std::vector<Handle> Shown;  // top-level windows, the one in front last
    std::vector<QEventLoop*> Loops;
    std::optional<int> Quit;  // posted, and not yet taken by a loop
    std::exception_ptr Kept;
};

Desktop& GetDesktop() {
    static Desktop desktop;
    return desktop;
}

constexpr int LookAgain = 1;  // what a loop is left with to see why

void LeaveLoop() {
    if (!GetDesktop().Loops.empty()) GetDesktop().Loops.back()->exit(LookAgain);
}

}  // namespace

namespace Widgets {

NativeWindow* Find(Handle handle) { return GetDesktop().Living.contains(handle) && handle->IsAlive ? handle : nullptr; }

NativeWindow* FindByWidget(const QWidget* widget) {
    const auto found = GetDesktop().ByWidget.find(widget);
    return found == GetDesktop().ByWidget.end() ? nullptr : Find(found->second);
}

NativeWindow* GetFront() {
    const auto& shown = GetDesktop().Shown;
    return shown.empty() ? nullptr : shown.back();
}

void Break(NativeWindow& window) {
    window.IsAlive = false;
    std::erase(GetDesktop().Shown, &window);
    for (Handle child : GetDesktop().Living) {
        if (child->Parent == &window) Break(*child);
    }
    GetDesktop().ByWidget.erase(window.Widget);
    delete window.Widget;
}

bool IsEnding() { return GetDesktop().Quit.has_value(); }

void KeepException() noexcept {
    GetDesktop().Kept = std::current_exception();
    LeaveLoop();
}

void Notify(NativeWindow& window, int code) {
    if (!window.Parent) return;
    const LParam self = reinterpret_cast<LParam>(static_cast<Handle>(&window));
    Guard([&] { Native::Send(window.Parent, Message::Command, static_cast<WParam>(code) * 0x10000, self); });
}

}  // namespace Widgets

using namespace Widgets;

NativeWindow::~NativeWindow() {
    Desktop& desktop = GetDesktop();
    std::erase(desktop.Shown, this);
    desktop.Living.erase(this);
    desktop.ByWidget.erase(Widget);
    delete Widget;
}

void NativeWindow::Adopt(QWidget* widget) {
    if (Widget) GetDesktop().ByWidget.erase(Widget);
    delete Widget;
    Widget = widget;
    GetDesktop().ByWidget.insert_or_assign(widget, this);
    widget->installEventFilter(this);
    if (GetInside(*widget) != widget) GetInside(*widget)->installEventFilter(this);
    if (IsTop()) return;
    widget->setGeometry(Place.Left, Place.Top, Place.Right - Place.Left, Place.Bottom - Place.Top);
    widget->setEnabled(IsEnabled);
    widget->setVisible(IsShown);
}

namespace Native {

namespace {

NativeWindow* Add(Handle parent, ControlKind kind, unsigned style) {
    auto* window = new NativeWindow(parent, kind, style);
    GetDesktop().Living.insert(window);
    return window;
}

}  // namespace

bool AddWindowClass(const std::wstring& className) { return GetDesktop().Classes.insert(className).second; }
void RemoveWindowClass(const std::wstring& className) { GetDesktop().Classes.erase(className); }

Handle CreateTopWindow(const std::wstring&, const std::wstring& title, unsigned style, unsigned, Handle parent) {
    if (parent && !Find(parent)) return nullptr;
    NativeWindow* window = Add(nullptr, ControlKind::Static, style);
    const Qt::WindowFlags kind = parent ? Qt::Dialog : Qt::Window | Qt::WindowMinimizeButtonHint;
    auto* widget =
        new QDialog(parent ? parent->Widget.data() : nullptr, kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    if (parent) widget->setWindowModality(Qt::WindowModal);
    window->Adopt(widget);
    if (parent) {
        window->Place = {parent->Place.Left, parent->Place.Top, parent->Place.Left, parent->Place.Top};
        widget->move(parent->Place.Left, parent->Place.Top);
    }
    window->Text = title;
    widget->setWindowTitle(ToQt(title));
    return window;
}

Child CreateChild(ControlKind kind, const std::wstring& text, unsigned style, Handle parent) {
    constexpr unsigned tabStop = 0x10000;
    if (!Find(parent)) return {};
    NativeWindow* window = Add(parent, kind, style);
    window->Text = text;
    window->IsShown = true;
    window->IsTabStop = HasFlag(style, tabStop);
    // The widget comes when it is known which of the controls of its kind this is.
    return {window, nullptr};
}

void SetObject(Handle handle, Window* window) { handle->Window = window; }
void SetObject(Handle handle, Control* control) { handle->Control = control; }

Control* FindControl(Handle handle) {
    const NativeWindow* window = Find(handle);
    return window ? window->Control : nullptr;
}

void Destroy(Handle handle) {
    handle->Window = nullptr;
    handle->Control = nullptr;
    for (Handle child : GetDesktop().Living) {
        if (child->Parent != handle) continue;
        Break(*child);
        child->Parent = nullptr;
    }
    delete handle;
}

MessageResult Send(Handle handle, int message, WParam wParam, LParam lParam) {
    NativeWindow* window = Find(handle);
    if (!window) return 0;
    MessageResult result = 0;
    if (Control* control = window->Control) {
        if (control->Dispatch(message, wParam, lParam, result)) return result;
        return control->CallPrevious(message, wParam, lParam);
    }
    if (window->Window && window->Window->Dispatch(message, wParam, lParam, result)) return result;
    return CallDefault(handle, message, wParam, lParam);
}

MessageResult CallDefault(Handle handle, int message, WParam, LParam lParam) {
    NativeWindow* window = Find(handle);
    if (!window || message != Message::SetText) return 0;
    window->Text = reinterpret_cast<const wchar_t*>(lParam);
    if (window->IsTop()) window->Widget->setWindowTitle(ToQt(window->Text));
    return 1;
}

Control* GetDrawnControl(LParam lParam) { return FindControl(reinterpret_cast<Handle>(lParam)); }
void SetMinimumTrackSize(LParam lParam, Size size) { *reinterpret_cast<Size*>(lParam) = size; }

void Attach(Window&) {}

bool IsVisible(Handle handle) {
    return Find(handle) && handle->IsShown && (handle->IsTop() || IsVisible(handle->Parent));
}

void SetVisible(Handle handle, bool visible) {
    NativeWindow* window = Find(handle);
    if (!window || window->IsShown == visible) return;
    window->IsShown = visible;
    auto& shown = GetDesktop().Shown;
    if (window->IsTop()) {
        std::erase(shown, handle);
        if (visible) {
            shown.push_back(handle);
            SetFocus(handle);
            if (window->Window) NameControls(*window->Window);
        }
    } else if (!visible && GetFocus() == handle) {
        SetFocus(window->Parent);
    }
    if (!window->Widget) return;
    window->Widget->setVisible(visible);
    // What was behind is in front again, where the window system would leave nothing active.
    if (window->IsTop() && !visible && !shown.empty()) shown.back()->Widget->activateWindow();
}

int RunLoop(Handle) {
    Desktop& desktop = GetDesktop();
    QEventLoop loop;
    struct Level {
        explicit Level(QEventLoop& loop) { GetDesktop().Loops.push_back(&loop); }
        ~Level() { GetDesktop().Loops.pop_back(); }
    };
    const Level level(loop);
    constexpr int failed = -1;
    // It may have been ended before it began, and an end may have been taken by a loop on top of it.
    while (!desktop.Quit && !desktop.Kept && loop.exec() == LookAgain) {
    }
    const int result = std::exchange(desktop.Quit, std::nullopt).value_or(failed);
    if (desktop.Kept) std::rethrow_exception(std::exchange(desktop.Kept, nullptr));
    return result;
}

}  // namespace Native

void EndRun(int result) {
    GetDesktop().Quit = result;
    LeaveLoop();
}

}  // namespace UI
