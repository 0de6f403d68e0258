// The frame of the CTA-861 data blocks: the header, the types, the holder and the list.
#pragma once

#include <span>

#include "model/core/kinds.h"
#include "model/core/sized_item.h"

namespace VNT {

// The kinds by one number: the family of the header in the highest byte, the code that tells them apart there below it.
struct CtaDataBlockType {
    enum Family : int { Tag, ExtendedTag, Vendor, VendorVideo, VendorAudio, OtherFamily, NoFamily };
    static constexpr int FamilyStep = 0x1000000;
    static constexpr int Of(Family family, int code) { return family * FamilyStep + code; }
};

struct CtaDataBlockTypeId : CtaDataBlockType {
    enum Enum : int {
        AudioFormatList = Of(Tag, 0x1),
        VideoResolutionList = Of(Tag, 0x2),
        VendorSpecific = Of(Tag, 0x3),
        SpeakerAllocation = Of(Tag, 0x4),
        VideoFormatResolutionList = Of(Tag, 0x6),
        VideoCapability = Of(ExtendedTag, 0x00),
        VendorSpecificVideo = Of(ExtendedTag, 0x01),
        Colorimetry = Of(ExtendedTag, 0x05),
        HdrStaticMetadata = Of(ExtendedTag, 0x06),
        HdrDynamicMetadataList = Of(ExtendedTag, 0x07),
        NativeVideoResolution = Of(ExtendedTag, 0x08),
        VideoFormatPreference = Of(ExtendedTag, 0x0D),
        Ycc420VideoResolutionList = Of(ExtendedTag, 0x0E),
        Ycc420CapabilityMap = Of(ExtendedTag, 0x0F),
        VendorSpecificAudio = Of(ExtendedTag, 0x11),
        ProductInfo = Of(ExtendedTag, 0x21),
        ExtensionOverride = Of(ExtendedTag, 0x78),
        FreeSync = Of(Vendor, 0x00001A),
        GSync = Of(Vendor, 0x00044B),
        Hdmi = Of(Vendor, 0x000C03),
        Microsoft = Of(Vendor, 0xCA125C),
        Hdmi2 = Of(Vendor, 0xC45DD8),
        Hdr10Plus = Of(VendorVideo, 0x90848B),
        Other = Of(OtherFamily, 0),
        None = Of(NoFamily, 0),
    };
    // A kind that stands in no list here: a vendor's, by the OUI beside its class.
    static constexpr Enum OfVendor(int oui) { return static_cast<Enum>(Of(Vendor, oui)); }
};

// What the first bytes of a data block say (CTA-861-I, 7.4): tag and length, extended tag, OUI with its low byte first.
struct CtaDataBlockHeader {
    int tag = 0;
    int extendedTag = Undefined;
    int oui = Undefined;

    static constexpr int UsesExtendedTag = 7;
    static constexpr int VendorTag = 3;
    static constexpr int VendorVideoTag = 0x01;  // extended ones
    static constexpr int VendorAudioTag = 0x11;

    // That of a kind.
    static constexpr CtaDataBlockHeader Of(int type) {
        const int code = type % CtaDataBlockTypeId::FamilyStep;
        switch (type / CtaDataBlockTypeId::FamilyStep) {
            case CtaDataBlockTypeId::Tag:
                return {code};
            case CtaDataBlockTypeId::ExtendedTag:
                return {UsesExtendedTag, code};
            case CtaDataBlockTypeId::Vendor:
                return {VendorTag, Undefined, code};
            case CtaDataBlockTypeId::VendorVideo:
                return {UsesExtendedTag, VendorVideoTag, code};
            case CtaDataBlockTypeId::VendorAudio:
                return {UsesExtendedTag, VendorAudioTag, code};
            default:
                return {};
        }
    }
    constexpr int GetSize() const { return 1 + (extendedTag != Undefined ? 1 : 0) + (oui != Undefined ? 3 : 0); }
};

class AnyCtaDataBlock : public TAnySized<AnyCtaDataBlock> {
public:
    static constexpr int MaxSize = 32;  // a length of 31 is the most that a header can say
    static constexpr int NoType = CtaDataBlockTypeId::None;

    // Type, plain type and size of the data block at the start of the range. NoType if the range is empty or ends
    // inside of it.
    static SizedPeek Peek(ByteRange range);

    static constexpr int GetPrefixSize(int type) { return CtaDataBlockHeader::Of(type).GetSize(); }
    template <int type, class IO>
    static void MapPrefix(IO& io, auto& block) {
        constexpr CtaDataBlockHeader header = CtaDataBlockHeader::Of(type);
        MapLength(io, block);
        io.Constant(3, header.tag);
        if constexpr (header.extendedTag != Undefined) io.Constant(8, header.extendedTag);
        if constexpr (header.oui != Undefined) io.Constant(24, header.oui);
    }
    // The length of what follows the header's byte.
    template <class IO>
    static void MapLength(IO& io, auto& block) {
        io.Through(
            5, [&block] { return block.Size - 1; }, [](std::uint32_t) {});
    }
};

// What every record of a data block's fields begins with.
struct CtaDataBlockFields {
    Bytes Extra;  // what stands behind the known fields
    bool operator==(const CtaDataBlockFields&) const = default;
};

// An IEEE OUI as texts show it.
inline String GetOuiText(int oui) {
    constexpr int radix = 16, digits = 6;
    return NumberText(oui, radix, digits, true);
}

template <class X, CtaDataBlockTypeId::Enum id, class Fields>
using TCtaDataBlock = TSizedItem<X, AnyCtaDataBlock, CtaDataBlockTypeId::Enum, id, Fields>;
// That of a vendor, whose OUI is known to nobody else.
template <class X, int oui, class Fields>
using TCtaVendorDataBlock = TCtaDataBlock<X, CtaDataBlockTypeId::OfVendor(oui), Fields>;

// The table of kinds: what the holder reads and what the "Add Data Block" form offers.
struct CtaDataBlockKinds {
    static std::span<const TKind<AnyCtaDataBlock>> All();
    static std::unique_ptr<AnyCtaDataBlock> Read(ByteRange range);
};

using CtaDataBlock = TSizedContainer<AnyCtaDataBlock, CtaDataBlockKinds>;

class CtaDataBlockList : public TSizedList<CtaDataBlock> {
public:
    // Of a list that may take `bytes`.
    static TSizeListLimits<CtaDataBlockList> GetLimits(int bytes) {
        return {bytes, GetLeastAddSize(CtaDataBlockKinds::All())};
    }
    // At the end, but an extension override in front. False if the block is not IsValidAll.
    bool Add(const CtaDataBlock& block);
    // The count that an extension override at the head of the list states, else Undefined.
    int GetOverrideCount() const;
    // No effect without one.
    void SetOverrideCount(int count);
};

}  // namespace VNT
