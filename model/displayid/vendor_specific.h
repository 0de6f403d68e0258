#pragma once

#include "model/displayid/data_block.h"
#include "model/displayid/vendor_id.h"

namespace VNT {

struct DisplayId1VendorSpecificDataBlockFields : DisplayIdDataBlockFields {
    String vendorId = U"PNP";  // three characters; `Extra` is what the vendor says
    bool operator==(const DisplayId1VendorSpecificDataBlockFields&) const = default;
};

// The data blocks of vendors (DisplayID 1.3, 4.18; 2.1, 4.11). Version 1 names them by letters, version 2 by IEEE OUI.
class DisplayId1VendorSpecificDataBlock
    : public TDisplayIdDataBlock<DisplayId1VendorSpecificDataBlock, DisplayIdDataBlockTypeId::VendorSpecific1,
                                 DisplayId1VendorSpecificDataBlockFields> {
public:
    static constexpr SizedShape Shape{3};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{vendorid}",
                                       U"Vendor-specific"};

    DisplayId1VendorSpecificDataBlock() = default;
    explicit DisplayId1VendorSpecificDataBlock(const DisplayId1VendorSpecificDataBlockFields& fields) {
        SetFields(fields);
    }

    static bool Accepts(const SizedPeek& peek) { return peek.plainType == TypeValue; }
    void FillTexts(TextTable& table) const { table.Set(U"{vendorid}", DescribeDisplayIdVendor(vendorId)); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        MapDisplayIdVendor(io, block.vendorId);
    }
};

struct DisplayId2VendorSpecificDataBlockFields : DisplayIdDataBlockFields {
    int vendorId = 0;
    bool operator==(const DisplayId2VendorSpecificDataBlockFields&) const = default;
};

class DisplayId2VendorSpecificDataBlock
    : public TDisplayIdDataBlock<DisplayId2VendorSpecificDataBlock, DisplayIdDataBlockTypeId::VendorSpecific2,
                                 DisplayId2VendorSpecificDataBlockFields> {
public:
    static constexpr SizedShape Shape{3};
    static constexpr TextFormat Format = DisplayId1VendorSpecificDataBlock::Format;

    DisplayId2VendorSpecificDataBlock() = default;
    explicit DisplayId2VendorSpecificDataBlock(const DisplayId2VendorSpecificDataBlockFields& fields) {
        SetFields(fields);
    }

    static bool Accepts(const SizedPeek& peek) { return peek.plainType == TypeValue; }
    void FillTexts(TextTable& table) const { table.Set(U"{vendorid}", DescribeDisplayIdVendor(vendorId)); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        MapDisplayIdVendor(io, block.vendorId);
    }
};

}  // namespace VNT
