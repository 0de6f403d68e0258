#pragma once

#include <algorithm>

#include "model/core/flags.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaHdmi2DataBlockFlagEnum {
    enum Enum : int {
        OsdDisparity3d,
        DualView,
        IndependentView,
        ScrambleBelow340,
        ContentBpc,
        CableStatus,
        ReadRequest,
        Scdc,
        Ycc420Depth30,
        Ycc420Depth36,
        Ycc420Depth48,
        UhdVic,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {Scdc, "SCDC present"},
        {ReadRequest, "Read request capable"},
        {CableStatus, "Cable status"},
        {ContentBpc, "Content bpc indication"},
        {ScrambleBelow340, "<= 340 Mcsc scramble"},
        {UhdVic, "UHD VIC"},
    };
    static constexpr ValueText<Enum> StereoTexts[] = {
        {IndependentView, "Independent view"}, {DualView, "Dual view"}, {OsdDisparity3d, "3D OSD disparity"}};
    static constexpr ValueText<Enum> DepthTexts[] = {
        {Ycc420Depth30, "30-bit (10 bpc)"}, {Ycc420Depth36, "36-bit (12 bpc)"}, {Ycc420Depth48, "48-bit (16 bpc)"}};
};

struct CtaHdmi2DataBlockFlag2Enum {
    enum Enum : int {
        FapaStart,
        AutoLowLatency,
        FastVactive,
        NegativeMvrr,
        CinemaVrr,
        Mdelta,
        QuickMediaSwitching,
        FapaEndExtended,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {FapaStart, "FAPA start location"},
        {AutoLowLatency, "Auto low latency mode"},
        {FastVactive, "Fast Vactive"},
        {NegativeMvrr, "Negative Mvrr"},
        {CinemaVrr, "Cinema VRR"},
        {Mdelta, "Mdelta"},
        {QuickMediaSwitching, "Quick media switching"},
        {FapaEndExtended, "FAPA end extended"},
    };
};

struct CtaHdmi2DataBlockFlag3Enum {
    enum Enum : int { Depth30, Depth36, Depth48, AllBpp, TfrMin, TfrMax, Ycc420, Dsc };
    static constexpr ValueText<Enum> QmsTexts[] = {{TfrMin, "TFRmin"}, {TfrMax, "TFRmax"}};
    static constexpr ValueText<Enum> DscTexts[] = {{Dsc, "DSC 1.2a"}, {Ycc420, "YCbCr 4:2:0"}, {AllBpp, "All bpp"}};
    static constexpr ValueText<Enum> DepthTexts[] = {
        {Depth30, "30-bit (10 bpc)"}, {Depth36, "36-bit (12 bpc)"}, {Depth48, "48-bit (16 bpc)"}};
};

// The fixed rate links, also of compressed video.
struct CtaHdmi2DataBlockMaxFrlRateEnum {
    enum Enum : int { NotSupported, Rate9, Rate18, Rate24, Rate32, Rate40, Rate48 };
    static constexpr ValueText<Enum> Texts[] = {
        {NotSupported, "Not supported"},    {Rate9, "9 Gbps (3 x 3 lanes)"},   {Rate18, "18 Gbps (6 x 3 lanes)"},
        {Rate24, "24 Gbps (6 x 4 lanes)"},  {Rate32, "32 Gbps (8 x 4 lanes)"}, {Rate40, "40 Gbps (10 x 4 lanes)"},
        {Rate48, "48 Gbps (12 x 4 lanes)"},
    };
    static constexpr ValueText<Enum> DscTexts[] = {
        {NotSupported, "DSC not supported"}, Texts[1], Texts[2], Texts[3], Texts[4], Texts[5], Texts[6]};
};

struct CtaHdmi2DataBlockDscMaxSlicesEnum {
    enum Enum : int { NotSupported, One, Two, Four, Eight, EightAt400, TwelveAt400, SixteenAt400 };
    static constexpr ValueText<Enum> Texts[] = {
        {NotSupported, "DSC not supported"},      {One, "1 slice up to 340 MHz"},
        {Two, "2 slices up to 340 MHz"},          {Four, "4 slices up to 340 MHz"},
        {Eight, "8 slices up to 340 MHz"},        {EightAt400, "8 slices up to 400 MHz"},
        {TwelveAt400, "12 slices up to 400 MHz"}, {SixteenAt400, "16 slices up to 400 MHz"},
    };
};

struct CtaHdmi2DataBlockFields : CtaDataBlockFields {
    using FrlRate = CtaHdmi2DataBlockMaxFrlRateEnum;
    using Slices = CtaHdmi2DataBlockDscMaxSlicesEnum;

    int Version = 1;
    int MaxTmdsCharacterRate = Undefined;  // Mcsc
    TFlagsLsb<CtaHdmi2DataBlockFlagEnum, 12> Flags;
    FrlRate::Enum MaxFrlRate = FrlRate::NotSupported;
    TFlagsLsb<CtaHdmi2DataBlockFlag2Enum, 8> Flags2;
    int VrrMin = Undefined;  // Hz
    int VrrMax = Undefined;  // Hz
    TFlagsLsb<CtaHdmi2DataBlockFlag3Enum, 8> Flags3;
    Slices::Enum DscMaxSlices = Slices::NotSupported;
    FrlRate::Enum DscMaxFrlRate = FrlRate::NotSupported;
    int DscTotalChunkSize = Undefined;  // KiB
    int Reserved = 0;
    bool operator==(const CtaHdmi2DataBlockFields&) const = default;
};

// The vendor-specific data block of the HDMI Forum (HDMI 2.1, 10.3.2).
class CtaHdmi2DataBlock : public TCtaDataBlock<CtaHdmi2DataBlock, CtaDataBlockTypeId::Hdmi2, CtaHdmi2DataBlockFields> {
public:
    static constexpr SizedShape Shape{10, {4, 5, 6, 7, 8, 9}};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"HDMI v2"};

    CtaHdmi2DataBlock() = default;
    explicit CtaHdmi2DataBlock(const CtaHdmi2DataBlockFields& fields) { SetFields(fields); }

    // The lower bits of a maximum may all be 0, and take their byte even so.
    int GetNeeded(int bytes) const {
        constexpr int upToVrrMax = 7;
        return VrrMax != Undefined ? std::max(bytes, upToVrrMax) : bytes;
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        constexpr ValueCoding characterRate{0, 5, {{0, Undefined}}};
        constexpr ValueCoding rate{0, 1, {{0, Undefined}}};
        constexpr ValueCoding chunks{1, 1, {{0, Undefined}}};
        constexpr TFew<int> none{Undefined};
        constexpr auto nibble = Within(0, 15);
        io.Number("Version", 8, block.Version, Within({1, 255}, {0, 255}));
        io.Number("MaxTmdsCharacterRate", 8, block.MaxTmdsCharacterRate, characterRate,
                  Within({345, 1275, 5, 0, none}, {5, 1275, 5, 0, none}));
        io.Kept("Flags", 12, block.Flags);
        io.Number("MaxFrlRate", 4, block.MaxFrlRate, nibble);
        io.Kept("Flags2", 8, block.Flags2);
        io.Number("VrrMin", {{9, 0, 6}}, block.VrrMin, rate, TLimitPair(ValueLimits{1, 63, 0, 0, none}));
        io.Number("VrrMax", {{10, 0, 8}, {9, 6, 2}}, block.VrrMax, rate,
                  Within({100, 1023, 0, 0, none}, {1, 1023, 0, 0, none}));
        io.Kept("Flags3", {{11, 0, 8}}, block.Flags3);
        io.Number("DscMaxSlices", 4, block.DscMaxSlices, nibble);
        io.Number("DscMaxFrlRate", 4, block.DscMaxFrlRate, nibble);
        io.Number("DscTotalChunkSize", 6, block.DscTotalChunkSize, chunks, TLimitPair(ValueLimits{2, 64, 0, 0, none}));
        io.Number("Reserved", 2, block.Reserved, Within(0, 3));
    }
};

}  // namespace VNT
