#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaHdr10PlusDataBlockFields : CtaDataBlockFields {
    int Version = 1;
    int FullFramePeakLuminanceIndex = 0;
    int PeakLuminanceIndex = 0;
    bool operator==(const CtaHdr10PlusDataBlockFields&) const = default;
};

class CtaHdr10PlusDataBlock
    : public TCtaDataBlock<CtaHdr10PlusDataBlock, CtaDataBlockTypeId::Hdr10Plus, CtaHdr10PlusDataBlockFields> {
public:
    static constexpr SizedShape Shape{1};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"HDR10+"};

    CtaHdr10PlusDataBlock() = default;
    explicit CtaHdr10PlusDataBlock(const CtaHdr10PlusDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{version}", Version);
        table.Set(U"{fullframepeakluminanceindex}", FullFramePeakLuminanceIndex);
        table.Set(U"{peakluminanceindex}", PeakLuminanceIndex);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("Version", 2, block.Version, Within({1, 3}, {0, 3}));
        io.Number("FullFramePeakLuminanceIndex", 2, block.FullFramePeakLuminanceIndex, Within(0, 3));
        io.Number("PeakLuminanceIndex", 4, block.PeakLuminanceIndex, Within(0, 15));
    }
};

}  // namespace VNT
