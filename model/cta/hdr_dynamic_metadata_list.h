#pragma once

#include "model/cta/data_block.h"
#include "model/cta/hdr_dynamic_metadata.h"

namespace VNT {

struct CtaHdrDynamicMetadataListDataBlockFields : CtaDataBlockFields {
    CtaHdrDynamicMetadataList Types;
    bool operator==(const CtaHdrDynamicMetadataListDataBlockFields&) const = default;
};

class CtaHdrDynamicMetadataListDataBlock
    : public TCtaDataBlock<CtaHdrDynamicMetadataListDataBlock, CtaDataBlockTypeId::HdrDynamicMetadataList,
                           CtaHdrDynamicMetadataListDataBlockFields> {
public:
    using ListLimits = TSizeListLimits<CtaHdrDynamicMetadataList>;
    static constexpr SizedShape Shape{0};
    static constexpr bool KeepsExtra = false;
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{counttext}",
                                       U"HDR dynamic metadata"};

    CtaHdrDynamicMetadataListDataBlock() = default;
    explicit CtaHdrDynamicMetadataListDataBlock(const CtaHdrDynamicMetadataListDataBlockFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const {
        table.Set(U"{count}", Types.GetCount());
        table.Set(U"{counttext}", ChooseByCount(Types.GetCount(), U"0 types", U"1 type", U"{count} types"));
    }
    // What the list couldn't read is carried, but not sound.
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return {CountLimits{0, 0}, CountLimits{0, std::max(0, room - Types.GetSize())}};
    }
    // The room of the list in a block of `size` bytes; a new list leaves nothing behind it.
    static ListLimits GetListLimits(int size) { return CtaHdrDynamicMetadataList::GetLimits(GetExtraRoom(size)); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.List("Types", block.Types, TLimitPair<ListLimits>(GetListLimits(io.Available())));
    }
};

}  // namespace VNT
