#include "editor/cta_audio_windows.h"

#include "editor/cta_audio_format_windows.h"
#include "model/edid/captions.h"

using namespace VNT;

CtaAudioFormatListDataBlockWindow::CtaAudioFormatListDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaAudioFormatListDataBlockWindow", L"Audio Formats") {
    Group(L"").List(
        Field<&Fields::Formats>, AudioFormatCaptions, [this] { return item.GetListLimits(GetBytes()); },
        &EditCtaAudioFormat);
}

CtaSpeakerAllocationDataBlockWindow::CtaSpeakerAllocationDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaSpeakerAllocationDataBlockWindow", L"Speaker Allocation") {
    using Preset = CtaSpeakerAllocationDataBlockPresetEnum;
    Group(L"").Row(L"Preset:").Combo(Forms::TBoundField{preset, "Speakers"}, Preset::Texts).OnChange([this] {
        Preset::Apply(preset, fields.Speakers);
    });
    Group(L"Speakers").Checks(Field<&Fields::Speakers>, CtaSpeakerAllocationDataBlockSpeakerFlagEnum::Texts);
}

void CtaSpeakerAllocationDataBlockWindow::Update() {
    preset = CtaSpeakerAllocationDataBlockPresetEnum::Find(fields.Speakers);
    TItemWindow::Update();
}
