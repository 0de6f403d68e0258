#include "model/displayid/data_block_kinds.h"
#include "tests/support/sized_suite.h"

namespace VNT::Testing {
namespace {

struct DisplayIdDataBlockFamily {
    using Any = AnyDisplayIdDataBlock;
    using Holder = DisplayIdDataBlock;
    using Kinds = DisplayIdDataBlockKinds;
    static constexpr const auto& List = DisplayIdDataBlockKindList;

    static bool DropsExtra(int type) {
        return type == DisplayIdDataBlockTypeId::SerialNumber1 || type == DisplayIdDataBlockTypeId::Text1;
    }
    // Of any length that a section in an extension block has room for.
    static Bytes Frame(int type, const Fill& fill) {
        using Id = DisplayIdDataBlockTypeId;
        constexpr int unclaimedTag = 0x55, mostPayload = 118, tags = 256, revisions = 8;
        // Three zero bytes are no block.
        const int length = std::max(type == Id::ProductId1 ? 1 : 0, fill() % (mostPayload + 1));
        Bytes bytes = Filled(AnyDisplayIdDataBlock::FrameBytes + length, fill);
        bytes.At(0) = static_cast<std::uint8_t>(type == Id::Other ? unclaimedTag : type % tags);
        bytes.At(2) = static_cast<std::uint8_t>(length);
        const int revision = bytes.At(1) % revisions;
        const int wanted = type == Id::DetailedResolutionList2     ? revision % 2
                           : type == Id::DetailedResolutionList2R2 ? std::max(revision, 2)
                                                                   : revision;
        bytes.At(1) = static_cast<std::uint8_t>(bytes.At(1) - revision + wanted);
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(DisplayIdDataBlock, FamilySuite, DisplayIdDataBlockFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(DisplayIdDataBlock, SizedSuite, DisplayIdDataBlockFamily);

}  // namespace
}  // namespace VNT::Testing
