// Every form filled and confirmed by keyboard alone.
#include <gtest/gtest.h>

#include "tests/editor/form_case.h"
#include "tests/editor/form_user.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;
using Param = std::shared_ptr<FormCase>;

// A screen on which many forms scroll.
constexpr Rect SmallScreen{0, 0, 800, 480};

class KeyboardAlone : public testing::TestWithParam<Param> {
protected:
    void SetUp() override { form.Renew(); }
    void TearDown() override { EXPECT_EQ(user.driver.CountStepsLeft(), 0u); }

    // What each box takes, in their order: what the user knows.
    std::vector<std::wstring> Learn() {
        std::vector<std::wstring> texts;
        user.driver.Then([&] {
            user.ShowAll();
            for (TextBox* box : user.Open<TextBox>()) {
                const auto least = user.FindLeast(*box);
                texts.push_back(least.value_or(box->GetText()));
            }
            user.driver.Press(Key::Escape);
        });
        form.Edit();
        form.Renew();
        return texts;
    }

    Control& Focused() const {
        Control* focused = user.driver.GetFocused();
        if (!focused) throw Headless::ScriptError(L"Nothing has the focus.");
        return *focused;
    }
    // Whether the user sees that this is where the keys go.
    void ExpectMark(const Control& control) const {
        SCOPED_TRACE(String(control.GetName()).ToUtf8());
        EXPECT_TRUE(Driver::IsInView(control));
        EXPECT_TRUE(control.IsEnabled());
        const Window& window = control.GetWindow();
        if (control.GetView() && control.GetHeight() <= window.GetView()->Bottom) {
            EXPECT_GE(control.GetY(), 0);
            EXPECT_LE(control.GetBottom(), window.GetView()->Bottom);
        }
        const auto& look = user.driver.GetLook(control);
        const bool isFocused = look.State == ControlState::Focused || look.State == ControlState::HotFocused;
        EXPECT_TRUE(look.FocusMark || isFocused);
    }
    // Opens further boxes.
    void Unfold(Control& control) {
        auto* box = dynamic_cast<ComboBox*>(&control);
        const bool hasOther = box && box->GetCount() > 0 && box->GetItemText(box->GetCount() - 1) == L"Other";
        if (hasOther) user.driver.Press(Key::End);
        if (control.GetText() == L"\u25BC") user.driver.Press(Key::Space);
    }
    void Move(Control& control) {
        if (auto* box = dynamic_cast<ComboBox*>(&control)) {
            const int selected = box->GetSelection();
            user.driver.Press(Key::Down);
            if (box->GetSelection() != selected) user.driver.Press(Key::Up);
            EXPECT_EQ(box->GetSelection(), selected);
        } else if (dynamic_cast<CheckBox*>(&control)) {
            user.driver.Press(Key::Space);
            user.driver.Press(Key::Space);
        }
    }
    static bool EndsForm(const Control& control) {
        return control.GetText() == L"OK" || control.GetText() == L"Cancel";
    }
    // Each stop once, from the first to OK; the last one is not used.
    void GoThrough(const std::function<void(Control&)>& visit) {
        constexpr int most = 500;
        for (int stops = 0; stops < most; ++stops) {
            Control& control = Focused();
            ExpectMark(control);
            if (EndsForm(control)) return;
            visit(control);
            user.driver.Press(Key::Tab);
        }
        ADD_FAILURE() << "Tab does not come to OK";
    }

    FormUser user;
    FormCase& form = *GetParam();
};

TEST_P(KeyboardAlone, FillsAndConfirmsAForm) {
    const std::vector<std::wstring> texts = Learn();
    user.driver.GetSystem().WorkArea = SmallScreen;
    user.driver.Then([&] {
        user.driver.Press(Key::Tab);
        user.driver.Press(Key::Tab, Headless::Modifier::Shift);
        // First what opens further boxes, then the boxes.
        GoThrough([this](Control& control) { Unfold(control); });
        for (int i = 0; i < 2 && EndsForm(Focused()); ++i) user.driver.Press(Key::Tab);
        std::size_t next = 0;
        GoThrough([&](Control& control) {
            if (!dynamic_cast<TextBox*>(&control)) return;
            ASSERT_LT(next, texts.size());
            user.driver.PressControl(L'A');
            user.driver.Press(Key::Delete);
            user.driver.Type(texts[next++]);
        });
        // What is moved and moved back leaves all as it was.
        for (int i = 0; i < 2 && EndsForm(Focused()); ++i) user.driver.Press(Key::Tab);
        GoThrough([this](Control& control) { Move(control); });
        EXPECT_EQ(Focused().GetText(), L"OK");
        user.driver.Press(Focused().GetText() == L"OK" ? Key::Return : Key::Escape);
    });
    EXPECT_EQ(form.Edit(), IdOk);
    EXPECT_TRUE(form.IsSound());
    form.ExpectToComeBack();
}

INSTANTIATE_TEST_SUITE_P(Forms, KeyboardAlone, testing::ValuesIn(AllForms()), NameOfCase());

class ChooserByKeyboard : public testing::TestWithParam<Param> {};

TEST_P(ChooserByKeyboard, TakesEachKindByItsArrows) {
    FormCase& chooser = *GetParam();
    std::size_t count = 1;
    for (std::size_t row = 0; row < count; ++row) {
        FormUser user;
        user.driver.GetSystem().WorkArea = SmallScreen;
        chooser.Renew();
        user.driver.Then([&] {
            const auto kinds = user.Open<RadioButton>();
            count = kinds.size();
            // Focus marks show with the first use of the keys.
            user.driver.Press(Key::Tab);
            user.driver.Press(Key::Tab, Headless::Modifier::Shift);
            for (std::size_t i = 0; i < row; ++i) user.driver.Press(Key::Down);
            EXPECT_EQ(user.driver.GetFocused(), kinds[row]);
            EXPECT_TRUE(Driver::IsInView(*kinds[row]));
            EXPECT_TRUE(user.driver.GetLook(*kinds[row]).FocusMark);
            EXPECT_TRUE(kinds[row]->IsChecked());
            user.driver.Press(Key::Escape);
        });
        EXPECT_EQ(chooser.Edit(), IdCancel);
    }
    EXPECT_GT(count, 1u);
}

INSTANTIATE_TEST_SUITE_P(Choosers, ChooserByKeyboard, testing::ValuesIn(AllChoosers()), NameOfCase());

}  // namespace
