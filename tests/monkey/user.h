// The user whom the monkey plays, on the desktop of the backend that the test is linked to.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "ui/controls.h"
#include "ui/dialogs.h"
#include "ui/message.h"
#include "ui/window.h"

namespace Testing {

class User {
public:
    virtual ~User() = default;

    // Of the windows that open from now on, where the desktop can be told.
    virtual void SetScale(int dpi) = 0;
    // Has the step run inside the loop that runs next, behind those that wait.
    virtual void Then(std::function<void()> step) = 0;
    // Drops the steps that no loop has run.
    virtual void Forget() = 0;
    // Whether the loop of the window in front is about to end.
    virtual bool IsLeaving() const = 0;
    virtual UI::Window& GetWindow() const = 0;

    virtual void Press(UI::Key key, bool withShift) = 0;
    virtual void Type(std::wstring_view text) = 0;
    // Over all that stands in the box.
    virtual void Enter(UI::Controls::TextBox& box, std::wstring_view text) = 0;
    virtual void Click(UI::Control& control) = 0;
    virtual void DoubleClick(UI::Control& control) = 0;
    virtual void Click(UI::Controls::ListBox& list, int row) = 0;
    virtual void DoubleClick(UI::Controls::ListBox& list, int row) = 0;
    virtual void Choose(UI::Controls::ComboBox& box, int row) = 0;
    virtual void ClickCloseBox() = 0;

    // What the next file dialogs will be answered with: a file, or Cancel.
    virtual int CountAnswers() const = 0;
    virtual void Answer(const std::optional<UI::ChosenFile>& file) = 0;
    // With a failure of the system, where the desktop can be told to fail.
    virtual void AnswerWithFailure(const wchar_t* failure) = 0;

    // A visible control whose text is shown otherwise than it is, or nothing.
    virtual std::wstring FindUndrawn(const UI::Window& window) const = 0;
};

// Stands once for each backend.
std::unique_ptr<User> MakeUser();

}  // namespace Testing
