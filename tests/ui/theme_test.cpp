// Which theme a system gets, and what a window does with it.
#include <gtest/gtest.h>

#include "ui/controls.h"
#include "ui/headless/driver.h"
#include "ui/window.h"

namespace {

using namespace UI;

class ThemeChoice : public testing::Test {
protected:
    Headless::Driver driver;
    Headless::SystemSettings& system = driver.GetSystem();
};

TEST_F(ThemeChoice, IsLightWhereTheUserWantsNothingElse) { EXPECT_EQ(ChooseTheme(), Theme::Light); }

TEST_F(ThemeChoice, IsDarkFromBuild17763OnWhereTheUserPrefersIt) {
    system.PrefersDark = true;
    system.Version = {10, 0, 17762};
    EXPECT_EQ(ChooseTheme(), Theme::Light);
    system.Version = {10, 0, 17763};
    EXPECT_EQ(ChooseTheme(), Theme::Dark);
    EXPECT_TRUE(IsDarkMode(BuildStyleTable(96)));
    system.PrefersDark = false;
    EXPECT_EQ(ChooseTheme(), Theme::Light);
    EXPECT_FALSE(IsDarkMode(BuildStyleTable(96)));
}

TEST_F(ThemeChoice, TakesTheBuildWithoutItsFlags) {
    EXPECT_TRUE(SupportsDarkMode({10, 0, 0xF0000000u + 17763}));
    EXPECT_FALSE(SupportsDarkMode({10, 0, 0xF0000000u + 17762}));
}

TEST_F(ThemeChoice, KnowsTheVersionsThatCanBeDark) {
    EXPECT_FALSE(SupportsDarkMode({0, 0, 0}));
    EXPECT_FALSE(SupportsDarkMode({6, 3, 99999}));
    EXPECT_TRUE(SupportsDarkMode({10, 1, 0}));
    EXPECT_TRUE(SupportsDarkMode({11, 0, 0}));
}

TEST_F(ThemeChoice, IsLightBeforeWindows10) {
    system.PrefersDark = true;
    system.Windows10OrGreater = false;
    EXPECT_EQ(ChooseTheme(), Theme::Light);
}

TEST_F(ThemeChoice, IsHighContrastBeforeDark) {
    system.PrefersDark = true;
    system.HighContrast = true;
    EXPECT_EQ(ChooseTheme(), Theme::HighContrast);
    system.Windows10OrGreater = false;
    EXPECT_EQ(ChooseTheme(), Theme::HighContrast);
    EXPECT_FALSE(IsDarkMode(BuildStyleTable(96)));
}

TEST_F(ThemeChoice, IsMadeWhenAWindowIsMadeAndStays) {
    system.SetTheme(Theme::Dark);
    Window window(nullptr, L"ThemeWindow", L"Theme");
    Controls::ListBox list(window);
    EXPECT_EQ(window.GetStyle().Theme, Theme::Dark);
    EXPECT_TRUE(window.GetHandle()->HasDarkParts);
    EXPECT_TRUE(list.GetHandle()->HasDarkParts);
    system.SetTheme(Theme::Light);
    EXPECT_EQ(window.GetStyle().Theme, Theme::Dark);
    ApplyTheme(window, BuildStyleTable(window.GetDpi()));
    EXPECT_EQ(list.GetStyle().States[ControlState::Normal].Background, 0xFFFFFFu);
    EXPECT_FALSE(window.GetHandle()->HasDarkParts);
    EXPECT_FALSE(list.GetHandle()->HasDarkParts);
}

TEST_F(ThemeChoice, TouchesNoDarkPartsBeforeWindows10) {
    system.Windows10OrGreater = false;
    Window window(nullptr, L"ThemeWindow", L"Theme");
    Controls::ListBox list(window);
    ApplyTheme(window, BuildStyleTable(96, Theme::Dark));
    EXPECT_FALSE(window.GetHandle()->HasDarkParts);
    EXPECT_FALSE(list.GetHandle()->HasDarkParts);
}

TEST_F(ThemeChoice, ReadsHighContrastColoursWhenTheTableIsBuilt) {
    system.SetTheme(Theme::HighContrast);
    system.Colors[SystemColor::ButtonFace] = 0x112233;
    const StyleTable before = BuildStyleTable(96);
    system.Colors[SystemColor::ButtonFace] = 0x445566;
    EXPECT_EQ(before.WindowBackground, 0x112233u);
    EXPECT_EQ(BuildStyleTable(96).WindowBackground, 0x445566u);
}

TEST_F(ThemeChoice, IsFollowedByOpenWindowsAtOnceAndByAForm) {
    Window window(nullptr, L"ThemeWindow", L"Theme");
    Controls::TextBox box(window);
    system.SetTheme(Theme::Dark);
    // A form that opens before the switch is told keeps to the window that it stands on.
    Window form(&window, L"ThemeForm", L"Form");
    EXPECT_EQ(form.GetStyle().Theme, Theme::Light);
    for (Window* each : {&window, &form}) Native::Send(each->GetHandle(), Message::SettingsChanged, 0, 0);
    EXPECT_EQ(window.GetStyle().Theme, Theme::Dark);
    EXPECT_EQ(form.GetStyle().Theme, Theme::Dark);
    EXPECT_EQ(box.GetStyle(), window.GetStyle().TextBox);
    system.SetTheme(Theme::HighContrast);
    Native::Send(window.GetHandle(), Message::ThemeChanged, 0, 0);
    EXPECT_EQ(window.GetStyle().Theme, Theme::HighContrast);
    system.Colors[SystemColor::ButtonFace] = 0x123456;
    Native::Send(window.GetHandle(), Message::SystemColorsChanged, 0, 0);
    EXPECT_EQ(window.GetStyle().WindowBackground, 0x123456u);
}

TEST_F(ThemeChoice, ThatStaysRestylesNothing) {
    Window window(nullptr, L"ThemeWindow", L"Theme");
    const StyleTable before = window.GetStyle();
    for (int message :
         {Message::SettingsChanged, Message::ThemeChanged, Message::SystemColorsChanged, Message::DpiChanged})
        Native::Send(window.GetHandle(), message, 0, 0);
    EXPECT_EQ(window.GetStyle(), before) << "the very fonts";
}

TEST_F(ThemeChoice, FramesAWindowAtItsDpi) {
    Window window(nullptr, L"ThemeWindow", L"Theme");
    window.SetClientSize(100, 100);
    const int edges = window.GetHeight() - window.GetClientHeight();
    system.Dpi = 192;
    Native::Send(window.GetHandle(), Message::DpiChanged, 0, 0);
    window.SetClientSize(100, 100);
    EXPECT_EQ(window.GetClientHeight(), 100);
    EXPECT_EQ(window.GetHeight() - 100, 2 * edges);
}

}  // namespace
