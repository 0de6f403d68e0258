// The monkey's user on the desktop without a screen.
#include "tests/monkey/user.h"
#include "tests/support/window_layout.h"
#include "ui/headless/driver.h"

namespace Testing {

namespace {

using UI::Headless::Modifier;

class HeadlessUser : public User {
public:
    void SetScale(int dpi) override { driver.GetSystem().Dpi = dpi; }
    void Then(std::function<void()> step) override { driver.Then(std::move(step)); }
    void Forget() override { desktop.Script.clear(); }
    bool IsLeaving() const override { return desktop.Quit.has_value(); }
    UI::Window& GetWindow() const override { return driver.GetWindow(); }

    void Press(UI::Key key, bool withShift) override {
        driver.Press(key, withShift ? Modifier::Shift : Modifier::None);
    }
    void Type(std::wstring_view text) override { driver.Type(text); }
    void Enter(UI::Controls::TextBox& box, std::wstring_view text) override { driver.Enter(box, text); }
    void Click(UI::Control& control) override { driver.Click(control); }
    void DoubleClick(UI::Control& control) override { driver.DoubleClick(control); }
    void Click(UI::Controls::ListBox& list, int row) override { driver.Click(list, row); }
    void DoubleClick(UI::Controls::ListBox& list, int row) override { driver.DoubleClick(list, row); }
    void Choose(UI::Controls::ComboBox& box, int row) override { driver.Choose(box, row); }
    void ClickCloseBox() override { driver.ClickCloseBox(); }

    int CountAnswers() const override { return static_cast<int>(desktop.FileAnswers.size()); }
    void Answer(const std::optional<UI::ChosenFile>& file) override { driver.AnswerFileDialog({file, nullptr}); }
    void AnswerWithFailure(const wchar_t* failure) override { driver.AnswerFileDialog({{}, failure}); }

    std::wstring FindUndrawn(const UI::Window& window) const override {
        if (!desktop.Draws) return {};
        for (const UI::Control* control : window.GetControls()) {
            if (!control->IsVisible() || !VNT::Testing::IsRead(*control)) continue;
            const auto& drawn = control->GetHandle()->Drawn;
            if (!drawn || drawn->Caption != control->GetText())
                return VNT::Testing::Named(*control) + L" is drawn otherwise";
        }
        return {};
    }

private:
    UI::Headless::Driver driver;
    UI::Headless::Desktop& desktop = UI::Headless::GetDesktop();
};

}  // namespace

std::unique_ptr<User> MakeUser() { return std::make_unique<HeadlessUser>(); }

}  // namespace Testing
