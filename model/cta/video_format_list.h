#pragma once

#include "model/cta/data_block.h"
#include "model/timing/video_format_resolution.h"

namespace VNT {

struct CtaVideoFormatResolutionListDataBlockFlagEnum {
    enum Enum : int { Ntsc = 4, Ycc420 = 5 };
    static constexpr ValueText<Enum> Texts[] = {{Ycc420, "YCbCr 4:2:0"}, {Ntsc, "NTSC"}};
};

struct CtaVideoFormatResolutionListDataBlockFields : CtaDataBlockFields {
    TFlagsLsb<CtaVideoFormatResolutionListDataBlockFlagEnum, 6> Flags;
    CtaVideoFormatResolutionList List;
    bool operator==(const CtaVideoFormatResolutionListDataBlockFields&) const = default;
};

// Video format descriptors of one length (CTA-861-I, 7.5.15).
class CtaVideoFormatResolutionListDataBlock
    : public TCtaDataBlock<CtaVideoFormatResolutionListDataBlock, CtaDataBlockTypeId::VideoFormatResolutionList,
                           CtaVideoFormatResolutionListDataBlockFields> {
public:
    using ListLimits = CtaVideoFormatResolutionListLimits;
    static constexpr SizedShape Shape{1};
    static constexpr bool KeepsExtra = false;
    static constexpr TextFormat Format = ResolutionCountFormat(U"Video format resolutions");

    CtaVideoFormatResolutionListDataBlock() = default;
    explicit CtaVideoFormatResolutionListDataBlock(const CtaVideoFormatResolutionListDataBlockFields& fields) {
        SetFields(fields);
    }

    void FillTexts(TextTable& table) const { FillResolutionCount(table, List.GetCount()); }
    void Normalize() { List.Normalize(); }
    // 0 and 1 without a list, 2 with one, 3 where bytes stand behind that.
    int GetPresentLength() const {
        if (Size <= PrefixSize + Shape.fixed) return Size - PrefixSize;
        return Size == PrefixSize + Shape.fixed + List.GetSize() ? 2 : 3;
    }
    static bool AllowsLength(int presentLength) { return presentLength >= 1 && presentLength <= 3; }
    // The room of the list in a block of `size` bytes.
    ListLimits GetListLimits(int size) const { return {GetExtraRoom(size) - Extra.Size()}; }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Through(
            2, [&block] { return block.List.DescriptorLength - 1; },
            [&](auto raw) {
                if constexpr (!std::is_const_v<std::remove_reference_t<decltype(block)>>)
                    block.List.DescriptorLength = static_cast<int>(raw) + 1;
            });
        const int length = block.List.DescriptorLength;
        const bool isLength = length >= 1 && length <= CtaVideoFormatResolution::FrameSize;
        io.Value("DescriptorLength", block.List.DescriptorLength, isLength, isLength);
        io.Kept("Flags", 6, block.Flags);
        io.List("List", block.List, TLimitPair(block.GetListLimits(io.Available())));
    }
};

}  // namespace VNT
