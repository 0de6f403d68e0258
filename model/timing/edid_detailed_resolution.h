#pragma once

#include "model/timing/detailed_resolution_item.h"
#include "model/timing/edid_descriptor.h"

namespace VNT {

struct EdidDetailedResolutionStereoEnum {
    enum Enum : int {
        None,
        NoneDeTimingOnly,
        FieldSequentialRight,
        TwoWayInterleavedRight,
        FieldSequentialLeft,
        TwoWayInterleavedLeft,
        FourWayInterleaved,
        SideBySide,
    };
    static constexpr int Count = SideBySide + 1;
    static constexpr ValueText<Enum> Texts[] = {
        {None, "None"},
        {NoneDeTimingOnly, "None (DE-timing only)"},
        {FieldSequentialRight, "Field sequential (right)"},
        {FieldSequentialLeft, "Field sequential (left)"},
        {TwoWayInterleavedRight, "2-way interleaved (right)"},
        {TwoWayInterleavedLeft, "2-way interleaved (left)"},
        {FourWayInterleaved, "4-way interleaved"},
        {SideBySide, "Side-by-side"},
    };
};

struct EdidDetailedResolutionSyncTypeEnum {
    enum Enum : int { AnalogComposite, BipolarAnalogComposite, DigitalComposite, DigitalSeparate };
    static constexpr int Count = DigitalSeparate + 1;
    static constexpr ValueText<Enum> Texts[] = {
        {AnalogComposite, "Analog composite"},
        {BipolarAnalogComposite, "Bipolar analog composite"},
        {DigitalComposite, "Digital composite"},
        {DigitalSeparate, "Digital separate"},
    };
};

struct EdidDetailedResolutionSyncOnEnum {
    enum Enum : int { Green, Rgb };
    static constexpr int Count = Rgb + 1;
    static constexpr ValueText<Enum> Texts[] = {{Green, "Green"}, {Rgb, "RGB"}};
};

struct EdidDetailedResolutionFields : DetailedResolutionFields {
    int imageWidth = Undefined;   // mm
    int imageHeight = Undefined;  // mm
    int hborder = 0;              // pixels on each side
    int vborder = 0;              // lines of a frame on each side
    EdidDetailedResolutionStereoEnum::Enum stereo = EdidDetailedResolutionStereoEnum::None;
    EdidDetailedResolutionSyncTypeEnum::Enum syncType = EdidDetailedResolutionSyncTypeEnum::DigitalSeparate;
    EdidDetailedResolutionSyncOnEnum::Enum syncOn = EdidDetailedResolutionSyncOnEnum::Green;
    bool serrations = false;
    bool operator==(const EdidDetailedResolutionFields&) const = default;
};

class EdidDetailedResolution;
namespace Detail {
using EdidDetailedAsResolution = TCommonType<EdidDetailedResolution, ResolutionTypeEnum::Enum,
                                             ResolutionTypeEnum::EdidDetailed, AnyResolution, AnyDetailedResolution>;
using EdidDetailedAsDescriptor =
    TCommonType<EdidDetailedResolution, EdidDescriptorTypeId::Enum, EdidDescriptorTypeId::DetailedResolution,
                AnyEdidDescriptor, AnyEdidDescriptor>;
}  // namespace Detail

// The detailed timing of E-EDID, 18 bytes: a resolution and a descriptor at once.
class EdidDetailedResolution
    : public TDetailedResolution<EdidDetailedResolution, EdidDetailedResolutionFields, AnyEdidDescriptor::FrameSize,
                                 Detail::EdidDetailedAsResolution, Detail::EdidDetailedAsDescriptor> {
public:
    static constexpr DetailedResolutionTextFormat Format{U"{description}", U"EDID detailed", 2};

    // Called by the class's own name these are the descriptor's; each family reaches its own through its base.
    using Detail::EdidDetailedAsDescriptor::Assign;
    using Detail::EdidDetailedAsDescriptor::Clone;
    using Detail::EdidDetailedAsDescriptor::Get;
    using Detail::EdidDetailedAsDescriptor::GetType;
    using Detail::EdidDetailedAsDescriptor::TypeValue;
    using Detail::EdidDetailedAsResolution::Assign;

    EdidDetailedResolution() = default;
    // Calculates. Of a mode but Manual the sync is digital separate.
    explicit EdidDetailedResolution(const EdidDetailedResolutionFields& fields);

    bool Read(ByteRange range) override;
    bool Write(ByteRange range) const override;

    DetailedResolutionLimits GetLimits() const;
    DetailedResolutionLimits GetAllLimits() const;
    ItemStatus GetAvailable() const;
    void FillTexts(TextTable& table) const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        const DetailedResolutionLimits sound = io.Tested([&item] { return item.GetLimits(); });
        const DetailedResolutionLimits carried = io.Tested([&item] { return item.GetAllLimits(); });
        const TimingAxisLimits &h = sound.horizontal, &hAll = carried.horizontal;
        const TimingAxisLimits &v = sound.vertical, &vAll = carried.vertical;
        io.Kept("interlaced", {{17, 7, 1}}, item.interlaced);
        // The bytes count the lines of a field, the record those of a frame, with the half line of each field.
        const int grain = item.interlaced ? 2 : 1;
        const ValueCoding lines{0, grain, {}};
        const ValueCoding blankLines{grain - 1, grain, {}};
        io.Number("pixelclock", {{0, 0, 16}}, item.actualpixelclock, ClockCoding,
                  TLimitPair(sound.pixelclock, carried.pixelclock));
        io.Number("hactive", {{2, 0, 8}, {4, 4, 4}}, item.hactive, TLimitPair(h.active, hAll.active));
        io.Number("hblank", {{3, 0, 8}, {4, 0, 4}}, item.hblank, TLimitPair(h.blank, hAll.blank));
        io.Number("vactive", {{5, 0, 8}, {7, 4, 4}}, item.vactive, lines, TLimitPair(v.active, vAll.active));
        io.Number("vblank", {{6, 0, 8}, {7, 0, 4}}, item.vblank, blankLines, TLimitPair(v.blank, vAll.blank));
        io.Number("hfront", {{8, 0, 8}, {11, 6, 2}}, item.hfront, TLimitPair(h.front, hAll.front));
        io.Number("hsync", {{9, 0, 8}, {11, 4, 2}}, item.hsync, TLimitPair(h.sync, hAll.sync));
        io.Number("vfront", {{10, 4, 4}, {11, 2, 2}}, item.vfront, lines, TLimitPair(v.front, vAll.front));
        io.Number("vsync", {{10, 0, 4}, {11, 0, 2}}, item.vsync, lines, TLimitPair(v.sync, vAll.sync));
        io.Number("imageWidth", {{12, 0, 8}, {14, 4, 4}}, item.imageWidth, ZeroIsUndefined, ImageLimits);
        io.Number("imageHeight", {{13, 0, 8}, {14, 0, 4}}, item.imageHeight, ZeroIsUndefined, ImageLimits);
        io.Number("hborder", {{15, 0, 8}}, item.hborder,
                  io.Tested([&] { return BorderLimits(item.hactive, h.active, 1); }));
        io.Number("vborder", {{16, 0, 8}}, item.vborder, lines,
                  io.Tested([&] { return BorderLimits(item.vactive, v.active, grain); }));
        io.Number("stereo", {{17, 0, 1}, {17, 5, 2}}, item.stereo,
                  OneOf<EdidDetailedResolutionStereoEnum>(EdidDetailedResolutionStereoEnum::Count));
        io.Number("syncType", {{17, 3, 2}}, item.syncType,
                  OneOf<EdidDetailedResolutionSyncTypeEnum>(EdidDetailedResolutionSyncTypeEnum::Count));
        MapSync(io, item);
        MapBeyondBytes(io, item, sound, carried);
    }

private:
    friend TDetailedResolution;

    static constexpr DecimalCoding ClockCoding{Decimal(), Decimal(1, 2), {}};
    static constexpr TLimitPair<ValueLimits> ImageLimits = WithinOrUndefined(1, 4095);
    static constexpr BitPlace SyncBitA{{17, 1, 1}};
    static constexpr BitPlace SyncBitB{{17, 2, 1}};

    // What the two sync bits mean hangs on the sync type; what it doesn't use is 0.
    template <class IO>
    static void MapSync(IO& io, auto& item) {
        const auto syncOnLimits = OneOf<EdidDetailedResolutionSyncOnEnum>(EdidDetailedResolutionSyncOnEnum::Count);
        switch (item.syncType) {
            case EdidDetailedResolutionSyncTypeEnum::AnalogComposite:
            case EdidDetailedResolutionSyncTypeEnum::BipolarAnalogComposite:
                io.Number("syncOn", SyncBitA, item.syncOn, syncOnLimits);
                io.Kept("serrations", SyncBitB, item.serrations);
                break;
            case EdidDetailedResolutionSyncTypeEnum::DigitalComposite:
                io.Kept("hpolarity", SyncBitA, item.hpolarity);
                io.Kept("serrations", SyncBitB, item.serrations);
                break;
            default:
                io.Kept("hpolarity", SyncBitA, item.hpolarity);
                io.Kept("vpolarity", SyncBitB, item.vpolarity);
        }
    }
    static TLimitPair<ValueLimits> BorderLimits(int active, const ValueLimits& activeLimits, int grain);

    void Settle();
};

// It is made in this room, though it is among the kinds of a higher one.
extern template struct TLayout<EdidDetailedResolution>;

}  // namespace VNT
