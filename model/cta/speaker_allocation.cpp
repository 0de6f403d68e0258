#include "model/cta/speaker_allocation.h"

#include <algorithm>
#include <iterator>

namespace VNT {

namespace {

using Speaker = CtaSpeakerAllocationDataBlockSpeakerFlagEnum;
using Preset = CtaSpeakerAllocationDataBlockPresetEnum;

// In the order of the presets.
constexpr CtaSpeakers Presets[] = {
    {Speaker::FrontLeftRight},
    {Speaker::FrontLeftRight, Speaker::LowFrequencyEffects, Speaker::FrontCenter, Speaker::LeftRightSurround},
    {Speaker::FrontLeftRight, Speaker::LowFrequencyEffects, Speaker::FrontCenter, Speaker::BackLeftRight},
    {Speaker::FrontLeftRight, Speaker::LowFrequencyEffects, Speaker::FrontCenter, Speaker::BackLeftRight,
     Speaker::LeftRightSurround},
    {Speaker::FrontLeftRight, Speaker::LowFrequencyEffects, Speaker::FrontCenter, Speaker::BackLeftRight,
     Speaker::RearLeftRightCenter},
    {Speaker::FrontLeftRight, Speaker::LowFrequencyEffects, Speaker::FrontCenter, Speaker::BackLeftRight,
     Speaker::BackCenter, Speaker::FrontLeftRightCenter, Speaker::TopFrontLeftRight, Speaker::TopCenter,
     Speaker::TopFrontCenter, Speaker::LowFrequencyEffects2, Speaker::TopBackCenter, Speaker::SideLeftRight,
     Speaker::TopSideLeftRight, Speaker::TopBackLeftRight, Speaker::BottomFrontCenter, Speaker::BottomFrontLeftRight},
};
static_assert(std::size(Presets) == Preset::Other);

}  // namespace

Preset::Enum Preset::Find(const CtaSpeakers& speakers) {
    const auto found = std::find_if(std::begin(Presets), std::end(Presets), [&speakers](const CtaSpeakers& preset) {
        return std::all_of(std::begin(Speaker::Texts), std::end(Speaker::Texts),
                           [&](const auto& row) { return speakers.Test(row.value) == preset.Test(row.value); });
    });
    return static_cast<Enum>(found - std::begin(Presets));
}

void Preset::Apply(Enum preset, CtaSpeakers& speakers) {
    if (preset == Other) return;
    for (const auto& row : Speaker::Texts) speakers.Set(row.value, Presets[preset].Test(row.value));
}

}  // namespace VNT
