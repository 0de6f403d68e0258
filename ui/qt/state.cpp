// Place, state and focus of windows.
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

#include "ui/qt/platform.h"

namespace UI {

namespace Widgets {

namespace {

// What stands around a client area is the window system's secret until it is there, and on some even then: a title bar
// of the desktop's style is taken for it.
QMargins GetFrame() { return {0, QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0}; }

}  // namespace

QWidget* GetInside(QWidget& widget) {
    auto* area = dynamic_cast<QAbstractScrollArea*>(&widget);
    return area ? area->viewport() : &widget;
}

}  // namespace Widgets

namespace Native {

using namespace Widgets;

namespace {

QRect ToQt(const Rect& place) { return {place.Left, place.Top, place.Right - place.Left, place.Bottom - place.Top}; }

// A widget has none of its own until it is shown; then only the window system knows, which may keep places to itself.
const QScreen* GetScreen(const NativeWindow& window) {
    if (!window.Widget) return QGuiApplication::primaryScreen();
    const QScreen* there = window.IsShown ? nullptr : QGuiApplication::screenAt(ToQt(window.Place).center());
    return there ? there : window.Widget->screen();
}

bool ChangePlace(Handle handle, const Rect& place) {
    handle->Place = place;
    if (handle->IsTop()) {
        handle->Widget->move(place.Left, place.Top);
        handle->Widget->setFixedSize(ToQt(place).size().shrunkBy(GetFrame()).expandedTo(QSize(0, 0)));
        Send(handle, Message::WindowPosChanged, 0, 0);
    } else if (handle->Group) {
        PlaceGroup(*handle->Group);
    } else if (handle->Widget) {
        handle->Widget->setGeometry(ToQt(place));
    }
    return true;
}

}  // namespace

bool Move(Handle handle, int x, int y) {
    if (!Find(handle)) return false;
    const Rect& place = handle->Place;
    return ChangePlace(handle, {x, y, x + place.Right - place.Left, y + place.Bottom - place.Top});
}

bool Resize(Handle handle, int width, int height) {
    if (!Find(handle)) return false;
    const Rect& place = handle->Place;
    return Place(handle, {place.Left, place.Top, place.Left + width, place.Top + height});
}

bool Place(Handle handle, const Rect& place) {
    if (!Find(handle)) return false;
    Size least;
    if (handle->IsTop()) Send(handle, Message::GetMinMaxInfo, 0, reinterpret_cast<LParam>(&least));
    return ChangePlace(handle, {place.Left, place.Top, std::max(place.Right, place.Left + std::max(least.Width, 0)),
                                std::max(place.Bottom, place.Top + std::max(least.Height, 0))});
}

bool ResizeComboBox(const Controls::ComboBox& box, int width, int height) {
    return Resize(box.GetHandle(), width, height);
}

// The order of the controls is kept by their window; Tab follows that.
bool PlaceAfter(Handle handle, Handle other) {
    return Find(handle) && Find(other) && handle->Parent == other->Parent && handle != other;
}

Rect GetWindowPlace(Handle handle) { return handle->Place; }

Size GetClientSize(Handle handle) {
    if (!handle->IsTop()) return {handle->Place.Right - handle->Place.Left, handle->Place.Bottom - handle->Place.Top};
    const QSize size = ToQt(handle->Place).size().shrunkBy(GetFrame()).expandedTo(QSize(0, 0));
    return {size.width(), size.height()};
}

std::optional<Size> GetFrameSize(Size client, unsigned, unsigned, int) {
    const QSize size = QSize(client.Width, client.Height).grownBy(GetFrame());
    return Size{size.width(), size.height()};
}

std::optional<Rect> GetWorkArea(Handle handle) {
    const QScreen* screen = GetScreen(*handle);
    if (!screen) return std::nullopt;
    const QRect area = screen->availableGeometry();
    return Rect{area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
}

// The desktop scales by itself: it proposes nothing.
std::optional<Rect> GetProposedPlace(LParam) { return std::nullopt; }

// Of all else the widgets tell by themselves.
void Announce(const Control& control, Change change) {
    const NativeWindow* window = Find(control.GetHandle());
    if (!window || !window->Widget) return;
    if (change == Change::Hint) {
        const QString hint = Widgets::ToQt(std::wstring_view(control.GetHint()));
        window->Widget->setToolTip(hint);
        window->Widget->setAccessibleDescription(hint);
    }
    const std::wstring& name = control.GetGivenName();
    if (change == Change::Name && !name.empty())
        window->Widget->setAccessibleName(Widgets::ToQt(std::wstring_view(name)));
}

void Redraw(Handle handle) {
    const NativeWindow* window = Find(handle);
    if (!window || !window->Widget || !IsVisible(handle)) return;
    if (auto* button = dynamic_cast<QPushButton*>(window->Widget.data()))
        button->setDefault(static_cast<Controls::Button*>(window->Control)->IsDefault());
    window->Widget->repaint();
    QWidget* inside = GetInside(*window->Widget);
    if (inside != window->Widget) inside->repaint();
}

void RedrawFrame(Handle handle) {
    if (Find(handle) && handle->Widget) handle->Widget->update();
}

void SetDrawing(Handle handle, bool on) {
    if (Find(handle) && handle->Widget) handle->Widget->setUpdatesEnabled(on);
}

bool IsEnabled(Handle handle) { return handle->IsEnabled; }

void SetEnabled(Handle handle, bool enabled) {
    if (!Find(handle) || handle->IsEnabled == enabled) return;
    handle->IsEnabled = enabled;
    // A window behind a modal one keeps its looks: it is that one that keeps the input away.
    if (!handle->IsTop() && handle->Widget) handle->Widget->setEnabled(enabled);
}

// Of the window in front, whether or not the user is just now in another program.
Handle GetFocus() {
    NativeWindow* front = GetFront();
    if (!front || !front->IsEnabled) return nullptr;
    return FindByWidget(front->Widget->focusWidget());
}

void SetFocus(Handle handle) {
    if (Find(handle) && handle->Widget && handle->IsEnabled) handle->Widget->setFocus(Qt::OtherFocusReason);
}

bool ShowsFocus(Handle handle) {
    const QWidget* top = handle->GetTop().Widget;
    return top && top->testAttribute(Qt::WA_KeyboardFocusChange);
}

void SetTabStop(Handle handle, bool stop) { handle->IsTabStop = stop; }
bool IsTabStop(Handle handle) { return handle->IsTabStop; }
void TrackMouseLeave(Handle) {}

void SetChecked(Handle handle, bool checked) {
    if (Find(handle) && handle->Widget) static_cast<QAbstractButton*>(handle->Widget.data())->setChecked(checked);
}

}  // namespace Native

}  // namespace UI
