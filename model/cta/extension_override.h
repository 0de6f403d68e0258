#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaExtensionOverrideDataBlockFields : CtaDataBlockFields {
    int BlockCount = 1;  // the extension blocks of the EDID, which keeps it true
    bool operator==(const CtaExtensionOverrideDataBlockFields&) const = default;
};

// The HDMI Forum's extension override: the count of extension blocks where the base block states 1. It stands first in
// the first extension block. It has no form.
class CtaExtensionOverrideDataBlock
    : public TCtaDataBlock<CtaExtensionOverrideDataBlock, CtaDataBlockTypeId::ExtensionOverride,
                           CtaExtensionOverrideDataBlockFields> {
public:
    static constexpr SizedShape Shape{1};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Extension override"};

    CtaExtensionOverrideDataBlock() = default;
    explicit CtaExtensionOverrideDataBlock(const CtaExtensionOverrideDataBlockFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("BlockCount", 8, block.BlockCount, Within({1, 255}, {0, 255}));
    }
};

}  // namespace VNT
