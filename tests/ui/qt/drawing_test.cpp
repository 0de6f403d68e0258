// What the controls look like: the desktop's style draws them, and shows every state.
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <gtest/gtest.h>
#include <map>

#include "tests/ui/conformance/adapter.h"
#include "ui/qt/platform.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

QWidget& GetWidget(const Control& control) { return *control.GetHandle()->Widget; }
QImage GetPicture(const Control& control) { return GetWidget(control).grab().toImage(); }

bool HasColor(const QImage& picture, Color color) {
    const QColor wanted = Widgets::ToQt(color);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == wanted) return true;
        }
    }
    return false;
}

class QtDrawing : public testing::Test {
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

std::string ToString(const Control& control) { return Widgets::ToQt(control.GetText()).toStdString(); }

constexpr Color Red = 0x0000FF;

}  // namespace

TEST_F(QtDrawing, ShowsWhichControlHasTheFocusByTheKeyboard) {
    Do([&] {
        window.SetFocus();
        std::map<Control*, QImage> without;
        for (Control* control : all.All()) without[control] = GetPicture(*control);
        for (Control* control :
             std::vector<Control*>{&all.Box, &all.Lines, &all.Check, &all.Combo, &all.List, &all.Ok}) {
            do {
                Press(Key::Tab);
            } while (!control->HasFocus());
            EXPECT_NE(GetPicture(*control), without[control]) << ToString(*control);
        }
    });
}

TEST_F(QtDrawing, ShowsWhatIsDisabledPressedOrUnderThePointer) {
    Do([&] {
        window.SetFocus();
        all.Box.SetText(L"text");
        all.Lines.SetText(L"text");
        all.Combo.SetSelection(0);
        for (Control* control : all.All()) {
            const QImage normal = GetPicture(*control);
            control->SetEnabled(false);
            EXPECT_NE(GetPicture(*control), normal) << ToString(*control);
            control->SetEnabled(true);
            EXPECT_EQ(GetPicture(*control), normal) << ToString(*control);
        }
        for (Control* control : std::vector<Control*>{&all.Ok, &all.Check, &all.Radio}) {
            const QImage normal = GetPicture(*control);
            Hold(*control);
            EXPECT_NE(GetPicture(*control), normal);
            Release(*control);
        }
    });
}

TEST_F(QtDrawing, ShowsWhatIsChecked) {
    Do([&] {
        for (AnyCheckControl* control : std::vector<AnyCheckControl*>{&all.Check, &all.Radio}) {
            const QImage without = GetPicture(*control);
            control->SetChecked(true);
            EXPECT_NE(GetPicture(*control), without);
            control->SetChecked(false);
            EXPECT_EQ(GetPicture(*control), without);
        }
    });
}

TEST_F(QtDrawing, ShowsTheDefaultButton) {
    Do([&] {
        all.Ok.SetDefault(true);
        EXPECT_TRUE(static_cast<QPushButton&>(GetWidget(all.Ok)).isDefault());
        all.Ok.SetDefault(false);
        EXPECT_FALSE(static_cast<QPushButton&>(GetWidget(all.Ok)).isDefault());
    });
}

TEST_F(QtDrawing, ShowsWhatIsInvalidInRedAndBackAgain) {
    Do([&] {
        window.SetFocus();
        all.Box.SetText(L"text");
        all.Lines.SetText(L"text");
        const auto check = [](auto& control) {
            const QImage valid = GetPicture(control);
            EXPECT_FALSE(HasColor(valid, Red));
            control.SetValidStyle(false);
            EXPECT_TRUE(HasColor(GetPicture(control), Red));
            control.SetValidStyle(true);
            EXPECT_EQ(GetPicture(control), valid);
        };
        check(all.Box);
        check(all.Lines);
        check(all.Group);
    });
}

TEST_F(QtDrawing, TakesTheDesktopsColoursUnlessOthersAreAskedFor) {
    const bool isDark = Widgets::IsDark(QApplication::palette());
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        ApplyTheme(window, BuildStyleTable(window.GetDpi(), theme));
        const QPalette palette = GetWidget(all.Box).palette();
        EXPECT_EQ(Widgets::IsDark(palette), theme == Theme::Dark);
        const bool isDesktops = (theme == Theme::Dark) == isDark;
        EXPECT_EQ(palette.color(QPalette::Base) == QApplication::palette().color(QPalette::Base), isDesktops);
    }
}

TEST_F(QtDrawing, FramesEveryControlInHighContrast) {
    struct BlackDesktop {
        BlackDesktop() {
            QApplication::setPalette(
                QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black));
        }
        ~BlackDesktop() { QApplication::setPalette(QPalette()); }
    };
    const BlackDesktop desktop;
    ApplyTheme(window, BuildStyleTable(window.GetDpi(), Theme::HighContrast));
    Do([&] {
        window.SetFocus();
        const QColor white = Qt::white;
        for (Control* control :
             std::vector<Control*>{&all.Group, &all.Box, &all.Lines, &all.Combo, &all.List, &all.Ok}) {
            const QImage picture = GetPicture(*control);
            EXPECT_EQ(picture.pixelColor(0, picture.height() / 2), white) << ToString(*control);
            EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() - 1), white) << ToString(*control);
        }
        all.Box.SetFocus();
        const QImage focused = GetPicture(all.Box);
        EXPECT_EQ(focused.pixelColor(0, focused.height() / 2), GetWidget(all.Box).palette().color(QPalette::Highlight));
        for (Control* control : std::vector<Control*>{&all.Check, &all.Radio}) {
            const QWidget& widget = GetWidget(*control);
            QStyleOptionButton option;
            option.initFrom(&widget);
            const bool isSquare = control == &all.Check;
            const auto element = isSquare ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator;
            const QRect box = widget.style()->subElementRect(element, &option, &widget);
            const QImage picture = GetPicture(*control);
            const auto getLightness = [&](int x) { return picture.pixelColor(x, box.center().y()).lightness(); };
            constexpr int bright = 128;
            EXPECT_GT(getLightness(box.left()), bright) << ToString(*control);
            EXPECT_GT(getLightness(box.right()), bright) << ToString(*control);
            EXPECT_LT(getLightness(box.center().x()), bright) << ToString(*control);
        }
    });
}

TEST_F(QtDrawing, DrawsAnAmpersandAsOne) {
    all.Ok.SetText(L"A && B");
    all.Check.SetText(L"&Check");
    Do([&] {
        EXPECT_EQ(static_cast<QPushButton&>(GetWidget(all.Ok)).text(), u"A &&&& B"_qs);
        EXPECT_EQ(all.Ok.GetText(), L"A && B");
        EXPECT_EQ(static_cast<QAbstractButton&>(GetWidget(all.Check)).text(), u"&&Check"_qs);
    });
}

TEST_F(QtDrawing, CountsCharactersBeyondTheBasicPlaneAsOne) {
    Do([&] {
        all.Box.SetText(L"a\U0001F5A5b");
        all.Box.Select(2, 3);
        EXPECT_EQ(static_cast<QLineEdit&>(GetWidget(all.Box)).selectedText(), u"b"_qs);
        int begin = 0;
        int end = 0;
        all.Box.GetSelection(begin, end);
        EXPECT_EQ(begin, 2);
        EXPECT_EQ(end, 3);
        EXPECT_EQ(Native::GetText(all.Box.GetHandle()), L"a\U0001F5A5b");
    });
}

TEST_F(QtDrawing, ShowsATextThatIsLongerThanWhatCanBeTyped) {
    Do([&] {
        all.Box.SetLimit(3);
        all.Box.SetText(L"longer");
        EXPECT_EQ(static_cast<QLineEdit&>(GetWidget(all.Box)).text(), u"longer"_qs);
    });
}

TEST_F(QtDrawing, GivesEveryControlTheRoomThatItsWidgetWants) {
    all.Check.SetText(L"A check box with a longer text");
    all.Radio.SetText(L"A radio button with a longer text");
    all.Ok.SetText(L"A button with a longer text");
    all.Label.SetText(L"A label with a longer text");
    for (Control* control : std::vector<Control*>{&all.Check, &all.Radio, &all.Ok, &all.Label}) {
        const QSize wanted = GetWidget(*control).sizeHint();
        const Size measured = control->Measure(control->GetText());
        EXPECT_GE(measured.Width, wanted.width()) << control->GetText().c_str();
        EXPECT_GE(std::max(measured.Height, window.GetStyle().Metrics.ControlHeight), wanted.height());
    }
    EXPECT_GE(all.Combo.Measure(L"three").Width, GetWidget(all.Combo).minimumSizeHint().width());
    EXPECT_GE(all.Combo.Measure(L"").Height, GetWidget(all.Combo).sizeHint().height());
    EXPECT_GE(all.Box.Measure(L"").Height, GetWidget(all.Box).sizeHint().height());
}

}  // namespace Conformance
