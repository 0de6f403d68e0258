#include "model/edid/range_limits_timing.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {

constexpr auto Rows = EdidRangeLimitsTimingKindList.MakeTable<AnyEdidRangeLimitsTiming>();

}  // namespace

std::span<const TKind<AnyEdidRangeLimitsTiming>> EdidRangeLimitsTimingKinds::All() { return Rows; }

std::unique_ptr<AnyEdidRangeLimitsTiming> EdidRangeLimitsTimingKinds::Read(ByteRange range) {
    return ReadKind<decltype(EdidRangeLimitsTimingKindList)::Other>(All(), range);
}

int AnyEdidRangeLimitsTiming::PeekType(ByteRange range) {
    return range.Limit(FrameSize) ? static_cast<int>(range.ByteAt(0)) : NoType;
}

EnumLimits EdidRangeLimitsCvtTiming::PreferredLimits() const {
    using Ratio = EdidRangeLimitsCvtTimingAspectRatioEnum;
    EnumLimits supported;
    while (supported.count < Ratio::Count && aspectRatios.Test(static_cast<Ratio::Enum>(supported.count)))
        ++supported.count;
    for (int ratio = supported.count; ratio < Ratio::Count; ++ratio) {
        if (aspectRatios.Test(static_cast<Ratio::Enum>(ratio))) supported.extra.Add(ratio);
    }
    return aspectRatios.GetBits() == 0 ? EnumLimits{Ratio::Count, {}} : supported;
}

template struct TMadeKinds<decltype(EdidRangeLimitsTimingKindList), 0, 1>;

}  // namespace VNT
