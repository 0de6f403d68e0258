#pragma once

#include "model/cta/data_block.h"

namespace VNT {

struct CtaVendorSpecificDataBlockFields : CtaDataBlockFields {
    int VendorId = 0;  // IEEE OUI or CID; `Extra` is what the vendor says
    bool operator==(const CtaVendorSpecificDataBlockFields&) const = default;
};

// The data blocks of vendors that no class is read for (CTA-861-I, 7.5.4, 7.5.7 and 7.5.8): plain, video and audio.
template <class X, CtaDataBlockTypeId::Enum id>
class TCtaVendorSpecificDataBlock : public TCtaDataBlock<X, id, CtaVendorSpecificDataBlockFields> {
public:
    static constexpr SizedShape Shape{3};

    static bool Accepts(const SizedPeek& peek) { return peek.plainType == id; }
    void FillTexts(TextTable& table) const {
        table.Set(U"{vendorid}", GetOuiText(this->VendorId));
        FillSizeTexts(table, {0, 0, this->Extra.Size(), this->GetExtraRoom(AnyCtaDataBlock::MaxSize)},
                      SizeOnlyTextFormat());
    }

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        io.Number("VendorId", 24, block.VendorId, Within(0, 0xFFFFFF));
    }

protected:
    static constexpr TextFormat GetFormatOf(std::u32string_view type) {
        return {U"{type}: {description}", U"{type}: {description}", U"{vendorid}", type};
    }
};

class CtaVendorSpecificDataBlock
    : public TCtaVendorSpecificDataBlock<CtaVendorSpecificDataBlock, CtaDataBlockTypeId::VendorSpecific> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Vendor-specific");
    CtaVendorSpecificDataBlock() = default;
    explicit CtaVendorSpecificDataBlock(const CtaVendorSpecificDataBlockFields& fields) { SetFields(fields); }
};

class CtaVendorSpecificVideoDataBlock
    : public TCtaVendorSpecificDataBlock<CtaVendorSpecificVideoDataBlock, CtaDataBlockTypeId::VendorSpecificVideo> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Vendor-specific video");
    CtaVendorSpecificVideoDataBlock() = default;
    explicit CtaVendorSpecificVideoDataBlock(const CtaVendorSpecificDataBlockFields& fields) { SetFields(fields); }
};

class CtaVendorSpecificAudioDataBlock
    : public TCtaVendorSpecificDataBlock<CtaVendorSpecificAudioDataBlock, CtaDataBlockTypeId::VendorSpecificAudio> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"Vendor-specific audio");
    CtaVendorSpecificAudioDataBlock() = default;
    explicit CtaVendorSpecificAudioDataBlock(const CtaVendorSpecificDataBlockFields& fields) { SetFields(fields); }
};

}  // namespace VNT
