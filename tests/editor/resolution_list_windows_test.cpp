#include <gtest/gtest.h>

#include "editor/descriptor_windows.h"
#include "editor/short_resolution_windows.h"
#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

using StandardListForm = TFormTest<EdidStandardResolutionListDescriptorWindow>;

TEST_F(StandardListForm, TakesResolutionsUntilNoSpaceIsLeft) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Standard Resolutions");
                  auto& list = driver.Find<ListBox>(L"Standard resolutions (6 slots left)");
                  EXPECT_EQ(list.GetItemText(0), L"No standard resolutions");
                  for (int i = 0; i < 6; ++i) {
                      EXPECT_TRUE(Named(L"Add...").IsEnabled());
                      In(Named(L"Add..."), [&] {
                          driver.Choose(Combo(L"Aspect ratio:"), L"5:4");
                          driver.Enter(Box(L"Height:"), L"1024");
                          driver.Enter(Box(L"Refresh rate"), L"75");
                          driver.Press(Key::Return);
                      });
                  }
                  driver.Find<GroupBox>(L"Standard resolutions (no space left)");
                  EXPECT_EQ(list.GetItemText(5), L"1280x1024 (5:4) @ 75 Hz");
                  EXPECT_EQ(list.GetSelection(), 5);
                  EXPECT_FALSE(Named(L"Add...").IsEnabled());
                  EXPECT_TRUE(Named(L"Edit...").IsEnabled());
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 FA 00 81 8F 81 8F 81 8F 81 8F 81 8F 81 8F 0A");
}

TEST_F(StandardListForm, AnEditMendsTheLastByte) {
    item =
        ReadAs<EdidStandardResolutionListDescriptor>(FromHex("00 00 00 FA 00 D1 C0 01 01 01 01 01 01 01 01 01 01 20"));
    EXPECT_EQ(Run([&] { Confirm(); }), IdOk);
    EXPECT_EQ(item.lastByte, 0x20) << "what was not edited stays";
    EXPECT_EQ(Run([&] {
                  driver.Click(Named(L"Delete all"));
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item.lastByte, 0x0A);
}

using CvtListForm = TFormTest<EdidCvtResolutionListDescriptorWindow>;

TEST_F(CvtListForm, EditsAResolutionAndItsVersion) {
    item = ReadAs<EdidCvtResolutionListDescriptor>(FromHex("00 00 00 F8 00 01 1B 24 4E 00 00 00 1B 24 09 00 00 00"));
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"CVT Resolutions");
                  auto& list = driver.Find<ListBox>(L"CVT resolutions (1 slot left)");
                  EXPECT_EQ(list.GetItemText(1), L"Empty");
                  driver.Enter(Box(L"Version"), L"0");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Version"), L"2");
                  driver.Then([&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"CVT Resolution");
                      driver.Click(Check(L"50 Hz"));
                      driver.Press(Key::Return);
                  });
                  driver.DoubleClick(list, 0);
                  EXPECT_EQ(list.GetItemText(0), L"1920x1080 (16:9) @ 50/60/75/85 Hz");
                  EXPECT_EQ(list.GetSelection(), 0);
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 F8 00 02 1B 24 5E 00 00 00 1B 24 09 00 00 00");
}

TEST_F(CvtListForm, HoldsFour) {
    Run([&] {
        for (int i = 0; i < 4; ++i) {
            In(Named(L"Add..."), [&] {
                driver.Enter(Box(L"Height:"), L"1080");
                Confirm();
            });
        }
        driver.Find<GroupBox>(L"CVT resolutions (no space left)");
        EXPECT_FALSE(Named(L"Add...").IsEnabled());
        driver.Click(Named(L"Delete all"));
        EXPECT_EQ(driver.Find<ListBox>(L"CVT resolutions (4 slots left)").GetItemText(0), L"No CVT resolutions");
        Leave();
    });
}

using Established3Form = TFormTest<EdidEstablished3ResolutionFlagsDescriptorWindow>;

TEST_F(Established3Form, HasABoxForEachNamedBitAndKeepsTheOthers) {
    item = ReadAs<EdidEstablished3ResolutionFlagsDescriptor>(
        FromHex("00 00 00 F7 00 0A 80 00 00 00 00 10 01 00 00 00 00 01"));
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Established III Resolutions");
                  for (const char* text : EdidEstablished3ResolutionFlagEnum::Texts)
                      driver.Find<CheckBox>(String(text).ToWide());
                  EXPECT_TRUE(Check(L"640x350 @ 85 Hz").IsChecked());
                  EXPECT_TRUE(Check(L"1920x1440 @ 75 Hz").IsChecked());
                  driver.Click(Check(L"640x350 @ 85 Hz"));
                  driver.Click(Check(L"1152x864 @ 75 Hz"));
                  driver.Enter(Box(L"Revision"), L"9");
                  EXPECT_FALSE(Box(L"Revision").HasValidStyle());
                  driver.Enter(Box(L"Revision"), L"11");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "00 00 00 F7 00 0B 01 00 00 00 00 10 01 00 00 00 00 01");
}

using StandardForm = TFormTest<EdidStandardResolutionWindow>;

TEST_F(StandardForm, TheSideThatIsTypedStaysAndTheOtherFollows) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Standard Resolution");
                  EXPECT_FALSE(CanConfirm());
                  EXPECT_TRUE(Box(L"Width:").HasValidStyle()) << "a new one bears no marks";
                  driver.Enter(Box(L"Refresh rate"), L"60");
                  driver.Enter(Box(L"Width:"), L"1280");
                  EXPECT_EQ(Box(L"Height:").GetText(), L"800");
                  driver.Choose(Combo(L"Aspect ratio:"), L"5:4");
                  EXPECT_EQ(Box(L"Height:").GetText(), L"1024");
                  driver.Enter(Box(L"Height:"), L"1080");
                  EXPECT_EQ(Box(L"Width:").GetText(), L"1350");
                  EXPECT_FALSE(Box(L"Width:").HasValidStyle());
                  driver.Choose(Combo(L"Aspect ratio:"), L"16:9");
                  EXPECT_EQ(Box(L"Width:").GetText(), L"1920");
                  EXPECT_EQ(Box(L"Height:").GetText(), L"1080");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "D1 C0");
}

TEST_F(StandardForm, WidthAndHeightGiveTheRatio) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"Refresh rate"), L"60");
                  driver.Enter(Box(L"Width:"), L"1920");
                  driver.Enter(Box(L"Height:"), L"1080");
                  EXPECT_EQ(Box(L"Width:").GetText(), L"1920");
                  auto& ratio = Combo(L"Aspect ratio:");
                  EXPECT_EQ(ratio.GetItemText(ratio.GetSelection()), L"16:9");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "D1 C0");
}

TEST_F(StandardForm, TheBytesOfTheUnusedSlotAreNoResolutionAndBearNoMarks) {
    Run([&] {
        driver.Enter(Box(L"Refresh rate"), L"61");
        driver.Enter(Box(L"Width:"), L"256");
        EXPECT_EQ(Box(L"Height:").GetText(), L"160");
        EXPECT_TRUE(Box(L"Width:").HasValidStyle());
        EXPECT_TRUE(Box(L"Refresh rate").HasValidStyle());
        EXPECT_FALSE(driver.Find<GroupBox>(L"Resolution").HasValidStyle()) << "but all of it together";
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Refresh rate"), L"62");
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(StandardForm, AWidthBeyondItsLimitsIsRed) {
    Run([&] {
        driver.Enter(Box(L"Refresh rate"), L"124");
        EXPECT_FALSE(Box(L"Refresh rate").HasValidStyle());
        for (const wchar_t* width : {L"248", L"257", L"2296"}) {
            driver.Enter(Box(L"Width:"), width);
            EXPECT_FALSE(Box(L"Width:").HasValidStyle());
        }
        Leave();
    });
}

using CvtForm = TFormTest<EdidCvtResolutionWindow>;

TEST_F(CvtForm, HasItsRatesInTheirOrderAndNoBoxForOne) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"CVT Resolution");
                  std::wstring texts;
                  for (const Control* control : driver.GetWindow().GetControls()) {
                      if (dynamic_cast<const CheckBox*>(control)) texts += control->GetText() + L"|";
                  }
                  EXPECT_EQ(texts, L"50 Hz|60 Hz|60 Hz (RB)|75 Hz|85 Hz|");
                  auto& preferred = Combo(L"Preferred refresh rate");
                  EXPECT_EQ(preferred.GetCount(), 4);
                  driver.Choose(Combo(L"Aspect ratio:"), L"16:9");
                  driver.Enter(Box(L"Height:"), L"1080");
                  EXPECT_EQ(Box(L"Width:").GetText(), L"1920");
                  driver.Enter(Box(L"Width:"), L"1280");
                  EXPECT_EQ(Box(L"Height:").GetText(), L"720");
                  driver.Click(Check(L"60 Hz (RB)"));
                  driver.Click(Check(L"75 Hz"));
                  driver.Choose(preferred, L"75 Hz");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item)), "67 14 45");
    EXPECT_EQ(TextOf(item), "1280x720 (16:9) @ 75 Hz");
}

TEST_F(CvtForm, ANewOneBearsNoMarksAndASizeOffTheGrainIsRed) {
    Run([&] {
        EXPECT_FALSE(CanConfirm());
        EXPECT_TRUE(Box(L"Width:").HasValidStyle());
        EXPECT_TRUE(Box(L"Height:").HasValidStyle());
        const auto expectRed = [&](const wchar_t* label, const wchar_t* text, bool isRed) {
            driver.Enter(Box(label), text);
            EXPECT_EQ(Box(label).HasValidStyle(), !isRed) << String(text).ToUtf8();
            EXPECT_EQ(CanConfirm(), !isRed) << String(text).ToUtf8();
        };
        driver.Click(Check(L"60 Hz"));
        driver.Choose(Combo(L"Preferred refresh rate"), L"60 Hz");
        expectRed(L"Height:", L"1081", true);
        expectRed(L"Height:", L"1080", false);
        expectRed(L"Width:", L"1921", true);
        expectRed(L"Width:", L"1920", false);
        Leave();
    });
}

TEST_F(CvtForm, AHeightThatWasTypedOutlastsARatio) {
    Run([&] {
        driver.Enter(Box(L"Height:"), L"1080");
        driver.Choose(Combo(L"Aspect ratio:"), L"16:9");
        EXPECT_EQ(Box(L"Height:").GetText(), L"1080");
        EXPECT_EQ(Box(L"Width:").GetText(), L"1920");
        Leave();
    });
}

}  // namespace
