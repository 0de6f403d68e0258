#pragma once

#include "model/core/flags.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaColorimetryDataBlockFlagEnum {
    enum Enum : int {
        XvYcc601,
        XvYcc709,
        SYcc601,
        OpYcc601,
        OpRgb,
        Bt2020CYcc,
        Bt2020Ycc,
        Bt2020Rgb,
        Md0,
        DefaultRgb = 12,
        SRgb,
        ICtCp,
        St2113Rgb,
    };
    static constexpr ValueText<Enum> ColorTexts[] = {
        {XvYcc601, "xvYCC601"},
        {XvYcc709, "xvYCC709"},
        {SYcc601, "sYCC601"},
        {OpYcc601, "opYCC601"},
        {OpRgb, "opRGB"},
        {Bt2020CYcc, "BT.2020 cYCC"},
        {Bt2020Ycc, "BT.2020 YCC"},
        {Bt2020Rgb, "BT.2020 RGB"},
        {St2113Rgb, "ST 2113 RGB"},
        {ICtCp, "ICtCp"},
        {SRgb, "sRGB"},
        {DefaultRgb, "Default RGB"},
    };
    static constexpr ValueText<Enum> MetadataTexts[] = {{Md0, "MD0"}};
};

struct CtaColorimetryDataBlockFields : CtaDataBlockFields {
    TFlagsLsb<CtaColorimetryDataBlockFlagEnum, 16> Flags;
    bool operator==(const CtaColorimetryDataBlockFields&) const = default;
};

// CTA-861-I, 7.5.5.
class CtaColorimetryDataBlock
    : public TCtaDataBlock<CtaColorimetryDataBlock, CtaDataBlockTypeId::Colorimetry, CtaColorimetryDataBlockFields> {
public:
    static constexpr SizedShape Shape{2};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Colorimetry"};

    CtaColorimetryDataBlock() = default;
    explicit CtaColorimetryDataBlock(const CtaColorimetryDataBlockFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Kept("Flags", 16, block.Flags);
    }
};

}  // namespace VNT
