#include "editor/cta_audio_windows.h"

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

}  // namespace
}  // namespace VNT::Testing
