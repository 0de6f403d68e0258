// Every form of the editor in the desktop's style. With VANTELLE_PICTURES=FOLDER in the environment a picture of each
// is left in there.
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "editor/all_forms.h"
#include "editor/main_window.h"
#include "samples/displays.h"
#include "tests/editor/form_tour.h"
#include "tests/editor_qt/desktop.h"
#include "tests/support/window_layout.h"
#include "ui/qt/platform.h"

namespace Testing {

namespace {

// The sample displays, and one with room for everything.
VNT::DisplayList GetDisplays() {
    VNT::DisplayList displays;
    const auto add = [&displays](const std::string& id, const VNT::Bytes& bytes) {
        VNT::Display display;
        display.InstanceId = std::wstring(id.begin(), id.end());
        display.DeviceDescription = L"Generic PnP Monitor";
        display.CurrentData = display.EdidData = bytes;
        displays.push_back(display);
    };
    for (const Samples::Display& sample : Samples::MakeDisplays()) add(sample.instanceId, VNT::Bytes(sample.edid));
    add("DISPLAY\\AAA0000\\0", VNT::Edid(VNT::EdidFields()).GetBytes());
    return displays;
}

const char* GetPictures() { return std::getenv("VANTELLE_PICTURES"); }

// What a reader of the screen says a control is.
QAccessible::Role GetRole(const UI::Control& control) {
    if (dynamic_cast<const UI::Controls::Button*>(&control)) return QAccessible::PushButton;
    if (dynamic_cast<const UI::Controls::CheckBox*>(&control)) return QAccessible::CheckBox;
    if (dynamic_cast<const UI::Controls::RadioButton*>(&control)) return QAccessible::RadioButton;
    if (dynamic_cast<const UI::Controls::ComboBox*>(&control)) return QAccessible::ComboBox;
    if (dynamic_cast<const UI::Controls::ListBox*>(&control)) return QAccessible::List;
    if (dynamic_cast<const UI::Controls::TextBox*>(&control)) return QAccessible::EditableText;
    if (dynamic_cast<const UI::Controls::GroupBox*>(&control)) return QAccessible::Grouping;
    return QAccessible::StaticText;
}

std::string Describe(const UI::Window& form, const UI::Control& control) {
    const std::wstring text = form.GetName() + L": " + control.GetText();
    return {text.begin(), text.end()};
}

void ExpectRows(QAccessibleInterface& face, const UI::Controls::AnyItemList& list, const std::string& what) {
    ASSERT_EQ(face.childCount(), list.GetCount()) << what;
    for (int i = 0; i < list.GetCount(); ++i) {
        QAccessibleInterface* row = face.child(i);
        EXPECT_EQ(row->role(), QAccessible::ListItem) << what;
        EXPECT_EQ(row->text(QAccessible::Name), UI::Widgets::ToQt(list.GetItemText(i))) << what;
        // That of a combo box is told by its value: the list below is asked for it when it drops down.
        const bool isDropDown = list.GetKind() == UI::ControlKind::ComboBox;
        EXPECT_TRUE(isDropDown || row->state().selected == (i == list.GetSelection())) << what;
    }
}

void ExpectAccessible(const UI::Window& form) {
    for (const UI::Control* control : form.GetControls()) {
        QWidget* widget = control->GetHandle()->Widget;
        if (!control->IsVisible() || !widget) continue;  // the edges of a group box have none
        const std::string what = Describe(form, *control);
        // Anew: while nobody reads the screen nobody tells of rows that have changed.
        if (const QAccessible::Id id = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget)))
            QAccessible::deleteAccessibleInterface(id);
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(face && face->isValid()) << what;
        EXPECT_EQ(face->role(), GetRole(*control)) << what;
        const bool isRead = VNT::Testing::IsRead(*control);
        if (isRead) {
            EXPECT_EQ(face->text(QAccessible::Name), UI::Widgets::ToQt(control->GetText())) << what;
        }
        const bool isSilent = control->GetKind() == UI::ControlKind::Static && control->GetText().empty();
        EXPECT_TRUE(isSilent || !face->text(QAccessible::Name).isEmpty()) << what;
        const QAccessible::State state = face->state();
        EXPECT_EQ(state.disabled, !control->IsEnabled()) << what;
        EXPECT_FALSE(state.invisible) << what;
        EXPECT_TRUE(state.focusable || !control->IsTabStop() || !control->IsEnabled()) << what;
        if (const auto* check = dynamic_cast<const UI::Controls::AnyCheckControl*>(control)) {
            EXPECT_TRUE(state.checkable) << what;
            EXPECT_EQ(state.checked, check->IsChecked()) << what;
        }
        if (const auto* list = dynamic_cast<const UI::Controls::ListBox*>(control)) {
            ExpectRows(*face, *list, what);
        }
        if (const auto* box = dynamic_cast<const UI::Controls::TextBox*>(control)) {
            EXPECT_EQ(face->text(QAccessible::Value), UI::Widgets::ToQt(box->GetText())) << what;
        }
        if (const auto* combo = dynamic_cast<const UI::Controls::ComboBox*>(control)) {
            EXPECT_EQ(face->text(QAccessible::Value), UI::Widgets::ToQt(combo->GetItemText(combo->GetSelection())))
                << what;
            // The rows that drop down are a list inside.
            QAccessibleInterface* rows = face->child(0);
            ASSERT_TRUE(rows && rows->role() == QAccessible::List) << what;
            ExpectRows(*rows, *combo, what);
        }
    }
}

// As desktops have it for eyes that need it.
QPalette MakeContrastPalette() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black);
    palette.setColor(QPalette::Button, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Qt::green);
    }
    return palette;
}

class FormsInQt : public testing::TestWithParam<UI::Theme> {
protected:
    FormsInQt() {
        if (GetParam() == UI::Theme::HighContrast) QApplication::setPalette(MakeContrastPalette());
        UI::SetAppearance(UI::Appearance{96, GetParam()});
    }
    ~FormsInQt() override {
        QApplication::setPalette(QPalette());
        UI::SetAppearance(std::nullopt);
    }

    void Look(UI::Window& form, const std::string& name) {
        EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"") << name;
        ExpectAccessible(form);
        ExpectNothingOutOfView(form, name);
        if (!pictures) return;
        const auto folder = std::filesystem::path(pictures);
        std::filesystem::create_directories(folder);
        EXPECT_TRUE(SavePicture(form, folder / (name + ".png"))) << name;
    }

    // Of what scrolls nothing shows beside OK, wherever it stands.
    static void ExpectNothingOutOfView(UI::Window& form, const std::string& name) {
        if (!form.IsScrolling()) return;
        for (const int position : {form.GetScrollHeight(), form.GetScrollHeight() / 3, 0}) {
            form.ScrollTo(position);
            const QImage shown = form.GetHandle()->Widget->grab().toImage();
            const double ratio = shown.devicePixelRatio();
            const auto at = [&](int x, int y) {
                return UI::Widgets::FromQt(
                    shown.pixelColor(static_cast<int>((x + 0.5) * ratio), static_cast<int>((y + 0.5) * ratio)));
            };
            EXPECT_EQ(VNT::Testing::FindStray(form, at), L"") << name << " at " << form.GetScrollPosition();
        }
    }

    const char* pictures = GetPictures();
};

}  // namespace

TEST_P(FormsInQt, ShowTheirControlsWholeApartAndToEveryReader) {
    MainWindow window(GetDisplays());
    NextStep next;
    FormTour tour([&next](auto step) { next.Set(std::move(step)); },
                  [this](UI::Window& form, const std::string& name) { Look(form, name); });
    next.Set([&] {
        tour.BeginWithEachDisplay(window);
        UI::EndRun(UI::IdCancel);
    });
    EXPECT_EQ(window.Run(), UI::IdCancel);
    Forms::ForEachForm([&](auto sample) {
        tour.BeginNext();
        sample.edit(nullptr, sample.item, sample.bytes);
    });
    EXPECT_GT(tour.GetSeen().size(), 30u);
}

static std::string NameOf(const testing::TestParamInfo<UI::Theme>& info) {
    if (info.param == UI::Theme::HighContrast) return "Contrast";
    return info.param == UI::Theme::Dark ? "Dark" : "Light";
}

INSTANTIATE_TEST_SUITE_P(In, FormsInQt, testing::Values(UI::Theme::Light, UI::Theme::Dark, UI::Theme::HighContrast),
                         &NameOf);

}  // namespace Testing
