#include "ui/headless/desktop.h"

#include <algorithm>

#include "ui/message.h"

namespace UI::Headless {

namespace {

std::string ToNarrow(std::wstring_view text) {
    std::string narrow;
    for (wchar_t c : text) narrow += c > 0 && c < 0x7F ? static_cast<char>(c) : '?';
    return narrow;
}

}  // namespace

ScriptError::ScriptError(std::wstring_view text) : std::runtime_error(ToNarrow(text)) {}

void SystemSettings::SetTheme(Theme theme) {
    HighContrast = theme == Theme::HighContrast;
    PrefersDark = theme == Theme::Dark;
}

NativeWindow* Desktop::Find(Handle handle) const {
    // Most is asked of a window many times on end.
    if (!handle || (handle != lastFound && !Windows.contains(handle))) return nullptr;
    lastFound = handle;
    return handle->IsAlive ? handle : nullptr;
}

void Desktop::Remove(Handle handle) {
    lastFound = nullptr;
    Windows.erase(handle);
}

Desktop& GetDesktop() {
    static Desktop desktop;
    return desktop;
}

void Draw(NativeWindow& window) {
    if (!GetDesktop().Draws || !Native::IsVisible(&window) || !window.IsDrawing) return;
    const bool isOwnerDrawn = window.Kind == ControlKind::Button || window.Kind == ControlKind::Static;
    if (!window.IsTop() && isOwnerDrawn) {
        Native::Send(window.Parent, Message::DrawItem, 0, reinterpret_cast<LParam>(&window));
    } else {
        Native::Send(&window, Message::Paint, 0, 0);
    }
}

void DrawAll(NativeWindow& window) {
    Draw(window);
    const auto children = window.Children;
    for (NativeWindow* child : children) DrawAll(*child);
}

bool CanTakeInput(NativeWindow& window) {
    return Native::IsVisible(&window) && window.IsEnabled && window.GetTop().IsEnabled;
}

void Break(NativeWindow& window) {
    window.IsAlive = false;
    for (NativeWindow* child : window.Children) Break(*child);
    Desktop& desktop = GetDesktop();
    if (desktop.UnderPointer == &window) desktop.UnderPointer = nullptr;
    if (desktop.Focus != &window) return;
    desktop.Focus = nullptr;
    Native::SetFocus(window.Parent);
}

}  // namespace UI::Headless
