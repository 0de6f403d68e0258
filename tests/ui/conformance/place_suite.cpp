// Positions, sizes, texts.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/native.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;

TEST(Place, IsZeroAtFirstAndThenWhatWasSet) {
    TestWindow window;
    Button button(window, L"Button");
    EXPECT_EQ(button.GetWidth(), 0);
    EXPECT_EQ(button.GetHeight(), 0);
    EXPECT_TRUE(button.SetRect(10, 20, 30, 40));
    EXPECT_EQ(button.GetX(), 10);
    EXPECT_EQ(button.GetY(), 20);
    EXPECT_EQ(button.GetRight(), 40);
    EXPECT_EQ(button.GetBottom(), 60);
    const Rect place = Native::GetWindowPlace(button.GetHandle());
    EXPECT_EQ(place.Right - place.Left, 30);
    EXPECT_EQ(place.Bottom - place.Top, 40);
}

TEST(Place, StaysAsStoredWhenAMoveFails) {
    TestWindow window;
    Button button(window, L"Button");
    button.SetRect(10, 20, 30, 40);
    Break(button.GetHandle());
    EXPECT_FALSE(button.SetPosition(1, 2));
    EXPECT_FALSE(button.SetSize(3, 4));
    EXPECT_FALSE(button.SetRect(1, 2, 3, 4));
    EXPECT_EQ(button.GetX(), 10);
    EXPECT_EQ(button.GetY(), 20);
    EXPECT_EQ(button.GetWidth(), 30);
    EXPECT_EQ(button.GetHeight(), 40);
}

TEST(Place, FailsWhenEitherHalfDoesAndTriesBoth) {
    struct Stuck : Label {
        explicit Stuck(Window& window) : Label(window, L"Stuck") {}
        bool SetPosition(int, int) override { return false; }
    };
    TestWindow window;
    Stuck stuck(window);
    EXPECT_FALSE(stuck.SetRect(10, 20, 30, 40));
    EXPECT_EQ(stuck.GetX(), 0);
    EXPECT_EQ(stuck.GetWidth(), 30);
}

TEST(Place, OfAComboBoxIsThatOfTheClosedBox) {
    TestWindow window;
    ComboBox box(window);
    for (int i = 0; i < 40; ++i) box.AddItem(L"item");
    const int height = window.GetStyle().Metrics.ControlHeight;
    EXPECT_TRUE(box.SetRect(10, 20, 100, height));
    EXPECT_EQ(box.GetHeight(), height);
    const Rect place = Native::GetWindowPlace(box.GetHandle());
    EXPECT_EQ(place.Bottom - place.Top, height);
    EXPECT_EQ(place.Right - place.Left, 100);
}

TEST(Place, OfAGroupBoxPutsItsFourEdgesAround) {
    TestWindow window;
    GroupBox box(window, L"Group");
    EXPECT_TRUE(box.SetRect(20, 40, 200, 100));
    EXPECT_EQ(box.GetX(), 20);
    EXPECT_EQ(box.GetY(), 40);
    EXPECT_EQ(box.GetRight(), 220);
    EXPECT_EQ(box.GetBottom(), 140);

    const Padding edge = box.GetStyle().Thickness;
    const int caption = box.GetFont().GetMetrics().Height;
    EXPECT_EQ(box.GetOverhang(), edge.Top + caption / 2);
    const Control& left = box.GetLeftEdge();
    EXPECT_EQ(left.GetX(), 20);
    EXPECT_EQ(left.GetY(), 40 + edge.Top);
    EXPECT_EQ(left.GetWidth(), edge.Left);
    EXPECT_EQ(left.GetHeight(), 100 - edge.Top - edge.Bottom);
    const Control& right = box.GetRightEdge();
    EXPECT_EQ(right.GetRight(), 220);
    EXPECT_EQ(right.GetY(), left.GetY());
    EXPECT_EQ(right.GetHeight(), left.GetHeight());
    const Control& bottom = box.GetBottomEdge();
    EXPECT_EQ(bottom.GetX(), 20);
    EXPECT_EQ(bottom.GetBottom(), 140);
    EXPECT_EQ(bottom.GetWidth(), 200);

    // The top edge with the caption: from above the box down to where the sides begin.
    const Rect top = Native::GetWindowPlace(box.GetHandle());
    const Rect side = Native::GetWindowPlace(left.GetHandle());
    EXPECT_EQ(top.Left, side.Left);
    EXPECT_EQ(top.Right - top.Left, 200);
    EXPECT_EQ(side.Top - top.Top, edge.Top + box.GetOverhang());
    EXPECT_EQ(top.Bottom - top.Top, caption / 2 + edge.Top + edge.Bottom);
}

TEST(Place, OfAGroupBoxFailsWhenAnyEdgeDoes) {
    for (int broken = 0; broken < 4; ++broken) {
        TestWindow window;
        GroupBox box(window, L"Group");
        EXPECT_TRUE(box.SetRect(20, 40, 200, 100));
        Control* const parts[] = {&box, &box.GetLeftEdge(), &box.GetRightEdge(), &box.GetBottomEdge()};
        Break(parts[broken]->GetHandle());
        EXPECT_FALSE(box.SetPosition(1, 2)) << broken;
        EXPECT_FALSE(box.SetSize(3, 4)) << broken;
        EXPECT_EQ(box.GetX(), 20);
        EXPECT_EQ(box.GetHeight(), 100);
    }
}

TEST(Place, OfAGroupBoxStaysWhenItsStyleChanges) {
    TestWindow window;
    GroupBox box(window, L"Group");
    box.SetRect(20, 40, 200, 100);
    const Rect before = Native::GetWindowPlace(box.GetHandle());
    box.SetValidStyle(false);
    EXPECT_FALSE(box.HasValidStyle());
    EXPECT_EQ(box.GetTextColor(), 0x0000FFu);
    EXPECT_EQ(box.GetBorderColor(), 0x0000FFu);
    EXPECT_EQ(box.GetX(), 20);
    EXPECT_EQ(box.GetHeight(), 100);
    EXPECT_EQ(Native::GetWindowPlace(box.GetHandle()), before);
    box.SetValidStyle(true);
    EXPECT_EQ(box.GetTextColor(), window.GetStyle().Label.Text);
}

TEST(Place, OfAGroupBoxFollowsTheCaptionOfItsStyle) {
    TestWindow window;
    GroupBox box(window, L"Group");
    StyleTable table = window.GetStyle();
    table.InvalidGroupBox.Caption.Font = Font({L"Tahoma", 40, 400});
    ApplyTheme(window, table);
    box.SetRect(20, 40, 200, 100);
    const Rect side = Native::GetWindowPlace(box.GetLeftEdge().GetHandle());
    const Rect before = Native::GetWindowPlace(box.GetHandle());
    box.SetValidStyle(false);
    const Rect after = Native::GetWindowPlace(box.GetHandle());
    const int caption = box.GetFont().GetMetrics().Height;
    EXPECT_EQ(box.GetOverhang(), table.InvalidGroupBox.Thickness.Top + caption / 2);
    EXPECT_LT(after.Top, before.Top);
    EXPECT_EQ(after.Bottom, before.Bottom);
    EXPECT_EQ(Native::GetWindowPlace(box.GetLeftEdge().GetHandle()), side);
}

TEST(Place, OfAWindowHasTheClientSizeThatWasSet) {
    TestWindow window;
    EXPECT_TRUE(window.SetClientSize(321, 123));
    EXPECT_EQ(window.GetClientWidth(), 321);
    EXPECT_EQ(window.GetClientHeight(), 123);
    EXPECT_GE(window.GetWidth(), 321);
    EXPECT_GT(window.GetHeight(), 123);
    const Rect place = Native::GetWindowPlace(window.GetHandle());
    EXPECT_EQ(window.GetWidth(), place.Right - place.Left);
    EXPECT_EQ(window.GetX(), place.Left);
}

TEST(Place, OfAWindowIsNeverBelowItsLeastSize) {
    TestWindow window;
    window.SetMinimumSize(500, 300);
    window.SetClientSize(300, 200);
    EXPECT_EQ(window.GetWidth(), 500);
    EXPECT_EQ(window.GetHeight(), 300);
    window.SetClientSize(600, 400);
    EXPECT_EQ(window.GetClientWidth(), 600);
}

TEST(Place, OfAWindowChangesInOneStep) {
    TestWindow window;
    window.SetMinimumSize(300, 200);
    std::vector<Rect> places;
    window.AddMessageHandler(Message::WindowPosChanged,
                             [&](WParam, LParam) { places.push_back(Native::GetWindowPlace(window.GetHandle())); });
    EXPECT_TRUE(Native::Place(window.GetHandle(), {100, 50, 500, 350}));
    EXPECT_EQ(places, (std::vector<Rect>{{100, 50, 500, 350}}));
    EXPECT_TRUE(Native::Place(window.GetHandle(), {10, 20, 30, 40}));
    EXPECT_EQ(Native::GetWindowPlace(window.GetHandle()), (Rect{10, 20, 310, 220}));
    Break(window.GetHandle());
    EXPECT_FALSE(Native::Place(window.GetHandle(), {100, 50, 500, 350}));
}

TEST(Place, IsCentredOnTheParentWithinTheWorkArea) {
    TestWindow parent;
    TestWindow window(&parent, L"ConformanceChild");
    parent.SetPosition(100, 100);
    window.SetClientSize(200, 100);
    window.Center();
    EXPECT_EQ(window.GetX(), parent.GetX() + (parent.GetWidth() - window.GetWidth()) / 2);
    EXPECT_EQ(window.GetY(), parent.GetY() + (parent.GetHeight() - window.GetHeight()) / 2);
    const auto area = Native::GetWorkArea(parent.GetHandle());
    ASSERT_TRUE(area);
    parent.SetPosition(area->Left - 500, area->Top - 380);
    window.Center();
    EXPECT_EQ(window.GetX(), area->Left);
    EXPECT_EQ(window.GetY(), area->Top);
    parent.SetPosition(area->Right - 100, area->Bottom - 50);
    window.Center();
    EXPECT_EQ(window.GetX() + window.GetWidth(), area->Right);
    EXPECT_EQ(window.GetY() + window.GetHeight(), area->Bottom);
}

TEST(Place, IsCentredInTheWorkAreaWithoutAParent) {
    TestWindow window;
    const auto area = Native::GetWorkArea(window.GetHandle());
    ASSERT_TRUE(area);
    window.Center();
    EXPECT_EQ(window.GetX(), area->Left + (area->Right - area->Left - window.GetWidth()) / 2);
    EXPECT_EQ(window.GetY(), area->Top + (area->Bottom - area->Top - window.GetHeight()) / 2);
}

TEST(Place, HasRoomForTheTextThatWasMeasured) {
    TestWindow window;
    AllControls all(window);
    const LayoutMetrics& metrics = window.GetStyle().Metrics;
    const int text = MeasureText(window.GetStyle().NormalFont, L"Add...").Width;
    EXPECT_GT(text, 0);
    EXPECT_EQ(all.Ok.Measure(L"Add..."),
              (Size{text + metrics.ButtonTextPadding.Left + metrics.ButtonTextPadding.Right, metrics.ControlHeight}));
    EXPECT_EQ(all.Label.Measure(L"Add...").Width, text);
    EXPECT_GE(all.Check.Measure(L"Add...").Width, metrics.CheckBoxColumn + text);
    EXPECT_GT(all.Box.Measure(L"Add...").Width, text);
    EXPECT_EQ(all.Box.Measure(L"Add...").Height, metrics.ControlHeight);
    EXPECT_GE(all.Combo.Measure(L"Add...").Width, text + metrics.ScrollBarWidth);
    EXPECT_GE(all.List.Measure(L"Add...").Width, text + metrics.ScrollBarWidth);
    EXPECT_GT(all.Box.Measure(L"000000").Width, all.Box.Measure(L"000").Width);
    EXPECT_EQ(MeasureText(window.GetStyle().NormalFont, L"").Width, 0);
}

TEST(Place, CentresASingleLineAndPadsSeveral) {
    TestWindow window;
    TextBox single(window);
    TextBox several(window, TextBox::MultiLine);
    const int font = single.GetFont().GetMetrics().Height;
    EXPECT_EQ(single.GetTextInset(font + 10).Top, 5);
    EXPECT_EQ(single.GetTextInset(font + 10).Bottom, 5);
    const Padding& padding = several.GetStyle().TextPadding;
    EXPECT_EQ(several.GetTextInset(200), padding);
    EXPECT_EQ(single.GetTextInset(200).Left, padding.Left);
    EXPECT_EQ(single.GetTextInset(200).Right, padding.Right);
}

TEST(Text, IsKeptOnlyWhenTheSystemTookIt) {
    TestWindow window;
    Label label(window, L"first");
    EXPECT_EQ(label.GetText(), L"first");
    EXPECT_TRUE(label.SetText(L"second"));
    EXPECT_EQ(label.GetText(), L"second");
    MessageResult answer = 0;
    label.AddResultHandler(Message::SetText, [&](WParam, LParam) { return answer; });
    EXPECT_FALSE(label.SetText(L"third"));
    EXPECT_EQ(label.GetText(), L"second");
    answer = 2;
    EXPECT_FALSE(label.SetText(L"fourth"));
    EXPECT_EQ(label.GetText(), L"second");
    answer = 1;
    EXPECT_TRUE(label.SetText(L"fifth"));
    EXPECT_EQ(label.GetText(), L"fifth");
}

TEST(Text, IsNotAskedOfTheSystem) {
    TestWindow window;
    Label label(window, L"kept");
    Break(label.GetHandle());
    EXPECT_EQ(label.GetText(), L"kept");
}

TEST(Text, OfABoxFollowsWhatIsTyped) {
    TestWindow window;
    AllControls all(window);
    int heard = 0;
    std::wstring seen;
    all.Box.AddNotificationHandler(TextBox::Changed, [&] {
        ++heard;
        seen = all.Box.GetText();
    });
    RunWith(window, {[&] {
                all.Box.SetFocus();
                Type(L"12");
                EXPECT_EQ(heard, 2);
                EXPECT_EQ(seen, L"12");
                Press(Key::Back);
                EXPECT_EQ(seen, L"1");
                EndRun(IdOk);
            }});
    EXPECT_EQ(all.Box.GetText(), L"1");
}

TEST(Text, OfABoxThatTheProgramSetsNotifiesNobody) {
    TestWindow window;
    AllControls all(window);
    int heard = 0;
    all.Box.AddNotificationHandler(TextBox::Changed, [&] { ++heard; });
    all.Lines.AddNotificationHandler(TextBox::Changed, [&] { ++heard; });
    all.Box.SetText(L"set");
    all.Lines.SetText(L"set");
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(all.Box.DispatchNotification(TextBox::Changed));
    EXPECT_EQ(heard, 1);
}

TEST(Text, OfABoxWithALimitTakesNoMore) {
    TestWindow window;
    AllControls all(window);
    all.Box.SetLimit(3);
    RunWith(window, {[&] {
                all.Box.SetFocus();
                Type(L"PNPX");
                EndRun(IdOk);
            }});
    EXPECT_EQ(all.Box.GetText(), L"PNP");
}

TEST(Text, OfSeveralLinesHasLineFeeds) {
    TestWindow window;
    AllControls all(window);
    EXPECT_TRUE(all.Lines.SetText(L"00 FF\n01"));
    EXPECT_EQ(all.Lines.GetText(), L"00 FF\n01");
    EXPECT_EQ(Native::GetText(all.Lines.GetHandle()), L"00 FF\n01");
}

TEST(Text, OfABoxIsSelectedByPosition) {
    TestWindow window;
    TextBox box(window);
    box.SetText(L"abcdef");
    int begin = -1;
    int end = -1;
    box.Select(2, 4);
    box.GetSelection(begin, end);
    EXPECT_EQ(begin, 2);
    EXPECT_EQ(end, 4);
    box.Select(0, -1);
    box.GetSelection(begin, end);
    EXPECT_EQ(begin, 0);
    EXPECT_EQ(end, 6);
}

}  // namespace Conformance
