#pragma once

#include "model/core/flags.h"
#include "model/cta/data_block.h"
#include "model/cta/luminance.h"

namespace VNT {

struct CtaHdrStaticMetadataDataBlockFlagEnum {
    enum Enum : int { TraditionalGammaSdr, TraditionalGammaHdr, PerceptualQuantization, HybridLogGamma, Type1 = 8 };
    static constexpr ValueText<Enum> TransferTexts[] = {
        {TraditionalGammaSdr, "Traditional gamma – SDR luminance range"},
        {TraditionalGammaHdr, "Traditional gamma – HDR luminance range"},
        {PerceptualQuantization, "Perceptual quantization (PQ)"},
        {HybridLogGamma, "Hybrid log-gamma (HLG)"},
    };
    static constexpr ValueText<Enum> MetadataTexts[] = {{Type1, "Type 1"}};
};

struct CtaHdrStaticMetadataDataBlockFields : CtaDataBlockFields {
    TFlagsLsb<CtaHdrStaticMetadataDataBlockFlagEnum, 16> Flags;
    bool RawMode = true;  // the codes lead the luminances, not the other way round
    int MaxLuminanceRaw = Undefined;
    int MaxFrameAverageRaw = Undefined;
    int MinLuminanceRaw = Undefined;
    Decimal MaxLuminance = Decimal::Undefined();  // cd/m²
    Decimal MaxFrameAverage = Decimal::Undefined();
    Decimal MinLuminance = Decimal::Undefined();
    bool operator==(const CtaHdrStaticMetadataDataBlockFields&) const = default;
};

// CTA-861-I, 7.5.13.
class CtaHdrStaticMetadataDataBlock
    : public TCtaDataBlock<CtaHdrStaticMetadataDataBlock, CtaDataBlockTypeId::HdrStaticMetadata,
                           CtaHdrStaticMetadataDataBlockFields> {
public:
    static constexpr SizedShape Shape{5, {2, 3, 4}};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"HDR static metadata"};

    CtaHdrStaticMetadataDataBlock() = default;
    explicit CtaHdrStaticMetadataDataBlock(const CtaHdrStaticMetadataDataBlockFields& fields) { SetFields(fields); }

    // Brings the luminances and their codes in line.
    void Recalculate() {
        Luminance::AlignMax(RawMode, MaxLuminanceRaw, MaxLuminance);
        Luminance::AlignMax(RawMode, MaxFrameAverageRaw, MaxFrameAverage);
        Luminance::AlignMin(RawMode, MinLuminanceRaw, MinLuminance, MaxLuminanceRaw);
    }
    void Normalize() { Recalculate(); }
    void NormalizeRead() { Recalculate(); }
    // A luminance that is set takes its byte even where no code can say it.
    int GetNeeded(int bytes) const {
        if (RawMode) return bytes;
        if (!MinLuminance.IsUndefined()) return 5;
        if (!MaxFrameAverage.IsUndefined()) return std::max(bytes, 4);
        return MaxLuminance.IsUndefined() ? bytes : std::max(bytes, 3);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Kept("Flags", 16, block.Flags);
        Luminance::Map(io, "MaxLuminanceRaw", block.MaxLuminanceRaw, "MaxLuminance", block.MaxLuminance,
                       Luminance::MaxLimits);
        Luminance::Map(io, "MaxFrameAverageRaw", block.MaxFrameAverageRaw, "MaxFrameAverage", block.MaxFrameAverage,
                       Luminance::MaxLimits);
        Luminance::Map(io, "MinLuminanceRaw", block.MinLuminanceRaw, "MinLuminance", block.MinLuminance,
                       Luminance::MinLimits);
    }
};

}  // namespace VNT
