// The form framework on a form that has a row of every kind.
#include "editor/any_window.h"

#include <gtest/gtest.h>

#include "tests/editor/sample_form.h"
#include "tests/support/window_layout.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

struct FormTest : testing::Test {
    // Opens the sample's form on `item`, does the steps, and cancels unless they have ended the form.
    int Run(const std::function<void()>& steps) {
        Sample::ItemForm sample;
        form = &sample;
        driver.Then([&] {
            steps();
            if (!isEnding) driver.Press(Key::Escape);
        });
        return sample.Run(item);
    }
    void Confirm() {
        isEnding = true;
        driver.Click(GetOk());
    }
    Button& GetOk() { return driver.Find<Button>(L"OK"); }
    TextBox& GetBox(std::wstring_view label) { return driver.Find<TextBox>(label); }
    void ExpectInvalid(TextBox& box) {
        EXPECT_FALSE(box.HasValidStyle());
        EXPECT_FALSE(GetOk().IsEnabled());
    }
    void ExpectValid(TextBox& box) {
        EXPECT_TRUE(box.HasValidStyle());
        EXPECT_TRUE(GetOk().IsEnabled());
    }

    Driver driver;
    Sample::Item item;
    Sample::ItemForm* form = nullptr;
    bool isEnding = false;
};

using FormText = FormTest;
using FormEnd = FormTest;
using FormRows = FormTest;

TEST_F(FormText, ANumberWithLeadingZerosComesBackCanonicalWhenItIsLeft) {
    Run([&] {
        TextBox& box = GetBox(L"Count:");
        driver.Enter(box, L"007");
        EXPECT_EQ(box.GetText(), L"007");
        ExpectValid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"7");
    });
}

TEST_F(FormText, WhatIsNoNumberIsRedAndStaysAsTyped) {
    Run([&] {
        TextBox& box = GetBox(L"Count:");
        driver.Enter(box, L"7x");
        ExpectInvalid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"7x");
        ExpectInvalid(box);
        driver.Enter(GetBox(L"Serial:"), L"6");
        EXPECT_EQ(box.GetText(), L"7x") << "a refresh by another box";
        driver.Enter(box, L"8");
        ExpectValid(box);
    });
}

TEST_F(FormText, ANumberOutOfItsLimitsIsRed) {
    Run([&] {
        TextBox& box = GetBox(L"Count:");
        driver.Enter(box, L"101");
        ExpectInvalid(box);
        driver.Enter(box, L"100");
        ExpectValid(box);
        driver.Enter(box, L"-1");
        ExpectInvalid(box);
        driver.Enter(box, L"99999999999999999999");
        ExpectInvalid(box);
        driver.Enter(box, L"+9");
        ExpectValid(box);
    });
}

TEST_F(FormText, BlanksAroundANumberArePassedOver) {
    Run([&] {
        TextBox& box = GetBox(L"Count:");
        driver.Enter(box, L" 42 ");
        ExpectValid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"42");
    });
}

TEST_F(FormText, AnEmptyBoxIsTheBlankValueWhereThatIsAllowed) {
    Run([&] {
        TextBox& count = GetBox(L"Count:");
        driver.Enter(count, L"");
        ExpectValid(count);
        TextBox& units = GetBox(L"Units:");
        driver.Enter(units, L"");
        ExpectInvalid(units);
        driver.Enter(units, L"3");
        Confirm();
    });
    EXPECT_EQ(item.count, Undefined);
    EXPECT_EQ(item.units, 3u);
}

TEST_F(FormText, NumbersOf64BitsAndUnsignedOnes) {
    Run([&] {
        TextBox& serial = GetBox(L"Serial:");
        driver.Enter(serial, L"4294967295");
        ExpectValid(serial);
        driver.Enter(serial, L"4294967296");
        ExpectInvalid(serial);
        driver.Enter(serial, L"x");
        ExpectInvalid(serial);
        driver.Enter(serial, L"4294967294");
        TextBox& units = GetBox(L"Units:");
        driver.Enter(units, L"-1");
        ExpectInvalid(units);
        driver.Enter(units, L"10");
        ExpectValid(units);
        Confirm();
    });
    EXPECT_EQ(item.serial, 4294967294);
    EXPECT_EQ(item.units, 10u);
}

TEST_F(FormText, AHexadecimalNumberNeedsItsDigits) {
    item.flags.Set(Sample::FlagEnum::First, true);
    Run([&] {
        TextBox& box = GetBox(L"Code:");
        EXPECT_EQ(box.GetText(), L"00AB");
        driver.Enter(box, L"abc");
        ExpectInvalid(box);
        driver.Enter(box, L"00abc");
        ExpectValid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"0ABC");
        driver.Enter(box, L"00G0");
        ExpectInvalid(box);
        driver.Enter(box, L"BEEF");
        Confirm();
    });
    EXPECT_EQ(item.code, 0xBEEF);
}

TEST_F(FormText, ADottedNumberIsFourNibbles) {
    Run([&] {
        TextBox& box = GetBox(L"Address:");
        EXPECT_EQ(box.GetText(), L"1.2.3.4");
        for (const wchar_t* bad : {L"1.2.3", L"1.2.3.16", L"1.2.3.4.5", L"1..3.4", L"1.2.3.x", L"1.2.3.-4"}) {
            driver.Enter(box, bad);
            ExpectInvalid(box);
        }
        driver.Enter(box, L"15.0.10.1");
        ExpectValid(box);
        Confirm();
    });
    EXPECT_EQ(item.address, 0xF0A1);
}

TEST_F(FormText, ADecimalNumberHasTheDecimalsOfItsBox) {
    Run([&] {
        TextBox& box = GetBox(L"Rate:");
        EXPECT_EQ(box.GetText(), L"60.000");
        driver.Enter(box, L".5");
        ExpectValid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"0.500");
        driver.Enter(box, L"1 2");
        ExpectInvalid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"1 2");
        driver.Enter(box, L"59.94");
        Confirm();
    });
    EXPECT_EQ(item.rate, Decimal(5994, 2));
}

TEST_F(FormText, TwoBoxesOfOneFieldFollowEachOther) {
    Run([&] {
        TextBox& first = GetBox(L"Rate:");
        TextBox& second = GetBox(L"Again:");
        driver.Enter(first, L"12.3456");
        EXPECT_EQ(first.GetText(), L"12.3456");
        EXPECT_EQ(second.GetText(), L"12.34");
        driver.Enter(second, L"x");
        EXPECT_FALSE(first.HasValidStyle());
    });
}

TEST_F(FormText, AReadOutFollowsItsValue) {
    Run([&] {
        driver.Find<Label>(L"Actual: 120.000 Hz");
        driver.Enter(GetBox(L"Rate:"), L"30");
        driver.Find<Label>(L"Actual: 60.000 Hz");
        driver.Enter(GetBox(L"Rate:"), L"");
        driver.Find<Label>(L"Actual: \u2013 Hz");
    });
}

TEST_F(FormText, ATextSaysWhatIsLeftOfItsRoom) {
    Run([&] {
        TextBox& box = GetBox(L"Name (2 bytes left)");
        driver.Enter(box, L"ABCD");
        driver.Find<GroupBox>(L"Name (1 byte left)");
        driver.Enter(box, L"ABCDE");
        driver.Find<GroupBox>(L"Name (0 bytes left)");
        ExpectValid(box);
        driver.Enter(box, L"ABCDEF");
        driver.Find<GroupBox>(L"Name (no space left)");
        ExpectInvalid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"ABCDEF");
    });
}

TEST_F(FormText, HexDataSaysWhatIsLeftAndWhetherItIsHex) {
    Run([&] {
        TextBox& box = GetBox(L"Hex data (2 bytes left)");
        EXPECT_EQ(box.GetText(), L"01 02");
        driver.Enter(box, L"0x12,0x34");
        driver.Find<GroupBox>(L"Hex data (2 bytes left)");
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"12 34");
        driver.Enter(box, L"12 3");
        ExpectValid(box);
        driver.Enter(box, L"123");
        driver.Find<GroupBox>(L"Hex data (invalid)");
        ExpectInvalid(box);
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"123");
        ExpectInvalid(box);
        driver.Enter(box, L"01 02 03 04 05");
        driver.Find<GroupBox>(L"Hex data (no space left)");
        ExpectInvalid(box);
        driver.Enter(box, L"FF");
        Confirm();
    });
    EXPECT_EQ(item.data, Bytes{0xFF});
}

TEST_F(FormText, AnInputRunsItsOwnFunctionBeforeTheRefresh) {
    item.isLinked = true;
    Run([&] {
        TextBox& linked = GetBox(L"Linked:");
        driver.Enter(GetBox(L"Count:"), L"33");
        EXPECT_EQ(form->countChanges, 2);
        EXPECT_EQ(linked.GetText(), L"33");
        driver.Enter(linked, L"44");
        EXPECT_FALSE(driver.Find<CheckBox>(L"Follow").IsChecked());
        driver.Press(Key::Tab);
        EXPECT_EQ(linked.GetText(), L"44");
        EXPECT_EQ(GetBox(L"Count:").GetText(), L"33");
    });
}

TEST_F(FormEnd, OkReplacesTheItemAndCancelDoesNot) {
    const auto edit = [&] { driver.Enter(GetBox(L"Count:"), L"50"); };
    EXPECT_EQ(Run(edit), 2);
    EXPECT_EQ(item.count, 7);
    EXPECT_EQ(Run([&] {
                  edit();
                  Confirm();
              }),
              1);
    EXPECT_EQ(item.count, 50);
}

TEST_F(FormEnd, EnterConfirmsAndDoesNothingWhileOkIsDisabled) {
    EXPECT_EQ(Run([&] {
                  TextBox& box = GetBox(L"Count:");
                  driver.Enter(box, L"x");
                  driver.Press(Key::Return);
                  EXPECT_EQ(&driver.GetWindow(), form);
                  EXPECT_TRUE(form->IsVisible());
                  driver.Enter(box, L"9");
                  driver.Press(Key::Return);
                  isEnding = true;
              }),
              1);
    EXPECT_EQ(item.count, 9);
}

TEST_F(FormEnd, EscTheCloseBoxAndCancelAlwaysCancel) {
    const std::function<void()> ends[] = {[&] { driver.Press(Key::Escape); }, [&] { driver.ClickCloseBox(); },
                                          [&] { driver.Click(driver.Find<Button>(L"Cancel")); }};
    for (const auto& end : ends) {
        for (const wchar_t* text : {L"8", L"bad"}) {
            EXPECT_EQ(Run([&] {
                          driver.Enter(GetBox(L"Count:"), text);
                          end();
                          isEnding = true;
                      }),
                      2);
            EXPECT_EQ(item.count, 7);
        }
    }
}

TEST_F(FormEnd, OkIsTheDefaultButtonWhileItCanBeUsed) {
    Run([&] {
        EXPECT_TRUE(GetOk().IsDefault());
        driver.Enter(GetBox(L"Count:"), L"x");
        EXPECT_FALSE(GetOk().IsDefault());
        driver.Enter(GetBox(L"Count:"), L"1");
        EXPECT_TRUE(GetOk().IsDefault());
    });
}

TEST_F(FormEnd, TwoLiveFormsOfOneClassAreRefused) {
    const Sample::ItemForm first;
    try {
        const Sample::ItemForm second;
        FAIL();
    } catch (const wchar_t* text) {
        EXPECT_STREQ(text, L"RegisterClassExW failed.");
    }
}

TEST_F(FormRows, AComboBoxShowsItsRowOrNone) {
    Run([&] {
        auto& box = driver.Find<ComboBox>(L"Kind:");
        EXPECT_EQ(box.GetSelection(), 0);
        driver.Choose(box, L"Fancy");
        EXPECT_TRUE(GetOk().IsEnabled());
        Confirm();
    });
    EXPECT_EQ(item.kind, Sample::KindEnum::Fancy);
    isEnding = false;
    item.kind = static_cast<Sample::KindEnum::Enum>(77);
    Run([&] { EXPECT_EQ(driver.Find<ComboBox>(L"Kind:").GetSelection(), ComboBox::NoSelection); });
}

TEST_F(FormRows, WhatHasNoRedOfItsOwnTurnsItsGroupRed) {
    Run([&] {
        auto& group = driver.Find<GroupBox>(L"Kind");
        EXPECT_TRUE(group.HasValidStyle());
        driver.Choose(driver.Find<ComboBox>(L"Kind:"), L"Odd");
        EXPECT_FALSE(group.HasValidStyle());
        EXPECT_FALSE(GetOk().IsEnabled());
        driver.Choose(driver.Find<ComboBox>(L"Kind:"), L"Plain");
        EXPECT_TRUE(group.HasValidStyle());
        driver.Enter(GetBox(L"Count:"), L"x");
        EXPECT_TRUE(driver.Find<GroupBox>(L"Numbers").HasValidStyle()) << "the box is red itself";
    });
}

TEST_F(FormRows, AComboBoxWithOtherTakesAnyNumber) {
    Run([&] {
        auto& box = driver.Find<ComboBox>(L"Other:");
        EXPECT_EQ(box.GetItemText(box.GetSelection()), L"Odd");
        EXPECT_THROW(driver.Find<TextBox>(L"Other:"), UI::Headless::ScriptError) << "no number box yet";
        driver.Choose(box, L"Other");
        auto& number = driver.Find<TextBox>(L"Other:");
        EXPECT_EQ(number.GetText(), L"");
        ExpectInvalid(number);
        driver.Enter(number, L"2");
        EXPECT_EQ(box.GetItemText(box.GetSelection()), L"Other") << "typing goes on";
        driver.Type(L"5");
        ExpectValid(number);
        driver.Enter(number, L"1");
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetItemText(box.GetSelection()), L"Other") << "it was typed";
        driver.Enter(number, L"25");
        Confirm();
    });
    EXPECT_EQ(item.other, 25);
    isEnding = false;
    Run([&] {
        auto& box = driver.Find<ComboBox>(L"Other:");
        EXPECT_EQ(box.GetItemText(box.GetSelection()), L"Other");
        EXPECT_EQ(driver.Find<TextBox>(L"Other:").GetText(), L"25");
        driver.Choose(box, L"Fancy");
        Confirm();
    });
    EXPECT_EQ(item.other, 1);
}

TEST_F(FormRows, RadioButtonsStoreTheirValueAndTabComesToTheCheckedOneOnly) {
    Run([&] {
        auto& plain = driver.Find<RadioButton>(L"Plain");
        auto& fancy = driver.Find<RadioButton>(L"Fancy");
        EXPECT_TRUE(fancy.IsChecked() && fancy.IsTabStop());
        EXPECT_FALSE(plain.IsChecked() || plain.IsTabStop());
        driver.Click(plain);
        EXPECT_TRUE(plain.IsChecked() && plain.IsTabStop());
        EXPECT_FALSE(fancy.IsChecked() || fancy.IsTabStop());
        plain.SetFocus();
        driver.Press(Key::Down);
        EXPECT_TRUE(fancy.IsChecked() && fancy.HasFocus());
        driver.Click(driver.Find<RadioButton>(L"Odd"));
        Confirm();
    });
    EXPECT_EQ(item.radio, Sample::KindEnum::Odd);
}

TEST_F(FormRows, ARadioLabelIsPlainTextWhereThereIsNoChoice) {
    Run([&] {
        auto& rate = driver.Find<RadioButton>(L"Rate:");
        EXPECT_TRUE(rate.IsChecked());
        driver.Click(driver.Find<RadioButton>(L"Again:"));
        EXPECT_FALSE(rate.IsChecked());
        driver.Click(driver.Find<CheckBox>(L"Follow"));
        EXPECT_FALSE(rate.IsVisible());
        const auto& label = driver.Find<Label>(L"Rate:");
        EXPECT_TRUE(label.IsVisible());
        EXPECT_EQ(label.GetX(), rate.GetX());
        EXPECT_EQ(label.GetY(), rate.GetY());
    });
}

TEST_F(FormRows, CheckBoxesToggleTheirBit) {
    item.flags.Set(Sample::FlagEnum::Second, true);
    item.bits.SetAt(20, true);
    Run([&] {
        EXPECT_TRUE(driver.Find<CheckBox>(L"Second").IsChecked());
        driver.Click(driver.Find<CheckBox>(L"First"));
        driver.Click(driver.Find<CheckBox>(L"Second"));
        driver.Click(driver.Find<CheckBox>(L"Bit 2"));
        driver.Click(driver.Find<CheckBox>(L"Bit 9"));
        EXPECT_TRUE(driver.Find<CheckBox>(L"Bit 9").IsChecked());
        Confirm();
    });
    EXPECT_TRUE(item.flags.Test(Sample::FlagEnum::First));
    EXPECT_FALSE(item.flags.Test(Sample::FlagEnum::Second));
    EXPECT_TRUE(item.bits.Test(static_cast<Sample::BitEnum::Enum>(2)));
    EXPECT_TRUE(item.bits.TestAt(20)) << "a bit without a box";
    EXPECT_TRUE(item.map.TestAt(9));
}

TEST_F(FormRows, ABitBeyondTheFlagsChangesNothing) {
    const Sample::Item before = item;
    Run([&] {
        auto& box = driver.Find<CheckBox>(L"Bit 70000");
        driver.Click(box);
        EXPECT_FALSE(box.IsChecked());
        Confirm();
    });
    EXPECT_EQ(item.map, before.map);
}

TEST_F(FormRows, AFieldThatDoesNotApplyIsDisabledWithItsLabelAndNeverRed) {
    Run([&] {
        TextBox& box = GetBox(L"Code:");
        EXPECT_FALSE(box.IsEnabled());
        EXPECT_FALSE(driver.Find<Label>(L"Code:").IsEnabled());
        driver.Click(driver.Find<CheckBox>(L"First"));
        EXPECT_TRUE(box.IsEnabled());
        EXPECT_TRUE(driver.Find<Label>(L"Code:").IsEnabled());
        driver.Enter(box, L"x");
        ExpectInvalid(box);
        driver.Click(driver.Find<CheckBox>(L"First"));
        EXPECT_FALSE(box.IsEnabled());
        ExpectValid(box);
        EXPECT_EQ(box.GetText(), L"00AB");
    });
}

TEST_F(FormRows, ARowOfItsOwnConditionComesAndGoes) {
    Run([&] {
        const int height = form->GetClientHeight();
        EXPECT_THROW(driver.Find<Label>(L"Shown:"), UI::Headless::ScriptError);
        driver.Choose(driver.Find<ComboBox>(L"Kind:"), L"Fancy");
        auto& box = driver.Find<TextBox>(L"Shown:");
        EXPECT_EQ(box.GetText(), L"ABC");
        EXPECT_GT(form->GetClientHeight(), height);
        driver.Choose(driver.Find<ComboBox>(L"Kind:"), L"Plain");
        EXPECT_FALSE(box.IsVisible());
        EXPECT_EQ(form->GetClientHeight(), height);
    });
}

TEST_F(FormRows, AGroupOfItsOwnConditionComesAndGoes) {
    Run([&] {
        const int height = form->GetClientHeight();
        EXPECT_THROW(driver.Find<GroupBox>(L"Extra"), UI::Headless::ScriptError);
        driver.Click(driver.Find<CheckBox>(L"Third"));
        EXPECT_TRUE(driver.Find<GroupBox>(L"Extra").IsVisible());
        EXPECT_GT(form->GetClientHeight(), height);
    });
}

TEST_F(FormRows, AButtonActsWhereItsConditionHolds) {
    item.flags.Set(Sample::FlagEnum::Third, true);
    Run([&] {
        auto& button = driver.Find<Button>(L"Press...");
        EXPECT_FALSE(button.IsEnabled());
        driver.Enter(GetBox(L"Count:"), L"1");
        EXPECT_TRUE(button.IsEnabled());
        driver.Click(button);
        EXPECT_EQ(form->presses, 1);
    });
}

TEST_F(FormRows, TabGoesFromTopToBottom) {
    Run([&] {
        const auto middle = [](const Control& control) { return control.GetY() + control.GetHeight() / 2; };
        const Control* last = nullptr;
        for (const Control* control : form->GetControls()) {
            if (!control->IsTabStop() || !control->IsVisible() || control->GetText() == L"OK") continue;
            EXPECT_TRUE(!last || middle(*control) >= middle(*last) ||
                        VNT::Testing::IsInNextColumn(*form, *last, *control))
                << String(control->GetText()).ToUtf8();
            last = control;
            if (control->GetKind() == ControlKind::ListBox) break;
        }
        EXPECT_EQ(form->GetControls().back()->GetText(), L"Cancel");
    });
}

}  // namespace
