// The forms of the CTA-861 data blocks about audio.
#pragma once

#include "editor/add_window.h"
#include "model/cta/audio_format_list.h"
#include "model/cta/speaker_allocation.h"

class CtaAudioFormatListDataBlockWindow : public TItemWindow<VNT::CtaAudioFormatListDataBlock> {
public:
    explicit CtaAudioFormatListDataBlockWindow(UI::Window* parent);
};

class CtaSpeakerAllocationDataBlockWindow : public TItemWindow<VNT::CtaSpeakerAllocationDataBlock> {
public:
    explicit CtaSpeakerAllocationDataBlockWindow(UI::Window* parent);
    void Update() override;

private:
    VNT::CtaSpeakerAllocationDataBlockPresetEnum::Enum preset{};
};
