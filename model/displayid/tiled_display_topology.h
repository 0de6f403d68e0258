#pragma once

#include "model/core/flags.h"
#include "model/displayid/data_block.h"
#include "model/displayid/vendor_id.h"

namespace VNT {

struct DisplayId1TiledDisplayTopologyDataBlockSingleTileBehaviorEnum {
    enum Enum : int { Other, AtLocation, Scaled, Cloned };
    static constexpr int Carried = 8;  // the values of the bits
    static constexpr ValueText<Enum> Texts[] = {{AtLocation, "Displayed at location"},
                                                {Scaled, "Scaled to fit display"},
                                                {Cloned, "Cloned to other tiles"},
                                                {Other, "Other"}};
};

struct DisplayId1TiledDisplayTopologyDataBlockMultipleTileBehaviorEnum {
    enum Enum : int { Other, AtLocation };
    static constexpr int Carried = 4;
    static constexpr ValueText<Enum> Texts[] = {{AtLocation, "Displayed at location"}, {Other, "Other"}};
};

struct DisplayId1TiledDisplayTopologyDataBlockEnclosuresEnum {
    enum Enum : int { Multiple, Single };
    static constexpr int Carried = 2;
    static constexpr ValueText<Enum> Texts[] = {{Single, "Single"}, {Multiple, "Multiple"}};
};

struct DisplayIdTiledDisplayTopologyFields : DisplayIdDataBlockFields {
    using SingleTile = DisplayId1TiledDisplayTopologyDataBlockSingleTileBehaviorEnum;
    using MultipleTile = DisplayId1TiledDisplayTopologyDataBlockMultipleTileBehaviorEnum;
    using Enclosures = DisplayId1TiledDisplayTopologyDataBlockEnclosuresEnum;

    SingleTile::Enum singleTileBehavior = SingleTile::Other;
    MultipleTile::Enum multipleTileBehavior = MultipleTile::Other;
    int reservedBits = 0;
    Enclosures::Enum enclosures = Enclosures::Multiple;
    int hTileCount = 1;
    int vTileCount = 1;
    int hTileLocation = 1;
    int vTileLocation = 1;
    int hTileResolution = 1;  // pixels
    int vTileResolution = 1;  // lines
    int pixelMultiplier = 0;
    int bezelTop = 0;
    int bezelBottom = 0;
    int bezelRight = 0;
    int bezelLeft = 0;
    int productId = 0;
    std::int64_t serialNumber = Undefined;
    bool operator==(const DisplayIdTiledDisplayTopologyFields&) const = default;
};

// A display of which this one is a tile (DisplayID 1.3, 4.14; 2.1, 4.7).
template <class X, DisplayIdDataBlockTypeId::Enum id, class Fields>
class TDisplayIdTiledDisplayTopologyDataBlock : public TDisplayIdDataBlock<X, id, Fields> {
public:
    static constexpr SizedShape Shape{22};
    static constexpr TextFormat Format{
        U"{type}: {description}", U"{type}: {description}",
        U"{htileresolution}x{vtileresolution} ({htilecount}x{vtilecount}) @ ({htilelocation}, {vtilelocation})",
        U"Tiled display topology"};

    void FillTexts(TextTable& table) const {
        table.Set(U"{htileresolution}", this->hTileResolution);
        table.Set(U"{vtileresolution}", this->vTileResolution);
        table.Set(U"{htilecount}", this->hTileCount);
        table.Set(U"{vtilecount}", this->vTileCount);
        table.Set(U"{htilelocation}", this->hTileLocation);
        table.Set(U"{vtilelocation}", this->vTileLocation);
        table.Set(U"{serialnumber}", this->serialNumber);
        table.Set(U"{serialnumbertext}", this->serialNumber == Undefined ? U"no serial number" : U"{serialnumber}");
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        constexpr ValueCoding lessOne{1, 1, {}};
        const auto tiles = Within(1, 64), lines = Within(1, 65536);
        io.Number("singleTileBehavior", 3, block.singleTileBehavior,
                  OneOf<typename Fields::SingleTile>(Fields::SingleTile::Carried));
        io.Number("multipleTileBehavior", 2, block.multipleTileBehavior,
                  OneOf<typename Fields::MultipleTile>(Fields::MultipleTile::Carried));
        io.Kept("reservedBits", 2, block.reservedBits);
        io.Number("enclosures", 1, block.enclosures, OneOf<typename Fields::Enclosures>(Fields::Enclosures::Carried));
        // Two bits each of counts and location stand behind their four lower ones.
        io.Number("hTileCount", {{4, 4, 4}, {6, 6, 2}}, block.hTileCount, lessOne, tiles);
        io.Number("vTileCount", {{4, 0, 4}, {6, 4, 2}}, block.vTileCount, lessOne, tiles);
        io.Number("hTileLocation", {{5, 4, 4}, {6, 2, 2}}, block.hTileLocation, lessOne, tiles);
        io.Number("vTileLocation", {{5, 0, 4}, {6, 0, 2}}, block.vTileLocation, lessOne, tiles);
        io.Number("hTileResolution", {{7, 0, 16}}, block.hTileResolution, lessOne, lines);
        io.Number("vTileResolution", 16, block.vTileResolution, lessOne, lines);
        io.Number("pixelMultiplier", 8, block.pixelMultiplier, Within(0, 255));
        io.Number("bezelTop", 8, block.bezelTop, Within(0, 255));
        io.Number("bezelBottom", 8, block.bezelBottom, Within(0, 255));
        io.Number("bezelRight", 8, block.bezelRight, Within(0, 255));
        io.Number("bezelLeft", 8, block.bezelLeft, Within(0, 255));
        MapDisplayIdVendor(io, block.vendorId);
        io.Number("productId", 16, block.productId, Within(0, 65535));
        io.Number("serialNumber", 32, block.serialNumber, LongCoding{0, 1, {{0, Undefined}}},
                  Within(LongLimits{1, 4294967295, 0, 0, {Undefined}}));
    }
};

struct DisplayId1TiledDisplayTopologyDataBlockFields : DisplayIdTiledDisplayTopologyFields {
    String vendorId = U"PNP";
    bool operator==(const DisplayId1TiledDisplayTopologyDataBlockFields&) const = default;
};

class DisplayId1TiledDisplayTopologyDataBlock
    : public TDisplayIdTiledDisplayTopologyDataBlock<DisplayId1TiledDisplayTopologyDataBlock,
                                                     DisplayIdDataBlockTypeId::TiledDisplayTopology1,
                                                     DisplayId1TiledDisplayTopologyDataBlockFields> {
public:
    DisplayId1TiledDisplayTopologyDataBlock() = default;
    explicit DisplayId1TiledDisplayTopologyDataBlock(const DisplayId1TiledDisplayTopologyDataBlockFields& fields) {
        SetFields(fields);
    }
};

struct DisplayId2TiledDisplayTopologyDataBlockFields : DisplayIdTiledDisplayTopologyFields {
    int vendorId = 0;
    bool operator==(const DisplayId2TiledDisplayTopologyDataBlockFields&) const = default;
};

class DisplayId2TiledDisplayTopologyDataBlock
    : public TDisplayIdTiledDisplayTopologyDataBlock<DisplayId2TiledDisplayTopologyDataBlock,
                                                     DisplayIdDataBlockTypeId::TiledDisplayTopology2,
                                                     DisplayId2TiledDisplayTopologyDataBlockFields> {
public:
    DisplayId2TiledDisplayTopologyDataBlock() = default;
    explicit DisplayId2TiledDisplayTopologyDataBlock(const DisplayId2TiledDisplayTopologyDataBlockFields& fields) {
        SetFields(fields);
    }
};

}  // namespace VNT
