#include "editor/cta_audio_windows.h"

using namespace VNT;

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
