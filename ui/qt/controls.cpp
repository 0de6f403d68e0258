// The widgets behind the controls.
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "ui/qt/platform.h"

namespace UI {

using namespace Widgets;

namespace {

QWidget* GetParentWidget(const Control& control) { return control.GetWindow().GetHandle()->Widget; }

// A click tells, and who listens sets the check state.
template <class Widget>
class Told : public Widget {
public:
    using Widget::Widget;

protected:
    void nextCheckState() override {}
    // All of it can be clicked, as far as the form gives it room.
    bool hitButton(const QPoint& at) const override { return this->rect().contains(at); }
};

// Tells when its list drops down and when that closes.
class DropDown : public QComboBox {
public:
    DropDown(QWidget* parent, NativeWindow& window) : QComboBox(parent), window(window) {}

    void showPopup() override {
        window.IsDropped = true;
        QComboBox::showPopup();
        Notify(window, Native::DroppedDown);
    }
    void hidePopup() override {
        QComboBox::hidePopup();
        if (std::exchange(window.IsDropped, false)) Notify(window, Controls::ComboBox::Closed);
    }

private:
    NativeWindow& window;
};

void Adopt(const Control& control, QWidget* widget) { control.GetHandle()->Adopt(widget); }

void AdoptButton(const Control& control, QAbstractButton* button) {
    NativeWindow* window = control.GetHandle();
    button->setText(ToCaption(control.GetText()));
    button->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(button, &QAbstractButton::clicked, window,
                     [window] { Notify(*window, Controls::Button::Clicked); });
    window->Adopt(button);
}

template <class Widget>
void AdoptCheck(const Control& control) {
    auto* button = new Told<Widget>(GetParentWidget(control));
    // In a group of its own, so that none unchecks another: that is the form's affair.
    auto* group = new QButtonGroup(button);
    group->setExclusive(false);
    group->addButton(button);
    AdoptButton(control, button);
}

}  // namespace

namespace Native {

void Attach(Controls::Button& button) {
    auto* widget = new QPushButton(GetParentWidget(button));
    widget->setAutoDefault(false);
    AdoptButton(button, widget);
}

void Attach(Controls::CheckBox& box) { AdoptCheck<QCheckBox>(box); }
void Attach(Controls::RadioButton& button) { AdoptCheck<QRadioButton>(button); }

void Attach(Controls::Label& label) {
    auto* widget = new QLabel(GetParentWidget(label));
    widget->setTextFormat(Qt::PlainText);
    widget->setText(ToQt(label.GetText()));
    Qt::Alignment place = Qt::AlignLeft;
    if (label.GetFormat() == Controls::Label::Center) place = Qt::AlignHCenter;
    if (label.GetFormat() == Controls::Label::Right) place = Qt::AlignRight;
    widget->setAlignment(place | Qt::AlignVCenter);
    Adopt(label, widget);
}

void Attach(Controls::GroupBox& box) {
    auto* widget = new QGroupBox(GetParentWidget(box));
    widget->setTitle(ToCaption(box.GetText()));
    widget->lower();
    NativeWindow* first = box.GetHandle();
    for (const Control* part :
         {static_cast<Control*>(&box), &box.GetLeftEdge(), &box.GetRightEdge(), &box.GetBottomEdge()}) {
        part->GetHandle()->Group = first;
    }
    Adopt(box, widget);
}

void Attach(Controls::ComboBox& box) {
    NativeWindow* window = box.GetHandle();
    constexpr int rows = 30;  // at most, in the list that drops down
    auto* widget = new DropDown(GetParentWidget(box), *window);
    widget->setMaxVisibleItems(rows);
    widget->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(widget, &QComboBox::currentIndexChanged, window,
                     [window] { Notify(*window, Controls::ComboBox::SelectionChanged); });
    window->Adopt(widget);
}

void Attach(Controls::ListBox& box) {
    NativeWindow* window = box.GetHandle();
    auto* widget = new QListWidget(GetParentWidget(box));
    widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(widget, &QListWidget::itemSelectionChanged, window,
                     [window] { Notify(*window, Controls::ListBox::SelectionChanged); });
    QObject::connect(widget, &QListWidget::itemDoubleClicked, window,
                     [window] { Notify(*window, Controls::ListBox::DoubleClicked); });
    window->Adopt(widget);
}

void Attach(Controls::TextBox& box) {
    NativeWindow* window = box.GetHandle();
    const auto tell = [window] { Notify(*window, Controls::TextBox::Changed); };
    if (box.IsMultiLine()) {
        auto* widget = new QPlainTextEdit(GetParentWidget(box));
        widget->setTabChangesFocus(true);
        QObject::connect(widget, &QPlainTextEdit::textChanged, window, tell);
        window->Adopt(widget);
    } else {
        auto* widget = new QLineEdit(GetParentWidget(box));
        QObject::connect(widget, &QLineEdit::textChanged, window, tell);
        window->Adopt(widget);
    }
}

}  // namespace Native

}  // namespace UI
