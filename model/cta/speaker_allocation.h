#pragma once

#include "model/core/flags.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaSpeakerAllocationDataBlockSpeakerFlagEnum {
    enum Enum : int {
        FrontLeftRight,
        LowFrequencyEffects,
        FrontCenter,
        BackLeftRight,
        BackCenter,
        FrontLeftRightCenter,
        RearLeftRightCenter,
        FrontLeftRightWide,
        TopFrontLeftRight,
        TopCenter,
        TopFrontCenter,
        LeftRightSurround,
        LowFrequencyEffects2,
        TopBackCenter,
        SideLeftRight,
        TopSideLeftRight,
        TopBackLeftRight,
        BottomFrontCenter,
        BottomFrontLeftRight,
        TopLeftRightSurround,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {FrontLeftRight, "Front left/right"},
        {LowFrequencyEffects, "Low frequency effects"},
        {FrontCenter, "Front center"},
        {BackLeftRight, "Back left/right"},
        {BackCenter, "Back center"},
        {FrontLeftRightCenter, "Front left/right center"},
        {RearLeftRightCenter, "Rear left/right center"},
        {FrontLeftRightWide, "Front left/right wide"},
        {TopFrontLeftRight, "Top front left/right"},
        {TopCenter, "Top center"},
        {TopFrontCenter, "Top front center"},
        {LeftRightSurround, "Left/right surround"},
        {LowFrequencyEffects2, "Low frequency effects 2"},
        {TopBackCenter, "Top back center"},
        {SideLeftRight, "Side left/right"},
        {TopSideLeftRight, "Top side left/right"},
        {TopBackLeftRight, "Top back left/right"},
        {BottomFrontCenter, "Bottom front center"},
        {BottomFrontLeftRight, "Bottom front left/right"},
        {TopLeftRightSurround, "Top left/right surround"},
    };
};

using CtaSpeakers = TFlagsLsb<CtaSpeakerAllocationDataBlockSpeakerFlagEnum, 24>;

// Sets of speakers with a name.
struct CtaSpeakerAllocationDataBlockPresetEnum {
    enum Enum : int { Stereo, Surround51, OldSurround51, Surround71, OldSurround71, SystemH, Other };
    static constexpr ValueText<Enum> Texts[] = {
        {Stereo, "Stereo"},
        {Surround51, "5.1 surround"},
        {OldSurround51, "5.1 surround (old)"},
        {Surround71, "7.1 surround"},
        {OldSurround71, "7.1 surround (old)"},
        {SystemH, "22.2 System H"},
        {Other, "Other"},
    };
    // The one that has the same speakers.
    static Enum Find(const CtaSpeakers& speakers);
    // Takes the preset's speakers, and keeps the bits that stand for none. `Other` changes nothing.
    static void Apply(Enum preset, CtaSpeakers& speakers);
};

struct CtaSpeakerAllocationDataBlockFields : CtaDataBlockFields {
    CtaSpeakers Speakers;
    bool operator==(const CtaSpeakerAllocationDataBlockFields&) const = default;
};

// CTA-861-I, 7.5.3.
class CtaSpeakerAllocationDataBlock
    : public TCtaDataBlock<CtaSpeakerAllocationDataBlock, CtaDataBlockTypeId::SpeakerAllocation,
                           CtaSpeakerAllocationDataBlockFields> {
public:
    static constexpr SizedShape Shape{3};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Speaker allocation"};

    CtaSpeakerAllocationDataBlock() = default;
    explicit CtaSpeakerAllocationDataBlock(const CtaSpeakerAllocationDataBlockFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Kept("Speakers", 24, block.Speakers);
    }
};

}  // namespace VNT
