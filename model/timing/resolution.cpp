#include "model/timing/resolution.h"

namespace VNT {

void FillResolutionTexts(TextTable& table, int width, int height, bool interlaced, const ResolutionTextFormat& format) {
    table.Set(U"{width}", width);
    table.Set(U"{height}", height);
    table.Set(U"{p}", interlaced ? std::u32string_view() : format.progressiveMark);
    table.Set(U"{i}", interlaced ? format.interlacedMark : std::u32string_view());
    table.Set(U"{resolutiontext}", format.resolution);
}

void FillAspectRatioTexts(TextTable& table, const String& ratio, const ResolutionTextFormat& format) {
    table.Set(U"{aspectratiotext}", ratio.IsEmpty() ? format.noAspectRatio : format.aspectRatio);
    if (ratio.IsEmpty()) return table.Set(U"{aspectratio}", U"");
    table.Set(U"{aspectratio}", ratio);
}

void FillRefreshRateTexts(TextTable& table, const String& rate, const ResolutionTextFormat& format) {
    table.Set(U"{refreshrate}", rate);
    table.Set(U"{refreshratetext}", rate.IsEmpty() ? format.noRefreshRate : format.refreshRate);
}

void FillRefreshRateTexts(TextTable& table, Decimal rate, const DecimalFormat& number,
                          const ResolutionTextFormat& format) {
    table.Set(U"{refreshrate}", rate, number);
    table.Set(U"{refreshratetext}", rate.IsUndefined() ? format.noRefreshRate : format.refreshRate);
}

void FillResolutionCount(TextTable& table, int count) {
    table.Set(U"{count}", count);
    table.Set(U"{counttext}", ChooseByCount(count, U"0 resolutions", U"1 resolution", U"{count} resolutions"));
}

}  // namespace VNT
