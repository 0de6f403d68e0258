// The video formats that CTA-861 and HDMI name by codes.
#pragma once

#include <span>

#include "model/core/limits.h"
#include "model/timing/resolution.h"

namespace VNT {

struct CtaVideoAspectEnum {
    enum Enum : int { Ratio4x3, Ratio16x9, Ratio16x9In1250Lines, Ratio64x27, Ratio256x135 };
    static constexpr const char* Texts[] = {"4:3", "16:9", "16:9", "64:27", "256:135"};
};

struct HdmiVideoAspectEnum {
    enum Enum : int { Ratio16x9, Ratio256x135 };
    static constexpr const char* Texts[] = {"16:9", "256:135"};
};

struct CtaVideoFormatAspectEnum {
    enum Enum : int { Ratio16x9, Ratio64x27, Ratio32x9 };
    static constexpr const char* Texts[] = {"16:9", "64:27", "32:9"};
};

// The member initialisers are what a code without a format has.
struct VideoFormat {
    bool present = false;
    int width = Undefined;   // pixels
    int height = Undefined;  // lines
    bool interlaced = false;
    TFew<Decimal, 1> rates;  // Hz
    int aspect = 0;          // the row of the table's aspect texts
};

struct VideoFormatTable {
    std::span<const VideoFormat> rows;  // indexed by the code
    std::span<const char* const> aspectTexts;
    int aspectIn1250Lines = -1;  // the aspect of what differs from another format by the lines of its frame alone

    // A row that is not present for a code that the table doesn't hold.
    const VideoFormat& At(int code) const;
    ResolutionSummary Summarize(int code, const std::vector<Decimal>& rates) const;

    static const VideoFormatTable CtaCodes;      // by video identification code
    static const VideoFormatTable HdmiCodes;     // by the code of HDMI's own formats
    static const VideoFormatTable CtaFormatIds;  // by resolution identification code; no rates
};

struct VideoFormatTextFormat : ResolutionTextFormat {
    std::u32string_view other = U"Other ({id})";
    std::u32string_view vtotal = U" (1250VT)", noVtotal;
    std::u32string_view rateSeparator = U"/";
    constexpr VideoFormatTextFormat(std::u32string_view main, std::u32string_view text, std::u32string_view kind) {
        format = emptyFormat = main;
        description = text;
        type = kind;
    }
};

// {id}, {width}, {height}, {p}, {i}, {resolutiontext}, {aspectratio}, {aspectratiotext}, {refreshrate},
// {refreshratetext}, {vtotaltext}; of a code without a format all but the code and the rates are empty.
void FillVideoFormatTexts(TextTable& table, int code, const VideoFormatTable& formats,
                          const std::vector<Decimal>& rates, const VideoFormatTextFormat& format);

}  // namespace VNT
