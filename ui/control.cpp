#include "ui/control.h"

#include <algorithm>

#include "ui/message.h"
#include "ui/native.h"

namespace UI {

namespace {

int presses = 0;  // of the mouse that are being handled

}  // namespace

Control::Control(Window& window, ControlKind kind, const std::wstring& text, unsigned style)
    : window(window), text(text), style(style), kind(kind) {
    const Native::Child child = Native::CreateChild(kind, text, style, window.GetHandle());
    if (!child.Window) throw L"CreateWindowExW failed.";
    handle = child.Window;
    previous = child.Previous;
    window.controls.push_back(this);
    Native::SetObject(handle, this);
}

Control::~Control() {
    std::erase(window.controls, this);
    Native::Destroy(handle);
}

Handle Control::GetHandle() const { return handle; }
Window& Control::GetWindow() const { return window; }
int Control::GetX() const { return x; }
int Control::GetY() const { return y; }
int Control::GetWidth() const { return width; }
int Control::GetHeight() const { return height; }
int Control::GetRight() const { return x + width; }
int Control::GetBottom() const { return y + height; }

bool Control::SetPosition(int newX, int newY) {
    if (!Native::Move(handle, newX, newY)) return false;
    StorePosition(newX, newY);
    ClipToView();
    return true;
}

bool Control::SetSize(int newWidth, int newHeight) {
    if (!Native::Resize(handle, newWidth, newHeight)) return false;
    StoreSize(newWidth, newHeight);
    ClipToView();
    return true;
}

bool Control::SetRect(int newX, int newY, int newWidth, int newHeight) {
    const bool moved = SetPosition(newX, newY);
    return SetSize(newWidth, newHeight) && moved;
}

void Control::SetView(const std::optional<Rect>& newView) {
    if (!view && !newView) return;
    view = newView;
    Native::Clip(handle, view);
}

void Control::ClipToView() {
    if (view) Native::Clip(handle, view);
}

bool Control::PlaceAfter(Control& other) {
    if (!Native::PlaceAfter(handle, other.handle)) return false;
    auto& order = window.controls;
    std::erase(order, this);
    order.insert(std::find(order.begin(), order.end(), &other) + 1, this);
    return true;
}

const std::wstring& Control::GetText() const { return text; }

bool Control::SetText(const std::wstring& newText) {
    if (newText == text) return true;
    if (!Native::SetText(handle, newText)) return false;
    text = newText;
    Native::Announce(*this, kind == ControlKind::Edit ? Native::Change::Value : Native::Change::Name);
    Redraw();
    return true;
}

void Control::Redraw() { Native::Redraw(handle); }

bool Control::IsEnabled() const { return Native::IsEnabled(handle); }

void Control::SetEnabled(bool enabled) {
    if (!enabled && HasFocus()) window.SetFocus();
    const bool changes = IsEnabled() != enabled;
    Native::SetEnabled(handle, enabled);
    if (changes) Native::Announce(*this, Native::Change::State);
}

bool Control::HasFocus() const { return Native::GetFocus() == handle; }
bool Control::ShowsFocus() const { return Native::ShowsFocus(handle); }
void Control::SetFocus() { Native::SetFocus(handle); }
bool Control::IsVisible() const { return Native::IsVisible(handle); }
void Control::SetVisible(bool visible) { Native::SetVisible(handle, visible); }
void Control::BeginUpdate() { Native::SetDrawing(handle, false); }

void Control::EndUpdate() {
    Native::SetDrawing(handle, true);
    Redraw();
}

void Control::AddMessageHandler(int message, MessageHandler handler) {
    MessageHandlers.Set(message, std::move(handler));
}

void Control::AddResultHandler(int message, ResultHandler handler) { ResultHandlers.Set(message, std::move(handler)); }

void Control::AddNotificationHandler(int code, NotificationHandler handler) {
    NotificationHandlers.Set(code, std::move(handler));
}

bool Control::Dispatch(int message, WParam wParam, LParam lParam, MessageResult& result) {
    // What takes the keys is seen. It doesn't slip away from under a pointer that is about to click it.
    if (view && (message == Message::SetFocus || message == Message::KeyDown) && presses == 0 &&
        !Native::IsPointerDown())
        window.Reveal(*this);
    return DispatchMessageTo(MessageHandlers, ResultHandlers, message, wParam, lParam, result);
}

bool Control::DispatchNotification(int code) {
    auto handler = NotificationHandlers.Find(code);
    if (handler) (*handler)();
    return handler != nullptr;
}

MessageResult Control::CallPrevious(int message, WParam wParam, LParam lParam) {
    struct Press {
        explicit Press(bool isPress) : count(isPress ? 1 : 0) { presses += count; }
        ~Press() { presses -= count; }
        int count;
    };
    const Press press(message == Message::LeftButtonDown);
    return Native::CallPrevious(previous, handle, message, wParam, lParam);
}

void Control::TakeFocusByKeyboard() { SetFocus(); }

Size Control::Measure(std::wstring_view sample) const { return MeasureText(font, sample); }

void Control::ApplyStyle(const StyleTable& table) { ApplyLook(table.NormalFont); }

void Control::SetTabStop(bool stop) { Native::SetTabStop(handle, stop); }
bool Control::IsTabStop() const { return Native::IsTabStop(handle); }

void Control::StorePosition(int newX, int newY) {
    x = newX;
    y = newY;
}

void Control::StoreSize(int newWidth, int newHeight) {
    width = newWidth;
    height = newHeight;
}

void Control::SetHint(const std::wstring& newHint) {
    if (newHint == hint) return;
    hint = newHint;
    Native::Announce(*this, Native::Change::Hint);
}

void Control::SetName(const std::wstring& newName) {
    if (newName == name) return;
    name = newName;
    Native::Announce(*this, Native::Change::Name);
}

std::wstring Control::GetName() const {
    if (!name.empty()) return name;
    if (kind == ControlKind::Button || kind == ControlKind::Static) return text;
    std::wstring label;
    for (const Control* control : window.controls) {
        if (control == this) break;
        if (control->kind == ControlKind::Static && !control->text.empty()) label = control->text;
    }
    return label;
}

void Control::ApplyLook(const Font& newFont) {
    if (IsWindows10OrGreater()) Native::SetDarkParts(handle, IsDarkMode(window.GetStyle()));
    ChangeFont(newFont);
}

void Control::ChangeFont(const Font& newFont) {
    font = newFont;
    Native::ApplyFont(handle, font);
    Redraw();
}

}  // namespace UI
