#include "editor/cta_sync_windows.h"

#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

class FreeSyncForm : public TFormTest<CtaFreeSyncDataBlockWindow> {
protected:
    void SetUp() override { Read("68 1A 00 00 02 01 30 90 E6"); }
    void Read(const char* hex) { item = ReadAs<CtaFreeSyncDataBlock>(FromHex(hex)); }
    std::string Written() const { return ToHex(BytesOf(item, item.GetSize())); }
    TextBox& Number(std::wstring_view label, int profile = 1) {
        return driver.Find<TextBox>({profile == 1 ? L"HDR profile #1" : L"HDR profile #2", label});
    }
    TextBox& Raw(std::wstring_view label, int profile = 1) {
        return driver.Find<TextBox>({profile == 1 ? L"HDR profile #1" : L"HDR profile #2", label, L"Raw:"});
    }
};

TEST_F(FreeSyncForm, ANewBlockWaitsForItsRates) {
    item = {};
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"FreeSync");
                  EXPECT_EQ(Box(L"Version").GetText(), L"1");
                  EXPECT_TRUE(Check(L"FreeSync").IsChecked());
                  EXPECT_FALSE(Check(L"Panel replay").IsChecked());
                  EXPECT_FALSE(Box(L"Refresh rates").HasValidStyle());
                  EXPECT_TRUE(Box(L"VCP code").HasValidStyle());
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Refresh rates"), L"48");
                  driver.Enter(Box(L"Refresh rates", 1), L"144");
                  EXPECT_TRUE(CanConfirm());
                  driver.Click(Check(L"Panel replay"));
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "68 1A 00 00 01 41 30 90 00");
}

TEST_F(FreeSyncForm, OkWithoutAChangeLeavesNineBytes) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"");
                  EXPECT_EQ(Raw(L"Min luminance:", 2).GetText(), L"");
                  EXPECT_EQ(Box(L"V3 max refresh rate").GetText(), L"");
                  EXPECT_EQ(Box(L"V3 max pixel clock").GetText(), L"");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "68 1A 00 00 02 01 30 90 E6");
}

TEST_F(FreeSyncForm, ABlockOfTwelveBytesIsResizedToAStep) {
    Read("6B 1A 00 00 02 01 30 90 E6 00 A0 00");
    EXPECT_EQ(Run([&] { Confirm(); }), IdOk);
    EXPECT_EQ(Written(), "6B 1A 00 00 02 01 30 90 E6 00 A0 00") << "what was not edited stays";
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"Version"), L"3");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "6D 1A 00 00 03 01 30 90 E6 00 A0 00 00 00");
}

TEST_F(FreeSyncForm, TheRawNumberLeadsWhereItIsTyped) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Raw(L"Max luminance:"), L"160");
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"1600.000");
                  driver.Enter(Raw(L"Min luminance:"), L"255");
                  EXPECT_EQ(Number(L"Min luminance:").GetText(), L"16.000");
                  EXPECT_EQ(Number(L"Max luminance:", 2).GetText(), L"");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "6D 1A 00 00 02 01 30 90 E6 00 A0 FF 00 00");
}

TEST_F(FreeSyncForm, TheNumberLeadsWhereItIsTypedAndIsRoundedWhenItIsLeft) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Number(L"Max luminance:", 2), L"1000");
                  EXPECT_EQ(Number(L"Max luminance:", 2).GetText(), L"1000") << "while it is typed in";
                  EXPECT_EQ(Raw(L"Max luminance:", 2).GetText(), L"138");
                  driver.Press(Key::Tab);
                  EXPECT_EQ(Number(L"Max luminance:", 2).GetText(), L"993.486");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "6D 1A 00 00 02 01 30 90 E6 00 00 00 8A 00");
}

TEST_F(FreeSyncForm, AnInvalidLuminanceIsRedAndKeepsOkClosed) {
    Run([&] {
        driver.Enter(Number(L"Max luminance:"), L"20");
        EXPECT_FALSE(Number(L"Max luminance:").HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        EXPECT_EQ(Raw(L"Max luminance:").GetText(), L"");
        driver.Press(Key::Tab);
        EXPECT_EQ(Number(L"Max luminance:").GetText(), L"20.000") << "for its user to mend";
        driver.Enter(Number(L"Max luminance:"), L"200");
        EXPECT_TRUE(CanConfirm());
        driver.Enter(Raw(L"Min luminance:"), L"256");
        EXPECT_FALSE(Raw(L"Min luminance:").HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

TEST_F(FreeSyncForm, TheLeastLuminanceMayBeTypedBeforeTheGreatest) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Number(L"Min luminance:"), L"0.64");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"");
                  driver.Enter(Number(L"Max luminance:"), L"1600");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"51");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item.Profile1MinRaw, 51);
}

TEST_F(FreeSyncForm, WhatTheRoomDoesNotReachCannotBeUsed) {
    bytes = 13;
    Run([&] {
        EXPECT_TRUE(Number(L"Max luminance:", 2).IsEnabled());
        EXPECT_FALSE(Number(L"Min luminance:", 2).IsEnabled());
        EXPECT_FALSE(Raw(L"Min luminance:", 2).IsEnabled());
        EXPECT_FALSE(Box(L"V3 max refresh rate").IsEnabled());
        EXPECT_TRUE(CanConfirm());
        driver.Enter(Raw(L"Max luminance:"), L"160");
        EXPECT_FALSE(CanConfirm()) << "the step takes 14 bytes";
        Leave();
    });
}

TEST_F(FreeSyncForm, TheFieldsOfTheThirdVersion) {
    EXPECT_EQ(Run([&] {
                  driver.Enter(Box(L"V3 max refresh rate"), L"1023");
                  driver.Enter(Box(L"V3 max pixel clock"), L"123.456");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "72 1A 00 00 02 01 30 90 E6 00 00 00 00 00 FF 03 40 E2 01");
}

class MicrosoftForm : public TFormTest<CtaMicrosoftDataBlockWindow> {
protected:
    std::string Written() const { return ToHex(BytesOf(item, item.GetSize())); }
};

TEST_F(MicrosoftForm, EditsEachField) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"Microsoft");
                  driver.Enter(Box(L"Version"), L"3");
                  EXPECT_EQ(Combo(L"Primary use case").GetCount(), 14);
                  driver.Choose(Combo(L"Primary use case"), 12);
                  EXPECT_EQ(Combo(L"Primary use case").GetItemText(12), L"Accessory");
                  driver.Click(Check(L"Desktop usage"));
                  driver.Enter(Box(L"Container ID"), L"00112233445566778899AABBCCDDEEFF");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "75 5C 12 CA 03 54 00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF");
}

TEST_F(MicrosoftForm, AnUnknownUseIsANumber) {
    item = ReadAs<CtaMicrosoftDataBlock>(FromHex("75 5C 12 CA 03 2F 00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF"));
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Combo(L"Primary use case").GetSelection(), 13);
                  EXPECT_EQ(Box(L"Primary use case").GetText(), L"15");
                  EXPECT_TRUE(Check(L"Third-party usage").IsChecked());
                  driver.Enter(Box(L"Primary use case"), L"32");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Primary use case"), L"0");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item.PrimaryUseCase, 0);
}

TEST_F(MicrosoftForm, AShortBlockOpensAndWaitsForAWholeId) {
    item = ReadAs<CtaMicrosoftDataBlock>(FromHex("68 5C 12 CA 03 02 00 01 02"));
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Box(L"Container ID").GetText(), L"00 01 02");
                  EXPECT_FALSE(Box(L"Container ID").HasValidStyle());
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Container ID"), L"00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Container ID"), L"00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F");
                  EXPECT_TRUE(CanConfirm());
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(item.Size, 22);
    bytes = 21;
    EXPECT_EQ(Run([&] {
                  EXPECT_TRUE(CanConfirm()) << "it stays as it is";
                  driver.Enter(Box(L"Version"), L"7");
                  EXPECT_FALSE(CanConfirm());
                  EXPECT_FALSE(Box(L"Version").HasValidStyle());
                  Leave();
              }),
              IdCancel);
}

}  // namespace
