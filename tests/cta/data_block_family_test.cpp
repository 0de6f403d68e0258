#include "model/cta/data_block_kinds.h"
#include "tests/support/sized_suite.h"

namespace VNT::Testing {
namespace {

struct CtaDataBlockFamily {
    using Any = AnyCtaDataBlock;
    using Holder = CtaDataBlock;
    using Kinds = CtaDataBlockKinds;
    static constexpr const auto& List = CtaDataBlockKindList;

    static bool IsBlankWhenNew(int type) { return type == CtaDataBlockTypeId::FreeSync; }
    static bool NeedsAllItsBytes(int type) { return type == CtaDataBlockTypeId::Microsoft; }
    static bool DropsExtra(int type) {
        using Id = CtaDataBlockTypeId;
        const std::set<int> dropping{Id::AudioFormatList,           Id::VideoResolutionList,
                                     Id::VideoFormatResolutionList, Id::HdrDynamicMetadataList,
                                     Id::VideoFormatPreference,     Id::Ycc420VideoResolutionList,
                                     Id::Ycc420CapabilityMap,       Id::ProductInfo};
        return dropping.contains(type);
    }

    // Of any length that the type can have.
    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedTag = 5;
        const bool isOther = type == CtaDataBlockTypeId::Other;
        const int prefix = AnyCtaDataBlock::GetPrefixSize(type);
        const int size = prefix + fill() % (AnyCtaDataBlock::MaxSize - prefix + 1);
        Bytes bytes = Filled(size, fill);
        const CtaDataBlockHeader header = CtaDataBlockHeader::Of(isOther ? unclaimedTag : type);
        ByteRange range = bytes;
        range.WriteLsb(5, static_cast<std::uint32_t>(size - 1));
        range.WriteLsb(3, static_cast<std::uint32_t>(header.tag));
        if (header.extendedTag != Undefined) range.WriteLsb(8, static_cast<std::uint32_t>(header.extendedTag));
        if (header.oui != Undefined) range.WriteLsb(24, static_cast<std::uint32_t>(header.oui));
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(CtaDataBlock, FamilySuite, CtaDataBlockFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(CtaDataBlock, SizedSuite, CtaDataBlockFamily);

struct CtaHdrDynamicMetadataFamily {
    using Any = AnyCtaHdrDynamicMetadata;
    using Holder = CtaHdrDynamicMetadata;
    using Kinds = CtaHdrDynamicMetadataKinds;
    static constexpr const auto& List = CtaHdrDynamicMetadataKindList;

    // Of any length that a data block has room for.
    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedType = 5, most = 30, prefix = 3;
        const int size = prefix + fill() % (most - prefix + 1);
        Bytes bytes = Filled(size, fill);
        ByteRange range = bytes;
        range.WriteLsb(8, static_cast<std::uint32_t>(size - 1));
        range.WriteLsb(16,
                       static_cast<std::uint32_t>(type == CtaHdrDynamicMetadataTypeId::Other ? unclaimedType : type));
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(CtaHdrDynamicMetadata, FamilySuite, CtaHdrDynamicMetadataFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(CtaHdrDynamicMetadata, SizedSuite, CtaHdrDynamicMetadataFamily);

}  // namespace
}  // namespace VNT::Testing
