// The conformance suite's user on Qt's windows: keys and clicks come as from the window system, to the window in front.
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "tests/ui/qt/session_environment.h"
#include "ui/qt/platform.h"

namespace Conformance {

using UI::Widgets::Find;

namespace {

// Two screens, of different scale, where none was asked for.
class TwoScreens : public SessionEnvironment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && file.open()) {
            const auto screen = [](const char* name, int x, int width, int height, int ratio) {
                return QJsonObject{{"name", name},         {"x", x},           {"y", 0},
                                   {"width", width},       {"height", height}, {"logicalDpi", 96},
                                   {"logicalBaseDpi", 96}, {"dpr", ratio}};
            };
            const QJsonArray screens{screen("first", 0, 1920, 1080, 1), screen("second", 1920, 1366, 768, 2)};
            file.write(QJsonDocument(QJsonObject{{"screens", screens}}).toJson());
            file.close();
            qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
        }
        SessionEnvironment::SetUp();
    }

private:
    QTemporaryFile file;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new TwoScreens);

void ProcessAll() { QApplication::processEvents(); }

// The window system tells that a window is the active one, but not at once; the one without a screen forgets to tell of
// a window that is shown again.
void AwaitActive(QWidget& widget) {
    ProcessAll();
    if (widget.isVisible() && QApplication::activeWindow() != &widget) QApplication::setActiveWindow(&widget);
    ProcessAll();
}

// Does the steps inside the loop, one after the other.
class Runner : public QObject {
public:
    Runner(QWidget& widget, const Steps& steps) : widget(widget), steps(steps) { Post(); }

private:
    void Post() {
        QTimer::singleShot(0, this, [this] { Do(); });
    }

    void Do() {
        AwaitActive(widget);
        if (next == steps.size()) {
            ADD_FAILURE() << "The steps are over and the loop is not.";
            return UI::EndRun(-1);
        }
        steps[next++]();
        ProcessAll();
        Post();
    }

    QWidget& widget;
    const Steps& steps;
    std::size_t next = 0;
};

QWidget* GetWidget(const UI::Control& control) { return control.GetHandle()->Widget; }

// The user's input has a target only where the window system would give it one.
QWindow* GetTarget(const UI::Control& control) {
    const QWidget* widget = GetWidget(control);
    const bool takesInput = widget && widget->isVisible() && control.IsEnabled() && control.GetWindow().IsEnabled();
    return takesInput ? widget->window()->windowHandle() : nullptr;
}

// In the coordinates of its window.
QPoint GetCentre(const UI::Control& control) {
    const QWidget* widget = GetWidget(control);
    return widget->mapTo(widget->window(), widget->rect().center());
}

QPoint GetRow(const UI::Controls::ListBox& list, int row) {
    auto* view = static_cast<QAbstractItemView*>(GetWidget(list));
    const int height = list.GetStyle().ItemHeight;
    const QPoint at(5, (row - list.GetTopIndex()) * height + height / 2);
    return view->viewport()->mapTo(view->window(), at);
}

void ClickAt(const UI::Control& control, QPoint at) {
    QWindow* window = GetTarget(control);
    if (!window) return;
    QTest::mouseMove(window, at);
    // Far enough from the last click to be none of a double click.
    QTest::mouseClick(window, Qt::LeftButton, {}, at);
    ProcessAll();
}

void DoubleClickAt(const UI::Control& control, QPoint at) {
    QWindow* window = GetTarget(control);
    if (!window) return;
    QTest::mouseMove(window, at);
    QTest::mouseDClick(window, Qt::LeftButton, {}, at);
    ProcessAll();
}

// A list that drops down takes the keys before its window does.
void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget* target = popup ? popup : QApplication::activeWindow();
    ASSERT_TRUE(target);
    QTest::keyClick(target->windowHandle(), key, modifiers);
    ProcessAll();
}

Qt::Key ToQt(UI::Key key) {
    switch (key) {
        case UI::Key::Back:
            return Qt::Key_Backspace;
        case UI::Key::Tab:
            return Qt::Key_Tab;
        case UI::Key::Return:
            return Qt::Key_Return;
        case UI::Key::Escape:
            return Qt::Key_Escape;
        case UI::Key::Space:
            return Qt::Key_Space;
        case UI::Key::PageUp:
            return Qt::Key_PageUp;
        case UI::Key::PageDown:
            return Qt::Key_PageDown;
        case UI::Key::End:
            return Qt::Key_End;
        case UI::Key::Home:
            return Qt::Key_Home;
        case UI::Key::Left:
            return Qt::Key_Left;
        case UI::Key::Up:
            return Qt::Key_Up;
        case UI::Key::Right:
            return Qt::Key_Right;
        case UI::Key::Down:
            return Qt::Key_Down;
        case UI::Key::Delete:
            return Qt::Key_Delete;
        case UI::Key::F4:
            return Qt::Key_F4;
    }
    return Qt::Key_unknown;
}

}  // namespace

int RunWith(UI::Window& window, const Steps& steps) {
    const Runner runner(*window.GetHandle()->Widget, steps);
    return window.Run();
}

void Press(UI::Key key) { PressKey(ToQt(key)); }
void Repeat(UI::Key key) {
    QKeyEvent event(QEvent::KeyPress, ToQt(key), Qt::NoModifier, QString(), true);
    QApplication::sendEvent(QApplication::focusWidget(), &event);
    ProcessAll();
}

void PressShiftTab() { PressKey(Qt::Key_Backtab, Qt::ShiftModifier); }
void PressControlA() { PressKey(Qt::Key_A, Qt::ControlModifier); }

void Type(std::wstring_view text) {
    for (const QChar c : UI::Widgets::ToQt(text)) {
        QTest::sendKeyEvent(QTest::Click, QApplication::activeWindow()->windowHandle(), Qt::Key_unknown, QString(c),
                            {});
        ProcessAll();
    }
}

void Click(UI::Control& control) { ClickAt(control, GetCentre(control)); }
void DoubleClick(UI::Control& control) { DoubleClickAt(control, GetCentre(control)); }
void Click(UI::Controls::ListBox& list, int row) { ClickAt(list, GetRow(list, row)); }
void DoubleClick(UI::Controls::ListBox& list, int row) { DoubleClickAt(list, GetRow(list, row)); }

void Choose(UI::Controls::ComboBox& box, int row) {
    // The list lets no release pass for as long as the click that opened it may become a double click.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    if (!box.IsDroppedDown()) Click(box);
    QApplication::setDoubleClickInterval(interval);
    auto* view = static_cast<QComboBox*>(GetWidget(box))->view();
    if (!view->isVisible()) return;  // the click went to the list of another, which it closed
    const QRect place = view->visualRect(view->model()->index(row, 0));
    const QPoint at = view->viewport()->mapTo(view->window(), place.center());
    QTest::mouseMove(view->window()->windowHandle(), at);
    QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {}, at);
    ProcessAll();
}

void Hover(UI::Control& control) {
    if (QWindow* window = GetTarget(control)) QTest::mouseMove(window, GetCentre(control));
    ProcessAll();
}

void MovePointerAway() {
    const QWidget* window = QApplication::activeWindow();
    QTest::mouseMove(window->windowHandle(), QPoint(window->width() - 1, window->height() - 1));
    ProcessAll();
}

void Hold(UI::Control& control) { QTest::mousePress(GetTarget(control), Qt::LeftButton, {}, GetCentre(control)); }
void Release(UI::Control& control) { QTest::mouseRelease(GetTarget(control), Qt::LeftButton, {}, GetCentre(control)); }

std::vector<Monitor> GetMonitors() {
    std::vector<Monitor> monitors;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        monitors.push_back({{area.left(), area.top(), area.left() + area.width(), area.top() + area.height()},
                            static_cast<int>(screen->logicalDotsPerInch())});
    }
    return monitors;
}

void ClickCloseBox(UI::Window& window) {
    window.GetHandle()->Widget->close();
    ProcessAll();
}

void Break(UI::Handle handle) { UI::Widgets::Break(*handle); }

}  // namespace Conformance
