#pragma once

#include "model/core/flags.h"
#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayId1DisplayParametersDataBlockFlagEnum {
    enum Enum : int {
        Deinterlacing,
        AcpIsrc,
        FixedResolution,
        FixedTiming,
        PowerManagement,
        AudioInputOverride,
        SeparateAudioInputs,
        AudioOnVideo,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {AudioOnVideo, "Audio support on video"},
        {SeparateAudioInputs, "Separate audio inputs"},
        {AudioInputOverride, "Audio input override"},
        {PowerManagement, "Power management"},
        {FixedTiming, "Fixed timing"},
        {FixedResolution, "Fixed resolution"},
        {AcpIsrc, "Supports ACP/ISRC"},
        {Deinterlacing, "Deinterlacing"},
    };
};

struct DisplayId1DisplayParametersDataBlockFields : DisplayIdDataBlockFields {
    Decimal imageWidth = Decimal::Undefined();   // mm
    Decimal imageHeight = Decimal::Undefined();  // mm
    int nativeWidth = Undefined;                 // pixels
    int nativeHeight = Undefined;                // lines
    TFlagsLsb<DisplayId1DisplayParametersDataBlockFlagEnum, 8> featureFlags;
    Decimal gamma{1};
    Decimal aspectRatio{1};
    int nativeColorDepth = 1;   // bits per color
    int overallColorDepth = 1;  // bits per color
    bool operator==(const DisplayId1DisplayParametersDataBlockFields&) const = default;
};

// DisplayID 1.3, 4.2.
class DisplayId1DisplayParametersDataBlock
    : public TDisplayIdDataBlock<DisplayId1DisplayParametersDataBlock, DisplayIdDataBlockTypeId::DisplayParameters1,
                                 DisplayId1DisplayParametersDataBlockFields> {
public:
    static constexpr SizedShape Shape{12};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{resolutiontext} ({colordepthtext} bpc)", U"Display parameters"};

    DisplayId1DisplayParametersDataBlock() = default;
    explicit DisplayId1DisplayParametersDataBlock(const DisplayId1DisplayParametersDataBlockFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const;

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        constexpr Decimal tenth(1, 1), hundredth(1, 2), one(1), none = Decimal::Undefined();
        constexpr DecimalCoding sizes{Decimal(), tenth, {{0, none}}};
        constexpr DecimalLimits sizeLimits{tenth, Decimal(65535, 1), tenth, Decimal(), {none}};
        constexpr ValueCoding pixels{0, 1, {{0, Undefined}}};
        constexpr ValueLimits pixelLimits{1, 65535, 0, 0, {Undefined}};
        constexpr DecimalCoding ratios{one, hundredth, {}};
        constexpr DecimalCoding gammas{one, hundredth, {{255, none}}};
        constexpr ValueCoding lessOne{1, 1, {}};
        io.Number("imageWidth", 16, block.imageWidth, sizes, Within(sizeLimits));
        io.Number("imageHeight", 16, block.imageHeight, sizes, Within(sizeLimits));
        io.Number("nativeWidth", 16, block.nativeWidth, pixels, TLimitPair(pixelLimits));
        io.Number("nativeHeight", 16, block.nativeHeight, pixels, TLimitPair(pixelLimits));
        io.Kept("featureFlags", 8, block.featureFlags);
        io.Number("gamma", 8, block.gamma, gammas,
                  Within(DecimalLimits{one, Decimal(354, 2), hundredth, Decimal(), {none}}));
        io.Number("aspectRatio", 8, block.aspectRatio, ratios,
                  Within(DecimalLimits{one, Decimal(355, 2), hundredth, Decimal(), {}}));
        io.Number("nativeColorDepth", 4, block.nativeColorDepth, lessOne, Within(1, 16));
        io.Number("overallColorDepth", 4, block.overallColorDepth, lessOne, Within(1, 16));
    }
};

}  // namespace VNT
