// What shows of a window whose controls need more than the screen has.
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleHints>
#include <algorithm>

#include "ui/qt/platform.h"

namespace UI {

using namespace Widgets;

namespace {

QRect ToQt(const Rect& place) { return {place.Left, place.Top, place.Right - place.Left, place.Bottom - place.Top}; }

// The bar of a window, which turns with the wheel over any of it.
class Bar final : public QScrollBar {
public:
    explicit Bar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
        setObjectName(QStringLiteral("scroll"));
        parent->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::Wheel && isVisible() && QScrollBar::event(event);
    }
};

Bar* FindBar(const QWidget& window) {
    return static_cast<Bar*>(window.findChild<QScrollBar*>(QStringLiteral("scroll"), Qt::FindDirectChildrenOnly));
}

}  // namespace

namespace Native {

void Clip(Handle handle, const std::optional<Rect>& view) {
    if (!Find(handle) || !handle->Widget) return;
    QWidget& widget = *handle->Widget;
    if (!view) return widget.clearMask();
    const QRect shown = widget.geometry().intersected(ToQt(*view));
    if (shown == widget.geometry()) return widget.clearMask();
    // An empty mask would be none.
    const QRect nothing(-1, -1, 1, 1);
    widget.setMask(shown.isEmpty() ? nothing : shown.translated(-widget.pos()));
}

void SetScrollBar(Window& window, const std::optional<Rect>& place, const ScrollRange& range) {
    QWidget* top = window.GetHandle()->Widget;
    if (!top) return;
    Bar* bar = FindBar(*top);
    if (!place) {
        if (bar) bar->hide();
        return;
    }
    if (!bar) {
        bar = new Bar(top);
        QObject::connect(bar, &QScrollBar::valueChanged, bar,
                         [&window](int value) { Guard([&] { window.ScrollTo(value); }); });
    }
    const QSignalBlocker silent(bar);
    bar->setGeometry(ToQt(*place));
    bar->setPageStep(range.Page);
    bar->setSingleStep(std::max(1, range.Step / std::max(1, QGuiApplication::styleHints()->wheelScrollLines())));
    bar->setRange(0, range.GetLast());
    bar->setValue(range.Position);
    bar->show();
    bar->raise();
}

}  // namespace Native

}  // namespace UI
