#pragma once

#include "model/edid/extension_block.h"
#include "model/timing/cvt_resolution.h"
#include "model/timing/edid_detailed_resolution.h"
#include "model/timing/standard_resolution.h"

namespace VNT {

using EdidDetailedResolutionList = TSlotList<EdidDetailedResolution, 18>;

struct EdidVtbExtensionBlockFields {
    int version = 1;
    EdidDetailedResolutionList detailed;
    EdidCvtResolutionList cvtResolutions;
    EdidStandardResolutionList standardResolutions;
    bool operator==(const EdidVtbExtensionBlockFields&) const = default;
};

struct EdidVtbExtensionBlockAllFields : EdidVtbExtensionBlockFields {
    int detailedCount = 0;
    int cvtCount = 0;
    int standardCount = 0;
    Bytes detailedPadding;
    Bytes cvtPadding;
    Bytes standardPadding;
    Bytes tail = Bytes(122, 0);
    int checksum = 0xEF;  // that of a block without content
    bool operator==(const EdidVtbExtensionBlockAllFields&) const = default;
};

// The video timing block extension (VESA VTB-EXT 1): more timings of the three codings of the base block.
class EdidVtbExtensionBlock : public TEdidExtensionBlock<EdidVtbExtensionBlock, EdidExtensionBlockTypeId::Vtb,
                                                         EdidVtbExtensionBlockFields, EdidVtbExtensionBlockAllFields> {
public:
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{detailedcounttext}, {cvtcounttext}, {standardcounttext}", U"VTB-EXT"};

    EdidVtbExtensionBlock() = default;
    explicit EdidVtbExtensionBlock(const EdidVtbExtensionBlockFields& fields) { SetFields(fields); }

    void Normalize();
    void FillTexts(TextTable& table) const;

    // What the other lists and all paddings leave to one of the three.
    template <class List>
    SlotListLimits GetLimitsOf(const List& list) const {
        return SlotListLimits::FromBytes(GetTailSize() + list.GetSize(), List::SlotBytes);
    }

    template <class IO>
    static void Map(IO& io, auto& block) {
        io.Constant(8, EdidExtensionBlockTypeId::Vtb);
        io.Number("version", 8, block.version, Within({1, 255}, {0, 255}));
        MapCount(io, "detailedCount", block.detailedCount, block.detailed);
        MapCount(io, "cvtCount", block.cvtCount, block.cvtResolutions);
        MapCount(io, "standardCount", block.standardCount, block.standardResolutions);
        io.Area(BodyBytes, [&block](auto& body) {
            MapList(body, block, "detailed", block.detailedCount, block.detailed, "detailedPadding",
                    block.detailedPadding);
            MapList(body, block, "cvtResolutions", block.cvtCount, block.cvtResolutions, "cvtPadding",
                    block.cvtPadding);
            MapList(body, block, "standardResolutions", block.standardCount, block.standardResolutions,
                    "standardPadding", block.standardPadding);
            body.Rest("tail", block.tail, Zeros(body, block.tail, block.GetTailSize()));
        });
        MapChecksum(io, block.checksum);
    }

private:
    static constexpr int BodyBytes = 122;

    int GetTailSize() const {
        return BodyBytes - detailed.GetSize() - detailedPadding.Size() - cvtResolutions.GetSize() - cvtPadding.Size() -
               standardResolutions.GetSize() - standardPadding.Size();
    }
    template <class IO>
    static void MapCount(IO& io, const char* name, auto& count, const auto& list) {
        // Looked at when the list has been read.
        io.Number(name, 8, count, Within(list.GetCount(), list.GetCount()));
    }
    // `count` slots, or those that there is room for.
    template <class IO>
    static void MapList(IO& body, const auto& block, const char* name, int count, auto& list, const char* paddingName,
                        auto& padding) {
        body.Area(count * std::remove_cvref_t<decltype(list)>::SlotBytes, [&](auto& slots) {
            slots.List(name, list, TLimitPair(block.GetLimitsOf(list)));
            const int room = std::max(0, block.GetTailSize() + padding.Size());
            slots.Rest(paddingName, padding, {CountLimits{0, 0}, CountLimits{0, room}});
        });
    }
};

}  // namespace VNT
