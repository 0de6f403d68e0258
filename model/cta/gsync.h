#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaGSyncDataBlockFields : CtaDataBlockFields {
    int Version = 1;
    int MinRefreshRate = 1;  // Hz
    bool operator==(const CtaGSyncDataBlockFields&) const = default;
};

class CtaGSyncDataBlock : public TCtaDataBlock<CtaGSyncDataBlock, CtaDataBlockTypeId::GSync, CtaGSyncDataBlockFields> {
public:
    static constexpr SizedShape Shape{2};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"G-SYNC"};

    CtaGSyncDataBlock() = default;
    explicit CtaGSyncDataBlock(const CtaGSyncDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{version}", Version);
        table.Set(U"{minrefreshrate}", MinRefreshRate);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("Version", 8, block.Version, Within({1, 255}, {0, 255}));
        io.Number("MinRefreshRate", 8, block.MinRefreshRate, Within({1, 255}, {0, 255}));
    }
};

}  // namespace VNT
