#pragma once

#include <algorithm>

#include "model/core/flags.h"
#include "model/cta/data_block.h"
#include "model/cta/luminance.h"

namespace VNT {

struct CtaFreeSyncDataBlockFlagEnum {
    enum Enum : int { FreeSync, PanelReplay = 6 };
    static constexpr ValueText<Enum> Texts[] = {{FreeSync, "FreeSync"}, {PanelReplay, "Panel replay"}};
};

struct CtaFreeSyncDataBlockFields : CtaDataBlockFields {
    int Version = 1;
    TFlagsLsb<CtaFreeSyncDataBlockFlagEnum, 8> Flags{CtaFreeSyncDataBlockFlagEnum::FreeSync};
    int MinRefreshRate = Undefined;  // Hz
    int MaxRefreshRate = Undefined;
    int VcpCode = Undefined;
    int Flags2 = 0;
    bool RawMode = true;  // the codes lead the luminances, not the other way round
    int Profile1MaxRaw = Undefined;
    int Profile1MinRaw = Undefined;
    int Profile2MaxRaw = Undefined;
    int Profile2MinRaw = Undefined;
    Decimal Profile1MaxLuminance = Decimal::Undefined();  // cd/m²
    Decimal Profile1MinLuminance = Decimal::Undefined();
    Decimal Profile2MaxLuminance = Decimal::Undefined();
    Decimal Profile2MinLuminance = Decimal::Undefined();
    int V3MaxRefreshRate = Undefined;  // Hz
    int V3Reserved = 0;
    Decimal V3MaxPixelClock = Decimal::Undefined();  // MHz
    bool operator==(const CtaFreeSyncDataBlockFields&) const = default;
};

class CtaFreeSyncDataBlock
    : public TCtaDataBlock<CtaFreeSyncDataBlock, CtaDataBlockTypeId::FreeSync, CtaFreeSyncDataBlockFields> {
public:
    static constexpr SizedShape Shape{15, {5, 10}};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}",
                                       U"{minrefreshrate}-{actualmaxrefreshrate} Hz", U"FreeSync"};

    CtaFreeSyncDataBlock() = default;
    explicit CtaFreeSyncDataBlock(const CtaFreeSyncDataBlockFields& fields) { SetFields(fields); }

    // Brings the luminances and their codes in line.
    void Recalculate() {
        Luminance::AlignMax(RawMode, Profile1MaxRaw, Profile1MaxLuminance);
        Luminance::AlignMin(RawMode, Profile1MinRaw, Profile1MinLuminance, Profile1MaxRaw);
        Luminance::AlignMax(RawMode, Profile2MaxRaw, Profile2MaxLuminance);
        Luminance::AlignMin(RawMode, Profile2MinRaw, Profile2MinLuminance, Profile2MaxRaw);
    }
    void Normalize() { Recalculate(); }
    void NormalizeRead() { Recalculate(); }
    // A luminance that is set takes its byte even where no code can say it.
    int GetNeeded(int bytes) const { return !RawMode && HasLuminance() ? std::max(bytes, UpToProfiles) : bytes; }

    // The rate of the third version, where the block is long enough to have one.
    int GetActualMaxRefreshRate() const {
        constexpr int upToV3Rate = 12;
        return PresentLength >= upToV3Rate && V3MaxRefreshRate != Undefined ? V3MaxRefreshRate : MaxRefreshRate;
    }
    void FillTexts(TextTable& table) const {
        table.Set(U"{version}", Version);
        table.Set(U"{minrefreshrate}", MinRefreshRate);
        table.Set(U"{maxrefreshrate}", MaxRefreshRate);
        table.Set(U"{actualmaxrefreshrate}", GetActualMaxRefreshRate());
        table.Set(U"{v3maxrefreshrate}", V3MaxRefreshRate);
        table.Set(U"{v3maxpixelclock}", DecimalToText(V3MaxPixelClock, ClockDecimals));
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        constexpr Decimal kilohertz(1, ClockDecimals);
        constexpr Decimal mostClock(16777215, ClockDecimals);
        constexpr DecimalCoding clock{Decimal(), kilohertz, {{0, Decimal::Undefined()}}};
        io.Number("Version", 8, block.Version, Within({1, 255}, {0, 255}));
        io.Kept("Flags", 8, block.Flags);
        io.Number("MinRefreshRate", 8, block.MinRefreshRate, Within({1, 255}, {0, 255}));
        io.Number("MaxRefreshRate", 8, block.MaxRefreshRate, Within({1, 255}, {0, 255}));
        io.Number("VcpCode", 8, block.VcpCode, ZeroIsUndefined, WithinOrUndefined(1, 255));
        io.Kept("Flags2", 8, block.Flags2);
        Luminance::Map(io, "Profile1MaxRaw", block.Profile1MaxRaw, "Profile1MaxLuminance", block.Profile1MaxLuminance,
                       Luminance::MaxLimits);
        Luminance::Map(io, "Profile1MinRaw", block.Profile1MinRaw, "Profile1MinLuminance", block.Profile1MinLuminance,
                       Luminance::MinLimits);
        Luminance::Map(io, "Profile2MaxRaw", block.Profile2MaxRaw, "Profile2MaxLuminance", block.Profile2MaxLuminance,
                       Luminance::MaxLimits);
        Luminance::Map(io, "Profile2MinRaw", block.Profile2MinRaw, "Profile2MinLuminance", block.Profile2MinLuminance,
                       Luminance::MinLimits);
        io.Number("V3MaxRefreshRate", 10, block.V3MaxRefreshRate, ZeroIsUndefined, WithinOrUndefined(1, 1023));
        io.Number("V3Reserved", 6, block.V3Reserved, Within(0, 63));
        io.Number("V3MaxPixelClock", 24, block.V3MaxPixelClock, clock,
                  Within(DecimalLimits{kilohertz, mostClock, {}, {}, {Decimal::Undefined()}}));
    }

private:
    static constexpr int UpToProfiles = 10;
    static constexpr int ClockDecimals = 3;

    bool HasLuminance() const {
        return !Profile1MaxLuminance.IsUndefined() || !Profile1MinLuminance.IsUndefined() ||
               !Profile2MaxLuminance.IsUndefined() || !Profile2MinLuminance.IsUndefined();
    }
};

}  // namespace VNT
