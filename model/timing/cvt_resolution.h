#pragma once

#include "model/core/flags.h"
#include "model/core/list.h"
#include "model/timing/edid_short_resolution.h"

namespace VNT {

struct EdidCvtResolutionAspectRatioEnum {
    enum Enum : int { Ratio4x3, Ratio16x9, Ratio16x10, Ratio15x9, None };
    static constexpr int Count = None;
    static constexpr ValueText<Enum> Texts[] = {
        {Ratio4x3, "4:3"}, {Ratio16x9, "16:9"}, {Ratio16x10, "16:10"}, {Ratio15x9, "15:9"}};
};

struct EdidCvtResolutionRefreshRateEnum {
    enum Enum : int { Hz50, Hz60, Hz75, Hz85, Hz60Reduced };
    static constexpr int PreferredCount = Hz60Reduced;  // the reduced one is none of its own here
    static constexpr ValueText<Enum> Texts[] = {
        {Hz50, "50 Hz"}, {Hz60, "60 Hz"}, {Hz60Reduced, "60 Hz (RB)"}, {Hz75, "75 Hz"}, {Hz85, "85 Hz"}};
    static constexpr ValueText<Enum> PreferredTexts[] = {
        {Hz50, "50 Hz"}, {Hz60, "60 Hz"}, {Hz75, "75 Hz"}, {Hz85, "85 Hz"}};
};

struct EdidCvtResolutionFields {
    EdidCvtResolutionFieldsPresentEnum::Enum fieldsPresent = EdidCvtResolutionFieldsPresentEnum::HeightAndAspectRatio;
    int width = Undefined;   // pixels
    int height = Undefined;  // lines
    EdidCvtResolutionAspectRatioEnum::Enum aspectRatio = EdidCvtResolutionAspectRatioEnum::Ratio4x3;
    TFlagsMsb<EdidCvtResolutionRefreshRateEnum, 5> refreshRates;
    EdidCvtResolutionRefreshRateEnum::Enum preferredRefreshRate = EdidCvtResolutionRefreshRateEnum::Hz50;
    bool operator==(const EdidCvtResolutionFields&) const = default;
};

struct EdidCvtResolutionAllFields : EdidCvtResolutionFields {
    int reserved1 = 0;
    int reserved2 = 0;
    bool operator==(const EdidCvtResolutionAllFields&) const = default;
};

// The three-byte CVT code of E-EDID 1.4, 3.10.3.8; three zero bytes are the unused slot.
class EdidCvtResolution : public TEdidShortResolution<EdidCvtResolution, ResolutionTypeEnum::EdidCvt,
                                                      EdidCvtResolutionFields, EdidCvtResolutionAllFields, 3> {
public:
    static constexpr EdidShortResolutionTextFormat Format{U"EDID CVT", U"/"};
    static constexpr std::uint8_t UnusedByte = 0x00;
    static constexpr auto FieldsInBytes = EdidCvtResolutionFieldsPresentEnum::HeightAndAspectRatio;
    static constexpr int MaxWidth = 14560;
    static constexpr int MaxHeight = 8192;
    static constexpr AspectRatio Ratios[] = {{4, 3}, {16, 9}, {16, 10}, {15, 9}};
    static constexpr auto& RatioTexts = EdidCvtResolutionAspectRatioEnum::Texts;

    EdidCvtResolution() = default;
    explicit EdidCvtResolution(const EdidCvtResolutionFields& fields) { SetFields(fields); }

    static std::int64_t WidthOf(std::int64_t height, AspectRatio ratio);
    static std::int64_t HeightOf(std::int64_t width, AspectRatio ratio);
    static bool Fits(int width, int height, AspectRatio ratio) { return WidthOf(height, ratio) == width; }
    std::vector<Decimal> GetRates() const;  // of the flags but the reduced one

    template <class IO>
    static void Map(IO& io, auto& item) {
        const TFew<int> blank = item.BlankValues();
        io.Number("height", {{0, 0, 8}, {1, 4, 4}}, item.height, ValueCoding{2, 2, {}},
                  Within({6, MaxHeight, 2, 0, blank}, {2, MaxHeight, 2, 0, blank}));
        io.Kept("reserved1", {{1, 0, 2}}, item.reserved1);
        io.Number("aspectRatio", {{1, 2, 2}}, item.aspectRatio,
                  OneOf<EdidCvtResolutionAspectRatioEnum>(EdidCvtResolutionAspectRatioEnum::Count));
        io.Kept("refreshRates", {{2, 0, 5}}, item.refreshRates);
        io.Number("preferredRefreshRate", {{2, 5, 2}}, item.preferredRefreshRate,
                  OneOf(EdidCvtResolutionRefreshRateEnum::PreferredCount));
        io.Kept("reserved2", {{2, 7, 1}}, item.reserved2);
        io.Check("width", ValueLimits{8, MaxWidth, 8, 0, blank}.Contains(item.width),
                 ValueLimits{0, MaxWidth, 8, 0, blank}.Contains(item.width));
        io.Check("resolution", io.Tested([&item] { return !item.IsNoResolution(); }), true);
    }
};

using EdidCvtResolutionList = TSlotList<EdidCvtResolution, EdidCvtResolution::FrameSize>;

}  // namespace VNT
