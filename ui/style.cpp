#include "ui/style.h"

#include "ui/native.h"
#include "ui/window.h"

namespace UI {

namespace {

constexpr Color InvalidRed = 0x0000FF;

std::optional<Appearance> imposed;

// One colour in the three themes.
struct Shade {
    Color Light;
    Color Dark;
    SystemColor HighContrast;
};

// One role: what is written, what it is written on, and the line around.
struct Role {
    Shade Text;
    Shade Background;
    Shade Border;
};

using enum SystemColor;

constexpr Shade WindowShade{0xF0F0F0, 0x303030, ButtonFace};
constexpr Shade LabelText{0x000000, 0xFFFFFF, ButtonText};
constexpr Shade DisabledLabelText{0x838383, 0x808080, GrayText};
constexpr Shade GroupBorder{0xADADAD, 0x606060, ButtonText};
constexpr Shade DisabledGroupBorder{0xBFBFBF, 0x404040, GrayText};
constexpr Shade SelectedText{0xFFFFFF, 0xFFFFFF, HighlightText};
constexpr Shade SelectedBackground{0xD77800, 0xD77800, Highlight};
constexpr Shade Arrow{0x333333, 0xCCCCCC, ButtonText};

constexpr Role ButtonNormal{
    {0x000000, 0xFFFFFF, ButtonText}, {0xE1E1E1, 0x000000, ButtonFace}, {0xADADAD, 0x606060, ButtonText}};
constexpr Role ButtonFocused{
    {0x000000, 0xFFFFFF, HighlightText}, {0xE1E1E1, 0x000000, Highlight}, {0xD77800, 0xFFFFFF, ButtonText}};
constexpr Role ButtonHot{
    {0x000000, 0xFFFFFF, HighlightText}, {0xFBF1E5, 0x404040, Highlight}, {0xD77800, 0x606060, ButtonText}};
constexpr Role ButtonPressed{
    {0x000000, 0xFFFFFF, ButtonText}, {0xF7E4CC, 0x606060, ButtonFace}, {0x995400, 0x606060, ButtonText}};
constexpr Role ButtonDisabled{
    {0x838383, 0x808080, GrayText}, {0xCCCCCC, 0x202020, SystemColor::Window}, {0xBFBFBF, 0x404040, GrayText}};

constexpr Role CheckNormal{
    {0x333333, 0xFFFFFF, WindowText}, {0xFFFFFF, 0x000000, SystemColor::Window}, {0x333333, 0x606060, ButtonText}};
constexpr Role CheckFocused{
    {0xD77800, 0xFFFFFF, Highlight}, {0xFFFFFF, 0x000000, SystemColor::Window}, {0xD77800, 0xC8C8C8, Highlight}};
constexpr Role CheckPressed{
    {0x995400, 0xFFFFFF, ButtonText}, {0xF7E4CC, 0x606060, ButtonFace}, {0x995400, 0x606060, ButtonText}};
constexpr Role CheckDisabled{{0xCCCCCC, 0x808080, SystemColor::Window},
                             {0xFFFFFF, 0x202020, SystemColor::Window},
                             {0xCCCCCC, 0x404040, SystemColor::Window}};

constexpr Role TextNormal{
    {0x000000, 0xFFFFFF, WindowText}, {0xFFFFFF, 0x000000, SystemColor::Window}, {0xADADAD, 0x606060, ButtonText}};
constexpr Role TextFocused{
    {0x000000, 0xFFFFFF, WindowText}, {0xFFFFFF, 0x000000, SystemColor::Window}, {0xD77800, 0xFFFFFF, HotLight}};
constexpr Role TextHot{
    {0x000000, 0xFFFFFF, WindowText}, {0xFFFFFF, 0x000000, SystemColor::Window}, {0x171717, 0xC8C8C8, HotLight}};
constexpr Role TextDisabled{
    {0x838383, 0x808080, GrayText}, {0xCCCCCC, 0x202020, SystemColor::Window}, {0xBFBFBF, 0x404040, GrayText}};

// Fills the table for one theme.
class Builder {
public:
    Builder(int dpi, Theme theme) : theme(theme) {
        table.Theme = theme;
        table.Metrics = GetLayoutMetrics(dpi, Native::GetScrollBarWidth(dpi));
        const int fontHeight = 16 * dpi / 96;
        table.NormalFont = Font({L"Tahoma", fontHeight, 400});
        table.BoldFont = Font({L"Tahoma", fontHeight, 700});
        table.MonospaceFont = Font({L"Consolas", fontHeight, 400});
        table.WindowBackground = Get(WindowShade);
        BuildButtons();
        BuildChecks();
        BuildLabels();
        BuildLists();
        BuildTextBoxes();
        Native::FitToDesktop(table);
    }

    StyleTable table;

private:
    Color Get(const Shade& shade) const {
        switch (theme) {
            case Theme::Light:
                return shade.Light;
            case Theme::Dark:
                return shade.Dark;
            case Theme::HighContrast:
                break;
        }
        return Native::GetSystemColor(shade.HighContrast);
    }

    StateStyle Get(const Role& role) const {
        return {Get(role.Text), Get(role.Background), Get(role.Border), table.Metrics.BorderWidth,
                table.Metrics.CornerRadius};
    }

    StateStyles GetStates(const Role& normal, const Role& focused, const Role& hot, const Role& hotFocused,
                          const Role& pressed, const Role& disabled) const {
        StateStyles states;
        states[ControlState::Normal] = Get(normal);
        states[ControlState::Focused] = Get(focused);
        states[ControlState::Hot] = Get(hot);
        states[ControlState::HotFocused] = Get(hotFocused);
        states[ControlState::Pressed] = Get(pressed);
        states[ControlState::Disabled] = Get(disabled);
        return states;
    }

    void BuildButtons() {
        const LayoutMetrics& metrics = table.Metrics;
        table.Button = {GetStates(ButtonNormal, ButtonFocused, ButtonHot, ButtonHot, ButtonPressed, ButtonDisabled),
                        table.WindowBackground, table.NormalFont, metrics.ButtonTextPadding, metrics.SmallSpacing};
        table.DefaultButton = table.Button;
        StateStyles& states = table.DefaultButton.States;
        states[ControlState::Normal] = states[ControlState::Focused];
        states[ControlState::Hot] = states[ControlState::HotFocused];
    }

    void BuildChecks() {
        const LayoutMetrics& metrics = table.Metrics;
        table.UncheckedBox = {
            GetStates(CheckNormal, CheckFocused, CheckFocused, CheckFocused, CheckPressed, CheckDisabled),
            Get(LabelText),
            Get(DisabledLabelText),
            table.WindowBackground,
            table.NormalFont,
            metrics.CheckBoxSize,
            metrics.CheckBoxColumn,
            metrics.CheckMarkThickness,
            metrics.FocusInset,
            metrics.SmallSpacing};
        table.CheckedBox = table.UncheckedRadio = table.CheckedRadio = table.UncheckedBox;
    }

    void BuildLabels() {
        const LayoutMetrics& metrics = table.Metrics;
        const int small = metrics.SmallSpacing;
        const int spacing = metrics.Spacing;
        table.Label = {Get(LabelText), Get(DisabledLabelText), table.WindowBackground, table.NormalFont};
        // With edges this thick the top one is just as high as the caption, and the corners lie within them.
        table.GroupBox = {table.Label,          Get(GroupBorder), Get(DisabledGroupBorder),     metrics.BorderWidth,
                          metrics.CornerRadius, spacing,          {small, small, small, small}, {}};
        table.GroupBox.ContentPadding = {spacing, spacing, spacing, spacing};
        GroupBoxStyle& invalid = table.InvalidGroupBox;
        invalid = table.GroupBox;
        invalid.Caption.Text = invalid.Caption.DisabledText = InvalidRed;
        invalid.Border = invalid.DisabledBorder = InvalidRed;
    }

    void BuildLists() {
        const LayoutMetrics& metrics = table.Metrics;
        const int edge = metrics.BorderWidth + metrics.FocusInset;
        const Padding textPadding{metrics.SmallSpacing, 0, metrics.SmallSpacing, 0};
        table.ListBox = {GetStates(TextNormal, TextFocused, TextHot, TextFocused, TextNormal, TextDisabled),
                         Get(SelectedText),
                         Get(SelectedBackground),
                         table.WindowBackground,
                         table.NormalFont,
                         {edge, edge, edge, edge},
                         textPadding,
                         table.NormalFont.GetMetrics().Height,
                         metrics.ScrollBarWidth};
        table.ComboBox = {table.Button.States,    table.ListBox,    Get(Arrow),  Get(DisabledLabelText),
                          table.WindowBackground, table.NormalFont, textPadding, metrics.ScrollBarWidth};
        StateStyles& states = table.ComboBox.States;
        states[ControlState::Focused].Border = states[ControlState::Normal].Border;
        if (theme != Theme::HighContrast) return;
        const Color face = Native::GetSystemColor(ButtonFace);
        states[ControlState::Hot].Background = states[ControlState::HotFocused].Background = face;
    }

    void BuildTextBoxes() {
        const LayoutMetrics& metrics = table.Metrics;
        const int edge = metrics.BorderWidth + metrics.FocusInset;
        table.TextBox = {table.ListBox.States, table.WindowBackground,
                         table.NormalFont,     {metrics.SmallSpacing, edge, metrics.SmallSpacing, edge},
                         metrics.BorderWidth,  metrics.ScrollBarWidth};
        table.InvalidTextBox = table.TextBox;
        for (StateStyle& style : table.InvalidTextBox.States.Styles) style.Text = style.Border = InvalidRed;
        table.MonospaceTextBox = table.TextBox;
        table.InvalidMonospaceTextBox = table.InvalidTextBox;
        table.MonospaceTextBox.Font = table.InvalidMonospaceTextBox.Font = table.MonospaceFont;
    }

    Theme theme;
};

}  // namespace

LayoutMetrics GetLayoutMetrics(int dpi, int scrollBarWidth) {
    LayoutMetrics metrics;
    metrics.Spacing = 8 * dpi / 96;
    metrics.SmallSpacing = 4 * dpi / 96;
    metrics.ControlHeight = 24 * dpi / 96 - 1;
    metrics.OkButtonWidth = 92 * dpi / 96;
    metrics.OkButtonHeight = metrics.ControlHeight;
    metrics.FormWidth = metrics.Spacing + 2 * metrics.OkButtonWidth;
    metrics.WindowPadding = {metrics.Spacing, metrics.Spacing, metrics.Spacing, metrics.Spacing};
    metrics.BorderWidth = dpi / 96;
    metrics.CornerRadius = 3 * dpi / 96;
    metrics.FocusInset = 2 * dpi / 96;
    const int textPadding = 2 * metrics.BorderWidth;
    metrics.ButtonTextPadding = {textPadding, textPadding, textPadding, textPadding};
    metrics.CheckBoxSize = 13 * dpi / 96;
    metrics.CheckBoxColumn = 16 * dpi / 96;
    metrics.CheckMarkThickness = 2 * dpi / 96;
    metrics.ScrollBarWidth = scrollBarWidth;
    return metrics;
}

StateStyle ListBoxStyle::GetItem(bool enabled, bool selected) const {
    StateStyle item = States[enabled ? ControlState::Normal : ControlState::Disabled];
    if (!enabled || !selected) return item;
    item.Text = SelectedText;
    item.Background = SelectedBackground;
    return item;
}

StyleTable BuildStyleTable(int dpi, Theme theme) { return Builder(dpi, theme).table; }

StyleTable BuildStyleTable(int dpi) {
    return imposed ? BuildStyleTable(imposed->Dpi, imposed->Theme) : BuildStyleTable(dpi, ChooseTheme());
}

StyleTable BuildStyleTable(int dpi, const UI::Window* parent) {
    if (!parent) return BuildStyleTable(dpi);
    return BuildStyleTable(imposed ? imposed->Dpi : dpi, parent->GetStyle().Theme);
}

bool LooksAlike(const StyleTable& a, const StyleTable& b) {
    return a.Theme == b.Theme && a.Metrics == b.Metrics && a.NormalFont.GetSpec() == b.NormalFont.GetSpec() &&
           a.WindowBackground == b.WindowBackground && a.Label.Text == b.Label.Text &&
           a.Label.DisabledText == b.Label.DisabledText && a.Button.States == b.Button.States &&
           a.UncheckedBox.Box == b.UncheckedBox.Box && a.TextBox.States == b.TextBox.States &&
           a.ListBox.SelectedText == b.ListBox.SelectedText &&
           a.ListBox.SelectedBackground == b.ListBox.SelectedBackground;
}

void SetAppearance(const std::optional<Appearance>& appearance) { imposed = appearance; }

}  // namespace UI
