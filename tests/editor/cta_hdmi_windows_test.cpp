#include "editor/cta_hdmi_windows.h"

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

using HdmiForm = TFormTest<CtaHdmiDataBlockWindow>;

TEST_F(HdmiForm, ALatencyIsThereWhereItsBoxIsChecked) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDMI v1");
                  driver.Enter(Box(L"Physical address"), L"1.2.3.4");
                  driver.Click(Check(L"Latency"));
                  EXPECT_EQ(Box(L"Video:").GetText(), L"0");
                  driver.Enter(Box(L"Video:"), L"500");
                  driver.Click(Check(L"No audio"));
                  EXPECT_TRUE(Check(L"No audio").IsChecked());
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "6A 03 0C 00 12 34 00 00 80 FB FF");
    Run([&] {
        EXPECT_TRUE(Check(L"Latency").IsChecked());
        driver.Click(Check(L"Latency"));
        EXPECT_EQ(Box(L"Video:").GetText(), L"");
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "65 03 0C 00 12 34");
}

TEST_F(HdmiForm, ALatencyThatIsTypedChecksItsBox) {
    item = ReadAs<CtaHdmiDataBlock>(FromHex("6A 03 0C 00 10 00 00 00 80 FF 00"));
    Run([&] {
        EXPECT_TRUE(Check(L"No video").IsChecked());
        EXPECT_EQ(Box(L"Audio:").GetText(), L"");
        driver.Enter(Box(L"Audio:"), L"3");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Audio:"), L"2");
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
    item = ReadAs<CtaHdmiDataBlock>(FromHex("65 03 0C 00 10 00"));
    Run([&] {
        EXPECT_FALSE(Check(L"Latency").IsChecked());
        driver.Enter(Box(L"Video:"), L"2");
        EXPECT_TRUE(Check(L"Latency").IsChecked());
        driver.Enter(Box(L"Video:"), L"");
        EXPECT_FALSE(Check(L"Latency").IsChecked());
        Leave();
    });
}

TEST_F(HdmiForm, ListsItsResolutionsAndStereoFormats) {
    EXPECT_EQ(Run([&] {
                  auto& list = driver.Find<ListBox>(L"HDMI resolutions (7 slots left)");
                  EXPECT_EQ(list.GetItemText(0), L"No HDMI resolutions");
                  In(Named(L"Add..."), [&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDMI Resolution");
                      driver.Choose(Combo(L"Format:"), L"4096x2160 (256:135) @ 24 Hz");
                      Confirm();
                  });
                  driver.Find<GroupBox>(L"HDMI resolutions (6 slots left)");
                  In(driver.Find<Button>({L"3D support", L"Edit..."}), [&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"3D Formats");
                      driver.Choose(Combo(L"Fields present"), L"Structures");
                      driver.Click(Check(L"Top-and-bottom"));
                      driver.Find<GroupBox>(L"3D formats (18 bytes left)");
                      In(Named(L"Add..."), [&] {
                          EXPECT_EQ(driver.GetWindow().GetTitle(), L"3D Format");
                          driver.Choose(Combo(L"Structure"), L"Side-by-side (half)");
                          driver.Choose(Combo(L"Detail"), L"All horizontal");
                          Confirm();
                      });
                      Confirm();
                  });
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "6F 03 0C 00 00 00 00 00 20 20 24 04 00 40 08 10");
}

TEST_F(HdmiForm, WhatTheRoomDoesNotReachIsClosed) {
    bytes = 9;
    Run([&] {
        EXPECT_FALSE(Check(L"Supports 3D").IsEnabled());
        EXPECT_FALSE(driver.Find<Button>({L"3D support", L"Edit..."}).IsEnabled());
        EXPECT_FALSE(driver.Find<Button>({L"HDMI resolutions (no space left)", L"Add..."}).IsEnabled());
        EXPECT_FALSE(Box(L"Video:").IsEnabled());
        EXPECT_TRUE(Check(L"Game").IsEnabled());
        Leave();
    });
}

using Hdmi2Form = TFormTest<CtaHdmi2DataBlockWindow>;

TEST_F(Hdmi2Form, TheBlockGrowsWithWhatIsFilledIn) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDMI v2");
                  driver.Enter(Box(L"Max TMDS character rate"), L"340");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Max TMDS character rate"), L"600");
                  driver.Click(Check(L"SCDC present"));
                  driver.Click(Check(L"UHD VIC"));
                  driver.Choose(Combo(L"Max FRL rate"), L"48 Gbps (12 x 4 lanes)");
                  driver.Enter(Box(L"VRR range"), L"48");
                  driver.Enter(Box(L"VRR range", 1), L"1023");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "6A D8 5D C4 01 78 80 68 00 F0 FF");
}

TEST_F(Hdmi2Form, WhatTheRoomDoesNotReachIsClosed) {
    bytes = 10;
    Run([&] {
        EXPECT_TRUE(Box(L"VRR range").IsEnabled());
        EXPECT_FALSE(Box(L"VRR range", 1).IsEnabled());
        EXPECT_FALSE(Combo(L"DSC max slices").IsEnabled());
        EXPECT_FALSE(Check(L"TFRmin").IsEnabled());
        Leave();
    });
}

TEST_F(Hdmi2Form, AnUnknownLinkRateIsKeptAsAnother) {
    item = ReadAs<CtaHdmi2DataBlock>(FromHex("67 D8 5D C4 01 00 00 70"));
    Run([&] {
        EXPECT_EQ(Box(L"Max FRL rate").GetText(), L"7");
        driver.Enter(Box(L"Max FRL rate"), L"16");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Max FRL rate"), L"15");
        Confirm();
    });
    EXPECT_EQ(ToHex(BytesOf(item, item.Size)), "67 D8 5D C4 01 00 00 F0");
}

}  // namespace
