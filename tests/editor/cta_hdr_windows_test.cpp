#include "editor/cta_hdr_windows.h"

#include "editor/cta_data_block_windows.h"
#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

template <class FormWindow>
class TCtaForm : public TFormTest<FormWindow> {
protected:
    void Read(const char* hex) { this->item = ReadAs<typename FormWindow::Item>(FromHex(hex)); }
    std::string Written() const { return ToHex(BytesOf(this->item, this->item.GetSize())); }
};

class HdrStaticForm : public TCtaForm<CtaHdrStaticMetadataDataBlockWindow> {
protected:
    TextBox& Number(std::wstring_view label) { return driver.Find<TextBox>({L"Luminance", label}); }
    TextBox& Raw(std::wstring_view label) { return driver.Find<TextBox>({L"Luminance", label, L"Raw:"}); }
};

TEST_F(HdrStaticForm, ItsFlagsAreFourTransferFunctionsAndAType) {
    Read("E3 06 F0 FE");
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDR Static Metadata");
                  driver.Click(Check(L"Traditional gamma – SDR luminance range"));
                  driver.Click(Check(L"Traditional gamma – HDR luminance range"));
                  driver.Click(Check(L"Perceptual quantization (PQ)"));
                  driver.Click(Check(L"Hybrid log-gamma (HLG)"));
                  driver.Click(Check(L"Type 1"));
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E3 06 FF FF") << "bits without a text are kept";
}

TEST_F(HdrStaticForm, OkWithoutAChangeLeavesFourBytes) {
    Read("E3 06 05 01");
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E3 06 05 01");
}

TEST_F(HdrStaticForm, ALuminanceThatNoCodeSaysIsRedAndStaysAsTyped) {
    Read("E4 06 05 01 A0");
    Run([&] {
        TextBox& box = Number(L"Max luminance:");
        driver.Enter(box, L"50");
        EXPECT_FALSE(box.HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        driver.Press(Key::Tab);
        EXPECT_FALSE(box.HasValidStyle());
        EXPECT_EQ(box.GetText(), L"50.000");
        driver.Enter(box, L"1000");
        EXPECT_TRUE(box.HasValidStyle());
        EXPECT_TRUE(CanConfirm());
        Leave();
    });
}

TEST_F(HdrStaticForm, ACodeThatNobodyTouchedStaysWhenAnotherRowIsTyped) {
    Read("E6 06 05 01 A0 90 33");
    EXPECT_EQ(Run([&] {
                  driver.Enter(Number(L"Max luminance:"), L"1000");
                  EXPECT_EQ(Raw(L"Max frame-avg:").GetText(), L"144");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"51");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E6 06 05 01 8A 90 33");
    Read("E6 06 05 01 00 90 33");
    EXPECT_EQ(Run([&] {
                  driver.Enter(Number(L"Max frame-avg:"), L"1000");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"51") << "though nothing says what it is";
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E6 06 05 01 00 8A 33");
}

TEST_F(HdrStaticForm, ANumberIsStoredAsItsCodeAndReadsBackFromThat) {
    Read("E4 06 05 01 A0");
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"1600.000");
                  EXPECT_EQ(Raw(L"Max luminance:").GetText(), L"160");
                  driver.Enter(Number(L"Max luminance:"), L"1000");
                  EXPECT_EQ(Raw(L"Max luminance:").GetText(), L"138");
                  driver.Press(Key::Tab);
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"993.486");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E4 06 05 01 8A");
}

TEST_F(HdrStaticForm, ARawNumberMovesItsNumberAndThoseThatHangOnIt) {
    Read("E6 06 05 01 A0 A0 FF");
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Number(L"Min luminance:").GetText(), L"16.000");
                  driver.Enter(Raw(L"Max luminance:"), L"32");
                  EXPECT_EQ(Number(L"Max luminance:").GetText(), L"100.000");
                  EXPECT_EQ(Number(L"Min luminance:").GetText(), L"1.000");
                  EXPECT_EQ(Number(L"Max frame-avg:").GetText(), L"1600.000");
                  driver.Enter(Raw(L"Max luminance:"), L"");
                  EXPECT_EQ(Number(L"Min luminance:").GetText(), L"");
                  EXPECT_EQ(Raw(L"Min luminance:").GetText(), L"255") << "is retained";
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E6 06 05 01 00 A0 FF");
}

TEST_F(HdrStaticForm, WhatTheRoomDoesNotReachCannotBeUsed) {
    bytes = 5;
    Run([&] {
        EXPECT_TRUE(Number(L"Max luminance:").IsEnabled());
        EXPECT_TRUE(Raw(L"Max luminance:").IsEnabled());
        EXPECT_FALSE(Number(L"Max frame-avg:").IsEnabled());
        EXPECT_FALSE(Raw(L"Min luminance:").IsEnabled());
        Leave();
    });
}

class HdrDynamicForm : public TCtaForm<CtaHdrDynamicMetadataListDataBlockWindow> {
protected:
    // Presses the list's button, chooses the type, and does the steps in its form.
    void Add(const wchar_t* caption, const wchar_t* type, const std::function<void()>& steps) {
        auto& add = driver.Find<Button>({caption, L"Add..."});
        driver.Then([this, type] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Type");
            driver.Find<GroupBox>(L"Type");
            driver.Click(driver.Find<RadioButton>(type));
            driver.Press(Key::Return);
        });
        if (steps) driver.Then(steps);
        driver.Click(add);
    }
    void ExpectRows(const wchar_t* caption, const std::vector<std::wstring>& rows) {
        auto& list = driver.Find<ListBox>(caption);
        ASSERT_EQ(list.GetCount(), static_cast<int>(rows.size()));
        for (int i = 0; i < list.GetCount(); ++i) EXPECT_EQ(list.GetItemText(i), rows[static_cast<std::size_t>(i)]);
    }
};

TEST_F(HdrDynamicForm, AddsEachType) {
    const auto edit = [&](const wchar_t* title, const wchar_t* version) {
        return [this, title, version] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), title);
            driver.Enter(Box(L"Version"), version);
            Confirm();
        };
    };
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDR Dynamic Metadata");
                  ExpectRows(L"Types (30 bytes left)", {L"No types"});
                  Add(L"Types (30 bytes left)", L"Type 1", edit(L"Type 1", L"1"));
                  Add(L"Types (26 bytes left)", L"Type 2", [&] {
                      EXPECT_EQ(driver.GetWindow().GetTitle(), L"Type 2");
                      driver.Enter(Box(L"Version"), L"2");
                      driver.Click(Check(L"SL-HDR1"));
                      driver.Click(Check(L"SL-HDR3"));
                      Confirm();
                  });
                  Add(L"Types (22 bytes left)", L"Type 3", {});
                  Add(L"Types (19 bytes left)", L"Type 4", edit(L"Type 4", L"15"));
                  Add(L"Types (15 bytes left)", L"Type 0x100", edit(L"Type 0x100", L"3"));
                  ExpectRows(L"Types (11 bytes left)", {L"Type 1", L"Type 2", L"Type 3", L"Type 4", L"Type 0x100"});
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "F4 07 03 01 00 01 03 02 00 52 02 03 00 03 04 00 0F 03 00 01 03");
}

TEST_F(HdrDynamicForm, ATypeNeedsItsRoom) {
    bytes = 6;
    Run([&] {
        Add(L"Types (4 bytes left)", L"Type 3", {});
        driver.Find<GroupBox>(L"Types (no space left)");
        EXPECT_FALSE(Named(L"Add...").IsEnabled());
        Leave();
    });
    bytes = 5;
    Run([&] {
        driver.Then([&] {
            for (const wchar_t* type : {L"Type 1", L"Type 2", L"Type 4", L"Type 0x100"})
                EXPECT_FALSE(driver.Find<RadioButton>(type).IsEnabled());
            EXPECT_TRUE(driver.Find<RadioButton>(L"Type 3").HasFocus());
            EXPECT_FALSE(CanConfirm()) << "the first row is selected";
            Leave();
        });
        driver.Click(Named(L"Add..."));
        Leave();
    });
}

TEST_F(HdrDynamicForm, Type3AndUnknownTypesHaveNoForm) {
    Read("E7 07 02 03 00 02 05 00");
    Run([&] {
        auto& list = driver.Find<ListBox>(L"Types (24 bytes left)");
        ExpectRows(L"Types (24 bytes left)", {L"Type 3", L"Other (5)"});
        for (const int row : {0, 1}) {
            driver.Click(list, row);
            driver.Click(Named(L"Edit..."));
        }
        EXPECT_EQ(driver.CountStepsLeft(), 0u);
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDR Dynamic Metadata");
        Leave();
    });
}

TEST_F(HdrDynamicForm, ARecordIsEditedInTheRoomThatTheOthersLeave) {
    Read("E8 07 03 01 00 11 02 03 00");
    bytes = 9;
    EXPECT_EQ(Run([&] {
                  driver.Click(driver.Find<ListBox>(L"Types (no space left)"), 0);
                  In(Named(L"Edit..."), [&] {
                      EXPECT_EQ(Box(L"Version").GetText(), L"1");
                      driver.Enter(Box(L"Version"), L"16");
                      EXPECT_FALSE(CanConfirm());
                      driver.Enter(Box(L"Version"), L"9");
                      Confirm();
                  });
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E8 07 03 01 00 19 02 03 00") << "reserved bits are kept";
}

using Hdr10PlusForm = TCtaForm<CtaHdr10PlusDataBlockWindow>;

TEST_F(Hdr10PlusForm, EditsEachField) {
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(driver.GetWindow().GetTitle(), L"HDR10+");
                  EXPECT_EQ(Box(L"Version").GetText(), L"1");
                  driver.Enter(Box(L"Version"), L"4");
                  EXPECT_FALSE(CanConfirm());
                  driver.Enter(Box(L"Version"), L"2");
                  driver.Enter(Box(L"Full frame luminance index"), L"3");
                  driver.Enter(Box(L"Peak luminance index"), L"9");
                  Confirm();
              }),
              IdOk);
    EXPECT_EQ(Written(), "E5 01 8B 84 90 9E");
}

}  // namespace
