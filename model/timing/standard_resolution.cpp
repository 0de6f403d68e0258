#include "model/timing/standard_resolution.h"

#include "model/core/layout_made.h"

namespace VNT {

std::int64_t EdidStandardResolution::WidthOf(std::int64_t height, AspectRatio ratio) {
    const std::int64_t width = (height * ratio.width + ratio.height - 1) / ratio.height;
    // These heights stand for a width that 5:4 misses by one: a width is a multiple of 8.
    return ratio.width == 5 && height % 32 == 12 ? width + 1 : width;
}

std::int64_t EdidStandardResolution::HeightOf(std::int64_t width, AspectRatio ratio) {
    return width * ratio.height / ratio.width;
}

bool EdidStandardResolution::IsNoResolution() const {
    return IsEmpty() || (width == 256 && height == 160 && refreshRate == 61 &&
                         aspectRatio == EdidStandardResolutionAspectRatioEnum::Ratio16x10);
}

bool EdidStandardResolution::HasProperHeight() const {
    if (IsNoResolution()) return true;
    if (width == Undefined) return height >= 144 && height <= MaxHeight;
    return ValueLimits{256, MaxWidth, 8, 0, {}}.Contains(width) && HasRatio();
}

template struct TMadeItem<EdidStandardResolution>;

}  // namespace VNT
