// Every form of the editor, opened one after the other.
#include "tests/editor/form_tour.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/editor/main_window_form.h"
#include "tests/support/difference.h"
#include "tests/support/window_layout.h"

namespace {

using namespace Testing;

// The names of the forms' classes as they stand in the source, but for the main window's.
std::set<std::wstring> ReadFormNames() {
    std::set<std::wstring> names;
    for (const auto& file : std::filesystem::directory_iterator(VANTELLE_SOURCE_DIR "/editor")) {
        std::ifstream in(file.path());
        for (std::string line; std::getline(in, line);) {
            // An example in a comment names no form.
            line.resize(std::min(line.find("//"), line.size()));
            const auto end = std::min(line.find("Window\""), line.find("WindowR2\""));
            const auto begin = line.rfind("L\"", end);
            if (end == std::string::npos || begin == std::string::npos) continue;
            const std::string name = line.substr(begin + 2, line.find('"', end) - begin - 2);
            if (name != "MainWindow") names.emplace(name.begin(), name.end());
        }
    }
    return names;
}

// A control that a screen reader has no name for, a red box that does not say why, a closed OK that doesn't either.
std::wstring FindSpeechless(const UI::Window& form) {
    for (const UI::Control* control : form.GetControls()) {
        if (!control->IsVisible()) continue;
        if (control->GetKind() != UI::ControlKind::Static && control->GetName().empty())
            return L"no name behind \"" + control->GetText() + L"\"";
        const auto* box = dynamic_cast<const UI::Controls::TextBox*>(control);
        if (box && box->HasValidStyle() != box->GetHint().empty()) return L"\"" + box->GetName() + L"\" is red";
        const auto* button = dynamic_cast<const UI::Controls::Button*>(control);
        if (button && button->GetText() == L"OK" && button->IsEnabled() != button->GetHint().empty()) return L"OK";
    }
    return {};
}

class EveryForm : public testing::TestWithParam<int> {
protected:
    void SetUp() override { driver.GetSystem().Dpi = GetParam(); }

    UI::Headless::Driver driver;
};

TEST_P(EveryForm, CanBeReachedAndShowsItsControlsWholeAndApart) {
    MainWindow window(
        {MakeDisplay(L"DISPLAY\\A\\1", MakeEdid("AAA", "FIRST")), MakeDisplay(L"DISPLAY\\B\\2", MakeEdid("BBB", ""))});
    auto& script = UI::Headless::GetDesktop().Script;
    FormTour tour([&script](auto step) { script.push_front(std::move(step)); },
                  [](UI::Window& form, const std::string& name) {
                      EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"") << name;
                      EXPECT_EQ(FindSpeechless(form), L"") << name;
                  });
    driver.Then([&] {
        tour.Begin(window, "one");
        driver.Choose(driver.Find<UI::Controls::ComboBox>(L"Display:"), 1);
        tour.Begin(window, "two");
        UI::EndRun(UI::IdCancel);
    });
    window.Run();
    EXPECT_TRUE(VNT::Testing::HaveNoDifference(ReadFormNames(), tour.GetSeen()));
}

TEST(WindowLayout, ShowsWhatIsMisplaced) {
    UI::Headless::Driver driver;
    UI::Window window(nullptr, L"FaultyWindow", L"Faulty");
    UI::Controls::GroupBox group(window, L"Group");
    UI::Controls::Label label(window, L"Label:");
    UI::Controls::Button first(window, L"First");
    UI::Controls::Button second(window, L"Second");
    const auto expect = [&](const std::wstring& finding) {
        EXPECT_EQ(VNT::Testing::FindMisplaced(window), finding);
        window.SetClientSize(300, 200);
        group.SetRect(10, 20, 200, 100);
        label.SetRect(20, 30, 60, 16);
        first.SetRect(100, 30, 60, 23);
        second.SetRect(20, 60, 60, 23);
    };
    driver.Then([&] {
        expect(L"\"Group\" is cut off");
        expect(L"");
        label.SetPosition(90, 30);
        expect(L"\"First\" covers \"Label:\"");
        label.SetSize(10, 16);
        expect(L"\"Label:\" is cut off");
        second.SetPosition(20, 110);
        expect(L"\"Second\" covers the frame of \"Group\"");
        second.SetPosition(20, 190);
        expect(L"\"Second\" stands outside its window");
        first.SetPosition(20, 85);
        expect(L"Tab goes up from \"First\" to \"Second\"");
        UI::EndRun(UI::IdCancel);
    });
    window.Run();
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, EveryForm, testing::Values(96, 120, 144, 192));

}  // namespace
