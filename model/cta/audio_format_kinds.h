#pragma once

#include "model/cta/audio_formats.h"

namespace VNT {

namespace Detail {
template <class X>
constexpr TKindRow<X> AudioFormatKind() {
    return KindOf<X>(CtaAudioFormatTypeId::TextOf(X::TypeValue));
}
}  // namespace Detail

// In the order of the "Add Audio Format" form.
inline constexpr TKindList CtaAudioFormatKindList{
    TOtherKind<CtaOtherAudioFormat>(),
    Detail::AudioFormatKind<CtaLpcmAudioFormat>(),
    Detail::AudioFormatKind<CtaAc3AudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg1AudioFormat>(),
    Detail::AudioFormatKind<CtaMp3AudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg2AudioFormat>(),
    Detail::AudioFormatKind<CtaAacLcAudioFormat>(),
    Detail::AudioFormatKind<CtaDtsAudioFormat>(),
    Detail::AudioFormatKind<CtaAtracAudioFormat>(),
    Detail::AudioFormatKind<CtaDsdAudioFormat>(),
    Detail::AudioFormatKind<CtaEAc3AudioFormat>(),
    Detail::AudioFormatKind<CtaDtsHdAudioFormat>(),
    Detail::AudioFormatKind<CtaMatAudioFormat>(),
    Detail::AudioFormatKind<CtaDstAudioFormat>(),
    Detail::AudioFormatKind<CtaWmaProAudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg4HeAacAudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg4HeAacV2AudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg4AacLcAudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg4HeAacMpsAudioFormat>(),
    Detail::AudioFormatKind<CtaMpeg4AacLcMpsAudioFormat>(),
    Detail::AudioFormatKind<CtaMpegH3dAudioFormat>(),
    Detail::AudioFormatKind<CtaAc4AudioFormat>(),
    Detail::AudioFormatKind<CtaLpcm3dAudioFormat>(),
    Detail::AudioFormatKind<CtaAuroCxAudioFormat>(),
    Detail::AudioFormatKind<CtaMpegDUsacAudioFormat>(),
};

}  // namespace VNT
