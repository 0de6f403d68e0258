// The frame of the DisplayID data blocks: tag, revision and flags, payload length; the holder and the list.
#pragma once

#include <span>

#include "model/core/kinds.h"
#include "model/core/sized_item.h"

namespace VNT {

struct DisplayIdDataBlockTypeId {
    enum Enum : int {
        ProductId1 = 0x00,
        DisplayParameters1 = 0x01,
        DetailedResolutionList1 = 0x03,
        RangeLimits1 = 0x09,
        SerialNumber1 = 0x0A,
        Text1 = 0x0B,
        TiledDisplayTopology1 = 0x12,
        ProductId2 = 0x20,
        DetailedResolutionList2 = 0x22,
        DetailedResolutionList2R2 = 0x222,  // the tag 0x22 from block revision 2 on
        RangeLimits2 = 0x25,
        DisplayInterface2 = 0x26,
        TiledDisplayTopology2 = 0x28,
        ContainerId2 = 0x29,
        VendorSpecific2 = 0x7E,
        VendorSpecific1 = 0x7F,
        CtaDataBlockList = 0x81,
        Other = 0x3000000,
        None = 0x4000000,
    };
};

// What the first bytes of a data block say; `Undefined` what they don't reach.
struct DisplayIdBlockType : SizedPeek {
    int tag = Undefined;
    int revision = Undefined;
    int flags = Undefined;
    int oui = Undefined;  // of a vendor's block, its first byte the highest
};

// None if the range holds less than the block, or at the three zero bytes that end a list.
DisplayIdBlockType PeekDisplayIdBlockType(ByteRange range);

class AnyDisplayIdDataBlock : public TAnySized<AnyDisplayIdDataBlock> {
public:
    static constexpr int FrameBytes = 3;
    static constexpr int MaxSize = FrameBytes + 255;
    static constexpr int NoType = DisplayIdDataBlockTypeId::None;

    // With the type of the one kind that a revision tells from another of its tag.
    static SizedPeek Peek(ByteRange range);
    static constexpr int GetPrefixSize(int) { return FrameBytes; }
    template <int tag, class IO>
    static void MapPrefix(IO& io, auto& block) {
        io.Constant(8, tag);
        MapHead(io, block);
        MapLength(io, block);
    }
    // The byte behind the tag, as most blocks have it.
    template <class IO>
    static void MapHead(IO& io, auto& block) {
        io.Kept("revision", 3, block.revision);
        io.Kept("flags", 5, block.flags);
    }
    template <class IO>
    static void MapLength(IO& io, auto& block) {
        io.Through(
            8, [&block] { return block.Size - FrameBytes; }, [](std::uint32_t) {});
    }
};

// What every record of a data block's fields begins with.
struct DisplayIdDataBlockFields {
    int revision = 0;
    int flags = 0;
    Bytes Extra;  // what stands behind the known fields
    bool operator==(const DisplayIdDataBlockFields&) const = default;
};

template <class X, DisplayIdDataBlockTypeId::Enum id, class Fields>
using TDisplayIdDataBlock = TSizedItem<X, AnyDisplayIdDataBlock, DisplayIdDataBlockTypeId::Enum, id, Fields>;

// The table of kinds. The version of a section doesn't choose among them: any tag is read in any section.
struct DisplayIdDataBlockKinds {
    static std::span<const TKind<AnyDisplayIdDataBlock>> All();
    static std::unique_ptr<AnyDisplayIdDataBlock> Read(ByteRange range);
};

using DisplayIdDataBlock = TSizedContainer<AnyDisplayIdDataBlock, DisplayIdDataBlockKinds>;
using DisplayIdDataBlockList = TSizedList<DisplayIdDataBlock>;

}  // namespace VNT
