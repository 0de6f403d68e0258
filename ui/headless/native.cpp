// The operations of the seam on the desktop without a screen.
#include "ui/native.h"

#include <algorithm>
#include <utility>

#include "ui/headless/desktop.h"
#include "ui/message.h"

namespace UI {

struct NativeFont {
    LiveResource live{Resource::Font};
    int CharacterWidth = 0;
};

struct NativeIcon {
    LiveResource live{Resource::Icon};
};

}  // namespace UI

namespace UI::Native {

using Headless::Desktop;
using Headless::GetDesktop;

namespace {

constexpr unsigned TabStopStyle = 0x10000;

NativeWindow* Add(Handle parent) {
    auto made = std::make_unique<NativeWindow>();
    NativeWindow* window = made.get();
    window->Parent = parent;
    GetDesktop().Windows.emplace(window, std::move(made));
    return window;
}

// The one that the window's middle stands on; null for the primary one.
const Headless::Monitor* FindMonitor(const NativeWindow& window) {
    const Rect& place = window.Place;
    const int x = (place.Left + place.Right) / 2;
    const int y = (place.Top + place.Bottom) / 2;
    for (const Headless::Monitor& monitor : GetDesktop().System.OtherMonitors) {
        const Rect& all = monitor.Place;
        if (x >= all.Left && x < all.Right && y >= all.Top && y < all.Bottom) return &monitor;
    }
    return nullptr;
}

void ChangePlace(NativeWindow& window, const Rect& place) {
    const int dpi = GetDpi(&window);
    window.Place = place;
    if (!window.IsTop()) return;
    Send(&window, Message::WindowPosChanged, 0, 0);
    const int newDpi = GetDpi(&window);
    if (newDpi == dpi) return;
    // Like the system: around the same middle, as large there as it was here.
    const int width = (place.Right - place.Left) * newDpi / dpi;
    const int height = (place.Bottom - place.Top) * newDpi / dpi;
    Rect proposed = place;
    proposed.Left += (place.Right - place.Left - width) / 2;
    proposed.Top += (place.Bottom - place.Top - height) / 2;
    proposed.Right = proposed.Left + width;
    proposed.Bottom = proposed.Top + height;
    Send(&window, Message::DpiChanged, 0, reinterpret_cast<LParam>(&proposed));
}

bool IsInside(Handle handle, const NativeWindow& top) { return handle && (handle == &top || handle->Parent == &top); }

}  // namespace

bool AddWindowClass(const std::wstring& className) { return GetDesktop().Classes.insert(className).second; }

void RemoveWindowClass(const std::wstring& className) { GetDesktop().Classes.erase(className); }

Handle CreateTopWindow(const std::wstring&, const std::wstring& title, unsigned, unsigned, Handle parent) {
    if (parent && !GetDesktop().Find(parent)) return nullptr;
    NativeWindow* window = Add(nullptr);
    window->Text = title;
    if (parent) window->Place = {parent->Place.Left, parent->Place.Top, parent->Place.Left, parent->Place.Top};
    return window;
}

Child CreateChild(ControlKind kind, const std::wstring& text, unsigned style, Handle parent) {
    if (!GetDesktop().Find(parent)) return {};
    NativeWindow* window = Add(parent);
    window->Kind = kind;
    window->Text = text;
    window->IsVisible = true;
    window->IsTabStop = HasFlag(style, TabStopStyle);
    parent->Children.push_back(window);
    return {window, reinterpret_cast<Procedure>(Headless::GetBehaviour(kind))};
}

void SetObject(Handle handle, Window* window) { handle->Window = window; }
void SetObject(Handle handle, Control* control) { handle->Control = control; }

Control* FindControl(Handle handle) {
    NativeWindow* window = GetDesktop().Find(handle);
    return window ? window->Control : nullptr;
}

void Destroy(Handle handle) {
    handle->Window = nullptr;
    handle->Control = nullptr;
    if (handle->IsAlive) {
        Send(handle, Message::Destroy, 0, 0);
        Headless::Break(*handle);
    }
    for (NativeWindow* child : handle->Children) child->Parent = nullptr;
    if (handle->Parent) std::erase(handle->Parent->Children, handle);
    GetDesktop().Remove(handle);
}

MessageResult Send(Handle handle, int message, WParam wParam, LParam lParam) {
    NativeWindow* window = GetDesktop().Find(handle);
    if (!window) return 0;
    MessageResult result = 0;
    if (window->Control) {
        if (window->Control->Dispatch(message, wParam, lParam, result)) return result;
        return window->Control->CallPrevious(message, wParam, lParam);
    }
    if (window->Window && window->Window->Dispatch(message, wParam, lParam, result)) return result;
    return CallDefault(handle, message, wParam, lParam);
}

MessageResult CallDefault(Handle handle, int message, WParam, LParam lParam) {
    if (message != Message::SetText) return 0;
    handle->Text = reinterpret_cast<const wchar_t*>(lParam);
    return 1;
}

MessageResult CallPrevious(Procedure previous, Handle handle, int message, WParam wParam, LParam lParam) {
    if (!GetDesktop().Find(handle)) return 0;
    return reinterpret_cast<Headless::Behaviour>(previous)(*handle, message, wParam, lParam);
}

Control* GetDrawnControl(LParam lParam) { return FindControl(reinterpret_cast<Handle>(lParam)); }

void SetMinimumTrackSize(LParam lParam, Size size) { *reinterpret_cast<Size*>(lParam) = size; }

bool Move(Handle handle, int x, int y) {
    NativeWindow* window = GetDesktop().Find(handle);
    if (!window) return false;
    const Rect& place = window->Place;
    ChangePlace(*window, {x, y, x + place.Right - place.Left, y + place.Bottom - place.Top});
    return true;
}

bool Resize(Handle handle, int width, int height) {
    const NativeWindow* window = GetDesktop().Find(handle);
    if (!window) return false;
    const Rect& place = window->Place;
    return Place(handle, {place.Left, place.Top, place.Left + width, place.Top + height});
}

bool Place(Handle handle, const Rect& place) {
    NativeWindow* window = GetDesktop().Find(handle);
    if (!window) return false;
    Size least;
    if (window->IsTop()) Send(handle, Message::GetMinMaxInfo, 0, reinterpret_cast<LParam>(&least));
    ChangePlace(*window, {place.Left, place.Top, std::max(place.Right, place.Left + std::max(least.Width, 0)),
                          std::max(place.Bottom, place.Top + std::max(least.Height, 0))});
    return true;
}

bool ResizeComboBox(const Controls::ComboBox& box, int width, int height) {
    return Resize(box.GetHandle(), width, height);
}

bool PlaceAfter(Handle handle, Handle other) {
    const Desktop& desktop = GetDesktop();
    if (!desktop.Find(handle) || !desktop.Find(other) || handle->Parent != other->Parent || handle == other)
        return false;
    auto& order = handle->Parent->Children;
    std::erase(order, handle);
    order.insert(std::find(order.begin(), order.end(), other) + 1, handle);
    return true;
}

Rect GetWindowPlace(Handle handle) { return handle->Place; }

// A caption of 24 and an edge of 3 at 96 dots per inch.
std::optional<Size> GetFrameSize(Size client, unsigned, unsigned, int dpi) {
    const int edge = 3 * dpi / 96;
    return Size{client.Width + 2 * edge, client.Height + 2 * edge + 24 * dpi / 96};
}

Size GetClientSize(Handle handle) {
    const Rect& place = handle->Place;
    const Size frame = handle->IsTop() ? *GetFrameSize({}, 0, 0, GetDpi(handle)) : Size{};
    return {std::max(0, place.Right - place.Left - frame.Width), std::max(0, place.Bottom - place.Top - frame.Height)};
}

std::optional<Rect> GetWorkArea(Handle handle) {
    const Headless::Monitor* monitor = FindMonitor(handle->GetTop());
    return monitor ? monitor->WorkArea : GetDesktop().System.WorkArea;
}

std::optional<Rect> GetProposedPlace(LParam lParam) {
    if (!lParam) return std::nullopt;
    return *reinterpret_cast<const Rect*>(lParam);
}

void Clip(Handle handle, const std::optional<Rect>& view) {
    if (NativeWindow* window = GetDesktop().Find(handle)) window->View = view;
}

void SetScrollBar(Window& window, const std::optional<Rect>& place, const ScrollRange& range) {
    window.GetHandle()->ScrollBar = place;
    window.GetHandle()->Scroll = range;
}

bool SetText(Handle handle, const std::wstring& text) {
    return Send(handle, Message::SetText, 0, reinterpret_cast<LParam>(text.c_str())) == 1;
}

std::wstring GetText(Handle handle) { return handle->Text; }

void Redraw(Handle handle) {
    if (NativeWindow* window = GetDesktop().Find(handle)) Headless::DrawAll(*window);
}

void RedrawFrame(Handle handle) { Redraw(handle); }

void SetDrawing(Handle handle, bool on) { handle->IsDrawing = on; }

bool IsEnabled(Handle handle) { return handle->IsEnabled; }

void SetEnabled(Handle handle, bool enabled) {
    if (handle->IsEnabled == enabled) return;
    handle->IsEnabled = enabled;
    if (!enabled && GetDesktop().Focus == handle) SetFocus(nullptr);
    Headless::Draw(*handle);
}

bool IsVisible(Handle handle) {
    return handle->IsAlive && handle->IsVisible && (handle->IsTop() || IsVisible(handle->Parent));
}

void SetVisible(Handle handle, bool visible) {
    NativeWindow* window = GetDesktop().Find(handle);
    if (!window || window->IsVisible == visible) return;
    window->IsVisible = visible;
    const Handle focus = GetDesktop().Focus;
    if (visible) {
        Headless::DrawAll(*window);
        // Showing a window makes it the active one.
        if (window->IsTop() && !IsInside(focus, *window)) SetFocus(handle);
    } else if (window->IsTop() ? IsInside(focus, *window) : focus == handle) {
        SetFocus(window->IsTop() ? nullptr : window->Parent);
    }
}

Handle GetFocus() { return GetDesktop().Focus; }

void SetFocus(Handle handle) {
    Desktop& desktop = GetDesktop();
    if (handle == desktop.Focus) return;
    if (handle && (!desktop.Find(handle) || !handle->IsEnabled || !handle->GetTop().IsEnabled)) return;
    const Handle last = std::exchange(desktop.Focus, handle);
    Send(last, Message::KillFocus, 0, 0);
    // A handler may have moved it on.
    if (desktop.Focus == handle) Send(handle, Message::SetFocus, 0, 0);
}

bool ShowsFocus(Handle handle) { return handle->GetTop().ShowsFocus; }
void SetTabStop(Handle handle, bool stop) { handle->IsTabStop = stop; }
bool IsTabStop(Handle handle) { return handle->IsTabStop; }
void TrackMouseLeave(Handle handle) { handle->TracksPointer = true; }
bool IsPointerDown() { return GetDesktop().PointerDown; }

void Announce(const Control& control, Change change) {
    if (const auto& reader = GetDesktop().Reader) reader(control, change);
}

int RunLoop(Handle handle) {
    Desktop& desktop = GetDesktop();
    struct Level {
        explicit Level(Handle handle) { GetDesktop().Loops.push_back(handle); }
        ~Level() { GetDesktop().Loops.pop_back(); }
    };
    const Level level(handle);
    while (!desktop.Quit) {
        if (desktop.Script.empty()) {
            throw Headless::ScriptError(L"The script ended inside the modal loop of \"" + handle->Text + L"\".");
        }
        const auto step = std::move(desktop.Script.front());
        desktop.Script.pop_front();
        step();
    }
    return *std::exchange(desktop.Quit, std::nullopt);
}

void SetChecked(Handle handle, bool checked) { handle->IsChecked = checked; }
void SetLimit(Handle handle, int characters) { handle->Limit = characters; }

void Select(Handle handle, int begin, int end) {
    const auto length = static_cast<int>(handle->Text.size());
    handle->Anchor = std::clamp(begin, 0, length);
    handle->Caret = end < 0 ? length : std::clamp(end, 0, length);
}

void GetSelection(Handle handle, int& begin, int& end) {
    begin = std::min(handle->Anchor, handle->Caret);
    end = std::max(handle->Anchor, handle->Caret);
}

void ResetTextMargins(Handle) {}

int GetSelectedItem(const Controls::AnyItemList& list) { return list.GetHandle()->Selected; }

void SetSelectedItem(const Controls::AnyItemList& list, int index) {
    list.GetHandle()->Selected = index;
    Headless::Draw(*list.GetHandle());
}

bool InsertItem(const Controls::AnyItemList& list, int index) {
    NativeWindow* window = GetDesktop().Find(list.GetHandle());
    if (!window) return false;
    ++window->Count;
    if (window->Selected >= index) ++window->Selected;
    Headless::Draw(*window);
    return true;
}

bool RemoveItem(const Controls::AnyItemList& list, int index) {
    NativeWindow* window = GetDesktop().Find(list.GetHandle());
    if (!window) return false;
    --window->Count;
    if (window->Selected == index) window->Selected = -1;
    if (window->Selected > index) --window->Selected;
    window->Top = std::clamp(window->Top, 0, std::max(0, window->Count - 1));
    Headless::Draw(*window);
    return true;
}

void ClearItems(const Controls::AnyItemList& list) {
    NativeWindow& window = *list.GetHandle();
    window.Count = window.Top = 0;
    window.Selected = -1;
    Headless::Draw(window);
}

int GetTopItem(Handle listBox) { return listBox->Top; }

void SetTopItem(Handle listBox, int index) { listBox->Top = std::clamp(index, 0, std::max(0, listBox->Count - 1)); }

bool IsDroppedDown(Handle comboBox) { return comboBox->IsDropped; }

void SetDroppedDown(Handle comboBox, bool down) {
    if (comboBox->IsDropped == down) return;
    comboBox->IsDropped = down;
    Headless::Draw(*comboBox);
    const int code = down ? DroppedDown : Controls::ComboBox::Closed;
    Send(comboBox->Parent, Message::Command, static_cast<WParam>(code) * 0x10000, reinterpret_cast<LParam>(comboBox));
}

// Every character is 7/16 of the line's height wide, or half of it in bold and fixed-width faces.
std::shared_ptr<NativeFont> MakeFont(const FontSpec& spec, FontMetrics& metrics) {
    auto font = std::make_shared<NativeFont>();
    const bool wide = spec.Weight > 400 || spec.Face == L"Consolas";
    const int share = GetDesktop().System.CharacterWidth;
    font->CharacterWidth = spec.Height * (wide ? share + 1 : share) / 16;
    const int ascent = spec.Height * 13 / 16;
    metrics = {spec.Height, ascent, spec.Height - ascent, font->CharacterWidth};
    return font;
}

int MeasureText(NativeFont& font, std::wstring_view text) {
    return font.CharacterWidth * static_cast<int>(text.size());
}

void ApplyFont(Handle handle, const Font& font) { handle->Font = font; }

void LoadIcons(Handle, int, std::shared_ptr<NativeIcon>& icon, std::shared_ptr<NativeIcon>& smallIcon) {
    icon = std::make_shared<NativeIcon>();
    smallIcon = std::make_shared<NativeIcon>();
}

int GetDpi(Handle handle) {
    const Headless::Monitor* monitor = FindMonitor(handle->GetTop());
    return monitor ? monitor->Dpi : GetDesktop().System.Dpi;
}

int GetScrollBarWidth(int dpi) { return 17 * dpi / 96; }
void FitToDesktop(StyleTable&) {}

Color GetSystemColor(SystemColor color) {
    const auto& colors = GetDesktop().System.Colors;
    if (auto found = colors.find(color); found != colors.end()) return found->second;
    switch (color) {
        case SystemColor::Window:
        case SystemColor::ButtonFace:
        case SystemColor::HighlightText:
            return 0x000000;
        case SystemColor::WindowText:
        case SystemColor::ButtonText:
            return 0xFFFFFF;
        case SystemColor::Highlight:
            return 0xFFEB1A;
        case SystemColor::GrayText:
            return 0x3FF23F;
        case SystemColor::HotLight:
            return 0x00FFFF;
    }
    return 0;
}

bool IsWindows10OrGreater() { return GetDesktop().System.Windows10OrGreater; }
SystemVersion GetSystemVersion() { return GetDesktop().System.Version; }
bool IsHighContrast() { return GetDesktop().System.HighContrast; }
bool UserPrefersDark() { return GetDesktop().System.PrefersDark; }
void SetDarkProcess(bool) {}
void SetDarkFrame(Handle handle, bool dark) { handle->HasDarkParts = dark; }
void SetDarkParts(Handle handle, bool dark) { handle->HasDarkParts = dark; }

}  // namespace UI::Native

namespace UI {

void EndRun(int result) { Headless::GetDesktop().Quit = result; }

Session::Session() = default;
Session::~Session() = default;

void ShowMessage(const Window* owner, const std::wstring& text, const std::wstring& caption, MessageKind kind) {
    Headless::GetDesktop().Messages.push_back({text, caption, kind, owner});
}

namespace {

std::optional<ChosenFile> ChooseFile(const FileDialog& dialog) {
    Headless::Desktop& desktop = Headless::GetDesktop();
    desktop.FileDialogs.push_back(dialog);
    if (desktop.FileAnswers.empty()) {
        throw Headless::ScriptError(L"The script has no answer to the file dialog \"" + dialog.Title + L"\".");
    }
    const Headless::FileAnswer answer = std::move(desktop.FileAnswers.front());
    desktop.FileAnswers.pop_front();
    if (answer.Failure) throw answer.Failure;
    return answer.File;
}

}  // namespace

std::optional<ChosenFile> ChooseFileToOpen(const Window*, const FileDialog& dialog) { return ChooseFile(dialog); }
std::optional<ChosenFile> ChooseFileToSave(const Window*, const FileDialog& dialog) { return ChooseFile(dialog); }

}  // namespace UI
