#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/other_data_block.h"
#include "model/displayid/vendor_specific.h"
#include "tests/support/sized_suite.h"

namespace VNT::Testing {
namespace {

struct DisplayIdDataBlockFamily {
    using Holder = DisplayIdDataBlock;
    using Kinds = DisplayIdDataBlockKinds;
    using Items = ItemList<DisplayId1VendorSpecificDataBlock, DisplayId2VendorSpecificDataBlock,
                           DisplayIdCtaDataBlockListDataBlock, DisplayIdOtherDataBlock>;

    // Of any length that a section in an extension block has room for.
    static Bytes Frame(int type, const Fill& fill) {
        constexpr int unclaimedTag = 0x55, mostPayload = 118;
        const int length = fill() % (mostPayload + 1);
        Bytes bytes = Filled(AnyDisplayIdDataBlock::FrameBytes + length, fill);
        bytes.At(0) = static_cast<std::uint8_t>(type == DisplayIdDataBlockTypeId::Other ? unclaimedTag : type);
        bytes.At(2) = static_cast<std::uint8_t>(length);
        return bytes;
    }
};
INSTANTIATE_TYPED_TEST_SUITE_P(DisplayIdDataBlock, FamilySuite, DisplayIdDataBlockFamily);
INSTANTIATE_TYPED_TEST_SUITE_P(DisplayIdDataBlock, SizedSuite, DisplayIdDataBlockFamily);

}  // namespace
}  // namespace VNT::Testing
