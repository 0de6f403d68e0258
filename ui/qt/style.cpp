// Fonts, colours and lengths: those of the desktop.
#include <QApplication>
#include <QGroupBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "ui/qt/platform.h"

namespace UI {

// The icon stands in the desktop's theme, under the program's name: the window system finds it there.
struct NativeIcon {};

namespace Widgets {

QColor ToQt(Color color) {
    constexpr Color byte = 256;
    return QColor(static_cast<int>(color % byte), static_cast<int>(color / byte % byte),
                  static_cast<int>(color / byte / byte % byte));
}

Color FromQt(const QColor& color) {
    constexpr int byte = 256;
    return static_cast<Color>(color.red() + byte * (color.green() + byte * color.blue()));
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

namespace {

// The colours of the table, where the desktop has others.
QPalette MakePalette(const StyleTable& table) {
    const StateStyle& button = table.Button.States[ControlState::Normal];
    const StateStyle& text = table.TextBox.States[ControlState::Normal];
    QPalette palette(ToQt(button.Background), ToQt(table.WindowBackground));
    const auto set = [&palette](std::initializer_list<QPalette::ColorRole> roles, Color color, Color disabled) {
        for (const QPalette::ColorRole role : roles) {
            palette.setColor(role, ToQt(color));
            palette.setColor(QPalette::Disabled, role, ToQt(disabled));
        }
    };
    const Color background = table.WindowBackground;
    set({QPalette::Window}, background, background);
    set({QPalette::WindowText}, table.Label.Text, table.Label.DisabledText);
    set({QPalette::Base, QPalette::AlternateBase}, text.Background,
        table.TextBox.States[ControlState::Disabled].Background);
    set({QPalette::Text, QPalette::PlaceholderText}, text.Text, table.TextBox.States[ControlState::Disabled].Text);
    // Styles shade their buttons from this colour: black has no shades.
    set({QPalette::Button}, background, background);
    set({QPalette::ButtonText}, button.Text, table.Button.States[ControlState::Disabled].Text);
    set({QPalette::Highlight}, table.ListBox.SelectedBackground, table.ListBox.SelectedBackground);
    set({QPalette::HighlightedText}, table.ListBox.SelectedText, table.ListBox.SelectedText);
    set({QPalette::ToolTipBase}, background, background);
    set({QPalette::ToolTipText}, table.Label.Text, table.Label.Text);
    return palette;
}

// Sizes that the style asks for around contents of this size.
template <class Option>
QSize GetSize(QStyle::ContentsType type, const Option& option, const QSize& contents) {
    return QApplication::style()->sizeFromContents(type, &option, contents, nullptr);
}

}  // namespace

void PlaceGroup(NativeWindow& window) {
    auto* box = dynamic_cast<Controls::GroupBox*>(window.Control);
    if (!box || !window.Widget) return;
    const Rect& top = window.Place;
    const int bottom = box->GetBottomEdge().GetHandle()->Place.Bottom;
    // Without a caption the frame is not moved down for it.
    const int above = box->GetText().empty() ? box->GetStyle().CaptionInset / 2 : box->GetOverhang();
    const int y = box->GetLeftEdge().GetHandle()->Place.Top - box->GetStyle().Thickness.Top - above;
    window.Widget->setGeometry(top.Left, y, top.Right - top.Left, std::max(0, bottom - y));
}

void ShowValidity(NativeWindow& window) {
    const auto mark = [&window](bool valid, QPalette::ColorRole role, Color color) {
        window.IsMarked = !valid;
        window.Mark = color;
        QPalette palette;
        if (!valid) palette.setColor(role, ToQt(color));
        window.Widget->setPalette(palette);
    };
    if (const auto* box = dynamic_cast<Controls::TextBox*>(window.Control)) {
        if (box->HasValidStyle() == window.IsMarked)
            mark(box->HasValidStyle(), QPalette::Text, box->GetStyle().States[ControlState::Normal].Border);
    } else if (const auto* group = dynamic_cast<Controls::GroupBox*>(window.Control)) {
        if (group->HasValidStyle() == window.IsMarked)
            mark(group->HasValidStyle(), QPalette::WindowText, group->GetStyle().Border);
    }
}

}  // namespace Widgets

namespace Native {

using namespace Widgets;

std::shared_ptr<NativeFont> MakeFont(const FontSpec& spec, FontMetrics& metrics) {
    // The table asks for lines of sixteen units of 1/96 inch: here that stands for the desktop's own size.
    const bool isFixed = spec.Face == L"Consolas";
    QFont font = isFixed ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QApplication::font();
    const double scale = spec.Height * 96.0 / (16.0 * GetDpi(nullptr));
    const QFont& size = QApplication::font();
    if (size.pointSizeF() > 0) {
        font.setPointSizeF(size.pointSizeF() * scale);
    } else {
        font.setPixelSize(static_cast<int>(std::lround(size.pixelSize() * scale)));
    }
    if (spec.Weight > QFont::Normal) font.setWeight(static_cast<QFont::Weight>(spec.Weight));
    auto made = std::make_shared<NativeFont>(font);
    const QFontMetrics measured(font);
    metrics = {measured.height(), measured.ascent(), measured.descent(), measured.averageCharWidth()};
    return made;
}

int MeasureText(NativeFont& font, std::wstring_view text) {
    return static_cast<int>(std::ceil(font.Metrics.horizontalAdvance(Widgets::ToQt(text))));
}

void ApplyFont(Handle handle, const Font& font) {
    if (!Find(handle) || !handle->Widget) return;
    if (handle->Widget->font() != font.GetNative()->Object) handle->Widget->setFont(font.GetNative()->Object);
    if (auto* lines = dynamic_cast<QPlainTextEdit*>(handle->Widget.data())) {
        const auto* box = static_cast<Controls::TextBox*>(handle->Control);
        lines->document()->setDocumentMargin(box->GetStyle().TextPadding.Left - lines->frameWidth());
    }
    ShowValidity(*handle);
}

void LoadIcons(Handle, int, std::shared_ptr<NativeIcon>&, std::shared_ptr<NativeIcon>&) {}

int GetDpi(Handle handle) {
    const QScreen* screen = handle && handle->Widget ? handle->Widget->screen() : QGuiApplication::primaryScreen();
    return screen ? static_cast<int>(std::lround(screen->logicalDotsPerInchX())) : 96;
}

int GetScrollBarWidth(int) { return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent); }

void FitToDesktop(StyleTable& table) {
    const QStyle& style = *QApplication::style();
    const QFontMetrics font(table.NormalFont.GetNative()->Object);
    const int frame = style.pixelMetric(QStyle::PM_DefaultFrameWidth);
    // Wide enough for no style to widen it.
    const QSize text(400, font.height());

    QStyleOptionButton button;
    button.fontMetrics = font;
    button.text = u"Text"_qs;
    const QSize buttonSize = GetSize(QStyle::CT_PushButton, button, text);
    QStyleOptionComboBox combo;
    combo.fontMetrics = font;
    const QSize comboSize = GetSize(QStyle::CT_ComboBox, combo, text + QSize(0, 2));
    QStyleOptionFrame line;
    line.fontMetrics = font;
    line.lineWidth = frame;
    line.rect = QRect(0, 0, 400, 100);
    const QSize lineSize = GetSize(QStyle::CT_LineEdit, line, text + QSize(0, 2));
    const QRect lineText = style.subElementRect(QStyle::SE_LineEditContents, &line);

    LayoutMetrics& metrics = table.Metrics;
    metrics.ControlHeight = std::max({buttonSize.height(), comboSize.height(), lineSize.height()});
    metrics.OkButtonHeight = metrics.ControlHeight;
    const int inButton = (buttonSize.width() - text.width() + 1) / 2;
    metrics.ButtonTextPadding = {inButton, 0, inButton, 0};
    metrics.CheckBoxSize =
        std::max(style.pixelMetric(QStyle::PM_IndicatorHeight), style.pixelMetric(QStyle::PM_ExclusiveIndicatorHeight));
    metrics.CheckBoxColumn = std::max(GetSize(QStyle::CT_CheckBox, button, text).width(),
                                      GetSize(QStyle::CT_RadioButton, button, text).width()) -
                             text.width();
    metrics.ScrollBarWidth = GetScrollBarWidth(0);

    table.Button.TextPadding = table.DefaultButton.TextPadding = metrics.ButtonTextPadding;
    for (CheckStyle* check : {&table.UncheckedBox, &table.CheckedBox, &table.UncheckedRadio, &table.CheckedRadio}) {
        check->BoxSize = metrics.CheckBoxSize;
        check->TextColumn = metrics.CheckBoxColumn;
    }

    constexpr int besideText = 2;  // of a line edit, in every style
    const int inLine = lineText.left() + besideText;
    for (TextBoxStyle* box :
         {&table.TextBox, &table.InvalidTextBox, &table.MonospaceTextBox, &table.InvalidMonospaceTextBox}) {
        box->TextPadding = {inLine, inLine, inLine, inLine};
        box->CaretWidth = style.pixelMetric(QStyle::PM_TextCursorWidth);
        box->ScrollBarWidth = metrics.ScrollBarWidth;
    }

    QStyleOptionViewItem item;
    item.fontMetrics = font;
    item.font = table.NormalFont.GetNative()->Object;
    item.features = QStyleOptionViewItem::HasDisplay;
    item.text = u"Text"_qs;
    ListBoxStyle& list = table.ListBox;
    const int besideItem = style.pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    list.BorderPadding = {frame, frame, frame, frame};
    list.TextPadding = {besideItem, 0, besideItem, 0};
    list.ItemHeight = std::max(font.height(), GetSize(QStyle::CT_ItemViewItem, item, QSize()).height());
    list.ScrollBarWidth = metrics.ScrollBarWidth;
    table.ComboBox.List = list;
    table.ComboBox.ArrowWidth =
        comboSize.width() - text.width() - table.ComboBox.TextPadding.Left - table.ComboBox.TextPadding.Right + 1;

    QStyleOptionGroupBox group;
    group.fontMetrics = font;
    group.text = u"Text"_qs;
    group.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxContents;
    group.rect = QRect(0, 0, 400, 400);
    const int contents = style.subControlRect(QStyle::CC_GroupBox, &group, QStyle::SC_GroupBoxContents).top();
    for (GroupBoxStyle* box : {&table.GroupBox, &table.InvalidGroupBox}) {
        const int overhang = contents - box->ContentPadding.Top / 2;
        box->Thickness.Top = std::max(box->Thickness.Top, overhang - font.height() / 2);
    }
}

Color GetSystemColor(SystemColor color) {
    const QPalette& palette = QApplication::palette();
    const auto get = [&palette](QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) {
        return FromQt(palette.color(group, role));
    };
    switch (color) {
        case SystemColor::Window:
            return get(QPalette::Base);
        case SystemColor::WindowText:
            return get(QPalette::Text);
        case SystemColor::Highlight:
            return get(QPalette::Highlight);
        case SystemColor::HighlightText:
            return get(QPalette::HighlightedText);
        case SystemColor::ButtonFace:
            return get(QPalette::Window);
        case SystemColor::ButtonText:
            return get(QPalette::WindowText);
        case SystemColor::GrayText:
            return get(QPalette::WindowText, QPalette::Disabled);
        case SystemColor::HotLight:
            return get(QPalette::Link);
    }
    return 0;
}

// These two tell whether windows can be dark at all: here they all can.
bool IsWindows10OrGreater() { return true; }
SystemVersion GetSystemVersion() { return {10, 0, 17763}; }

// WCAG 2.1 asks for a contrast of 7 to 1 in its highest class; desktops come to that in their usual themes. Those that
// are made for contrast have hardly less than black on white, which is 21 to 1.
bool IsHighContrast() {
    const QPalette& palette = QApplication::palette();
    const auto luminance = [&palette](QPalette::ColorRole role) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        const QColor color = palette.color(role);
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF()) + 0.05;
    };
    constexpr double least = 20.5;
    const double text = luminance(QPalette::WindowText);
    const double background = luminance(QPalette::Window);
    return std::max(text, background) >= least * std::min(text, background);
}

bool UserPrefersDark() { return IsDark(QApplication::palette()); }
void SetDarkProcess(bool) {}

// The desktop's own colours, which the window follows when they change, unless others were asked for.
void SetDarkFrame(Handle handle, bool dark) {
    if (!Find(handle)) return;
    // The theme of high contrast is the desktop's own, light or dark.
    const bool isDesktops = dark == UserPrefersDark() || IsHighContrast();
    handle->Widget->setPalette(
        isDesktops ? QPalette() : MakePalette(BuildStyleTable(GetDpi(handle), dark ? Theme::Dark : Theme::Light)));
}

void SetDarkParts(Handle, bool) {}

}  // namespace Native

}  // namespace UI
