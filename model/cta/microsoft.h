#pragma once

#include <algorithm>

#include "model/core/flags.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaMicrosoftDataBlockPrimaryUseCaseEnum {
    enum Enum : int {
        Test = 1,
        Generic,
        Television,
        DesktopProductivity,
        DesktopGaming,
        Presentation,
        VirtualReality,
        AugmentedReality,
        VideoWall = 16,
        MedicalImaging,
        DedicatedGaming,
        DedicatedVideoMonitor,
        Accessory,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {Test, "Test"},
        {Generic, "Generic"},
        {Television, "Television"},
        {DesktopProductivity, "Desktop productivity"},
        {DesktopGaming, "Desktop gaming"},
        {Presentation, "Presentation"},
        {VirtualReality, "Virtual reality"},
        {AugmentedReality, "Augmented reality"},
        {VideoWall, "Video wall"},
        {MedicalImaging, "Medical imaging"},
        {DedicatedGaming, "Dedicated gaming"},
        {DedicatedVideoMonitor, "Dedicated video monitor"},
        {Accessory, "Accessory"},
    };
};

struct CtaMicrosoftDataBlockFlagEnum {
    enum Enum : int { ThirdPartyUsage, DesktopUsage };
    static constexpr ValueText<Enum> Texts[] = {{DesktopUsage, "Desktop usage"},
                                                {ThirdPartyUsage, "Third-party usage"}};
};

struct CtaMicrosoftDataBlockFields : CtaDataBlockFields {
    static constexpr int ContainerIdSize = 16;

    int Version = 1;
    int PrimaryUseCase = CtaMicrosoftDataBlockPrimaryUseCaseEnum::Generic;
    TFlagsLsb<CtaMicrosoftDataBlockFlagEnum, 3> Flags;
    Bytes ContainerId = Bytes(ContainerIdSize, 0);
    bool operator==(const CtaMicrosoftDataBlockFields&) const = default;
};

class CtaMicrosoftDataBlock
    : public TCtaDataBlock<CtaMicrosoftDataBlock, CtaDataBlockTypeId::Microsoft, CtaMicrosoftDataBlockFields> {
public:
    static constexpr SizedShape Shape{18};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Microsoft"};

    CtaMicrosoftDataBlock() = default;
    explicit CtaMicrosoftDataBlock(const CtaMicrosoftDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const { table.Set(U"{containerid}", HexText(ContainerId)); }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("Version", 8, block.Version, Within({1, 255}, {0, 255}));
        io.Number("PrimaryUseCase", 5, block.PrimaryUseCase, OneOf<CtaMicrosoftDataBlockPrimaryUseCaseEnum>(32));
        io.Kept("Flags", 3, block.Flags);
        // A block that ends inside of the ID has as much of it as there is; only a whole one is sound.
        constexpr int ahead = 2;
        const int held = std::clamp(block.PresentLength - ahead, 0, ContainerIdSize);
        io.Data("ContainerId", ContainerIdSize, block.ContainerId,
                {CountLimits{ContainerIdSize, ContainerIdSize}, CountLimits{held, held}});
    }
};

}  // namespace VNT
