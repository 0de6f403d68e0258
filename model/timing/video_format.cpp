#include "model/timing/video_format.h"

namespace VNT {

const VideoFormat& VideoFormatTable::At(int code) const {
    static constexpr VideoFormat none;
    return code >= 0 && code < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(code)] : none;
}

ResolutionSummary VideoFormatTable::Summarize(int code, const std::vector<Decimal>& rates) const {
    const VideoFormat& row = At(code);
    return row.present ? ResolutionSummary{row.width, row.height, row.interlaced, rates} : ResolutionSummary();
}

void FillVideoFormatTexts(TextTable& table, int code, const VideoFormatTable& formats,
                          const std::vector<Decimal>& rates, const VideoFormatTextFormat& format) {
    const VideoFormat& row = formats.At(code);
    table.Set(U"{id}", code);
    FillResolutionTexts(table, row.width, row.height, row.interlaced, format);
    if (!row.present) table.Set(U"{resolutiontext}", String());
    const auto aspect = static_cast<std::size_t>(row.aspect);
    FillAspectRatioTexts(table, row.present ? String(formats.aspectTexts[aspect]) : String(), format);
    String text;
    for (const Decimal rate : rates) {
        if (!text.IsEmpty()) text.Append(format.rateSeparator);
        text += DecimalToText(rate, 0);
    }
    FillRefreshRateTexts(table, text, format);
    const bool isLong = row.present && row.aspect == formats.aspectIn1250Lines;
    table.Set(U"{vtotaltext}", isLong ? format.vtotal : format.noVtotal);
}

}  // namespace VNT
