#include "model/timing/displayid_detailed_resolution.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {

ItemStatus AvailableIn20Bytes(const DetailedResolutionFields& fields) {
    ItemStatus available = GetAvailable(fields);
    for (const char* name : {"aspectRatio", "stereo", "preferred"}) available.Report(name, true, true);
    return available;
}

}  // namespace

String DisplayIdDetailedResolutionAspectRatioEnum::Describe(Enum value) {
    return value < Automatic ? String(Texts[value].text) : String();
}

ItemStatus DisplayId1DetailedResolution::GetAvailable() const { return AvailableIn20Bytes(*this); }

template <class X, ResolutionTypeEnum::Enum type>
ItemStatus TDisplayId2DetailedResolution<X, type>::GetAvailable(int bytes) const {
    ItemStatus available = AvailableIn20Bytes(*this);
    const bool fits = GetSize() <= bytes;
    const bool extraFits = ExtraLimits(bytes).proper.Contains(this->extraBytes.Size());
    available.Report("Size", fits, fits);
    available.Report("extraBytes", extraFits, extraFits);
    return available;
}

template class TDisplayId2DetailedResolution<DisplayId2DetailedResolution, ResolutionTypeEnum::DisplayId2Detailed>;
template class TDisplayId2DetailedResolution<DisplayId2DetailedResolutionR2, ResolutionTypeEnum::DisplayId2DetailedR2>;

template struct TMadeItem<DisplayId1DetailedResolution>;
template struct TMadeItem<DisplayId2DetailedResolution>;
template struct TMadeItem<DisplayId2DetailedResolutionR2>;

}  // namespace VNT
