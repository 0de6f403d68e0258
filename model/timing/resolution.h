#pragma once

#include <vector>

#include "model/core/any.h"
#include "model/core/text.h"

namespace VNT {

// The family of everything an EDID calls a resolution: complete timings, and codes or indices that stand for one.
struct ResolutionTypeEnum {
    enum Enum : int {
        EdidDetailed = 1,
        DisplayId1Detailed = 2,
        DisplayId2Detailed = 3,
        DisplayId2DetailedR2 = 4,
        EdidStandard = 5,
        CtaVideo = 7,
        CtaYcc420Video = 8,
        CtaVideoFormat = 9,
        Hdmi = 10,
        EdidCvt = 11,
        None = 15,
    };
};

// What every kind can say about itself; the member initialisers are the empty summary.
struct ResolutionSummary {
    int width = Undefined;
    int height = Undefined;
    bool interlaced = false;
    std::vector<Decimal> refreshRates;  // Hz
    bool operator==(const ResolutionSummary&) const = default;
};

class AnyResolution : public TAny<AnyResolution> {
public:
    static constexpr int NoType = ResolutionTypeEnum::None;

    virtual int GetType() const = 0;
    // As TAnyFramed.
    virtual void GetText(String& out, const String& format) const = 0;
    virtual void GetText(String& out) const = 0;
    // The empty summary from an item that is not IsValidAll and from an empty holder.
    virtual void GetSummary(ResolutionSummary& out) const = 0;
    virtual bool IsValid() const = 0;
    virtual bool IsValidAll() const = 0;
};

// The templates that the kinds share; each kind says its main template, description and type.
struct ResolutionTextFormat : TextFormat {
    std::u32string_view resolution = U"{width}x{height}{i}";
    std::u32string_view aspectRatio = U" ({aspectratio})", noAspectRatio;
    std::u32string_view refreshRate = U" @ {refreshrate} Hz", noRefreshRate;
    std::u32string_view progressiveMark = U"p", interlacedMark = U"i";
    constexpr ResolutionTextFormat() { emptyFormat = {}; }
};

// {width}, {height}, {p}, {i}, {resolutiontext}
void FillResolutionTexts(TextTable& table, int width, int height, bool interlaced, const ResolutionTextFormat& format);
// {aspectratio}, {aspectratiotext}; an empty `ratio` shows none.
void FillAspectRatioTexts(TextTable& table, const String& ratio, const ResolutionTextFormat& format);
// {refreshrate}, {refreshratetext}; an empty `rate` shows none.
void FillRefreshRateTexts(TextTable& table, const String& rate, const ResolutionTextFormat& format);
void FillRefreshRateTexts(TextTable& table, Decimal rate, const DecimalFormat& number,
                          const ResolutionTextFormat& format);

// The text of what holds a list of resolutions and says how many.
constexpr TextFormat ResolutionCountFormat(std::u32string_view type) {
    return {U"{type}: {description}", U"{type}: {description}", U"{counttext}", type};
}
void FillResolutionCount(TextTable& table, int count);

}  // namespace VNT
