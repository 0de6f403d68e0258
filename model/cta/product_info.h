#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaProductInfoDataBlockFields : CtaDataBlockFields {
    int VendorId = 0;  // IEEE OUI
    int Reserved = 0;
    String Name;  // a byte each
    bool operator==(const CtaProductInfoDataBlockFields&) const = default;
};

class CtaProductInfoDataBlock
    : public TCtaDataBlock<CtaProductInfoDataBlock, CtaDataBlockTypeId::ProductInfo, CtaProductInfoDataBlockFields> {
public:
    static constexpr SizedShape Shape{4, {3}};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{vendorid}{nametext}",
                                       U"Product information"};
    static constexpr bool KeepsExtra = false;  // all that is left is the name

    CtaProductInfoDataBlock() = default;
    explicit CtaProductInfoDataBlock(const CtaProductInfoDataBlockFields& fields) { SetFields(fields); }

    bool HasRest() const { return !Name.IsEmpty(); }
    TLimitPair<CountLimits> GetExtraLimits(int) const { return CountLimits{}; }
    void FillTexts(TextTable& table) const {
        table.Set(U"{vendorid}", GetOuiText(VendorId));
        table.Set(U"{nametext}", Name.IsEmpty() ? U"" : U" - {name}");
        table.Set(U"{name}", Name);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("VendorId", 24, block.VendorId, Within(0, 0xFFFFFF));
        io.Kept("Reserved", 8, block.Reserved);
        io.Rest("Name", block.Name, TLimitPair(CountLimits{0, GetExtraRoom(io.Available())}));
    }
};

}  // namespace VNT
