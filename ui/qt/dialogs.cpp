// The session, message boxes and the desktop's dialogs that ask for a file.
#include "ui/dialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "ui/qt/platform.h"
#include "ui/session.h"

namespace UI {

using namespace Widgets;

Session::Session() {
    static int count = 1;
    static char name[] = "vantelle";
    static char* words[] = {name, nullptr};
    new QApplication(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(u"vantelle"_qs);
    QApplication::setApplicationDisplayName(u"Vantelle"_qs);
    QGuiApplication::setDesktopFileName(u"vantelle"_qs);
    QApplication::setWindowIcon(QIcon::fromTheme(u"vantelle"_qs));
}

Session::~Session() { delete qApp; }

namespace {

QWidget* GetWidget(const Window* window) { return window ? window->GetHandle()->Widget.data() : nullptr; }

QString ToFilter(const FileType& type) {
    return ToQt(type.Name) + u" ("_qs + ToQt(type.Pattern).replace(u';', u' ') + u")"_qs;
}

// Without its dot; empty for a pattern that names none.
QString GetExtension(const FileType& type) {
    const QString first = ToQt(type.Pattern).section(u';', 0, 0);
    return first.contains(u"*."_qs) && !first.endsWith(u'*') ? first.section(u'.', -1) : QString();
}

std::optional<ChosenFile> Ask(const Window* owner, const FileDialog& dialog, QFileDialog::AcceptMode mode) {
    QFileDialog box(GetWidget(owner), ToQt(dialog.Title));
    box.setAcceptMode(mode);
    box.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    box.setLabelText(QFileDialog::Accept, ToQt(dialog.OkLabel));
    QStringList filters;
    for (const FileType& type : dialog.Types) filters.append(ToFilter(type));
    box.setNameFilters(filters);
    if (mode == QFileDialog::AcceptSave) {
        // A name without an extension gets that of the type that is chosen.
        const auto choose = [&](const QString& filter) {
            const auto index = static_cast<std::size_t>(std::max<qsizetype>(0, filters.indexOf(filter)));
            const QString extension = index < dialog.Types.size() ? GetExtension(dialog.Types[index]) : QString();
            box.setDefaultSuffix(extension.isEmpty() ? ToQt(dialog.DefaultExtension) : extension);
        };
        choose(filters.value(0));
        QObject::connect(&box, &QFileDialog::filterSelected, &box, choose);
    }
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
    const auto type = static_cast<int>(filters.indexOf(box.selectedNameFilter()));
    return ChosenFile{QFile::encodeName(box.selectedFiles().first()).toStdString(), std::max(0, type) + 1};
}

}  // namespace

void ShowMessage(const Window* owner, const std::wstring& text, const std::wstring& caption, MessageKind kind) {
    QMessageBox box(kind == MessageKind::Error ? QMessageBox::Critical : QMessageBox::NoIcon, ToQt(caption), ToQt(text),
                    QMessageBox::Ok, GetWidget(owner));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<ChosenFile> ChooseFileToOpen(const Window* owner, const FileDialog& dialog) {
    return Ask(owner, dialog, QFileDialog::AcceptOpen);
}

std::optional<ChosenFile> ChooseFileToSave(const Window* owner, const FileDialog& dialog) {
    return Ask(owner, dialog, QFileDialog::AcceptSave);
}

}  // namespace UI
