#pragma once

#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayIdOtherDataBlockFields : DisplayIdDataBlockFields {
    int tag = 0;
    bool operator==(const DisplayIdOtherDataBlockFields&) const = default;
};

// A data block that no class is read for, or that its class couldn't write back: the payload is kept. It has no form.
class DisplayIdOtherDataBlock : public TDisplayIdDataBlock<DisplayIdOtherDataBlock, DisplayIdDataBlockTypeId::Other,
                                                           DisplayIdOtherDataBlockFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Other ({tag})"};

    DisplayIdOtherDataBlock() = default;
    explicit DisplayIdOtherDataBlock(const DisplayIdOtherDataBlockFields& fields) { SetFields(fields); }

    static bool Accepts(const SizedPeek& peek) { return peek.type != AnyDisplayIdDataBlock::NoType; }
    void FillTexts(TextTable& table) const { table.Set(U"{tag}", tag); }

    template <class IO>
    static void MapPrefix(IO& io, auto& block) {
        io.Kept("tag", 8, block.tag);
        AnyDisplayIdDataBlock::MapHead(io, block);
        AnyDisplayIdDataBlock::MapLength(io, block);
    }
    template <class IO>
    static void MapFields(IO& io, auto& block) {
        // Three zero bytes are the end of a list, and no block.
        const bool isBlock = block.tag != 0 || block.revision != 0 || block.flags != 0 || !block.Extra.IsEmpty();
        io.Check("frame", isBlock, isBlock);
    }
};

}  // namespace VNT
