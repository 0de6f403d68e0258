// The same treatment for every form and every chooser that a table of forms leads to.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "model/timing/detailed_resolution.h"
#include "tests/editor/form_case.h"
#include "tests/editor/form_user.h"
#include "tests/support/difference.h"
#include "tests/support/window_layout.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;
using Param = std::shared_ptr<FormCase>;

class EachForm : public testing::TestWithParam<Param> {
protected:
    void SetUp() override { form.Renew(); }
    void TearDown() override {
        EXPECT_EQ(user.driver.CountStepsLeft(), 0u);
        DetailedResolutionClipboard() = DetailedResolution();
    }

    // Opens the form and does the steps, which end it; the result.
    int Run(const std::function<void()>& steps) {
        user.driver.Then(steps);
        return form.Edit();
    }
    void Look(const std::function<void()>& steps) {
        EXPECT_EQ(Run([&] {
                      steps();
                      Press(Key::Escape);
                  }),
                  IdCancel);
    }
    void Press(Key key) { user.driver.Press(key); }
    // Does `visit` with each text box that can be used, with all of the form in view.
    void ForEachBox(const std::function<void(TextBox&)>& visit) {
        user.ShowAll();
        for (TextBox* box : user.Open<TextBox>()) {
            SCOPED_TRACE(user.FieldOf(*box));
            visit(*box);
        }
    }

    FormUser user;
    FormCase& form = *GetParam();
};

TEST_P(EachForm, ConfirmsANewItemAsItIsWhereThatIsSound) {
    const bool isSound = form.IsSound();
    const int result = Run([&] {
        EXPECT_EQ(user.Ok().IsEnabled(), isSound);
        Press(Key::Return);
        if (!isSound) Press(Key::Escape);
    });
    EXPECT_EQ(result, isSound ? IdOk : IdCancel);
    EXPECT_TRUE(form.IsNew());
    if (isSound) form.ExpectToComeBack();
}

TEST_P(EachForm, LeavesTheItemAsItWasByEachWayOutButOk) {
    const std::function<void()> ways[] = {[this] { Press(Key::Escape); }, [this] { user.driver.ClickCloseBox(); },
                                          [this] { user.driver.Click(user.driver.Find<Button>(L"Cancel")); }};
    for (const auto& leave : ways) {
        EXPECT_EQ(Run([&] {
                      user.ShowAll();
                      user.ChangeAll();
                      leave();
                  }),
                  IdCancel);
        EXPECT_TRUE(form.IsNew());
    }
}

TEST_P(EachForm, ShowsATextThatIsNoneInRedAndKeepsOkClosed) {
    Look([&] {
        ForEachBox([&](TextBox& box) {
            const std::wstring before = box.GetText();
            user.driver.Enter(box, Rubbish);
            EXPECT_FALSE(box.HasValidStyle());
            EXPECT_FALSE(user.Ok().IsEnabled());
            if (!box.IsMultiLine()) Press(Key::Return);
            Press(Key::Tab);
            EXPECT_EQ(box.GetText(), Rubbish);
            EXPECT_FALSE(box.HasValidStyle());
            user.driver.Enter(box, before);
        });
    });
}

TEST_P(EachForm, ShowsNumbersInRedBeyondTheirLimitsAndNotAtThem) {
    Look([&] {
        ForEachBox([&](TextBox& box) {
            const auto edges = user.FindEdges(box);
            if (!edges) return;
            const std::wstring before = box.GetText();
            for (const std::wstring& text : edges->within) {
                user.driver.Enter(box, text);
                EXPECT_TRUE(box.HasValidStyle()) << String(text).ToUtf8();
                user.driver.Enter(box, before);
            }
            for (const std::wstring& text : edges->beyond) {
                user.driver.Enter(box, text);
                EXPECT_FALSE(box.HasValidStyle()) << String(text).ToUtf8();
                user.driver.Enter(box, before);
            }
        });
    });
}

TEST_P(EachForm, ConfirmsTheLeastOfEachBoxAndTheItemComesBackFromItsBytes) {
    EXPECT_EQ(Run([&] {
                  ForEachBox([&](TextBox& box) { EXPECT_TRUE(user.FindLeast(box)); });
                  EXPECT_TRUE(user.Ok().IsEnabled());
                  user.driver.Click(user.Ok().IsEnabled() ? user.Ok() : user.driver.Find<Button>(L"Cancel"));
              }),
              IdOk);
    EXPECT_TRUE(form.IsSound());
    form.ExpectToComeBack();
}

TEST_P(EachForm, TakesTheTabKeyFromTopToBottom) {
    Look([&] {
        user.ShowAll();
        const Control* last = &user.driver.Find<Button>(L"Cancel");
        while (user.driver.GetFocused() != last) Press(Key::Tab);
        std::vector<const Control*> stops;
        do {
            Press(Key::Tab);
            stops.push_back(user.driver.GetFocused());
        } while (stops.back() != last);
        const auto middle = [](const Control& control) { return control.GetY() + control.GetHeight() / 2; };
        const auto areBoxes = [](const Control& a, const Control& b) {
            return dynamic_cast<const CheckBox*>(&a) && dynamic_cast<const CheckBox*>(&b);
        };
        // From row to row; check boxes stand in columns.
        for (std::size_t i = 1; i < stops.size(); ++i) {
            const Control &a = *stops[i - 1], &b = *stops[i];
            const bool isRight = b.GetX() >= a.GetRight() && (middle(b) == middle(a) || areBoxes(a, b));
            EXPECT_TRUE(middle(b) > middle(a) || isRight || IsInNextColumn(user.driver.GetWindow(), a, b))
                << String(Named(a)).ToUtf8() << ", " << String(Named(b)).ToUtf8();
        }
    });
}

TEST_P(EachForm, CutsNothingOffAndCoversNothing) {
    Look([&] {
        EXPECT_EQ(FindMisplaced(user.driver.GetWindow()), L"");
        user.ShowAll();
        EXPECT_EQ(FindMisplaced(user.driver.GetWindow()), L"");
    });
}

INSTANTIATE_TEST_SUITE_P(Forms, EachForm, testing::ValuesIn(AllForms()), NameOfCase());

class EachChooser : public testing::TestWithParam<Param> {
protected:
    FormCase& chooser = *GetParam();
};

TEST_P(EachChooser, LeadsFromEachRowToItsFormOrToANewItem) {
    std::size_t count = 1;
    for (std::size_t row = 0; row < count; ++row) {
        FormUser user;
        chooser.Renew();
        bool isForm = false;
        user.driver.Then([&] {
            const auto buttons = user.Open<RadioButton>();
            count = buttons.size();
            EXPECT_TRUE(buttons.front()->IsChecked());
            user.driver.Click(*buttons[row]);
            user.driver.Press(Key::Return);
        });
        user.driver.Then([&] {
            isForm = true;
            user.driver.Press(Key::Escape);
        });
        const int result = chooser.Edit();
        EXPECT_EQ(result, isForm ? IdCancel : IdOk);
        EXPECT_EQ(chooser.IsEmpty(), isForm);
    }
    EXPECT_GT(count, 1u);
}

TEST_P(EachChooser, LeavesTheHolderEmptyWhenItIsCancelled) {
    FormUser user;
    chooser.Renew();
    user.driver.Then([&] {
        EXPECT_EQ(FindMisplaced(user.driver.GetWindow()), L"");
        user.driver.Press(Key::Escape);
    });
    EXPECT_EQ(chooser.Edit(), IdCancel);
    EXPECT_TRUE(chooser.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Choosers, EachChooser, testing::ValuesIn(AllChoosers()), NameOfCase());

// What a class of windows is called stands in its constructor, as L"...Window".
std::set<std::string> NamesOfWindowClasses() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(VANTELLE_SOURCE_DIR "/editor")) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            const std::size_t at = line.find("L\"");
            if (at == std::string::npos || line.find("//") < at) continue;
            const std::string word = line.substr(at + 2, line.find('"', at + 2) - at - 2);
            const bool isName = word.find(' ') == std::string::npos && word.find("Window") != std::string::npos;
            if (isName) names.insert(word);
        }
    }
    return names;
}

// A new kind has a row in its family's table of forms, or a line here that says that nobody edits it.
TEST(AllForms, LeaveNoKindOut) {
    const std::set<std::string> expected{
        "CTA data block: 4:2:0 capability map",
        "descriptor: Empty",
        "extension block: Default",
        "range limits timing: Default GTF",
        "range limits timing: Range limits only",
    };
    EXPECT_TRUE(HaveNoDifference(expected, KindsWithoutForm()));
}

TEST(AllForms, LeaveNoWindowOfTheEditorOut) {
    std::set<std::string> opened{"MainWindow"};
    FormCases cases = AllForms();
    for (const Param& chooser : AllChoosers()) cases.push_back(chooser);
    for (const Param& form : cases) {
        FormUser user;
        user.driver.Then([&] {
            opened.insert(String(user.driver.GetWindow().GetName()).ToUtf8());
            user.driver.Press(Key::Escape);
        });
        EXPECT_EQ(form->Edit(), IdCancel);
    }
    EXPECT_TRUE(HaveNoDifference(NamesOfWindowClasses(), opened));
}

}  // namespace
