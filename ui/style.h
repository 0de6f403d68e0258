// The style table: every font, length and colour of every control in every state, for one DPI and one theme.
#pragma once

#include <array>
#include <optional>

#include "ui/font.h"
#include "ui/types.h"

namespace UI {

class Window;

enum class Theme { Light, Dark, HighContrast };

// The system's colours that the high-contrast theme is made of, by their system index.
enum class SystemColor : int {
    Window = 5,
    WindowText = 8,
    Highlight = 13,
    HighlightText = 14,
    ButtonFace = 15,
    GrayText = 17,
    ButtonText = 18,
    HotLight = 26,
};

// What a control looks like now; the first that applies, from the bottom up.
enum class ControlState { Normal, Focused, Hot, HotFocused, Pressed, Disabled };
constexpr int ControlStateCount = 6;

// For the box of a check box or radio button `Text` is the mark and `Background` the fill.
struct StateStyle {
    Color Text = 0;
    Color Background = 0;
    Color Border = 0;
    int BorderWidth = 0;
    int CornerRadius = 0;
    bool operator==(const StateStyle&) const = default;
};

struct StateStyles {
    std::array<StateStyle, ControlStateCount> Styles;

    const StateStyle& operator[](ControlState state) const { return Styles[static_cast<std::size_t>(state)]; }
    StateStyle& operator[](ControlState state) { return Styles[static_cast<std::size_t>(state)]; }
    bool operator==(const StateStyles&) const = default;
};

struct LayoutMetrics {
    int Spacing = 0;
    int SmallSpacing = 0;
    int ControlHeight = 0;
    int OkButtonWidth = 0;
    int OkButtonHeight = 0;
    int FormWidth = 0;
    Padding WindowPadding;
    int BorderWidth = 0;
    int CornerRadius = 0;
    int FocusInset = 0;
    Padding ButtonTextPadding;
    int CheckBoxSize = 0;
    int CheckBoxColumn = 0;
    int CheckMarkThickness = 0;
    int ScrollBarWidth = 0;
    bool operator==(const LayoutMetrics&) const = default;
};

struct ButtonStyle {
    StateStyles States;
    Color WindowBackground = 0;
    UI::Font Font;
    Padding TextPadding;
    int Gap = 0;  // between neighbours of a row
    bool operator==(const ButtonStyle&) const = default;
};

// Of check boxes and radio buttons, checked or unchecked.
struct CheckStyle {
    StateStyles Box;
    Color Text = 0;
    Color DisabledText = 0;
    Color Background = 0;
    UI::Font Font;
    int BoxSize = 0;
    int TextColumn = 0;  // from the box's left edge to the text
    int MarkThickness = 0;
    int FocusInset = 0;
    int Gap = 0;  // between neighbours of a column
    bool operator==(const CheckStyle&) const = default;
};

struct LabelStyle {
    Color Text = 0;
    Color DisabledText = 0;
    Color Background = 0;
    UI::Font Font;
    bool operator==(const LabelStyle&) const = default;
};

struct GroupBoxStyle {
    LabelStyle Caption;
    Color Border = 0;
    Color DisabledBorder = 0;
    int BorderWidth = 0;
    int CornerRadius = 0;
    int CaptionInset = 0;    // from the box's left to the caption
    Padding Thickness;       // of the four edge windows
    Padding ContentPadding;  // from the box's rectangle to what stands inside
    bool operator==(const GroupBoxStyle&) const = default;
};

struct ListBoxStyle {
    StateStyles States;
    Color SelectedText = 0;
    Color SelectedBackground = 0;
    Color WindowBackground = 0;
    UI::Font Font;
    Padding BorderPadding;
    Padding TextPadding;  // within an item
    int ItemHeight = 0;
    int ScrollBarWidth = 0;

    // The colours of one item.
    StateStyle GetItem(bool enabled, bool selected) const;
    bool operator==(const ListBoxStyle&) const = default;
};

struct ComboBoxStyle {
    StateStyles States;
    ListBoxStyle List;  // what drops down
    Color Arrow = 0;
    Color DisabledArrow = 0;
    Color WindowBackground = 0;
    UI::Font Font;
    Padding TextPadding;
    int ArrowWidth = 0;
    bool operator==(const ComboBoxStyle&) const = default;
};

struct TextBoxStyle {
    StateStyles States;
    Color WindowBackground = 0;
    UI::Font Font;
    Padding TextPadding;  // from the outer edges to the text
    int CaretWidth = 0;
    int ScrollBarWidth = 0;
    bool operator==(const TextBoxStyle&) const = default;
};

struct StyleTable {
    Font NormalFont;
    Font BoldFont;
    Font MonospaceFont;
    LayoutMetrics Metrics;
    Color WindowBackground = 0;
    UI::Theme Theme = UI::Theme::Light;
    ButtonStyle Button;
    ButtonStyle DefaultButton;
    CheckStyle UncheckedBox;
    CheckStyle CheckedBox;
    CheckStyle UncheckedRadio;
    CheckStyle CheckedRadio;
    LabelStyle Label;
    GroupBoxStyle GroupBox;
    GroupBoxStyle InvalidGroupBox;
    ListBoxStyle ListBox;
    ComboBoxStyle ComboBox;
    TextBoxStyle TextBox;
    TextBoxStyle InvalidTextBox;
    TextBoxStyle MonospaceTextBox;
    TextBoxStyle InvalidMonospaceTextBox;
    bool operator==(const StyleTable&) const = default;
};

// The layout lengths at `dpi`; `scrollBarWidth` is the system's.
LayoutMetrics GetLayoutMetrics(int dpi, int scrollBarWidth);

// The table of a given theme. High contrast takes the system's colours of this moment.
StyleTable BuildStyleTable(int dpi, Theme theme);

// The table of the theme that the system asks for now, or what `SetAppearance` put in its place.
StyleTable BuildStyleTable(int dpi);

// The table of a window on `parent`: in the parent's theme, so that no two are mixed.
StyleTable BuildStyleTable(int dpi, const Window* parent);

// Whether the two differ in nothing but the fonts' objects.
bool LooksAlike(const StyleTable& a, const StyleTable& b);

// What new windows look like whatever the system asks for, so that pictures can be taken of them; nothing for the
// system's wishes again.
struct Appearance {
    int Dpi;
    UI::Theme Theme;
};
void SetAppearance(const std::optional<Appearance>& appearance);

// Gives the table to the window and to each of its controls, and redraws them.
void ApplyTheme(Window& window, const StyleTable& table);

bool IsDarkMode(const StyleTable& table);

struct SystemVersion {
    unsigned Major = 0;
    unsigned Minor = 0;
    unsigned Build = 0;  // the top four bits are flags
};

// Whether a system of this version can show a dark theme.
bool SupportsDarkMode(const SystemVersion& version);

// High contrast before dark, dark where supported and wished, else light.
Theme ChooseTheme();

bool IsWindows10OrGreater();

// Dots per inch of the screen that the window is on. Throws "GetDC failed.".
int GetDpi(const Window& window);

}  // namespace UI
