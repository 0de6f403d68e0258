#include "model/cta/audio_format_kinds.h"
#include "tests/support/family_suite.h"

namespace VNT::Testing {
namespace {

struct CtaAudioFormatFamily {
    using Any = AnyCtaAudioFormat;
    using Holder = CtaAudioFormat;
    using Kinds = CtaAudioFormatKinds;
    static constexpr const auto& List = CtaAudioFormatKindList;

    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedCode = 0, extendedCode = 15;
        Bytes bytes = Filled(AnyCtaAudioFormat::FrameSize, fill);
        ByteRange range = bytes;
        range.Skip(3);
        if (type == CtaAudioFormatTypeId::Other) {
            range.WriteLsb(4, unclaimedCode);
        } else if (type < CtaAudioFormatTypeId::Extended) {
            range.WriteLsb(4, static_cast<std::uint32_t>(type));
        } else {
            range.WriteLsb(4, extendedCode);
            range.Skip(12);
            range.WriteLsb(5, static_cast<std::uint32_t>(type - CtaAudioFormatTypeId::Extended));
        }
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(CtaAudioFormat, FamilySuite, CtaAudioFormatFamily);

}  // namespace
}  // namespace VNT::Testing
