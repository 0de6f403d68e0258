#include "editor/resolution_windows.h"

#include <gtest/gtest.h>

#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

// A user of the resolution form, who reads and fills its boxes by their labels.
class ResolutionForm : public testing::Test {
protected:
    enum Axis { Horizontal, Vertical };

    void TearDown() override { DetailedResolutionClipboard() = DetailedResolution(); }

    int Run(EdidDetailedResolution& item, const std::function<void()>& steps) {
        driver.Then(steps);
        EdidDetailedResolutionWindow window(nullptr);
        return window.Run(item);
    }
    TextBox& Box(const wchar_t* label, int nth = 0) { return driver.Find<TextBox>(label, nth); }
    void Choose(const wchar_t* mode) { driver.Choose(driver.Find<ComboBox>(L"Timing:"), mode); }
    void Picture(const wchar_t* width, const wchar_t* height, const wchar_t* rate) {
        driver.Enter(Box(L"Active:", Horizontal), width);
        driver.Enter(Box(L"Active:", Vertical), height);
        driver.Enter(Box(L"Refresh rate:"), rate);
    }
    std::wstring Counts(Axis axis) {
        std::wstring all;
        for (const wchar_t* label :
             {L"Active:", L"Front porch:", L"Sync width:", L"Back porch:", L"Blanking:", L"Total:"}) {
            all += (all.empty() ? L"" : L" ") + Box(label, axis).GetText();
        }
        return all;
    }
    bool CanConfirm() { return driver.Find<Button>(L"OK").IsEnabled(); }

    Driver driver;
};

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
                      driver.Press(Key::Return);
                  }),
              IdOk);
    EXPECT_EQ(item.hfront, 88);
    EXPECT_EQ(item.actualpixelclock, Decimal(1485, 1));
}

TEST_F(ResolutionForm, InterlaceOfThe1080LinesGoesOverIntoTheKnownPorches) {
    DetailedResolutionFields fields;
    fields.vactive = 1080;
    fields.vfront = 4;
    fields.vsync = 5;
    fields.vback = 36;
    fields.interlaced = true;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vsync, 10);
    EXPECT_EQ(fields.vback, 31);
    EXPECT_EQ(fields.vtotal, 1125);
    fields.interlaced = false;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vsync, 5);
    EXPECT_EQ(fields.vback, 36);
}

TEST_F(ResolutionForm, InterlaceDoublesAndHalvesOtherPorchesAndKeepsBlankOnes) {
    DetailedResolutionFields fields;
    fields.interlaced = true;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 20);
    EXPECT_EQ(fields.vsync, 4);
    EXPECT_EQ(fields.vback, 67);
    EXPECT_EQ(fields.vblank, 91);
    fields.interlaced = false;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, 10);
    EXPECT_EQ(fields.vback, 33);
    fields.vfront = Undefined;
    ConvertInterlace(fields);
    EXPECT_EQ(fields.vfront, Undefined);
    EXPECT_EQ(fields.vblank, Undefined);
}

TEST_F(ResolutionForm, TurningInterlaceOnConvertsWhatIsShown) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Active:", Vertical), L"1080");
        driver.Enter(Box(L"Front porch:", Vertical), L"4");
        driver.Enter(Box(L"Sync width:", Vertical), L"5");
        driver.Enter(Box(L"Back porch:", Vertical), L"36");
        driver.Click(driver.Find<CheckBox>(L"Interlaced"));
        EXPECT_EQ(Counts(Vertical), L"1080 4 10 31 45 1125");
        driver.Press(Key::Escape);
    });
}

TEST_F(ResolutionForm, ARateOfZeroEmptiesAllThatFollowsAndClosesOk) {
    EdidDetailedResolution item;
    EXPECT_EQ(Run(item,
                  [&] {
                      Choose(L"CVT standard");
                      Picture(L"1280", L"1024", L"0");
                      EXPECT_EQ(Counts(Horizontal), L"1280     ");
                      EXPECT_EQ(Counts(Vertical), L"1024     ");
                      EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"");
                      EXPECT_FALSE(CanConfirm());
                      driver.Press(Key::Return);
                      driver.Press(Key::Escape);
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
        driver.Press(Key::Return);
    });
    EXPECT_EQ(item.parameterType, DetailedResolutionParameterTypeEnum::Total);
}

TEST_F(ResolutionForm, TypingARateMakesItTheOneThatIsKept) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Pixel clock:"), L"50.4");
        EXPECT_EQ(Box(L"Refresh rate:").GetText(), L"120.000");
        driver.Press(Key::Return);
    });
    EXPECT_EQ(item.frequencyType, DetailedResolutionFrequencyTypeEnum::PixelClock);
}

TEST_F(ResolutionForm, ABadTextStaysAndIsRed) {
    EdidDetailedResolution item;
    Run(item, [&] {
        driver.Enter(Box(L"Front porch:", Horizontal), L"abc");
        driver.Press(Key::Tab);
        EXPECT_EQ(Box(L"Front porch:", Horizontal).GetText(), L"abc");
        EXPECT_FALSE(CanConfirm());
        driver.Press(Key::Escape);
    });
}

TEST_F(ResolutionForm, CopyAndPasteCarryTheTimingToAnotherForm) {
    EdidDetailedResolution item;
    Run(item, [&] {
        EXPECT_FALSE(driver.Find<Button>(L"Paste").IsEnabled());
        Choose(L"CVT-RB standard");
        Picture(L"2560", L"1440", L"60");
        driver.Click(driver.Find<Button>(L"Copy"));
        EXPECT_FALSE(driver.Find<Button>(L"Copy").IsEnabled());
        driver.Press(Key::Return);
    });
    DisplayId1DetailedResolution other;
    driver.Then([&] {
        driver.Click(driver.Find<Button>(L"Paste"));
        driver.Click(driver.Find<Button>(L"OK"));
    });
    DisplayId1DetailedResolutionWindow window(nullptr);
    EXPECT_EQ(window.Run(other), IdOk);
    EXPECT_EQ(other.hactive, 2560);
    EXPECT_EQ(other.timing, DetailedResolutionTimingEnum::CvtRb);
    EXPECT_EQ(other.hfront, item.hfront);
}

TEST_F(ResolutionForm, TheOtherFieldsShowWhenAskedFor) {
    EdidDetailedResolution item;
    Run(item, [&] {
        EXPECT_ANY_THROW(Box(L"Image size:"));
        driver.Click(driver.Find<Button>(L"\u25BC"));
        auto& box = Box(L"Image size:");
        driver.Enter(box, L"531");
        driver.Click(driver.Find<Button>(L"\u25B2"));
        EXPECT_FALSE(box.IsVisible());
        driver.Press(Key::Return);
    });
    EXPECT_EQ(item.imageWidth, 531);
}

}  // namespace
