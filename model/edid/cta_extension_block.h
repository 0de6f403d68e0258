#pragma once

#include "model/core/flags.h"
#include "model/cta/data_block.h"
#include "model/edid/descriptor.h"
#include "model/edid/extension_block.h"

namespace VNT {

struct EdidCtaExtensionBlockFlagEnum {
    enum Enum : int { Ycc422, Ycc444, BasicAudio, Underscan };
    static constexpr ValueText<Enum> ColorFormatTexts[] = {{Ycc422, "YCbCr 4:2:2"}, {Ycc444, "YCbCr 4:4:4"}};
    static constexpr ValueText<Enum> Texts[] = {{BasicAudio, "Supports basic audio"},
                                                {Underscan, "Underscans PC resolutions"}};
};

// The slots behind the data blocks. Zeros at the end are padding here, and no descriptors.
class EdidCtaDescriptorList : public EdidDescriptorList {
public:
    bool Read(ByteRange range) {
        EdidDescriptorList::Read(range);
        TrimTrailing(EdidOtherDescriptor());
        return true;
    }
};

struct EdidCtaExtensionBlockFields {
    int version = 3;
    int nativeDetailedCount = Undefined;
    TFlagsLsb<EdidCtaExtensionBlockFlagEnum, 4> flags;
    CtaDataBlockList dataBlocks;
    EdidCtaDescriptorList descriptors;
    bool operator==(const EdidCtaExtensionBlockFields&) const = default;
};

struct EdidCtaExtensionBlockAllFields : EdidCtaExtensionBlockFields {
    int detailedOffset = 4;  // of the first slot, from the block's start; below 4 nothing is interpreted
    Bytes dataBlockPadding;
    Bytes tail = Bytes(123, 0);
    int checksum = 0xF7;  // that of a block without content
    bool operator==(const EdidCtaExtensionBlockAllFields&) const = default;
};

// CTA-861-I, 7.3.
class EdidCtaExtensionBlock : public TEdidExtensionBlock<EdidCtaExtensionBlock, EdidExtensionBlockTypeId::Cta,
                                                         EdidCtaExtensionBlockFields, EdidCtaExtensionBlockAllFields> {
public:
    using DataBlockLimits = TSizeListLimits<CtaDataBlockList>;
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{datablockcounttext}, {detailedcounttext}, {descriptorcounttext}", U"CTA-861"};

    EdidCtaExtensionBlock() = default;
    explicit EdidCtaExtensionBlock(const EdidCtaExtensionBlockFields& fields) { SetFields(fields); }

    // What a list doesn't take is kept beside it, whatever the bytes are.
    bool IsValidAllAsRead() const override { return true; }
    void Normalize();
    void FillTexts(TextTable& table) const;
    int GetOverrideCount() const override { return dataBlocks.GetOverrideCount(); }
    void SetOverrideCount(int count) override;

    // Data blocks and slots live from the same bytes.
    DataBlockLimits GetDataBlockLimits() const {
        return CtaDataBlockList::GetLimits(BodyBytes - dataBlockPadding.Size() - descriptors.GetSize());
    }
    SlotListLimits GetDescriptorLimits() const {
        return SlotListLimits::FromBytes(BodyBytes - GetAreaSize(), EdidDescriptorList::SlotBytes);
    }
    TLimitPair<ValueLimits> GetOffsetLimits() const;

    template <class IO>
    static void Map(IO& io, auto& block) {
        io.Constant(8, EdidExtensionBlockTypeId::Cta);
        io.Number("version", 8, block.version, Within({1, 255}, {0, 255}));
        // What the offset has to be hangs on the lists: it is tested with them.
        io.Derived("detailedOffset", 8, block.detailedOffset,
                   TLimitPair(io.Tested([&block] { return block.GetOffsetLimits(); })));
        io.Number("nativeDetailedCount", 4, block.nativeDetailedCount, ZeroIsUndefined, WithinOrUndefined(1, 15));
        io.Kept("flags", 4, block.flags);
        io.Area(BodyBytes, [&block](auto& body) {
            const int area = std::clamp(block.detailedOffset - HeadBytes, 0, BodyBytes);
            body.Area(area, [&block](auto& dataBlocks) {
                dataBlocks.List("dataBlocks", block.dataBlocks,
                                TLimitPair(dataBlocks.Tested([&block] { return block.GetDataBlockLimits(); })));
                const int room = dataBlocks.Tested([&block] { return BodyBytes - block.GetListsSize(); });
                dataBlocks.Rest("dataBlockPadding", block.dataBlockPadding,
                                {CountLimits{0, 0}, CountLimits{0, std::max(0, room)}});
            });
            if (block.detailedOffset >= HeadBytes)
                body.List("descriptors", block.descriptors,
                          TLimitPair(body.Tested([&block] { return block.GetDescriptorLimits(); })));
            const int behind =
                body.Tested([&block] { return BodyBytes - block.GetListsSize() - block.dataBlockPadding.Size(); });
            body.Rest("tail", block.tail, Zeros(body, block.tail, behind));
        });
        MapChecksum(io, block.checksum);
    }

private:
    static constexpr int HeadBytes = 4;
    static constexpr int BodyBytes = 123;

    int GetListsSize() const { return dataBlocks.GetSize() + descriptors.GetSize(); }
    int GetAreaSize() const { return dataBlocks.GetSize() + dataBlockPadding.Size(); }
};

}  // namespace VNT
