#include "editor/cta_hdmi_windows.h"

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

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
