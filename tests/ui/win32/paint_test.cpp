// What is seen on the screen, and how often it is touched.
#include <gtest/gtest.h>
#include <set>

#include "tests/support/contrast.h"
#include "tests/support/window_layout.h"
#include "tests/ui/conformance/adapter.h"
#include "ui/win32/canvas.h"
#include "ui/win32/picture.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;
using namespace UI::Win32;

namespace {

constexpr Color Red = 0x0000FF;

int CountBlits(const std::function<void()>& action) {
    const int before = Canvas::CountShown();
    action();
    return Canvas::CountShown() - before;
}

void WithOpenWindow(const std::function<void(TestWindow&, AllControls&)>& action) {
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                window.SetFocus();
                action(window, all);
                EndRun(IdOk);
            }});
}

void WithEachTheme(const std::function<void(TestWindow&, AllControls&)>& action) {
    for (Theme theme : {Theme::Light, Theme::Dark, Theme::HighContrast}) {
        WithOpenWindow([&](TestWindow& window, AllControls& all) {
            ApplyTheme(window, BuildStyleTable(window.GetDpi(), theme));
            action(window, all);
        });
    }
}

// Counted from the corner of the control's window; its client area may begin later.
Color GetPixelOf(const Control& control, int x, int y) {
    return GetPixel(WindowDC(ToWindow(control.GetHandle())), x, y);
}

Color GetPixelOf(const UI::Window& window, int x, int y) {
    return GetPixel(ClientDC(ToWindow(window.GetHandle())), x, y);
}

std::set<Color> GetColors(const Control& control) {
    const WindowDC dc(ToWindow(control.GetHandle()));
    const Rect place = Native::GetWindowPlace(control.GetHandle());
    std::set<Color> colors;
    for (int y = 0; y < place.Bottom - place.Top; ++y) {
        for (int x = 0; x < place.Right - place.Left; ++x) colors.insert(GetPixel(dc, x, y));
    }
    return colors;
}

}  // namespace

TEST(Painting, TouchesTheScreenOnceForEachDrawnWindow) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        for (Control* control : std::vector<Control*>{&all.Ok, &all.Check, &all.Radio, &all.Label, &all.Combo}) {
            EXPECT_EQ(CountBlits([&] { control->Redraw(); }), 1);
        }
        EXPECT_EQ(CountBlits([&] { all.Group.Redraw(); }), 4) << "its four windows";
    });
}

TEST(Painting, TouchesTheScreenOnceForTheClientAreaAndOnceForTheFrame) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        const auto paintClient = [](Control& control) {
            RedrawWindow(ToWindow(control.GetHandle()), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        };
        EXPECT_EQ(CountBlits([&] { paintClient(all.List); }), 1);
        all.Box.SetEnabled(false);
        EXPECT_EQ(CountBlits([&] { paintClient(all.Box); }), 1);
        for (Control* control : std::vector<Control*>{&all.List, &all.Box, &all.Lines}) {
            EXPECT_EQ(CountBlits([&] { Native::RedrawFrame(control->GetHandle()); }), 1);
        }
    });
}

TEST(Painting, OfOneItemTouchesTheScreenOnce) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        for (Control* list : std::vector<Control*>{&all.List, &all.Combo}) {
            HWND handle = ToWindow(list->GetHandle());
            const ClientDC dc(handle);
            DRAWITEMSTRUCT item{};
            item.hwndItem = handle;
            item.hDC = dc;
            item.rcItem = {0, 0, 50, 16};
            const auto draw = [&] {
                Native::Send(window.GetHandle(), Message::DrawItem, 0, reinterpret_cast<LPARAM>(&item));
            };
            EXPECT_EQ(CountBlits(draw), 1);
            // What the system asks for an empty list.
            item.itemID = static_cast<UINT>(-1);
            EXPECT_EQ(CountBlits(draw), 0);
        }
    });
}

TEST(Painting, ErasesNothingFirst) {
    WithOpenWindow([](TestWindow&, AllControls& all) {
        for (Control* control : std::vector<Control*>{&all.Ok, &all.Check, &all.Radio, &all.Label, &all.Combo,
                                                      &all.List, &all.Group, &all.Group.GetLeftEdge()}) {
            const ClientDC dc(ToWindow(control->GetHandle()));
            const Color before = GetPixel(dc, 1, 1);
            EXPECT_EQ(Tell(control->GetHandle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<HDC>(dc))), 1);
            EXPECT_EQ(GetPixel(dc, 1, 1), before);
        }
    });
}

TEST(Painting, OfTheWindowLeavesItsControlsAlone) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        EXPECT_EQ(CountBlits([&] {
                      RedrawWindow(ToWindow(window.GetHandle()), nullptr, nullptr,
                                   RDW_INVALIDATE | RDW_NOCHILDREN | RDW_UPDATENOW);
                  }),
                  0);
        EXPECT_EQ(GetPixelOf(window, all.Ok.GetX() + 5, all.Ok.GetY() + 5), GetPixelOf(all.Ok, 5, 5));
    });
}

TEST(Painting, HoveringOverATextOrAListRedrawsItsFrameAlone) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        window.Redraw();
        int paints = 0;
        for (AnyHotControl* control : std::vector<AnyHotControl*>{&all.List, &all.Box, &all.Lines}) {
            control->AddMessageHandler(Message::Paint, [&](WParam, LParam) { ++paints; });
            EXPECT_GE(CountBlits([&] { Hover(*control); }), 1);
            EXPECT_TRUE(control->IsHot());
        }
        MovePointerAway();
        EXPECT_EQ(paints, 0);
    });
}

TEST(Painting, ShowsThePalette) {
    WithEachTheme([](TestWindow& window, AllControls& all) {
        const StyleTable& table = window.GetStyle();
        EXPECT_EQ(GetPixelOf(window, 590, 395), table.WindowBackground);
        const int middle = all.Ok.GetHeight() / 2;
        EXPECT_EQ(GetPixelOf(all.Ok, 0, middle), table.Button.States[ControlState::Normal].Border);
        EXPECT_EQ(GetPixelOf(all.Ok, 4, middle), table.Button.States[ControlState::Normal].Background);
        EXPECT_TRUE(Shows(all.Ok, table.Button.States[ControlState::Normal].Text));
        EXPECT_TRUE(Shows(all.Label, table.Label.Text));
        EXPECT_EQ(GetPixelOf(all.Box, 0, middle), table.TextBox.States[ControlState::Normal].Border);
        EXPECT_EQ(GetPixelOf(all.Box, 2, middle), table.TextBox.States[ControlState::Normal].Background);
        EXPECT_EQ(GetPixelOf(all.Combo, 0, middle), table.ComboBox.States[ControlState::Normal].Border);
        EXPECT_TRUE(Shows(all.Combo, table.ComboBox.Arrow));
        EXPECT_TRUE(Shows(all.Group, table.GroupBox.Border));
        EXPECT_TRUE(Shows(all.Group.GetBottomEdge(), table.GroupBox.Border));
        all.List.SetSelection(0);
        EXPECT_TRUE(Shows(all.List, table.ListBox.SelectedBackground));
    });
}

TEST(Painting, ShowsDisabledControlsInTheirColours) {
    WithEachTheme([](TestWindow& window, AllControls& all) {
        const StyleTable& table = window.GetStyle();
        for (Control* control : all.All()) control->SetEnabled(false);
        window.Redraw();
        for (TextBox* box : {&all.Box, &all.Lines}) {
            box->SetText(L"HHHH");
            const StateStyle& style = table.TextBox.States[ControlState::Disabled];
            EXPECT_TRUE(Shows(*box, style.Text));
            EXPECT_TRUE(Shows(*box, style.Border));
            EXPECT_EQ(GetPixelOf(*box, 2, box->GetHeight() / 2), style.Background);
        }
        EXPECT_TRUE(Shows(all.Ok, table.Button.States[ControlState::Disabled].Text));
        EXPECT_TRUE(Shows(all.Label, table.Label.DisabledText));
        EXPECT_TRUE(Shows(all.Check, table.Label.DisabledText));
        EXPECT_TRUE(Shows(all.Combo, table.ComboBox.DisabledArrow));
        EXPECT_TRUE(Shows(all.Group, table.GroupBox.DisabledBorder));
    });
}

TEST(Painting, ShowsInvalidControlsInRed) {
    WithEachTheme([](TestWindow&, AllControls& all) {
        all.Box.SetText(L"HHHH");
        EXPECT_FALSE(Shows(all.Box, Red));
        all.Box.SetValidStyle(false);
        all.Group.SetValidStyle(false);
        EXPECT_EQ(GetPixelOf(all.Box, 0, all.Box.GetHeight() / 2), Red);
        const ClientDC inside(ToWindow(all.Box.GetHandle()));
        const RECT area = GetClientArea(ToWindow(all.Box.GetHandle()));
        bool text = false;
        for (int i = 0; i < 40 * area.bottom; ++i) text = text || GetPixel(inside, i % 40, i / 40) == Red;
        EXPECT_TRUE(text);
        for (Control* part : std::vector<Control*>{&all.Group, &all.Group.GetLeftEdge(), &all.Group.GetRightEdge()}) {
            EXPECT_TRUE(Shows(*part, Red));
        }
    });
}

TEST(Painting, ShowsTheDefaultButtonAsFocused) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        all.Ok.SetDefault(true);
        EXPECT_EQ(GetPixelOf(all.Ok, 0, all.Ok.GetHeight() / 2),
                  window.GetStyle().Button.States[ControlState::Focused].Border);
    });
}

TEST(Painting, ShowsTheListThatDroppedDownAsPressed) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        Click(all.Combo);
        EXPECT_TRUE(all.Combo.IsDroppedDown());
        EXPECT_EQ(GetPixelOf(all.Combo, 0, all.Combo.GetHeight() / 2),
                  window.GetStyle().ComboBox.States[ControlState::Pressed].Border);
        Press(Key::Escape);
    });
}

TEST(Painting, ShowsAReadableTextInAHotComboBoxOfEveryTheme) {
    WithEachTheme([](TestWindow&, AllControls& all) {
        all.Combo.SetSelection(0);
        Hover(all.Combo);
        RECT text = GetClientArea(ToWindow(all.Combo.GetHandle()));
        text.right -= all.Combo.GetStyle().ArrowWidth;
        InflateRect(&text, -3, -3);
        const ClientDC dc(ToWindow(all.Combo.GetHandle()));
        const Color face = GetPixel(dc, text.left, text.top);
        double most = 1;
        for (LONG y = text.top; y < text.bottom; ++y) {
            for (LONG x = text.left; x < text.right; ++x)
                most = std::max(most, Testing::GetContrast(GetPixel(dc, x, y), face));
        }
        EXPECT_GE(most, 4.5);
        MovePointerAway();
    });
}

TEST(Painting, RoundsWithoutGaps) {
    WithOpenWindow([](TestWindow& window, AllControls& all) {
        const CheckStyle& style = all.Radio.GetStyle();
        const int top = (all.Radio.GetHeight() - style.BoxSize) / 2;
        for (int i = 0; i < style.BoxSize; ++i) {
            // Each line across the circle meets its border at both sides, and both sides are alike.
            int first = -1;
            int last = -1;
            for (int x = 0; x < style.BoxSize; ++x) {
                if (GetPixelOf(all.Radio, x, top + i) == window.GetStyle().WindowBackground) continue;
                if (first < 0) first = x;
                last = x;
            }
            ASSERT_GE(first, 0);
            EXPECT_EQ(first, style.BoxSize - 1 - last);
            EXPECT_NE(GetPixelOf(all.Radio, first, top + i), style.Box[ControlState::Normal].Background);
        }
    });
}

TEST(Painting, MarksTheFocusOnlyWhereMarksAreShown) {
    struct Marked : Button {
        using Button::Button;
        bool ShowsFocus() const override { return Shows; }
        bool Shows = false;
    };
    TestWindow window;
    Marked button(window, L"OK");
    button.SetRect(10, 10, 80, 23);
    RunWith(window, {[&] {
                button.SetFocus();
                const auto plain = GetColors(button);
                button.Shows = true;
                button.Redraw();
                EXPECT_NE(GetColors(button), plain);
                window.SetFocus();
                EXPECT_EQ(GetPixelOf(button, 2, 2), window.GetStyle().Button.States[ControlState::Normal].Background);
                EndRun(IdOk);
            }});
}

// What shows outside the view of a window that scrolls.
class ScrolledOut : public testing::Test {
protected:
    static constexpr Rect View{0, 0, 580, 200};

    ScrolledOut() {
        all.Ok.SetPosition(20, View.Bottom + 20);
        for (Control* control : scrolled) control->SetView(View);
        window.BeginScrolling(View, 1000);
    }
    // Draws the control anew where it stands, and in the states that a user brings it into.
    void Draw(Control& control) {
        control.Redraw();
        control.SetEnabled(false);
        control.SetEnabled(true);
        control.SetFocus();
        if (control.GetKind() == ControlKind::Edit) Type(L"WWWW");
        window.SetFocus();
    }
    std::wstring FindStray() {
        UpdateWindow(ToWindow(window.GetHandle()));
        const std::vector<Color> shown = ReadPicture(window);
        return VNT::Testing::FindStray(
            window, [&](int x, int y) { return shown.at(static_cast<std::size_t>(y * window.GetClientWidth() + x)); });
    }

    TestWindow window;
    AllControls all{window};
    std::vector<Control*> scrolled{&all.Group, &all.Label, &all.Box,   &all.Lines,
                                   &all.Check, &all.Radio, &all.Combo, &all.List};
};

TEST_F(ScrolledOut, ShowsNothingOfAnyControlHoweverItIsDrawn) {
    RunWith(window, {[&] {
                // Across the edge of the view, just below it, and beside the button that stays.
                for (const int top : {View.Bottom - 10, View.Bottom, View.Bottom + 15, View.Bottom + 100}) {
                    for (Control* control : scrolled) {
                        const int before = control->GetY();
                        control->SetPosition(260, top);
                        Draw(*control);
                        EXPECT_EQ(FindStray(), L"") << static_cast<int>(control->GetKind()) << " at " << top;
                        window.Redraw();
                        EXPECT_EQ(FindStray(), L"") << static_cast<int>(control->GetKind()) << " at " << top;
                        control->SetPosition(12, before);
                    }
                }
                EndRun(IdOk);
            }});
}

TEST_F(ScrolledOut, ShowsWhatHasNoView) {
    RunWith(window, {[&] {
                all.Label.SetView(std::nullopt);
                all.Label.SetPosition(260, View.Bottom + 20);
                EXPECT_EQ(FindStray(), L"");
                all.Label.SetView(View);
                EXPECT_EQ(FindStray(), L"");
                // A control that shows although its view says otherwise is seen.
                Native::Clip(all.Label.GetHandle(), std::nullopt);
                window.Redraw();
                EXPECT_NE(FindStray(), L"");
                EndRun(IdOk);
            }});
}

}  // namespace Conformance
