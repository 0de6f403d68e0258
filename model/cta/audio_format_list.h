#pragma once

#include "model/cta/audio_format.h"
#include "model/cta/data_block.h"

namespace VNT {

struct CtaAudioFormatListDataBlockFields : CtaDataBlockFields {
    CtaAudioFormatList Formats;
    bool operator==(const CtaAudioFormatListDataBlockFields&) const = default;
};

// The audio data block (CTA-861-I, 7.5.2). `Extra` is what is left behind the last whole format; an edit drops it.
class CtaAudioFormatListDataBlock
    : public TCtaDataBlock<CtaAudioFormatListDataBlock, CtaDataBlockTypeId::AudioFormatList,
                           CtaAudioFormatListDataBlockFields> {
public:
    static constexpr SizedShape Shape{0};
    static constexpr TextFormat Format{U"{type}: {description}", U"{type}: {description}", U"{counttext}",
                                       U"Audio formats"};
    static constexpr bool KeepsExtra = false;

    CtaAudioFormatListDataBlock() = default;
    explicit CtaAudioFormatListDataBlock(const CtaAudioFormatListDataBlockFields& fields) { SetFields(fields); }

    void FillTexts(TextTable& table) const {
        table.Set(U"{count}", Formats.GetCount());
        table.Set(U"{counttext}", ChooseByCount(Formats.GetCount(), U"0 formats", U"1 format", U"{count} formats"));
    }
    TLimitPair<CountLimits> GetExtraLimits(int room) const {
        return {CountLimits{}, CountLimits{0, std::max(0, room - Formats.GetSize())}};
    }
    // The room of the list in a block of `size` bytes.
    SlotListLimits GetListLimits(int size) const {
        return SlotListLimits::FromBytes(GetExtraRoom(size) - Extra.Size(), CtaAudioFormatList::SlotBytes);
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.List("Formats", block.Formats, TLimitPair(block.GetListLimits(io.Available())));
    }
};

}  // namespace VNT
