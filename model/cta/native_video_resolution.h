#pragma once

#include "model/cta/data_block.h"
#include "model/timing/video_code.h"

namespace VNT {

struct CtaNativeVideoResolutionDataBlockFlagEnum {
    enum Enum : int { ImageSizePresent, Millimetres = 7 };
};

struct CtaNativeVideoResolutionDataBlockFields : CtaDataBlockFields {
    CtaVideoReference Reference;
    TFlagsLsb<CtaNativeVideoResolutionDataBlockFlagEnum, 8> Flags;
    Decimal ImageWidth = Decimal::Undefined();   // mm
    Decimal ImageHeight = Decimal::Undefined();  // mm
    bool operator==(const CtaNativeVideoResolutionDataBlockFields&) const = default;
};

// The format that the display shows as it is, and the size of the picture (CTA-861-I, 7.5.17).
class CtaNativeVideoResolutionDataBlock
    : public TCtaDataBlock<CtaNativeVideoResolutionDataBlock, CtaDataBlockTypeId::NativeVideoResolution,
                           CtaNativeVideoResolutionDataBlockFields> {
public:
    static constexpr SizedShape Shape{6, {1, 2}};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{id}",
                                       U"Native video resolution"};

    CtaNativeVideoResolutionDataBlock() = default;
    explicit CtaNativeVideoResolutionDataBlock(const CtaNativeVideoResolutionDataBlockFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const { Reference.FillTexts(table); }
    // The flags follow from the image size.
    void Normalize() {
        const auto needsMillimetres = [](Decimal length) {
            return length > InTenths.max && length <= InMillimetres.max;
        };
        Flags.Set(Flag::ImageSizePresent, !ImageWidth.IsUndefined() || !ImageHeight.IsUndefined());
        Flags.Set(Flag::Millimetres, needsMillimetres(ImageWidth) || needsMillimetres(ImageHeight));
    }
    // What the image size doesn't take is theirs: the size of the whole block limits them.
    TLimitPair<CountLimits> GetExtraLimits(int) const { return CountLimits{0, AnyCtaDataBlock::MaxSize}; }
    // The image size can be given wherever there is room for it.
    ItemStatus GetAvailable(int size = AnyCtaDataBlock::MaxSize) const override {
        CtaNativeVideoResolutionDataBlock sized = *this;
        sized.Flags.Set(Flag::ImageSizePresent, true);
        return sized.GetReach(size);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("Reference", 8, block.Reference.Id, Within(0, 255));
        io.Kept("Flags", 8, block.Flags);
        if (!block.Flags.Test(Flag::ImageSizePresent)) return;
        const DecimalLimits& limits = block.Flags.Test(Flag::Millimetres) ? InMillimetres : InTenths;
        const DecimalCoding coding{Decimal(0), limits.step, {{0, Decimal::Undefined()}}};
        io.Number("ImageWidth", 16, block.ImageWidth, coding, Within(limits));
        io.Number("ImageHeight", 16, block.ImageHeight, coding, Within(limits));
    }

private:
    using Flag = CtaNativeVideoResolutionDataBlockFlagEnum;
    static constexpr DecimalLimits InTenths{
        Decimal(1, 1), Decimal(65535, 1), Decimal(1, 1), Decimal(), {Decimal::Undefined()}};
    static constexpr DecimalLimits InMillimetres{
        Decimal(1), Decimal(65535), Decimal(1), Decimal(), {Decimal::Undefined()}};
};

}  // namespace VNT
