// What only widgets have: the wheel, a moved window, names for screen readers.
#include <QApplication>
#include <QComboBox>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/qt/platform.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

QWidget& GetWidget(const Control& control) { return *control.GetHandle()->Widget; }

class QtWidgets : public testing::Test {
protected:
    void Do(const std::function<void()>& action) {
        RunWith(window, {[&] {
                    action();
                    EndRun(IdOk);
                }});
    }

    TestWindow window;
    AllControls all{window};
};

}  // namespace

TEST_F(QtWidgets, LetTheWheelPassAComboBoxThatHasNotTheFocus) {
    all.Combo.SetSelection(0);
    Do([&] {
        const auto turn = [&] {
            QWheelEvent event({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&GetWidget(all.Combo), &event);
        };
        all.Ok.SetFocus();
        turn();
        EXPECT_EQ(all.Combo.GetSelection(), 0);
        all.Combo.SetFocus();
        turn();
        EXPECT_EQ(all.Combo.GetSelection(), 1);
    });
}

TEST_F(QtWidgets, OpenTheirNextFormOverAWindowThatTheUserMoved) {
    Do([&] {
        GetWidget(all.Ok).window()->move(300, 200);
        QApplication::processEvents();
        EXPECT_EQ(window.GetX(), 300);
        EXPECT_EQ(window.GetY(), 200);
        TestWindow child(&window, L"ConformanceChild");
        child.SetClientSize(100, 50);
        child.Center();
        EXPECT_EQ(child.GetX(), 300 + (window.GetWidth() - child.GetWidth()) / 2);
    });
}

TEST_F(QtWidgets, AreNamedByWhatStandsBeforeThem) {
    Do([&] {
        EXPECT_EQ(GetWidget(all.Box).accessibleName(), u"Label:"_qs);
        EXPECT_EQ(GetWidget(all.Combo).accessibleName(), u"Radio"_qs);
        all.Label.SetText(L"Other:");
        EXPECT_EQ(GetWidget(all.Lines).accessibleName(), u"Other:"_qs);
    });
}

TEST_F(QtWidgets, LetNoExceptionThroughQt) {
    struct Failure {};
    all.Ok.AddNotificationHandler(Button::Clicked, [] { throw Failure(); });
    EXPECT_THROW(Do([&] {
                     Click(all.Ok);
                     Click(all.Ok);
                 }),
                 Failure);
    EXPECT_FALSE(window.IsVisible());
    EXPECT_EQ(RunWith(window, {[] { EndRun(5); }}), 5);
}

}  // namespace Conformance
