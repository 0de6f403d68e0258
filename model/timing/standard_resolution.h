#pragma once

#include "model/core/flags.h"
#include "model/core/list.h"
#include "model/timing/edid_short_resolution.h"

namespace VNT {

struct EdidStandardResolutionAspectRatioEnum {
    enum Enum : int { Ratio16x10, Ratio4x3, Ratio5x4, Ratio16x9, None };
    static constexpr int Count = None;
    static constexpr ValueText<Enum> Texts[] = {
        {Ratio16x10, "16:10"}, {Ratio4x3, "4:3"}, {Ratio5x4, "5:4"}, {Ratio16x9, "16:9"}};
};

struct EdidStandardResolutionFields {
    EdidStandardResolutionFieldsPresentEnum::Enum fieldsPresent =
        EdidStandardResolutionFieldsPresentEnum::WidthAndAspectRatio;
    int width = Undefined;   // pixels
    int height = Undefined;  // lines
    EdidStandardResolutionAspectRatioEnum::Enum aspectRatio = EdidStandardResolutionAspectRatioEnum::Ratio16x10;
    int refreshRate = Undefined;  // Hz
    bool operator==(const EdidStandardResolutionFields&) const = default;
};

// The two-byte standard timing of E-EDID 1.4, 3.9; 01 01 is the unused slot.
class EdidStandardResolution
    : public TEdidShortResolution<EdidStandardResolution, ResolutionTypeEnum::EdidStandard,
                                  EdidStandardResolutionFields, EdidStandardResolutionFields, 2> {
public:
    static constexpr EdidShortResolutionTextFormat Format{U"EDID standard", U""};
    static constexpr std::uint8_t UnusedByte = 0x01;
    static constexpr auto FieldsInBytes = EdidStandardResolutionFieldsPresentEnum::WidthAndAspectRatio;
    static constexpr int MaxWidth = 2288;
    static constexpr int MaxHeight = 1830;
    static constexpr AspectRatio Ratios[] = {{16, 10}, {4, 3}, {5, 4}, {16, 9}};
    static constexpr auto& RatioTexts = EdidStandardResolutionAspectRatioEnum::Texts;

    EdidStandardResolution() = default;
    explicit EdidStandardResolution(const EdidStandardResolutionFields& fields) { SetFields(fields); }

    static std::int64_t WidthOf(std::int64_t height, AspectRatio ratio);
    static std::int64_t HeightOf(std::int64_t width, AspectRatio ratio);
    static bool Fits(int width, int height, AspectRatio ratio) { return HeightOf(width, ratio) == height; }
    std::vector<Decimal> GetRates() const { return {Decimal(refreshRate)}; }
    // 256x160 at 61 Hz has the bytes of the unused slot.
    bool IsNoResolution() const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        const TFew<int> blank = item.BlankValues();
        io.Number("width", 8, item.width, ValueCoding{248, 8, {}},
                  Within({256, MaxWidth, 8, 0, blank}, {248, MaxWidth, 8, 0, blank}));
        io.Number("refreshRate", 6, item.refreshRate, ValueCoding{60, 1, {}},
                  TLimitPair(ValueLimits{60, 123, 0, 0, blank}));
        io.Number("aspectRatio", 2, item.aspectRatio,
                  OneOf<EdidStandardResolutionAspectRatioEnum>(EdidStandardResolutionAspectRatioEnum::Count));
        io.Check("height", io.Tested([&item] { return item.HasProperHeight(); }), true);
        io.Check("resolution", io.Tested([&item] { return !item.IsNoResolution(); }), true);
    }

private:
    bool HasProperHeight() const;
};

using EdidStandardResolutionList = TSlotList<EdidStandardResolution, EdidStandardResolution::FrameSize>;

}  // namespace VNT
