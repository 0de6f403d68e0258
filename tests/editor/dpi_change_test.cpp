// Every form at another scale: moved to a monitor that has one, and back again.
#include <gtest/gtest.h>

#include "tests/editor/form_case.h"
#include "tests/editor/form_tour.h"
#include "tests/editor/form_user.h"
#include "tests/editor/main_window_form.h"
#include "tests/editor/sample_form.h"
#include "tests/support/window_layout.h"

namespace {

using namespace Testing;
using namespace UI;
using namespace UI::Controls;

// The last is so small that forms scroll there.
const std::vector<Headless::Monitor> Monitors{{{10000, 0, 13840, 2160}, {10000, 0, 13840, 2080}, 144},
                                              {{20000, 0, 25120, 2880}, {20000, 0, 25120, 2800}, 192},
                                              {{30000, 0, 31366, 768}, {30000, 0, 31366, 728}, 120}};

const Button* FindOk(const Window& form) {
    for (const Control* control : form.GetControls()) {
        const auto* button = dynamic_cast<const Button*>(control);
        if (button && button->GetText() == L"OK") return button;
    }
    return nullptr;
}

// What a form shows, but for where.
std::vector<std::wstring> ReadAll(const Window& form) {
    std::vector<std::wstring> shown;
    for (const Control* control : form.GetControls()) {
        std::wstring line = control->GetText() + (control->IsVisible() ? L"" : L", hidden");
        if (!control->IsEnabled()) line += L", closed";
        if (control->HasFocus()) line += L", focused";
        if (const auto* list = dynamic_cast<const AnyItemList*>(control)) {
            line += L", row " + std::to_wstring(list->GetSelection()) + L" of";
            for (int i = 0; i < list->GetCount(); ++i) line += L" " + list->GetItemText(i);
        }
        const auto* check = dynamic_cast<const AnyCheckControl*>(control);
        if (check && check->IsChecked()) line += L", checked";
        const auto* box = dynamic_cast<const TextBox*>(control);
        if (box && !box->HasValidStyle()) line += L", red";
        shown.push_back(line);
    }
    return shown;
}

std::vector<Rect> GetPlaces(const Window& form) {
    std::vector<Rect> places{{0, 0, form.GetClientWidth(), form.GetClientHeight()}};
    for (const Control* control : form.GetControls())
        places.push_back({control->GetX(), control->GetY(), control->GetRight(), control->GetBottom()});
    return places;
}

// What the user would find wrong with a form that came to a monitor of that scale and work area; or nothing.
std::wstring FindFault(const Window& form, int dpi, const Rect& area) {
    constexpr int fontHeight = 16;  // at 96 DPI
    if (form.GetDpi() != dpi) return L"another scale";
    for (const Control* control : form.GetControls()) {
        if (control->GetFont().GetSpec().Height != fontHeight * dpi / 96)
            return VNT::Testing::Named(*control) + L" has the font of another scale";
    }
    if (const std::wstring misplaced = VNT::Testing::FindMisplaced(form); !misplaced.empty()) return misplaced;
    if (form.GetX() < area.Left || form.GetY() < area.Top || form.GetX() + form.GetWidth() > area.Right ||
        form.GetY() + form.GetHeight() > area.Bottom)
        return L"it stands outside the work area";
    const Button* ok = FindOk(form);
    const bool isSeen = ok && ok->IsVisible() && !ok->GetView() && ok->GetBottom() <= form.GetClientHeight();
    return isSeen ? L"" : L"OK can't be seen";
}

// Takes the form through all monitors and back to where it was; what went wrong, or nothing.
std::wstring FindFaultElsewhere(Window& form, const Headless::SystemSettings& system) {
    const Rect before{form.GetX(), form.GetY(), 0, 0};
    const std::vector<std::wstring> shown = ReadAll(form);
    const std::vector<Rect> places = GetPlaces(form);
    const auto look = [&](const Headless::Monitor& monitor) -> std::wstring {
        const Rect& area = monitor.WorkArea;
        form.SetPosition((area.Left + area.Right - form.GetWidth()) / 2,
                         (area.Top + area.Bottom - form.GetHeight()) / 2);
        const std::wstring at = L" at " + std::to_wstring(monitor.Dpi) + L" DPI";
        const std::wstring fault = FindFault(form, monitor.Dpi, monitor.WorkArea);
        if (!fault.empty()) return fault + at;
        return ReadAll(form) == shown ? L"" : L"it shows something else" + at;
    };
    for (const Headless::Monitor& monitor : Monitors) {
        if (const std::wstring fault = look(monitor); !fault.empty()) return fault;
    }
    form.SetPosition(before.Left, before.Top);
    if (const std::wstring fault = FindFault(form, system.Dpi, *system.WorkArea); !fault.empty())
        return fault + L" back again";
    if (ReadAll(form) != shown) return L"it shows something else back again";
    return GetPlaces(form) == places ? L"" : L"it looks another back again";
}

TEST(AtAnotherScale, TheMainWindowAndEveryFormThatItLeadsToStandWhole) {
    Headless::Driver driver;
    driver.GetSystem().OtherMonitors = Monitors;
    auto& script = Headless::GetDesktop().Script;
    FormTour tour([&script](auto step) { script.push_front(std::move(step)); },
                  [&driver](Window& form, const std::string& name) {
                      EXPECT_EQ(FindFaultElsewhere(form, driver.GetSystem()), L"") << name;
                  });
    const VNT::DisplayList displays{MakeDisplay(L"DISPLAY\\A\\1", MakeEdid("AAA", "FIRST")),
                                    MakeDisplay(L"DISPLAY\\B\\2", MakeEdid("BBB", ""))};
    MainWindow window(displays);
    driver.Then([&] {
        tour.Begin(window, "one");
        driver.Choose(driver.Find<ComboBox>(L"Display:"), 1);
        tour.Begin(window, "two");
        driver.Press(Key::Return);
    });
    EXPECT_EQ(window.Run(), IdOk);
    EXPECT_GT(tour.GetSeen().size(), 50u);
    const VNT::DisplayList& after = window.GetDisplays();
    ASSERT_EQ(after.size(), displays.size());
    for (std::size_t i = 0; i < displays.size(); ++i) EXPECT_EQ(after[i].CurrentData, displays[i].CurrentData);
}

class EachFormAtAnotherScale : public testing::TestWithParam<std::shared_ptr<VNT::Testing::FormCase>> {
protected:
    EachFormAtAnotherScale() { user.driver.GetSystem().OtherMonitors = Monitors; }

    VNT::Testing::FormUser user;
    VNT::Testing::FormCase& form = *GetParam();
};

TEST_P(EachFormAtAnotherScale, StandsWholeFoldedAndUnfolded) {
    form.Renew();
    user.driver.Then([&] {
        EXPECT_EQ(FindFaultElsewhere(user.driver.GetWindow(), user.driver.GetSystem()), L"");
        user.ShowAll();
        EXPECT_EQ(FindFaultElsewhere(user.driver.GetWindow(), user.driver.GetSystem()), L"");
        user.driver.Press(Key::Escape);
    });
    EXPECT_EQ(form.Edit(), IdCancel);
}

TEST_P(EachFormAtAnotherScale, GivesBackTheItemAsItWas) {
    form.Renew();
    if (!form.IsSound()) return;  // OK is closed, and the test above has looked at it
    user.driver.Then([&] {
        EXPECT_EQ(FindFaultElsewhere(user.driver.GetWindow(), user.driver.GetSystem()), L"");
        user.driver.Press(Key::Return);
    });
    EXPECT_EQ(form.Edit(), IdOk);
    EXPECT_TRUE(form.IsNew());
}

INSTANTIATE_TEST_SUITE_P(Forms, EachFormAtAnotherScale, testing::ValuesIn(VNT::Testing::AllForms()),
                         VNT::Testing::NameOfCase());

// Forms with a fault each that is to be seen.
class FormOfOneScale : public Sample::ItemForm {
    void LayOutAnew() override {}
};
class FormThatKeepsItsSize : public Sample::ItemForm {
    void LayOutAnew() override {
        const Size before{GetClientWidth(), GetClientHeight()};
        ItemForm::LayOutAnew();
        SetClientSize(before.Width, before.Height);
    }
};
class FormThatForgets : public Sample::ItemForm {
    void LayOutAnew() override {
        ItemForm::LayOutAnew();
        for (Control* control : GetControls()) {
            if (auto* box = dynamic_cast<TextBox*>(control)) box->SetText(L"");
        }
    }
};
class FormThatGrows : public Sample::ItemForm {
    void LayOutAnew() override {
        ItemForm::LayOutAnew();
        SetClientSize(GetClientWidth(), GetClientHeight() + 1);
    }
};

class Planted : public testing::Test {
protected:
    template <class Form>
    std::wstring Find() {
        driver.GetSystem().OtherMonitors = Monitors;
        Form form;
        std::wstring fault;
        driver.Then([&] {
            fault = FindFaultElsewhere(form, driver.GetSystem());
            EndRun(IdCancel);
        });
        Sample::Item item;
        form.Run(item);
        return fault;
    }

    Headless::Driver driver;
};

TEST_F(Planted, FaultsOfAFormAtAnotherScaleAreSeen) {
    EXPECT_EQ(Find<Sample::ItemForm>(), L"");
    EXPECT_NE(Find<FormOfOneScale>(), L"");
    EXPECT_NE(Find<FormThatKeepsItsSize>(), L"");
    EXPECT_NE(Find<FormThatForgets>(), L"");
    EXPECT_NE(Find<FormThatGrows>(), L"");
}

}  // namespace
