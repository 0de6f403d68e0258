#pragma once

#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayId2ContainerIdDataBlockFields : DisplayIdDataBlockFields {
    Bytes containerId = Bytes(16, 0);
    bool operator==(const DisplayId2ContainerIdDataBlockFields&) const = default;
};

// The UUID of the device that the display is a part of (DisplayID 2.1, 4.8).
class DisplayId2ContainerIdDataBlock
    : public TDisplayIdDataBlock<DisplayId2ContainerIdDataBlock, DisplayIdDataBlockTypeId::ContainerId2,
                                 DisplayId2ContainerIdDataBlockFields> {
public:
    static constexpr SizedShape Shape{16};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{containerid}",
                                       U"Container ID"};

    DisplayId2ContainerIdDataBlock() = default;
    explicit DisplayId2ContainerIdDataBlock(const DisplayId2ContainerIdDataBlockFields& fields) { SetFields(fields); }

    // What a short block lacks is zeros.
    void NormalizeRead() { containerId.Resize(Shape.fixed); }
    void FillTexts(TextTable& table) const { table.Set(U"{containerid}", HexText(containerId)); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Data("containerId", Shape.fixed, block.containerId, Exactly(Shape.fixed));
    }
};

}  // namespace VNT
