#include "model/timing/cvt_resolution.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {

// CVT 2.1: a width is a whole number of character cells.
constexpr std::int64_t CellWidth = 8;

constexpr std::int64_t RoundUpTo(std::int64_t grain, std::int64_t value) { return (value + grain - 1) / grain * grain; }

}  // namespace

std::int64_t EdidCvtResolution::WidthOf(std::int64_t height, AspectRatio ratio) {
    return height * ratio.width / ratio.height / CellWidth * CellWidth;
}

std::int64_t EdidCvtResolution::HeightOf(std::int64_t width, AspectRatio ratio) {
    const std::int64_t lines = (width * ratio.height + ratio.width - 1) / ratio.width;
    const bool isWide = ratio.width == 16 && ratio.height == 9;
    return RoundUpTo(isWide ? 4 : 2, lines);
}

std::vector<Decimal> EdidCvtResolution::GetRates() const {
    using Rate = EdidCvtResolutionRefreshRateEnum;
    constexpr std::pair<Rate::Enum, int> rates[] = {
        {Rate::Hz50, 50}, {Rate::Hz60, 60}, {Rate::Hz75, 75}, {Rate::Hz85, 85}};
    std::vector<Decimal> set;
    for (const auto& [flag, hertz] : rates) {
        if (refreshRates.Test(flag)) set.push_back(Decimal(hertz));
    }
    return set;
}

template struct TMadeItem<EdidCvtResolution>;

}  // namespace VNT
