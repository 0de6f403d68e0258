#include "editor/cta_audio_format_windows.h"

using namespace VNT;

std::span<const ValueText<CtaAudioFormatChannelPresetEnum::Enum>> Forms::GetChannelPresets(int most) {
    const std::span presets(CtaAudioFormatChannelPresetEnum::Texts);
    const auto usable =
        std::count_if(presets.begin(), presets.end(), [most](const auto& preset) { return preset.value <= most; });
    return presets.first(static_cast<std::size_t>(usable));
}

CtaMpeg4AacLcAudioFormatWindow::CtaMpeg4AacLcAudioFormatWindow(UI::Window* parent)
    : TCtaAudioFormatWindow(parent, L"CtaMpeg4AacLcAudioFormatWindow") {
    AddMaxChannels();
    Group(L"").Check(Field<&Fields::Supports222>, L"Supports 22.2 System H");
    AddSampleRates();
    AddFrameLengths();
}

CtaWmaProAudioFormatWindow::CtaWmaProAudioFormatWindow(UI::Window* parent)
    : TCtaAudioFormatWindow(parent, L"CtaWmaProAudioFormatWindow") {
    AddMaxChannels();
    AddSampleRates();
    Group(L"Profile").Number(Field<&Fields::Profile>, L"0");
}

CtaMpegDUsacAudioFormatWindow::CtaMpegDUsacAudioFormatWindow(UI::Window* parent)
    : TCtaAudioFormatWindow(parent, L"CtaMpegDUsacAudioFormatWindow") {
    AddMaxChannels();
    AddSampleRates();
}

CtaMpegH3dAudioFormatWindow::CtaMpegH3dAudioFormatWindow(UI::Window* parent)
    : TCtaAudioFormatWindow(parent, L"CtaMpegH3dAudioFormatWindow") {
    Group(L"Level").ComboOther(Field<&Fields::Level>, CtaMpegH3dAudioFormatLevelEnum::Texts, L"0");
    AddSampleRates();
    Group(L"Profiles").Checks(Field<&Fields::Profiles>, CtaMpegH3dAudioFormatProfileFlagEnum::Texts);
}

namespace {

template <class FormWindow>
constexpr auto FormOf() {
    return Forms::FormOf<FormWindow, CtaAudioFormat>();
}

// In the order of the chooser.
constexpr Forms::TFormRow<CtaAudioFormat> AudioFormatForms[] = {
    FormOf<CtaLpcmAudioFormatWindow>(),          FormOf<CtaAc3AudioFormatWindow>(),
    FormOf<CtaMpeg1AudioFormatWindow>(),         FormOf<CtaMp3AudioFormatWindow>(),
    FormOf<CtaMpeg2AudioFormatWindow>(),         FormOf<CtaAacLcAudioFormatWindow>(),
    FormOf<CtaDtsAudioFormatWindow>(),           FormOf<CtaAtracAudioFormatWindow>(),
    FormOf<CtaDsdAudioFormatWindow>(),           FormOf<CtaEAc3AudioFormatWindow>(),
    FormOf<CtaDtsHdAudioFormatWindow>(),         FormOf<CtaMatAudioFormatWindow>(),
    FormOf<CtaDstAudioFormatWindow>(),           FormOf<CtaWmaProAudioFormatWindow>(),
    FormOf<CtaMpeg4HeAacAudioFormatWindow>(),    FormOf<CtaMpeg4HeAacV2AudioFormatWindow>(),
    FormOf<CtaMpeg4AacLcAudioFormatWindow>(),    FormOf<CtaMpeg4HeAacMpsAudioFormatWindow>(),
    FormOf<CtaMpeg4AacLcMpsAudioFormatWindow>(), FormOf<CtaMpegH3dAudioFormatWindow>(),
    FormOf<CtaAc4AudioFormatWindow>(),           FormOf<CtaLpcm3dAudioFormatWindow>(),
    FormOf<CtaAuroCxAudioFormatWindow>(),        FormOf<CtaMpegDUsacAudioFormatWindow>(),
};

}  // namespace

std::span<const Forms::TFormRow<CtaAudioFormat>> CtaAudioFormatForms() { return AudioFormatForms; }

int EditCtaAudioFormat(UI::Window* parent, CtaAudioFormat& format, int bytes) {
    return Forms::EditHolder<AddCtaAudioFormatWindow>(parent, format, bytes, AudioFormatForms,
                                                      CtaAudioFormatKinds::All());
}
