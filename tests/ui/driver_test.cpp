// The user of the form tests: what it does, what it sees, and that it never waits for ever.
#include "ui/headless/driver.h"

#include <gtest/gtest.h>
#include <string>

#include "ui/controls.h"
#include "ui/window.h"

namespace {

using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;
using UI::Headless::ScriptError;

struct Form : Window {
    explicit Form(Window* parent = nullptr, const std::wstring& name = L"DriverForm")
        : Window(parent, name, name),
          Size(*this, L"Size"),
          WidthLabel(*this, L"Width:"),
          Width(*this),
          WidthUnit(*this, L"pixels"),
          HeightLabel(*this, L"Height:"),
          Height(*this),
          Other(*this, L"Other"),
          OtherWidthLabel(*this, L"Width:"),
          OtherWidth(*this),
          Auto(*this, L"Auto"),
          Kind(*this),
          Rows(*this),
          Edit(*this, L"Edit..."),
          Ok(*this, L"OK") {
        for (const wchar_t* text : {L"none", L"some", L"all"}) {
            Kind.AddItem(text);
            Rows.AddItem(text);
        }
        Rows.SetSize(100, 2 * Rows.GetStyle().ItemHeight);
        AddCommandHandler(IdOk, [] { EndRun(IdOk); });
        AddCommandHandler(IdCancel, [] { EndRun(IdCancel); });
    }

    GroupBox Size;
    Label WidthLabel;
    TextBox Width;
    Label WidthUnit;
    Label HeightLabel;
    TextBox Height;
    GroupBox Other;
    Label OtherWidthLabel;
    TextBox OtherWidth;
    CheckBox Auto;
    ComboBox Kind;
    ListBox Rows;
    Button Edit;
    Button Ok;
};

// The message of the error that `action` throws.
std::string GetError(const std::function<void()>& action) {
    try {
        action();
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "no error";
}

TEST(DriverScript, ThatEndsInsideALoopEndsTheLoop) {
    Driver driver;
    Form outer;
    {
        driver.Then([&] {
            Form inner(&outer, L"InnerForm");
            inner.Run();
        });
        EXPECT_EQ(GetError([&] { outer.Run(); }), "The script ended inside the modal loop of \"InnerForm\".");
    }
    EXPECT_TRUE(outer.IsEnabled());
    EXPECT_FALSE(outer.IsVisible());
    driver.Then([] { EndRun(7); });
    EXPECT_EQ(outer.Run(), 7);
}

TEST(DriverScript, RunsItsNextStepsInTheWindowThatAStepOpens) {
    Driver driver;
    Form outer;
    std::string order;
    outer.Edit.AddNotificationHandler(Button::Clicked, [&] {
        Form inner(&outer, L"InnerForm");
        order += "open ";
        order += inner.Run() == IdOk ? "ok " : "cancel ";
    });
    driver.Then([&] { driver.Click(outer.Edit); })
        .Then([&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"InnerForm");
            driver.Press(Key::Return);
        })
        .Then([&] {
            EXPECT_EQ(&driver.GetWindow(), &outer);
            order += "back ";
            driver.Press(Key::Escape);
        })
        .Then([] {});
    EXPECT_EQ(outer.Run(), IdCancel);
    EXPECT_EQ(order, "open ok back ");
    EXPECT_EQ(driver.CountStepsLeft(), 1u);
}

TEST(DriverScript, FindsAControlByWhatAScreenReaderCallsIt) {
    Driver driver;
    Form form;
    form.Height.SetName(L"Height of the picture");
    driver.Then([&] {
        EXPECT_EQ(&driver.FindNamed<TextBox>(L"Width:"), &form.Width);
        EXPECT_EQ(&driver.FindNamed<TextBox>(L"Width:", 1), &form.OtherWidth);
        EXPECT_EQ(&driver.FindNamed<TextBox>(L"Height of the picture"), &form.Height);
        EXPECT_EQ(&driver.FindNamed<CheckBox>(L"Auto"), &form.Auto);
        EXPECT_EQ(&driver.FindNamed<Label>(L"Width:"), &form.WidthLabel);
        EXPECT_EQ(GetError([&] { driver.FindNamed<TextBox>(L"Width:", 2); }), "Nothing is called \"Width:\".");
        form.Height.SetVisible(false);
        EXPECT_EQ(GetError([&] { driver.FindNamed<TextBox>(L"Height of the picture"); }),
                  "Nothing is called \"Height of the picture\".");
        EndRun(IdOk);
    });
    form.Run();
}

TEST(DriverScript, FailsInputThatNoWindowWouldTake) {
    Driver driver;
    Form form;
    EXPECT_EQ(GetError([&] { driver.Press(Key::Tab); }), "No window runs.");
    driver.Then([&] {
        driver.Press(Key::Return);
        driver.Type(L"x");
    });
    EXPECT_EQ(GetError([&] { form.Run(); }), "Input for \"DriverForm\", which is about to close.");
}

TEST(DriverScript, IsForgottenWithItsDriver) {
    {
        Driver driver;
        driver.Then([] {});
        driver.GetSystem().Dpi = 192;
        EndRun(3);
    }
    Driver driver;
    EXPECT_EQ(driver.CountStepsLeft(), 0u);
    EXPECT_EQ(driver.GetSystem().Dpi, 96);
    Form form;
    driver.Then([] { EndRun(4); });
    EXPECT_EQ(form.Run(), 4);
}

// Opens a form and does one thing in it.
class DriverActions : public testing::Test {
protected:
    void Do(const std::function<void()>& action) {
        driver.Then([&] {
            action();
            EndRun(IdOk);
        });
        EXPECT_EQ(form.Run(), IdOk);
    }

    Driver driver;
    Form form;
};

TEST_F(DriverActions, FindControlsByTheirTextOrTheirLabel) {
    Do([&] {
        EXPECT_EQ(&driver.Find<Button>(L"Edit..."), &form.Edit);
        EXPECT_EQ(&driver.Find<CheckBox>(L"Auto"), &form.Auto);
        EXPECT_EQ(&driver.Find<TextBox>(L"Width:"), &form.Width);
        EXPECT_EQ(&driver.Find<TextBox>(L"Width:", 1), &form.Height);
        EXPECT_EQ(&driver.Find<TextBox>({L"Size", L"Height:"}), &form.Height);
        EXPECT_EQ(&driver.Find<TextBox>({L"Other", L"Width:"}), &form.OtherWidth);
        EXPECT_EQ(&driver.Find<ComboBox>(L"Auto"), &form.Kind);
        EXPECT_EQ(&driver.Find<Label>(L"Width:", 1), &form.OtherWidthLabel);
        EXPECT_EQ(&driver.Find<Button>({L"Other", L"OK"}), &form.Ok);
        EXPECT_EQ(GetError([&] { driver.Find<Button>(L"Missing"); }), "Nothing reads \"Missing\".");
        EXPECT_EQ(GetError([&] { driver.Find<TextBox>({L"Other", L"Height:"}); }), "Nothing reads \"Height:\".");
        EXPECT_EQ(GetError([&] { driver.Find<TextBox>(L"Width:", 3); }), "No such control at \"Width:\".");
        form.WidthLabel.SetVisible(false);
        EXPECT_EQ(&driver.Find<TextBox>(L"Width:"), &form.OtherWidth);
    });
}

TEST_F(DriverActions, TypeIntoWhatHasTheFocus) {
    Do([&] {
        EXPECT_EQ(driver.GetFocused(), &form.Width);
        driver.Type(L"19 20\t10");
        EXPECT_EQ(form.Width.GetText(), L"19 20");
        EXPECT_EQ(form.Height.GetText(), L"10");
        driver.Press(Key::Tab, Headless::Modifier::Shift);
        driver.Type(L"7");
        EXPECT_EQ(form.Width.GetText(), L"7") << "Tab selects, so that typing replaces";
    });
}

TEST_F(DriverActions, EditTextWithTheCaret) {
    Do([&] {
        form.Width.SetFocus();
        driver.Type(L"abcd");
        driver.Press(Key::Left);
        driver.Press(Key::Left, Headless::Modifier::Shift);
        driver.Type(L"X");
        EXPECT_EQ(form.Width.GetText(), L"abXd");
        driver.Press(Key::Home);
        driver.Press(Key::Delete);
        EXPECT_EQ(form.Width.GetText(), L"bXd");
        driver.Press(Key::End);
        driver.Press(Key::Right);
        driver.Press(Key::Back);
        EXPECT_EQ(form.Width.GetText(), L"bX");
        driver.Press(Key::Home);
        driver.Press(Key::Back);
        EXPECT_EQ(form.Width.GetText(), L"bX");
    });
}

TEST_F(DriverActions, EnterReplacesTheWholeText) {
    Do([&] {
        form.Width.SetText(L"old");
        driver.Enter(form.Width, L"007");
        EXPECT_EQ(form.Width.GetText(), L"007");
        driver.Enter(form.Width, L"");
        EXPECT_EQ(form.Width.GetText(), L"");
        form.Height.SetText(L"kept");
        form.Height.SetEnabled(false);
        driver.Enter(form.Height, L"new");
        EXPECT_EQ(form.Height.GetText(), L"kept");
    });
}

TEST_F(DriverActions, ChooseFromAComboBox) {
    int heard = 0;
    form.Kind.AddNotificationHandler(ComboBox::SelectionChanged, [&] { ++heard; });
    Do([&] {
        driver.Choose(form.Kind, L"all");
        EXPECT_EQ(form.Kind.GetSelection(), 2);
        driver.Choose(form.Kind, 2);
        EXPECT_EQ(heard, 1) << "the same row again is no change";
        EXPECT_NE(GetError([&] { driver.Choose(form.Kind, L"few"); }), "no error");
        EXPECT_NE(GetError([&] { driver.Choose(form.Kind, 3); }), "no error");
        form.Kind.SetEnabled(false);
        driver.Choose(form.Kind, 0);
        EXPECT_EQ(form.Kind.GetSelection(), 2);
    });
}

TEST_F(DriverActions, ClickRowsAndScrollToThem) {
    Do([&] {
        driver.Click(form.Rows, 2);
        EXPECT_EQ(form.Rows.GetSelection(), 2);
        driver.Click(form.Rows, 0);
        EXPECT_EQ(form.Rows.GetSelection(), 0);
        EXPECT_EQ(form.Rows.GetTopIndex(), 0);
        driver.Press(Key::PageDown);
        EXPECT_EQ(form.Rows.GetSelection(), 2);
        EXPECT_EQ(form.Rows.GetTopIndex(), 1);
    });
}

TEST_F(DriverActions, ReachNoControlBehindAModalWindow) {
    int heard = 0;
    form.Ok.AddNotificationHandler(Button::Clicked, [&] { ++heard; });
    driver.Then([&] {
        Form inner(&form, L"InnerForm");
        driver.Then([&] {
            driver.Click(form.Ok);
            EndRun(IdOk);
        });
        inner.Run();
        driver.Click(form.Ok);
        EndRun(IdOk);
    });
    form.Run();
    EXPECT_EQ(heard, 1);
}

TEST_F(DriverActions, StopADoubleClickThatOpensAWindowAtTheFirstPress) {
    int opened = 0;
    form.Edit.AddNotificationHandler(Button::Clicked, [&] { ++opened, EndRun(IdOk); });
    driver.Then([&] { driver.DoubleClick(form.Edit); });
    form.Run();
    EXPECT_EQ(opened, 1);
}

TEST_F(DriverActions, SeeTheStyleThatEachStateIsDrawnWith) {
    const StyleTable& table = form.GetStyle();
    Do([&] {
        const StateStyles& states = table.Button.States;
        EXPECT_EQ(driver.GetLook(form).Background, table.WindowBackground);
        EXPECT_EQ(driver.GetLook(form.Ok).Frame, states[ControlState::Normal]);
        EXPECT_EQ(driver.GetLook(form.Ok).Caption, L"OK");
        driver.Hover(form.Ok);
        EXPECT_EQ(driver.GetLook(form.Ok).Frame, states[ControlState::Hot]);
        form.Ok.SetFocus();
        EXPECT_EQ(driver.GetLook(form.Ok).Frame, states[ControlState::HotFocused]);
        EXPECT_FALSE(driver.GetLook(form.Ok).FocusMark);
        driver.MovePointerAway();
        EXPECT_EQ(driver.GetLook(form.Ok).State, ControlState::Focused);
        driver.Press(Key::Tab);
        EXPECT_EQ(driver.GetLook(form.Ok).State, ControlState::Normal);
        driver.Press(Key::Tab, Headless::Modifier::Shift);
        EXPECT_TRUE(driver.GetLook(form.Ok).FocusMark);
        form.Ok.SetDefault(true);
        form.SetFocus();
        EXPECT_EQ(driver.GetLook(form.Ok).Frame.Border, states[ControlState::Focused].Border);
        EXPECT_FALSE(driver.GetLook(form.Ok).FocusMark);
        form.Ok.SetEnabled(false);
        EXPECT_EQ(driver.GetLook(form.Ok).Frame, states[ControlState::Disabled]);
        form.Ok.SetText(L"Done");
        EXPECT_EQ(driver.GetLook(form.Ok).Caption, L"Done");
    });
}

TEST_F(DriverActions, SeeAButtonPressedWhileTheKeyIsDown) {
    Do([&] {
        form.Ok.SetFocus();
        Native::Send(form.Ok.GetHandle(), Message::KeyDown, static_cast<WParam>(Key::Space), 0);
        EXPECT_EQ(driver.GetLook(form.Ok).State, ControlState::Pressed);
        Native::Send(form.Ok.GetHandle(), Message::KeyUp, static_cast<WParam>(Key::Space), 0);
        EXPECT_EQ(driver.GetLook(form.Ok).State, ControlState::Focused);
    });
}

TEST_F(DriverActions, SeeChecksLabelsAndFrames) {
    const StyleTable& table = form.GetStyle();
    Do([&] {
        form.Auto.SetChecked(true);
        EXPECT_TRUE(driver.GetLook(form.Auto).Checked);
        EXPECT_EQ(driver.GetLook(form.Auto).Frame, table.CheckedBox.Box[ControlState::Normal]);
        EXPECT_EQ(driver.GetLook(form.Auto).Text, table.Label.Text);
        form.Auto.SetEnabled(false);
        EXPECT_EQ(driver.GetLook(form.Auto).Text, table.Label.DisabledText);
        form.WidthLabel.SetEnabled(false);
        EXPECT_EQ(driver.GetLook(form.WidthLabel).Text, table.Label.DisabledText);
        form.Size.SetValidStyle(false);
        for (Control* part : {static_cast<Control*>(&form.Size), &form.Size.GetLeftEdge(), &form.Size.GetRightEdge(),
                              &form.Size.GetBottomEdge()}) {
            EXPECT_EQ(driver.GetLook(*part).Frame.Border, 0x0000FFu);
        }
        EXPECT_EQ(driver.GetLook(form.Size).Text, 0x0000FFu);
    });
}

TEST_F(DriverActions, SeeTextBoxesAndLists) {
    const StyleTable& table = form.GetStyle();
    Do([&] {
        form.Width.SetFocus();
        EXPECT_EQ(driver.GetLook(form.Width).Frame, table.TextBox.States[ControlState::Focused]);
        driver.Type(L"x");
        EXPECT_EQ(driver.GetLook(form.Width).Caption, L"x");
        form.Width.SetValidStyle(false);
        EXPECT_EQ(driver.GetLook(form.Width).Text, 0x0000FFu);
        form.Rows.SetFocus();
        EXPECT_EQ(driver.GetLook(form.Width).State, ControlState::Normal);
        form.Rows.SetSelection(1);
        const auto& items = driver.GetLook(form.Rows).Items;
        ASSERT_EQ(items.size(), 3u);
        EXPECT_EQ(items[1].Caption, L"some");
        EXPECT_EQ(items[1].Background, table.ListBox.SelectedBackground);
        EXPECT_EQ(items[0].Background, table.ListBox.States[ControlState::Normal].Background);
        EXPECT_EQ(items[0].Font, table.NormalFont);
        form.Rows.Clear();
        EXPECT_TRUE(driver.GetLook(form.Rows).Items.empty());
        form.Kind.SetSelection(2);
        EXPECT_EQ(driver.GetLook(form.Kind).Caption, L"all");
        form.Kind.SetDroppedDown(true);
        EXPECT_EQ(driver.GetLook(form.Kind).Frame, table.ComboBox.States[ControlState::Pressed]);
        EXPECT_EQ(driver.GetLook(form.Kind).Items.size(), 3u);
    });
}

TEST_F(DriverActions, SeeNothingOfWhatIsNotDrawn) {
    EXPECT_NE(GetError([&] { driver.GetLook(form.Ok); }), "no error");
    EXPECT_NE(GetError([&] { driver.GetLook(form); }), "no error");
    Do([&] {
        form.Ok.BeginUpdate();
        form.Ok.SetText(L"later");
        EXPECT_EQ(driver.GetLook(form.Ok).Caption, L"OK");
        form.Ok.EndUpdate();
        EXPECT_EQ(driver.GetLook(form.Ok).Caption, L"later");
    });
}

TEST_F(DriverActions, ReadTheMessagesThatWereShown) {
    ShowMessage(&form, L"Failed to import file.", L"Error", MessageKind::Error);
    ASSERT_EQ(driver.GetMessages().size(), 1u);
    EXPECT_EQ(driver.GetMessages()[0].Text, L"Failed to import file.");
    EXPECT_EQ(driver.GetMessages()[0].Caption, L"Error");
    EXPECT_EQ(driver.GetMessages()[0].Kind, MessageKind::Error);
    EXPECT_EQ(driver.GetMessages()[0].Owner, &form);
}

TEST_F(DriverActions, AnswerFileDialogsInTurn) {
    const FileDialog open{L"Import", L"Import", L"bin", {{L"TXT Files", L"*.txt"}}};
    driver.AnswerFileDialog({ChosenFile{"/tmp/a.txt", 1}});
    driver.AnswerFileDialog({});
    driver.AnswerFileDialog({{}, L"CoInitializeEx failed."});
    const auto chosen = ChooseFileToOpen(&form, open);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->Path, "/tmp/a.txt");
    EXPECT_FALSE(ChooseFileToSave(&form, open));
    std::wstring failure;
    try {
        ChooseFileToOpen(&form, open);
    } catch (const wchar_t* text) {
        failure = text;
    }
    EXPECT_EQ(failure, L"CoInitializeEx failed.");
    EXPECT_EQ(driver.GetFileDialogs(), (std::vector<FileDialog>{open, open, open}));
    EXPECT_EQ(GetError([&] { ChooseFileToOpen(&form, open); }),
              "The script has no answer to the file dialog \"Import\".");
}

TEST_F(DriverActions, MeasureTextByOneRule) {
    const StyleTable table = BuildStyleTable(96, Theme::Light);
    EXPECT_EQ(MeasureText(table.NormalFont, L"000"), (UI::Size{21, 16}));
    EXPECT_EQ(MeasureText(table.BoldFont, L"000"), (UI::Size{24, 16}));
    EXPECT_EQ(MeasureText(BuildStyleTable(192, Theme::Light).NormalFont, L"000"), (UI::Size{42, 32}));
}

TEST_F(DriverActions, CenterAWindowWhereThereIsRoom) {
    form.SetClientSize(100, 2000);
    form.SetPosition(7, 8);
    driver.GetSystem().WorkArea.reset();
    form.Center();
    EXPECT_EQ(form.GetX(), 7) << "without a work area it stays";
    EXPECT_EQ(form.GetY(), 8);
    driver.GetSystem().WorkArea = Rect{200, 100, 1200, 900};
    form.Center();
    EXPECT_EQ(form.GetX(), 200 + (1000 - form.GetWidth()) / 2);
    EXPECT_EQ(form.GetY(), 100) << "higher than the work area";
    form.SetClientSize(100, 100);
    form.Center();
    EXPECT_EQ(form.GetY(), 100 + (800 - form.GetHeight()) / 2);
}

TEST_F(DriverActions, CloseTheWindowByItsBox) {
    form.AddResultHandler(Message::Close, [](WParam, LParam) {
        EndRun(IdCancel);
        return MessageResult{0};
    });
    driver.Then([&] { driver.ClickCloseBox(); });
    EXPECT_EQ(form.Run(), IdCancel);
}

}  // namespace
