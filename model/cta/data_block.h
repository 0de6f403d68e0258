// The frame of the CTA-861 data blocks: the header, the types, the holder and the list.
#pragma once

#include <span>

#include "model/core/kinds.h"
#include "model/core/sized_item.h"

namespace VNT {

// The kinds by one number: the family of the header in the highest byte, the code that tells them apart there below it.
struct CtaDataBlockTypeId {
    enum Family : int { Tag, ExtendedTag, Vendor, VendorVideo, VendorAudio, OtherFamily, NoFamily };
    static constexpr int FamilyStep = 0x1000000;
    static constexpr int Of(Family family, int code) { return family * FamilyStep + code; }

    enum Enum : int {
        AudioFormatList = 0x1,
        VideoResolutionList = 0x2,
        VendorSpecific = 0x3,
        SpeakerAllocation = 0x4,
        VideoFormatResolutionList = 0x6,
        VideoCapability = 0x1000000,
        VendorSpecificVideo = 0x1000001,
        Colorimetry = 0x1000005,
        HdrStaticMetadata = 0x1000006,
        HdrDynamicMetadataList = 0x1000007,
        NativeVideoResolution = 0x1000008,
        VideoFormatPreference = 0x100000D,
        Ycc420VideoResolutionList = 0x100000E,
        Ycc420CapabilityMap = 0x100000F,
        VendorSpecificAudio = 0x1000011,
        ProductInfo = 0x1000021,
        ExtensionOverride = 0x1000078,
        FreeSync = 0x200001A,
        GSync = 0x200044B,
        Hdmi = 0x2000C03,
        Microsoft = 0x2CA125C,
        Hdmi2 = 0x2C45DD8,
        Hdr10Plus = 0x390848B,
        Other = 0x5000000,
        None = 0x6000000,
    };
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
