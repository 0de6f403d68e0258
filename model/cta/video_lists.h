#pragma once

#include "model/cta/data_block.h"
#include "model/timing/video_code.h"

namespace VNT {

template <class Item>
struct TCtaVideoListDataBlockFields : CtaDataBlockFields {
    TVideoCodeList<Item> List;
    bool operator==(const TCtaVideoListDataBlockFields&) const = default;
};

// The data blocks that are lists of one-byte items to their end.
template <class X, CtaDataBlockTypeId::Enum id, class Item>
class TCtaVideoListDataBlock : public TCtaDataBlock<X, id, TCtaVideoListDataBlockFields<Item>> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr bool KeepsExtra = false;

    void FillTexts(TextTable& table) const { FillResolutionCount(table, this->List.GetCount()); }
    TLimitPair<CountLimits> GetExtraLimits(int) const { return Exactly(0); }
    static SlotListLimits GetListLimits(int size) {
        return SlotListLimits::FromBytes(X::GetExtraRoom(size), Item::FrameSize);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.List("List", block.List, TLimitPair(X::GetListLimits(io.Available())));
    }
};

// Short video descriptors (CTA-861-I, 7.5.1).
class CtaVideoResolutionListDataBlock
    : public TCtaVideoListDataBlock<CtaVideoResolutionListDataBlock, CtaDataBlockTypeId::VideoResolutionList,
                                    CtaVideoResolution> {
public:
    static constexpr TextFormat Format = ResolutionCountFormat(U"Video resolutions");
    CtaVideoResolutionListDataBlock() = default;
    explicit CtaVideoResolutionListDataBlock(const FieldsType& fields) { SetFields(fields); }
};

// Formats that are carried in YCbCr 4:2:0 alone (CTA-861-I, 7.5.10).
class CtaYcc420VideoResolutionListDataBlock
    : public TCtaVideoListDataBlock<CtaYcc420VideoResolutionListDataBlock,
                                    CtaDataBlockTypeId::Ycc420VideoResolutionList, CtaYcc420VideoResolution> {
public:
    static constexpr TextFormat Format = ResolutionCountFormat(U"4:2:0 video resolutions");
    CtaYcc420VideoResolutionListDataBlock() = default;
    explicit CtaYcc420VideoResolutionListDataBlock(const FieldsType& fields) { SetFields(fields); }
};

// Short video references in the order of preference (CTA-861-I, 7.5.12).
class CtaVideoFormatPreferenceDataBlock
    : public TCtaVideoListDataBlock<CtaVideoFormatPreferenceDataBlock, CtaDataBlockTypeId::VideoFormatPreference,
                                    CtaVideoReference> {
public:
    static constexpr TextFormat Format = ResolutionCountFormat(U"Video format preference");
    CtaVideoFormatPreferenceDataBlock() = default;
    explicit CtaVideoFormatPreferenceDataBlock(const FieldsType& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{count}", List.GetCount());
        table.Set(U"{counttext}",
                  ChooseByCount(List.GetCount(), U"0 references", U"1 reference", U"{count} references"));
    }
};

}  // namespace VNT
