#include "tests/editor/resolution_form.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

TEST_F(ResolutionForm, AutomaticPcFillsTheTimingAtEachKey) {
    EdidDetailedResolution item;
    EXPECT_EQ(Run(item,
                  [&] {
                      Choose(L"Automatic PC");
                      Picture(L"1920", L"1080", L"60");
                      EXPECT_EQ(Counts(Horizontal), L"1920 88 44 148 280 2200");
                      EXPECT_EQ(Counts(Vertical), L"1080 4 5 36 45 1125");
                      EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"148.50");
                      EXPECT_FALSE(Box(L"Front porch:").IsEnabled());
                      EXPECT_TRUE(CanConfirm());
                      Confirm();
                  }),
              IdOk);
    EXPECT_EQ(item.hfront, 88);
    EXPECT_EQ(item.actualpixelclock, Decimal(1485, 1));
}

TEST_F(ResolutionForm, ARateOfZeroEmptiesAllThatFollowsAndClosesOk) {
    EdidDetailedResolution item;
    EXPECT_EQ(
        Run(item,
            [&] {
                Choose(L"CVT standard");
                Picture(L"1280", L"1024", L"0");
                EXPECT_EQ(Counts(Horizontal), L"1280     ");
                EXPECT_EQ(Counts(Vertical), L"1024     ");
                EXPECT_EQ(Box(L"Scan rate:").GetText(), L"");
                EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"");
                for (const wchar_t* readOut : {L"Actual: \u2013 Hz", L"Actual: \u2013 kHz", L"Actual: \u2013 MHz"})
                    EXPECT_TRUE(driver.Find<Label>(readOut).IsVisible());
                EXPECT_FALSE(CanConfirm());
                Confirm();
                Leave();
            }),
        IdCancel);
    EXPECT_EQ(item, EdidDetailedResolution());
}

TEST_F(ResolutionForm, TypingACountMakesItTheOneThatIsKept) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Total:", Horizontal), L"900");
        EXPECT_EQ(Counts(Horizontal), L"640 16 96 148 260 900");
        driver.Enter(Box(L"Active:", Horizontal), L"700");
        EXPECT_EQ(Counts(Horizontal), L"700 16 96 88 200 900");
        Confirm();
    });
    EXPECT_EQ(item.parameterType, DetailedResolutionParameterTypeEnum::Total);
}

TEST_F(ResolutionForm, TypingARateMakesItTheOneThatIsKept) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Pixel clock:"), L"50.4");
        EXPECT_EQ(Box(L"Refresh rate:").GetText(), L"120.000");
        Confirm();
    });
    EXPECT_EQ(item.frequencyType, DetailedResolutionFrequencyTypeEnum::PixelClock);
}

TEST_F(ResolutionForm, TypingTheRefreshRateOfAModeMakesItTheOneThatIsKept) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Click(Radio(L"Pixel clock:"));
        Choose(L"CVT standard");
        driver.Enter(Box(L"Refresh rate:"), L"75");
        Confirm();
    });
    EXPECT_EQ(item.frequencyType, DetailedResolutionFrequencyTypeEnum::RefreshRate);
}

TEST_F(ResolutionForm, ARateOfTwelveCharactersIsShownWhole) {
    EdidDetailedResolution item;
    Run(item, [&] {
        for (const int axis : {Horizontal, Vertical}) {
            for (const wchar_t* label : {L"Front porch:", L"Sync width:", L"Back porch:"})
                driver.Enter(Box(label, axis), label[0] == L'B' ? L"0" : L"1");
            driver.Enter(Box(L"Active:", axis), axis == Horizontal ? L"8" : L"1");
        }
        driver.Enter(Box(L"Pixel clock:"), L"655.35");
        const auto& readOut = driver.Find<Label>(L"Actual: 21845000.000 Hz");
        EXPECT_GE(readOut.GetWidth(), readOut.Measure(readOut.GetText()).Width);
        Leave();
    });
}

TEST_F(ResolutionForm, ABadTextStaysAndIsRed) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Front porch:", Horizontal), L"abc");
        driver.Press(Key::Tab);
        EXPECT_EQ(Box(L"Front porch:", Horizontal).GetText(), L"abc");
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

TEST_F(ResolutionForm, TypingIntoOneOfThreeChoosesIt) {
    EdidDetailedResolution item;
    Run(item, [&] {
        const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"Blanking:", L"161"},   {L"Total:", L"802"},
                                                                  {L"Back porch:", L"48"},  {L"Scan rate:", L"31.5"},
                                                                  {L"Pixel clock:", L"26"}, {L"Refresh rate:", L"60"}};
        for (const auto& [label, text] : rows) {
            driver.Enter(Box(label), text);
            EXPECT_TRUE(Radio(label).IsChecked()) << String(label).ToUtf8();
        }
        driver.Enter(Box(L"Blanking:", Vertical), L"46");
        EXPECT_TRUE(Radio(L"Blanking:").IsChecked());
        EXPECT_EQ(Box(L"Back porch:", Vertical).GetText(), L"34");
        Leave();
    });
}

TEST_F(ResolutionForm, ARadioButtonKeepsItsCountOrRateFromThereOn) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Click(Radio(L"Total:"));
        driver.Enter(Box(L"Front porch:", Horizontal), L"20");
        EXPECT_EQ(Counts(Horizontal), L"640 20 96 44 160 800");
        driver.Click(Radio(L"Scan rate:"));
        driver.Enter(Box(L"Active:", Vertical), L"400");
        EXPECT_EQ(Box(L"Scan rate:").GetText(), L"31.500");
        Confirm();
    });
    EXPECT_EQ(item.parameterType, DetailedResolutionParameterTypeEnum::Total);
    EXPECT_EQ(item.frequencyType, DetailedResolutionFrequencyTypeEnum::ScanRate);
}

TEST_F(ResolutionForm, InTheQftCalculatorTheRatesThatAreTypedSetTheSpeed) {
    EdidDetailedResolution item;
    Run(item, [&] {
        Choose(L"QFT calculator");
        Picture(L"1920", L"1080", L"60");
        driver.Enter(Box(L"Pixel clock:"), L"594");
        EXPECT_EQ(Box(L"Scan rate:").GetText(), L"285.576");
        EXPECT_TRUE(Radio(L"Refresh rate:").IsChecked()) << "the choice of the kept rate is its own";
        driver.Enter(Box(L"Refresh rate:"), L"120");
        EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"594.00") << "the speed stays";
        EXPECT_EQ(Box(L"Total:", Vertical).GetText(), L"2379");
        driver.Enter(Box(L"Scan rate:"), L"135");
        EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"280.80");
        driver.Enter(Box(L"Refresh rate:"), L"60");
        EXPECT_EQ(Box(L"Scan rate:").GetText(), L"135.000");
        EXPECT_EQ(Box(L"Total:", Vertical).GetText(), L"2250");
        Confirm();
    });
    EXPECT_EQ(item.qftSource, DetailedResolutionQftSourceEnum::ScanRate);
    EXPECT_EQ(item.frequencyType, DetailedResolutionFrequencyTypeEnum::RefreshRate);
}

TEST_F(ResolutionForm, ABoxThatHasTheFocusKeepsWhatIsTyped) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Refresh rate:"), L"059.9");
        EXPECT_EQ(Box(L"Refresh rate:").GetText(), L"059.9");
        EXPECT_EQ(Box(L"Scan rate:").GetText(), L"31.450");
        driver.Press(Key::Tab);
        EXPECT_EQ(Box(L"Refresh rate:").GetText(), L"59.900");
        Leave();
    });
}

TEST_F(ResolutionForm, WhatTheBytesCarryIsConfirmedThoughItIsRed) {
    EdidDetailedResolution item;
    EXPECT_EQ(Run(item,
                  [&] {
                      driver.Enter(Box(L"Front porch:", Horizontal), L"0");
                      EXPECT_FALSE(Box(L"Front porch:", Horizontal).HasValidStyle());
                      EXPECT_TRUE(CanConfirm());
                      driver.Enter(Box(L"Sync width:", Horizontal), L"1024");
                      EXPECT_FALSE(CanConfirm());
                      driver.Enter(Box(L"Sync width:", Horizontal), L"96");
                      Confirm();
                  }),
              IdOk);
    EXPECT_FALSE(item.IsValid());
    EXPECT_TRUE(item.IsValidAll());
}

}  // namespace
