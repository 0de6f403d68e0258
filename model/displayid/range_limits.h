#pragma once

#include "model/core/flags.h"
#include "model/displayid/data_block.h"

namespace VNT {

// The two clocks of 24 bits that range limits begin with, in units of 10^(-decimals) MHz and stored less one. Neither
// passes the other, as far as that is a clock at all.
template <int decimals, class IO>
void MapPixelClocks(IO& io, auto& block) {
    constexpr std::int64_t most = 16777216;
    constexpr Decimal unit(1, decimals);
    constexpr DecimalCoding coding{unit, unit, {}};
    constexpr DecimalLimits all{unit, Decimal(most, decimals), unit, Decimal(), {}};
    DecimalLimits upTo = all, from = all;
    if (all.Contains(block.maxPixelClock)) upTo.max = block.maxPixelClock;
    if (all.Contains(block.minPixelClock)) from.min = block.minPixelClock;
    io.Number("minPixelClock", 24, block.minPixelClock, coding, TLimitPair(upTo, all));
    io.Number("maxPixelClock", 24, block.maxPixelClock, coding, TLimitPair(from, all));
}

struct DisplayId1RangeLimitsDataBlockFlagEnum {
    enum Enum : int { Interlaced, CvtStandard, CvtReduced, DiscreteFrequency };
    static constexpr ValueText<Enum> Texts[] = {{Interlaced, "Interlaced"},
                                                {CvtStandard, "CVT standard"},
                                                {CvtReduced, "CVT reduced"},
                                                {DiscreteFrequency, "Discrete frequency"}};
};

struct DisplayId1RangeLimitsDataBlockFields : DisplayIdDataBlockFields {
    Decimal minPixelClock{1, 2};  // MHz
    Decimal maxPixelClock{1, 2};  // MHz
    int minHRate = 0;             // kHz
    int maxHRate = 0;             // kHz
    int minHBlank = 0;            // pixels
    int minVRate = 0;             // Hz
    int maxVRate = 0;             // Hz
    int minVBlank = 0;            // lines
    TFlagsMsb<DisplayId1RangeLimitsDataBlockFlagEnum, 8> limitFlags;
    bool operator==(const DisplayId1RangeLimitsDataBlockFields&) const = default;
};

// The timings that a display takes (DisplayID 1.3, 4.9).
class DisplayId1RangeLimitsDataBlock
    : public TDisplayIdDataBlock<DisplayId1RangeLimitsDataBlock, DisplayIdDataBlockTypeId::RangeLimits1,
                                 DisplayId1RangeLimitsDataBlockFields> {
public:
    static constexpr SizedShape Shape{15};
    static constexpr TextFormat Format{
        U"{type}: {description}", U"{type}: {description}",
        U"{minpixelclock}-{maxpixelclock} MHz, {minhrate}-{maxhrate} kHz, {minvrate}-{maxvrate} Hz", U"Range limits"};

    DisplayId1RangeLimitsDataBlock() = default;
    explicit DisplayId1RangeLimitsDataBlock(const DisplayId1RangeLimitsDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{minpixelclock}", DecimalToText(minPixelClock, ClockDecimals));
        table.Set(U"{maxpixelclock}", DecimalToText(maxPixelClock, ClockDecimals));
        table.Set(U"{minhrate}", minHRate);
        table.Set(U"{maxhrate}", maxHRate);
        table.Set(U"{minvrate}", minVRate);
        table.Set(U"{maxvrate}", maxVRate);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        MapPixelClocks<ClockDecimals>(io, block);
        io.Number("minHRate", 8, block.minHRate, Within(0, 255));
        io.Number("maxHRate", 8, block.maxHRate, Within(0, 255));
        io.Number("minHBlank", 16, block.minHBlank, Within(0, 65535));
        io.Number("minVRate", 8, block.minVRate, Within(0, 255));
        io.Number("maxVRate", 8, block.maxVRate, Within(0, 255));
        io.Number("minVBlank", 16, block.minVBlank, Within(0, 65535));
        io.Kept("limitFlags", 8, block.limitFlags);
    }

private:
    static constexpr int ClockDecimals = 2;
};

struct DisplayId2RangeLimitsDataBlockFlagEnum {
    enum Enum : int { VariableRefreshRate };
    static constexpr ValueText<Enum> Texts[] = {{VariableRefreshRate, "Variable refresh rate"}};
};

struct DisplayId2RangeLimitsDataBlockFields : DisplayIdDataBlockFields {
    Decimal minPixelClock{1, 3};  // MHz
    Decimal maxPixelClock{1, 3};  // MHz
    int minVRate = 0;             // Hz
    int maxVRate = 0;             // Hz
    TFlagsMsb<DisplayId2RangeLimitsDataBlockFlagEnum, 6> rangeFlags;
    bool operator==(const DisplayId2RangeLimitsDataBlockFields&) const = default;
};

// DisplayID 2.1, 4.4.
class DisplayId2RangeLimitsDataBlock
    : public TDisplayIdDataBlock<DisplayId2RangeLimitsDataBlock, DisplayIdDataBlockTypeId::RangeLimits2,
                                 DisplayId2RangeLimitsDataBlockFields> {
public:
    static constexpr SizedShape Shape{9};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{minpixelclock}-{maxpixelclock} MHz, {minrefreshrate}-{maxrefreshrate} Hz",
                                       U"Range limits"};

    DisplayId2RangeLimitsDataBlock() = default;
    explicit DisplayId2RangeLimitsDataBlock(const DisplayId2RangeLimitsDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{minpixelclock}", DecimalToText(minPixelClock, ClockDecimals));
        table.Set(U"{maxpixelclock}", DecimalToText(maxPixelClock, ClockDecimals));
        table.Set(U"{minrefreshrate}", minVRate);
        table.Set(U"{maxrefreshrate}", maxVRate);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        MapPixelClocks<ClockDecimals>(io, block);
        io.Number("minVRate", 8, block.minVRate, Within(0, 255));
        // The two highest bits came with the first revision.
        io.Number("maxVRate", 10, block.maxVRate, Within({0, block.revision == 0 ? 255 : 1023}, {0, 1023}));
        io.Kept("rangeFlags", 6, block.rangeFlags);
    }

private:
    static constexpr int ClockDecimals = 3;
};

}  // namespace VNT
