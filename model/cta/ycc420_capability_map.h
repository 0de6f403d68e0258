#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaYcc420CapabilityMapDataBlockFields : CtaDataBlockFields {
    Bytes Map;  // a bit for each short video descriptor of the EDID
    bool operator==(const CtaYcc420CapabilityMapDataBlockFields&) const = default;
};

// Which of the video resolutions can be carried in YCbCr 4:2:0 as well (CTA-861-I, 7.5.11). It has no form.
class CtaYcc420CapabilityMapDataBlock
    : public TCtaDataBlock<CtaYcc420CapabilityMapDataBlock, CtaDataBlockTypeId::Ycc420CapabilityMap,
                           CtaYcc420CapabilityMapDataBlockFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr bool KeepsExtra = false;
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"4:2:0 capability map"};

    CtaYcc420CapabilityMapDataBlock() = default;
    explicit CtaYcc420CapabilityMapDataBlock(const CtaYcc420CapabilityMapDataBlockFields& fields) { SetFields(fields); }

    // A map says nothing by zeros at its end.
    void Normalize() { this->CtaYcc420CapabilityMapDataBlockFields::Map.TrimTrailing(0); }
    TLimitPair<CountLimits> GetExtraLimits(int) const { return Exactly(0); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Rest("Map", block.CtaYcc420CapabilityMapDataBlockFields::Map,
                TLimitPair<CountLimits>(CountLimits{0, GetExtraRoom(io.Available())}));
    }
};

}  // namespace VNT
