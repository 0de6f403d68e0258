// Every form of the editor on real windows and fonts. With VANTELLE_PICTURES=FOLDER in the environment a picture of
// each is left in there.
#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

#include "editor/all_forms.h"
#include "editor/main_window.h"
#include "model/edid/text_descriptor.h"
#include "store/load.h"
#include "store/windows/windows_platform.h"
#include "tests/editor/form_tour.h"
#include "tests/editor_windows/misread.h"
#include "tests/support/window_layout.h"
#include "ui/session.h"
#include "ui/win32/picture.h"

namespace Testing {

namespace {

// The step that runs inside the next modal loop, once its window is painted: a timer comes after all other messages,
// and after the end of a loop that is ending.
class NextStep {
public:
    NextStep() : window(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    NextStep(const NextStep&) = delete;
    NextStep& operator=(const NextStep&) = delete;
    ~NextStep() { DestroyWindow(window); }

    // In place of one that waits.
    void Set(std::function<void()> newStep) {
        step = std::move(newStep);
        SetTimer(window, Timer, USER_TIMER_MINIMUM, nullptr);
    }

private:
    static constexpr UINT_PTR Timer = 1;

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
        KillTimer(window, Timer);
        std::exchange(reinterpret_cast<NextStep*>(GetWindowLongPtrW(window, GWLP_USERDATA))->step, nullptr)();
        return 0;
    }

    std::function<void()> step;
    HWND window;
};

// The displays of the prefix, and one with room for everything.
VNT::DisplayList GetDisplays() {
    VNT::WindowsPlatform platform([](const wchar_t*) {});
    VNT::DisplayList displays;
    VNT::LoadDisplays(platform, displays, false);
    VNT::Display empty;
    empty.InstanceId = L"DISPLAY\\AAA0000\\0";
    empty.DeviceDescription = L"Empty";
    empty.CurrentData = empty.EdidData = VNT::Edid(VNT::EdidFields()).GetBytes();
    displays.push_back(empty);
    return displays;
}

const char* GetPictures() { return std::getenv("VANTELLE_PICTURES"); }

struct Scene {
    const char* Name;
    UI::Appearance Appearance;
};

class FormsOnScreen : public testing::TestWithParam<Scene> {
protected:
    FormsOnScreen() {
        UI::SetAppearance(GetParam().Appearance);
        // The pointer shall be over none of the windows.
        SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    }
    ~FormsOnScreen() override { UI::SetAppearance(std::nullopt); }

    void Look(UI::Window& form, const std::string& name) {
        EXPECT_EQ(VNT::Testing::FindMisplaced(form), L"") << name;
        // A screen of 1080 lines at 150 % has this much room between title bar and task bar.
        EXPECT_LE(form.GetClientHeight(), 640 * GetParam().Appearance.Dpi / 96) << name;
        if (reader) {
            EXPECT_EQ(FindMisread(*reader, form), L"") << name;
        }
        ExpectNothingOutOfView(form, name);
        if (!pictures) return;
        const auto folder = std::filesystem::path(pictures) / GetParam().Name;
        std::filesystem::create_directories(folder);
        form.Redraw();
        EXPECT_TRUE(UI::SavePicture(form, folder / (name + ".png"))) << name;
    }

    // Of what scrolls nothing shows beside OK, wherever it stands.
    static void ExpectNothingOutOfView(UI::Window& form, const std::string& name) {
        if (!form.IsScrolling()) return;
        for (const int position : {form.GetScrollHeight(), form.GetScrollHeight() / 3, 0}) {
            form.ScrollTo(position);
            form.Redraw();
            const std::vector<UI::Color> shown = UI::ReadPicture(form);
            ASSERT_FALSE(shown.empty());
            const auto at = [&](int x, int y) {
                return shown[static_cast<std::size_t>(y * form.GetClientWidth() + x)];
            };
            EXPECT_EQ(VNT::Testing::FindStray(form, at), L"") << name << " at " << form.GetScrollPosition();
        }
    }

    UI::Session session;
    const char* pictures = GetPictures();
    std::optional<ScreenReader> reader;
};

}  // namespace

TEST_P(FormsOnScreen, ShowTheirControlsWholeAndApart) {
    const VNT::DisplayList displays = GetDisplays();
    // What is read is the same at each scale.
    if (GetParam().Appearance.Dpi == 96) reader.emplace();
    MainWindow window(displays);
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

std::vector<Scene> GetScenes() {
    constexpr auto Light = UI::Theme::Light;
    constexpr auto Dark = UI::Theme::Dark;
    std::vector<Scene> scenes{{"light-96", {96, Light}}, {"dark-144", {144, Dark}}, {"light-192", {192, Light}}};
    // The layout is that of another theme.
    const Scene forPictures[] = {{"dark-96", {96, Dark}},
                                 {"contrast-96", {96, UI::Theme::HighContrast}},
                                 {"light-144", {144, Light}},
                                 {"dark-192", {192, Dark}}};
    // Of a screen of another size alone: the script has one made, and says so by "SCENE DPI".
    if (const char* small = std::getenv("VANTELLE_SCREEN")) {
        static std::string name;
        int dpi = 0;
        std::istringstream(small) >> name >> dpi;
        return {{name.c_str(), {dpi, Light}}};
    }
    if (GetPictures()) scenes.insert(scenes.end(), std::begin(forPictures), std::end(forPictures));
    return scenes;
}

INSTANTIATE_TEST_SUITE_P(At, FormsOnScreen, testing::ValuesIn(GetScenes()), [](const auto& info) {
    std::string name = info.param.Name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

}  // namespace Testing
