// The style table against the numbers it is made of: every length at four resolutions, every colour in three themes.
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ui/headless/driver.h"
#include "ui/window.h"

namespace {

using namespace UI;
using enum SystemColor;

constexpr std::array<int, 4> Resolutions{96, 120, 144, 192};
constexpr Color Red = 0x0000FF;

TEST(StyleMetrics, AreThoseOfEachResolution) {
    struct Row {
        const char* Name;
        std::array<int, 4> Lengths;
        int LayoutMetrics::*Metric;
    };
    const Row rows[] = {
        {"Spacing", {8, 10, 12, 16}, &LayoutMetrics::Spacing},
        {"SmallSpacing", {4, 5, 6, 8}, &LayoutMetrics::SmallSpacing},
        {"ControlHeight", {23, 29, 35, 47}, &LayoutMetrics::ControlHeight},
        {"OkButtonWidth", {92, 115, 138, 184}, &LayoutMetrics::OkButtonWidth},
        {"OkButtonHeight", {23, 29, 35, 47}, &LayoutMetrics::OkButtonHeight},
        {"FormWidth", {192, 240, 288, 384}, &LayoutMetrics::FormWidth},
        {"BorderWidth", {1, 1, 1, 2}, &LayoutMetrics::BorderWidth},
        {"CornerRadius", {3, 3, 4, 6}, &LayoutMetrics::CornerRadius},
        {"FocusInset", {2, 2, 3, 4}, &LayoutMetrics::FocusInset},
        {"CheckBoxSize", {13, 16, 19, 26}, &LayoutMetrics::CheckBoxSize},
        {"CheckBoxColumn", {16, 20, 24, 32}, &LayoutMetrics::CheckBoxColumn},
        {"CheckMarkThickness", {2, 2, 3, 4}, &LayoutMetrics::CheckMarkThickness},
        {"ScrollBarWidth", {17, 21, 25, 34}, &LayoutMetrics::ScrollBarWidth},
    };
    const Headless::Driver driver;
    for (std::size_t i = 0; i < Resolutions.size(); ++i) {
        const LayoutMetrics metrics = BuildStyleTable(Resolutions[i], Theme::Light).Metrics;
        for (const Row& row : rows) EXPECT_EQ(metrics.*row.Metric, row.Lengths[i]) << row.Name << Resolutions[i];
        const int spacing = metrics.Spacing;
        EXPECT_EQ(metrics.WindowPadding, (Padding{spacing, spacing, spacing, spacing}));
        const int text = std::array<int, 4>{2, 2, 2, 4}[i];
        EXPECT_EQ(metrics.ButtonTextPadding, (Padding{text, text, text, text}));
    }
}

TEST(StyleMetrics, AreTheSameInEveryTheme) {
    const Headless::Driver driver;
    for (int dpi : Resolutions) {
        const LayoutMetrics light = BuildStyleTable(dpi, Theme::Light).Metrics;
        EXPECT_EQ(BuildStyleTable(dpi, Theme::Dark).Metrics, light);
        EXPECT_EQ(BuildStyleTable(dpi, Theme::HighContrast).Metrics, light);
    }
}

TEST(StyleMetrics, ReachTheControls) {
    const Headless::Driver driver;
    for (int dpi : Resolutions) {
        const StyleTable table = BuildStyleTable(dpi, Theme::Dark);
        const LayoutMetrics& metrics = table.Metrics;
        EXPECT_EQ(table.Button.TextPadding, metrics.ButtonTextPadding);
        for (const CheckStyle* check :
             {&table.UncheckedBox, &table.CheckedBox, &table.UncheckedRadio, &table.CheckedRadio}) {
            EXPECT_EQ(check->BoxSize, metrics.CheckBoxSize);
            EXPECT_EQ(check->TextColumn, metrics.CheckBoxColumn);
            EXPECT_EQ(check->MarkThickness, metrics.CheckMarkThickness);
            EXPECT_EQ(check->FocusInset, metrics.FocusInset);
        }
        for (const StateStyles* states :
             {&table.Button.States, &table.DefaultButton.States, &table.CheckedBox.Box, &table.ListBox.States,
              &table.ComboBox.States, &table.TextBox.States, &table.InvalidTextBox.States}) {
            for (const StateStyle& style : states->Styles) {
                EXPECT_EQ(style.BorderWidth, metrics.BorderWidth);
                EXPECT_EQ(style.CornerRadius, metrics.CornerRadius);
            }
        }
        EXPECT_EQ(table.GroupBox.BorderWidth, metrics.BorderWidth);
        EXPECT_EQ(table.GroupBox.CornerRadius, metrics.CornerRadius);
        // The caption fits the top edge, and the corners fit the edges.
        const Padding& edge = table.GroupBox.Thickness;
        EXPECT_GE(table.NormalFont.GetMetrics().Height / 2 + edge.Top + edge.Bottom,
                  table.NormalFont.GetMetrics().Height);
        EXPECT_GE(edge.Left, metrics.CornerRadius);
    }
}

TEST(StyleFonts, AreThreeOfTheSameHeight) {
    const Headless::Driver driver;
    constexpr std::array<int, 4> heights{16, 20, 24, 32};
    for (std::size_t i = 0; i < Resolutions.size(); ++i) {
        const StyleTable table = BuildStyleTable(Resolutions[i], Theme::Light);
        EXPECT_EQ(table.NormalFont.GetSpec(), (FontSpec{L"Tahoma", heights[i], 400}));
        EXPECT_EQ(table.BoldFont.GetSpec(), (FontSpec{L"Tahoma", heights[i], 700}));
        EXPECT_EQ(table.MonospaceFont.GetSpec(), (FontSpec{L"Consolas", heights[i], 400}));
        for (const Font& font : {table.Button.Font, table.UncheckedBox.Font, table.UncheckedRadio.Font,
                                 table.Label.Font, table.GroupBox.Caption.Font, table.ListBox.Font, table.ComboBox.Font,
                                 table.TextBox.Font, table.InvalidTextBox.Font}) {
            EXPECT_EQ(font, table.NormalFont);
        }
        EXPECT_EQ(table.MonospaceTextBox.Font, table.MonospaceFont);
        EXPECT_EQ(table.InvalidMonospaceTextBox.Font, table.MonospaceFont);
    }
}

// One colour in the three themes; high contrast is named by the system's colour.
struct Shade {
    Color Light;
    Color Dark;
    SystemColor HighContrast;

    Color In(Theme theme) const {
        if (theme == Theme::HighContrast) return Native::GetSystemColor(HighContrast);
        return theme == Theme::Dark ? Dark : Light;
    }
};

// Gives every system colour a value of its own, so that no two can be mistaken for each other.
class StyleColors : public testing::TestWithParam<Theme> {
protected:
    StyleColors() {
        for (SystemColor color :
             {SystemColor::Window, WindowText, Highlight, HighlightText, ButtonFace, GrayText, ButtonText, HotLight}) {
            driver.GetSystem().Colors[color] = 0x123400u + static_cast<Color>(color);
        }
        table = BuildStyleTable(144, GetParam());
    }

    void Expect(const StateStyle& style, const std::array<Shade, 3>& shades, const std::string& what) const {
        EXPECT_EQ(style.Text, shades[0].In(GetParam())) << what << ", text";
        EXPECT_EQ(style.Background, shades[1].In(GetParam())) << what << ", background";
        EXPECT_EQ(style.Border, shades[2].In(GetParam())) << what << ", border";
    }

    Headless::Driver driver;
    StyleTable table;
};

TEST_P(StyleColors, OfPlainParts) {
    struct Row {
        const char* Name;
        Shade Expected;
        std::vector<Color> Found;
    };
    const CheckStyle& check = table.UncheckedBox;
    const Row rows[] = {
        {"window and label background",
         {0xF0F0F0, 0x303030, ButtonFace},
         {table.WindowBackground, table.Label.Background, table.GroupBox.Caption.Background,
          table.Button.WindowBackground, table.TextBox.WindowBackground, check.Background,
          table.CheckedRadio.Background}},
        {"label text",
         {0x000000, 0xFFFFFF, ButtonText},
         {table.Label.Text, table.GroupBox.Caption.Text, check.Text, table.CheckedBox.Text, table.CheckedRadio.Text}},
        {"disabled label text",
         {0x838383, 0x808080, GrayText},
         {table.Label.DisabledText, table.GroupBox.Caption.DisabledText, check.DisabledText,
          table.CheckedRadio.DisabledText}},
        {"group border", {0xADADAD, 0x606060, ButtonText}, {table.GroupBox.Border}},
        {"disabled group border", {0xBFBFBF, 0x404040, GrayText}, {table.GroupBox.DisabledBorder}},
        {"list selection text",
         {0xFFFFFF, 0xFFFFFF, HighlightText},
         {table.ListBox.SelectedText, table.ComboBox.List.SelectedText}},
        {"list selection background",
         {0xD77800, 0xD77800, Highlight},
         {table.ListBox.SelectedBackground, table.ComboBox.List.SelectedBackground}},
        {"arrow", {0x333333, 0xCCCCCC, ButtonText}, {table.ComboBox.Arrow}},
    };
    for (const Row& row : rows) {
        for (Color found : row.Found) EXPECT_EQ(found, row.Expected.In(GetParam())) << row.Name;
    }
}

using Triple = std::array<Shade, 3>;

constexpr Triple ButtonNormal{
    {{0x000000, 0xFFFFFF, ButtonText}, {0xE1E1E1, 0x000000, ButtonFace}, {0xADADAD, 0x606060, ButtonText}}};
constexpr Triple ButtonFocused{
    {{0x000000, 0xFFFFFF, HighlightText}, {0xE1E1E1, 0x000000, Highlight}, {0xD77800, 0xFFFFFF, ButtonText}}};
constexpr Triple ButtonHot{
    {{0x000000, 0xFFFFFF, HighlightText}, {0xFBF1E5, 0x404040, Highlight}, {0xD77800, 0x606060, ButtonText}}};
constexpr Triple ButtonPressed{
    {{0x000000, 0xFFFFFF, ButtonText}, {0xF7E4CC, 0x606060, ButtonFace}, {0x995400, 0x606060, ButtonText}}};
constexpr Triple ButtonDisabled{
    {{0x838383, 0x808080, GrayText}, {0xCCCCCC, 0x202020, SystemColor::Window}, {0xBFBFBF, 0x404040, GrayText}}};

TEST_P(StyleColors, OfButtons) {
    const StateStyles& states = table.Button.States;
    Expect(states[ControlState::Normal], ButtonNormal, "normal");
    Expect(states[ControlState::Focused], ButtonFocused, "focused");
    Expect(states[ControlState::Hot], ButtonHot, "hot");
    Expect(states[ControlState::HotFocused], ButtonHot, "hot with focus");
    Expect(states[ControlState::Pressed], ButtonPressed, "pressed");
    Expect(states[ControlState::Disabled], ButtonDisabled, "disabled");
}

TEST_P(StyleColors, OfADefaultButtonAreNeverWithoutFocus) {
    const StateStyles& states = table.DefaultButton.States;
    Expect(states[ControlState::Normal], ButtonFocused, "normal");
    Expect(states[ControlState::Focused], ButtonFocused, "focused");
    Expect(states[ControlState::Hot], ButtonHot, "hot");
    Expect(states[ControlState::Pressed], ButtonPressed, "pressed");
    Expect(states[ControlState::Disabled], ButtonDisabled, "disabled");
}

TEST_P(StyleColors, OfComboBoxes) {
    const StateStyles& states = table.ComboBox.States;
    Triple focused = ButtonFocused;
    focused[2] = ButtonNormal[2];
    Triple hot = ButtonHot;
    hot[1].HighContrast = ButtonFace;
    Expect(states[ControlState::Normal], ButtonNormal, "normal");
    Expect(states[ControlState::Focused], focused, "focused");
    Expect(states[ControlState::Hot], hot, "hot");
    Expect(states[ControlState::HotFocused], hot, "hot with focus");
    Expect(states[ControlState::Pressed], ButtonPressed, "dropped down");
    Expect(states[ControlState::Disabled], ButtonDisabled, "disabled");
}

TEST_P(StyleColors, OfCheckBoxesAndRadioButtons) {
    constexpr Shade fill{0xFFFFFF, 0x000000, SystemColor::Window};
    const Triple normal{{{0x333333, 0xFFFFFF, WindowText}, fill, {0x333333, 0x606060, ButtonText}}};
    const Triple focused{{{0xD77800, 0xFFFFFF, Highlight}, fill, {0xD77800, 0xC8C8C8, Highlight}}};
    const Triple pressed{
        {{0x995400, 0xFFFFFF, ButtonText}, {0xF7E4CC, 0x606060, ButtonFace}, {0x995400, 0x606060, ButtonText}}};
    const Triple disabled{{{0xCCCCCC, 0x808080, SystemColor::Window},
                           {0xFFFFFF, 0x202020, SystemColor::Window},
                           {0xCCCCCC, 0x404040, SystemColor::Window}}};
    for (const CheckStyle* style :
         {&table.UncheckedBox, &table.CheckedBox, &table.UncheckedRadio, &table.CheckedRadio}) {
        Expect(style->Box[ControlState::Normal], normal, "normal");
        Expect(style->Box[ControlState::Focused], focused, "focused");
        Expect(style->Box[ControlState::Hot], focused, "hot");
        Expect(style->Box[ControlState::HotFocused], focused, "hot with focus");
        Expect(style->Box[ControlState::Pressed], pressed, "pressed");
        Expect(style->Box[ControlState::Disabled], disabled, "disabled");
    }
}

TEST_P(StyleColors, OfTextBoxesAndLists) {
    constexpr Shade text{0x000000, 0xFFFFFF, WindowText};
    constexpr Shade background{0xFFFFFF, 0x000000, SystemColor::Window};
    const Triple disabled{
        {{0x838383, 0x808080, GrayText}, {0xCCCCCC, 0x202020, SystemColor::Window}, {0xBFBFBF, 0x404040, GrayText}}};
    for (const StateStyles* states : {&table.TextBox.States, &table.MonospaceTextBox.States, &table.ListBox.States}) {
        Expect((*states)[ControlState::Normal], {{text, background, {0xADADAD, 0x606060, ButtonText}}}, "normal");
        Expect((*states)[ControlState::Focused], {{text, background, {0xD77800, 0xFFFFFF, HotLight}}}, "focused");
        Expect((*states)[ControlState::HotFocused], {{text, background, {0xD77800, 0xFFFFFF, HotLight}}}, "both");
        Expect((*states)[ControlState::Hot], {{text, background, {0x171717, 0xC8C8C8, HotLight}}}, "hot");
        Expect((*states)[ControlState::Disabled], disabled, "disabled");
    }
}

TEST_P(StyleColors, OfInvalidStylesAreTheNormalOnesWithRedTextAndBorder) {
    const auto expectRed = [](StateStyles normal, const StateStyles& invalid) {
        for (StateStyle& style : normal.Styles) style.Text = style.Border = Red;
        EXPECT_EQ(invalid, normal);
    };
    expectRed(table.TextBox.States, table.InvalidTextBox.States);
    expectRed(table.MonospaceTextBox.States, table.InvalidMonospaceTextBox.States);
    GroupBoxStyle group = table.GroupBox;
    group.Caption.Text = group.Caption.DisabledText = group.Border = group.DisabledBorder = Red;
    EXPECT_EQ(table.InvalidGroupBox, group);
}

std::string GetName(const testing::TestParamInfo<Theme>& info) {
    if (info.param == Theme::HighContrast) return "HighContrast";
    return info.param == Theme::Dark ? "Dark" : "Light";
}

INSTANTIATE_TEST_SUITE_P(Themes, StyleColors, testing::Values(Theme::Light, Theme::Dark, Theme::HighContrast), GetName);

TEST(StyleColorsOfItems, AreNormalSelectedOrDisabled) {
    const Headless::Driver driver;
    const ListBoxStyle list = BuildStyleTable(96, Theme::Light).ListBox;
    EXPECT_EQ(list.GetItem(true, false), list.States[ControlState::Normal]);
    EXPECT_EQ(list.GetItem(true, true).Text, 0xFFFFFFu);
    EXPECT_EQ(list.GetItem(true, true).Background, 0xD77800u);
    EXPECT_EQ(list.GetItem(false, true), list.States[ControlState::Disabled]);
}

}  // namespace
