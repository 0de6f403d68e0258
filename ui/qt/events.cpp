// What happens to a widget, as messages to its object.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <array>
#include <utility>

#include "ui/dialog_keys.h"
#include "ui/qt/platform.h"

namespace UI {

using namespace Widgets;

namespace {

// The number that a key travels under, or 0.
int ToKey(const QKeyEvent& event) {
    static constexpr std::array<std::pair<int, Key>, 17> keys{{{Qt::Key_Backspace, Key::Back},
                                                               {Qt::Key_Tab, Key::Tab},
                                                               {Qt::Key_Backtab, Key::Tab},
                                                               {Qt::Key_Return, Key::Return},
                                                               {Qt::Key_Enter, Key::Return},
                                                               {Qt::Key_Escape, Key::Escape},
                                                               {Qt::Key_Space, Key::Space},
                                                               {Qt::Key_PageUp, Key::PageUp},
                                                               {Qt::Key_PageDown, Key::PageDown},
                                                               {Qt::Key_End, Key::End},
                                                               {Qt::Key_Home, Key::Home},
                                                               {Qt::Key_Left, Key::Left},
                                                               {Qt::Key_Up, Key::Up},
                                                               {Qt::Key_Right, Key::Right},
                                                               {Qt::Key_Down, Key::Down},
                                                               {Qt::Key_Delete, Key::Delete},
                                                               {Qt::Key_F4, Key::F4}}};
    for (const auto& [qt, key] : keys) {
        if (event.key() == qt) return static_cast<int>(key);
    }
    const bool isLetterOrDigit = (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) ||
                                 (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9);
    return isLetterOrDigit ? event.key() : 0;
}

UI::Window* GetWindow(const NativeWindow& window) {
    return window.Control ? &window.Control->GetWindow() : window.Window;
}

// True when a result handler ended the message without a call of what stood there before.
bool Ends(NativeWindow& window, int message, WParam wParam, LParam lParam = 0) {
    const bool before = std::exchange(window.PassesOn, false);
    MessageResult result = 0;
    bool ended = false;
    Guard([&] {
        if (window.Control) {
            ended = window.Control->Dispatch(message, wParam, lParam, result);
        } else if (window.Window) {
            ended = window.Window->Dispatch(message, wParam, lParam, result);
        }
    });
    return ended && !std::exchange(window.PassesOn, before);
}

bool PressDialogKey(NativeWindow& target, const QKeyEvent& event, int key) {
    UI::Window* window = GetWindow(target);
    if (!window || key == 0) return false;
    const bool withShift = event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
    const bool isTab = key == static_cast<int>(Key::Tab);
    if (isTab) target.GetTop().Widget->setAttribute(Qt::WA_KeyboardFocusChange);
    bool taken = false;
    Guard([&] { taken = DialogKeys::Press(*window, &target, static_cast<Key>(key), withShift); });
    return taken || isTab;
}

// A key that is held down gives its command once.
bool RepeatsCommand(const NativeWindow& window, const QKeyEvent& event, int key) {
    const bool isCommand = key == static_cast<int>(Key::Return) || key == static_cast<int>(Key::Escape);
    const auto* box = dynamic_cast<const Controls::TextBox*>(window.Control);
    return event.isAutoRepeat() && isCommand && !(box && box->IsMultiLine());
}

bool PressKey(NativeWindow& window, const QKeyEvent& event) {
    const int key = ToKey(event);
    if (RepeatsCommand(window, event, key)) return true;
    if (PressDialogKey(window, event, key)) return true;
    constexpr LParam wasDown = 0x40000000;  // see IsHeld
    if (key != 0 && Ends(window, Message::KeyDown, static_cast<WParam>(key), event.isAutoRepeat() ? wasDown : 0))
        return true;
    for (const char32_t c : event.text().toUcs4()) {
        if (Ends(window, Message::Char, static_cast<WParam>(c))) return true;
    }
    return false;
}

bool IsInHighContrast(const NativeWindow& window) {
    return window.Parent && window.Parent->Window && window.Parent->Window->GetStyle().Theme == Theme::HighContrast;
}

// Styles shade their frames from the colours of the window: where that is black, or white, nothing shows.
bool NeedsFrame(const NativeWindow& window) {
    return window.IsMarked ||
           (IsInHighContrast(window) && window.Control && !dynamic_cast<Controls::Label*>(window.Control));
}

QColor GetFrameColor(const QWidget& widget, const NativeWindow& window) {
    if (window.IsMarked) return ToQt(window.Mark);
    const QPalette& palette = widget.palette();
    return palette.color(window.Control->HasFocus() ? QPalette::Highlight : QPalette::WindowText);
}

void DrawFrame(QWidget& widget, const NativeWindow& window) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(GetFrameColor(widget, window), 1));
    constexpr qreal half = 0.5;
    const auto getBox = [&](QStyle::SubElement element) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        return QRectF(widget.style()->subElementRect(element, &option, &widget)).adjusted(half, half, -half, -half);
    };
    if (dynamic_cast<const Controls::CheckBox*>(window.Control))
        return painter.drawRect(getBox(QStyle::SE_CheckBoxIndicator));
    if (dynamic_cast<const Controls::RadioButton*>(window.Control))
        return painter.drawEllipse(getBox(QStyle::SE_RadioButtonIndicator));
    QRectF frame = widget.rect();
    // A group box has its frame below its caption.
    if (window.Control && window.Kind == ControlKind::Static) {
        const Rect& place = window.Place;
        const int line = window.Control->GetY() - place.Top;
        frame.setTop(window.Text.empty() ? 0 : line);
    }
    constexpr qreal radius = 3;
    painter.drawRoundedRect(frame.adjusted(half, half, -half, -half), radius, radius);
}

// Tells the object that it is drawn; the widget draws, and what marks it comes on top.
bool Paint(NativeWindow& window, QObject& watched, QEvent& event) {
    if (&watched != window.Widget || window.IsTop()) return false;
    const bool isOwnerDrawn = window.Kind == ControlKind::Button || window.Kind == ControlKind::Static;
    Guard([&] {
        const LParam self = reinterpret_cast<LParam>(static_cast<Handle>(&window));
        if (isOwnerDrawn) {
            Native::Send(window.Parent, Message::DrawItem, 0, self);
        } else {
            Native::Send(&window, Message::Paint, 0, 0);
        }
    });
    if (!window.Widget || !NeedsFrame(window)) return false;
    watched.event(&event);
    DrawFrame(*window.Widget, window);
    return true;
}

bool isPress = false;  // while the focus comes by the mouse

// A menu or a list that drops down takes the keys, not the focus.
bool MovesFocus(const QEvent& event) {
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

void MovePointerTo(NativeWindow* window) {
    static QPointer<NativeWindow> last;
    if (last == window) return;
    if (last) Ends(*last, Message::MouseLeave, 0);
    last = window;
    if (window) Ends(*window, Message::MouseMove, 0);
}

// The user may have moved the window.
void StorePlace(NativeWindow& window) {
    if (!window.IsTop() || !window.Widget || !window.Widget->isVisible()) return;
    const QPoint at = window.Widget->pos();
    Rect& place = window.Place;
    place = {at.x(), at.y(), at.x() + place.Right - place.Left, at.y() + place.Bottom - place.Top};
    Guard([&] { Native::Send(&window, Message::WindowPosChanged, 0, 0); });
}

}  // namespace

bool NativeWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool isInside = watched != Widget;  // of the part of a scroll area that is clicked
    switch (event->type()) {
        case QEvent::Paint:
            return Paint(*this, *watched, *event);
        case QEvent::KeyPress:
            return PressKey(*this, *static_cast<const QKeyEvent*>(event));
        case QEvent::FocusIn:
            // Qt moves the focus before it tells of the press.
            isPress = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
            if (MovesFocus(*event)) Ends(*this, Message::SetFocus, 0);
            isPress = false;
            return false;
        case QEvent::FocusOut:
            if (!MovesFocus(*event)) return false;
            Ends(*this, Message::KillFocus, 0);
            if (Kind == ControlKind::Edit) Notify(*this, Controls::TextBox::FocusLost);
            return false;
        case QEvent::Enter:
            if (!isInside && Kind != ControlKind::Static) MovePointerTo(this);
            return false;
        case QEvent::Leave:
            // One that is hidden under the pointer stays as it was until the pointer moves.
            if (!isInside && Native::IsVisible(this)) MovePointerTo(nullptr);
            return false;
        case QEvent::MouseButtonPress:
            return Ends(*this, Message::LeftButtonDown, 0);
        case QEvent::MouseButtonRelease:
            return Ends(*this, Message::LeftButtonUp, 0);
        case QEvent::MouseButtonDblClick:
            return Ends(*this, Message::LeftButtonDoubleClick, 0);
        case QEvent::Wheel:
            // A wheel that turns the page shall change no choice that it passes.
            if (Kind != ControlKind::ComboBox || Native::GetFocus() == this) return false;
            event->ignore();
            return true;
        case QEvent::Close:
            event->ignore();
            Guard([this] { Native::Send(this, Message::Close, 0, 0); });
            return true;
        case QEvent::ApplicationPaletteChange:
            if (IsTop()) Guard([this] { Native::Send(this, Message::SystemColorsChanged, 0, 0); });
            return false;
        case QEvent::Move:
            if (!isInside) StorePlace(*this);
            return false;
        default:
            return false;
    }
}

namespace Native {

bool IsPointerDown() { return isPress || QGuiApplication::mouseButtons().testFlag(Qt::LeftButton); }

MessageResult CallPrevious(Procedure, Handle handle, int message, WParam wParam, LParam lParam) {
    NativeWindow* window = Find(handle);
    if (!window) return 0;
    switch (message) {
        case Message::GetDialogCode:
            return window->Control ? DialogKeys::GetStandardCode(*window->Control, static_cast<Key>(wParam)) : 0;
        case Message::SetText:
            return ReplaceText(*window, reinterpret_cast<const wchar_t*>(lParam));
        default:
            window->PassesOn = true;
            return 0;
    }
}

}  // namespace Native

}  // namespace UI
