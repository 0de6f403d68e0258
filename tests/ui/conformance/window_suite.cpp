// Windows: their classes, their modal loops, their end.
#include <gtest/gtest.h>
#include <string>

#include "tests/ui/conformance/adapter.h"
#include "ui/native.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

namespace {

// The text that `action` throws, or an empty one.
std::wstring GetFailure(const std::function<void()>& action) {
    try {
        action();
    } catch (const wchar_t* text) {
        return text;
    }
    return {};
}

}  // namespace

TEST(Windows, OfOneClassNameLiveOneAtATime) {
    {
        TestWindow first;
        EXPECT_EQ(GetFailure([] { TestWindow second; }), L"RegisterClassExW failed.");
        TestWindow other(nullptr, L"ConformanceOther");
    }
    EXPECT_EQ(GetFailure([] { TestWindow again; }), L"");
}

TEST(Windows, ThatCannotBeMadeLeaveNoClassBehind) {
    const int live = CountLive();
    {
        TestWindow parent;
        Break(parent.GetHandle());
        EXPECT_EQ(GetFailure([&] { TestWindow child(&parent, L"ConformanceChild"); }), L"CreateWindowExW failed.");
        EXPECT_EQ(GetFailure([] { TestWindow child(nullptr, L"ConformanceChild"); }), L"");
    }
    EXPECT_EQ(CountLive(), live);
}

TEST(Windows, ThatAreGoneTakeNoControls) {
    const int live = CountLive();
    {
        TestWindow window;
        Break(window.GetHandle());
        EXPECT_EQ(GetFailure([&] { Button button(window, L"Button"); }), L"CreateWindowExW failed.");
        EXPECT_TRUE(window.GetControls().empty());
    }
    EXPECT_EQ(CountLive(), live);
}

TEST(Windows, AreVisibleOnlyWhileTheyRun) {
    TestWindow window;
    Button button(window, L"Button");
    EXPECT_FALSE(window.IsVisible());
    EXPECT_FALSE(button.IsVisible());
    RunWith(window, {[&] {
                EXPECT_TRUE(window.IsVisible());
                EXPECT_TRUE(button.IsVisible());
                button.SetVisible(false);
                EXPECT_FALSE(button.IsVisible());
                EndRun(IdOk);
            }});
    EXPECT_FALSE(window.IsVisible());
}

TEST(Windows, RunAgainAfterTheirEnd) {
    TestWindow window;
    EXPECT_EQ(RunWith(window, {[] { EndRun(5); }}), 5);
    EXPECT_EQ(RunWith(window, {[] {}, [] {}, [] { EndRun(6); }}), 6);
}

TEST(Windows, EndWithTheLastResultThatWasGiven) {
    TestWindow window;
    EXPECT_EQ(RunWith(window, {[] {
                          EndRun(IdOk);
                          EndRun(IdCancel);
                      }}),
              IdCancel);
}

TEST(Windows, OnTopEndAloneAndTheirParentsRunOn) {
    TestWindow outer;
    std::string order;
    const int result = RunWith(outer, {[&] {
                                           TestWindow inner(&outer, L"ConformanceChild");
                                           EXPECT_EQ(RunWith(inner, {[] { EndRun(IdOk); }}), IdOk);
                                           order += "inner ";
                                       },
                                       [&] {
                                           EXPECT_TRUE(outer.IsVisible());
                                           order += "outer ";
                                           EndRun(IdCancel);
                                       }});
    EXPECT_EQ(result, IdCancel);
    EXPECT_EQ(order, "inner outer ");
}

TEST(Windows, OnThreeLevelsEndFromTheTop) {
    TestWindow first;
    const int result = RunWith(first, {[&] {
                                   TestWindow second(&first, L"ConformanceSecond");
                                   EXPECT_EQ(RunWith(second, {[&] {
                                                         TestWindow third(&second, L"ConformanceThird");
                                                         EXPECT_EQ(RunWith(third, {[] { EndRun(3); }}), 3);
                                                         EndRun(2);
                                                     }}),
                                             2);
                                   EndRun(1);
                               }});
    EXPECT_EQ(result, 1);
}

TEST(Windows, DisableTheirParentAndGiveItTheFocusBack) {
    TestWindow outer;
    TextBox box(outer);
    box.SetRect(10, 10, 100, 23);
    RunWith(outer, {[&] {
                box.SetFocus();
                EXPECT_TRUE(box.HasFocus());
                {
                    TestWindow inner(&outer, L"ConformanceChild");
                    TextBox innerBox(inner);
                    RunWith(inner, {[&] {
                                EXPECT_FALSE(outer.IsEnabled());
                                EXPECT_FALSE(box.HasFocus());
                                innerBox.SetFocus();
                                EXPECT_TRUE(innerBox.HasFocus());
                                EndRun(IdOk);
                            }});
                }
                EXPECT_TRUE(outer.IsEnabled());
                EXPECT_TRUE(box.HasFocus());
                EndRun(IdOk);
            }});
}

TEST(Windows, OpenWithTheFocusWhereTheFirstTabWouldPutIt) {
    TestWindow window;
    AllControls all(window);
    all.Box.SetText(L"2560");
    RunWith(window, {[&] {
                EXPECT_TRUE(all.Box.HasFocus());
                Type(L"7");
                EndRun(IdOk);
            }});
    EXPECT_EQ(all.Box.GetText(), L"7") << "the text was selected";
    // Each run begins anew, past what takes no input now.
    all.Box.SetEnabled(false);
    all.Lines.SetVisible(false);
    all.Check.SetTabStop(false);
    all.Radio.SetTabStop(true);
    RunWith(window, {[&] {
                EXPECT_TRUE(all.Radio.HasFocus());
                EndRun(IdOk);
            }});
    EXPECT_FALSE(all.Radio.IsChecked());
}

TEST(Windows, WithNothingToTabToHaveTheFocusThemselves) {
    TestWindow window;
    Label label(window, L"Label");
    RunWith(window, {[&] {
                EXPECT_TRUE(window.HasFocus());
                EndRun(IdOk);
            }});
}

TEST(Windows, HearOfTheirCloseBox) {
    TestWindow window;
    window.AddResultHandler(Message::Close, [](WParam, LParam) {
        EndRun(IdCancel);
        return MessageResult{0};
    });
    EXPECT_EQ(RunWith(window, {[&] { ClickCloseBox(window); }}), IdCancel);
}

TEST(Windows, KnowTheirControlsInTheOrderOfTheirMaking) {
    TestWindow window;
    Button first(window, L"first");
    Label second(window, L"second");
    auto third = std::make_unique<CheckBox>(window, L"third");
    EXPECT_EQ(window.GetControls(), (std::vector<Control*>{&first, &second, third.get()}));
    EXPECT_EQ(&first.GetWindow(), &window);
    third.reset();
    EXPECT_EQ(window.GetControls(), (std::vector<Control*>{&first, &second}));
}

TEST(Windows, AndControlsForgetTheirObjectBeforeTheyGo) {
    int messages = 0;
    const auto count = [&](WParam, LParam) { ++messages; };
    {
        TestWindow window;
        Button button(window, L"OK");
        window.AddMessageHandler(Message::Destroy, count);
        button.AddMessageHandler(Message::Destroy, count);
    }
    EXPECT_EQ(messages, 0);
}

TEST(Windows, KeepTheirStyleWhenTheDpiChanges) {
    TestWindow window;
    const int dpi = window.GetDpi();
    EXPECT_EQ(dpi, UI::GetDpi(window));
    const StyleTable before = window.GetStyle();
    Native::Send(window.GetHandle(), Message::DpiChanged, 0, 0);
    EXPECT_EQ(window.GetDpi(), dpi);
    EXPECT_EQ(window.GetStyle(), before);
}

TEST(Windows, TakeTheStyleOfAnotherDpiAndAreLaidOutAnew) {
    struct Form : TestWindow {
        int LaidOut = 0;

    protected:
        void LayOutAnew() override { ++LaidOut; }
    };
    Form window;
    AllControls all(window);
    const Theme theme = window.GetStyle().Theme;
    const int before = window.GetStyle().NormalFont.GetSpec().Height;
    int laidOut = 0;
    for (const int dpi : {144, 192, 120, 96}) {
        SetAppearance(Appearance{dpi, theme});
        Native::Send(window.GetHandle(), Message::DpiChanged, 0, 0);
        SetAppearance(std::nullopt);
        EXPECT_EQ(window.LaidOut, ++laidOut) << dpi;
        const StyleTable& table = window.GetStyle();
        EXPECT_TRUE(LooksAlike(table, BuildStyleTable(dpi, theme))) << dpi;
        EXPECT_EQ(table.NormalFont.GetSpec().Height == before, dpi == 96) << dpi;
        for (Control* control : all.All()) {
            const Font& font = control == &all.Lines ? table.MonospaceFont : table.NormalFont;
            EXPECT_EQ(control->GetFont(), font) << dpi;
        }
        EXPECT_EQ(all.Ok.GetStyle(), table.Button) << dpi;
        EXPECT_EQ(all.List.GetStyle().ItemHeight, table.ListBox.ItemHeight) << dpi;
        EXPECT_EQ(all.Group.GetStyle().Thickness, table.GroupBox.Thickness) << dpi;
    }
    Native::Send(window.GetHandle(), Message::DpiChanged, 0, 0);
    EXPECT_EQ(window.LaidOut, laidOut) << "the same DPI changes nothing";
}

TEST(Windows, OnTopOfAnotherOpenInItsThemeAndOnItsMonitor) {
    TestWindow outer;
    outer.SetPosition(120, 90);
    for (const Theme theme : {Theme::Dark, Theme::HighContrast, Theme::Light}) {
        ApplyTheme(outer, BuildStyleTable(outer.GetDpi(), theme));
        TestWindow inner(&outer, L"ConformanceChild");
        TextBox box(inner);
        EXPECT_EQ(inner.GetStyle().Theme, theme);
        EXPECT_EQ(box.GetStyle().States, outer.GetStyle().TextBox.States);
    }
    const std::wstring name = L"ConformanceChild";
    const UI::Window plain(&outer, name, L"Plain");
    const auto area = Native::GetWorkArea(outer.GetHandle());
    ASSERT_TRUE(area);
    EXPECT_EQ(plain.GetX(), area->Left) << "where it has room to grow";
    EXPECT_EQ(plain.GetY(), area->Top);
}

TEST(Windows, FollowTheThemeOfTheSystemAtOnce) {
    TestWindow outer;
    TestWindow window(&outer, L"ConformanceChild");
    AllControls all(window);
    for (const int message : {Message::SettingsChanged, Message::ThemeChanged, Message::SystemColorsChanged}) {
        for (const Theme theme : {Theme::Dark, Theme::HighContrast, Theme::Light}) {
            SetAppearance(Appearance{window.GetDpi(), theme});
            Native::Send(window.GetHandle(), message, 0, 0);
            SetAppearance(std::nullopt);
            EXPECT_EQ(window.GetStyle().Theme, theme) << message;
            EXPECT_EQ(all.Ok.GetStyle(), window.GetStyle().Button) << message;
            EXPECT_EQ(all.Lines.GetStyle(), window.GetStyle().MonospaceTextBox) << message;
            EXPECT_EQ(all.Group.GetStyle(), window.GetStyle().GroupBox) << message;
        }
    }
}

TEST(Windows, GiveANewStyleToEachOfTheirControls) {
    TestWindow window;
    AllControls all(window);
    for (Theme theme : {Theme::Dark, Theme::HighContrast, Theme::Light}) {
        const StyleTable table = BuildStyleTable(window.GetDpi(), theme);
        ApplyTheme(window, table);
        EXPECT_EQ(window.GetStyle(), table);
        EXPECT_EQ(IsDarkMode(window.GetStyle()), theme == Theme::Dark);
        EXPECT_EQ(all.Ok.GetStyle(), table.Button);
        EXPECT_EQ(all.Check.GetStyle(), table.UncheckedBox);
        EXPECT_EQ(all.Radio.GetStyle(), table.UncheckedRadio);
        EXPECT_EQ(all.Label.GetStyle(), table.Label);
        EXPECT_EQ(all.Group.GetStyle(), table.GroupBox);
        EXPECT_EQ(all.List.GetStyle(), table.ListBox);
        EXPECT_EQ(all.Combo.GetStyle(), table.ComboBox);
        EXPECT_EQ(all.Box.GetStyle(), table.TextBox);
        EXPECT_EQ(all.Lines.GetStyle(), table.MonospaceTextBox);
        EXPECT_EQ(all.Lines.GetFont(), table.MonospaceFont);
        EXPECT_EQ(all.Ok.GetFont(), table.NormalFont);
    }
}

// A user in a hurry, for as long as one leaked object of any kind in each window would fill the system's tables.
TEST(Windows, AThousandOfThemLeaveNothingBehind) {
    {
        TestWindow first;  // what the process makes once
        AllControls all(first);
    }
    const int live = CountLive();
    for (int i = 0; i < 1000; ++i) {
        TestWindow window;
        AllControls all(window);
        window.AddCommandHandler(IdOk, [] { EndRun(IdOk); });
        all.Ok.AddNotificationHandler(Button::Clicked, [] { EndRun(IdOk); });
        const int result = RunWith(window, {[&] {
                                       all.Box.SetFocus();
                                       Type(L"7");
                                       all.Box.SetValidStyle(i % 2 == 0);
                                       all.Group.SetValidStyle(i % 2 == 1);
                                       all.Check.SetChecked(true);
                                       all.List.SetSelection(i % 3);
                                       all.Ok.SetDefault(true);
                                       all.Combo.SetEnabled(false);
                                       all.Box.SetEnabled(false);
                                       Press(Key::Return);
                                   }});
        ASSERT_EQ(result, IdOk);
        ASSERT_EQ(all.Box.GetText(), L"7");
    }
    EXPECT_EQ(CountLive(), live);
}

}  // namespace Conformance
