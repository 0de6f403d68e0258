#include "tests/editor/resolution_form.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

TEST_F(ResolutionForm, CopyAndPasteCarryTheTimingToAnotherForm) {
    EdidDetailedResolution item;
    Run(item, [&] {
        EXPECT_FALSE(driver.Find<Button>(L"Paste").IsEnabled());
        Choose(L"CVT-RB standard");
        Picture(L"2560", L"1440", L"60");
        Click(L"Copy");
        EXPECT_FALSE(driver.Find<Button>(L"Copy").IsEnabled());
        Confirm();
    });
    DisplayId1DetailedResolution other;
    EXPECT_EQ(Open<DisplayId1DetailedResolutionWindow>(other,
                                                       [&] {
                                                           Click(L"Paste");
                                                           Click(L"OK");
                                                       }),
              IdOk);
    EXPECT_EQ(other.hactive, 2560);
    EXPECT_EQ(other.timing, DetailedResolutionTimingEnum::CvtRb);
    EXPECT_EQ(other.hfront, item.hfront);
}

TEST_F(ResolutionForm, ATimingThatIsTooWideForTheEdidIsPastedAndRed) {
    DisplayId1DetailedResolution wide;
    wide.hactive = 5120;
    Open<DisplayId1DetailedResolutionWindow>(wide, [&] {
        Click(L"Copy");
        Leave();
    });
    EdidDetailedResolution item;
    Run(item, [&] {
        Click(L"Paste");
        EXPECT_EQ(Box(L"Active:", Horizontal).GetText(), L"5120");
        EXPECT_FALSE(Box(L"Active:", Horizontal).HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

TEST_F(ResolutionForm, PastingKeepsTheAddedFieldsUnlessItIsOfTheSameKind) {
    EdidDetailedResolution copied;
    copied.imageWidth = 531;
    copied.hactive = 800;
    Run(copied, [&] {
        Click(L"Copy");
        Leave();
    });
    const auto paste = [&] {
        Click(L"Paste");
        EXPECT_FALSE(driver.Find<Button>(L"Copy").IsEnabled());
        EXPECT_FALSE(driver.Find<Button>(L"Paste").IsEnabled());
        Confirm();
    };
    EdidDetailedResolution same;
    same.imageWidth = 600;
    Run(same, paste);
    EXPECT_EQ(same.imageWidth, 531);
    EXPECT_EQ(same.hactive, 800);

    DisplayId2DetailedResolution other;
    other.aspectRatio = DisplayIdDetailedResolutionAspectRatioEnum::Ratio16x9;
    other.preferred = true;
    EXPECT_EQ(Open<DisplayId2DetailedResolutionWindow>(other,
                                                       [&] {
                                                           Click(L"Paste");
                                                           EXPECT_TRUE(driver.Find<Button>(L"Copy").IsEnabled())
                                                               << "of another kind is never equal";
                                                           Click(L"OK");
                                                       }),
              IdOk);
    EXPECT_EQ(other.hactive, 800);
    EXPECT_EQ(other.aspectRatio, DisplayIdDetailedResolutionAspectRatioEnum::Ratio16x9);
    EXPECT_TRUE(other.preferred);
}

TEST_F(ResolutionForm, TheOtherFieldsShowWhenAskedFor) {
    EdidDetailedResolution item;
    Run(item, [&] {
        EXPECT_ANY_THROW(Box(L"Image size:"));
        EXPECT_TRUE(driver.Find<ComboBox>(L"Sync type:").IsVisible()) << "no other field";
        Click(L"\u25BC");
        auto& box = Box(L"Image size:");
        driver.Enter(box, L"531");
        Click(L"\u25B2");
        EXPECT_FALSE(box.IsVisible());
        Confirm();
    });
    EXPECT_EQ(item.imageWidth, 531);
}

TEST_F(ResolutionForm, AModeMakesTheSyncDigitalAndSeparate) {
    EdidDetailedResolution item;
    item.syncType = EdidDetailedResolutionSyncTypeEnum::AnalogComposite;
    item.serrations = true;
    Run(item, [&] {
        const ComboBox& type = driver.Find<ComboBox>(L"Sync type:");
        EXPECT_TRUE(driver.Find<CheckBox>(L"Serrations").IsEnabled());
        EXPECT_FALSE(driver.Find<ComboBox>(L"Sync polarity:").IsEnabled());
        Choose(L"CVT standard");
        EXPECT_EQ(type.GetItemText(type.GetSelection()), L"Digital separate");
        EXPECT_FALSE(type.IsEnabled());
        EXPECT_FALSE(driver.Find<CheckBox>(L"Serrations").IsEnabled());
        Confirm();
    });
    EXPECT_EQ(item.syncType, EdidDetailedResolutionSyncTypeEnum::DigitalSeparate);
}

TEST_F(ResolutionForm, TheSyncTypeOpensThePolaritiesTheLineItIsOnAndSerrations) {
    EdidDetailedResolution item;
    Run(item, [&] {
        const auto open = [&] {
            std::wstring all;
            for (const int axis : {Horizontal, Vertical})
                all += driver.Find<ComboBox>(L"Sync polarity:", axis).IsEnabled() ? L"+" : L"-";
            all += driver.Find<ComboBox>(L"Sync on:").IsEnabled() ? L"+" : L"-";
            EXPECT_EQ(driver.Find<Label>(L"Sync on:").IsEnabled(), driver.Find<ComboBox>(L"Sync on:").IsEnabled());
            return all + (driver.Find<CheckBox>(L"Serrations").IsEnabled() ? L"+" : L"-");
        };
        auto& type = driver.Find<ComboBox>(L"Sync type:");
        EXPECT_EQ(open(), L"++--") << "digital separate, as a new one is";
        driver.Choose(type, L"Analog composite");
        EXPECT_EQ(open(), L"--++");
        driver.Choose(type, L"Bipolar analog composite");
        EXPECT_EQ(open(), L"--++");
        driver.Choose(type, L"Digital composite");
        EXPECT_EQ(open(), L"+--+");
        Leave();
    });
}

TEST_F(ResolutionForm, EachKindHasItsTitleAndItsOwnFields) {
    const auto look = [&](auto item, auto open, const wchar_t* title, const wchar_t* flag) {
        EXPECT_EQ(open(item,
                       [&] {
                           EXPECT_EQ(driver.GetWindow().GetTitle(), title);
                           Click(L"\u25BC");
                           driver.Click(driver.Find<CheckBox>(flag));
                           driver.Choose(driver.Find<ComboBox>(L"Aspect ratio:"), L"64:27");
                           driver.Choose(driver.Find<ComboBox>(L"3D support:"), L"Mono or stereo");
                           Confirm();
                       }),
                  IdOk);
        EXPECT_TRUE(item.preferred);
        EXPECT_EQ(item.aspectRatio, DisplayIdDetailedResolutionAspectRatioEnum::Ratio64x27);
        EXPECT_EQ(item.stereo, DisplayIdDetailedResolutionStereoEnum::MonoOrStereo);
    };
    const auto in = [&]<class FormWindow>(std::type_identity<FormWindow>) {
        return [&](auto& item, const auto& steps) { return Open<FormWindow>(item, steps); };
    };
    look(DisplayId1DetailedResolution(), in(std::type_identity<DisplayId1DetailedResolutionWindow>()),
         L"Detailed Resolution", L"Preferred");
    look(DisplayId2DetailedResolution(), in(std::type_identity<DisplayId2DetailedResolutionWindow>()),
         L"Detailed Resolution", L"Preferred");
    look(DisplayId2DetailedResolutionR2(), in(std::type_identity<DisplayId2DetailedResolutionWindowR2>()),
         L"Detailed Resolution r2", L"4:2:0");
}

TEST_F(ResolutionForm, WithoutRoomForTheItemTheActualRatesGiveWayAndOkIsClosed) {
    const auto look = [this](int bytes, const wchar_t* text, bool canConfirm) {
        DisplayId2DetailedResolution item;
        item.extraBytes = Bytes{1, 2};
        driver.Then([&] {
            driver.Find<Label>(text);
            EXPECT_EQ(CanConfirm(), canConfirm);
            Leave();
        });
        DisplayId2DetailedResolutionWindow window(nullptr);
        EXPECT_EQ(window.Run(item, bytes), IdCancel);
    };
    look(22, L"Actual: 60.000 Hz", true);
    look(21, L"(no space left)", false);
}

TEST_F(ResolutionForm, ANumberThatWasNoneIsPastedAsAnEmptyBox) {
    EdidDetailedResolution from;
    Run(from, [&] {
        driver.Enter(Box(L"Active:", Horizontal), L"x");
        driver.Enter(Box(L"Pixel clock:"), L"?");
        Click(L"Copy");
        EXPECT_EQ(Box(L"Active:", Horizontal).GetText(), L"x") << "stays as it was typed";
        Leave();
    });
    EdidDetailedResolution to;
    EXPECT_EQ(Run(to,
                  [&] {
                      driver.Enter(Box(L"Active:", Horizontal), L"1440");
                      Click(L"Paste");
                      for (auto* box : {&Box(L"Active:", Horizontal), &Box(L"Pixel clock:")}) {
                          EXPECT_EQ(box->GetText(), L"");
                          EXPECT_FALSE(box->HasValidStyle());
                      }
                      EXPECT_FALSE(CanConfirm());
                      driver.Enter(Box(L"Active:", Horizontal), L"1280");
                      driver.Enter(Box(L"Pixel clock:"), L"25.2");
                      EXPECT_TRUE(CanConfirm());
                      Click(L"OK");
                  }),
              IdOk);
    EXPECT_EQ(to.hactive, 1280);
}

TEST_F(ResolutionForm, TheOtherFieldsMoveTheFormUpAndLeaveTheFocusOnTheArrow) {
    const Rect area{0, 0, 1920, 1040};
    driver.GetSystem().WorkArea = area;
    DisplayId2DetailedResolution item;
    Open<DisplayId2DetailedResolutionWindow>(item, [&] {
        Window& form = driver.GetWindow();
        form.SetPosition(300, area.Bottom - form.GetHeight());
        const int top = form.GetY();
        const int height = form.GetHeight();
        driver.Find<Button>(L"\u25BC").SetFocus();
        driver.Press(Key::Space);
        EXPECT_GT(form.GetHeight(), height);
        EXPECT_LT(form.GetY(), top);
        EXPECT_EQ(form.GetX(), 300);
        EXPECT_EQ(form.GetY() + form.GetHeight(), area.Bottom);
        EXPECT_TRUE(driver.Find<Button>(L"\u25B2").HasFocus());
        driver.Press(Key::Space);
        EXPECT_EQ(form.GetHeight(), height);
        EXPECT_TRUE(driver.Find<Button>(L"\u25BC").IsVisible());
        Leave();
    });
}

TEST_F(ResolutionForm, TheSyncTypeIsClosedInTheQftCalculator) {
    EdidDetailedResolution item;
    item.syncType = EdidDetailedResolutionSyncTypeEnum::AnalogComposite;
    EXPECT_EQ(Run(item,
                  [&] {
                      const ComboBox& type = driver.Find<ComboBox>(L"Sync type:");
                      EXPECT_TRUE(type.IsEnabled());
                      Choose(L"QFT calculator");
                      EXPECT_FALSE(type.IsEnabled());
                      EXPECT_EQ(type.GetItemText(type.GetSelection()), L"Digital separate");
                      Choose(L"Manual");
                      EXPECT_TRUE(type.IsEnabled());
                      Leave();
                  }),
              IdCancel);
}

TEST_F(ResolutionForm, ExtraBytesBeyondTheirRoomAreRedAndCloseOk) {
    const auto look = [this](int bytes, const std::function<void(TextBox&)>& steps) {
        DisplayId2DetailedResolution item;
        driver.Then([&] {
            Click(L"\u25BC");
            steps(Box(L"Extra bytes:"));
            Leave();
        });
        DisplayId2DetailedResolutionWindow(nullptr).Run(item, bytes);
    };
    look(22, [&](TextBox& box) {
        driver.Enter(box, L"01 02");
        EXPECT_TRUE(box.HasValidStyle());
        EXPECT_TRUE(CanConfirm());
        driver.Enter(box, L"01 02 03");
        EXPECT_FALSE(box.HasValidStyle());
        EXPECT_TRUE(box.IsEnabled()) << "what is too much can be taken away again";
        EXPECT_NE(box.GetHint(), L"");
        EXPECT_FALSE(CanConfirm());
        driver.Press(Key::Back);
        driver.Press(Key::Back);
        driver.Press(Key::Back);
        EXPECT_TRUE(box.HasValidStyle());
        EXPECT_TRUE(CanConfirm());
    });
    look(20, [](TextBox& box) { EXPECT_FALSE(box.IsEnabled()) << "there is room for none"; });
}

}  // namespace
