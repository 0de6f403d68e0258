#pragma once

#include "model/core/checksum.h"
#include "model/core/flags.h"
#include "model/core/item.h"
#include "model/displayid/data_block.h"

namespace VNT {

struct DisplayId1ProductTypeEnum {
    enum Enum : int { Extension, Test, Panel, Standalone, Television, Repeater, DirectDrive };
    static constexpr ValueText<Enum> Texts[] = {
        {Extension, "Extension section"},
        {Test, "Test structure"},
        {Panel, "Display panel"},
        {Standalone, "Standalone display"},
        {Television, "Television receiver"},
        {Repeater, "Repeater/translator"},
        {DirectDrive, "Direct drive"},
    };
};
struct DisplayId2ProductTypeEnum {
    enum Enum : int { Extension, Test, Generic, Television, Desktop, Gaming, Presentation, VirtualReality, Augmented };
    static constexpr ValueText<Enum> Texts[] = {
        {Extension, "Extension section"},
        {Test, "Test structure"},
        {Generic, "Generic"},
        {Television, "Television"},
        {Desktop, "Desktop productivity"},
        {Gaming, "Desktop gaming"},
        {Presentation, "Presentation"},
        {VirtualReality, "Virtual reality"},
        {Augmented, "Augmented reality"},
    };
};

struct DisplayIdSectionFields {
    int version = 1;
    int revision = 0;
    int productType = 0;  // by `DisplayId1ProductTypeEnum` or `DisplayId2ProductTypeEnum`
    int reserved = 0;
    int extensionCount = 0;
    DisplayIdDataBlockList dataBlocks;
    bool operator==(const DisplayIdSectionFields&) const = default;
};

// The defaults are those of a new section in an extension block.
struct DisplayIdSectionAllFields : DisplayIdSectionFields {
    int size = 126;                 // bytes, the five of the frame included
    Bytes otherBytes;               // what follows the data blocks, unless that begins with the zeros that end them
    Bytes padding = Bytes(121, 0);  // then it stands here
    int checksum = 0x77;            // that of a section without content
    bool operator==(const DisplayIdSectionAllFields&) const = default;
};

// A section of data blocks (DisplayID 1.3, 2.1; 2.1, 3.1), as it stands in an extension block of the EDID.
class DisplayIdSection : public DisplayIdSectionAllFields {
public:
    using FieldsType = DisplayIdSectionFields;
    using ListLimits = TSizeListLimits<DisplayIdDataBlockList>;
    static constexpr int FrameBytes = 5;
    static constexpr int MaxSize = 260;
    static constexpr int ExtensionBytes = 126;  // what an extension block has for it

    // Without data blocks, filling what an extension block has for it.
    DisplayIdSection() = default;
    // Normalises: what follows the data blocks becomes zeros up to `room` bytes, the checksum is computed.
    explicit DisplayIdSection(const DisplayIdSectionFields& fields, int room = ExtensionBytes);

    // False, with nothing changed, if the range is shorter than the section that it begins.
    bool Read(ByteRange range);
    bool Write(ByteRange range) const;
    int GetSize() const { return size; }
    // The checksum for the bytes as they stand; Undefined if they can't be written.
    int ComputeChecksum() const;

    // In `available` bytes.
    bool IsValid(int available = MaxSize) const;
    bool IsValidAll(int available = MaxSize) const { return ValidityOf(*this, available).all; }
    ItemStatus GetStatus(int available = MaxSize) const { return StatusOf(*this, available); }
    ItemStatus GetAvailable(int available = MaxSize) const;
    ListLimits GetListLimits() const { return GetListLimits(size - padding.Size()); }
    // Of the data blocks of a section that may take `room` bytes.
    static ListLimits GetListLimits(int room) {
        return {room - FrameBytes, GetLeastAddSize(DisplayIdDataBlockKinds::All())};
    }
    std::vector<ItemPart> GetParts() const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        constexpr ValueCoding lengthOfFrame{FrameBytes, 1, {}};
        const ValueLimits proper{FrameBytes, std::min(256, io.Available())};
        const ValueLimits all{FrameBytes, std::min(MaxSize, io.Available())};
        io.Kept("revision", 4, item.revision);
        io.Number("version", 4, item.version, Within({1, 15}, {0, 15}));
        io.Derived("size", 8, item.size, lengthOfFrame, TLimitPair(proper, all));
        io.Kept("productType", 4, item.productType);
        io.Kept("reserved", 4, item.reserved);
        io.Kept("extensionCount", 8, item.extensionCount);
        io.Area(item.size - FrameBytes, [&item](auto& payload) {
            payload.List("dataBlocks", item.dataBlocks,
                         TLimitPair(payload.Tested([&item] { return item.GetListLimits(); })));
            const int behind = payload.Tested([&item] { return item.size - FrameBytes - item.dataBlocks.GetSize(); });
            payload.Rest("otherBytes", item.otherBytes, {CountLimits{0, 0}, CountLimits{0, std::max(0, behind)}});
            payload.Rest("padding", item.padding, Zeros(payload, item.padding, behind - item.otherBytes.Size()));
        });
        MapChecksum(io, item.checksum);
    }
};

}  // namespace VNT
