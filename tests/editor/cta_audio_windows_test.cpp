#include "editor/cta_audio_windows.h"

#include "editor/cta_audio_format_windows.h"
#include "tests/editor/one_form.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

class SpeakerForm : public TFormTest<CtaSpeakerAllocationDataBlockWindow> {
protected:
    std::wstring Preset() const { return Combo(L"Preset:").GetItemText(Combo(L"Preset:").GetSelection()); }
};

TEST_F(SpeakerForm, ShowsThePresetWhoseSpeakersMatch) {
    item = ReadAs<CtaSpeakerAllocationDataBlock>(FromHex("83 01 00 00"));
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Speaker Allocation");
        EXPECT_EQ(Preset(), L"Stereo");
        driver.Click(Check(L"Low frequency effects"));
        driver.Click(Check(L"Front center"));
        EXPECT_EQ(Preset(), L"Other");
        driver.Click(Check(L"Left/right surround"));
        EXPECT_EQ(Preset(), L"5.1 surround");
        Confirm();
    });
    EXPECT_EQ(item.Speakers.GetBits(), 0x000807u);
}

TEST_F(SpeakerForm, APresetSetsItsSpeakersAndNoBitBeyond) {
    item = ReadAs<CtaSpeakerAllocationDataBlock>(FromHex("83 00 F0 F0"));
    Run([&] {
        driver.Choose(Combo(L"Preset:"), 1);
        EXPECT_TRUE(Check(L"Left/right surround").IsChecked());
        EXPECT_FALSE(Check(L"Top back center").IsChecked());
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 4), FromHex("83 07 08 F0"));
}

TEST_F(SpeakerForm, TheLastSpeakerHasNoPresetButABox) {
    Run([&] {
        driver.Click(Check(L"Top left/right surround"));
        EXPECT_EQ(Preset(), L"Other");
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 4), FromHex("83 00 00 08"));
}

TEST_F(SpeakerForm, OffersSixPresetsAndOther) {
    Run([&] {
        EXPECT_EQ(Combo(L"Preset:").GetCount(), 7);
        driver.Choose(Combo(L"Preset:"), 5);
        EXPECT_EQ(Preset(), L"22.2 System H");
        Confirm();
    });
    EXPECT_EQ(item.Speakers.GetBits(), 0x07F73Fu);
}

using AudioListForm = TFormTest<CtaAudioFormatListDataBlockWindow>;

TEST_F(AudioListForm, AddsTheFormatThatIsChosen) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Audio Formats");
        driver.Then([&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Audio Format");
            EXPECT_TRUE(driver.Find<UI::Controls::RadioButton>(L"LPCM").IsChecked());
            driver.Click(driver.Find<UI::Controls::RadioButton>(L"MPEG-4 AAC LC"));
            driver.Then([&] {
                EXPECT_EQ(driver.GetWindow().GetTitle(), L"MPEG-4 AAC LC");
                driver.Click(Check(L"Supports 22.2 System H"));
                Confirm();
            });
            Confirm();
        });
        driver.Click(Named(L"Add..."));
        EXPECT_EQ(driver.Find<UI::Controls::ListBox>(L"Audio formats (9 slots left)").GetCount(), 1);
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 4), FromHex("23 7F 1F 31"));
}

TEST_F(AudioListForm, TakesAsManyFormatsAsThereIsRoomFor) {
    bytes = 6;
    item = ReadAs<CtaAudioFormatListDataBlock>(FromHex("23 09 07 07"));
    Run([&] {
        driver.Find<UI::Controls::GroupBox>(L"Audio formats (no space left)");
        EXPECT_FALSE(Named(L"Add...").IsEnabled());
        driver.Click(Named(L"Delete all"));
        driver.Find<UI::Controls::GroupBox>(L"Audio formats (1 slot left)");
        EXPECT_TRUE(Named(L"Add...").IsEnabled());
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 1), FromHex("20"));
}

TEST_F(AudioListForm, AFormatWithoutAClassCannotBeOpened) {
    item = ReadAs<CtaAudioFormatListDataBlock>(FromHex("23 FF FF FF"));
    Run([&] {
        driver.Click(driver.Find<UI::Controls::ListBox>(L"Audio formats (9 slots left)"), 0);
        EXPECT_TRUE(Named(L"Edit...").IsEnabled());
        driver.Click(Named(L"Edit..."));
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Audio Formats");
        Confirm();
    });
    EXPECT_EQ(BytesOf(item, 4), FromHex("23 FF FF FF"));
}

using LpcmForm = TFormTest<CtaLpcmAudioFormatWindow>;

TEST_F(LpcmForm, KeepsTheBitsThatHaveNoBoxes) {
    item = ReadAs<CtaLpcmAudioFormat>(FromHex("8F 87 F8"));
    Run([&] {
        driver.Click(Check(L"32 kHz"));
        driver.Click(Check(L"20-bit"));
        Confirm();
    });
    EXPECT_EQ(BytesOf(item), FromHex("8F 86 FA"));
}

TEST_F(LpcmForm, NeedsASampleRate) {
    item = ReadAs<CtaLpcmAudioFormat>(FromHex("09 01 07"));
    Run([&] {
        EXPECT_TRUE(CanConfirm());
        driver.Click(Check(L"32 kHz"));
        EXPECT_FALSE(CanConfirm());
        driver.Click(Check(L"192 kHz"));
        Confirm();
    });
    EXPECT_EQ(BytesOf(item), FromHex("09 40 07"));
}

TEST_F(LpcmForm, TakesAnyCountOfChannelsUpToEight) {
    Run([&] {
        auto& presets = Combo(L"Max channels");
        EXPECT_EQ(presets.GetCount(), 4);
        EXPECT_EQ(presets.GetItemText(presets.GetSelection()), L"8 (7.1 surround)");
        driver.Choose(presets, 3);
        driver.Enter(Box(L"Max channels"), L"9");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Max channels"), L"3");
        Confirm();
    });
    EXPECT_EQ(item.MaxChannels, 3);
}

using Lpcm3dForm = TFormTest<CtaLpcm3dAudioFormatWindow>;

TEST_F(Lpcm3dForm, OffersTheChannelsOfSystemH) {
    Run([&] {
        auto& presets = Combo(L"Max channels");
        EXPECT_EQ(presets.GetItemText(3), L"24 (22.2 System H)");
        driver.Choose(presets, 3);
        Confirm();
    });
    EXPECT_EQ(item.MaxChannels, 24);
}

using Ac4Form = TFormTest<CtaAc4AudioFormatWindow>;

TEST_F(Ac4Form, OffersItsFourRatesAlone) {
    Run([&] {
        std::vector<std::wstring> texts;
        for (UI::Control* control : driver.GetWindow().GetControls()) {
            if (dynamic_cast<UI::Controls::CheckBox*>(control)) texts.push_back(control->GetText());
        }
        EXPECT_EQ(texts, (std::vector<std::wstring>{L"44.1 kHz", L"48 kHz", L"96 kHz", L"192 kHz"}));
        driver.Enter(Box(L"Flags"), L"8");
        EXPECT_FALSE(CanConfirm());
        Leave();
    });
}

using MpegHForm = TFormTest<CtaMpegH3dAudioFormatWindow>;

TEST_F(MpegHForm, ALevelIsANumberOrUndefined) {
    Run([&] {
        auto& levels = Combo(L"Level");
        EXPECT_EQ(levels.GetItemText(levels.GetSelection()), L"Undefined");
        driver.Choose(levels, 1);
        EXPECT_EQ(levels.GetItemText(levels.GetSelection()), L"Other");
        driver.Enter(Box(L"Level"), L"8");
        EXPECT_FALSE(CanConfirm());
        driver.Enter(Box(L"Level"), L"7");
        driver.Click(Check(L"Baseline"));
        Confirm();
    });
    EXPECT_EQ(BytesOf(item), FromHex("7F 7F 5A"));
}

using MpsForm = TFormTest<CtaMpeg4AacLcMpsAudioFormatWindow>;

TEST_F(MpsForm, ChoosesHowMpegSurroundIsTold) {
    Run([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"MPEG-4 AAC LC + MPS");
        EXPECT_TRUE(driver.Find<UI::Controls::RadioButton>(L"Implicit only").IsChecked());
        driver.Click(driver.Find<UI::Controls::RadioButton>(L"Implicit and explicit"));
        driver.Click(Check(L"1024 samples"));
        Confirm();
    });
    EXPECT_EQ(BytesOf(item), FromHex("7F 1F 55"));
}

}  // namespace
}  // namespace VNT::Testing
