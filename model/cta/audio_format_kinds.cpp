#include "model/cta/audio_formats.h"

namespace VNT {

namespace {

template <class X>
constexpr TKind<AnyCtaAudioFormat> Kind() {
    return VNT::Kind<X, AnyCtaAudioFormat>(CtaAudioFormatTypeId::TextOf(X::TypeValue), AnyCtaAudioFormat::FrameSize);
}

// In the order of the "Add Audio Format" form.
constexpr TKind<AnyCtaAudioFormat> Rows[] = {
    Kind<CtaLpcmAudioFormat>(),          Kind<CtaAc3AudioFormat>(),        Kind<CtaMpeg1AudioFormat>(),
    Kind<CtaMp3AudioFormat>(),           Kind<CtaMpeg2AudioFormat>(),      Kind<CtaAacLcAudioFormat>(),
    Kind<CtaDtsAudioFormat>(),           Kind<CtaAtracAudioFormat>(),      Kind<CtaDsdAudioFormat>(),
    Kind<CtaEAc3AudioFormat>(),          Kind<CtaDtsHdAudioFormat>(),      Kind<CtaMatAudioFormat>(),
    Kind<CtaDstAudioFormat>(),           Kind<CtaWmaProAudioFormat>(),     Kind<CtaMpeg4HeAacAudioFormat>(),
    Kind<CtaMpeg4HeAacV2AudioFormat>(),  Kind<CtaMpeg4AacLcAudioFormat>(), Kind<CtaMpeg4HeAacMpsAudioFormat>(),
    Kind<CtaMpeg4AacLcMpsAudioFormat>(), Kind<CtaMpegH3dAudioFormat>(),    Kind<CtaAc4AudioFormat>(),
    Kind<CtaLpcm3dAudioFormat>(),        Kind<CtaAuroCxAudioFormat>(),     Kind<CtaMpegDUsacAudioFormat>(),
};

}  // namespace

int AnyCtaAudioFormat::PeekType(ByteRange range) {
    constexpr int extendedCode = 15;
    if (!range.Limit(FrameSize)) return NoType;
    range.Skip(3);
    const int code = static_cast<int>(range.ReadLsb(4));
    if (code != extendedCode) return code;
    range.Skip(12);
    return CtaAudioFormatTypeId::Extended + static_cast<int>(range.ReadLsb(5));
}

std::span<const TKind<AnyCtaAudioFormat>> CtaAudioFormatKinds::All() { return Rows; }

std::unique_ptr<AnyCtaAudioFormat> CtaAudioFormatKinds::Read(ByteRange range) {
    return ReadKind<CtaOtherAudioFormat>(All(), range);
}

}  // namespace VNT
