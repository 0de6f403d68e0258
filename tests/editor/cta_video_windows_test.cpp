#include "editor/cta_video_windows.h"

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

using VideoListForm = TFormTest<CtaVideoResolutionListDataBlockWindow>;

TEST_F(VideoListForm, TakesAnEmptyListAndCountsWhatIsLeft) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Resolutions");
                  auto& list = driver.Find<ListBox>(L"Video resolutions (31 slots left)");
                  EXPECT_EQ(list.GetItemText(0), L"No video resolutions");
                  EXPECT_TRUE(CanConfirm());
                  In(Named(L"Add..."), [&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Resolution");
                      driver.Choose(Combo(L"Format:"), L"1920x1080 (16:9) @ 60 Hz");
                      driver.Click(Check(L"Native"));
                      Confirm();
                  });
                  EXPECT_EQ(list.GetItemText(0), L"1920x1080 (16:9) @ 60 Hz");
                  driver.Find<GroupBox>(L"Video resolutions (30 slots left)");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "41 90");
}

TEST_F(VideoListForm, IsFullWhereTheBytesAre) {
    item = ReadAs<CtaVideoResolutionListDataBlock>(FromHex("42 01 02"));
    bytes = 3;
    Run([&] {
        driver.Find<GroupBox>(L"Video resolutions (no space left)");
        EXPECT_FALSE(Named(L"Add...").IsEnabled());
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

using VideoForm = TFormTest<CtaVideoResolutionWindow>;

TEST_F(VideoForm, OnlyALowCodeCanBeNative) {
    Run([&] {
        driver.Click(Check(L"Native"));
        EXPECT_TRUE(CanConfirm());
        driver.Choose(Combo(L"Format:"), L"5120x2160 (64:27) @ 120 Hz");
        EXPECT_FALSE(CanConfirm());
        driver.Click(Check(L"Native"));
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(VideoForm, TakesACodeWithoutAFormatButNoneThatIsANativeOne) {
    item = CtaVideoResolution(CtaVideoResolutionFields{CtaVideoReference(220), false});
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Combo(L"Format:").GetItemText(Combo(L"Format:").GetSelection()), L"Other");
                  EXPECT_EQ(Box(L"Format:").GetText(), L"220");
                  for (const wchar_t* code : {L"129", L"192", L"256"}) {
                      driver.Enter(Box(L"Format:"), code);
                      EXPECT_FALSE(CanConfirm());
                  }
                  driver.Enter(Box(L"Format:"), L"128");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(BytesOf(item), FromHex("80"));
}

using ReferenceForm = TFormTest<CtaVideoReferenceWindow>;

TEST_F(ReferenceForm, GivesEachRangeItsNumber) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Reference");
                  driver.Choose(Combo(L"Format:"), L"DTD");
                  EXPECT_EQ(Box(L"Format:").GetText(), L"1");
                  driver.Enter(Box(L"Format:"), L"17");
                  EXPECT_FALSE(CanConfirm());
                  EXPECT_FALSE(Box(L"Format:").HasValidStyle());
                  driver.Enter(Box(L"Format:"), L"16");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item.Id, 144);
    Run([&] {
        EXPECT_EQ(Box(L"Format:").GetText(), L"16");
        driver.Choose(Combo(L"Format:"), L"T7/T10VTDB");
        driver.Enter(Box(L"Format:"), L"2");
        Confirm();
    });
    EXPECT_EQ(item.Id, 146);
}

TEST_F(ReferenceForm, GivesTheFirstDescriptorARate) {
    Run([&] {
        driver.Choose(Combo(L"Format:"), L"VFD #1");
        auto& rates = driver.Find<ComboBox>(L"Format:", 1);
        EXPECT_EQ(rates.GetCount(), 15);
        EXPECT_EQ(rates.GetItemText(rates.GetSelection()), L"24 Hz");
        driver.Choose(rates, L"144 Hz");
        Confirm();
    });
    EXPECT_EQ(item.Id, 169);
    Run([&] {
        driver.Choose(Combo(L"Format:"), L"T8VTDB");
        Confirm();
    });
    EXPECT_EQ(item.Id, 254);
}

TEST_F(ReferenceForm, TakesAnyByteAsAnother) {
    item.Id = 176;
    Run([&] {
        EXPECT_EQ(Box(L"Format:").GetText(), L"176");
        driver.Enter(Box(L"Format:"), L"16");
        EXPECT_EQ(Combo(L"Format:").GetItemText(Combo(L"Format:").GetSelection()), L"Other");
        driver.Enter(Box(L"Format:"), L"256");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Format:"), L"255");
        Confirm();
    });
    EXPECT_EQ(item.Id, 255);
}

using NativeForm = TFormTest<CtaNativeVideoResolutionDataBlockWindow>;

TEST_F(NativeForm, TheImageSizeMakesTheBlockLonger) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Native Video Resolution");
        driver.Choose(Combo(L"Format:"), L"3840x2160 (16:9) @ 60 Hz");
        driver.Enter(Box(L"Image size"), L"597.5");
        driver.Enter(Box(L"Image size", 1), L"7000.5");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Image size", 1), L"336");
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "E7 08 61 01 57 17 20 0D");
}

TEST_F(NativeForm, TheImageSizeNeedsRoom) {
    bytes = 6;
    Run([&] {
        EXPECT_TRUE(CanConfirm());
        EXPECT_TRUE(Box(L"Image size").IsEnabled());
        EXPECT_FALSE(Box(L"Image size", 1).IsEnabled());
        driver.Enter(Box(L"Image size"), L"10");
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

using FormatListForm = TFormTest<CtaVideoFormatResolutionListDataBlockWindow>;

TEST_F(FormatListForm, AllItemsTakeTheBytesOfTheLongest) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Format Resolutions");
                  driver.Click(Check(L"YCbCr 4:2:0"));
                  EXPECT_EQ(driver.Find<ListBox>(L"Video format resolutions (30 bytes left)").GetItemText(0),
                            L"No video format resolutions");
                  In(Named(L"Add..."), [&] { Confirm(); });
                  In(Named(L"Add..."), [&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Format Resolution");
                      driver.Choose(Combo(L"Format:"), L"3840x2160 (16:9)");
                      driver.Click(Check(L"144 Hz"));
                      Confirm();
                  });
                  auto& list = driver.Find<ListBox>(L"Video format resolutions (26 bytes left)");
                  EXPECT_EQ(list.GetItemText(0), L"1280x720 (16:9) @ 30/60 Hz");
                  EXPECT_EQ(list.GetItemText(1), L"3840x2160 (16:9) @ 30/60/144 Hz");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "C5 81 01 83 0B C3");
}

TEST_F(FormatListForm, AnItemMayNotGrowBeyondTheRoomOfAll) {
    item = ReadAs<CtaVideoFormatResolutionListDataBlock>(FromHex("C3 00 04 0B"));
    bytes = 5;
    Run([&] {
        driver.Then([&] {
            driver.Click(Check(L"144 Hz"));
            EXPECT_FALSE(CanConfirm());
            driver.Click(Check(L"24 Hz"));
            driver.Click(Check(L"144 Hz"));
            Confirm();
        });
        driver.DoubleClick(driver.Find<ListBox>(L"Video format resolutions (1 byte left)"), 0);
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "C3 00 44 0B");
}

TEST_F(FormatListForm, TheLastRateOfAnItemCanBeTakenAway) {
    // One byte, which stands for 24, 30 and 60 Hz.
    item = ReadAs<CtaVideoFormatResolutionListDataBlock>(FromHex("C2 00 4B"));
    EXPECT_EQ(Run([&] {
                  driver.Then([&] {
                      for (const wchar_t* rate : {L"30 Hz", L"x 1", L"x 2", L"24 Hz"}) {
                          EXPECT_TRUE(Check(rate).IsChecked());
                          driver.Click(Check(rate));
                          EXPECT_FALSE(Check(rate).IsChecked());
                      }
                      Confirm();
                  });
                  driver.DoubleClick(driver.Find<ListBox>(L"Video format resolutions (29 bytes left)"), 0);
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "C3 01 0B 00");
    const auto again = ReadAs<CtaVideoFormatResolutionListDataBlock>(BytesOf(item, item.Size));
    ASSERT_EQ(again.List.GetCount(), 1);
    EXPECT_EQ(again.List.At(0).flags, CtaVideoFormatResolutionFlags());
}

using CapabilityForm = TFormTest<CtaVideoCapabilityDataBlockWindow>;

TEST_F(CapabilityForm, HasAComboBoxForEachUse) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Capability");
        driver.Choose(Combo(L"Video resolutions (CE)"), L"Always underscanned");
        driver.Choose(Combo(L"PC resolutions (IT)"), L"Supports both");
        driver.Choose(Combo(L"Preferred resolution (PT)"), L"Always overscanned");
        driver.Click(Check(L"YCC range selectable"));
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "E2 00 9E");
}

using PreferenceForm = TFormTest<CtaVideoFormatPreferenceDataBlockWindow>;

TEST_F(PreferenceForm, SaysItsCaptions) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Video Format Preference");
        EXPECT_EQ(driver.Find<ListBox>(L"Video references (30 slots left)").GetItemText(0), L"No video references");
        Leave();
    });
}

using Ycc420Form = TFormTest<CtaYcc420VideoResolutionListDataBlockWindow>;

TEST_F(Ycc420Form, SaysItsCaptions) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"4:2:0 Video Resolutions");
        EXPECT_EQ(driver.Find<ListBox>(L"4:2:0 video resolutions (30 slots left)").GetItemText(0),
                  L"No 4:2:0 video resolutions");
        In(Named(L"Add..."), [&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"4:2:0 Video Resolution");
            Leave();
        });
        Leave();
    });
}

}  // namespace
