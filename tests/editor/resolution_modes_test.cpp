// What the resolution form shows for each timing mode: all boxes, what is red, the actual rates and whether OK can be.
#include "tests/editor/resolution_form.h"

namespace {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

// What is typed (the clock where it is not empty), and what is shown then: active, front porch, sync, back porch,
// blanking, total and polarity of each axis, the rates entered, the actual rates, OK. "_" is an empty box, "!" a red
// one.
struct ModeCase {
    const wchar_t *mode, *width, *height, *rate, *clock;
    const wchar_t* typed;
    const wchar_t* interlaced;
    const wchar_t* pasted = L"";       // into the form of DisplayID v1; empty: as in that of the EDID
    const wchar_t* progressive = L"";  // there, again; empty: as it was typed
};

// The numbers are those of CTA-861, DMT, CVT and GTF and of the modes' own rules, worked out apart from the calculator.
const ModeCase ModeCases[] = {
    // clang-format off
    {L"Manual", L"1920", L"1080", L"60", L"",
     L"1920 16 96 48 160 2080 - | 1080 10 2 33 45 1125 - | 60.000 67.500 140.40 | 60.000 67.500 140.40 | OK",
     L"1920 16 96 48 160 2080 - | 1080 20 4 67 91 1171 - | 60.000 35.134 73.08 | 60.007 35.134 73.08 | OK"},
    {L"Automatic PC", L"1920", L"1080", L"60", L"",
     L"1920 88 44 148 280 2200 + | 1080 4 5 36 45 1125 + | 60.000 67.500 148.50 | 60.000 67.500 148.50 | OK",
     L"1920 88 44 148 280 2200 + | 1080 4 10 31 45 1125 + | 60.000 33.750 74.25 | 60.000 33.750 74.25 | OK"},
    {L"Automatic PC", L"1920", L"1080", L"59.94", L"",
     L"1920 88 44 148 280 2200 + | 1080 4 5 36 45 1125 + | 59.940 67.436 148.36 | 59.943 67.436 148.36 | OK",
     L"1920 88 44 148 280 2200 + | 1080 4 10 31 45 1125 + | 59.940 33.718 74.18 | 59.943 33.718 74.18 | OK"},
    {L"Automatic PC", L"1280", L"720", L"24", L"",
     L"1280 48 32 80 160 1440 + | 720 3 5 6 14 734 - | 24.000 17.618 25.37 | 24.002 17.618 25.37 | OK",
     L"1280 48 32 80 160 1440 + | 720 6 10 13 29 749 - | 24.000 8.993 12.95 | 24.013 8.993 12.95 | OK",
     L"",
     L"1280 1760 40 220 2020 3300 + | 720 5 5 20 30 750 + | 24.000 18.000 59.40 | 24.000 18.000 59.40 | OK"},
    {L"Automatic HDTV", L"3840", L"2160", L"30", L"",
     L"3840 176 88 296 560 4400 + | 2160 8 10 72 90 2250 + | 30.000 67.500 297.00 | 30.000 67.500 297.00 | OK",
     L"3840 48 32 80 160 4000 + | 2160 6 10 17 33 2193 - | 30.000 32.895 131.58 | 30.000 32.895 131.58 | OK"},
    {L"Automatic HDTV", L"4096", L"2160", L"60", L"",
     L"4096! 88 88 128 304 4400 + | 2160 8 10 72 90 2250 + | 60.000 135.000 594.00 | 60.000 135.000 594.00 | no",
     L"4096! 48 32 80 160 4256 + | 2160 6 20 37 63 2223 - | 60.000 66.691 283.84 | 60.001 66.691 283.84 | no",
     L"4096 48 32 80 160 4256 + | 2160 6 20 37 63 2223 - | 60.000 66.691 283.84 | 60.001 66.691 283.84 | OK",
     L"4096 88 88 128 304 4400 + | 2160 8 10 72 90 2250 + | 60.000 135.000 594.00 | 60.000 135.000 594.00 | OK"},
    {L"Automatic CRT", L"1024", L"768", L"85", L"",
     L"1024 48 96 208 352 1376 + | 768 1 3 36 40 808 + | 85.000 68.684 94.51 | 85.005 68.684 94.51 | OK",
     L"1024 40 96 136 272 1296 - | 768 6 8 33 47 815 + | 85.000 34.645 44.90 | 85.018 34.645 44.90 | OK"},
    {L"Automatic CRT", L"1280", L"800", L"60", L"",
     L"1280 72 128 200 400 1680 - | 800 3 6 22 31 831 + | 60.000 49.863 83.77 | 60.003 49.863 83.77 | OK",
     L"1280 32 128 160 320 1600 - | 800 6 12 17 35 835 + | 60.000 25.050 40.08 | 60.000 25.050 40.08 | OK"},
    {L"Native PC", L"1920", L"1080", L"144", L"",
     L"1920 88 44 148 280 2200 + | 1080 4 5 36 45 1125 + | 144.000 162.000 356.40 | 144.000 162.000 356.40 | OK",
     L"1920 88 44 148 280 2200 + | 1080 4 10 31 45 1125 + | 144.000 81.000 178.20 | 144.000 81.000 178.20 | OK"},
    {L"Native PC", L"2560", L"1440", L"120", L"",
     L"2560 48 32 80 160 2720 + | 1440 3 5 33 41 1481 - | 120.000 177.720 483.40 | 120.000 177.720 483.40 | OK",
     L"2560 48 32 80 160 2720 + | 1440 6 10 27 43 1483 - | 120.000 88.981 242.03 | 120.002 88.981 242.03 | OK"},
    {L"Native HDTV", L"1280", L"720", L"100", L"",
     L"1280 110 40 220 370 1650 + | 720 5 5 20 30 750 + | 100.000 75.000 123.75 | 100.000 75.000 123.75 | OK",
     L"1280 48 32 80 160 1440 + | 720 6 10 13 29 749 - | 100.000 37.451 53.93 | 100.003 37.451 53.93 | OK"},
    {L"Exact", L"1920", L"1080", L"60", L"",
     L"1920 48 32 80 160 2080 + | 1080 3 5 37 45 1125 - | 60.000 67.500 140.40 | 60.000 67.500 140.40 | OK",
     L"1920 48 32 80 160 2080 + | 1080 6 10 29 45 1125 - | 60.000 33.750 70.20 | 60.000 33.750 70.20 | OK"},
    {L"Exact reduced", L"1920", L"1080", L"60", L"",
     L"1920 48 32 80 160 2080 + | 1080 3 5 12 20 1100 - | 60.000 66.000 137.28 | 60.000 66.000 137.28 | OK",
     L"1920 48 32 80 160 2080 + | 1080 6 10 29 45 1125 - | 60.000 33.750 70.20 | 60.000 33.750 70.20 | OK"},
    {L"Exact reduced", L"1920", L"1200", L"75", L"",
     L"1920 24 32 24 80 2000 + | 1200 3 6 16 25 1225 + | 75.000 91.875 183.75 | 75.000 91.875 183.75 | OK",
     L"1920 48 32 80 160 2080 + | 1200 6 12 7 25 1225 - | 75.000 45.937 95.55 | 75.000 45.937 95.55 | OK"},
    {L"Exact CRT", L"1280", L"960", L"75", L"",
     L"1280 88 136 256 480 1760 - | 960 3 4 158 165 1125 + | 75.000 84.375 148.50 | 75.000 84.375 148.50 | OK",
     L"1280 48 128 304 480 1760 - | 960 6 8 151 165 1125 + | 75.000 42.187 74.25 | 75.000 42.187 74.25 | OK"},
    {L"OVT standard", L"3840", L"2160", L"60", L"",
     L"3840 56 32 32 120 3960 + | 2160 26 8 46 80 2240 + | 60.000 134.401 532.23 | 60.000 134.401 532.23 | OK",
     L"3840 56 32 32 120 3960 + | 2160 26 8 46! 80! 2240! + | 60.000! 67.202 266.12 | 60.001 67.202 266.12 | no",
     L"3840 56 32 32 120 3960 + | 2160 26 8 46 80 2240 + | 60.000 67.202 266.12 | 60.001 67.202 266.12 | OK",
     L""},
    {L"CVT standard", L"1280", L"1024", L"75", L"",
     L"1280 88 136 224 448 1728 - | 1024 3 7 38 48 1072 + | 75.000 80.405 138.94 | 75.004 80.405 138.94 | OK",
     L"1280 56 128 184 368 1648 - | 1024 6 14 33 53 1077 + | 75.000 40.388 66.56 | 75.001 40.388 66.56 | OK"},
    {L"CVT-RB standard", L"2560", L"1440", L"60", L"",
     L"2560 48 32 80 160 2720 + | 1440 3 5 33 41 1481 - | 60.000 88.860 241.70 | 60.000 88.860 241.70 | OK",
     L"2560 48 32 80 160 2720 + | 1440 6 10 27 43 1483 - | 60.000 44.492 121.02 | 60.003 44.492 121.02 | OK"},
    {L"CVT-RB2 standard", L"2560", L"1440", L"144", L"",
     L"2560 8 32 40 80 2640 + | 1440 89! 8 6 103 1543 - | 144.000! 222.193 586.59 | 144.000 222.193 586.59 | no",
     L"2560 8 32 40 80 2640 + | 1440 76 16 13 105 1545 - | 144.000 111.242 293.68 | 144.003 111.242 293.68 | OK",
     L"",
     L"2560 8 32 40 80 2640 + | 1440 89 8 6 103 1543 - | 144.000 222.193 586.59 | 144.000 222.193 586.59 | OK"},
    {L"GTF standard", L"1024", L"768", L"75", L"",
     L"1024 56 112 168 336 1360 - | 768 1 3 30 34 802 + | 75.000 60.154 81.81 | 75.005 60.154 81.81 | OK",
     L"1024 24 104 128 256 1280 - | 768 2 6 29 37 805 + | 75.000 30.187 38.64 | 75.000 30.187 38.64 | OK"},
    {L"GTF standard", L"640", L"480", L"8", L"",
     L"640 -136! 32 -104! -208! 432! - | 480 1 3 -1! 3! 483! + | 8.000! 3.865 1.67 | 8.003 3.865 1.67 | no",
     L"640 -200! 24 -176! -352! 288! - | 480 2 6 -3! 5! 485! + | 8.000! 1.944 0.56 | 8.018 1.944 0.56 | no"},
    {L"CVT standard", L"1280", L"1024", L"0", L"",
     L"1280 _! _! _! _! _! - | 1024 _! _! _! _! _! + | 0.000! _! _! | - - - | no",
     L"1280 _! _! _! _! _! - | 1024 _! _! _! _! _! + | 0.000! _! _! | - - - | no"},
    {L"QFT calculator", L"1920", L"1080", L"60", L"",
     L"1920 16 96 48 160 2080 - | 1080 10 2 _! _! 201! - | 60.000! 12.115 25.20 | 60.012 12.062 25.09 | no",
     L"1920 16 96 48 160 2080 - | 1080 20 4 _! _! 403! - | 60.000! 12.115 25.20 | 60.006 12.091 25.15 | no"},
    {L"QFT calculator", L"1920", L"1080", L"60", L"594",
     L"1920 16 96 48 160 2080 - | 1080 10 2 3667 3679 4759 - | 60.000 285.576 594.00 | 60.000 285.543 593.93 | OK",
     L"1920 16 96 48 160 2080 - | 1080 20 4 8415! 8439! 9519! - | 60.000! 285.576 594.00 | 60.000 285.572 593.99 | no",
     L"1920 16 96 48 160 2080 - | 1080 20 4 8415 8439 9519 - | 60.000 285.576 594.00 | 60.000 285.572 593.99 | OK",
     L""},
    // clang-format on
};

class ResolutionModes : public ResolutionForm, public testing::WithParamInterface<ModeCase> {
protected:
    // Opens the form of a kind on a new item, does the steps, and leaves.
    template <class FormWindow>
    void Look(const std::function<void()>& steps) {
        typename FormWindow::Item item;
        EXPECT_EQ(Open<FormWindow>(item,
                                   [&] {
                                       steps();
                                       Leave();
                                   }),
                  IdCancel);
    }
    // As a user does, from top to bottom, and on to the next box.
    void Type(const ModeCase& row) {
        Choose(row.mode);
        Picture(row.width, row.height, row.rate);
        if (*row.clock != 0) driver.Enter(Box(L"Pixel clock:"), row.clock);
        driver.Press(Key::Tab);
    }

    static std::wstring Read(const TextBox& box) {
        return (box.GetText().empty() ? L"_" : box.GetText()) + (box.HasValidStyle() ? L"" : L"!");
    }
    std::wstring ReadAxis(int nth) {
        std::wstring all;
        for (const wchar_t* label :
             {L"Active:", L"Front porch:", L"Sync width:", L"Back porch:", L"Blanking:", L"Total:"})
            all += Read(Box(label, nth)) + L" ";
        const ComboBox& polarity = driver.Find<ComboBox>(L"Sync polarity:", nth);
        return all + (polarity.GetSelection() == 1 ? L"+" : L"-");
    }
    std::wstring ReadRates() {
        return Read(Box(L"Refresh rate:")) + L" " + Read(Box(L"Scan rate:")) + L" " + Read(Box(L"Pixel clock:"));
    }
    std::wstring ReadActual() {
        constexpr std::wstring_view lead = L"Actual: ";
        std::wstring all;
        for (const Control* control : driver.GetWindow().GetControls()) {
            const std::wstring& text = control->GetText();
            if (!text.starts_with(lead)) continue;
            const std::wstring number = text.substr(lead.size(), text.rfind(L' ') - lead.size());
            all += (all.empty() ? L"" : L" ") + (number == L"\u2013" ? L"-" : number);
        }
        return all;
    }
    // The form of another kind shows what the item of that kind makes of what is on the clipboard.
    template <class FormWindow>
    void ExpectPasted() {
        typename FormWindow::Item item;
        item.Paste(DetailedResolutionClipboard());
        const int bytes = item.GetSize();
        const ItemStatus status = item.GetStatus(bytes);
        const auto mark = [&](const char* name) { return std::wstring(status.IsProper(name) ? L"" : L"!"); };
        const auto count = [&](const char* name, int value) {
            return (value == Undefined ? L"_" : std::to_wstring(value)) + mark(name) + L" ";
        };
        const auto rate = [&](Decimal value, int decimals) {
            const std::wstring text = DecimalToText(value, decimals).ToWide();
            return text.empty() ? L"_" : text;
        };
        const auto actual = [&](Decimal value, int decimals) {
            return value.IsUndefined() ? L"-" : DecimalToText(value, decimals).ToWide();
        };
        const std::wstring expected =
            count("hactive", item.hactive) + count("hfront", item.hfront) + count("hsync", item.hsync) +
            count("hback", item.hback) + count("hblank", item.hblank) + count("htotal", item.htotal) +
            (item.hpolarity ? L"+" : L"-") + L" | " + count("vactive", item.vactive) + count("vfront", item.vfront) +
            count("vsync", item.vsync) + count("vback", item.vback) + count("vblank", item.vblank) +
            count("vtotal", item.vtotal) + (item.vpolarity ? L"+" : L"-") + L" | " + rate(item.vrate, 3) +
            mark("vrate") + L" " + rate(item.hrate, 3) + mark("hrate") + L" " + rate(item.pixelclock, 3) +
            mark("pixelclock") + L" | " + actual(item.actualvrate, 3) + L" " + actual(item.actualhrate, 3) + L" " +
            actual(item.actualpixelclock, 3) + L" | " + (item.IsValidAll(bytes) ? L"OK" : L"no");
        Look<FormWindow>([&] {
            Click(L"Paste");
            EXPECT_EQ(Shown(), expected);
        });
    }
    std::wstring Shown() {
        return ReadAxis(0) + L" | " + ReadAxis(1) + L" | " + ReadRates() + L" | " + ReadActual() + L" | " +
               (CanConfirm() ? L"OK" : L"no");
    }
};

TEST_P(ResolutionModes, ShowWhatFollowsFromThePicture) {
    const ModeCase& row = GetParam();
    Look<EdidDetailedResolutionWindow>([&] {
        Type(row);
        EXPECT_EQ(Shown(), row.typed);
        ClickInterlaced();
        EXPECT_EQ(Shown(), row.interlaced);
        Click(L"Copy");
    });
    Look<DisplayId1DetailedResolutionWindow>([&] {
        Click(L"Paste");
        EXPECT_EQ(Mode().GetItemText(Mode().GetSelection()), row.mode);
        EXPECT_EQ(Shown(), *row.pasted != 0 ? row.pasted : row.interlaced);
        ClickInterlaced();
        EXPECT_EQ(Shown(), *row.progressive != 0 ? row.progressive : row.typed);
    });
    ExpectPasted<DisplayId2DetailedResolutionWindow>();
    ExpectPasted<DisplayId2DetailedResolutionWindowR2>();
    // And back: what was calculated for another kind is calculated anew for the first.
    Look<DisplayId2DetailedResolutionWindow>([&] {
        Type(row);
        Click(L"Copy");
    });
    Look<EdidDetailedResolutionWindow>([&] {
        Click(L"Paste");
        EXPECT_EQ(Shown(), row.typed);
        ClickInterlaced();
        EXPECT_EQ(Shown(), row.interlaced);
    });
}

// The pixel clock of CVT 1920 x 1200 with reduced blanking is 154.128 MHz; DisplayID v2 has steps of 1 kHz.
TEST_F(ResolutionForm, TheClockOfDisplayIdVersion2HasThreeDecimals) {
    DisplayId2DetailedResolution item;
    Open<DisplayId2DetailedResolutionWindow>(item, [&] {
        Choose(L"CVT-RB standard");
        Picture(L"1920", L"1200", L"60");
        driver.Press(Key::Tab);
        EXPECT_EQ(Box(L"Pixel clock:").GetText(), L"154.128");
        driver.Find<Label>(L"Actual: 154.128 MHz");
        Leave();
    });
}

INSTANTIATE_TEST_SUITE_P(Each, ResolutionModes, testing::ValuesIn(ModeCases), [](const auto& row) {
    std::string name;
    for (const char c : String(row.param.mode).ToUtf8() + "At" + String(row.param.rate).ToUtf8())
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? std::string(1, c) : "";
    return name + std::to_string(row.index);
});

// Which boxes can be typed into, by mode.
using ModeBoxes = ResolutionForm;

TEST_F(ModeBoxes, AreOpenAsTheModeNeedsThem) {
    EdidDetailedResolution item;
    Run(item, [&] {
        for (const auto& mode : DetailedResolutionTimingEnum::Texts) {
            SCOPED_TRACE(mode.text);
            Choose(String(mode.text).ToWide().c_str());
            const bool isManual = mode.value == DetailedResolutionTimingEnum::Manual;
            const bool isFree = isManual || mode.value == DetailedResolutionTimingEnum::Qft;
            for (const int axis : {0, 1}) {
                EXPECT_TRUE(Box(L"Active:", axis).IsEnabled());
                EXPECT_EQ(Box(L"Front porch:", axis).IsEnabled(), isFree);
                EXPECT_EQ(Box(L"Sync width:", axis).IsEnabled(), isFree);
                for (const wchar_t* label : {L"Back porch:", L"Blanking:", L"Total:"})
                    EXPECT_EQ(Box(label, axis).IsEnabled(), axis == 0 ? isFree : isManual);
                EXPECT_EQ(driver.Find<ComboBox>(L"Sync polarity:", axis).IsEnabled(), isFree);
            }
            EXPECT_TRUE(Box(L"Refresh rate:").IsEnabled());
            EXPECT_EQ(Box(L"Scan rate:").IsEnabled(), isFree);
            EXPECT_EQ(Box(L"Pixel clock:").IsEnabled(), isFree);
            EXPECT_TRUE(driver.Find<CheckBox>(L"Interlaced").IsEnabled());
            // Closed, the radio buttons give way to plain labels.
            for (const wchar_t* text : {L"Back porch:", L"Total:", L"Refresh rate:", L"Pixel clock:"}) {
                const auto isShown = [&](const auto* control) { return control && control->IsVisible(); };
                bool radio = false, label = false;
                for (const Control* control : driver.GetWindow().GetControls()) {
                    if (control->GetText() != text) continue;
                    radio = radio || isShown(dynamic_cast<const RadioButton*>(control));
                    label = label || isShown(dynamic_cast<const Label*>(control));
                }
                EXPECT_EQ(radio, isFree);
                EXPECT_EQ(label, !isFree);
            }
        }
        Leave();
    });
}

TEST_F(ResolutionForm, AModeThatIsChosenAgainBringsBackWhatItHad) {
    EdidDetailedResolution item;
    Run(item, [&] {
        Choose(L"CVT standard");
        driver.Enter(Box(L"Active:", Horizontal), L"1440");
        const auto look = [&] {
            return Counts(Horizontal) + L"|" + Counts(Vertical) + L"|" + Box(L"Pixel clock:").GetText();
        };
        const std::wstring cvt = look();
        Choose(L"GTF standard");
        Choose(L"Manual");
        const std::wstring manual = look();
        EXPECT_NE(manual, cvt);
        Choose(L"Automatic PC");
        EXPECT_NE(look(), manual);
        Choose(L"Manual");
        EXPECT_EQ(look(), manual);
        Choose(L"CVT standard");
        EXPECT_EQ(look(), cvt);
        Leave();
    });
}

TEST_F(ResolutionForm, ATextThatIsTypedAgainBringsBackWhatItHad) {
    EdidDetailedResolution item;
    Run(item, [&] {
        auto& total = Box(L"Total:", Horizontal);
        driver.Enter(total, L"900");
        const std::wstring counts = Counts(Horizontal);
        driver.Press(Key::Tab);
        driver.Enter(total, L"");
        driver.Type(L"x");
        driver.Press(Key::Back);
        driver.Type(L"900");
        EXPECT_EQ(Counts(Horizontal), counts);
        EXPECT_TRUE(total.HasValidStyle());
        driver.Enter(total, L"x");
        EXPECT_FALSE(total.HasValidStyle());
        driver.Enter(total, L"");
        driver.Enter(total, L"x");
        EXPECT_FALSE(total.HasValidStyle());
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

}  // namespace
