#pragma once

#include "model/core/flags.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaVideoCapabilityDataBlockOverscanEnum {
    enum Enum : int { NotSupported, AlwaysOverscanned, AlwaysUnderscanned, Both };
    static constexpr int Count = Both + 1;
    static constexpr ValueText<Enum> Texts[] = {{NotSupported, "Not supported"},
                                                {AlwaysOverscanned, "Always overscanned"},
                                                {AlwaysUnderscanned, "Always underscanned"},
                                                {Both, "Supports both"}};
};

struct CtaVideoCapabilityDataBlockPtOverscanEnum {
    enum Enum : int { UseAbove, AlwaysOverscanned, AlwaysUnderscanned, Both };
    static constexpr int Count = Both + 1;
    static constexpr ValueText<Enum> Texts[] = {{UseAbove, "Use above information"},
                                                {AlwaysOverscanned, "Always overscanned"},
                                                {AlwaysUnderscanned, "Always underscanned"},
                                                {Both, "Supports both"}};
};

struct CtaVideoCapabilityDataBlockRangeFlagEnum {
    enum Enum : int { RgbSelectable, YccSelectable };
    static constexpr ValueText<Enum> Texts[] = {{RgbSelectable, "RGB range selectable"},
                                                {YccSelectable, "YCC range selectable"}};
};

struct CtaVideoCapabilityDataBlockFields : CtaDataBlockFields {
    using Overscan = CtaVideoCapabilityDataBlockOverscanEnum;
    using PtOverscanEnum = CtaVideoCapabilityDataBlockPtOverscanEnum;

    Overscan::Enum CeOverscan = Overscan::NotSupported;          // of video formats
    Overscan::Enum ItOverscan = Overscan::NotSupported;          // of PC formats
    PtOverscanEnum::Enum PtOverscan = PtOverscanEnum::UseAbove;  // of the preferred timing
    TFlagsLsb<CtaVideoCapabilityDataBlockRangeFlagEnum, 2> RangeFlags;
    bool operator==(const CtaVideoCapabilityDataBlockFields&) const = default;
};

// CTA-861-I, 7.5.6.
class CtaVideoCapabilityDataBlock
    : public TCtaDataBlock<CtaVideoCapabilityDataBlock, CtaDataBlockTypeId::VideoCapability,
                           CtaVideoCapabilityDataBlockFields> {
public:
    static constexpr SizedShape Shape{1};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Video capability"};

    CtaVideoCapabilityDataBlock() = default;
    explicit CtaVideoCapabilityDataBlock(const CtaVideoCapabilityDataBlockFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("CeOverscan", 2, block.CeOverscan, OneOf<Overscan>(Overscan::Count));
        io.Number("ItOverscan", 2, block.ItOverscan, OneOf<Overscan>(Overscan::Count));
        io.Number("PtOverscan", 2, block.PtOverscan, OneOf<PtOverscanEnum>(PtOverscanEnum::Count));
        io.Kept("RangeFlags", 2, block.RangeFlags);
    }
};

}  // namespace VNT
