// What the files of this backend share: the object behind a handle, and the words of both sides.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPointer>
#include <QWidget>

#include "ui/message.h"
#include "ui/native.h"

namespace UI {

// Filters the events of its widget: what happens becomes a message to the object, and goes on to the widget where no
// handler ended it. Of the four windows of a group box the first has the widget, a real group box; the others only keep
// their place.
struct NativeWindow final : QObject {
    NativeWindow(NativeWindow* parent, ControlKind kind, unsigned style) : Parent(parent), Kind(kind), Style(style) {}
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;
    ~NativeWindow() override;

    bool IsTop() const { return !Parent; }
    NativeWindow& GetTop() { return Parent ? *Parent : *this; }
    // Takes the widget over: its events, its place, its state and its looks.
    void Adopt(QWidget* widget);
    bool eventFilter(QObject* watched, QEvent* event) override;

    NativeWindow* Parent;  // null for top-level windows
    ControlKind Kind;
    unsigned Style;
    UI::Window* Window = nullptr;
    UI::Control* Control = nullptr;
    QPointer<QWidget> Widget;
    NativeWindow* Group = nullptr;  // of an edge of a group box: the first of the four
    bool IsAlive = true;            // false once the system has destroyed it while its owner has not
    bool IsEnabled = true;
    bool IsShown = false;
    bool IsTabStop = false;
    bool IsDropped = false;  // combo box
    bool PassesOn = false;   // the widget gets the event that is being handled
    int Limit = 0;           // edit: most characters, 0 for any number
    int Top = 0;             // list box: the first item in view
    Rect Place;              // of a top-level window on the screen, with its frame
    std::wstring Text;       // as it was set; an edit's is its widget's
    Color Mark = 0;          // the colour of a frame around it, if `IsMarked`
    bool IsMarked = false;
};

struct NativeFont {
    explicit NativeFont(const QFont& font) : Object(font), Metrics(font) {}

    LiveResource live{Resource::Font};
    QFont Object;
    QFontMetricsF Metrics;
};

namespace Widgets {

// The living object behind a handle or a widget, or null.
NativeWindow* Find(Handle handle);
NativeWindow* FindByWidget(const QWidget* widget);
// The window in front that takes input, or null.
NativeWindow* GetFront();

// As when the system destroys a window: its children go with it, while what their owners hold stays.
void Break(NativeWindow& window);

// Whether the innermost loop was told to end and has not yet.
bool IsEnding();

// Qt knows no exceptions: what a handler throws is kept, and the modal loop throws it on.
void KeepException() noexcept;
template <class Action>
void Guard(const Action& action) noexcept {
    try {
        action();
    } catch (...) {
        KeepException();
    }
}

// Tells the window what the user did with the control.
void Notify(NativeWindow& window, int code);
// Frames and colours that tell an invalid control.
void ShowValidity(NativeWindow& window);
// A label, or all that a group box draws, takes the widget's place behind the controls.
void PlaceGroup(NativeWindow& window);

// Sets the widget's text; what the message `SetText` answers.
MessageResult ReplaceText(NativeWindow& window, const std::wstring& text);

// Gives each control of the window without a text of its own the name that stands before it: a label, a check box or
// the caption of a group.
void NameControls(const UI::Window& window);

// Scroll areas have a part inside that is drawn and clicked.
QWidget* GetInside(QWidget& widget);

QString ToQt(std::wstring_view text);
// With its ampersands doubled, for widgets that would take one for the mark of a key.
QString ToCaption(std::wstring_view text);
QColor ToQt(Color color);
Color FromQt(const QColor& color);

// The theme of the desktop, or of what `SetAppearance` put in its place.
bool IsDark(const QPalette& palette);

}  // namespace Widgets

}  // namespace UI
