#include "ui/window.h"

#include <algorithm>
#include <utility>

#include "ui/message.h"
#include "ui/native.h"

namespace UI {

namespace {

Window* running = nullptr;

}  // namespace

Window* Window::GetRunning() { return running; }

Window::Registration::Registration(const std::wstring& className) : className(className) {
    if (!Native::AddWindowClass(className)) throw L"RegisterClassExW failed.";
}

Window::Registration::~Registration() { Native::RemoveWindowClass(className); }

Window::Owned::Owned(const Window& window)
    : handle(Native::CreateTopWindow(window.className, window.title, window.style, window.extendedStyle,
                                     window.parent ? window.parent->GetHandle() : nullptr)) {
    if (!handle) throw L"CreateWindowExW failed.";
}

Window::Owned::~Owned() { Native::Destroy(handle); }

Window::Window(Window* parent, const std::wstring& className, const std::wstring& title, unsigned style)
    : parent(parent), className(className), title(title), style(style), registration(className), handle(*this) {
    // Where it has room to grow: over the edge it would come to another monitor, and to its scale.
    if (const auto area = parent ? Native::GetWorkArea(parent->handle) : std::nullopt)
        Native::Move(handle, area->Left, area->Top);
    dpi = Native::GetDpi(handle);
    Native::LoadIcons(handle, dpi, icon, smallIcon);
    AddStandardHandlers();
    Native::Attach(*this);
    ApplyTheme(*this, BuildStyleTable(dpi, parent));
    Native::SetObject(handle, this);
    StorePlace();
}

Window::~Window() = default;

void Window::AddStandardHandlers() {
    const auto toControl = [this](int message, Control* control, WParam wParam, LParam lParam) {
        MessageResult result = 0;
        if (control && control->Dispatch(message, wParam, lParam, result)) return result;
        return Native::CallDefault(handle, message, wParam, lParam);
    };
    AddResultHandler(Message::DrawItem, [toControl](WParam wParam, LParam lParam) {
        return toControl(Message::DrawItem, Native::GetDrawnControl(lParam), wParam, lParam);
    });
    for (int message : {Message::ColorEdit, Message::ColorListBox, Message::ColorButton, Message::ColorStatic}) {
        AddResultHandler(message, [toControl, message](WParam wParam, LParam lParam) {
            return toControl(message, Native::FindControl(reinterpret_cast<Handle>(lParam)), wParam, lParam);
        });
    }
    AddResultHandler(Message::Command, [this](WParam wParam, LParam lParam) { return HandleCommand(wParam, lParam); });
    AddResultHandler(Message::GetMinMaxInfo, [this](WParam, LParam lParam) {
        Native::SetMinimumTrackSize(lParam, GetMinimumSize());
        return MessageResult{0};
    });
    AddMessageHandler(Message::WindowPosChanged, [this](WParam, LParam) { StorePlace(); });
    AddMessageHandler(Message::DpiChanged, [this](WParam, LParam lParam) {
        dpi = Native::GetDpi(handle);
        // Where the system wants it, so that it is on the other monitor for good. It is laid out in the corner of that
        // one, where it has most room to grow: what came over the edge would change its scale again.
        if (const auto place = Native::GetProposedPlace(lParam)) Native::Place(handle, *place);
        const auto area = Native::GetWorkArea(handle);
        const Point wanted{x, y};
        if (area) SetPosition(area->Left, area->Top);
        Restyle();
        if (area) PlaceWithin(*area, wanted.X, wanted.Y);
    });
    // Each window hears of these for itself, the ones behind a modal window too.
    for (int message : {Message::SettingsChanged, Message::SystemColorsChanged, Message::ThemeChanged})
        AddMessageHandler(message, [this](WParam, LParam) { Restyle(); });
}

void Window::Restyle() {
    const StyleTable now = BuildStyleTable(dpi);
    if (LooksAlike(now, table)) return;
    ApplyTheme(*this, now);
    LayOutAnew();
}

MessageResult Window::HandleCommand(WParam wParam, LParam lParam) {
    constexpr WParam word = 0x10000;  // the low word is the command's ID, the high word a control's notification
    if (lParam) {
        Control* control = Native::FindControl(reinterpret_cast<Handle>(lParam));
        const auto code = static_cast<int>(wParam / word % word);
        const auto* list = dynamic_cast<Controls::AnyItemList*>(control);
        if (list && code == Controls::AnyItemList::SelectionChanged) Native::AnnounceSelection(*list);
        if (control && control->DispatchNotification(code)) return 0;
    } else if (auto handler = NotificationHandlers.Find(static_cast<int>(wParam % word))) {
        (*handler)();
        return 0;
    }
    return Native::CallDefault(handle, Message::Command, wParam, lParam);
}

void Window::StorePlace() {
    const Rect place = Native::GetWindowPlace(handle);
    const Size client = Native::GetClientSize(handle);
    x = place.Left;
    y = place.Top;
    width = place.Right - place.Left;
    height = place.Bottom - place.Top;
    clientWidth = client.Width;
    clientHeight = client.Height;
}

int Window::Run() {
    // Also when a handler throws through the loop, the parent must be usable again.
    struct Shown {
        explicit Shown(Window& window) : window(window), outer(std::exchange(running, &window)) {
            if (window.parent) {
                focus = Native::GetFocus();
                Native::SetEnabled(window.parent->handle, false);
            }
            Native::SetVisible(window.handle, true);
            window.FocusFirst();
        }
        ~Shown() {
            if (window.parent) {
                Native::SetEnabled(window.parent->handle, true);
                Native::SetFocus(focus);
            }
            Native::SetVisible(window.handle, false);
            running = outer;
        }
        Window& window;
        Window* outer;
        Handle focus = nullptr;
    };
    const Shown shown(*this);
    return Native::RunLoop(handle);
}

void Window::FocusFirst() {
    const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
        return control->IsTabStop() && control->IsEnabled() && control->IsVisible();
    });
    if (first != controls.end()) (*first)->TakeFocusByKeyboard();
}

bool Window::SetClientSize(int newWidth, int newHeight) {
    const auto frame = Native::GetFrameSize({newWidth, newHeight}, style, extendedStyle, dpi);
    return frame && Native::Resize(handle, frame->Width, frame->Height);
}

bool Window::SetPosition(int newX, int newY) { return Native::Move(handle, newX, newY); }

void Window::Center() {
    const auto workArea = Native::GetWorkArea(parent ? parent->handle : handle);
    if (!parent && !workArea) return;
    const Rect around =
        parent ? Rect{parent->x, parent->y, parent->x + parent->width, parent->y + parent->height} : *workArea;
    int left = around.Left + (around.Right - around.Left - width) / 2;
    int top = around.Top + (around.Bottom - around.Top - height) / 2;
    if (workArea) return PlaceWithin(*workArea, left, top);
    SetPosition(left, top);
}

void Window::PlaceWithin(const Rect& area, int left, int top) {
    SetPosition(std::max(area.Left, std::min(left, area.Right - width)),
                std::max(area.Top, std::min(top, area.Bottom - height)));
}

void Window::StayInWorkArea() {
    const auto area = Native::GetWorkArea(handle);
    if (!area || (y + height <= area->Bottom && x + width <= area->Right)) return;
    const int left = x + width > area->Right ? std::max(area->Left, area->Right - width) : x;
    const int top = y + height > area->Bottom ? std::max(area->Top, area->Bottom - height) : y;
    SetPosition(left, top);
}

std::optional<Size> Window::GetRoom() const {
    const auto area = Native::GetWorkArea(parent && !IsVisible() ? parent->handle : handle);
    const auto frame = Native::GetFrameSize({}, style, extendedStyle, dpi);
    if (!area || !frame) return std::nullopt;
    return Size{area->Right - area->Left - frame->Width, area->Bottom - area->Top - frame->Height};
}

void Window::BeginScrolling(const Rect& newView, int newHeight) {
    view = newView;
    scroll.Page = newView.Bottom - newView.Top;
    scroll.Height = newHeight;
    scroll.Step = 2 * table.Metrics.ControlHeight;
    scroll.Position = std::clamp(scroll.Position, 0, scroll.GetLast());
    const Rect bar{newView.Right, newView.Top, newView.Right + table.Metrics.ScrollBarWidth, newView.Bottom};
    Native::SetScrollBar(*this, bar, scroll);
}

void Window::EndScrolling() {
    if (!view) return;
    view.reset();
    scroll = {};
    Native::SetScrollBar(*this, std::nullopt, scroll);
}

void Window::ScrollTo(int position) {
    if (!view) return;
    const int before = scroll.Position;
    scroll.Position = std::clamp(position, 0, scroll.GetLast());
    if (scroll.Position == before) return;
    BeginScrolling(*view, scroll.Height);
    Scrolled(before - scroll.Position);
}

void Window::Reveal(const Control& control) {
    if (!view || !control.GetView()) return;
    // With a little of what stands around it.
    const int above = control.GetY() - table.Metrics.ControlHeight - view->Top;
    const int below = control.GetBottom() + table.Metrics.ControlHeight - view->Bottom;
    if (above < 0) {
        ScrollTo(scroll.Position + above);
    } else if (below > 0) {
        ScrollTo(scroll.Position + std::min(above, below));
    }
}

void Window::AddMessageHandler(int message, MessageHandler handler) {
    MessageHandlers.Set(message, std::move(handler));
}

void Window::AddResultHandler(int message, ResultHandler handler) { ResultHandlers.Set(message, std::move(handler)); }

void Window::AddCommandHandler(int id, NotificationHandler handler) {
    NotificationHandlers.Set(id, std::move(handler));
}

bool Window::Dispatch(int message, WParam wParam, LParam lParam, MessageResult& result) {
    return DispatchMessageTo(MessageHandlers, ResultHandlers, message, wParam, lParam, result);
}

void Window::SetMinimumSize(int newWidth, int newHeight) {
    minimumWidth = newWidth;
    minimumHeight = newHeight;
}

bool Window::IsVisible() const { return Native::IsVisible(handle); }
bool Window::IsEnabled() const { return Native::IsEnabled(handle); }
bool Window::HasFocus() const { return Native::GetFocus() == handle; }
void Window::SetFocus() { Native::SetFocus(handle); }
void Window::Redraw() { Native::Redraw(handle); }

}  // namespace UI
