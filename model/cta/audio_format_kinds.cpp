#include "model/cta/audio_format_kinds.h"

namespace VNT {

namespace {

constexpr auto Rows = CtaAudioFormatKindList.MakeTable<AnyCtaAudioFormat>();

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
    return ReadKind<decltype(CtaAudioFormatKindList)::Other>(All(), range);
}

}  // namespace VNT
