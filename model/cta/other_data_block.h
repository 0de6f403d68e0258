#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaOtherDataBlockFields : CtaDataBlockFields {
    int Tag = 0;
    bool operator==(const CtaOtherDataBlockFields&) const = default;
};

// A data block that no class is read for, or that its class couldn't write back: all bytes behind the header are kept.
// It has no form.
class CtaOtherDataBlock : public TCtaDataBlock<CtaOtherDataBlock, CtaDataBlockTypeId::Other, CtaOtherDataBlockFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Other ({tag})"};

    CtaOtherDataBlock() = default;
    explicit CtaOtherDataBlock(const CtaOtherDataBlockFields& fields) { SetFields(fields); }

    static bool Accepts(const SizedPeek& peek) { return peek.type != AnyCtaDataBlock::NoType; }
    void FillTexts(TextTable& table) const { table.Set(U"{tag}", Tag); }

    template <class IO>
    static void MapPrefix(IO& io, auto& block) {
        AnyCtaDataBlock::MapLength(io, block);
        io.Kept("Tag", 3, block.Tag);
    }
    template <class IO>
    static void MapFields(IO&, auto&) {}
};

}  // namespace VNT
