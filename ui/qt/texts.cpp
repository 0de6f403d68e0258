// Texts of widgets. A character outside the basic plane is one here and two there.
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <algorithm>

#include "ui/qt/platform.h"

namespace UI {

namespace Widgets {

QString ToQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

QString ToCaption(std::wstring_view text) { return ToQt(text).replace(u'&', u"&&"_qs); }

namespace {

QLineEdit* GetLine(const NativeWindow& window) { return dynamic_cast<QLineEdit*>(window.Widget.data()); }
QPlainTextEdit* GetLines(const NativeWindow& window) { return dynamic_cast<QPlainTextEdit*>(window.Widget.data()); }

QString ReadText(const NativeWindow& window) {
    if (const QLineEdit* line = GetLine(window)) return line->text();
    if (const QPlainTextEdit* lines = GetLines(window)) return lines->toPlainText();
    return ToQt(window.Text);
}

int ToQtPosition(const NativeWindow& window, int position) {
    const std::wstring text = ReadText(window).toStdWString();
    const auto length = static_cast<int>(text.size());
    const int end = position < 0 ? length : std::min(position, length);
    return static_cast<int>(ToQt(std::wstring_view(text).substr(0, static_cast<std::size_t>(end))).size());
}

int FromQtPosition(const NativeWindow& window, int position) {
    return static_cast<int>(ReadText(window).left(position).toStdWString().size());
}

}  // namespace

MessageResult ReplaceText(NativeWindow& window, const std::wstring& text) {
    window.Text = text;
    if (QLineEdit* line = GetLine(window)) {
        // The limit is for what is typed.
        const QString shown = ToQt(text);
        if (window.Limit > 0) line->setMaxLength(std::max(window.Limit, static_cast<int>(shown.size())));
        line->setText(shown);
        line->setCursorPosition(0);
    } else if (QPlainTextEdit* lines = GetLines(window)) {
        lines->setPlainText(ToQt(text));
    } else if (auto* button = dynamic_cast<QAbstractButton*>(window.Widget.data())) {
        button->setText(ToCaption(text));
    } else if (auto* group = dynamic_cast<QGroupBox*>(window.Widget.data())) {
        group->setTitle(ToCaption(text));
        PlaceGroup(window);
    } else if (auto* label = dynamic_cast<QLabel*>(window.Widget.data())) {
        label->setText(ToQt(text));
    }
    const bool names = window.Kind == ControlKind::Static || window.Kind == ControlKind::Button;
    if (names && window.Control && Native::IsVisible(&window)) NameControls(window.Control->GetWindow());
    return 1;
}

void NameControls(const UI::Window& window) {
    QString name = ToQt(window.GetTitle());
    for (const Control* control : window.GetControls()) {
        const bool isNamed = control->GetKind() == ControlKind::Static || control->GetKind() == ControlKind::Button;
        QWidget* widget = control->GetHandle()->Widget;
        const std::wstring& given = control->GetGivenName();
        if (!isNamed && widget) widget->setAccessibleName(given.empty() ? name : ToQt(given));
        // An edge of a group box names nothing, and neither does a button: it stands behind what it is for.
        const bool names = isNamed && widget && !dynamic_cast<const Controls::Button*>(control);
        const std::wstring& text = control->GetHandle()->Text;
        if (names && !text.empty()) name = ToQt(text);
    }
}

}  // namespace Widgets

namespace Native {

using namespace Widgets;

bool SetText(Handle handle, const std::wstring& text) {
    return Send(handle, Message::SetText, 0, reinterpret_cast<LParam>(text.c_str())) == 1;
}

std::wstring GetText(Handle handle) { return Find(handle) ? ReadText(*handle).toStdWString() : handle->Text; }

void SetLimit(Handle handle, int characters) {
    constexpr int unlimited = 32767;
    handle->Limit = characters;
    if (QLineEdit* line = GetLine(*handle)) line->setMaxLength(characters > 0 ? characters : unlimited);
}

void Select(Handle handle, int begin, int end) {
    const int from = ToQtPosition(*handle, std::max(begin, 0));
    const int to = ToQtPosition(*handle, end);
    if (QLineEdit* line = GetLine(*handle)) {
        line->setSelection(from, to - from);
    } else if (QPlainTextEdit* lines = GetLines(*handle)) {
        QTextCursor cursor = lines->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        lines->setTextCursor(cursor);
    }
}

void GetSelection(Handle handle, int& begin, int& end) {
    int from = 0;
    int to = 0;
    if (const QLineEdit* line = GetLine(*handle)) {
        const bool hasSelection = line->hasSelectedText();
        from = hasSelection ? line->selectionStart() : line->cursorPosition();
        to = hasSelection ? line->selectionEnd() : from;
    } else if (const QPlainTextEdit* lines = GetLines(*handle)) {
        from = lines->textCursor().selectionStart();
        to = lines->textCursor().selectionEnd();
    }
    begin = FromQtPosition(*handle, from);
    end = FromQtPosition(*handle, to);
}

void ResetTextMargins(Handle) {}

}  // namespace Native

}  // namespace UI
