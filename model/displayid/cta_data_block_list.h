#pragma once

#include "model/cta/data_block.h"
#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayIdCtaDataBlockListDataBlockFields : DisplayIdDataBlockFields {
    CtaDataBlockList dataBlocks;
    bool operator==(const DisplayIdCtaDataBlockListDataBlockFields&) const = default;
};

// The carrier of CTA-861 data blocks in a DisplayID section.
class DisplayIdCtaDataBlockListDataBlock
    : public TDisplayIdDataBlock<DisplayIdCtaDataBlockListDataBlock, DisplayIdDataBlockTypeId::CtaDataBlockList,
                                 DisplayIdCtaDataBlockListDataBlockFields> {
public:
    using ListLimits = TSizeListLimits<CtaDataBlockList>;
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{counttext}",
                                       U"CTA-861 data blocks"};

    DisplayIdCtaDataBlockListDataBlock() = default;
    explicit DisplayIdCtaDataBlockListDataBlock(const DisplayIdCtaDataBlockListDataBlockFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const {
        table.Set(U"{count}", dataBlocks.GetCount());
        table.Set(U"{counttext}",
                  ChooseByCount(dataBlocks.GetCount(), U"0 data blocks", U"1 data block", U"{count} data blocks"));
    }
    bool HasRest() const { return !dataBlocks.IsEmpty() || !Extra.IsEmpty(); }
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return CountLimits{0, std::max(0, room - dataBlocks.GetSize())};
    }
    // The room of the list in a block of `size` bytes.
    ListLimits GetListLimits(int size) const { return CtaDataBlockList::GetLimits(GetExtraRoom(size) - Extra.Size()); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.List("dataBlocks", block.dataBlocks, TLimitPair<ListLimits>(block.GetListLimits(io.Available())));
    }
};

}  // namespace VNT
