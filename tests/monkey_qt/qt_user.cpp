// The monkey's user on Qt's windows, file dialogs and message boxes too.
#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <deque>
#include <utility>

#include "tests/monkey/user.h"
#include "tests/support/window_layout.h"
#include "tests/ui/conformance/adapter.h"
#include "ui/qt/platform.h"

namespace Testing {

namespace {

class QtUser : public QObject, public User {
public:
    // A loop that is about to wait has answered everything; while a step looks for events no loop waits.
    QtUser() {
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (!script.empty() && !std::exchange(isCalled, true))
                QMetaObject::invokeMethod(
                    this, [this] { Do(); }, Qt::QueuedConnection);
        });
    }

    void SetScale(int) override {}

    void Then(std::function<void()> step) override { script.push_back(std::move(step)); }
    void Forget() override { script.clear(); }
    bool IsLeaving() const override { return UI::Widgets::IsEnding(); }
    UI::Window& GetWindow() const override { return *UI::Window::GetRunning(); }

    void Press(UI::Key key, bool withShift) override {
        if (withShift && key == UI::Key::Tab) return Conformance::PressShiftTab();
        Conformance::Press(key);
    }
    void Type(std::wstring_view text) override { Conformance::Type(text); }
    void Enter(UI::Controls::TextBox& box, std::wstring_view text) override {
        Click(static_cast<UI::Control&>(box));
        if (!box.HasFocus()) return;
        Conformance::PressControlA();
        if (text.empty()) Conformance::Press(UI::Key::Delete);
        Conformance::Type(text);
    }
    void Click(UI::Control& control) override { Conformance::Click(control); }
    void DoubleClick(UI::Control& control) override { Conformance::DoubleClick(control); }
    void Click(UI::Controls::ListBox& list, int row) override {
        if (ShowRow(list, row)) Conformance::Click(list, row);
    }
    void DoubleClick(UI::Controls::ListBox& list, int row) override {
        if (ShowRow(list, row)) Conformance::DoubleClick(list, row);
    }
    void Choose(UI::Controls::ComboBox& box, int row) override {
        if (box.IsVisible() && box.IsEnabled()) Conformance::Choose(box, row);
    }
    void ClickCloseBox() override { Conformance::ClickCloseBox(GetWindow()); }

    int CountAnswers() const override { return static_cast<int>(answers.size()); }
    void Answer(const std::optional<UI::ChosenFile>& file) override { answers.push_back(file); }
    void AnswerWithFailure(const wchar_t*) override { answers.push_back(std::nullopt); }

    std::wstring FindUndrawn(const UI::Window& window) const override {
        for (const UI::Control* control : window.GetControls()) {
            const QWidget* widget = control->GetHandle()->Widget;
            if (!widget || !control->IsVisible() || !VNT::Testing::IsRead(*control)) continue;
            if (!widget->isVisible() || GetShown(*widget) != GetExpected(*widget, control->GetText()))
                return VNT::Testing::Named(*control) + L" is drawn otherwise";
        }
        return {};
    }

private:
    static QString GetShown(const QWidget& widget) {
        if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget)) return button->text();
        if (const auto* group = dynamic_cast<const QGroupBox*>(&widget)) return group->title();
        const auto* label = dynamic_cast<const QLabel*>(&widget);
        return label ? label->text() : QString();
    }

    static QString GetExpected(const QWidget& widget, const std::wstring& text) {
        const bool isLabel = dynamic_cast<const QLabel*>(&widget) != nullptr;
        return isLabel ? UI::Widgets::ToQt(text) : UI::Widgets::ToCaption(text);
    }

    // The row's place lies in the list, though there may be no row.
    static bool ShowRow(UI::Controls::ListBox& list, int row) {
        if (!list.IsVisible()) return false;
        const int rows = list.GetHeight() / std::max(1, list.GetStyle().ItemHeight);
        if (row < list.GetTopIndex() || row >= list.GetTopIndex() + rows - 1) list.SetTopIndex(row);
        return row >= list.GetTopIndex() && row < list.GetTopIndex() + rows - 1;
    }

    void Do() {
        isCalled = false;
        if (script.empty() || AnswerBox()) return;
        QWidget& front = *GetWindow().GetHandle()->Widget;
        if (QApplication::activeWindow() != &front) return QApplication::setActiveWindow(&front);
        const auto step = std::move(script.front());
        script.pop_front();
        UI::Widgets::Guard(step);
    }

    // Whether there was a box of the desktop's.
    bool AnswerBox() {
        QWidget* box = QApplication::activeModalWidget();
        if (auto* message = dynamic_cast<QMessageBox*>(box)) {
            message->accept();
            return true;
        }
        auto* files = dynamic_cast<QFileDialog*>(box);
        if (!files) return false;
        const bool isAsked = asked == files;
        asked = files;
        std::optional<UI::ChosenFile> answer;
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        // One that stays after an answer would not have it.
        if (!answer || isAsked) {
            asked = nullptr;
            static_cast<QDialog*>(files)->reject();
        } else {
            files->selectFile(QString::fromStdString(answer->Path.string()));
            static_cast<QDialog*>(files)->accept();
            if (!files->isVisible()) asked = nullptr;
        }
        return true;
    }

    std::deque<std::function<void()>> script;
    std::deque<std::optional<UI::ChosenFile>> answers;
    const QFileDialog* asked = nullptr;
    bool isCalled = false;  // the next step is on its way
};

}  // namespace

std::unique_ptr<User> MakeUser() { return std::make_unique<QtUser>(); }

}  // namespace Testing
