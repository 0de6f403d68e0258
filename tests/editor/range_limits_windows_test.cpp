#include "editor/range_limits_windows.h"

#include <gtest/gtest.h>

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;
using TimingKind = EdidRangeLimitsTimingTypeId;

// 50-76 Hz, 30-83 kHz, 170 MHz; `timing` is the bytes from the kind of timing on.
EdidRangeLimitsDescriptor WithTiming(const std::string& timing) {
    return ReadAs<EdidRangeLimitsDescriptor>(FromHex(("00 00 00 FD 00 32 4C 1E 53 11 " + timing).c_str()));
}
EdidRangeLimitsDescriptor Plain() { return WithTiming("00 0A 20 20 20 20 20 20"); }

class RangeLimitsForm : public TFormTest<EdidRangeLimitsDescriptorWindow> {
protected:
    RangeLimitsForm() { item = Plain(); }

    ComboBox& Timing() { return Combo(L"Timing"); }
    Button& Edit() { return Named(L"Edit..."); }
};

TEST_F(RangeLimitsForm, EachRateIsOneNumberWhateverItsBytesAre) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Range Limits");
                  EXPECT_EQ(Box(L"Refresh rates", 0).GetText(), L"50");
                  EXPECT_EQ(Box(L"Scan rates", 1).GetText(), L"83");
                  EXPECT_EQ(Box(L"Max pixel clock").GetText(), L"170");
                  driver.Enter(Box(L"Refresh rates", 1), L"300");
                  driver.Enter(Box(L"Max pixel clock"), L"600");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FD 02 32 2D 1E 53 3C 00 0A 20 20 20 20 20 20");
}

TEST_F(RangeLimitsForm, AMinimumAboveItsMaximumTurnsBothRed) {
    Run([&] {
        driver.Enter(Box(L"Refresh rates", 0), L"77");
        EXPECT_FALSE(Box(L"Refresh rates", 0).HasValidStyle());
        EXPECT_FALSE(Box(L"Refresh rates", 1).HasValidStyle());
        EXPECT_TRUE(Box(L"Scan rates", 0).HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Refresh rates", 0), L"76");
        EXPECT_TRUE(Box(L"Refresh rates", 1).HasValidStyle());
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(RangeLimitsForm, ARateThatIsNoNumberShowsAsAnEmptyRedBox) {
    Bytes bytes = BytesOf(Plain());
    bytes.At(4) = 0x01;
    bytes.At(5) = 0;
    item = ReadAs<EdidRangeLimitsDescriptor>(bytes);
    Run([&] {
        EXPECT_EQ(Box(L"Refresh rates", 0).GetText(), L"");
        EXPECT_FALSE(Box(L"Refresh rates", 0).HasValidStyle());
        EXPECT_TRUE(Box(L"Refresh rates", 1).HasValidStyle());
        Leave();
    });
}

TEST_F(RangeLimitsForm, AClockIsAWholeNumberOfTens) {
    Run([&] {
        for (const wchar_t* text : {L"0", L"175", L"2560"}) {
            driver.Enter(Box(L"Max pixel clock"), text);
            EXPECT_FALSE(Box(L"Max pixel clock").HasValidStyle());
        }
        driver.Enter(Box(L"Max pixel clock"), L"2550");
        EXPECT_TRUE(Box(L"Max pixel clock").HasValidStyle());
        Leave();
    });
}

TEST_F(RangeLimitsForm, OffersTheKindsOfTimingOfWhichTwoHaveAForm) {
    Run([&] {
        EXPECT_EQ(Timing().GetItemText(Timing().GetSelection()), L"Default GTF");
        for (const auto& [row, hasForm] :
             {std::pair{L"Limits only", false}, {L"Secondary GTF", true}, {L"CVT", true}, {L"Default GTF", false}}) {
            driver.Choose(Timing(), row);
            EXPECT_EQ(Edit().IsEnabled(), hasForm);
            EXPECT_TRUE(CanConfirm());
        }
        driver.Choose(Timing(), L"Limits only");
        Confirm();
    });
    EXPECT_EQ(item.timing.GetType(), TimingKind::Only);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FD 00 32 4C 1E 53 11 01 0A 20 20 20 20 20 20");
}

TEST_F(RangeLimitsForm, AnotherKindIsANumberAndKeepsTheBytesBehindIt) {
    item = WithTiming("03 01 02 03 04 05 06 07");
    Run([&] {
        EXPECT_EQ(Timing().GetItemText(Timing().GetSelection()), L"Other");
        EXPECT_EQ(Box(L"Timing").GetText(), L"3");
        EXPECT_FALSE(Edit().IsEnabled());
        driver.Enter(Box(L"Timing"), L"256");
        EXPECT_FALSE(Box(L"Timing").HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Timing"), L"7");
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FD 00 32 4C 1E 53 11 07 01 02 03 04 05 06 07");
}

TEST_F(RangeLimitsForm, OtherIsEmptyUntilItsNumberIsTyped) {
    Run([&] {
        driver.Choose(Timing(), L"Other");
        EXPECT_EQ(Box(L"Timing").GetText(), L"");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Timing"), L"5");
        EXPECT_TRUE(CanConfirm());
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FD 00 32 4C 1E 53 11 05 00 00 00 00 00 00 00");
}

TEST_F(RangeLimitsForm, TheNumberOfAKindIsThatKind) {
    Run([&] {
        driver.Choose(Timing(), L"Other");
        driver.Enter(Box(L"Timing"), L"4");
        EXPECT_TRUE(Edit().IsEnabled());
        EXPECT_EQ(Box(L"Timing").GetText(), L"4");
        Confirm();
    });
    EXPECT_EQ(item.timing.GetType(), TimingKind::Cvt);
}

TEST_F(RangeLimitsForm, TheTimingIsEditedInItsOwnForm) {
    item = WithTiming("04 11 00 F0 F8 18 00 3C");
    driver.Then([&] { driver.Click(Edit()); });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"CVT");
        driver.Enter(Box(L"Subtract max pixel clock"), L"0.25");
        driver.Press(Key::Return);
    });
    driver.Then([&] { driver.Click(Edit()); });
    driver.Then([&] {
        driver.Enter(Box(L"Max width"), L"1280");
        Leave();
    });
    EXPECT_EQ(Run([&] { Confirm(); }), IdOk);
    EXPECT_EQ(TextOf(item), "Range limits: 50-76 Hz, 30-83 kHz, 169.75 MHz");
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FD 00 32 4C 1E 53 11 04 11 04 F0 F8 18 00 3C");
}

TEST_F(RangeLimitsForm, AnEditMendsThePaddingOfATimingWithoutAForm) {
    item = WithTiming("00 00 00 00 00 00 00 00");
    EXPECT_FALSE(item.IsValid());
    const EdidRangeLimitsDescriptor before = item;
    EXPECT_EQ(Run([&] { Confirm(); }), IdOk);
    EXPECT_EQ(item, before) << "what was not edited stays";
    EdidRangeLimitsDescriptor expected = Plain();
    expected.maxPixelClock += 10;
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"Max pixel clock"), std::to_wstring(expected.maxPixelClock));
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item, expected);
}

using SecondaryGtfForm = TFormTest<EdidRangeLimitsSecondaryGtfTimingWindow>;

TEST_F(SecondaryGtfForm, ShowsTheParametersOfTheCurve) {
    item = ReadAs<EdidRangeLimitsSecondaryGtfTiming>(FromHex("02 07 2D 51 58 02 80 29"));
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Secondary GTF");
                  EXPECT_EQ(Box(L"Start frequency").GetText(), L"90");
                  EXPECT_EQ(Box(L"C").GetText(), L"40.5");
                  EXPECT_EQ(Box(L"M").GetText(), L"600");
                  EXPECT_EQ(Box(L"K").GetText(), L"128");
                  EXPECT_EQ(Box(L"J").GetText(), L"20.5");
                  driver.Enter(Box(L"M"), L"65535");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "02 07 2D 51 FF FF 80 29");
}

TEST_F(SecondaryGtfForm, WhatTheBytesHaveNoStepForIsRed) {
    Run([&] {
        driver.Enter(Box(L"Start frequency"), L"89");
        EXPECT_FALSE(Box(L"Start frequency").HasValidStyle());
        driver.Enter(Box(L"C"), L"40.25");
        EXPECT_FALSE(Box(L"C").HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

class CvtTimingForm : public TFormTest<EdidRangeLimitsCvtTimingWindow> {
protected:
    bool IsSound(const wchar_t* group) { return driver.Find<GroupBox>(group).HasValidStyle(); }
};

TEST_F(CvtTimingForm, ShowsAllFieldsAndWritesThem) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"Version", 1), L"2");
                  driver.Enter(Box(L"Max width"), L"1920");
                  driver.Click(Check(L"4:3"));
                  driver.Click(Check(L"16:9"));
                  driver.Choose(Combo(L"Preferred aspect ratio"), L"16:9");
                  driver.Click(Check(L"Reduced"));
                  driver.Click(Check(L"Vertical stretch"));
                  driver.Enter(Box(L"Preferred refresh rate"), L"75");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "04 12 00 F0 C0 30 10 4B");
}

TEST_F(CvtTimingForm, AWidthOfNothingIsBlankAndTheGreatestIs8184) {
    item = ReadAs<EdidRangeLimitsCvtTiming>(FromHex("04 11 03 FF 00 00 00 3C"));
    Run([&] {
        EXPECT_EQ(Box(L"Max width").GetText(), L"8184");
        driver.Enter(Box(L"Max width"), L"");
        EXPECT_TRUE(Box(L"Max width").HasValidStyle());
        EXPECT_TRUE(CanConfirm());
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item)), "04 11 00 00 00 00 00 3C");
}

TEST_F(CvtTimingForm, APreferredRatioThatIsNotSupportedIsRed) {
    Run([&] {
        EXPECT_TRUE(IsSound(L"Preferred aspect ratio")) << "of all, where none is supported";
        driver.Click(Check(L"16:10"));
        EXPECT_FALSE(IsSound(L"Preferred aspect ratio"));
        EXPECT_FALSE(CanConfirm());
        driver.Choose(Combo(L"Preferred aspect ratio"), L"16:10");
        EXPECT_TRUE(IsSound(L"Preferred aspect ratio"));
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(CvtTimingForm, ARatioWithoutARowShowsAsAnotherNumber) {
    item = ReadAs<EdidRangeLimitsCvtTiming>(FromHex("04 11 00 00 00 E0 00 3C"));
    Run([&] {
        const ComboBox& ratio = Combo(L"Preferred aspect ratio");
        EXPECT_EQ(ratio.GetItemText(ratio.GetSelection()), L"Other");
        EXPECT_EQ(Box(L"Preferred aspect ratio").GetText(), L"7");
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

}  // namespace
